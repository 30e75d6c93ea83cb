# How kernels and common code are compiled.
#
# A family of kernels is one source file, compiled once for each processor level it is built for.
# Every such build is an object library of its own, with the level's instruction set and no more:
# the assembler rejects whatever lies above it.

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(ORVANE_32BIT TRUE)
endif()

set(ORVANE_WARNINGS "")
if(PROJECT_IS_TOP_LEVEL)
  set(ORVANE_WARNINGS -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wcast-align)
  if(ORVANE_WERROR)
    list(APPEND ORVANE_WARNINGS -Werror)
  endif()
endif()

# One order of operations and one rounding per operation at every level: no contraction, and no
# register wider than the type (SSE arithmetic wherever there is SSE).
set(ORVANE_EXACT -ffp-contract=off -fno-math-errno)

set(ORVANE_LEVEL_FLAGS_w7 -msse2)
set(ORVANE_LEVEL_FLAGS_v8 -mssse3)
set(ORVANE_LEVEL_FLAGS_p8 -msse4.1)
set(ORVANE_LEVEL_FLAGS_g9 -mavx)
set(ORVANE_LEVEL_FLAGS_h9 -mavx2 -mfma -mbmi -mbmi2)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # With its interprocedural register allocation g++ 12 forgets the vzeroupper before some calls, and without
  # expensive optimisations, which -O2 has, before all.
  list(APPEND ORVANE_LEVEL_FLAGS_g9 -fno-ipa-ra -fexpensive-optimizations)
  list(APPEND ORVANE_LEVEL_FLAGS_h9 -fno-ipa-ra -fexpensive-optimizations)
endif()

set(ORVANE_GATE_w7 +sse2)
set(ORVANE_GATE_v8 +ssse3)
set(ORVANE_GATE_p8 +sse4.1)
set(ORVANE_GATE_g9 +avx)
set(ORVANE_GATE_h9 +avx2+fma+bmi+bmi2)

if(ORVANE_32BIT)
  # Compilers for x86-64 assume SSE2 in 32-bit code as well, and 16-byte stacks that old hosts
  # do not keep.
  set(ORVANE_LEVEL_FLAGS_px -march=i686 -mtune=generic -mno-mmx -mno-sse)
  foreach(level w7 v8 p8 g9 h9)
    list(PREPEND ORVANE_LEVEL_FLAGS_${level} -march=i686 -mtune=generic -mfpmath=sse)
    list(APPEND ORVANE_LEVEL_FLAGS_${level} -mstackrealign)
  endforeach()
  set(ORVANE_GATE_BASE i686)
  set(ORVANE_GATE_px "")
else()
  set(ORVANE_LEVEL_FLAGS_px "")
  set(ORVANE_GATE_BASE generic64)
  set(ORVANE_GATE_px "")
endif()

# With ORVANE_SANITIZE what makes up the library is checked, and of each family the plain level and the highest:
# the levels between run the same text on narrower vectors. Checks are calls, not code in place, which
# would take clang ten times as long. Elements may be misaligned, so alignment is not checked.
if(ORVANE_SANITIZE)
  set(ORVANE_CHECKS -fsanitize=address,shift,signed-integer-overflow,integer-divide-by-zero,bounds,float-cast-overflow,null,bool,return
    -fno-sanitize-recover=all -fno-omit-frame-pointer "SHELL:-mllvm -asan-instrumentation-with-call-threshold=0")
  add_link_options(-fsanitize=address,undefined)
endif()
set(ORVANE_COVERAGE -fsanitize-coverage=inline-8bit-counters,pc-table)

# A project that has this one as a folder may have configurations of its own, or none: only Debug is slow.
set(ORVANE_OTHER_CONFIGURATIONS "$<$<NOT:$<CONFIG:Debug,Release,RelWithDebInfo,MinSizeRel>>:-O2;-DNDEBUG>")

# Compiles everything that is not a kernel: the lowest level, the code every processor can run.
function(orvane_common_options target)
  target_include_directories(${target} PRIVATE
    ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include ${PROJECT_BINARY_DIR}/families)
  if(NOT WIN32)
    target_compile_definitions(${target} PRIVATE $<IF:$<BOOL:${BUILD_SHARED_LIBS}>,ORVANE_BUILDING,ORVANE_STATIC>)
  endif()
  target_compile_options(${target} PRIVATE ${ORVANE_OTHER_CONFIGURATIONS}
    ${ORVANE_WARNINGS} ${ORVANE_EXACT} ${ORVANE_LEVEL_FLAGS_px} ${ORVANE_CHECKS})
endfunction()

# orvane_add_family(<folder>/<family> LEVELS <level>... [HEADER <header>] [OPTIONS <option>...])
#
# The one place that names a family. Compiles src/<folder>/<family>.cpp once for each level, and writes what
# follows from the name into the build folder: the family's tables of operations (a column is the highest built
# level at or below it) and its entry in the lists that the tests read. The registry is <family>.inc, the header
# <family>.h unless two registries share one.
set(ORVANE_LEVELS px w7 v8 s8 p8 g9 h9)

function(orvane_add_family path)
  cmake_parse_arguments(PARSE_ARGV 1 family "" "HEADER" "LEVELS;OPTIONS")
  string(REPLACE "/" "_" name ${path})
  list(GET family_LEVELS -1 highest)
  if(NOT family_HEADER)
    set(family_HEADER ${path}.h)
  endif()
  orvane_write_tables(${path} ${family_HEADER} ${family_LEVELS})
  foreach(level ${family_LEVELS})
    set(target kernel_${name}_${level})
    set(checked FALSE)
    if(level STREQUAL "px" OR level STREQUAL highest)
      set(checked TRUE)
    endif()
    orvane_add_kernels(${target} ${level} ${checked} ${PROJECT_SOURCE_DIR}/src/${path}.cpp ${family_OPTIONS})
    if(ORVANE_FUZZ AND level STREQUAL "px")
      # Inputs are kept for what they reach in the plain text; the others would double the time of the build.
      target_compile_options(${target} PRIVATE ${ORVANE_COVERAGE})
    endif()
    set_property(GLOBAL APPEND PROPERTY ORVANE_KERNEL_TARGETS ${target})
  endforeach()
endfunction()

# One source, compiled for a level; with sanitizers if it is to be checked. ORV_LEVEL names a namespace for this source
# and this level alone: whatever a build instantiates stands in it, so that none shares code with a build of other flags.
function(orvane_add_kernels target level checked source)
  get_filename_component(family ${source} NAME_WE)
  add_library(${target} OBJECT ${source})
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include)
  target_compile_definitions(${target} PRIVATE ORV_LEVEL=${family}_${level} ORV_LEVEL_IS_${level}=1)
  target_compile_options(${target} PRIVATE ${ORVANE_OTHER_CONFIGURATIONS}
    ${ORVANE_WARNINGS} ${ORVANE_EXACT} ${ORVANE_LEVEL_FLAGS_${level}}
    $<$<NOT:$<CONFIG:Debug>>:-O2>
    -fno-exceptions -fno-rtti -fno-asynchronous-unwind-tables ${ARGN})
  if(ORVANE_SANITIZE)
    target_compile_options(${target} PRIVATE -O1)
    if(checked)
      target_compile_options(${target} PRIVATE ${ORVANE_CHECKS})
    endif()
  elseif(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -Wa,-march=${ORVANE_GATE_BASE}${ORVANE_GATE_${level}})
  endif()
  if(WIN32 AND ORVANE_LINE_NUMBERS)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    set_property(TARGET ${target} PROPERTY CXX_COMPILER_LAUNCHER
      ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/cmake/line_numbers.py ${CMAKE_CXX_COMPILER_LAUNCHER})
  endif()
endfunction()

# The tables of a family's operations, and <folder>_<family>_kernels.h, which declares the kernels of all levels.
function(orvane_write_tables path header)
  get_filename_component(family ${path} NAME)
  string(REPLACE "/" "_" name ${path})
  set(declarations "")
  set(columns "")
  foreach(level ${ORVANE_LEVELS})
    if(level IN_LIST ARGN)
      set(built ${family}_${level})
      string(APPEND declarations "namespace ${built} {\n#include \"${path}.inc\"\n}\n")
    endif()
    string(APPEND declarations "namespace ${level} = ${built};\n")
    list(APPEND columns "${family}::${level}::name")
  endforeach()
  list(JOIN columns ", " columns)
  set(kernels ${name}_kernels.h)
  set(tables ${PROJECT_BINARY_DIR}/families/${name}_tables.cpp)
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/families/${kernels} @ONLY CONTENT [[
// Written by orvane_add_family: the kernels of every level, those that it shares among them.
#pragma once

#include "@header@"

namespace orv {
namespace @family@ {
#define KERNEL(name, ...) __VA_ARGS__ name;
@declarations@#undef KERNEL
}  // namespace @family@
}  // namespace orv
]])
  file(CONFIGURE OUTPUT ${tables} @ONLY CONTENT [[
// Written by orvane_add_family: one kernel per level for each operation, in the order of the index.
#include "@kernels@"

namespace orv {

#define KERNEL(name, ...) extern "C" const Operation<__VA_ARGS__> orv_##name = {{@columns@}};
#include "@path@.inc"
#undef KERNEL

}  // namespace orv
]])
  set_property(GLOBAL APPEND PROPERTY ORVANE_TABLES ${tables})
  set_property(GLOBAL APPEND PROPERTY ORVANE_FAMILIES ${name})
  set_property(GLOBAL APPEND PROPERTY ORVANE_FAMILY_HEADERS "#include \"${header}\"\n")
  set_property(GLOBAL APPEND PROPERTY ORVANE_FAMILY_REGISTRIES
    "REGISTRY_BEGIN(${name})\n#include \"${path}.inc\"\nREGISTRY_END(${name})\n")
endfunction()

# What reads every registry includes these: families.h has all headers, registries.inc all registries, each
# between REGISTRY_BEGIN(<folder>_<family>) and REGISTRY_END, which the reader defines beside KERNEL.
function(orvane_write_lists)
  get_property(headers GLOBAL PROPERTY ORVANE_FAMILY_HEADERS)
  list(REMOVE_DUPLICATES headers)
  list(JOIN headers "" headers)
  get_property(registries GLOBAL PROPERTY ORVANE_FAMILY_REGISTRIES)
  list(JOIN registries "" registries)
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/families/families.h CONTENT "#pragma once\n${headers}")
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/families/registries.inc CONTENT "${registries}")
endfunction()
