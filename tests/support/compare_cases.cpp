// Hundreds of random cases of each operation, every level against the plain one.
#include <iostream>
#include <set>

#include "core/start_up.h"
#include "gmock/gmock.h"
#include "support/compare_levels.h"
#include "support/options.h"

namespace test {
namespace {

const char* const kTags[] = {"px", "w7", "v8", "s8", "p8", "g9", "h9"};

struct Tally {
    long checked = 0, shared = 0, skipped = 0;
};
Tally tally;

class ReportTally : public testing::Environment {
public:
    void TearDown() override
    {
        std::cout << "variants: " << tally.checked << " checked, " << tally.shared << " shared with a lower level, "
                  << tally.skipped << " skipped (above this processor's level)\n";
    }
};
const auto* const report_tally = testing::AddGlobalTestEnvironment(new ReportTally);

// The kernels that are to be compared with the plain one, each once.
std::vector<int> levels_to_check(const Kernel (&variant)[orv::kLevels])
{
    std::vector<int> levels;
    std::set<Kernel> seen;
    for (int level = 0; level < orv::kLevels; ++level) {
        if (!seen.insert(variant[level]).second) ++tally.shared;
        else if (level > orv::orv_variant_index) ++tally.skipped;
        else if (options().level < 0 || options().level == level) levels.push_back(level);
    }
    tally.checked += static_cast<long>(levels.size());
    return levels;
}

}  // namespace

void compare_levels(const char* name, const Kernel (&variant)[orv::kLevels], const Maker& make)
{
    if (!options().operation.empty() && options().operation != name) return;
    const std::vector<int> levels = levels_to_check(variant);
    Generator g = make_generator(name);
    const int cases = options().brief ? 32 : 400;
    for (int i = 0; i < cases; ++i) {
        const std::unique_ptr<Trial> trial = make(g, i);
        if (testing::Test::HasFatalFailure()) return;
        trial->check_in_place(variant[0]);
        const Result expected = result_of(*trial, variant[0]);
        for (const int level : levels) {
            SCOPED_TRACE(name);
            ASSERT_EQ(disagreement(*trial, variant[level], expected), "")
                << "at " << kTags[level] << " against px, case " << i << ", " << trial->text();
        }
    }
}

}  // namespace test
