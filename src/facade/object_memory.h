// What the exported objects have in common.
#pragma once

namespace orv {

// The body of every __autoclassinit2: zeros from the start of the object.
inline void zero_object(void* object, unsigned int size)
{
    volatile unsigned char* const bytes = static_cast<unsigned char*>(object);
    for (unsigned int i = 0; i < size; ++i) bytes[i] = 0;
}

}  // namespace orv
