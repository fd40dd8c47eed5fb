# Run by cpack on the files to be packed: neither the moment of the build nor the umask of the builder gets in.
execute_process(COMMAND chmod -R u=rwX,go=rX ${CPACK_TEMPORARY_DIRECTORY} COMMAND_ERROR_IS_FATAL ANY)
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -exec touch -h -d @$ENV{SOURCE_DATE_EPOCH} {} +
                  COMMAND_ERROR_IS_FATAL ANY)
endif()
