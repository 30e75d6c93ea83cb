// What the command line of the test program sets.
#pragma once

#include <cstdint>
#include <string>

namespace test {

struct Options {
    std::uint64_t seed;     // --seed=N; printed, so that a failure can be repeated
    std::string operation;  // --op=NAME: only this operation in the variant test
    int level = -1;         // --level=0..6: only this level in the variant test
    std::string hashes_file;  // --write-hashes=FILE: what hashes.cpp compares with, anew
    bool brief = false;     // --brief: a tenth of the cases, for emulated processors
};

Options& options();

}  // namespace test
