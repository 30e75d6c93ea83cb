// Parameters of shapes, macros that write functions of one argument list (facade/forms.h, elementwise/forms.h): FIRST
// is what a shape needs of its last arguments, PARAMETERS and ARGUMENTS make parameters and arguments of the types
// behind it.
#pragma once

#define FIRST(...) FIRST_(__VA_ARGS__, )
#define FIRST_(first, ...) first
#define AFTER(kind, ...) \
    AFTER_(__VA_ARGS__, AFTER_6, AFTER_5, AFTER_4, AFTER_3, AFTER_2, AFTER_1, AFTER_0, )(kind, __VA_ARGS__)
#define AFTER_(first, A, B, C, D, E, F, chosen, ...) chosen
#define AFTER_0(kind, first)
#define AFTER_1(kind, first, A) kind(A, a)
#define AFTER_2(kind, first, A, B) kind(A, a) kind(B, b)
#define AFTER_3(kind, first, A, B, C) kind(A, a) kind(B, b) kind(C, c)
#define AFTER_4(kind, first, A, B, C, D) kind(A, a) kind(B, b) kind(C, c) kind(D, d)
#define AFTER_5(kind, first, A, B, C, D, E) kind(A, a) kind(B, b) kind(C, c) kind(D, d) kind(E, e)
#define AFTER_6(kind, first, A, B, C, D, E, F) AFTER_5(kind, first, A, B, C, D, E) kind(F, f)
#define PARAMETER(Type, name) , Type name
#define ARGUMENT(Type, name) , name
#define PARAMETERS(...) AFTER(PARAMETER, __VA_ARGS__)
#define ARGUMENTS(...) AFTER(ARGUMENT, __VA_ARGS__)
