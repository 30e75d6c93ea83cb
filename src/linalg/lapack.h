// The LAPACK routines that the library contains.
#pragma once

#include "core/operation.h"

namespace orv {

using FortranLength = decltype(sizeof(0));

extern "C" {

// With every argument by address, as callers from C know them.
ORV_INTERNAL void orv_sgesvd(const char* jobu, const char* jobvt, const int* m, const int* n, float* a, const int* lda,
                             float* s, float* u, const int* ldu, float* vt, const int* ldvt, float* work,
                             const int* lwork, int* info);
ORV_INTERNAL void orv_dgesvd(const char* jobu, const char* jobvt, const int* m, const int* n, double* a,
                             const int* lda, double* s, double* u, const int* ldu, double* vt, const int* ldvt,
                             double* work, const int* lwork, int* info);
ORV_INTERNAL void orv_sgetrf(const int* m, const int* n, float* a, const int* lda, int* ipiv, int* info);
ORV_INTERNAL void orv_sgetrs(const char* trans, const int* n, const int* nrhs, const float* a, const int* lda,
                             const int* ipiv, float* b, const int* ldb, int* info);

// The routines themselves, under names of ours. The calling convention of Fortran: in addition, the lengths of
// the character arguments by value at the end.
ORV_INTERNAL void orv_lapack_sgesvd(const char* jobu, const char* jobvt, const int* m, const int* n, float* a,
                                    const int* lda, float* s, float* u, const int* ldu, float* vt, const int* ldvt,
                                    float* work, const int* lwork, int* info, FortranLength, FortranLength);
ORV_INTERNAL void orv_lapack_dgesvd(const char* jobu, const char* jobvt, const int* m, const int* n, double* a,
                                    const int* lda, double* s, double* u, const int* ldu, double* vt,
                                    const int* ldvt, double* work, const int* lwork, int* info, FortranLength,
                                    FortranLength);
ORV_INTERNAL void orv_lapack_sgetrf(const int* m, const int* n, float* a, const int* lda, int* ipiv, int* info);
ORV_INTERNAL void orv_lapack_sgetrs(const char* trans, const int* n, const int* nrhs, const float* a, const int* lda,
                                    const int* ipiv, float* b, const int* ldb, int* info, FortranLength);

}  // extern "C"

}  // namespace orv
