// Numbers from the bytes of an input, as few bytes as will do, so that a changed byte is a changed argument. Where
// the input ends, and for pixels, a generator that is quick rather than good goes on.
#pragma once

#include <cstddef>
#include <cstdint>

namespace test {

class Generator {
public:
    using result_type = std::uint32_t;
    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return UINT32_MAX; }

    explicit Generator(std::uint64_t seed = 0) : state_(seed) {}
    Generator(const std::uint8_t* bytes, std::size_t count) : at_(bytes), end_(bytes + count), state_(count)
    {
        for (const std::uint8_t* p = at_; p != end_; ++p) state_ = (state_ ^ *p) * 0x100000001B3u;
    }

    result_type operator()() { return word(4); }
    result_type word(int bytes)
    {
        if (end_ - at_ < bytes) return next();
        result_type value = 0;
        for (int i = 0; i < bytes; ++i) value = value << 8 | *at_++;
        return value;
    }

private:
    result_type next()
    {
        state_ += 0x9E3779B97F4A7C15u;
        const std::uint64_t z = (state_ ^ state_ >> 32) * 0xD6E8FEB86659FD93u;
        return static_cast<result_type>(z >> 32);
    }

    const std::uint8_t* at_ = nullptr;
    const std::uint8_t* end_ = nullptr;
    std::uint64_t state_;
};

// Sides of images and matrices are divided by this: a hundred million calls need to be short.
constexpr int kSmaller = 4;

// Pixels take four bytes of the input together: the rest is left for arguments.
inline Generator generator_of_pixels(Generator& generator) { return Generator(generator()); }

inline int uniform(Generator& generator, int low, int high)
{
    const auto span = static_cast<std::uint32_t>(high) - static_cast<std::uint32_t>(low);
    if (span == UINT32_MAX) return static_cast<int>(generator());
    const std::uint32_t word = generator.word(span < 256 ? 1 : 4);
    return static_cast<int>(static_cast<std::uint32_t>(low) + word % (span + 1));
}
// The sum of four uniform numbers is as normal as pixels need to be.
inline double normal(Generator& generator, double sigma)
{
    double sum = 0;
    for (int i = 0; i < 4; ++i) sum += static_cast<std::int32_t>(generator());
    return sum * sigma * 0x1p-31 * 0.866;
}

}  // namespace test
