// Buffers of signal vectors.
#include "SignalProcessingWrapper.h"

#include "core/memory.h"

#define MALLOC(name, T) \
    T* SignalProcessingWrapper::name(int len) { return static_cast<T*>(orv::orv_allocate_vector(len, sizeof(T))); }

MALLOC(Malloc_8u, unsigned char)
MALLOC(Malloc_16u, unsigned short)
MALLOC(Malloc_32s, int)
MALLOC(Malloc_32f, float)
MALLOC(Malloc_64f, double)
MALLOC(Malloc_32fc, Complex32f)

#undef MALLOC

void SignalProcessingWrapper::Free(void* buffer) { orv::orv_release(buffer); }
