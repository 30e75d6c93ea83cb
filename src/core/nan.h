// The NaNs that the library gives, by their bits. Which operand's NaN an instruction passes on depends on the order of
// the operands, which compilers choose: a family that promises the same bits at every level puts one of these in its
// place.
#pragma once

#include <cstdint>

namespace orv {

// The usual one: the quiet NaN of the C library. Of functions, images that are resized, warped or mapped, and sums.
constexpr std::uint32_t kPlainNan = 0x7FC00000;
constexpr std::uint64_t kPlainNan64 = 0x7FF8000000000000;

// With the sign bit set, as x86 operations without a result give it. Of arithmetic, spectra, and roots and logarithms
// of negative numbers.
constexpr std::uint32_t kInvalidNan = 0xFFC00000;
constexpr std::uint64_t kInvalidNan64 = 0xFFF8000000000000;

// With every bit set, as a comparison of vectors gives it. Of filters.
constexpr std::uint32_t kNanOfOnes = 0xFFFFFFFF;

}  // namespace orv
