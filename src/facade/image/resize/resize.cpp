// Resizing: by plans, by factor and shift, by zoom and pan.
#include "Parts.h"
#include "core/memory.h"
#include "facade/forms.h"
#include "image/resize/resample.h"
#include "image/resize/resize_cubic.h"
#include "image/resize/resize_linear.h"
#include "image/resize/resize_nearest.h"
#include "image/resize/resize_plan.h"
#include "image/warp/warp.h"

using namespace orv;

namespace {

// The blocks of a call. Released in the reverse order of their allocation.
struct PlanBlocks {
    void* plan = nullptr;
    void* init = nullptr;
    void* work = nullptr;
    ~PlanBlocks()
    {
        orv_release(work);
        orv_release(init);
        orv_release(plan);
    }
};

Status initialise(int interpolation, Size source, Size destination, PlanBlocks& blocks)
{
    switch (interpolation) {
        case kResizeNearest: return orv_ResizeNearestInit(source, destination, blocks.plan);
        case kResizeLinear: return orv_ResizeLinearInit(source, destination, blocks.plan);
        default: return orv_ResizeCubicInit(source, destination, 0.f, 0.5f, blocks.plan, blocks.init);
    }
}

// Plan, work buffer, apply; all of it lives as long as the call. What could not be allocated stays null, which
// the next step refuses.
template <class Apply>
Status with_plan(int interpolation, Size source, Size destination, int channels, Apply apply)
{
    PlanBlocks blocks;
    int plan_size = 0, init_size = 0, work_size = 0;
    if (const Status bad = orv_ResizeGetSize(source, destination, interpolation, 0, &plan_size, &init_size)) return bad;
    blocks.plan = orv_allocate(plan_size);
    if (interpolation == kResizeCubic) blocks.init = orv_allocate(init_size);
    if (const Status bad = initialise(interpolation, source, destination, blocks)) return bad;
    if (const Status bad = orv_ResizeGetBufferSize(blocks.plan, destination, channels, &work_size)) return bad;
    blocks.work = orv_allocate(work_size);
    return apply(blocks.plan, blocks.work);
}

// The apply steps under one argument list, each with its interpolation.
template <class Inner>
struct Nearest {
    static constexpr int kInterpolation = kResizeNearest;
    const Inner& operation;

    template <class T>
    Status operator()(const T* src, int srcStep, T* dst, int dstStep, int x, int y, Size size, void* plan,
                      void* work) const
    {
        return operation(src, srcStep, dst, dstStep, x, y, size, plan, work);
    }
};

template <int Interpolation, class Inner>
struct Interpolated {
    static constexpr int kInterpolation = Interpolation;
    const Inner& operation;

    template <class T>
    Status operator()(const T* src, int srcStep, T* dst, int dstStep, int x, int y, Size size, void* plan,
                      void* work) const
    {
        return operation(src, srcStep, dst, dstStep, x, y, size, kBorderReplicate, nullptr, plan, work);
    }
};

template <class Inner>
Nearest<Inner> nearest(const Inner& operation)
{
    return {operation};
}
template <class Inner>
Interpolated<kResizeLinear, Inner> linear(const Inner& operation)
{
    return {operation};
}
template <class Inner>
Interpolated<kResizeCubic, Inner> cubic(const Inner& operation)
{
    return {operation};
}

// Such a step with its plan, for pixels of so many channels. The factors are never read: the sizes alone make the
// scale.
template <int Channels, class Apply>
struct Planned {
    Apply apply;

    template <class T, class Offset>
    Status run(const T* src, Size from, int srcStep, T* dst, int dstStep, Size to, Offset offset) const
    {
        return with_plan(Apply::kInterpolation, from, to, Channels, [&](void* plan, void* work) {
            int x = 0, y = 0;
            offset(&x, &y);
            return apply(src, srcStep, dst, dstStep, x, y, to, plan, work);
        });
    }
    template <class T>
    Status operator()(const T* src, Size from, int srcStep, T* dst, int dstStep, Size to, const double&,
                      const double&) const
    {
        return run(src, from, srcStep, dst, dstStep, to, [](int*, int*) {});
    }
    template <class T>
    Status operator()(const T* src, Size from, int srcStep, T* dst, int dstStep, Size to, const double&, const double&,
                      const double& centerX, const double& centerY) const
    {
        return run(src, from, srcStep, dst, dstStep, to,
                   [&](int* x, int* y) { orv_ResizeCenterOffset(to, centerX, centerY, x, y); });
    }
};

template <int Channels, class Apply>
Planned<Channels, Apply> planned(const Apply& apply)
{
    return {apply};
}

// A rectangle of a destination by factors and shifts, with the buffer that it takes.
template <class T, class Operation>
Status square(const Operation& operation, int channels, const T* src, Size source, int srcStep, T* dst, int dstStep,
              const Rectangle& to, const double& xFactor, const double& yFactor, const double& xShift,
              const double& yShift, int interpolation)
{
    const Rectangle from = {0, 0, source.width, source.height};
    int size = 0;
    if (const Status bad = orv_ResizeGetBufSize(from, to, channels, interpolation, &size)) return bad;
    void* const buffer = orv_allocate(size);
    if (buffer == nullptr) return StatusNoMemory;
    const Status status = operation(src, source, srcStep, from, dst, dstStep, to, xFactor, yFactor, xShift, yShift,
                                    interpolation, buffer);
    orv_release(buffer);
    return status;
}

template <class T, class Operation>
Status zoomed(const Operation& operation, int channels, const T* src, Size source, int srcStep, T* dst, int dstStep,
              const Rectangle& to, int wholeWidth, const float& zoom, int panX, int panY, bool smooth)
{
    SquareMapping mapping;
    orv_ZoomMapping(source, wholeWidth, zoom, panX, panY, smooth, &mapping);
    return square(operation, channels, src, source, srcStep, dst, dstStep, to, mapping.factor, mapping.factor,
                  mapping.xShift, mapping.yShift, mapping.interpolation);
}

// Zoom and pan. No status comes out: these methods are always true, which hosts rely on. `zoom` stays in memory: on the
// x87 even a copy of a float may trap in a host that has unmasked exceptions.
template <class T, class Operation>
void zoom_and_pan(const Operation& operation, const T* src, int srcStep, Size source, T* dst, int dstStep,
                  Size destination, int channels, const float& zoom, int panX, int panY, bool smooth)
{
    const Rectangle to = {0, 0, destination.width, destination.height};
    zoomed(operation, channels, src, source, srcStep, dst, dstStep, to, destination.width, zoom, panX, panY, smooth);
}

}  // namespace

SRC_SIZE_DST_SIZE(ResizeNN_16u_C1R, planned<1>(nearest(orv_ResizeNearest_16u_C1)), unsigned short, double, double)
SRC_SIZE_DST_SIZE(ResizeNN_8u_C3R, planned<3>(nearest(orv_ResizeNearest_8u_C3)), unsigned char, double, double)
SRC_SIZE_DST_SIZE(ResizeNN_8u_C4R, planned<4>(nearest(orv_ResizeNearest_8u_C4)), unsigned char, double, double)

SRC_SIZE_DST_SIZE(ResizeCubic_16u_C1R, planned<1>(cubic(orv_ResizeCubic_16u_C1)), unsigned short, double, double)
SRC_SIZE_DST_SIZE(ResizeCubic_8u_C3R, planned<3>(cubic(orv_ResizeCubic_8u_C3)), unsigned char, double, double)
SRC_SIZE_DST_SIZE(ResizeCubic_8u_C4R, planned<4>(cubic(orv_ResizeCubic_8u_C4)), unsigned char, double, double)

// Intended: linear, although its name says nearest neighbour. Hosts depend on what it computes.
SRC_SIZE_DST_SIZE(ResizeCenterNN_16u_C1R, planned<1>(linear(orv_ResizeLinear_16u_C1)), unsigned short, double, double,
                  double, double)
SRC_SIZE_DST_SIZE(ResizeCenterNN_8u_C3R, planned<3>(nearest(orv_ResizeNearest_8u_C3)), unsigned char, double, double,
                  double, double)
SRC_SIZE_DST_SIZE(ResizeCenterNN_8u_C4R, planned<4>(nearest(orv_ResizeNearest_8u_C4)), unsigned char, double, double,
                  double, double)

SRC_SIZE_DST_SIZE(ResizeCenterCubic_16u_C1R, planned<1>(cubic(orv_ResizeCubic_16u_C1)), unsigned short, double, double,
                  double, double)
SRC_SIZE_DST_SIZE(ResizeCenterCubic_8u_C3R, planned<3>(cubic(orv_ResizeCubic_8u_C3)), unsigned char, double, double,
                  double, double)
SRC_SIZE_DST_SIZE(ResizeCenterCubic_8u_C4R, planned<4>(cubic(orv_ResizeCubic_8u_C4)), unsigned char, double, double,
                  double, double)


bool ImageProcessingWrapper::ResizeGetBufSize(int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight, int dstRoiX,
                                              int dstRoiY, int dstRoiWidth, int dstRoiHeight, int channels,
                                              int interpolation, int* size)
{
    return orv_ResizeGetBufSize({srcRoiX, srcRoiY, srcRoiWidth, srcRoiHeight},
                                {dstRoiX, dstRoiY, dstRoiWidth, dstRoiHeight}, channels, interpolation,
                                size) == StatusOk;
}

SRC_RECTANGLE_DST_RECTANGLE(ResizeSqrPixel_8u_C1R, orv_ResizeSqrPixel_8u_C1, unsigned char, double, double, double,
                            double, int, unsigned char*)
SRC_RECTANGLE_DST_RECTANGLE(ResizeSqrPixel_16u_C1R, orv_ResizeSqrPixel_16u_C1, unsigned short, double, double, double,
                            double, int, unsigned char*)

#define ALWAYS_TRUE_ZOOM(name, operation, T, channels)                                                              \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, int srcWidth, int srcHeight, T* dst, int dstStep,  \
                                      int dstWidth, int dstHeight, float zoom, int panX, int panY, bool smooth)     \
    {                                                                                                               \
        zoom_and_pan(operation, src, srcStep, {srcWidth, srcHeight}, dst, dstStep, {dstWidth, dstHeight}, channels, \
                     zoom, panX, panY, smooth);                                                                     \
        return true;                                                                                                \
    }

// Intended: true whatever happens.
ALWAYS_TRUE_ZOOM(Resize_8u_C3, orv_ResizeSqrPixel_8u_C3, unsigned char, 3)
ALWAYS_TRUE_ZOOM(Resize_8u_C4, orv_ResizeSqrPixel_8u_C4, unsigned char, 4)
ALWAYS_TRUE_ZOOM(Resize_16u_C1, orv_ResizeSqrPixel_16u_C1, unsigned short, 1)
ALWAYS_TRUE_ZOOM(Resize_32f_C1, orv_ResizeSqrPixel_32f_C1, float, 1)

#undef ALWAYS_TRUE_ZOOM

void ImageProcessingWrapper::CalculateShift(int srcWidth, int srcHeight, int dstWidth, float zoom, int panX, int panY,
                                            double& xShift, double& yShift)
{
    SquareMapping mapping;
    orv_ZoomMapping({srcWidth, srcHeight}, dstWidth, zoom, panX, panY, false, &mapping);
    xShift = mapping.xShift;
    yShift = mapping.yShift;
}

#if ORV_C_FUNCTIONS
// --- Parts ----------------------------------------------------------------------------------------

namespace {

// What a type is resized by; null where it has none.
template <class T>
struct Resizers {
    int channels;
    const Operation<ResizeApply<T>>* nearest;
    const Operation<ResizeApplyBorder<T>>* cubic;
    const Operation<Resample<T>>& square;
    const Operation<Projecting<T>>* warp;  // where there is one, square pixels are for areas alone
};

constexpr Resizers<unsigned char> kBytes = {1, nullptr, nullptr, orv_ResizeSqrPixel_8u_C1, nullptr};
constexpr Resizers<unsigned char> kColours = {3, &orv_ResizeNearest_8u_C3, &orv_ResizeCubic_8u_C3,
                                              orv_ResizeSqrPixel_8u_C3, &orv_WarpPerspective_8u_C3};
constexpr Resizers<unsigned char> kColoursAndAlpha = {4, &orv_ResizeNearest_8u_C4, &orv_ResizeCubic_8u_C4,
                                                      orv_ResizeSqrPixel_8u_C4, &orv_WarpPerspective_8u_C4};
constexpr Resizers<unsigned short> kWords = {1, &orv_ResizeNearest_16u_C1, nullptr, orv_ResizeSqrPixel_16u_C1, nullptr};
constexpr Resizers<float> kFloats = {1, nullptr, nullptr, orv_ResizeSqrPixel_32f_C1, &orv_WarpPerspective_32f_C1};

template <class T>
struct ResizeOfPart {
    const T* src;
    Size source;
    int srcStep;
    T* dst;
    int dstStep;
    Rectangle part;
    Size whole;
    int interpolation;

    template <class Apply>
    Status planned(const Apply& apply, int channels) const
    {
        return with_plan(Apply::kInterpolation, source, whole, channels, [&](void* plan, void* work) {
            return apply(src, srcStep, dst, dstStep, part.x, part.y, Size{part.width, part.height}, plan, work);
        });
    }
    Status squared(const Resizers<T>& by) const
    {
        double map[9];
        if (const Status bad = orv_WholeMapping(source, whole, interpolation, map)) return bad;
        return square(by.square, by.channels, src, source, srcStep, dst, dstStep, part, map[0], map[4], map[2], map[5],
                      interpolation);
    }
    Status averaged(const Resizers<T>& by) const
    {
        static const float unchanged = 1;
        return zoomed(by.square, by.channels, src, source, srcStep, dst, dstStep, part, whole.width, unchanged, 0, 0,
                      true);
    }
    Status warped(const Resizers<T>& by) const
    {
        double map[9];
        if (const Status bad = orv_WholeMapping(source, whole, interpolation, map)) return bad;
        return (*by.warp)(src, source, srcStep, Rectangle{0, 0, source.width, source.height}, dst, dstStep, part, map,
                          interpolation);
    }
    Status run(const Resizers<T>& by) const
    {
        const bool cubic = interpolation == kCubic || interpolation == kCatmullRom;
        if (interpolation == kNearest && by.nearest != nullptr) return planned(nearest(*by.nearest), by.channels);
        if (cubic && by.cubic != nullptr && source.width >= 4 && source.height >= 4)
            return planned(::cubic(*by.cubic), by.channels);
        if (by.warp == nullptr) return squared(by);
        return interpolation == kSupersampling ? averaged(by) : warped(by);
    }
};

// A part of a whole; 0 stands for where the part ends. False where the part ends beyond it.
bool ends_at(int& whole, int from, int length)
{
    if (from < 0 || length < 1 || length > 0x7fffffff - from) return false;
    if (whole == 0) whole = from + length;
    return from + length <= whole;
}

}  // namespace

#define PARTS(Type, by, T)                                                                                            \
    bool orvaneResizePart_##Type(const T* src, int srcWidth, int srcHeight, int srcStep, T* dst, int dstStep,         \
                                 int dstX, int dstY, int dstWidth, int dstHeight, int wholeWidth, int wholeHeight,    \
                                 int interpolation)                                                                   \
    {                                                                                                                 \
        if (!ends_at(wholeWidth, dstX, dstWidth) || !ends_at(wholeHeight, dstY, dstHeight)) return false;             \
        const Rectangle part = {dstX, dstY, dstWidth, dstHeight, dstX, dstY};                                         \
        const ResizeOfPart<T> resize = {src, {srcWidth, srcHeight}, srcStep, dst, dstStep, part,                      \
                                        {wholeWidth, wholeHeight}, interpolation};                                    \
        return resize.run(by) == StatusOk;                                                                            \
    }

#define ZOOM_PART(Type, by, T)                                                                                        \
    bool orvaneZoomPart_##Type(const T* src, int srcWidth, int srcHeight, int srcStep, T* dst, int dstStep, int dstX, \
                               int dstY, int dstWidth, int dstHeight, int wholeWidth, float zoom, int panX, int panY, \
                               bool smooth)                                                                           \
    {                                                                                                                 \
        int wholeHeight = 0;                                                                                          \
        if (!ends_at(wholeWidth, dstX, dstWidth) || !ends_at(wholeHeight, dstY, dstHeight)) return false;             \
        const Rectangle part = {dstX, dstY, dstWidth, dstHeight, dstX, dstY};                                         \
        return zoomed(by.square, by.channels, src, Size{srcWidth, srcHeight}, srcStep, dst, dstStep, part,            \
                      wholeWidth, zoom, panX, panY, smooth) == StatusOk;                                              \
    }

PARTS(8u_C1, kBytes, unsigned char)
PARTS(8u_C3, kColours, unsigned char)
PARTS(8u_C4, kColoursAndAlpha, unsigned char)
PARTS(16u_C1, kWords, unsigned short)
PARTS(32f_C1, kFloats, float)

ZOOM_PART(8u_C3, kColours, unsigned char)
ZOOM_PART(8u_C4, kColoursAndAlpha, unsigned char)
ZOOM_PART(16u_C1, kWords, unsigned short)
ZOOM_PART(32f_C1, kFloats, float)

#undef PARTS
#undef ZOOM_PART
#endif
