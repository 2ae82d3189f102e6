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
