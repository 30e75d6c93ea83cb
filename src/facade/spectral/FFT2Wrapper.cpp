#include "FFT2Wrapper.h"

#include "facade/object_memory.h"
#include "spectral/fft2_object.h"

namespace {

// Whether a record holds the transform of a size; the last two are what it was prepared for.
bool is_for(const orv::Fft2Record* record, int width, int height, int prepared_width, int prepared_height)
{
    return record != nullptr && record->spec != nullptr && width == prepared_width && height == prepared_height;
}

}  // namespace

FFT2Wrapper::FFT2Wrapper(bool flag) : flag_(flag), width_(0), height_(0), record_(orv::orv_fft2_create()) {}
FFT2Wrapper::FFT2Wrapper(int width, int height, bool flag) : FFT2Wrapper(flag) { Init(width, height, flag); }
FFT2Wrapper::~FFT2Wrapper() { orv::orv_fft2_destroy(record_); }

// Intended: each object keeps its own transform.
FFT2Wrapper& FFT2Wrapper::operator=(const FFT2Wrapper&) { return *this; }

// Intended: the flag has no effect, here or anywhere.
bool FFT2Wrapper::Init(int width, int height, bool)
{
    if (orv::orv_fft2_init(record_, width, height)) {
        width_ = width;
        height_ = height;
    }
    return true;
}

void FFT2Wrapper::Cleanup() { orv::orv_fft2_cleanup(record_); }

void FFT2Wrapper::Forward(const float* src, int srcStep, float* dst, int dstStep, int width, int height)
{
    if (!is_for(record_, width, height, width_, height_)) Init(width, height, flag_);
    orv::orv_fft2_forward(record_, src, srcStep, dst, dstStep);
}

void FFT2Wrapper::Forward(float* srcDst, int step, int width, int height)
{
    if (!is_for(record_, width, height, width_, height_)) Init(width, height, flag_);
    orv::orv_fft2_forward_in_place(record_, srcDst, step, width, height);
}

void FFT2Wrapper::Inverse(const float* src, int srcStep, float* dst, int dstStep, int width, int height)
{
    if (!is_for(record_, width, height, width_, height_)) Init(width, height, flag_);
    orv::orv_fft2_inverse(record_, src, srcStep, dst, dstStep);
}

void FFT2Wrapper::Inverse(float* srcDst, int step, int width, int height)
{
    if (!is_for(record_, width, height, width_, height_)) Init(width, height, flag_);
    orv::orv_fft2_inverse_in_place(record_, srcDst, step, width, height);
}

void FFT2Wrapper::__autoclassinit2(unsigned int size) { orv::zero_object(this, size); }
