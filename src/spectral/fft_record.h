// The specification records of the transforms and how much memory they need.
//
// A record is built once for an order, a normalisation flag and a hint, in memory of the caller, and
// only read afterwards. It is followed by its tables, which it points to, so it cannot be moved.
#pragma once

#include <cstddef>

#include "core/status.h"

namespace orv {

// Elements of the engine are lines: eight complex values, the real parts and then the imaginary parts,
// in one cache line.
constexpr int kLanes = 8;
constexpr int kLineFloats = 2 * kLanes;

constexpr int kMaxOrder = 28;
constexpr int kSmallOrder = 5;      // the longest transform that needs no tables
constexpr int kNarrowOrder = 6;     // of the widest image whose rows are transformed side by side
constexpr int kTableFreeOrder = 10;  // the longest one that is built without an initialisation buffer

enum Normalisation : int { kScaleForward = 1, kScaleInverse = 2, kScaleBoth = 4, kScaleNone = 8 };

// Complex transforms of 2^order lines, lane by lane.
struct LinePlan {
    const float* twiddles;  // pass after pass, see line_fft.h
    const int* position;    // the line where the transform leaves X[k]
    int order;
};

// Real transforms of 2^order samples.
struct RealPlan {
    LinePlan lines;      // of 2^(order - 4) lines
    const float* split;  // W^k of the split into real spectra, see real_fft.h
    const float* join;   // half W^(lk) of the final butterflies
    int order;
};

struct FftSpec {
    unsigned tag;
    int hint;
    float scale;
    bool scales_forward;
    bool scales_inverse;
    RealPlan plan;
};

struct Fft2Spec {
    unsigned tag;
    int hint;
    float scale;
    bool scales_forward;
    bool scales_inverse;
    RealPlan rows;
    LinePlan columns;
};

constexpr unsigned kFftTag = 0x52464654;
constexpr unsigned kFft2Tag = 0x32464654;

// --- Sizes, in bytes. All parts start on 64 bytes. ------------------------------------------------

static inline constexpr long long padded(long long bytes) { return (bytes + 63) & ~63LL; }

// A pass of radix 8 where the order is a multiple of three, else of radix 4; see line_fft.h.
static inline constexpr int radix_order(int order) { return order % 3 == 0 ? 3 : 2; }

static inline constexpr long long pass_twiddle_floats(int order)
{
    const int radix = 1 << radix_order(order);
    return 2LL * (radix - 1) * (1LL << (order - radix_order(order)));
}
static inline constexpr long long line_twiddle_bytes(int order)
{
    long long floats = 0;
    for (; order > 3; order -= radix_order(order)) floats += pass_twiddle_floats(order);
    return padded(floats * 4);
}
static inline constexpr long long line_position_bytes(int order) { return padded(4LL << order); }
static inline constexpr long long line_plan_bytes(int order)
{
    return line_twiddle_bytes(order) + line_position_bytes(order);
}

static inline constexpr int line_order(int order) { return order - 4; }
static inline constexpr long long split_bytes(int order)
{
    return padded(8 * ((1LL << line_order(order)) / 2 + 1));
}
static inline constexpr int join_groups(int order) { return order < 7 ? 1 : 1 << (order - 7); }
static inline constexpr long long join_bytes(int order) { return 7LL * kLineFloats * 4 * join_groups(order); }
static inline constexpr long long real_plan_bytes(int order)
{
    if (order <= kSmallOrder) return 0;
    return line_plan_bytes(line_order(order)) + split_bytes(order) + join_bytes(order);
}
static inline constexpr long long real_work_bytes(int order) { return order <= kSmallOrder ? 0 : 4LL << order; }

// The rows of an image, see narrow_rows.h for the first case.
static inline constexpr long long row_plan_bytes(int order)
{
    if (order > kNarrowOrder) return real_plan_bytes(order);
    return line_plan_bytes(order - 1) + padded(8 * ((1LL << order) / 4 + 1));
}

// Tables of roots for building: see roots.h.
static inline constexpr long long root_table_bytes(int order)
{
    return order <= kTableFreeOrder ? 0 : 16LL * ((1LL << (order / 2)) + (1LL << (order - order / 2)));
}

// What is added so that the first 64-byte boundary can be used, wherever the memory starts.
constexpr int kSlack = 64;

static inline constexpr long long columns_of_lines(int orderX) { return orderX <= 4 ? 1 : 1LL << (orderX - 4); }
// One more line than rows: columns would otherwise meet in the same sets of the caches.
static inline constexpr long long column_lines(int orderY) { return (1LL << orderY) + 1; }
static inline constexpr long long row_bytes_ccs(int orderX) { return padded(4 * ((1LL << orderX) + 2)) + 64; }
// Row spectra that are kept before they go into columns: eight, or as many as 256 MB hold.
static inline constexpr int kept_rows(int orderX) { return orderX <= 23 ? 8 : orderX <= 26 ? 8 >> (orderX - 23) : 1; }

struct FftSizes {
    long long spec, init, work;
};

static inline constexpr FftSizes fft_sizes(int order)
{
    FftSizes s = {152, 0, 0};
    if (order > kSmallOrder) {
        s.spec = padded(sizeof(FftSpec)) + real_plan_bytes(order) + kSlack;
        s.work = real_work_bytes(order) + kSlack;
    }
    if (order > kTableFreeOrder) s.init = root_table_bytes(order) + kSlack;
    return s;
}

static inline constexpr FftSizes fft2_sizes(int orderX, int orderY)
{
    const int longer = orderX > orderY ? orderX : orderY;
    FftSizes s = {};
    s.spec = padded(sizeof(Fft2Spec)) + row_plan_bytes(orderX) + line_plan_bytes(orderY) + kSlack;
    s.init = longer > kTableFreeOrder ? root_table_bytes(longer) + kSlack : 0;
    s.work = columns_of_lines(orderX) * column_lines(orderY) * kLineFloats * 4 +
             kept_rows(orderX) * row_bytes_ccs(orderX) + padded(real_work_bytes(orderX)) + kSlack;
    return s;
}

static_assert(sizeof(FftSpec) + 63 <= 152, "The records of short transforms are promised to fit in 152 bytes");

static inline bool is_normalisation(int flag)
{
    return flag == kScaleForward || flag == kScaleInverse || flag == kScaleBoth || flag == kScaleNone;
}

// The first 64-byte boundary in memory of the caller.
template <class T>
static inline T* at_boundary(unsigned char* memory)
{
    return reinterpret_cast<T*>((reinterpret_cast<std::size_t>(memory) + 63) & ~std::size_t{63});
}

// The checks that size queries and initialisations share, in their order.
static inline Status check_fft(int order, bool any_null, int flag)
{
    if (order < 0 || order > 30) return StatusBadFftOrder;
    if (any_null) return StatusNullPointer;
    if (!is_normalisation(flag)) return StatusBadFftFlag;
    if (order > kMaxOrder) return StatusBadFftOrder;
    return StatusOk;
}

static inline Status check_fft2(int orderX, int orderY, bool any_null, int flag)
{
    if (orderX < 1 || orderX > 30 || orderY < 1 || orderY > 30) return StatusBadFftOrder;
    if (any_null) return StatusNullPointer;
    if (!is_normalisation(flag)) return StatusBadFftFlag;
    if (orderX + orderY > kMaxOrder) return StatusBadFftOrder;
    const FftSizes sizes = fft2_sizes(orderX, orderY);
    if (sizes.spec > 0x7FFFFFFF || sizes.work > 0x7FFFFFFF) return StatusBadFftOrder;
    return StatusOk;
}

}  // namespace orv
