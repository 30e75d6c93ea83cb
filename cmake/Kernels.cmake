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
  # With its interprocedural register allocation g++ 12 forgets the vzeroupper before some calls.
  list(APPEND ORVANE_LEVEL_FLAGS_g9 -fno-ipa-ra)
  list(APPEND ORVANE_LEVEL_FLAGS_h9 -fno-ipa-ra)
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

# Compiles everything that is not a kernel: the lowest level, the code every processor can run.
function(orvane_common_options target)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include)
  if(NOT WIN32)
    target_compile_definitions(${target} PRIVATE ORVANE_BUILDING)
  endif()
  target_compile_options(${target} PRIVATE ${ORVANE_WARNINGS} ${ORVANE_EXACT} ${ORVANE_LEVEL_FLAGS_px})
endfunction()

# orvane_add_family(<subsystem>/<family> LEVELS <level>...)
#
# Compiles src/<subsystem>/<family>.cpp once for each level. The levels are those that the family's
# header declares; one that is missing here is a link error.
function(orvane_add_family path)
  cmake_parse_arguments(PARSE_ARGV 1 family "" "" "LEVELS;OPTIONS")
  string(REPLACE "/" "_" name ${path})
  foreach(level ${family_LEVELS})
    set(target kernel_${name}_${level})
    add_library(${target} OBJECT ${PROJECT_SOURCE_DIR}/src/${path}.cpp)
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include)
    target_compile_definitions(${target} PRIVATE ORV_LEVEL=${level} ORV_LEVEL_IS_${level}=1)
    target_compile_options(${target} PRIVATE
      ${ORVANE_WARNINGS} ${ORVANE_EXACT} ${ORVANE_LEVEL_FLAGS_${level}}
      $<$<CONFIG:Release,RelWithDebInfo>:-O2>
      -fno-exceptions -fno-rtti -fno-asynchronous-unwind-tables ${family_OPTIONS})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT ORVANE_SANITIZE)
      target_compile_options(${target} PRIVATE -Wa,-march=${ORVANE_GATE_BASE}${ORVANE_GATE_${level}})
    endif()
    set_property(GLOBAL APPEND PROPERTY ORVANE_KERNEL_TARGETS ${target})
  endforeach()
endfunction()
