// Copy, set, conversion, channel order, transposition and mirroring.
#include "image/data_movement.h"

#include "ImageProcessingWrapper.h"
#include "facade/in_place.h"

using namespace orv;

#define SRC_DST(name, operation, From, To)                                                        \
    bool ImageProcessingWrapper::name(const From* src, int srcStep, To* dst, int dstStep, int width, \
                                      int height)                                                 \
    {                                                                                             \
        return orv_##operation(src, srcStep, dst, dstStep, {width, height}) == StatusOk;          \
    }

SRC_DST(Copy_8u_C1, Copy_8u_C1, unsigned char, unsigned char)
SRC_DST(Copy_8u_C3, Copy_8u_C3, unsigned char, unsigned char)
SRC_DST(Copy_8u_C4, Copy_8u_C4, unsigned char, unsigned char)
SRC_DST(Copy_16u_C1, Copy_16u_C1, unsigned short, unsigned short)
SRC_DST(Copy_16s_C1, Copy_16s_C1, short, short)
SRC_DST(Copy_32s_C1, Copy_32s_C1, int, int)
SRC_DST(Copy_32f_C1, Copy_32f_C1, float, float)
SRC_DST(Copy_32f_C3, Copy_32f_C3, float, float)
SRC_DST(Copy_32f_C4, Copy_32f_C4, float, float)

// Intended: always true, whatever the status.
bool ImageProcessingWrapper::Copy_32fc_C1(const Complex32f* src, int srcStep, Complex32f* dst, int dstStep,
                                          int width, int height)
{
    orv_Copy_32fc_C1(src, srcStep, dst, dstStep, {width, height});
    return true;
}

#define VALUE_DST(name, T, Value)                                                                 \
    bool ImageProcessingWrapper::name(Value value, T* dst, int dstStep, int width, int height)    \
    {                                                                                             \
        return orv_##name(value, dst, dstStep, {width, height}) == StatusOk;                      \
    }

VALUE_DST(Set_8u_C1, unsigned char, unsigned char)
VALUE_DST(Set_16u_C1, unsigned short, unsigned short)
VALUE_DST(Set_16s_C1, short, short)
VALUE_DST(Set_32s_C1, int, int)
VALUE_DST(Set_32f_C1, float, float)
VALUE_DST(Set_8u_C3, unsigned char, const unsigned char*)
VALUE_DST(Set_8u_C4, unsigned char, const unsigned char*)
VALUE_DST(Set_32s_C3, int, const int*)
VALUE_DST(Set_32s_C4, int, const int*)
VALUE_DST(Set_32f_C3, float, const float*)
VALUE_DST(Set_32f_C4, float, const float*)

SRC_DST(Convert_8u16u_C1, Convert_8u16u_C1, unsigned char, unsigned short)
SRC_DST(Convert_8u32f_C1, Convert_8u32f_C1, unsigned char, float)
SRC_DST(Convert_8u32f_C3, Convert_8u32f_C3, unsigned char, float)
SRC_DST(Convert_16u32f_C1, Convert_16u32f_C1, unsigned short, float)
SRC_DST(Convert_32f16u_C1, Convert_32f16u_C1, float, unsigned short)
SRC_DST(Convert_32f8u_C3, Convert_32f8u_C3, float, unsigned char)

SRC_DST(Transpose_32f_C1R, Transpose_32f_C1, float, float)

#undef SRC_DST
#undef VALUE_DST

bool ImageProcessingWrapper::SwapChannels_8u_C3IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                                  const int* order)
{
    return in_place(srcDst, srcDstStep, width, height, 3, [=](const Tile& tile) {
               return orv_SwapChannels_8u_C3(static_cast<const unsigned char*>(tile.copy), tile.copyStep,
                                             static_cast<unsigned char*>(tile.place), srcDstStep, tile.size, order);
           }) == StatusOk;
}

// Directly in place: each pixel is read before it is written.
bool ImageProcessingWrapper::SwapChannels_8u_C4IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                                  const int* order)
{
    return orv_SwapChannels_8u_C4(srcDst, srcDstStep, srcDst, srcDstStep, {width, height}, order) == StatusOk;
}

namespace {

// Mirroring through a temporary of a few rows: rows from the top and the bottom are copied together
// and written to each other's place. Rows that overlap need a copy of the whole image first.
template <class T>
bool mirror_in_place(const Operation<SrcDstAxis<T>>& mirror, T* srcDst, int step, int width, int height, int axis,
                     int pixel_bytes)
{
    if (srcDst == nullptr || width < 1 || height < 1) return false;
    const long long row_bytes = static_cast<long long>(width) * pixel_bytes;
    if ((row_bytes + 63) / 64 * 64 * height > 0x7FFFFFFF) return false;

    constexpr int kBandBytes = 16384;
    const bool rows_overlap = (step < 0 ? -static_cast<long long>(step) : step) < row_bytes;
    int band = kBandBytes / static_cast<int>(row_bytes < kBandBytes ? row_bytes : kBandBytes);
    if (band < 4) band = 4;  // two rows from either end: one row alone cannot be turned upside down
    if (rows_overlap || band > height) band = height;

    int copy_step = 0;
    void* const memory = orv_allocate_image(width, band, pixel_bytes, &copy_step);
    if (memory == nullptr) return false;
    unsigned char* const copy = static_cast<unsigned char*>(memory);
    unsigned char* const image = reinterpret_cast<unsigned char*>(srcDst);
    const auto fetch = [&](int first, int rows, int at) {
        orv_Copy_8u_C1(image + static_cast<long long>(step) * first, step,
                       copy + static_cast<long long>(copy_step) * at, copy_step, {static_cast<int>(row_bytes), rows});
    };
    const auto put = [&](int at, int first, int rows, int how) {
        return mirror(reinterpret_cast<T*>(copy + static_cast<long long>(copy_step) * at), copy_step,
                      reinterpret_cast<T*>(image + static_cast<long long>(step) * first), step, {width, rows}, how);
    };

    Status status = StatusOk;
    int top = 0, bottom = height;
    while (status == StatusOk && bottom - top > band) {
        if (axis == 1) {
            fetch(top, band, 0);
            status = put(0, top, band, axis);
            top += band;
        } else {
            const int rows = band / 2;
            fetch(top, rows, 0);
            fetch(bottom - rows, rows, rows);
            status = put(0, bottom - rows, rows, axis);
            if (status == StatusOk) status = put(rows, top, rows, axis);
            top += rows;
            bottom -= rows;
        }
    }
    const int rest = bottom - top;
    if (status == StatusOk && rest > 0) {
        fetch(top, rest, 0);
        const bool middle_row = rest == 1 && height > 1;
        // The middle row stays where it is; axis 2 still exchanges its left and right.
        if (!middle_row || axis != 0) status = put(0, top, rest, middle_row ? 1 : axis);
    }
    orv_release(memory);
    return status == StatusOk;
}

}  // namespace

bool ImageProcessingWrapper::Mirror_16u_C1I(unsigned short* srcDst, int srcDstStep, int width, int height, int axis)
{
    return mirror_in_place(orv_Mirror_16u_C1, srcDst, srcDstStep, width, height, axis, 2);
}
bool ImageProcessingWrapper::Mirror_8u_C3I(unsigned char* srcDst, int srcDstStep, int width, int height, int axis)
{
    return mirror_in_place(orv_Mirror_8u_C3, srcDst, srcDstStep, width, height, axis, 3);
}
bool ImageProcessingWrapper::Mirror_8u_C4I(unsigned char* srcDst, int srcDstStep, int width, int height, int axis)
{
    return mirror_in_place(orv_Mirror_8u_C4, srcDst, srcDstStep, width, height, axis, 4);
}

bool ImageProcessingWrapper::MirrorHorizontal_8u_C3I(unsigned char* srcDst, int srcDstStep, int width, int height)
{
    return mirror_in_place(orv_Mirror_8u_C3, srcDst, srcDstStep, width, height, 0, 3);
}
bool ImageProcessingWrapper::MirrorHorizontal_8u_AC4IR(unsigned char* srcDst, int srcDstStep, int width, int height)
{
    return mirror_in_place(orv_Mirror_8u_AC4, srcDst, srcDstStep, width, height, 0, 4);
}
bool ImageProcessingWrapper::MirrorVertical_8u_AC4IR(unsigned char* srcDst, int srcDstStep, int width, int height)
{
    return mirror_in_place(orv_Mirror_8u_AC4, srcDst, srcDstStep, width, height, 1, 4);
}
bool ImageProcessingWrapper::MirrorBoth_8u_AC4IR(unsigned char* srcDst, int srcDstStep, int width, int height)
{
    return mirror_in_place(orv_Mirror_8u_AC4, srcDst, srcDstStep, width, height, 2, 4);
}
