# orvane.dll: a DLL whose exported classes hosts of both Windows worlds can link.
#
# The facade is compiled twice: by clang for the Microsoft ABI, with dllexport, so that decorated names,
# virtual tables and calling conventions come out right by themselves; and by MinGW, whose names are
# exported by a definition file. Kernels and common code are MinGW's alone, behind C linkage. lld-link puts
# them together: GNU ld mangles the decorated names.

find_program(ORVANE_CLANG clang++ REQUIRED)
find_program(ORVANE_LLD_LINK NAMES lld-link lld-link-14 REQUIRED)
find_program(ORVANE_NM i686-w64-mingw32-nm REQUIRED)
find_program(ORVANE_DLLTOOL i686-w64-mingw32-dlltool REQUIRED)

# Debug information names every input as the command line does, so all inputs of the build are given relative to
# the folder that the commands run in, and the same sources give the same bytes in every folder.

# orvane_windows_dll(OBJECTS <object expressions> FACADE <sources, relative to src>)
function(orvane_windows_dll)
  cmake_parse_arguments(PARSE_ARGV 0 dll "" "" "OBJECTS;FACADE")
  set(folder dll)
  set(sources ${PROJECT_SOURCE_DIR}/src)
  file(RELATIVE_PATH from_here ${CMAKE_CURRENT_BINARY_DIR} ${PROJECT_SOURCE_DIR})

  # The Microsoft side.
  set(microsoft_objects "")
  foreach(source facade/windows/image_table.cpp ${dll_FACADE} facade/windows/runtime.cpp)
    string(REPLACE "/" "_" name ${source})
    set(object ${folder}/${name}.obj)
    add_custom_command(OUTPUT ${object}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
      COMMAND ${ORVANE_CLANG} --target=i686-pc-windows-msvc -ffreestanding -fno-exceptions -fno-rtti -std=c++17
        -O2 -gcodeview -march=i686 -Wall -Wextra -Werror -DNDEBUG -DORVANE_BUILDING -I${from_here}/src -I${from_here}/include
        -fdebug-compilation-dir=. -MD -MF ${object}.d -c ${from_here}/src/${source} -o ${object}
      DEPENDS ${sources}/${source} DEPFILE ${object}.d VERBATIM)
    list(APPEND microsoft_objects ${object})
  endforeach()

  # The MinGW side: the facade as the tests have it, and a runtime for it.
  add_library(orvane_windows_runtime OBJECT ${sources}/facade/windows/runtime.cpp)
  set(mingw_objects "$<TARGET_OBJECTS:orvane_facade>" "$<TARGET_OBJECTS:orvane_windows_runtime>")

  set(definitions ${folder}/orvane.def)
  set(imports ${folder}/mingw_imports.def)
  add_custom_command(OUTPUT ${definitions} ${imports}
    COMMAND ${CMAKE_COMMAND} -DNM=${ORVANE_NM} "-DOBJECTS=$<TARGET_OBJECTS:orvane_facade>;$<TARGET_OBJECTS:orvane_core>"
      -DEXPORTS=${definitions} -DIMPORTS=${imports} -P ${PROJECT_SOURCE_DIR}/cmake/WriteDefinitions.cmake
    DEPENDS $<TARGET_OBJECTS:orvane_facade> $<TARGET_OBJECTS:orvane_core> VERBATIM)

  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-libgcc-file-name
    OUTPUT_VARIABLE libgcc OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(libraries /usr/i686-w64-mingw32/lib)
  # The version of the file, for those who look at its properties.
  file(STRINGS ${PROJECT_SOURCE_DIR}/LICENSE copyright REGEX "^Copyright" LIMIT_COUNT 1)
  string(APPEND copyright ". MIT License; see THIRD_PARTY_NOTICES for what is built in.")
  configure_file(${sources}/facade/windows/orvane.rc.in ${folder}/orvane.rc @ONLY)
  add_library(orvane_windows_version OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${folder}/orvane.rc)

  set(response ${folder}/objects.rsp)
  set(inputs "${dll_OBJECTS};${mingw_objects};${microsoft_objects};$<TARGET_OBJECTS:orvane_windows_version>")
  file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${folder}/inputs.txt CONTENT "$<JOIN:${inputs},\n>\n")
  add_custom_command(OUTPUT ${response}
    COMMAND sed -e s,^${CMAKE_CURRENT_BINARY_DIR}/,, -e s,^${CMAKE_BINARY_DIR}/,../, ${folder}/inputs.txt > ${response}
    DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${folder}/inputs.txt VERBATIM)
  # /Brepro, /pdbaltpath and /pdbsourcepath: no time stamp and no folder in the file.
  # /alternatename: both C++ ABIs see one variable.
  set(variable ?nImageProcessingWrapper@@3HA)
  add_custom_command(OUTPUT ${folder}/orvane.dll ${folder}/orvane.pdb ${folder}/orvane.lib ${folder}/liborvane.dll.a
    COMMAND ${ORVANE_LLD_LINK} /dll /machine:x86 /safeseh:no /nodefaultlib /Brepro /entry:orv_dll_entry
      /dynamicbase /nxcompat /opt:ref /debug /pdb:${folder}/orvane.pdb /pdbaltpath:orvane.pdb
      /pdbsourcepath:/orvane
      /alternatename:${variable}=_nImageProcessingWrapper /export:${variable},DATA
      /def:${definitions} /out:${folder}/orvane.dll /implib:${folder}/orvane.lib @${response}
      ${libgcc} ${libraries}/libmsvcrt.a ${libraries}/libkernel32.a
    COMMAND ${ORVANE_DLLTOOL} -d ${imports} -D orvane.dll -l ${folder}/liborvane.dll.a
    DEPENDS orvane_lapack ${microsoft_objects} ${definitions} ${imports} ${response} ${dll_OBJECTS} ${mingw_objects}
      $<TARGET_OBJECTS:orvane_windows_version> VERBATIM)
  add_custom_target(orvane_dll ALL DEPENDS ${folder}/orvane.dll)
endfunction()
