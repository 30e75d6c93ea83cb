// One picture over another.
#pragma once

#include "core/shapes.h"

namespace orv {

using SrcSrcDstPremultiplied = Status(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, Size roi, int premultiplied);
using SrcSrcAlphaDst = Status(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                              unsigned char alpha, unsigned char* dst, int dstStep, Size roi);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/colour/alpha.inc"
#undef KERNEL

}  // namespace orv
