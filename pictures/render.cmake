find_program(RSVG_CONVERT rsvg-convert REQUIRED)

# Renders a picture at build time: FILE.png from FILE.svg, in pixels.
function(render_picture svg png width height)
  cmake_path(GET png PARENT_PATH folder)
  add_custom_command(
    OUTPUT ${png}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${RSVG_CONVERT} --width=${width} --height=${height} --output=${png} ${svg}
    DEPENDS ${svg}
    VERBATIM)
endfunction()
