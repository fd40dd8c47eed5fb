# What the program has on Windows beside what it has everywhere.
set(windows_icon ${CMAKE_CURRENT_BINARY_DIR}/halvenmoor.ico)
foreach(size 16 24 32 48 64 128 256)
  set(file ${CMAKE_CURRENT_BINARY_DIR}/icon/${size}.png)
  render_picture(${icon} ${file} ${size} ${size})
  list(APPEND windows_sizes ${file})
endforeach()
set(windows_arguments ${windows_sizes})
list(TRANSFORM windows_arguments REPLACE "^.*/256.png$" "--raw=\\0") # as PNG: the largest takes too much as it is
add_custom_command(
  OUTPUT ${windows_icon}
  COMMAND icotool --create --output=${windows_icon} ${windows_arguments}
  DEPENDS ${windows_sizes}
  VERBATIM)
add_custom_target(windows_icon DEPENDS ${windows_icon})

# Icon, version and manifest stand in the program file itself.
configure_file(windows/halvenmoor.rc.in halvenmoor.rc @ONLY)
configure_file(windows/halvenmoor.manifest.in halvenmoor.manifest @ONLY)
target_sources(halvenmoor PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/halvenmoor.rc)
add_dependencies(halvenmoor windows_icon)
