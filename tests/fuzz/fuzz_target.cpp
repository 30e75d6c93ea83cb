// The operations of one family under libFuzzer. The input says which operation, which level and which arguments;
// the level is compared with the plain one, and AddressSanitizer watches both.
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "core/start_up.h"
#include "fuzz/family.h"
#include "gmock/gmock.h"
#include "support/compare_levels.h"
#include "support/options.h"

namespace test {
namespace {

struct Entry {
    std::string name;
    std::vector<Kernel> kernels;  // the plain one first, each once
    Maker make;
};
std::vector<Entry> entries;

[[noreturn]] void report(const Entry& entry, std::size_t kernel, const Trial& trial, const std::string& what)
{
    std::fprintf(stderr, "%s: kernel %zu of %zu against the plain one: %s; %s\n", entry.name.c_str(), kernel,
                 entry.kernels.size(), what.c_str(), trial.text().c_str());
    std::abort();
}

// What variants.cpp has for the family; its tests do nothing here but to name operations and their makers.
void collect_entries()
{
    testing::InitGoogleMock();
    auto& listeners = testing::UnitTest::GetInstance()->listeners();
    delete listeners.Release(listeners.default_result_printer());
    testing::GTEST_FLAG(filter) = std::string("Variants.") + fuzzed_family;
    if (RUN_ALL_TESTS() != 0 || entries.empty()) std::abort();
    testing::GTEST_FLAG(throw_on_failure) = true;  // uncaught, it ends the run like any crash
}

}  // namespace

Options& options()
{
    static Options o;
    return o;
}

void compare_levels(const char* name, const Kernel (&variant)[orv::kLevels], const Maker& make)
{
    Entry entry = {name, {}, make};
    for (int level = 0; level <= orv::orv_variant_index; ++level) {
        const bool known = std::count(entry.kernels.begin(), entry.kernels.end(), variant[level]) != 0;
        if (!known) entry.kernels.push_back(variant[level]);
    }
    entries.push_back(entry);
}

}  // namespace test

// Stacks of allocations would take most of the time; a finding is run again with them.
extern "C" const char* __asan_default_options()
{
    return "malloc_context_size=0:quarantine_size_mb=1:allocator_may_return_null=1";
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    test::collect_entries();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    using namespace test;
    Generator g(bytes, count);
    const Entry& entry = entries[static_cast<std::size_t>(uniform(g, 0, static_cast<int>(entries.size()) - 1))];
    const int highest = static_cast<int>(entry.kernels.size()) - 1;
    const auto kernel = static_cast<std::size_t>(uniform(g, highest > 0 ? 1 : 0, highest));
    const std::unique_ptr<Trial> trial = entry.make(g, uniform(g, 0, 255));
    trial->check_in_place(entry.kernels[0]);
    const Result expected = result_of(*trial, entry.kernels[0]);
    const std::string what = disagreement(*trial, entry.kernels[kernel], expected);
    if (!what.empty()) report(entry, kernel, *trial, what);
    return 0;
}
