# Read by cpack before it makes each package: the Debian package is made of parts of its own.
if(CPACK_GENERATOR STREQUAL DEB)
  string(REPLACE ";ALL;" ";debian;" CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_INSTALL_CMAKE_PROJECTS}")
endif()
