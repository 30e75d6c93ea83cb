// Copy, set, conversion, channel order, transposition and mirroring.
#include "facade/forms.h"
#include "image/moving/data_movement.h"

using namespace orv;

SRC_DST(Copy_8u_C1, orv_Copy_8u_C1, unsigned char, unsigned char)
SRC_DST(Copy_8u_C3, orv_Copy_8u_C3, unsigned char, unsigned char)
SRC_DST(Copy_8u_C4, orv_Copy_8u_C4, unsigned char, unsigned char)
SRC_DST(Copy_16u_C1, orv_Copy_16u_C1, unsigned short, unsigned short)
SRC_DST(Copy_16s_C1, orv_Copy_16s_C1, short, short)
SRC_DST(Copy_32s_C1, orv_Copy_32s_C1, int, int)
SRC_DST(Copy_32f_C1, orv_Copy_32f_C1, float, float)
SRC_DST(Copy_32f_C3, orv_Copy_32f_C3, float, float)
SRC_DST(Copy_32f_C4, orv_Copy_32f_C4, float, float)

// Intended: always true, whatever the status.
SRC_DST(Copy_32fc_C1, always_true(orv_Copy_32fc_C1), Complex32f, Complex32f)

VALUE_DST(Set_8u_C1, orv_Set_8u_C1, unsigned char, unsigned char)
VALUE_DST(Set_16u_C1, orv_Set_16u_C1, unsigned short, unsigned short)
VALUE_DST(Set_16s_C1, orv_Set_16s_C1, short, short)
VALUE_DST(Set_32s_C1, orv_Set_32s_C1, int, int)
VALUE_DST(Set_32f_C1, orv_Set_32f_C1, float, float)
VALUE_DST(Set_8u_C3, orv_Set_8u_C3, const unsigned char*, unsigned char)
VALUE_DST(Set_8u_C4, orv_Set_8u_C4, const unsigned char*, unsigned char)
VALUE_DST(Set_32s_C3, orv_Set_32s_C3, const int*, int)
VALUE_DST(Set_32s_C4, orv_Set_32s_C4, const int*, int)
VALUE_DST(Set_32f_C3, orv_Set_32f_C3, const float*, float)
VALUE_DST(Set_32f_C4, orv_Set_32f_C4, const float*, float)

SRC_DST(Convert_8u16u_C1, orv_Convert_8u16u_C1, unsigned char, unsigned short)
SRC_DST(Convert_8u32f_C1, orv_Convert_8u32f_C1, unsigned char, float)
SRC_DST(Convert_8u32f_C3, orv_Convert_8u32f_C3, unsigned char, float)
SRC_DST(Convert_16u32f_C1, orv_Convert_16u32f_C1, unsigned short, float)
SRC_DST(Convert_32f16u_C1, orv_Convert_32f16u_C1, float, unsigned short)
SRC_DST(Convert_32f8u_C3, orv_Convert_32f8u_C3, float, unsigned char)

SRC_DST(Transpose_32f_C1R, orv_Transpose_32f_C1, float, float)

SRCDST(SwapChannels_8u_C3IR, steps_checked(orv_SwapChannels_8u_C3), unsigned char, 3, const int*)

// Directly in place: each pixel is read before it is written.
bool ImageProcessingWrapper::SwapChannels_8u_C4IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                                  const int* order)
{
    return orv_SwapChannels_8u_C4(srcDst, srcDstStep, srcDst, srcDstStep, {width, height}, order) == StatusOk;
}

namespace {

// The mirror kernels exchange pixels when source and destination are the same image.
template <class T>
bool mirror_in_place(const Operation<SrcDstAxis<T>>& mirror, T* srcDst, int step, int width, int height, int axis,
                     int lanes)
{
    return in_place(srcDst, step, width, height, lanes, [=, &mirror](const auto& tile) {
               return mirror(tile.src, tile.srcStep, srcDst, step, tile.size, axis);
           }) == StatusOk;
}

}  // namespace

bool ImageProcessingWrapper::Mirror_16u_C1I(unsigned short* srcDst, int srcDstStep, int width, int height, int axis)
{
    return mirror_in_place(orv_Mirror_16u_C1, srcDst, srcDstStep, width, height, axis, 1);
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
