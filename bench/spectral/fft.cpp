// Transforms against FFTW, planned by measuring for one thread, on arrays that stay in their place.
// "limit" loads the source and stores the result once.
#include <fftw3.h>

#include <cmath>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "FFT2Wrapper.h"
#include "FFTWrapper.h"
#include "harness.h"
#include "spectral/fft.h"

namespace {

std::vector<std::shared_ptr<float>> kept;  // arrays that plans point to

// Floats on 64 bytes, filled with noise.
std::shared_ptr<float> floats(std::size_t n)
{
    std::shared_ptr<float> p(static_cast<float*>(std::aligned_alloc(64, (n * sizeof(float) + 4095) / 4096 * 4096)),
                             std::free);
    std::mt19937 g(1);
    for (std::size_t i = 0; i < n; ++i) p.get()[i] = std::uniform_real_distribution<float>(-1, 1)(g);
    return p;
}

struct Plan {
    explicit Plan(int order)
    {
        int spec_bytes, init_bytes, work_bytes;
        orv::orv_fft_sizes(order, 2, 1, &spec_bytes, &init_bytes, &work_bytes);
        memory = floats(static_cast<std::size_t>(spec_bytes) / 4 + 1);
        work = floats(static_cast<std::size_t>(work_bytes) / 4 + 1);
        const auto init = floats(static_cast<std::size_t>(init_bytes) / 4 + 1);
        orv::orv_FftInit(&spec, order, 2, 1, bytes(memory), bytes(init));
    }
    static unsigned char* bytes(const std::shared_ptr<float>& p) { return reinterpret_cast<unsigned char*>(p.get()); }
    std::shared_ptr<float> memory, work;
    orv::FftSpec* spec = nullptr;
};

// Plans take seconds to measure: each is made when its benchmark runs first.
using MakePlan = std::function<fftwf_plan()>;
void add_fftw(const std::string& operation, const std::string& size, MakePlan make, std::function<void(fftwf_plan)> run)
{
    auto plan = std::make_shared<fftwf_plan>(nullptr);
    benchmark::RegisterBenchmark((operation + "/" + size + "/fftw").c_str(), [=](benchmark::State& state) {
        if (*plan == nullptr) *plan = make();
        for (auto _ : state) {
            run(*plan);
            benchmark::ClobberMemory();
        }
    });
}

void forward(int order)
{
    const std::size_t n = std::size_t{1} << order;
    const std::string size = "2^" + std::to_string(order);
    auto src = floats(n), dst = floats(n + 2);
    auto plan = std::make_shared<Plan>(order);
    bench::add("forward", size, "orvane", [=] {
        orv::orv_FftForward_32f(src.get(), dst.get(), plan->spec, Plan::bytes(plan->work));
    });
    auto src2 = floats(n), dst2 = floats(n + 2);
    kept.insert(kept.end(), {src2, dst2});
    add_fftw(
        "forward", size,
        [=] {
            return fftwf_plan_dft_r2c_1d(static_cast<int>(n), src2.get(), reinterpret_cast<fftwf_complex*>(dst2.get()),
                                         FFTW_MEASURE);
        },
        fftwf_execute);
    bench::add("forward", size, "limit", [=] { std::memcpy(dst.get(), src.get(), n * 4); });
    if (order % 5 == 0) bench::add("init", size, "orvane", [=] { Plan again(order); });
}

void plane(int side)
{
    const std::size_t n = static_cast<std::size_t>(side) * static_cast<std::size_t>(side);
    const int step = side * 4;
    const std::string size = bench::square(side);
    auto a = floats(n), b = floats(n), c = floats(n);
    auto object = std::make_shared<FFT2Wrapper>(side, side, false);
    bench::add("forward 2-D", size, "orvane", [=] { object->Forward(a.get(), step, b.get(), step, side, side); });
    auto spectrum = floats(n + 2 * static_cast<std::size_t>(side));
    auto* const complex = reinterpret_cast<fftwf_complex*>(spectrum.get());
    kept.insert(kept.end(), {c, spectrum});
    add_fftw(
        "forward 2-D", size, [=] { return fftwf_plan_dft_r2c_2d(side, side, c.get(), complex, FFTW_MEASURE); },
        fftwf_execute);
    bench::add("forward 2-D", size, "limit", [=] { std::memcpy(b.get(), a.get(), n * 4); });
    bench::add("inverse 2-D", size, "orvane", [=] { object->Inverse(b.get(), step, a.get(), step, side, side); });
    add_fftw("inverse 2-D", size, [=] {
        fftwf_plan plan = fftwf_plan_dft_c2r_2d(side, side, complex, c.get(), FFTW_MEASURE);
        // The inverse destroys its source: zeros stay zeros, and cost the same.
        std::memset(spectrum.get(), 0, (n + 2 * static_cast<std::size_t>(side)) * 4);
        return plan;
    }, fftwf_execute);
    bench::add("inverse 2-D", size, "limit", [=] { std::memcpy(b.get(), a.get(), n * 4); });
}

void power_spectrum(int n)
{
    const std::size_t count = static_cast<std::size_t>(n);
    auto signal = floats(count), window = floats(count), out = floats(count);
    auto object = std::make_shared<FFTWrapper>(n);
    bench::add("PsdFFT", std::to_string(n), "orvane",
               [=] { object->PsdFFT(signal.get(), window.get(), out.get(), n); });
    auto centred = floats(count), spectrum = floats(count + 2);
    add_fftw("PsdFFT", std::to_string(n), [=] {
        return fftwf_plan_dft_r2c_1d(n, centred.get(), reinterpret_cast<fftwf_complex*>(spectrum.get()), FFTW_MEASURE);
    }, [=](fftwf_plan peer) {
        double sum = 0;
        for (int i = 0; i < n; ++i) sum += signal.get()[i];
        const float mean = static_cast<float>(sum / n);
        for (int i = 0; i < n; ++i) centred.get()[i] = window.get()[i] * (signal.get()[i] - mean);
        fftwf_execute(peer);
        for (int k = 0; k <= n / 2; ++k) {
            const float re = spectrum.get()[2 * k], im = spectrum.get()[2 * k + 1];
            out.get()[k] = re * re + im * im;
        }
        for (int k = 1; k < n / 2; ++k) out.get()[n - k] = out.get()[k];
    });
}

const bool registered = [] {
    for (int order = 4; order <= 20; ++order) forward(order);
    for (int side = 16; side <= 2048; side *= 2) plane(side);
    power_spectrum(256);
    power_spectrum(1024);
    power_spectrum(16384);
    return true;
}();

}  // namespace
