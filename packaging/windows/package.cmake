# What the program folder and the program have on Windows beside what they have everywhere, and the packages for it.

# The icon; the largest size goes in as PNG, which is much smaller.
set(icon_file ${CMAKE_CURRENT_BINARY_DIR}/halvenmoor.ico)
foreach(size 16 24 32 48 64 128)
  render_picture(${icon} ${CMAKE_CURRENT_BINARY_DIR}/icon/${size}.png ${size} ${size})
  list(APPEND small_icons ${CMAKE_CURRENT_BINARY_DIR}/icon/${size}.png)
endforeach()
set(large_icon ${CMAKE_CURRENT_BINARY_DIR}/icon/256.png)
render_picture(${icon} ${large_icon} 256 256)
find_program(ICOTOOL icotool REQUIRED) # in Debian's package icoutils
add_custom_command(
  OUTPUT ${icon_file}
  COMMAND ${ICOTOOL} --create --output=${icon_file} ${small_icons} --raw=${large_icon}
  DEPENDS ${small_icons} ${large_icon}
  VERBATIM)
add_custom_target(windows_icon DEPENDS ${icon_file})

# add_resources(PROGRAM DESCRIPTION): icon, version and manifest, which Windows reads from the program itself.
set(manifest ${CMAKE_CURRENT_SOURCE_DIR}/windows/halvenmoor.manifest)
string(REPLACE . , VERSION_NUMBERS ${PROJECT_VERSION}.0.0)
function(add_resources program DESCRIPTION)
  set(PROGRAM ${program})
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
  configure_file(windows/resources.rc.in ${resources} @ONLY)
  target_sources(${program} PRIVATE ${resources})
  set_source_files_properties(${resources} TARGET_DIRECTORY ${program} PROPERTIES OBJECT_DEPENDS
                                                                                 "${icon_file};${manifest}")
  add_dependencies(${program} windows_icon)
endfunction()
add_resources(halvenmoor "Halvenmoor")
add_resources(halvenmoor-batch "Halvenmoor without a window")

configure_file(windows/README.txt ${companions}/README.txt NEWLINE_STYLE CRLF)

# The licences of what is linked into the program, from the Debian packages that it is built with.
set(licences ${companions}/licences)
if(EXISTS /usr/share/doc/qt6-base-dev/copyright)
  configure_file(windows/licences.txt.in ${licences}/README.txt NEWLINE_STYLE CRLF)
  configure_file(/usr/share/doc/qt6-base-dev/copyright ${licences}/Qt.txt COPYONLY)
  configure_file(/usr/share/doc/mingw-w64-x86-64-dev/copyright ${licences}/mingw-w64.txt COPYONLY)
  configure_file(/usr/share/doc/gcc-mingw-w64-x86-64-posix-runtime/copyright ${licences}/GCC.txt COPYONLY)
  foreach(licence GPL-3 LGPL-3)
    configure_file(/usr/share/common-licenses/${licence} ${licences}/${licence}.txt COPYONLY)
  endforeach()
else()
  message(STATUS "The licences of Qt and the compiler are not there, so do not hand on what cpack makes.")
endif()

# cpack makes an archive and a setup program of the installed program folder.
set(CPACK_GENERATOR External)
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT ${CMAKE_CURRENT_SOURCE_DIR}/windows/pack.cmake)
set(CPACK_PACKAGE_FILE_NAME halvenmoor-${PROJECT_VERSION})
set(CPACK_STRIP_FILES ON)
set(CPACK_HALVENMOOR_ICON ${icon_file})
