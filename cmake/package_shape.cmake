# SPDX-License-Identifier: MIT
# Read by cpack for each generator: the Debian package has a shape of its own.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_BUILD_FOLDER};Tarnwick;debian;/")
else()
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_BUILD_FOLDER};Tarnwick;portable;/")
endif()
