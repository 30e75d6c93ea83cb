// What the kernels of the vector vocabulary's test hand to it: every operation at every width of a level, run over
// arrays.
#pragma once

namespace vocabulary {

enum class Lane { u8, s8, u16, s16, u32, s32, u64, f32, f64 };

struct Entry {
    const char* name;
    Lane lane;  // of the operands
    int lanes;  // in a vector
    // n is a multiple of the lanes of every vector. The results lie one behind the other.
    void (*run)(const void* a, const void* b, const void* c, void* results, int n);
};

struct Entries {
    const Entry* first;
    int count;
};

#define LEVEL(level)                                          \
    namespace vocabulary_kernels_##level { Entries entries(); } \
    namespace level = vocabulary_kernels_##level;
LEVEL(px)
LEVEL(w7)
LEVEL(v8)
LEVEL(p8)
LEVEL(g9)
LEVEL(h9)
#undef LEVEL

}  // namespace vocabulary
