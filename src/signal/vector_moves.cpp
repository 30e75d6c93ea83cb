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

Status Zero_16u(unsigned short* dst, Length len) { return zero(dst, len); }
Status Copy_16u(const unsigned short* src, unsigned short* dst, Length len) { return copy(src, dst, len); }

}  // namespace ORV_LEVEL
}  // namespace vector_moves
}  // namespace orv
