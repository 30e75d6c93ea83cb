# The four LAPACK routines behind MKLWrapper: one object, `lapack_closure.o`, that holds them and all they
# call, and shows nothing else. See docs/lapack.md for the choices and their reasons.
#
#   archive  from the static libraries of the reference LAPACK and BLAS (Debian: liblapack-dev, libblas-dev)
#   source   from the sources of LAPACK 3.11, compiled here by gfortran: any target that it compiles for
#
# Either way the routines are linked among themselves and to our own error handler first; then every
# name but the four entries becomes local. So nothing leaks out of the library, shared or static, and a
# host with a BLAS of its own keeps it to itself. (Section groups are dissolved: the final link would
# discard their local copies.)

if(NOT ORVANE_32BIT AND NOT WIN32 AND EXISTS /usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/lapack/liblapack.a
   AND EXISTS /usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/blas/libblas.a)
  set(default_lapack archive)
else()
  set(default_lapack source)
endif()
set(ORVANE_LAPACK ${default_lapack} CACHE STRING "Where LAPACK comes from: archive or source")
set_property(CACHE ORVANE_LAPACK PROPERTY STRINGS archive source)
set(ORVANE_LAPACK_ARCHIVES
  /usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/lapack/liblapack.a;/usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/blas/libblas.a
  CACHE STRING "Static libraries of LAPACK and BLAS, position-independent (archive)")
set(ORVANE_LAPACK_SOURCE ${PROJECT_BINARY_DIR}/lapack CACHE PATH "The sources of LAPACK 3.11 (source)")

# What the four routines need, modules first.
set(lapack_sources
  SRC/la_constants.f90 SRC/la_xisnan.F90 INSTALL/slamch.f INSTALL/dlamch.f
  SRC/ieeeck.f SRC/ilaenv.f SRC/iparmq.f SRC/sgetrf.f SRC/sgetrf2.f SRC/sgetrs.f SRC/slaswp.f
  BLAS/SRC/isamax.f BLAS/SRC/lsame.f BLAS/SRC/strsm.f)
foreach(name bdsqr gebd2 gebrd gelq2 gelqf geqr2 geqrf gesvd isnan labrd lacpy laisnan lange lapy2 larf larfb larfg
             larft lartg las2 lascl laset lasq1 lasq2 lasq3 lasq4 lasq5 lasq6 lasr lasrt lassq lasv2 org2r orgbr
             orgl2 orglq orgqr orm2r ormbr orml2 ormlq ormqr)
  foreach(type s d)
    set(suffix f)
    if(name MATCHES "^(lartg|lassq)$")
      set(suffix f90)
    endif()
    list(APPEND lapack_sources SRC/${type}${name}.${suffix})
  endforeach()
endforeach()
foreach(name lc lr)
  list(APPEND lapack_sources SRC/ilas${name}.f SRC/ilad${name}.f)
endforeach()
foreach(name copy gemm gemv ger nrm2 rot scal swap trmm trmv)
  foreach(type s d)
    set(suffix f)
    if(name STREQUAL nrm2)
      set(suffix f90)
    endif()
    list(APPEND lapack_sources BLAS/SRC/${type}${name}.${suffix})
  endforeach()
endforeach()

# The entries, which take names of ours.
set(lapack_entries sgesvd dgesvd sgetrf sgetrs)

# What we supply to them: some routines of ours are called instead of the reference's.
set(lapack_wraps "")
foreach(name bdsqr gemm gemv ger lasr)
  list(APPEND lapack_wraps -Wl,--wrap=s${name}_ -Wl,--wrap=d${name}_)
endforeach()
foreach(name ilaenv sgetrf2 slaswp strsm)
  list(APPEND lapack_wraps -Wl,--wrap=${name}_)
endforeach()
add_library(orvane_lapack_support OBJECT
  ${PROJECT_SOURCE_DIR}/src/linalg/lapack_substitutes.cpp
  ${PROJECT_SOURCE_DIR}/src/linalg/lapack_support.cpp)
if(WIN32)
  target_sources(orvane_lapack_support PRIVATE ${PROJECT_SOURCE_DIR}/src/linalg/lapack_support_windows.cpp)
endif()
orvane_common_options(orvane_lapack_support)

set(lapack_inputs "")
if(ORVANE_LAPACK STREQUAL "archive")
  set(lapack_inputs ${ORVANE_LAPACK_ARCHIVES})
  set(lapack_depends ${ORVANE_LAPACK_ARCHIVES})
elseif(ORVANE_LAPACK STREQUAL "source")
  if(NOT EXISTS ${ORVANE_LAPACK_SOURCE}/SRC/sgesvd.f)
    message(STATUS "Fetching the sources of LAPACK into ${ORVANE_LAPACK_SOURCE}")
    execute_process(COMMAND ${PROJECT_SOURCE_DIR}/scripts/fetch_lapack.sh ${ORVANE_LAPACK_SOURCE}
      RESULT_VARIABLE fetched)
    if(NOT fetched EQUAL 0)
      message(FATAL_ERROR "No sources of LAPACK: set ORVANE_LAPACK_SOURCE to an unpacked lapack-3.11")
    endif()
  endif()
  if(WIN32)
    set(fortran i686-w64-mingw32-gfortran-posix)  # no other will do: a native one makes native objects
  else()
    set(fortran gfortran)
  endif()
  find_program(ORVANE_FORTRAN NAMES ${fortran} REQUIRED)
  # Plain code for every processor of the target. x87 arithmetic on 32-bit: there is no SSE to count on.
  set(flags -O2 -fPIC -w -ffp-contract=off -fno-asynchronous-unwind-tables)
  if(ORVANE_32BIT)
    list(APPEND flags -m32 -march=i686 -mtune=generic -mno-mmx -mno-sse)
  endif()
  if(WIN32)
    list(REMOVE_ITEM flags -fPIC)
  endif()
  set(directory ${CMAKE_CURRENT_BINARY_DIR}/lapack)
  file(MAKE_DIRECTORY ${directory})
  set(lapack_depends "")
  foreach(source ${lapack_sources})
    list(APPEND lapack_depends ${ORVANE_LAPACK_SOURCE}/${source})
  endforeach()
  add_custom_command(OUTPUT ${directory}/liblapack.a
    COMMAND ${ORVANE_FORTRAN} ${flags} -c ${lapack_depends}
    COMMAND sh -c "rm -f liblapack.a && ${CMAKE_AR} qc liblapack.a *.o"
    DEPENDS ${lapack_depends}
    WORKING_DIRECTORY ${directory}
    COMMENT "Compiling LAPACK" VERBATIM)
  set(lapack_inputs ${directory}/liblapack.a)
  set(lapack_depends ${directory}/liblapack.a)
else()
  message(FATAL_ERROR "ORVANE_LAPACK is '${ORVANE_LAPACK}': archive or source")
endif()

set(ORVANE_LAPACK_OBJECT ${CMAKE_CURRENT_BINARY_DIR}/lapack_closure${CMAKE_CXX_OUTPUT_EXTENSION})
set(machine "")
if(ORVANE_32BIT AND NOT WIN32)
  set(machine -m32)
endif()
set(roots "")
set(renames "")
set(keeps "")
foreach(entry ${lapack_entries})
  set(symbol ${entry}_)
  set(prefix "")
  if(WIN32 AND ORVANE_32BIT)
    set(prefix _)
  endif()
  list(APPEND roots -Wl,-u,${prefix}${symbol})
  list(APPEND renames --redefine-sym ${prefix}${symbol}=${prefix}orv_lapack_${entry})
  list(APPEND keeps --keep-global-symbol=${prefix}orv_lapack_${entry})
endforeach()
# (-static-libgcc: with the shared one, MinGW's compiler asks for the registration of unwind tables.)
add_custom_command(OUTPUT ${ORVANE_LAPACK_OBJECT}
  COMMAND ${CMAKE_CXX_COMPILER} ${machine} -r -nostdlib -static-libgcc -Wl,--force-group-allocation
          ${lapack_wraps} ${roots} -o ${ORVANE_LAPACK_OBJECT}.all
          $<TARGET_OBJECTS:orvane_lapack_support> ${lapack_inputs}
  COMMAND ${CMAKE_OBJCOPY} ${renames} ${ORVANE_LAPACK_OBJECT}.all
  COMMAND ${CMAKE_OBJCOPY} ${keeps} --strip-debug ${ORVANE_LAPACK_OBJECT}.all ${ORVANE_LAPACK_OBJECT}
  DEPENDS orvane_lapack_support $<TARGET_OBJECTS:orvane_lapack_support> ${lapack_depends}
  COMMAND_EXPAND_LISTS VERBATIM
  COMMENT "Linking the closure of the LAPACK routines")
set_source_files_properties(${ORVANE_LAPACK_OBJECT} PROPERTIES EXTERNAL_OBJECT TRUE GENERATED TRUE)
add_custom_target(orvane_lapack DEPENDS ${ORVANE_LAPACK_OBJECT})
set_property(GLOBAL PROPERTY ORVANE_LAPACK_OBJECT ${ORVANE_LAPACK_OBJECT})
