#include "linalg/blocked_products.h"

#include "core/float_control.h"
#include "core/memory.h"
#include "linalg/packs.h"

namespace orv {
namespace blocked_products {
namespace ORV_LEVEL {
namespace {

using std::ptrdiff_t;

// A tile of c is kRows x kColumns: its sums, a column of a and an element of b fill the registers.
constexpr int kColumns = 6;
// Of a, packed at a time: a strip stays in the nearest cache, and all of it is below the size that heaps
// give back to the system at once.
constexpr int kInner = 128;
constexpr int kBlockRows = 192;
#if ORV_HAVE_VECTORS
using P = WidePack<float>;
using V = P::V;
constexpr int kRows = 2 * P::N;
ORV_INLINE V load(const float* p) { return P::load(p); }
ORV_INLINE V splat(float x) { return P::splat(x); }
constexpr int kLanes = P::N;
#else
using V = float;
constexpr int kRows = 2;
ORV_INLINE V load(const float* p) { return *p; }
ORV_INLINE V splat(float x) { return x; }
constexpr int kLanes = 1;
#endif

ORV_INLINE V multiply_add(V a, V b, V c)
{
#if defined(__FMA__) && ORV_HAVE_VECTORS
    return _mm256_fmadd_ps(a, b, c);
#else
    return c + a * b;
#endif
}

// Strips of kRows rows, one after the other, the last one filled up with zeros.
void pack(int rows, int inner, const float* a, ptrdiff_t lda, float* packed)
{
    for (int i = 0; i < rows; i += kRows) {
        const int live = rows - i < kRows ? rows - i : kRows;
        for (int k = 0; k < inner; ++k, packed += kRows) {
            const float* const column = a + i + k * lda;
            if (live == kRows) {
                __builtin_memcpy(packed, column, sizeof(float) * kRows);
            } else {
                for (int r = 0; r < kRows; ++r) packed[r] = r < live ? column[r] : 0;
            }
        }
    }
}

// sums[j][r] = the product of a strip and up to six columns of b.
ORV_INLINE void multiply(int inner, const float* strip, const float* const (&b)[kColumns], V (&sum)[kColumns][2])
{
    for (int j = 0; j < kColumns; ++j) sum[j][0] = sum[j][1] = V{};
    for (int k = 0; k < inner; ++k, strip += kRows) {
        const V a0 = load(strip), a1 = load(strip + kLanes);
        for (int j = 0; j < kColumns; ++j) {
            const V x = splat(b[j][k]);
            sum[j][0] = multiply_add(a0, x, sum[j][0]);
            sum[j][1] = multiply_add(a1, x, sum[j][1]);
        }
    }
}

void add_tile(int rows, int columns, int inner, float alpha, const float* strip, const float* b, ptrdiff_t ldb,
              float* c, ptrdiff_t ldc)
{
    const float* from[kColumns];
    for (int j = 0; j < kColumns; ++j) from[j] = b + (j < columns ? j : columns - 1) * ldb;
    V sum[kColumns][2];
    multiply(inner, strip, from, sum);
    alignas(32) float values[kColumns][kRows];
    __builtin_memcpy(values, sum, sizeof(values));
    for (int j = 0; j < columns; ++j) {
        float* const column = c + j * ldc;
        if (rows == kRows) {
            for (int r = 0; r < kRows; ++r) column[r] += alpha * values[j][r];
        } else {
            for (int r = 0; r < rows; ++r) column[r] += alpha * values[j][r];
        }
    }
}

}  // namespace

Status add_product_32f(int rows, int columns, int inner, float alpha, const float* a, int lda, const float* b, int ldb,
                       float* c, int ldc)
{
    const FloatControl control;
    const int height = rows < kBlockRows ? (rows + kRows - 1) / kRows * kRows : kBlockRows;
    const int most = inner < kInner ? inner : kInner;
    float* const packed = static_cast<float*>(orv_allocate(height * most * 4));
    if (packed == nullptr) return StatusNoMemory;
    for (int k = 0; k < inner; k += kInner) {
        const int depth = inner - k < kInner ? inner - k : kInner;
        for (int top = 0; top < rows; top += kBlockRows) {
            const int block = rows - top < kBlockRows ? rows - top : kBlockRows;
            pack(block, depth, a + top + ptrdiff_t{k} * lda, lda, packed);
            for (int j = 0; j < columns; j += kColumns) {
                for (int i = 0; i < block; i += kRows) {
                    add_tile(block - i < kRows ? block - i : kRows, columns - j < kColumns ? columns - j : kColumns,
                             depth, alpha, packed + ptrdiff_t{i} * depth, b + k + ptrdiff_t{j} * ldb, ldb,
                             c + top + i + ptrdiff_t{j} * ldc, ldc);
                }
            }
        }
    }
    orv_release(packed);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace blocked_products
}  // namespace orv
