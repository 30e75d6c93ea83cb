// Discrete Fourier transforms in long double: the oracle of the spectral tests.
#pragma once

#include <cmath>
#include <complex>
#include <vector>

namespace test {

using Wide = std::complex<long double>;

// exp(-2 pi i k / n)
inline Wide root(std::size_t k, std::size_t n)
{
    const long double angle = -2 * std::acos(-1.0L) * static_cast<long double>(k % n) / static_cast<long double>(n);
    return {std::cos(angle), std::sin(angle)};
}

// The transform of the n values that lie `stride` apart: by the definition for short ones, by halves
// for long ones. `roots` are those of n * stride.
inline void dft(const Wide* x, std::size_t n, std::size_t stride, const std::vector<Wide>& roots, Wide* result)
{
    if (n <= 8) {
        for (std::size_t k = 0; k < n; ++k) {
            result[k] = 0;
            for (std::size_t i = 0; i < n; ++i) result[k] += x[i * stride] * roots[k * i % n * stride];
        }
        return;
    }
    dft(x, n / 2, 2 * stride, roots, result);
    dft(x + stride, n / 2, 2 * stride, roots, result + n / 2);
    for (std::size_t k = 0; k < n / 2; ++k) {
        const Wide e = result[k], w = roots[k * stride], o = result[k + n / 2];
        const Wide t(o.real() * w.real() - o.imag() * w.imag(), o.real() * w.imag() + o.imag() * w.real());
        result[k] = e + t;
        result[k + n / 2] = e - t;
    }
}

inline std::vector<Wide> dft(const std::vector<Wide>& x)
{
    static std::vector<Wide> roots;
    if (roots.size() != x.size()) {
        roots.resize(x.size());
        for (std::size_t k = 0; k < x.size(); ++k) roots[k] = root(k, x.size());
    }
    std::vector<Wide> result(x.size());
    dft(x.data(), x.size(), 1, roots, result.data());
    return result;
}

// |got - want| / |want|, root mean square.
struct Error {
    long double difference = 0, size = 0;
    void add(Wide got, Wide want)
    {
        difference += std::norm(got - want);
        size += std::norm(want);
    }
    double relative() const
    {
        return size == 0 ? static_cast<double>(std::sqrt(difference))
                         : static_cast<double>(std::sqrt(difference / size));
    }
};

}  // namespace test
