// The largest errors of the elementary functions: over every float for functions of one float, over random
// arguments else. Prints a table in Markdown.
//
//     accuracy [step [random arguments [filter]]]
//
// With a step above 1 only every so many-th float is tried; with a filter, only functions that have it in
// their name. The oracle is the C library in double for float results, which leaves an uncertainty of 2^-28
// units, and in long double for double results.
#include <quadmath.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "image/arithmetic/float_elementary.h"
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
    return static_cast<double>(std::fabs(got - exact) /
                               std::ldexp(Exact{1}, exponent - std::numeric_limits<T>::digits));
}

template <class T, class Exact>
double relative(Exact exact, T got)
{
    if (std::isnan(exact) && std::isnan(got)) return 0;
    if (exact == got || (std::isinf(got) && static_cast<T>(exact) == got)) return 0;
    return static_cast<double>(std::fabs((got - exact) / exact));
}

// Pairs of all bit patterns, and of integers up to 2^24.
template <class Kernel, class Reference>
Worst worst_pair(long count, Kernel kernel, Reference reference)
{
    Worst worst;
    std::mt19937_64 g(2);
    std::vector<float> y(kBlock), x(kBlock), result(kBlock);
    for (long done = 0; done < count; done += kBlock) {
        for (std::size_t i = 0; i < kBlock; ++i) {
            const std::uint64_t word = g();
            std::memcpy(&y[i], &word, 4);
            std::memcpy(&x[i], reinterpret_cast<const char*>(&word) + 4, 4);
            if (i % 2 == 0) x[i] = static_cast<float>(word >> 40) + 1, y[i] = static_cast<float>(word & 0xFFFFFF);
        }
        kernel(y.data(), x.data(), result.data(), kBlock);
        for (std::size_t i = 0; i < kBlock; ++i) {
            if (std::isnan(y[i]) || std::isnan(x[i])) continue;
            worst.note(ulps(reference(double{y[i]}, double{x[i]}), result[i]), y[i], x[i]);
        }
    }
    return worst;
}

// Prints what measure() finds, if the function is wanted.
struct Table {
    const char* filter;

    bool wants(const char* name) const { return std::strstr(name, filter) != nullptr; }
    template <class Measure>
    void row(const char* name, const char* unit, Measure measure) const
    {
        if (wants(name)) print(name, unit, measure());
    }
    static void print(const char* name, const char* unit, const Worst& worst)
    {
        if (unit[0] == 'u') std::printf("| %s | %.6f ulp | %a |\n", name, worst.error, worst.at);
        else std::printf("| %s | 2^%.2f | %a |\n", name, std::log2(worst.error), worst.at);
        std::fflush(stdout);
    }
};

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
Worst worst_float(std::uint32_t first, std::uint32_t last, std::uint32_t step, Kernel kernel, Reference reference,
                  Metric metric)
{
    Worst worst;
    std::vector<float> y(kBlock);
    each_float(first, last, step, [&](const float* x, int n) {
        kernel(x, y.data(), n);
        for (int i = 0; i < n; ++i) worst.note(metric(reference(double{x[i]}), y[static_cast<std::size_t>(i)]), x[i]);
    });
    return worst;
}

// The functions with 11 bits, of every float and its negative: one reference for all four.
struct WorstAngles {
    Worst sine, cosine, both_sine, both_cosine;

    void visit(const float* x, int n, double sign)
    {
        const std::size_t size = static_cast<std::size_t>(n);
        std::vector<float> y(4 * size);
        float *const s = y.data(), *const c = s + size, *const bs = c + size, *const bc = bs + size;
        orv::orv_Sin_32f_A11(x, s, n);
        orv::orv_Cos_32f_A11(x, c, n);
        orv::orv_SinCos_32f_A11(x, bs, bc, n);
        for (int i = 0; i < n; ++i) {
            const double exact_sine = sign * sines[i], exact_cosine = cosines[i];
            sine.note(relative(exact_sine, s[i]), x[i]);
            cosine.note(relative(exact_cosine, c[i]), x[i]);
            both_sine.note(relative(exact_sine, bs[i]), x[i]);
            both_cosine.note(relative(exact_cosine, bc[i]), x[i]);
        }
    }
    double sines[kBlock], cosines[kBlock];
};

void angles_11_bits(std::uint32_t step)
{
    WorstAngles worst;
    each_float(0, 0x7FFFFFFF, step, [&](const float* x, int n) {
        float negative[kBlock];
        for (int i = 0; i < n; ++i) {
            worst.sines[i] = std::sin(double{x[i]});
            worst.cosines[i] = std::cos(double{x[i]});
            negative[i] = -x[i];
        }
        worst.visit(x, n, 1);
        worst.visit(negative, n, -1);
    });
    Table::print("Sin_32f_A11", "relative", worst.sine);
    Table::print("Cos_32f_A11", "relative", worst.cosine);
    Table::print("SinCos_32f_A11, sine", "relative", worst.both_sine);
    Table::print("SinCos_32f_A11, cosine", "relative", worst.both_cosine);
}

template <class Kernel, class Reference, class Metric>
Worst worst_double(double low, double high, bool logarithmic, long count, Kernel kernel, Reference reference,
                   Metric metric)
{
    Worst worst;
    std::mt19937_64 g(1);
    std::uniform_real_distribution<double> range(low, high);
    std::vector<double> x(kBlock), y(kBlock);
    for (long done = 0; done < count; done += kBlock) {
        for (double& v : x) v = logarithmic ? std::exp2(range(g)) : range(g);
        kernel(x.data(), y.data(), kBlock);
        for (std::size_t i = 0; i < kBlock; ++i)
            worst.note(metric(reference(static_cast<long double>(x[i])), y[i]), x[i]);
    }
    return worst;
}

}  // namespace

int main(int argc, char** argv)
{
    const std::uint32_t step = argc > 1 ? static_cast<std::uint32_t>(std::atol(argv[1])) : 1;
    const long count = argc > 2 ? std::atol(argv[2]) : 1000000000;
    const Table table{argc > 3 ? argv[3] : ""};
    const std::uint32_t all = 0xFFFFFFFF, positive = 0x7F7FFFFF, normal = 0x00800000;
    const auto exponential = [](auto v) { return std::exp(v); };
    const auto logarithm = [](auto v) { return std::log(v); };
    const auto sine = [](auto v) { return std::sin(v); };
    const auto cosine = [](auto v) { return std::cos(v); };
    const auto ulps_f = [](double exact, float got) { return ulps(exact, got); };
    const auto relative_f = [](double exact, float got) { return relative(exact, got); };
    const auto ulps_d = [](long double exact, double got) { return ulps(exact, got); };
    const auto relative_d = [](long double exact, double got) { return relative(exact, got); };
    const auto doubles_ulps = [&](const char* name, double low, double high, bool logarithmic, auto kernel,
                                  auto reference) {
        table.row(name, "ulp", [&] { return worst_double(low, high, logarithmic, count, kernel, reference, ulps_d); });
    };
    const auto angles = [&](const char* name, double low, double high, bool logarithmic, auto kernel, auto reference) {
        table.row(name, "relative",
                  [&] { return worst_double(low, high, logarithmic, count, kernel, reference, relative_d); });
    };
    std::vector<double> other_d(kBlock);

    std::printf("| function | largest error | at |\n|---|---|---|\n");
    const auto image_ln = [](const float* x, float* y, int n) { orv::orv_Ln_32f_C1(x, 4 * n, y, 4 * n, {n, 1}); };
    const auto image_exp = [](const float* x, float* y, int n) { orv::orv_Exp_32f_C1(x, 4 * n, y, 4 * n, {n, 1}); };
    table.row("Ln_32f_C1I", "ulp", [&] { return worst_float(1, positive, step, image_ln, logarithm, ulps_f); });
    table.row("Exp_32f_C1", "ulp", [&] {
        // Below -87.3365478515625, the image's exponential is zero by definition.
        const Worst rising = worst_float(0, 0x7F800000, step, image_exp, exponential, ulps_f);
        const Worst falling = worst_float(0x80000000, 0xC2AEAC4F, step, image_exp, exponential, ulps_f);
        return rising.error > falling.error ? rising : falling;
    });
    table.row("Exp_32f", "ulp", [&] { return worst_float(0, all, step, orv::orv_Exp_32f, exponential, ulps_f); });
    if (table.wants("SinCos_32f_A11")) angles_11_bits(step);
    table.row("Exp_32f_A21 (normal results)", "relative", [&] {
        const Worst rising = worst_float(0, 0x7F800000, step, orv::orv_Exp_32f_A21, exponential, relative_f);
        const Worst falling = worst_float(0x80000000, 0xC2AEAC4F, step, orv::orv_Exp_32f_A21, exponential, relative_f);
        return rising.error > falling.error ? rising : falling;
    });
    table.row("Ln_32f_A21", "relative", [&] {
        return worst_float(normal, positive, step, orv::orv_Ln_32f_A21, logarithm, relative_f);
    });

    doubles_ulps("Exp_64f", -708, 709.7, false, orv::orv_Exp_64f, exponential);
    doubles_ulps("Exp_64f, +-1", -1, 1, false, orv::orv_Exp_64f, exponential);
    doubles_ulps("Ln_64f", -1074, 1024, true, orv::orv_Ln_64f, logarithm);
    doubles_ulps("Ln_64f, 0.5 to 2", 0.5, 2, false, orv::orv_Ln_64f, logarithm);
    const auto sine_50 = [&](const double* x, double* y, int n) { orv::orv_SinCos_64f_A50(x, y, other_d.data(), n); };
    const auto cosine_50 = [&](const double* x, double* y, int n) { orv::orv_SinCos_64f_A50(x, other_d.data(), y, n); };
    angles("SinCos_64f_A50, sine to 10", 0, 10, false, sine_50, sine);
    angles("SinCos_64f_A50, cosine to 10", 0, 10, false, cosine_50, cosine);
    angles("SinCos_64f_A50, sine 2^-300 to 2^17", -300, 17, true, sine_50, sine);
    // Where only quadruple precision has all the digits of an angle, a hundredth as many.
    const auto huge = [&](const char* name, auto kernel, auto reference) {
        const auto exact = [reference](long double x) { return static_cast<long double>(reference(x)); };
        table.row(name, "relative",
                  [&] { return worst_double(17, 1024, true, count / 100, kernel, exact, relative_d); });
    };
    huge("SinCos_64f_A50, sine 2^17 to 2^1024", sine_50, sinq);
    huge("SinCos_64f_A50, cosine 2^17 to 2^1024", cosine_50, cosq);

    table.row("Atan2_32f_A24", "ulp", [&] {
        return worst_pair(count, orv::orv_Atan2_32f_A24, [](double y, double x) { return std::atan2(y, x); });
    });
    table.row("Hypot_32f_A24", "ulp", [&] {
        return worst_pair(count, orv::orv_Hypot_32f_A24, [](double y, double x) {
            return std::sqrt(static_cast<long double>(y) * y + static_cast<long double>(x) * x);
        });
    });
}
