# What the program folder has on Linux beside what it has everywhere: what menus and software centres want to know.
set(share ${companions}/share)

configure_file(halvenmoor.desktop.in ${share}/applications/${HALVENMOOR_ID}.desktop @ONLY)
configure_file(halvenmoor.metainfo.xml.in ${share}/metainfo/${HALVENMOOR_ID}.metainfo.xml @ONLY)
configure_file(halvenmoor.1 ${share}/man/man1/halvenmoor.1 COPYONLY)
configure_file(halvenmoor-batch.1 ${share}/man/man1/halvenmoor-batch.1 COPYONLY)
configure_file(menu-entry.in ${companions}/menu-entry @ONLY)
configure_file(README.txt ${companions}/README.txt COPYONLY)

set(icons ${share}/icons/hicolor)
foreach(size 16 22 24 32 48 64 128 256)
  set(file ${icons}/${size}x${size}/apps/${HALVENMOOR_ID}.png)
  render_picture(${icon} ${file} ${size} ${size})
  list(APPEND icon_files ${file})
endforeach()
add_custom_target(icons DEPENDS ${icon_files})
add_dependencies(companions icons)
configure_file(${icon} ${icons}/scalable/apps/${HALVENMOOR_ID}.svg COPYONLY)

# cpack packs the installed program folder as an archive and, where it can, the same parts as a Debian package: the same
# bytes each time if SOURCE_DATE_EPOCH is set for the build, too.
set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_FILE_NAME halvenmoor-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_STRIP_FILES ON)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/repack.cmake)
find_program(DPKG_SHLIBDEPS dpkg-shlibdeps)
if(DPKG_SHLIBDEPS)
  include(debian/package.cmake)
endif()
