// What operations refuse, found in their arguments before the library is called.
#ifndef ORVANE_LAYER_CHECKS_HPP
#define ORVANE_LAYER_CHECKS_HPP

#include "view.hpp"

#if defined(__GNUC__)
#define ORVANE_COLD __attribute__((cold, noinline))
#define ORVANE_HOT __attribute__((always_inline))
#else
#define ORVANE_COLD
#define ORVANE_HOT
#endif

namespace orvane {
namespace detail {

// An operand of any type: one text of the checks serves them all.
struct region {
    const void* data;
    std::ptrdiff_t step;
    int width, height;
    int pixel;    // bytes
    int element;  // bytes: a power of two

    template <class T, int Channels>
    ORVANE_HOT constexpr region(const view<T, Channels>& v)
        : data(v.data()),
          step(v.step()),
          width(v.width()),
          height(v.height()),
          pixel(static_cast<int>(sizeof(T)) * Channels),
          element(static_cast<int>(sizeof(T)))
    {
    }
    constexpr region(const void* d, std::ptrdiff_t s, int w, int h, int p, int e)
        : data(d), step(s), width(w), height(h), pixel(p), element(e)
    {
    }

    constexpr long long row() const { return static_cast<long long>(width) * pixel; }
    ORVANE_HOT constexpr bool sound() const
    {
        return data != nullptr && width > 0 && height > 0 && step >= row() && step <= 0x7fffffff &&
               (step & (element - 1)) == 0;
    }
    // Not by &&: compilers make one comparison of memory of it, which waits for both fields to be stored.
    ORVANE_HOT constexpr bool like(const region& other) const
    {
        return ((width ^ other.width) | (height ^ other.height)) == 0;
    }
};

// Vectors likewise.
struct stretch {
    const void* data;
    std::size_t size;

    template <class T>
    constexpr stretch(const span<T>& s) : data(s.data()), size(s.size())
    {
    }
    ORVANE_HOT constexpr bool sound() const { return data != nullptr && size > 0 && size <= 0x7fffffff; }
};

ORVANE_HOT constexpr bool alike(const region& a) { return a.sound(); }
ORVANE_HOT constexpr bool alike(const region& a, const region& b) { return a.sound() && b.sound() && a.like(b); }
ORVANE_HOT constexpr bool alike(const region& a, const region& b, const region& c)
{
    return alike(a, b) && c.sound() && a.like(c);
}
ORVANE_HOT constexpr bool alike(const stretch& a) { return a.sound(); }
ORVANE_HOT constexpr bool alike(const stretch& a, const stretch& b)
{
    return a.sound() && b.sound() && a.size == b.size;
}
ORVANE_HOT constexpr bool alike(const stretch& a, const stretch& b, const stretch& c)
{
    return alike(a, b) && c.sound() && a.size == c.size;
}

template <class Operand>
struct named {
    const char* name;
    Operand operand;
};

ORVANE_COLD inline status unsound(const char* operation, const named<region>& n)
{
    const region& r = n.operand;
    if (r.data == nullptr) return {operation, n.name, reason::null};
    if (r.width < 1 || r.height < 1) return {operation, n.name, reason::empty_image, r.width, r.height};
    if (r.step < r.row()) return {operation, n.name, reason::short_step, r.step, r.width, r.row()};
    if (r.step > 0x7fffffff) return {operation, n.name, reason::long_step, r.step};
    if (r.step % r.element != 0) return {operation, n.name, reason::uneven_step, r.step, r.element};
    return {};
}

ORVANE_COLD inline status unsound(const char* operation, const named<stretch>& n)
{
    if (n.operand.data == nullptr) return {operation, n.name, reason::null};
    if (n.operand.size == 0) return {operation, n.name, reason::empty_vector};
    if (n.operand.size > 0x7fffffff)
        return {operation, n.name, reason::too_long, static_cast<long long>(n.operand.size)};
    return {};
}

inline status other(const char* operation, const named<region>& n, const region& needed)
{
    return {operation, n.name, reason::other_size, n.operand.width, n.operand.height, needed.width, needed.height};
}
inline status other(const char* operation, const named<stretch>& n, const stretch& needed)
{
    return {operation, n.name, reason::other_length, static_cast<long long>(n.operand.size),
            static_cast<long long>(needed.size)};
}
constexpr bool same_size(const region& a, const region& b) { return a.like(b); }
constexpr bool same_size(const stretch& a, const stretch& b) { return a.size == b.size; }

// Of unequal sizes the first operand's counts, unless the other two agree against it.
template <class Operand, int N>
ORVANE_COLD status unlike(const char* operation, const named<Operand> (&all)[N])
{
    for (const auto& n : all) {
        if (const status s = unsound(operation, n); !s) return s;
    }
    if constexpr (N > 2) {
        if (!same_size(all[0].operand, all[1].operand) && same_size(all[1].operand, all[2].operand)) {
            return other(operation, all[0], all[1].operand);
        }
    }
    for (const auto& n : all) {
        if (!same_size(n.operand, all[0].operand)) return other(operation, n, all[0].operand);
    }
    return {};
}

template <class T, int Channels>
ORVANE_COLD status unheld(const char* operation, const char* name, const constant<T, Channels>& c)
{
    if constexpr (std::is_integral_v<T>) {
        return {operation,
                name,
                reason::outside,
                c.given(),
                static_cast<long long>(std::numeric_limits<T>::min()),
                static_cast<long long>(std::numeric_limits<T>::max())};
    }
    return {};
}

// Whether bytes of both are the same, or only lie between each other's: beside each other in rows of one step.
inline bool overlap(const region& a, const region& b)
{
    const auto begin = [](const region& r) { return reinterpret_cast<std::size_t>(r.data); };
    const auto size = [](const region& r) {
        return static_cast<std::size_t>(r.step) * static_cast<std::size_t>(r.height - 1) +
               static_cast<std::size_t>(r.row());
    };
    if (begin(a) >= begin(b) + size(b) || begin(b) >= begin(a) + size(a)) return false;
    if (a.step != b.step) return true;
    const auto step = static_cast<std::size_t>(a.step);
    const std::size_t from_a =
        begin(b) >= begin(a) ? (begin(b) - begin(a)) % step : step - 1 - (begin(a) - begin(b) - 1) % step;
    return from_a < static_cast<std::size_t>(a.row()) || from_a + static_cast<std::size_t>(b.row()) > step;
}
inline bool overlap(const stretch&, const stretch&) = delete;

// Overlapping without being one image.
inline bool overlap_in_part(const region& a, const region& b)
{
    return (a.data != b.data || a.step != b.step) && overlap(a, b);
}

constexpr bool readable(const frame& around, int left, int top, int right, int bottom)
{
    return around.left >= left && around.top >= top && around.right >= right && around.bottom >= bottom;
}
ORVANE_COLD inline status unframed(const char* operation, const char* name, const frame& around, int left, int top,
                                   int right, int bottom)
{
    const int have[] = {around.left, around.top, around.right, around.bottom}, need[] = {left, top, right, bottom};
    for (int k = 0; k < 4; ++k) {
        if (have[k] < need[k]) return {operation, name, reason::no_frame, have[k], need[k]};
    }
    return {};
}

template <class T, int Channels>
constexpr int step(const view<T, Channels>& v)
{
    return static_cast<int>(v.step());
}
template <class T>
constexpr int length(const span<T>& s)
{
    return static_cast<int>(s.size());
}

// What a method's answer means once the arguments have passed.
inline status answer(const char* operation, bool done, reason otherwise)
{
    if (done) return {};
    return {operation, "", otherwise};
}

}  // namespace detail
}  // namespace orvane

#endif
