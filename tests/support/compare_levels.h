// One case after the other of an operation, at every level that this processor runs, against the plain level: the
// same status, the same bytes wherever the case may write, and the processor as it was.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "support/arguments.h"
#include "support/random.h"

namespace test {

using Bytes = std::vector<unsigned char>;

// A call with arguments of its own.
class Trial {
public:
    virtual ~Trial() = default;
    virtual orv::Status call(Kernel kernel) = 0;
    virtual void reset() = 0;     // all memory as it was before the first call
    virtual Bytes outcome() = 0;  // what the call may write, and what surrounds it
    virtual std::string text() const { return {}; }
    // With a tolerance where levels may differ.
    virtual bool agrees(const Bytes& actual, const Bytes& expected) const { return actual == expected; }
    // If the destination is a source: the plain kernel gives what it gives with a destination of its own.
    virtual void check_in_place(Kernel) {}
};
using Maker = std::function<std::unique_ptr<Trial>(Generator& generator, int number)>;

struct Result {
    orv::Status status;
    Bytes outcome;
};
Result result_of(Trial& trial, Kernel kernel);
// What a kernel does otherwise than expected, in words; empty if nothing.
std::string disagreement(Trial& trial, Kernel kernel, const Result& expected);

// Runs the cases (compare_cases.cpp), or keeps the maker for inputs to come (fuzz/fuzz_target.cpp).
void compare_levels(const char* name, const Kernel (&variant)[orv::kLevels], const Maker& make);

// The cases that follow from the signature alone: images, vectors, constants, values, results.
void compare_levels(const Subject& subject);

}  // namespace test
