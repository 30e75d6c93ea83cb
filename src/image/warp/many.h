// Runs of pixels all of whose taps lie within the source, several at a time. What is done is what one() does.
#pragma once

#include <cstdint>

#include "image/warp/source.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

#if ORV_HAVE_INT256

using simd::doubles256;
using simd::floats256;
using simd::words256;
using Dwords = simd::vec<simd::s32, 8>;
using simd::s64;

// Of lanes that have no sign.
template <int bits>
ORV_INLINE Dwords shifted_out(Dwords a)
{
    return simd::as<simd::s32>(simd::shifted_right<bits>(simd::as<simd::u32>(a)));
}

// Calls with the first of each `step` pixels; the last of them may overlap those before. The run is not shorter.
template <int step, class Visit>
ORV_INLINE void for_each_step(int begin, int end, Visit visit)
{
    int k = begin;
    for (; k + step <= end; k += step) visit(k);
    if (k < end) visit(end - step);
}

// --- Places -----------------------------------------------------------------------------------------

// Offsets from the first pixel of an image, which doubles hold exactly.
template <int PixelBytes>
struct Strides {
    doubles256 step;
    words256 step_words;
    ORV_INLINE explicit Strides(int bytes)
        : step(simd::splat<doubles256>(bytes)), step_words(simd::splat<words256>(static_cast<simd::u64>(bytes)))
    {
    }

    ORV_INLINE void store_offset(doubles256 i, doubles256 j, s64* at) const
    {
        const doubles256 column = PixelBytes == 1 ? i : i * simd::splat<doubles256>(PixelBytes);
        put(to_signed_words(add_exact_product(j, step, column)), at);
    }
    ORV_INLINE void store_offset(words256 i, words256 j, s64* at) const
    {
        const words256 column = PixelBytes == 1 ? i : mul_lower(i, simd::splat<words256>(simd::u64{PixelBytes}));
        put(mul_lower(j, step_words) + column, at);
    }

private:
    static ORV_INLINE void put(words256 offset, s64* at) { simd::store(reinterpret_cast<simd::u64*>(at), offset); }
};
template <class T, int Channels>
ORV_INLINE Strides<Source<T, Channels>::kPixelBytes> strides_of(const Source<T, Channels>& source)
{
    return Strides<Source<T, Channels>::kPixelBytes>(source.step);
}

// Whole parts and fractions of four positions on one axis.
struct FourPlaces {
    doubles256 whole, f;
    ORV_INLINE explicit FourPlaces(const double* index)
        : whole(whole_part(simd::load<doubles256>(index))), f(simd::load<doubles256>(index) - whole)
    {
    }
};

template <class T>
ORV_INLINE const T* row_of(const T* base, int step, int rows)
{
    return simd::displaced(base, s64{step} * rows);
}

// --- Nearest ----------------------------------------------------------------------------------------

template <class T, int Channels>
ORV_INLINE void many(const Nearest<T, Channels>&, const Source<T, Channels>& source, const Chunk& chunk, int begin,
                     int end, T* dst)
{
    const auto strides = strides_of(source);
    for_each_step<8>(begin, end, [&](int k) {
        alignas(32) s64 at[8];
        for (int half = 0; half < 8; half += 4) {
            const doubles256 x = simd::load<doubles256>(chunk.x + k + half),
                             y = simd::load<doubles256>(chunk.y + k + half);
            strides.store_offset(whole_part(x), whole_part(y), at + half);
        }
        constexpr int pixel = Source<T, Channels>::kPixelBytes;
        for (int n = 0; n < 8; ++n) {
            __builtin_memcpy(dst + (k + n) * Channels, simd::displaced(source.image, at[n]), pixel);
        }
    });
}

// Nearest neighbours by maps need no doubles: a float's whole part and whether the rest is a half or more are exact.
template <class T, int Channels>
class MapPicker {
public:
    // Columns and rows must be floats, offsets fit 32 bits.
    ORV_INLINE explicit MapPicker(const Source<T, Channels>& source)
        : source_(source), fits_(source.right < 1 << 24 && source.bottom < 1 << 24 && source.extent() < 0x1p31)
    {
    }
    // A whole chunk.
    ORV_INLINE bool pick(const float* x, const float* y, T* dst) const
    {
        if (!fits_) return false;
        alignas(32) simd::s32 at[Chunk::kMost];
        std::uint64_t shown = 0;
        const Dwords step = simd::splat<Dwords>(source_.step), pixel = simd::splat<Dwords>(kPixelBytes);
        for (int k = 0; k < Chunk::kMost; k += 8) {
            const floats256 column = nearest(x + k), row = nearest(y + k);
            const floats256 inside = between(source_.left, column, source_.right) &
                                     between(source_.top, row, source_.bottom);
            shown |= std::uint64_t{simd::lanes_of(inside)} << k;
            const Dwords i = truncate(column);
            simd::store(at + k, mul_low(truncate(row), step) + (kPixelBytes == 1 ? i : mul_low(i, pixel)));
        }
        for_each_run(shown, [&](int begin, int end) {
            for (int k = begin; k < end; ++k) {
                __builtin_memcpy(dst + k * Channels, simd::displaced(source_.image, at[k]), kPixelBytes);
            }
        });
        return true;
    }

private:
    static constexpr int kPixelBytes = Source<T, Channels>::kPixelBytes;
    static ORV_INLINE floats256 nearest(const float* p)
    {
        const floats256 index = simd::load<floats256>(p), whole = floor(index), one = simd::splat<floats256>(1);
        return whole + (greater_equal(index - whole, simd::splat<floats256>(0.5f)) & one);
    }
    static ORV_INLINE floats256 between(int low, floats256 value, int high)
    {
        return greater_equal(value, simd::splat<floats256>(static_cast<float>(low))) &
               greater_equal(simd::splat<floats256>(static_cast<float>(high)), value);
    }
    const Source<T, Channels>& source_;
    bool fits_;
};

// --- Linear, bytes ----------------------------------------------------------------------------------

// The positions of eight pixels in 1/16384. Where a fraction rounds up to a whole pixel, that pixel counts alone.
struct FixedPlaces {
    alignas(32) s64 at[8];
    Dwords f, g;  // weights of the pixel and of the next one, as pairs of words

    template <int PixelBytes>
    ORV_INLINE FixedPlaces(const Strides<PixelBytes>& strides, const Chunk& chunk, int k)
    {
        words256 x[2], y[2];
        for (int half = 0; half < 2; ++half) {
            x[half] = to_words(simd::load<doubles256>(chunk.x + k + 4 * half), 16384);
            y[half] = to_words(simd::load<doubles256>(chunk.y + k + 4 * half), 16384);
            strides.store_offset(simd::shifted_right<14>(x[half]), simd::shifted_right<14>(y[half]), at + 4 * half);
        }
        simd::in_memory(at);
        f = weights(lower_halves(x[0], x[1]));
        g = weights(lower_halves(y[0], y[1]));
    }

private:
    static ORV_INLINE Dwords weights(Dwords position)
    {
        const Dwords fraction = position & simd::splat<Dwords>(16383);
        return (simd::splat<Dwords>(16384) - fraction) | simd::shifted_left<16>(fraction);
    }
};

// Pairs of words, weighted and added.
ORV_INLINE Dwords weighted(Dwords pairs, Dwords weights)
{
    return sum_of_products(simd::as<simd::s16>(pairs), simd::as<simd::s16>(weights));
}

// From the pixel pairs of two rows.
ORV_INLINE Dwords interpolated(Dwords upper, Dwords lower, Dwords f, Dwords g)
{
    const Dwords half = simd::splat<Dwords>(64);
    const Dwords top = shifted_out<7>(weighted(upper, f) + half),
                 bottom = simd::shifted_left<9>(weighted(lower, f) + half);
    const auto words = alternate(simd::as<simd::s16>(top), simd::as<simd::s16>(bottom));
    const Dwords sum = weighted(simd::as<simd::s32>(words), g);
    const Dwords odd = shifted_out<21>(sum) & simd::splat<Dwords>(1);
    return shifted_out<21>(sum + simd::splat<Dwords>((1 << 20) - 1) + odd);
}

ORV_INLINE void many_of_one_channel(const Linear<std::uint8_t, 1>&, const Source<std::uint8_t, 1>& source,
                                    const Chunk& chunk, int begin, int end, std::uint8_t* dst)
{
    const auto strides = strides_of(source);
    const std::uint8_t* const next_row = row_of(source.image, source.step, 1);
    for_each_step<8>(begin, end, [&](int k) {
        const FixedPlaces places(strides, chunk, k);
        const auto pairs = [&](const std::uint8_t* image) {
            return simd::as<simd::s32>(simd::pairs_of_bytes_at(image, places.at));
        };
        simd::store_as(dst + k, interpolated(pairs(source.image), pairs(next_row), places.f, places.g));
    });
}

// Eight pixels that have four bytes each.
template <int Channels>
ORV_INLINE void store_pixels(std::uint8_t* p, simd::vec<simd::u8, 32> pixels)
{
    if (Channels == 4)
        simd::store(p, pixels);
    else
        simd::store_triples(p, pixels);
}

// Two pixels side by side, four channels of each.
template <int Channels>
ORV_INLINE void many_of_channels(const Linear<std::uint8_t, Channels>&, const Source<std::uint8_t, Channels>& source,
                                 const Chunk& chunk, int begin, int end, std::uint8_t* dst)
{
    constexpr unsigned char none = 0x80, b = Channels, last = Channels == 4 ? 3 : none,
                            last_b = Channels == 4 ? 7 : none;
    static const unsigned char beside_each_other[] = {0, none, b,     none, 1,    none, b + 1,  none,
                                                      2, none, b + 2, none, last, none, last_b, none};
    const auto order = simd::load_repeated<simd::vec<simd::u8, 32>>(beside_each_other);
    const auto strides = strides_of(source);
    const std::uint8_t* const next_row = row_of(source.image, source.step, 1);
    for_each_step<8>(begin, end, [&](int k) {
        const FixedPlaces places(strides, chunk, k);
        const auto two = [&](int n) {
            const auto pairs = [&](const std::uint8_t* image) {
                const auto both =
                    simd::two_qwords(simd::displaced(image, places.at[n]), simd::displaced(image, places.at[n + 1]));
                return simd::as<simd::s32>(simd::shuffle_bytes(both, order));
            };
            return interpolated(pairs(source.image), pairs(next_row), simd::splat_halves(places.f, n),
                                simd::splat_halves(places.g, n));
        };
        store_pixels<Channels>(dst + k * Channels, simd::pack(two(0), two(2), two(4), two(6)));
    });
}

// --- Linear, wider types ----------------------------------------------------------------------------

struct FloatPlaces {
    alignas(32) s64 at[8];
    floats256 f, g;

    template <int PixelBytes>
    ORV_INLINE FloatPlaces(const Strides<PixelBytes>& strides, const Chunk& chunk, int k)
    {
        const FourPlaces x0(chunk.x + k), x1(chunk.x + k + 4), y0(chunk.y + k), y1(chunk.y + k + 4);
        strides.store_offset(x0.whole, y0.whole, at);
        strides.store_offset(x1.whole, y1.whole, at + 4);
        simd::in_memory(at);
        f = to_float(simd::twice<doubles256>{x0.f, x1.f});
        g = to_float(simd::twice<doubles256>{y0.f, y1.f});
    }
};

ORV_INLINE simd::twice<floats256> neighbours_at(const std::uint16_t* image, const s64* at)
{
    const Dwords both = simd::dwords_at(image, at);
    return {to_float(both & simd::splat<Dwords>(0xFFFF)), to_float(shifted_out<16>(both))};
}
ORV_INLINE simd::twice<floats256> neighbours_at(const float* image, const s64* at)
{
    return simd::pairs_of_floats_at(image, at);
}

// Words have no need of the two exceptions: their sums come to the same.
template <bool anything>
ORV_INLINE floats256 mixed(floats256 a, floats256 b, floats256 part)
{
    const floats256 sum = a + (b - a) * part;
    if (!anything) return sum;
    return select(equal(part, simd::splat<floats256>(0)), a, select(equal(part, simd::splat<floats256>(1)), b, sum));
}

ORV_INLINE void store_rounded(std::uint16_t* p, floats256 a) { simd::store_as(p, round_to_int(a)); }
ORV_INLINE void store_rounded(float* p, floats256 a) { simd::store(p, simd::with_one_nan(a)); }

template <class T>
ORV_INLINE void many_of_one_channel(const Linear<T, 1>&, const Source<T, 1>& source, const Chunk& chunk, int begin,
                                    int end, T* dst)
{
    constexpr bool anything = sizeof(T) == 4;
    const auto strides = strides_of(source);
    const T* const next_row = row_of(source.image, source.step, 1);
    for_each_step<8>(begin, end, [&](int k) {
        const FloatPlaces places(strides, chunk, k);
        const simd::twice<floats256> upper = neighbours_at(source.image, places.at),
                                     lower = neighbours_at(next_row, places.at);
        const floats256 top = mixed<anything>(upper.lo, upper.hi, places.f),
                        bottom = mixed<anything>(lower.lo, lower.hi, places.f);
        store_rounded(dst + k, mixed<anything>(top, bottom, places.g));
    });
}

// --- Sums in double, four pixels at a time ------------------------------------------------------------

// Four pixels whose taps begin so many columns and rows before them.
template <int before>
struct FourWindows {
    alignas(32) s64 at[4];
    doubles256 f, g;
    template <int PixelBytes>
    ORV_INLINE FourWindows(const Strides<PixelBytes>& strides, const Chunk& chunk, int k)
    {
        const FourPlaces x(chunk.x + k), y(chunk.y + k);
        const doubles256 less = simd::splat<doubles256>(before);
        strides.store_offset(x.whole - less, y.whole - less, at);
        simd::in_memory(at);
        f = x.f;
        g = y.f;
    }
};

ORV_INLINE bool any_zero(const doubles256* w)
{
    const doubles256 zero = simd::splat<doubles256>(0);
    return any((equal(w[0], zero) | equal(w[1], zero)) | (equal(w[2], zero) | equal(w[3], zero)));
}

// With zeros among the weights (`some_zero`), their products are +0 whatever the value; exact products may be fused.
template <bool some_zero, bool exact>
ORV_INLINE doubles256 sum_of_four(const doubles256* w, const doubles256* p)
{
    if (some_zero) {
        const auto product = [&](int k) { return and_not(equal(w[k], simd::splat<doubles256>(0)), w[k] * p[k]); };
        return (product(0) + product(1)) + (product(2) + product(3));
    }
    if (exact) return add_exact_product(w[1], p[1], w[0] * p[0]) + add_exact_product(w[3], p[3], w[2] * p[2]);
    return (w[0] * p[0] + w[1] * p[1]) + (w[2] * p[2] + w[3] * p[3]);
}

template <bool some_zero, class T>
ORV_INLINE doubles256 cubic_sum(const Source<T, 1>& source, const s64* at, const doubles256* w, const doubles256* v)
{
    doubles256 h[4];
    for (int row = 0; row < 4; ++row) {
        doubles256 taps[4];
        simd::four_in_a_row(row_of(source.image, source.step, row), at, taps);
        h[row] = sum_of_four<some_zero, true>(w, taps);
    }
    return sum_of_four<some_zero, false>(v, h);
}

template <class T>
ORV_INLINE void many_of_one_channel(const Cubic<T, 1>& cubic, const Source<T, 1>& source, const Chunk& chunk, int begin,
                                    int end, T* dst)
{
    const auto strides = strides_of(source);
    for_each_step<4>(begin, end, [&](int k) {
        const FourWindows<1> places(strides, chunk, k);
        doubles256 w[4], v[4];
        cubic.four_weights(places.f, w);
        cubic.four_weights(places.g, v);
        const bool some_zero = sizeof(T) == 4 && (any_zero(w) || any_zero(v));
        simd::store_as(
            dst + k, some_zero ? cubic_sum<true>(source, places.at, w, v) : cubic_sum<false>(source, places.at, w, v));
    });
}

// --- Cubics of bytes ----------------------------------------------------------------------------------

// Estimated in float. A weight is off by less than 4.5e-7: 4e-8 from a fraction in float, 3e-7 from three roundings and
// the coefficients', 3e-8 because the meant one is a float. Four of them times 255, and the roundings of the sum, put a
// column off by 5.2e-4, the rows likewise by 1.3e-3 in all. Where that leaves a doubt which integer is the nearest, the
// sums are formed as they are meant.
struct CubicEstimate {
    static constexpr float kUnsure = 1.f / 512;
    float c[4][4];
    ORV_INLINE explicit CubicEstimate(const CubicFamily& family) { family.polynomials(c); }

    ORV_INLINE void weights(floats256 f, floats256* w) const
    {
        for (int k = 0; k < 4; ++k) {
            floats256 sum = fused(simd::splat_at<floats256>(&c[k][0]), f, simd::splat_at<floats256>(&c[k][1]));
            sum = fused(sum, f, simd::splat_at<floats256>(&c[k][2]));
            w[k] = fused(sum, f, simd::splat_at<floats256>(&c[k][3]));
        }
    }
    static ORV_INLINE unsigned unsure(floats256 value, Dwords nearest)
    {
        return lanes_of(greater(magnitude(value - to_float(nearest)), simd::splat<floats256>(0.5f - kUnsure)));
    }
};

template <int Channels>
ORV_INLINE void redo(const Cubic<std::uint8_t, Channels>& cubic, const Source<std::uint8_t, Channels>& source,
                     const Chunk& chunk, int k, unsigned pixels, std::uint8_t* dst)
{
    for (; pixels != 0; pixels &= pixels - 1) {
        const int n = k + __builtin_ctz(pixels);
        cubic.one(source, chunk.x[n], chunk.y[n], dst + n * Channels);
    }
}

struct EstimatedPlaces {
    FloatPlaces places;
    floats256 w[4], v[4];
    template <int PixelBytes>
    ORV_INLINE EstimatedPlaces(const CubicEstimate& estimate, const Strides<PixelBytes>& strides, const Chunk& chunk,
                               int k)
        : places(strides, chunk, k)
    {
        estimate.weights(places.f, w);
        estimate.weights(places.g, v);
    }
};

ORV_INLINE void many_of_one_channel(const Cubic<std::uint8_t, 1>& cubic, const Source<std::uint8_t, 1>& source,
                                    const Chunk& chunk, int begin, int end, std::uint8_t* dst)
{
    const auto strides = strides_of(source);
    const CubicEstimate estimate(cubic.family);
    const std::uint8_t* const first = simd::displaced(source.image, -s64{source.step} - 1);
    for_each_step<8>(begin, end, [&](int k) {
        const EstimatedPlaces e(estimate, strides, chunk, k);
        floats256 sum = simd::splat<floats256>(0);
        for (int row = 0; row < 4; ++row) {
            const Dwords taps = simd::dwords_at(row_of(first, source.step, row), e.places.at),
                         byte = simd::splat<Dwords>(0xFF);
            floats256 h = e.w[0] * to_float(taps & byte);
            h = fused(e.w[1], to_float(shifted_out<8>(taps) & byte), h);
            h = fused(e.w[2], to_float(shifted_out<16>(taps) & byte), h);
            h = fused(e.w[3], to_float(shifted_out<24>(taps)), h);
            sum = fused(e.v[row], h, sum);
        }
        const Dwords nearest = round_to_int(sum);
        simd::store_as(dst + k, nearest);
        redo(cubic, source, chunk, k, CubicEstimate::unsure(sum, nearest), dst);
    });
}

// A bit for each four.
ORV_INLINE unsigned any_of_four(unsigned bits)
{
    unsigned all = 0;
    for (int n = 0; n < 8; ++n) all |= (bits >> 4 * n & 15) != 0 ? 1u << n : 0u;
    return all;
}

// A pixel of four channels, from four rows of four pixels: the halves of the result are yet to be added.
template <int Channels>
ORV_INLINE floats256 estimated_pixel(const std::uint8_t* top, int step, const float* w, const float* v)
{
    floats256 left = simd::splat<floats256>(0), right = left;
    for (int row = 0; row < 4; ++row) {
        const floats256 weight = simd::splat_at<floats256>(v + 8 * row);
        const simd::twice<floats256> taps = simd::to_floats(simd::four_pixels<Channels>(row_of(top, step, row)));
        left = fused(weight, taps.lo, left);
        right = fused(weight, taps.hi, right);
    }
    return fused(simd::splat_halves(w + 16, w + 24), right, simd::splat_halves(w, w + 8) * left);
}

template <int Channels>
ORV_INLINE void many_of_channels(const Cubic<std::uint8_t, Channels>& cubic,
                                 const Source<std::uint8_t, Channels>& source, const Chunk& chunk, int begin, int end,
                                 std::uint8_t* dst)
{
    const auto strides = strides_of(source);
    const CubicEstimate estimate(cubic.family);
    const std::uint8_t* const first = simd::displaced(source.image, -s64{source.step} - Channels);
    for_each_step<8>(begin, end, [&](int k) {
        const EstimatedPlaces e(estimate, strides, chunk, k);
        alignas(32) float w[4][8], v[4][8];
        for (int tap = 0; tap < 4; ++tap) {
            simd::store(w[tap], e.w[tap]);
            simd::store(v[tap], e.v[tap]);
        }
        simd::in_memory(w);
        simd::in_memory(v);
        unsigned unsure = 0;  // four bits per pixel
        const auto two = [&](int n) {
            const auto pixel = [&](int i) {
                return estimated_pixel<Channels>(simd::displaced(first, e.places.at[i]), source.step, &w[0][i],
                                                 &v[0][i]);
            };
            const floats256 sum = simd::sums_of_parts(pixel(n), pixel(n + 1));
            const Dwords nearest = round_to_int(sum);
            unsure |= CubicEstimate::unsure(sum, nearest) << 4 * n;
            return nearest;
        };
        const Dwords a = two(0), b = two(2), c = two(4), d = two(6);
        store_pixels<Channels>(dst + k * Channels, simd::pack(a, b, c, d));
        if (Channels == 3) unsure &= 0x77777777;
        if (unsure != 0) redo(cubic, source, chunk, k, any_of_four(unsure), dst);
    });
}

// --- Lanczos ------------------------------------------------------------------------------------------

template <class T>
struct SixInARow;
template <>
struct SixInARow<std::uint16_t> {
    static ORV_INLINE void load(const std::uint16_t* p, const s64* at, doubles256* taps)
    {
        simd::four_in_a_row(p, at, taps);
        simd::two_in_a_row(p + 4, at, taps + 4);
    }
};
template <class T>
struct SixInARow {
    static ORV_INLINE void load(const T* p, const s64* at, doubles256* taps)
    {
        doubles256 last[4];
        simd::four_in_a_row(p, at, taps);
        simd::four_in_a_row(p + 2, at, last);
        taps[4] = last[2];
        taps[5] = last[3];
    }
};

ORV_INLINE doubles256 sum_of_six(const doubles256* w, const doubles256* p)
{
    doubles256 sum = w[0] * p[0];
    for (int k = 1; k < 6; ++k) sum = sum + w[k] * p[k];
    return sum;
}

// Fractions of 0 leave one tap, which is not done here.
ORV_INLINE bool six_taps(doubles256 f, doubles256 g)
{
    return !any(equal(f, simd::splat<doubles256>(0)) | equal(g, simd::splat<doubles256>(0)));
}

template <class T>
ORV_INLINE void many_of_one_channel(const Lanczos<T, 1>& lanczos, const Source<T, 1>& source, const Chunk& chunk,
                                    int begin, int end, T* dst)
{
    const auto strides = strides_of(source);
    for_each_step<4>(begin, end, [&](int k) {
        const FourWindows<2> places(strides, chunk, k);
        if (!six_taps(places.f, places.g)) {
            for (int n = k; n < k + 4; ++n) lanczos.one(source, chunk.x[n], chunk.y[n], dst + n);
            return;
        }
        doubles256 w[6], v[6], h[6];
        lanczos_weights(places.f, w);
        lanczos_weights(places.g, v);
        for (int row = 0; row < 6; ++row) {
            doubles256 taps[6];
            SixInARow<T>::load(row_of(source.image, source.step, row), places.at, taps);
            h[row] = sum_of_six(w, taps);
        }
        simd::store_as(dst + k, sum_of_six(v, h));
    });
}

// Lanes are channels here.
template <int Channels>
ORV_INLINE doubles256 lanczos_pixel(const std::uint8_t* top, int step, const double* w, const double* v)
{
    doubles256 sum;
    for (int row = 0; row < 6; ++row) {
        const std::uint8_t* const p = row_of(top, step, row);
        doubles256 h = simd::load_as<doubles256>::from(p) * simd::splat_at<doubles256>(w);
        for (int k = 1; k < 6; ++k) {
            h = h + simd::load_as<doubles256>::from(p + k * Channels) * simd::splat_at<doubles256>(w + 4 * k);
        }
        const doubles256 term = h * simd::splat_at<doubles256>(v + 4 * row);
        sum = row == 0 ? term : sum + term;
    }
    return sum;
}

template <int Channels>
ORV_INLINE void many_of_channels(const Lanczos<std::uint8_t, Channels>& lanczos,
                                 const Source<std::uint8_t, Channels>& source, const Chunk& chunk, int begin, int end,
                                 std::uint8_t* dst)
{
    const auto strides = strides_of(source);
    for_each_step<4>(begin, end, [&](int k) {
        const FourWindows<2> places(strides, chunk, k);
        if (!six_taps(places.f, places.g)) {
            for (int n = k; n < k + 4; ++n) lanczos.one(source, chunk.x[n], chunk.y[n], dst + n * Channels);
            return;
        }
        doubles256 weights[6];
        alignas(32) double w[6][4], v[6][4];
        lanczos_weights(places.f, weights);
        for (int tap = 0; tap < 6; ++tap) simd::store(w[tap], weights[tap]);
        lanczos_weights(places.g, weights);
        for (int tap = 0; tap < 6; ++tap) simd::store(v[tap], weights[tap]);
        simd::in_memory(w);
        simd::in_memory(v);
        for (int n = 0; n < 4; ++n) {
            std::uint8_t pixel[4];
            simd::store_as(pixel, lanczos_pixel<Channels>(simd::displaced(source.image, places.at[n]), source.step,
                                                          &w[0][n], &v[0][n]));
            __builtin_memcpy(dst + (k + n) * Channels, pixel, Channels);
        }
    });
}

template <template <class, int> class Interpolation, class T, int Channels>
ORV_INLINE void many(const Interpolation<T, Channels>& interpolation, const Source<T, Channels>& source,
                     const Chunk& chunk, int begin, int end, T* dst)
{
    if constexpr (Channels == 1)
        many_of_one_channel(interpolation, source, chunk, begin, end, dst);
    else
        many_of_channels(interpolation, source, chunk, begin, end, dst);
}

constexpr int kLeastRun = 8;

#else

template <class T, int Channels>
class MapPicker {
public:
    ORV_INLINE explicit MapPicker(const Source<T, Channels>&) {}
    ORV_INLINE bool pick(const float*, const float*, T*) const { return false; }
};

template <class Interpolation, class T, int Channels>
ORV_INLINE void many(const Interpolation&, const Source<T, Channels>&, const Chunk&, int, int, T*)
{
}

constexpr int kLeastRun = Chunk::kMost + 1;  // none is that long

#endif

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
