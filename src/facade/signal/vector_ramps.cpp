// Vectors that rise evenly.
#include "facade/forms.h"
#include "signal/vector_ramps.h"

using namespace orv;

#define SLOPE(name, T)                                                                  \
    bool SignalProcessingWrapper::name(double offset, double slope, T* dst, int len)    \
    {                                                                                   \
        return call(orv_##name, in_memory(offset), in_memory(slope), dst, Count{len});  \
    }
SLOPE(VectorSlope_8u, unsigned char)
SLOPE(VectorSlope_16u, unsigned short)
SLOPE(VectorSlope_32s, int)
SLOPE(VectorSlope_32f, float)
SLOPE(VectorSlope_64f, double)
#undef SLOPE

#define RAMP(name, T)                                                                 \
    bool SignalProcessingWrapper::name(double first, double last, T* dst, int len)    \
    {                                                                                 \
        return call(orv_##name, in_memory(first), in_memory(last), dst, Count{len});  \
    }
RAMP(VectorRamp_8u, unsigned char)
RAMP(VectorRamp_16u, unsigned short)
RAMP(VectorRamp_32s, int)
RAMP(VectorRamp_32f, float)
RAMP(VectorRamp_64f, double)
#undef RAMP
