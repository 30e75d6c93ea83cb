// The work buffer of linear interpolation: two interpolated rows and one of the source, in double.
#pragma once

#include <cstdint>

#include "image/resize/resize_layout.h"

namespace orv {
inline namespace ORV_LEVEL {

struct LinearBuffers {
    double* rows[2];
    double* source;
    std::int64_t bytes;
    ORV_INLINE LinearBuffers(void* buffer, std::int64_t width, std::int64_t span)
    {
        Parts parts(buffer);
        rows[0] = parts.take<double>(width);
        rows[1] = parts.take<double>(width);
        source = parts.take<double>(span);
        bytes = parts.bytes();
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
