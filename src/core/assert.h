// ORV_ASSERT(condition): what a function takes for granted of its callers. Debug and sanitizer builds check it and stop
// with a message; elsewhere nothing is evaluated and no code is left.
#pragma once

#ifdef NDEBUG
#define ORV_ASSERT(condition) static_cast<void>(sizeof(!(condition)))  // its names count as used
#else
extern "C" [[noreturn]] void orv_assertion_failed(const char* condition, const char* file, int line);
#define ORV_ASSERT(condition) \
    ((condition) ? static_cast<void>(0) : orv_assertion_failed(#condition, __FILE__, __LINE__))
#endif
