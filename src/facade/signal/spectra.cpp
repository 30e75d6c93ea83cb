// Vector spectra and windows.
#include "signal/spectra.h"

#include "SignalProcessingWrapper.h"
#include "facade/signal/in_place_vector.h"

using namespace orv;

// An in-place form whose elements depend on their place: the temporary holds the whole vector.
template <class Operation>
static Status in_place_whole(float* srcDst, int len, Operation operation)
{
    if (srcDst == nullptr) return StatusNullPointer;
    if (len < 1) return StatusBadSize;
    const long long bytes = static_cast<long long>(len) * static_cast<long long>(sizeof(float));
    float* const copy = static_cast<float*>(orv_allocate_checked(bytes));
    if (copy == nullptr) return StatusNoMemory;
    __builtin_memcpy(copy, srcDst, static_cast<decltype(sizeof(0))>(bytes));
    const Status status = operation(static_cast<const float*>(copy));
    orv_release(copy);
    return status;
}

bool SignalProcessingWrapper::MulPack_32f(const float* src1, const float* src2, float* dst, int len)
{
    return orv_MulPack_32f(src1, src2, dst, {len}) == StatusOk;
}

// Intended: the result is inverted, true on failure and false on success. Hosts depend on it.
bool SignalProcessingWrapper::MulPack_32f_I(const float* src, float* srcDst, int len)
{
    return in_place_whole(srcDst, len, [=](const float* copy) { return orv_MulPack_32f(src, copy, srcDst, {len}); }) != StatusOk;
}

bool SignalProcessingWrapper::MulPackConj_32f_I(const float* src, float* srcDst, int len)
{
    return orv_MulPackConj_32f(src, srcDst, {len}) == StatusOk;
}

bool SignalProcessingWrapper::Magnitude_32f(const float* re, const float* im, float* dst, int len)
{
    return orv_Magnitude_32f(re, im, dst, {len}) == StatusOk;
}

bool SignalProcessingWrapper::RealToCplx_32f(const float* re, const float* im, Complex32f* dst, int len)
{
    return orv_RealToCplx_32f(re, im, dst, {len}) == StatusOk;
}

bool SignalProcessingWrapper::WinHamming_32f(const float* src, float* dst, int len)
{
    return orv_WinHamming_32f(src, dst, {len}) == StatusOk;
}

bool SignalProcessingWrapper::WinHamming_32f_I(float* srcDst, int len)
{
    return in_place_whole(srcDst, len, [=](const float* copy) { return orv_WinHamming_32f(copy, srcDst, {len}); }) == StatusOk;
}
