#include "spectral/fft2_object.h"

#include "core/hints.h"
#include "core/memory.h"
#include "spectral/fft.h"

namespace orv {
namespace {

bool has_no_order(int width, int height)
{
    return orv_fft_order(width) < 1 || orv_fft_order(height) < 1;
}

}  // namespace

extern "C" {

Fft2Record* orv_fft2_create()
{
    return static_cast<Fft2Record*>(orv_memory_functions.allocate_zeroed(1, sizeof(Fft2Record)));
}

void orv_fft2_destroy(Fft2Record* record)
{
    if (record == nullptr) return;
    orv_fft2_cleanup(record);
    orv_memory_functions.release(record);
}

void orv_fft2_cleanup(Fft2Record* record)
{
    if (record == nullptr) return;
    orv_release(record->work);
    record->work = nullptr;
    orv_release(record->spec);
    record->spec = nullptr;
}

bool orv_fft2_init(Fft2Record* record, int width, int height)
{
    const int orderX = orv_fft_order(width), orderY = orv_fft_order(height);
    if (orderX == 0 || orderY == 0) return false;
    if (record == nullptr) return true;
    orv_fft2_cleanup(record);
    record->work_size = 0;

    int spec_bytes = 0, init_bytes = 0;
    if (orv_fft2_sizes(orderX, orderY, kScaleInverse, kHintNone, &spec_bytes, &init_bytes, &record->work_size) !=
        StatusOk) {
        return true;
    }
    unsigned char* const memory = static_cast<unsigned char*>(orv_allocate(spec_bytes));
    unsigned char* const init = static_cast<unsigned char*>(orv_allocate(init_bytes));
    record->work = static_cast<unsigned char*>(orv_allocate(record->work_size));
    Fft2Spec* spec = nullptr;
    if (orv_Fft2Init(&spec, orderX, orderY, kScaleInverse, kHintNone, memory, init) != StatusOk) orv_release(memory);
    record->spec = spec;
    orv_release(init);
    return true;
}

void orv_fft2_forward(const Fft2Record* record, const float* src, int srcStep, float* dst, int dstStep)
{
    if (record != nullptr) orv_Fft2Forward_32f(src, srcStep, dst, dstStep, record->spec, record->work);
}

void orv_fft2_inverse(const Fft2Record* record, const float* src, int srcStep, float* dst, int dstStep)
{
    if (record != nullptr) orv_Fft2Inverse_32f(src, srcStep, dst, dstStep, record->spec, record->work);
}

void orv_fft2_forward_in_place(const Fft2Record* record, float* srcDst, int step, int width, int height)
{
    if (record == nullptr || record->spec == nullptr || srcDst == nullptr || step < 1) return;
    if (has_no_order(width, height)) return;
    // The scratch image is as wide and high as the orders, not the lengths: hosts have seen what follows
    // from it. The transform reads full rows at its row step, so it is followed by zeros to that extent.
    const int orderX = orv_fft_order(width), orderY = orv_fft_order(height);
    const int row_bytes = orderX * static_cast<int>(sizeof(float));
    const int scratch_step = (row_bytes + 63) & ~63;
    const long long bytes = static_cast<long long>(scratch_step) * ((1LL << orderY) - 1) + (4LL << orderX);
    float* const scratch = static_cast<float*>(orv_allocate_checked(bytes));
    if (scratch == nullptr) return;
    __builtin_memset(scratch, 0, static_cast<decltype(sizeof(0))>(bytes));
    for (int y = 0; y < orderY; ++y) {
        const long long row = y;
        __builtin_memcpy(reinterpret_cast<char*>(scratch) + row * scratch_step,
                         reinterpret_cast<const char*>(srcDst) + row * step, static_cast<unsigned>(row_bytes));
    }
    orv_Fft2Forward_32f(scratch, scratch_step, srcDst, step, record->spec, record->work);
    orv_release(scratch);
}

void orv_fft2_inverse_in_place(const Fft2Record* record, float* srcDst, int step, int width, int height)
{
    if (record == nullptr || has_no_order(width, height)) return;
    // The transform reads all of its source before it writes: no copy is needed.
    orv_Fft2Inverse_32f(srcDst, step, srcDst, step, record->spec, record->work);
}

}  // extern "C"
}  // namespace orv
