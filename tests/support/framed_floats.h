// Images of floats with a frame of readable pixels, of whose memory one end is a page that cannot be touched.
#pragma once

#include <cstring>

#include "support/exact.h"
#include "support/guarded_block.h"
#include "support/random.h"

namespace test {

class FramedFloats {
public:
    // Steps of 4 * columns + gap bytes: an odd gap puts rows, and the first one where the block ends at the page, on
    // any address.
    FramedFloats(int width, int height, int frameX = 0, int frameY = 0, int gap = 0, bool ends_at_guard = true)
        : width_(width), height_(height), frame_x_(frameX), frame_y_(frameY), step_(4 * (width + 2 * frameX) + gap),
          memory_(static_cast<std::size_t>(step_) * static_cast<std::size_t>(height + 2 * frameY - 1) +
                      4 * static_cast<std::size_t>(width + 2 * frameX),
                  ends_at_guard)
    {
    }

    int width() const { return width_; }
    int height() const { return height_; }
    int step() const { return step_; }
    float* pixels() const { return reinterpret_cast<float*>(at(0, 0)); }
    std::uint32_t bits(int x, int y) const
    {
        std::uint32_t b;
        std::memcpy(&b, at(x, y), 4);
        return b;
    }
    double value(int x, int y) const { return static_cast<double>(from_bits<float>(bits(x, y))); }
    void set_bits(int x, int y, std::uint32_t b) { std::memcpy(at(x, y), &b, 4); }
    void set(int x, int y, float value) { set_bits(x, y, bits_of(value)); }

    // make(x, y) for all pixels, those of the frame, too.
    template <class Make>
    void fill(Make make)
    {
        for (int y = -frame_y_; y < height_ + frame_y_; ++y) {
            for (int x = -frame_x_; x < width_ + frame_x_; ++x) set(x, y, make(x, y));
        }
    }
    void fill_at_random(Generator& g, Fill kind)
    {
        fill([&](int, int) { return random_value<float>(g, kind); });
    }

private:
    unsigned char* at(int x, int y) const
    {
        return memory_.as<>() + static_cast<std::ptrdiff_t>(step_) * (y + frame_y_) + 4 * (x + frame_x_);
    }

    int width_, height_, frame_x_, frame_y_, step_;
    GuardedBlock memory_;
};

}  // namespace test
