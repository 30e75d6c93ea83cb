// The largest errors of the elementary functions: over every float for functions of one float, over random
// arguments else. Prints a table in Markdown.
//
//     accuracy [step [random arguments]]
//
// With a step above 1 only every so many-th float is tried. The oracle is the C library in double for float
// results, which leaves an uncertainty of 2^-28 units, and in long double for double results.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "image/float_elementary.h"
#include "signal/elementary.h"

namespace {

constexpr int kBlock = 4096;

struct Worst {
    double error = 0, at = 0, at2 = 0;
    void note(double e, double x, double x2 = 0)
    {
        if (e > error || std::isnan(e)) error = e, at = x, at2 = x2;
    }
};

template <class T, class Exact>
double ulps(Exact exact, T got)
{
    if (std::isnan(exact) && std::isnan(got)) return 0;
    if (static_cast<T>(exact) == got && std::isinf(got)) return 0;
    int exponent;
    std::frexp(exact, &exponent);
    if (exponent < std::numeric_limits<T>::min_exponent) exponent = std::numeric_limits<T>::min_exponent;
    return static_cast<double>(std::fabs(got - exact) / std::ldexp(Exact{1}, exponent - std::numeric_limits<T>::digits));
}

template <class T, class Exact>
double relative(Exact exact, T got)
{
    if (std::isnan(exact) && std::isnan(got)) return 0;
    if (static_cast<T>(exact) == got || std::fabs(exact) < std::numeric_limits<T>::min()) return 0;
    return static_cast<double>(std::fabs((got - exact) / exact));
}

void row(const char* name, const char* unit, const Worst& worst)
{
    if (unit[0] == 'u') std::printf("| %s | %.6f ulp | %a |\n", name, worst.error, worst.at);
    else std::printf("| %s | 2^%.2f | %a |\n", name, std::log2(worst.error), worst.at);
    std::fflush(stdout);
}

// Calls visit(x, n) with blocks of floats of all bit patterns between two.
template <class Visit>
void each_float(std::uint32_t first, std::uint32_t last, std::uint32_t step, Visit visit)
{
    std::vector<float> x(kBlock);
    int n = 0;
    for (std::uint64_t b = first; b <= last; b += step) {
        const std::uint32_t word = static_cast<std::uint32_t>(b);
        std::memcpy(&x[static_cast<std::size_t>(n)], &word, 4);
        if (++n == kBlock || b + step > last) visit(x.data(), n), n = 0;
    }
}

template <class Kernel, class Reference, class Metric>
Worst worst_float(std::uint32_t first, std::uint32_t last, std::uint32_t step, Kernel kernel, Reference reference, Metric metric)
{
    Worst worst;
    std::vector<float> y(kBlock);
    each_float(first, last, step, [&](const float* x, int n) {
        kernel(x, y.data(), n);
        for (int i = 0; i < n; ++i) worst.note(metric(reference(double{x[i]}), y[static_cast<std::size_t>(i)]), x[i]);
    });
    return worst;
}

template <class Kernel, class Reference, class Metric>
Worst worst_double(double low, double high, bool logarithmic, long count, Kernel kernel, Reference reference, Metric metric)
{
    Worst worst;
    std::mt19937_64 g(1);
    std::uniform_real_distribution<double> range(low, high);
    std::vector<double> x(kBlock), y(kBlock);
    for (long done = 0; done < count; done += kBlock) {
        for (double& v : x) v = logarithmic ? std::exp2(range(g)) : range(g);
        kernel(x.data(), y.data(), kBlock);
        for (std::size_t i = 0; i < kBlock; ++i) worst.note(metric(reference(static_cast<long double>(x[i])), y[i]), x[i]);
    }
    return worst;
}

}  // namespace

int main(int argc, char** argv)
{
    const std::uint32_t step = argc > 1 ? static_cast<std::uint32_t>(std::atol(argv[1])) : 1;
    const long count = argc > 2 ? std::atol(argv[2]) : 1000000000;
    const std::uint32_t all = 0xFFFFFFFF, positive = 0x7F7FFFFF, normal = 0x00800000;
    const auto exponential = [](auto v) { return std::exp(v); };
    const auto logarithm = [](auto v) { return std::log(v); };
    const auto sine = [](auto v) { return std::sin(v); };
    const auto cosine = [](auto v) { return std::cos(v); };
    const auto ulps_f = [](double exact, float got) { return ulps(exact, got); };
    const auto relative_f = [](double exact, float got) { return relative(exact, got); };
    const auto ulps_d = [](long double exact, double got) { return ulps(exact, got); };
    const auto relative_d = [](long double exact, double got) { return relative(exact, got); };
    std::vector<float> other(kBlock);
    std::vector<double> other_d(kBlock);

    std::printf("| function | largest error | at |\n|---|---|---|\n");
    row("Ln_32f_C1I", "ulp", worst_float(1, positive, step, [](const float* x, float* y, int n) {
            orv::orv_Ln_32f_C1(x, 4 * n, y, 4 * n, {n, 1}); }, logarithm, ulps_f));
    // Below -87.3365478515625, the image's exponential is zero by definition.
    const auto image_exp = [](const float* x, float* y, int n) { orv::orv_Exp_32f_C1(x, 4 * n, y, 4 * n, {n, 1}); };
    Worst both = worst_float(0, 0x7F800000, step, image_exp, exponential, ulps_f);
    const Worst negative = worst_float(0x80000000, 0xC2AEAC4F, step, image_exp, exponential, ulps_f);
    row("Exp_32f_C1", "ulp", both.error > negative.error ? both : negative);
    row("Exp_32f", "ulp", worst_float(0, all, step, orv::orv_Exp_32f, exponential, ulps_f));
    row("Sin_32f_A11", "relative", worst_float(0, all, step, orv::orv_Sin_32f_A11, sine, relative_f));
    row("Cos_32f_A11", "relative", worst_float(0, all, step, orv::orv_Cos_32f_A11, cosine, relative_f));
    row("SinCos_32f_A11, sine", "relative", worst_float(0, all, step, [&](const float* x, float* y, int n) {
            orv::orv_SinCos_32f_A11(x, y, other.data(), n); }, sine, relative_f));
    row("SinCos_32f_A11, cosine", "relative", worst_float(0, all, step, [&](const float* x, float* y, int n) {
            orv::orv_SinCos_32f_A11(x, other.data(), y, n); }, cosine, relative_f));
    row("Exp_32f_A21 (normal results)", "relative", worst_float(0, all, step, orv::orv_Exp_32f_A21, exponential, relative_f));
    row("Ln_32f_A21", "relative", worst_float(normal, positive, step, orv::orv_Ln_32f_A21, logarithm, relative_f));

    row("Exp_64f", "ulp", worst_double(-708, 709.7, false, count, orv::orv_Exp_64f, exponential, ulps_d));
    row("Exp_64f, +-1", "ulp", worst_double(-1, 1, false, count, orv::orv_Exp_64f, exponential, ulps_d));
    row("Ln_64f", "ulp", worst_double(-1074, 1024, true, count, orv::orv_Ln_64f, logarithm, ulps_d));
    row("Ln_64f, 0.5 to 2", "ulp", worst_double(0.5, 2, false, count, orv::orv_Ln_64f, logarithm, ulps_d));
    const auto sine_50 = [&](const double* x, double* y, int n) { orv::orv_SinCos_64f_A50(x, y, other_d.data(), n); };
    const auto cosine_50 = [&](const double* x, double* y, int n) { orv::orv_SinCos_64f_A50(x, other_d.data(), y, n); };
    row("SinCos_64f_A50, sine to 10", "relative", worst_double(0, 10, false, count, sine_50, sine, relative_d));
    row("SinCos_64f_A50, cosine to 10", "relative", worst_double(0, 10, false, count, cosine_50, cosine, relative_d));
    row("SinCos_64f_A50, sine 2^-300 to 2^17", "relative", worst_double(-300, 17, true, count, sine_50, sine, relative_d));
    row("SinCos_64f_A50, cosine 2^17 to 2^62", "relative", worst_double(17, 62, true, count / 10, cosine_50, cosine, relative_d));

    Worst angle, length;
    std::mt19937_64 g(2);
    std::vector<float> y(kBlock), x(kBlock), a(kBlock), l(kBlock);
    for (long done = 0; done < count; done += kBlock) {
        for (std::size_t i = 0; i < kBlock; ++i) {
            const std::uint64_t word = g();
            std::memcpy(&y[i], &word, 4);
            std::memcpy(&x[i], reinterpret_cast<const char*>(&word) + 4, 4);
            if (i % 2 == 0) x[i] = static_cast<float>(word >> 40) + 1, y[i] = static_cast<float>(word & 0xFFFFFF);
        }
        orv::orv_Atan2_32f_A24(y.data(), x.data(), a.data(), kBlock);
        orv::orv_Hypot_32f_A24(y.data(), x.data(), l.data(), kBlock);
        for (std::size_t i = 0; i < kBlock; ++i) {
            if (std::isnan(y[i]) || std::isnan(x[i])) continue;
            angle.note(ulps(std::atan2(double{y[i]}, double{x[i]}), a[i]), y[i], x[i]);
            length.note(ulps(std::sqrt(static_cast<long double>(y[i]) * y[i] + static_cast<long double>(x[i]) * x[i]), l[i]), y[i], x[i]);
        }
    }
    row("Atan2_32f_A24", "ulp", angle);
    row("Hypot_32f_A24", "ulp", length);
}
