#include <chrono>
#include <cstdlib>
#include <cstring>
#include <iostream>

#include "core/start_up.h"
#include "gmock/gmock.h"
#include "support/options.h"

namespace test {

Options& options()
{
    static Options o;
    return o;
}

}  // namespace test

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    test::Options& o = test::options();
    std::string expected_level;
    o.seed = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument.rfind("--seed=", 0) == 0) o.seed = std::strtoull(argv[i] + 7, nullptr, 10);
        else if (argument.rfind("--op=", 0) == 0) o.operation = argument.substr(5);
        else if (argument.rfind("--level=", 0) == 0) o.level = std::atoi(argv[i] + 8);
        else if (argument.rfind("--write-hashes=", 0) == 0) o.hashes_file = argument.substr(15);
        else if (argument == "--brief") o.brief = true;
        else if (argument.rfind("--expect-level=", 0) == 0) expected_level = argument.substr(15);
        else return std::cerr << "unknown option " << argument << "\n", 2;
    }
    static const char* const tags[] = {"px", "w7", "v8", "s8", "p8", "g9", "h9"};
    std::cout << "seed " << o.seed << ", this processor's level " << tags[orv::orv_variant_index] << ", "
              << 8 * sizeof(void*) << " bit\n";
    if (!expected_level.empty() && expected_level != tags[orv::orv_variant_index]) {
        return std::cerr << "expected level " << expected_level << "\n", 2;
    }
    return RUN_ALL_TESTS();
}
