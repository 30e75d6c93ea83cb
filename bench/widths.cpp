// Times a few operations through the public interface, for comparing builds: 64-bit, 32-bit, Windows.
// Prints lines "operation nanoseconds", the least of many runs.
#include <chrono>
#include <cstdio>
#include <vector>

#include "FFTWrapper.h"
#include "ImageProcessingWrapper.h"
#include "SignalProcessingWrapper.h"

namespace {

template <class F>
void measure(const char* name, F run)
{
    using Clock = std::chrono::steady_clock;
    // Short runs: of those on a busy machine some are undisturbed.
    double best = 1e30;
    int repetitions = 1;
    for (int round = 0; round < 1000;) {
        const auto start = Clock::now();
        for (int i = 0; i < repetitions; ++i) run();
        const double ns = std::chrono::duration<double, std::nano>(Clock::now() - start).count();
        if (ns < 1e5) {
            repetitions *= 2;
            continue;
        }
        if (ns / repetitions < best) best = ns / repetitions;
        ++round;
    }
    std::printf("%s %.0f\n", name, best);
}

template <class T>
struct Images {
    // 128 x 128: three of them stay in the second cache.
    static constexpr int kSide = 128, kStep = kSide * static_cast<int>(sizeof(T));
    T* a = new_one();
    T* b = new_one();
    T* d = new_one();

    static T* new_one()
    {
        T* const p = reinterpret_cast<T*>(SignalProcessingWrapper::Malloc_8u(kStep * kSide));
        for (int i = 0; i < kSide * kSide; ++i) p[i] = static_cast<T>(i % 251 + 1);
        return p;
    }
};

}  // namespace

int main()
{
    using I = ImageProcessingWrapper;
    constexpr int n = 128;
    const Images<unsigned char> u;
    const Images<unsigned short> w;
    const Images<float> f;
    measure("Add_8u_C1", [&] { I::Add_8u_C1(u.a, n, u.b, n, u.d, n, n, n, 0); });
    measure("Add_8u_C1/2", [&] { I::Add_8u_C1(u.a, n, u.b, n, u.d, n, n, n, 1); });
    measure("Mul_8u_C1/2^8", [&] { I::Mul_8u_C1(u.a, n, u.b, n, u.d, n, n, n, 8); });
    measure("Div_8u_C1", [&] { I::Div_8u_C1(u.a, n, u.b, n, u.d, n, n, n, 0); });
    measure("And_8u_C1", [&] { I::And_8u_C1(u.a, n, u.b, n, u.d, n, n, n); });
    measure("CompareLess_8u_C1", [&] { I::CompareLess_8u_C1(u.a, n, u.b, n, u.d, n, n, n); });
    measure("Convert_8u32f_C1", [&] { I::Convert_8u32f_C1(u.a, n, f.d, 4 * n, n, n); });
    measure("Add_16u_C1", [&] { I::Add_16u_C1(w.a, 2 * n, w.b, 2 * n, w.d, 2 * n, n, n, 0); });
    measure("Mul_16u_C1/2^16", [&] { I::Mul_16u_C1(w.a, 2 * n, w.b, 2 * n, w.d, 2 * n, n, n, 16); });
    measure("Div_16u_C1", [&] { I::Div_16u_C1(w.a, 2 * n, w.b, 2 * n, w.d, 2 * n, n, n, 0); });
    measure("Convert_32f16u_C1", [&] { I::Convert_32f16u_C1(f.a, 4 * n, w.d, 2 * n, n, n); });
    measure("Add_32f_C1", [&] { I::Add_32f_C1(f.a, 4 * n, f.b, 4 * n, f.d, 4 * n, n, n); });
    measure("Mul_32f_C1", [&] { I::Mul_32f_C1(f.a, 4 * n, f.b, 4 * n, f.d, 4 * n, n, n); });
    measure("Div_32f_C1", [&] { I::Div_32f_C1(f.a, 4 * n, f.b, 4 * n, f.d, 4 * n, n, n); });
    measure("ThresholdLess_32f_C1R", [&] { I::ThresholdLess_32f_C1R(f.a, 4 * n, f.d, 4 * n, n, n, 100.f); });
    measure("Exp_32f_C1", [&] { I::Exp_32f_C1(f.a, 4 * n, f.d, 4 * n, n, n); });
    for (const int length : {1024, 16384}) {
        FFTWrapper transform(length);
        std::vector<float> out(static_cast<std::size_t>(length));
        char name[32];
        std::snprintf(name, sizeof(name), "PsdFFT/%d", length);
        measure(name, [&] { transform.PsdFFT(f.a, f.b, out.data(), length); });
    }
}
