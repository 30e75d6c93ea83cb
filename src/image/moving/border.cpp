#include "image/moving/border.h"

#include <cstdint>

#include "core/checks.h"
#include "image/moving/copy_rows.h"
#include "core/memory.h"
#include "core/overlap.h"
#include "core/sizes.h"
#include "simd/vec.h"

namespace orv {
namespace border {
namespace ORV_LEVEL {
namespace {

using std::int64_t;
using std::ptrdiff_t;
using std::uint16_t;
using std::uint32_t;
using std::uint8_t;

// --- Runs of equal pixels -------------------------------------------------------------------------

#if ORV_HAVE_VECTORS
// A pixel of 1, 2, 3, 4 or 12 bytes over and over, in three vectors that follow each other. Those of 3
// and of 12 bytes come around after three vectors, the others after each. Any piece of the run that
// ends with a pixel is also the end of the third vector. In bare registers: as the vocabulary's vectors, which
// compilers copy whole, borders of a pixel or two take 4 to 20 % longer.
template <int Bytes>
struct Run {
    __m128i v[3];

    ORV_INLINE explicit Run(const uint8_t* pixel)
    {
        if constexpr (Bytes == 3) {
            const uint32_t p = pixel[0] | uint32_t{pixel[1]} << 8 | uint32_t{pixel[2]} << 16;
            repeat_words(p | p << 24, p >> 8 | p << 16, p >> 16 | p << 8);
        } else if constexpr (Bytes == 12) {
            uint32_t words[3];
            std::memcpy(words, pixel, sizeof(words));
            repeat_words(words[0], words[1], words[2]);
        } else {
            uint32_t p = *pixel;
            if (Bytes == 1) p *= 0x01010101u;
            if (Bytes == 2) p = (p | uint32_t{pixel[Bytes - 1]} << 8) * 0x00010001u;
            if (Bytes == 4) std::memcpy(&p, pixel, Bytes);
            v[0] = v[1] = v[2] = _mm_set1_epi32(static_cast<int>(p));
        }
    }

    ORV_INLINE void fill(uint8_t* dst, ptrdiff_t n) const
    {
        ORV_ASSERT(n >= 0 && n % Bytes == 0);
        if (n < 16) return fill_few(dst, n);
        ptrdiff_t i = 0;
        for (; i + 48 <= n; i += 48) {
            for (int k = 0; k < 3; ++k) _mm_storeu_si128(reinterpret_cast<__m128i*>(dst + i) + k, v[k]);
        }
        if (i + 16 <= n) _mm_storeu_si128(reinterpret_cast<__m128i*>(dst + i), v[0]);
        if (i + 32 <= n) _mm_storeu_si128(reinterpret_cast<__m128i*>(dst + i) + 1, v[1]);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(dst + n - 16), v[2]);
    }

private:
    ORV_INLINE void repeat_words(uint32_t a, uint32_t b, uint32_t c)
    {
        const __m128i once = _mm_setr_epi32(static_cast<int>(a), static_cast<int>(b), static_cast<int>(c), 0);
        v[0] = _mm_shuffle_epi32(once, 0x24);  // a b c a
        v[1] = _mm_shuffle_epi32(once, 0x49);  // b c a b
        v[2] = _mm_shuffle_epi32(once, 0x92);  // c a b c
    }

    ORV_INLINE void fill_few(uint8_t* dst, ptrdiff_t n) const
    {
        if (n >= 8) {
            _mm_storel_epi64(reinterpret_cast<__m128i*>(dst), v[0]);
            _mm_storel_epi64(reinterpret_cast<__m128i*>(dst + n - 8), _mm_unpackhi_epi64(v[2], v[2]));
        } else if (n >= 4) {
            const int first = _mm_cvtsi128_si32(v[0]), last = _mm_cvtsi128_si32(_mm_shuffle_epi32(v[2], 3));
            std::memcpy(dst, &first, 4);
            std::memcpy(dst + n - 4, &last, 4);
        } else {
            const uint32_t word = static_cast<uint32_t>(_mm_cvtsi128_si32(v[0]));
            for (int i = 0; i < n; ++i) dst[i] = static_cast<uint8_t>(word >> 8 * i);
        }
    }
};
#else
template <int Bytes>
struct Run {
    uint8_t byte[Bytes];

    explicit Run(const uint8_t* pixel)
    {
        for (int b = 0; b < Bytes; ++b) byte[b] = pixel[b];
    }
    void fill(uint8_t* dst, ptrdiff_t n) const
    {
        for (ptrdiff_t i = 0; i < n; i += Bytes) {
            for (int b = 0; b < Bytes; ++b) dst[i + b] = byte[b];
        }
    }
};
#endif

// --- Frames ---------------------------------------------------------------------------------------

// Where the source goes in the destination. Rows and borders in bytes.
struct Frame {
    const uint8_t* src;
    int srcStep;
    uint8_t* dst;
    int dstStep;
    int rows, top, bottom;
    ptrdiff_t left, middle, right;

    ORV_INLINE ptrdiff_t whole() const { return left + middle + right; }
    ORV_INLINE const uint8_t* src_row(int y) const { return row_at(src, srcStep, y); }
    ORV_INLINE uint8_t* dst_row(int y) const { return row_at(dst, dstStep, y); }
};

// What stands around the pixels: the same pixel everywhere ...
template <int Bytes>
struct Constant {
    Run<Bytes> run;

    ORV_INLINE void row(const Frame& f, const uint8_t* src, uint8_t* dst) const
    {
        run.fill(dst, f.left);
        copy_row_anywhere(src, dst + f.left, f.middle);
        run.fill(dst + f.left + f.middle, f.right);
    }
    void outside(const Frame& f) const
    {
        for (int y = 0; y < f.top; ++y) run.fill(f.dst_row(y), f.whole());
        for (int y = 0; y < f.bottom; ++y) run.fill(f.dst_row(f.top + f.rows + y), f.whole());
    }
    // The order that shows where rows overlap. put(y, fill): row y as fill(to) makes it.
    template <class Put> void in_order(const Frame& f, Put put) const
    {
        const auto whole = [&](uint8_t* to) { run.fill(to, f.whole()); };
        for (int y = 0; y < f.top; ++y) put(y, whole);
        for (int y = 0; y < f.rows; ++y) put(f.top + y, [&](uint8_t* to) { row(f, f.src_row(y), to); });
        for (int y = 0; y < f.bottom; ++y) put(f.top + f.rows + y, whole);
    }
};

// ... or the nearest one of the edge.
template <int Bytes>
struct Nearest {
    ORV_INLINE void row(const Frame& f, const uint8_t* src, uint8_t* dst) const
    {
        const Run<Bytes> first(src), last(src + f.middle - Bytes);
        first.fill(dst, f.left);
        copy_row_anywhere(src, dst + f.left, f.middle);
        last.fill(dst + f.left + f.middle, f.right);
    }
    void outside(const Frame& f) const
    {
        const uint8_t* const first = f.dst_row(f.top);
        const uint8_t* const last = f.dst_row(f.top + f.rows - 1);
        for (int y = 0; y < f.bottom; ++y) copy_row(last, f.dst_row(f.top + f.rows + y), f.whole());
        for (int y = 0; y < f.top; ++y) copy_row(first, f.dst_row(y), f.whole());
    }
    // Borders above and below repeat what then stands in the first and last row.
    template <class Put> void in_order(const Frame& f, Put put) const
    {
        for (int y = 0; y < f.rows; ++y) put(f.top + y, [&](uint8_t* to) { row(f, f.src_row(y), to); });
        const auto last = [&](uint8_t* to) { copy_row(f.dst_row(f.top + f.rows - 1), to, f.whole()); };
        for (int y = 0; y < f.bottom; ++y) put(f.top + f.rows + y, last);
        const auto first = [&](uint8_t* to) { copy_row(f.dst_row(f.top), to, f.whole()); };
        for (int y = 0; y < f.top; ++y) put(y, first);
    }
};

template <class Surrounding>
void surround(const Frame& f, const Surrounding& surrounding)
{
    for (int y = 0; y < f.rows; ++y) surrounding.row(f, row_at(f.src, f.srcStep, y), f.dst_row(f.top + y));
    surrounding.outside(f);
}

// Source and destination begin at the same place. No row moves up, so from the last one on each can go
// to its place through a copy of that row alone.
template <class Surrounding>
__attribute__((noinline)) Status surround_upwards(const Frame& f, const Surrounding& surrounding)
{
    auto* const copy = static_cast<uint8_t*>(orv_allocate_checked(int64_t{f.middle}));
    if (copy == nullptr) return StatusNoMemory;
    for (int y = f.rows - 1; y >= 0; --y) {
        copy_row(row_at(f.src, f.srcStep, y), copy, f.middle);
        surrounding.row(f, copy, f.dst_row(f.top + y));
    }
    surrounding.outside(f);
    orv_release(copy);
    return StatusOk;
}

// Rows that share memory are made in a row of their own.
template <class Surrounding>
__attribute__((noinline, cold)) Status surround_by_rows(const Frame& f, const Surrounding& surrounding)
{
    auto* const spare = static_cast<uint8_t*>(orv_allocate_checked(int64_t{f.whole()}));
    if (spare == nullptr) return StatusNoMemory;
    surrounding.in_order(f, [&](int y, auto fill) {
        fill(spare);
        std::memcpy(f.dst_row(y), spare, static_cast<std::size_t>(f.whole()));
    });
    orv_release(spare);
    return StatusOk;
}

// One place for source and destination, with steps with which rows would overwrite others that are still to be
// read.
template <class Surrounding>
__attribute__((noinline, cold)) Status surround_copy(const Frame& f, const Surrounding& surrounding)
{
    auto* const copy = static_cast<uint8_t*>(orv_allocate_checked(size_product(f.middle, f.rows)));
    if (copy == nullptr) return StatusNoMemory;
    for (int y = 0; y < f.rows; ++y) copy_row(row_at(f.src, f.srcStep, y), copy + f.middle * y, f.middle);
    Frame from_copy = f;
    from_copy.src = copy;
    from_copy.srcStep = static_cast<int>(f.middle);
    const Status status = surround_by_rows(from_copy, surrounding);
    orv_release(copy);
    return status;
}

// A source that stands where it goes to is as good as one elsewhere: only the frame around it is written.
ORV_INLINE bool shares_memory(const Frame& f)
{
    const Area dst = {f.dst, f.dstStep, f.whole(), f.top + f.rows + f.bottom};
    if (f.whole() > f.dstStep && dst.rows > 1) return true;
    if (f.src == f.dst_row(f.top) + f.left && f.srcStep == f.dstStep) return false;
    return overlap(Area{f.src, f.srcStep, f.middle, f.rows}, dst);
}

template <class Surrounding>
Status extend(const Frame& f, const Surrounding& surrounding)
{
    if (f.src == f.dst) {
        const bool rows_stay_apart = f.srcStep <= f.dstStep && f.whole() <= f.dstStep;
        return rows_stay_apart ? surround_upwards(f, surrounding) : surround_copy(f, surrounding);
    }
    if (shares_memory(f)) return surround_by_rows(f, surrounding);
    surround(f, surrounding);
    return StatusOk;
}

// Steps are checked before sizes; the sums are wider than the sizes, so that none wraps.
ORV_INLINE Status check(bool null, int srcStep, Size srcSize, int dstStep, Size dstSize, int top, int left,
                        int pixel_bytes)
{
    if (const Status bad = check_steps_before_size(null, any_below_one(srcStep, dstStep), srcSize)) return bad;
    if (is_empty(dstSize) || top < 0 || left < 0) return StatusBadSize;
    if (dstSize.width < int64_t{left} + srcSize.width || dstSize.height < int64_t{top} + srcSize.height)
        return StatusBadSize;
    // Rows longer than a 32-bit address space: no buffer has them.
    if (sizeof(ptrdiff_t) == 4 && size_product(dstSize.width, pixel_bytes) == kTooLarge) return StatusNoMemory;
    return StatusOk;
}

template <int Bytes>
ORV_INLINE Frame make_frame(const void* src, int srcStep, Size srcSize, void* dst, int dstStep, Size dstSize, int top,
                            int left)
{
    return {static_cast<const uint8_t*>(src), srcStep, static_cast<uint8_t*>(dst), dstStep, srcSize.height, top,
            dstSize.height - top - srcSize.height, ptrdiff_t{left} * Bytes, ptrdiff_t{srcSize.width} * Bytes,
            ptrdiff_t{dstSize.width - left - srcSize.width} * Bytes};
}

template <int Bytes>
Status const_border(const void* src, int srcStep, Size srcSize, void* dst, int dstStep, Size dstSize, int top, int left,
                    const void* value)
{
    if (const Status bad = check(any_null(src, dst, value), srcStep, srcSize, dstStep, dstSize, top, left, Bytes))
        return bad;
    const Constant<Bytes> surrounding = {Run<Bytes>(static_cast<const uint8_t*>(value))};
    return extend(make_frame<Bytes>(src, srcStep, srcSize, dst, dstStep, dstSize, top, left), surrounding);
}

template <int Bytes>
Status replicate_border(const void* src, int srcStep, Size srcSize, void* dst, int dstStep, Size dstSize, int top,
                        int left)
{
    if (const Status bad = check(any_null(src, dst), srcStep, srcSize, dstStep, dstSize, top, left, Bytes)) return bad;
    return extend(make_frame<Bytes>(src, srcStep, srcSize, dst, dstStep, dstSize, top, left), Nearest<Bytes>());
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define CONST_BORDER(name, T, Value, bytes, address) \
    Status name(const T* src, int srcStep, Size srcSize, T* dst, int dstStep, Size dstSize, int top, int left, \
                Value value) \
    { \
        return const_border<bytes>(src, srcStep, srcSize, dst, dstStep, dstSize, top, left, address); \
    }
CONST_BORDER(CopyConstBorder_8u_C1, uint8_t, uint8_t, 1, &value)
CONST_BORDER(CopyConstBorder_8u_C3, uint8_t, const uint8_t*, 3, value)
CONST_BORDER(CopyConstBorder_8u_C4, uint8_t, const uint8_t*, 4, value)
CONST_BORDER(CopyConstBorder_16u_C1, uint16_t, uint16_t, 2, &value)
CONST_BORDER(CopyConstBorder_32f_C1, float, float, 4, &value)
CONST_BORDER(CopyConstBorder_32f_C3, float, const float*, 12, value)

#define REPLICATE_BORDER(name, T, bytes)                                                                  \
    Status name(const T* src, int srcStep, Size srcSize, T* dst, int dstStep, Size dstSize, int top, int left) \
    {                                                                                                     \
        return replicate_border<bytes>(src, srcStep, srcSize, dst, dstStep, dstSize, top, left);          \
    }
REPLICATE_BORDER(CopyReplicateBorder_8u_C1, uint8_t, 1)
REPLICATE_BORDER(CopyReplicateBorder_8u_C3, uint8_t, 3)
REPLICATE_BORDER(CopyReplicateBorder_8u_C4, uint8_t, 4)
REPLICATE_BORDER(CopyReplicateBorder_16u_C1, uint16_t, 2)
REPLICATE_BORDER(CopyReplicateBorder_32f_C1, float, 4)
REPLICATE_BORDER(CopyReplicateBorder_32f_C3, float, 12)

}  // namespace ORV_LEVEL
}  // namespace border
}  // namespace orv
