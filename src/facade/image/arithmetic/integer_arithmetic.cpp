// Integer arithmetic with scaling.
#include "image/arithmetic/integer_arithmetic.h"

#include "ImageProcessingWrapper.h"
#include "facade/in_place.h"

using namespace orv;

#define SRC_SRC_DST_SCALED(name, T)                                                                      \
    bool ImageProcessingWrapper::name(const T* src1, int src1Step, const T* src2, int src2Step, T* dst,  \
                                      int dstStep, int width, int height, int scaleFactor)               \
    {                                                                                                    \
        return orv_##name(src1, src1Step, src2, src2Step, dst, dstStep, {width, height}, scaleFactor) == \
               StatusOk;                                                                                 \
    }

// Run: in_place, or in_place_checked where the operation checks its steps.
#define SRC_SRCDST_SCALED(name, operation, T, channels) SRC_SRCDST_SCALED_BY(in_place, name, operation, T, channels)
#define SRC_SRCDST_SCALED_BY(run, name, operation, T, channels)                                                                  \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, T* srcDst, int srcDstStep, int width,                           \
                                      int height, int scaleFactor)                                                               \
    {                                                                                                                            \
        return run(srcDst, srcDstStep, width, height, channels, [=](const auto& tile) {                                          \
                   return orv_##operation(src, srcStep, tile.src, tile.srcStep, tile.dst, tile.dstStep, tile.size, scaleFactor); \
               }) == StatusOk;                                                                                                   \
    }

// The constant forms: Value is T, or const T* for one value per channel.
#define SRC_VALUE_DST_SCALED(name, T, Value)                                                            \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, Value value, T* dst, int dstStep,      \
                                      int width, int height, int scaleFactor)                           \
    {                                                                                                   \
        return orv_##name(src, srcStep, value, dst, dstStep, {width, height}, scaleFactor) == StatusOk; \
    }

#define VALUE_SRCDST_SCALED(name, operation, T, Value, channels)                                                          \
    bool ImageProcessingWrapper::name(Value value, T* srcDst, int srcDstStep, int width, int height,                      \
                                      int scaleFactor)                                                                    \
    {                                                                                                                     \
        return in_place(srcDst, srcDstStep, width, height, channels, [=](const auto& tile) {                              \
                   return orv_##operation(tile.src, tile.srcStep, value, tile.dst, tile.dstStep, tile.size, scaleFactor); \
               }) == StatusOk;                                                                                            \
    }

SRC_SRC_DST_SCALED(Add_8u_C1, unsigned char)
SRC_SRC_DST_SCALED(Add_8u_C3, unsigned char)
SRC_SRC_DST_SCALED(Add_8u_C4, unsigned char)
SRC_SRC_DST_SCALED(Add_16u_C1, unsigned short)
SRC_SRC_DST_SCALED(Add_16s_C1, short)

SRC_SRC_DST_SCALED(Sub_8u_C1, unsigned char)
SRC_SRC_DST_SCALED(Sub_8u_C3, unsigned char)
SRC_SRC_DST_SCALED(Sub_8u_C4, unsigned char)
SRC_SRC_DST_SCALED(Sub_16u_C1, unsigned short)
SRC_SRC_DST_SCALED(Sub_16s_C1, short)

SRC_SRC_DST_SCALED(Mul_8u_C1, unsigned char)
SRC_SRC_DST_SCALED(Mul_8u_C3, unsigned char)
SRC_SRC_DST_SCALED(Mul_8u_C4, unsigned char)
SRC_SRC_DST_SCALED(Mul_16u_C1, unsigned short)
SRC_SRC_DST_SCALED(Mul_16s_C1, short)

SRC_SRC_DST_SCALED(Div_8u_C1, unsigned char)
SRC_SRC_DST_SCALED(Div_8u_C3, unsigned char)
SRC_SRC_DST_SCALED(Div_8u_C4, unsigned char)
SRC_SRC_DST_SCALED(Div_16u_C1, unsigned short)
SRC_SRC_DST_SCALED(Div_16s_C1, short)

SRC_SRCDST_SCALED(Add_8u_C1I, Add_8u_C1, unsigned char, 1)
SRC_SRCDST_SCALED(Add_8u_C3I, Add_8u_C3, unsigned char, 3)
SRC_SRCDST_SCALED(Add_8u_C4I, Add_8u_C4, unsigned char, 4)
SRC_SRCDST_SCALED(Add_16u_C1I, Add_16u_C1, unsigned short, 1)
SRC_SRCDST_SCALED(Add_16s_C1I, Add_16s_C1, short, 1)

SRC_SRCDST_SCALED(Sub_8u_C1I, Sub_8u_C1, unsigned char, 1)
SRC_SRCDST_SCALED(Sub_8u_C3I, Sub_8u_C3, unsigned char, 3)
SRC_SRCDST_SCALED(Sub_8u_C4I, Sub_8u_C4, unsigned char, 4)
SRC_SRCDST_SCALED(Sub_16u_C1I, Sub_16u_C1, unsigned short, 1)
SRC_SRCDST_SCALED(Sub_16s_C1I, Sub_16s_C1, short, 1)

SRC_SRCDST_SCALED(Mul_8u_C1I, Mul_8u_C1, unsigned char, 1)
SRC_SRCDST_SCALED(Mul_8u_C3I, Mul_8u_C3, unsigned char, 3)
SRC_SRCDST_SCALED(Mul_8u_C4I, Mul_8u_C4, unsigned char, 4)
SRC_SRCDST_SCALED(Mul_16u_C1I, Mul_16u_C1, unsigned short, 1)
SRC_SRCDST_SCALED(Mul_16s_C1I, Mul_16s_C1, short, 1)

SRC_SRCDST_SCALED_BY(in_place_checked, Div_8u_C1I, Div_8u_C1, unsigned char, 1)
SRC_SRCDST_SCALED_BY(in_place_checked, Div_8u_C3I, Div_8u_C3, unsigned char, 3)
SRC_SRCDST_SCALED_BY(in_place_checked, Div_8u_C4I, Div_8u_C4, unsigned char, 4)
SRC_SRCDST_SCALED(Div_16u_C1I, Div_16u_C1, unsigned short, 1)
SRC_SRCDST_SCALED_BY(in_place_checked, Div_16s_C1I, Div_16s_C1, short, 1)

SRC_VALUE_DST_SCALED(AddC_8u_C1, unsigned char, unsigned char)
SRC_VALUE_DST_SCALED(AddC_8u_C3, unsigned char, const unsigned char*)
SRC_VALUE_DST_SCALED(AddC_8u_C4, unsigned char, const unsigned char*)
SRC_VALUE_DST_SCALED(AddC_16u_C1, unsigned short, unsigned short)
SRC_VALUE_DST_SCALED(AddC_16s_C1, short, short)

SRC_VALUE_DST_SCALED(SubC_8u_C1, unsigned char, unsigned char)
SRC_VALUE_DST_SCALED(SubC_8u_C3, unsigned char, const unsigned char*)
SRC_VALUE_DST_SCALED(SubC_8u_C4, unsigned char, const unsigned char*)
SRC_VALUE_DST_SCALED(SubC_16u_C1, unsigned short, unsigned short)
SRC_VALUE_DST_SCALED(SubC_16s_C1, short, short)

SRC_VALUE_DST_SCALED(MulC_8u_C1, unsigned char, unsigned char)
SRC_VALUE_DST_SCALED(MulC_8u_C3, unsigned char, const unsigned char*)
SRC_VALUE_DST_SCALED(MulC_8u_C4, unsigned char, const unsigned char*)
SRC_VALUE_DST_SCALED(MulC_16u_C1, unsigned short, unsigned short)
SRC_VALUE_DST_SCALED(MulC_16s_C1, short, short)

SRC_VALUE_DST_SCALED(DivC_8u_C1, unsigned char, unsigned char)
SRC_VALUE_DST_SCALED(DivC_8u_C3, unsigned char, const unsigned char*)
SRC_VALUE_DST_SCALED(DivC_8u_C4, unsigned char, const unsigned char*)
SRC_VALUE_DST_SCALED(DivC_16u_C1, unsigned short, unsigned short)
SRC_VALUE_DST_SCALED(DivC_16s_C1, short, short)

VALUE_SRCDST_SCALED(AddC_8u_C3I, AddC_8u_C3, unsigned char, const unsigned char*, 3)
VALUE_SRCDST_SCALED(AddC_8u_C4I, AddC_8u_C4, unsigned char, const unsigned char*, 4)
VALUE_SRCDST_SCALED(AddC_16u_C1I, AddC_16u_C1, unsigned short, unsigned short, 1)
VALUE_SRCDST_SCALED(AddC_16s_C1I, AddC_16s_C1, short, short, 1)

VALUE_SRCDST_SCALED(SubC_8u_C1I, SubC_8u_C1, unsigned char, unsigned char, 1)
VALUE_SRCDST_SCALED(SubC_8u_C3I, SubC_8u_C3, unsigned char, const unsigned char*, 3)
VALUE_SRCDST_SCALED(SubC_8u_C4I, SubC_8u_C4, unsigned char, const unsigned char*, 4)
VALUE_SRCDST_SCALED(SubC_16u_C1I, SubC_16u_C1, unsigned short, unsigned short, 1)
VALUE_SRCDST_SCALED(SubC_16s_C1I, SubC_16s_C1, short, short, 1)

VALUE_SRCDST_SCALED(MulC_8u_C1I, MulC_8u_C1, unsigned char, unsigned char, 1)
VALUE_SRCDST_SCALED(MulC_8u_C3I, MulC_8u_C3, unsigned char, const unsigned char*, 3)
VALUE_SRCDST_SCALED(MulC_8u_C4I, MulC_8u_C4, unsigned char, const unsigned char*, 4)
VALUE_SRCDST_SCALED(MulC_16u_C1I, MulC_16u_C1, unsigned short, unsigned short, 1)
VALUE_SRCDST_SCALED(MulC_16s_C1I, MulC_16s_C1, short, short, 1)

VALUE_SRCDST_SCALED(DivC_8u_C1I, DivC_8u_C1, unsigned char, unsigned char, 1)
VALUE_SRCDST_SCALED(DivC_8u_C3I, DivC_8u_C3, unsigned char, const unsigned char*, 3)
VALUE_SRCDST_SCALED(DivC_8u_C4I, DivC_8u_C4, unsigned char, const unsigned char*, 4)
VALUE_SRCDST_SCALED(DivC_16s_C1I, DivC_16s_C1, short, short, 1)

// Intended: these two have always been bound to another operation than the one they are named after,
// and hosts depend on what they compute. AddC_8u_C1I multiplies, DivC_16u_C1I subtracts.
VALUE_SRCDST_SCALED(AddC_8u_C1I, MulC_8u_C1, unsigned char, unsigned char, 1)
VALUE_SRCDST_SCALED(DivC_16u_C1I, SubC_16u_C1, unsigned short, unsigned short, 1)

#undef SRC_SRC_DST_SCALED
#undef SRC_SRCDST_SCALED
#undef SRC_SRCDST_SCALED_BY
#undef SRC_VALUE_DST_SCALED
#undef VALUE_SRCDST_SCALED
