// Bitwise operations and shifts.
#include "image/bits/bitwise.h"

#include "ImageProcessingWrapper.h"
#include "facade/in_place.h"

using namespace orv;

#define SRC_SRC_DST(name, T)                                                                          \
    bool ImageProcessingWrapper::name(const T* src1, int src1Step, const T* src2, int src2Step,       \
                                      T* dst, int dstStep, int width, int height)                     \
    {                                                                                                 \
        return orv_##name(src1, src1Step, src2, src2Step, dst, dstStep, {width, height}) == StatusOk; \
    }

#define SRC_SRCDST(name, operation, T, channels)                                                                    \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, T* srcDst, int srcDstStep, int width, int height)  \
    {                                                                                                               \
        return in_place_checked(srcDst, srcDstStep, width, height, channels, [=](const auto& tile) {                \
                   return orv_##operation(tile.src, tile.srcStep, src, srcStep, tile.dst, tile.dstStep, tile.size); \
               }) == StatusOk;                                                                                      \
    }

// Value: T, or const T* for one value per channel; unsigned for counts.
#define SRC_VALUE_DST(name, operation, T, Value)                                                                          \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, Value value, T* dst, int dstStep, int width, int height) \
    {                                                                                                                     \
        return orv_##operation(src, srcStep, value, dst, dstStep, {width, height}) == StatusOk;                           \
    }

#define VALUE_SRCDST(name, operation, T, Value, channels)                                                    \
    bool ImageProcessingWrapper::name(Value value, T* srcDst, int srcDstStep, int width, int height)         \
    {                                                                                                        \
        return in_place_checked(srcDst, srcDstStep, width, height, channels, [=](const auto& tile) {         \
                   return orv_##operation(tile.src, tile.srcStep, value, tile.dst, tile.dstStep, tile.size); \
               }) == StatusOk;                                                                               \
    }

#define VALUES_SRCDST(name, operation, T, channels) VALUE_SRCDST(name, operation, T, const T*, channels)

#define SRCDST_VALUE(name, operation, T)                                                                     \
    bool ImageProcessingWrapper::name(T* srcDst, int srcDstStep, T value, int width, int height)             \
    {                                                                                                        \
        return in_place_checked(srcDst, srcDstStep, width, height, 1, [=](const auto& tile) {                \
                   return orv_##operation(tile.src, tile.srcStep, value, tile.dst, tile.dstStep, tile.size); \
               }) == StatusOk;                                                                               \
    }

#define SRC_DST(name, T)                                                                                     \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, T* dst, int dstStep, int width, int height) \
    {                                                                                                        \
        return orv_##name(src, srcStep, dst, dstStep, {width, height}) == StatusOk;                          \
    }

#define SRCDST(name, operation, T, channels)                                                          \
    bool ImageProcessingWrapper::name(T* srcDst, int srcDstStep, int width, int height)               \
    {                                                                                                 \
        return in_place_checked(srcDst, srcDstStep, width, height, channels, [=](const auto& tile) {  \
                   return orv_##operation(tile.src, tile.srcStep, tile.dst, tile.dstStep, tile.size); \
               }) == StatusOk;                                                                        \
    }

SRC_SRC_DST(And_8u_C1, unsigned char)
SRC_SRC_DST(And_8u_C3, unsigned char)
SRC_SRC_DST(And_8u_C4, unsigned char)
SRC_SRC_DST(And_16u_C1, unsigned short)
SRC_SRC_DST(And_32s_C1, int)

SRC_SRC_DST(Or_8u_C1, unsigned char)
SRC_SRC_DST(Or_8u_C3, unsigned char)
SRC_SRC_DST(Or_8u_C4, unsigned char)
SRC_SRC_DST(Or_16u_C1, unsigned short)
SRC_SRC_DST(Or_32s_C1, int)

SRC_SRC_DST(Xor_8u_C1, unsigned char)
SRC_SRC_DST(Xor_8u_C3, unsigned char)
SRC_SRC_DST(Xor_8u_C4, unsigned char)
SRC_SRC_DST(Xor_16u_C1, unsigned short)
SRC_SRC_DST(Xor_32s_C1, int)

SRC_SRCDST(And_8u_C1I, And_8u_C1, unsigned char, 1)
SRC_SRCDST(And_8u_C3I, And_8u_C3, unsigned char, 3)
SRC_SRCDST(And_8u_C4I, And_8u_C4, unsigned char, 4)
SRC_SRCDST(And_16u_C1I, And_16u_C1, unsigned short, 1)
SRC_SRCDST(And_32s_C1I, And_32s_C1, int, 1)

SRC_SRCDST(Or_8u_C1I, Or_8u_C1, unsigned char, 1)
SRC_SRCDST(Or_8u_C3I, Or_8u_C3, unsigned char, 3)
SRC_SRCDST(Or_8u_C4I, Or_8u_C4, unsigned char, 4)
SRC_SRCDST(Or_16u_C1I, Or_16u_C1, unsigned short, 1)
SRC_SRCDST(Or_32s_C1I, Or_32s_C1, int, 1)

SRC_SRCDST(Xor_8u_C1I, Xor_8u_C1, unsigned char, 1)
SRC_SRCDST(Xor_8u_C3I, Xor_8u_C3, unsigned char, 3)
SRC_SRCDST(Xor_8u_C4I, Xor_8u_C4, unsigned char, 4)
SRC_SRCDST(Xor_16u_C1I, Xor_16u_C1, unsigned short, 1)
SRC_SRCDST(Xor_32s_C1I, Xor_32s_C1, int, 1)

SRC_VALUE_DST(AndC_8u_C1, AndC_8u_C1, unsigned char, unsigned char)
SRC_VALUE_DST(AndC_8u_C3, AndC_8u_C3, unsigned char, const unsigned char*)
SRC_VALUE_DST(AndC_8u_C4, AndC_8u_C4, unsigned char, const unsigned char*)
SRC_VALUE_DST(AndC_16u_C1, AndC_16u_C1, unsigned short, unsigned short)
SRC_VALUE_DST(AndC_32s_C1, AndC_32s_C1, int, int)

SRC_VALUE_DST(OrC_8u_C1, OrC_8u_C1, unsigned char, unsigned char)
SRC_VALUE_DST(OrC_8u_C3, OrC_8u_C3, unsigned char, const unsigned char*)
SRC_VALUE_DST(OrC_8u_C4, OrC_8u_C4, unsigned char, const unsigned char*)
SRC_VALUE_DST(OrC_16u_C1, OrC_16u_C1, unsigned short, unsigned short)
SRC_VALUE_DST(OrC_32s_C1, OrC_32s_C1, int, int)

SRC_VALUE_DST(XorC_8u_C1, XorC_8u_C1, unsigned char, unsigned char)
SRC_VALUE_DST(XorC_8u_C3, XorC_8u_C3, unsigned char, const unsigned char*)
SRC_VALUE_DST(XorC_8u_C4, XorC_8u_C4, unsigned char, const unsigned char*)
SRC_VALUE_DST(XorC_16u_C1, XorC_16u_C1, unsigned short, unsigned short)
SRC_VALUE_DST(XorC_32s_C1, XorC_32s_C1, int, int)

// One channel: the value follows the step, unlike in every other in-place form.
SRCDST_VALUE(AndC_8u_C1I, AndC_8u_C1, unsigned char)
SRCDST_VALUE(AndC_16u_C1I, AndC_16u_C1, unsigned short)
SRCDST_VALUE(AndC_32s_C1I, AndC_32s_C1, int)
SRCDST_VALUE(OrC_8u_C1I, OrC_8u_C1, unsigned char)
SRCDST_VALUE(OrC_16u_C1I, OrC_16u_C1, unsigned short)
SRCDST_VALUE(OrC_32s_C1I, OrC_32s_C1, int)
SRCDST_VALUE(XorC_8u_C1I, XorC_8u_C1, unsigned char)
SRCDST_VALUE(XorC_16u_C1I, XorC_16u_C1, unsigned short)
SRCDST_VALUE(XorC_32s_C1I, XorC_32s_C1, int)

VALUES_SRCDST(AndC_8u_C3I, AndC_8u_C3, unsigned char, 3)
VALUES_SRCDST(AndC_8u_C4I, AndC_8u_C4, unsigned char, 4)
VALUES_SRCDST(OrC_8u_C3I, OrC_8u_C3, unsigned char, 3)
VALUES_SRCDST(OrC_8u_C4I, OrC_8u_C4, unsigned char, 4)
VALUES_SRCDST(XorC_8u_C3I, XorC_8u_C3, unsigned char, 3)
VALUES_SRCDST(XorC_8u_C4I, XorC_8u_C4, unsigned char, 4)

SRC_DST(Not_8u_C1, unsigned char)
SRC_DST(Not_8u_C3, unsigned char)
SRC_DST(Not_8u_C4, unsigned char)
SRCDST(Not_8u_C1I, Not_8u_C1, unsigned char, 1)
SRCDST(Not_8u_C3I, Not_8u_C3, unsigned char, 3)
SRCDST(Not_8u_C4I, Not_8u_C4, unsigned char, 4)

SRC_VALUE_DST(LShiftC_8u_C1R, LShiftC_8u_C1, unsigned char, unsigned int)
SRC_VALUE_DST(LShiftC_8u_C3R, LShiftC_8u_C3, unsigned char, const unsigned int*)
SRC_VALUE_DST(LShiftC_8u_C4R, LShiftC_8u_C4, unsigned char, const unsigned int*)
SRC_VALUE_DST(LShiftC_16u_C1R, LShiftC_16u_C1, unsigned short, unsigned int)
SRC_VALUE_DST(LShiftC_32s_C1R, LShiftC_32s_C1, int, unsigned int)

SRC_VALUE_DST(RShiftC_8u_C1R, RShiftC_8u_C1, unsigned char, unsigned int)
SRC_VALUE_DST(RShiftC_8u_C3R, RShiftC_8u_C3, unsigned char, const unsigned int*)
SRC_VALUE_DST(RShiftC_8u_C4R, RShiftC_8u_C4, unsigned char, const unsigned int*)
SRC_VALUE_DST(RShiftC_16u_C1R, RShiftC_16u_C1, unsigned short, unsigned int)
SRC_VALUE_DST(RShiftC_16s_C1R, RShiftC_16s_C1, short, unsigned int)
SRC_VALUE_DST(RShiftC_32s_C1R, RShiftC_32s_C1, int, unsigned int)

VALUE_SRCDST(LShiftC_8u_C1IR, LShiftC_8u_C1, unsigned char, unsigned int, 1)
VALUE_SRCDST(LShiftC_8u_C3IR, LShiftC_8u_C3, unsigned char, const unsigned int*, 3)
VALUE_SRCDST(LShiftC_8u_C4IR, LShiftC_8u_C4, unsigned char, const unsigned int*, 4)
VALUE_SRCDST(LShiftC_16u_C1IR, LShiftC_16u_C1, unsigned short, unsigned int, 1)
VALUE_SRCDST(LShiftC_32s_C1IR, LShiftC_32s_C1, int, unsigned int, 1)

VALUE_SRCDST(RShiftC_8u_C1IR, RShiftC_8u_C1, unsigned char, unsigned int, 1)
VALUE_SRCDST(RShiftC_8u_C3IR, RShiftC_8u_C3, unsigned char, const unsigned int*, 3)
VALUE_SRCDST(RShiftC_8u_C4IR, RShiftC_8u_C4, unsigned char, const unsigned int*, 4)
VALUE_SRCDST(RShiftC_16u_C1IR, RShiftC_16u_C1, unsigned short, unsigned int, 1)
VALUE_SRCDST(RShiftC_16s_C1IR, RShiftC_16s_C1, short, unsigned int, 1)
VALUE_SRCDST(RShiftC_32s_C1IR, RShiftC_32s_C1, int, unsigned int, 1)

#undef SRC_SRC_DST
#undef SRC_SRCDST
#undef SRC_VALUE_DST
#undef VALUE_SRCDST
#undef VALUES_SRCDST
#undef SRCDST_VALUE
#undef SRC_DST
#undef SRCDST
