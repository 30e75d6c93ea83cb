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
    // With the destination in the place of a source the outcome is a part of the bytes.
    virtual bool in_place() const { return false; }
};
using Maker = std::function<std::unique_ptr<Trial>(std::mt19937& generator, int number)>;

void compare_levels(const char* name, const Kernel (&variant)[orv::kLevels], const Maker& make);

// The cases that follow from the signature alone: images, vectors, constants, values, results.
void compare_levels(const Subject& subject);

}  // namespace test
