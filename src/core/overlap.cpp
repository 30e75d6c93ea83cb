#define ORV_LEVEL px  // nothing here but address arithmetic
#define ORV_LEVEL_IS_px
#include "core/overlap.h"

#include <cstring>

#include "core/memory.h"

namespace orv {
namespace {

long long address(const void* p) { return static_cast<long long>(reinterpret_cast<std::uintptr_t>(p)); }

bool exists(const Area& a) { return a.first != nullptr && a.rows > 0 && a.row_bytes > 0; }

// From the first to the last row.
long long extent(const Area& a) { return static_cast<long long>(a.step) * (a.rows - 1); }
long long begin(const Area& a) { return address(a.first) + (a.step < 0 ? extent(a) : 0); }
long long end(const Area& a) { return address(a.first) + (a.step < 0 ? 0 : extent(a)) + a.row_bytes; }

// Rows of two images with the same step, between each other: as of two halves of one image.
bool side_by_side(const Area& src, const Area& dst)
{
    const long long step = src.step < 0 ? -static_cast<long long>(src.step) : src.step;
    if (src.step != dst.step || step == 0) return false;
    const long long distance = (address(dst.first) - address(src.first)) % step;
    const long long offset = distance < 0 ? distance + step : distance;
    return offset >= src.row_bytes && offset + dst.row_bytes <= step;
}

}  // namespace

extern "C" {

bool orv_overlap(Area src, Area dst)
{
    const bool row_on_row = src.first == dst.first && src.step == dst.step && src.row_bytes == dst.row_bytes;
    return !row_on_row && exists(src) && exists(dst) && begin(src) < end(dst) && begin(dst) < end(src) &&
           !side_by_side(src, dst);
}

Status orv_make_rows(Area dst, Status (*make)(const void* call, int y, void* to), const void* call)
{
    void* const row = orv_allocate_checked(dst.row_bytes);
    if (row == nullptr) return StatusNoMemory;
    const auto bytes = static_cast<std::size_t>(dst.row_bytes);
    Status result = StatusOk;
    for (int y = 0; y < dst.rows && result >= 0; ++y) {
        void* const place = row_at(const_cast<char*>(static_cast<const char*>(dst.first)), dst.step, y);
        std::memcpy(row, place, bytes);
        const Status status = make(call, y, row);
        if (status >= 0) std::memcpy(place, row, bytes);
        if (status < 0 || result == StatusOk) result = status;
    }
    orv_release(row);
    return result;
}

}  // extern "C"

}  // namespace orv
