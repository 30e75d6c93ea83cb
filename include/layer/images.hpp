// The operations, one overload for each type. Made from interface/table.toml by interface/generate.py.
#ifndef ORVANE_LAYER_IMAGES_HPP
#define ORVANE_LAYER_IMAGES_HPP

#include "../ImageProcessingWrapper.h"
#include "../Parts.h"
#include "requirements.hpp"

namespace orvane {

/// destination = source
inline status copy(view<const unsigned char, 1> source, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", ImageProcessingWrapper::Copy_8u_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status copy(view<const unsigned char, 3> source, view<unsigned char, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", ImageProcessingWrapper::Copy_8u_C3(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status copy(view<const unsigned char, 4> source, view<unsigned char, 4> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", ImageProcessingWrapper::Copy_8u_C4(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status copy(view<const unsigned short, 1> source, view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", ImageProcessingWrapper::Copy_16u_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status copy(view<const short, 1> source, view<short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", ImageProcessingWrapper::Copy_16s_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status copy(view<const int, 1> source, view<int, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", ImageProcessingWrapper::Copy_32s_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status copy(view<const float, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", ImageProcessingWrapper::Copy_32f_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status copy(view<const float, 3> source, view<float, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", ImageProcessingWrapper::Copy_32f_C3(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status copy(view<const float, 4> source, view<float, 4> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("copy", {{"source", source},
        {"destination", destination}});
    return detail::answer("copy", ImageProcessingWrapper::Copy_32f_C4(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status copy(view<const Complex32f, 1> source, view<Complex32f, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("copy", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("copy", "destination", destination, source); !s) return s;
    return detail::answer("copy", ImageProcessingWrapper::Copy_32fc_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

/// destination = value
inline status fill(view<unsigned char, 1> destination, const constant<unsigned char, 1>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::region>("fill", {{"destination", destination}});
    if (!value.held()) return detail::unheld("fill", "value", value);
    return detail::answer("fill", ImageProcessingWrapper::Set_8u_C1(value.one(), destination.data(),
        detail::step(destination), destination.width(), destination.height()), detail::reason::memory);
}

inline status fill(view<unsigned short, 1> destination, const constant<unsigned short, 1>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::region>("fill", {{"destination", destination}});
    if (!value.held()) return detail::unheld("fill", "value", value);
    return detail::answer("fill", ImageProcessingWrapper::Set_16u_C1(value.one(), destination.data(),
        detail::step(destination), destination.width(), destination.height()), detail::reason::memory);
}

inline status fill(view<short, 1> destination, const constant<short, 1>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::region>("fill", {{"destination", destination}});
    if (!value.held()) return detail::unheld("fill", "value", value);
    return detail::answer("fill", ImageProcessingWrapper::Set_16s_C1(value.one(), destination.data(),
        detail::step(destination), destination.width(), destination.height()), detail::reason::memory);
}

inline status fill(view<int, 1> destination, const constant<int, 1>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::region>("fill", {{"destination", destination}});
    if (!value.held()) return detail::unheld("fill", "value", value);
    return detail::answer("fill", ImageProcessingWrapper::Set_32s_C1(value.one(), destination.data(),
        detail::step(destination), destination.width(), destination.height()), detail::reason::memory);
}

inline status fill(view<float, 1> destination, const constant<float, 1>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::region>("fill", {{"destination", destination}});
    return detail::answer("fill", ImageProcessingWrapper::Set_32f_C1(value.one(), destination.data(),
        detail::step(destination), destination.width(), destination.height()), detail::reason::memory);
}

inline status fill(view<unsigned char, 3> destination, const constant<unsigned char, 3>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::region>("fill", {{"destination", destination}});
    if (!value.held()) return detail::unheld("fill", "value", value);
    return detail::answer("fill", ImageProcessingWrapper::Set_8u_C3(value.data(), destination.data(),
        detail::step(destination), destination.width(), destination.height()), detail::reason::memory);
}

inline status fill(view<unsigned char, 4> destination, const constant<unsigned char, 4>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::region>("fill", {{"destination", destination}});
    if (!value.held()) return detail::unheld("fill", "value", value);
    return detail::answer("fill", ImageProcessingWrapper::Set_8u_C4(value.data(), destination.data(),
        detail::step(destination), destination.width(), destination.height()), detail::reason::memory);
}

inline status fill(view<int, 3> destination, const constant<int, 3>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::region>("fill", {{"destination", destination}});
    if (!value.held()) return detail::unheld("fill", "value", value);
    return detail::answer("fill", ImageProcessingWrapper::Set_32s_C3(value.data(), destination.data(),
        detail::step(destination), destination.width(), destination.height()), detail::reason::memory);
}

inline status fill(view<int, 4> destination, const constant<int, 4>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::region>("fill", {{"destination", destination}});
    if (!value.held()) return detail::unheld("fill", "value", value);
    return detail::answer("fill", ImageProcessingWrapper::Set_32s_C4(value.data(), destination.data(),
        detail::step(destination), destination.width(), destination.height()), detail::reason::memory);
}

inline status fill(view<float, 3> destination, const constant<float, 3>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::region>("fill", {{"destination", destination}});
    return detail::answer("fill", ImageProcessingWrapper::Set_32f_C3(value.data(), destination.data(),
        detail::step(destination), destination.width(), destination.height()), detail::reason::memory);
}

inline status fill(view<float, 4> destination, const constant<float, 4>& value)
{
    if (!detail::alike(destination)) return detail::unlike<detail::region>("fill", {{"destination", destination}});
    return detail::answer("fill", ImageProcessingWrapper::Set_32f_C4(value.data(), destination.data(),
        detail::step(destination), destination.width(), destination.height()), detail::reason::memory);
}

/// destination = source
inline status convert(view<const unsigned char, 1> source, view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", ImageProcessingWrapper::Convert_8u16u_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status convert(view<const unsigned char, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", ImageProcessingWrapper::Convert_8u32f_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status convert(view<const unsigned char, 3> source, view<float, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", ImageProcessingWrapper::Convert_8u32f_C3(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status convert(view<const unsigned short, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", ImageProcessingWrapper::Convert_16u32f_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status convert(view<const float, 1> source, view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", ImageProcessingWrapper::Convert_32f16u_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status convert(view<const float, 3> source, view<unsigned char, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convert", {{"source", source},
        {"destination", destination}});
    return detail::answer("convert", ImageProcessingWrapper::Convert_32f8u_C3(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

/// image[k] = image[order[k]], k = 0 ... 2
inline status swap_channels(view<unsigned char, 3> image, const constant<int, 3>& order)
{
    if (!detail::alike(image)) return detail::unlike<detail::region>("swap_channels", {{"image", image}});
    if (!order.held()) return detail::unheld("swap_channels", "order", order);
    if (const status s = detail::channels("swap_channels", order); !s) return s;
    return detail::answer("swap_channels", ImageProcessingWrapper::SwapChannels_8u_C3IR(image.data(),
        detail::step(image), image.width(), image.height(), order.data()), detail::reason::memory);
}

inline status swap_channels(view<unsigned char, 4> image, const constant<int, 4>& order)
{
    if (!detail::alike(image)) return detail::unlike<detail::region>("swap_channels", {{"image", image}});
    if (!order.held()) return detail::unheld("swap_channels", "order", order);
    if (const status s = detail::channels("swap_channels", order); !s) return s;
    return detail::answer("swap_channels", ImageProcessingWrapper::SwapChannels_8u_C4IR(image.data(),
        detail::step(image), image.width(), image.height(), order.data()), detail::reason::memory);
}

/// destination(x, y) = source(y, x)
inline status transpose(view<const float, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("transpose", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("transpose", {{"destination",
        destination}});
    if (const status s = detail::sized("transpose", "destination", destination, source.height(),
        source.width()); !s) return s;
    return detail::answer("transpose", ImageProcessingWrapper::Transpose_32f_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

/// image mirrored about one of its axes
inline status mirror(view<unsigned short, 1> image, axis about = axis::vertical)
{
    if (!detail::alike(image)) return detail::unlike<detail::region>("mirror", {{"image", image}});
    if (const status s = detail::code("mirror", "about", static_cast<int>(about), 0x7); !s) return s;
    if (const status s = detail::mirrored("mirror", image, about); !s) return s;
    return detail::answer("mirror", ImageProcessingWrapper::Mirror_16u_C1I(image.data(), detail::step(image),
        image.width(), image.height(), static_cast<int>(about)), detail::reason::memory);
}

inline status mirror(view<unsigned char, 3> image, axis about = axis::vertical)
{
    if (!detail::alike(image)) return detail::unlike<detail::region>("mirror", {{"image", image}});
    if (const status s = detail::code("mirror", "about", static_cast<int>(about), 0x7); !s) return s;
    if (const status s = detail::mirrored("mirror", image, about); !s) return s;
    return detail::answer("mirror", ImageProcessingWrapper::Mirror_8u_C3I(image.data(), detail::step(image),
        image.width(), image.height(), static_cast<int>(about)), detail::reason::memory);
}

inline status mirror(view<unsigned char, 4> image, axis about = axis::vertical)
{
    if (!detail::alike(image)) return detail::unlike<detail::region>("mirror", {{"image", image}});
    if (const status s = detail::code("mirror", "about", static_cast<int>(about), 0x7); !s) return s;
    if (const status s = detail::mirrored("mirror", image, about); !s) return s;
    return detail::answer("mirror", ImageProcessingWrapper::Mirror_8u_C4I(image.data(), detail::step(image),
        image.width(), image.height(), static_cast<int>(about)), detail::reason::memory);
}

/// image with top and bottom exchanged, alpha kept
inline status mirror_horizontal(view<unsigned char, 4> image)
{
    if (!detail::alike(image)) return detail::unlike<detail::region>("mirror_horizontal", {{"image", image}});
    if (const status s = detail::mirrored("mirror_horizontal", image, axis::horizontal); !s) return s;
    return detail::answer("mirror_horizontal", ImageProcessingWrapper::MirrorHorizontal_8u_AC4IR(image.data(),
        detail::step(image), image.width(), image.height()), detail::reason::memory);
}

/// image with left and right exchanged, alpha kept
inline status mirror_vertical(view<unsigned char, 4> image)
{
    if (!detail::alike(image)) return detail::unlike<detail::region>("mirror_vertical", {{"image", image}});
    if (const status s = detail::mirrored("mirror_vertical", image, axis::vertical); !s) return s;
    return detail::answer("mirror_vertical", ImageProcessingWrapper::MirrorVertical_8u_AC4IR(image.data(),
        detail::step(image), image.width(), image.height()), detail::reason::memory);
}

/// image with both exchanged, alpha kept
inline status mirror_both(view<unsigned char, 4> image)
{
    if (!detail::alike(image)) return detail::unlike<detail::region>("mirror_both", {{"image", image}});
    if (const status s = detail::mirrored("mirror_both", image, axis::both); !s) return s;
    return detail::answer("mirror_both", ImageProcessingWrapper::MirrorBoth_8u_AC4IR(image.data(),
        detail::step(image), image.width(), image.height()), detail::reason::memory);
}

/// destination(x, y) = source(x - left, y - top), or value outside source
inline status extend_constant(view<const unsigned char, 1> source, view<unsigned char, 1> destination, int left,
                              int top, const constant<unsigned char, 1>& value)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("extend_constant", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("extend_constant", {{"destination",
        destination}});
    if (!value.held()) return detail::unheld("extend_constant", "value", value);
    if (const status s = detail::inside("extend_constant", source, destination, left, top); !s) return s;
    return detail::answer("extend_constant", ImageProcessingWrapper::CopyConstBorder_8u_C1(source.data(),
        detail::step(source), source.width(), source.height(), destination.data(), detail::step(destination),
        destination.width(), destination.height(), top, left, value.one()), detail::reason::memory);
}

inline status extend_constant(view<const unsigned char, 3> source, view<unsigned char, 3> destination, int left,
                              int top, const constant<unsigned char, 3>& value)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("extend_constant", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("extend_constant", {{"destination",
        destination}});
    if (!value.held()) return detail::unheld("extend_constant", "value", value);
    if (const status s = detail::inside("extend_constant", source, destination, left, top); !s) return s;
    return detail::answer("extend_constant", ImageProcessingWrapper::CopyConstBorder_8u_C3(source.data(),
        detail::step(source), source.width(), source.height(), destination.data(), detail::step(destination),
        destination.width(), destination.height(), top, left, value.data()), detail::reason::memory);
}

inline status extend_constant(view<const unsigned char, 4> source, view<unsigned char, 4> destination, int left,
                              int top, const constant<unsigned char, 4>& value)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("extend_constant", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("extend_constant", {{"destination",
        destination}});
    if (!value.held()) return detail::unheld("extend_constant", "value", value);
    if (const status s = detail::inside("extend_constant", source, destination, left, top); !s) return s;
    return detail::answer("extend_constant", ImageProcessingWrapper::CopyConstBorder_8u_C4(source.data(),
        detail::step(source), source.width(), source.height(), destination.data(), detail::step(destination),
        destination.width(), destination.height(), top, left, value.data()), detail::reason::memory);
}

inline status extend_constant(view<const unsigned short, 1> source, view<unsigned short, 1> destination, int left,
                              int top, const constant<unsigned short, 1>& value)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("extend_constant", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("extend_constant", {{"destination",
        destination}});
    if (!value.held()) return detail::unheld("extend_constant", "value", value);
    if (const status s = detail::inside("extend_constant", source, destination, left, top); !s) return s;
    return detail::answer("extend_constant", ImageProcessingWrapper::CopyConstBorder_16u_C1(source.data(),
        detail::step(source), source.width(), source.height(), destination.data(), detail::step(destination),
        destination.width(), destination.height(), top, left, value.one()), detail::reason::memory);
}

inline status extend_constant(view<const float, 1> source, view<float, 1> destination, int left, int top,
                              const constant<float, 1>& value)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("extend_constant", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("extend_constant", {{"destination",
        destination}});
    if (const status s = detail::inside("extend_constant", source, destination, left, top); !s) return s;
    return detail::answer("extend_constant", ImageProcessingWrapper::CopyConstBorder_32f_C1(source.data(),
        detail::step(source), source.width(), source.height(), destination.data(), detail::step(destination),
        destination.width(), destination.height(), top, left, value.one()), detail::reason::memory);
}

inline status extend_constant(view<const float, 3> source, view<float, 3> destination, int left, int top,
                              const constant<float, 3>& value)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("extend_constant", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("extend_constant", {{"destination",
        destination}});
    if (const status s = detail::inside("extend_constant", source, destination, left, top); !s) return s;
    return detail::answer("extend_constant", ImageProcessingWrapper::CopyConstBorder_32f_C3(source.data(),
        detail::step(source), source.width(), source.height(), destination.data(), detail::step(destination),
        destination.width(), destination.height(), top, left, value.data()), detail::reason::memory);
}

/// destination(x, y) = the pixel of source nearest to (x - left, y - top)
inline status extend_replicate(view<const unsigned char, 1> source, view<unsigned char, 1> destination, int left,
                               int top)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("extend_replicate", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("extend_replicate", {{"destination",
        destination}});
    if (const status s = detail::inside("extend_replicate", source, destination, left, top); !s) return s;
    return detail::answer("extend_replicate", ImageProcessingWrapper::CopyReplicateBorder_8u_C1(source.data(),
        detail::step(source), source.width(), source.height(), destination.data(), detail::step(destination),
        destination.width(), destination.height(), top, left), detail::reason::memory);
}

inline status extend_replicate(view<const unsigned char, 3> source, view<unsigned char, 3> destination, int left,
                               int top)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("extend_replicate", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("extend_replicate", {{"destination",
        destination}});
    if (const status s = detail::inside("extend_replicate", source, destination, left, top); !s) return s;
    return detail::answer("extend_replicate", ImageProcessingWrapper::CopyReplicateBorder_8u_C3(source.data(),
        detail::step(source), source.width(), source.height(), destination.data(), detail::step(destination),
        destination.width(), destination.height(), top, left), detail::reason::memory);
}

inline status extend_replicate(view<const unsigned char, 4> source, view<unsigned char, 4> destination, int left,
                               int top)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("extend_replicate", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("extend_replicate", {{"destination",
        destination}});
    if (const status s = detail::inside("extend_replicate", source, destination, left, top); !s) return s;
    return detail::answer("extend_replicate", ImageProcessingWrapper::CopyReplicateBorder_8u_C4(source.data(),
        detail::step(source), source.width(), source.height(), destination.data(), detail::step(destination),
        destination.width(), destination.height(), top, left), detail::reason::memory);
}

inline status extend_replicate(view<const unsigned short, 1> source, view<unsigned short, 1> destination, int left,
                               int top)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("extend_replicate", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("extend_replicate", {{"destination",
        destination}});
    if (const status s = detail::inside("extend_replicate", source, destination, left, top); !s) return s;
    return detail::answer("extend_replicate", ImageProcessingWrapper::CopyReplicateBorder_16u_C1(source.data(),
        detail::step(source), source.width(), source.height(), destination.data(), detail::step(destination),
        destination.width(), destination.height(), top, left), detail::reason::memory);
}

inline status extend_replicate(view<const float, 1> source, view<float, 1> destination, int left, int top)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("extend_replicate", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("extend_replicate", {{"destination",
        destination}});
    if (const status s = detail::inside("extend_replicate", source, destination, left, top); !s) return s;
    return detail::answer("extend_replicate", ImageProcessingWrapper::CopyReplicateBorder_32f_C1(source.data(),
        detail::step(source), source.width(), source.height(), destination.data(), detail::step(destination),
        destination.width(), destination.height(), top, left), detail::reason::memory);
}

inline status extend_replicate(view<const float, 3> source, view<float, 3> destination, int left, int top)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("extend_replicate", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("extend_replicate", {{"destination",
        destination}});
    if (const status s = detail::inside("extend_replicate", source, destination, left, top); !s) return s;
    return detail::answer("extend_replicate", ImageProcessingWrapper::CopyReplicateBorder_32f_C3(source.data(),
        detail::step(source), source.width(), source.height(), destination.data(), detail::step(destination),
        destination.width(), destination.height(), top, left), detail::reason::memory);
}

/// destination = scaled(a + b)
inline status add(view<const unsigned char, 1> a, view<const unsigned char, 1> b, view<unsigned char, 1> destination,
                  int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("add", ImageProcessingWrapper::Add_8u_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status add(view<const unsigned char, 3> a, view<const unsigned char, 3> b, view<unsigned char, 3> destination,
                  int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("add", ImageProcessingWrapper::Add_8u_C3(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status add(view<const unsigned char, 4> a, view<const unsigned char, 4> b, view<unsigned char, 4> destination,
                  int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("add", ImageProcessingWrapper::Add_8u_C4(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status add(view<const unsigned short, 1> a, view<const unsigned short, 1> b,
                  view<unsigned short, 1> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("add", ImageProcessingWrapper::Add_16u_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status add(view<const short, 1> a, view<const short, 1> b, view<short, 1> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("add", ImageProcessingWrapper::Add_16s_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status add(view<const float, 1> a, view<const float, 1> b, view<float, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("add", ImageProcessingWrapper::Add_32f_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status add(view<const float, 3> a, view<const float, 3> b, view<float, 3> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("add", ImageProcessingWrapper::Add_32f_C3(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status add(view<const Complex32f, 1> a, view<const Complex32f, 1> b, view<Complex32f, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("add", {{"a", a}, {"b", b},
        {"destination", destination}});
    if (const status s = detail::whole("add", "destination", destination, a); !s) return s;
    if (const status s = detail::whole("add", "destination", destination, b); !s) return s;
    return detail::answer("add", ImageProcessingWrapper::Add_32fc_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

/// destination = scaled(source + value)
inline status add(view<const unsigned char, 1> source, const constant<unsigned char, 1>& value,
                  view<unsigned char, 1> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("add", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("add", "value", value);
    return detail::answer("add", ImageProcessingWrapper::AddC_8u_C1(source.data(), detail::step(source), value.one(),
        destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status add(view<const unsigned char, 3> source, const constant<unsigned char, 3>& value,
                  view<unsigned char, 3> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("add", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("add", "value", value);
    return detail::answer("add", ImageProcessingWrapper::AddC_8u_C3(source.data(), detail::step(source), value.data(),
        destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status add(view<const unsigned char, 4> source, const constant<unsigned char, 4>& value,
                  view<unsigned char, 4> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("add", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("add", "value", value);
    return detail::answer("add", ImageProcessingWrapper::AddC_8u_C4(source.data(), detail::step(source), value.data(),
        destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status add(view<const unsigned short, 1> source, const constant<unsigned short, 1>& value,
                  view<unsigned short, 1> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("add", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("add", "value", value);
    return detail::answer("add", ImageProcessingWrapper::AddC_16u_C1(source.data(), detail::step(source), value.one(),
        destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status add(view<const short, 1> source, const constant<short, 1>& value, view<short, 1> destination,
                  int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("add", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("add", "value", value);
    return detail::answer("add", ImageProcessingWrapper::AddC_16s_C1(source.data(), detail::step(source), value.one(),
        destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status add(view<const float, 1> source, const constant<float, 1>& value, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("add", {{"source", source},
        {"destination", destination}});
    return detail::answer("add", ImageProcessingWrapper::AddC_32f_C1(source.data(), detail::step(source), value.one(),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status add(view<const float, 3> source, const constant<float, 3>& value, view<float, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("add", {{"source", source},
        {"destination", destination}});
    return detail::answer("add", ImageProcessingWrapper::AddC_32f_C3(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status add(view<const Complex32f, 1> source, const constant<Complex32f, 1>& value,
                  view<Complex32f, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("add", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("add", "destination", destination, source); !s) return s;
    return detail::answer("add", ImageProcessingWrapper::AddC_32fc_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = scaled(a - b)
inline status subtract(view<const unsigned char, 1> a, view<const unsigned char, 1> b,
                       view<unsigned char, 1> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("subtract", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("subtract", ImageProcessingWrapper::Sub_8u_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status subtract(view<const unsigned char, 3> a, view<const unsigned char, 3> b,
                       view<unsigned char, 3> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("subtract", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("subtract", ImageProcessingWrapper::Sub_8u_C3(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status subtract(view<const unsigned char, 4> a, view<const unsigned char, 4> b,
                       view<unsigned char, 4> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("subtract", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("subtract", ImageProcessingWrapper::Sub_8u_C4(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status subtract(view<const unsigned short, 1> a, view<const unsigned short, 1> b,
                       view<unsigned short, 1> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("subtract", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("subtract", ImageProcessingWrapper::Sub_16u_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status subtract(view<const short, 1> a, view<const short, 1> b, view<short, 1> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("subtract", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("subtract", ImageProcessingWrapper::Sub_16s_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status subtract(view<const float, 1> a, view<const float, 1> b, view<float, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("subtract", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("subtract", ImageProcessingWrapper::Sub_32f_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status subtract(view<const float, 3> a, view<const float, 3> b, view<float, 3> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("subtract", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("subtract", ImageProcessingWrapper::Sub_32f_C3(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status subtract(view<const Complex32f, 1> a, view<const Complex32f, 1> b, view<Complex32f, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("subtract", {{"a", a}, {"b", b},
        {"destination", destination}});
    if (const status s = detail::whole("subtract", "destination", destination, a); !s) return s;
    if (const status s = detail::whole("subtract", "destination", destination, b); !s) return s;
    return detail::answer("subtract", ImageProcessingWrapper::Sub_32fc_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

/// destination = scaled(source - value)
inline status subtract(view<const unsigned char, 1> source, const constant<unsigned char, 1>& value,
                       view<unsigned char, 1> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("subtract", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("subtract", "value", value);
    return detail::answer("subtract", ImageProcessingWrapper::SubC_8u_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status subtract(view<const unsigned char, 3> source, const constant<unsigned char, 3>& value,
                       view<unsigned char, 3> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("subtract", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("subtract", "value", value);
    return detail::answer("subtract", ImageProcessingWrapper::SubC_8u_C3(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status subtract(view<const unsigned char, 4> source, const constant<unsigned char, 4>& value,
                       view<unsigned char, 4> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("subtract", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("subtract", "value", value);
    return detail::answer("subtract", ImageProcessingWrapper::SubC_8u_C4(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status subtract(view<const unsigned short, 1> source, const constant<unsigned short, 1>& value,
                       view<unsigned short, 1> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("subtract", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("subtract", "value", value);
    return detail::answer("subtract", ImageProcessingWrapper::SubC_16u_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status subtract(view<const short, 1> source, const constant<short, 1>& value, view<short, 1> destination,
                       int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("subtract", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("subtract", "value", value);
    return detail::answer("subtract", ImageProcessingWrapper::SubC_16s_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status subtract(view<const float, 1> source, const constant<float, 1>& value, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("subtract", {{"source", source},
        {"destination", destination}});
    return detail::answer("subtract", ImageProcessingWrapper::SubC_32f_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status subtract(view<const float, 3> source, const constant<float, 3>& value, view<float, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("subtract", {{"source", source},
        {"destination", destination}});
    return detail::answer("subtract", ImageProcessingWrapper::SubC_32f_C3(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status subtract(view<const Complex32f, 1> source, const constant<Complex32f, 1>& value,
                       view<Complex32f, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("subtract", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("subtract", "destination", destination, source); !s) return s;
    return detail::answer("subtract", ImageProcessingWrapper::SubC_32fc_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = scaled(a * b)
inline status multiply(view<const unsigned char, 1> a, view<const unsigned char, 1> b,
                       view<unsigned char, 1> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("multiply", ImageProcessingWrapper::Mul_8u_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status multiply(view<const unsigned char, 3> a, view<const unsigned char, 3> b,
                       view<unsigned char, 3> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("multiply", ImageProcessingWrapper::Mul_8u_C3(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status multiply(view<const unsigned char, 4> a, view<const unsigned char, 4> b,
                       view<unsigned char, 4> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("multiply", ImageProcessingWrapper::Mul_8u_C4(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status multiply(view<const unsigned short, 1> a, view<const unsigned short, 1> b,
                       view<unsigned short, 1> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("multiply", ImageProcessingWrapper::Mul_16u_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status multiply(view<const short, 1> a, view<const short, 1> b, view<short, 1> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("multiply", ImageProcessingWrapper::Mul_16s_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::memory);
}

inline status multiply(view<const float, 1> a, view<const float, 1> b, view<float, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("multiply", ImageProcessingWrapper::Mul_32f_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status multiply(view<const float, 3> a, view<const float, 3> b, view<float, 3> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("multiply", ImageProcessingWrapper::Mul_32f_C3(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status multiply(view<const Complex32f, 1> a, view<const Complex32f, 1> b, view<Complex32f, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("multiply", {{"a", a}, {"b", b},
        {"destination", destination}});
    if (const status s = detail::whole("multiply", "destination", destination, a); !s) return s;
    if (const status s = detail::whole("multiply", "destination", destination, b); !s) return s;
    return detail::answer("multiply", ImageProcessingWrapper::Mul_32fc_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

/// destination = scaled(source * value)
inline status multiply(view<const unsigned char, 1> source, const constant<unsigned char, 1>& value,
                       view<unsigned char, 1> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("multiply", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("multiply", "value", value);
    return detail::answer("multiply", ImageProcessingWrapper::MulC_8u_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status multiply(view<const unsigned char, 3> source, const constant<unsigned char, 3>& value,
                       view<unsigned char, 3> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("multiply", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("multiply", "value", value);
    return detail::answer("multiply", ImageProcessingWrapper::MulC_8u_C3(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status multiply(view<const unsigned char, 4> source, const constant<unsigned char, 4>& value,
                       view<unsigned char, 4> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("multiply", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("multiply", "value", value);
    return detail::answer("multiply", ImageProcessingWrapper::MulC_8u_C4(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status multiply(view<const unsigned short, 1> source, const constant<unsigned short, 1>& value,
                       view<unsigned short, 1> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("multiply", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("multiply", "value", value);
    return detail::answer("multiply", ImageProcessingWrapper::MulC_16u_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status multiply(view<const short, 1> source, const constant<short, 1>& value, view<short, 1> destination,
                       int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("multiply", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("multiply", "value", value);
    return detail::answer("multiply", ImageProcessingWrapper::MulC_16s_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::memory);
}

inline status multiply(view<const float, 1> source, const constant<float, 1>& value, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("multiply", {{"source", source},
        {"destination", destination}});
    return detail::answer("multiply", ImageProcessingWrapper::MulC_32f_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status multiply(view<const float, 3> source, const constant<float, 3>& value, view<float, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("multiply", {{"source", source},
        {"destination", destination}});
    return detail::answer("multiply", ImageProcessingWrapper::MulC_32f_C3(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status multiply(view<const Complex32f, 1> source, const constant<Complex32f, 1>& value,
                       view<Complex32f, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("multiply", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("multiply", "destination", destination, source); !s) return s;
    return detail::answer("multiply", ImageProcessingWrapper::MulC_32fc_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = scaled(a / b)
inline status divide(view<const unsigned char, 1> a, view<const unsigned char, 1> b,
                     view<unsigned char, 1> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    if (const status s = detail::whole("divide", "destination", destination, a); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, b); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::Div_8u_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::division_by_zero);
}

inline status divide(view<const unsigned char, 3> a, view<const unsigned char, 3> b,
                     view<unsigned char, 3> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    if (const status s = detail::whole("divide", "destination", destination, a); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, b); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::Div_8u_C3(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::division_by_zero);
}

inline status divide(view<const unsigned char, 4> a, view<const unsigned char, 4> b,
                     view<unsigned char, 4> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    if (const status s = detail::whole("divide", "destination", destination, a); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, b); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::Div_8u_C4(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::division_by_zero);
}

inline status divide(view<const unsigned short, 1> a, view<const unsigned short, 1> b,
                     view<unsigned short, 1> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    if (const status s = detail::whole("divide", "destination", destination, a); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, b); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::Div_16u_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::division_by_zero);
}

inline status divide(view<const short, 1> a, view<const short, 1> b, view<short, 1> destination, int scale = 0)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    if (const status s = detail::whole("divide", "destination", destination, a); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, b); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::Div_16s_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height(), scale),
        detail::reason::division_by_zero);
}

inline status divide(view<const float, 1> a, view<const float, 1> b, view<float, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    if (const status s = detail::whole("divide", "destination", destination, a); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, b); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::Div_32f_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::division_by_zero);
}

inline status divide(view<const float, 3> a, view<const float, 3> b, view<float, 3> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    if (const status s = detail::whole("divide", "destination", destination, a); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, b); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::Div_32f_C3(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::division_by_zero);
}

inline status divide(view<const Complex32f, 1> a, view<const Complex32f, 1> b, view<Complex32f, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("divide", {{"a", a}, {"b", b},
        {"destination", destination}});
    if (const status s = detail::whole("divide", "destination", destination, a); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, b); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::Div_32fc_C1(b.data(), detail::step(b), a.data(),
        detail::step(a), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::division_by_zero);
}

/// destination = scaled(source / value)
inline status divide(view<const unsigned char, 1> source, const constant<unsigned char, 1>& value,
                     view<unsigned char, 1> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("divide", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("divide", "value", value);
    if (const status s = detail::divisor("divide", "value", value); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, source); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::DivC_8u_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::division_by_zero);
}

inline status divide(view<const unsigned char, 3> source, const constant<unsigned char, 3>& value,
                     view<unsigned char, 3> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("divide", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("divide", "value", value);
    if (const status s = detail::divisor("divide", "value", value); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, source); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::DivC_8u_C3(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::division_by_zero);
}

inline status divide(view<const unsigned char, 4> source, const constant<unsigned char, 4>& value,
                     view<unsigned char, 4> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("divide", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("divide", "value", value);
    if (const status s = detail::divisor("divide", "value", value); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, source); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::DivC_8u_C4(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::division_by_zero);
}

inline status divide(view<const unsigned short, 1> source, const constant<unsigned short, 1>& value,
                     view<unsigned short, 1> destination, int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("divide", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("divide", "value", value);
    if (const status s = detail::divisor("divide", "value", value); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, source); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::DivC_16u_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::division_by_zero);
}

inline status divide(view<const short, 1> source, const constant<short, 1>& value, view<short, 1> destination,
                     int scale = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("divide", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("divide", "value", value);
    if (const status s = detail::divisor("divide", "value", value); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, source); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::DivC_16s_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height(), scale),
        detail::reason::division_by_zero);
}

inline status divide(view<const float, 1> source, const constant<float, 1>& value, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("divide", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::divisor("divide", "value", value); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, source); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::DivC_32f_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::division_by_zero);
}

inline status divide(view<const float, 3> source, const constant<float, 3>& value, view<float, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("divide", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::divisor("divide", "value", value); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, source); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::DivC_32f_C3(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::division_by_zero);
}

inline status divide(view<const Complex32f, 1> source, const constant<Complex32f, 1>& value,
                     view<Complex32f, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("divide", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::divisor("divide", "value", value); !s) return s;
    if (const status s = detail::whole("divide", "destination", destination, source); !s) return s;
    return detail::answer("divide", ImageProcessingWrapper::DivC_32fc_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::division_by_zero);
}

/// sum = sum + a * b, without a temporary
inline status add_product(view<const unsigned short, 1> a, view<const unsigned short, 1> b, view<float, 1> sum)
{
    if (!detail::alike(a, b, sum)) return detail::unlike<detail::region>("add_product", {{"a", a}, {"b", b}, {"sum",
        sum}});
    return detail::answer("add_product", ImageProcessingWrapper::AddProduct_16u32f_C1I(a.data(), detail::step(a),
        b.data(), detail::step(b), sum.data(), detail::step(sum), a.width(), a.height()), detail::reason::memory);
}

/// image = max(source, image), without a temporary
inline status larger(view<const float, 1> source, view<float, 1> image)
{
    if (!detail::alike(source, image)) return detail::unlike<detail::region>("larger", {{"source", source}, {"image",
        image}});
    return detail::answer("larger", ImageProcessingWrapper::MaxEvery_32f_C1I(source.data(), detail::step(source),
        image.data(), detail::step(image), source.width(), source.height()), detail::reason::memory);
}

/// image = min(source, image), without a temporary
inline status smaller(view<const float, 1> source, view<float, 1> image)
{
    if (!detail::alike(source, image)) return detail::unlike<detail::region>("smaller", {{"source", source}, {"image",
        image}});
    return detail::answer("smaller", ImageProcessingWrapper::MinEvery_32f_C1I(source.data(), detail::step(source),
        image.data(), detail::step(image), source.width(), source.height()), detail::reason::memory);
}

/// destination = |source|
inline status absolute(view<const float, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("absolute", {{"source", source},
        {"destination", destination}});
    return detail::answer("absolute", ImageProcessingWrapper::Abs_32f_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status absolute(view<const float, 3> source, view<float, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("absolute", {{"source", source},
        {"destination", destination}});
    return detail::answer("absolute", ImageProcessingWrapper::Abs_32f_C3(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

/// destination = e^source
inline status exponential(view<const float, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("exponential", {{"source", source},
        {"destination", destination}});
    return detail::answer("exponential", ImageProcessingWrapper::Exp_32f_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

/// destination = a & b
inline status bit_and(view<const unsigned char, 1> a, view<const unsigned char, 1> b,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_and", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_and", ImageProcessingWrapper::And_8u_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status bit_and(view<const unsigned char, 3> a, view<const unsigned char, 3> b,
                      view<unsigned char, 3> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_and", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_and", ImageProcessingWrapper::And_8u_C3(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status bit_and(view<const unsigned char, 4> a, view<const unsigned char, 4> b,
                      view<unsigned char, 4> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_and", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_and", ImageProcessingWrapper::And_8u_C4(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status bit_and(view<const unsigned short, 1> a, view<const unsigned short, 1> b,
                      view<unsigned short, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_and", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_and", ImageProcessingWrapper::And_16u_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status bit_and(view<const int, 1> a, view<const int, 1> b, view<int, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_and", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_and", ImageProcessingWrapper::And_32s_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

/// destination = source & value
inline status bit_and(view<const unsigned char, 1> source, const constant<unsigned char, 1>& value,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_and", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_and", "value", value);
    return detail::answer("bit_and", ImageProcessingWrapper::AndC_8u_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status bit_and(view<const unsigned char, 3> source, const constant<unsigned char, 3>& value,
                      view<unsigned char, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_and", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_and", "value", value);
    return detail::answer("bit_and", ImageProcessingWrapper::AndC_8u_C3(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status bit_and(view<const unsigned char, 4> source, const constant<unsigned char, 4>& value,
                      view<unsigned char, 4> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_and", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_and", "value", value);
    return detail::answer("bit_and", ImageProcessingWrapper::AndC_8u_C4(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status bit_and(view<const unsigned short, 1> source, const constant<unsigned short, 1>& value,
                      view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_and", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_and", "value", value);
    return detail::answer("bit_and", ImageProcessingWrapper::AndC_16u_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status bit_and(view<const int, 1> source, const constant<int, 1>& value, view<int, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_and", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_and", "value", value);
    return detail::answer("bit_and", ImageProcessingWrapper::AndC_32s_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = a | b
inline status bit_or(view<const unsigned char, 1> a, view<const unsigned char, 1> b,
                     view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_or", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_or", ImageProcessingWrapper::Or_8u_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status bit_or(view<const unsigned char, 3> a, view<const unsigned char, 3> b,
                     view<unsigned char, 3> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_or", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_or", ImageProcessingWrapper::Or_8u_C3(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status bit_or(view<const unsigned char, 4> a, view<const unsigned char, 4> b,
                     view<unsigned char, 4> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_or", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_or", ImageProcessingWrapper::Or_8u_C4(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status bit_or(view<const unsigned short, 1> a, view<const unsigned short, 1> b,
                     view<unsigned short, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_or", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_or", ImageProcessingWrapper::Or_16u_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status bit_or(view<const int, 1> a, view<const int, 1> b, view<int, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_or", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_or", ImageProcessingWrapper::Or_32s_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

/// destination = source | value
inline status bit_or(view<const unsigned char, 1> source, const constant<unsigned char, 1>& value,
                     view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_or", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_or", "value", value);
    return detail::answer("bit_or", ImageProcessingWrapper::OrC_8u_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status bit_or(view<const unsigned char, 3> source, const constant<unsigned char, 3>& value,
                     view<unsigned char, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_or", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_or", "value", value);
    return detail::answer("bit_or", ImageProcessingWrapper::OrC_8u_C3(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status bit_or(view<const unsigned char, 4> source, const constant<unsigned char, 4>& value,
                     view<unsigned char, 4> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_or", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_or", "value", value);
    return detail::answer("bit_or", ImageProcessingWrapper::OrC_8u_C4(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status bit_or(view<const unsigned short, 1> source, const constant<unsigned short, 1>& value,
                     view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_or", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_or", "value", value);
    return detail::answer("bit_or", ImageProcessingWrapper::OrC_16u_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status bit_or(view<const int, 1> source, const constant<int, 1>& value, view<int, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_or", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_or", "value", value);
    return detail::answer("bit_or", ImageProcessingWrapper::OrC_32s_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = a ^ b
inline status bit_xor(view<const unsigned char, 1> a, view<const unsigned char, 1> b,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_xor", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_xor", ImageProcessingWrapper::Xor_8u_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status bit_xor(view<const unsigned char, 3> a, view<const unsigned char, 3> b,
                      view<unsigned char, 3> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_xor", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_xor", ImageProcessingWrapper::Xor_8u_C3(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status bit_xor(view<const unsigned char, 4> a, view<const unsigned char, 4> b,
                      view<unsigned char, 4> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_xor", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_xor", ImageProcessingWrapper::Xor_8u_C4(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status bit_xor(view<const unsigned short, 1> a, view<const unsigned short, 1> b,
                      view<unsigned short, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_xor", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_xor", ImageProcessingWrapper::Xor_16u_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status bit_xor(view<const int, 1> a, view<const int, 1> b, view<int, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("bit_xor", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("bit_xor", ImageProcessingWrapper::Xor_32s_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

/// destination = source ^ value
inline status bit_xor(view<const unsigned char, 1> source, const constant<unsigned char, 1>& value,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_xor", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_xor", "value", value);
    return detail::answer("bit_xor", ImageProcessingWrapper::XorC_8u_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status bit_xor(view<const unsigned char, 3> source, const constant<unsigned char, 3>& value,
                      view<unsigned char, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_xor", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_xor", "value", value);
    return detail::answer("bit_xor", ImageProcessingWrapper::XorC_8u_C3(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status bit_xor(view<const unsigned char, 4> source, const constant<unsigned char, 4>& value,
                      view<unsigned char, 4> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_xor", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_xor", "value", value);
    return detail::answer("bit_xor", ImageProcessingWrapper::XorC_8u_C4(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status bit_xor(view<const unsigned short, 1> source, const constant<unsigned short, 1>& value,
                      view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_xor", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_xor", "value", value);
    return detail::answer("bit_xor", ImageProcessingWrapper::XorC_16u_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status bit_xor(view<const int, 1> source, const constant<int, 1>& value, view<int, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_xor", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("bit_xor", "value", value);
    return detail::answer("bit_xor", ImageProcessingWrapper::XorC_32s_C1(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = ~source
inline status bit_not(view<const unsigned char, 1> source, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_not", {{"source", source},
        {"destination", destination}});
    return detail::answer("bit_not", ImageProcessingWrapper::Not_8u_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status bit_not(view<const unsigned char, 3> source, view<unsigned char, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_not", {{"source", source},
        {"destination", destination}});
    return detail::answer("bit_not", ImageProcessingWrapper::Not_8u_C3(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status bit_not(view<const unsigned char, 4> source, view<unsigned char, 4> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bit_not", {{"source", source},
        {"destination", destination}});
    return detail::answer("bit_not", ImageProcessingWrapper::Not_8u_C4(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

/// destination = source << count
inline status left_shift(view<const unsigned char, 1> source, const constant<unsigned int, 1>& count,
                         view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("left_shift", {{"source", source},
        {"destination", destination}});
    if (!count.held()) return detail::unheld("left_shift", "count", count);
    return detail::answer("left_shift", ImageProcessingWrapper::LShiftC_8u_C1R(source.data(), detail::step(source),
        count.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status left_shift(view<const unsigned char, 3> source, const constant<unsigned int, 3>& count,
                         view<unsigned char, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("left_shift", {{"source", source},
        {"destination", destination}});
    if (!count.held()) return detail::unheld("left_shift", "count", count);
    return detail::answer("left_shift", ImageProcessingWrapper::LShiftC_8u_C3R(source.data(), detail::step(source),
        count.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status left_shift(view<const unsigned char, 4> source, const constant<unsigned int, 4>& count,
                         view<unsigned char, 4> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("left_shift", {{"source", source},
        {"destination", destination}});
    if (!count.held()) return detail::unheld("left_shift", "count", count);
    return detail::answer("left_shift", ImageProcessingWrapper::LShiftC_8u_C4R(source.data(), detail::step(source),
        count.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status left_shift(view<const unsigned short, 1> source, const constant<unsigned int, 1>& count,
                         view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("left_shift", {{"source", source},
        {"destination", destination}});
    if (!count.held()) return detail::unheld("left_shift", "count", count);
    return detail::answer("left_shift", ImageProcessingWrapper::LShiftC_16u_C1R(source.data(), detail::step(source),
        count.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status left_shift(view<const int, 1> source, const constant<unsigned int, 1>& count, view<int, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("left_shift", {{"source", source},
        {"destination", destination}});
    if (!count.held()) return detail::unheld("left_shift", "count", count);
    return detail::answer("left_shift", ImageProcessingWrapper::LShiftC_32s_C1R(source.data(), detail::step(source),
        count.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = source >> count
inline status right_shift(view<const unsigned char, 1> source, const constant<unsigned int, 1>& count,
                          view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("right_shift", {{"source", source},
        {"destination", destination}});
    if (!count.held()) return detail::unheld("right_shift", "count", count);
    return detail::answer("right_shift", ImageProcessingWrapper::RShiftC_8u_C1R(source.data(), detail::step(source),
        count.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status right_shift(view<const unsigned char, 3> source, const constant<unsigned int, 3>& count,
                          view<unsigned char, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("right_shift", {{"source", source},
        {"destination", destination}});
    if (!count.held()) return detail::unheld("right_shift", "count", count);
    return detail::answer("right_shift", ImageProcessingWrapper::RShiftC_8u_C3R(source.data(), detail::step(source),
        count.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status right_shift(view<const unsigned char, 4> source, const constant<unsigned int, 4>& count,
                          view<unsigned char, 4> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("right_shift", {{"source", source},
        {"destination", destination}});
    if (!count.held()) return detail::unheld("right_shift", "count", count);
    return detail::answer("right_shift", ImageProcessingWrapper::RShiftC_8u_C4R(source.data(), detail::step(source),
        count.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status right_shift(view<const unsigned short, 1> source, const constant<unsigned int, 1>& count,
                          view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("right_shift", {{"source", source},
        {"destination", destination}});
    if (!count.held()) return detail::unheld("right_shift", "count", count);
    return detail::answer("right_shift", ImageProcessingWrapper::RShiftC_16u_C1R(source.data(), detail::step(source),
        count.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status right_shift(view<const short, 1> source, const constant<unsigned int, 1>& count,
                          view<short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("right_shift", {{"source", source},
        {"destination", destination}});
    if (!count.held()) return detail::unheld("right_shift", "count", count);
    return detail::answer("right_shift", ImageProcessingWrapper::RShiftC_16s_C1R(source.data(), detail::step(source),
        count.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status right_shift(view<const int, 1> source, const constant<unsigned int, 1>& count, view<int, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("right_shift", {{"source", source},
        {"destination", destination}});
    if (!count.held()) return detail::unheld("right_shift", "count", count);
    return detail::answer("right_shift", ImageProcessingWrapper::RShiftC_32s_C1R(source.data(), detail::step(source),
        count.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = 255 where a < b, else 0
inline status less(view<const unsigned char, 1> a, view<const unsigned char, 1> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less", ImageProcessingWrapper::CompareLess_8u_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status less(view<const unsigned char, 3> a, view<const unsigned char, 3> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less", ImageProcessingWrapper::CompareLess_8u_C3(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status less(view<const unsigned char, 4> a, view<const unsigned char, 4> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less", ImageProcessingWrapper::CompareLess_8u_C4(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status less(view<const unsigned short, 1> a, view<const unsigned short, 1> b,
                   view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less", ImageProcessingWrapper::CompareLess_16u_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status less(view<const short, 1> a, view<const short, 1> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less", ImageProcessingWrapper::CompareLess_16s_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status less(view<const float, 1> a, view<const float, 1> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less", ImageProcessingWrapper::CompareLess_32f_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status less(view<const float, 3> a, view<const float, 3> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less", ImageProcessingWrapper::CompareLess_32f_C3(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

/// destination = 255 where source < value, else 0
inline status less(view<const unsigned char, 1> source, const constant<unsigned char, 1>& value,
                   view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("less", "value", value);
    return detail::answer("less", ImageProcessingWrapper::CompareCLess_8u_C1R(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status less(view<const unsigned char, 3> source, const constant<unsigned char, 3>& value,
                   view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("less", "value", value);
    return detail::answer("less", ImageProcessingWrapper::CompareCLess_8u_C3R(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status less(view<const unsigned char, 4> source, const constant<unsigned char, 4>& value,
                   view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("less", "value", value);
    return detail::answer("less", ImageProcessingWrapper::CompareCLess_8u_C4R(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status less(view<const unsigned short, 1> source, const constant<unsigned short, 1>& value,
                   view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("less", "value", value);
    return detail::answer("less", ImageProcessingWrapper::CompareCLess_16u_C1R(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status less(view<const short, 1> source, const constant<short, 1>& value, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("less", "value", value);
    return detail::answer("less", ImageProcessingWrapper::CompareCLess_16s_C1R(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status less(view<const float, 1> source, const constant<float, 1>& value, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less", {{"source", source},
        {"destination", destination}});
    return detail::answer("less", ImageProcessingWrapper::CompareCLess_32f_C1R(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status less(view<const float, 3> source, const constant<float, 3>& value, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less", {{"source", source},
        {"destination", destination}});
    return detail::answer("less", ImageProcessingWrapper::CompareCLess_32f_C3R(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = 255 where a <= b, else 0
inline status less_equal(view<const unsigned char, 1> a, view<const unsigned char, 1> b,
                         view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less_equal", ImageProcessingWrapper::CompareLessEq_8u_C1(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status less_equal(view<const unsigned char, 3> a, view<const unsigned char, 3> b,
                         view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less_equal", ImageProcessingWrapper::CompareLessEq_8u_C3(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status less_equal(view<const unsigned char, 4> a, view<const unsigned char, 4> b,
                         view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less_equal", ImageProcessingWrapper::CompareLessEq_8u_C4(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status less_equal(view<const unsigned short, 1> a, view<const unsigned short, 1> b,
                         view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less_equal", ImageProcessingWrapper::CompareLessEq_16u_C1(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status less_equal(view<const short, 1> a, view<const short, 1> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less_equal", ImageProcessingWrapper::CompareLessEq_16s_C1(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status less_equal(view<const float, 1> a, view<const float, 1> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less_equal", ImageProcessingWrapper::CompareLessEq_32f_C1(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status less_equal(view<const float, 3> a, view<const float, 3> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("less_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("less_equal", ImageProcessingWrapper::CompareLessEq_32f_C3(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

/// destination = 255 where source <= value, else 0
inline status less_equal(view<const unsigned char, 1> source, const constant<unsigned char, 1>& value,
                         view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less_equal", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("less_equal", "value", value);
    return detail::answer("less_equal", ImageProcessingWrapper::CompareCLessEq_8u_C1R(source.data(),
        detail::step(source), value.one(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status less_equal(view<const unsigned char, 3> source, const constant<unsigned char, 3>& value,
                         view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less_equal", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("less_equal", "value", value);
    return detail::answer("less_equal", ImageProcessingWrapper::CompareCLessEq_8u_C3R(source.data(),
        detail::step(source), value.data(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status less_equal(view<const unsigned char, 4> source, const constant<unsigned char, 4>& value,
                         view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less_equal", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("less_equal", "value", value);
    return detail::answer("less_equal", ImageProcessingWrapper::CompareCLessEq_8u_C4R(source.data(),
        detail::step(source), value.data(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status less_equal(view<const unsigned short, 1> source, const constant<unsigned short, 1>& value,
                         view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less_equal", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("less_equal", "value", value);
    return detail::answer("less_equal", ImageProcessingWrapper::CompareCLessEq_16u_C1R(source.data(),
        detail::step(source), value.one(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status less_equal(view<const short, 1> source, const constant<short, 1>& value,
                         view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less_equal", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("less_equal", "value", value);
    return detail::answer("less_equal", ImageProcessingWrapper::CompareCLessEq_16s_C1R(source.data(),
        detail::step(source), value.one(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status less_equal(view<const float, 1> source, const constant<float, 1>& value,
                         view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less_equal", {{"source", source},
        {"destination", destination}});
    return detail::answer("less_equal", ImageProcessingWrapper::CompareCLessEq_32f_C1R(source.data(),
        detail::step(source), value.one(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status less_equal(view<const float, 3> source, const constant<float, 3>& value,
                         view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("less_equal", {{"source", source},
        {"destination", destination}});
    return detail::answer("less_equal", ImageProcessingWrapper::CompareCLessEq_32f_C3R(source.data(),
        detail::step(source), value.data(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

/// destination = 255 where a == b, else 0
inline status equal(view<const unsigned char, 1> a, view<const unsigned char, 1> b,
                    view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("equal", ImageProcessingWrapper::CompareEq_8u_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status equal(view<const unsigned char, 3> a, view<const unsigned char, 3> b,
                    view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("equal", ImageProcessingWrapper::CompareEq_8u_C3(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status equal(view<const unsigned char, 4> a, view<const unsigned char, 4> b,
                    view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("equal", ImageProcessingWrapper::CompareEq_8u_C4(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status equal(view<const unsigned short, 1> a, view<const unsigned short, 1> b,
                    view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("equal", ImageProcessingWrapper::CompareEq_16u_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status equal(view<const short, 1> a, view<const short, 1> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("equal", ImageProcessingWrapper::CompareEq_16s_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status equal(view<const float, 1> a, view<const float, 1> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("equal", ImageProcessingWrapper::CompareEq_32f_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status equal(view<const float, 3> a, view<const float, 3> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("equal", ImageProcessingWrapper::CompareEq_32f_C3(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

/// destination = 255 where source == value, else 0
inline status equal(view<const unsigned char, 1> source, const constant<unsigned char, 1>& value,
                    view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("equal", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("equal", "value", value);
    return detail::answer("equal", ImageProcessingWrapper::CompareCEq_8u_C1R(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status equal(view<const unsigned char, 3> source, const constant<unsigned char, 3>& value,
                    view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("equal", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("equal", "value", value);
    return detail::answer("equal", ImageProcessingWrapper::CompareCEq_8u_C3R(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status equal(view<const unsigned char, 4> source, const constant<unsigned char, 4>& value,
                    view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("equal", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("equal", "value", value);
    return detail::answer("equal", ImageProcessingWrapper::CompareCEq_8u_C4R(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status equal(view<const unsigned short, 1> source, const constant<unsigned short, 1>& value,
                    view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("equal", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("equal", "value", value);
    return detail::answer("equal", ImageProcessingWrapper::CompareCEq_16u_C1R(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status equal(view<const short, 1> source, const constant<short, 1>& value, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("equal", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("equal", "value", value);
    return detail::answer("equal", ImageProcessingWrapper::CompareCEq_16s_C1R(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status equal(view<const float, 1> source, const constant<float, 1>& value, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("equal", {{"source", source},
        {"destination", destination}});
    return detail::answer("equal", ImageProcessingWrapper::CompareCEq_32f_C1R(source.data(), detail::step(source),
        value.one(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status equal(view<const float, 3> source, const constant<float, 3>& value, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("equal", {{"source", source},
        {"destination", destination}});
    return detail::answer("equal", ImageProcessingWrapper::CompareCEq_32f_C3R(source.data(), detail::step(source),
        value.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = 255 where a >= b, else 0
inline status greater_equal(view<const unsigned char, 1> a, view<const unsigned char, 1> b,
                            view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareGreaterEq_8u_C1(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status greater_equal(view<const unsigned char, 3> a, view<const unsigned char, 3> b,
                            view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareGreaterEq_8u_C3(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status greater_equal(view<const unsigned char, 4> a, view<const unsigned char, 4> b,
                            view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareGreaterEq_8u_C4(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status greater_equal(view<const unsigned short, 1> a, view<const unsigned short, 1> b,
                            view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareGreaterEq_16u_C1(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status greater_equal(view<const short, 1> a, view<const short, 1> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareGreaterEq_16s_C1(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status greater_equal(view<const float, 1> a, view<const float, 1> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareGreaterEq_32f_C1(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status greater_equal(view<const float, 3> a, view<const float, 3> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater_equal", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareGreaterEq_32f_C3(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

/// destination = 255 where source >= value, else 0
inline status greater_equal(view<const unsigned char, 1> source, const constant<unsigned char, 1>& value,
                            view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater_equal", {{"source",
        source}, {"destination", destination}});
    if (!value.held()) return detail::unheld("greater_equal", "value", value);
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareCGreaterEq_8u_C1R(source.data(),
        detail::step(source), value.one(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status greater_equal(view<const unsigned char, 3> source, const constant<unsigned char, 3>& value,
                            view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater_equal", {{"source",
        source}, {"destination", destination}});
    if (!value.held()) return detail::unheld("greater_equal", "value", value);
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareCGreaterEq_8u_C3R(source.data(),
        detail::step(source), value.data(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status greater_equal(view<const unsigned char, 4> source, const constant<unsigned char, 4>& value,
                            view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater_equal", {{"source",
        source}, {"destination", destination}});
    if (!value.held()) return detail::unheld("greater_equal", "value", value);
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareCGreaterEq_8u_C4R(source.data(),
        detail::step(source), value.data(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status greater_equal(view<const unsigned short, 1> source, const constant<unsigned short, 1>& value,
                            view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater_equal", {{"source",
        source}, {"destination", destination}});
    if (!value.held()) return detail::unheld("greater_equal", "value", value);
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareCGreaterEq_16u_C1R(source.data(),
        detail::step(source), value.one(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status greater_equal(view<const short, 1> source, const constant<short, 1>& value,
                            view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater_equal", {{"source",
        source}, {"destination", destination}});
    if (!value.held()) return detail::unheld("greater_equal", "value", value);
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareCGreaterEq_16s_C1R(source.data(),
        detail::step(source), value.one(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status greater_equal(view<const float, 1> source, const constant<float, 1>& value,
                            view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater_equal", {{"source",
        source}, {"destination", destination}});
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareCGreaterEq_32f_C1R(source.data(),
        detail::step(source), value.one(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status greater_equal(view<const float, 3> source, const constant<float, 3>& value,
                            view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater_equal", {{"source",
        source}, {"destination", destination}});
    return detail::answer("greater_equal", ImageProcessingWrapper::CompareCGreaterEq_32f_C3R(source.data(),
        detail::step(source), value.data(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

/// destination = 255 where a > b, else 0
inline status greater(view<const unsigned char, 1> a, view<const unsigned char, 1> b,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater", ImageProcessingWrapper::CompareGreater_8u_C1(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status greater(view<const unsigned char, 3> a, view<const unsigned char, 3> b,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater", ImageProcessingWrapper::CompareGreater_8u_C3(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status greater(view<const unsigned char, 4> a, view<const unsigned char, 4> b,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater", ImageProcessingWrapper::CompareGreater_8u_C4(a.data(), detail::step(a), b.data(),
        detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status greater(view<const unsigned short, 1> a, view<const unsigned short, 1> b,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater", ImageProcessingWrapper::CompareGreater_16u_C1(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status greater(view<const short, 1> a, view<const short, 1> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater", ImageProcessingWrapper::CompareGreater_16s_C1(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status greater(view<const float, 1> a, view<const float, 1> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater", ImageProcessingWrapper::CompareGreater_32f_C1(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

inline status greater(view<const float, 3> a, view<const float, 3> b, view<unsigned char, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("greater", {{"a", a}, {"b", b},
        {"destination", destination}});
    return detail::answer("greater", ImageProcessingWrapper::CompareGreater_32f_C3(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

/// destination = 255 where source > value, else 0
inline status greater(view<const unsigned char, 1> source, const constant<unsigned char, 1>& value,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("greater", "value", value);
    return detail::answer("greater", ImageProcessingWrapper::CompareCGreater_8u_C1R(source.data(),
        detail::step(source), value.one(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status greater(view<const unsigned char, 3> source, const constant<unsigned char, 3>& value,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("greater", "value", value);
    return detail::answer("greater", ImageProcessingWrapper::CompareCGreater_8u_C3R(source.data(),
        detail::step(source), value.data(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status greater(view<const unsigned char, 4> source, const constant<unsigned char, 4>& value,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("greater", "value", value);
    return detail::answer("greater", ImageProcessingWrapper::CompareCGreater_8u_C4R(source.data(),
        detail::step(source), value.data(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status greater(view<const unsigned short, 1> source, const constant<unsigned short, 1>& value,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("greater", "value", value);
    return detail::answer("greater", ImageProcessingWrapper::CompareCGreater_16u_C1R(source.data(),
        detail::step(source), value.one(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status greater(view<const short, 1> source, const constant<short, 1>& value,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater", {{"source", source},
        {"destination", destination}});
    if (!value.held()) return detail::unheld("greater", "value", value);
    return detail::answer("greater", ImageProcessingWrapper::CompareCGreater_16s_C1R(source.data(),
        detail::step(source), value.one(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status greater(view<const float, 1> source, const constant<float, 1>& value,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater", {{"source", source},
        {"destination", destination}});
    return detail::answer("greater", ImageProcessingWrapper::CompareCGreater_32f_C1R(source.data(),
        detail::step(source), value.one(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

inline status greater(view<const float, 3> source, const constant<float, 3>& value,
                      view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("greater", {{"source", source},
        {"destination", destination}});
    return detail::answer("greater", ImageProcessingWrapper::CompareCGreater_32f_C3R(source.data(),
        detail::step(source), value.data(), destination.data(), detail::step(destination), source.width(),
        source.height()), detail::reason::memory);
}

/// destination = source < threshold ? threshold : source
inline status threshold_less(view<const float, 1> source, view<float, 1> destination,
                             const constant<float, 1>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("threshold_less", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_less", ImageProcessingWrapper::ThresholdLess_32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        threshold.one()), detail::reason::memory);
}

inline status threshold_less(view<const float, 3> source, view<float, 3> destination,
                             const constant<float, 3>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("threshold_less", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_less", ImageProcessingWrapper::ThresholdLess_32f_C3R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        threshold.data()), detail::reason::memory);
}

/// destination = source < threshold ? value : source
inline status threshold_less(view<const float, 1> source, view<float, 1> destination,
                             const constant<float, 1>& threshold, const constant<float, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("threshold_less", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_less", ImageProcessingWrapper::ThresholdLess_Val_32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        threshold.one(), value.one()), detail::reason::memory);
}

inline status threshold_less(view<const unsigned char, 1> source, view<unsigned char, 1> destination,
                             const constant<unsigned char, 1>& threshold, const constant<unsigned char, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("threshold_less", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_less", "threshold", threshold);
    if (!value.held()) return detail::unheld("threshold_less", "value", value);
    return detail::answer("threshold_less", ImageProcessingWrapper::ThresholdLess_Val_8u_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        threshold.one(), value.one()), detail::reason::memory);
}

/// destination = source > threshold ? threshold : source
inline status threshold_greater(view<const float, 1> source, view<float, 1> destination,
                                const constant<float, 1>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_greater", ImageProcessingWrapper::ThresholdGreater_32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        threshold.one()), detail::reason::memory);
}

inline status threshold_greater(view<const float, 3> source, view<float, 3> destination,
                                const constant<float, 3>& threshold)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_greater", ImageProcessingWrapper::ThresholdGreater_32f_C3R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        threshold.data()), detail::reason::memory);
}

/// destination = source > threshold ? value : source
inline status threshold_greater(view<const float, 1> source, view<float, 1> destination,
                                const constant<float, 1>& threshold, const constant<float, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    return detail::answer("threshold_greater", ImageProcessingWrapper::ThresholdGreater_Val_32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        threshold.one(), value.one()), detail::reason::memory);
}

inline status threshold_greater(view<const unsigned char, 1> source, view<unsigned char, 1> destination,
                                const constant<unsigned char, 1>& threshold, const constant<unsigned char, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_greater", "threshold", threshold);
    if (!value.held()) return detail::unheld("threshold_greater", "value", value);
    return detail::answer("threshold_greater", ImageProcessingWrapper::ThresholdGreater_Val_8u_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        threshold.one(), value.one()), detail::reason::memory);
}

inline status threshold_greater(view<const unsigned short, 1> source, view<unsigned short, 1> destination,
                                const constant<unsigned short, 1>& threshold,
                                const constant<unsigned short, 1>& value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("threshold_greater", {{"source",
        source}, {"destination", destination}});
    if (!threshold.held()) return detail::unheld("threshold_greater", "threshold", threshold);
    if (!value.held()) return detail::unheld("threshold_greater", "value", value);
    return detail::answer("threshold_greater", ImageProcessingWrapper::Threshold_GTVal_16u_C1(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        threshold.one(), value.one()), detail::reason::memory);
}

/// destination = source > upper ? upper_value : source < lower ? lower_value : source
inline status threshold_both(view<const float, 1> source, view<float, 1> destination, const constant<float, 1>& lower,
                             const constant<float, 1>& lower_value, const constant<float, 1>& upper,
                             const constant<float, 1>& upper_value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("threshold_both", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::ordered("threshold_both", lower, upper); !s) return s;
    return detail::answer("threshold_both", ImageProcessingWrapper::Threshold_LTValGTVal_32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        lower.one(), lower_value.one(), upper.one(), upper_value.one()), detail::reason::memory);
}

inline status threshold_both(view<const float, 3> source, view<float, 3> destination, const constant<float, 3>& lower,
                             const constant<float, 3>& lower_value, const constant<float, 3>& upper,
                             const constant<float, 3>& upper_value)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("threshold_both", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::ordered("threshold_both", lower, upper); !s) return s;
    return detail::answer("threshold_both", ImageProcessingWrapper::Threshold_LTValGTVal_32f_C3R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        lower.data(), lower_value.data(), upper.data(), upper_value.data()), detail::reason::memory);
}

/// destination = (Y, Cb, Cr) of source = (R, G, B)
inline status rgb_to_ycbcr(view<const unsigned char, 3> source, view<unsigned char, 3> destination,
                           colour_standard standard)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("rgb_to_ycbcr", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::code("rgb_to_ycbcr", "standard", static_cast<int>(standard), 0xf); !s) return s;
    return detail::answer("rgb_to_ycbcr", ImageProcessingWrapper::RGBToYCbCr_8u_C3(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        static_cast<int>(standard)), detail::reason::memory);
}

inline status rgb_to_ycbcr(view<const unsigned char, 4> source, view<unsigned char, 4> destination,
                           colour_standard standard)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("rgb_to_ycbcr", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::code("rgb_to_ycbcr", "standard", static_cast<int>(standard), 0xf); !s) return s;
    return detail::answer("rgb_to_ycbcr", ImageProcessingWrapper::RGBToYCbCr_8u_AC4(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        static_cast<int>(standard)), detail::reason::memory);
}

/// destination = Y of source = (R, G, B)
inline status rgb_to_grey(view<const unsigned char, 3> source, view<unsigned char, 1> destination,
                          colour_standard standard = colour_standard::bt601_full)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("rgb_to_grey", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("rgb_to_grey", "standard", static_cast<int>(standard), 0xf); !s) return s;
    return detail::answer("rgb_to_grey", ImageProcessingWrapper::RGBToGray_8u_C3C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        static_cast<int>(standard)), detail::reason::memory);
}

inline status rgb_to_grey(view<const unsigned char, 4> source, view<unsigned char, 1> destination,
                          colour_standard standard = colour_standard::bt601_full)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("rgb_to_grey", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("rgb_to_grey", "standard", static_cast<int>(standard), 0xf); !s) return s;
    return detail::answer("rgb_to_grey", ImageProcessingWrapper::RGBToGray_8u_AC4C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        static_cast<int>(standard)), detail::reason::memory);
}

/// destination = (R, G, B) of source = (Y, Cb, Cr)
inline status ycbcr_to_rgb(view<const unsigned char, 3> source, view<unsigned char, 3> destination,
                           colour_standard standard)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("ycbcr_to_rgb", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::code("ycbcr_to_rgb", "standard", static_cast<int>(standard), 0xf); !s) return s;
    return detail::answer("ycbcr_to_rgb", ImageProcessingWrapper::YCbCrToRGB_8u_C3(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        static_cast<int>(standard)), detail::reason::memory);
}

inline status ycbcr_to_rgb(view<const unsigned char, 4> source, view<unsigned char, 4> destination,
                           colour_standard standard)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("ycbcr_to_rgb", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::code("ycbcr_to_rgb", "standard", static_cast<int>(standard), 0xf); !s) return s;
    return detail::answer("ycbcr_to_rgb", ImageProcessingWrapper::YCbCrToRGB_8u_AC4(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        static_cast<int>(standard)), detail::reason::memory);
}

/// destination = 4:2:2 of source = (R, G, B)
inline status rgb_to_yuv422(view<const unsigned char, 3> source, view<unsigned char, 2> destination,
                            colour_standard standard)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("rgb_to_yuv422", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("rgb_to_yuv422", {{"destination",
        destination}});
    if (const status s = detail::code("rgb_to_yuv422", "standard", static_cast<int>(standard), 0xf); !s) return s;
    if (const status s = detail::sized("rgb_to_yuv422", "destination", destination,
        source.width() + source.width() % 2, source.height()); !s) return s;
    return detail::answer("rgb_to_yuv422", ImageProcessingWrapper::RGBToYUV422_8u_C3C2R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        static_cast<int>(standard)), detail::reason::memory);
}

/// destination = (R, G, B) of source in 4:2:2
inline status yuv422_to_rgb(view<const unsigned char, 2> source, view<unsigned char, 3> destination,
                            colour_standard standard)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("yuv422_to_rgb", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("yuv422_to_rgb", {{"destination",
        destination}});
    if (const status s = detail::code("yuv422_to_rgb", "standard", static_cast<int>(standard), 0xf); !s) return s;
    if (const status s = detail::sized("yuv422_to_rgb", "source", source,
        destination.width() + destination.width() % 2, destination.height()); !s) return s;
    return detail::answer("yuv422_to_rgb", ImageProcessingWrapper::YUV422ToRGB_8u_C2C3R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), destination.width(),
        destination.height(), static_cast<int>(standard)), detail::reason::memory);
}

/// destination = (R, G, B) of three planes in 4:2:0
inline status yuv420_to_rgb(view<const unsigned char, 1> y, view<const unsigned char, 1> u,
                            view<const unsigned char, 1> v, view<unsigned char, 3> destination,
                            colour_standard standard)
{
    if (!detail::alike(y)) return detail::unlike<detail::region>("yuv420_to_rgb", {{"y", y}});
    if (!detail::alike(u)) return detail::unlike<detail::region>("yuv420_to_rgb", {{"u", u}});
    if (!detail::alike(v)) return detail::unlike<detail::region>("yuv420_to_rgb", {{"v", v}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("yuv420_to_rgb", {{"destination",
        destination}});
    if (const status s = detail::code("yuv420_to_rgb", "standard", static_cast<int>(standard), 0xf); !s) return s;
    if (const status s = detail::sized("yuv420_to_rgb", "destination", destination, y.width(),
        y.height()); !s) return s;
    if (const status s = detail::sized("yuv420_to_rgb", "u", u, (y.width() + 1) / 2,
        (y.height() + 1) / 2); !s) return s;
    if (const status s = detail::sized("yuv420_to_rgb", "v", v, (y.width() + 1) / 2,
        (y.height() + 1) / 2); !s) return s;
    return detail::answer("yuv420_to_rgb", ImageProcessingWrapper::YUV420ToRGB_8u_P3C3(y.data(), detail::step(y),
        u.data(), detail::step(u), v.data(), detail::step(v), destination.data(), detail::step(destination),
        y.width(), y.height(), static_cast<int>(standard)), detail::reason::memory);
}

/// destination = over over ground
inline status composite(view<const unsigned char, 4> ground, view<const unsigned char, 4> over,
                        view<unsigned char, 4> destination, bool premultiplied = false)
{
    if (!detail::alike(ground, over, destination)) return detail::unlike<detail::region>("composite", {{"ground",
        ground}, {"over", over}, {"destination", destination}});
    return detail::answer("composite", ImageProcessingWrapper::AlphaComp_8u_C4(ground.data(), detail::step(ground),
        over.data(), detail::step(over), destination.data(), detail::step(destination), ground.width(),
        ground.height(), premultiplied), detail::reason::memory);
}

/// destination = over over the opaque ground, alpha kept
inline status composite_on_opaque(view<const unsigned char, 4> ground, view<const unsigned char, 4> over,
                                  view<unsigned char, 4> destination, bool premultiplied = false)
{
    if (!detail::alike(ground, over, destination)) return detail::unlike<detail::region>("composite_on_opaque",
        {{"ground", ground}, {"over", over}, {"destination", destination}});
    return detail::answer("composite_on_opaque", ImageProcessingWrapper::AlphaComp_8u_AC4(ground.data(),
        detail::step(ground), over.data(), detail::step(over), destination.data(), detail::step(destination),
        ground.width(), ground.height(), premultiplied), detail::reason::memory);
}

/// destination = q(alpha over + (255 - alpha) ground), channel by channel
inline status blend(view<const unsigned char, 3> ground, view<const unsigned char, 3> over,
                    const constant<unsigned char, 1>& alpha, view<unsigned char, 3> destination)
{
    if (!detail::alike(ground, over, destination)) return detail::unlike<detail::region>("blend", {{"ground", ground},
        {"over", over}, {"destination", destination}});
    if (!alpha.held()) return detail::unheld("blend", "alpha", alpha);
    return detail::answer("blend", ImageProcessingWrapper::AlphaCompC_8u_C3R(ground.data(), detail::step(ground),
        over.data(), detail::step(over), alpha.one(), destination.data(), detail::step(destination), ground.width(),
        ground.height()), detail::reason::memory);
}

/// destination[c] = twist[4 c] source[0] + twist[4 c + 1] source[1] + twist[4 c + 2] source[2] + twist[4 c + 3], c =
/// 0 ... 2
inline status colour_matrix(view<const unsigned char, 3> source, const float (&twist)[12],
                            view<unsigned char, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("colour_matrix", {{"source",
        source}, {"destination", destination}});
    return detail::answer("colour_matrix", ImageProcessingWrapper::ColorTwist32f_8u_C3(source.data(),
        detail::step(source), twist, destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status colour_matrix(view<const unsigned char, 4> source, const float (&twist)[12],
                            view<unsigned char, 4> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("colour_matrix", {{"source",
        source}, {"destination", destination}});
    return detail::answer("colour_matrix", ImageProcessingWrapper::ColorTwist32f_8u_AC4(source.data(),
        detail::step(source), twist, destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status colour_matrix(view<const float, 3> source, const float (&twist)[12], view<float, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("colour_matrix", {{"source",
        source}, {"destination", destination}});
    return detail::answer("colour_matrix", ImageProcessingWrapper::ColorTwist32f_32f_C3(source.data(),
        detail::step(source), twist, destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = table[source]
inline status lookup(view<const unsigned char, 1> source, span<const unsigned char> table,
                     view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lookup", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::filled("lookup", "table", table, detail::values_of(source)); !s) return s;
    return detail::answer("lookup", ImageProcessingWrapper::LUT_8u_C1(source.data(), detail::step(source),
        table.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status lookup(view<const unsigned char, 1> source, span<const unsigned short> table,
                     view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lookup", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::filled("lookup", "table", table, detail::values_of(source)); !s) return s;
    return detail::answer("lookup", ImageProcessingWrapper::LUT_8u16u_C1(source.data(), detail::step(source),
        table.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status lookup(view<const unsigned char, 1> source, span<const float> table, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lookup", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::filled("lookup", "table", table, detail::values_of(source)); !s) return s;
    return detail::answer("lookup", ImageProcessingWrapper::LUT_8u32f_C1(source.data(), detail::step(source),
        table.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status lookup(view<const unsigned short, 1> source, span<const unsigned short> table,
                     view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lookup", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::filled("lookup", "table", table, detail::values_of(source)); !s) return s;
    return detail::answer("lookup", ImageProcessingWrapper::LUT_16u_C1(source.data(), detail::step(source),
        table.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status lookup(view<const unsigned short, 1> source, span<const unsigned char> table,
                     view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lookup", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::filled("lookup", "table", table, detail::values_of(source)); !s) return s;
    return detail::answer("lookup", ImageProcessingWrapper::LUT_16u8u_C1(source.data(), detail::step(source),
        table.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

inline status lookup(view<const unsigned short, 1> source, span<const float> table, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lookup", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::filled("lookup", "table", table, detail::values_of(source)); !s) return s;
    return detail::answer("lookup", ImageProcessingWrapper::LUT_16u32f_C1(source.data(), detail::step(source),
        table.data(), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = the curve's value at source
inline status curve(view<const unsigned char, 1> source, span<const unsigned char> levels,
                    span<const unsigned char> values, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("curve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::rising("curve", "levels", levels); !s) return s;
    if (const status s = detail::filled("curve", "values", values, levels.size()); !s) return s;
    if (const status s = detail::whole("curve", "destination", destination, source); !s) return s;
    return detail::answer("curve", ImageProcessingWrapper::LUT_Linear_8u_C1(source.data(), detail::step(source),
        levels.data(), values.data(), detail::length(levels), destination.data(), detail::step(destination),
        source.width(), source.height()), detail::reason::failed);
}

inline status curve(view<const unsigned short, 1> source, span<const unsigned short> levels,
                    span<const unsigned short> values, view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("curve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::rising("curve", "levels", levels); !s) return s;
    if (const status s = detail::filled("curve", "values", values, levels.size()); !s) return s;
    if (const status s = detail::whole("curve", "destination", destination, source); !s) return s;
    return detail::answer("curve", ImageProcessingWrapper::LUT_Linear_16u_C1(source.data(), detail::step(source),
        levels.data(), values.data(), detail::length(levels), destination.data(), detail::step(destination),
        source.width(), source.height()), detail::reason::failed);
}

inline status curve(view<const unsigned short, 1> source, span<const unsigned short> levels,
                    span<const unsigned char> values, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("curve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::rising("curve", "levels", levels); !s) return s;
    if (const status s = detail::filled("curve", "values", values, levels.size()); !s) return s;
    if (const status s = detail::whole("curve", "destination", destination, source); !s) return s;
    return detail::answer("curve", ImageProcessingWrapper::LUT_Linear_16u8u_C1(source.data(), detail::step(source),
        levels.data(), values.data(), detail::length(levels), destination.data(), detail::step(destination),
        source.width(), source.height()), detail::reason::failed);
}

inline status curve(view<const float, 1> source, span<const float> levels, span<const float> values,
                    view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("curve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::rising("curve", "levels", levels); !s) return s;
    if (const status s = detail::filled("curve", "values", values, levels.size()); !s) return s;
    if (const status s = detail::whole("curve", "destination", destination, source); !s) return s;
    return detail::answer("curve", ImageProcessingWrapper::LUT_Linear_32f_C1(source.data(), detail::step(source),
        levels.data(), values.data(), detail::length(levels), destination.data(), detail::step(destination),
        source.width(), source.height()), detail::reason::failed);
}

/// destination = colours[min(source, paletteSize - 1)]
inline status palette(view<const unsigned short, 1> source, span<const unsigned int> colours,
                      view<unsigned int, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("palette", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::filled("palette", "colours", colours, 1, 65536); !s) return s;
    return detail::answer("palette", ImageProcessingWrapper::LUTPalette_16u32u_C1R(source.data(),
        detail::step(source), colours.data(), detail::length(colours), destination.data(), detail::step(destination),
        source.width(), source.height()), detail::reason::memory);
}

/// destination = source zoomed around its centre and panned. The destination may be a part of a larger one, from
/// origin_x and origin_y on.
inline status zoom(view<const unsigned char, 3> source, view<unsigned char, 3> destination, float factor,
                   int pan_x = 0, int pan_y = 0, bool smooth = true, int origin_x = 0, int origin_y = 0,
                   int whole_width = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("zoom", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("zoom", {{"destination", destination}});
    if (const status s = detail::above_zero("zoom", "factor", factor); !s) return s;
    if (const status s = detail::placed("zoom", "origin_x", origin_x, destination.width(), "whole_width",
        whole_width); !s) return s;
    if (const status s = detail::placed("zoom", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("zoom", "destination", destination, source); !s) return s;
    return detail::answer("zoom", orvaneZoomPart_8u_C3(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), whole_width, factor, pan_x, pan_y, smooth), detail::reason::memory);
}

inline status zoom(view<const unsigned char, 4> source, view<unsigned char, 4> destination, float factor,
                   int pan_x = 0, int pan_y = 0, bool smooth = true, int origin_x = 0, int origin_y = 0,
                   int whole_width = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("zoom", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("zoom", {{"destination", destination}});
    if (const status s = detail::above_zero("zoom", "factor", factor); !s) return s;
    if (const status s = detail::placed("zoom", "origin_x", origin_x, destination.width(), "whole_width",
        whole_width); !s) return s;
    if (const status s = detail::placed("zoom", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("zoom", "destination", destination, source); !s) return s;
    return detail::answer("zoom", orvaneZoomPart_8u_C4(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), whole_width, factor, pan_x, pan_y, smooth), detail::reason::memory);
}

inline status zoom(view<const unsigned short, 1> source, view<unsigned short, 1> destination, float factor,
                   int pan_x = 0, int pan_y = 0, bool smooth = true, int origin_x = 0, int origin_y = 0,
                   int whole_width = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("zoom", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("zoom", {{"destination", destination}});
    if (const status s = detail::above_zero("zoom", "factor", factor); !s) return s;
    if (const status s = detail::placed("zoom", "origin_x", origin_x, destination.width(), "whole_width",
        whole_width); !s) return s;
    if (const status s = detail::placed("zoom", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("zoom", "destination", destination, source); !s) return s;
    return detail::answer("zoom", orvaneZoomPart_16u_C1(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), whole_width, factor, pan_x, pan_y, smooth), detail::reason::memory);
}

inline status zoom(view<const float, 1> source, view<float, 1> destination, float factor, int pan_x = 0,
                   int pan_y = 0, bool smooth = true, int origin_x = 0, int origin_y = 0, int whole_width = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("zoom", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("zoom", {{"destination", destination}});
    if (const status s = detail::above_zero("zoom", "factor", factor); !s) return s;
    if (const status s = detail::placed("zoom", "origin_x", origin_x, destination.width(), "whole_width",
        whole_width); !s) return s;
    if (const status s = detail::placed("zoom", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("zoom", "destination", destination, source); !s) return s;
    return detail::answer("zoom", orvaneZoomPart_32f_C1(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), whole_width, factor, pan_x, pan_y, smooth), detail::reason::memory);
}

/// destination(X, Y) = source(c px - s py, s px + c py), interpolated. The destination may be a part of a larger one,
/// from origin_x and origin_y on.
inline status rotate(view<const unsigned char, 1> source, view<unsigned char, 1> destination, double degrees,
                     double x_shift, double y_shift, interpolation how = interpolation::linear, int origin_x = 0,
                     int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("rotate", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("rotate", {{"destination", destination}});
    if (const status s = detail::code("rotate", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::finite("rotate", "degrees", degrees); !s) return s;
    if (const status s = detail::finite("rotate", "x_shift", x_shift); !s) return s;
    if (const status s = detail::finite("rotate", "y_shift", y_shift); !s) return s;
    if (const status s = detail::placed("rotate", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("rotate", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("rotate", "destination", destination, source); !s) return s;
    return detail::answer("rotate", orvaneRotatePart_8u_C1(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), degrees, x_shift, y_shift, static_cast<int>(how)), detail::reason::failed);
}

inline status rotate(view<const unsigned char, 3> source, view<unsigned char, 3> destination, double degrees,
                     double x_shift, double y_shift, interpolation how = interpolation::linear, int origin_x = 0,
                     int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("rotate", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("rotate", {{"destination", destination}});
    if (const status s = detail::code("rotate", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::finite("rotate", "degrees", degrees); !s) return s;
    if (const status s = detail::finite("rotate", "x_shift", x_shift); !s) return s;
    if (const status s = detail::finite("rotate", "y_shift", y_shift); !s) return s;
    if (const status s = detail::placed("rotate", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("rotate", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("rotate", "destination", destination, source); !s) return s;
    return detail::answer("rotate", orvaneRotatePart_8u_C3(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), degrees, x_shift, y_shift, static_cast<int>(how)), detail::reason::failed);
}

inline status rotate(view<const unsigned char, 4> source, view<unsigned char, 4> destination, double degrees,
                     double x_shift, double y_shift, interpolation how = interpolation::linear, int origin_x = 0,
                     int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("rotate", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("rotate", {{"destination", destination}});
    if (const status s = detail::code("rotate", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::finite("rotate", "degrees", degrees); !s) return s;
    if (const status s = detail::finite("rotate", "x_shift", x_shift); !s) return s;
    if (const status s = detail::finite("rotate", "y_shift", y_shift); !s) return s;
    if (const status s = detail::placed("rotate", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("rotate", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("rotate", "destination", destination, source); !s) return s;
    return detail::answer("rotate", orvaneRotatePart_8u_C4(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), degrees, x_shift, y_shift, static_cast<int>(how)), detail::reason::failed);
}

inline status rotate(view<const unsigned short, 1> source, view<unsigned short, 1> destination, double degrees,
                     double x_shift, double y_shift, interpolation how = interpolation::linear, int origin_x = 0,
                     int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("rotate", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("rotate", {{"destination", destination}});
    if (const status s = detail::code("rotate", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::finite("rotate", "degrees", degrees); !s) return s;
    if (const status s = detail::finite("rotate", "x_shift", x_shift); !s) return s;
    if (const status s = detail::finite("rotate", "y_shift", y_shift); !s) return s;
    if (const status s = detail::placed("rotate", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("rotate", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("rotate", "destination", destination, source); !s) return s;
    return detail::answer("rotate", orvaneRotatePart_16u_C1(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), degrees, x_shift, y_shift, static_cast<int>(how)), detail::reason::failed);
}

inline status rotate(view<const float, 1> source, view<float, 1> destination, double degrees, double x_shift,
                     double y_shift, interpolation how = interpolation::linear, int origin_x = 0, int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("rotate", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("rotate", {{"destination", destination}});
    if (const status s = detail::code("rotate", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::finite("rotate", "degrees", degrees); !s) return s;
    if (const status s = detail::finite("rotate", "x_shift", x_shift); !s) return s;
    if (const status s = detail::finite("rotate", "y_shift", y_shift); !s) return s;
    if (const status s = detail::placed("rotate", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("rotate", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("rotate", "destination", destination, source); !s) return s;
    return detail::answer("rotate", orvaneRotatePart_32f_C1(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), degrees, x_shift, y_shift, static_cast<int>(how)), detail::reason::failed);
}

/// destination = source rotated about the source point (center_x, center_y), which stays. The destination may be a
/// part of a larger one, from origin_x and origin_y on.
inline status rotate_about(view<const unsigned char, 3> source, view<unsigned char, 3> destination, double degrees,
                           double center_x, double center_y, interpolation how = interpolation::linear,
                           int origin_x = 0, int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("rotate_about", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("rotate_about", {{"destination",
        destination}});
    if (const status s = detail::code("rotate_about", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::finite("rotate_about", "degrees", degrees); !s) return s;
    if (const status s = detail::finite("rotate_about", "center_x", center_x); !s) return s;
    if (const status s = detail::finite("rotate_about", "center_y", center_y); !s) return s;
    if (const status s = detail::turned("rotate_about", center_x, center_y, degrees); !s) return s;
    if (const status s = detail::placed("rotate_about", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("rotate_about", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("rotate_about", "destination", destination, source); !s) return s;
    return detail::answer("rotate_about", orvaneRotateCenterPart_8u_C3(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), degrees, center_x, center_y, static_cast<int>(how)), detail::reason::memory);
}

inline status rotate_about(view<const unsigned char, 4> source, view<unsigned char, 4> destination, double degrees,
                           double center_x, double center_y, interpolation how = interpolation::linear,
                           int origin_x = 0, int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("rotate_about", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("rotate_about", {{"destination",
        destination}});
    if (const status s = detail::code("rotate_about", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::finite("rotate_about", "degrees", degrees); !s) return s;
    if (const status s = detail::finite("rotate_about", "center_x", center_x); !s) return s;
    if (const status s = detail::finite("rotate_about", "center_y", center_y); !s) return s;
    if (const status s = detail::turned("rotate_about", center_x, center_y, degrees); !s) return s;
    if (const status s = detail::placed("rotate_about", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("rotate_about", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("rotate_about", "destination", destination, source); !s) return s;
    return detail::answer("rotate_about", orvaneRotateCenterPart_8u_C4(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), degrees, center_x, center_y, static_cast<int>(how)), detail::reason::memory);
}

inline status rotate_about(view<const unsigned short, 1> source, view<unsigned short, 1> destination, double degrees,
                           double center_x, double center_y, interpolation how = interpolation::linear,
                           int origin_x = 0, int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("rotate_about", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("rotate_about", {{"destination",
        destination}});
    if (const status s = detail::code("rotate_about", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::finite("rotate_about", "degrees", degrees); !s) return s;
    if (const status s = detail::finite("rotate_about", "center_x", center_x); !s) return s;
    if (const status s = detail::finite("rotate_about", "center_y", center_y); !s) return s;
    if (const status s = detail::turned("rotate_about", center_x, center_y, degrees); !s) return s;
    if (const status s = detail::placed("rotate_about", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("rotate_about", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("rotate_about", "destination", destination, source); !s) return s;
    return detail::answer("rotate_about", orvaneRotateCenterPart_16u_C1(source.data(), source.width(),
        source.height(), detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y,
        destination.width(), destination.height(), degrees, center_x, center_y, static_cast<int>(how)),
        detail::reason::memory);
}

inline status rotate_about(view<const float, 1> source, view<float, 1> destination, double degrees, double center_x,
                           double center_y, interpolation how = interpolation::linear, int origin_x = 0,
                           int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("rotate_about", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("rotate_about", {{"destination",
        destination}});
    if (const status s = detail::code("rotate_about", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::finite("rotate_about", "degrees", degrees); !s) return s;
    if (const status s = detail::finite("rotate_about", "center_x", center_x); !s) return s;
    if (const status s = detail::finite("rotate_about", "center_y", center_y); !s) return s;
    if (const status s = detail::turned("rotate_about", center_x, center_y, degrees); !s) return s;
    if (const status s = detail::placed("rotate_about", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("rotate_about", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("rotate_about", "destination", destination, source); !s) return s;
    return detail::answer("rotate_about", orvaneRotateCenterPart_32f_C1(source.data(), source.width(),
        source.height(), detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y,
        destination.width(), destination.height(), degrees, center_x, center_y, static_cast<int>(how)),
        detail::reason::memory);
}

/// destination(X, Y) = source(the point that H takes to the pixel's centre), interpolated. The destination may be a
/// part of a larger one, from origin_x and origin_y on.
inline status warp_perspective(view<const unsigned char, 1> source, view<unsigned char, 1> destination,
                               const double (&coefficients)[9], interpolation how = interpolation::linear,
                               int origin_x = 0, int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("warp_perspective", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("warp_perspective", {{"destination",
        destination}});
    if (const status s = detail::code("warp_perspective", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::placed("warp_perspective", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("warp_perspective", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("warp_perspective", "destination", destination, source); !s) return s;
    return detail::answer("warp_perspective", orvaneWarpPerspectivePart_8u_C1(source.data(), source.width(),
        source.height(), detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y,
        destination.width(), destination.height(), coefficients, static_cast<int>(how)), detail::reason::failed);
}

inline status warp_perspective(view<const unsigned char, 3> source, view<unsigned char, 3> destination,
                               const double (&coefficients)[9], interpolation how = interpolation::linear,
                               int origin_x = 0, int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("warp_perspective", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("warp_perspective", {{"destination",
        destination}});
    if (const status s = detail::code("warp_perspective", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::placed("warp_perspective", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("warp_perspective", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("warp_perspective", "destination", destination, source); !s) return s;
    return detail::answer("warp_perspective", orvaneWarpPerspectivePart_8u_C3(source.data(), source.width(),
        source.height(), detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y,
        destination.width(), destination.height(), coefficients, static_cast<int>(how)), detail::reason::failed);
}

inline status warp_perspective(view<const unsigned char, 4> source, view<unsigned char, 4> destination,
                               const double (&coefficients)[9], interpolation how = interpolation::linear,
                               int origin_x = 0, int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("warp_perspective", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("warp_perspective", {{"destination",
        destination}});
    if (const status s = detail::code("warp_perspective", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::placed("warp_perspective", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("warp_perspective", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("warp_perspective", "destination", destination, source); !s) return s;
    return detail::answer("warp_perspective", orvaneWarpPerspectivePart_8u_C4(source.data(), source.width(),
        source.height(), detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y,
        destination.width(), destination.height(), coefficients, static_cast<int>(how)), detail::reason::failed);
}

inline status warp_perspective(view<const unsigned short, 1> source, view<unsigned short, 1> destination,
                               const double (&coefficients)[9], interpolation how = interpolation::linear,
                               int origin_x = 0, int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("warp_perspective", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("warp_perspective", {{"destination",
        destination}});
    if (const status s = detail::code("warp_perspective", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::placed("warp_perspective", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("warp_perspective", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("warp_perspective", "destination", destination, source); !s) return s;
    return detail::answer("warp_perspective", orvaneWarpPerspectivePart_16u_C1(source.data(), source.width(),
        source.height(), detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y,
        destination.width(), destination.height(), coefficients, static_cast<int>(how)), detail::reason::failed);
}

inline status warp_perspective(view<const float, 1> source, view<float, 1> destination,
                               const double (&coefficients)[9], interpolation how = interpolation::linear,
                               int origin_x = 0, int origin_y = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("warp_perspective", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("warp_perspective", {{"destination",
        destination}});
    if (const status s = detail::code("warp_perspective", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::placed("warp_perspective", "origin_x", origin_x, destination.width()); !s) return s;
    if (const status s = detail::placed("warp_perspective", "origin_y", origin_y, destination.height()); !s) return s;
    if (const status s = detail::apart("warp_perspective", "destination", destination, source); !s) return s;
    return detail::answer("warp_perspective", orvaneWarpPerspectivePart_32f_C1(source.data(), source.width(),
        source.height(), detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y,
        destination.width(), destination.height(), coefficients, static_cast<int>(how)), detail::reason::failed);
}

/// destination(X, Y) = source at the index (x_map(X, Y), y_map(X, Y)), interpolated
inline status remap(view<const unsigned char, 1> source, view<const float, 1> x_map, view<const float, 1> y_map,
                    view<unsigned char, 1> destination, interpolation how = interpolation::linear)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("remap", {{"source", source}});
    if (!detail::alike(x_map)) return detail::unlike<detail::region>("remap", {{"x_map", x_map}});
    if (!detail::alike(y_map)) return detail::unlike<detail::region>("remap", {{"y_map", y_map}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("remap", {{"destination", destination}});
    if (const status s = detail::code("remap", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::sized("remap", "x_map", x_map, destination.width(),
        destination.height()); !s) return s;
    if (const status s = detail::sized("remap", "y_map", y_map, destination.width(),
        destination.height()); !s) return s;
    if (const status s = detail::apart("remap", "destination", destination, source); !s) return s;
    return detail::answer("remap", ImageProcessingWrapper::Remap_8u_C1(source.data(), source.width(), source.height(),
        detail::step(source), 0, 0, source.width(), source.height(), x_map.data(), detail::step(x_map), y_map.data(),
        detail::step(y_map), destination.data(), detail::step(destination), destination.width(), destination.height(),
        static_cast<int>(how)), detail::reason::memory);
}

inline status remap(view<const unsigned char, 3> source, view<const float, 1> x_map, view<const float, 1> y_map,
                    view<unsigned char, 3> destination, interpolation how = interpolation::linear)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("remap", {{"source", source}});
    if (!detail::alike(x_map)) return detail::unlike<detail::region>("remap", {{"x_map", x_map}});
    if (!detail::alike(y_map)) return detail::unlike<detail::region>("remap", {{"y_map", y_map}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("remap", {{"destination", destination}});
    if (const status s = detail::code("remap", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::sized("remap", "x_map", x_map, destination.width(),
        destination.height()); !s) return s;
    if (const status s = detail::sized("remap", "y_map", y_map, destination.width(),
        destination.height()); !s) return s;
    if (const status s = detail::apart("remap", "destination", destination, source); !s) return s;
    return detail::answer("remap", ImageProcessingWrapper::Remap_8u_C3(source.data(), source.width(), source.height(),
        detail::step(source), 0, 0, source.width(), source.height(), x_map.data(), detail::step(x_map), y_map.data(),
        detail::step(y_map), destination.data(), detail::step(destination), destination.width(), destination.height(),
        static_cast<int>(how)), detail::reason::memory);
}

inline status remap(view<const unsigned char, 4> source, view<const float, 1> x_map, view<const float, 1> y_map,
                    view<unsigned char, 4> destination, interpolation how = interpolation::linear)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("remap", {{"source", source}});
    if (!detail::alike(x_map)) return detail::unlike<detail::region>("remap", {{"x_map", x_map}});
    if (!detail::alike(y_map)) return detail::unlike<detail::region>("remap", {{"y_map", y_map}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("remap", {{"destination", destination}});
    if (const status s = detail::code("remap", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::sized("remap", "x_map", x_map, destination.width(),
        destination.height()); !s) return s;
    if (const status s = detail::sized("remap", "y_map", y_map, destination.width(),
        destination.height()); !s) return s;
    if (const status s = detail::apart("remap", "destination", destination, source); !s) return s;
    return detail::answer("remap", ImageProcessingWrapper::Remap_8u_C4(source.data(), source.width(), source.height(),
        detail::step(source), 0, 0, source.width(), source.height(), x_map.data(), detail::step(x_map), y_map.data(),
        detail::step(y_map), destination.data(), detail::step(destination), destination.width(), destination.height(),
        static_cast<int>(how)), detail::reason::memory);
}

inline status remap(view<const unsigned short, 1> source, view<const float, 1> x_map, view<const float, 1> y_map,
                    view<unsigned short, 1> destination, interpolation how = interpolation::linear)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("remap", {{"source", source}});
    if (!detail::alike(x_map)) return detail::unlike<detail::region>("remap", {{"x_map", x_map}});
    if (!detail::alike(y_map)) return detail::unlike<detail::region>("remap", {{"y_map", y_map}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("remap", {{"destination", destination}});
    if (const status s = detail::code("remap", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::sized("remap", "x_map", x_map, destination.width(),
        destination.height()); !s) return s;
    if (const status s = detail::sized("remap", "y_map", y_map, destination.width(),
        destination.height()); !s) return s;
    if (const status s = detail::apart("remap", "destination", destination, source); !s) return s;
    return detail::answer("remap", ImageProcessingWrapper::Remap_16u_C1(source.data(), source.width(),
        source.height(), detail::step(source), 0, 0, source.width(), source.height(), x_map.data(),
        detail::step(x_map), y_map.data(), detail::step(y_map), destination.data(), detail::step(destination),
        destination.width(), destination.height(), static_cast<int>(how)), detail::reason::memory);
}

inline status remap(view<const float, 1> source, view<const float, 1> x_map, view<const float, 1> y_map,
                    view<float, 1> destination, interpolation how = interpolation::linear)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("remap", {{"source", source}});
    if (!detail::alike(x_map)) return detail::unlike<detail::region>("remap", {{"x_map", x_map}});
    if (!detail::alike(y_map)) return detail::unlike<detail::region>("remap", {{"y_map", y_map}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("remap", {{"destination", destination}});
    if (const status s = detail::code("remap", "how", static_cast<int>(how), 0x100f6); !s) return s;
    if (const status s = detail::sized("remap", "x_map", x_map, destination.width(),
        destination.height()); !s) return s;
    if (const status s = detail::sized("remap", "y_map", y_map, destination.width(),
        destination.height()); !s) return s;
    if (const status s = detail::apart("remap", "destination", destination, source); !s) return s;
    return detail::answer("remap", ImageProcessingWrapper::Remap_32f_C1(source.data(), source.width(),
        source.height(), detail::step(source), 0, 0, source.width(), source.height(), x_map.data(),
        detail::step(x_map), y_map.data(), detail::step(y_map), destination.data(), detail::step(destination),
        destination.width(), destination.height(), static_cast<int>(how)), detail::reason::memory);
}

/// destination = source, all of it to whole_width x whole_height pixels. Pixel centres are aligned. Only `area`
/// filters before a reduction; of colours and floats it takes reductions that keep the ratio of the sides. The
/// destination may be a part of a whole, from origin_x and origin_y on.
inline status resize(view<const unsigned char, 1> source, view<unsigned char, 1> destination, interpolation how,
                     int origin_x = 0, int origin_y = 0, int whole_width = 0, int whole_height = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("resize", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("resize", {{"destination", destination}});
    if (const status s = detail::code("resize", "how", static_cast<int>(how), 0x101f6); !s) return s;
    if (const status s = detail::placed("resize", "origin_x", origin_x, destination.width(), "whole_width",
        whole_width); !s) return s;
    if (const status s = detail::placed("resize", "origin_y", origin_y, destination.height(), "whole_height",
        whole_height); !s) return s;
    if (const status s = detail::averaged(source, destination, how, origin_x, origin_y, whole_width,
        whole_height); !s) return s;
    if (const status s = detail::apart("resize", "destination", destination, source); !s) return s;
    return detail::answer("resize", orvaneResizePart_8u_C1(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), whole_width, whole_height, static_cast<int>(how)), detail::reason::memory);
}

inline status resize(view<const unsigned char, 3> source, view<unsigned char, 3> destination, interpolation how,
                     int origin_x = 0, int origin_y = 0, int whole_width = 0, int whole_height = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("resize", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("resize", {{"destination", destination}});
    if (const status s = detail::code("resize", "how", static_cast<int>(how), 0x101f6); !s) return s;
    if (const status s = detail::placed("resize", "origin_x", origin_x, destination.width(), "whole_width",
        whole_width); !s) return s;
    if (const status s = detail::placed("resize", "origin_y", origin_y, destination.height(), "whole_height",
        whole_height); !s) return s;
    if (const status s = detail::averaged(source, destination, how, origin_x, origin_y, whole_width,
        whole_height); !s) return s;
    if (const status s = detail::apart("resize", "destination", destination, source); !s) return s;
    return detail::answer("resize", orvaneResizePart_8u_C3(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), whole_width, whole_height, static_cast<int>(how)), detail::reason::memory);
}

inline status resize(view<const unsigned char, 4> source, view<unsigned char, 4> destination, interpolation how,
                     int origin_x = 0, int origin_y = 0, int whole_width = 0, int whole_height = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("resize", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("resize", {{"destination", destination}});
    if (const status s = detail::code("resize", "how", static_cast<int>(how), 0x101f6); !s) return s;
    if (const status s = detail::placed("resize", "origin_x", origin_x, destination.width(), "whole_width",
        whole_width); !s) return s;
    if (const status s = detail::placed("resize", "origin_y", origin_y, destination.height(), "whole_height",
        whole_height); !s) return s;
    if (const status s = detail::averaged(source, destination, how, origin_x, origin_y, whole_width,
        whole_height); !s) return s;
    if (const status s = detail::apart("resize", "destination", destination, source); !s) return s;
    return detail::answer("resize", orvaneResizePart_8u_C4(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), whole_width, whole_height, static_cast<int>(how)), detail::reason::memory);
}

inline status resize(view<const unsigned short, 1> source, view<unsigned short, 1> destination, interpolation how,
                     int origin_x = 0, int origin_y = 0, int whole_width = 0, int whole_height = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("resize", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("resize", {{"destination", destination}});
    if (const status s = detail::code("resize", "how", static_cast<int>(how), 0x101f6); !s) return s;
    if (const status s = detail::placed("resize", "origin_x", origin_x, destination.width(), "whole_width",
        whole_width); !s) return s;
    if (const status s = detail::placed("resize", "origin_y", origin_y, destination.height(), "whole_height",
        whole_height); !s) return s;
    if (const status s = detail::averaged(source, destination, how, origin_x, origin_y, whole_width,
        whole_height); !s) return s;
    if (const status s = detail::apart("resize", "destination", destination, source); !s) return s;
    return detail::answer("resize", orvaneResizePart_16u_C1(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), whole_width, whole_height, static_cast<int>(how)), detail::reason::memory);
}

inline status resize(view<const float, 1> source, view<float, 1> destination, interpolation how, int origin_x = 0,
                     int origin_y = 0, int whole_width = 0, int whole_height = 0)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("resize", {{"source", source}});
    if (!detail::alike(destination)) return detail::unlike<detail::region>("resize", {{"destination", destination}});
    if (const status s = detail::code("resize", "how", static_cast<int>(how), 0x101f6); !s) return s;
    if (const status s = detail::placed("resize", "origin_x", origin_x, destination.width(), "whole_width",
        whole_width); !s) return s;
    if (const status s = detail::placed("resize", "origin_y", origin_y, destination.height(), "whole_height",
        whole_height); !s) return s;
    if (const status s = detail::averaged(source, destination, how, origin_x, origin_y, whole_width,
        whole_height); !s) return s;
    if (const status s = detail::apart("resize", "destination", destination, source); !s) return s;
    return detail::answer("resize", orvaneResizePart_32f_C1(source.data(), source.width(), source.height(),
        detail::step(source), destination.data(), detail::step(destination), origin_x, origin_y, destination.width(),
        destination.height(), whole_width, whole_height, static_cast<int>(how)), detail::reason::memory);
}

/// destination = mean of 3x3 pixels, rounded to nearest
inline status lowpass(view<const unsigned char, 1> source, view<unsigned char, 1> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lowpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("lowpass", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("lowpass", "source", source.around(), detail::half(size), detail::half(size),
        detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("lowpass", "destination", destination, source); !s) return s;
    return detail::answer("lowpass",
        size == mask::size3x3 ? ImageProcessingWrapper::FilterLowpass3x3_8u_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(),
        source.height()) : ImageProcessingWrapper::FilterLowpass5x5_8u_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status lowpass(view<const unsigned char, 1> source, view<unsigned char, 1> destination, mask size, edge beyond,
                      const constant<unsigned char, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lowpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("lowpass", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("lowpass", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const unsigned char, 1>& part, const view<unsigned char, 1>& band) { return lowpass(part, band,
            size); });
}

inline status lowpass(view<const unsigned char, 3> source, view<unsigned char, 3> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lowpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("lowpass", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("lowpass", "source", source.around(), detail::half(size), detail::half(size),
        detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("lowpass", "destination", destination, source); !s) return s;
    return detail::answer("lowpass",
        size == mask::size3x3 ? ImageProcessingWrapper::FilterLowpass3x3_8u_C3R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(),
        source.height()) : ImageProcessingWrapper::FilterLowpass5x5_8u_C3R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status lowpass(view<const unsigned char, 3> source, view<unsigned char, 3> destination, mask size, edge beyond,
                      const constant<unsigned char, 3>& value = {0, 0, 0})
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lowpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("lowpass", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("lowpass", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const unsigned char, 3>& part, const view<unsigned char, 3>& band) { return lowpass(part, band,
            size); });
}

inline status lowpass(view<const unsigned short, 1> source, view<unsigned short, 1> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lowpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("lowpass", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("lowpass", "source", source.around(), detail::half(size), detail::half(size),
        detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("lowpass", "destination", destination, source); !s) return s;
    return detail::answer("lowpass",
        size == mask::size3x3 ? ImageProcessingWrapper::FilterLowpass3x3_16u_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(),
        source.height()) : ImageProcessingWrapper::FilterLowpass5x5_16u_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status lowpass(view<const unsigned short, 1> source, view<unsigned short, 1> destination, mask size,
                      edge beyond, const constant<unsigned short, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lowpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("lowpass", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("lowpass", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const unsigned short, 1>& part, const view<unsigned short, 1>& band) { return lowpass(part,
            band, size); });
}

inline status lowpass(view<const float, 1> source, view<float, 1> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lowpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("lowpass", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("lowpass", "source", source.around(), detail::half(size), detail::half(size),
        detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("lowpass", "destination", destination, source); !s) return s;
    return detail::answer("lowpass",
        size == mask::size3x3 ? ImageProcessingWrapper::FilterLowpass3x3_32f_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(),
        source.height()) : ImageProcessingWrapper::FilterLowpass5x5_32f_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status lowpass(view<const float, 1> source, view<float, 1> destination, mask size, edge beyond,
                      const constant<float, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lowpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("lowpass", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("lowpass", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const float, 1>& part, const view<float, 1>& band) { return lowpass(part, band, size); });
}

inline status lowpass(view<const float, 3> source, view<float, 3> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lowpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("lowpass", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("lowpass", "source", source.around(), detail::half(size), detail::half(size),
        detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("lowpass", "destination", destination, source); !s) return s;
    return detail::answer("lowpass",
        size == mask::size3x3 ? ImageProcessingWrapper::FilterLowpass3x3_32f_C3R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(),
        source.height()) : ImageProcessingWrapper::FilterLowpass5x5_32f_C3R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status lowpass(view<const float, 3> source, view<float, 3> destination, mask size, edge beyond,
                      const constant<float, 3>& value = {0, 0, 0})
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("lowpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("lowpass", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("lowpass", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const float, 3>& part, const view<float, 3>& band) { return lowpass(part, band, size); });
}

/// destination = 9 * source - sum of 3x3 pixels
inline status highpass(view<const float, 1> source, view<float, 1> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("highpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("highpass", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("highpass", "source", source.around(), detail::half(size), detail::half(size),
        detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("highpass", "destination", destination, source); !s) return s;
    return detail::answer("highpass",
        size == mask::size3x3 ? ImageProcessingWrapper::FilterHipass3x3_32f_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(),
        source.height()) : ImageProcessingWrapper::FilterHipass5x5_32f_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status highpass(view<const float, 1> source, view<float, 1> destination, mask size, edge beyond,
                       const constant<float, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("highpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("highpass", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("highpass", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const float, 1>& part, const view<float, 1>& band) { return highpass(part, band, size); });
}

/// destination = 9 * source - sum of 3x3 pixels: the same as FilterHipass3x3_32f_C1R
inline status laplace(view<const float, 1> source, view<float, 1> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("laplace", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("laplace", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("laplace", "source", source.around(), detail::half(size), detail::half(size),
        detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("laplace", "destination", destination, source); !s) return s;
    return detail::answer("laplace",
        size == mask::size3x3 ? ImageProcessingWrapper::FilterLaplace3x3_32f_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(),
        source.height()) : ImageProcessingWrapper::FilterLaplace5x5_32f_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status laplace(view<const float, 1> source, view<float, 1> destination, mask size, edge beyond,
                      const constant<float, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("laplace", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("laplace", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("laplace", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const float, 1>& part, const view<float, 1>& band) { return laplace(part, band, size); });
}

/// destination = second cross derivative, 3x3 kernel above
inline status sobel_cross(view<const float, 1> source, view<float, 1> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("sobel_cross", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("sobel_cross", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("sobel_cross", "source", source.around(), detail::half(size),
        detail::half(size), detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("sobel_cross", "destination", destination, source); !s) return s;
    return detail::answer("sobel_cross",
        size == mask::size3x3 ? ImageProcessingWrapper::FilterSobelCross3x3_32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(),
        source.height()) : ImageProcessingWrapper::FilterSobelCross5x5_32f_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status sobel_cross(view<const float, 1> source, view<float, 1> destination, mask size, edge beyond,
                          const constant<float, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("sobel_cross", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("sobel_cross", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("sobel_cross", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const float, 1>& part, const view<float, 1>& band) { return sobel_cross(part, band, size); });
}

/// destination = weighted sum of 3x3 pixels / 16, rounded to nearest, ties to even
inline status gauss(view<const unsigned short, 1> source, view<unsigned short, 1> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("gauss", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("gauss", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("gauss", "source", source.around(), detail::half(size), detail::half(size),
        detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("gauss", "destination", destination, source); !s) return s;
    return detail::answer("gauss",
        size == mask::size3x3 ? ImageProcessingWrapper::FilterGauss3x3_16u_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(),
        source.height()) : ImageProcessingWrapper::FilterGauss5x5_16u_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status gauss(view<const unsigned short, 1> source, view<unsigned short, 1> destination, mask size, edge beyond,
                    const constant<unsigned short, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("gauss", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("gauss", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("gauss", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const unsigned short, 1>& part, const view<unsigned short, 1>& band) { return gauss(part, band,
            size); });
}

/// destination = 8 or 24 times source - the sum of its neighbours, 3x3 or 5x5
inline status highpass(view<const unsigned char, 1> source, view<short, 1> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("highpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("highpass", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("highpass", "source", source.around(), detail::half(size), detail::half(size),
        detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("highpass", "destination", destination, source); !s) return s;
    return detail::answer("highpass", ImageProcessingWrapper::Filter_8u16s_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), detail::highpass_kernel(size),
        static_cast<int>(size), static_cast<int>(size), detail::half(size), detail::half(size), 1),
        detail::reason::memory);
}

inline status highpass(view<const unsigned char, 1> source, view<short, 1> destination, mask size, edge beyond,
                       const constant<unsigned char, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("highpass", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("highpass", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("highpass", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const unsigned char, 1>& part, const view<short, 1>& band) { return highpass(part, band,
            size); });
}

/// destination = Laplacian, signed
inline status laplace(view<const unsigned char, 1> source, view<short, 1> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("laplace", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("laplace", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("laplace", "source", source.around(), detail::half(size), detail::half(size),
        detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("laplace", "destination", destination, source); !s) return s;
    return detail::answer("laplace", ImageProcessingWrapper::Filter_8u16s_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), detail::laplace_kernel(size),
        static_cast<int>(size), static_cast<int>(size), detail::half(size), detail::half(size), 1),
        detail::reason::memory);
}

inline status laplace(view<const unsigned char, 1> source, view<short, 1> destination, mask size, edge beyond,
                      const constant<unsigned char, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("laplace", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("laplace", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("laplace", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const unsigned char, 1>& part, const view<short, 1>& band) { return laplace(part, band,
            size); });
}

/// destination = second cross derivative, signed
inline status sobel_cross(view<const unsigned char, 1> source, view<short, 1> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("sobel_cross", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("sobel_cross", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("sobel_cross", "source", source.around(), detail::half(size),
        detail::half(size), detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("sobel_cross", "destination", destination, source); !s) return s;
    return detail::answer("sobel_cross", ImageProcessingWrapper::Filter_8u16s_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), detail::cross_kernel(size),
        static_cast<int>(size), static_cast<int>(size), detail::half(size), detail::half(size), 1),
        detail::reason::memory);
}

inline status sobel_cross(view<const unsigned char, 1> source, view<short, 1> destination, mask size, edge beyond,
                          const constant<unsigned char, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("sobel_cross", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("sobel_cross", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("sobel_cross", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const unsigned char, 1>& part, const view<short, 1>& band) { return sobel_cross(part, band,
            size); });
}

/// destination = weighted sum of 3x3 pixels / 16 or 5x5 / 571, rounded to nearest, ties to even
inline status gauss(view<const unsigned char, 1> source, view<unsigned char, 1> destination, mask size)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("gauss", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("gauss", "size", static_cast<int>(size), 0x28); !s) return s;
    if (const status s = detail::framed("gauss", "source", source.around(), detail::half(size), detail::half(size),
        detail::half(size), detail::half(size)); !s) return s;
    if (const status s = detail::apart("gauss", "destination", destination, source); !s) return s;
    return detail::answer("gauss", ImageProcessingWrapper::Filter_8u_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), detail::gauss_kernel(size),
        static_cast<int>(size), static_cast<int>(size), detail::half(size), detail::half(size),
        size == mask::size3x3 ? 16 : 571), detail::reason::memory);
}

inline status gauss(view<const unsigned char, 1> source, view<unsigned char, 1> destination, mask size, edge beyond,
                    const constant<unsigned char, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("gauss", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::code("gauss", "size", static_cast<int>(size), 0x28); !s) return s;
    return detail::with_frame("gauss", source, destination, {detail::half(size), detail::half(size),
            detail::half(size), detail::half(size)}, beyond, value,
        [&](const view<const unsigned char, 1>& part, const view<unsigned char, 1>& band) { return gauss(part, band,
            size); });
}

/// destination = sum of w[|i|] * w[|j|] * source(x + i, y + j), |i|, |j| <= r, by rows and columns
inline status gauss(view<const float, 1> source, view<float, 1> destination, int kernel_size, float sigma)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("gauss", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::odd("gauss", "kernel_size", kernel_size); !s) return s;
    if (const status s = detail::above_zero("gauss", "sigma", sigma); !s) return s;
    if (const status s = detail::finite("gauss", "sigma", sigma); !s) return s;
    if (const status s = detail::whole("gauss", "destination", destination, source); !s) return s;
    return detail::answer("gauss", ImageProcessingWrapper::FilterGaussBorder_32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height(),
        kernel_size, sigma), detail::reason::memory);
}

/// destination = local mean + what stands out from it of more than the noise. noise is the variance of the noise, or
/// below 0 to be estimated and stored
inline status wiener(view<const float, 1> source, view<float, 1> destination, int mask_width, int mask_height,
                     double& noise)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("wiener", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::odd("wiener", "mask_width", mask_width); !s) return s;
    if (const status s = detail::odd("wiener", "mask_height", mask_height); !s) return s;
    if (const status s = detail::number("wiener", "noise", noise); !s) return s;
    if (const status s = detail::framed("wiener", "source", source.around(), mask_width / 2, mask_height / 2,
        mask_width / 2, mask_height / 2); !s) return s;
    if (const status s = detail::apart("wiener", "destination", destination, source); !s) return s;
    return detail::answer("wiener", ImageProcessingWrapper::FilterWiener_32f_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), mask_width, mask_height,
        &noise), detail::reason::memory);
}

inline status wiener(view<const float, 1> source, view<float, 1> destination, int mask_width, int mask_height,
                     double& noise, edge beyond, const constant<float, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("wiener", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::odd("wiener", "mask_width", mask_width); !s) return s;
    if (const status s = detail::odd("wiener", "mask_height", mask_height); !s) return s;
    if (const status s = detail::number("wiener", "noise", noise); !s) return s;
    return detail::with_frame("wiener", source, destination, {mask_width / 2, mask_height / 2, mask_width / 2,
            mask_height / 2}, detail::all_rows, beyond, value,
        [&](const view<const float, 1>& part, const view<float, 1>& band) { return wiener(part, band, mask_width,
            mask_height, noise); });
}

/// destination = median of the mask_width x mask_height pixels around source
inline status median(view<const float, 1> source, view<float, 1> destination, int mask_width, int mask_height)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("median", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::odd("median", "mask_width", mask_width); !s) return s;
    if (const status s = detail::odd("median", "mask_height", mask_height); !s) return s;
    if (const status s = detail::framed("median", "source", source.around(), mask_width / 2, mask_height / 2,
        mask_width / 2, mask_height / 2); !s) return s;
    if (const status s = detail::apart("median", "destination", destination, source); !s) return s;
    return detail::answer("median", ImageProcessingWrapper::FilterMedian_32f_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), mask_width, mask_height),
        detail::reason::memory);
}

inline status median(view<const float, 1> source, view<float, 1> destination, int mask_width, int mask_height,
                     edge beyond, const constant<float, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("median", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::odd("median", "mask_width", mask_width); !s) return s;
    if (const status s = detail::odd("median", "mask_height", mask_height); !s) return s;
    return detail::with_frame("median", source, destination, {mask_width / 2, mask_height / 2, mask_width / 2,
            mask_height / 2}, beyond, value,
        [&](const view<const float, 1>& part, const view<float, 1>& band) { return median(part, band, mask_width,
            mask_height); });
}

/// destination = first in order of the 3x3 pixels around source. Of bytes in one channel it reports no lack of
/// memory: the method is true whatever happens.
inline status erode(view<const unsigned char, 1> source, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("erode", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("erode", "destination", destination, source); !s) return s;
    return detail::answer("erode", ImageProcessingWrapper::Erode3x3_8u_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status erode(view<const unsigned char, 3> source, view<unsigned char, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("erode", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("erode", "destination", destination, source); !s) return s;
    return detail::answer("erode", ImageProcessingWrapper::Erode3x3_8u_C3(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status erode(view<const unsigned char, 4> source, view<unsigned char, 4> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("erode", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("erode", "destination", destination, source); !s) return s;
    return detail::answer("erode", ImageProcessingWrapper::Erode3x3_8u_C4(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status erode(view<const unsigned short, 1> source, view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("erode", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("erode", "destination", destination, source); !s) return s;
    return detail::answer("erode", ImageProcessingWrapper::Erode3x3_16u_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status erode(view<const float, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("erode", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("erode", "destination", destination, source); !s) return s;
    return detail::answer("erode", ImageProcessingWrapper::Erode3x3_32f_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

/// destination = last in order of the 3x3 pixels around source. Of bytes in one channel it reports no lack of memory:
/// the method is true whatever happens.
inline status dilate(view<const unsigned char, 1> source, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("dilate", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("dilate", "destination", destination, source); !s) return s;
    return detail::answer("dilate", ImageProcessingWrapper::Dilate3x3_8u_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status dilate(view<const unsigned char, 3> source, view<unsigned char, 3> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("dilate", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("dilate", "destination", destination, source); !s) return s;
    return detail::answer("dilate", ImageProcessingWrapper::Dilate3x3_8u_C3(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status dilate(view<const unsigned char, 4> source, view<unsigned char, 4> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("dilate", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("dilate", "destination", destination, source); !s) return s;
    return detail::answer("dilate", ImageProcessingWrapper::Dilate3x3_8u_C4(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status dilate(view<const unsigned short, 1> source, view<unsigned short, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("dilate", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("dilate", "destination", destination, source); !s) return s;
    return detail::answer("dilate", ImageProcessingWrapper::Dilate3x3_16u_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

inline status dilate(view<const float, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("dilate", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::whole("dilate", "destination", destination, source); !s) return s;
    return detail::answer("dilate", ImageProcessingWrapper::Dilate3x3_32f_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

/// destination = sum / divisor
inline status convolve(view<const unsigned char, 1> source, view<unsigned char, 1> destination,
                       span<const int> kernel, int kernel_width, int kernel_height, int anchor_x, int anchor_y,
                       int divisor = 1)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::nonzero("convolve", "divisor", divisor); !s) return s;
    if (const status s = detail::framed("convolve", "source", source.around(), kernel_width - 1 - anchor_x,
        kernel_height - 1 - anchor_y, anchor_x, anchor_y); !s) return s;
    if (const status s = detail::apart("convolve", "destination", destination, source); !s) return s;
    return detail::answer("convolve", ImageProcessingWrapper::Filter_8u_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), kernel.data(), kernel_width,
        kernel_height, anchor_x, anchor_y, divisor), detail::reason::memory);
}

inline status convolve(view<const unsigned char, 1> source, view<unsigned char, 1> destination,
                       span<const int> kernel, int kernel_width, int kernel_height, int anchor_x, int anchor_y,
                       int divisor, edge beyond, const constant<unsigned char, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::nonzero("convolve", "divisor", divisor); !s) return s;
    return detail::with_frame("convolve", source, destination, {kernel_width - 1 - anchor_x,
            kernel_height - 1 - anchor_y, anchor_x, anchor_y}, beyond, value,
        [&](const view<const unsigned char, 1>& part, const view<unsigned char, 1>& band) { return convolve(part,
            band, kernel, kernel_width, kernel_height, anchor_x, anchor_y, divisor); });
}

inline status convolve(view<const unsigned char, 3> source, view<unsigned char, 3> destination,
                       span<const int> kernel, int kernel_width, int kernel_height, int anchor_x, int anchor_y,
                       int divisor = 1)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::nonzero("convolve", "divisor", divisor); !s) return s;
    if (const status s = detail::framed("convolve", "source", source.around(), kernel_width - 1 - anchor_x,
        kernel_height - 1 - anchor_y, anchor_x, anchor_y); !s) return s;
    if (const status s = detail::apart("convolve", "destination", destination, source); !s) return s;
    return detail::answer("convolve", ImageProcessingWrapper::Filter_8u_C3R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), kernel.data(), kernel_width,
        kernel_height, anchor_x, anchor_y, divisor), detail::reason::memory);
}

inline status convolve(view<const unsigned char, 3> source, view<unsigned char, 3> destination,
                       span<const int> kernel, int kernel_width, int kernel_height, int anchor_x, int anchor_y,
                       int divisor, edge beyond, const constant<unsigned char, 3>& value = {0, 0, 0})
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::nonzero("convolve", "divisor", divisor); !s) return s;
    return detail::with_frame("convolve", source, destination, {kernel_width - 1 - anchor_x,
            kernel_height - 1 - anchor_y, anchor_x, anchor_y}, beyond, value,
        [&](const view<const unsigned char, 3>& part, const view<unsigned char, 3>& band) { return convolve(part,
            band, kernel, kernel_width, kernel_height, anchor_x, anchor_y, divisor); });
}

inline status convolve(view<const unsigned char, 4> source, view<unsigned char, 4> destination,
                       span<const int> kernel, int kernel_width, int kernel_height, int anchor_x, int anchor_y,
                       int divisor = 1)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::nonzero("convolve", "divisor", divisor); !s) return s;
    if (const status s = detail::framed("convolve", "source", source.around(), kernel_width - 1 - anchor_x,
        kernel_height - 1 - anchor_y, anchor_x, anchor_y); !s) return s;
    if (const status s = detail::apart("convolve", "destination", destination, source); !s) return s;
    return detail::answer("convolve", ImageProcessingWrapper::Filter_8u_C4R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), kernel.data(), kernel_width,
        kernel_height, anchor_x, anchor_y, divisor), detail::reason::memory);
}

inline status convolve(view<const unsigned char, 4> source, view<unsigned char, 4> destination,
                       span<const int> kernel, int kernel_width, int kernel_height, int anchor_x, int anchor_y,
                       int divisor, edge beyond, const constant<unsigned char, 4>& value = {0, 0, 0, 0})
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::nonzero("convolve", "divisor", divisor); !s) return s;
    return detail::with_frame("convolve", source, destination, {kernel_width - 1 - anchor_x,
            kernel_height - 1 - anchor_y, anchor_x, anchor_y}, beyond, value,
        [&](const view<const unsigned char, 4>& part, const view<unsigned char, 4>& band) { return convolve(part,
            band, kernel, kernel_width, kernel_height, anchor_x, anchor_y, divisor); });
}

inline status convolve(view<const unsigned short, 1> source, view<unsigned short, 1> destination,
                       span<const int> kernel, int kernel_width, int kernel_height, int anchor_x, int anchor_y,
                       int divisor = 1)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::nonzero("convolve", "divisor", divisor); !s) return s;
    if (const status s = detail::framed("convolve", "source", source.around(), kernel_width - 1 - anchor_x,
        kernel_height - 1 - anchor_y, anchor_x, anchor_y); !s) return s;
    if (const status s = detail::apart("convolve", "destination", destination, source); !s) return s;
    return detail::answer("convolve", ImageProcessingWrapper::Filter_16u_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), kernel.data(), kernel_width,
        kernel_height, anchor_x, anchor_y, divisor), detail::reason::memory);
}

inline status convolve(view<const unsigned short, 1> source, view<unsigned short, 1> destination,
                       span<const int> kernel, int kernel_width, int kernel_height, int anchor_x, int anchor_y,
                       int divisor, edge beyond, const constant<unsigned short, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::nonzero("convolve", "divisor", divisor); !s) return s;
    return detail::with_frame("convolve", source, destination, {kernel_width - 1 - anchor_x,
            kernel_height - 1 - anchor_y, anchor_x, anchor_y}, beyond, value,
        [&](const view<const unsigned short, 1>& part, const view<unsigned short, 1>& band) { return convolve(part,
            band, kernel, kernel_width, kernel_height, anchor_x, anchor_y, divisor); });
}

inline status convolve(view<const short, 1> source, view<short, 1> destination, span<const int> kernel,
                       int kernel_width, int kernel_height, int anchor_x, int anchor_y, int divisor = 1)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::nonzero("convolve", "divisor", divisor); !s) return s;
    if (const status s = detail::framed("convolve", "source", source.around(), kernel_width - 1 - anchor_x,
        kernel_height - 1 - anchor_y, anchor_x, anchor_y); !s) return s;
    if (const status s = detail::apart("convolve", "destination", destination, source); !s) return s;
    return detail::answer("convolve", ImageProcessingWrapper::Filter_16s_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), kernel.data(), kernel_width,
        kernel_height, anchor_x, anchor_y, divisor), detail::reason::memory);
}

inline status convolve(view<const short, 1> source, view<short, 1> destination, span<const int> kernel,
                       int kernel_width, int kernel_height, int anchor_x, int anchor_y, int divisor, edge beyond,
                       const constant<short, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::nonzero("convolve", "divisor", divisor); !s) return s;
    return detail::with_frame("convolve", source, destination, {kernel_width - 1 - anchor_x,
            kernel_height - 1 - anchor_y, anchor_x, anchor_y}, beyond, value,
        [&](const view<const short, 1>& part, const view<short, 1>& band) { return convolve(part, band, kernel,
            kernel_width, kernel_height, anchor_x, anchor_y, divisor); });
}

inline status convolve(view<const unsigned char, 1> source, view<short, 1> destination, span<const int> kernel,
                       int kernel_width, int kernel_height, int anchor_x, int anchor_y, int divisor = 1)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::nonzero("convolve", "divisor", divisor); !s) return s;
    if (const status s = detail::framed("convolve", "source", source.around(), kernel_width - 1 - anchor_x,
        kernel_height - 1 - anchor_y, anchor_x, anchor_y); !s) return s;
    if (const status s = detail::apart("convolve", "destination", destination, source); !s) return s;
    return detail::answer("convolve", ImageProcessingWrapper::Filter_8u16s_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), kernel.data(), kernel_width,
        kernel_height, anchor_x, anchor_y, divisor), detail::reason::memory);
}

inline status convolve(view<const unsigned char, 1> source, view<short, 1> destination, span<const int> kernel,
                       int kernel_width, int kernel_height, int anchor_x, int anchor_y, int divisor, edge beyond,
                       const constant<unsigned char, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::nonzero("convolve", "divisor", divisor); !s) return s;
    return detail::with_frame("convolve", source, destination, {kernel_width - 1 - anchor_x,
            kernel_height - 1 - anchor_y, anchor_x, anchor_y}, beyond, value,
        [&](const view<const unsigned char, 1>& part, const view<short, 1>& band) { return convolve(part, band,
            kernel, kernel_width, kernel_height, anchor_x, anchor_y, divisor); });
}

inline status convolve(view<const float, 1> source, view<float, 1> destination, span<const float> kernel,
                       int kernel_width, int kernel_height, int anchor_x, int anchor_y)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::framed("convolve", "source", source.around(), kernel_width - 1 - anchor_x,
        kernel_height - 1 - anchor_y, anchor_x, anchor_y); !s) return s;
    if (const status s = detail::apart("convolve", "destination", destination, source); !s) return s;
    return detail::answer("convolve", ImageProcessingWrapper::Filter_32f_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), kernel.data(), kernel_width,
        kernel_height, anchor_x, anchor_y), detail::reason::memory);
}

inline status convolve(view<const float, 1> source, view<float, 1> destination, span<const float> kernel,
                       int kernel_width, int kernel_height, int anchor_x, int anchor_y, edge beyond,
                       const constant<float, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    return detail::with_frame("convolve", source, destination, {kernel_width - 1 - anchor_x,
            kernel_height - 1 - anchor_y, anchor_x, anchor_y}, beyond, value,
        [&](const view<const float, 1>& part, const view<float, 1>& band) { return convolve(part, band, kernel,
            kernel_width, kernel_height, anchor_x, anchor_y); });
}

inline status convolve(view<const float, 3> source, view<float, 3> destination, span<const float> kernel,
                       int kernel_width, int kernel_height, int anchor_x, int anchor_y)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::framed("convolve", "source", source.around(), kernel_width - 1 - anchor_x,
        kernel_height - 1 - anchor_y, anchor_x, anchor_y); !s) return s;
    if (const status s = detail::apart("convolve", "destination", destination, source); !s) return s;
    return detail::answer("convolve", ImageProcessingWrapper::Filter_32f_C3R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), kernel.data(), kernel_width,
        kernel_height, anchor_x, anchor_y), detail::reason::memory);
}

inline status convolve(view<const float, 3> source, view<float, 3> destination, span<const float> kernel,
                       int kernel_width, int kernel_height, int anchor_x, int anchor_y, edge beyond,
                       const constant<float, 3>& value = {0, 0, 0})
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    return detail::with_frame("convolve", source, destination, {kernel_width - 1 - anchor_x,
            kernel_height - 1 - anchor_y, anchor_x, anchor_y}, beyond, value,
        [&](const view<const float, 3>& part, const view<float, 3>& band) { return convolve(part, band, kernel,
            kernel_width, kernel_height, anchor_x, anchor_y); });
}

inline status convolve(view<const unsigned char, 1> source, view<float, 1> destination, span<const float> kernel,
                       int kernel_width, int kernel_height, int anchor_x, int anchor_y)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::framed("convolve", "source", source.around(), kernel_width - 1 - anchor_x,
        kernel_height - 1 - anchor_y, anchor_x, anchor_y); !s) return s;
    if (const status s = detail::apart("convolve", "destination", destination, source); !s) return s;
    return detail::answer("convolve", ImageProcessingWrapper::Filter_8u32f_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), kernel.data(), kernel_width,
        kernel_height, anchor_x, anchor_y), detail::reason::memory);
}

inline status convolve(view<const unsigned char, 1> source, view<float, 1> destination, span<const float> kernel,
                       int kernel_width, int kernel_height, int anchor_x, int anchor_y, edge beyond,
                       const constant<unsigned char, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    return detail::with_frame("convolve", source, destination, {kernel_width - 1 - anchor_x,
            kernel_height - 1 - anchor_y, anchor_x, anchor_y}, beyond, value,
        [&](const view<const unsigned char, 1>& part, const view<float, 1>& band) { return convolve(part, band,
            kernel, kernel_width, kernel_height, anchor_x, anchor_y); });
}

inline status convolve(view<const unsigned short, 1> source, view<float, 1> destination, span<const float> kernel,
                       int kernel_width, int kernel_height, int anchor_x, int anchor_y)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    if (const status s = detail::framed("convolve", "source", source.around(), kernel_width - 1 - anchor_x,
        kernel_height - 1 - anchor_y, anchor_x, anchor_y); !s) return s;
    if (const status s = detail::apart("convolve", "destination", destination, source); !s) return s;
    return detail::answer("convolve", ImageProcessingWrapper::Filter_16u32f_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), kernel.data(), kernel_width,
        kernel_height, anchor_x, anchor_y), detail::reason::memory);
}

inline status convolve(view<const unsigned short, 1> source, view<float, 1> destination, span<const float> kernel,
                       int kernel_width, int kernel_height, int anchor_x, int anchor_y, edge beyond,
                       const constant<unsigned short, 1>& value = 0)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("convolve", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::between("convolve", "kernel_width", kernel_width, 1, 255); !s) return s;
    if (const status s = detail::between("convolve", "kernel_height", kernel_height, 1, 255); !s) return s;
    if (const status s = detail::filled("convolve", "kernel", kernel,
        static_cast<std::size_t>(kernel_width) * static_cast<std::size_t>(kernel_height)); !s) return s;
    if (const status s = detail::between("convolve", "anchor_x", anchor_x, 0, kernel_width - 1); !s) return s;
    if (const status s = detail::between("convolve", "anchor_y", anchor_y, 0, kernel_height - 1); !s) return s;
    return detail::with_frame("convolve", source, destination, {kernel_width - 1 - anchor_x,
            kernel_height - 1 - anchor_y, anchor_x, anchor_y}, beyond, value,
        [&](const view<const unsigned short, 1>& part, const view<float, 1>& band) { return convolve(part, band,
            kernel, kernel_width, kernel_height, anchor_x, anchor_y); });
}

/// destination = 255 where source has an edge above low that is joined to one above high, else 0
inline status canny(view<const float, 1> source, view<unsigned char, 1> destination, float low, float high)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("canny", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::thresholds("canny", low, high); !s) return s;
    if (const status s = detail::apart("canny", "destination", destination, source); !s) return s;
    return detail::answer("canny", ImageProcessingWrapper::Canny_32f8u_C1(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height(), low, high),
        detail::reason::memory);
}

/// image = value for the pixels that are joined to the seed by its own value; count = their number
inline status flood_fill(view<unsigned char, 1> image, int seed_x, int seed_y,
                         const constant<unsigned char, 1>& value, int& count)
{
    if (!detail::alike(image)) return detail::unlike<detail::region>("flood_fill", {{"image", image}});
    if (!value.held()) return detail::unheld("flood_fill", "value", value);
    if (const status s = detail::between("flood_fill", "seed_x", seed_x, 0, image.width() - 1); !s) return s;
    if (const status s = detail::between("flood_fill", "seed_y", seed_y, 0, image.height() - 1); !s) return s;
    return detail::answer("flood_fill", ImageProcessingWrapper::FloodFill_8Con_8u_C1IR(image.data(),
        detail::step(image), image.width(), image.height(), seed_x, seed_y, value.one(), &count),
        detail::reason::memory);
}

/// total = sum of source
inline status sum(view<const unsigned char, 1> source, double& total)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("sum", {{"source", source}});
    return detail::answer("sum", ImageProcessingWrapper::Sum_8u_C1R(source.data(), detail::step(source),
        source.width(), source.height(), &total), detail::reason::memory);
}

inline status sum(view<const unsigned char, 3> source, double (&total)[3])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("sum", {{"source", source}});
    return detail::answer("sum", ImageProcessingWrapper::Sum_8u_C3R(source.data(), detail::step(source),
        source.width(), source.height(), total), detail::reason::memory);
}

inline status sum(view<const unsigned char, 4> source, double (&total)[4])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("sum", {{"source", source}});
    return detail::answer("sum", ImageProcessingWrapper::Sum_8u_C4R(source.data(), detail::step(source),
        source.width(), source.height(), total), detail::reason::memory);
}

inline status sum(view<const unsigned short, 1> source, double& total)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("sum", {{"source", source}});
    return detail::answer("sum", ImageProcessingWrapper::Sum_16u_C1R(source.data(), detail::step(source),
        source.width(), source.height(), &total), detail::reason::memory);
}

inline status sum(view<const short, 1> source, double& total)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("sum", {{"source", source}});
    return detail::answer("sum", ImageProcessingWrapper::Sum_16s_C1R(source.data(), detail::step(source),
        source.width(), source.height(), &total), detail::reason::memory);
}

inline status sum(view<const float, 1> source, double& total)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("sum", {{"source", source}});
    return detail::answer("sum", ImageProcessingWrapper::Sum_32f_C1R(source.data(), detail::step(source),
        source.width(), source.height(), &total, true), detail::reason::memory);
}

inline status sum(view<const float, 3> source, double (&total)[3])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("sum", {{"source", source}});
    return detail::answer("sum", ImageProcessingWrapper::Sum_32f_C3R(source.data(), detail::step(source),
        source.width(), source.height(), total, true), detail::reason::memory);
}

/// average = sum of source / (width * height)
inline status mean(view<const unsigned char, 1> source, double& average)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("mean", {{"source", source}});
    return detail::answer("mean", ImageProcessingWrapper::Mean_8u_C1R(source.data(), detail::step(source),
        source.width(), source.height(), &average), detail::reason::memory);
}

inline status mean(view<const unsigned char, 3> source, double (&average)[3])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("mean", {{"source", source}});
    return detail::answer("mean", ImageProcessingWrapper::Mean_8u_C3R(source.data(), detail::step(source),
        source.width(), source.height(), average), detail::reason::memory);
}

inline status mean(view<const unsigned char, 4> source, double (&average)[4])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("mean", {{"source", source}});
    return detail::answer("mean", ImageProcessingWrapper::Mean_8u_C4R(source.data(), detail::step(source),
        source.width(), source.height(), average), detail::reason::memory);
}

inline status mean(view<const unsigned short, 1> source, double& average)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("mean", {{"source", source}});
    return detail::answer("mean", ImageProcessingWrapper::Mean_16u_C1R(source.data(), detail::step(source),
        source.width(), source.height(), &average), detail::reason::memory);
}

inline status mean(view<const short, 1> source, double& average)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("mean", {{"source", source}});
    return detail::answer("mean", ImageProcessingWrapper::Mean_16s_C1R(source.data(), detail::step(source),
        source.width(), source.height(), &average), detail::reason::memory);
}

inline status mean(view<const float, 1> source, double& average)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("mean", {{"source", source}});
    return detail::answer("mean", ImageProcessingWrapper::Mean_32f_C1R(source.data(), detail::step(source),
        source.width(), source.height(), &average, true), detail::reason::memory);
}

inline status mean(view<const float, 3> source, double (&average)[3])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("mean", {{"source", source}});
    return detail::answer("mean", ImageProcessingWrapper::Mean_32f_C3R(source.data(), detail::step(source),
        source.width(), source.height(), average, true), detail::reason::memory);
}

/// average = sum of source / n, deviation = sqrt(|sum of source^2 / n - mean^2|), n = width * height
inline status mean_deviation(view<const unsigned char, 1> source, double& average, double& deviation)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("mean_deviation", {{"source", source}});
    return detail::answer("mean_deviation", ImageProcessingWrapper::Mean_StdDev_8u_C1R(source.data(),
        detail::step(source), source.width(), source.height(), &average, &deviation), detail::reason::memory);
}

inline status mean_deviation(view<const unsigned short, 1> source, double& average, double& deviation)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("mean_deviation", {{"source", source}});
    return detail::answer("mean_deviation", ImageProcessingWrapper::Mean_StdDev_16u_C1R(source.data(),
        detail::step(source), source.width(), source.height(), &average, &deviation), detail::reason::memory);
}

/// total = sum of source, squares = sum of source^2
inline status sum_squares(view<const unsigned char, 1> source, unsigned long long& total, unsigned long long& squares)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("sum_squares", {{"source", source}});
    return detail::answer("sum_squares", orvaneSumSquares_8u_C1(source.data(), detail::step(source), source.width(),
        source.height(), &total, &squares), detail::reason::memory);
}

inline status sum_squares(view<const unsigned short, 1> source, unsigned long long& total,
                          unsigned long long& squares)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("sum_squares", {{"source", source}});
    return detail::answer("sum_squares", orvaneSumSquares_16u_C1(source.data(), detail::step(source), source.width(),
        source.height(), &total, &squares), detail::reason::memory);
}

/// least = least of source
inline status minimum(view<const unsigned char, 1> source, unsigned char& least)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum", {{"source", source}});
    return detail::answer("minimum", ImageProcessingWrapper::Min_8u_C1(source.data(), detail::step(source),
        source.width(), source.height(), &least), detail::reason::memory);
}

inline status minimum(view<const unsigned char, 3> source, unsigned char (&least)[3])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum", {{"source", source}});
    return detail::answer("minimum", ImageProcessingWrapper::Min_8u_C3(source.data(), detail::step(source),
        source.width(), source.height(), least), detail::reason::memory);
}

inline status minimum(view<const unsigned short, 1> source, unsigned short& least)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum", {{"source", source}});
    return detail::answer("minimum", ImageProcessingWrapper::Min_16u_C1(source.data(), detail::step(source),
        source.width(), source.height(), &least), detail::reason::memory);
}

inline status minimum(view<const short, 1> source, short& least)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum", {{"source", source}});
    return detail::answer("minimum", ImageProcessingWrapper::Min_16s_C1(source.data(), detail::step(source),
        source.width(), source.height(), &least), detail::reason::memory);
}

inline status minimum(view<const float, 1> source, float& least)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum", {{"source", source}});
    return detail::answer("minimum", ImageProcessingWrapper::Min_32f_C1(source.data(), detail::step(source),
        source.width(), source.height(), &least), detail::reason::memory);
}

inline status minimum(view<const float, 3> source, float (&least)[3])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum", {{"source", source}});
    return detail::answer("minimum", ImageProcessingWrapper::Min_32f_C3(source.data(), detail::step(source),
        source.width(), source.height(), least), detail::reason::memory);
}

/// greatest = greatest of source
inline status maximum(view<const unsigned char, 1> source, unsigned char& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("maximum", {{"source", source}});
    return detail::answer("maximum", ImageProcessingWrapper::Max_8u_C1(source.data(), detail::step(source),
        source.width(), source.height(), &greatest), detail::reason::memory);
}

inline status maximum(view<const unsigned char, 4> source, unsigned char (&greatest)[4])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("maximum", {{"source", source}});
    return detail::answer("maximum", ImageProcessingWrapper::Max_8u_C4(source.data(), detail::step(source),
        source.width(), source.height(), greatest), detail::reason::memory);
}

inline status maximum(view<const unsigned short, 1> source, unsigned short& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("maximum", {{"source", source}});
    return detail::answer("maximum", ImageProcessingWrapper::Max_16u_C1(source.data(), detail::step(source),
        source.width(), source.height(), &greatest), detail::reason::memory);
}

inline status maximum(view<const short, 1> source, short& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("maximum", {{"source", source}});
    return detail::answer("maximum", ImageProcessingWrapper::Max_16s_C1(source.data(), detail::step(source),
        source.width(), source.height(), &greatest), detail::reason::memory);
}

inline status maximum(view<const float, 1> source, float& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("maximum", {{"source", source}});
    return detail::answer("maximum", ImageProcessingWrapper::Max_32f_C1(source.data(), detail::step(source),
        source.width(), source.height(), &greatest), detail::reason::memory);
}

inline status maximum(view<const float, 3> source, float (&greatest)[3])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("maximum", {{"source", source}});
    return detail::answer("maximum", ImageProcessingWrapper::Max_32f_C3(source.data(), detail::step(source),
        source.width(), source.height(), greatest), detail::reason::memory);
}

/// least = least, greatest = greatest of source
inline status minimum_maximum(view<const unsigned char, 1> source, unsigned char& least, unsigned char& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum_maximum", {{"source", source}});
    return detail::answer("minimum_maximum", ImageProcessingWrapper::MinMax_8u_C1(source.data(), detail::step(source),
        source.width(), source.height(), &least, &greatest), detail::reason::memory);
}

inline status minimum_maximum(view<const unsigned char, 3> source, unsigned char (&least)[3],
                              unsigned char (&greatest)[3])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum_maximum", {{"source", source}});
    return detail::answer("minimum_maximum", ImageProcessingWrapper::MinMax_8u_C3(source.data(), detail::step(source),
        source.width(), source.height(), least, greatest), detail::reason::memory);
}

inline status minimum_maximum(view<const unsigned char, 4> source, unsigned char (&least)[4],
                              unsigned char (&greatest)[4])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum_maximum", {{"source", source}});
    return detail::answer("minimum_maximum", ImageProcessingWrapper::MinMax_8u_C4(source.data(), detail::step(source),
        source.width(), source.height(), least, greatest), detail::reason::memory);
}

inline status minimum_maximum(view<const unsigned short, 1> source, unsigned short& least, unsigned short& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum_maximum", {{"source", source}});
    return detail::answer("minimum_maximum", ImageProcessingWrapper::MinMax_16u_C1(source.data(),
        detail::step(source), source.width(), source.height(), &least, &greatest), detail::reason::memory);
}

inline status minimum_maximum(view<const short, 1> source, short& least, short& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum_maximum", {{"source", source}});
    return detail::answer("minimum_maximum", ImageProcessingWrapper::MinMax_16s_C1(source.data(),
        detail::step(source), source.width(), source.height(), &least, &greatest), detail::reason::memory);
}

inline status minimum_maximum(view<const float, 1> source, float& least, float& greatest)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum_maximum", {{"source", source}});
    return detail::answer("minimum_maximum", ImageProcessingWrapper::MinMax_32f_C1(source.data(),
        detail::step(source), source.width(), source.height(), &least, &greatest), detail::reason::memory);
}

inline status minimum_maximum(view<const float, 3> source, float (&least)[3], float (&greatest)[3])
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum_maximum", {{"source", source}});
    return detail::answer("minimum_maximum", ImageProcessingWrapper::MinMax_32f_C3(source.data(),
        detail::step(source), source.width(), source.height(), least, greatest), detail::reason::memory);
}

/// least = source(column, row), the first of the least pixels
inline status minimum(view<const unsigned char, 1> source, unsigned char& least, int& column, int& row)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum", {{"source", source}});
    return detail::answer("minimum", ImageProcessingWrapper::MinIndx_8u_C1R(source.data(), detail::step(source),
        source.width(), source.height(), &least, &column, &row), detail::reason::memory);
}

inline status minimum(view<const unsigned short, 1> source, unsigned short& least, int& column, int& row)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("minimum", {{"source", source}});
    return detail::answer("minimum", ImageProcessingWrapper::MinIndx_16u_C1R(source.data(), detail::step(source),
        source.width(), source.height(), &least, &column, &row), detail::reason::memory);
}

/// greatest = source(column, row), the first of the greatest pixels
inline status maximum(view<const unsigned char, 1> source, unsigned char& greatest, int& column, int& row)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("maximum", {{"source", source}});
    return detail::answer("maximum", ImageProcessingWrapper::MaxIndx_8u_C1R(source.data(), detail::step(source),
        source.width(), source.height(), &greatest, &column, &row), detail::reason::memory);
}

inline status maximum(view<const unsigned short, 1> source, unsigned short& greatest, int& column, int& row)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("maximum", {{"source", source}});
    return detail::answer("maximum", ImageProcessingWrapper::MaxIndx_16u_C1R(source.data(), detail::step(source),
        source.width(), source.height(), &greatest, &column, &row), detail::reason::memory);
}

/// counts[k] = number of pixels with levels[k] <= source < levels[k + 1]
inline status histogram(view<const unsigned char, 1> source, span<int> counts, span<int> levels, int lower, int upper)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("histogram", {{"source", source}});
    if (const status s = detail::filled("histogram", "levels", levels, 2, 0x7fffffff); !s) return s;
    if (const status s = detail::filled("histogram", "counts", counts, levels.size() - 1); !s) return s;
    return detail::answer("histogram", ImageProcessingWrapper::HistogramEven_8u_C1(source.data(),
        detail::step(source), source.width(), source.height(), counts.data(), levels.data(), detail::length(levels),
        lower, upper), detail::reason::memory);
}

inline status histogram(view<const unsigned short, 1> source, span<int> counts, span<int> levels, int lower,
                        int upper)
{
    if (!detail::alike(source)) return detail::unlike<detail::region>("histogram", {{"source", source}});
    if (const status s = detail::filled("histogram", "levels", levels, 2, 0x7fffffff); !s) return s;
    if (const status s = detail::filled("histogram", "counts", counts, levels.size() - 1); !s) return s;
    return detail::answer("histogram", ImageProcessingWrapper::HistogramEven_16u_C1(source.data(),
        detail::step(source), source.width(), source.height(), counts.data(), levels.data(), detail::length(levels),
        lower, upper), detail::reason::memory);
}

/// destination = angle of source
inline status phase(view<const Complex32f, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("phase", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::apart("phase", "destination", destination, source); !s) return s;
    return detail::answer("phase", ImageProcessingWrapper::Phase_32fc32f_C1R(source.data(), detail::step(source),
        destination.data(), detail::step(destination), source.width(), source.height()), detail::reason::memory);
}

/// destination = a * b, packed spectra
inline status multiply_packed(view<const float, 1> a, view<const float, 1> b, view<float, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("multiply_packed", {{"a", a}, {"b",
        b}, {"destination", destination}});
    return detail::answer("multiply_packed", ImageProcessingWrapper::MulPack_32f_C1R(a.data(), detail::step(a),
        b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(), a.height()),
        detail::reason::memory);
}

/// destination = a * conj(b), packed spectra
inline status multiply_packed_conjugate(view<const float, 1> a, view<const float, 1> b, view<float, 1> destination)
{
    if (!detail::alike(a, b, destination)) return detail::unlike<detail::region>("multiply_packed_conjugate", {{"a",
        a}, {"b", b}, {"destination", destination}});
    return detail::answer("multiply_packed_conjugate", ImageProcessingWrapper::MulPackConj_32f_C1R(a.data(),
        detail::step(a), b.data(), detail::step(b), destination.data(), detail::step(destination), a.width(),
        a.height()), detail::reason::memory);
}

/// destination(u, v) = |F[v][u]|, all W x H of them, of a packed spectrum
inline status magnitude_packed(view<const float, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("magnitude_packed", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::whole("magnitude_packed", "destination", destination, source); !s) return s;
    return detail::answer("magnitude_packed", ImageProcessingWrapper::MagnitudePack_32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination(u, v) = angle of F[v][u], all W x H of them, of a packed spectrum
inline status phase_packed(view<const float, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("phase_packed", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::whole("phase_packed", "destination", destination, source); !s) return s;
    return detail::answer("phase_packed", ImageProcessingWrapper::PhasePack_32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination(u, v) = F[v][u], all W x H of them, of a packed spectrum
inline status packed_to_complex(view<const float, 1> source, view<Complex32f, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("packed_to_complex", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::apart("packed_to_complex", "destination", destination, source); !s) return s;
    return detail::answer("packed_to_complex", ImageProcessingWrapper::PackToCplxExtend_32f32fc_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = the packed spectrum of which source has all W x H values
inline status complex_to_packed(view<const Complex32f, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("complex_to_packed", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::apart("complex_to_packed", "destination", destination, source); !s) return s;
    return detail::answer("complex_to_packed", ImageProcessingWrapper::CplxExtendToPack_32fc32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = |source|
inline status magnitude(view<const Complex32f, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("magnitude", {{"source", source},
        {"destination", destination}});
    if (const status s = detail::apart("magnitude", "destination", destination, source); !s) return s;
    return detail::answer("magnitude", ImageProcessingWrapper::Magnitude_32fc32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = source * (wx * wy), Hamming windows
inline status hamming_window(view<const float, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("hamming_window", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::between("hamming_window", "source", source.width(), 3, 0x7fffffff); !s) return s;
    if (const status s = detail::between("hamming_window", "source", source.height(), 3, 0x7fffffff); !s) return s;
    if (const status s = detail::whole("hamming_window", "destination", destination, source); !s) return s;
    return detail::answer("hamming_window", ImageProcessingWrapper::WinHamming_32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

/// destination = source * (wx * wy), Bartlett windows: triangles
inline status bartlett_window(view<const float, 1> source, view<float, 1> destination)
{
    if (!detail::alike(source, destination)) return detail::unlike<detail::region>("bartlett_window", {{"source",
        source}, {"destination", destination}});
    if (const status s = detail::between("bartlett_window", "source", source.width(), 3, 0x7fffffff); !s) return s;
    if (const status s = detail::between("bartlett_window", "source", source.height(), 3, 0x7fffffff); !s) return s;
    if (const status s = detail::whole("bartlett_window", "destination", destination, source); !s) return s;
    return detail::answer("bartlett_window", ImageProcessingWrapper::WinBartlett_32f_C1R(source.data(),
        detail::step(source), destination.data(), detail::step(destination), source.width(), source.height()),
        detail::reason::memory);
}

}  // namespace orvane

#endif
