#include "spectral/image_windows.h"

#include "core/memory.h"
#include "elementwise/windows.h"
#include "simd/conversion.h"

namespace orv {
namespace image_windows {
namespace ORV_LEVEL {
namespace {

// --- Weights --------------------------------------------------------------------------------------

struct Hamming {
    static void fill(double* weights, int n)
    {
        for_hamming_weights(n, [=](int k, double weight) { weights[k] = weights[n - 1 - k] = weight; });
    }
};

struct Bartlett {
    static void fill(double* weights, int n)
    {
        for (int k = 0; k <= (n - 1) / 2; ++k) {
            weights[k] = weights[n - 1 - k] = rounded(2 * static_cast<double>(k) / static_cast<double>(n - 1));
        }
    }
};

// --- Rows -----------------------------------------------------------------------------------------

void weigh_row(const float* src, const double* weights, double weight, float* dst, std::ptrdiff_t n)
{
    std::ptrdiff_t i = 0;
    if constexpr (ORV_HAVE_VECTORS) {
        using V = simd::widest<double>;
        constexpr int N = V::N;
        const auto weighted = [&](std::ptrdiff_t k) {
            return simd::load_as<V>::from(src + k) * (simd::load<V>(weights + k) * V(weight));
        };
        for (; n - i >= 4 * N; i += 4 * N) {
            const V a = weighted(i), b = weighted(i + N), c = weighted(i + 2 * N), d = weighted(i + 3 * N);
            store(dst + i, a);
            store(dst + i + N, b);
            store(dst + i + 2 * N, c);
            store(dst + i + 3 * N, d);
        }
    }
    for (; i < n; ++i) weigh(src + i, dst + i, rounded(weights[i] * weight));
}

template <class Window>
Status apply(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    if (any_null(src, dst)) return StatusNullPointer;
    if (roi.width < 3 || roi.height < 3) return StatusBadSize;
    if (any_below_one(srcStep, dstStep)) return StatusBadStep;
    const long long count = static_cast<long long>(roi.width) + roi.height;
    auto* const weights = static_cast<double*>(orv_allocate_checked(count * static_cast<long long>(sizeof(double))));
    if (weights == nullptr) return StatusNoMemory;
    const FloatControl control;
    double* const of_rows = weights + roi.width;
    Window::fill(weights, roi.width);
    Window::fill(of_rows, roi.height);
    for (int y = 0; y < roi.height; ++y) {
        weigh_row(row_at(src, srcStep, y), weights, of_rows[y], row_at(dst, dstStep, y), roi.width);
    }
    orv_release(weights);
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status WinHamming_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    return apply<Hamming>(src, srcStep, dst, dstStep, roi);
}
Status WinBartlett_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    return apply<Bartlett>(src, srcStep, dst, dstStep, roi);
}

}  // namespace ORV_LEVEL
}  // namespace image_windows
}  // namespace orv
