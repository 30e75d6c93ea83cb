// LAPACK routines: the arguments as they are.
//
// Family: lapack_kernels.
#include "MKLWrapper.h"

#include "linalg/lapack.h"

using namespace orv;

void MKLWrapper::Sgesvd(char* jobu, char* jobvt, int* m, int* n, float* a, int* lda, float* s, float* u, int* ldu,
                        float* vt, int* ldvt, float* work, int* lwork, int* info)
{
    orv_sgesvd(jobu, jobvt, m, n, a, lda, s, u, ldu, vt, ldvt, work, lwork, info);
}

void MKLWrapper::Dgesvd(char* jobu, char* jobvt, int* m, int* n, double* a, int* lda, double* s, double* u,
                        int* ldu, double* vt, int* ldvt, double* work, int* lwork, int* info)
{
    orv_dgesvd(jobu, jobvt, m, n, a, lda, s, u, ldu, vt, ldvt, work, lwork, info);
}

void MKLWrapper::Sgetrf(int* m, int* n, float* a, int* lda, int* ipiv, int* info)
{
    orv_sgetrf(m, n, a, lda, ipiv, info);
}

void MKLWrapper::Sgetrs(char* trans, int* n, int* nrhs, float* a, int* lda, int* ipiv, float* b, int* ldb, int* info)
{
    orv_sgetrs(trans, n, nrhs, a, lda, ipiv, b, ldb, info);
}
