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

// By the definition for short ones, by halves for long ones.
inline std::vector<Wide> dft(const std::vector<Wide>& x)
{
    const std::size_t n = x.size();
    std::vector<Wide> result(n);
    if (n <= 8) {
        for (std::size_t k = 0; k < n; ++k) {
            for (std::size_t i = 0; i < n; ++i) result[k] += x[i] * root(k * i, n);
        }
        return result;
    }
    std::vector<Wide> even(n / 2), odd(n / 2);
    for (std::size_t i = 0; i < n / 2; ++i) {
        even[i] = x[2 * i];
        odd[i] = x[2 * i + 1];
    }
    even = dft(even);
    odd = dft(odd);
    for (std::size_t k = 0; k < n / 2; ++k) {
        const Wide t = odd[k] * root(k, n);
        result[k] = even[k] + t;
        result[k + n / 2] = even[k] - t;
    }
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
    double relative() const { return size == 0 ? static_cast<double>(std::sqrt(difference)) : static_cast<double>(std::sqrt(difference / size)); }
};

}  // namespace test
