// Start-up: chooses the processor level, once, while the library is being loaded.
#pragma once

#include "core/features.h"

namespace orv {

extern "C" {
// The features that the chosen level uses. Nothing reads it but tests and debuggers.
extern ORV_INTERNAL FeatureMask orv_enabled_features;
}

// Sets the index and the record. Harmless when run again.
Status start_up();

}  // namespace orv
