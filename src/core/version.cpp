#include "Version.h"

#include "core/operation.h"

// On Windows a definition file exports these: hosts of both compilers call one function.

int orvaneVersion() { return ORV_VERSION_MAJOR * 10000 + ORV_VERSION_MINOR * 100 + ORV_VERSION_PATCH; }

const char* orvaneVersionString() { return ORV_VERSION_STRING; }

const char* orvaneLevel()
{
    static const char names[orv::kLevels][3] = {"px", "w7", "v8", "s8", "p8", "g9", "h9"};
    return names[orv::orv_variant_index];
}
