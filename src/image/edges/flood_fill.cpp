#include "image/edges/flood_fill.h"

#include "core/checks.h"
#include "core/memory.h"
#include "image/edges/spreading.h"
#include "math/bits.h"
#include "simd/reductions.h"

namespace orv {
namespace flood_fill {
namespace ORV_LEVEL {
namespace {

using std::uint8_t;

// --- Pixels by 64 ---------------------------------------------------------------------------------

#if ORV_HAVE_VECTORS
using Bytes = simd::widest<uint8_t>;

// Which of 64 pixels have a value, the first one's bit lowest.
ORV_INLINE uint64_t equal_pixels(const uint8_t* p, uint8_t value)
{
    const Bytes all = simd::splat<Bytes>(value);
    uint64_t bits = 0;
    for (int i = 0; i < kWordPixels; i += Bytes::N) {
        bits |= uint64_t{simd::equal_bytes(simd::load<Bytes>(p + i), all)} << i;
    }
    return bits;
}
// 64 pixels: `value` for those that are `old`.
ORV_INLINE void replace_pixels(uint8_t* p, uint8_t old, uint8_t value)
{
    for (int i = 0; i < kWordPixels; i += Bytes::N) {
        const Bytes pixels = simd::load<Bytes>(p + i);
        simd::store(p + i,
                    simd::select(simd::equal(pixels, simd::splat<Bytes>(old)), simd::splat<Bytes>(value), pixels));
    }
}
#else
// Eight bytes in one integer; the top bit of each that is 0.
ORV_INLINE uint64_t eight(uint8_t value) { return value * uint64_t{0x0101010101010101}; }
ORV_INLINE uint64_t zero_bytes(uint64_t x)
{
    const uint64_t low = 0x7F7F7F7F7F7F7F7F;
    return ~(((x & low) + low) | x | low);
}
ORV_INLINE uint64_t equal_pixels(const uint8_t* p, uint8_t value)
{
    uint64_t bits = 0;
    for (int i = 0; i < kWordPixels; i += 8) {
        const uint64_t pixels = get(reinterpret_cast<const uint64_t*>(p + i));
        // The product puts the eight bits side by side at the top.
        bits |= ((zero_bytes(pixels ^ eight(value)) >> 7) * 0x0102040810204080 >> 56) << i;
    }
    return bits;
}
ORV_INLINE void replace_pixels(uint8_t* p, uint8_t old, uint8_t value)
{
    for (int i = 0; i < kWordPixels; i += 8) {
        auto* const eight_pixels = reinterpret_cast<uint64_t*>(p + i);
        const uint64_t pixels = get(eight_pixels), mask = (zero_bytes(pixels ^ eight(old)) >> 7) * 255;
        put(eight_pixels, pixels ^ (mask & eight(static_cast<uint8_t>(old ^ value))));
    }
}
#endif

// --- The area -------------------------------------------------------------------------------------

// The pixels of one value. Their bits are made block by block, so that what a small area does not come near to costs
// nothing.
class EqualArea {
public:
    EqualArea(uint8_t* pixels, int step, Size roi, uint8_t value, const SpreadingMemory& planes, uint32_t* prepared)
        : pixels_(pixels),
          step_(step),
          roi_(roi),
          value_(value),
          rows_(roi),
          free_(planes.free),
          fresh_(planes.fresh),
          prepared_(prepared)
    {
    }

    ORV_INLINE void prepare(int y, ptrdiff_t block)
    {
        uint32_t* const marks = prepared_ + y * rows_.marks + block / kMarkBlocks;
        const uint32_t mark = 1u << block % kMarkBlocks;
        if ((*marks & mark) != 0) return;
        *marks |= mark;
        make(y, block);
    }

    // Gives the reached pixels, which are no longer free, another value. Returns their number.
    long long replace(uint8_t value)
    {
        long long count = 0;
        for (int y = 0; y < roi_.height; ++y) {
            for (ptrdiff_t i = 0; i < rows_.marks; ++i) {
                for (uint32_t marks = prepared_[y * rows_.marks + i]; marks != 0; marks &= marks - 1) {
                    count += replace_block(y, i * kMarkBlocks + __builtin_ctz(marks), value);
                }
            }
        }
        return count;
    }

private:
    ORV_INLINE uint8_t* pixels_of(int y, ptrdiff_t word) const
    {
        return row_at(pixels_, step_, y) + word * kWordPixels;
    }
    ORV_INLINE ptrdiff_t pixels_from(ptrdiff_t word) const { return roi_.width - word * kWordPixels; }
    ORV_INLINE ptrdiff_t end_of(ptrdiff_t block) const
    {
        const ptrdiff_t end = (block + 1) * kBlockWords;
        return end < rows_.words ? end : rows_.words;
    }

    ORV_INLINE uint64_t word_of(int y, ptrdiff_t word) const
    {
        const uint8_t* const p = pixels_of(y, word);
        const ptrdiff_t n = pixels_from(word);
        if (n >= kWordPixels) return equal_pixels(p, value_);
        // The last pixels of the row: as the end of a whole word, or among others.
        if (word > 0) return equal_pixels(p + n - kWordPixels, value_) >> (kWordPixels - n);
        uint8_t row[kWordPixels];
        __builtin_memset(row, ~value_, sizeof(row));
        __builtin_memcpy(row, p, static_cast<std::size_t>(n));
        return equal_pixels(row, value_);
    }

    void make(int y, ptrdiff_t block)
    {
        for (ptrdiff_t word = block * kBlockWords; word < end_of(block); ++word) {
            free_[y * rows_.words + word] = word_of(y, word);
            fresh_[y * rows_.words + word] = 0;
        }
    }

    int replace_block(int y, ptrdiff_t block, uint8_t value)
    {
        int count = 0;
        for (ptrdiff_t word = block * kBlockWords; word < end_of(block); ++word) {
            const uint64_t equal = word_of(y, word), reached = equal & ~free_[y * rows_.words + word];
            uint8_t* const p = pixels_of(y, word);
            if (reached == equal && pixels_from(word) >= kWordPixels) {
                replace_pixels(p, value_, value);
            } else {
                for (uint64_t bits = reached; bits != 0; bits &= bits - 1) p[lowest_bit(bits)] = value;
            }
            count += bits_set(reached);
        }
        return count;
    }

    uint8_t* pixels_;
    int step_;
    Size roi_;
    uint8_t value_;
    BitRows rows_;
    uint64_t* free_;
    uint64_t* fresh_;
    uint32_t* prepared_;
};

// The number of pixels, or -1 without memory.
long long fill(uint8_t* pixels, int step, Size roi, int seedX, int seedY, uint8_t old, uint8_t value)
{
    const BitRows rows(roi);
    void* const memory = orv_allocate_checked(SpreadingMemory::bytes(rows) + rows.mark_bytes());
    if (memory == nullptr) return -1;
    const SpreadingMemory planes(rows, memory);
    uint32_t* const prepared = planes.marks + rows.marks * rows.height;
    __builtin_memset(prepared, 0, static_cast<std::size_t>(rows.mark_bytes()));

    EqualArea area(pixels, step, roi, old, planes, prepared);
    Spreading<EqualArea> spreading(rows, planes, area);
    spreading.take(seedY, seedX / kWordPixels, uint64_t{1} << seedX % kWordPixels);
    spreading.run();
    const long long count = area.replace(value);
    orv_release(memory);
    return count;
}

}  // namespace

// --- Kernel ---------------------------------------------------------------------------------------

Status FloodFill_8Con_8u_C1IR(uint8_t* srcDst, int srcDstStep, Size roi, int seedX, int seedY, uint8_t value,
                              int* count)
{
    if (const Status bad = check_image(roi, srcDst)) return bad;
    if (srcDstStep < 1) return StatusBadStep;
    if (seedX < 0 || seedX >= roi.width || seedY < 0 || seedY >= roi.height) return StatusBadOffset;
    const uint8_t old = row_at(srcDst, srcDstStep, seedY)[seedX];
    const long long pixels = old == value ? 0 : fill(srcDst, srcDstStep, roi, seedX, seedY, old, value);
    if (pixels < 0) return StatusNoMemory;
    if (count != nullptr) put(count, pixels > INT32_MAX ? INT32_MAX : static_cast<int>(pixels));
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace flood_fill
}  // namespace orv
