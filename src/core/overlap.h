// What images that share memory mean, for all families.
//
// Destination rows are made from the top, one after the other, each as if through a temporary: a row sees what
// the rows before it have written, and nothing of itself. Loops that merge rows into one, or store parts of a row
// before they have read all of it, have that meaning only where no destination row touches a source row other
// than exactly the one it is made from. So kernels ask may_overlap() once their arguments are checked, which is
// one comparison for each source, and leave what is left over to by_rows(): it calls them again for each row.
#pragma once

#include <cstdint>

#include "core/checks.h"

namespace orv {

// Where the rows of an image lie.
struct Area {
    const void* first;
    int step;
    long long row_bytes;
    int rows;
};

extern "C" {
// Whether a destination shares a byte with a source. No for those whose rows lie beside each other, or exactly on
// each other, and for those that no kernel accepts: these are refused as usual.
bool orv_overlap(Area src, Area dst);

// Makes row after row of a destination: make(call, y, to) in a row of the library's own, which begins as a copy
// of the destination's. The status is the first one that is not StatusOk; an error ends it.
Status orv_make_rows(Area dst, Status (*make)(const void* call, int y, void* to), const void* call);
}

inline namespace ORV_LEVEL {

template <class T>
ORV_INLINE Area area(const T* first, int step, Size roi, int channels)
{
    return {first, step, static_cast<long long>(roi.width) * (channels * static_cast<int>(sizeof(T))), roi.height};
}

// How far the last row may be from the first one; steps that are not negative count as they are.
ORV_INLINE std::uint64_t reach_of(int steps, int rows)
{
    return std::uint64_t{static_cast<std::uint32_t>(steps)} * static_cast<std::uint32_t>(rows - 1);
}
// The comparison: a yes for rows that are far away from each other may be wrong, a no never is, and neither is
// what it says of images of one row. Rows that have the same bytes may stand exactly on each other.
ORV_INLINE bool are_near(const void* src, int srcStep, long long src_row, const void* dst, int dstStep,
                         long long dst_row, std::uint64_t reach)
{
    const std::uint64_t distance = std::uint64_t{reinterpret_cast<std::uintptr_t>(src)} -
                                   std::uint64_t{reinterpret_cast<std::uintptr_t>(dst)};
    if (src_row == dst_row && distance == 0) return srcStep != dstStep;
    const std::uint64_t before = reach + static_cast<std::uint64_t>(src_row) - 1;
    const std::uint64_t after = reach + static_cast<std::uint64_t>(dst_row);
    return __builtin_expect(distance + before < before + after, false);
}

ORV_INLINE bool overlap(Area src, Area dst)
{
    const std::uint64_t reach = reach_of(src.step | dst.step, src.rows > dst.rows ? src.rows : dst.rows);
    return are_near(src.first, src.step, src.row_bytes, dst.first, dst.step, dst.row_bytes, reach) &&
           orv_overlap(src, dst);
}

// Of the pixels of images of one size.
struct ChannelCounts {
    int src, dst;
    ORV_INLINE ChannelCounts(int all) : src(all), dst(all) {}
    ORV_INLINE ChannelCounts(int of_src, int of_dst) : src(of_src), dst(of_dst) {}
};

// Whether a kernel is to go row by row, once its arguments have passed the checks. Loops that read up to `at_once`
// bytes of a row before they store any need not ask for a single row that is no longer.
template <int at_once = 0, class A, class T>
ORV_INLINE bool may_overlap(Size roi, ChannelCounts channels, const A* src, int srcStep, const T* dst, int dstStep)
{
    const long long src_row = area(src, 0, roi, channels.src).row_bytes;
    const long long dst_row = area(dst, 0, roi, channels.dst).row_bytes;
    if (at_once > 0 && roi.height == 1 && src_row <= at_once && dst_row <= at_once) return false;
    return are_near(src, srcStep, src_row, dst, dstStep, dst_row, reach_of(srcStep | dstStep, roi.height));
}
template <int at_once = 0, class A, class B, class T>
ORV_INLINE bool may_overlap(Size roi, ChannelCounts channels, const A* src1, int src1Step, const B* src2, int src2Step,
                            const T* dst, int dstStep)
{
    const long long src_row = area(src1, 0, roi, channels.src).row_bytes;
    const long long dst_row = area(dst, 0, roi, channels.dst).row_bytes;
    if (at_once > 0 && roi.height == 1 && src_row <= at_once && dst_row <= at_once) return false;
    const std::uint64_t reach = reach_of(src1Step | src2Step | dstStep, roi.height);
    return are_near(src1, src1Step, src_row, dst, dstStep, dst_row, reach) ||
           are_near(src2, src2Step, src_row, dst, dstStep, dst_row, reach);
}

// make(int y, void* to)
template <class Make>
ORV_INLINE Status make_rows(Area dst, const Make& make)
{
    const auto make_row = [](const void* call, int y, void* to) { return (*static_cast<const Make*>(call))(y, to); };
    return orv_make_rows(dst, make_row, &make);
}

// What a row's call gets for an argument: its value or, for an array with one value for each channel, a copy: the
// array may lie in the image that is being written. Kernels pass a single constant by its address, too.
template <class T>
struct Kept {
    T value;
    Kept(T argument, int) : value(argument) {}
    Kept(const T* argument, int) : value(get_one(argument)) {}
    T get() const { return value; }

private:
    static T get_one(const T* p)
    {
        T one;
        __builtin_memcpy(&one, p, sizeof(T));
        return one;
    }
};
template <class T>
struct Kept<const T*> {
    T values[4];
    Kept(const T* argument, int channels)
    {
        __builtin_memcpy(values, argument, sizeof(T) * static_cast<std::size_t>(channels));
    }
    const T* get() const { return values; }
};

// The calls of a kernel for the rows of images that may overlap, from the kernel itself once it has checked its
// arguments.
template <class Make>
ORV_INLINE Status rows_in_order(bool overlapping, Area dst, const Make& make)
{
    if (overlapping) return make_rows(dst, make);
    Status result = StatusOk;
    for (int y = 0; y < dst.rows && result >= 0; ++y) {
        const Status status = make(y, row_at(const_cast<void*>(dst.first), dst.step, y));
        if (status < 0 || result == StatusOk) result = status;
    }
    return result;
}

#define ORV_RARE __attribute__((noinline, cold)) Status
template <class A, class T, class... Rest, class... Arguments>
ORV_RARE by_rows(Status (*kernel)(const A*, int, T*, int, Size, Rest...), ChannelCounts channels, const A* src,
                 int srcStep, T* dst, int dstStep, Size roi, Arguments... rest)
{
    const Area to_area = area(dst, dstStep, roi, channels.dst);
    const auto run = [&](const auto&... kept) {
        return rows_in_order(orv_overlap(area(src, srcStep, roi, channels.src), to_area), to_area,
                             [&](int y, void* to) {
                                 return kernel(row_at(src, srcStep, y), srcStep, static_cast<T*>(to), dstStep,
                                               {roi.width, 1}, kept.get()...);
                             });
    };
    return run(Kept<Rest>(rest, channels.src)...);
}
template <class A, class V, class T, class Value, class... Rest>
ORV_RARE by_rows(Status (*kernel)(const A*, int, V, T*, int, Size, Rest...), ChannelCounts channels, const A* src,
                 int srcStep, Value value, T* dst, int dstStep, Size roi, Rest... rest)
{
    const Area to_area = area(dst, dstStep, roi, channels.dst);
    const Kept<V> kept(value, channels.src);
    return rows_in_order(orv_overlap(area(src, srcStep, roi, channels.src), to_area), to_area, [&](int y, void* to) {
        return kernel(row_at(src, srcStep, y), srcStep, kept.get(), static_cast<T*>(to), dstStep, {roi.width, 1},
                      rest...);
    });
}
template <class A, class B, class T, class... Rest>
ORV_RARE by_rows(Status (*kernel)(const A*, int, const B*, int, T*, int, Size, Rest...), ChannelCounts channels,
                 const A* src1, int src1Step, const B* src2, int src2Step, T* dst, int dstStep, Size roi, Rest... rest)
{
    const Area to_area = area(dst, dstStep, roi, channels.dst);
    const bool overlapping = orv_overlap(area(src1, src1Step, roi, channels.src), to_area) ||
                             orv_overlap(area(src2, src2Step, roi, channels.src), to_area);
    return rows_in_order(overlapping, to_area, [&](int y, void* to) {
        return kernel(row_at(src1, src1Step, y), src1Step, row_at(src2, src2Step, y), src2Step, static_cast<T*>(to),
                      dstStep, {roi.width, 1}, rest...);
    });
}
#undef ORV_RARE
}  // namespace ORV_LEVEL
}  // namespace orv
