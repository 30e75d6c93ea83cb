#include "signal/vector_ramps.h"

#include "core/nan.h"
#include "elementwise/float_arithmetic.h"
#include "signal/element_types.h"

namespace orv {
namespace vector_ramps {
namespace ORV_LEVEL {
namespace {

// A number as it is, and one NaN for all: it is also the one that operations without a result give, so whatever is
// formed from both has no other.
ORV_INLINE double with_one_nan(const double& value)
{
    const std::uint64_t bits = get(reinterpret_cast<const std::uint64_t*>(&value));
    return simd::bit_cast<double>(is_nan_bits<double>(bits) ? kInvalidNan64 : bits);
}

// offset + slope i, with two roundings. Products and sums below the normal range are multiples of the smallest
// number, hence exact, also on the x87.
struct Line {
    double offset, slope;

    ORV_INLINE double one(std::ptrdiff_t i) const
    {
        return rounded(offset + rounded(slope * static_cast<double>(i)));
    }
    ORV_INLINE Doubles group(std::ptrdiff_t i) const
    {
        using V = decltype(Doubles::lo);
        const V first = V(static_cast<double>(i)) + simd::ascending<V>();
        return Doubles(offset) + Doubles(slope) * Doubles(first, first + V(static_cast<double>(V::N)));
    }
    template <class T>
    ORV_INLINE auto elements(std::ptrdiff_t i) const
    {
        return elements_of<T>([this, i](int k) __attribute__((always_inline)) { return group(i + k * Integers::N); });
    }
};

template <class T>
void fill(Line line, T* dst, std::ptrdiff_t n)
{
    if constexpr (!ORV_HAVE_VECTORS) {
        for (std::ptrdiff_t i = 0; i < n; ++i) put(dst + i, element_of<T>(line.one(i)));
    } else if (n >= kElements<T>) {
        full_vectors<kElements<T>>(
            n, [line](std::ptrdiff_t i) __attribute__((always_inline)) { return line.elements<T>(i); },
            [dst](std::ptrdiff_t i, auto v) __attribute__((always_inline)) { simd::store(dst + i, v); });
    } else {
        T results[kElements<T>];
        simd::store(results, line.elements<T>(0));
        __builtin_memcpy(dst, results, static_cast<std::size_t>(n) * sizeof(T));
    }
}

template <class T>
Status slope(const double& offset, const double& slope, T* dst, Length len)
{
    if (const Status bad = check_vector(len, dst)) return bad;
    const FloatControl control;
    fill({with_one_nan(offset), with_one_nan(slope)}, dst, len.count);
    return StatusOk;
}

// The ends are stored once more: first + 0 is not first where that is -0 or the step infinite, nor does the last step
// lead to last.
template <class T>
Status ramp(const double& first, const double& last, T* dst, Length len)
{
    if (const Status bad = check_vector(len, dst)) return bad;
    const FloatControl control;
    const double start = with_one_nan(first), end = with_one_nan(last);
    const int steps = len.count - 1;
    if (steps > 0) {
        fill({start, quotient_of(rounded(end - start), steps)}, dst, len.count);
        put(dst + steps, element_of<T>(end));
    }
    put(dst, element_of<T>(start));
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define LINE(name, body, T) \
    Status name(const double& start, const double& other, T* dst, Length len) { return body(start, other, dst, len); }
LINE(VectorSlope_8u, slope, unsigned char)
LINE(VectorSlope_16u, slope, unsigned short)
LINE(VectorSlope_32s, slope, int)
LINE(VectorSlope_32f, slope, float)
LINE(VectorSlope_64f, slope, double)
LINE(VectorRamp_8u, ramp, unsigned char)
LINE(VectorRamp_16u, ramp, unsigned short)
LINE(VectorRamp_32s, ramp, int)
LINE(VectorRamp_32f, ramp, float)
LINE(VectorRamp_64f, ramp, double)

}  // namespace ORV_LEVEL
}  // namespace vector_ramps
}  // namespace orv
