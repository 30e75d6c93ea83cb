// Roots of unity in double precision, the same bits on every system: sums and products of doubles
// only, after the angle has been reduced in integers. The caller's FloatControl gives the x87 its
// 53 bits.
#pragma once

#include <cstdint>

#include "core/float_control.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

struct Root {
    double cos, sin;
};

// cos and sin of 2 pi k / 2^order, by their Taylor series on the first octant: the terms that are left
// out are below 2^-54 of the result at pi/4.
inline Root root_of_unity(std::uint64_t k, int order)
{
    ORV_ASSERT(FloatControl::holds() && order >= 0 && order < 61);
    const std::uint64_t n = std::uint64_t{1} << order;
    k &= n - 1;
    // In eighths of 1/n, so that octants are whole numbers for every n.
    const std::uint64_t turn = k * 8;
    const int quadrant = static_cast<int>(turn / (2 * n));
    std::uint64_t r = turn % (2 * n);
    const bool swapped = r > n;
    if (swapped) r = 2 * n - r;

    const double x = static_cast<double>(static_cast<std::int64_t>(r)) /
                     static_cast<double>(static_cast<std::int64_t>(n)) * 0.78539816339744830962;  // pi / 4
    const double z = x * x;
    static const double s[] = {-1.0 / 1307674368000.0, 1.0 / 6227020800.0, -1.0 / 39916800.0, 1.0 / 362880.0,
                               -1.0 / 5040.0, 1.0 / 120.0, -1.0 / 6.0};
    static const double c[] = {1.0 / 20922789888000.0, -1.0 / 87178291200.0, 1.0 / 479001600.0, -1.0 / 3628800.0,
                               1.0 / 40320.0, -1.0 / 720.0, 1.0 / 24.0, -0.5};
    double sine = s[0];
    for (int i = 1; i < 7; ++i) sine = sine * z + s[i];
    sine = x + x * z * sine;
    double cosine = c[0];
    for (int i = 1; i < 8; ++i) cosine = cosine * z + c[i];
    cosine = 1.0 + z * cosine;

    const double a = swapped ? sine : cosine, b = swapped ? cosine : sine;
    switch (quadrant) {
        case 0: return {a, b};
        case 1: return {-b, a};
        case 2: return {-a, -b};
        default: return {b, -a};
    }
}

// The powers of exp(-2 pi i / 2^order), for filling tables. Long transforms multiply two roots from
// tables in the initialisation buffer, which costs a quarter of the series and half a bit.
class Roots {
public:
    Roots(int order, double* tables) : order_(order), low_(order / 2), fine_(tables), coarse_(tables)
    {
        if (tables == nullptr) return;
        coarse_ = tables + (std::size_t{2} << low_);
        for (std::uint64_t i = 0; i < std::uint64_t{1} << low_; ++i) keep(fine_ + 2 * i, root_of_unity(i, order));
        for (std::uint64_t i = 0; i < std::uint64_t{1} << (order - low_); ++i) {
            keep(coarse_ + 2 * i, root_of_unity(i << low_, order));
        }
    }

    // w[0] + i w[1] = factor exp(-2 pi i k / 2^of), for `of` up to the order of the tables.
    void get(std::uint64_t k, int of, double factor, float* re, float* im) const
    {
        Root r;
        if (fine_ == nullptr) {
            r = root_of_unity(k, of);
        } else {
            const std::uint64_t i = (k << (order_ - of)) & ((std::uint64_t{1} << order_) - 1);
            const double* const a = fine_ + 2 * (i & ((std::uint64_t{1} << low_) - 1));
            const double* const b = coarse_ + 2 * (i >> low_);
            r = {a[0] * b[0] - a[1] * b[1], a[0] * b[1] + a[1] * b[0]};
        }
        *re = static_cast<float>(factor * r.cos);
        *im = static_cast<float>(-(factor * r.sin));
    }

private:
    static void keep(double* to, Root r)
    {
        to[0] = r.cos;
        to[1] = r.sin;
    }

    int order_, low_;
    double* fine_;
    double* coarse_;
};

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
