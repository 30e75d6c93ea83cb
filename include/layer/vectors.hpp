// The operations, one overload for each type. Made from interface/table.toml by interface/generate.py.
#ifndef ORVANE_LAYER_VECTORS_HPP
#define ORVANE_LAYER_VECTORS_HPP

#include "../SignalProcessingWrapper.h"
#include "requirements.hpp"

namespace orvane {

/// destination = source
inline status copy(span<const unsigned char> source, span<unsigned char> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", SignalProcessingWrapper::Copy_8u(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status copy(span<const unsigned short> source, span<unsigned short> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", SignalProcessingWrapper::Copy_16u(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status copy(span<const int> source, span<int> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", SignalProcessingWrapper::Copy_32s(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status copy(span<const float> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", SignalProcessingWrapper::Copy_32f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status copy(span<const double> source, span<double> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", SignalProcessingWrapper::Copy_64f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status copy(span<const Complex32f> source, span<Complex32f> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", SignalProcessingWrapper::Copy_32fc(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

/// destination = value
inline status fill(span<unsigned char> destination, const constant<unsigned char, 1>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("fill", {{"destination", destination}});
    if (!value.held()) return detail::unheld("fill", "value", value);
    return detail::answer("fill", SignalProcessingWrapper::Set_8u(value.one(), destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status fill(span<unsigned short> destination, const constant<unsigned short, 1>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("fill", {{"destination", destination}});
    if (!value.held()) return detail::unheld("fill", "value", value);
    return detail::answer("fill", SignalProcessingWrapper::Set_16u(value.one(), destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status fill(span<int> destination, const constant<int, 1>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("fill", {{"destination", destination}});
    if (!value.held()) return detail::unheld("fill", "value", value);
    return detail::answer("fill", SignalProcessingWrapper::Set_32s(value.one(), destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status fill(span<float> destination, const constant<float, 1>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("fill", {{"destination", destination}});
    return detail::answer("fill", SignalProcessingWrapper::Set_32f(value.one(), destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status fill(span<double> destination, const constant<double, 1>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("fill", {{"destination", destination}});
    return detail::answer("fill", SignalProcessingWrapper::Set_64f(value.one(), destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status fill(span<Complex32f> destination, const constant<Complex32f, 1>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("fill", {{"destination", destination}});
    return detail::answer("fill", SignalProcessingWrapper::Set_32fc(value.one(), destination.data(),
        detail::length(destination)), detail::reason::memory);
}

/// destination = 0
inline status clear(span<unsigned char> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("clear", {{"destination", destination}});
    return detail::answer("clear", SignalProcessingWrapper::Zero_8u(destination.data(), detail::length(destination)),
        detail::reason::memory);
}

inline status clear(span<unsigned short> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("clear", {{"destination", destination}});
    return detail::answer("clear", SignalProcessingWrapper::Zero_16u(destination.data(), detail::length(destination)),
        detail::reason::memory);
}

inline status clear(span<int> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("clear", {{"destination", destination}});
    return detail::answer("clear", SignalProcessingWrapper::Zero_32s(destination.data(), detail::length(destination)),
        detail::reason::memory);
}

inline status clear(span<float> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("clear", {{"destination", destination}});
    return detail::answer("clear", SignalProcessingWrapper::Zero_32f(destination.data(), detail::length(destination)),
        detail::reason::memory);
}

inline status clear(span<double> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("clear", {{"destination", destination}});
    return detail::answer("clear", SignalProcessingWrapper::Zero_64f(destination.data(), detail::length(destination)),
        detail::reason::memory);
}

inline status clear(span<Complex32f> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("clear", {{"destination", destination}});
    return detail::answer("clear", SignalProcessingWrapper::Zero_32fc(destination.data(),
        detail::length(destination)), detail::reason::memory);
}

/// destination = source, 8u to 16u
inline status convert(span<const unsigned char> source, span<unsigned short> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_8u16u(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const unsigned char> source, span<int> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_8u32s(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const unsigned char> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_8u32f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const unsigned char> source, span<double> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_8u64f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const unsigned short> source, span<unsigned char> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_16u8u(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const unsigned short> source, span<int> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_16u32s(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const unsigned short> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_16u32f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const unsigned short> source, span<double> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_16u64f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const int> source, span<unsigned char> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_32s8u(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const int> source, span<unsigned short> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_32s16u(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const int> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_32s32f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const int> source, span<double> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_32s64f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const float> source, span<unsigned char> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_32f8u(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const float> source, span<unsigned short> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_32f16u(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const float> source, span<int> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_32f32s(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const float> source, span<double> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_32f64f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const double> source, span<unsigned char> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_64f8u(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const double> source, span<unsigned short> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_64f16u(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const double> source, span<int> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_64f32s(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const double> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_64f32f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const short> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_16s32f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status convert(span<const float> source, span<short> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", SignalProcessingWrapper::Convert_32f16s(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

/// destination[i] = offset + slope i
inline status slope(double offset, double slope, span<unsigned char> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("slope", {{"destination", destination}});
    return detail::answer("slope", SignalProcessingWrapper::VectorSlope_8u(offset, slope, destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status slope(double offset, double slope, span<unsigned short> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("slope", {{"destination", destination}});
    return detail::answer("slope", SignalProcessingWrapper::VectorSlope_16u(offset, slope, destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status slope(double offset, double slope, span<int> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("slope", {{"destination", destination}});
    return detail::answer("slope", SignalProcessingWrapper::VectorSlope_32s(offset, slope, destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status slope(double offset, double slope, span<float> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("slope", {{"destination", destination}});
    return detail::answer("slope", SignalProcessingWrapper::VectorSlope_32f(offset, slope, destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status slope(double offset, double slope, span<double> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("slope", {{"destination", destination}});
    return detail::answer("slope", SignalProcessingWrapper::VectorSlope_64f(offset, slope, destination.data(),
        detail::length(destination)), detail::reason::memory);
}

/// destination[i] = first + i (last - first) / (len - 1), from first to last
inline status ramp(double first, double last, span<unsigned char> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("ramp", {{"destination", destination}});
    return detail::answer("ramp", SignalProcessingWrapper::VectorRamp_8u(first, last, destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status ramp(double first, double last, span<unsigned short> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("ramp", {{"destination", destination}});
    return detail::answer("ramp", SignalProcessingWrapper::VectorRamp_16u(first, last, destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status ramp(double first, double last, span<int> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("ramp", {{"destination", destination}});
    return detail::answer("ramp", SignalProcessingWrapper::VectorRamp_32s(first, last, destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status ramp(double first, double last, span<float> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("ramp", {{"destination", destination}});
    return detail::answer("ramp", SignalProcessingWrapper::VectorRamp_32f(first, last, destination.data(),
        detail::length(destination)), detail::reason::memory);
}

inline status ramp(double first, double last, span<double> destination)
{
    if (!detail::alike(destination)) return detail::unlike<detail::stretch>("ramp", {{"destination", destination}});
    return detail::answer("ramp", SignalProcessingWrapper::VectorRamp_64f(first, last, destination.data(),
        detail::length(destination)), detail::reason::memory);
}

/// destination = scaled(a + b)
inline status add(span<const unsigned char> a, span<const unsigned char> b, span<unsigned char> destination,
                  int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("add", SignalProcessingWrapper::Add_8u(b.data(), a.data(), destination.data(),
        detail::length(a), scale), detail::reason::memory);
}

inline status add(span<const unsigned short> a, span<const unsigned short> b, span<unsigned short> destination,
                  int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("add", SignalProcessingWrapper::Add_16u(b.data(), a.data(), destination.data(),
        detail::length(a), scale), detail::reason::memory);
}

inline status add(span<const int> a, span<const int> b, span<int> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("add", SignalProcessingWrapper::Add_32s(b.data(), a.data(), destination.data(),
        detail::length(a), scale), detail::reason::memory);
}

inline status add(span<const float> a, span<const float> b, span<float> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("add", SignalProcessingWrapper::Add_32f(b.data(), a.data(), destination.data(),
        detail::length(a)), detail::reason::memory);
}

inline status add(span<const double> a, span<const double> b, span<double> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("add", SignalProcessingWrapper::Add_64f(b.data(), a.data(), destination.data(),
        detail::length(a)), detail::reason::memory);
}

/// destination = scaled(source + value)
inline status add(span<const unsigned char> source, const constant<unsigned char, 1>& value,
                  span<unsigned char> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("add", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("add", "value", value);
    return detail::answer("add", SignalProcessingWrapper::AddC_8u(source.data(), value.one(), destination.data(),
        detail::length(source), scale), detail::reason::memory);
}

inline status add(span<const unsigned short> source, const constant<unsigned short, 1>& value,
                  span<unsigned short> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("add", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("add", "value", value);
    return detail::answer("add", SignalProcessingWrapper::AddC_16u(source.data(), value.one(), destination.data(),
        detail::length(source), scale), detail::reason::memory);
}

inline status add(span<const int> source, const constant<int, 1>& value, span<int> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("add", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("add", "value", value);
    return detail::answer("add", SignalProcessingWrapper::AddC_32s(source.data(), value.one(), destination.data(),
        detail::length(source), scale), detail::reason::memory);
}

inline status add(span<const float> source, const constant<float, 1>& value, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("add", {{"source", source},
        {"destination", destination}});
    return detail::answer("add", SignalProcessingWrapper::AddC_32f(source.data(), value.one(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status add(span<const double> source, const constant<double, 1>& value, span<double> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("add", {{"source", source},
        {"destination", destination}});
    return detail::answer("add", SignalProcessingWrapper::AddC_64f(source.data(), value.one(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

/// destination = scaled(a - b)
inline status subtract(span<const unsigned char> a, span<const unsigned char> b, span<unsigned char> destination,
                       int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("subtract", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("subtract", SignalProcessingWrapper::Sub_8u(b.data(), a.data(), destination.data(),
        detail::length(a), scale), detail::reason::memory);
}

inline status subtract(span<const unsigned short> a, span<const unsigned short> b, span<unsigned short> destination,
                       int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("subtract", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("subtract", SignalProcessingWrapper::Sub_16u(b.data(), a.data(), destination.data(),
        detail::length(a), scale), detail::reason::memory);
}

inline status subtract(span<const int> a, span<const int> b, span<int> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("subtract", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("subtract", SignalProcessingWrapper::Sub_32s(b.data(), a.data(), destination.data(),
        detail::length(a), scale), detail::reason::memory);
}

inline status subtract(span<const float> a, span<const float> b, span<float> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("subtract", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("subtract", SignalProcessingWrapper::Sub_32f(b.data(), a.data(), destination.data(),
        detail::length(a)), detail::reason::memory);
}

/// destination = scaled(source - value)
inline status subtract(span<const unsigned char> source, const constant<unsigned char, 1>& value,
                       span<unsigned char> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("subtract", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("subtract", "value", value);
    return detail::answer("subtract", SignalProcessingWrapper::SubC_8u(source.data(), value.one(), destination.data(),
        detail::length(source), scale), detail::reason::memory);
}

inline status subtract(span<const unsigned short> source, const constant<unsigned short, 1>& value,
                       span<unsigned short> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("subtract", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("subtract", "value", value);
    return detail::answer("subtract", SignalProcessingWrapper::SubC_16u(source.data(), value.one(),
        destination.data(), detail::length(source), scale), detail::reason::memory);
}

inline status subtract(span<const int> source, const constant<int, 1>& value, span<int> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("subtract", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("subtract", "value", value);
    return detail::answer("subtract", SignalProcessingWrapper::SubC_32s(source.data(), value.one(),
        destination.data(), detail::length(source), scale), detail::reason::memory);
}

inline status subtract(span<const float> source, const constant<float, 1>& value, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("subtract", {{"source", source},
        {"destination", destination}});
    return detail::answer("subtract", SignalProcessingWrapper::SubC_32f(source.data(), value.one(),
        destination.data(), detail::length(source)), detail::reason::memory);
}

/// destination = scaled(value - source)
inline status subtract_from(const constant<unsigned char, 1>& value, span<const unsigned char> source,
                            span<unsigned char> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("subtract_from", {{"source",
        source}, {"destination", destination}});
    if (!value.held()) return detail::unheld("subtract_from", "value", value);
    return detail::answer("subtract_from", SignalProcessingWrapper::SubCRev_8u(source.data(), value.one(),
        destination.data(), detail::length(source), scale), detail::reason::memory);
}

inline status subtract_from(const constant<unsigned short, 1>& value, span<const unsigned short> source,
                            span<unsigned short> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("subtract_from", {{"source",
        source}, {"destination", destination}});
    if (!value.held()) return detail::unheld("subtract_from", "value", value);
    return detail::answer("subtract_from", SignalProcessingWrapper::SubCRev_16u(source.data(), value.one(),
        destination.data(), detail::length(source), scale), detail::reason::memory);
}

inline status subtract_from(const constant<int, 1>& value, span<const int> source, span<int> destination,
                            int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("subtract_from", {{"source",
        source}, {"destination", destination}});
    if (!value.held()) return detail::unheld("subtract_from", "value", value);
    return detail::answer("subtract_from", SignalProcessingWrapper::SubCRev_32s(source.data(), value.one(),
        destination.data(), detail::length(source), scale), detail::reason::memory);
}

inline status subtract_from(const constant<float, 1>& value, span<const float> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("subtract_from", {{"source",
        source}, {"destination", destination}});
    return detail::answer("subtract_from", SignalProcessingWrapper::SubCRev_32f(source.data(), value.one(),
        destination.data(), detail::length(source)), detail::reason::memory);
}

/// destination = scaled(a * b)
inline status multiply(span<const unsigned char> a, span<const unsigned char> b, span<unsigned char> destination,
                       int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("multiply", SignalProcessingWrapper::Mul_8u(b.data(), a.data(), destination.data(),
        detail::length(a), scale), detail::reason::memory);
}

inline status multiply(span<const unsigned short> a, span<const unsigned short> b, span<unsigned short> destination,
                       int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("multiply", SignalProcessingWrapper::Mul_16u(b.data(), a.data(), destination.data(),
        detail::length(a), scale), detail::reason::memory);
}

inline status multiply(span<const int> a, span<const int> b, span<int> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("multiply", SignalProcessingWrapper::Mul_32s(b.data(), a.data(), destination.data(),
        detail::length(a), scale), detail::reason::memory);
}

inline status multiply(span<const float> a, span<const float> b, span<float> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("multiply", SignalProcessingWrapper::Mul_32f(b.data(), a.data(), destination.data(),
        detail::length(a)), detail::reason::memory);
}

inline status multiply(span<const double> a, span<const double> b, span<double> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("multiply", SignalProcessingWrapper::Mul_64f(b.data(), a.data(), destination.data(),
        detail::length(a)), detail::reason::memory);
}

/// destination = scaled(source * value)
inline status multiply(span<const unsigned char> source, const constant<unsigned char, 1>& value,
                       span<unsigned char> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("multiply", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("multiply", "value", value);
    return detail::answer("multiply", SignalProcessingWrapper::MulC_8u(source.data(), value.one(), destination.data(),
        detail::length(source), scale), detail::reason::memory);
}

inline status multiply(span<const unsigned short> source, const constant<unsigned short, 1>& value,
                       span<unsigned short> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("multiply", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("multiply", "value", value);
    return detail::answer("multiply", SignalProcessingWrapper::MulC_16u(source.data(), value.one(),
        destination.data(), detail::length(source), scale), detail::reason::memory);
}

inline status multiply(span<const int> source, const constant<int, 1>& value, span<int> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("multiply", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("multiply", "value", value);
    return detail::answer("multiply", SignalProcessingWrapper::MulC_32s(source.data(), value.one(),
        destination.data(), detail::length(source), scale), detail::reason::memory);
}

inline status multiply(span<const float> source, const constant<float, 1>& value, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("multiply", {{"source", source},
        {"destination", destination}});
    return detail::answer("multiply", SignalProcessingWrapper::MulC_32f(source.data(), value.one(),
        destination.data(), detail::length(source)), detail::reason::memory);
}

inline status multiply(span<const double> source, const constant<double, 1>& value, span<double> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("multiply", {{"source", source},
        {"destination", destination}});
    return detail::answer("multiply", SignalProcessingWrapper::MulC_64f(source.data(), value.one(),
        destination.data(), detail::length(source)), detail::reason::memory);
}

/// destination = scaled(a / b)
inline status divide(span<const unsigned char> a, span<const unsigned char> b, span<unsigned char> destination,
                     int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("divide", SignalProcessingWrapper::Div_8u(b.data(), a.data(), destination.data(),
        detail::length(a), scale), detail::reason::division_by_zero);
}

inline status divide(span<const unsigned short> a, span<const unsigned short> b, span<unsigned short> destination,
                     int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("divide", SignalProcessingWrapper::Div_16u(b.data(), a.data(), destination.data(),
        detail::length(a), scale), detail::reason::division_by_zero);
}

inline status divide(span<const int> a, span<const int> b, span<int> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("divide", SignalProcessingWrapper::Div_32s(b.data(), a.data(), destination.data(),
        detail::length(a), scale), detail::reason::division_by_zero);
}

inline status divide(span<const float> a, span<const float> b, span<float> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("divide", SignalProcessingWrapper::Div_32f(b.data(), a.data(), destination.data(),
        detail::length(a)), detail::reason::division_by_zero);
}

inline status divide(span<const double> a, span<const double> b, span<double> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("divide", SignalProcessingWrapper::Div_64f(b.data(), a.data(), destination.data(),
        detail::length(a)), detail::reason::division_by_zero);
}

/// destination = scaled(source / value)
inline status divide(span<const unsigned char> source, const constant<unsigned char, 1>& value,
                     span<unsigned char> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("divide", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("divide", "value", value);
    if (const status s = detail::divisor("divide", "value", value); !s) return s;
    return detail::answer("divide", SignalProcessingWrapper::DivC_8u(source.data(), value.one(), destination.data(),
        detail::length(source), scale), detail::reason::division_by_zero);
}

inline status divide(span<const unsigned short> source, const constant<unsigned short, 1>& value,
                     span<unsigned short> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("divide", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("divide", "value", value);
    if (const status s = detail::divisor("divide", "value", value); !s) return s;
    return detail::answer("divide", SignalProcessingWrapper::DivC_16u(source.data(), value.one(), destination.data(),
        detail::length(source), scale), detail::reason::division_by_zero);
}

inline status divide(span<const float> source, const constant<float, 1>& value, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("divide", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::divisor("divide", "value", value); !s) return s;
    return detail::answer("divide", SignalProcessingWrapper::DivC_32f(source.data(), value.one(), destination.data(),
        detail::length(source)), detail::reason::division_by_zero);
}

inline status divide(span<const double> source, const constant<double, 1>& value, span<double> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("divide", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::divisor("divide", "value", value); !s) return s;
    return detail::answer("divide", SignalProcessingWrapper::DivC_64f(source.data(), value.one(), destination.data(),
        detail::length(source)), detail::reason::division_by_zero);
}

/// destination = value / source, rounded in fixed point, no scale factor
inline status divide_into(const constant<unsigned short, 1>& value, span<const unsigned short> source,
                          span<unsigned short> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("divide_into", {{"source",
        source}, {"destination", destination}});
    if (!value.held()) return detail::unheld("divide_into", "value", value);
    return detail::answer("divide_into", SignalProcessingWrapper::DivCRev_16u(source.data(), value.one(),
        destination.data(), detail::length(source)), detail::reason::division_by_zero);
}

inline status divide_into(const constant<float, 1>& value, span<const float> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("divide_into", {{"source",
        source}, {"destination", destination}});
    return detail::answer("divide_into", SignalProcessingWrapper::DivCRev_32f(source.data(), value.one(),
        destination.data(), detail::length(source)), detail::reason::division_by_zero);
}

/// sum = sum + a * b
inline status add_product(span<const float> a, span<const float> b, span<float> sum)
{
    if (!detail::alike(a, b, sum)) return detail::unlike<detail::stretch>("add_product", {{"a", a}, {"b", b}, {"sum",
        sum}});
    return detail::answer("add_product", SignalProcessingWrapper::AddProduct_32f(a.data(), b.data(), sum.data(),
        detail::length(a)), detail::reason::memory);
}

/// sum = sum + source * value
inline status add_product(span<const float> source, const constant<float, 1>& value, span<float> sum)
{
    if (!detail::alike(source, sum)) return detail::unlike<detail::stretch>("add_product", {{"source", source},
        {"sum", sum}});
    return detail::answer("add_product", SignalProcessingWrapper::AddProductC_32f(source.data(), value.one(),
        sum.data(), detail::length(source)), detail::reason::memory);
}

/// destination = |source|
inline status absolute(span<const float> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("absolute", {{"source", source},
        {"destination", destination}});
    return detail::answer("absolute", SignalProcessingWrapper::Abs_32f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

/// destination = sqrt(source)
inline status square_root(span<const double> source, span<double> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("square_root", {{"source",
        source}, {"destination", destination}});
    return detail::answer("square_root", SignalProcessingWrapper::Sqrt_64f(source.data(), destination.data(),
        detail::length(source)), detail::reason::negative_root);
}

/// destination = ln(source)
inline status logarithm(span<const double> source, span<double> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("logarithm", {{"source", source},
        {"destination", destination}});
    return detail::answer("logarithm", SignalProcessingWrapper::Ln_64f(source.data(), destination.data(),
        detail::length(source)), detail::reason::logarithm_of_no_positive);
}

/// destination = e^source
inline status exponential(span<const float> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("exponential", {{"source",
        source}, {"destination", destination}});
    return detail::answer("exponential", SignalProcessingWrapper::Exp_32f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

inline status exponential(span<const double> source, span<double> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("exponential", {{"source",
        source}, {"destination", destination}});
    return detail::answer("exponential", SignalProcessingWrapper::Exp_64f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

/// destination = sin(source), 11 bits
inline status sine(span<const float> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("sine", {{"source", source},
        {"destination", destination}});
    return detail::answer("sine", SignalProcessingWrapper::Sin_32f_A11(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

/// destination = cos(source), 11 bits
inline status cosine(span<const float> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("cosine", {{"source", source},
        {"destination", destination}});
    return detail::answer("cosine", SignalProcessingWrapper::Cos_32f_A11(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

/// sine = sin(source), cosine = cos(source), 11 bits
inline status sine_cosine(span<const float> source, span<float> sine, span<float> cosine)
{
    if (!detail::alike(source, sine, cosine)) return detail::unlike<detail::stretch>("sine_cosine", {{"source",
        source}, {"sine", sine}, {"cosine", cosine}});
    return detail::answer("sine_cosine", SignalProcessingWrapper::SinCos_32f_A11(source.data(), sine.data(),
        cosine.data(), detail::length(source)), detail::reason::memory);
}

inline status sine_cosine(span<const double> source, span<double> sine, span<double> cosine)
{
    if (!detail::alike(source, sine, cosine)) return detail::unlike<detail::stretch>("sine_cosine", {{"source",
        source}, {"sine", sine}, {"cosine", cosine}});
    return detail::answer("sine_cosine", SignalProcessingWrapper::SinCos_64f_A50(source.data(), sine.data(),
        cosine.data(), detail::length(source)), detail::reason::memory);
}

/// destination = the angle of the point (x, y): the arctangent of y / x in the right quadrant
inline status angle(span<const float> y, span<const float> x, span<float> destination)
{
    if (!detail::alike(y, x, destination)) return detail::unlike<detail::stretch>("angle", {{"y", y}, {"x", x},
        {"destination", destination}});
    return detail::answer("angle", SignalProcessingWrapper::Atan2_32f_A24(y.data(), x.data(), destination.data(),
        detail::length(y)), detail::reason::memory);
}

/// destination = sqrt(a^2 + b^2)
inline status hypotenuse(span<const float> a, span<const float> b, span<float> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("hypotenuse", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("hypotenuse", SignalProcessingWrapper::Hypot_32f_A24(a.data(), b.data(), destination.data(),
        detail::length(a)), detail::reason::memory);
}

/// destination = the largest integer that is not above source
inline status floor(span<const float> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("floor", {{"source", source},
        {"destination", destination}});
    return detail::answer("floor", SignalProcessingWrapper::Floor_32f(const_cast<float*>(source.data()),
        destination.data(), detail::length(source)), detail::reason::memory);
}

/// destination = threshold where source is below it, else source
inline status threshold_less(span<const unsigned char> source, span<unsigned char> destination,
                             const constant<unsigned char, 1>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_less", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_less", "threshold", threshold);
    return detail::answer("threshold_less", SignalProcessingWrapper::Threshold_LT_8u(source.data(),
        destination.data(), detail::length(source), threshold.one()), detail::reason::memory);
}

inline status threshold_less(span<const unsigned short> source, span<unsigned short> destination,
                             const constant<unsigned short, 1>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_less", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_less", "threshold", threshold);
    return detail::answer("threshold_less", SignalProcessingWrapper::Threshold_LT_16u(source.data(),
        destination.data(), detail::length(source), threshold.one()), detail::reason::memory);
}

inline status threshold_less(span<const int> source, span<int> destination, const constant<int, 1>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_less", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_less", "threshold", threshold);
    return detail::answer("threshold_less", SignalProcessingWrapper::Threshold_LT_32s(source.data(),
        destination.data(), detail::length(source), threshold.one()), detail::reason::memory);
}

inline status threshold_less(span<const float> source, span<float> destination, const constant<float, 1>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_less", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_less", SignalProcessingWrapper::Threshold_LT_32f(source.data(),
        destination.data(), detail::length(source), threshold.one()), detail::reason::memory);
}

inline status threshold_less(span<const double> source, span<double> destination,
                             const constant<double, 1>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_less", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_less", SignalProcessingWrapper::Threshold_LT_64f(source.data(),
        destination.data(), detail::length(source), threshold.one()), detail::reason::memory);
}

/// destination = value where source is below threshold, else source
inline status threshold_less(span<const unsigned char> source, span<unsigned char> destination,
                             const constant<unsigned char, 1>& threshold, const constant<unsigned char, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_less", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_less", "threshold", threshold);
    if (!value.held()) return detail::unheld("threshold_less", "value", value);
    return detail::answer("threshold_less", SignalProcessingWrapper::Threshold_LTVal_8u(source.data(),
        destination.data(), detail::length(source), threshold.one(), value.one()), detail::reason::memory);
}

inline status threshold_less(span<const unsigned short> source, span<unsigned short> destination,
                             const constant<unsigned short, 1>& threshold, const constant<unsigned short, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_less", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_less", "threshold", threshold);
    if (!value.held()) return detail::unheld("threshold_less", "value", value);
    return detail::answer("threshold_less", SignalProcessingWrapper::Threshold_LTVal_16u(source.data(),
        destination.data(), detail::length(source), threshold.one(), value.one()), detail::reason::memory);
}

inline status threshold_less(span<const int> source, span<int> destination, const constant<int, 1>& threshold,
                             const constant<int, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_less", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_less", "threshold", threshold);
    if (!value.held()) return detail::unheld("threshold_less", "value", value);
    return detail::answer("threshold_less", SignalProcessingWrapper::Threshold_LTVal_32s(source.data(),
        destination.data(), detail::length(source), threshold.one(), value.one()), detail::reason::memory);
}

inline status threshold_less(span<const float> source, span<float> destination, const constant<float, 1>& threshold,
                             const constant<float, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_less", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_less", SignalProcessingWrapper::Threshold_LTVal_32f(source.data(),
        destination.data(), detail::length(source), threshold.one(), value.one()), detail::reason::memory);
}

inline status threshold_less(span<const double> source, span<double> destination,
                             const constant<double, 1>& threshold, const constant<double, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_less", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_less", SignalProcessingWrapper::Threshold_LTVal_64f(source.data(),
        destination.data(), detail::length(source), threshold.one(), value.one()), detail::reason::memory);
}

/// destination = threshold where source is above it, else source
inline status threshold_greater(span<const unsigned char> source, span<unsigned char> destination,
                                const constant<unsigned char, 1>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_greater", "threshold", threshold);
    return detail::answer("threshold_greater", SignalProcessingWrapper::Threshold_GT_8u(source.data(),
        destination.data(), detail::length(source), threshold.one()), detail::reason::memory);
}

inline status threshold_greater(span<const unsigned short> source, span<unsigned short> destination,
                                const constant<unsigned short, 1>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_greater", "threshold", threshold);
    return detail::answer("threshold_greater", SignalProcessingWrapper::Threshold_GT_16u(source.data(),
        destination.data(), detail::length(source), threshold.one()), detail::reason::memory);
}

inline status threshold_greater(span<const int> source, span<int> destination, const constant<int, 1>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_greater", "threshold", threshold);
    return detail::answer("threshold_greater", SignalProcessingWrapper::Threshold_GT_32s(source.data(),
        destination.data(), detail::length(source), threshold.one()), detail::reason::memory);
}

inline status threshold_greater(span<const float> source, span<float> destination,
                                const constant<float, 1>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_greater", SignalProcessingWrapper::Threshold_GT_32f(source.data(),
        destination.data(), detail::length(source), threshold.one()), detail::reason::memory);
}

inline status threshold_greater(span<const double> source, span<double> destination,
                                const constant<double, 1>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_greater", SignalProcessingWrapper::Threshold_GT_64f(source.data(),
        destination.data(), detail::length(source), threshold.one()), detail::reason::memory);
}

/// destination = value where source is above threshold, else source
inline status threshold_greater(span<const unsigned char> source, span<unsigned char> destination,
                                const constant<unsigned char, 1>& threshold, const constant<unsigned char, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_greater", "threshold", threshold);
    if (!value.held()) return detail::unheld("threshold_greater", "value", value);
    return detail::answer("threshold_greater", SignalProcessingWrapper::Threshold_GTVal_8u(source.data(),
        destination.data(), detail::length(source), threshold.one(), value.one()), detail::reason::memory);
}

inline status threshold_greater(span<const unsigned short> source, span<unsigned short> destination,
                                const constant<unsigned short, 1>& threshold,
                                const constant<unsigned short, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_greater", "threshold", threshold);
    if (!value.held()) return detail::unheld("threshold_greater", "value", value);
    return detail::answer("threshold_greater", SignalProcessingWrapper::Threshold_GTVal_16u(source.data(),
        destination.data(), detail::length(source), threshold.one(), value.one()), detail::reason::memory);
}

inline status threshold_greater(span<const int> source, span<int> destination, const constant<int, 1>& threshold,
                                const constant<int, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_greater", "threshold", threshold);
    if (!value.held()) return detail::unheld("threshold_greater", "value", value);
    return detail::answer("threshold_greater", SignalProcessingWrapper::Threshold_GTVal_32s(source.data(),
        destination.data(), detail::length(source), threshold.one(), value.one()), detail::reason::memory);
}

inline status threshold_greater(span<const float> source, span<float> destination,
                                const constant<float, 1>& threshold, const constant<float, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_greater", SignalProcessingWrapper::Threshold_GTVal_32f(source.data(),
        destination.data(), detail::length(source), threshold.one(), value.one()), detail::reason::memory);
}

inline status threshold_greater(span<const double> source, span<double> destination,
                                const constant<double, 1>& threshold, const constant<double, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_greater", SignalProcessingWrapper::Threshold_GTVal_64f(source.data(),
        destination.data(), detail::length(source), threshold.one(), value.one()), detail::reason::memory);
}

/// destination = upper_value where source is above upper, else lower_value where it is below lower, else source
inline status threshold_both(span<const unsigned char> source, span<unsigned char> destination,
                             const constant<unsigned char, 1>& lower, const constant<unsigned char, 1>& lower_value,
                             const constant<unsigned char, 1>& upper, const constant<unsigned char, 1>& upper_value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_both", {{"source",
        source}, {"destination", destination}});
    if (!lower.held()) return detail::unheld("threshold_both", "lower", lower);
    if (!lower_value.held()) return detail::unheld("threshold_both", "lower_value", lower_value);
    if (!upper.held()) return detail::unheld("threshold_both", "upper", upper);
    if (!upper_value.held()) return detail::unheld("threshold_both", "upper_value", upper_value);
    if (const status s = detail::ordered("threshold_both", lower, upper); !s) return s;
    return detail::answer("threshold_both", SignalProcessingWrapper::Threshold_LTValGTVal_8u(source.data(),
        destination.data(), detail::length(source), lower.one(), lower_value.one(), upper.one(), upper_value.one()),
        detail::reason::memory);
}

inline status threshold_both(span<const unsigned short> source, span<unsigned short> destination,
                             const constant<unsigned short, 1>& lower, const constant<unsigned short, 1>& lower_value,
                             const constant<unsigned short, 1>& upper, const constant<unsigned short, 1>& upper_value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_both", {{"source",
        source}, {"destination", destination}});
    if (!lower.held()) return detail::unheld("threshold_both", "lower", lower);
    if (!lower_value.held()) return detail::unheld("threshold_both", "lower_value", lower_value);
    if (!upper.held()) return detail::unheld("threshold_both", "upper", upper);
    if (!upper_value.held()) return detail::unheld("threshold_both", "upper_value", upper_value);
    if (const status s = detail::ordered("threshold_both", lower, upper); !s) return s;
    return detail::answer("threshold_both", SignalProcessingWrapper::Threshold_LTValGTVal_16u(source.data(),
        destination.data(), detail::length(source), lower.one(), lower_value.one(), upper.one(), upper_value.one()),
        detail::reason::memory);
}

inline status threshold_both(span<const int> source, span<int> destination, const constant<int, 1>& lower,
                             const constant<int, 1>& lower_value, const constant<int, 1>& upper,
                             const constant<int, 1>& upper_value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_both", {{"source",
        source}, {"destination", destination}});
    if (!lower.held()) return detail::unheld("threshold_both", "lower", lower);
    if (!lower_value.held()) return detail::unheld("threshold_both", "lower_value", lower_value);
    if (!upper.held()) return detail::unheld("threshold_both", "upper", upper);
    if (!upper_value.held()) return detail::unheld("threshold_both", "upper_value", upper_value);
    if (const status s = detail::ordered("threshold_both", lower, upper); !s) return s;
    return detail::answer("threshold_both", SignalProcessingWrapper::Threshold_LTValGTVal_32s(source.data(),
        destination.data(), detail::length(source), lower.one(), lower_value.one(), upper.one(), upper_value.one()),
        detail::reason::memory);
}

inline status threshold_both(span<const float> source, span<float> destination, const constant<float, 1>& lower,
                             const constant<float, 1>& lower_value, const constant<float, 1>& upper,
                             const constant<float, 1>& upper_value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_both", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::ordered("threshold_both", lower, upper); !s) return s;
    return detail::answer("threshold_both", SignalProcessingWrapper::Threshold_LTValGTVal_32f(source.data(),
        destination.data(), detail::length(source), lower.one(), lower_value.one(), upper.one(), upper_value.one()),
        detail::reason::memory);
}

inline status threshold_both(span<const double> source, span<double> destination, const constant<double, 1>& lower,
                             const constant<double, 1>& lower_value, const constant<double, 1>& upper,
                             const constant<double, 1>& upper_value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("threshold_both", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::ordered("threshold_both", lower, upper); !s) return s;
    return detail::answer("threshold_both", SignalProcessingWrapper::Threshold_LTValGTVal_64f(source.data(),
        destination.data(), detail::length(source), lower.one(), lower_value.one(), upper.one(), upper_value.one()),
        detail::reason::memory);
}

/// total = sum of source[i]
inline status sum(span<const unsigned char> source, double& total)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("sum", {{"source", source}});
    return detail::answer("sum", SignalProcessingWrapper::Sum_8u(source.data(), detail::length(source), &total),
        detail::reason::memory);
}

inline status sum(span<const unsigned short> source, double& total)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("sum", {{"source", source}});
    return detail::answer("sum", SignalProcessingWrapper::Sum_16u(source.data(), detail::length(source), &total),
        detail::reason::memory);
}

inline status sum(span<const int> source, double& total)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("sum", {{"source", source}});
    return detail::answer("sum", SignalProcessingWrapper::Sum_32s(source.data(), detail::length(source), &total),
        detail::reason::memory);
}

inline status sum(span<const float> source, double& total)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("sum", {{"source", source}});
    return detail::answer("sum", SignalProcessingWrapper::Sum_32f(source.data(), detail::length(source), &total,
        true), detail::reason::memory);
}

inline status sum(span<const double> source, double& total)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("sum", {{"source", source}});
    return detail::answer("sum", SignalProcessingWrapper::Sum_64f(source.data(), detail::length(source), &total),
        detail::reason::memory);
}

/// average = (sum of source[i]) / len
inline status mean(span<const unsigned char> source, double& average)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("mean", {{"source", source}});
    return detail::answer("mean", SignalProcessingWrapper::Mean_8u(source.data(), detail::length(source), &average),
        detail::reason::memory);
}

inline status mean(span<const unsigned short> source, double& average)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("mean", {{"source", source}});
    return detail::answer("mean", SignalProcessingWrapper::Mean_16u(source.data(), detail::length(source), &average),
        detail::reason::memory);
}

inline status mean(span<const int> source, double& average)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("mean", {{"source", source}});
    return detail::answer("mean", SignalProcessingWrapper::Mean_32s(source.data(), detail::length(source), &average),
        detail::reason::memory);
}

inline status mean(span<const float> source, double& average)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("mean", {{"source", source}});
    return detail::answer("mean", SignalProcessingWrapper::Mean_32f(source.data(), detail::length(source), &average,
        true), detail::reason::memory);
}

inline status mean(span<const double> source, double& average)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("mean", {{"source", source}});
    return detail::answer("mean", SignalProcessingWrapper::Mean_64f(source.data(), detail::length(source), &average),
        detail::reason::memory);
}

/// average = (sum of source[i]) / len, deviation = sqrt((sum of (source[i] - mean)^2) / len)
inline status mean_deviation(span<const float> source, double& average, double& deviation)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("mean_deviation", {{"source", source}});
    return detail::answer("mean_deviation", SignalProcessingWrapper::MeanStdDev_32f(source.data(),
        detail::length(source), &average, &deviation, true), detail::reason::memory);
}

/// deviation = sqrt((sum of (source[i] - mean)^2) / len)
inline status deviation(span<const float> source, double& deviation)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("deviation", {{"source", source}});
    return detail::answer("deviation", SignalProcessingWrapper::StdDev_32f(source.data(), detail::length(source),
        &deviation, true), detail::reason::memory);
}

/// product = sum of a[i] * b[i]
inline status dot_product(span<const float> a, span<const float> b, double& product)
{
    if (!detail::alike(a, b)) return detail::unlike<detail::stretch>("dot_product", {{"a", a}, {"b", b}});
    return detail::answer("dot_product", SignalProcessingWrapper::DotProd_32f(a.data(), b.data(), detail::length(a),
        &product), detail::reason::memory);
}

inline status dot_product(span<const double> a, span<const double> b, double& product)
{
    if (!detail::alike(a, b)) return detail::unlike<detail::stretch>("dot_product", {{"a", a}, {"b", b}});
    return detail::answer("dot_product", SignalProcessingWrapper::DotProd_64f(a.data(), b.data(), detail::length(a),
        &product), detail::reason::memory);
}

/// least = least of source[i]
inline status minimum(span<const unsigned char> source, unsigned char& least)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum", {{"source", source}});
    return detail::answer("minimum", SignalProcessingWrapper::Min_8u(source.data(), detail::length(source), &least),
        detail::reason::memory);
}

inline status minimum(span<const unsigned short> source, unsigned short& least)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum", {{"source", source}});
    return detail::answer("minimum", SignalProcessingWrapper::Min_16u(source.data(), detail::length(source), &least),
        detail::reason::memory);
}

inline status minimum(span<const int> source, int& least)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum", {{"source", source}});
    return detail::answer("minimum", SignalProcessingWrapper::Min_32s(source.data(), detail::length(source), &least),
        detail::reason::memory);
}

inline status minimum(span<const float> source, float& least)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum", {{"source", source}});
    return detail::answer("minimum", SignalProcessingWrapper::Min_32f(source.data(), detail::length(source), &least),
        detail::reason::memory);
}

inline status minimum(span<const double> source, double& least)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum", {{"source", source}});
    return detail::answer("minimum", SignalProcessingWrapper::Min_64f(source.data(), detail::length(source), &least),
        detail::reason::memory);
}

/// greatest = greatest of source[i]
inline status maximum(span<const unsigned char> source, unsigned char& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("maximum", {{"source", source}});
    return detail::answer("maximum", SignalProcessingWrapper::Max_8u(source.data(), detail::length(source),
        &greatest), detail::reason::memory);
}

inline status maximum(span<const unsigned short> source, unsigned short& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("maximum", {{"source", source}});
    return detail::answer("maximum", SignalProcessingWrapper::Max_16u(source.data(), detail::length(source),
        &greatest), detail::reason::memory);
}

inline status maximum(span<const int> source, int& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("maximum", {{"source", source}});
    return detail::answer("maximum", SignalProcessingWrapper::Max_32s(source.data(), detail::length(source),
        &greatest), detail::reason::memory);
}

inline status maximum(span<const float> source, float& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("maximum", {{"source", source}});
    return detail::answer("maximum", SignalProcessingWrapper::Max_32f(source.data(), detail::length(source),
        &greatest), detail::reason::memory);
}

inline status maximum(span<const double> source, double& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("maximum", {{"source", source}});
    return detail::answer("maximum", SignalProcessingWrapper::Max_64f(source.data(), detail::length(source),
        &greatest), detail::reason::memory);
}

/// Least and greatest of source[i]
inline status minimum_maximum(span<const unsigned char> source, unsigned char& least, unsigned char& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum_maximum", {{"source", source}});
    return detail::answer("minimum_maximum", SignalProcessingWrapper::MinMax_8u(source.data(), detail::length(source),
        &least, &greatest), detail::reason::memory);
}

inline status minimum_maximum(span<const unsigned short> source, unsigned short& least, unsigned short& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum_maximum", {{"source", source}});
    return detail::answer("minimum_maximum", SignalProcessingWrapper::MinMax_16u(source.data(),
        detail::length(source), &least, &greatest), detail::reason::memory);
}

inline status minimum_maximum(span<const int> source, int& least, int& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum_maximum", {{"source", source}});
    return detail::answer("minimum_maximum", SignalProcessingWrapper::MinMax_32s(source.data(),
        detail::length(source), &least, &greatest), detail::reason::memory);
}

inline status minimum_maximum(span<const float> source, float& least, float& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum_maximum", {{"source", source}});
    return detail::answer("minimum_maximum", SignalProcessingWrapper::MinMax_32f(source.data(),
        detail::length(source), &least, &greatest), detail::reason::memory);
}

inline status minimum_maximum(span<const double> source, double& least, double& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum_maximum", {{"source", source}});
    return detail::answer("minimum_maximum", SignalProcessingWrapper::MinMax_64f(source.data(),
        detail::length(source), &least, &greatest), detail::reason::memory);
}

/// least = least of source[i], index = the first place that has it
inline status minimum(span<const unsigned char> source, unsigned char& least, int& index)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum", {{"source", source}});
    return detail::answer("minimum", SignalProcessingWrapper::MinIndx_8u(source.data(), detail::length(source),
        &least, &index), detail::reason::memory);
}

inline status minimum(span<const unsigned short> source, unsigned short& least, int& index)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum", {{"source", source}});
    return detail::answer("minimum", SignalProcessingWrapper::MinIndx_16u(source.data(), detail::length(source),
        &least, &index), detail::reason::memory);
}

inline status minimum(span<const int> source, int& least, int& index)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum", {{"source", source}});
    return detail::answer("minimum", SignalProcessingWrapper::MinIndx_32s(source.data(), detail::length(source),
        &least, &index), detail::reason::memory);
}

inline status minimum(span<const float> source, float& least, int& index)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum", {{"source", source}});
    return detail::answer("minimum", SignalProcessingWrapper::MinIndx_32f(source.data(), detail::length(source),
        &least, &index), detail::reason::memory);
}

inline status minimum(span<const double> source, double& least, int& index)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("minimum", {{"source", source}});
    return detail::answer("minimum", SignalProcessingWrapper::MinIndx_64f(source.data(), detail::length(source),
        &least, &index), detail::reason::memory);
}

/// greatest = greatest of source[i], index = the first place that has it
inline status maximum(span<const unsigned char> source, unsigned char& greatest, int& index)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("maximum", {{"source", source}});
    return detail::answer("maximum", SignalProcessingWrapper::MaxIndx_8u(source.data(), detail::length(source),
        &greatest, &index), detail::reason::memory);
}

inline status maximum(span<const unsigned short> source, unsigned short& greatest, int& index)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("maximum", {{"source", source}});
    return detail::answer("maximum", SignalProcessingWrapper::MaxIndx_16u(source.data(), detail::length(source),
        &greatest, &index), detail::reason::memory);
}

inline status maximum(span<const int> source, int& greatest, int& index)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("maximum", {{"source", source}});
    return detail::answer("maximum", SignalProcessingWrapper::MaxIndx_32s(source.data(), detail::length(source),
        &greatest, &index), detail::reason::memory);
}

inline status maximum(span<const float> source, float& greatest, int& index)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("maximum", {{"source", source}});
    return detail::answer("maximum", SignalProcessingWrapper::MaxIndx_32f(source.data(), detail::length(source),
        &greatest, &index), detail::reason::memory);
}

inline status maximum(span<const double> source, double& greatest, int& index)
{
    if (!detail::alike(source)) return detail::unlike<detail::stretch>("maximum", {{"source", source}});
    return detail::answer("maximum", SignalProcessingWrapper::MaxIndx_64f(source.data(), detail::length(source),
        &greatest, &index), detail::reason::memory);
}

/// elements in ascending order
inline status sort(span<unsigned char> elements)
{
    if (!detail::alike(elements)) return detail::unlike<detail::stretch>("sort", {{"elements", elements}});
    return detail::answer("sort", SignalProcessingWrapper::SortAscend_8u_I(elements.data(), detail::length(elements)),
        detail::reason::memory);
}

inline status sort(span<unsigned short> elements)
{
    if (!detail::alike(elements)) return detail::unlike<detail::stretch>("sort", {{"elements", elements}});
    return detail::answer("sort", SignalProcessingWrapper::SortAscend_16u_I(elements.data(),
        detail::length(elements)), detail::reason::memory);
}

inline status sort(span<int> elements)
{
    if (!detail::alike(elements)) return detail::unlike<detail::stretch>("sort", {{"elements", elements}});
    return detail::answer("sort", SignalProcessingWrapper::SortAscend_32s_I(elements.data(),
        detail::length(elements)), detail::reason::memory);
}

inline status sort(span<float> elements)
{
    if (!detail::alike(elements)) return detail::unlike<detail::stretch>("sort", {{"elements", elements}});
    return detail::answer("sort", SignalProcessingWrapper::SortAscend_32f_I(elements.data(),
        detail::length(elements)), detail::reason::memory);
}

inline status sort(span<double> elements)
{
    if (!detail::alike(elements)) return detail::unlike<detail::stretch>("sort", {{"elements", elements}});
    return detail::answer("sort", SignalProcessingWrapper::SortAscend_64f_I(elements.data(),
        detail::length(elements)), detail::reason::memory);
}

/// elements in descending order
inline status sort_descending(span<unsigned char> elements)
{
    if (!detail::alike(elements)) return detail::unlike<detail::stretch>("sort_descending", {{"elements", elements}});
    return detail::answer("sort_descending", SignalProcessingWrapper::SortDescend_8u_I(elements.data(),
        detail::length(elements)), detail::reason::memory);
}

inline status sort_descending(span<unsigned short> elements)
{
    if (!detail::alike(elements)) return detail::unlike<detail::stretch>("sort_descending", {{"elements", elements}});
    return detail::answer("sort_descending", SignalProcessingWrapper::SortDescend_16u_I(elements.data(),
        detail::length(elements)), detail::reason::memory);
}

inline status sort_descending(span<int> elements)
{
    if (!detail::alike(elements)) return detail::unlike<detail::stretch>("sort_descending", {{"elements", elements}});
    return detail::answer("sort_descending", SignalProcessingWrapper::SortDescend_32s_I(elements.data(),
        detail::length(elements)), detail::reason::memory);
}

inline status sort_descending(span<float> elements)
{
    if (!detail::alike(elements)) return detail::unlike<detail::stretch>("sort_descending", {{"elements", elements}});
    return detail::answer("sort_descending", SignalProcessingWrapper::SortDescend_32f_I(elements.data(),
        detail::length(elements)), detail::reason::memory);
}

inline status sort_descending(span<double> elements)
{
    if (!detail::alike(elements)) return detail::unlike<detail::stretch>("sort_descending", {{"elements", elements}});
    return detail::answer("sort_descending", SignalProcessingWrapper::SortDescend_64f_I(elements.data(),
        detail::length(elements)), detail::reason::memory);
}

/// elements in ascending order; index = the places its elements had
inline status sort_index(span<unsigned char> elements, span<int> index)
{
    if (!detail::alike(elements, index)) return detail::unlike<detail::stretch>("sort_index", {{"elements", elements},
        {"index", index}});
    return detail::answer("sort_index", SignalProcessingWrapper::SortIndxAscend_8u_I(elements.data(), index.data(),
        detail::length(elements)), detail::reason::memory);
}

inline status sort_index(span<unsigned short> elements, span<int> index)
{
    if (!detail::alike(elements, index)) return detail::unlike<detail::stretch>("sort_index", {{"elements", elements},
        {"index", index}});
    return detail::answer("sort_index", SignalProcessingWrapper::SortIndxAscend_16u_I(elements.data(), index.data(),
        detail::length(elements)), detail::reason::memory);
}

inline status sort_index(span<int> elements, span<int> index)
{
    if (!detail::alike(elements, index)) return detail::unlike<detail::stretch>("sort_index", {{"elements", elements},
        {"index", index}});
    return detail::answer("sort_index", SignalProcessingWrapper::SortIndxAscend_32s_I(elements.data(), index.data(),
        detail::length(elements)), detail::reason::memory);
}

inline status sort_index(span<float> elements, span<int> index)
{
    if (!detail::alike(elements, index)) return detail::unlike<detail::stretch>("sort_index", {{"elements", elements},
        {"index", index}});
    return detail::answer("sort_index", SignalProcessingWrapper::SortIndxAscend_32f_I(elements.data(), index.data(),
        detail::length(elements)), detail::reason::memory);
}

inline status sort_index(span<double> elements, span<int> index)
{
    if (!detail::alike(elements, index)) return detail::unlike<detail::stretch>("sort_index", {{"elements", elements},
        {"index", index}});
    return detail::answer("sort_index", SignalProcessingWrapper::SortIndxAscend_64f_I(elements.data(), index.data(),
        detail::length(elements)), detail::reason::memory);
}

/// elements in descending order; index = the places its elements had
inline status sort_index_descending(span<unsigned char> elements, span<int> index)
{
    if (!detail::alike(elements, index)) return detail::unlike<detail::stretch>("sort_index_descending", {{"elements",
        elements}, {"index", index}});
    return detail::answer("sort_index_descending", SignalProcessingWrapper::SortIndxDescend_8u_I(elements.data(),
        index.data(), detail::length(elements)), detail::reason::memory);
}

inline status sort_index_descending(span<unsigned short> elements, span<int> index)
{
    if (!detail::alike(elements, index)) return detail::unlike<detail::stretch>("sort_index_descending", {{"elements",
        elements}, {"index", index}});
    return detail::answer("sort_index_descending", SignalProcessingWrapper::SortIndxDescend_16u_I(elements.data(),
        index.data(), detail::length(elements)), detail::reason::memory);
}

inline status sort_index_descending(span<int> elements, span<int> index)
{
    if (!detail::alike(elements, index)) return detail::unlike<detail::stretch>("sort_index_descending", {{"elements",
        elements}, {"index", index}});
    return detail::answer("sort_index_descending", SignalProcessingWrapper::SortIndxDescend_32s_I(elements.data(),
        index.data(), detail::length(elements)), detail::reason::memory);
}

inline status sort_index_descending(span<float> elements, span<int> index)
{
    if (!detail::alike(elements, index)) return detail::unlike<detail::stretch>("sort_index_descending", {{"elements",
        elements}, {"index", index}});
    return detail::answer("sort_index_descending", SignalProcessingWrapper::SortIndxDescend_32f_I(elements.data(),
        index.data(), detail::length(elements)), detail::reason::memory);
}

inline status sort_index_descending(span<double> elements, span<int> index)
{
    if (!detail::alike(elements, index)) return detail::unlike<detail::stretch>("sort_index_descending", {{"elements",
        elements}, {"index", index}});
    return detail::answer("sort_index_descending", SignalProcessingWrapper::SortIndxDescend_64f_I(elements.data(),
        index.data(), detail::length(elements)), detail::reason::memory);
}

/// destination = a * b, packed spectra
inline status multiply_packed(span<const float> a, span<const float> b, span<float> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::stretch>("multiply_packed", {{"a", a}, {"b",
        b}, {"destination", destination}});
    return detail::answer("multiply_packed", SignalProcessingWrapper::MulPack_32f(a.data(), b.data(),
        destination.data(), detail::length(a)), detail::reason::memory);
}

/// b = a * conj(b), packed spectra: the conjugate is that of the operand in place
inline status multiply_packed_conjugate(span<const float> a, span<float> b)
{
    if (!detail::alike(a, b)) return detail::unlike<detail::stretch>("multiply_packed_conjugate", {{"a", a}, {"b",
        b}});
    return detail::answer("multiply_packed_conjugate", SignalProcessingWrapper::MulPackConj_32f_I(a.data(), b.data(),
        detail::length(a)), detail::reason::memory);
}

/// destination = sqrt(real^2 + imaginary^2)
inline status magnitude(span<const float> real, span<const float> imaginary, span<float> destination)
{
    if (!detail::alike(real, imaginary, destination)) return detail::unlike<detail::stretch>("magnitude", {{"real",
        real}, {"imaginary", imaginary}, {"destination", destination}});
    return detail::answer("magnitude", SignalProcessingWrapper::Magnitude_32f(real.data(), imaginary.data(),
        destination.data(), detail::length(real)), detail::reason::memory);
}

/// destination = (real, imaginary), bit by bit; one of real and imaginary may be null, that part is then 0
inline status to_complex(span<const float> real, span<const float> imaginary, span<Complex32f> destination)
{
    if (!detail::alike(real, imaginary, destination)) return detail::unlike<detail::stretch>("to_complex", {{"real",
        real}, {"imaginary", imaginary}, {"destination", destination}});
    return detail::answer("to_complex", SignalProcessingWrapper::RealToCplx_32f(real.data(), imaginary.data(),
        destination.data(), detail::length(real)), detail::reason::memory);
}

/// destination = source * Hamming window
inline status hamming_window(span<const float> source, span<float> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::stretch>("hamming_window", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::filled("hamming_window", "source", source, 3, 0x7fffffff); !s) return s;
    return detail::answer("hamming_window", SignalProcessingWrapper::WinHamming_32f(source.data(), destination.data(),
        detail::length(source)), detail::reason::memory);
}

}  // namespace orvane

#endif
