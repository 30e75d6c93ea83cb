# What the shared library needs, as the tool finds it. On a machine of the other architecture the libraries of a 32-bit
# compiler stand in; their packages have names of their own, their symbols have the same versions.
if(NOT EXISTS ${CPACK_ORVANE_LIBRARY})
  return()
endif()
file(WRITE ${CPACK_ORVANE_SCRATCH}/debian/control "Source: orvane\n\nPackage: orvane\nArchitecture: any\n")
execute_process(COMMAND dpkg-shlibdeps -O ${CPACK_ORVANE_LIBRARY} WORKING_DIRECTORY ${CPACK_ORVANE_SCRATCH}
  OUTPUT_VARIABLE needed OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "^shlibs:Depends=" "" needed "${needed}")
string(REPLACE "libc6-i386" "libc6" needed "${needed}")
string(REGEX REPLACE "lib32(gcc|stdc)" "lib\\1" needed "${needed}")
set(CPACK_DEBIAN_ORVANE_RUNTIME_PACKAGE_DEPENDS "${needed}")
