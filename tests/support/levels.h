// Runs a check at every level that this processor has, through the exported methods.
#pragma once

#include "core/features.h"
#include "core/operation.h"
#include "gmock/gmock.h"
#include "support/processor_state.h"

namespace test {

template <class Check>
void at_every_level(Check check)
{
    const int highest = orv::orv_variant_index;
    for (int level = 0; level <= highest; ++level) {
        SCOPED_TRACE("level " + std::to_string(level));
        orv::orv_variant_index = level;
        const ProcessorState before;
        check();
        before.expect_kept();
        orv::orv_variant_index = highest;
        if (testing::Test::HasFatalFailure()) return;
    }
}

}  // namespace test
