#include "image/warp/warp.h"

#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "image/warp/many.h"
#include "image/warp/positions.h"
#include "image/warp/projection.h"
#include "image/warp/source.h"
#include "image/warp/turn.h"

namespace orv {
namespace warp {
namespace ORV_LEVEL {
namespace {

// --- Arguments ------------------------------------------------------------------------------------

bool is_known(int interpolation)
{
    return interpolation == kNearest || interpolation == kLinear || is_cubic(interpolation) ||
           interpolation == kLanczos;
}

// A range of the destination, which may lie anywhere within 33 bits.
struct Range {
    std::int64_t begin, end;
    bool is_empty() const { return end <= begin; }
    std::int64_t size() const { return end - begin; }
};

// Of the source, the part in the image counts, of the destination that without negative coordinates.
bool clip_to(Rectangle& r, Size image)
{
    const auto clip = [](int& from, int& length, int limit) {
        const std::int64_t begin = from < 0 ? 0 : from;
        const std::int64_t end = std::int64_t{from} + length < limit ? std::int64_t{from} + length : limit;
        from = static_cast<int>(begin);
        length = end > begin ? static_cast<int>(end - begin) : 0;
    };
    clip(r.x, r.width, image.width);
    clip(r.y, r.height, image.height);
    return r.width > 0 && r.height > 0;
}
Range positive(int from, int length) { return {from < 0 ? 0 : from, std::int64_t{from} + length}; }
bool is_empty_rectangle(const Rectangle& r) { return r.width < 1 || r.height < 1; }

template <class T, int Channels>
struct Job {
    Source<T, Channels> source;
    T* dst;
    int dstStep;
    Range x, y;
    int interpolation;
    int left = 0, top = 0;  // the pixel of the destination that `dst` points to

    // Sizes: what counts of the rectangles is kept.
    Status check(Size srcSize, Rectangle srcRoi, Rectangle dstRoi)
    {
        if (is_empty(srcSize) || is_empty_rectangle(srcRoi) || is_empty_rectangle(dstRoi)) return StatusBadSize;
        if (!clip_to(srcRoi, srcSize)) return StatusBadSize;
        x = positive(dstRoi.x, dstRoi.width);
        y = positive(dstRoi.y, dstRoi.height);
        if (x.is_empty() || y.is_empty()) return StatusBadSize;
        left = dstRoi.left;
        top = dstRoi.top;
        source.left = srcRoi.x;
        source.top = srcRoi.y;
        source.right = srcRoi.x + (srcRoi.width - 1);
        source.bottom = srcRoi.y + (srcRoi.height - 1);
        return StatusOk;
    }
    Rectangle counting() const
    {
        return {source.left, source.top, source.right - source.left + 1, source.bottom - source.top + 1};
    }
};

// --- Loops ----------------------------------------------------------------------------------------

template <class T, int Channels, class Interpolation>
__attribute__((noinline)) void write(const Source<T, Channels>& source, const Interpolation& interpolation,
                                     const Chunk& chunk, T* dst)
{
    const auto one_by_one = [&](int begin, int end) {
        for (int k = begin; k < end; ++k) interpolation.one(source, chunk.x[k], chunk.y[k], dst + k * Channels);
    };
    for_each_run(chunk.inner, [&](int begin, int end) {
        if (end - begin >= kLeastRun)
            many(interpolation, source, chunk, begin, end, dst);
        else
            one_by_one(begin, end);
    });
    for_each_run(chunk.shown & ~chunk.inner, one_by_one);
}

// Blocks of the destination, so that the rows of the source that a steep map walks through stay in the cache.
constexpr int kBlockColumns = 256, kBlockRows = 32;

template <class Map, class Interpolation>
constexpr bool picks = false;
template <class T, int Channels>
constexpr bool picks<Maps, Nearest<T, Channels>> = true;

template <class T, int Channels, class Map, class Interpolation>
void fill_block(const Job<T, Channels>& job, const Map& map, const Interpolation& interpolation, const Wanted& wanted,
                Range columns, Range rows)
{
    const MapPicker<T, Channels> picker(job.source);
    for (std::int64_t y = rows.begin; y < rows.end; ++y) {
        const ChunkFinder<Interpolation::kPoints, Map> finder(map, wanted, y);
        for (std::int64_t x = columns.begin; x < columns.end; x += Chunk::kMost) {
            const std::int64_t left = columns.end - x;
            T* const dst = pixel_at(job.dst, job.dstStep, x - job.left, y - job.top, Source<T, Channels>::kPixelBytes);
            if constexpr (picks<Map, Interpolation>) {
                const auto row = map.row(static_cast<double>(y));
                if (left >= Chunk::kMost && picker.pick(row.x + x, row.y + x, dst)) continue;
            }
            Chunk chunk;
            finder.find(x, left < Chunk::kMost ? static_cast<int>(left) : Chunk::kMost, chunk);
            if (chunk.shown != 0) write(job.source, interpolation, chunk, dst);
        }
    }
}

template <class T, int Channels, class Map, class Interpolation>
void fill_blocks(const Job<T, Channels>& job, const Map& map, const Interpolation& interpolation, const Wanted& wanted,
                 Range columns, Range rows)
{
    for (std::int64_t y = rows.begin; y < rows.end; y += kBlockRows) {
        const Range some_rows = {y, y + kBlockRows < rows.end ? y + kBlockRows : rows.end};
        for (std::int64_t x = columns.begin; x < columns.end; x += kBlockColumns) {
            const Range some_columns = {x, x + kBlockColumns < columns.end ? x + kBlockColumns : columns.end};
            fill_block(job, map, interpolation, wanted, some_columns, some_rows);
        }
    }
}

// Destinations may be huge and show little: halves of them that show nothing are not looked at.
template <class T, int Channels, class Map, class Interpolation>
void fill_area(const Job<T, Channels>& job, const Map& map, const Interpolation& interpolation, const Wanted& wanted,
               Range columns, Range rows)
{
    constexpr std::int64_t large = 4096;
    if (columns.size() <= large && rows.size() <= large) {
        return fill_blocks(job, map, interpolation, wanted, columns, rows);
    }
    const Area area = {{static_cast<double>(columns.begin), static_cast<double>(columns.end - 1)},
                       {static_cast<double>(rows.begin), static_cast<double>(rows.end - 1)}};
    if (map.shows_nothing(wanted.shown, area)) return;
    const bool wide = columns.size() > rows.size();
    Range& halved = wide ? columns : rows;
    const Range whole = halved;
    halved.end = whole.begin + whole.size() / 2;
    fill_area(job, map, interpolation, wanted, columns, rows);
    halved = {halved.end, whole.end};
    fill_area(job, map, interpolation, wanted, columns, rows);
}

template <class T, int Channels, class Map, class Interpolation>
void fill_with(const Job<T, Channels>& job, const Map& map, const Interpolation& interpolation)
{
    const Wanted wanted = {job.source.shown(), interpolation.inner(job.source)};
    fill_area(job, map, interpolation, wanted, job.x, job.y);
}

template <class T, int Channels, class Map>
void fill(const Job<T, Channels>& job, const Map& map)
{
    if (job.interpolation == kNearest)
        fill_with(job, map, Nearest<T, Channels>{});
    else if (job.interpolation == kLinear)
        fill_with(job, map, Linear<T, Channels>{});
    else if (job.interpolation == kLanczos)
        fill_with(job, map, Lanczos<T, Channels>{});
    else
        fill_with(job, map, Cubic<T, Channels>{family_of(job.interpolation)});
}

// --- Rotation -------------------------------------------------------------------------------------

struct Bounds {
    double left, top, right, bottom;
    void include(double x, double y, bool first)
    {
        if (first || x < left) left = x;
        if (first || y < top) top = y;
        if (first || x > right) right = x;
        if (first || y > bottom) bottom = y;
    }
    void store(double* bound) const
    {
        put(bound, left);
        put(bound + 1, top);
        put(bound + 2, right);
        put(bound + 3, bottom);
    }
};

Bounds rotated(Rectangle r, const Turn& turn, double xShift, double yShift)
{
    Bounds bounds = {};
    for (int corner = 0; corner < 4; ++corner) {
        const double x = (corner & 1) != 0 ? 1.0 * r.x + r.width : r.x,
                     y = (corner & 2) != 0 ? 1.0 * r.y + r.height : r.y;
        bounds.include(rounded(turn.x(x, y) + xShift), rounded(turn.y(x, y) + yShift), corner == 0);
    }
    return bounds;
}

ORV_INLINE bool all_finite(const double* a, const double* b, const double* c)
{
    return is_finite_at(a) && is_finite_at(b) && is_finite_at(c);
}

template <class T, int Channels>
Status rotate(const T* src, Size srcSize, int srcStep, Rectangle srcRoi, T* dst, int dstStep, Rectangle dstRoi,
              const double* angle, const double* xShift, const double* yShift, int interpolation)
{
    if (any_null(src, dst)) return StatusNullPointer;
    Job<T, Channels> job = {{src, srcStep, 0, 0, 0, 0}, dst, dstStep, {}, {}, interpolation};
    if (const Status bad = job.check(srcSize, srcRoi, dstRoi)) return bad;
    if (!all_finite(angle, xShift, yShift)) return StatusNotFinite;
    if (!is_known(interpolation)) return StatusBadInterpolation;
    const FloatControl control;
    fill(job, Rotation{Turn(*angle), *xShift, *yShift});
    return StatusOk;
}

// Of finite numbers.
bool shift_that_keeps(double x, double y, const Turn& turn, double* xShift, double* yShift)
{
    ORV_ASSERT(FloatControl::holds());
    *xShift = rounded(x - turn.x(x, y));
    *yShift = rounded(y - turn.y(x, y));
    return is_finite_at(xShift) && is_finite_at(yShift);
}

template <class T, int Channels>
Status rotate_about(const T* src, Size srcSize, int srcStep, T* dst, int dstStep, Size dstSize, const double* angle,
                    const double* centerX, const double* centerY, int interpolation)
{
    if (any_null(src, dst)) return StatusNullPointer;
    Job<T, Channels> job = {{src, srcStep, 0, 0, 0, 0}, dst, dstStep, {}, {}, interpolation};
    if (const Status bad =
            job.check(srcSize, {0, 0, srcSize.width, srcSize.height}, {0, 0, dstSize.width, dstSize.height}))
        return bad;
    if (!all_finite(angle, centerX, centerY)) return StatusNotFinite;
    if (!is_known(interpolation)) return StatusBadInterpolation;
    const FloatControl control;
    const Turn turn(*angle);
    double xShift, yShift;
    if (!shift_that_keeps(*centerX, *centerY, turn, &xShift, &yShift)) return StatusNotFinite;
    fill(job, Rotation{turn, xShift, yShift});
    return StatusOk;
}

// --- Perspective ----------------------------------------------------------------------------------

bool all_finite(const double* coefficients)
{
    for (int i = 0; i < 9; ++i) {
        if (!is_finite_at(coefficients + i)) return false;
    }
    return true;
}

template <class T, int Channels>
Status project(const T* src, Size srcSize, int srcStep, Rectangle srcRoi, T* dst, int dstStep, Rectangle dstRoi,
               const double* coefficients, int interpolation)
{
    if (any_null(src, dst) || any_null(coefficients)) return StatusNullPointer;
    Job<T, Channels> job = {{src, srcStep, 0, 0, 0, 0}, dst, dstStep, {}, {}, interpolation};
    if (const Status bad = job.check(srcSize, srcRoi, dstRoi)) return bad;
    if (!all_finite(coefficients)) return StatusNotFinite;
    const FloatControl control;
    const ScaledMatrix matrix(coefficients);
    if (matrix.is_zero()) return StatusSingularMatrix;
    const Inverse inverse(matrix.h, job.counting());
    if (!inverse.exists) return StatusSingularMatrix;
    if (!is_known(interpolation)) return StatusBadInterpolation;
    if (inverse.affine)
        fill(job, Affinity{inverse.m});
    else
        fill(job, Projection{inverse.m});
    return StatusOk;
}

// --- Maps -----------------------------------------------------------------------------------------

template <class T, int Channels>
Status remap(const T* src, Size srcSize, int srcStep, Rectangle srcRoi, const float* xMap, int xMapStep,
             const float* yMap, int yMapStep, T* dst, int dstStep, Size dstSize, int interpolation)
{
    if (any_null(src, dst) || any_null(xMap, yMap)) return StatusNullPointer;
    Job<T, Channels> job = {{src, srcStep, 0, 0, 0, 0}, dst, dstStep, {}, {}, interpolation};
    if (const Status bad = job.check(srcSize, srcRoi, {0, 0, dstSize.width, dstSize.height})) return bad;
    if (!is_known(interpolation)) return StatusBadInterpolation;
    const FloatControl control;
    fill(job, Maps{xMap, yMap, xMapStep, yMapStep});
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status GetRotateBound(Rectangle srcRoi, const double* angle, const double* xShift, const double* yShift, double* bound)
{
    if (any_null(bound)) return StatusNullPointer;
    if (is_empty_rectangle(srcRoi)) return StatusBadSize;
    if (!all_finite(angle, xShift, yShift)) return StatusNotFinite;
    const FloatControl control;
    rotated(srcRoi, Turn(*angle), *xShift, *yShift).store(bound);
    return StatusOk;
}

Status GetRotateShift(const double* centerX, const double* centerY, const double* angle, double* xShift, double* yShift)
{
    if (any_null(xShift, yShift)) return StatusNullPointer;
    if (!all_finite(angle, centerX, centerY)) return StatusNotFinite;
    const FloatControl control;
    double x, y;
    if (!shift_that_keeps(*centerX, *centerY, Turn(*angle), &x, &y)) return StatusNotFinite;
    put(xShift, x);
    put(yShift, y);
    return StatusOk;
}

Status GetPerspectiveBound(Rectangle srcRoi, const double* coefficients, double* bound)
{
    if (any_null(coefficients) || any_null(bound)) return StatusNullPointer;
    if (is_empty_rectangle(srcRoi)) return StatusBadSize;
    if (!all_finite(coefficients)) return StatusNotFinite;
    const FloatControl control;
    const ScaledMatrix matrix(coefficients);
    const double* const h = matrix.h;
    Bounds bounds = {};
    int in_front = 0, behind = 0;
    for (int corner = 0; corner < 4; ++corner) {
        const double x = (corner & 1) != 0 ? 1.0 * srcRoi.x + srcRoi.width : srcRoi.x;
        const double y = (corner & 2) != 0 ? 1.0 * srcRoi.y + srcRoi.height : srcRoi.y;
        const double w = (h[6] * x + h[7] * y) + h[8];
        in_front += w > 0 ? 1 : 0;
        behind += w < 0 ? 1 : 0;
        if (w == 0) return StatusUnbounded;
        const double column = rounded(((h[0] * x + h[1] * y) + h[2]) / w),
                     row = rounded(((h[3] * x + h[4] * y) + h[5]) / w);
        if (!is_finite_value(column) || !is_finite_value(row)) return StatusUnbounded;
        bounds.include(column, row, corner == 0);
    }
    if (in_front != 4 && behind != 4) return StatusUnbounded;
    bounds.store(bound);
    return StatusOk;
}

#define ROTATE(name, T, channels)                                                                                 \
    Status name(const T* src, Size srcSize, int srcStep, Rectangle srcRoi, T* dst, int dstStep, Rectangle dstRoi, \
                const double* angle, const double* xShift, const double* yShift, int interpolation)               \
    {                                                                                                             \
        return rotate<T, channels>(src, srcSize, srcStep, srcRoi, dst, dstStep, dstRoi, angle, xShift, yShift,    \
                                   interpolation);                                                                \
    }

ROTATE(Rotate_8u_C1, unsigned char, 1)
ROTATE(Rotate_8u_C3, unsigned char, 3)
ROTATE(Rotate_8u_C4, unsigned char, 4)
ROTATE(Rotate_16u_C1, unsigned short, 1)
ROTATE(Rotate_32f_C1, float, 1)
#undef ROTATE

#define ROTATE_ABOUT(name, T, channels)                                                                          \
    Status name(const T* src, Size srcSize, int srcStep, T* dst, int dstStep, Size dstSize, const double* angle, \
                const double* centerX, const double* centerY, int interpolation)                                 \
    {                                                                                                            \
        return rotate_about<T, channels>(src, srcSize, srcStep, dst, dstStep, dstSize, angle, centerX, centerY,  \
                                         interpolation);                                                         \
    }

ROTATE_ABOUT(RotateCenter_8u_C3, unsigned char, 3)
ROTATE_ABOUT(RotateCenter_8u_C4, unsigned char, 4)
ROTATE_ABOUT(RotateCenter_16u_C1, unsigned short, 1)
ROTATE_ABOUT(RotateCenter_32f_C1, float, 1)
#undef ROTATE_ABOUT

#define PROJECT(name, T, channels)                                                                                     \
    Status name(const T* src, Size srcSize, int srcStep, Rectangle srcRoi, T* dst, int dstStep, Rectangle dstRoi,      \
                const double* coefficients, int interpolation)                                                         \
    {                                                                                                                  \
        return project<T, channels>(src, srcSize, srcStep, srcRoi, dst, dstStep, dstRoi, coefficients, interpolation); \
    }

PROJECT(WarpPerspective_8u_C1, unsigned char, 1)
PROJECT(WarpPerspective_8u_C3, unsigned char, 3)
PROJECT(WarpPerspective_8u_C4, unsigned char, 4)
PROJECT(WarpPerspective_16u_C1, unsigned short, 1)
PROJECT(WarpPerspective_32f_C1, float, 1)
#undef PROJECT

#define REMAP(name, T, channels)                                                                               \
    Status name(const T* src, Size srcSize, int srcStep, Rectangle srcRoi, const float* xMap, int xMapStep,    \
                const float* yMap, int yMapStep, T* dst, int dstStep, Size dstSize, int interpolation)         \
    {                                                                                                          \
        return remap<T, channels>(src, srcSize, srcStep, srcRoi, xMap, xMapStep, yMap, yMapStep, dst, dstStep, \
                                  dstSize, interpolation);                                                     \
    }

REMAP(Remap_8u_C1, unsigned char, 1)
REMAP(Remap_8u_C3, unsigned char, 3)
REMAP(Remap_8u_C4, unsigned char, 4)
REMAP(Remap_16u_C1, unsigned short, 1)
REMAP(Remap_32f_C1, float, 1)
#undef REMAP

}  // namespace ORV_LEVEL
}  // namespace warp
}  // namespace orv
