// Whether a float operation has overflowed. The processor keeps a flag of it, so that nothing has to be compared;
// a look takes some three nanoseconds. FloatControl, under which this is used, masks the exceptions.
#pragma once

#include "core/float_control.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

class OverflowWatch {
public:
#if defined(__SSE__)
    ORV_INLINE OverflowWatch() : before_(_mm_getcsr() & kOverflow)
    {
        ORV_ASSERT(FloatControl::holds());
        if (before_ != 0) _mm_setcsr(_mm_getcsr() & ~kOverflow);
    }
    ORV_INLINE ~OverflowWatch()
    {
        if (before_ != 0) _mm_setcsr(_mm_getcsr() | kOverflow);
    }
    // Since the last look.
    ORV_INLINE bool seen()
    {
        __asm__ volatile("" : : : "memory");  // what has been stored has been computed
        if (__builtin_expect((_mm_getcsr() & kOverflow) == 0, 1)) return false;
        _mm_setcsr(_mm_getcsr() & ~kOverflow);
        __asm__ volatile("" : : : "memory");
        return true;
    }

private:
    static constexpr unsigned kOverflow = 0x08;
    unsigned before_;  // of the host
#else
    // FloatControl clears the flags of the x87 in the end.
    ORV_INLINE OverflowWatch() { __asm__ volatile("fnclex" : : : "memory"); }
    ORV_INLINE bool seen()
    {
        unsigned short state;
        __asm__ volatile("fnstsw %0\n\tfnclex" : "=m"(state) : : "memory");
        return (state & 0x08) != 0;
    }
#endif

public:
    OverflowWatch(const OverflowWatch&) = delete;
    OverflowWatch& operator=(const OverflowWatch&) = delete;
};

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
