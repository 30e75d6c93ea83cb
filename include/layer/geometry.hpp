// Bounds and shifts of rotations and perspectives.
#ifndef ORVANE_LAYER_GEOMETRY_HPP
#define ORVANE_LAYER_GEOMETRY_HPP

#include "images.hpp"

namespace orvane {

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
