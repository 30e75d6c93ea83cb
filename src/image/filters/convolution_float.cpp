// Convolution with float weights. Products of floats are exact in double; sums have one order, the one in which the
// pixels lie in memory.
#include "image/filters/convolution.h"

#include "image/filters/convolution_doubles.h"
#include "image/filters/filters_lanes.h"

namespace orv {
namespace convolution_float {
namespace ORV_LEVEL {
namespace {

template <class From>
using Job = Convolution<From, float, float>;

// Weights of zero leave their taps out. Found by their bits: a comparison may trap on what else may stand there.
ORV_INLINE bool counts(const float* weight)
{
    std::uint32_t bits;
    __builtin_memcpy(&bits, weight, sizeof(bits));
    return bits << 1 != 0;
}

#if ORV_HAVE_VECTORS

struct FloatStore {
    static constexpr int kVectors = kDoubleVectors, kTogether = kDoubleVectors;
    // One look at all for a NaN, which is rare.
    ORV_INLINE void store(float* to, const DoubleSums<kVectors>& sums) const
    {
        auto odd = simd::unordered(sums[0], sums[1]);
#pragma GCC unroll 8
        for (int k = 2; k < kVectors; k += 2) odd = odd | simd::unordered(sums[k], sums[k + 1]);
        const bool has_nan = simd::any(odd);
#pragma GCC unroll 8
        for (int k = 0; k < kVectors; k += 2) {
            float* const p = to + k * DoubleLanes::N;
            if (__builtin_expect(has_nan, false)) store_result(p, simd::twice<DoubleLanes>{sums[k], sums[k + 1]});
            else simd::store(p, sums[k]), simd::store(p + DoubleLanes::N, sums[k + 1]);
        }
    }
};

template <class From>
void list_taps(const Job<From>& job, DoubleTaps& taps)
{
    const auto weight = [&](int r, int c) {
        const bool inside = r >= 0 && r < job.height && counts(job.weight(r, c));
        return inside ? job.weight(r, c) : nullptr;
    };
    const auto value = [](const float* p) { return p != nullptr ? static_cast<double>(get(p)) : 0; };
    for (int r = 0; r <= job.height; ++r) {
        for (int c = 0; c < job.width; ++c) {
            const float *const above = weight(r, c), *const below = weight(r - 1, c);
            const int use = (above != nullptr ? used_above : 0) | (below != nullptr ? used_below : 0);
            taps.add(use, r, std::ptrdiff_t{c} * job.channels, value(above), value(below));
        }
    }
}

template <class From>
Status convolve(const Job<From>& job)
{
    const Strips strips = convolution_strips(job.elements(), std::ptrdiff_t{job.height} * 8);
    DoubleRows rows;
    rows.factored = false;
    return with_memory([&](WorkingMemory& memory) { lay_out(job, rows, strips.width, memory); },
                       [&] {
                           const FloatControl control;
                           list_taps(job, rows.columns);
                           convolve_strips(job, rows, strips, FloatStore{});
                       });
}

#else

template <class From>
float one(const Job<From>& job, std::ptrdiff_t y, std::ptrdiff_t i)
{
    double sum = 0;
    bool first = true;
    for (int r = 0; r < job.height; ++r) {
        const From* const row = job.source(y + r) + i;
        for (int c = 0; c < job.width; ++c) {
            if (!counts(job.weight(r, c))) continue;
            const double product = static_cast<double>(get(job.weight(r, c))) *
                                   static_cast<double>(get(row + std::ptrdiff_t{c} * job.channels));
            sum = first ? product : rounded(sum + product);
            first = false;
        }
    }
    return rounded(static_cast<float>(sum));
}

template <class From>
Status convolve(const Job<From>& job)
{
    // Has no use for it, but is to run out of memory where the others do.
    return with_memory([](WorkingMemory& memory) { memory.take<char>(1); },
                       [&] {
                           const FloatControl control;
                           for (std::ptrdiff_t y = 0; y < job.roi.height; ++y) {
                               for (std::ptrdiff_t i = 0; i < job.elements(); ++i) {
                                   store_result(job.result(y) + i, one(job, y, i));
                               }
                           }
                       });
}

#endif

template <int channels, class From>
Status filter(const From* src, int srcStep, float* dst, int dstStep, Size roi, const float* kernel, int width,
              int height, int anchorX, int anchorY)
{
    const Status bad =
        check_convolution(src, srcStep, dst, dstStep, roi, kernel, width, height, anchorX, anchorY);
    if (bad) return bad;
    return convolve(Job<From>(src, srcStep, dst, dstStep, roi, channels, kernel, width, height, anchorX, anchorY));
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define FILTER(name, From, channels)                                                                              \
    Status name(const From* src, int srcStep, float* dst, int dstStep, Size roi, const float* kernel,            \
                int kernelWidth, int kernelHeight, int anchorX, int anchorY)                                      \
    {                                                                                                             \
        return filter<channels>(src, srcStep, dst, dstStep, roi, kernel, kernelWidth, kernelHeight, anchorX, anchorY); \
    }
FILTER(Filter_32f_C1R, float, 1)
FILTER(Filter_32f_C3R, float, 3)
FILTER(Filter_8u32f_C1R, unsigned char, 1)
FILTER(Filter_16u32f_C1R, unsigned short, 1)
#undef FILTER

}  // namespace ORV_LEVEL
}  // namespace convolution_float
}  // namespace orv
