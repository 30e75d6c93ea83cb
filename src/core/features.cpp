#include "core/features.h"

#include <cstdint>
#include <cpuid.h>

namespace orv {
namespace {

constexpr bool bit(std::uint32_t word, int number) { return (word >> number & 1) != 0; }

std::uint32_t read_xcr0()
{
    std::uint32_t low, high;
    // The bytes of XGETBV: assemblers restricted to the lowest level do not know its name.
    __asm__ volatile(".byte 0x0f, 0x01, 0xd0" : "=a"(low), "=d"(high) : "c"(0));
    return low;
}

Identification::Registers leaf(std::uint32_t number, std::uint32_t sub_leaf = 0)
{
    Identification::Registers r;
    __cpuid_count(number, sub_leaf, r.eax, r.ebx, r.ecx, r.edx);
    return r;
}

Identification identify()
{
    Identification id = {};
    unsigned vendor = 0;
    // On 32-bit this tries to flip bit 21 of the flags register before it executes CPUID, and
    // answers 0 where the bit does not change.
    id.highest_basic = static_cast<std::uint32_t>(__get_cpuid_max(0, &vendor));
    id.supported = id.highest_basic != 0;
    if (!id.supported) return id;

    const Identification::Registers leaf0 = leaf(0);
    const std::uint32_t words[3] = {leaf0.ebx, leaf0.edx, leaf0.ecx};
    for (int i = 0; i < 12; ++i) id.vendor[i] = static_cast<char>(words[i / 4] >> (8 * (i % 4)));

    id.highest_extended = leaf(0x80000000u).eax;
    id.leaf1 = leaf(1);
    if (id.highest_basic >= 7) id.leaf7 = leaf(7);
    if (id.highest_extended >= 0x80000001u) id.extended1 = leaf(0x80000001u);
    if ((id.leaf1.eax >> 8 & 0xF) == 11) id.coprocessor1 = leaf(0x20000001u);
    if (bit(id.leaf1.ecx, 27) && bit(id.leaf1.ecx, 28)) id.xcr0 = read_xcr0();
    return id;
}

}  // namespace

FeatureMask features_from(const Identification& id)
{
    const Identification::Registers& one = id.leaf1;
    FeatureMask mask = 0;
    const auto set_if = [&mask](bool present, FeatureMask feature) {
        if (present) mask |= feature;
    };
    set_if(bit(one.edx, 23), kMmx);
    set_if(bit(one.edx, 25), kSse);
    set_if(bit(one.edx, 26), kSse2);
    set_if(bit(one.ecx, 0), kSse3);
    set_if(bit(one.ecx, 9), kSsse3);
    set_if(bit(one.ecx, 22), kMovbe);
    set_if(bit(one.ecx, 19), kSse41);
    set_if(bit(one.ecx, 20), kSse42);
    set_if(bit(one.ecx, 28), kAvx);
    set_if(bit(one.ecx, 27) && bit(one.ecx, 28) && (id.xcr0 & 6) == 6, kAvxState);
    set_if(bit(one.ecx, 25), kAes);
    set_if(bit(one.ecx, 1), kPclmulqdq);
    set_if((one.eax >> 8 & 0xF) == 11 && bit(id.coprocessor1.edx, 1), kCoprocessorExtension);
    set_if(bit(one.ecx, 30), kRdrand);
    set_if(bit(one.ecx, 29), kF16c);
    if (id.highest_basic >= 7) {
        const std::uint32_t seven = id.leaf7.ebx;
        set_if(bit(one.ecx, 12) && bit(seven, 5) && bit(seven, 3) && bit(seven, 8), kAvx2Group);
        set_if(bit(seven, 19), kAdx);
        set_if(bit(seven, 18), kRdseed);
    }
    set_if(id.highest_extended >= 0x80000001u && bit(id.extended1.ecx, 8), kPrefetchw);
    set_if((one.eax >> 4 & 0xFF) == 0xB1, kCoprocessorLine);
    return mask;
}

LevelChoice choose_level(FeatureMask features)
{
    const auto has = [features](FeatureMask wanted) { return (features & wanted) == wanted; };
    if (has(kAvx | kAvxState)) {
        if (has(kAvx2Group)) return {level_h9, features & 0x7EFFF};
        return {level_g9, features & 0x6FDF};
    }
    if (has(kSse41)) return {level_p8, features & 0xCDF};
    if (has(kSsse3 | kMovbe)) return {level_s8, features & 0x3F};
    if (has(kSsse3)) return {level_v8, features & 0x1F};
    if (has(kSse2)) return {level_w7, features & 0x7};
    return {level_px, features & 0x3};
}

Status status_of_start_up(const Identification& id)
{
    static const char intel[] = "GenuineIntel";
    if (!id.supported) return StatusNotIntelProcessor;
    for (int i = 0; i < 12; ++i) {
        if (id.vendor[i] != intel[i]) return StatusNotIntelProcessor;
    }
    return StatusOk;
}

Status query_features(FeatureMask* features, Identification* identification)
{
    static bool queried = false;
    static FeatureMask cached_features = 0;
    static Identification cached_identification = {};

    if (features == nullptr) return StatusNullPointer;
    if (!queried) {
        const Identification id = identify();
        if (!id.supported) return StatusProcessorNotSupported;
        cached_features = features_from(id);
        cached_identification = id;
        queried = true;
    }
    *features = cached_features;
    if (identification != nullptr) *identification = cached_identification;
    return StatusOk;
}

}  // namespace orv
