// Floating-point environments that hosts run in, for the time of a call.
#pragma once

namespace test {

struct FloatEnvironment {
    const char* name;
    unsigned short x87;
    unsigned mxcsr;
};

constexpr FloatEnvironment kFloatEnvironments[] = {
    {"every exception unmasked", 0x0340, 0x0000},
    {"denormals flushed", 0x037F, 0x9FC0},
    {"downwards, single precision", 0x047F, 0x3F80},
    {"upwards, 64-bit precision", 0x0B7F, 0x5F80},
    {"towards zero, unmasked, denormals flushed", 0x0F40, 0xE040},
};

// What happens within must do without floating-point code of its own.
class HostFloats {
public:
    explicit HostFloats(const FloatEnvironment& e) : has_sse_(__builtin_cpu_supports("sse") != 0)
    {
        __asm__ volatile("fnstcw %0" : "=m"(x87_));
        if (has_sse_) __asm__ volatile("stmxcsr %0" : "=m"(mxcsr_));
        __asm__ volatile("fnclex\n\tfldcw %0" : : "m"(e.x87));
        if (has_sse_) __asm__ volatile("ldmxcsr %0" : : "m"(e.mxcsr));
    }
    ~HostFloats()
    {
        __asm__ volatile("fnclex\n\tfldcw %0" : : "m"(x87_));
        if (has_sse_) __asm__ volatile("ldmxcsr %0" : : "m"(mxcsr_));
    }
    HostFloats(const HostFloats&) = delete;
    HostFloats& operator=(const HostFloats&) = delete;

private:
    bool has_sse_;
    unsigned short x87_ = 0;
    unsigned mxcsr_ = 0;
};

}  // namespace test
