// Matrices for tests: any strides, every byte around the elements known, fences before and behind.
#pragma once

#include <cstdlib>
#include <functional>
#include <vector>

#include "support/emulators.h"
#include "support/pages.h"
#include "support/random.h"

namespace test {

// Plain values, row by row.
template <class T>
struct Values {
    int rows, columns;
    std::vector<T> v;
    Values(int r, int c) : rows(r), columns(c), v(static_cast<std::size_t>(r) * static_cast<std::size_t>(c)) {}
    T& operator()(int i, int j)
    {
        return v[static_cast<std::size_t>(i) * static_cast<std::size_t>(columns) + static_cast<std::size_t>(j)];
    }
    const T& operator()(int i, int j) const { return const_cast<Values&>(*this)(i, j); }
};

enum class Storage { dense, padded_rows, column_major, padded_columns, interleaved, any, kinds = any };

// A matrix in memory that ends at a page that cannot be touched, or starts behind one.
template <class T>
class Matrix {
public:
    Matrix(const Values<T>& values, Storage storage, std::mt19937& g) : rows_(values.rows), columns_(values.columns)
    {
        const int e = sizeof(T), pad = e * uniform(g, 1, 5), gap = e * uniform(g, 2, 4);
        switch (storage) {
            case Storage::dense: s1_ = e * columns_, s2_ = e; break;
            case Storage::padded_rows: s1_ = e * columns_ + pad, s2_ = e; break;
            case Storage::column_major: s1_ = e, s2_ = e * rows_; break;
            case Storage::padded_columns: s1_ = e, s2_ = e * rows_ + pad; break;
            default: s1_ = gap * columns_ + pad, s2_ = gap; break;
        }
        extent_ = static_cast<std::size_t>(rows_ - 1) * static_cast<std::size_t>(s1_) +
                  static_cast<std::size_t>(columns_ - 1) * static_cast<std::size_t>(s2_) + sizeof(T);
        const std::size_t spare = masked_loads_read_all() ? 32 : 0;
        pages_ = (extent_ + spare + kPage - 1) / kPage * kPage;
        memory_ = reserve_pages(pages_ + 2 * kPage) + kPage;
        open_pages(memory_, pages_);
        base_ = uniform(g, 0, 2) == 0 ? memory_ : memory_ + (pages_ - extent_ - spare);
        for (std::size_t i = 0; i < pages_; ++i) memory_[i] = static_cast<unsigned char>(i * 37 + 11);
        set(values);
    }
    ~Matrix() { release_pages(memory_ - kPage, pages_ + 2 * kPage); }
    Matrix(const Matrix&) = delete;
    Matrix& operator=(const Matrix&) = delete;

    T* base() { return reinterpret_cast<T*>(base_); }
    int s1() const { return s1_; }
    int s2() const { return s2_; }
    int rows() const { return rows_; }
    int columns() const { return columns_; }

    void set(const Values<T>& values)
    {
        for (int i = 0; i < rows_; ++i) {
            for (int j = 0; j < columns_; ++j) std::memcpy(element(i, j), &values(i, j), sizeof(T));
        }
        before_.assign(memory_, memory_ + pages_);
    }
    Values<T> values() const
    {
        Values<T> all(rows_, columns_);
        for (int i = 0; i < rows_; ++i) {
            for (int j = 0; j < columns_; ++j) std::memcpy(&all(i, j), element(i, j), sizeof(T));
        }
        return all;
    }
    bool unchanged() const { return std::memcmp(memory_, before_.data(), pages_) == 0; }
    // Nothing but the elements has been written.
    bool surroundings_unchanged()
    {
        std::vector<unsigned char> now(memory_, memory_ + pages_);
        const auto values_now = values();
        for (int i = 0; i < rows_; ++i) {
            for (int j = 0; j < columns_; ++j) {
                const auto at = static_cast<std::size_t>(element(i, j) - memory_);
                std::memcpy(&now[at], &before_[at], sizeof(T));
            }
        }
        return now == before_;
    }

private:
    static constexpr std::size_t kPage = 4096;
    unsigned char* element(int i, int j) const
    {
        return base_ + static_cast<std::ptrdiff_t>(s1_) * i + static_cast<std::ptrdiff_t>(s2_) * j;
    }

    int rows_, columns_, s1_ = 0, s2_ = 0;
    std::size_t extent_, pages_;
    unsigned char* memory_;
    unsigned char* base_;
    std::vector<unsigned char> before_;
};

}  // namespace test
