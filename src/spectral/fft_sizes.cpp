#include "spectral/fft.h"

namespace orv {
extern "C" {

Status orv_fft_sizes(int order, int flag, int, int* spec, int* initBuffer, int* work)
{
    const bool null = spec == nullptr || initBuffer == nullptr || work == nullptr;
    if (const Status bad = check_fft(order, null, flag)) return bad;
    const FftSizes sizes = fft_sizes(order);
    *spec = static_cast<int>(sizes.spec);
    *initBuffer = static_cast<int>(sizes.init);
    *work = static_cast<int>(sizes.work);
    return StatusOk;
}

Status orv_fft2_sizes(int orderX, int orderY, int flag, int, int* spec, int* initBuffer, int* work)
{
    const bool null = spec == nullptr || initBuffer == nullptr || work == nullptr;
    if (const Status bad = check_fft2(orderX, orderY, null, flag)) return bad;
    const FftSizes sizes = fft2_sizes(orderX, orderY);
    *spec = static_cast<int>(sizes.spec);
    *initBuffer = static_cast<int>(sizes.init);
    *work = static_cast<int>(sizes.work);
    return StatusOk;
}

int orv_fft_order(int length)
{
    int order = -1;
    for (unsigned rest = length > 0 ? static_cast<unsigned>(length) : 0; rest != 0; rest >>= 1) ++order;
    return order;
}

}  // extern "C"
}  // namespace orv
