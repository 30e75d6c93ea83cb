# The package: headers, library, find_package(Orvane) and pkg-config.
include(CMakePackageConfigHelpers)
set(ORVANE_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Orvane)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/OrvaneConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orvane
  FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")
install(FILES ${PROJECT_BINARY_DIR}/OrvaneConfigVersion.cmake DESTINATION ${ORVANE_CMAKE_DIR})

if(WIN32)
  # The DLL is not a target that CMake could export: it is linked by hand.
  set(dll ${PROJECT_BINARY_DIR}/src/dll)
  install(FILES ${dll}/orvane.dll ${dll}/orvane.pdb DESTINATION bin)
  install(FILES ${dll}/orvane.lib ${dll}/liborvane.dll.a DESTINATION lib)
  install(FILES ${PROJECT_SOURCE_DIR}/cmake/OrvaneWindowsConfig.cmake DESTINATION ${ORVANE_CMAKE_DIR} RENAME OrvaneConfig.cmake)
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/docs/windows.md DESTINATION .)
  return()
endif()

install(TARGETS orvane EXPORT OrvaneTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(EXPORT OrvaneTargets NAMESPACE Orvane:: DESTINATION ${ORVANE_CMAKE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/OrvaneConfig.cmake.in
  ${PROJECT_BINARY_DIR}/OrvaneConfig.cmake INSTALL_DESTINATION ${ORVANE_CMAKE_DIR})
install(FILES ${PROJECT_BINARY_DIR}/OrvaneConfig.cmake DESTINATION ${ORVANE_CMAKE_DIR})

# Relative, so that the package can be moved.
file(RELATIVE_PATH ORVANE_PC_TO_PREFIX /p/${CMAKE_INSTALL_LIBDIR}/pkgconfig /p)
configure_file(${PROJECT_SOURCE_DIR}/cmake/orvane.pc.in ${PROJECT_BINARY_DIR}/orvane.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/orvane.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
