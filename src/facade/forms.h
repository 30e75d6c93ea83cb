// The shapes of the methods: a row of a facade is one method, and its shape is named after its arguments.
//
//     SHAPE(name, operation, types..., channels, types of what follows the size...)
//
// `types` are those of the operands in the order of the arguments, where Value is T, or const T* for one value per
// channel. In-place shapes give the channels of a pixel. A method that departs from the rule, true for StatusOk and
// nothing added, says so by a word round its operation. Only sources of the facade include this: its macros end with
// them. What a source defines itself it undefines.
#pragma once

#include "ImageProcessingWrapper.h"
#include "SignalProcessingWrapper.h"
#include "core/operation.h"
#include "core/parameters.h"
#include "facade/in_memory.h"
#include "facade/in_place.h"
#include "facade/signal/in_place_vector.h"
#include "image/interpolation.h"

// The Windows DLL has its facade twice, for two ABIs of C++. A C function is the same in both, and there only once: the
// half for Microsoft's ABI does without.
#if defined(_MSC_VER)
#define ORV_C_FUNCTIONS 0
#else
#define ORV_C_FUNCTIONS 1
#endif

namespace orv {

using ScaleFactor = int;

// --- Words round an operation ---------------------------------------------------------------------
//
// The outermost decides what becomes of the status. Arguments go through as references: see in_memory.h.

template <class Inner>
struct Word {
    const Inner& operation;

    template <class... Args>
    Status operator()(const Args&... args) const
    {
        return operation(args...);
    }
};

// True on failure and false on success.
template <class Inner>
struct Inverted : Word<Inner> {};

// True whatever the status.
template <class Inner>
struct AlwaysTrue : Word<Inner> {};

// In place, steps below 1 are refused before anything else: see in_place_checked.
template <class Inner>
struct StepsChecked : Word<Inner> {};

// In place, the image is source and destination: the operation says itself that it may be, so there is no copy.
template <class Inner>
struct OntoItself : Word<Inner> {};

// Floats and doubles go on by their addresses, unread.
template <class Inner>
struct ByAddress {
    const Inner& operation;

    static const float* passed(const float& value) { return &value; }
    static const double* passed(const double& value) { return &value; }
    template <class T>
    static const T& passed(const T& value)
    {
        return value;
    }
    template <class... Args>
    Status operator()(const Args&... args) const
    {
        return operation(passed(args)...);
    }
};

// A constant of the method's own behind the caller's arguments.
template <class Inner, class Constant>
struct With {
    const Inner& operation;
    Constant constant;

    template <class... Args>
    Status operator()(const Args&... args) const
    {
        return operation(args..., constant);
    }
};

template <class Inner>
Inverted<Inner> inverted(const Inner& operation)
{
    return {{operation}};
}
template <class Inner>
AlwaysTrue<Inner> always_true(const Inner& operation)
{
    return {{operation}};
}
template <class Inner>
StepsChecked<Inner> steps_checked(const Inner& operation)
{
    return {{operation}};
}
template <class Inner>
OntoItself<Inner> onto_itself(const Inner& operation)
{
    return {{operation}};
}
template <class Inner>
ByAddress<Inner> by_address(const Inner& operation)
{
    return {operation};
}
template <class Inner, class Constant>
With<Inner, Constant> with(const Inner& operation, Constant constant)
{
    return {operation, constant};
}

// What a method makes of the status.
template <class Operation>
bool result(const Operation&, Status status)
{
    return status == StatusOk;
}
template <class Inner>
bool result(const Inverted<Inner>&, Status status)
{
    return status != StatusOk;
}
template <class Inner>
bool result(const AlwaysTrue<Inner>&, Status)
{
    return true;
}

template <class Operation, class... Args>
bool call(const Operation& operation, const Args&... args)
{
    return result(operation, operation(args...));
}

// How an operation is called in place.
template <class Operation, class T, class Body>
Status status_in_place(const Operation&, T* srcDst, int step, int width, int height, int channels, Body body)
{
    return in_place(srcDst, step, width, height, channels, body);
}
template <class Inner, class T, class Body>
Status status_in_place(const StepsChecked<Inner>&, T* srcDst, int step, int width, int height, int channels, Body body)
{
    return in_place_checked(srcDst, step, width, height, channels, body);
}
template <class Inner, class T, class Body>
Status status_in_place(const OntoItself<Inner>&, T* srcDst, int step, int width, int height, int, Body body)
{
    return body(Tile<T>{srcDst, step, srcDst, step, {width, height}});
}
// What becomes of the status does not change how it is called.
template <class Inner, class T, class Body>
Status status_in_place(const AlwaysTrue<Inner>& word, T* srcDst, int step, int width, int height, int channels,
                       Body body)
{
    return status_in_place(word.operation, srcDst, step, width, height, channels, body);
}

// And what its method makes of the status.
template <class Operation, class T, class Body>
bool call_in_place(const Operation& operation, T* srcDst, int step, int width, int height, int channels, Body body)
{
    return result(operation, status_in_place(operation, srcDst, step, width, height, channels, body));
}

// The length of a vector, for kernels that take it as such and for those that take a number.
struct Count {
    int count;
    operator int() const { return count; }
    operator Length() const { return {count}; }
};

}  // namespace orv

// --- Images ---------------------------------------------------------------------------------------

// (name, operation, T, ...): from an image to results.
#define SRC(name, operation, ...)                                                                       \
    bool ImageProcessingWrapper::name(const FIRST(__VA_ARGS__)* src, int srcStep, int width, int height \
                                      PARAMETERS(__VA_ARGS__))                                          \
    {                                                                                                   \
        return call(operation, src, srcStep, Size{width, height} ARGUMENTS(__VA_ARGS__));               \
    }

// (name, operation, From, To, ...)
#define SRC_DST(name, operation, From, ...)                                                               \
    bool ImageProcessingWrapper::name(const From* src, int srcStep, FIRST(__VA_ARGS__)* dst, int dstStep, \
                                      int width, int height PARAMETERS(__VA_ARGS__))                      \
    {                                                                                                     \
        return call(operation, src, srcStep, dst, dstStep, Size{width, height} ARGUMENTS(__VA_ARGS__));   \
    }

// (name, operation, From, To, ...)
#define SRC_SRC_DST(name, operation, From, ...)                                                       \
    bool ImageProcessingWrapper::name(const From* src1, int src1Step, const From* src2, int src2Step, \
                                      FIRST(__VA_ARGS__)* dst, int dstStep, int width, int height     \
                                      PARAMETERS(__VA_ARGS__))                                        \
    {                                                                                                 \
        return call(operation, src1, src1Step, src2, src2Step, dst, dstStep,                          \
                    Size{width, height} ARGUMENTS(__VA_ARGS__));                                      \
    }

// (name, operation, From, Value, To, ...)
#define SRC_VALUE_DST(name, operation, From, Value, ...)                                                       \
    bool ImageProcessingWrapper::name(const From* src, int srcStep, Value value, FIRST(__VA_ARGS__)* dst,      \
                                      int dstStep, int width, int height PARAMETERS(__VA_ARGS__))              \
    {                                                                                                          \
        return call(operation, src, srcStep, value, dst, dstStep, Size{width, height} ARGUMENTS(__VA_ARGS__)); \
    }

// (name, operation, Value, T)
#define VALUE_DST(name, operation, Value, T)                                                   \
    bool ImageProcessingWrapper::name(Value value, T* dst, int dstStep, int width, int height) \
    {                                                                                          \
        return call(operation, value, dst, dstStep, Size{width, height});                      \
    }

// (name, operation, T, channels, ...)
#define SRCDST(name, operation, T, ...)                                                                         \
    bool ImageProcessingWrapper::name(T* srcDst, int srcDstStep, int width, int height PARAMETERS(__VA_ARGS__)) \
    {                                                                                                           \
        return call_in_place(operation, srcDst, srcDstStep, width, height, FIRST(__VA_ARGS__),                  \
                             [=](const auto& tile) {                                                            \
            return operation(tile.src, tile.srcStep, tile.dst, tile.dstStep, tile.size ARGUMENTS(__VA_ARGS__)); \
        });                                                                                                     \
    }

// (name, operation, T, channels, ...)
#define SRC_SRCDST(name, operation, T, ...)                                                            \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, T* srcDst, int srcDstStep, int width, \
                                      int height PARAMETERS(__VA_ARGS__))                              \
    {                                                                                                  \
        return call_in_place(operation, srcDst, srcDstStep, width, height, FIRST(__VA_ARGS__),         \
                             [=](const auto& tile) {                                                   \
            return operation(src, srcStep, tile.src, tile.srcStep, tile.dst, tile.dstStep,             \
                             tile.size ARGUMENTS(__VA_ARGS__));                                        \
        });                                                                                            \
    }

// (name, operation, Value, T, channels, ...)
#define VALUE_SRCDST(name, operation, Value, T, ...)                                     \
    bool ImageProcessingWrapper::name(Value value, T* srcDst, int srcDstStep, int width, \
                                      int height PARAMETERS(__VA_ARGS__))                \
    {                                                                                    \
        VALUE_IN_PLACE(operation, __VA_ARGS__)                                           \
    }

// (name, operation, T, Value, channels, ...)
#define SRCDST_VALUE(name, operation, T, Value, ...)                                     \
    bool ImageProcessingWrapper::name(T* srcDst, int srcDstStep, Value value, int width, \
                                      int height PARAMETERS(__VA_ARGS__))                \
    {                                                                                    \
        VALUE_IN_PLACE(operation, __VA_ARGS__)                                           \
    }

#define VALUE_IN_PLACE(operation, ...)                                                     \
    const auto& kept = in_memory(value);                                                   \
    return call_in_place(operation, srcDst, srcDstStep, width, height, FIRST(__VA_ARGS__), \
                         [=, &kept](const auto& tile) {                                    \
        return operation(tile.src, tile.srcStep, kept, tile.dst, tile.dstStep,             \
                         tile.size ARGUMENTS(__VA_ARGS__));                                \
    });

// (name, operation, T, ...): between images of two sizes, and between rectangles of two images.
#define SRC_SIZE_DST_SIZE(name, operation, ...)                                                                  \
    bool ImageProcessingWrapper::name(const FIRST(__VA_ARGS__)* src, int srcWidth, int srcHeight, int srcStep,   \
                                      FIRST(__VA_ARGS__)* dst, int dstStep, int dstWidth,                        \
                                      int dstHeight PARAMETERS(__VA_ARGS__))                                     \
    {                                                                                                            \
        return call(operation, src, Size{srcWidth, srcHeight}, srcStep, dst, dstStep,                            \
                    Size{dstWidth, dstHeight} ARGUMENTS(__VA_ARGS__));                                           \
    }
#define SRC_RECTANGLE_DST_RECTANGLE(name, operation, ...)                                                        \
    bool ImageProcessingWrapper::name(const FIRST(__VA_ARGS__)* src, int srcWidth, int srcHeight, int srcStep,   \
                                      int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,               \
                                      FIRST(__VA_ARGS__)* dst, int dstStep, int dstRoiX, int dstRoiY,            \
                                      int dstRoiWidth, int dstRoiHeight PARAMETERS(__VA_ARGS__))                 \
    {                                                                                                            \
        return call(operation, src, Size{srcWidth, srcHeight}, srcStep,                                          \
                    Rectangle{srcRoiX, srcRoiY, srcRoiWidth, srcRoiHeight}, dst, dstStep,                        \
                    Rectangle{dstRoiX, dstRoiY, dstRoiWidth, dstRoiHeight} ARGUMENTS(__VA_ARGS__));              \
    }

// --- Vectors --------------------------------------------------------------------------------------

// (name, operation, From, To, ...)
#define VECTOR_SRC_DST(name, operation, From, ...)                                                                \
    bool SignalProcessingWrapper::name(const From* src, FIRST(__VA_ARGS__)* dst, int len PARAMETERS(__VA_ARGS__)) \
    {                                                                                                             \
        return call(operation, src, dst, Count{len} ARGUMENTS(__VA_ARGS__));                                      \
    }

// (name, operation, From, To, ...)
#define VECTOR_SRC_SRC_DST(name, operation, From, ...)                                              \
    bool SignalProcessingWrapper::name(const From* src1, const From* src2, FIRST(__VA_ARGS__)* dst, \
                                       int len PARAMETERS(__VA_ARGS__))                             \
    {                                                                                               \
        return call(operation, src1, src2, dst, Count{len} ARGUMENTS(__VA_ARGS__));                 \
    }

// (name, operation, From, Value, To, ...)
#define VECTOR_SRC_VALUE_DST(name, operation, From, Value, ...)                               \
    bool SignalProcessingWrapper::name(const From* src, Value value, FIRST(__VA_ARGS__)* dst, \
                                       int len PARAMETERS(__VA_ARGS__))                       \
    {                                                                                         \
        return call(operation, src, value, dst, Count{len} ARGUMENTS(__VA_ARGS__));           \
    }

// (name, operation, T)
#define VECTOR_SRCDST(name, operation, T)                                                             \
    bool SignalProcessingWrapper::name(T* srcDst, int len)                                            \
    {                                                                                                 \
        return result(operation, in_place_vector(srcDst, len, [](const T* copy, T* place, Length n) { \
            return operation(copy, place, Count{n.count});                                            \
        }));                                                                                          \
    }

// (name, operation, T, ...)
#define VECTOR_SRC_SRCDST(name, operation, ...) VECTOR_SRC_SRCDST_OF(name, operation, FIRST(__VA_ARGS__), __VA_ARGS__)
#define VECTOR_SRC_SRCDST_OF(name, operation, T, ...)                                                  \
    bool SignalProcessingWrapper::name(const T* src, T* srcDst, int len PARAMETERS(__VA_ARGS__))       \
    {                                                                                                  \
        return result(operation, in_place_vector(srcDst, len, [=](const T* copy, T* place, Length n) { \
            return operation(src, copy, place, n ARGUMENTS(__VA_ARGS__));                              \
        }));                                                                                           \
    }

// (name, operation, T, Value, ...) and (name, operation, Value, T, ...): there are two orders of arguments.
#define VECTOR_SRCDST_VALUE(name, operation, T, ...)                                                         \
    bool SignalProcessingWrapper::name(T* srcDst, FIRST(__VA_ARGS__) value, int len PARAMETERS(__VA_ARGS__)) \
    {                                                                                                        \
        VECTOR_VALUE_IN_PLACE(operation, __VA_ARGS__)                                                        \
    }
#define VECTOR_VALUE_SRCDST(name, operation, Value, ...)                                                         \
    bool SignalProcessingWrapper::name(Value value, FIRST(__VA_ARGS__)* srcDst, int len PARAMETERS(__VA_ARGS__)) \
    {                                                                                                            \
        VECTOR_VALUE_IN_PLACE(operation, __VA_ARGS__)                                                            \
    }
#define VECTOR_VALUE_IN_PLACE(operation, ...)                                                                   \
    const auto& kept = in_memory(value);                                                                        \
    return result(operation, in_place_vector(srcDst, len, [=, &kept](const auto* copy, auto* place, Length n) { \
        return operation(copy, kept, place, n ARGUMENTS(__VA_ARGS__));                                          \
    }));
