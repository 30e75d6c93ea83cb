// Small matrices.
#ifndef ORVANE_MATRIX_WRAPPER_H
#define ORVANE_MATRIX_WRAPPER_H

#include "Export.h"

/// Operations on small dense matrices whose elements lie at fixed byte distances.
///
/// **Matrices.** A matrix is a pointer to its first element and two strides in bytes: element (row i,
/// column j) lies at base + i * stride1 + j * stride2. `width` is the number of columns, `height` the
/// number of rows. Row-major storage has stride2 = element size, column-major storage stride1 = element
/// size; padded rows and interleaved matrices are equally welcome. A vector has one stride, stride2. An
/// array of matrices adds stride0, from one matrix to the next. Strides must be at least 1 and a
/// multiple of the element size (4 for 32f, 8 for 64f). Pointers need no alignment.
///
/// **Names.** The suffixes tell the operands: m matrix, v vector, c constant, t transposed matrix, ma
/// array of matrices. 32f is float, 64f double.
///
/// **Results.** A method returns true exactly when the operation completed; see ImageProcessingWrapper.
/// Checks, in this order: a null pointer; a size below 1 (or, for arrays, a count below 1); inner sizes
/// that differ; a stride below 1 or not a multiple of the element size; then whatever the family
/// says. All give false and write nothing; only an LU decomposition that meets a singular matrix has
/// written the part that it had done.
///
/// **Aliasing.** The destination may be a source in every operation: a product, a transposition, a
/// decomposition, a substitution or an inversion gives the same result then as with separate memory.
/// Products and transpositions whose destination shares memory with a source work in a temporary matrix
/// (false if memory runs out or the matrix would be 2^31 bytes or more, nothing written); so do decompositions of
/// more than 32 rows, unless destination and source are the same elements in the same places. In sums, differences,
/// products with a constant and copies the destination must be exactly a source or lie apart.
///
/// **Accuracy.** Sums of products run in the order of the inner index, every step rounded to the element
/// type (Mul_mv_64f: four interleaved sums, added pairwise). Nothing is fused, so all processors and both
/// dense and strided operands give the same bits (of a NaN only that it is one).
class ORVANE_API MatrixWrapper {
public:
    /// Does nothing: the class has no state.
    MatrixWrapper& operator=(const MatrixWrapper& other);

    // --------------------------------------------------------------------------------------------
    /// @name Sums and products with a constant
    ///
    /// Both operands and the result are width x height.
    /// @{

    /// dst = src1 + src2
    static bool ORVANE_CALL Add_mm_32f(const float* src1, int src1Stride1, int src1Stride2, const float* src2,
                                       int src2Stride1, int src2Stride2, float* dst, int dstStride1, int dstStride2,
                                       int width, int height);
    /// dst = src1 - src2: the first operand is the minuend, unlike in the subtractions of images and vectors
    static bool ORVANE_CALL Sub_mm_32f(const float* src1, int src1Stride1, int src1Stride2, const float* src2,
                                       int src2Stride1, int src2Stride2, float* dst, int dstStride1, int dstStride2,
                                       int width, int height);
    /// dst = value * src
    static bool ORVANE_CALL Mul_mc_32f(const float* src, int srcStride1, int srcStride2, float value, float* dst,
                                       int dstStride1, int dstStride2, int width, int height);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Products
    ///
    /// Sizes are those of the operands as they lie in memory, before any transposition; vectors are
    /// columns.
    /// @{

    /// dst = src1 * src2, src1Height rows by src2Width columns; src1Width must be src2Height
    static bool ORVANE_CALL Mul_mm_32f(const float* src1, int src1Stride1, int src1Stride2, int src1Width,
                                       int src1Height, const float* src2, int src2Stride1, int src2Stride2,
                                       int src2Width, int src2Height, float* dst, int dstStride1, int dstStride2);
    /// dst = transpose(src1) * src2, src1Width rows by src2Width columns; src1Height must be src2Height
    static bool ORVANE_CALL Mul_tm_64f(const double* src1, int src1Stride1, int src1Stride2, int src1Width,
                                       int src1Height, const double* src2, int src2Stride1, int src2Stride2,
                                       int src2Width, int src2Height, double* dst, int dstStride1, int dstStride2);
    /// dst = src1 * src2, src1Height elements; src1Width must be src2Len
    static bool ORVANE_CALL Mul_mv_64f(const double* src1, int src1Stride1, int src1Stride2, int src1Width,
                                       int src1Height, const double* src2, int src2Stride2, int src2Len, double* dst,
                                       int dstStride2);
    /// dst = transpose(src1) * src2, src1Width elements; src1Height must be src2Len
    static bool ORVANE_CALL Mul_tv_64f(const double* src1, int src1Stride1, int src1Stride2, int src1Width,
                                       int src1Height, const double* src2, int src2Stride2, int src2Len, double* dst,
                                       int dstStride2);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Transposition
    ///
    /// Bits are moved as they are, also those of NaNs.
    /// @{

    /// dst(j, i) = src(i, j); src has `width` columns and `height` rows, dst the reverse
    static bool ORVANE_CALL Transpose_m_32f(const float* src, int srcStride1, int srcStride2, int width, int height,
                                            float* dst, int dstStride1, int dstStride2);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Elimination
    ///
    /// Gaussian elimination with partial pivoting, row by row. At step k the remaining element of column
    /// k with the largest absolute value becomes the pivot, the uppermost of equal ones; a NaN counts as
    /// the largest. Square matrices of widthHeight rows.
    ///
    /// The decomposition stops with false at a pivot whose absolute value is below 2^-125; dst and
    /// dstIndex then hold the steps done so far.
    ///
    /// The substitution gives false, and writes nothing, for factors that no decomposition has written: a
    /// pivot below that bound, an index outside the rows that remained at its step. Its error is that of
    /// the factors: |A x - b| is about widthHeight * 2^-24 * |L| * |U| * |x|. Above 1024 rows it allocates
    /// widthHeight elements, false when memory runs out.
    ///
    /// The inversion allocates widthHeight * (widthHeight + 1) elements, and above 32 rows as many again for
    /// the result; false when memory runs out or when that is 2^31 bytes or more. Up to 4 x 4 floats it
    /// computes cofactors in double precision, which gives the inverse of the given floats almost to the last
    /// bit; a matrix is singular there when its determinant is no more than its own rounding error (16 * 2^-53
    /// of the sum of its absolute products). Larger ones, and doubles, are decomposed as above, but to the last
    /// pivot that is not zero, and solved for the identity; a matrix is singular there when the rounding errors
    /// of its factors alone may have made it regular, that is, when the spectral radius of e * |X| |L| |U| is
    /// not below 1, X being the inverse that was found (a change of A by e * |L| |U|, element by element, could
    /// make it singular then). In units of roundoff (2^-24 for floats, 2^-53 for doubles) e is n = widthHeight
    /// up to 8, then 64 / n, from 32 on 2. Up to 32 rows floats with a condition below 10^5
    /// (doubles: 10^12) are inverted. The measure does not depend on how columns are scaled; rows of very
    /// different size lead to poor pivots, which count against the matrix. The residual |A X - 1| is within
    /// 10 * n * 2^-23 * cond(A) (doubles: 2^-52). A 1 x 1 matrix is singular unless |a| > 2 * 1.1754944e-38.
    /// Singular matrices, those whose pivots or determinant are not finite, and those whose inverse would hold
    /// an infinity give false and write nothing.
    /// @{

    /// dst = L (below the diagonal, which is 1 and not stored) and U of the row-exchanged src; dstIndex[k] = the row,
    /// counted from 0, that step k exchanged with row k
    static bool ORVANE_CALL LUDecomp_m_32f(const float* src, int srcStride1, int srcStride2, int* dstIndex, float* dst,
                                           int dstStride1, int dstStride2, int widthHeight);
    /// solves A * dstX = srcB with the factors and the index of A from LUDecomp_m_32f; srcIndex is only read
    static bool ORVANE_CALL LUBackSubst_mv_32f(const float* srcLU, int srcLUStride1, int srcLUStride2, int* srcIndex,
                                               const float* srcB, int srcBStride2, float* dstX, int dstXStride2,
                                               int widthHeight);
    /// dst = inverse(src)
    static bool ORVANE_CALL Invert_m_32f(const float* src, int srcStride1, int srcStride2, float* dst, int dstStride1,
                                         int dstStride2, int widthHeight);
    /// dst = inverse(src)
    static bool ORVANE_CALL Invert_m_64f(const double* src, int srcStride1, int srcStride2, double* dst,
                                         int dstStride1, int dstStride2, int widthHeight);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Arrays of matrices
    /// @{

    /// each of the `count` matrices = ones on the diagonal, zeros elsewhere
    static bool ORVANE_CALL LoadIdentity_ma_32f(float* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                                                int height, int count);
    /// @}

protected:
    /// Does nothing: the class has no instances.
    MatrixWrapper(const MatrixWrapper& other);
    /// Does nothing, likewise.
    ~MatrixWrapper();
};

#endif
