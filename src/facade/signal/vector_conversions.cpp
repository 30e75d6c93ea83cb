// Vectors of one type of elements from another.
#include "facade/forms.h"
#include "signal/vector_conversions.h"

using namespace orv;

VECTOR_SRC_DST(Convert_8u16u, orv_Convert_8u16u, unsigned char, unsigned short)
VECTOR_SRC_DST(Convert_8u32s, orv_Convert_8u32s, unsigned char, int)
VECTOR_SRC_DST(Convert_8u32f, orv_Convert_8u32f, unsigned char, float)
VECTOR_SRC_DST(Convert_8u64f, orv_Convert_8u64f, unsigned char, double)
VECTOR_SRC_DST(Convert_16u8u, orv_Convert_16u8u, unsigned short, unsigned char)
VECTOR_SRC_DST(Convert_16u32s, orv_Convert_16u32s, unsigned short, int)
VECTOR_SRC_DST(Convert_16u32f, orv_Convert_16u32f, unsigned short, float)
VECTOR_SRC_DST(Convert_16u64f, orv_Convert_16u64f, unsigned short, double)
VECTOR_SRC_DST(Convert_32s8u, orv_Convert_32s8u, int, unsigned char)
VECTOR_SRC_DST(Convert_32s16u, orv_Convert_32s16u, int, unsigned short)
VECTOR_SRC_DST(Convert_32s32f, orv_Convert_32s32f, int, float)
VECTOR_SRC_DST(Convert_32s64f, orv_Convert_32s64f, int, double)
VECTOR_SRC_DST(Convert_32f8u, orv_Convert_32f8u, float, unsigned char)
VECTOR_SRC_DST(Convert_32f16u, orv_Convert_32f16u, float, unsigned short)
VECTOR_SRC_DST(Convert_32f32s, orv_Convert_32f32s, float, int)
VECTOR_SRC_DST(Convert_32f64f, orv_Convert_32f64f, float, double)
VECTOR_SRC_DST(Convert_64f8u, orv_Convert_64f8u, double, unsigned char)
VECTOR_SRC_DST(Convert_64f16u, orv_Convert_64f16u, double, unsigned short)
VECTOR_SRC_DST(Convert_64f32s, orv_Convert_64f32s, double, int)
VECTOR_SRC_DST(Convert_64f32f, orv_Convert_64f32f, double, float)
VECTOR_SRC_DST(Convert_16s32f, orv_Convert_16s32f, short, float)
VECTOR_SRC_DST(Convert_32f16s, orv_Convert_32f16s, float, short)
