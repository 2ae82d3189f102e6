# tr7_embed(OUT files...): turns each file into a C++ source that defines
# `extern const char tr7_res_<name>[]` and `extern const unsigned tr7_res_<name>_size`.
function(tr7_embed out)
  set(sources)
  foreach(file IN LISTS ARGN)
    get_filename_component(name ${file} NAME_WE)
    set(generated ${CMAKE_BINARY_DIR}/res/${name}.cpp)
    add_custom_command(
      OUTPUT ${generated}
      COMMAND ${CMAKE_COMMAND} -DIN=${CMAKE_SOURCE_DIR}/${file} -DOUT=${generated} -DNAME=${name}
              -P ${CMAKE_SOURCE_DIR}/cmake/embed_file.cmake
      DEPENDS ${CMAKE_SOURCE_DIR}/${file} ${CMAKE_SOURCE_DIR}/cmake/embed_file.cmake
      VERBATIM)
    list(APPEND sources ${generated})
  endforeach()
  set(${out} ${sources} PARENT_SCOPE)
endfunction()

# tr7_message_ids(OUT file): makes message_ids.h, the table of the ids that a message table has. Texts
# may change without it.
function(tr7_message_ids out file)
  set(header ${CMAKE_BINARY_DIR}/res/message_ids.h)
  set(script ${CMAKE_SOURCE_DIR}/cmake/message_ids.cmake)
  add_custom_command(
    OUTPUT ${header}
    COMMAND ${CMAKE_COMMAND} -DIN=${CMAKE_SOURCE_DIR}/${file} -DOUT=${header}.new -P ${script}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${header}.new ${header}
    DEPENDS ${CMAKE_SOURCE_DIR}/${file} ${script}
    VERBATIM)
  set(${out} ${header} PARENT_SCOPE)
endfunction()
