# `cmake --install build/release --prefix DIR` and `cpack -G TGZ` give the portable application folder. What stands
# at the place already is left alone (data/deliver.cmake).
set(CPACK_PACKAGE_NAME "Tarnwick")
set(CPACK_PACKAGE_VENDOR "Tarnwick")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Wizard that generates sets of static gateway pages")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_FILE_NAME "Tarnwick-${PROJECT_VERSION}")
set(CPACK_GENERATOR "TGZ")
set(CPACK_STRIP_FILES ON)
include(CPack)
