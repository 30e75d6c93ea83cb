#include "spectral/fft.h"

#include <cstdint>

#include "core/checks.h"
#include "spectral/fft_tables.h"
#include "spectral/plane_fft.h"
#include "spectral/power_spectrum.h"
#include "spectral/real_fft.h"
#include "spectral/small_fft.h"

namespace orv {
namespace fft {
namespace ORV_LEVEL {
namespace {

void forward_any(const RealPlan& plan, const float* src, float* dst, float* work)
{
    if (plan.order <= kSmallOrder) small_forward(plan.order, src, dst);
    else if (plan.order == 6) forward_64(plan, src, dst);
    else forward_real(plan, src, dst, work);
}

double* root_tables(int order, unsigned char* initBuffer)
{
    return order > kTableFreeOrder ? at_boundary<double>(initBuffer) : nullptr;
}

}  // namespace

Status FftInit(FftSpec** spec, int order, int flag, int hint, unsigned char* memory, unsigned char* initBuffer)
{
    const bool null = spec == nullptr || memory == nullptr || (order > kTableFreeOrder && initBuffer == nullptr);
    if (const Status bad = check_fft(order, null, flag)) return bad;
    const FloatControl control;
    FftSpec* const record = at_boundary<FftSpec>(memory);
    Parts parts(reinterpret_cast<unsigned char*>(record) + padded(sizeof(FftSpec)));
    const Roots roots(order, root_tables(order, initBuffer));
    record->tag = kFftTag;
    record->hint = hint;
    set_scaling(record, order, flag);
    record->plan = make_real_plan(order, roots, parts);
    *spec = record;
    return StatusOk;
}

Status Fft2Init(Fft2Spec** spec, int orderX, int orderY, int flag, int hint, unsigned char* memory,
                unsigned char* initBuffer)
{
    const int longer = orderX > orderY ? orderX : orderY;
    const bool null = spec == nullptr || memory == nullptr || (longer > kTableFreeOrder && initBuffer == nullptr);
    if (const Status bad = check_fft2(orderX, orderY, null, flag)) return bad;
    const FloatControl control;
    Fft2Spec* const record = at_boundary<Fft2Spec>(memory);
    Parts parts(reinterpret_cast<unsigned char*>(record) + padded(sizeof(Fft2Spec)));
    const Roots roots(longer, root_tables(longer, initBuffer));
    record->tag = kFft2Tag;
    record->hint = hint;
    set_scaling(record, orderX + orderY, flag);
    record->rows = make_row_plan(orderX, roots, parts);
    record->columns = make_line_plan(orderY, roots, parts);
    *spec = record;
    return StatusOk;
}

Status FftForward_32f(const float* src, float* dst, const FftSpec* spec, unsigned char* work)
{
    if (any_null(src, dst, spec)) return StatusNullPointer;
    if (spec->tag != kFftTag) return StatusBadFftRecord;
    const RealPlan& plan = spec->plan;
    if (plan.order > kSmallOrder && work == nullptr) return StatusNullPointer;
    const FloatControl control;
    forward_any(plan, src, dst, at_boundary<float>(work));
    if (spec->scales_forward) {
        const One scale = {spec->scale};
        const std::ptrdiff_t count = plan.order == 0 ? 2 : (std::ptrdiff_t{1} << plan.order) + 2;
        for (std::ptrdiff_t i = 0; i < count; ++i) simd::store(dst + i, simd::load<One>(dst + i) * scale);
    }
    return StatusOk;
}

Status ExpandCcs_32fc(const Complex32f* src, Complex32f* dst, int length)
{
    if (any_null(src, dst)) return StatusNullPointer;
    if (length < 1) return StatusBadSize;
    // As integers, so that no number is changed on the way, with the sign bit of the imaginary part.
    struct Bits {
        std::uint32_t re, im;
    };
    const Bits* const from = reinterpret_cast<const Bits*>(src);
    Bits* const to = reinterpret_cast<Bits*>(dst);
    put(to, get(from));
    for (std::ptrdiff_t k = 1; 2 * k < length; ++k) {
        Bits value = get(from + k);
        put(to + k, value);
        value.im ^= 0x80000000u;
        put(to + length - k, value);
    }
    if (length % 2 == 0) put(to + length / 2, get(from + length / 2));
    return StatusOk;
}

Status Fft2Forward_32f(const float* src, int srcStep, float* dst, int dstStep, const Fft2Spec* spec,
                       unsigned char* work)
{
    if (any_null(src, dst, spec, work)) return StatusNullPointer;
    if (any_below_one(srcStep, dstStep)) return StatusBadStep;
    if (spec->tag != kFft2Tag) return StatusBadFftRecord;
    const FloatControl control;
    Plane(*spec, work).forward(src, srcStep, dst, dstStep, spec->scales_forward ? spec->scale : 1.0f);
    return StatusOk;
}

Status Fft2Inverse_32f(const float* src, int srcStep, float* dst, int dstStep, const Fft2Spec* spec,
                       unsigned char* work)
{
    if (any_null(src, dst, spec, work)) return StatusNullPointer;
    if (any_below_one(srcStep, dstStep)) return StatusBadStep;
    if (spec->tag != kFft2Tag) return StatusBadFftRecord;
    const FloatControl control;
    Plane(*spec, work).inverse(src, srcStep, dst, dstStep, spec->scales_inverse ? spec->scale : 1.0f);
    return StatusOk;
}

Status CenterAndWindow_32f(const float* signal, const float* window, float* windowed, int length)
{
    if (any_null(signal, window, windowed)) return StatusNullPointer;
    if (length < 1) return StatusBadSize;
    const FloatControl control;
    center_and_window(signal, window, windowed, length);
    return StatusOk;
}

Status MirroredPower_32f(const Complex32f* spectrum, float* out, int order, int length)
{
    if (any_null(spectrum, out)) return StatusNullPointer;
    if (length < 1) return StatusBadSize;
    if (order < 0 || order > kMaxOrder || length >> order == 0) return StatusBadFftOrder;
    const FloatControl control;
    const std::ptrdiff_t count = std::ptrdiff_t{1} << order;
    mirrored_power(&spectrum->re, out, count);
    for (std::ptrdiff_t k = count; k < length; ++k) put(out + k, 0.0f);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace fft
}  // namespace orv
