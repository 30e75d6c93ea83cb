// Rotation, perspective and remapping once more, pixel by pixel: every operation of doubles and floats is rounded by
// itself, on the x87 as well.
#pragma once

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

#include "support/exact.h"
#include "support/host_control.h"

namespace test {
namespace warp {

// A number whose operations round to F once.
template <class F>
struct Rounded {
    F v;
    Rounded(F value = 0) : v(value) {}
    explicit operator F() const { return v; }

    template <class Op>
    static Rounded once(Rounded a, Rounded b, Op op)
    {
#if FLT_EVAL_METHOD == 0
        return Rounded(op(a.v, b.v));
#else
        // The x87 with 53 bits. (From 113 bits the compiler goes by way of 64, which rounds twice.)
        const DoublePrecision precision;
        volatile F x = a.v, y = b.v, result;
        result = static_cast<F>(op(x, y));
        return Rounded(result);
#endif
    }
    friend Rounded operator+(Rounded a, Rounded b)
    {
        return once(a, b, [](auto x, auto y) { return x + y; });
    }
    friend Rounded operator-(Rounded a, Rounded b)
    {
        return once(a, b, [](auto x, auto y) { return x - y; });
    }
    friend Rounded operator*(Rounded a, Rounded b)
    {
        return once(a, b, [](auto x, auto y) { return x * y; });
    }
    friend Rounded operator/(Rounded a, Rounded b)
    {
        return once(a, b, [](auto x, auto y) { return x / y; });
    }
};
using D = Rounded<double>;
using Single = Rounded<float>;
using Real = long double;

struct Area {
    int x, y, width, height;
};

// --- Positions ------------------------------------------------------------------------------------

// The point that a pixel shows and the index of it; nothing where there is none.
struct Shown {
    bool exists;
    double sx, sy, tx, ty;
};
inline Shown shown_at(D sx, D sy) { return {true, sx.v, sy.v, (sx - D(0.5)).v, (sy - D(0.5)).v}; }

struct SineCosine {
    double c, s;
    explicit SineCosine(double degrees)
    {
        const Real pi = 3.14159265358979323846264338327950288L;
        const Real angle = static_cast<Real>(std::fmod(degrees, 360.0)) * pi / 180;
        const Real grid = 4294967296.0L;
        c = static_cast<double>(std::nearbyint(std::cos(angle) * grid) / grid);
        s = static_cast<double>(std::nearbyint(std::sin(angle) * grid) / grid);
    }
};

struct Rotation {
    SineCosine turn;
    double xShift, yShift;
    Shown at(std::int64_t X, std::int64_t Y) const
    {
        const D px = (D(static_cast<double>(X)) + D(0.5)) - D(xShift),
                py = (D(static_cast<double>(Y)) + D(0.5)) - D(yShift);
        return shown_at(D(turn.c) * px - D(turn.s) * py, D(turn.s) * px + D(turn.c) * py);
    }
};

struct Perspective {
    D m[9];
    bool exists, affine;
    Perspective(const double* coefficients, Area source)
    {
        double largest = 0;
        for (int i = 0; i < 9; ++i) largest = std::fmax(largest, std::fabs(coefficients[i]));
        exists = largest > 0;
        if (!exists) return;
        D h[9];
        for (int i = 0; i < 9; ++i) {
            h[i] = std::ldexp(coefficients[i], -std::ilogb(largest));
            if (std::fabs(h[i].v) < std::ldexp(1.0, -300)) h[i] = 0;
        }
        m[0] = h[4] * h[8] - h[5] * h[7];
        m[1] = h[2] * h[7] - h[1] * h[8];
        m[2] = h[1] * h[5] - h[2] * h[4];
        m[3] = h[5] * h[6] - h[3] * h[8];
        m[4] = h[0] * h[8] - h[2] * h[6];
        m[5] = h[2] * h[3] - h[0] * h[5];
        m[6] = h[3] * h[7] - h[4] * h[6];
        m[7] = h[1] * h[6] - h[0] * h[7];
        m[8] = h[0] * h[4] - h[1] * h[3];
        affine = h[6].v == 0 && h[7].v == 0;
        const D cx = D(source.x) + D(0.5) * D(source.width), cy = D(source.y) + D(0.5) * D(source.height);
        const D side = (h[6] * cx + h[7] * cy) + h[8];
        const D det = affine ? h[8] * m[8] : (h[0] * m[0] + h[1] * m[3]) + h[2] * m[6];
        exists = det.v != 0 && side.v != 0;
        if ((det.v > 0) != (side.v > 0))
            for (D& x : m) x = -x.v;
        if (affine && exists)
            for (int i = 0; i < 6; ++i) m[i] = m[i] / m[8];
    }
    Shown at(std::int64_t X, std::int64_t Y) const
    {
        const D x = D(static_cast<double>(X)) + D(0.5), y = D(static_cast<double>(Y)) + D(0.5);
        if (affine) return shown_at(m[0] * x + (m[1] * y + m[2]), m[3] * x + (m[4] * y + m[5]));
        const D mx = m[1] * y + m[2], my = m[4] * y + m[5], mw = m[7] * y + m[8], w = m[6] * x + mw;
        if (!(w.v > 0)) return {false, 0, 0, 0, 0};
        const D r = D(1) / w;
        return shown_at((m[0] * x + mx) * r, (m[3] * x + my) * r);
    }
};

struct Maps {
    std::vector<float> x, y;
    int width;
    Shown at(std::int64_t X, std::int64_t Y) const
    {
        const auto i = static_cast<std::size_t>(Y * width + X);
        const double tx = x[i], ty = y[i];
        return {true, (D(tx) + D(0.5)).v, (D(ty) + D(0.5)).v, tx, ty};
    }
};

// --- Values ---------------------------------------------------------------------------------------

// Any pixel of the source rectangle by its column and row; others are those of its edge.
template <class T>
struct Pixels {
    Area area;
    int channels;
    std::vector<T> values;
    T at(std::int64_t column, std::int64_t row, int c) const
    {
        const std::int64_t x = std::min(std::max<std::int64_t>(column - area.x, 0), std::int64_t{area.width} - 1);
        const std::int64_t y = std::min(std::max<std::int64_t>(row - area.y, 0), std::int64_t{area.height} - 1);
        return values[static_cast<std::size_t>((y * area.width + x) * channels + c)];
    }
};

template <class T>
T stored(double v)
{
    if constexpr (std::is_floating_point<T>::value) {
        volatile float result = static_cast<float>(v);
        return std::isnan(v) ? from_bits<float>(0x7FC00000u) : static_cast<float>(result);
    } else {
        return static_cast<T>(
            std::nearbyint(std::fmin(std::fmax(v, 0), static_cast<double>(std::numeric_limits<T>::max()))));
    }
}

inline Single blend(float a, float b, float part)
{
    if (part == 0) return a;
    if (part == 1) return b;
    return Single(a) + (Single(b) - Single(a)) * Single(part);
}

template <class T>
T linear(const Pixels<T>& p, std::int64_t i, std::int64_t j, double f, double g, int ch)
{
    const T a = p.at(i, j, ch), b = p.at(i + 1, j, ch), c = p.at(i, j + 1, ch), d = p.at(i + 1, j + 1, ch);
    if constexpr (sizeof(T) == 1) {
        const auto F = static_cast<std::int64_t>(std::nearbyint(16384 * f)),
                   G = static_cast<std::int64_t>(std::nearbyint(16384 * g));
        const std::int64_t top = ((16384 - F) * a + F * b + 64) / 128, bottom = ((16384 - F) * c + F * d + 64) / 128;
        return static_cast<T>(std::nearbyint(static_cast<double>((16384 - G) * top + G * bottom) / 2097152));
    } else {
        volatile float column = static_cast<float>(f), row = static_cast<float>(g);
        const auto wide = [](T v) { return static_cast<float>(v); };
        return stored<T>(blend(blend(wide(a), wide(b), column).v, blend(wide(c), wide(d), column).v, row).v);
    }
}

struct CubicWeights {
    float w[4];
    CubicWeights(D B, D C, double fraction)
    {
        const D six = 6, f = fraction;
        const D n3 = (D(12) - D(9) * B - D(6) * C) / six, n2 = (D(-18) + D(12) * B + D(6) * C) / six,
                n0 = (six - D(2) * B) / six;
        const D e3 = (D(-B.v) - D(6) * C) / six, e2 = (D(6) * B + D(30) * C) / six, e1 = (D(-12) * B - D(48) * C) / six,
                e0 = (D(8) * B + D(24) * C) / six;
        const auto near = [&](D d) { return single(n3 * d * d * d + n2 * d * d + n0); };
        const auto far = [&](D d) { return single(e3 * d * d * d + e2 * d * d + e1 * d + e0); };
        w[0] = fraction == 1 ? 0 : far(D(1) + f);
        w[1] = near(f);
        w[2] = near(D(1) - f);
        w[3] = fraction == 0 ? 0 : far(D(2) - f);
    }
    template <class Value>
    D sum(Value value) const
    {
        const auto product = [&](int k) { return w[k] == 0 ? D(0) : D(w[k]) * D(value(k)); };
        return (product(0) + product(1)) + (product(2) + product(3));
    }

private:
    static float single(D d)
    {
        volatile float f = static_cast<float>(d.v);
        return f;
    }
};

template <class T>
T cubic(const Pixels<T>& p, std::int64_t i, std::int64_t j, double f, double g, int ch, int code)
{
    const D B = code == 5 ? 1 : code == 7 ? 0.5 : 0, C = code == 5 ? 0 : code == 7 ? 0.3 : 0.5;
    const CubicWeights columns(B, C, f), rows(B, C, g);
    return stored<T>(
        rows.sum([&](int l) {
                return columns.sum([&](int k) { return static_cast<double>(p.at(i + k - 1, j + l - 1, ch)); }).v;
            })
            .v);
}

// Lanczos, not to the bit: the exact value.
struct LanczosWeights {
    Real w[6];
    explicit LanczosWeights(double f)
    {
        const Real pi = 3.14159265358979323846264338327950288L;
        Real sum = 0;
        for (int k = 0; k < 6; ++k) {
            const Real d = static_cast<Real>(f) + (2 - k);
            w[k] = f == 0 ? k == 2 : f == 1 ? k == 3 : (k % 2 == 0 ? 1 : -1) * std::sin(pi * d / 3) / (d * d);
            sum += w[k];
        }
        for (Real& x : w) x /= sum;
    }
};
template <class T>
Real lanczos(const Pixels<T>& p, std::int64_t i, std::int64_t j, double f, double g, int ch, Real* largest)
{
    *largest = 0;
    const LanczosWeights columns(f), rows(g);
    Real sum = 0;
    for (int l = 0; l < 6; ++l) {
        for (int k = 0; k < 6; ++k) {
            if (columns.w[k] == 0 || rows.w[l] == 0) continue;
            const Real tap = static_cast<Real>(p.at(i + k - 2, j + l - 2, ch));
            *largest = std::fmax(*largest, std::fabs(tap));
            sum += rows.w[l] * columns.w[k] * tap;
        }
    }
    return sum;
}

template <class T>
bool near_lanczos(T actual, Real exact, Real largest)
{
    if constexpr (std::is_floating_point<T>::value) {
        if (std::isnan(exact)) return bits_of(actual) == 0x7FC00000u;
        if (!(std::fabs(exact) <= static_cast<Real>(FLT_MAX))) return true;  // overflow on the way or not
        return std::fabs(static_cast<Real>(actual) - exact) <= std::fabs(exact) * 5.97e-8L + largest * 1e-13L + 1e-45L;
    } else {
        const Real clamped = std::fmin(std::fmax(exact, 0), static_cast<Real>(std::numeric_limits<T>::max()));
        return std::fabs(static_cast<Real>(actual) - clamped) <= 0.5L + 1e-8L;
    }
}

}  // namespace warp
}  // namespace test
