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

namespace alpha {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/colour/alpha.inc"
}
namespace w7 {
#include "image/colour/alpha.inc"
}
namespace h9 {
#include "image/colour/alpha.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace p8 = w7;
namespace g9 = w7;
}  // namespace alpha

}  // namespace orv
