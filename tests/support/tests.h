// What the tests of all families start from: the matchers, every level, random numbers, failing allocations, the
// host's floating-point control, memory behind fences.
#pragma once

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "gmock/gmock.h"
#include "support/allocations.h"
#include "support/exact.h"
#include "support/guarded_block.h"
#include "support/host_control.h"
#include "support/levels.h"
#include "support/random.h"

namespace test {

using u8 = unsigned char;
using u16 = unsigned short;
using s16 = short;
using orv::Size;
using orv::Status;

}  // namespace test
