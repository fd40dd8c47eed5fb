find_program(RSVG_CONVERT rsvg-convert REQUIRED)

# Renders a picture at build time: render_picture(FILE.svg FILE.png OPTION...) with options of rsvg-convert, as --zoom=4.
function(render_picture svg png)
  cmake_path(GET png PARENT_PATH folder)
  add_custom_command(
    OUTPUT ${png}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${RSVG_CONVERT} ${ARGN} --output ${png} ${svg}
    DEPENDS ${svg}
    VERBATIM)
endfunction()

# Renders an icon in SIZE pixels.
function(render_icon svg png size)
  render_picture(${svg} ${png} --width=${size} --height=${size})
endfunction()
