#include "signal/statistics.h"

#include <cstdint>
#include <type_traits>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/nan.h"
#include "elementwise/extremes.h"
#include "elementwise/float_arithmetic.h"
#include "elementwise/integer_sums.h"
#include "elementwise/lane_sums.h"

namespace orv {
namespace statistics {
namespace ORV_LEVEL {
namespace {

using std::int32_t;
using std::int64_t;
using std::ptrdiff_t;
using std::uint16_t;
using std::uint64_t;
using std::uint8_t;

// --- Sums and means -------------------------------------------------------------------------------

// In 64 bits, which hold 2^31 integers of 32.
template <class T>
uint64_t exact_sum(const T* src, Length len)
{
#if ORV_HAVE_VECTORS
    using Way = std::conditional_t<sizeof(T) == 1, Bytes, std::conditional_t<sizeof(T) == 2, Words, Ints>>;
    return add_up<Way>(src, 0, {len.count, 1}, 1).sum[0];
#else
    int64_t sum = 0;
    for (int i = 0; i < len.count; ++i) sum += int64_t{get(src + i)};
    return static_cast<uint64_t>(sum);
#endif
}

template <class T>
double sum_of(const T* src, Length len)
{
    if constexpr (simd::is_float<T>) return sum_in_lanes(Elements<T>{src}, len.count);
    else return from_signed(exact_sum(src, len));
}

double over(double sum, Length len) { return quotient_of(sum, static_cast<double>(len.count)); }

// Which NaN a sum of several becomes is a matter of the instructions: there is one for all.
void put_result(double* result, double value)
{
    if (value == value) put(result, value);
    else put(reinterpret_cast<uint64_t*>(result), kPlainNan64);
}

template <class T>
Status sum(const T* src, Length len, double* result)
{
    if (const Status bad = check_vector(len, src, result)) return bad;
    const FloatControl control;
    put_result(result, sum_of(src, len));
    return StatusOk;
}

template <class T>
Status mean(const T* src, Length len, double* result)
{
    if (const Status bad = check_vector(len, src, result)) return bad;
    const FloatControl control;
    put_result(result, over(sum_of(src, len), len));
    return StatusOk;
}

// --- Deviations -----------------------------------------------------------------------------------
//
// In two passes: the squares of what is left when the mean is taken off lose nothing, however far off the mean is.
// Mean and elements are multiples of 2^-232, so no square is subnormal, which the x87 would round twice.
struct SquaredDistances {
    const float* p;
    double mean;
    template <class D> ORV_INLINE D add(D sum, ptrdiff_t i) const
    {
        const D distance = load_double<D>(p + i) - D(mean);
        return sum + distance * distance;
    }
};

double deviation_from(double mean, const float* src, Length len)
{
    return rounded(__builtin_sqrt(over(sum_in_lanes(SquaredDistances{src, mean}, len.count), len)));
}

// --- Products -------------------------------------------------------------------------------------

template <class T>
struct Products {
    const T* a;
    const T* b;
    template <class D> ORV_INLINE D add(D sum, ptrdiff_t i) const
    {
        const D left = load_double<D>(a + i), right = load_double<D>(b + i);
        if constexpr (sizeof(T) == 4) return add_exact_product(left, right, sum);
        else if constexpr (D::N == 1) return sum + D(product_of(left.v, right.v));
        else return sum + left * right;
    }
};

template <class T>
Status product(const T* src1, const T* src2, Length len, double* result)
{
    if (const Status bad = check_vector(len, src1, src2, result)) return bad;
    const FloatControl control;
    put_result(result, sum_in_lanes(Products<T>{src1, src2}, len.count));
    return StatusOk;
}

// --- Extremes -------------------------------------------------------------------------------------

// As integers: on the x87 a copy of a float is no copy.
template <class T> using Image = simd::word_like<T>;
template <class T> constexpr Image<T> kNan = static_cast<Image<T>>(sizeof(T) == 4 ? kPlainNan : kPlainNan64);
template <class T> ORV_INLINE Image<T> image_of(const T* p) { return get(reinterpret_cast<const Image<T>*>(p)); }
template <class T> ORV_INLINE void put_image(T* p, Image<T> image) { put(reinterpret_cast<Image<T>*>(p), image); }

// An extreme that was found: of zeros, which are equal, the first one; and where nothing left the start of the
// search, there may have been nothing but NaNs.
template <class T>
Image<T> extreme_of(T value, T start, const T* src, Length len)
{
    if constexpr (simd::is_float<T>) {
        if (value == start || value == 0) {
            const ptrdiff_t place = index_of(src, ptrdiff_t{len.count}, value);
            return place < len.count ? image_of(src + place) : kNan<T>;
        }
    }
    return image_of(&value);
}

template <Wanted wanted, class T>
Status extreme(const T* src, Length len, T* result)
{
    if (const Status bad = check_vector(len, src, result)) return bad;
    const FloatControl control;
    const T value = best_by_stretches<wanted>(src, ptrdiff_t{len.count}).value;
    put_image(result, extreme_of(value, wanted == least ? Range<T>::highest : Range<T>::lowest, src, len));
    return StatusOk;
}

template <class T>
Status extremes(const T* src, Length len, T* low, T* high)
{
    if (const Status bad = check_vector(len, src, low, high)) return bad;
    const FloatControl control;
    const Extremes<T> found = find<both, 1>(src, 0, {len.count, 1});
    const Image<T> least_image = extreme_of(found.low[0], Range<T>::highest, src, len);
    const Image<T> greatest_image = extreme_of(found.high[0], Range<T>::lowest, src, len);
    put_image(low, least_image);
    put_image(high, greatest_image);
    return StatusOk;
}

template <Wanted wanted, class T>
Status position(const T* src, Length len, T* value, int* index)
{
    if (const Status bad = check_vector(len, src, value, index)) return bad;
    const FloatControl control;
    const ptrdiff_t place = place_of<wanted>(src, ptrdiff_t{len.count});
    const bool found = place < len.count;  // no NaN
    put_image(value, found ? image_of(src + place) : kNan<T>);
    put(index, found ? static_cast<int>(place) : 0);
    return StatusOk;
}

}  // namespace

// Results that are null are left out.
Status MeanStdDev_32f(const float* src, Length len, double* mean, double* stdDev)
{
    if (const Status bad = check_vector(len, src)) return bad;
    if (mean == nullptr && stdDev == nullptr) return StatusOk;
    const FloatControl control;
    const double m = over(sum_of(src, len), len);
    const double deviation = stdDev != nullptr ? deviation_from(m, src, len) : 0;
    if (mean != nullptr) put_result(mean, m);
    if (stdDev != nullptr) put_result(stdDev, deviation);
    return StatusOk;
}

Status StdDev_32f(const float* src, Length len, double* stdDev)
{
    if (const Status bad = check_vector(len, src, stdDev)) return bad;
    return MeanStdDev_32f(src, len, nullptr, stdDev);
}

// --- Kernels --------------------------------------------------------------------------------------

#define VECTOR(name, body, T, R) \
    Status name(const T* src, Length len, R* result) { return body(src, len, result); }
#define TWO_VECTORS(name, body, T, R)                                                \
    Status name(const T* src1, const T* src2, Length len, R* result)                 \
    {                                                                                \
        return body(src1, src2, len, result);                                        \
    }
#define TWO_RESULTS(name, body, T, R) \
    Status name(const T* src, Length len, T* first, R* second) { return body(src, len, first, second); }

VECTOR(Sum_8u, sum, uint8_t, double)
VECTOR(Sum_16u, sum, uint16_t, double)
VECTOR(Sum_32s, sum, int32_t, double)
VECTOR(Sum_32f, sum, float, double)
VECTOR(Sum_64f, sum, double, double)

VECTOR(Mean_8u, mean, uint8_t, double)
VECTOR(Mean_16u, mean, uint16_t, double)
VECTOR(Mean_32s, mean, int32_t, double)
VECTOR(Mean_32f, mean, float, double)
VECTOR(Mean_64f, mean, double, double)

TWO_VECTORS(DotProd_32f, product, float, double)
TWO_VECTORS(DotProd_64f, product, double, double)

VECTOR(Min_8u, extreme<least>, uint8_t, uint8_t)
VECTOR(Min_16u, extreme<least>, uint16_t, uint16_t)
VECTOR(Min_32s, extreme<least>, int32_t, int32_t)
VECTOR(Min_32f, extreme<least>, float, float)
VECTOR(Min_64f, extreme<least>, double, double)

VECTOR(Max_8u, extreme<greatest>, uint8_t, uint8_t)
VECTOR(Max_16u, extreme<greatest>, uint16_t, uint16_t)
VECTOR(Max_32s, extreme<greatest>, int32_t, int32_t)
VECTOR(Max_32f, extreme<greatest>, float, float)
VECTOR(Max_64f, extreme<greatest>, double, double)

TWO_RESULTS(MinMax_8u, extremes, uint8_t, uint8_t)
TWO_RESULTS(MinMax_16u, extremes, uint16_t, uint16_t)
TWO_RESULTS(MinMax_32s, extremes, int32_t, int32_t)
TWO_RESULTS(MinMax_32f, extremes, float, float)
TWO_RESULTS(MinMax_64f, extremes, double, double)

TWO_RESULTS(MinIndx_8u, position<least>, uint8_t, int)
TWO_RESULTS(MinIndx_16u, position<least>, uint16_t, int)
TWO_RESULTS(MinIndx_32s, position<least>, int32_t, int)
TWO_RESULTS(MinIndx_32f, position<least>, float, int)
TWO_RESULTS(MinIndx_64f, position<least>, double, int)

TWO_RESULTS(MaxIndx_8u, position<greatest>, uint8_t, int)
TWO_RESULTS(MaxIndx_16u, position<greatest>, uint16_t, int)
TWO_RESULTS(MaxIndx_32s, position<greatest>, int32_t, int)
TWO_RESULTS(MaxIndx_32f, position<greatest>, float, int)
TWO_RESULTS(MaxIndx_64f, position<greatest>, double, int)

}  // namespace ORV_LEVEL
}  // namespace statistics
}  // namespace orv
