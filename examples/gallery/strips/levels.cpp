// The headline, computed on the spot: every processor level gives the same bits.
#include <Version.h>

#include <cmath>
#include <fstream>

#include "strips.h"

// The vectors' elementary functions have an entry point for each level; on 32-bit Windows these are other names.
using OneToOne = int(const float*, float*, int);
using TwoToOne = int(const float*, const float*, float*, int);
using OneToTwo = int(const float*, float*, float*, int);
using DoubleToTwo = int(const double*, double*, double*, int);
#define LEVELS(Type, name)                                                                                    \
    extern "C" Type px_ipps##name, w7_ipps##name, v8_ipps##name, s8_ipps##name, p8_ipps##name, g9_ipps##name, \
        h9_ipps##name;
LEVELS(OneToOne, Sin_32f_A11)
LEVELS(OneToOne, Cos_32f_A11)
LEVELS(OneToTwo, SinCos_32f_A11)
LEVELS(DoubleToTwo, SinCos_64f_A50)
LEVELS(TwoToOne, Atan2_32f_A24)
LEVELS(TwoToOne, Hypot_32f_A24)
LEVELS(OneToOne, Floor_32f)
#undef LEVELS

namespace {

constexpr int kPoints = 1 << 20, kLevels = 7;
const char* const kLevelNames[kLevels] = {"px: plain x86", "w7: SSE2", "v8: SSSE3", "s8: SSSE3",
                                          "p8: SSE4.1",    "g9: AVX",  "h9: AVX2"};

// Which levels this processor can run.
bool runs(int level)
{
    switch (level) {
        case 0:
            return true;
        case 1:
            return __builtin_cpu_supports("sse2");
        case 2:
        case 3:
            return __builtin_cpu_supports("ssse3");
        case 4:
            return __builtin_cpu_supports("sse4.1");
        case 5:
            return __builtin_cpu_supports("avx");
        default:
            return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") && __builtin_cpu_supports("bmi2");
    }
}

struct Arguments {
    std::vector<float> x, y;
    std::vector<double> wide;

    // From -100 to 100 without a pattern: multiples of the golden ratio.
    Arguments()
    {
        for (int i = 0; i < kPoints; ++i) {
            wide.push_back(200 * std::fmod(0.6180339887498949 * i, 1.0) - 100);
            x.push_back(static_cast<float>(wide.back()));
            y.push_back(static_cast<float>(100 - 200 * std::fmod(0.7548776662466927 * i, 1.0)));
        }
    }
};

// The digest of a function's results at a level; of both where there are two.
std::string result(const Arguments& a, OneToOne* function)
{
    std::vector<float> r(kPoints);
    function(a.x.data(), r.data(), kPoints);
    return digest(r.data(), r.size() * sizeof(float));
}
std::string result(const Arguments& a, TwoToOne* function)
{
    std::vector<float> r(kPoints);
    function(a.x.data(), a.y.data(), r.data(), kPoints);
    return digest(r.data(), r.size() * sizeof(float));
}
std::string result(const Arguments& a, OneToTwo* function)
{
    std::vector<float> r(2 * kPoints);
    function(a.x.data(), r.data(), r.data() + kPoints, kPoints);
    return digest(r.data(), r.size() * sizeof(float));
}
std::string result(const Arguments& a, DoubleToTwo* function)
{
    std::vector<double> r(2 * kPoints);
    function(a.wide.data(), r.data(), r.data() + kPoints, kPoints);
    return digest(r.data(), r.size() * sizeof(double));
}

template <class Function>
std::string table_row(const Arguments& a, const std::string& name, Function* const (&levels)[kLevels], int& different)
{
    std::string row = "<tr><th>" + name + "</th>", first;
    for (int level = 0; level < kLevels; ++level) {
        const std::string found = runs(level) ? result(a, levels[level]) : "not here";
        if (first.empty()) first = found;
        if (runs(level) && found != first) ++different;
        row += "<td>" + found.substr(0, 8) + "</td>";
    }
    return row + "</tr>\n";
}

std::string processor()
{
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);) {
        if (line.rfind("model name", 0) == 0) return line.substr(line.find(':') + 2);
    }
    return "an x86 processor";
}

}  // namespace

void show_levels(Page& page)
{
    page.section(
        "The same bits at every level",
        "Each operation exists seven times, for processors from plain x86 to AVX2, and all seven give the same "
        "bits. Below are digests of a million results of seven functions, computed by each level's own code on "
        "this machine just now: each row is one number. The tests compare all operations in this way.");
    const Arguments a;
    int different = 0;
    std::string table = "<div class=\"wide\"><table id=\"levels\"><tr><th>function</th>";
    for (const char* name : kLevelNames) table += std::string("<th>") + name + "</th>";
    table += "</tr>\n";
#define ROW(name)                                                                                                  \
    table += table_row(                                                                                            \
        a, #name,                                                                                                  \
        {px_ipps##name, w7_ipps##name, v8_ipps##name, s8_ipps##name, p8_ipps##name, g9_ipps##name, h9_ipps##name}, \
        different)
    ROW(Sin_32f_A11);
    ROW(Cos_32f_A11);
    ROW(SinCos_32f_A11);
    ROW(SinCos_64f_A50);
    ROW(Atan2_32f_A24);
    ROW(Hypot_32f_A24);
    ROW(Floor_32f);
#undef ROW
    table += "</table></div>\n<p id=\"machine\">" + escaped(processor()) + ", Orvane " + orvaneVersionString() +
             "; calls run at level " + orvaneLevel() + ". " +
             (different == 0 ? "All equal." : std::to_string(different) + " differ!") + "</p>\n";
    page.block(table);
}
