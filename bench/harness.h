// What the benchmarks of all families share: images, sizes, the limit of the machine, registration.
//
// A row of the result table is an operation at a size; its columns are those who do it: "orvane", the
// peers, and "limit", an AVX2 loop that loads and stores the same streams and computes nothing.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace bench {

// Call overhead, L2-resident, memory-bound.
inline constexpr int kSides[] = {16, 256, 4096};

// An image with rows on 64 bytes, filled with noise. `offset` sets streams apart, so that they do not
// meet in the same cache sets.
class Image {
public:
    Image(int side, int pixel_bytes);
    template <class T> T* as() const { return reinterpret_cast<T*>(data_); }
    int step() const { return step_; }
    int row_bytes() const { return row_bytes_; }
    int height() const { return height_; }

private:
    std::unique_ptr<unsigned char[]> memory_;
    unsigned char* data_;
    int step_, row_bytes_, height_;
};

// Moves the bytes of the images and no more: sources are read, the destination (may be null) written.
void limit(std::initializer_list<const Image*> sources, const Image* destination);

// Registers "operation/size/who". The call is made once per iteration.
void add(const std::string& operation, const std::string& size, const std::string& who, std::function<void()> call);

inline std::string square(int side) { return std::to_string(side) + "x" + std::to_string(side); }

}  // namespace bench
