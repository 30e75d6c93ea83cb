// The processor's time-stamp counter.
#pragma once

namespace orv {

extern "C" {
// Its value once all earlier instructions have completed; 0 where there is none.
unsigned long long orv_cpu_clocks();
}

}  // namespace orv
