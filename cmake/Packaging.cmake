# What `cmake --install` puts where, and the Debian package that CPack makes of it.
include(GNUInstallDirs)
set(NST_NAME network-setting-tool)
install(TARGETS ${NST_NAME} network-setting DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES packaging/network-setting.bash
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME network-setting)
install(FILES docs/command-line.md docs/fleet.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES packaging/${NST_NAME}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/${NST_NAME}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
# Where Ansible looks for collections.
install(DIRECTORY packaging/ansible/
  DESTINATION ${CMAKE_INSTALL_DATADIR}/ansible/collections/ansible_collections/network_setting/tool
  PATTERN examples EXCLUDE)
install(DIRECTORY packaging/ansible/examples DESTINATION ${CMAKE_INSTALL_DOCDIR})
# Always in lib, wherever the libraries go: that is where udev looks.
install(FILES packaging/70-${NST_NAME}.rules DESTINATION lib/udev/rules.d)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)
# Documents that the system keeps compressed.
foreach(document ${NST_NAME}.1 network-setting.1 debian/changelog)
  cmake_path(GET document FILENAME name)
  set(compressed ${PROJECT_BINARY_DIR}/${name}.gz)
  add_custom_command(OUTPUT ${compressed} DEPENDS packaging/${document} VERBATIM
    COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/packaging/${document} > ${compressed})
  list(APPEND NST_DOCUMENTS ${compressed})
endforeach()
add_custom_target(documents DEPENDS ${NST_DOCUMENTS})
add_dependencies(${NST_NAME} documents)
install(FILES ${PROJECT_BINARY_DIR}/${NST_NAME}.1.gz ${PROJECT_BINARY_DIR}/network-setting.1.gz
  DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${PROJECT_BINARY_DIR}/changelog.gz DESTINATION ${CMAKE_INSTALL_DOCDIR})
file(STRINGS packaging/debian/changelog release LIMIT_COUNT 1)
if(NOT release MATCHES "^${NST_NAME} \\(${PROJECT_VERSION}\\)")
  message(FATAL_ERROR "packaging/debian/changelog does not begin with version ${PROJECT_VERSION}")
endif()
set(NST_ICONS ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES resources/icons/${NST_NAME}.svg DESTINATION ${NST_ICONS}/scalable/apps)
foreach(size 16 24 32 48 64 128 256 512)
  install(FILES resources/icons/${NST_NAME}-${size}.png
    DESTINATION ${NST_ICONS}/${size}x${size}/apps RENAME ${NST_NAME}.png)
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${NST_NAME})
set(CPACK_PACKAGE_CONTACT "Network Setting Tool developers <${NST_CONTACT}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "read and change the network settings of label printers")
set(CPACK_PACKAGE_DESCRIPTION
  "Lists the label printers that are reachable over USB or the network, reads all
network settings of one, shows them on seven pages, checks what is typed, and
writes everything back in one transaction, after a login where the printer has
an administrator password. Only a printer connected over USB can be changed.
The program network-setting does the same from a terminal or a script, for one
printer or for a table of many.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/debian/postinst
  ${PROJECT_SOURCE_DIR}/packaging/debian/postrm)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Plugins, which no library dependency shows: pictures.
set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt6svg6)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "avahi-daemon, qt6-translations-l10n")
include(CPack)
