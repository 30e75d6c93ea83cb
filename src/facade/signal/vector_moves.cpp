// Vectors filled and moved.
#include "signal/vector_moves.h"

#include "SignalProcessingWrapper.h"

using namespace orv;

// Intended: always true, whatever the status.
bool SignalProcessingWrapper::Zero_16u(unsigned short* dst, int len)
{
    orv_Zero_16u(dst, {len});
    return true;
}

bool SignalProcessingWrapper::Copy_16u(const unsigned short* src, unsigned short* dst, int len)
{
    orv_Copy_16u(src, dst, {len});
    return true;
}
