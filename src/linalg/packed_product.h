// c += alpha * a * b by blocks: both operands are copied into the order in which the innermost loop reads
// them, a block of each at a time.
#pragma once

#include "core/memory.h"
#include "linalg/registers.h"

namespace orv {
inline namespace ORV_LEVEL {

template <class T>
class PackedProduct {
public:
    const T *a, *b;
    T* c;
    std::ptrdiff_t a_row, a_column, b_row, b_column, ldc;
    T alpha;

    Status run(int rows, int columns, int inner)
    {
        const int height = least(padded(rows, kRows), kBlockRows),
                  width = least(padded(columns, kColumns), kBlockColumns);
        const int depth = least(inner, kBlockInner);
        T* const memory = static_cast<T*>(orv_allocate((height + width) * depth * static_cast<int>(sizeof(T))));
        if (memory == nullptr) return StatusNoMemory;
        T* const packed_b = memory + std::ptrdiff_t{height} * depth;
        for (int j = 0; j < columns; j += kBlockColumns) {
            for (int k = 0; k < inner; k += kBlockInner) {
                const int some_columns = least(columns - j, kBlockColumns), some_inner = least(inner - k, kBlockInner);
                pack<kColumns>(some_columns, some_inner, b + j * b_column + k * b_row, b_column, b_row, packed_b);
                for (int i = 0; i < rows; i += kBlockRows) {
                    const int some_rows = least(rows - i, kBlockRows);
                    pack<kRows>(some_rows, some_inner, a + i * a_row + k * a_column, a_row, a_column, memory);
                    add_block(some_rows, some_columns, some_inner, memory, packed_b, c + i + j * ldc);
                }
            }
        }
        orv_release(memory);
        return StatusOk;
    }

private:
    using R = Register<T>;
    using V = typename R::V;
    // A tile of c: its sums, a column of a and an element of b fill the registers.
#if ORV_HAVE_VECTORS
    static constexpr int kRows = 2 * R::N, kColumns = 6;
#else
    static constexpr int kRows = 2, kColumns = 2;
#endif
    // A strip of b stays in the nearest cache, the block of a in the next one.
    static constexpr int kBlockInner = 1024 / static_cast<int>(sizeof(T));
    static constexpr int kBlockRows = 6 * kRows;
    static constexpr int kBlockColumns = 192;

    static ORV_INLINE int least(int x, int y) { return x < y ? x : y; }
    static ORV_INLINE int padded(int x, int unit) { return (x + unit - 1) / unit * unit; }

    // Strips of `unit` rows of a matrix, column after column, the last strip filled up with zeros.
    template <int unit>
    static void pack(int rows, int columns, const T* from, std::ptrdiff_t row, std::ptrdiff_t column, T* packed)
    {
        for (int i = 0; i < rows; i += unit, packed += unit * columns) {
            const T* const strip = from + i * row;
            const int live = least(rows - i, unit);
            if (live == unit && row == 1) {
                for (int k = 0; k < columns; ++k)
                    __builtin_memcpy(packed + unit * k, strip + k * column, sizeof(T) * unit);
            } else if (live == unit) {
                for (int k = 0; k < columns; ++k) {
                    for (int r = 0; r < unit; ++r) packed[unit * k + r] = strip[r * row + k * column];
                }
            } else {
                for (int k = 0; k < columns; ++k) {
                    for (int r = 0; r < unit; ++r) packed[unit * k + r] = r < live ? strip[r * row + k * column] : 0;
                }
            }
        }
    }

    void add_block(int rows, int columns, int inner, const T* packed_a, const T* packed_b, T* block) const
    {
        for (int j = 0; j < columns; j += kColumns) {
            for (int i = 0; i < rows; i += kRows) {
                add_tile(least(rows - i, kRows), least(columns - j, kColumns), inner,
                         packed_a + std::ptrdiff_t{i} * inner, packed_b + std::ptrdiff_t{j} * inner,
                         block + i + j * ldc);
            }
        }
    }

    void add_tile(int rows, int columns, int inner, const T* strip_a, const T* strip_b, T* tile) const
    {
        V sum[kColumns][2];
        for (int j = 0; j < kColumns; ++j) sum[j][0] = sum[j][1] = V{};
        for (int k = 0; k < inner; ++k, strip_a += kRows, strip_b += kColumns) {
            const V a0 = R::load(strip_a), a1 = R::load(strip_a + R::N);
            for (int j = 0; j < kColumns; ++j) {
                const V x = R::splat(strip_b[j]);
                sum[j][0] += a0 * x;
                sum[j][1] += a1 * x;
            }
        }
        const V factor = R::splat(alpha);
        if (rows == kRows && columns == kColumns) {
            for (int j = 0; j < kColumns; ++j, tile += ldc) {
                R::store(tile, R::load(tile) + factor * sum[j][0]);
                R::store(tile + R::N, R::load(tile + R::N) + factor * sum[j][1]);
            }
            return;
        }
        alignas(32) T values[kColumns][kRows];
        for (int j = 0; j < kColumns; ++j) {
            R::store(values[j], factor * sum[j][0]);
            R::store(values[j] + R::N, factor * sum[j][1]);
        }
        for (int j = 0; j < columns; ++j, tile += ldc) {
            for (int r = 0; r < rows; ++r) tile[r] += values[j][r];
        }
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
