// The argument lists that many operations share. T is the pixel type of the operands.
#pragma once

#include "core/operation.h"

namespace orv {

template <class T>
using SrcDst = Status(const T* src, int srcStep, T* dst, int dstStep, Size roi);

template <class From, class To>
using Conversion = Status(const From* src, int srcStep, To* dst, int dstStep, Size roi);

template <class T>
using ValueDst = Status(T value, T* dst, int dstStep, Size roi);

template <class T>
using ValuesDst = Status(const T* values, T* dst, int dstStep, Size roi);

template <class T>
using SrcDstAxis = Status(const T* src, int srcStep, T* dst, int dstStep, Size roi, int axis);

template <class T>
using SrcDstOrder = Status(const T* src, int srcStep, T* dst, int dstStep, Size roi, const int* order);

template <class T>
using SrcSrcDstScaled = Status(const T* src1, int src1Step, const T* src2, int src2Step, T* dst,
                               int dstStep, Size roi, int scaleFactor);

template <class T>
using SrcValueDstScaled = Status(const T* src, int srcStep, T value, T* dst, int dstStep, Size roi,
                                 int scaleFactor);

template <class T>
using SrcSrcDst = Status(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep, Size roi);

template <class T>
using SrcValueDst = Status(const T* src, int srcStep, T value, T* dst, int dstStep, Size roi);

template <class T>
using SrcValuesDst = Status(const T* src, int srcStep, const T* values, T* dst, int dstStep, Size roi);

template <class T>
using SrcValuesDstScaled = Status(const T* src, int srcStep, const T* values, T* dst, int dstStep,
                                  Size roi, int scaleFactor);

// Functions of vectors of len elements.
template <class T>
using VectorSrcDst = Status(const T* src, T* dst, int len);

template <class T>
using VectorSrcDstDst = Status(const T* src, T* dst1, T* dst2, int len);

template <class T>
using VectorSrcSrcDst = Status(const T* src1, const T* src2, T* dst, int len);

// What a region comes down to: results per channel, or one value with its position.
template <class T, class R>
using SrcResults = Status(const T* src, int srcStep, Size roi, R* results);

template <class T, class R>
using SrcResultsHint = Status(const T* src, int srcStep, Size roi, R* results, int hint);

template <class T, class R>
using SrcTwoResults = Status(const T* src, int srcStep, Size roi, R* first, R* second);

template <class T>
using SrcPosition = Status(const T* src, int srcStep, Size roi, T* value, int* column, int* row);

template <class T>
using SrcHistogram = Status(const T* src, int srcStep, Size roi, int* histogram, int* levels, int levelCount,
                            int lower, int upper);

template <class From, class To>
using SrcSrcAccumulate = Status(const From* src1, int src1Step, const From* src2, int src2Step, To* srcDst,
                                int srcDstStep, Size roi);

// --- Vectors --------------------------------------------------------------------------------------

template <class T>
using VecFilled = Status(T* dst, Length len);

template <class From, class To>
using VecDst = Status(const From* src, To* dst, Length len);

template <class From, class To>
using VecVecJoined = Status(const From* src1, const From* src2, To* dst, Length len);

template <class T>
using VecVecDst = Status(const T* src1, const T* src2, T* dst, Length len);

template <class T>
using VecValueDst = Status(const T* src, T value, T* dst, Length len);

template <class T>
using VecVecDstScaled = Status(const T* src1, const T* src2, T* dst, Length len, int scaleFactor);

template <class T>
using VecValueDstScaled = Status(const T* src, T value, T* dst, Length len, int scaleFactor);

}  // namespace orv
