#include "spectral/psd_object.h"

#include "core/hints.h"
#include "core/memory.h"
#include "spectral/fft.h"

namespace orv {
namespace {

// `bytes` of zeros on a 64-byte boundary, or null.
void* allocate_zeros(long long bytes)
{
    void* const p = orv_allocate_checked(bytes);
    if (p != nullptr) __builtin_memset(p, 0, static_cast<decltype(sizeof(0))>(bytes));
    return p;
}

// The transform and its work buffer.
bool build(PsdRecord* record, int order)
{
    int spec_bytes = 0, init_bytes = 0, work_bytes = 0;
    if (orv_fft_sizes(order, kScaleInverse, kHintFast, &spec_bytes, &init_bytes, &work_bytes) != StatusOk) return false;
    unsigned char* const memory = static_cast<unsigned char*>(orv_allocate(spec_bytes));
    unsigned char* const init = static_cast<unsigned char*>(orv_allocate(init_bytes));
    record->work = static_cast<unsigned char*>(orv_allocate(work_bytes));
    FftSpec* spec = nullptr;
    const Status status = orv_FftInit(&spec, order, kScaleInverse, kHintFast, memory, init);
    orv_release(init);
    if (status != StatusOk) orv_release(memory);
    record->spec = spec;
    return status == StatusOk && (work_bytes == 0 || record->work != nullptr);
}

}  // namespace

extern "C" {

PsdRecord* orv_psd_create()
{
    return static_cast<PsdRecord*>(orv_memory_functions.allocate_zeroed(1, sizeof(PsdRecord)));
}

void orv_psd_destroy(PsdRecord* record)
{
    if (record == nullptr) return;
    orv_psd_cleanup(record);
    orv_memory_functions.release(record);
}

void orv_psd_cleanup(PsdRecord* record)
{
    if (record == nullptr) return;
    orv_release(record->windowed);
    record->windowed = nullptr;
    orv_release(record->spectrum);
    record->spectrum = nullptr;
    orv_release(record->work);
    record->work = nullptr;
    orv_release(record->spec);
    record->spec = nullptr;
}

void orv_psd_init(PsdRecord* record, int n)
{
    if (record == nullptr) return;
    orv_psd_cleanup(record);
    record->n = n;
    const int order = orv_fft_order(n);
    const long long whole_spectrum = static_cast<long long>(n) * static_cast<long long>(sizeof(Complex32f));
    // Before the tables are made: those of the longest blocks take seconds.
    if (whole_spectrum > 0x7FFFFFFF) return;
    if (!build(record, order)) return orv_psd_cleanup(record);
    record->spectrum = static_cast<Complex32f*>(allocate_zeros(whole_spectrum));
    record->windowed = static_cast<float*>(allocate_zeros(whole_spectrum / 2));
    if (record->spectrum == nullptr || record->windowed == nullptr) orv_psd_cleanup(record);
}

void orv_psd_run(PsdRecord* record, const float* signal, const float* window, float* out, int length)
{
    if (record == nullptr || record->spec == nullptr) return;
    if (signal == nullptr || window == nullptr || out == nullptr || length != record->n) return;
    // Each step writes straight into the buffers of the object: a spectrum of n complex values has room
    // for its first half in CCS, and its second half has the same powers in reverse. That half stays zero: nobody
    // reads it, and filling it would take 8 to 14 % of the call (2^8 to 2^18).
    orv_CenterAndWindow_32f(signal, window, record->windowed, length);
    orv_FftForward_32f(record->windowed, &record->spectrum->re, record->spec, record->work);
    orv_MirroredPower_32f(record->spectrum, out, orv_fft_order(length), length);
}

}  // extern "C"
}  // namespace orv
