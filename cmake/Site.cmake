# The target "site": the reference, made of the public headers and of the pages in docs/, without a network.
find_package(Python3 COMPONENTS Interpreter)
if(NOT Python3_FOUND)
  return()
endif()
add_custom_target(site
  COMMAND ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/docs/site/build.py --output ${PROJECT_BINARY_DIR}/site
    --version ${PROJECT_VERSION} --gallery ${PROJECT_SOURCE_DIR}/build/demo/page
  USES_TERMINAL VERBATIM)
