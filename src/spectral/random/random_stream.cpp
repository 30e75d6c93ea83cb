// Streams of random words: creation and seeding.
#include "core/memory.h"

#include <cstdint>
#include "spectral/random/random_numbers.h"

namespace orv {

namespace {

void seed_stream(RandomStream* stream, std::uint32_t seed)
{
    std::uint32_t x = seed != 0 ? seed : 1;
    for (std::uint32_t& word : stream->word) {
        x *= 69069;
        word = x;
    }
    // 32 words that are linearly independent: word m has bit 31 - m as its highest.
    for (int m = 0; m < 32; ++m) {
        std::uint32_t& word = stream->word[3 + 7 * m];
        const std::uint32_t highest = 0x80000000u >> m;
        word = (word & (highest - 1)) | highest;
    }
    stream->oldest = 0;
    stream->tap = RandomStream::kTap;
}

}  // namespace

extern "C" {

RandomStream* orv_create_random_stream(int seed)
{
    RandomStream* const stream = static_cast<RandomStream*>(orv_allocate(sizeof(RandomStream)));
    if (stream != nullptr) seed_stream(stream, static_cast<std::uint32_t>(seed));
    return stream;
}

void orv_delete_random_stream(RandomStream* stream) { orv_release(stream); }

}  // extern "C"

}  // namespace orv
