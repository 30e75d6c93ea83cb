// Makes allocations fail, and counts what is not released.
#pragma once

#include <cstdlib>

#include "core/memory.h"
#include "gmock/gmock.h"

namespace test {

class AllocationFailure {
public:
    // The allocation with this number (from 0) and all after it fail; none for a negative one.
    explicit AllocationFailure(int first_failing)
    {
        countdown() = first_failing;
        live() = 0;
        orv::orv_memory_functions.allocate = [](std::size_t bytes) -> void* {
            if (countdown() == 0) return nullptr;
            if (countdown() > 0) --countdown();
            ++live();
            return std::malloc(bytes);
        };
        orv::orv_memory_functions.release = [](void* block) {
            if (block != nullptr) --live();
            std::free(block);
        };
    }
    ~AllocationFailure()
    {
        EXPECT_EQ(live(), 0) << "blocks not released";
        orv::orv_memory_functions.allocate = std::malloc;
        orv::orv_memory_functions.release = std::free;
    }
    static int& live() { static int n; return n; }

private:
    static int& countdown() { static int n; return n; }
};

}  // namespace test
