// Every operation of every registry, at every level that this processor runs, against the plain variant: the same
// bytes, in and around the destination, the same status, and the processor's state as it was.
//
// Most arguments follow from the signature (support/compare_levels.cpp), so a new operation of the kinds known
// there needs no line of test code; one with plans, records or strides gets an overload of make() here. A family
// that is not read does not exist: the list is CMake's.
#include <algorithm>
#include <climits>
#include <cmath>

#include "families.h"
#include "gmock/gmock.h"
#include "support/compare_levels.h"
#include "support/guarded_block.h"

namespace test {
namespace {

using orv::Operation;
using orv::Rectangle;
using orv::Size;
using orv::Status;

// --- Calls with memory of their own making --------------------------------------------------------

// Blocks that end or start at a page that cannot be touched, and a call that uses them. Emulators read lanes that a
// masked load leaves out: there a little room follows each block.
class TypedTrial : public Trial {
public:
    explicit TypedTrial(Generator& g) : g_(g) {}

    template <class T>
    T* block(std::ptrdiff_t count, Fill fill)
    {
        const auto n = static_cast<std::size_t>(count);
        blocks_.push_back(
            {std::make_unique<GuardedBlock>(n * sizeof(T) + (left_nan_wins() ? 0 : 64), uniform(g_, 0, 3) != 0),
             n * sizeof(T),
             {}});
        T* const p = blocks_.back().memory->as<T>();
        auto&& pixels = generator_of_pixels(g_);
        for (std::size_t i = 0; i < n; ++i) p[i] = random_value<T>(pixels, fill);
        return p;
    }
    template <class Run>
    std::unique_ptr<Trial> done(std::unique_ptr<Trial> self, Run run)
    {
        run_ = run;
        for (Block& b : blocks_) b.before.assign(b.memory->as<>(), b.memory->as<>() + b.bytes);
        return self;
    }
    // A result that is no block.
    template <class T>
    void report(T value)
    {
        const auto* const p = reinterpret_cast<const unsigned char*>(&value);
        reported_.insert(reported_.end(), p, p + sizeof(T));
    }

    Status call(Kernel kernel) override { return run_(kernel); }
    void reset() override
    {
        reported_.clear();
        for (Block& b : blocks_) std::memcpy(b.memory->as<>(), b.before.data(), b.bytes);
    }
    Bytes outcome() override
    {
        Bytes all = reported_;
        for (const Block& b : blocks_) all.insert(all.end(), b.memory->as<>(), b.memory->as<>() + b.bytes);
        return all;
    }

private:
    struct Block {
        std::unique_ptr<GuardedBlock> memory;
        std::size_t bytes;
        Bytes before;
    };
    Generator& g_;
    std::vector<Block> blocks_;
    std::function<Status(Kernel)> run_;
    Bytes reported_;
};

// make(trial, g) allocates the blocks and returns the call, a function of the typed kernel.
template <class TrialType = TypedTrial, class... Args, class Make>
void compare(const char* name, const Operation<Status(Args...)>& operation, Make make)
{
    Kernel variant[orv::kLevels];
    for (int level = 0; level < orv::kLevels; ++level)
        variant[level] = reinterpret_cast<Kernel>(operation.variant[level]);
    compare_levels(name, variant, [make](Generator& g, int) {
        auto trial = std::make_unique<TrialType>(g);
        TrialType& t = *trial;
        auto call = make(t, g);
        return t.done(std::move(trial),
                      [call](Kernel kernel) { return call(reinterpret_cast<Status (*)(Args...)>(kernel)); });
    });
}

// make(Of<signature>(), ...) makes the arguments of one that does not follow from its types.
template <class Signature> struct Of {};

template <class... Args>
auto with(Args... args)
{
    return [=](auto* kernel) { return kernel(args...); };
}

// --- Matrices -------------------------------------------------------------------------------------

// Rows or columns without a gap, or with one.
template <class T>
struct Matrix {
    T* base;
    int stride1, stride2, width, height;

    Matrix(TypedTrial& t, Generator& g, int columns, int rows, Fill fill = Fill::uniform) : width(columns), height(rows)
    {
        const int e = sizeof(T), gap = uniform(g, 0, 2) == 0 ? e * uniform(g, 1, 3) : 0;
        stride1 = e * width + gap, stride2 = e;
        if (uniform(g, 0, 3) == 0) stride1 = e, stride2 = e * height + gap;
        base =
            t.block<T>(((height - 1) * std::ptrdiff_t{stride1} + (width - 1) * std::ptrdiff_t{stride2}) / e + 1, fill);
    }
};
int random_side(Generator& g) { return uniform(g, 0, 9) == 0 ? uniform(g, 20, 70) / kSmaller : uniform(g, 1, 19); }
Fill random_number_fill(Generator& g) { return uniform(g, 0, 1) == 0 ? Fill::uniform : Fill::near_low; }

template <class T>
auto make(Of<orv::MatrixMatrixDst<T>>, const char*, TypedTrial& t, Generator& g)
{
    const int w = random_side(g), h = random_side(g);
    const Matrix<T> a(t, g, w, h), b(t, g, w, h), d(t, g, w, h);
    return with(a.base, a.stride1, a.stride2, b.base, b.stride1, b.stride2, d.base, d.stride1, d.stride2, w, h);
}
template <class T>
auto make(Of<orv::MatrixValueDst<T>>, const char*, TypedTrial& t, Generator& g)
{
    const int w = random_side(g), h = random_side(g);
    const Matrix<T> a(t, g, w, h), d(t, g, w, h);
    const T value = random_value<T>(g, Fill::uniform);
    return with(a.base, a.stride1, a.stride2, value, d.base, d.stride1, d.stride2, w, h);
}
template <class T>
auto make(Of<orv::MatrixProduct<T>>, const char* name, TypedTrial& t, Generator& g)
{
    const bool transposed = contains(name, "_tm_");
    const int inner = random_side(g), h = random_side(g), w = random_side(g);
    const Fill fill = random_number_fill(g);
    const Matrix<T> a(t, g, transposed ? h : inner, transposed ? inner : h, fill), b(t, g, w, inner, fill),
        d(t, g, w, h);
    return [=](auto* kernel) {
        return kernel(a.base, a.stride1, a.stride2, a.width, a.height, b.base, b.stride1, b.stride2, b.width,
                      b.height, d.base, d.stride1, d.stride2);
    };
}
template <class T>
auto make(Of<orv::MatrixVectorProduct<T>>, const char* name, TypedTrial& t, Generator& g)
{
    const bool transposed = contains(name, "_tv_");
    const int inner = random_side(g), h = random_side(g), gap = 1 + uniform(g, 0, 2) / 2,
              e = static_cast<int>(sizeof(T)) * gap;
    const Matrix<T> a(t, g, transposed ? h : inner, transposed ? inner : h);
    const T* const x = t.block<T>((inner - 1) * gap + 1, Fill::uniform);
    T* const y = t.block<T>((h - 1) * gap + 1, Fill::uniform);
    return with(a.base, a.stride1, a.stride2, a.width, a.height, x, e, inner, y, e);
}
template <class T>
auto make(Of<orv::MatrixDst<T>>, const char*, TypedTrial& t, Generator& g)
{
    const int w = random_side(g), h = random_side(g);
    const Matrix<T> a(t, g, w, h, Fill::near_high), d(t, g, h, w);
    return with(a.base, a.stride1, a.stride2, w, h, d.base, d.stride1, d.stride2);
}
template <class T>
auto make(Of<orv::MatricesDst<T>>, const char*, TypedTrial& t, Generator& g)
{
    const int w = uniform(g, 1, 9), h = uniform(g, 1, 9), count = uniform(g, 1, 4), e = sizeof(T),
              apart = e * (w * h + uniform(g, 0, 2));
    T* const d = t.block<T>((count - 1) * apart / e + w * h, Fill::uniform);
    return with(d, apart, e * w, e, w, h, count);
}
template <class T>
auto make(Of<orv::MatricesSrcDst<T>>, const char*, TypedTrial& t, Generator& g)
{
    const int w = uniform(g, 1, 9), h = uniform(g, 1, 9), count = uniform(g, 1, 4), e = sizeof(T),
              apart = e * (w * h + uniform(g, 0, 2));
    const T* const s = t.block<T>((count - 1) * apart / e + w * h, Fill::near_high);
    T* const d = t.block<T>((count - 1) * apart / e + w * h, Fill::uniform);
    return with(s, apart, e * w, e, d, apart, e * w, e, w, h, count);
}
template <class T>
auto make(Of<orv::Decomposition<T>>, const char*, TypedTrial& t, Generator& g)
{
    const int n = random_side(g);
    const Matrix<T> a(t, g, n, n, random_number_fill(g)), d(t, g, n, n);
    int* const index = t.block<int>(n, Fill::uniform);
    return with(a.base, a.stride1, a.stride2, index, d.base, d.stride1, d.stride2, n);
}
template <class T>
auto make(Of<orv::Substitution<T>>, const char*, TypedTrial& t, Generator& g)
{
    const int n = random_side(g), e = sizeof(T);
    const Matrix<T> a(t, g, n, n);
    int* const index = t.block<int>(n, Fill::uniform);
    for (int i = 0; i < n; ++i) index[i] = uniform(g, 0, 19) == 0 ? uniform(g, -2, n + 2) : uniform(g, i, n - 1);
    const T* const b = t.block<T>(n, Fill::uniform);
    T* const x = t.block<T>(n, Fill::uniform);
    return with(a.base, a.stride1, a.stride2, index, b, e, x, e, n);
}
template <class T>
auto make(Of<orv::Inversion<T>>, const char*, TypedTrial& t, Generator& g)
{
    const int n = random_side(g);
    const Matrix<T> a(t, g, n, n, random_number_fill(g)), d(t, g, n, n);
    const auto work =
        std::make_shared<std::vector<T>>(static_cast<std::size_t>(n) * static_cast<std::size_t>(n + 1));
    return [=](auto* kernel) {
        return kernel(a.base, a.stride1, a.stride2, work->data(), d.base, d.stride1, d.stride2, n);
    };
}

// --- LAPACK's kernels: fused where the processor can, so equal but for rounding ---------------------

template <class T>
class NearlyEqual : public TypedTrial {
public:
    using TypedTrial::TypedTrial;
    bool agrees(const Bytes& actual, const Bytes& expected) const override
    {
        if (actual.size() != expected.size() || actual.size() % sizeof(T) != 0) return false;
        const double tolerance = 4096 * static_cast<double>(std::numeric_limits<T>::epsilon());
        for (std::size_t i = 0; i < actual.size(); i += sizeof(T)) {
            T a, b;
            std::memcpy(&a, &actual[i], sizeof(T));
            std::memcpy(&b, &expected[i], sizeof(T));
            const double error = std::fabs(static_cast<double>(a) - static_cast<double>(b));
            if (!(error <= tolerance * (1 + std::fabs(static_cast<double>(b)))) && std::memcmp(&a, &b, sizeof(T)) != 0)
                return false;
        }
        return true;
    }
};
// Numbers around 1: sums of some dozen products of them stay near 1, too.
template <class T>
T* unit_block(TypedTrial& t, Generator& g, int count)
{
    T* const p = t.block<T>(count, Fill::near_low);
    auto&& pixels = generator_of_pixels(g);
    for (int i = 0; i < count; ++i) p[i] = static_cast<T>(uniform(pixels, -1000, 1000)) / 1024;
    return p;
}

template <class T>
void check(const char*, const char* name, const Operation<orv::ProductUpdate<T>>& operation)
{
    compare<NearlyEqual<T>>(name, operation, [](TypedTrial& t, Generator& g) {
        const int rows = random_side(g), columns = random_side(g), inner = random_side(g);
        const T* const a = unit_block<T>(t, g, rows * inner);
        const T* const b = unit_block<T>(t, g, inner * columns);
        T* const c = unit_block<T>(t, g, rows * columns);
        const bool ta = uniform(g, 0, 1) == 0, tb = uniform(g, 0, 1) == 0;
        return [=](auto* kernel) {
            return kernel(rows, columns, inner, T{-1}, a, ta ? inner : 1, ta ? 1 : rows, b, tb ? columns : 1,
                          tb ? 1 : inner, c, rows);
        };
    });
}
template <class T>
void check(const char*, const char* name, const Operation<orv::VectorProductUpdate<T>>& operation)
{
    const bool dots = begins_with(name, "add_dot");
    compare<NearlyEqual<T>>(name, operation, [=](TypedTrial& t, Generator& g) {
        const int rows = random_side(g), columns = random_side(g), stride = uniform(g, 1, 2);
        const T* const a = unit_block<T>(t, g, rows * columns);
        const T* const x = unit_block<T>(t, g, dots ? rows : (columns - 1) * stride + 1);
        T* const y = unit_block<T>(t, g, dots ? (columns - 1) * stride + 1 : rows);
        return [=](auto* kernel) { return kernel(rows, columns, T{2}, a, rows, x, stride, y); };
    });
}
template <class T>
void check(const char*, const char* name, const Operation<orv::OuterProductUpdate<T>>& operation)
{
    compare<NearlyEqual<T>>(name, operation, [](TypedTrial& t, Generator& g) {
        const int rows = random_side(g), columns = random_side(g), stride = uniform(g, 1, 2);
        const T* const x = unit_block<T>(t, g, rows);
        const T* const y = unit_block<T>(t, g, (columns - 1) * stride + 1);
        T* const a = unit_block<T>(t, g, rows * columns);
        return [=](auto* kernel) { return kernel(rows, columns, T{-1}, x, y, stride, a, rows); };
    });
}
template <class T>
void check(const char*, const char* name, const Operation<orv::Rotations<T>>& operation)
{
    compare<NearlyEqual<T>>(name, operation, [](TypedTrial& t, Generator& g) {
        const int rows = 1 + random_side(g), columns = 1 + random_side(g), pairs = std::max(rows, columns);
        T* const c = t.block<T>(pairs, Fill::uniform);
        T* const s = t.block<T>(pairs, Fill::uniform);
        for (int i = 0; i < pairs; ++i) {
            const double angle = uniform(g, -314, 314) / 100.0;
            c[i] = static_cast<T>(std::cos(angle)), s[i] = static_cast<T>(std::sin(angle));
        }
        T* const a = unit_block<T>(t, g, rows * columns);
        const bool backward = uniform(g, 0, 1) == 0;
        return [=](auto* kernel) { return kernel(rows, columns, backward, c, s, a, rows); };
    });
}
template <class T>
void check(const char*, const char* name, const Operation<orv::PanelFactors<T>>& operation)
{
    compare<NearlyEqual<T>>(name, operation, [](TypedTrial& t, Generator& g) {
        const int columns = uniform(g, 1, orv::kPanelColumns), rows = columns + random_side(g);
        T* const a = unit_block<T>(t, g, rows * columns);
        for (int i = 0; i < columns; ++i) a[i * rows + i] += 4;  // pivots that rounding does not choose
        return [=, &t](auto* kernel) {
            std::vector<int> pivot(static_cast<std::size_t>(columns));
            int zero = 0;
            const Status status = kernel(rows, columns, a, rows, pivot.data(), &zero);
            for (const int p : pivot) t.report(static_cast<T>(p));
            t.report(static_cast<T>(zero));
            return status;
        };
    });
}
template <class T>
void check(const char*, const char* name, const Operation<orv::TriangleSolution<T>>& operation)
{
    compare<NearlyEqual<T>>(name, operation, [](TypedTrial& t, Generator& g) {
        const int columns = random_side(g);
        T* const l = unit_block<T>(t, g, orv::kTriangle * orv::kTriangle);
        for (int i = 0; i < orv::kTriangle * orv::kTriangle; ++i) l[i] /= 8;
        T* const b = unit_block<T>(t, g, orv::kTriangle * columns);
        return [=](auto* kernel) { return kernel(columns, l, orv::kTriangle, b, orv::kTriangle); };
    });
}

// --- Resizing -------------------------------------------------------------------------------------

Size random_size(Generator& g) { return {uniform(g, 1, 60 / kSmaller), uniform(g, 1, 40 / kSmaller)}; }
int interpolation_of(const char* name)
{
    return contains(name, "Nearest")  ? orv::kResizeNearest
           : contains(name, "Linear") ? orv::kResizeLinear
                                      : orv::kResizeCubic;
}
int channels_of(const char* name) { return contains(name, "C3") ? 3 : contains(name, "C4") ? 4 : 1; }

// Enough for every level: how much memory a level works in is its own affair.
template <class... Args, class... Given>
std::shared_ptr<Bytes> buffer_for_all(const Operation<Status(Args...)>& size_of, Given... given)
{
    int most = 0;
    for (int level = 0; level <= orv::orv_variant_index; ++level) {
        int bytes = 0;
        size_of.variant[level](given..., &bytes);
        most = std::max(most, bytes);
    }
    return std::make_shared<Bytes>(static_cast<std::size_t>(most) + 64);
}

// Sizes of a plan's memory; {0, 0} for a pair of sizes that it refuses.
struct PlanBytes {
    int plan = 0, buffer = 0;
    PlanBytes(Size from, Size to, int interpolation)
    {
        orv::orv_ResizeGetSize(from, to, interpolation, 0, &plan, &buffer);
    }
};
unsigned char* plan_for(TypedTrial& t, Size from, Size to, int interpolation)
{
    const PlanBytes bytes(from, to, interpolation);
    unsigned char* const plan = t.block<unsigned char>(bytes.plan + 64, Fill::uniform);
    std::vector<unsigned char> buffer(static_cast<std::size_t>(bytes.buffer) + 64);
    if (interpolation == orv::kResizeNearest) orv::orv_ResizeNearestInit(from, to, plan);
    else if (interpolation == orv::kResizeLinear) orv::orv_ResizeLinearInit(from, to, plan);
    else orv::orv_ResizeCubicInit(from, to, 0, 0.5f, plan, buffer.data());
    return plan;
}

auto make(Of<orv::PlanInit>, const char* name, TypedTrial& t, Generator& g)
{
    const Size from = random_size(g), to = random_size(g);
    unsigned char* const plan =
        t.block<unsigned char>(PlanBytes(from, to, interpolation_of(name)).plan + 64, Fill::uniform);
    return with(from, to, plan);
}
auto make(Of<orv::PlanInitCubic>, const char*, TypedTrial& t, Generator& g)
{
    const Size from = random_size(g), to = random_size(g);
    const PlanBytes bytes(from, to, orv::kResizeCubic);
    unsigned char* const plan = t.block<unsigned char>(bytes.plan + 64, Fill::uniform);
    const auto buffer = std::make_shared<Bytes>(static_cast<std::size_t>(bytes.buffer) + 64);
    const float B = static_cast<float>(uniform(g, 0, 4)) / 4, C = static_cast<float>(uniform(g, 0, 4)) / 5;
    return [=](auto* kernel) { return kernel(from, to, B, C, plan, buffer->data()); };
}
auto make(Of<orv::PlanBufferSize>, const char*, TypedTrial& t, Generator& g)
{
    static const int kinds[] = {orv::kResizeNearest, orv::kResizeLinear, orv::kResizeCubic};
    const Size from = random_size(g), to = random_size(g);
    const void* const plan = plan_for(t, from, to, kinds[uniform(g, 0, 2)]);
    const int channels = uniform(g, 0, 5);
    return [=, &t](auto* kernel) {
        int size = -1;
        const Status status = kernel(plan, to, channels, &size);
        t.report(size > 0);
        return status;
    };
}
// What both apply steps share: a source that ends at a page's end, a tile of the destination, a plan, a buffer.
template <class T>
struct Applied {
    Size from, to, tile;
    int x0, y0, srcStep, dstStep;
    T *src, *dst;
    const void* plan;
    std::shared_ptr<Bytes> buffer;

    Applied(TypedTrial& t, Generator& g, const char* name) : from(random_size(g)), to(random_size(g))
    {
        const int pixel = channels_of(name);
        x0 = uniform(g, 0, to.width - 1), y0 = uniform(g, 0, to.height - 1);
        tile = {uniform(g, 1, to.width - x0), uniform(g, 1, to.height - y0)};
        if (uniform(g, 0, 2) == 0) x0 = y0 = 0, tile = to;
        const int srcRow = from.width * pixel + uniform(g, 0, 5), dstRow = tile.width * pixel + uniform(g, 0, 5);
        src = t.block<T>((from.height - 1) * srcRow + from.width * pixel, Fill::uniform);
        dst = t.block<T>((tile.height - 1) * dstRow + tile.width * pixel, Fill::uniform);
        srcStep = srcRow * static_cast<int>(sizeof(T)), dstStep = dstRow * static_cast<int>(sizeof(T));
        plan = plan_for(t, from, to, interpolation_of(name));
        buffer = buffer_for_all(orv::orv_ResizeGetBufferSize, plan, to, pixel);
    }
};
template <class T>
auto make(Of<orv::ResizeApply<T>>, const char* name, TypedTrial& t, Generator& g)
{
    const Applied<T> a(t, g, name);
    return [=](auto* kernel) {
        return kernel(a.src, a.srcStep, a.dst, a.dstStep, a.x0, a.y0, a.tile, a.plan, a.buffer->data());
    };
}
template <class T>
auto make(Of<orv::ResizeApplyBorder<T>>, const char* name, TypedTrial& t, Generator& g)
{
    const Applied<T> a(t, g, name);
    return [=](auto* kernel) {
        return kernel(a.src, a.srcStep, a.dst, a.dstStep, a.x0, a.y0, a.tile, orv::kBorderReplicate, nullptr,
                      a.plan, a.buffer->data());
    };
}

Rectangle random_rectangle(Generator& g)
{
    return {uniform(g, -9, 9), uniform(g, -9, 9), uniform(g, 1, 50 / kSmaller), uniform(g, 1, 40 / kSmaller)};
}
// In memory with three more columns and rows, which begins with the destination or with the rectangle.
Rectangle random_destination(Generator& g, Size canvas)
{
    const int x = uniform(g, -3, 3), y = uniform(g, -3, 3);
    const bool part = uniform(g, 0, 1) == 0;
    return {x, y, canvas.width, canvas.height, part ? x : 0, part ? y : 0};
}
int random_interpolation(Generator& g)
{
    static const int codes[] = {1, 2, 4, 5, 6, 7, 8, 16};
    return codes[uniform(g, 0, 7)] | (uniform(g, 0, 3) == 0 ? static_cast<int>(orv::kSmoothEdges) : 0);
}
auto make(Of<orv::ResampleBufferSize>, const char*, TypedTrial& t, Generator& g)
{
    Rectangle from = random_rectangle(g), to = random_rectangle(g);
    if (uniform(g, 0, 3) == 0) from.width = INT_MAX - uniform(g, 0, 9);
    if (uniform(g, 0, 3) == 0) to.height = INT_MAX - uniform(g, 0, 9);
    const int channels = uniform(g, 0, 5), interpolation = uniform(g, 0, 9) == 0 ? 3 : random_interpolation(g);
    return [=, &t](auto* kernel) {
        int size = -1;
        const Status status = kernel(from, to, channels, interpolation, &size);
        t.report(size > 0);
        return status;
    };
}
auto make(Of<orv::Zoom>, const char*, TypedTrial& t, Generator& g)
{
    const Size from = random_size(g);
    const int width = uniform(g, 1, 100), x = uniform(g, -50, 50), y = uniform(g, -50, 50);
    const float zoom =
        uniform(g, 0, 2) == 0 ? random_value<float>(g, Fill::special) : static_cast<float>(uniform(g, 1, 50)) / 8;
    const bool smooth = uniform(g, 0, 1) == 0;
    return [=, &t](auto* kernel) {
        orv::SquareMapping mapping = {-1, -1, -1, -1};
        const Status status = kernel(from, width, zoom, x, y, smooth, &mapping);
        t.report(mapping.factor), t.report(mapping.xShift), t.report(mapping.yShift),
            t.report(mapping.interpolation);
        return status;
    };
}
auto make(Of<orv::MappingOfWhole>, const char*, TypedTrial& t, Generator& g)
{
    const Size from = random_size(g), to = random_size(g);
    double* const map = t.block<double>(9, Fill::uniform);
    return with(from, to, random_interpolation(g), map);
}
auto make(Of<orv::DeviationOfSums>, const char*, TypedTrial& t, Generator& g)
{
    const auto most = [&] { return (1ull << uniform(g, 0, 63)) + static_cast<unsigned>(uniform(g, 0, INT_MAX)); };
    const unsigned long long pixels = uniform(g, 0, 9) == 0 ? 0 : most(), sum = most(), squares = most();
    double* const results = t.block<double>(2, Fill::uniform);
    return with(pixels, sum, squares, results, results + 1);
}
template <class T>
auto make(Of<orv::Resample<T>>, const char* name, TypedTrial& t, Generator& g)
{
    const int pixel = channels_of(name), e = sizeof(T);
    const bool halves = uniform(g, 0, 4) == 0;  // means of pairs are a path of their own
    const Size canvas = random_size(g), from = halves ? Size{2 * canvas.width, 2 * canvas.height} : random_size(g);
    const Rectangle srcRoi = halves ? Rectangle{0, 0, from.width, from.height} : random_rectangle(g),
                    dstRoi = random_destination(g, canvas);
    const T* const src = t.block<T>(from.width * from.height * pixel, Fill::uniform);
    T* const dst = t.block<T>((canvas.width + 3) * (canvas.height + 3) * pixel, Fill::uniform);
    const int srcStep = from.width * pixel * e, dstStep = (canvas.width + 3) * pixel * e;
    static const double factors[] = {0.25, 0.3, 0.5, 1, 1.7, 2, 3.25};
    const double fx = halves ? 0.5 : factors[uniform(g, 0, 6)], fy = halves ? 0.5 : factors[uniform(g, 0, 6)];
    const double sx = halves ? 0 : uniform(g, -40, 40) / 4.0, sy = halves ? 0 : uniform(g, -40, 40) / 4.0;
    const int interpolation = halves ? orv::kSupersampling : random_interpolation(g);
    const auto buffer = buffer_for_all(orv::orv_ResizeGetBufSize, srcRoi, dstRoi, pixel, interpolation);
    return [=](auto* kernel) {
        return kernel(src, from, srcStep, srcRoi, dst, dstStep, dstRoi, fx, fy, sx, sy, interpolation,
                      buffer->data());
    };
}

// --- Tables and colour ----------------------------------------------------------------------------

// An image of rows without a gap, or with one.
template <class T>
struct Plane {
    T* pixels;
    int step;

    Plane(TypedTrial& t, Generator& g, int row, int height, Fill fill = Fill::near_high)
    {
        const int gap = uniform(g, 0, 2) == 0 ? uniform(g, 1, 9) : 0;
        pixels = t.block<T>((height - 1) * std::ptrdiff_t{row + gap} + row, fill);
        step = (row + gap) * static_cast<int>(sizeof(T));
    }
};
Size random_roi(Generator& g) { return {uniform(g, 1, uniform(g, 0, 9) == 0 ? 400 / kSmaller : 70), uniform(g, 1, 3)}; }

// Tables, and what looks like one: constants for every channel, and the factors of a colour matrix.
template <class From, class To>
void check(const char* family, const char* name, const Operation<orv::SrcTableDst<From, To>>& operation)
{
    const bool twist = contains(family, "twist");
    if (!twist && !contains(family, "tables")) return compare_levels(subject(family, name, operation));
    const int channels = twist ? 3 : 1, entries = twist ? 12 : 1 << (8 * std::min<int>(sizeof(From), 2));
    compare(name, operation, [=](TypedTrial& t, Generator& g) {
        const Size roi = random_roi(g);
        const Plane<From> a(t, g, roi.width * channels, roi.height);
        const Plane<To> d(t, g, roi.width * channels, roi.height);
        const To* const table = t.block<To>(entries, twist ? Fill::uniform : Fill::near_high);
        return [=](auto* kernel) { return kernel(a.pixels, a.step, table, d.pixels, d.step, roi); };
    });
}
auto make(Of<orv::SrcTwistDst<unsigned char>>, const char* name, TypedTrial& t, Generator& g)
{
    const Size roi = random_roi(g);
    const Plane<unsigned char> a(t, g, roi.width * channels_of(name), roi.height),
        d(t, g, roi.width * channels_of(name), roi.height);
    const float* const factors = t.block<float>(12, uniform(g, 0, 1) == 0 ? Fill::near_low : Fill::uniform);
    return with(a.pixels, a.step, factors, d.pixels, d.step, roi);
}
auto make(Of<orv::SrcTablesDst>, const char* name, TypedTrial& t, Generator& g)
{
    const Size roi = random_roi(g);
    const int row = roi.width * channels_of(name);
    const Plane<unsigned char> a(t, g, row, roi.height), d(t, g, row, roi.height);
    const auto tables =
        std::make_shared<std::vector<const unsigned char*>>(4, t.block<unsigned char>(256, Fill::uniform));
    if (uniform(g, 0, 3) != 0) (*tables)[1] = t.block<unsigned char>(256, Fill::uniform);
    return [=](auto* kernel) { return kernel(a.pixels, a.step, tables->data(), d.pixels, d.step, roi); };
}
auto make(Of<orv::SrcPaletteDst>, const char*, TypedTrial& t, Generator& g)
{
    const Size roi = random_roi(g);
    const Plane<unsigned short> a(t, g, roi.width, roi.height, Fill::special);
    const Plane<unsigned> d(t, g, roi.width, roi.height);
    const int size = uniform(g, 0, 9) == 0 ? 0 : uniform(g, 1, 300);
    const unsigned* const palette = t.block<unsigned>(size + 1, Fill::uniform);
    return with(a.pixels, a.step, palette + 1, size, d.pixels, d.step, roi);
}
template <class From, class To>
auto make(Of<orv::SrcCurveDst<From, To>>, const char*, TypedTrial& t, Generator& g)
{
    const Size roi = uniform(g, 0, 19) == 0 ? Size{300 / kSmaller, 260 / kSmaller} : random_roi(g);
    const Plane<From> a(t, g, roi.width, roi.height, uniform(g, 0, 1) == 0 ? Fill::near_low : Fill::uniform);
    const Plane<To> d(t, g, roi.width, roi.height);
    const int count = uniform(g, 1, uniform(g, 0, 1) == 0 ? 8 : 40);
    From* const levels = t.block<From>(count, uniform(g, 0, 1) == 0 ? Fill::near_low : Fill::uniform);
    const To* const values = t.block<To>(count, Fill::uniform);
    std::sort(levels, levels + count);  // now and then two are equal
    return with(a.pixels, a.step, levels, values, count, d.pixels, d.step, roi);
}
void check(const char* family, const char* name, const Operation<orv::SrcDstStandard>& operation)
{
    if (!contains(name, "YUV422")) return compare_levels(subject(family, name, operation));
    const bool packs = contains(name, "C3C2");
    compare(name, operation, [=](TypedTrial& t, Generator& g) {
        const Size roi = random_roi(g);
        const int pairs = 4 * ((roi.width + 1) / 2), row = 3 * roi.width, code = uniform(g, 0, 3);
        const Plane<unsigned char> a(t, g, packs ? row : pairs, roi.height), d(t, g, packs ? pairs : row, roi.height);
        return [=](auto* kernel) { return kernel(a.pixels, a.step, d.pixels, d.step, roi, code); };
    });
}
auto make(Of<orv::PlanesDstStandard>, const char*, TypedTrial& t, Generator& g)
{
    const Size roi = random_roi(g);
    const int w = (roi.width + 1) / 2, h = (roi.height + 1) / 2, code = uniform(g, 0, 3);
    const Plane<unsigned char> y(t, g, roi.width, roi.height), u(t, g, w, h), v(t, g, w, h),
        d(t, g, 3 * roi.width, roi.height);
    return with(y.pixels, y.step, u.pixels, u.step, v.pixels, v.step, d.pixels, d.step, roi, code);
}

// --- Filters with parameters ----------------------------------------------------------------------

// An image in a frame; near_low and uniform make variances near to each other.
auto make(Of<orv::SrcDstMaskNoise>, const char*, TypedTrial& t, Generator& g)
{
    const Size roi = random_roi(g);
    const int w = 2 * uniform(g, 0, 4) + 1, h = 2 * uniform(g, 0, 3) + 1;
    const Plane<float> a(t, g, roi.width + w - 1, roi.height + h - 1, static_cast<Fill>(uniform(g, 0, 3))),
        d(t, g, roi.width, roi.height);
    const float* const first = a.pixels + h / 2 * (a.step / 4) + w / 2;
    double* const noise = t.block<double>(1, Fill::uniform);
    return with(first, a.step, d.pixels, d.step, roi, w, h, noise);
}
auto make(Of<orv::SrcDstSizeSigma>, const char*, TypedTrial& t, Generator& g)
{
    const Size roi = {random_roi(g).width, uniform(g, 1, 12)};
    const Plane<float> a(t, g, roi.width, roi.height, static_cast<Fill>(uniform(g, 0, 3))),
        d(t, g, roi.width, roi.height);
    float* const sigma = t.block<float>(1, Fill::near_high);
    if (uniform(g, 0, 9) != 0) *sigma = static_cast<float>(uniform(g, 1, 60)) / 8;
    const int size = 2 * uniform(g, 0, uniform(g, 0, 4) == 0 ? 40 : 5) + 1;
    const bool in_place = uniform(g, 0, 3) == 0;
    return with(in_place ? d.pixels : a.pixels, in_place ? d.step : a.step, d.pixels, d.step, roi, size, sigma);
}

// --- Convolution ----------------------------------------------------------------------------------

// A kernel, the source with its frame, both of random kinds: small weights and large ones, products of a column and a
// row, many zeros.
template <class From, class To, class Weight>
struct Convolved {
    Size roi;
    int width, height, anchorX, anchorY;
    const From* src;
    To* dst;
    int srcStep, dstStep;
    Weight* kernel;

    Convolved(TypedTrial& t, Generator& g, const char* name)
        : roi(random_roi(g)),
          width(uniform(g, 1, uniform(g, 0, 3) == 0 ? 20 : 5)),
          height(uniform(g, 1, uniform(g, 0, 3) == 0 ? 20 : 5)),
          anchorX(uniform(g, 0, width - 1)),
          anchorY(uniform(g, 0, height - 1))
    {
        const int channels = channels_of(name);
        const Plane<From> a(t, g, (roi.width + width - 1) * channels, roi.height + height - 1,
                            static_cast<Fill>(uniform(g, 0, 3)));
        const Plane<To> d(t, g, roi.width * channels, roi.height);
        src = reinterpret_cast<const From*>(reinterpret_cast<const char*>(a.pixels) +
                                            (height - 1 - anchorY) * std::ptrdiff_t{a.step}) +
              (width - 1 - anchorX) * channels;
        dst = d.pixels;
        srcStep = a.step, dstStep = d.step;
        kernel = t.block<Weight>(width * height, static_cast<Fill>(uniform(g, 0, 3)));
        const int kind = uniform(g, 0, 5), most = 1 << uniform(g, 0, 14);
        std::vector<int> row(20), column(20);
        for (int& w : row) w = uniform(g, -most, most);
        for (int& w : column) w = uniform(g, -9, 9);
        for (int i = 0; i < width * height; ++i) {
            if (kind < 2)
                kernel[i] = static_cast<Weight>(row[static_cast<std::size_t>(i % width)] *
                                                column[static_cast<std::size_t>(i / width)]);
            if (kind == 2) kernel[i] = static_cast<Weight>(uniform(g, -3, 3));
            if (kind == 3) kernel[i] = static_cast<Weight>(uniform(g, -most, most));
            if (kind > 3 && uniform(g, 0, 2) == 0) kernel[i] = 0;
        }
    }
};
template <class From, class To>
auto make(Of<orv::IntegerConvolution<From, To>>, const char* name, TypedTrial& t, Generator& g)
{
    const Convolved<From, To, int> c(t, g, name);
    const int divisor =
        uniform(g, 0, 2) == 0 ? random_value<int>(g, Fill::special) : uniform(g, -1, 1) + (1 << uniform(g, 0, 30));
    return with(c.src, c.srcStep, c.dst, c.dstStep, c.roi, c.kernel, c.width, c.height, c.anchorX, c.anchorY, divisor);
}
template <class From>
auto make(Of<orv::FloatConvolution<From>>, const char* name, TypedTrial& t, Generator& g)
{
    const Convolved<From, float, float> c(t, g, name);
    return with(c.src, c.srcStep, c.dst, c.dstStep, c.roi, c.kernel, c.width, c.height, c.anchorX, c.anchorY);
}

// --- Warps ----------------------------------------------------------------------------------------

// A source and a destination, about the middles of which maps turn.
template <class T>
struct Warped {
    Size from, canvas;
    Rectangle srcRoi, dstRoi;
    const T* src;
    T* dst;
    int srcStep, dstStep, interpolation;

    Warped(TypedTrial& t, Generator& g, const char* name)
        : from(random_size(g)),
          canvas(random_size(g)),
          srcRoi(random_rectangle(g)),
          dstRoi(random_destination(g, canvas))
    {
        const int channels = channels_of(name), pixel = channels * static_cast<int>(sizeof(T));
        src = t.block<T>(from.width * from.height * channels, static_cast<Fill>(uniform(g, 0, 3)));
        dst = t.block<T>((canvas.width + 3) * (canvas.height + 3) * channels, Fill::uniform);
        srcStep = from.width * pixel;
        dstStep = (canvas.width + 3) * pixel;
        static const int codes[] = {1, 2, 4, 5, 6, 7, 16};
        interpolation = uniform(g, 0, 19) == 0 ? 3 : codes[uniform(g, 0, 6)];
        if (uniform(g, 0, 1) == 0) srcRoi = {0, 0, from.width, from.height};
    }
};
double random_angle(Generator& g)
{
    return uniform(g, 0, 3) == 0 ? 90 * uniform(g, -9, 9) : uniform(g, -9999, 9999) / 7.0;
}
double random_middle(Generator& g, int length) { return uniform(g, 0, 2 * length) / 2.0; }

template <class T>
auto make(Of<orv::Rotating<T>>, const char* name, TypedTrial& t, Generator& g)
{
    const Warped<T> w(t, g, name);
    const double angle = random_angle(g), x = random_middle(g, w.canvas.width),
                 y = random_middle(g, w.canvas.height);
    return [=](auto* kernel) {
        return kernel(w.src, w.from, w.srcStep, w.srcRoi, w.dst, w.dstStep, w.dstRoi, &angle, &x, &y,
                      w.interpolation);
    };
}
template <class T>
auto make(Of<orv::RotatingAbout<T>>, const char* name, TypedTrial& t, Generator& g)
{
    const Warped<T> w(t, g, name);
    const double angle = random_angle(g), x = random_middle(g, w.from.width), y = random_middle(g, w.from.height);
    return [=](auto* kernel) {
        return kernel(w.src, w.from, w.srcStep, w.dst, w.dstStep, w.canvas, &angle, &x, &y, w.interpolation);
    };
}
template <class T>
auto make(Of<orv::Projecting<T>>, const char* name, TypedTrial& t, Generator& g)
{
    const Warped<T> w(t, g, name);
    double* const h = t.block<double>(9, Fill::uniform);
    const bool affine = uniform(g, 0, 2) == 0;
    for (int i = 0; i < 9; ++i)
        h[i] = (i % 4 == 0 ? 1 : 0) + uniform(g, -9, 9) /
                                          (i < 6    ? 20.0
                                           : affine ? 1e300
                                                    : 900.0) *
                                          (i % 3 == 2 ? 20 : 1);
    return with(w.src, w.from, w.srcStep, w.srcRoi, w.dst, w.dstStep, w.dstRoi, h, w.interpolation);
}
template <class T>
auto make(Of<orv::Remapping<T>>, const char* name, TypedTrial& t, Generator& g)
{
    const Warped<T> w(t, g, name);
    const int n = w.canvas.width * w.canvas.height, step = 4 * w.canvas.width;
    float* const x = t.block<float>(n, Fill::special);
    float* const y = t.block<float>(n, Fill::special);
    for (int i = 0; i < n; ++i) {
        if (uniform(g, 0, 19) != 0) x[i] = static_cast<float>(i % w.canvas.width) * 0.9f - 1;
        if (uniform(g, 0, 19) != 0) y[i] = static_cast<float>(i / w.canvas.width) * 0.9f - 1;
    }
    return with(w.src, w.from, w.srcStep, w.srcRoi, x, step, y, step, w.dst, w.dstStep, w.canvas, w.interpolation);
}
auto make(Of<orv::RotationBound>, const char*, TypedTrial& t, Generator& g)
{
    const Rectangle r = random_rectangle(g);
    const double angle = random_value<double>(g, Fill::near_high), x = uniform(g, -99, 99) / 7.0,
                 y = random_value<double>(g, Fill::special);
    double* const bound = t.block<double>(4, Fill::uniform);
    return [=](auto* kernel) { return kernel(r, &angle, &x, &y, bound); };
}
auto make(Of<orv::RotationShift>, const char*, TypedTrial& t, Generator& g)
{
    const double angle = random_angle(g), x = uniform(g, -99, 99) / 7.0,
                 y = uniform(g, 0, 3) == 0 ? 1.7e308 : uniform(g, -99, 99) * 1e100;
    double* const shift = t.block<double>(2, Fill::uniform);
    return [=](auto* kernel) { return kernel(&x, &y, &angle, shift, shift + 1); };
}
auto make(Of<orv::ProjectionBound>, const char*, TypedTrial& t, Generator& g)
{
    const Rectangle r = random_rectangle(g);
    double* const h = t.block<double>(9, static_cast<Fill>(uniform(g, 0, 3)));
    double* const bound = t.block<double>(4, Fill::uniform);
    return with(r, h, bound);
}

// --- Rank filters ---------------------------------------------------------------------------------

// The frame begins and ends with the block. Few different pixels, so that ranks meet equal ones.
template <class T>
auto make(Of<orv::SrcDstSides<T>>, const char*, TypedTrial& t, Generator& g)
{
    static const int sides[] = {3, 3, 3, 5, 5, 1, 7, 9, 15, 4};
    const int w = sides[uniform(g, 0, 9)], h = uniform(g, 0, 1) == 0 ? w : sides[uniform(g, 0, 9)];
    const Size roi = {uniform(g, 1, uniform(g, 0, 19) == 0 ? 300 / kSmaller : 40), uniform(g, 1, 5)};
    const Plane<T> a(t, g, roi.width + w - 1, roi.height + h - 1, static_cast<Fill>(uniform(g, 0, 3))),
        d(t, g, roi.width, roi.height);
    const T* const first = a.pixels + (h - 1) / 2 * (a.step / static_cast<int>(sizeof(T))) + (w - 1) / 2;
    return with(first, a.step, d.pixels, d.step, roi, w, h);
}

// --- Edges and areas ------------------------------------------------------------------------------

auto make(Of<orv::EdgesBetween>, const char*, TypedTrial& t, Generator& g)
{
    const Size roi = {uniform(g, 0, 9) == 0 ? uniform(g, 200, 600) / kSmaller : uniform(g, 1, 130),
                      uniform(g, 1, 20)};
    const int gap = uniform(g, 0, 3), srcStep = 4 * (roi.width + gap), dstStep = roi.width + gap;
    float* const src =
        t.block<float>((roi.width + gap) * (roi.height - 1) + roi.width, static_cast<Fill>(uniform(g, 0, 3)));
    const auto threshold = [&] { return random_value<float>(g, static_cast<Fill>(uniform(g, 0, 3))); };
    const float a = std::fabs(threshold()), b = std::fabs(threshold()), low = b < a ? b : a, high = b < a ? a : b;
    unsigned char* const dst =
        t.block<unsigned char>((roi.width + gap) * (roi.height - 1) + roi.width, Fill::uniform);
    return [=](auto* kernel) { return kernel(src, srcStep, dst, dstStep, roi, &low, &high); };
}
auto make(Of<orv::FillFromSeed>, const char*, TypedTrial& t, Generator& g)
{
    const Size roi = {uniform(g, 0, 9) == 0 ? uniform(g, 200, 2000) / kSmaller : uniform(g, 1, 130),
                      uniform(g, 1, 20)};
    const int step = roi.width + uniform(g, 0, 3), n = step * (roi.height - 1) + roi.width,
              dense = uniform(g, 1, 5);
    unsigned char* const pixels = t.block<unsigned char>(n, Fill::uniform);
    for (int i = 0; i < n; ++i) pixels[i] = static_cast<unsigned char>(pixels[i] % (dense + 1) == 0 ? 1 : 0);
    const int x = uniform(g, -1, roi.width), y = uniform(g, 0, roi.height - 1), value = uniform(g, 0, 2);
    int* const count = uniform(g, 0, 3) == 0 ? nullptr : t.block<int>(1, Fill::uniform);
    return with(pixels, step, roi, x, y, static_cast<unsigned char>(value), count);
}

// --- Packed spectra -------------------------------------------------------------------------------

// Odd and even sizes, in separate images of values of all kinds.
template <class From, class To>
void check_packed(const char* name, const Operation<orv::Conversion<From, To>>& operation)
{
    compare(name, operation, [](TypedTrial& t, Generator& g) {
        const Size roi = {random_roi(g).width, uniform(g, 1, 20)};
        const Plane<From> a(t, g, roi.width, roi.height, static_cast<Fill>(uniform(g, 0, 3)));
        const Plane<To> d(t, g, roi.width, roi.height);
        return [=](auto* kernel) { return kernel(a.pixels, a.step, d.pixels, d.step, roi); };
    });
}
template <class From, class To>
void check(const char* family, const char* name, const Operation<orv::Conversion<From, To>>& operation)
{
    if (begins_with(family, "spectral_")) return check_packed<From, To>(name, operation);
    compare_levels(subject(family, name, operation));
}
void check(const char* family, const char* name, const Operation<orv::SrcSrcDst<float>>& operation)
{
    if (!begins_with(family, "spectral_")) return compare_levels(subject(family, name, operation));
    compare(name, operation, [](TypedTrial& t, Generator& g) {
        const Size roi = {random_roi(g).width, uniform(g, 1, 20)};
        const auto plane = [&] {
            return Plane<float>(t, g, roi.width, roi.height, static_cast<Fill>(uniform(g, 0, 3)));
        };
        const Plane<float> a = plane(), b = plane(), apart = plane();
        const int place = uniform(g, 0, 2);
        const Plane<float> d = place == 0 ? a : place == 1 ? b : apart;
        return [=](auto* kernel) { return kernel(a.pixels, a.step, b.pixels, b.step, d.pixels, d.step, roi); };
    });
}

// --- Transforms and random numbers ----------------------------------------------------------------

// Records hold pointers, so what a record is good for is compared: its transform at the plain level.
struct FftMemory {
    int bytes[3] = {};
    std::shared_ptr<Bytes> spec, init, work;

    void allocate()
    {
        for (auto* const memory : {&spec, &init, &work}) {
            const auto size = static_cast<std::size_t>(bytes[memory - &spec]) + 64;
            *memory = std::make_shared<Bytes>(size);
        }
    }
    FftMemory(int order, int flag) { orv::orv_fft_sizes(order, flag, 1, bytes, bytes + 1, bytes + 2), allocate(); }
    FftMemory(int x, int y, int flag) { orv::orv_fft2_sizes(x, y, flag, 1, bytes, bytes + 1, bytes + 2), allocate(); }
};

auto make(Of<orv::InitFft>, const char*, TypedTrial& t, Generator& g)
{
    const int order = uniform(g, 0, 13 - kSmaller), flag = 1 << uniform(g, 0, 3), n = 1 << order;
    const FftMemory m(order, flag);
    const float* const src = t.block<float>(n, Fill::uniform);
    float* const dst = t.block<float>(n + 2, Fill::uniform);
    return [=](auto* kernel) {
        orv::FftSpec* spec = nullptr;
        const Status status = kernel(&spec, order, flag, 1, m.spec->data(), m.init->data());
        if (status == orv::StatusOk) orv::orv_FftForward_32f.variant[0](src, dst, spec, m.work->data());
        return status;
    };
}
auto make(Of<orv::RunFft>, const char*, TypedTrial& t, Generator& g)
{
    const int order = uniform(g, 0, 13 - kSmaller), flag = 1 << uniform(g, 0, 3), n = 1 << order;
    const FftMemory m(order, flag);
    orv::FftSpec* spec = nullptr;
    orv::orv_FftInit(&spec, order, flag, 1, m.spec->data(), m.init->data());
    float* const dst = t.block<float>(n + 2, Fill::uniform);
    const float* const src = uniform(g, 0, 3) == 0 ? dst : t.block<float>(n, Fill::uniform);
    return [=](auto* kernel) { return static_cast<void>(m.spec), kernel(src, dst, spec, m.work->data()); };
}
struct PlaneSides {
    int x, y, step;
    explicit PlaneSides(Generator& g)
        : x(uniform(g, 1, 9 - kSmaller)), y(uniform(g, 1, 8 - kSmaller)), step(4 * ((1 << x) + uniform(g, 0, 3)))
    {
    }
    int floats() const { return ((1 << y) - 1) * step / 4 + (1 << x); }
};
auto make(Of<orv::InitFft2>, const char*, TypedTrial& t, Generator& g)
{
    const PlaneSides side(g);
    const int flag = 1 << uniform(g, 0, 3);
    const FftMemory m(side.x, side.y, flag);
    const float* const src = t.block<float>(side.floats(), Fill::uniform);
    float* const dst = t.block<float>(side.floats(), Fill::uniform);
    return [=](auto* kernel) {
        orv::Fft2Spec* spec = nullptr;
        const Status status = kernel(&spec, side.x, side.y, flag, 1, m.spec->data(), m.init->data());
        if (status == orv::StatusOk)
            orv::orv_Fft2Forward_32f.variant[0](src, side.step, dst, side.step, spec, m.work->data());
        return status;
    };
}
auto make(Of<orv::RunFft2>, const char*, TypedTrial& t, Generator& g)
{
    const PlaneSides side(g);
    const int flag = 1 << uniform(g, 0, 3);
    const FftMemory m(side.x, side.y, flag);
    orv::Fft2Spec* spec = nullptr;
    orv::orv_Fft2Init(&spec, side.x, side.y, flag, 1, m.spec->data(), m.init->data());
    float* const dst = t.block<float>(side.floats(), Fill::uniform);
    const float* const src = uniform(g, 0, 3) == 0 ? dst : t.block<float>(side.floats(), Fill::uniform);
    return [=](auto* kernel) {
        return static_cast<void>(m.spec), kernel(src, side.step, dst, side.step, spec, m.work->data());
    };
}
auto make(Of<orv::ExpandSpectrum>, const char*, TypedTrial& t, Generator& g)
{
    const int n = 1 << uniform(g, 0, 11 - kSmaller);
    const Complex32f* const src = t.block<Complex32f>(n / 2 + 1, Fill::near_high);
    Complex32f* const dst = t.block<Complex32f>(n, Fill::uniform);
    return with(src, dst, n);
}
auto make(Of<orv::SpectrumToPower>, const char*, TypedTrial& t, Generator& g)
{
    const int order = uniform(g, 0, 11 - kSmaller), n = 1 << order, length = n + uniform(g, 0, n - 1);
    const Complex32f* const src = t.block<Complex32f>(n / 2 + 1, Fill::uniform);
    float* const dst = t.block<float>(length, Fill::uniform);
    return with(src, dst, order, length);
}
template <class T, class = std::enable_if_t<!std::is_const<T>::value>>
auto make(Of<orv::VecIndexed<T>>, const char*, TypedTrial& t, Generator& g)
{
    const int n = uniform(g, 1, uniform(g, 0, 9) == 0 ? 5000 / kSmaller : 400);
    T* const vector = t.block<T>(n, static_cast<Fill>(uniform(g, 0, 3)));
    int* const index = t.block<int>(n, Fill::uniform);
    return with(vector, index, orv::Length{n});
}
auto make(Of<orv::FillFromStream>, const char*, TypedTrial& t, Generator& g)
{
    const int n = uniform(g, 1, 700 / kSmaller);
    double* const r = t.block<double>(n, Fill::uniform);
    orv::RandomStream* const made = orv::orv_create_random_stream(uniform(g, INT_MIN, INT_MAX));
    const orv::RandomStream start = *made;
    orv::orv_delete_random_stream(made);
    const double mean = uniform(g, -9, 9), sigma = uniform(g, 0, 9) / 4.0;
    return [=, &t](auto* kernel) {
        orv::RandomStream stream = start;
        const Status status = kernel(&stream, n, r, mean, sigma);
        t.report(stream);
        return status;
    };
}

template <class Signature, class = void> constexpr bool has_maker = false;
template <class Signature>
constexpr bool has_maker<Signature, std::void_t<decltype(make(Of<Signature>(), "", std::declval<TypedTrial&>(),
                                                              std::declval<Generator&>()))>> = true;

template <class... Args>
void check(const char* family, const char* name, const Operation<Status(Args...)>& operation)
{
    using Signature = Status(Args...);
    if constexpr (has_maker<Signature>) {
        compare(name, operation, [=](TypedTrial& t, Generator& g) { return make(Of<Signature>(), name, t, g); });
    } else {
        compare_levels(subject(family, name, operation));
    }
}

#define REGISTRY_BEGIN(family)        \
    TEST(Variants, family)            \
    {                                 \
        const char* const folder = #family;
#define KERNEL(name, ...) check(folder, #name, orv::orv_##name);
#define REGISTRY_END(family) }
#include "registries.inc"
#undef REGISTRY_BEGIN
#undef KERNEL
#undef REGISTRY_END

}  // namespace
}  // namespace test
