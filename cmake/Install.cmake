# What an installation holds, and the package made of it. Included last, when every target is known.

# zentlor_install_compressed(SOURCE NAME FOLDER): installs SOURCE below the data folder as FOLDER/NAME.gz, which is how
# Debian wants manual pages and change logs. The bytes depend on nothing but the source's.
find_program(ZENTLOR_GZIP gzip REQUIRED)
function(zentlor_install_compressed source name folder)
  set(packed ${CMAKE_BINARY_DIR}/packed/${name}.gz)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packed)
  add_custom_command(OUTPUT ${packed} COMMAND ${ZENTLOR_GZIP} -9nc ${source} > ${packed} DEPENDS ${source} VERBATIM)
  add_custom_target(packed_${name} ALL DEPENDS ${packed})
  install(FILES ${packed} DESTINATION ${folder})
endfunction()

# A build of the command line alone has no studio.
foreach(program zentlor zentlor-studio)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    zentlor_install_compressed(${CMAKE_SOURCE_DIR}/docs/man/${program}.1 ${program}.1 ${CMAKE_INSTALL_MANDIR}/man1)
  endif()
endforeach()
if(TARGET zentlor-studio)
  install(FILES ${CMAKE_SOURCE_DIR}/data/applications/zentlor-studio.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${CMAKE_SOURCE_DIR}/data/icons/zentlor.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()

set(CPACK_PACKAGE_CONTACT "Zentlor developers <zentlor@example.org>")
string(TIMESTAMP ZENTLOR_PACKAGED_AT "%a, %d %b %Y %H:%M:%S +0000" UTC)
foreach(file copyright changelog)
  configure_file(${CMAKE_SOURCE_DIR}/data/${file}.in ${CMAKE_BINARY_DIR}/packed/${file} @ONLY)
endforeach()
zentlor_install_compressed(${CMAKE_BINARY_DIR}/packed/changelog changelog ${CMAKE_INSTALL_DOCDIR})
zentlor_install_compressed(${CMAKE_SOURCE_DIR}/CHANGELOG.md CHANGELOG.md ${CMAKE_INSTALL_DOCDIR})
install(FILES ${CMAKE_BINARY_DIR}/packed/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zentlor)
set(CPACK_PACKAGE_HOMEPAGE_URL ${ZENTLOR_HOME_PAGE})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Checker of VBA code in modules, Office documents and Access databases")
set(CPACK_PACKAGE_DESCRIPTION
"Reads exported VBA modules, Office documents and Access databases and reports
what a review would find, in German or English: at the command line (zentlor)
and in a window with the code beside the hints (zentlor-studio).")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded at run time, so no library dependency tells of them: the containers of Office documents and, for the studio, the
# window system's plugins and the German words of the toolkit's own dialogs.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libgsf-1-114")
if(TARGET zentlor-studio)
  string(APPEND CPACK_DEBIAN_PACKAGE_DEPENDS ", qt6-qpa-plugins, qt6-translations-l10n")
endif()
include(CPack)
