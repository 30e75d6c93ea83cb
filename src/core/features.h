// Processor features and the choice of the level. All of it is pure but query_features().
#pragma once

#include <cstdint>

#include "core/operation.h"

namespace orv {

using FeatureMask = std::uint64_t;

constexpr FeatureMask kMmx = 0x1;
constexpr FeatureMask kSse = 0x2;
constexpr FeatureMask kSse2 = 0x4;
constexpr FeatureMask kSse3 = 0x8;
constexpr FeatureMask kSsse3 = 0x10;
constexpr FeatureMask kMovbe = 0x20;
constexpr FeatureMask kSse41 = 0x40;
constexpr FeatureMask kSse42 = 0x80;
constexpr FeatureMask kAvx = 0x100;
constexpr FeatureMask kAvxState = 0x200;  // the operating system saves the AVX registers
constexpr FeatureMask kAes = 0x400;
constexpr FeatureMask kPclmulqdq = 0x800;
constexpr FeatureMask kCoprocessorExtension = 0x1000;
constexpr FeatureMask kRdrand = 0x2000;
constexpr FeatureMask kF16c = 0x4000;
constexpr FeatureMask kAvx2Group = 0x8000;  // AVX2, FMA, BMI1 and BMI2 together
constexpr FeatureMask kAdx = 0x10000;
constexpr FeatureMask kRdseed = 0x20000;
constexpr FeatureMask kPrefetchw = 0x40000;
constexpr FeatureMask kCoprocessorLine = 0x80000000;

// What the processor says of itself: the registers that the feature mask is made of. Leaves above
// the highest one are not read and stay zero here.
struct Identification {
    struct Registers {
        std::uint32_t eax, ebx, ecx, edx;
    };
    bool supported;                 // the identification instruction exists
    std::uint32_t highest_basic;
    std::uint32_t highest_extended;
    char vendor[13];
    Registers leaf1;
    Registers leaf7;
    Registers extended1;            // leaf 0x80000001
    Registers coprocessor1;         // leaf 0x20000001
    std::uint32_t xcr0;             // read only where the operating system has enabled XGETBV
};

FeatureMask features_from(const Identification& id);

struct LevelChoice {
    Level level;
    FeatureMask enabled;  // the features that the level uses
};

// The highest level that the features allow.
LevelChoice choose_level(FeatureMask features);

// The level when the processor cannot identify itself.
constexpr LevelChoice kLevelWithoutIdentification = {level_px, kMmx | kSse};

// The status of start-up: a warning for an unknown vendor, which changes nothing else.
Status status_of_start_up(const Identification& id);

// Reads the processor once and caches the answer. `identification` may be null.
// StatusNullPointer without `features`, StatusProcessorNotSupported without the instruction.
Status query_features(FeatureMask* features, Identification* identification);

}  // namespace orv
