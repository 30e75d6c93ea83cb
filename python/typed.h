// Functions of the typed layer behind one shape of call: an array of slots, which say themselves what they take.
#pragma once

#include <orvane.hpp>

#include <new>
#include <type_traits>
#include <utility>

namespace orvane_python {

enum class role : unsigned char { image, vector, matrix, array, tables, constant, number, code, result };

struct code_name {
    const char* name;
    int value;
};

// What a function takes in one place.
struct parameter {
    role kind;
    bool written;
    int type;      // NumPy's number of the element's type
    int channels;  // of a pixel, or how many elements a fixed array, a constant or a result has, or how many tables
    const code_name* codes;
};

// What it is given there.
struct slot {
    void* data = nullptr;
    std::ptrdiff_t step = 0, column_step = 0;
    std::ptrdiff_t width = 0, height = 1;  // columns and rows; an array's elements are its columns
    alignas(8) unsigned char values[64];   // constants, numbers and results, of the element's type; spans of tables
};

struct extent {
    std::ptrdiff_t width, height;
};

template <class T>
constexpr int number_of = -1;
template <>
constexpr int number_of<bool> = 0;
template <>
constexpr int number_of<unsigned char> = 2;
template <>
constexpr int number_of<short> = 3;
template <>
constexpr int number_of<unsigned short> = 4;
template <>
constexpr int number_of<int> = 5;
template <>
constexpr int number_of<unsigned> = 6;
template <>
constexpr int number_of<unsigned long long> = 10;
template <>
constexpr int number_of<float> = 11;
template <>
constexpr int number_of<double> = 12;
template <>
constexpr int number_of<Complex32f> = 14;

template <class E>
constexpr const code_name* codes_of = nullptr;  // the choices of an enumeration, by name; null at the end

template <class T>
constexpr bool is_written = !std::is_const_v<T>;
template <class T>
constexpr int element_number = number_of<std::remove_const_t<T>>;

// An argument of a function, from its slot. Sizes beyond int are refused before.
template <class A>
struct from {
    static constexpr parameter is{codes_of<A> ? role::code : role::number, false,
                                  std::is_enum_v<A> ? number_of<int> : number_of<A>, 1, codes_of<A>};
    static A get(slot& s)
    {
        if constexpr (std::is_enum_v<A>) {
            return static_cast<A>(reinterpret_cast<int&>(s.values));
        } else {
            return reinterpret_cast<A&>(s.values);
        }
    }
};

template <class T, int Channels>
struct from<orvane::view<T, Channels>> {
    static constexpr parameter is{role::image, is_written<T>, element_number<T>, Channels, nullptr};
    static orvane::view<T, Channels> get(const slot& s)
    {
        return {static_cast<T*>(s.data), static_cast<int>(s.width), static_cast<int>(s.height), s.step};
    }
};

template <class T>
struct from<orvane::span<T>> {
    static constexpr parameter is{role::vector, is_written<T>, element_number<T>, 1, nullptr};
    static orvane::span<T> get(const slot& s)
    {
        return {static_cast<T*>(s.data), static_cast<std::size_t>(s.width)};
    }
};

template <class T>
struct from<orvane::matrix<T>> {
    static constexpr parameter is{role::matrix, is_written<T>, element_number<T>, 1, nullptr};
    static orvane::matrix<T> get(const slot& s)
    {
        return {static_cast<T*>(s.data), static_cast<int>(s.height), static_cast<int>(s.width), s.step, s.column_step};
    }
};

template <class T, int Channels>
struct from<const orvane::constant<T, Channels>&> {
    static constexpr parameter is{role::constant, false, number_of<T>, Channels, nullptr};
    static orvane::constant<T, Channels> get(const slot& s)
    {
        if constexpr (std::is_same_v<T, Complex32f>) {
            return reinterpret_cast<const T&>(s.values);
        } else {
            return reinterpret_cast<const T(&)[Channels]>(s.values);
        }
    }
};

template <class T, std::size_t Length>
struct from<const T (&)[Length]> {
    static constexpr parameter is{role::array, false, number_of<T>, Length, nullptr};
    using array = const T (&)[Length];
    static array get(const slot& s) { return *static_cast<const T(*)[Length]>(s.data); }
};

// Tables stand one behind the other.
template <class T, std::size_t Count>
struct from<const orvane::span<T> (&)[Count]> {
    static constexpr parameter is{role::tables, false, element_number<T>, Count, nullptr};
    using tables = orvane::span<T>[Count];
    static const tables& get(slot& s)
    {
        static_assert(sizeof(tables) <= sizeof(s.values));
        auto* const all = reinterpret_cast<orvane::span<T>*>(s.values);
        const std::size_t length = static_cast<std::size_t>(s.width) / Count;
        for (std::size_t k = 0; k < Count; ++k)
            new (all + k) orvane::span<T>(static_cast<T*>(s.data) + k * length, length);
        return reinterpret_cast<const tables&>(s.values);
    }
};

template <class T>
struct from<T&> {
    static constexpr parameter is{role::result, true, number_of<T>, 1, nullptr};
    static T& get(slot& s) { return reinterpret_cast<T&>(s.values); }
};

template <class T, std::size_t Length>
struct from<T (&)[Length]> {
    static constexpr parameter is{role::result, true, number_of<T>, Length, nullptr};
    using array = T (&)[Length];
    static array get(slot& s) { return reinterpret_cast<array>(s.values); }
};

// One function of the layer. `names` has a word for each of its parameters; operation.h says how they read.
struct overload {
    const parameter* parameters;
    int count;
    orvane::status (*run)(slot*);
    const char* names;
    extent (*makes)(const slot*);  // the size of the result, where it is not the first operand's
    bool keeps_alpha;              // a fourth channel is not written
};

template <class Signature>
struct function;

template <class... A>
struct function<orvane::status(A...)> {
    static constexpr parameter parameters[] = {from<A>::is...};

    template <orvane::status (*F)(A...)>
    static constexpr overload by(const char* names, extent (*makes)(const slot*) = nullptr, bool keeps_alpha = false)
    {
        return {parameters, static_cast<int>(sizeof...(A)), &run<F>, names, makes, keeps_alpha};
    }

private:
    template <orvane::status (*F)(A...)>
    static orvane::status run(slot* s)
    {
        return spread<F>(s, std::index_sequence_for<A...>{});
    }
    template <orvane::status (*F)(A...), std::size_t... I>
    static orvane::status spread(slot* s, std::index_sequence<I...>)
    {
        return F(from<A>::get(s[I])...);
    }
};

}  // namespace orvane_python
