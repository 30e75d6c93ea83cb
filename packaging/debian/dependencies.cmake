# What the shared library and the module for Python need, as the tool finds it. On a machine of the other architecture
# the libraries of a 32-bit compiler stand in; their packages have names of their own, their symbols the same versions.
if(NOT EXISTS ${CPACK_ORVANE_LIBRARY})
  return()
endif()
file(WRITE ${CPACK_ORVANE_SCRATCH}/debian/control "Source: orvane\n\nPackage: orvane\nArchitecture: any\n")
function(needed_by result)
  execute_process(COMMAND dpkg-shlibdeps --ignore-missing-info -O ${ARGN} WORKING_DIRECTORY ${CPACK_ORVANE_SCRATCH}
    OUTPUT_VARIABLE needed OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "^shlibs:Depends=" "" needed "${needed}")
  string(REPLACE "libc6-i386" "libc6" needed "${needed}")
  string(REGEX REPLACE "lib32(gcc|stdc)" "lib\\1" needed "${needed}")
  set(${result} "${needed}" PARENT_SCOPE)
endfunction()
needed_by(CPACK_DEBIAN_ORVANE_RUNTIME_PACKAGE_DEPENDS ${CPACK_ORVANE_LIBRARY})
cmake_path(GET CPACK_ORVANE_LIBRARY PARENT_PATH folder)
file(GLOB module ${folder}/../python/orvane/_core.*.so)
if(module)
  needed_by(needed -l${folder} ${module})
  set(CPACK_DEBIAN_ORVANE_PYTHON_PACKAGE_DEPENDS
    "${CPACK_ORVANE_RUNTIME_NEEDED}, python3 (>= 3.11), python3 (<< 3.12), python3-numpy (>= 1:1.24), ${needed}")
endif()
