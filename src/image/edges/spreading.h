// Reached pixels spread to their eight neighbours: what hysteresis and filling share.
//
// Of each pixel two bits are kept, in planes with rows of 64-bit words: whether it is free, which is to be had and not
// reached yet, and whether it is fresh, which is reached and not handed on yet. A pixel is free, then fresh, then
// neither. So each is handed on once, as a rule together with the others of its word: a run grows to its end by the
// carries of an addition, and what a word has found is offered, a pixel wider on both sides, to the rows above and
// below it.
//
// Rows with fresh pixels wait, and are visited as a lift visits floors: downward as long as a row waits below, then
// upward. Areas that grow by a pixel a row so gather whole words on the way.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/level.h"
#include "core/operation.h"

namespace orv {
inline namespace ORV_LEVEL {

using std::ptrdiff_t;
using std::uint32_t;
using std::uint64_t;

constexpr int kWordPixels = 64, kBlockWords = 4, kMarkBlocks = 32;
constexpr uint64_t kLastPixel = uint64_t{1} << 63;

ORV_INLINE int lowest_bit(uint64_t bits) { return __builtin_ctzll(bits); }
ORV_INLINE int highest_bit(uint64_t bits) { return 63 - __builtin_clzll(bits); }

// Seeds and the free pixels of their runs. Downward there are no carries, so pixels double their reach.
ORV_INLINE uint64_t runs_of(uint64_t seeds, uint64_t free)
{
    const uint64_t line = seeds | free;
    uint64_t run = (line & ~(line + seeds)) | seeds;
    if (((run >> 1) & free & ~run) == 0) return run;
    uint64_t open = free;
    for (int reach = 1; reach < kWordPixels; reach *= 2) {
        run |= open & (run >> reach);
        open &= open >> reach;
    }
    return run;
}

// Rows of words, and of marks: a bit for each block of four words.
struct BitRows {
    ptrdiff_t words, marks;
    int height;

    ORV_INLINE explicit BitRows(Size roi)
        : words((roi.width - 1) / kWordPixels + 1),
          marks((words - 1) / (kBlockWords * kMarkBlocks) + 1),
          height(roi.height)
    {
    }
    // Of two ints these are below 2^60.
    ORV_INLINE long long plane_bytes() const { return 8LL * words * height; }
    ORV_INLINE long long mark_bytes() const { return 4LL * marks * height; }
    ORV_INLINE long long row_bits_bytes() const { return ((height - 1LL) / 64 + 1) * 8; }
};

// All that spreading needs, side by side: both planes, a bit for each row that waits, and the marks.
struct SpreadingMemory {
    uint64_t *free, *fresh, *waiting;
    uint32_t* marks;

    static ORV_INLINE long long bytes(const BitRows& rows) { return 2 * rows.plane_bytes() + cleared_bytes(rows); }
    // No row waits and no block is marked yet; what the planes hold is the caller's business.
    ORV_INLINE SpreadingMemory(const BitRows& rows, void* memory)
        : free(static_cast<uint64_t*>(memory)),
          fresh(free + rows.words * rows.height),
          waiting(fresh + rows.words * rows.height),
          marks(reinterpret_cast<uint32_t*>(waiting + rows.row_bits_bytes() / 8))
    {
        __builtin_memset(waiting, 0, static_cast<std::size_t>(cleared_bytes(rows)));
    }

private:
    static ORV_INLINE long long cleared_bytes(const BitRows& rows) { return rows.row_bits_bytes() + rows.mark_bytes(); }
};

// An area prepares the words of a block, free and fresh ones, when the block is asked for: prepare(y, block).
template <class Area>
class Spreading {
public:
    ORV_INLINE Spreading(const BitRows& rows, const SpreadingMemory& memory, Area& area)
        : rows_(rows),
          free_(memory.free),
          fresh_(memory.fresh),
          marks_(memory.marks),
          waiting_(memory.waiting),
          area_(area),
          low_(rows.height),
          high_(-1)
    {
    }

    ORV_INLINE void mark(int y, ptrdiff_t block)
    {
        marks_[y * rows_.marks + block / kMarkBlocks] |= 1u << block % kMarkBlocks;
        waiting_[y / 64] |= uint64_t{1} << y % 64;
        if (y < low_) low_ = y;
        if (y > high_) high_ = y;
    }
    // Those of a word's pixels that are free are reached.
    ORV_INLINE void take(int y, ptrdiff_t word, uint64_t pixels)
    {
        if (move(y, word, pixels)) mark(y, word / kBlockWords);
    }

    // Until no pixel is fresh.
    void run()
    {
        int y = low_;
        while (low_ <= high_) {
            for (int next; (next = waiting_from(y)) <= high_;) visit(y = next);
            high_ = y - 1;
            for (int next; (next = waiting_up_to(y)) >= low_;) visit(y = next);
            low_ = y + 1;
        }
    }

private:
    // The nearest row that waits, or one beyond all that do.
    ORV_INLINE int waiting_from(int y) const
    {
        uint64_t bits = waiting_[y / 64] >> y % 64 << y % 64;
        int group = y / 64;
        while (bits == 0) {
            if (++group > high_ / 64 || high_ < 0) return high_ + 1;
            bits = waiting_[group];
        }
        return group * 64 + lowest_bit(bits);
    }
    ORV_INLINE int waiting_up_to(int y) const
    {
        uint64_t bits = waiting_[y / 64] << (63 - y % 64) >> (63 - y % 64);
        int group = y / 64;
        while (bits == 0) {
            if (--group < low_ / 64) return low_ - 1;
            bits = waiting_[group];
        }
        return group * 64 + highest_bit(bits);
    }

    void visit(int y)
    {
        waiting_[y / 64] &= ~(uint64_t{1} << y % 64);
        uint32_t* const marks = marks_ + y * rows_.marks;
        for (ptrdiff_t i = 0; i < rows_.marks;) {
            if (marks[i] == 0) {
                ++i;
                continue;
            }
            const int block = __builtin_ctz(marks[i]);
            marks[i] &= marks[i] - 1;
            visit_block(y, i * kMarkBlocks + block);
            if (block == 0 && i > 0 && marks[i - 1] != 0) --i;
        }
    }

    void visit_block(int y, ptrdiff_t block)
    {
        const ptrdiff_t first = block * kBlockWords,
                        end = first + kBlockWords < rows_.words ? first + kBlockWords : rows_.words;
        const uint64_t* const fresh = fresh_ + y * rows_.words;
        ptrdiff_t word = first, last = end - 1;
        while (word < last && fresh[word] == 0) ++word;
        while (word < last && fresh[last] == 0) --last;
        if (word == last) return follow(y, word);
        uint64_t found[kBlockWords + 2] = {};  // of the block's words, between two that have none
        while (word < end) {
            const uint64_t run = spread(y, word);
            found[word - first + 1] |= run;
            if (run >> 63 != 0 && word + 1 < end) move(y, word + 1, 1);
            const bool back = (run & 1) != 0 && word > first && move(y, word - 1, kLastPixel);
            word += back ? -1 : 1;
        }
        if ((found[1] & 1) != 0) offer(y, first - 1, kLastPixel);
        if (found[end - first] >> 63 != 0) offer(y, end, 1);
        if (y > 0) hand_on(y - 1, first, end, found);
        if (y + 1 < rows_.height) hand_on(y + 1, first, end, found);
    }
    void hand_on(int y, ptrdiff_t first, ptrdiff_t end, const uint64_t (&found)[kBlockWords + 2])
    {
        area_.prepare(y, first / kBlockWords);
        uint64_t *const free = free_ + y * rows_.words, *const fresh = fresh_ + y * rows_.words;
        uint64_t any = 0;
        for (ptrdiff_t word = first; word < end; ++word) {
            const uint64_t* const f = found + (word - first);
            const uint64_t taken = (f[0] >> 63 | f[1] | f[1] << 1 | f[1] >> 1 | f[2] << 63) & free[word];
            free[word] ^= taken;
            fresh[word] |= taken;
            any |= taken;
        }
        if (any != 0) mark(y, first / kBlockWords);
    }

    // A word alone, then those above or below it as long as only one of them takes anything: thin lines.
    void follow(int y, ptrdiff_t word)
    {
        for (;;) {
            const uint64_t run = spread(y, word), wide = run | run << 1 | run >> 1;
            if ((run & 1) != 0) offer(y, word - 1, kLastPixel);
            if (run >> 63 != 0) offer(y, word + 1, 1);
            const bool above = y > 0 && move(y - 1, word, wide),
                       below = y + 1 < rows_.height && move(y + 1, word, wide);
            if (above && below) {
                mark(y - 1, word / kBlockWords);
                mark(y + 1, word / kBlockWords);
            }
            if (above == below) return;
            y += below ? 1 : -1;
        }
    }
    // A pixel beyond the end of a word that has been reached, to the row and to those above and below.
    void offer(int y, ptrdiff_t word, uint64_t pixel)
    {
        if (word < 0 || word >= rows_.words) return;
        take(y, word, pixel);
        if (y > 0) take(y - 1, word, pixel);
        if (y + 1 < rows_.height) take(y + 1, word, pixel);
    }

    // What is free becomes fresh. Returns whether there was any.
    ORV_INLINE bool move(int y, ptrdiff_t word, uint64_t pixels)
    {
        area_.prepare(y, word / kBlockWords);
        const ptrdiff_t at = y * rows_.words + word;
        const uint64_t taken = pixels & free_[at];
        free_[at] ^= taken;
        fresh_[at] |= taken;
        return taken != 0;
    }
    // What is fresh, with its runs, is no longer.
    ORV_INLINE uint64_t spread(int y, ptrdiff_t word)
    {
        const ptrdiff_t at = y * rows_.words + word;
        const uint64_t run = runs_of(fresh_[at], free_[at]);
        fresh_[at] = 0;
        free_[at] &= ~run;
        return run;
    }

    BitRows rows_;
    uint64_t* free_;
    uint64_t* fresh_;
    uint32_t* marks_;    // which blocks have fresh pixels
    uint64_t* waiting_;  // which rows have marks
    Area& area_;
    int low_, high_;
};

}  // namespace ORV_LEVEL
}  // namespace orv
