# Run by cpack once the program folder is installed in a place of its own: packs it.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
find_program(ADVZIP advzip REQUIRED) # in Debian's package advancecomp
find_program(MAKENSIS makensis REQUIRED) # in Debian's package nsis

set(packages ${CPACK_TOPLEVEL_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME})
execute_process(
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_LIST_DIR}/zip_folder.py ${CPACK_TEMPORARY_DIRECTORY}/halvenmoor
          ${packages}-windows.zip COMMAND_ERROR_IS_FATAL ANY)
# Smaller than what Python makes, and every Windows still unpacks it.
execute_process(COMMAND ${ADVZIP} --recompress --shrink-normal --quiet ${packages}-windows.zip COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_LIST_DIR}/list_files.py ${CPACK_TEMPORARY_DIRECTORY}/halvenmoor
          ${CPACK_TOPLEVEL_DIRECTORY}/files.nsh COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND
    ${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8 ${MAKENSIS} -V2 -WX -INPUTCHARSET UTF8 -DVERSION=${CPACK_PACKAGE_VERSION} -DICON=${CPACK_HALVENMOOR_ICON}
    -DFILES=${CPACK_TOPLEVEL_DIRECTORY}/files.nsh -DSETUP=${packages}-setup.exe ${CMAKE_CURRENT_LIST_DIR}/setup.nsi
    COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES ${packages}-windows.zip ${packages}-setup.exe)
