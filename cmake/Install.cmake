# The package: headers, library, find_package(Orvane), pkg-config and documents, in components that can be installed
# one by one (cmake --install ... --component orvane_runtime):
#
#   orvane_runtime        what programs need that were linked with the shared library
#   orvane_development    what it takes to link one
#   orvane_documentation  the documents and example hosts
#   orvane_python         the package for Python, where it is built; it needs orvane_runtime
include(CMakePackageConfigHelpers)
set(ORVANE_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Orvane)
set(ORVANE_DOC_DIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/orvane)
set(windows_dll ${PROJECT_BINARY_DIR}/src/dll)

write_basic_package_version_file(${PROJECT_BINARY_DIR}/OrvaneConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orvane
  COMPONENT orvane_development FILES_MATCHING PATTERN "*.h" PATTERN "*.hpp")
install(FILES ${PROJECT_BINARY_DIR}/OrvaneConfigVersion.cmake
  DESTINATION ${ORVANE_CMAKE_DIR} COMPONENT orvane_development)

# The licences go wherever code goes; documents as they lie in the tree, so that they find each other.
if(WIN32)
  set(ORVANE_DOC_DIR .)
endif()
set(components runtime development)
if(ORVANE_BUILD_PYTHON)
  list(APPEND components python)
endif()
foreach(component ${components})
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/THIRD_PARTY_NOTICES
    DESTINATION ${ORVANE_DOC_DIR} COMPONENT orvane_${component})
endforeach()
foreach(document README.md CHANGELOG.md CONTRIBUTING.md SECURITY.md)
  install(FILES ${PROJECT_SOURCE_DIR}/${document} DESTINATION ${ORVANE_DOC_DIR} COMPONENT orvane_documentation)
endforeach()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${ORVANE_DOC_DIR} COMPONENT orvane_documentation
  FILES_MATCHING REGEX "\\.(md|png|svg|jpg|webp)$")
foreach(pointed_to bench/RESULTS.md scripts/packages.txt)
  get_filename_component(folder ${pointed_to} DIRECTORY)
  install(FILES ${PROJECT_SOURCE_DIR}/${pointed_to} DESTINATION ${ORVANE_DOC_DIR}/${folder}
    COMPONENT orvane_documentation)
endforeach()
set(examples hello layer python)
if(WIN32)
  list(APPEND examples windows)
endif()
foreach(example ${examples})
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/${example}
    DESTINATION ${ORVANE_DOC_DIR}/examples COMPONENT orvane_documentation PATTERN __pycache__ EXCLUDE)
endforeach()

if(WIN32)
  # The DLL is not a target that CMake could export: it is linked by hand.
  install(FILES ${windows_dll}/orvane.dll ${windows_dll}/orvane.pdb DESTINATION bin COMPONENT orvane_runtime)
  install(FILES ${windows_dll}/orvane.lib ${windows_dll}/liborvane.dll.a ${windows_dll}/orvane.def
    DESTINATION lib COMPONENT orvane_development)
  install(FILES ${PROJECT_SOURCE_DIR}/cmake/OrvaneWindowsConfig.cmake
    DESTINATION ${ORVANE_CMAKE_DIR} RENAME OrvaneConfig.cmake COMPONENT orvane_development)
  return()
endif()

# A shared and a static library may be installed side by side: each has a file of targets of its own.
set(kind static)
if(BUILD_SHARED_LIBS)
  set(kind shared)
endif()
install(TARGETS orvane EXPORT OrvaneTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT orvane_runtime NAMELINK_COMPONENT orvane_development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT orvane_development)
install(EXPORT OrvaneTargets FILE Orvane-${kind}.cmake NAMESPACE Orvane::
  DESTINATION ${ORVANE_CMAKE_DIR} COMPONENT orvane_development)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/OrvaneConfig.cmake.in
  ${PROJECT_BINARY_DIR}/OrvaneConfig.cmake INSTALL_DESTINATION ${ORVANE_CMAKE_DIR})
install(FILES ${PROJECT_BINARY_DIR}/OrvaneConfig.cmake DESTINATION ${ORVANE_CMAKE_DIR} COMPONENT orvane_development)

configure_file(${PROJECT_SOURCE_DIR}/cmake/InstallPkgConfig.cmake.in ${PROJECT_BINARY_DIR}/InstallPkgConfig.cmake @ONLY)
install(SCRIPT ${PROJECT_BINARY_DIR}/InstallPkgConfig.cmake COMPONENT orvane_development)
