// What callers may ask for, exact or quick. Nothing here depends on it: there is one order of additions for all.
#pragma once

namespace orv {

constexpr int kHintNone = 0;
constexpr int kHintFast = 1;
constexpr int kHintAccurate = 2;

}  // namespace orv
