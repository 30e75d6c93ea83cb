// Operands whose description a test may spoil, and what the generated tests do with every overload.
#pragma once

#include <algorithm>
#include <cmath>
#include <functional>
#include <initializer_list>
#include <orvane.hpp>
#include <string>
#include <vector>

#include "gmock/gmock.h"

namespace layer_test {

// Whether an element has a value: integers exactly, floats to the eleven bits that all functions have.
template <class T>
bool is(T element, double value)
{
    const double tolerance = std::is_integral_v<T> ? 0 : std::max(1.0, std::abs(value)) / 2048;
    return std::abs(static_cast<double>(element) - value) <= tolerance;
}
inline bool is(Complex32f element, double value) { return is(element.re, value) && is(element.im, 0); }

// A piece of memory: for results, which no test spoils.
class memory
{
public:
    template <class T>
    memory(const char* name, T* data, std::size_t count)
        : name_(name),
          data_(reinterpret_cast<unsigned char*>(data)),
          bytes_(count * sizeof(T)),
          holds_([data, count](const std::vector<double>& values) {
              for (std::size_t k = 0; k < count; ++k) {
                  if (!is(data[k], values[k % values.size()])) return false;
              }
              return true;
          })
    {
    }
    const char* name() const { return name_; }
    std::vector<unsigned char> bytes() const { return {data_, data_ + bytes_}; }
    bool holds(const std::vector<double>& values) const { return holds_(values); }

private:
    const char* name_;
    unsigned char* data_;
    std::size_t bytes_;
    std::function<bool(const std::vector<double>&)> holds_;
};

// A picture with a frame of kFrame pixels, or a vector, which is a picture of one row.
constexpr int kFrame = 4;

class operand
{
public:
    operand(const char* name, int width, int height, int pixel, int element);
    virtual ~operand() = default;
    virtual void fill(unsigned seed) = 0;
    virtual void set(const std::vector<double>& values) = 0;
    virtual bool holds(const std::vector<double>& values) const = 0;
    virtual bool is_vector() const { return false; }

    const char* name;
    int columns, rows;
    std::ptrdiff_t stride;
    unsigned char* first;
    int pixel_bytes, element_bytes;
    std::vector<unsigned char> bytes;
    orvane::detail::frame frame{kFrame, kFrame, kFrame, kFrame};
};

template <class T>
T element(double v)
{
    return static_cast<T>(v);
}
template <>
inline Complex32f element<Complex32f>(double v)
{
    return {static_cast<float>(v), 0};
}

template <class T, int Channels>
class filled_operand : public operand
{
public:
    filled_operand(const char* n, int width, int height) : operand(n, width, height, sizeof(T) * Channels, sizeof(T))
    {
        fill(1);
    }
    void fill(unsigned seed) override
    {
        T* all = reinterpret_cast<T*>(bytes.data());
        for (std::size_t k = 0; k < bytes.size() / sizeof(T); ++k) {
            seed = seed * 1664525u + 1013904223u;
            all[k] = element<T>(1 + (seed >> 16) % 100);
        }
    }
    void set(const std::vector<double>& values) override
    {
        T* all = reinterpret_cast<T*>(bytes.data());
        for (std::size_t k = 0; k < bytes.size() / sizeof(T); ++k) {
            const std::size_t channel = k % (static_cast<std::size_t>(stride) / sizeof(T)) % Channels;
            all[k] = element<T>(values[channel % values.size()]);
        }
    }
    bool holds(const std::vector<double>& values) const override
    {
        for (int y = 0; y < rows; ++y) {
            const T* row = reinterpret_cast<const T*>(first + stride * y);
            for (int k = 0; k < columns * Channels; ++k) {
                if (!is(row[k], values[static_cast<std::size_t>(k % Channels) % values.size()])) return false;
            }
        }
        return true;
    }
};

template <class T, int Channels>
class picture : public filled_operand<T, Channels>
{
public:
    using filled_operand<T, Channels>::filled_operand;
    static constexpr int channels = Channels;
    T* data() const { return reinterpret_cast<T*>(this->first); }
    int width() const { return this->columns; }
    int height() const { return this->rows; }
    std::ptrdiff_t step() const { return this->stride; }
    orvane::detail::frame around() const { return this->frame; }
};

template <class T>
class series : public filled_operand<T, 1>
{
public:
    series(const char* n, int length) : filled_operand<T, 1>(n, length, 1) {}
    bool is_vector() const override { return true; }
    T* data() const { return reinterpret_cast<T*>(this->first); }
    std::size_t size() const { return static_cast<std::size_t>(this->columns); }
};

template <class P>
int step(const P& p)
{
    return static_cast<int>(p.step());
}
template <class S>
int length(const S& s)
{
    return static_cast<int>(s.size());
}

struct expectation {
    std::string name;
    std::vector<double> values;
};

struct habits {
    bool equal_sizes;
    bool cut_anywhere;
    std::vector<expectation> example;
};

using layer_call = std::function<orvane::status()>;
using method_call = std::function<bool()>;

// All that is asked of an overload; `results` are what it writes beside its operands.
void check(const char* what, std::vector<operand*> operands, std::vector<memory*> results, const layer_call& layer,
           const method_call& method, const habits& habits);

// The form that makes its frame itself: the same as the other one beside a replicated frame, and in place.
void check_edge(const char* what, operand* source, operand* destination, const layer_call& edged,
                const layer_call& framed);

}  // namespace layer_test
