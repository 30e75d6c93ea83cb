// Vectors filled and moved.
#include "facade/forms.h"
#include "signal/vector_moves.h"

using namespace orv;

// Intended: always true, whatever the status.
bool SignalProcessingWrapper::Zero_16u(unsigned short* dst, int len)
{
    orv_Zero_16u(dst, {len});
    return true;
}

VECTOR_SRC_DST(Copy_16u, always_true(orv_Copy_16u), unsigned short, unsigned short)
