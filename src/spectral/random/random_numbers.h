// Gaussian random numbers from a stream of words.
#pragma once

#include "core/shapes.h"

namespace orv {

// The shift register of R250.
struct RandomStream {
    static constexpr int kWords = 250;
    static constexpr int kTap = 103;

    unsigned int word[kWords];
    int oldest;  // the word that the next output replaces
    int tap;
};

using FillFromStream = Status(RandomStream* stream, int n, double* r, double mean, double sigma);

extern "C" {
// A stream from a seed, or null when memory runs out.
ORV_INTERNAL RandomStream* orv_create_random_stream(int seed);
ORV_INTERNAL void orv_delete_random_stream(RandomStream* stream);
}

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "spectral/random/random_numbers.inc"
#undef KERNEL

}  // namespace orv
