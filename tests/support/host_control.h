// Floating-point environments: those that hosts run in, for the time of a call, and the one that oracles need.
#pragma once

#include <cstring>
#include <vector>

#include "gmock/gmock.h"
#include "support/levels.h"

namespace test {

// Doubles are computed with 53 bits while this lives, also on the x87; that takes a store after each step, too.
class DoublePrecision {
public:
    DoublePrecision()
    {
        __asm__ volatile("fnstcw %0" : "=m"(saved_));
        const auto wanted = static_cast<unsigned short>((saved_ & ~0x300) | 0x200);
        __asm__ volatile("fldcw %0" : : "m"(wanted));
    }
    ~DoublePrecision() { __asm__ volatile("fldcw %0" : : "m"(saved_)); }
    DoublePrecision(const DoublePrecision&) = delete;
    DoublePrecision& operator=(const DoublePrecision&) = delete;

private:
    unsigned short saved_;
};

// The control word that the tested code computes under, for tests that also want it kept.
struct HostControl {
#if defined(__SSE__) && defined(__x86_64__)
    static std::vector<unsigned> modes() { return {0x3F80u, 0x5F80u, 0x7F80u, 0x9FC0u}; }
    static unsigned get() { return __builtin_ia32_stmxcsr() & ~0x3Fu; }
    static void set(unsigned mode) { __builtin_ia32_ldmxcsr(mode); }
#else
    static std::vector<unsigned> modes() { return {0x007Fu, 0x0C7Fu, 0x0B7Fu, 0x037Fu}; }
    static unsigned get()
    {
        unsigned short word;
        __asm__ volatile("fnstcw %0" : "=m"(word));
        return word;
    }
    static void set(unsigned mode)
    {
        const auto word = static_cast<unsigned short>(mode);
        __asm__ volatile("fldcw %0" : : "m"(word));
    }
#endif
};

// run(dst) writes n elements and is true: the same bits under every control word that a host may have set, which it
// leaves as it was.
template <class T, class Run>
void expect_control_kept(std::size_t n, Run run)
{
    std::vector<T> plain(n), other(n);
    at_every_level([&] {
        ASSERT_TRUE(run(plain.data()));
        for (const unsigned mode : HostControl::modes()) {
            const unsigned host = HostControl::get();
            HostControl::set(mode);
            const bool done = run(other.data());
            const unsigned after = HostControl::get();
            HostControl::set(host);
            EXPECT_TRUE(done);
            EXPECT_EQ(after, mode);
            ASSERT_EQ(std::memcmp(plain.data(), other.data(), n * sizeof(T)), 0) << "mode " << mode;
        }
    });
}

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

// Calls, each with a name and the result that it must have: at every level they write the same into dst in every
// environment.
template <class Calls, class T>
void expect_same_for_every_host(const Calls& calls, std::vector<T>& dst)
{
    at_every_level([&] {
        for (const auto& c : calls) {
            dst.assign(64, 77);
            ASSERT_EQ(c.call(), c.expected) << c.name;
            const std::vector<T> usual = dst;
            for (const FloatEnvironment& e : kFloatEnvironments) {
                dst.assign(64, 77);
                bool done = false;
                {
                    const HostFloats host(e);
                    done = c.call();
                }
                ASSERT_EQ(done, c.expected) << c.name << ", " << e.name;
                ASSERT_EQ(dst, usual) << c.name << ", " << e.name;
            }
        }
    });
}

}  // namespace test
