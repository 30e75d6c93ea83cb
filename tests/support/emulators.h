// What emulated processors do otherwise than real ones.
#pragma once

#include <immintrin.h>

#include "core/operation.h"
#include "support/pages.h"

#if !defined(_WIN32)
#include <setjmp.h>
#include <signal.h>
#endif

namespace test {

// Processors pass on the left one of two NaNs; some emulators have the x87's rule for SSE as well. There all
// NaNs of a test are the same.
__attribute__((target("sse2"), noinline)) inline int left_or_right_nan(int left, int right)
{
    __m128 sum = _mm_castsi128_ps(_mm_cvtsi32_si128(left));
    __asm__("addps %1, %0" : "+x"(sum) : "x"(_mm_castsi128_ps(_mm_cvtsi32_si128(right))));
    return _mm_cvtsi128_si32(_mm_castps_si128(sum));
}
inline bool left_nan_wins()
{
    static const bool wins =
        orv::orv_variant_index == orv::level_px || left_or_right_nan(0x7FC00001, 0x7FC00002) == 0x7FC00001;
    return wins;
}

// Masked loads leave alone what they do not load, at the end of a page, too. QEMU 7.2 reads all of it.
#if !defined(_WIN32)
inline sigjmp_buf& after_fault()
{
    static sigjmp_buf where;
    return where;
}
__attribute__((target("avx"), noinline)) inline void load_first_of_eight(const float* p)
{
    const __m256 v = _mm256_maskload_ps(p, _mm256_setr_epi32(-1, 0, 0, 0, 0, 0, 0, 0));
    __asm__ volatile("" : : "x"(v));
}
inline bool masked_loads_read_all()
{
    static const bool faults = [] {
        if (orv::orv_variant_index < orv::level_g9) return false;
        constexpr std::size_t page = 4096;
        unsigned char* const p = reserve_pages(2 * page);
        open_pages(p, page);
        struct sigaction jump = {}, before;
        jump.sa_handler = [](int) { siglongjmp(after_fault(), 1); };
        sigaction(SIGSEGV, &jump, &before);
        bool fault = sigsetjmp(after_fault(), 1) != 0;
        if (!fault) load_first_of_eight(reinterpret_cast<float*>(p + page) - 1);
        sigaction(SIGSEGV, &before, nullptr);
        release_pages(p, 2 * page);
        return fault;
    }();
    return faults;
}
#else
inline bool masked_loads_read_all() { return false; }
#endif

}  // namespace test
