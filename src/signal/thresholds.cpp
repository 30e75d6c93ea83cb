#include "signal/thresholds.h"

#include <cstdint>

#include "core/checks.h"
#include "elementwise/thresholds.h"

namespace orv {
namespace thresholds {
namespace ORV_LEVEL {
namespace {

using std::int32_t;
using std::uint16_t;
using std::uint8_t;

// A vector is an image of one row. Thresholds and values come by reference: on the x87 a copy of a float is no copy.
template <class T, class Op>
void run(const T* src, T* dst, Length len, const Op& op)
{
    plane(bits(src), 0, bits(dst), 0, {len.count, 1}, 1, op);
}

template <bool above, class T>
Status limit(const T* src, T* dst, Length len, const T& threshold)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    with_limit<above, T>(bits(threshold), [&](const auto& op) { run(src, dst, len, op); });
    return StatusOk;
}

template <bool above, class T>
Status replace(const T* src, T* dst, Length len, const T& threshold, const T& value)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    with_value<above, T>(bits(threshold), bits(value), [&](const auto& op) { run(src, dst, len, op); });
    return StatusOk;
}

template <class T>
Status replace_both(const T* src, T* dst, Length len, const T& thresholdLT, const T& valueLT, const T& thresholdGT,
                    const T& valueGT)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    const BitsOf<T> lower = bits(thresholdLT), upper = bits(thresholdGT);
    if (wrong_order<T>(&lower, &upper, 1)) return StatusBadThreshold;
    with_values<T>(lower, bits(valueLT), upper, bits(valueGT), [&](const auto& op) { run(src, dst, len, op); });
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define LIMIT(name, above, T) \
    Status name(const T* src, T* dst, Length len, T threshold) { return limit<above>(src, dst, len, threshold); }
#define REPLACE(name, above, T)                                                                          \
    Status name(const T* src, T* dst, Length len, T threshold, T value)                                  \
    {                                                                                                    \
        return replace<above>(src, dst, len, threshold, value);                                          \
    }
#define REPLACE_BOTH(name, T)                                                                            \
    Status name(const T* src, T* dst, Length len, T thresholdLT, T valueLT, T thresholdGT, T valueGT)    \
    {                                                                                                    \
        return replace_both(src, dst, len, thresholdLT, valueLT, thresholdGT, valueGT);                  \
    }

LIMIT(Threshold_LT_8u, false, uint8_t)
LIMIT(Threshold_LT_16u, false, uint16_t)
LIMIT(Threshold_LT_32s, false, int32_t)
LIMIT(Threshold_LT_32f, false, float)
LIMIT(Threshold_LT_64f, false, double)

LIMIT(Threshold_GT_8u, true, uint8_t)
LIMIT(Threshold_GT_16u, true, uint16_t)
LIMIT(Threshold_GT_32s, true, int32_t)
LIMIT(Threshold_GT_32f, true, float)
LIMIT(Threshold_GT_64f, true, double)

REPLACE(Threshold_LTVal_8u, false, uint8_t)
REPLACE(Threshold_LTVal_16u, false, uint16_t)
REPLACE(Threshold_LTVal_32s, false, int32_t)
REPLACE(Threshold_LTVal_32f, false, float)
REPLACE(Threshold_LTVal_64f, false, double)

REPLACE(Threshold_GTVal_8u, true, uint8_t)
REPLACE(Threshold_GTVal_16u, true, uint16_t)
REPLACE(Threshold_GTVal_32s, true, int32_t)
REPLACE(Threshold_GTVal_32f, true, float)
REPLACE(Threshold_GTVal_64f, true, double)

REPLACE_BOTH(Threshold_LTValGTVal_8u, uint8_t)
REPLACE_BOTH(Threshold_LTValGTVal_16u, uint16_t)
REPLACE_BOTH(Threshold_LTValGTVal_32s, int32_t)
REPLACE_BOTH(Threshold_LTValGTVal_32f, float)
REPLACE_BOTH(Threshold_LTValGTVal_64f, double)

}  // namespace ORV_LEVEL
}  // namespace thresholds
}  // namespace orv
