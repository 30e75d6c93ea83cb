"""Faults to be planted one at a time, each with the net that must catch it.

A fault is (what is broken, file, text, text in its place, net). The text must stand in the file exactly once;
`mutation.py --check` looks, so that the list follows the code. Nets: a filter of the test program, or the name of
one of CTESTS in mutation.py, "rules", or "build".
"""

VARIANTS = "Variants.*"
SPECTRA = "src/signal/spectra.cpp"
ELEMENT_TYPES = "src/signal/element_types.h"
RAMPS = "src/signal/vector_ramps.cpp"
FULL_VECTORS = "src/elementwise/full_vectors.h"
WINDOWS = "src/elementwise/windows.h"
PACKED = "src/spectral/packed_images.cpp"
WIENER = "src/image/filters/wiener.cpp"
GAUSS = "src/image/filters/gauss.cpp"
BITWISE = "src/image/bits/bitwise.cpp"
THRESHOLD = "src/elementwise/thresholds.h"
HISTOGRAM = "src/image/statistics/histogram.cpp"
COPY_FEW = "src/elementwise/copy_few.h"
EXTREMES = "src/image/statistics/extremes.cpp"
BEST = "src/elementwise/extremes.h"
INTEGER_SUMS = "src/elementwise/integer_sums.h"
LANE_SUMS = "src/elementwise/lane_sums.h"
VECTOR_STATISTICS = "src/signal/statistics.cpp"
FILTERS = "src/image/filters/filters_integer.cpp"
MATRICES = "src/linalg/matrices.cpp"
ELIMINATION = "src/linalg/elimination.cpp"
RANDOM = "src/spectral/random/random_numbers.cpp"
PSD = "src/spectral/psd_object.cpp"
NEAREST = "src/image/resize/resize_nearest.cpp"
MORPHOLOGY = "src/image/rank/morphology.cpp"
RANK_ORDER = "src/math/order.h"
SORT_BY_PARTS = "src/signal/sort_by_parts.h"
SORT_ELEMENTS = "src/signal/sort_elements.h"
SORT_HEAP = "src/signal/sort_heap.h"
SORT_PLACES = "src/signal/sort_places.h"
RANKED_TILE = "src/image/rank/ranked_tile.h"
SMALL_MEDIANS = "src/image/rank/small_medians.h"
FEATURES = "src/core/features.cpp"
MEMORY = "src/core/memory.cpp"
INTEGER = "src/image/arithmetic/integer_arithmetic.cpp"
LOOKUP = "src/image/tables/lookup.cpp"
CURVES = "src/image/tables/curves.cpp"
STANDARDS = "src/image/colour/standards.h"
SUBSAMPLED = "src/image/colour/subsampled.cpp"
TWIST = "src/image/colour/twist.cpp"
ALPHA = "src/image/colour/alpha.cpp"
SPREADING = "src/image/edges/spreading.h"
CANNY = "src/image/edges/canny.cpp"
FLOOD_FILL = "src/image/edges/flood_fill.cpp"
WARP_POSITIONS = "src/image/warp/positions.h"
WARP_SOURCE = "src/image/warp/source.h"
WARP_MANY = "src/image/warp/many.h"
WARP_INVERSE = "src/image/warp/projection.h"
WARP_TURN = "src/image/warp/turn.h"
TABLE = "interface/table.toml"
CONVOLUTION = "src/image/filters/convolution_integer.cpp"
CONVOLUTION_SUMS = "src/image/filters/convolution_doubles.h"
CONVOLUTION_FACTORS = "src/image/filters/convolution_factors.h"
CONVOLUTION_QUOTIENTS = "src/image/filters/convolution_quotients.h"

COMPLEX_START = "    std::ptrdiff_t i = 0;\n    if constexpr (ORV_HAVE_VECTORS) {\n        using V = simd::widest<float>;\n"

FAULTS = [
    # Reading and writing outside the region.
    ("a tail reads an element too far", SPECTRA, "for (; i + V::N <= n; i += V::N) {", "for (; i + V::N <= n + 1; i += V::N) {", VARIANTS),
    ("a word is written behind the destination", SPECTRA,
     "        put(parts + 2 * i + 1, imaginary != nullptr ? get(imaginary + i) : 0);\n    }\n",
     "        put(parts + 2 * i + 1, imaginary != nullptr ? get(imaginary + i) : 0);\n    }\n    put(parts + 2 * n, 0u);\n", VARIANTS),
    ("the last vector is not stored", FULL_VECTORS, "    store(n - N, last);\n", "    if (n < 0) store(n - N, last);\n", VARIANTS),
    ("a histogram counts into the bin behind the last", HISTOGRAM, "value < l.lower || value >= l.upper", "value < l.lower || value > l.upper", "Statistics*:*Histogram*"),
    ("the rest of a row is not counted", HISTOGRAM, "    for (; i < n; ++i) ++tables[place[get(p + i)]];", "    for (; i < n - 1; ++i) ++tables[place[get(p + i)]];", "Statistics*:*Histogram*"),
    ("an odd last byte of a short row is left out", COPY_FEW, "    if ((n & 1) != 0) *d = *s;\n", "", "Statistics*:" + VARIANTS),
    # Arithmetic.
    ("two operations exchanged in the plain text", BITWISE, "one(T a, T b) const { return static_cast<T>(a & b); }", "one(T a, T b) const { return static_cast<T>(a | b); }", VARIANTS),
    ("a shift by one too few in vectors", BITWISE, "many(V a) const { return a << simd::count(bits); }", "many(V a) const { return a << simd::count(bits > 7 ? 7 : bits); }", VARIANTS),
    ("counts beyond the type are limited too early", BITWISE, "return count > static_cast<unsigned>(most) ? most : static_cast<int>(count);",
     "return count > static_cast<unsigned>(most) ? most - 1 : static_cast<int>(count);", "Bitwise*"),
    ("the lower bound for the upper one", THRESHOLD, "above ? lower(x, c[1]) : higher(x, c[1])", "above ? higher(x, c[1]) : lower(x, c[1])", "Threshold*"),
    ("the two values of a double threshold exchanged", THRESHOLD, "exceeds(flipped<flips_upper>(pixel, c[0]), c[1]), c[2], kept)", "exceeds(flipped<flips_upper>(pixel, c[0]), c[1]), c[5], kept)", "Threshold*"),
    ("a tie is rounded up", FILTERS, "one(uint32_t sum) { return (sum + (sum >> 4 & 1) + 7) >> 4; }", "one(uint32_t sum) { return (sum + 8) >> 4; }", "Filters*:" + VARIANTS),
    ("a mean is rounded down", FILTERS, "simd::mul_high(sum + simd::splat<V>(kCount / 2)", "simd::mul_high(sum + simd::splat<V>(kCount / 2 - 1)", "Filters*:" + VARIANTS),
    ("operands exchanged under a conjugate", SPECTRA, "multiply_packed<ComplexProductConjugate>(src, srcDst, srcDst,", "multiply_packed<ComplexProductConjugate>(srcDst, src, srcDst,", "*Spectra*:*Pack*"),
    ("a fused product", MATRICES, "rounded(sum[k % 4] + rounded(get(a.at(i, k)) * get(v.at(0, k))))",
     "static_cast<T>(__builtin_fma(get(a.at(i, k)), get(v.at(0, k)), sum[k % 4]))", VARIANTS),
    ("a fused slope", RAMPS, "return rounded(offset + rounded(slope * static_cast<double>(i)));", "return __builtin_fma(slope, static_cast<double>(i), offset);", "VectorRamps*:" + VARIANTS),
    ("a ramp that ends where its last step leads", RAMPS, "        put(dst + steps, element_of<T>(end));\n", "", "VectorRamps*"),
    ("a float above the integers becomes the lowest", ELEMENT_TYPES, "greater_equal(x, V(0x1p31f))", "greater(x, V(0x1p31f))", "VectorConversions*"),
    ("a tie goes away from zero", ELEMENT_TYPES, "(size == 0.5 && (whole & 1) != 0)", "size == 0.5", "VectorConversions*"),
    ("another order of a product", RANDOM, "return radius * sigma * sine + mean;", "return radius * (sigma * sine) + mean;", "Hashes*"),
    ("a signalling NaN is passed on", WINDOWS, "is_nan_bits<float>(bits) ? bits | Bits<float>::kQuiet : bits_of", "is_nan_bits<float>(bits) ? bits : bits_of", "*Spectra*:*Hamming*:*Win*"),
    ("a row of the source too high", NEAREST, "row_at(src, srcStep, rows[y])", "row_at(src, srcStep, rows[y > 0 ? y - 1 : 0])", "Resize*:Hashes*"),
    ("a tile forgets where it begins", NEAREST, "indices_of(p, p->y) + part.y0", "indices_of(p, p->y)", "Resize*:" + VARIANTS),
    ("the last words of a block are not drawn", RANDOM, "for (; k < run; ++k) words_out[k] = to[k] ^= from[k];", "for (; k < run - 1; ++k) words_out[k] = to[k] ^= from[k];", "Random*:Hashes*:" + VARIANTS),
    # Tables and colour.
    ("a palette read behind its end", LOOKUP, "get(palette + (pixel < last ? pixel : last))", "get(palette + (pixel <= last + 1 ? pixel : last))", "Lookup*"),
    ("one table for all channels", LOOKUP, "equal &= tables[c] == tables[0];", "equal |= tables[c] == tables[0];", "Lookup*"),
    ("a level belongs to the line before it", CURVES, "if (get(levels + k + half) <= x) k += half;", "if (get(levels + k + half) < x) k += half;", "Curves*"),
    ("a curve's halves rounded up", CURVES, "twice_rest > run || (twice_rest == run && (value & 1) != 0)", "twice_rest >= run", "Curves*"),
    ("falling lines rise", CURVES, "simd::splat<Doubles>(line.falls ? -static_cast<double>(line.rise) : line.rise)", "simd::splat<Doubles>(line.rise)", "Curves*"),
    ("a coefficient off by one", STANDARDS, "{{5983, 20127, 2032}", "{{5983, 20126, 2032}", "YCbCr*"),
    ("the rounding of products left out", STANDARDS, "return (k * x + 128) >> 8;", "return (k * x) >> 8;", "YCbCr*"),
    ("chroma without its limit", SUBSAMPLED, "simd::as<uint16_t>(simd::min(simd::alternate(cb, cr), simd::splat<Words>(255)))", "simd::as<uint16_t>(simd::alternate(cb, cr))", "Subsampled*"),
    ("U for V", SUBSAMPLED, "const ToRgbLanes::Channels c = lanes.chroma(u, v);", "const ToRgbLanes::Channels c = lanes.chroma(v, u);", "Subsampled*"),
    ("the last pixel of an odd row alone", SUBSAMPLED, "        if (n % 2 != 0) copy_bytes(in + 3 * n, src + 3 * n - 3, 3);\n", "", "Subsampled*"),
    ("another order of sums", TWIST, "((splat<V>(row[c][0]) * p0 + splat<V>(row[c][1]) * p1) + splat<V>(row[c][2]) * p2) + splat<V>(row[c][3])",
     "(splat<V>(row[c][0]) * p0 + splat<V>(row[c][1]) * p1) + (splat<V>(row[c][2]) * p2 + splat<V>(row[c][3]))", "Twist*"),
    ("a NaN becomes white", TWIST, "simd::min(simd::splat<V>(255), Twist::many(c, p0, p1, p2))", "simd::min(Twist::many(c, p0, p1, p2), simd::splat<V>(255))", "Twist*"),
    ("ground and top exchanged", ALPHA, "const F upper = top * all, lower = (all - top) * numbers<3>(a)", "const F upper = (all - top) * all, lower = top * numbers<3>(a)", "Alpha*"),
    ("a shift for the division by 255", ALPHA, "return (m + (m >> 8)) >> 8;", "return m >> 8;", "Alpha*"),
    # Rotation, perspective, remapping.
    ("an edge on both sides", WARP_POSITIONS, "return x >= left && x < right && y >= top && y < bottom;",
     "return x >= left && x <= right && y >= top && y < bottom;", "Warp*"),
    ("pixels behind the horizon", WARP_POSITIONS, "return w > 0 ? 1 / w :", "return w != 0 ? 1 / w :", "Warp*"),
    ("clockwise", WARP_TURN, "s = on_grid(angle.negative ? -sine : sine);", "s = on_grid(angle.negative ? sine : -sine);", "Warp*"),
    ("the remainder of a large angle", WARP_TURN, "3 + (exponent - 3) % 12", "(exponent - 3) % 12", "Warp*"),
    ("the matrix for its inverse", WARP_INVERSE, "m[1] = h[2] * h[7] - h[1] * h[8];", "m[1] = h[1] * h[8] - h[2] * h[7];", "Warp*"),
    ("the sign of a matrix counts", WARP_INVERSE, "if ((det < 0) != (side < 0)) {", "if (det < 0) {", "Warp*"),
    ("a tap that is not clamped", WARP_SOURCE, "column < left ? left : column > right ? right : column", "column < left ? left : column", "Warp*"),
    ("a tap without weight counts", WARP_SOURCE, "if (part == 0) return a;\n", "", "Warp*"),
    ("the weights of rows for those of columns", WARP_SOURCE, "put(dst + c, to_pixel<T>(sum(v, h)));", "put(dst + c, to_pixel<T>(sum(w, h)));", "Warp*"),
    ("fractions in halves of their steps", WARP_MANY, "fraction = position & simd::splat<Dwords>(16383);",
     "fraction = position & simd::splat<Dwords>(16382);", VARIANTS),
    ("estimates that are not checked", WARP_MANY, "kUnsure = 1.f / 512", "kUnsure = 0", "Warp*"),
    ("the last pixels of a run left out", WARP_MANY, "if (k < end) visit(end - step);", "", "Warp*"),
    # Rank filters.
    ("NaNs with a sign in front", RANK_ORDER, "return turned(bits) - simd::splat<V>(kSignedNansOf<typename V::lane>);", "return turned(bits);", "Rank*:Morphology*"),
    ("the row above, overwritten", MORPHOLOGY, "y == 0 ? src : keeps ? kept : row_at(src, srcStep, y - 1)",
     "y == 0 ? src : keeps && height < 0 ? kept : row_at(src, srcStep, y - 1)", "Morphology*"),
    ("a window that forgets what left below", RANKED_TILE, "below -= flip(leaving[i * apart]);", "flip(leaving[i * apart]);", "RankMedian*"),
    # Sorting.
    ("a gap without room for a vector", SORT_BY_PARTS, "unread_ - lower_ <= upper_ - unread_end_ ? n : 0",
     "unread_ - lower_ >= upper_ - unread_end_ ? n : 0", "Sorting*"),
    ("a heap whose top is not made", SORT_HEAP, "n / 2 - 1; i >= 0; --i", "n / 2 - 1; i > 0; --i", "Sorting*LongPatterns"),
    ("zeros that lose their signs", SORT_ELEMENTS, "(i - low < negative_zeros_) != falling", "(i - low <= negative_zeros_) != falling", "Sorting*"),
    ("equal doubles out of their order", SORT_PLACES, "return key_at(a) < key_at(b);", "return key_at(a) <= key_at(b);", "Sorting*"),
    # Convolution.
    ("a sum that starts as +0", CONVOLUTION_SUMS, "count == 0 ? 0.0 : -0.0", "0.0", "Convolution*"),
    ("a row beyond the frame", CONVOLUTION, "job.source(y < last ? y : last)", "job.source(y < last ? y : y)", "Convolution*:" + VARIANTS),
    ("sums of rows that words do not hold", CONVOLUTION, "factors.magnitudes <= 257", "factors.magnitudes <= 258", "Convolution*"),
    ("a kernel that is nearly a product", CONVOLUTION_FACTORS, "if (multiple * row[c] != get(job.weight(r, c))) return false;",
     "if (c > 1 && multiple * row[c] != get(job.weight(r, c))) return false;", "Convolution*"),
    ("quotients that miss their ties", CONVOLUTION_QUOTIENTS, "std::uint64_t{1} << 19;", "std::uint64_t{1} << 23;", "Convolution*"),
    ("a centre that is not what the others leave", GAUSS, "g[0] = single(rounded(1 - 2 * others));", "g[0] = single(rounded(1 / whole));", "Gauss*:Hashes*"),
    ("a row of sums too few is kept", GAUSS, "2 * radius + kTogether < roi.height ? 2 * radius + kTogether :",
     "2 * radius + kTogether - 1 < roi.height ? 2 * radius + kTogether - 1 :", "Gauss*"),
    ("quotients by a rounded reciprocal", WIENER, "return minus_product(quotient, product_minus(quotient, V(count_), a), V(inverse_));",
     "return quotient;", "Wiener*"),
    ("variances below 0 are summed", WIENER, "select(less(V(0.0), local.variance), local.variance, V(0.0))", "select(less(V(0.0), local.variance), local.variance, local.variance)", "Wiener*"),
    ("a mirrored phase keeps its sign", PACKED, "return is_nan_bits<float>(value) ? value : value ^ kSign;", "return value;", "PackedImages*"),
    ("the middle column is left out", PACKED, "if (has_middle(roi.width)) use(", "if (roi.width == 2) use(", "PackedImages*"),
    ("a column's pair in the wrong rows", PACKED, "else if (y % 2 == 0) multiply_down(images.at(x, y - 1), op);", "else if (y % 2 == 0) multiply_down(images.at(x, y - 2), op);", "PackedImages*"),
    # Edges and filled areas.
    ("a run ends at its seed", SPREADING, "if (((run >> 1) & free & ~run) == 0) return run;", "return run;", "FloodFill*:Canny*"),
    ("no corner between words", SPREADING, "(f[0] >> 63 | f[1] | f[1] << 1 | f[1] >> 1 | f[2] << 63)", "(f[1] | f[1] << 1 | f[1] >> 1)", "FloodFill*:Canny*"),
    ("rows above wait for ever", SPREADING, "            for (int next; (next = waiting_up_to(y)) >= low_;) visit(y = next);\n", "", "FloodFill*:Canny*"),
    ("the later of two equal pixels stays", CANNY, "return lanes(greater(m, simd::load<Many>(earlier))) & lanes(greater_equal(m, simd::load<Many>(later)));",
     "return lanes(greater_equal(m, simd::load<Many>(earlier))) & lanes(greater(m, simd::load<Many>(later)));", "Canny*"),
    ("a gradient at the edge of the region has a neighbour", CANNY, "if (x_ + n_ == roi_.width) squares[n_] = 0;\n", "", "Canny*"),
    ("magnitudes stay floats", CANNY, "magnitudes<double>(y)[i] = static_cast<double>(get(magnitudes<float>(y) + i));", "magnitudes<double>(y)[i] = 0;", "Canny*"),
    ("pixels behind the row", FLOOD_FILL, "if (n >= kWordPixels) return equal_pixels(p, value_);", "return equal_pixels(p, value_);", "FloodFill*"),
    # Checks.
    ("a null check left out", INTEGER, "    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;\n    if (may_overlap", "    if (const Status bad = check_image(roi, src1, dst)) return bad;\n    if (may_overlap", "IntegerArithmetic*"),
    ("a step that is not checked", BITWISE, "any_below_one(src1Step, src2Step, dstStep), roi)) {", "any_below_one(src1Step, src2Step), roi)) {", "Bitwise*"),
    ("statuses in the wrong order", ELIMINATION, "    if (any_null(src, dstIndex, dst)) return StatusNullPointer;\n    if (widthHeight < 1) return StatusBadSize;\n",
     "    if (widthHeight < 1) return StatusBadSize;\n    if (any_null(src, dstIndex, dst)) return StatusNullPointer;\n", "Matrices*:Elimination*"),
    ("an index that is not checked", ELIMINATION, "    if (!are_factors(lu, srcIndex, widthHeight)) return StatusSingularMatrix;\n", "", "Matrices*:Elimination*"),
    ("windows of two samples", SPECTRA, "if (len.count < 3) return StatusBadSize;", "if (len.count < 2) return StatusBadSize;", "*Spectra*:*Win*"),
    ("a block of another length", PSD, "length != record->n) return;", "length < record->n) return;", "*Psd*:*PowerSpectrum*"),
    ("a size that wraps", "src/facade/in_place.h",
     "copy_step = padded_to_lines(width * pixel_bytes);\n    void* const memory = allocate_for_copy(needs_copy, size_product(copy_step, height));",
     "copy_step = (width * pixel_bytes + 63) / 64 * 64;\n    void* const memory = allocate_for_copy(needs_copy, copy_step * height);", "InPlace*"),
    # The host's processor and memory.
    ("upper register halves left dirty", SPECTRA, COMPLEX_START, COMPLEX_START + "#if ORV_HAVE_INT256\n    __asm__ volatile(\"vpcmpeqd %ymm15, %ymm15, %ymm15\");\n#endif\n", VARIANTS),
    ("a changed control word", SPECTRA, COMPLEX_START, COMPLEX_START + "    _mm_setcsr(_mm_getcsr() | 0x8040);\n", VARIANTS),
    ("an x87 register left in use", SPECTRA, COMPLEX_START, COMPLEX_START + "    __asm__ volatile(\"fld1\");\n", VARIANTS),
    ("the direction flag set", SPECTRA, COMPLEX_START, COMPLEX_START + "    __asm__ volatile(\"std\");\n", VARIANTS),
    ("the host's rounding mode is used", ELIMINATION, "    const FloatControl control;\n    const ptrdiff_t n = widthHeight;\n    const View<const float> from", "    const ptrdiff_t n = widthHeight;\n    const View<const float> from", "Matrices*:Elimination*"),
    ("a leak", PSD, "    orv_release(record->windowed);\n", "", "*Psd*:*PowerSpectrum*"),
    ("memory released twice", PSD, "    orv_release(record->spec);\n    record->spec = nullptr;\n", "    orv_release(record->spec);\n", "*Psd*:*PowerSpectrum*"),
    ("half of the alignment", MEMORY, "(address + kHeader + kAlignment - 1) & ~(kAlignment - 1)", "(address + kHeader + kAlignment - 1) & ~(kAlignment / 2 - 1)", "Buffers*:Frame*"),
    ("temporaries are not released", MEMORY, "    if (aligned != nullptr) orv_memory_functions.release(", "    if (reinterpret_cast<std::uintptr_t>(aligned) % 64 != 0) orv_memory_functions.release(", "*"),
    # The facade.
    ("a stale row in the copy of an in-place call", "src/facade/in_place.h", "const Size bytes = {static_cast<int>(width * pixel_bytes), height};", "const Size bytes = {static_cast<int>(width * pixel_bytes), height - 1};", "InPlace*:*Overlap*:Mirror*:DataMovement*"),
    ("a step below 1 in place", "src/facade/in_place.h", "return step < 1 ? StatusBadStep", "return step < -(1 << 30) ? StatusBadStep", "InPlace*"),
    ("a binding that hosts depend on is mended", "src/facade/image/arithmetic/integer_arithmetic.cpp", "VALUE_SRCDST(AddC_8u_C1I, orv_MulC_8u_C1, ", "VALUE_SRCDST(AddC_8u_C1I, orv_AddC_8u_C1, ", "IntegerArithmetic*"),
    ("an inverted result is mended", "src/facade/signal/vector_arithmetic.cpp", "VECTOR_SRC_SRCDST(Mul_8u_I, inverted(orv_Mul_8u), ", "VECTOR_SRC_SRCDST(Mul_8u_I, orv_Mul_8u, ", "VectorArithmetic*"),
    ("the last halves of a sum are paired otherwise", LANE_SUMS, "sums[j] = rounded(sums[j] + sums[j + width]);", "sums[j] = rounded(sums[j] + sums[2 * width - 1 - j]);", "VectorStatistics*"),
    ("a deviation that is fused", VECTOR_STATISTICS, "return sum + distance * distance;", "return add_exact_product(distance, distance, sum);", "VectorStatistics*"),
    ("lanes that are filled beyond their room", INTEGER_SUMS, "static constexpr int kRoom = 65536;", "static constexpr int kRoom = 131072;", "VectorStatistics*"),
    ("a NaN hides what came before", BEST, "join(simd::load<V>(p + i + k * V::N), lanes[k]);", "join(lanes[k], simd::load<V>(p + i + k * V::N));", "VectorStatistics*"),
    ("any zero for the first one", VECTOR_STATISTICS, "if (value == start || value == 0) {", "if (value == start) {", "VectorStatistics*"),
    ("negative doubles in the order of positive ones", THRESHOLD, "static constexpr Bits kFlip = 0x7FFFFFFFFFFFFFFF;", "static constexpr Bits kFlip = 0;", "VectorThresholds*"),
    # The typed layer.
    ("a step that is not compared with the row", "include/layer/checks.hpp", "height > 0 && step >= row() && step", "height > 0 && step", "Layer*"),
    ("regions beside each other overlap", "include/layer/checks.hpp", "return from_a < static_cast<std::size_t>(a.row()) ||", "return from_a <= static_cast<std::size_t>(a.row()) ||", "Layer*"),
    ("a part that does not know its frame", "include/layer/view.hpp", "v.around_.right = detail::frame_side(around_.right, width_ - w - x);", "v.around_.right = around_.right;", "Layer*"),
    ("bands that begin a row too late", "include/layer/requirements.hpp", "const int top = more.top - (y - first);", "const int top = y == 0 ? more.top : 0;", "Layer*"),
    ("the rest of a row is not converted", "include/layer/conversions.hpp", "(width % 3 == 0 || convert(width - 3, 1))", "width > 0", "Layer*"),
    ("a fraction is a value of an integer", "include/layer/view.hpp", "(std::is_floating_point_v<T> || std::is_integral_v<V>);", "true;", "types"),
    # How images are cut.
    ("a halo one too small", TABLE, 'cut = "halo kernel_size / 2"', 'cut = "halo kernel_size / 2 - 1"', "rules"),
    ("pairs of columns and rows that are cut apart", TABLE, 'cut = "point 2x2"', 'cut = "point"', "rules"),
    ("a point that is none", TABLE, 'cut = "halo 1"\nexample = "source 9, destination 9"\n\n[[operation]]\nname = "dilate"',
     'cut = "point"\nexample = "source 9, destination 9"\n\n[[operation]]\nname = "dilate"', "rules"),
    ("float sums that are joined", TABLE, 'cut = { "*_32[fs]*" = "whole", "*_64f" = "whole", "*" = "join" }', 'cut = "join"', "rules"),
    ("a kernel that is not turned", TABLE, 'frame = ["kernel_width - 1 - anchor_x", "kernel_height - 1 - anchor_y", "anchor_x", "anchor_y"]',
     'frame = ["anchor_x", "anchor_y", "kernel_width - 1 - anchor_x", "kernel_height - 1 - anchor_y"]', "rules"),
    ("a part that begins a row too late", "src/image/resize/resample.cpp", "y.begin - std::ptrdiff_t{dstRoi.top}", "y.begin - std::ptrdiff_t{dstRoi.top} + (dstRoi.top != 0)", "Parts*"),
    ("a part of the destination is taken for the whole", "src/facade/image/resize/resize.cpp", "with_plan(Apply::kInterpolation, source, whole, channels,", "with_plan(Apply::kInterpolation, source, Size{part.width, part.height}, channels,", "Parts*"),
    ("bytes of one channel are halved as colours", "src/image/resize/halving.h", "        if constexpr (Channels == 1) return simd::load<Bytes>(p);\n", "", "Parts*"),
    ("a halo that is cropped twice", "include/orvane_tiles.hpp", "return {first - read.first, count};", "return {first - read.first, read.count};", "Tiles*"),
    ("a halo beyond the image", "include/orvane_tiles.hpp", "above + count + (rest < around.bottom ? rest : around.bottom)", "above + count + (rest < around.bottom ? rest + 1 : around.bottom)", "Tiles*"),
    ("a sum that double does not hold is fused", "src/image/arithmetic/float_arithmetic.cpp", "greater_equal(size, 4.0f)", "greater_equal(size, 2.0f)", "FloatArithmetic*"),
    # Dispatch, symbols, levels, layers.
    ("a level without the system's support", FEATURES, "(id.xcr0 & 6) == 6", "(id.xcr0 & 2) == 2", "Frame*:*Features*:*Level*"),
    ("a level chosen by one feature of two", FEATURES, "if (has(kSsse3 | kMovbe)) return", "if (has(kMovbe)) return", "Frame*:*Features*:*Level*"),
    ("an internal function is exported", MEMORY, "void orv_release(void* aligned)\n{", "__attribute__((visibility(\"default\"))) void orv_release(void* aligned)\n{", "exports"),
    ("a kernel source defines a symbol of its own", BITWISE, "#include \"image/bits/bitwise.h\"\n", "#include \"image/bits/bitwise.h\"\n#if !defined(__AVX2__)\nint orv_stray() { return 0; }\n#endif\n", "kernel_symbols"),
    ("a weak symbol without a level", HISTOGRAM, "#include \"image/statistics/histogram.h\"\n",
     "#include \"image/statistics/histogram.h\"\ntemplate <class T> __attribute__((noinline)) T orv_weak(T x) { return x; }\ntemplate int orv_weak<int>(int);\n", "kernel_symbols"),
    ("an instruction above its level", BITWISE, "struct Not {\n", "inline void above() { __asm__ volatile(\"vpaddb %ymm0, %ymm0, %ymm0\"); }\nstruct Not {\n    Not() { above(); }\n", "build"),
    ("an include that points upward", MEMORY, "#include \"core/memory.h\"\n", "#include \"core/memory.h\"\n#include \"facade/temporary.h\"\n", "layers"),
]
