// What is prepared once and used often: power spectra, two-dimensional transforms, random numbers.
#ifndef ORVANE_LAYER_OBJECTS_HPP
#define ORVANE_LAYER_OBJECTS_HPP

#include "../FFT2Wrapper.h"
#include "../FFTWrapper.h"
#include "../RandomNumberGenerator.h"
#include "requirements.hpp"

namespace orvane {

/// Whether a length that is no power of two is refused, or the part of it that is one is transformed.
enum class lengths { exact, truncate };

namespace detail {

// Owns an object that can be neither copied nor moved.
template <class T>
class owner
{
public:
    owner() = default;
    explicit owner(T* object) : object_(object) {}
    owner(owner&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    owner& operator=(owner&& other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }
    ~owner() { delete object_; }
    T* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

constexpr int power_of_two_below(int n)
{
    int power = 1;
    while (power <= n / 2) power *= 2;
    return power;
}

inline status power_of_two(const char* operation, const char* name, int n, lengths which)
{
    if (which == lengths::truncate || power_of_two_below(n) == n) return {};
    return {operation, name, reason::no_power_of_two, n, power_of_two_below(n)};
}

}  // namespace detail

/// Two-sided power spectra of blocks of one length: |X[k]|^2 of window * (signal - its mean), not divided by anything.
class psd
{
public:
    /// Nothing prepared: calls are refused.
    psd() = default;
    /// Throws where prepare() would not be done.
    explicit psd(int length, lengths which = lengths::exact) { prepare(length, which).check(); }

    /// For blocks of `length` samples, up to 2^28 - 1. Of a length that is no power of two, where that is allowed, the
    /// first 2^k samples are transformed and the bins from there on are 0.
    status prepare(int length, lengths which = lengths::exact)
    {
        if (const status s = detail::between("psd", "length", length, 1, (1 << 28) - 1); !s) return s;
        if (const status s = detail::power_of_two("psd", "length", length, which); !s) return s;
        detail::owner<FFTWrapper> made(new (std::nothrow) FFTWrapper(length));
        // The object does not tell whether it had the memory that it wanted, but it does nothing without. Ones, less
        // their mean, have no power.
        const detail::block probe(static_cast<std::size_t>(length) * sizeof(float));
        if (!made || probe.data() == nullptr) return {"psd", "", detail::reason::memory};
        float* const ones = static_cast<float*>(probe.data());
        for (int k = 0; k < length; ++k) ones[k] = 1;
        made->PsdFFT(ones, ones, ones, length);
        if (ones[0] > 0) return {"psd", "", detail::reason::memory};
        object_ = std::move(made);
        length_ = length;
        return {};
    }
    int length() const { return object_ ? length_ : 0; }

    /// power may be signal or window.
    status operator()(span<const float> signal, span<const float> window, span<float> power)
    {
        if (!object_) return {"psd", "length", detail::reason::unprepared};
        const auto needed = static_cast<std::size_t>(length_);
        if (const status s = detail::filled("psd", "signal", signal, needed); !s) return s;
        if (const status s = detail::filled("psd", "window", window, needed); !s) return s;
        if (const status s = detail::filled("psd", "power", power, needed); !s) return s;
        object_->PsdFFT(signal.data(), window.data(), power.data(), length_);
        return {};
    }

private:
    detail::owner<FFTWrapper> object_;
    int length_ = 0;
};

/// Transforms of float images to packed spectra and back. How spectra are packed: FFT2Wrapper.h.
class fft2
{
public:
    /// Nothing prepared: calls are refused.
    fft2() = default;
    /// Throws where prepare() would not be done.
    fft2(int width, int height, lengths which = lengths::exact) { prepare(width, height, which).check(); }

    /// For images of one size. Of sides that are no powers of two, where that is allowed, the top left part is
    /// transformed, and the rest of the destination is not written.
    status prepare(int width, int height, lengths which = lengths::exact)
    {
        if (const status s = detail::between("fft2", "width", width, 2, 0x7fffffff); !s) return s;
        if (const status s = detail::between("fft2", "height", height, 2, 0x7fffffff); !s) return s;
        if (const status s = detail::power_of_two("fft2", "width", width, which); !s) return s;
        if (const status s = detail::power_of_two("fft2", "height", height, which); !s) return s;
        const int w = detail::power_of_two_below(width), h = detail::power_of_two_below(height);
        if (const status s = detail::between("fft2", "width", w, 2, 1 << 26); !s) return s;
        if (const status s = detail::between("fft2", "height", h, 2, (1 << 28) / w < 1 << 24 ? (1 << 28) / w : 1 << 24);
            !s) {
            return s;
        }
        detail::owner<FFT2Wrapper> made(new (std::nothrow) FFT2Wrapper(width, height, false));
        // As above: the sum of ones is not one.
        const detail::block probe(static_cast<std::size_t>(w) * static_cast<std::size_t>(h) * sizeof(float));
        if (!made || probe.data() == nullptr) return {"fft2", "", detail::reason::memory};
        float* const ones = static_cast<float*>(probe.data());
        for (std::size_t k = 0; k < static_cast<std::size_t>(w) * static_cast<std::size_t>(h); ++k) ones[k] = 1;
        const int row = w * static_cast<int>(sizeof(float));
        made->Forward(ones, row, ones, row, width, height);
        if (ones[0] < 2) return {"fft2", "", detail::reason::memory};
        object_ = std::move(made);
        width_ = width;
        height_ = height;
        return {};
    }

    /// spectrum = packed spectrum of source
    status forward(view<const float> source, view<float> spectrum)
    {
        if (const status s = operands(source, "source", spectrum, "spectrum"); !s) return s;
        object_->Forward(source.data(), detail::step(source), spectrum.data(), detail::step(spectrum), width_, height_);
        return {};
    }
    /// destination = the image that has this spectrum
    status inverse(view<const float> spectrum, view<float> destination)
    {
        if (const status s = operands(spectrum, "spectrum", destination, "destination"); !s) return s;
        object_->Inverse(spectrum.data(), detail::step(spectrum), destination.data(), detail::step(destination), width_,
                         height_);
        return {};
    }

private:
    status operands(const detail::region& a, const char* a_name, const detail::region& b, const char* b_name) const
    {
        if (!object_) return {"fft2", "size", detail::reason::unprepared};
        if (!a.sound()) return detail::unsound("fft2", {a_name, a});
        if (!b.sound()) return detail::unsound("fft2", {b_name, b});
        if (const status s = detail::sized("fft2", a_name, a, width_, height_); !s) return s;
        if (const status s = detail::sized("fft2", b_name, b, width_, height_); !s) return s;
        return detail::whole("fft2", b_name, b, a);
    }

    detail::owner<FFT2Wrapper> object_;
    int width_ = 0, height_ = 0;
};

/// A stream of normally distributed numbers: the same for a seed on every processor, however it is cut into calls.
class gaussian
{
public:
    /// Throws std::bad_alloc without memory.
    explicit gaussian(int seed) : object_(new (std::nothrow) RandomNumberGenerator)
    {
        const bool streams = object_ && object_->Init(seed) && object_->GenerateGaussian(0, nullptr, 0, 1);
        if (!streams) status("gaussian", "", detail::reason::memory).check();
    }

    status operator()(span<double> numbers, double mean, double sigma)
    {
        if (!object_) return {"gaussian", "seed", detail::reason::unprepared};
        if (!detail::alike(numbers)) return detail::unlike<detail::stretch>("gaussian", {{"numbers", numbers}});
        if (const status s = detail::above_zero("gaussian", "sigma", sigma); !s) return s;
        return detail::answer("gaussian",
                              object_->GenerateGaussian(detail::length(numbers), numbers.data(), mean, sigma),
                              detail::reason::failed);
    }

private:
    detail::owner<RandomNumberGenerator> object_;
};

}  // namespace orvane

#endif
