# What the Debian package holds: programs and their data each in a folder of its own below /usr, and the documents that
# Debian wants. The link `data` beside the programs tells them where their data are.
set(programs halvenmoor halvenmoor-batch) # each with its man page, PROGRAM.1
set(package ${CMAKE_CURRENT_BINARY_DIR}/debian)

set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Halvenmoor developers <maintainers@halvenmoor.example>")
execute_process(
  COMMAND date --utc --rfc-email --date=${HALVENMOOR_DATE}
  OUTPUT_VARIABLE rfc_date
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.in changelog @ONLY)

# add_compressed(SOURCE TARGET) adds a file to the package, compressed to the same bytes each time.
function(add_compressed source target)
  get_filename_component(folder ${package}/${target} DIRECTORY)
  add_custom_command(
    OUTPUT ${package}/${target}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND gzip -9nc ${source} > ${package}/${target}
    DEPENDS ${source}
    VERBATIM)
  set(compressed ${compressed} ${package}/${target} PARENT_SCOPE)
endfunction()

add_compressed(${CMAKE_CURRENT_BINARY_DIR}/changelog share/doc/halvenmoor/changelog.gz)
add_compressed(${PROJECT_SOURCE_DIR}/CHANGELOG.md share/doc/halvenmoor/CHANGELOG.md.gz)
configure_file(${PROJECT_SOURCE_DIR}/LICENSE ${package}/share/doc/halvenmoor/copyright COPYONLY)
file(MAKE_DIRECTORY ${package}/bin ${package}/lib/halvenmoor)
file(CREATE_LINK ../../share/halvenmoor ${package}/lib/halvenmoor/data SYMBOLIC)
foreach(program IN LISTS programs)
  add_compressed(${PROJECT_SOURCE_DIR}/packaging/${program}.1 share/man/man1/${program}.1.gz)
  file(CREATE_LINK ../lib/halvenmoor/${program} ${package}/bin/${program} SYMBOLIC)
endforeach()
add_custom_target(debian_documents ALL DEPENDS ${compressed})
add_dependencies(companions debian_documents)

set(debian COMPONENT debian EXCLUDE_FROM_ALL)
install(TARGETS ${programs} RUNTIME DESTINATION lib/halvenmoor ${debian})
install(DIRECTORY ${package}/ DESTINATION . ${debian})
install(DIRECTORY ${companions}/share/ DESTINATION share ${debian} PATTERN man EXCLUDE)
set(data ${PROJECT_SOURCE_DIR}/data)
install(DIRECTORY ${data}/lang ${data}/demo DESTINATION share/halvenmoor ${debian})
install(FILES ${data}/Settings.ini ${companions}/translating.md DESTINATION share/halvenmoor ${debian})
if(CMARK)
  install(FILES ${companions}/manual.html DESTINATION share/halvenmoor ${debian})
  install(DIRECTORY ${companions}/manual DESTINATION share/halvenmoor ${debian})
endif()

list(APPEND CPACK_GENERATOR DEB)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/choose_parts.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, xdg-utils") # the words of file dialogs; to open the manual
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "sort speed-camera files and export them as one file
Halvenmoor turns a collection of speed-camera files into one file for
navigation software. The files are sorted into five types, by hand or by
their names, and written as one text file in the format of iGO 2006SE.
.
It also imports OV2 and text files. Each user has a folder of their own, with
example files to begin with.")
