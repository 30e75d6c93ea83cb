// Images for tests: every byte around the region is known, and compared after the call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

#include "support/pages.h"
#include "support/random.h"

namespace test {

// Rows that each end, or start, at a page that cannot be touched. Rows are up to two pages long.
class FencedRows {
public:
    static constexpr int kRows = 8;
    static constexpr int kRowBytes = 8192 / kSmaller;
    static constexpr int kStep = 2 * kRowBytes;
    static constexpr std::size_t kBytes = kStep * kRows + kRowBytes;

    FencedRows() : base_(reserve_pages(kBytes) + kRowBytes)
    {
        for (int y = 0; y < kRows; ++y) open_pages(row(y), kRowBytes);
    }
    ~FencedRows() { release_pages(base_ - kRowBytes, kBytes); }
    FencedRows(const FencedRows&) = delete;
    FencedRows& operator=(const FencedRows&) = delete;

    unsigned char* row(int y) const { return base_ + static_cast<std::ptrdiff_t>(kStep) * y; }

private:
    unsigned char* base_;
};

// Where an image lies: which bytes the test owns, where the first pixel is, and the step.
struct Placement {
    bool fenced;
    bool flush_right;  // fenced: the row ends at the fence; else it starts there
    int step;          // free: any
    int offset;        // free: of the first row from the start of its buffer
};

// An image of height rows of row_bytes, with everything around it filled with random bytes.
class Image {
public:
    Image(int row_bytes, int height, Placement placement, Generator& generator)
        : row_bytes_(row_bytes), height_(height), placement_(placement)
    {
        if (placement.fenced) {
            fence_.reset(new FencedRows);
            step_ = FencedRows::kStep;
        } else {
            step_ = placement.step;
            const int extent = std::abs(step_) * (height - 1) + row_bytes;
            buffer_.resize(static_cast<std::size_t>(extent + placement.offset + 64));
        }
        auto&& bytes = generator_of_pixels(generator);
        for_each_owned([&](unsigned char* p, int n) {
            for (int i = 0; i < n; ++i) p[i] = static_cast<unsigned char>(bytes());
        });
    }

    int step() const { return step_; }
    int row_bytes() const { return row_bytes_; }
    int height() const { return height_; }

    unsigned char* row(int y)
    {
        if (placement_.fenced)
            return fence_->row(y) + (placement_.flush_right ? FencedRows::kRowBytes - row_bytes_ : 0);
        const int first = step_ < 0 ? -step_ * (height_ - 1) : 0;
        return buffer_.data() + placement_.offset + first + static_cast<std::ptrdiff_t>(step_) * y;
    }
    template <class T>
    T* pixels()
    {
        return reinterpret_cast<T*>(row(0));
    }

    template <class T>
    void fill(Generator& generator, Fill kind)
    {
        auto&& pixels = generator_of_pixels(generator);
        for (int y = 0; y < height_; ++y) {
            for (int i = 0; i + static_cast<int>(sizeof(T)) <= row_bytes_; i += static_cast<int>(sizeof(T))) {
                const T value = random_value<T>(pixels, kind);
                std::memcpy(row(y) + i, &value, sizeof(T));
            }
        }
    }

    // Every byte that the test owns: the image, its padding and what surrounds it.
    std::vector<unsigned char> bytes()
    {
        std::vector<unsigned char> all;
        for_each_owned([&](unsigned char* p, int n) { all.insert(all.end(), p, p + n); });
        return all;
    }
    void restore(const std::vector<unsigned char>& saved)
    {
        const unsigned char* from = saved.data();
        for_each_owned([&](unsigned char* p, int n) {
            std::memcpy(p, from, static_cast<std::size_t>(n));
            from += n;
        });
    }

private:
    template <class Visit>
    void for_each_owned(Visit visit)
    {
        if (!placement_.fenced) return visit(buffer_.data(), static_cast<int>(buffer_.size()));
        // The row and, away from the fence, a little more.
        const int n = std::min(FencedRows::kRowBytes, row_bytes_ + 64);
        for (int y = 0; y < height_; ++y)
            visit(fence_->row(y) + (placement_.flush_right ? FencedRows::kRowBytes - n : 0), n);
    }

    int row_bytes_, height_;
    Placement placement_;
    int step_ = 0;
    std::unique_ptr<FencedRows> fence_;
    std::vector<unsigned char> buffer_;
};

}  // namespace test
