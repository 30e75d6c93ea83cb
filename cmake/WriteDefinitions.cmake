# Writes the definition file that exports the C++ names of MinGW objects.
# cmake -DNM=... -DOBJECTS=a;b -DOUTPUT=... -P WriteDefinitions.cmake
execute_process(COMMAND ${NM} -g --defined-only ${OBJECTS} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[TDBRV] __?(Z[A-Za-z0-9_]+|nImageProcessingWrapper)" symbols "${symbols}")
list(SORT symbols)
list(REMOVE_DUPLICATES symbols)
set(text "EXPORTS\n")
foreach(symbol ${symbols})
  # Without the underscore that every C name has on this platform; the linker puts it back.
  string(REGEX REPLACE "^. _" "" name ${symbol})
  if(symbol MATCHES "^[DBR] " OR name MATCHES "^_ZTV")
    string(APPEND name " DATA")
  endif()
  string(APPEND text "  ${name}\n")
endforeach()
file(WRITE ${OUTPUT} "${text}")
