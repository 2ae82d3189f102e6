# What is installed, and the Debian package made of it.

include(GNUInstallDirs)

add_executable(qv-tr7-icons packaging/icons.cpp)
target_link_libraries(qv-tr7-icons PRIVATE tr7_ui)
set(ICONS ${CMAKE_BINARY_DIR}/icons)
add_custom_command(OUTPUT ${ICONS}.done
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen $<TARGET_FILE:qv-tr7-icons> ${ICONS}
  COMMAND ${CMAKE_COMMAND} -E touch ${ICONS}.done
  DEPENDS qv-tr7-icons VERBATIM)
add_custom_target(qv-tr7-icons-drawn ALL DEPENDS ${ICONS}.done)

set(SHARE ${CMAKE_INSTALL_DATADIR}/qv-tr7)
set(DOC ${CMAKE_INSTALL_DATADIR}/doc/qv-tr7)
install(TARGETS qv-tr7 qv-r7-sim RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS qv-tr7-guard RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/qv-tr7)
install(DIRECTORY lists/ DESTINATION ${SHARE} FILES_MATCHING PATTERN "*.lst")
install(DIRECTORY samples help DESTINATION ${SHARE})
install(DIRECTORY ${ICONS}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES packaging/qv-tr7.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/qv-tr7.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
foreach(program IN ITEMS qv-tr7 qv-r7-sim)
  install(FILES packaging/qv-tr7.bash RENAME ${program}
          DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  set(page ${CMAKE_BINARY_DIR}/${program}.1.gz)
  add_custom_command(OUTPUT ${page} COMMAND gzip -9nc ${CMAKE_SOURCE_DIR}/packaging/${program}.1 > ${page}
                     DEPENDS packaging/${program}.1 VERBATIM)
  list(APPEND PAGES ${page})
endforeach()
set(CHANGELOG ${CMAKE_BINARY_DIR}/changelog.gz)
add_custom_command(OUTPUT ${CHANGELOG} COMMAND gzip -9nc ${CMAKE_SOURCE_DIR}/CHANGELOG.md > ${CHANGELOG}
                   DEPENDS CHANGELOG.md VERBATIM)
add_custom_target(qv-tr7-pages ALL DEPENDS ${PAGES} ${CHANGELOG})
install(FILES ${PAGES} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${CHANGELOG} docs/files.md docs/safety.md docs/simulator.md docs/protocol.md docs/licences.md
        DESTINATION ${DOC})
install(FILES lists/README.md RENAME lists.md DESTINATION ${DOC})
install(FILES LICENSE RENAME copyright DESTINATION ${DOC})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME qv-tr7)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_CONTACT "QV-TR7 developers <developers@qv-tr7.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "teaching and maintenance tool for the QV-R7 controller")
set(CPACK_PACKAGE_DESCRIPTION
"Edits, transfers and verifies the data of a four-axis actuator controller over a serial
line, teaches positions, runs and watches programs, and prints. A simulated controller
to try everything without a machine comes with it.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-noto-cjk")
# F1 opens the manual in the browser.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, xdg-utils, firefox-esr | www-browser")
include(CPack)
