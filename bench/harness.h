// What the benchmarks of all families share: images, sizes, the limit of the machine, registration.
//
// A row of the result table is an operation at a size; its columns are those who do it: "orvane", the
// peers, and "limit", an AVX2 loop that loads and stores the same streams and computes nothing.
#pragma once

#include <benchmark/benchmark.h>
#include <signal.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace bench {

// Call overhead, L2-resident, memory-bound.
inline constexpr int kSides[] = {16, 256, 4096};

// An image with rows on 64 bytes. It takes address space when it is made and memory when it is first touched:
// then it is filled, with noise or by `fill`. A benchmark of another operation or size gives the memory of all
// images back, so that a run needs what one row of the table needs, and starting costs nothing.
// Streams are set apart, so that they do not meet in the same cache sets.
class Image {
public:
    using Fill = std::function<void(const Image&)>;
    Image(int side, int pixel_bytes, Fill fill = nullptr);
    ~Image();
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    template <class T> T* as() const { return reinterpret_cast<T*>(data_); }
    template <class T> T* row(int y) const
    {
        return reinterpret_cast<T*>(data_ + static_cast<std::ptrdiff_t>(step_) * y);
    }
    int step() const { return step_; }
    int row_bytes() const { return row_bytes_; }
    int height() const { return height_; }

private:
    static void touched(int, siginfo_t* info, void*);
    static void release_all();
    friend void add(const std::string&, const std::string&, const std::string&, std::function<void()>);

    Fill fill_;
    unsigned char* memory_;
    std::size_t memory_bytes_;
    unsigned char* data_;
    int step_, row_bytes_, height_;
};

// Fills with floats: value(noise, y, x) for the one in column x of row y, of 32 random bits.
Image::Fill floats(std::function<float(unsigned noise, int y, int x)> value);

// With all their digits.
Image::Fill floats_between(float low, float high);

// Moves the bytes of the images and no more: sources are read, the destination (may be null) written.
void limit(std::initializer_list<const Image*> sources, const Image* destination);

// Registers "operation/size/who". The call is made once beforehand, then once per iteration.
void add(const std::string& operation, const std::string& size, const std::string& who, std::function<void()> call);

inline std::string square(int side) { return std::to_string(side) + "x" + std::to_string(side); }

}  // namespace bench
