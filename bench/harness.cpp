#include "harness.h"

#include <immintrin.h>

#include <cstring>
#include <opencv2/core.hpp>
#include <random>

namespace bench {

Image::Image(int side, int pixel_bytes) : row_bytes_(side * pixel_bytes), height_(side)
{
    static int images = 0;
    step_ = (row_bytes_ + 63) & ~63;
    const std::size_t bytes = static_cast<std::size_t>(step_) * static_cast<std::size_t>(side);
    memory_.reset(new unsigned char[bytes + 4096 + 64]);
    const auto address = reinterpret_cast<std::uintptr_t>(memory_.get());
    const std::uintptr_t offset = static_cast<std::uintptr_t>(images++ % 7) * 576;
    data_ = reinterpret_cast<unsigned char*>(((address + 63) & ~std::uintptr_t{63}) + offset);
    std::mt19937 generator(1);
    for (std::size_t i = 0; i + 4 <= bytes; i += 4) {
        const std::uint32_t word = generator();
        std::memcpy(data_ + i, &word, 4);
    }
}

namespace {

template <int Sources, bool Stores>
void stream(const unsigned char* a, const unsigned char* b, unsigned char* d, int n)
{
    __m256i sum = _mm256_setzero_si256();
    for (int i = 0; i < n; i += 32) {
        __m256i v = sum;
        if (Sources > 0) v = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(a + i));
        if (Sources > 1) v = _mm256_or_si256(v, _mm256_loadu_si256(reinterpret_cast<const __m256i*>(b + i)));
        if (Stores) _mm256_storeu_si256(reinterpret_cast<__m256i*>(d + i), v);
        else sum = _mm256_or_si256(sum, v);
    }
    if (!Stores) benchmark::DoNotOptimize(sum);
}

}  // namespace

void limit(std::initializer_list<const Image*> sources, const Image* destination)
{
    const Image* const a = sources.size() > 0 ? sources.begin()[0] : destination;
    const Image* const b = sources.size() > 1 ? sources.begin()[1] : a;
    const Image* const d = destination != nullptr ? destination : a;
    for (int y = 0; y < d->height(); ++y) {
        const unsigned char* const pa = a->as<unsigned char>() + static_cast<std::ptrdiff_t>(a->step()) * y;
        const unsigned char* const pb = b->as<unsigned char>() + static_cast<std::ptrdiff_t>(b->step()) * y;
        unsigned char* const pd = d->as<unsigned char>() + static_cast<std::ptrdiff_t>(d->step()) * y;
        const int n = a->row_bytes() < d->row_bytes() ? a->row_bytes() : d->row_bytes();
        if (destination == nullptr) sources.size() > 1 ? stream<2, false>(pa, pb, pd, n) : stream<1, false>(pa, pb, pd, n);
        else if (sources.size() == 0) stream<0, true>(pa, pb, pd, n);
        else if (sources.size() == 1) stream<1, true>(pa, pb, pd, n);
        else stream<2, true>(pa, pb, pd, n);
        // Where one side is wider, the rest of it.
        if (d->row_bytes() > n) stream<0, true>(pa, pb, pd + n, d->row_bytes() - n);
        if (a->row_bytes() > n) stream<1, false>(pa + n, pb, pd, a->row_bytes() - n);
    }
}

void add(const std::string& operation, const std::string& size, const std::string& who, std::function<void()> call)
{
    benchmark::RegisterBenchmark((operation + "/" + size + "/" + who).c_str(), [call](benchmark::State& state) {
        for (auto _ : state) {
            call();
            benchmark::ClobberMemory();
        }
    });
}

}  // namespace bench

int main(int argc, char** argv)
{
    cv::setNumThreads(1);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
