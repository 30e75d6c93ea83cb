// Buffers of images.
#include "ImageProcessingWrapper.h"

#include "core/memory.h"

#define MALLOC(name, T, channels)                                                                       \
    T* ImageProcessingWrapper::name(int width, int height, int* step)                                   \
    {                                                                                                   \
        return static_cast<T*>(orv::orv_allocate_image(width, height, channels * sizeof(T), step));     \
    }

MALLOC(Malloc_8u_C1, unsigned char, 1)
MALLOC(Malloc_8u_C3, unsigned char, 3)
MALLOC(Malloc_8u_C4, unsigned char, 4)
MALLOC(Malloc_8u_AC4, unsigned char, 4)
MALLOC(Malloc_16u_C1, unsigned short, 1)
MALLOC(Malloc_16s_C1, short, 1)
MALLOC(Malloc_32s_C1, int, 1)
MALLOC(Malloc_32f_C1, float, 1)
MALLOC(Malloc_32f_C3, float, 3)
MALLOC(Malloc_32f_C4, float, 4)
MALLOC(Malloc_32fc_C1, Complex32f, 1)

#undef MALLOC

void ImageProcessingWrapper::Free(void* buffer) { orv::orv_release(buffer); }
