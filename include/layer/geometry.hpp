// Resizing, by whichever method has the type and the interpolation; bounds and shifts of rotations and perspectives.
#ifndef ORVANE_LAYER_GEOMETRY_HPP
#define ORVANE_LAYER_GEOMETRY_HPP

#include "images.hpp"

namespace orvane {
namespace detail {

template <class T>
using plan_method = bool (*)(const T*, int, int, int, T*, int, int, int, double, double);
template <class T>
using warp_method = bool (*)(const T*, int, int, int, int, int, int, int, T*, int, int, int, int, int, const double*,
                             int);
template <class T>
using zoom_method = bool (*)(const T*, int, int, int, T*, int, int, int, float, int, int, bool);

template <class T>
using square_method = bool (*)(const T*, int, int, int, int, int, int, int, T*, int, int, int, int, int, double, double,
                               double, double, int, unsigned char*);

template <class T>
struct resizers {
    plan_method<T> nearest, cubic;  // null where there is none
    warp_method<T> warp;
    zoom_method<T> zoom;
};

// How far the nearest pixel lies to the left, as plans have it: a reduction by two takes the left pixel of each pair.
constexpr double bias_of(interpolation how) { return how == interpolation::nearest ? 1e-10 : 0; }

// A resize is a perspective without one.
template <class T, int Channels>
bool resize_by_warp(warp_method<T> warp, const view<const T, Channels>& source, const view<T, Channels>& destination,
                    interpolation how)
{
    const double x = static_cast<double>(destination.width()) / source.width();
    const double y = static_cast<double>(destination.height()) / source.height();
    const double bias = bias_of(how);
    const double map[9] = {x, 0, bias * x, 0, y, bias * y, 0, 0, 1};
    return warp(source.data(), source.width(), source.height(), step(source), 0, 0, source.width(), source.height(),
                destination.data(), step(destination), 0, 0, destination.width(), destination.height(), map,
                static_cast<int>(how));
}

// The average of what a pixel covers, where both axes are reduced alike. The method is true whatever happens: whether
// it had memory shows in a pixel, which is set to a value, and to another one if the result should be the same.
template <class T, int Channels>
status resize_by_area(zoom_method<T> zoom, const view<const T, Channels>& source, const view<T, Channels>& destination)
{
    const auto cross = [](int a, int b) { return static_cast<long long>(a) * b; };
    if (cross(destination.width(), source.height()) != cross(destination.height(), source.width()) ||
        destination.width() >= source.width()) {
        return {"resize", "destination", reason::other_ratio};
    }
    const T old = destination(0, 0);
    for (const T mark : {T{0}, T{1}}) {
        destination(0, 0) = mark;
        zoom(source.data(), step(source), source.width(), source.height(), destination.data(), step(destination),
             destination.width(), destination.height(), 1.0F, 0, 0, true);
        if (std::memcmp(&destination(0, 0), &mark, sizeof(T)) != 0) return {};
    }
    destination(0, 0) = old;
    return {"resize", "", reason::memory};
}

template <class T>
status resize_square(square_method<T> square, const view<const T>& source, const view<T>& destination,
                     interpolation how)
{
    int size = 0;
    const bool sized =
        ImageProcessingWrapper::ResizeGetBufSize(0, 0, source.width(), source.height(), 0, 0, destination.width(),
                                                 destination.height(), 1, static_cast<int>(how), &size);
    const block buffer(static_cast<std::size_t>(size));
    if (!sized || buffer.data() == nullptr) return {"resize", "", reason::memory};
    const double x = static_cast<double>(destination.width()) / source.width();
    const double y = static_cast<double>(destination.height()) / source.height();
    const double bias = bias_of(how);
    const bool done = square(source.data(), source.width(), source.height(), step(source), 0, 0, source.width(),
                             source.height(), destination.data(), step(destination), 0, 0, destination.width(),
                             destination.height(), x, y, bias * x, bias * y, static_cast<int>(how),
                             static_cast<unsigned char*>(buffer.data()));
    return answer("resize", done, reason::memory);
}

inline status resize_operands(const region& source, const region& destination, interpolation how)
{
    if (!source.sound()) return unlike<region>("resize", {{"source", source}});
    if (!destination.sound()) return unlike<region>("resize", {{"destination", destination}});
    if (const status s = code("resize", "how", static_cast<int>(how), 0x101f6); !s) return s;
    return apart("resize", "destination", destination, source);
}

template <class T, int Channels>
bool resize_by_plan(plan_method<T> plan, const view<const T, Channels>& source, const view<T, Channels>& destination)
{
    return plan(source.data(), source.width(), source.height(), step(source), destination.data(), step(destination),
                destination.width(), destination.height(), 1, 1);
}

template <class T, int Channels>
status resize(const view<const T, Channels>& source, const view<T, Channels>& destination, interpolation how,
              const resizers<T>& by)
{
    if (const status s = resize_operands(source, destination, how); !s) return s;
    const bool small = source.width() < 4 || source.height() < 4;  // for the plan of the cubic
    const bool cubic = (how == interpolation::cubic || how == interpolation::catmull_rom) && !small;
    const plan_method<T> plan = how == interpolation::nearest ? by.nearest : cubic ? by.cubic : nullptr;
    if (plan != nullptr) return answer("resize", resize_by_plan(plan, source, destination), reason::memory);
    if (how == interpolation::area) return resize_by_area(by.zoom, source, destination);
    return answer("resize", resize_by_warp(by.warp, source, destination, how), reason::failed);
}

}  // namespace detail

/// The whole source to the whole destination; pixel centres are aligned. Only `area` filters before a reduction; of
/// colours and floats it takes reductions that keep the ratio of the sides.
inline status resize(view<const unsigned char, 1> source, view<unsigned char, 1> destination, interpolation how)
{
    if (const status s = detail::resize_operands(source, destination, how); !s) return s;
    return detail::resize_square(&ImageProcessingWrapper::ResizeSqrPixel_8u_C1R, source, destination, how);
}

inline status resize(view<const unsigned char, 3> source, view<unsigned char, 3> destination, interpolation how)
{
    return detail::resize(source, destination, how,
                          detail::resizers<unsigned char>{
                              &ImageProcessingWrapper::ResizeNN_8u_C3R, &ImageProcessingWrapper::ResizeCubic_8u_C3R,
                              &ImageProcessingWrapper::WarpPerspective_8u_C3, &ImageProcessingWrapper::Resize_8u_C3});
}

inline status resize(view<const unsigned char, 4> source, view<unsigned char, 4> destination, interpolation how)
{
    return detail::resize(source, destination, how,
                          detail::resizers<unsigned char>{
                              &ImageProcessingWrapper::ResizeNN_8u_C4R, &ImageProcessingWrapper::ResizeCubic_8u_C4R,
                              &ImageProcessingWrapper::WarpPerspective_8u_C4, &ImageProcessingWrapper::Resize_8u_C4});
}

inline status resize(view<const float, 1> source, view<float, 1> destination, interpolation how)
{
    return detail::resize(source, destination, how,
                          detail::resizers<float>{nullptr, nullptr, &ImageProcessingWrapper::WarpPerspective_32f_C1,
                                                  &ImageProcessingWrapper::Resize_32f_C1});
}

inline status resize(view<const unsigned short, 1> source, view<unsigned short, 1> destination, interpolation how)
{
    if (const status s = detail::resize_operands(source, destination, how); !s) return s;
    if (how != interpolation::nearest)
        return detail::resize_square(&ImageProcessingWrapper::ResizeSqrPixel_16u_C1R, source, destination, how);
    return detail::answer("resize",
                          detail::resize_by_plan(&ImageProcessingWrapper::ResizeNN_16u_C1R, source, destination),
                          detail::reason::memory);
}

/// bound = left, top, right, bottom of a rotated width x height rectangle
inline status rotate_bound(int width, int height, double degrees, double x_shift, double y_shift, double (&bound)[4])
{
    if (const status s = detail::between("rotate_bound", "width", width, 1, 0x7fffffff); !s) return s;
    if (const status s = detail::between("rotate_bound", "height", height, 1, 0x7fffffff); !s) return s;
    if (const status s = detail::finite("rotate_bound", "degrees", degrees); !s) return s;
    if (const status s = detail::finite("rotate_bound", "x_shift", x_shift); !s) return s;
    if (const status s = detail::finite("rotate_bound", "y_shift", y_shift); !s) return s;
    return detail::answer("rotate_bound",
                          ImageProcessingWrapper::GetRotateBound(0, 0, width, height, degrees, x_shift, y_shift, bound),
                          detail::reason::failed);
}

/// The shift that leaves a source point where it is.
inline status rotate_shift(double center_x, double center_y, double degrees, double& x_shift, double& y_shift)
{
    if (const status s = detail::finite("rotate_shift", "center_x", center_x); !s) return s;
    if (const status s = detail::finite("rotate_shift", "center_y", center_y); !s) return s;
    if (const status s = detail::finite("rotate_shift", "degrees", degrees); !s) return s;
    return detail::answer("rotate_shift",
                          ImageProcessingWrapper::GetRotateShift(center_x, center_y, degrees, &x_shift, &y_shift),
                          detail::reason::failed);
}

/// bound = left, top, right, bottom of a width x height rectangle in perspective
inline status perspective_bound(int width, int height, const double (&coefficients)[9], double (&bound)[4])
{
    if (const status s = detail::between("perspective_bound", "width", width, 1, 0x7fffffff); !s) return s;
    if (const status s = detail::between("perspective_bound", "height", height, 1, 0x7fffffff); !s) return s;
    return detail::answer("perspective_bound",
                          ImageProcessingWrapper::GetPerspectiveBound(0, 0, width, height, coefficients, bound),
                          detail::reason::failed);
}

}  // namespace orvane

#endif
