// Sorting against the C++ library and Highway's vectorised quicksort, which runs with AVX2 as we do. All sort a copy,
// made each time, of other elements than the last ones: branches that learn a short vector by heart would be no use
// to anybody. With places, Highway sorts pairs of a key and a place as its users do; elements follow by their places.
//
// NumPy is a process of its own: bench/RESULTS.md has its times.
#include <hwy/contrib/sort/vqsort.h>
#include <hwy/targets.h>

#include <algorithm>
#include <cstring>
#include <numeric>
#include <random>
#include <type_traits>

#include "SignalProcessingWrapper.h"
#include "harness.h"

namespace {

using W = SignalProcessingWrapper;

// --- Contents -------------------------------------------------------------------------------------

using Pattern = double (*)(int i, int n, std::mt19937& g);

template <class T>
T random_element(std::mt19937& g)
{
    if constexpr (std::is_floating_point<T>::value) return std::uniform_real_distribution<T>(-1, 1)(g);
    else return static_cast<T>(g());
}

// As many elements as make branches forget, and the vector that is sorted. Made when it is first used.
template <class T>
class Vectors {
public:
    Vectors(int n, Pattern pattern) : n_(n), pattern_(pattern) {}

    T* copy()
    {
        if (all_.empty()) fill();
        at_ = at_ + 2 * n_ <= static_cast<int>(all_.size()) ? at_ + n_ : 0;
        std::memcpy(vector_.data(), all_.data() + at_, static_cast<std::size_t>(n_) * sizeof(T));
        return vector_.data();
    }
    int* index()
    {
        index_.resize(static_cast<std::size_t>(n_));
        return index_.data();
    }
    int size() const { return n_; }

private:
    void fill()
    {
        std::mt19937 g(1);
        const int all = pattern_ != nullptr ? n_ : std::max(n_, 1 << 20) / n_ * n_;
        all_.reserve(static_cast<std::size_t>(all));
        for (int i = 0; i < all; ++i)
            all_.push_back(pattern_ != nullptr ? static_cast<T>(pattern_(i, n_, g)) : random_element<T>(g));
        vector_.resize(static_cast<std::size_t>(n_));
    }

    int n_, at_ = 0;
    Pattern pattern_;
    std::vector<T> all_, vector_;
    std::vector<int> index_;
};

// --- Sorts ----------------------------------------------------------------------------------------

template <class T>
void vqsort(T* p, int n)
{
    static hwy::Sorter sorter;
    using Number = std::conditional_t<std::is_same<T, int>::value, std::int32_t, T>;
    sorter(reinterpret_cast<Number*>(p), static_cast<std::size_t>(n), hwy::SortAscending());
}

template <class T>
void stable_sort_places(T* p, int* index, int n)
{
    static std::vector<T> old;
    old.assign(p, p + n);
    std::iota(index, index + n, 0);
    const T* const keys = old.data();
    std::stable_sort(index, index + n, [keys](int a, int b) { return keys[a] < keys[b]; });
    for (int i = 0; i < n; ++i) p[i] = keys[index[i]];
}

// Bits in the order of numbers; -0 is taken for less than 0.
template <class T>
auto ordered_bits(T value)
{
    std::conditional_t<sizeof(T) == 8, std::int64_t, std::int32_t> bits;
    std::memcpy(&bits, &value, sizeof(bits));
    using Word = std::make_unsigned_t<decltype(bits)>;
    constexpr Word sign = Word{1} << (8 * sizeof(T) - 1);
    const Word word = static_cast<Word>(bits);
    return std::is_floating_point<T>::value && bits < 0 ? Word(~word) : Word(word ^ sign);
}
template <class T>
void vqsort_places(T* p, int* index, int n)
{
    using Pair = std::conditional_t<sizeof(T) == 8, hwy::uint128_t, std::uint64_t>;
    static std::vector<Pair> pairs;
    static std::vector<T> old;
    pairs.resize(static_cast<std::size_t>(n));
    old.assign(p, p + n);
    for (int i = 0; i < n; ++i) {
        Pair& pair = pairs[static_cast<std::size_t>(i)];
        if constexpr (sizeof(T) == 8) pair.hi = ordered_bits(p[i]), pair.lo = static_cast<std::uint64_t>(i);
        else pair = std::uint64_t{ordered_bits(p[i])} << 32 | static_cast<std::uint32_t>(i);
    }
    vqsort(pairs.data(), n);
    for (int i = 0; i < n; ++i) {
        if constexpr (sizeof(T) == 8) index[i] = static_cast<int>(pairs[static_cast<std::size_t>(i)].lo);
        else index[i] = static_cast<int>(pairs[static_cast<std::size_t>(i)]);
        p[i] = old[static_cast<std::size_t>(index[i])];
    }
}

// --- Rows -----------------------------------------------------------------------------------------

constexpr int kLengths[] = {1000, 100000, 10000000};

template <class T>
void elements(const std::string& name, bool (*ours)(T*, int), int n, Pattern pattern = nullptr)
{
    const auto v = std::make_shared<Vectors<T>>(n, pattern);
    const auto add = [&](const char* who, auto sort) {
        bench::add(name, std::to_string(n), who, [=] { sort(v->copy(), n); });
    };
    add("orvane", ours);
    add("std-sort", [](T* p, int count) { std::sort(p, p + count); });
    if constexpr (sizeof(T) > 1) add("highway", vqsort<T>);
}

template <class T>
void places(const std::string& name, bool (*ours)(T*, int*, int), int n, Pattern pattern = nullptr)
{
    const auto v = std::make_shared<Vectors<T>>(n, pattern);
    const auto add = [&](const char* who, auto sort) {
        bench::add(name, std::to_string(n), who, [=] { sort(v->copy(), v->index(), n); });
    };
    add("orvane", ours);
    add("std-stable-sort", stable_sort_places<T>);
    if constexpr (sizeof(T) >= 4) add("highway", vqsort_places<T>);
}

const struct {
    const char* name;
    Pattern value;
} kPatterns[] = {
    {"rising", [](int i, int, std::mt19937&) { return i * 1.0; }},
    {"falling", [](int i, int n, std::mt19937&) { return n - i * 1.0; }},
    {"constant", [](int, int, std::mt19937&) { return 7.0; }},
    {"few values", [](int, int, std::mt19937& g) { return g() % 10 * 1.0; }},
    {"organ pipe", [](int i, int n, std::mt19937&) { return std::min(i, n - i) * 1.0; }},
    {"random tail", [](int i, int n, std::mt19937& g) { return i < n / 10 * 9 ? i * 1.0 : g() % 1000000 * 1.0; }},
    {"random", nullptr},
};

const bool registered = [] {
    hwy::SetSupportedTargetsForTest(HWY_AVX2);
    for (const int n : kLengths) {
        elements("SortAscend_8u_I", W::SortAscend_8u_I, n);
        elements("SortAscend_16u_I", W::SortAscend_16u_I, n);
        elements("SortAscend_32s_I", W::SortAscend_32s_I, n);
        elements("SortAscend_32f_I", W::SortAscend_32f_I, n);
        elements("SortAscend_64f_I", W::SortAscend_64f_I, n);
        elements("SortDescend_32f_I", W::SortDescend_32f_I, n);
        places("SortIndxAscend_8u_I", W::SortIndxAscend_8u_I, n);
        places("SortIndxAscend_16u_I", W::SortIndxAscend_16u_I, n);
        places("SortIndxAscend_32s_I", W::SortIndxAscend_32s_I, n);
        places("SortIndxAscend_32f_I", W::SortIndxAscend_32f_I, n);
        places("SortIndxAscend_64f_I", W::SortIndxAscend_64f_I, n);
    }
    for (const auto& p : kPatterns) {
        const std::string name = p.name;
        elements("SortAscend_16u_I " + name, W::SortAscend_16u_I, 1000000, p.value);
        elements("SortAscend_32f_I " + name, W::SortAscend_32f_I, 1000000, p.value);
        elements("SortAscend_64f_I " + name, W::SortAscend_64f_I, 1000000, p.value);
        places("SortIndxAscend_32f_I " + name, W::SortIndxAscend_32f_I, 1000000, p.value);
        places("SortIndxAscend_64f_I " + name, W::SortIndxAscend_64f_I, 1000000, p.value);
    }
    return true;
}();

}  // namespace
