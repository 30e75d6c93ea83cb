// How much working memory a call asks for.
#pragma once

#include <cstdlib>

#include "core/memory.h"

namespace test {

class MeasuredMemory {
public:
    MeasuredMemory()
    {
        orv::orv_memory_functions.allocate = [](std::size_t bytes) {
            asked() += static_cast<long long>(bytes);
            return std::malloc(bytes);
        };
    }
    ~MeasuredMemory() { orv::orv_memory_functions.allocate = std::malloc; }
    MeasuredMemory(const MeasuredMemory&) = delete;
    MeasuredMemory& operator=(const MeasuredMemory&) = delete;

    void start() const { asked() = 0; }
    // Since the start; nothing is taken off for what has been released.
    long long bytes() const { return asked(); }

private:
    static long long& asked()
    {
        static long long n;
        return n;
    }
};

}  // namespace test
