# Completes the folder TARGET with the folders FOLDERS and with the data files of SOURCE. The folder of demonstration
# files is left as it is once it exists, so a file that the user renamed there does not come back.
file(GLOB languages RELATIVE "${SOURCE}" "${SOURCE}/lang/*.ini")
foreach(part Settings.ini demo/asc_demo ${languages})
  if(NOT EXISTS "${TARGET}/${part}")
    # Under its own name only once it is complete.
    get_filename_component(parent "${TARGET}/${part}" DIRECTORY)
    get_filename_component(name "${part}" NAME)
    file(REMOVE_RECURSE "${parent}/.unfinished")
    file(COPY "${SOURCE}/${part}" DESTINATION "${parent}/.unfinished")
    file(RENAME "${parent}/.unfinished/${name}" "${TARGET}/${part}")
    file(REMOVE_RECURSE "${parent}/.unfinished")
  endif()
endforeach()
foreach(folder ${FOLDERS})
  file(MAKE_DIRECTORY "${TARGET}/${folder}")
endforeach()
