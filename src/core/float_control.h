// The floating-point environment that float kernels compute in, whatever the host has set: nearest
// rounding, no flushing to zero, exceptions masked and, on the x87, 53-bit precision.
//
// Reading the control word costs about a nanosecond, changing and restoring it some twenty; hosts
// almost never need the change.
#pragma once

#include "core/assert.h"
#include "core/level.h"

#if defined(__SSE__)
#include <xmmintrin.h>
#endif

namespace orv {
inline namespace ORV_LEVEL {

class FloatControl {
public:
#if defined(__SSE__)
    ORV_INLINE FloatControl() : saved_(_mm_getcsr())
    {
        if ((saved_ & ~kFlags) != kDefault) _mm_setcsr(kDefault);
    }
    ORV_INLINE ~FloatControl()
    {
        if ((saved_ & ~kFlags) != kDefault) _mm_setcsr(saved_);
    }
    static ORV_INLINE bool holds() { return (_mm_getcsr() & ~kFlags) == kDefault; }

private:
    static constexpr unsigned kFlags = 0x3F;  // sticky flags: what happened, not how to compute
    static constexpr unsigned kDefault = 0x1F80;
    unsigned saved_;
#else
    ORV_INLINE FloatControl()
    {
        __asm__ volatile("fnstcw %0" : "=m"(saved_));
        const unsigned short wanted = 0x027F;  // nearest, 53 bits, all masked
        __asm__ volatile("fldcw %0" : : "m"(wanted));
    }
    ORV_INLINE ~FloatControl() { __asm__ volatile("fnclex\n\tfldcw %0" : : "m"(saved_)); }
    static ORV_INLINE bool holds()
    {
        unsigned short word;
        __asm__ volatile("fnstcw %0" : "=m"(word));
        return (word & 0x0F3F) == 0x023F;  // what is reserved may read as anything
    }

private:
    unsigned short saved_;
#endif

public:
    FloatControl(const FloatControl&) = delete;
    FloatControl& operator=(const FloatControl&) = delete;
};

// A float result rounded to its type. The x87 keeps more digits until a value passes through memory, so
// every step of the plain variant that must round goes through this; elsewhere it costs nothing.
template <class T>
ORV_INLINE T rounded(T value)
{
#if !defined(__SSE2__)
    __asm__ volatile("" : "+m"(value));
#endif
    return value;
}

}  // namespace ORV_LEVEL
}  // namespace orv
