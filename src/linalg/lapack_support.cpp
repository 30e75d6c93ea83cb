// What the LAPACK routines expect around them, so that they need nothing but the C library.
#include <cstddef>
#include <cstring>

extern "C" {

// The error handler. LAPACK's own one prints a message and ends the process; ours leaves the report to
// *info, which the routine has set, and lets the routine return to its caller.
void xerbla_(const char* routine, const int* argument, std::size_t routine_length);
void xerbla_(const char*, const int*, std::size_t) {}

// Fortran's a // b, cut off or padded with blanks to the length of the result: of all its run-time
// library the only function that the routines call.
void _gfortran_concat_string(std::size_t length, char* result, std::size_t a_length, const char* a,
                             std::size_t b_length, const char* b);
void _gfortran_concat_string(std::size_t length, char* result, std::size_t a_length, const char* a,
                             std::size_t b_length, const char* b)
{
    if (a_length > length) a_length = length;
    if (b_length > length - a_length) b_length = length - a_length;
    std::memcpy(result, a, a_length);
    std::memcpy(result + a_length, b, b_length);
    std::memset(result + a_length + b_length, ' ', length - a_length - b_length);
}

}  // extern "C"
