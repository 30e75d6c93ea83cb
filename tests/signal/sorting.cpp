// Sorted vectors and their places against a stable sort by the order's definition, on bits: floats are never loaded
// but to be compared.
#include "signal/sorting.h"

#include <numeric>

#include "SignalProcessingWrapper.h"
#include "image/edges/memory.h"
#include "support/tests.h"

namespace test {
namespace {

using W = SignalProcessingWrapper;

template <class T> struct Of;
#define OF(type, T, Integer)                                                                                       \
    template <> struct Of<T> {                                                                                     \
        using Bits = Integer;                                                                                      \
        static constexpr const char* name = #type;                                                                 \
        static bool sort(bool falling, T* p, int n)                                                                \
        {                                                                                                          \
            return falling ? W::SortDescend_##type##_I(p, n) : W::SortAscend_##type##_I(p, n);                     \
        }                                                                                                          \
        static bool sort(bool falling, T* p, int* index, int n)                                                    \
        {                                                                                                          \
            return falling ? W::SortIndxDescend_##type##_I(p, index, n) : W::SortIndxAscend_##type##_I(p, index, n);  \
        }                                                                                                          \
        static Status status(T* p, int n) { return orv::orv_SortDescend_##type##_I(p, {n}); }                      \
        static Status status(T* p, int* index, int n) { return orv::orv_SortIndxAscend_##type##_I(p, index, {n}); } \
    };
OF(8u, unsigned char, std::uint8_t)
OF(16u, unsigned short, std::uint16_t)
OF(32s, int, std::uint32_t)
OF(32f, float, std::uint32_t)
OF(64f, double, std::uint64_t)
#undef OF

template <class T> class Sorting : public testing::Test {};
using Types = testing::Types<unsigned char, unsigned short, int, float, double>;
struct Names {
    template <class T>
    static std::string GetName(int)
    {
        return Of<T>::name;
    }
};
TYPED_TEST_SUITE(Sorting, Types, Names);

// --- The order ------------------------------------------------------------------------------------

template <class T>
using Content = std::vector<typename Of<T>::Bits>;

template <class Bits>
constexpr Bits kSign = static_cast<Bits>(Bits{1} << (8 * sizeof(Bits) - 1));

template <class Bits>
bool nan_precedes(Bits a, Bits b)
{
    const bool negative = (a & kSign<Bits>) != 0;
    if (negative != ((b & kSign<Bits>) != 0)) return !negative;
    return negative ? a > b : a < b;
}

template <class T, class Bits>
bool precedes(Bits a, Bits b, bool falling)
{
    T x, y;
    std::memcpy(&x, &a, sizeof(x));
    std::memcpy(&y, &b, sizeof(y));
    if constexpr (std::is_floating_point<T>::value) {
        const bool none = std::isnan(x);
        if (none != std::isnan(y)) return !none;
        if (none) return falling ? nan_precedes(b, a) : nan_precedes(a, b);
        if (x == y) return falling ? b > a && b - a == kSign<Bits> : a > b && a - b == kSign<Bits>;  // the zeros
    }
    return falling ? x > y : x < y;
}

template <class T>
std::vector<int> expected_places(const Content<T>& content, bool falling)
{
    std::vector<int> places(content.size());
    std::iota(places.begin(), places.end(), 0);
    std::stable_sort(places.begin(), places.end(), [&](int a, int b) {
        return precedes<T>(content[static_cast<std::size_t>(a)], content[static_cast<std::size_t>(b)], falling);
    });
    return places;
}

// --- Memory with a fence on one side and bytes that must stay on the other -------------------------

template <class T>
class Fenced {
public:
    Fenced(std::size_t count, bool at_end) : block_(bytes(count) + kBeside, at_end), at_end_(at_end), count_(count)
    {
        std::memset(block_.as(), 0xA5, bytes(count) + kBeside);
    }
    T* elements() const { return reinterpret_cast<T*>(block_.as<char>() + (at_end_ ? kBeside : 0)); }
    template <class Bits>
    std::vector<Bits> content() const
    {
        std::vector<Bits> all(count_);
        std::memcpy(all.data(), elements(), bytes(count_));
        return all;
    }
    bool is_kept_beside() const
    {
        const auto* const p = block_.as() + (at_end_ ? 0 : bytes(count_));
        return std::all_of(p, p + kBeside, [](unsigned char byte) { return byte == 0xA5; });
    }

private:
    static constexpr std::size_t kBeside = 64;
    static std::size_t bytes(std::size_t count) { return count * sizeof(T); }
    GuardedBlock block_;
    bool at_end_;
    std::size_t count_;
};

template <class T>
void check(const Content<T>& content, const std::string& what)
{
    using Bits = typename Of<T>::Bits;
    const int n = static_cast<int>(content.size());
    const Fenced<T> vector(content.size(), n % 2 == 0);
    const Fenced<int> index(content.size(), n % 2 == 0);
    const auto restore = [&] { std::memcpy(vector.elements(), content.data(), content.size() * sizeof(Bits)); };
    for (const bool falling : {false, true}) {
        SCOPED_TRACE(std::to_string(n) + " of " + Of<T>::name + ", " + what + (falling ? ", falling" : ", rising"));
        const std::vector<int> places = expected_places<T>(content, falling);
        Content<T> sorted;
        for (const int place : places) sorted.push_back(content[static_cast<std::size_t>(place)]);
        at_every_level([&] {
            restore();
            EXPECT_TRUE(Of<T>::sort(falling, vector.elements(), n));
            ASSERT_TRUE(vector.template content<Bits>() == sorted);
            restore();
            EXPECT_TRUE(Of<T>::sort(falling, vector.elements(), index.elements(), n));
            ASSERT_TRUE(vector.template content<Bits>() == sorted);
            ASSERT_TRUE(index.template content<int>() == places);
            ASSERT_TRUE(vector.is_kept_beside() && index.is_kept_beside());
        });
        if (testing::Test::HasFatalFailure()) return;
    }
}

// --- Contents -------------------------------------------------------------------------------------

// Both ends of the type, both zeros, and every border of the NaNs; the floats' patterns above other low bits are
// those of doubles.
template <class T>
Content<T> special_values()
{
    using Bits = typename Of<T>::Bits;
    using L = std::numeric_limits<Bits>;
    Content<T> values = {0, 1, 2, L::max(), L::max() - 1, L::max() / 2, L::max() / 2 + 1, L::max() / 2 + 2};
    if constexpr (std::is_floating_point<T>::value) {
        const Bits infinity = bits_of(std::numeric_limits<T>::infinity());
        for (const Bits sign : {Bits{0}, kSign<Bits>}) {
            for (const int more : {-1, 0, 1, 2}) values.push_back(sign + infinity + static_cast<Bits>(more));
            values.push_back(sign + infinity / 2);
            values.push_back(sign + infinity + infinity / 4096);
        }
    }
    return values;
}

template <class T>
Content<T> content_of(int n, const std::function<std::uint64_t(std::uint64_t)>& bits_at)
{
    Content<T> content;
    for (int i = 0; i < n; ++i)
        content.push_back(static_cast<typename Of<T>::Bits>(bits_at(static_cast<std::uint64_t>(i))));
    return content;
}
// The bits of a small whole number.
template <class T>
std::uint64_t number(std::uint64_t i)
{
    const T value = static_cast<T>(i);
    typename Of<T>::Bits bits;
    std::memcpy(&bits, &value, sizeof(bits));
    return bits;
}

std::uint64_t any_bits(Generator& g) { return std::uint64_t{g()} << 32 | g(); }

template <class T>
Content<T> one_of(const Content<T>& values, int n, Generator& g)
{
    return content_of<T>(
        n, [&](auto) { return values[static_cast<std::size_t>(uniform(g, 0, static_cast<int>(values.size()) - 1))]; });
}

TYPED_TEST(Sorting, EveryLength)
{
    std::mt19937 g = make_generator("lengths");
    const int most = options().brief ? 140 : 300;
    for (int n = 1; n <= most; ++n) {
        check<TypeParam>(content_of<TypeParam>(n, [&](auto) { return any_bits(g); }), "any bits");
        check<TypeParam>(one_of<TypeParam>(special_values<TypeParam>(), n, g), "special values");
        if (this->HasFatalFailure()) return;
    }
}

// D. R. Musser, Introspective sorting and selection algorithms (1997): the median of the first, the middle and the last
// one is always among the least.
std::uint64_t killer_of_three(std::uint64_t i, std::uint64_t n)
{
    const std::uint64_t half = n / 2;
    if (i >= half) return 2 * (i - half) + 2;
    return i % 2 == 0 ? i + 1 : half + i + (half % 2 == 0 ? 0 : 1);
}

// Against pivots that are medians of eight vectors from all over a part: all that such a choice looks at is less than
// what it does not, over and over. Follows where a cut moves elements, as src/signal/sort_by_parts.h does.
class KillerOfSamples {
public:
    KillerOfSamples(int n, int lanes) : lanes_(static_cast<std::size_t>(lanes)), values_(static_cast<std::size_t>(n))
    {
        Places part(values_.size());
        std::iota(part.begin(), part.end(), std::size_t{0});
        for (std::uint64_t value = 1; part.size() > 16 * lanes_; ++value) part = above(part, value);
        std::uint64_t last = 1000000;
        for (const std::size_t place : part) values_[place] = last = last * 7 % 999983 + 1000000;
    }
    std::uint64_t at(std::uint64_t i) const { return values_[static_cast<std::size_t>(i)]; }

private:
    using Places = std::vector<std::size_t>;

    // Gives what is looked at this value and returns the others as a cut leaves them.
    Places above(const Places& part, std::uint64_t value)
    {
        const std::size_t apart = (part.size() - lanes_) / 7;
        for (std::size_t v = 0; v < 8; ++v) {
            for (std::size_t lane = 0; lane < lanes_; ++lane) values_[part[v * apart + lane]] = value;
        }
        Places to = part;
        const std::size_t whole = part.size() / lanes_ * lanes_, round = 4 * lanes_;
        std::size_t lower = 0, upper = whole, unread = round, unread_end = whole - round;
        const auto place = [&](std::size_t from) {
            Places kept[2];
            for (std::size_t i = from; i < from + lanes_; ++i) kept[values_[part[i]] == 0].push_back(part[i]);
            std::copy(kept[0].begin(), kept[0].end(), to.begin() + static_cast<std::ptrdiff_t>(lower));
            lower += kept[0].size(), upper -= kept[1].size();
            std::copy(kept[1].begin(), kept[1].end(), to.begin() + static_cast<std::ptrdiff_t>(upper));
        };
        while (unread != unread_end) {
            const std::size_t n = unread_end - unread >= round ? round : lanes_;
            const bool below = unread - lower <= upper - unread_end;
            const std::size_t from = below ? unread : unread_end - n;
            (below ? unread : unread_end) = below ? unread + n : from;
            for (std::size_t i = 0; i < n; i += lanes_) place(from + i);
        }
        for (const std::size_t from : {std::size_t{0}, whole - round}) {
            for (std::size_t i = 0; i < round; i += lanes_) place(from + i);
        }
        for (std::size_t i = whole; i < to.size(); ++i) {
            std::swap(to[i], to[lower]);
            lower += values_[to[lower]] != 0 ? 1 : 0;
        }
        return Places(to.begin() + static_cast<std::ptrdiff_t>(lower), to.end());
    }

    std::size_t lanes_;
    std::vector<std::uint64_t> values_;
};

TYPED_TEST(Sorting, LongPatterns)
{
    using T = TypeParam;
    std::mt19937 g = make_generator("patterns");
    for (const int n : {1500, 4097, options().brief ? 5000 : 20000}) {
        const auto count = static_cast<std::uint64_t>(n);
        const KillerOfSamples killer(n, sizeof(T) == 8 ? 4 : 8), killer_of_words(n, 4);
        const struct {
            const char* what;
            std::function<std::uint64_t(std::uint64_t)> value;
        } patterns[] = {
            {"random", [&](auto) { return any_bits(g); }},
            {"rising", [&](auto i) { return number<T>(i); }},
            {"falling", [&](auto i) { return number<T>(count - i); }},
            {"all equal", [&](auto) { return number<T>(7); }},
            {"two values", [&](auto) { return number<T>(g() % 2); }},
            {"few values", [&](auto) { return number<T>(g() % 9); }},
            {"organ pipe", [&](auto i) { return number<T>(std::min(i, count - i)); }},
            {"a random tail", [&](auto i) { return number<T>(i < count * 9 / 10 ? i : g() % count); }},
            {"equal upper halves", [&](auto) { return sizeof(T) == 8 ? number<T>(3) + g() % 999 : g() % 65536; }},
            {"killer of three", [&](auto i) { return number<T>(killer_of_three(i, count)); }},
            {"killer of samples", [&](auto i) { return number<T>(killer.at(i)); }},
            {"killer of samples of words", [&](auto i) { return number<T>(killer_of_words.at(i)); }},
        };
        for (const auto& p : patterns) check<T>(content_of<T>(n, p.value), p.what);
        check<T>(one_of<T>(special_values<T>(), n, g), "special values");
        if (this->HasFatalFailure()) return;
    }
}

// So many that words of 16 bits are counted.
TEST(SortingCounted, Words)
{
    std::mt19937 g = make_generator("counted");
    check<unsigned short>(content_of<unsigned short>(140001, [&](auto) { return any_bits(g); }), "any bits");
    check<unsigned short>(content_of<unsigned short>(131072, [&](auto) { return 65520 + g() % 32; }), "both ends");
}

// --- Refusals, memory, the host -------------------------------------------------------------------

TYPED_TEST(Sorting, ChecksInTheirOrder)
{
    using T = TypeParam;
    T vector[3] = {3, 1, 2};
    int index[3] = {7, 8, 9};
    const int least = std::numeric_limits<int>::min();
    const struct {
        T* p;
        int* index;
        int n;
        int status;
    } rows[] = {
        {nullptr, index, 3, -8}, {nullptr, nullptr, 0, -8}, {vector, nullptr, 0, -8},
        {vector, index, 0, -6},  {vector, index, least, -6}};
    at_every_level([&] {
        for (const auto& r : rows) {
            EXPECT_EQ(Of<T>::status(r.p, r.index, r.n), r.status);
            EXPECT_FALSE(Of<T>::sort(false, r.p, r.index, r.n));
            if (r.index == nullptr && r.p != nullptr) continue;
            EXPECT_EQ(Of<T>::status(r.p, r.n), r.status);
            EXPECT_FALSE(Of<T>::sort(true, r.p, r.n));
        }
        if (sizeof(T) > 1) {
            EXPECT_EQ(Of<T>::status(vector, index, std::numeric_limits<int>::max()), -9) << "more than there can be";
        }
        EXPECT_THAT(vector, testing::ElementsAre(3, 1, 2));
        EXPECT_THAT(index, testing::ElementsAre(7, 8, 9));
    });
}

TYPED_TEST(Sorting, WithoutMemory)
{
    using T = TypeParam;
    std::mt19937 g = make_generator("memory");
    for (const int n : {200, 1000, options().brief ? 3000 : 140000}) {
        const auto content = content_of<T>(n, [&](auto) { return any_bits(g); });
        std::vector<T> vector(content.size());
        const std::size_t bytes = content.size() * sizeof(T);
        const auto is = [&](const Content<T>& other) { return std::memcmp(vector.data(), other.data(), bytes) == 0; };
        const std::vector<int> places = expected_places<T>(content, false), untouched(content.size(), -5);
        Content<T> sorted;
        for (const int place : places) sorted.push_back(content[static_cast<std::size_t>(place)]);
        at_every_level([&] {
            for (const int first_failing : {0, 1}) {
                std::memcpy(vector.data(), content.data(), bytes);
                {
                    const AllocationFailure failure(first_failing);
                    EXPECT_TRUE(Of<T>::sort(false, vector.data(), n)) << "does without";
                }
                EXPECT_TRUE(is(sorted));
                std::memcpy(vector.data(), content.data(), bytes);
                std::vector<int> index = untouched;
                const AllocationFailure failure(first_failing);
                const bool done = Of<T>::sort(false, vector.data(), index.data(), n);
                EXPECT_EQ(done, first_failing > 0 || sizeof(T) == 1 || n == 200);
                EXPECT_TRUE(is(done ? sorted : content));
                EXPECT_TRUE(index == (done ? places : untouched));
            }
            const MeasuredMemory memory;
            for (const bool with_index : {false, true}) {
                std::memcpy(vector.data(), content.data(), bytes);
                std::vector<int> index = untouched;
                memory.start();
                EXPECT_TRUE(with_index ? Of<T>::sort(true, vector.data(), index.data(), n)
                                       : Of<T>::sort(true, vector.data(), n));
                EXPECT_LE(memory.bytes(), 24LL * n);
            }
        });
    }
}

// Subnormal numbers are numbers, also to a host that takes them for zeros.
TEST(SortingControl, HostsMayFlushToZero)
{
    std::mt19937 g = make_generator("subnormal");
    std::vector<double> small(2000);
    for (double& d : small) d = from_bits<double>((any_bits(g) >> 12 & 15) | (any_bits(g) & kSign<std::uint64_t>));
    expect_control_kept<double>(small.size(), [&](double* dst) {
        std::memcpy(dst, small.data(), small.size() * sizeof(double));
        return W::SortAscend_64f_I(dst, static_cast<int>(small.size()));
    });
}

}  // namespace
}  // namespace test
