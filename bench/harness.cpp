#include "harness.h"

#include <immintrin.h>
#include <sys/mman.h>

#include <cstdlib>
#include <opencv2/core.hpp>
#include <random>
#include <set>

namespace bench {

namespace {

std::set<Image*>& images()
{
    static std::set<Image*> all;
    return all;
}

void fill_with_noise(const Image& image)
{
    std::mt19937 generator(1);
    auto* const words = image.as<std::uint32_t>();
    const std::size_t count = static_cast<std::size_t>(image.step()) * static_cast<std::size_t>(image.height()) / 4;
    for (std::size_t i = 0; i < count; ++i) words[i] = static_cast<std::uint32_t>(generator());
}

}  // namespace

Image::Image(int side, int pixel_bytes, Fill fill)
    : fill_(fill != nullptr ? fill : fill_with_noise), row_bytes_(side * pixel_bytes), height_(side)
{
    static int made = 0;
    if (made == 0) {
        struct sigaction action = {};
        action.sa_sigaction = touched;
        action.sa_flags = SA_SIGINFO;
        sigaction(SIGSEGV, &action, nullptr);
    }
    step_ = (row_bytes_ + 63) & ~63;
    memory_bytes_ = static_cast<std::size_t>(step_) * static_cast<std::size_t>(side) + 2 * 4096;
    void* const p = mmap(nullptr, memory_bytes_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (p == MAP_FAILED) std::abort();
    memory_ = static_cast<unsigned char*>(p);
    data_ = memory_ + made++ % 7 * 576;
    images().insert(this);
}

Image::~Image()
{
    images().erase(this);
    munmap(memory_, memory_bytes_);
}

// The handler of access violations. One outside the images is a fault and strikes again without it.
void Image::touched(int, siginfo_t* info, void*)
{
    auto* const address = static_cast<unsigned char*>(info->si_addr);
    for (Image* const image : images()) {
        if (address < image->memory_ || address >= image->memory_ + image->memory_bytes_) continue;
        mprotect(image->memory_, image->memory_bytes_, PROT_READ | PROT_WRITE);
        image->fill_(*image);
        return;
    }
    signal(SIGSEGV, SIG_DFL);
}

void Image::release_all()
{
    for (Image* const image : images()) {
        madvise(image->memory_, image->memory_bytes_, MADV_DONTNEED);
        mprotect(image->memory_, image->memory_bytes_, PROT_NONE);
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

Image::Fill floats(std::function<float(unsigned noise, int y, int x)> value)
{
    return [=](const Image& image) {
        unsigned state = 1;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.row_bytes() / 4; ++x) {
                state = state * 1664525u + 1013904223u;
                image.row<float>(y)[x] = value(state, y, x);
            }
        }
    };
}

Image::Fill floats_between(float low, float high)
{
    const float width = (high - low) * 0x1p-32f;
    return floats([=](unsigned noise, int, int) { return low + width * static_cast<float>(noise); });
}

void limit(std::initializer_list<const Image*> sources, const Image* destination)
{
    const Image* const a = sources.size() > 0 ? sources.begin()[0] : destination;
    const Image* const b = sources.size() > 1 ? sources.begin()[1] : a;
    const Image* const d = destination != nullptr ? destination : a;
    for (int y = 0; y < d->height(); ++y) {
        const unsigned char* const pa = a->row<unsigned char>(y);
        const unsigned char* const pb = b->row<unsigned char>(y);
        unsigned char* const pd = d->row<unsigned char>(y);
        const int n = a->row_bytes() < d->row_bytes() ? a->row_bytes() : d->row_bytes();
        if (destination == nullptr)
            sources.size() > 1 ? stream<2, false>(pa, pb, pd, n) : stream<1, false>(pa, pb, pd, n);
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
    const std::string row = operation + "/" + size;
    benchmark::RegisterBenchmark((row + "/" + who).c_str(), [row, call](benchmark::State& state) {
        static std::string current;
        if (row != current) Image::release_all();
        current = row;
        call();
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
