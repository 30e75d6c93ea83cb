// The state behind FFTWrapper: a prepared transform and its buffers.
#pragma once

#include "Complex32f.h"
#include "core/operation.h"

namespace orv {

struct FftSpec;

struct PsdRecord {
    FftSpec* spec;         // on the boundary where the aligned allocator put its memory
    Complex32f* spectrum;  // n values, of which a block fills the first half, CCS
    unsigned char* work;
    float* windowed;  // n values
    int n;
};

extern "C" {
// A zeroed record, or null when memory runs out. All functions accept a null record and do nothing.
PsdRecord* orv_psd_create();
// Releases the buffers and the record.
void orv_psd_destroy(PsdRecord* record);
// Releases the buffers; n stays.
void orv_psd_cleanup(PsdRecord* record);
// Prepares for blocks of n samples, of which the transform uses the largest power of two. When that is
// not possible, n < 1 or no memory, the record is left without buffers.
void orv_psd_init(PsdRecord* record, int n);
// The power spectrum of a block. Without buffers, with a null pointer or with a length other than n
// nothing is written.
void orv_psd_run(PsdRecord* record, const float* signal, const float* window, float* out, int length);
}

}  // namespace orv
