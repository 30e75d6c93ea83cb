# Orvane::orvane for hosts of both Windows worlds.
if(CMAKE_SIZEOF_VOID_P AND NOT CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(Orvane_FOUND FALSE)
  set(Orvane_NOT_FOUND_MESSAGE "orvane.dll is for 32-bit hosts")
  return()
endif()
if(NOT TARGET Orvane::orvane)
  get_filename_component(prefix "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)
  add_library(Orvane::orvane SHARED IMPORTED)
  set_target_properties(Orvane::orvane PROPERTIES
    IMPORTED_LOCATION "${prefix}/bin/orvane.dll"
    INTERFACE_INCLUDE_DIRECTORIES "${prefix}/include/orvane;${prefix}/include"
    INTERFACE_COMPILE_FEATURES cxx_std_11)
  if(MINGW)
    set_property(TARGET Orvane::orvane PROPERTY IMPORTED_IMPLIB "${prefix}/lib/liborvane.dll.a")
  else()
    set_property(TARGET Orvane::orvane PROPERTY IMPORTED_IMPLIB "${prefix}/lib/orvane.lib")
  endif()
endif()
