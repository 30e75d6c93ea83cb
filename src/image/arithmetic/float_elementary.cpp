#include "image/arithmetic/float_elementary.h"

#include "core/checks.h"
#include "core/overlap.h"
#include "math/float_log_exp.h"
#include "elementwise/rows.h"

namespace orv {
namespace float_elementary {
namespace ORV_LEVEL {
namespace {

template <class Op>
ORV_INLINE void map_rows(const float* src, int srcStep, float* dst, int dstStep, Size roi, Op& op)
{
    const FloatControl control;
    const Rows rows(roi, 1, sizeof(float), srcStep, dstStep);
    Op local = op;
    for (int y = 0; y < rows.count; ++y) {
        const float* const sources[] = {row_at(src, srcStep, y)};
        float* const destinations[] = {row_at(dst, dstStep, y)};
        map_vectors(rows.n, sources, destinations, local);
    }
    op = local;
}

}  // namespace

// The warning is the first one in the order of the rows.
Status Ln_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    if (may_overlap(roi, 1, src, srcStep, dst, dstStep)) return by_rows(Ln_32f_C1, 1, src, srcStep, dst, dstStep, roi);
    LnOfFloats op;
    map_rows(src, srcStep, dst, dstStep, roi, op);
    return op.warning.status();
}

Status Exp_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    if (may_overlap(roi, 1, src, srcStep, dst, dstStep)) return by_rows(Exp_32f_C1, 1, src, srcStep, dst, dstStep, roi);
    ExpOfFloats<true> op;
    map_rows(src, srcStep, dst, dstStep, roi, op);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace float_elementary
}  // namespace orv
