# Completes the folder TARGET with the folders FOLDERS and with the data files of SOURCE. The folder of demonstration
# files is left as it is once it exists, so a file that the user renamed there does not come back.
file(GLOB languages RELATIVE "${SOURCE}" "${SOURCE}/lang/*.ini")
foreach(part Settings.ini demo/asc_demo ${languages})
  if(NOT EXISTS "${TARGET}/${part}")
    get_filename_component(parent "${TARGET}/${part}" DIRECTORY)
    file(COPY "${SOURCE}/${part}" DESTINATION "${parent}")
  endif()
endforeach()
foreach(folder ${FOLDERS})
  file(MAKE_DIRECTORY "${TARGET}/${folder}")
endforeach()
