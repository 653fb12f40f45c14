# What an installation holds, and the package made of it. Included last, when every target is known.

# A build of the command line alone has no studio.
foreach(program zentlor zentlor-studio)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(FILES ${CMAKE_SOURCE_DIR}/docs/man/${program}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  endif()
endforeach()
if(TARGET zentlor-studio)
  install(FILES ${CMAKE_SOURCE_DIR}/data/applications/zentlor-studio.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${CMAKE_SOURCE_DIR}/data/icons/zentlor.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zentlor)
set(CPACK_PACKAGE_CONTACT "Zentlor developers <zentlor@example.org>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${ZENTLOR_HOME_PAGE})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Checker of VBA code in modules, Office documents and Access databases")
set(CPACK_PACKAGE_DESCRIPTION
"Reads exported VBA modules, Office documents and Access databases and reports
what a review would find, in German or English: at the command line (zentlor)
and in a window with the code beside the hints (zentlor-studio).")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(TARGET zentlor-studio)
  # Loaded at run time, so no library dependency tells of them: the window system's plugins.
  set(CPACK_DEBIAN_PACKAGE_DEPENDS qt6-qpa-plugins)
endif()
include(CPack)
