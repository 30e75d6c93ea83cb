#include "core/start_up.h"

namespace orv {

extern "C" {
int orv_variant_index = level_px;
FeatureMask orv_enabled_features = kMmx | kSse;
}

Status start_up()
{
    FeatureMask features = 0;
    Identification id = {};
    const bool identified = query_features(&features, &id) == StatusOk;
    const LevelChoice choice = identified ? choose_level(features) : kLevelWithoutIdentification;
    orv_variant_index = choice.level;
    orv_enabled_features = choice.enabled;
    return status_of_start_up(id);
}

namespace {

// Run when the loader maps the library. 101 is the first priority open to programs: ahead of every
// static initialiser of the library and, in a host that links it statically, of the host's own. A
// shared library is initialised before whatever depends on it, also under dlopen. It stands beside the
// index so that no linker leaves it out of a static link. (The Windows DLL, whose entry routine is its
// own, does without constructors and calls start_up() itself.)
__attribute__((constructor(101))) void run_start_up() { start_up(); }

}  // namespace

}  // namespace orv
