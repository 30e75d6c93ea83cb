# The .debs, one per component. Libraries lie in the folder of their architecture, so that both may be installed at
# once; what else they hold has the same bytes in both.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_SET_DESTDIR ON)  # installation sees the final prefix
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(CPACK_COMPONENTS_ALL orvane_development orvane_documentation)
if(BUILD_SHARED_LIBS)
  list(PREPEND CPACK_COMPONENTS_ALL orvane_runtime)
endif()
if(ORVANE_BUILD_PYTHON AND BUILD_SHARED_LIBS)
  list(APPEND CPACK_COMPONENTS_ALL orvane_python)
endif()
if(ORVANE_32BIT)
  set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE i386)
else()
  set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE amd64)
endif()
set(exactly "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(about "Operations on images, vectors and small matrices in memory of the
caller's, with documented rounding and the same bits on every x86
processor: seven variants of each kernel, chosen when it is loaded.")

# orvane_debian_package(<component> <package> <section> <multi-arch> <what it is> <what is in it>)
# (CPack has no name for the field Multi-Arch before its version 3.31: the value before it brings it along.)
macro(orvane_debian_package component package section multi_arch what contents)
  string(TOUPPER orvane_${component} key)
  set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${package})
  set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${key}_PACKAGE_PRIORITY "optional\nMulti-Arch: ${multi_arch}")
  set(CPACK_DEBIAN_${key}_DESCRIPTION "${PROJECT_DESCRIPTION}, ${what}\n${about}\n.\n${contents}")
endmacro()

set(runtime liborvane${PROJECT_VERSION_MAJOR})
orvane_debian_package(runtime ${runtime} libs same "shared library" "This package has the shared library.")
orvane_debian_package(development liborvane-dev libdevel same "development files"
  "This package has what it takes to build programs with it.")
orvane_debian_package(documentation liborvane-doc doc foreign "documentation"
  "This package has the documents and example programs.")
orvane_debian_package(python python3-orvane python same "for Python"
  "This package has the package orvane for Python 3, on NumPy's arrays.")

# (CPack would write both, and call ldconfig in scripts, which no package does any more.)
file(WRITE ${PROJECT_BINARY_DIR}/debian/triggers "activate-noawait ldconfig\n")
file(WRITE ${PROJECT_BINARY_DIR}/debian/shlibs
  "liborvane ${PROJECT_VERSION_MAJOR} ${runtime} (>= ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})\n")
set(CPACK_DEBIAN_ORVANE_RUNTIME_PACKAGE_CONTROL_EXTRA
  ${PROJECT_BINARY_DIR}/debian/triggers ${PROJECT_BINARY_DIR}/debian/shlibs)

if(BUILD_SHARED_LIBS)
  set(CPACK_DEBIAN_ORVANE_DEVELOPMENT_PACKAGE_DEPENDS "${runtime} ${exactly}")
endif()
set(CPACK_DEBIAN_ORVANE_DEVELOPMENT_PACKAGE_SUGGESTS "liborvane-doc")
set(CPACK_DEBIAN_ORVANE_DOCUMENTATION_PACKAGE_ARCHITECTURE all)

# What the runtime needs is found when it is packed; each package gets its copyright and its changelog then.
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/packaging/debian/dependencies.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/debian/documents.cmake)
set(CPACK_ORVANE_SOURCE ${PROJECT_SOURCE_DIR})
set(CPACK_ORVANE_LIBRARY ${PROJECT_BINARY_DIR}/src/liborvane.so)
set(CPACK_ORVANE_RUNTIME_NEEDED "${runtime} ${exactly}")
set(CPACK_ORVANE_SCRATCH ${PROJECT_BINARY_DIR}/shlibdeps)
