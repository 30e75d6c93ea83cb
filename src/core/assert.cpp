#include "core/assert.h"

#ifndef NDEBUG
#include <cstdio>
#include <cstdlib>

void orv_assertion_failed(const char* condition, const char* file, int line)
{
    std::fprintf(stderr, "%s:%d: not so: %s\n", file, line, condition);
    std::abort();
}
#endif
