// Where arguments and pixels of the nets over all registries come from: a seeded generator, or in a fuzz target
// the target's input.
#pragma once

#if defined(ORVANE_FUZZ)
#include "fuzz/input_generator.h"
#else
#include <cstdint>
#include <random>
#include <string>

#include "support/options.h"

namespace test {

using Generator = std::mt19937;
constexpr int kSmaller = 1;

// One generator per test, from the seed of the run and the name of the test.
inline Generator make_generator(const std::string& name)
{
    std::seed_seq seed{static_cast<std::uint32_t>(options().seed), static_cast<std::uint32_t>(options().seed >> 32),
                       static_cast<std::uint32_t>(std::hash<std::string>()(name))};
    return Generator(seed);
}
inline Generator& generator_of_pixels(Generator& generator) { return generator; }

inline int uniform(Generator& generator, int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(generator);
}
inline double normal(Generator& generator, double sigma)
{
    return std::normal_distribution<double>(0, sigma)(generator);
}

}  // namespace test
#endif
