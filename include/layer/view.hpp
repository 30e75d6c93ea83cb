// What operations work on: views of pixels and of vectors that others own, images that own theirs, constants.
#ifndef ORVANE_LAYER_VIEW_HPP
#define ORVANE_LAYER_VIEW_HPP

#include <array>
#include <cstddef>
#include <cstring>
#include <limits>
#include <new>
#include <type_traits>
#include <utility>

#include "../Complex32f.h"
#include "status.hpp"

namespace orvane {

template <class T, int Channels>
class view;
template <class T>
class span;

namespace detail {

// std::complex<float>, without its header: two floats and nothing else.
template <class T, class = void>
struct is_complex : std::false_type {};
template <class T>
struct is_complex<T, std::enable_if_t<std::is_same_v<decltype(std::declval<const T&>().imag()), float>>>
    : std::bool_constant<std::is_trivially_copyable_v<T> && sizeof(T) == sizeof(Complex32f)> {};

// A pointer to From may be seen as a pointer to To.
template <class From, class To>
constexpr bool seen_as = std::is_convertible_v<From (*)[], To (*)[]> ||
                         (std::is_same_v<std::remove_const_t<To>, Complex32f> &&
                          is_complex<std::remove_const_t<From>>::value &&
                          (std::is_const_v<To> || !std::is_const_v<From>));

template <class To, class From>
constexpr To* see(From* data)
{
    if constexpr (std::is_convertible_v<From*, To*>) {
        return data;
    } else {
        return reinterpret_cast<To*>(data);
    }
}

// A property of a foreign image or vector, whether it is a function or a field.
#define ORVANE_PROPERTY(name)                                              \
    template <class P>                                                     \
    constexpr auto name##_of(P& p, int)->decltype(p.name())                \
    {                                                                      \
        return p.name();                                                   \
    }                                                                      \
    template <class P>                                                     \
    constexpr auto name##_of(P& p, long)->std::decay_t<decltype((p.name))> \
    {                                                                      \
        return p.name;                                                     \
    }
ORVANE_PROPERTY(data)
ORVANE_PROPERTY(width)
ORVANE_PROPERTY(height)
ORVANE_PROPERTY(step)
#undef ORVANE_PROPERTY

template <class P>
using element_of = std::remove_pointer_t<decltype(data_of(std::declval<P&>(), 0))>;

// Things with data, width, height and step, and with elements that can be seen as T.
template <class P, class T, class = void>
struct is_picture : std::false_type {};
template <class P, class T>
struct is_picture<P, T,
                  std::void_t<decltype(width_of(std::declval<P&>(), 0)), decltype(height_of(std::declval<P&>(), 0)),
                              decltype(step_of(std::declval<P&>(), 0)), element_of<P>>>
    : std::bool_constant<seen_as<element_of<P>, T>> {};

template <class P, class = void>
struct channels_of : std::integral_constant<int, 0> {};  // not told
template <class P>
struct channels_of<P, std::void_t<decltype(P::channels)>>
    : std::integral_constant<int, std::is_same_v<decltype(P::channels), const int> ? P::channels : 0> {};

template <class P, class T, int Channels>
constexpr bool is_picture_of = is_picture<P, T>::value&& channels_of<P>::value == Channels;

template <class P, class T>
constexpr bool is_picture_of_unknown = is_picture<P, T>::value&& channels_of<P>::value == 0;

// How many readable pixels lie around a view; more than 65535 count as that many.
struct frame {
    unsigned short left = 0, top = 0, right = 0, bottom = 0;
};

constexpr unsigned short frame_side(int own, int more)
{
    return static_cast<unsigned short>(own + more < 65535 ? own + more : 65535);
}

template <class P, class = void>
struct frame_of {
    static constexpr frame get(const P&) { return {}; }
};
template <class P>
struct frame_of<P, std::enable_if_t<std::is_same_v<decltype(std::declval<const P&>().around()), frame>>> {
    static constexpr frame get(const P& p) { return p.around(); }
};

// Multidimensional spans: std::mdspan, where the library has it, and those that are made like it.
template <class M, class = void>
struct is_mdspan : std::false_type {};
template <class M>
struct is_mdspan<M, std::void_t<typename M::mapping_type, typename M::extents_type, typename M::index_type,
                                decltype(std::declval<const M&>().data_handle()),
                                decltype(std::declval<const M&>().stride(0))>> : std::true_type {};

template <class M>
using mdspan_element = std::remove_pointer_t<decltype(std::declval<const M&>().data_handle())>;

// Rows and columns, and a third extent where pixels have several channels.
template <class M, class T, int Channels, class = void>
struct is_mdspan_of : std::false_type {};
template <class M, class T, int Channels>
struct is_mdspan_of<M, T, Channels, std::enable_if_t<is_mdspan<M>::value>>
    : std::bool_constant<M::rank() == (Channels == 1 ? 2 : 3) && seen_as<mdspan_element<M>, T>> {};

template <class T>
using byte_like = std::conditional_t<std::is_const_v<T>, const char, char>;

}  // namespace detail

/// A region of an image that something else owns: the address of its first pixel, width and height in pixels, and
/// the step from row to row in bytes. T is an element (const where it is only read), and Channels elements, side by
/// side, are a pixel. Copying a view copies no pixel.
template <class T, int Channels = 1>
class view
{
    static_assert(Channels >= 1 && Channels <= 4, "pixels have one to four channels");

public:
    using element_type = T;
    static constexpr int channels = Channels;

    constexpr view() = default;
    template <class U, std::enable_if_t<detail::seen_as<U, T>, int> = 0>
    constexpr view(U* data, int width, int height, std::ptrdiff_t step)
        : data_(detail::see<T>(data)), step_(step), width_(width), height_(height)
    {
    }
    /// From an image, another view, or anything that says its data, width, height, step and (as a static constant)
    /// channels.
    template <class P, std::enable_if_t<!std::is_same_v<std::decay_t<P>, view> &&
                                            detail::is_picture_of<std::remove_reference_t<P>, T, Channels>,
                                        int> = 0>
    constexpr view(P&& p)
        : view(detail::data_of(p, 0), static_cast<int>(detail::width_of(p, 0)),
               static_cast<int>(detail::height_of(p, 0)), static_cast<std::ptrdiff_t>(detail::step_of(p, 0)))
    {
        around_ = detail::frame_of<std::decay_t<P>>::get(p);
    }
    /// From anything that has data, width, height and step, but does not say how many channels.
    template <class P, std::enable_if_t<detail::is_picture_of_unknown<std::remove_reference_t<P>, T>, int> = 0>
    constexpr explicit view(P&& p)
        : view(detail::data_of(p, 0), static_cast<int>(detail::width_of(p, 0)),
               static_cast<int>(detail::height_of(p, 0)), static_cast<std::ptrdiff_t>(detail::step_of(p, 0)))
    {
    }

    /// From a std::mdspan (of rows, columns and, if there are several, channels); an empty view, which every operation
    /// refuses, where the elements of a row do not stand side by side.
    template <class M, std::enable_if_t<detail::is_mdspan_of<M, T, Channels>::value, int> = 0>
    constexpr view(const M& m) : view(from_mdspan(m))
    {
    }
    /// As a std::mdspan with strides, M; an empty one where the step is no multiple of an element.
    template <class M>
    constexpr M as() const
    {
        static_assert(detail::is_mdspan_of<M, std::remove_const_t<T>, Channels>::value ||
                          detail::is_mdspan_of<M, const T, Channels>::value,
                      "an mdspan of these elements, with three extents where there are several channels");
        using index = typename M::index_type;
        constexpr auto element = static_cast<std::ptrdiff_t>(sizeof(T));
        if (step_ % element != 0) return M();
        const auto row = static_cast<index>(step_ / element);
        if constexpr (Channels == 1) {
            const typename M::extents_type extents(height_, width_);
            return M(data_, typename M::mapping_type(extents, std::array<index, 2>{row, 1}));
        } else {
            const typename M::extents_type extents(height_, width_, Channels);
            return M(data_, typename M::mapping_type(extents, std::array<index, 3>{row, Channels, 1}));
        }
    }

    constexpr T* data() const { return data_; }
    constexpr int width() const { return width_; }
    constexpr int height() const { return height_; }
    constexpr std::ptrdiff_t step() const { return step_; }
    /// The pixels around the view that it was cut from: what filters may read beyond it.
    constexpr detail::frame around() const { return around_; }

    /// The first element of row y, which is not checked.
    T* row(int y) const { return reinterpret_cast<T*>(reinterpret_cast<detail::byte_like<T>*>(data_) + step_ * y); }
    /// A channel of the pixel in column x and row y; nothing is checked.
    T& operator()(int x, int y, int channel = 0) const { return row(y)[std::ptrdiff_t{x} * Channels + channel]; }

    /// The w x h pixels from column x and row y on; an empty view, which every operation refuses, where they do not
    /// lie inside. A part knows what lies around it.
    view part(int x, int y, int w, int h) const
    {
        if (data_ == nullptr || x < 0 || y < 0 || w < 1 || h < 1 || x > width_ - w || y > height_ - h) return {};
        view v(&(*this)(x, y), w, h, step_);
        v.around_.left = detail::frame_side(around_.left, x);
        v.around_.top = detail::frame_side(around_.top, y);
        v.around_.right = detail::frame_side(around_.right, width_ - w - x);
        v.around_.bottom = detail::frame_side(around_.bottom, height_ - h - y);
        return v;
    }

private:
    template <class M>
    static constexpr view from_mdspan(const M& m)
    {
        constexpr auto channels_last = static_cast<std::size_t>(Channels == 1 ? 1 : 2);
        const bool packed = m.stride(channels_last) == 1 &&
                            (Channels == 1 || (m.extent(channels_last) == Channels && m.stride(1) == Channels));
        if (!packed) return {};
        const auto row = static_cast<std::ptrdiff_t>(m.stride(0)) * static_cast<std::ptrdiff_t>(sizeof(T));
        return {m.data_handle(), static_cast<int>(m.extent(1)), static_cast<int>(m.extent(0)), row};
    }

    T* data_ = nullptr;
    std::ptrdiff_t step_ = 0;
    int width_ = 0, height_ = 0;
    detail::frame around_;
};

/// Elements that something else owns, one behind the other: a vector, an array, a std::span.
template <class T>
class span
{
public:
    using element_type = T;

    constexpr span() = default;
    template <class U, std::enable_if_t<detail::seen_as<U, T>, int> = 0>
    constexpr span(U* data, std::size_t size) : data_(detail::see<T>(data)), size_(size)
    {
    }
    template <class U, std::size_t N, std::enable_if_t<detail::seen_as<U, T>, int> = 0>
    constexpr span(U (&elements)[N]) : span(elements, N)
    {
    }
    template <class V,
              std::enable_if_t<detail::seen_as<std::remove_pointer_t<decltype(std::declval<V&>().data())>, T> &&
                                   std::is_convertible_v<decltype(std::declval<V&>().size()), std::size_t>,
                               int> = 0>
    constexpr span(V&& v) : span(v.data(), v.size())
    {
    }

    constexpr T* data() const { return data_; }
    constexpr std::size_t size() const { return size_; }
    constexpr T& operator[](std::size_t i) const { return data_[i]; }
    constexpr T* begin() const { return data_; }
    constexpr T* end() const { return data_ + size_; }
    /// `count` elements from `start` on; an empty span, which every operation refuses, where they do not lie inside.
    constexpr span part(std::size_t start, std::size_t count) const
    {
        return start <= size_ && count <= size_ - start ? span(data_ + start, count) : span();
    }

private:
    T* data_ = nullptr;
    std::size_t size_ = 0;
};

/// A value for every channel: 166, or {166, 166, 166}. A number that the type does not hold is refused by the
/// operation, and a fraction for an integer type by the compiler.
template <class T, int Channels = 1>
class constant
{
    template <class V>
    static constexpr bool fits_at_all = std::is_arithmetic_v<V> &&
                                        (std::is_floating_point_v<T> || std::is_integral_v<V>);

public:
    template <class... V, std::enable_if_t<sizeof...(V) == Channels && (fits_at_all<V> && ...), int> = 0>
    constexpr constant(V... values) : values_{static_cast<T>(values)...}
    {
        (note(values), ...);
    }
    constexpr constant(const T (&values)[Channels])
    {
        for (int c = 0; c < Channels; ++c) values_[c] = values[c];
    }

    constexpr const T* data() const { return values_; }
    constexpr T one() const { return values_[0]; }
    constexpr bool held() const { return held_; }
    constexpr long long given() const { return given_; }
    constexpr bool has_zero() const
    {
        for (const T v : values_) {
            if (!(v < 0) && !(v > 0) && v == v) return true;
        }
        return false;
    }

private:
    template <class V>
    constexpr void note(V value)
    {
        if constexpr (std::is_integral_v<T>) {
            if (static_cast<V>(static_cast<T>(value)) == value && (value < V{}) == (static_cast<T>(value) < T{}))
                return;
            held_ = false;
            given_ = static_cast<long long>(value);
        }
    }

    T values_[Channels] = {};
    bool held_ = true;
    long long given_ = 0;
};

/// A complex value: a Complex32f, a std::complex<float>, or a real number.
template <>
class constant<Complex32f, 1>
{
public:
    constexpr constant(Complex32f value) : value_(value) {}
    template <class C, std::enable_if_t<detail::is_complex<C>::value, int> = 0>
    constexpr constant(const C& value) : value_{value.real(), value.imag()}
    {
    }
    template <class V, std::enable_if_t<std::is_arithmetic_v<V>, int> = 0>
    constexpr constant(V value) : value_{static_cast<float>(value), 0}
    {
    }

    constexpr Complex32f one() const { return value_; }
    constexpr bool held() const { return true; }
    constexpr long long given() const { return 0; }

private:
    Complex32f value_;
};

namespace detail {

// Memory on a 64-byte boundary, or null.
class block
{
public:
    block() = default;
    explicit block(std::size_t bytes) : data_(::operator new (bytes, std::align_val_t{64}, std::nothrow)) {}
    block(block&& other) noexcept : data_(std::exchange(other.data_, nullptr)) {}
    block& operator=(block&& other) noexcept
    {
        std::swap(data_, other.data_);
        return *this;
    }
    ~block()
    {
        if (data_ != nullptr) ::operator delete (data_, std::align_val_t{64});
    }
    void* data() const { return data_; }

private:
    void* data_ = nullptr;
};

}  // namespace detail

/// An image that owns its pixels, zeros at first: rows on 64-byte boundaries. It moves; clone() copies.
template <class T, int Channels = 1>
class image
{
    static_assert(!std::is_const_v<T> && std::is_trivially_copyable_v<T>, "elements are numbers that can be written");

public:
    using element_type = T;
    static constexpr int channels = Channels;

    /// No pixels.
    image() = default;
    /// Throws orvane::error for a side below 1 and for rows of 2^31 bytes or more, std::bad_alloc without memory.
    image(int width, int height)
    {
        make(width, height).check();
        std::memset(memory_.data(), 0, bytes());
    }
    image(image&& other) noexcept
        : memory_(std::move(other.memory_)),
          step_(std::exchange(other.step_, 0)),
          width_(std::exchange(other.width_, 0)),
          height_(std::exchange(other.height_, 0))
    {
    }
    image& operator=(image&& other) noexcept
    {
        std::swap(memory_, other.memory_);
        std::swap(step_, other.step_);
        std::swap(width_, other.width_);
        std::swap(height_, other.height_);
        return *this;
    }

    /// As the constructor, but tells instead of throwing, and leaves the pixels as the memory has them.
    status make(int width, int height)
    {
        if (width < 1 || height < 1) return {"image", "size", detail::reason::empty_image, width, height};
        const unsigned long long row = (static_cast<unsigned long long>(width) * Channels * sizeof(T) + 63) / 64 * 64;
        if (row > 0x7fffffff) {
            return {"image", "width", detail::reason::long_step, static_cast<long long>(row)};
        }
        const bool addressable = row * static_cast<unsigned>(height) <= std::numeric_limits<std::size_t>::max() / 2;
        detail::block memory = addressable
                                   ? detail::block(static_cast<std::size_t>(row) * static_cast<unsigned>(height))
                                   : detail::block();
        if (memory.data() == nullptr) return {"image", "", detail::reason::memory};
        memory_ = std::move(memory);
        step_ = static_cast<std::ptrdiff_t>(row);
        width_ = width;
        height_ = height;
        return {};
    }

    image clone() const
    {
        image copy;
        if (data() == nullptr) return copy;
        copy.make(width_, height_).check();
        std::memcpy(copy.memory_.data(), memory_.data(), bytes());
        return copy;
    }

    T* data() { return static_cast<T*>(memory_.data()); }
    const T* data() const { return static_cast<const T*>(memory_.data()); }
    int width() const { return width_; }
    int height() const { return height_; }
    std::ptrdiff_t step() const { return step_; }

    view<T, Channels> part(int x, int y, int w, int h) { return view<T, Channels>(*this).part(x, y, w, h); }
    view<const T, Channels> part(int x, int y, int w, int h) const
    {
        return view<const T, Channels>(*this).part(x, y, w, h);
    }
    T* row(int y) { return view<T, Channels>(*this).row(y); }
    const T* row(int y) const { return view<const T, Channels>(*this).row(y); }
    T& operator()(int x, int y, int channel = 0) { return view<T, Channels>(*this)(x, y, channel); }
    const T& operator()(int x, int y, int channel = 0) const { return view<const T, Channels>(*this)(x, y, channel); }

private:
    std::size_t bytes() const { return static_cast<std::size_t>(step_) * static_cast<std::size_t>(height_); }

    detail::block memory_;
    std::ptrdiff_t step_ = 0;
    int width_ = 0, height_ = 0;
};

}  // namespace orvane

#endif
