#include "signal/vector_moves.h"

#include <cstring>

#include "core/checks.h"

namespace orv {
namespace vector_moves {
namespace ORV_LEVEL {
namespace {

// Counted in what an address has: the longest vectors pass 2^31 bytes.
template <class T>
std::size_t bytes_of(Length len)
{
    return static_cast<std::size_t>(len.count) * sizeof(T);
}

template <class T>
Status zero(T* dst, Length len)
{
    if (const Status bad = check_vector(len, dst)) return bad;
    std::memset(static_cast<void*>(dst), 0, bytes_of<T>(len));
    return StatusOk;
}

template <class T>
Status copy(const T* src, T* dst, Length len)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    std::memmove(static_cast<void*>(dst), src, bytes_of<T>(len));
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define ZERO(name, T) \
    Status name(T* dst, Length len) { return zero(dst, len); }
ZERO(Zero_8u, unsigned char)
ZERO(Zero_16u, unsigned short)
ZERO(Zero_32s, int)
ZERO(Zero_32f, float)
ZERO(Zero_64f, double)
ZERO(Zero_32fc, Complex32f)
#define COPY(name, T) \
    Status name(const T* src, T* dst, Length len) { return copy(src, dst, len); }
COPY(Copy_8u, unsigned char)
COPY(Copy_16u, unsigned short)
COPY(Copy_32s, int)
COPY(Copy_32f, float)
COPY(Copy_64f, double)
COPY(Copy_32fc, Complex32f)

}  // namespace ORV_LEVEL
}  // namespace vector_moves
}  // namespace orv
