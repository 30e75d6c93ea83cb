// Which library is running, and which of its kernels. C functions, for hosts of any language.
#ifndef ORVANE_VERSION_H
#define ORVANE_VERSION_H

#include "Export.h"

extern "C" {
/// The version as a number: 10203 is 1.2.3.
ORVANE_API int ORVANE_CALL orvaneVersion();
/// The version as text: "1.2.3".
ORVANE_API const char* ORVANE_CALL orvaneVersionString();
/// The processor level whose kernels run: "px" (the plain processor), "w7" (SSE2), "v8" and "s8" (SSSE3),
/// "p8" (SSE4.1), "g9" (AVX) or "h9" (AVX2).
ORVANE_API const char* ORVANE_CALL orvaneLevel();
}

#endif
