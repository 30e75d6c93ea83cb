# An overlay port for the tree that it lies in: vcpkg install orvane --overlay-ports=<tree>/packaging/vcpkg
# LAPACK's routines are part of the library. Without Debian's static libraries of it the sources are wanted:
# VCPKG_CMAKE_CONFIGURE_OPTIONS of the triplet may name them, -DORVANE_LAPACK_SOURCE=<lapack-3.11>, with gfortran.
get_filename_component(SOURCE_PATH "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

vcpkg_cmake_configure(SOURCE_PATH "${SOURCE_PATH}" OPTIONS -DORVANE_BUILD_TESTS=OFF)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME Orvane CONFIG_PATH lib/cmake/Orvane)
vcpkg_fixup_pkgconfig()

file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share"
  "${CURRENT_PACKAGES_DIR}/share/doc")
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/usage" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE" "${SOURCE_PATH}/THIRD_PARTY_NOTICES")
