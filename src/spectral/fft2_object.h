// The state behind FFT2Wrapper: a prepared two-dimensional transform.
#pragma once

#include "core/operation.h"

namespace orv {

struct Fft2Spec;

struct Fft2Record {
    Fft2Spec* spec;  // on the boundary where the aligned allocator put its memory
    int work_size;
    unsigned char* work;
};

extern "C" {
// A zeroed record, or null when memory runs out. All functions accept a null record and do nothing.
Fft2Record* orv_fft2_create();
// Releases the transform and the record.
void orv_fft2_destroy(Fft2Record* record);
// Releases the transform.
void orv_fft2_cleanup(Fft2Record* record);
// Prepares for the largest powers of two in a size; without a transform afterwards when that fails.
// False, with nothing done, when either side has order 0.
bool orv_fft2_init(Fft2Record* record, int width, int height);
// The transforms, with the size of the record; nothing is written without one.
void orv_fft2_forward(const Fft2Record* record, const float* src, int srcStep, float* dst, int dstStep);
void orv_fft2_inverse(const Fft2Record* record, const float* src, int srcStep, float* dst, int dstStep);
// The in-place forms, see FFT2Wrapper.h: nothing is written where a side has order 0.
void orv_fft2_forward_in_place(const Fft2Record* record, float* srcDst, int step, int width, int height);
void orv_fft2_inverse_in_place(const Fft2Record* record, float* srcDst, int step, int width, int height);
}

}  // namespace orv
