// What the calling convention and this library promise about the processor's state after a call: control
// words unchanged, x87 registers empty, direction flag clear, upper halves of the wide registers zero
// (left dirty they would slow down or, with old saving code, upset the host's own SSE code).
#pragma once

#include <cpuid.h>

#include "core/features.h"
#include "core/operation.h"
#include "gmock/gmock.h"

namespace test {

class ProcessorState {
public:
    // Not inline: the variant test calls this after each of some hundred signatures.
    __attribute__((noinline)) ProcessorState()
        : has_sse_(has_sse()), tracked_(upper_halves_are_tracked()), mxcsr_(mxcsr()), control_(x87().control)
    {
    }

    // After a call, before any other code that might clean up behind it.
    __attribute__((noinline)) void expect_kept() const
    {
        const bool dirty = upper_halves_in_use();
        const X87 after = x87();
        EXPECT_EQ(after.tags & 0xFFFF, 0xFFFF) << "x87 registers are left in use";
        EXPECT_EQ(after.control & 0xFFFF, control_ & 0xFFFF) << "the x87 control word is changed";
        EXPECT_EQ(mxcsr() & kControlBits, mxcsr_ & kControlBits) << "MXCSR is changed";
        EXPECT_FALSE(direction_flag()) << "the direction flag is set";
        EXPECT_FALSE(dirty) << "upper halves of the wide registers are left in use";
    }

private:
    static constexpr unsigned kControlBits = 0xFFC0;  // the rest reports what happened
    struct X87 {
        int control, status, tags, rest[4];
    };
    static X87 x87()
    {
        X87 environment;
        // Storing masks all exceptions; loading undoes that.
        __asm__ volatile("fnstenv %0\n\tfldenv %0" : "=m"(environment));
        return environment;
    }
    static bool has_sse()
    {
        static const bool has = [] {
            unsigned a = 0, b = 0, c = 0, d = 0;
            return __get_cpuid(1, &a, &b, &c, &d) != 0 && (d & bit_SSE) != 0;
        }();
        return has;  // asked once: virtual machines take a microsecond or more for an answer
    }
    unsigned mxcsr() const
    {
        unsigned value = 0;
        if (has_sse_) __asm__ volatile("stmxcsr %0" : "=m"(value));
        return value;
    }
    static bool direction_flag()
    {
#if defined(__x86_64__)
        return (__builtin_ia32_readeflags_u64() & 0x400) != 0;
#else
        return (__builtin_ia32_readeflags_u32() & 0x400) != 0;
#endif
    }
    // XGETBV with 1 tells which register parts are not in their initial state, on processors that keep track.
    static unsigned parts_in_use()
    {
        unsigned low, high;
        __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(1));
        return low;
    }
    static bool upper_halves_are_tracked()
    {
#if defined(__OPTIMIZE__)
        constexpr int kAvxLevel = 5;
        static const bool can_tell = [] {
            unsigned a = 0, b = 0, c = 0, d = 0;
            return __get_cpuid_count(0xD, 1, &a, &b, &c, &d) != 0 && (a & 4) != 0;
        }();
        if (orv::orv_variant_index < kAvxLevel || !can_tell) return false;
        __asm__ volatile("vzeroupper" : : : "memory");
        return (parts_in_use() & 4) == 0;  // an emulator may call them used at all times
#else
        return false;  // without optimisation g++ never zeroes them
#endif
    }
    bool upper_halves_in_use() const { return tracked_ && (parts_in_use() & 4) != 0; }

    bool has_sse_, tracked_;
    unsigned mxcsr_;
    int control_;
};

}  // namespace test
