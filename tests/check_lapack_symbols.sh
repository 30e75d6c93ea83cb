#!/bin/sh
# The LAPACK routines inside the library: four entries under names of ours, everything else local, and
# nothing wanted from outside but the C library's memory and mathematics and our own kernels. No threads, no input or output,
# no environment, no way out of the process.
object=$1
fail=0
for name in $(nm --defined-only --extern-only "$object" | awk '{print $NF}'); do
  case $name in
    orv_lapack_sgesvd | orv_lapack_dgesvd | orv_lapack_sgetrf | orv_lapack_sgetrs) ;;
    *) echo "shows $name"; fail=1 ;;
  esac
done
for name in $(nm --undefined-only "$object" | awk '{print $NF}'); do
  case $name in
    memcmp | memcpy | memmove | memset | logf | log | lroundf | lround | pow | powf | sqrt | sqrtf) ;;
    _GLOBAL_OFFSET_TABLE_ | __stack_chk_fail | __stack_chk_fail_local) ;;
    orv_*_32f | orv_*_64f | orv_variant_index) ;;
    *) echo "wants $name"; fail=1 ;;
  esac
done
exit $fail
