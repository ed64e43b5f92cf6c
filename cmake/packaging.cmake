# SPDX-License-Identifier: MIT
# `cmake --install build/release --prefix DIR` and `cpack -G TGZ` give the portable application folder. What stands
# at the place already is left alone (data/deliver.cmake). `cpack -G DEB` gives a package whose programs keep
# their application folder in the user's home.
set(CPACK_PACKAGE_NAME "Tarnwick")
set(CPACK_PACKAGE_VENDOR "Tarnwick")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Wizard that generates sets of static gateway pages")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_FILE_NAME "Tarnwick-${PROJECT_VERSION}")
set(CPACK_GENERATOR "TGZ")
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_PACKAGE_NAME "tarnwick")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Tarnwick maintainers <maintainers@tarnwick.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION "web")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Six steps collect the target site, keywords, content, hosts and settings.
A run then writes first-level, second-level and random pages, links them
with each other and with a hallway page, and analyses every page that it
wrote. Each user's projects and pages are in the folder Tarnwick of the
home directory, which the first start fills.")
# What depends on the shared libraries is found by dpkg-shlibdeps; the pages are opened by xdg-open.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils")

# One build, two shapes: the components of an archive are chosen when its generator is known.
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_LIST_DIR}/package_shape.cmake")
set(CPACK_BUILD_FOLDER "${CMAKE_BINARY_DIR}")
include(CPack)
