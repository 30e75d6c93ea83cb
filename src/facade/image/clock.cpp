// The time-stamp counter.
#include "ImageProcessingWrapper.h"
#include "core/clock.h"

unsigned long long ImageProcessingWrapper::GetCpuClocks() { return orv::orv_cpu_clocks(); }
