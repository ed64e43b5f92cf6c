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
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

# One build, two shapes: the components of an archive are chosen when its generator is known.
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_LIST_DIR}/package_shape.cmake")
set(CPACK_BUILD_FOLDER "${CMAKE_BINARY_DIR}")
include(CPack)
