#include "image/arithmetic/float_elementary.h"

#include "core/checks.h"
#include "math/float_log_exp.h"
#include "elementwise/rows.h"

namespace orv {
namespace float_elementary {
namespace ORV_LEVEL {
namespace {

template <class Op>
ORV_INLINE Status check_and_map(const float* src, int srcStep, float* dst, int dstStep, Size roi, Op& op)
{
    if (const Status bad = check_image(roi, src, dst)) return bad;
    if (any_below_one(srcStep, dstStep)) return StatusBadStep;
    const FloatControl control;
    const Rows rows(roi, 1, sizeof(float), srcStep, dstStep);
    Op local = op;
    for (int y = 0; y < rows.count; ++y) {
        const float* const sources[] = {row_at(src, srcStep, y)};
        float* const destinations[] = {row_at(dst, dstStep, y)};
        map_vectors(rows.n, sources, destinations, local);
    }
    op = local;
    return StatusOk;
}

}  // namespace

// The warning is the first one in the order of the rows.
Status Ln_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    LnOfFloats op;
    const Status bad = check_and_map(src, srcStep, dst, dstStep, roi, op);
    return bad != StatusOk ? bad : op.warning.status();
}

Status Exp_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    ExpOfFloats<true> op;
    return check_and_map(src, srcStep, dst, dstStep, roi, op);
}

}  // namespace ORV_LEVEL
}  // namespace float_elementary
}  // namespace orv
