# Run by cpack once a package is there: packs the same files again, so that neither their order on the disk nor the
# builder's user and umask get in, nor, if SOURCE_DATE_EPOCH is set, the moment of the build.
if(CPACK_GENERATOR STREQUAL DEB)
  set(files ${CPACK_TEMPORARY_DIRECTORY}-again)
  file(REMOVE_RECURSE ${files})
  execute_process(COMMAND dpkg-deb --raw-extract ${CPACK_PACKAGE_FILES} ${files} COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND chmod -R u=rwX,go=rX ${files} COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND dpkg-deb --root-owner-group -Zxz --build ${files} ${CPACK_PACKAGE_FILES}
                  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  return()
endif()

if(DEFINED ENV{SOURCE_DATE_EPOCH})
  set(time --mtime=@$ENV{SOURCE_DATE_EPOCH})
endif()
execute_process(
  COMMAND tar --sort=name --owner=root:0 --group=root:0 --mode=u=rwX,go=rX ${time} -C ${CPACK_TEMPORARY_DIRECTORY}/..
          -c ${CPACK_PACKAGE_FILE_NAME}
  COMMAND gzip -9n
  OUTPUT_FILE ${CPACK_PACKAGE_FILES}
  COMMAND_ERROR_IS_FATAL ANY)
