// The arguments of a kernel, read from its signature at run time: what the nets over all registries share.
#pragma once

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>

#include "Complex32f.h"
#include "core/operation.h"

namespace test {

enum Element { e_u8, e_u16, e_s16, e_s32, e_u32, e_u64, e_f32, e_c32, e_f64, e_none };
template <class T> constexpr Element element = e_none;
template <> inline constexpr Element element<unsigned char> = e_u8;
template <> inline constexpr Element element<unsigned short> = e_u16;
template <> inline constexpr Element element<short> = e_s16;
template <> inline constexpr Element element<int> = e_s32;
template <> inline constexpr Element element<unsigned> = e_u32;
template <> inline constexpr Element element<unsigned long long> = e_u64;
template <> inline constexpr Element element<float> = e_f32;
template <> inline constexpr Element element<Complex32f> = e_c32;
template <> inline constexpr Element element<double> = e_f64;

// Calls f with a value of the element's type.
template <class F>
auto with_type(Element e, F f)
{
    switch (e) {
        case e_u8: return f(static_cast<unsigned char>(0));
        case e_u16: return f(static_cast<unsigned short>(0));
        case e_s16: return f(static_cast<short>(0));
        case e_u32: return f(0u);
        case e_u64: return f(0ull);
        case e_f32: return f(0.0f);
        case e_c32: return f(Complex32f{});
        case e_f64: return f(0.0);
        default: return f(0);
    }
}
inline int bytes_of(Element e)
{
    return with_type(e, [](auto value) { return static_cast<int>(sizeof(value)); });
}

// What an argument is by its type alone: its place among the others says the rest.
struct Kind {
    enum What { value, source, target, memory, size, length, special } what;
    Element element;
};
template <class A> struct kind_of {
    static constexpr Element scalar = std::is_enum<A>::value ? e_s32 : element<A>;
    static constexpr Kind kind = {scalar == e_none ? Kind::special : Kind::value, scalar};
};
template <class T> struct kind_of<const T&> : kind_of<T> {};
template <class T> struct kind_of<T*> {
    static constexpr Kind kind = {element<T> == e_none ? Kind::special : Kind::target, element<T>};
};
template <class T> struct kind_of<const T*> {
    static constexpr Kind kind = {element<T> == e_none ? Kind::special : Kind::source, element<T>};
};
template <> struct kind_of<void*> { static constexpr Kind kind = {Kind::memory, e_none}; };
template <> struct kind_of<orv::Size> { static constexpr Kind kind = {Kind::size, e_none}; };
template <> struct kind_of<orv::Length> { static constexpr Kind kind = {Kind::length, e_none}; };

// The value of one argument.
struct Slot {
    alignas(16) unsigned char bytes[16];
    template <class A> void set(A value) { std::memcpy(bytes, &value, sizeof(value)); }
    template <class A>
    A get() const
    {
        if constexpr (std::is_reference<A>::value) {
            return *reinterpret_cast<const std::decay_t<A>*>(bytes);
        } else {
            A value;
            std::memcpy(&value, bytes, sizeof(value));
            return value;
        }
    }
};

// Any kernel; only the subject that it comes from knows its signature.
using Kernel = void (*)();

// An operation without its type.
struct Subject {
    const char* family;
    const char* name;
    const Kind* kinds;
    int count;
    Kernel variant[orv::kLevels];
    orv::Status (*invoke)(Kernel kernel, const Slot* slots);

    bool is_plain() const  // has no argument that a maker of its own must supply
    {
        for (int i = 0; i < count; ++i) {
            if (kinds[i].what == Kind::special) return false;
        }
        return true;
    }
};

template <class... Args>
struct Signature {
    static constexpr Kind kinds[] = {kind_of<Args>::kind...};

    template <std::size_t... I>
    static orv::Status call(Kernel kernel, const Slot* slots, std::index_sequence<I...>)
    {
        return reinterpret_cast<orv::Status (*)(Args...)>(kernel)(slots[I].get<Args>()...);
    }
    static orv::Status invoke(Kernel kernel, const Slot* slots)
    {
        return call(kernel, slots, std::index_sequence_for<Args...>());
    }
};

template <class... Args>
Subject subject(const char* family, const char* name, const orv::Operation<orv::Status(Args...)>& operation)
{
    using S = Signature<Args...>;
    Subject s = {family, name, S::kinds, static_cast<int>(sizeof...(Args)), {}, S::invoke};
    for (int level = 0; level < orv::kLevels; ++level)
        s.variant[level] = reinterpret_cast<Kernel>(operation.variant[level]);
    return s;
}

inline bool begins_with(const char* name, const char* start)
{
    return std::strncmp(name, start, std::strlen(start)) == 0;
}
inline bool contains(const char* name, const char* part) { return std::strstr(name, part) != nullptr; }

}  // namespace test
