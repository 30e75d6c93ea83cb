# Writes the definition file that exports the C++ names of MinGW objects, and the entry points and tables
# of the elementary functions; and another from which MinGW's import library is made.
# cmake -DNM=... -DOBJECTS=a;b -DEXPORTS=... -DIMPORTS=... -P WriteDefinitions.cmake
execute_process(COMMAND ${NM} -g --defined-only ${OBJECTS} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
# Classes and the two free exports; what lies in namespace orv is the library's own business.
string(REGEX MATCHALL "[TDBRV] _(_Z[A-Za-z0-9_]+|nImageProcessingWrapper|orvane[A-Z][A-Za-z0-9_]+|own_ipps_[A-Za-z0-9_]+|[a-z][a-z0-9]_ipps[A-Za-z0-9_]+@[0-9]+)"
  symbols "${symbols}")
list(SORT symbols)
list(REMOVE_DUPLICATES symbols)
set(exports "EXPORTS\n")
set(imports "EXPORTS\n")
foreach(symbol ${symbols})
  if(symbol MATCHES "_Z[A-Z]*N?K?3orv")
    continue()
  endif()
  # Without the underscore that every C name has on this platform; the tools put it back.
  string(REGEX REPLACE "^. _" "" name ${symbol})
  if(symbol MATCHES "@")
    # Callee-cleans names are exported as they are, underscore included.
    string(APPEND exports "  _${name}\n")
    string(APPEND imports "  ${name} == _${name}\n")
    continue()
  endif()
  if(symbol MATCHES "^[DBR] " OR name MATCHES "^_ZTV")
    string(APPEND name " DATA")
  endif()
  string(APPEND exports "  ${name}\n")
  string(APPEND imports "  ${name}\n")
endforeach()
file(WRITE ${EXPORTS} "${exports}")
file(WRITE ${IMPORTS} "${imports}")
