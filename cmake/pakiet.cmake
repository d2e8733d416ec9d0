# What an installed program needs, and the Debian package (tools/pakuj).
include(GNUInstallDirs)
set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/tornel)

set(IKONY ${PROJECT_BINARY_DIR}/ikony)
set(ROZMIARY_IKON 16 22 24 32 48 64 128 256)
add_executable(tornel-ikony EXCLUDE_FROM_ALL tools/ikony.cpp)
target_link_libraries(tornel-ikony PRIVATE Qt6::Gui Qt6::Svg)
set_target_properties(tornel-ikony PROPERTIES AUTOMOC OFF AUTORCC OFF)
set(PLIKI_IKON "")
foreach(rozmiar IN LISTS ROZMIARY_IKON)
    set(ikona ${IKONY}/${rozmiar}x${rozmiar}/apps/tornel.png)
    list(APPEND PLIKI_IKON ${ikona})
endforeach()
add_custom_command(
    OUTPUT ${PLIKI_IKON}
    COMMAND tornel-ikony ${PROJECT_SOURCE_DIR}/data/obrazy/program.svg ${PLIKI_IKON}
    DEPENDS tornel-ikony data/obrazy/program.svg
    COMMENT "Icons" VERBATIM)
add_custom_target(ikony DEPENDS ${PLIKI_IKON})

foreach(szablon tornel.1 tornel-cli.1 tornel.metainfo.xml)
    configure_file(data/pulpit/${szablon} ${PROJECT_BINARY_DIR}/pulpit/${szablon} @ONLY)
endforeach()

install(TARGETS tornel tornel-cli RUNTIME)
install(FILES ${PROJECT_BINARY_DIR}/Help.hlp DESTINATION ${CMAKE_INSTALL_DATADIR}/tornel)
install(FILES data/pulpit/tornel.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES data/pulpit/tornel-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME tornel.xml)
install(FILES ${PROJECT_BINARY_DIR}/pulpit/tornel.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${PROJECT_BINARY_DIR}/pulpit/tornel.1 ${PROJECT_BINARY_DIR}/pulpit/tornel-cli.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(DIRECTORY ${IKONY}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES data/obrazy/program.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
        RENAME tornel.svg)
install(FILES README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/obrazy DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tornel)
set(CPACK_PACKAGE_VENDOR Tornel)
set(CPACK_PACKAGE_CONTACT "Tornel <tornel@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "personnel file and payroll of one Polish employer")
set(CPACK_PACKAGE_DESCRIPTION "Monthly payroll lists under the rules of 2001, contracts, absences,
declarations, documents for the social insurer and bank transfers, on screen and in the console.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Polish dialogs of the toolkit, the fonts of the prints, the plug-in that draws the pictures.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n, fonts-dejavu-core, fonts-dejavu-extra")
include(CPack)
