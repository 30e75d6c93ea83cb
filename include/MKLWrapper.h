// LAPACK routines.
#ifndef ORVANE_MKL_WRAPPER_H
#define ORVANE_MKL_WRAPPER_H

#include "Export.h"

/// Four routines of LAPACK (the standard's reference: the LAPACK Users' Guide, netlib.org/lapack).
///
/// **Convention.** That of LAPACK, with nothing added: every argument is passed by address; matrices are
/// column-major, element (i, j) at index i + j * lda, counted from 0; character arguments are single
/// letters of either case; pivots in ipiv count from 1. Null pointers are not guarded against.
///
/// **Results.** Everything comes back through the arguments; read `*info` after every call. 0 is success;
/// -i says that argument i, counted from 1, is invalid, and then nothing else has been written; positive
/// values are described below. Nothing is printed and the process is never ended: the error handler of the
/// library returns silently.
///
/// **Non-finite input.** The standard's singular value iteration can run for ever on infinities and NaNs.
/// Here it is not started then: the singular values become NaNs and `*info` = min(m, n) - 1, none of the
/// superdiagonals having converged. (Of a matrix of one row or column, `*info` may be 0.) In the
/// factorisation they spread as in the standard's own routine (a NaN is a pivot where it heads the rest of
/// its column, and passed over elsewhere; it is not zero, so `*info` does not tell); in the solution as the
/// arithmetic has it.
///
/// **Threads.** The calling thread does all the work, and the routines keep no state: calls on different
/// arrays may run at the same time. No environment variable is read.
///
/// **Accuracy.** Backward stable, as the standard promises. Unlike elsewhere in this library, bits may
/// differ between processors and between builds.
class ORVANE_API MKLWrapper {
public:
    /// Does nothing: the class has no state.
    MKLWrapper& operator=(const MKLWrapper& other);

    // --------------------------------------------------------------------------------------------
    /// @name Singular value decomposition
    ///
    /// A = U * diag(s) * VT for an m x n matrix A; s has min(m, n) values, in descending order. jobu:
    /// 'A' all m columns of U, 'S' the first min(m, n), 'O' those in place of A, 'N' none; jobvt likewise
    /// for the rows of VT; not both 'O'. A is destroyed. work has lwork elements, at least max(1,
    /// 3 * min(m, n) + max(m, n), 5 * min(m, n)); lwork = -1 only writes the best size to work[0].
    /// info > 0: that many superdiagonals did not converge.
    /// @{

    /// Decomposes a float matrix (SGESVD).
    static void ORVANE_CALL Sgesvd(char* jobu, char* jobvt, int* m, int* n, float* a, int* lda, float* s, float* u,
                                   int* ldu, float* vt, int* ldvt, float* work, int* lwork, int* info);
    /// Decomposes a double matrix (DGESVD).
    static void ORVANE_CALL Dgesvd(char* jobu, char* jobvt, int* m, int* n, double* a, int* lda, double* s, double* u,
                                   int* ldu, double* vt, int* ldvt, double* work, int* lwork, int* info);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Linear systems
    ///
    /// To solve A * X = B, factorise A, then solve with the same a, lda and ipiv.
    /// @{

    /// A = P * L * U in place; info = i > 0: U(i, i) is exactly 0, the factors are complete (SGETRF)
    static void ORVANE_CALL Sgetrf(int* m, int* n, float* a, int* lda, int* ipiv, int* info);
    /// Solves A * X = B (trans 'N') or transpose(A) * X = B ('T', 'C') in place of b, n x nrhs (SGETRS).
    static void ORVANE_CALL Sgetrs(char* trans, int* n, int* nrhs, float* a, int* lda, int* ipiv, float* b, int* ldb,
                                   int* info);
    /// @}

protected:
    /// Does nothing: the class has no instances.
    MKLWrapper(const MKLWrapper& other);
    /// Does nothing, likewise.
    ~MKLWrapper();
};

#endif
