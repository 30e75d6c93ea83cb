// Which family a target is about: CMake writes the definition.
#pragma once

namespace test {

extern const char* const fuzzed_family;

}  // namespace test
