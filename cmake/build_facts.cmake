# BUILD_REVISION and BUILD_DATE: the commit that is built and its day, not the day of the build, so that
# the same sources give the same bytes. Both are empty where git or the history is missing.
function(tr7_git out)
  execute_process(COMMAND git -C ${CMAKE_SOURCE_DIR} ${ARGN} OUTPUT_VARIABLE said ERROR_QUIET
                  RESULT_VARIABLE failed OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(failed)
    set(said "")
  endif()
  set(${out} "${said}" PARENT_SCOPE)
endfunction()

tr7_git(BUILD_REVISION describe --always --dirty --abbrev=10)
tr7_git(BUILD_DATE log -1 --format=%cs)
# A new commit is told without a fresh configuration by hand.
tr7_git(GIT_LOG rev-parse --git-path logs/HEAD)
if(GIT_LOG)
  cmake_path(ABSOLUTE_PATH GIT_LOG BASE_DIRECTORY ${CMAKE_SOURCE_DIR})
  if(EXISTS ${GIT_LOG})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${GIT_LOG})
  endif()
endif()
