#include "core/clock.h"

#include "core/features.h"

namespace orv {
namespace {

unsigned long long read_counter()
{
    unsigned low, high;
    __asm__ volatile("rdtsc" : "=a"(low), "=d"(high) : : "memory");
    return static_cast<unsigned long long>(high) << 32 | low;
}

// The bytes of LFENCE: assemblers restricted to the lowest level do not know its name.
void wait_for_earlier_instructions() { __asm__ volatile(".byte 0x0f, 0xae, 0xe8" : : : "memory"); }

bool has_counter()
{
    FeatureMask features = 0;
    Identification id = {};
    return query_features(&features, &id) == StatusOk && (id.leaf1.edx >> 4 & 1) != 0;
}

}  // namespace

extern "C" unsigned long long orv_cpu_clocks()
{
    // Whoever has SSE2 has both.
    if (orv_variant_index >= level_w7) {
        wait_for_earlier_instructions();
        return read_counter();
    }
    return has_counter() ? read_counter() : 0;
}

}  // namespace orv
