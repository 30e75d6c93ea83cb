#include "image/resize/resample.h"

#include <cstdint>

#include "core/float_control.h"
#include "image/resize/four_taps.h"
#include "image/resize/halving.h"
#include "image/resize/many_taps.h"
#include "image/moving/pixel_moves.h"
#include "image/resize/smooth_edges.h"
#include "image/resize/square_axis.h"

namespace orv {
namespace resample {
namespace ORV_LEVEL {
namespace {

// --- Arguments ------------------------------------------------------------------------------------

bool is_empty_rectangle(const Rectangle& r) { return r.width < 1 || r.height < 1; }

int without_flags(int interpolation) { return static_cast<int>(static_cast<unsigned>(interpolation) & ~kFlags); }
bool smooths(int interpolation) { return (static_cast<unsigned>(interpolation) & kSmoothEdges) != 0; }

// One of the three flags at most. Two of them have no effect.
bool is_known(int interpolation)
{
    const unsigned flags = static_cast<unsigned>(interpolation) & kFlags;
    if ((flags & (flags - 1)) != 0) return false;
    const int code = without_flags(interpolation);
    return code == kNearest || code == kLinear || (code >= kCubic && code <= kSupersampling) || code == kLanczos;
}

// What both rectangles have in common with the images: sources end, destinations start at their first pixel.
Rectangle clipped(Rectangle r, std::int64_t width, std::int64_t height)
{
    const auto clip = [](int& from, int& length, std::int64_t limit) {
        const std::int64_t begin = from < 0 ? 0 : from;
        std::int64_t end = std::int64_t{from} + length;
        if (end > limit) end = limit;
        from = static_cast<int>(begin);
        length = end > begin ? static_cast<int>(end - begin) : 0;
    };
    clip(r.x, r.width, width);
    clip(r.y, r.height, height);
    return r;
}

// --- Work buffers ---------------------------------------------------------------------------------

struct CubicTables {
    int *columns, *rows;
    float *column_weights, *row_weights;
    CubicTables(Parts& parts, std::int64_t width, std::int64_t height)
        : columns(parts.take<int>(width)), rows(parts.take<int>(height)), column_weights(parts.take<float>(4 * width)),
          row_weights(parts.take<float>(4 * height))
    {
    }
};

// Behind the sums there is room to read whole vectors. One channel has four rows of them, and once more the
// same side by side.
constexpr int kSpareSums = 8;
std::int64_t room_for_sums(std::int64_t width, int channels)
{
    return (width + kSpareSums) * (channels == 1 ? 8 : channels);
}

std::int64_t engine_bytes(Size source, Size destination, int channels, int code)
{
    Parts parts(nullptr);
    if (code == kNearest) {
        parts.take<int>(destination.width);
        parts.take<int>(destination.height);
        parts.take<char>(picker_bytes(destination.width, channels));
    } else if (is_cubic(code)) {
        CubicTables(parts, destination.width, destination.height);
        parts.take<char>(four_taps_bytes(destination.width, source.width + std::int64_t{4}, channels));
    } else {
        Taps(parts, code, source.width, destination.width);
        Taps(parts, code, source.height, destination.height);
        parts.take<double>(room_for_sums(source.width, channels));
        parts.take<float>(std::int64_t{destination.width} * channels + kSpareSums);
        parts.take<float>(Taps::room(code, source.width, destination.width));
        parts.take<float>(Taps::room(code, source.height, destination.height));
    }
    return parts.bytes();
}

// --- Engines --------------------------------------------------------------------------------------

template <class T>
struct Call {
    const T* src;
    int srcStep;
    T* dst;  // where the first position of either axis lies
    int dstStep;
    SquareAxis x, y;
    int code;
    Parts* parts;
};

template <class T, int Channels>
void run_nearest(const Call<T>& call, int columns, int rows)
{
    int* const column = call.parts->template take<int>(columns);
    int* const row = call.parts->template take<int>(rows);
    call.x.nearest(column);
    call.y.nearest(row);
    using Picker = PixelPicker<T, Channels>;
    const int width = call.x.count();
    auto* const blocks = call.parts->template take<typename Picker::Block>(Picker::block_count(width));
    // Columns count from the left edge of the rectangle, beyond which nothing is read.
    for (int x = 0; x < width; ++x) column[x] -= call.x.low;
    const T* const src = call.src + std::ptrdiff_t{call.x.low} * Channels;
    const Picker picker(column, width, call.x.high - call.x.low + 1, blocks);
    for (int y = 0; y < call.y.count(); ++y)
        picker.pick(row_at(src, call.srcStep, row[y]), row_at(call.dst, call.dstStep, y));
}

template <class T, int Channels>
void run_cubic(const Call<T>& call, int columns, int rows)
{
    const CubicTables tables(*call.parts, columns, rows);
    const CubicFamily family = family_of(call.code);
    call.x.cubic(family, tables.columns, tables.column_weights);
    call.y.cubic(family, tables.rows, tables.row_weights);
    const FourTapsJob<T> job = {call.src, call.srcStep, {call.x.low, call.x.high}, {call.y.low, call.y.high},
                                {tables.columns, tables.column_weights}, {tables.rows, tables.row_weights},
                                call.dst, call.dstStep, {call.x.count(), call.y.count()}};
    four_taps<Channels>(job, call.parts->template take<char>(0));
}

template <class T, int Channels>
void run_many_taps(const Call<T>& call, int columns, int rows)
{
    const int source_width = call.x.high - call.x.low + 1, source_height = call.y.high - call.y.low + 1;
    Taps x(*call.parts, call.code, source_width, columns);
    Taps y(*call.parts, call.code, source_height, rows);
    x.fill(call.x, call.code);
    y.fill(call.y, call.code);
    // The image of an odd number of rows ends with one that is no mean of two.
    const int halved_rows = x.halved(call.x.count()) == call.x.count() ? y.halved(call.y.count()) : 0;
    int row = 0;
    for (; row < halved_rows; ++row) {
        const T* const from = row_at(call.src, call.srcStep, y.first[row]) + std::ptrdiff_t{x.first[0]} * Channels;
        halve_row<Channels>(from, row_at(from, call.srcStep, 1), row_at(call.dst, call.dstStep, row), call.x.count());
    }
    if (row == call.y.count()) return;
    double* const sums = call.parts->template take<double>(room_for_sums(source_width, Channels));
    // For bytes in float: a row before it is rounded, and the weights.
    [[maybe_unused]] float* const pixels =
        call.parts->template take<float>(std::int64_t{columns} * Channels + kSpareSums);
    [[maybe_unused]] float* const column_weights =
        call.parts->template take<float>(Taps::room(call.code, source_width, columns));
    [[maybe_unused]] float* const row_weights =
        call.parts->template take<float>(Taps::room(call.code, source_height, rows));
    // What is read of sums but not used must not be anything that is slow to compute with.
    __builtin_memset(sums, 0, static_cast<std::size_t>(room_for_sums(source_width, Channels)) * sizeof(double));
    ManyTaps<T, Channels> taps = {call.src, call.srcStep, x, y, sums, call.x.count()};
    taps.find_extent(call.y.count());
#if ORV_HAVE_INT256
    if constexpr (Channels == 1) {
        const std::ptrdiff_t stride = std::ptrdiff_t{source_width} + kSpareSums;
        for (; row + 4 <= call.y.count(); row += 4) {
            T* dst[4];
            for (int r = 0; r < 4; ++r) {
                taps.sums = sums + r * stride;
                taps.sum_rows(row + r);
                dst[r] = row_at(call.dst, call.dstStep, row + r);
            }
            taps.interleave(sums, stride, sums + 4 * stride);
            taps.sum_columns_of_four(sums + 4 * stride, dst);
        }
        taps.sums = sums;
    } else {
        const ManyTapsOfBytes<Channels> fast = {taps, reinterpret_cast<float*>(sums), pixels, column_weights,
                                                row_weights};
        if (taps.most_columns + taps.most_rows <= fast.kMostTaps) {
            fast.prepare(call.y.count());
            for (; row < call.y.count(); ++row) fast.row(row, row_at(call.dst, call.dstStep, row));
        }
    }
#endif
    for (; row < call.y.count(); ++row) {
        taps.sum_rows(row);
        taps.sum_columns(row_at(call.dst, call.dstStep, row));
    }
}

template <class T, int Channels>
void run(const Call<T>& call)
{
    const int columns = call.x.count(), rows = call.y.count();
    if (call.code == kNearest) {
        // Floats move by their bits.
        if constexpr (sizeof(T) == 4) {
            const Call<std::uint32_t> bits = {reinterpret_cast<const std::uint32_t*>(call.src),
                                              call.srcStep,
                                              reinterpret_cast<std::uint32_t*>(call.dst),
                                              call.dstStep,
                                              call.x,
                                              call.y,
                                              call.code,
                                              call.parts};
            run_nearest<std::uint32_t, Channels>(bits, columns, rows);
        } else {
            run_nearest<T, Channels>(call, columns, rows);
        }
    } else if (is_cubic(call.code)) {
        run_cubic<T, Channels>(call, columns, rows);
    } else {
        run_many_taps<T, Channels>(call, columns, rows);
    }
}

template <class T, int Channels>
Status resample(const T* src, Size srcSize, int srcStep, Rectangle srcRoi, T* dst, int dstStep, Rectangle dstRoi,
                const double& xFactor, const double& yFactor, const double& xShift, const double& yShift,
                int interpolation, void* buffer)
{
    if (any_null(src, dst) || any_null(buffer)) return StatusNullPointer;
    if (is_empty(srcSize) || is_empty_rectangle(srcRoi) || is_empty_rectangle(dstRoi)) return StatusBadSize;
    // Comparisons, too: the host may trap NaNs or take denormal factors for zero.
    const FloatControl control;
    if (!(xFactor > 0) || !(yFactor > 0)) return StatusBadFactor;
    if (!is_known(interpolation)) return StatusBadInterpolation;
    const Rectangle source = clipped(srcRoi, srcSize.width, srcSize.height);
    const Rectangle destination = clipped(dstRoi, INT32_MAX, INT32_MAX);
    if (is_empty_rectangle(source) || is_empty_rectangle(destination)) return StatusBadSize;

    const bool smooth = smooths(interpolation);
    SquareAxis x = {xFactor, xShift, source.x, source.x + source.width - 1, smooth, 0, 0};
    SquareAxis y = {yFactor, yShift, source.y, source.y + source.height - 1, smooth, 0, 0};
    x.find(destination.x, destination.x + (destination.width - 1));
    y.find(destination.y, destination.y + (destination.height - 1));
    if (x.count() == 0 || y.count() == 0) return StatusOk;  // the image lies elsewhere

    Parts parts(buffer);
    T* const first = row_at(dst, dstStep, y.begin - std::ptrdiff_t{dstRoi.top}) +
                     (x.begin - std::ptrdiff_t{dstRoi.left}) * Channels;
    Call<T> call = {src, srcStep, first, dstStep, x, y, without_flags(interpolation), &parts};
    if (!smooth) {
        run<T, Channels>(call);
        return StatusOk;
    }
    T* const saved = parts.take<T>(EdgeBlend<T, Channels>::room(x.count(), y.count()));
    const EdgeBlend<T, Channels> edges(x, y, first, dstStep, saved);
    run<T, Channels>(call);
    edges.blend();
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status ResizeGetBufSize(Rectangle srcRoi, Rectangle dstRoi, int channels, int interpolation, int* size)
{
    if (any_null(size)) return StatusNullPointer;
    if (is_empty_rectangle(srcRoi) || is_empty_rectangle(dstRoi)) return StatusBadSize;
    if (channels != 1 && channels != 3 && channels != 4) return StatusBadChannels;
    if (!is_known(interpolation)) return StatusBadInterpolation;
    const Size source = {srcRoi.width, srcRoi.height}, destination = {dstRoi.width, dstRoi.height};
    std::int64_t bytes = engine_bytes(source, destination, channels, without_flags(interpolation));
    // Pixels have up to four bytes per channel.
    if (smooths(interpolation))
        bytes += in_lines(4 * 2 * channels * (std::int64_t{destination.width} + destination.height));
    if (bytes > INT32_MAX) return StatusBadSize;
    *size = static_cast<int>(bytes);
    return StatusOk;
}

#define RESAMPLE(name, T, channels)                                                                               \
    Status name(const T* src, Size srcSize, int srcStep, Rectangle srcRoi, T* dst, int dstStep, Rectangle dstRoi, \
                const double& xFactor, const double& yFactor, const double& xShift, const double& yShift,         \
                int interpolation, void* buffer)                                                                  \
    {                                                                                                             \
        return resample<T, channels>(src, srcSize, srcStep, srcRoi, dst, dstStep, dstRoi, xFactor, yFactor,       \
                                     xShift, yShift, interpolation, buffer);                                      \
    }

RESAMPLE(ResizeSqrPixel_8u_C1, std::uint8_t, 1)
RESAMPLE(ResizeSqrPixel_8u_C3, std::uint8_t, 3)
RESAMPLE(ResizeSqrPixel_8u_C4, std::uint8_t, 4)
RESAMPLE(ResizeSqrPixel_16u_C1, std::uint16_t, 1)
RESAMPLE(ResizeSqrPixel_32f_C1, float, 1)

// The window of the source that is seen is centred on the source's centre, moved by the pan. Its width alone
// makes the factor, of both axes, and it does so in float: hosts compute with the same numbers.
Status ZoomMapping(Size source, int dstWidth, const float& zoom, int panX, int panY, bool smooth,
                   SquareMapping* mapping)
{
    if (any_null(mapping)) return StatusNullPointer;
    const FloatControl control;
    const float ratio = rounded(rounded(static_cast<float>(dstWidth)) / rounded(static_cast<float>(source.width)));
    const float factor = rounded(ratio * zoom);
    const auto shift = [=](int length, int pan) {
        const double corner =
            rounded(rounded(length * 0.5) - rounded(rounded(length / static_cast<double>(zoom)) * 0.5));
        const double scale = static_cast<double>(factor);
        if (scale != scale) return scale;  // both factors are NaNs, and compilers may swap them
        return rounded(-rounded(corner + pan) * scale);
    };
    mapping->factor = static_cast<double>(factor);
    mapping->xShift = shift(source.width, panX);
    mapping->yShift = shift(source.height, panY);
    mapping->interpolation = factor < 1.f ? static_cast<int>(kSmoothEdges | static_cast<unsigned>(kSupersampling))
                             : smooth     ? static_cast<int>(kSmoothEdges | static_cast<unsigned>(kBSpline))
                                          : kNearest;
    return StatusOk;
}

// Pixel centres are aligned. The nearest pixel lies a little to the left, as plans have it: a reduction by two takes
// the left pixel of each pair.
Status WholeMapping(Size source, Size destination, int interpolation, double* coefficients)
{
    if (any_null(coefficients)) return StatusNullPointer;
    if (is_empty(source) || is_empty(destination)) return StatusBadSize;
    const FloatControl control;
    const double x = rounded(destination.width / static_cast<double>(source.width));
    const double y = rounded(destination.height / static_cast<double>(source.height));
    const double bias = interpolation == kNearest ? 1e-10 : 0;
    const double map[9] = {x, 0, rounded(bias * x), 0, y, rounded(bias * y), 0, 0, 1};
    __builtin_memcpy(coefficients, map, sizeof map);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace resample
}  // namespace orv
