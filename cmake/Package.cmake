# `cpack` in a build folder: .debs of the Linux builds, a .zip of the Windows one.
set(CPACK_PACKAGE_NAME orvane)
set(CPACK_PACKAGE_VENDOR "${PROJECT_NAME}")
set(ORVANE_MAINTAINER "The Orvane authors <maintainers@orvane.example>" CACHE STRING "Who answers for the packages")
set(CPACK_PACKAGE_CONTACT "${ORVANE_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/package)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME orvane-${PROJECT_VERSION}-win32)
  set(CPACK_STRIP_FILES OFF)  # nothing to strip, and not every tool knows import libraries
else()
  include(cmake/Debian.cmake)
endif()
include(CPack)
