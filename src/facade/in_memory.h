// Floating-point arguments of the caller on their way to a kernel.
#pragma once

namespace orv {

// Leaves an argument where the caller put it, from where it is passed on as bits. Between x87 registers and memory
// even a copy is an operation: it traps on denormal numbers and signalling NaNs in a host that has unmasked those
// exceptions.
template <class T>
inline const T& in_memory(T& value)
{
#if !defined(__SSE2__)
    __asm__ volatile("" : "+m"(value));
#endif
    return value;
}

}  // namespace orv
