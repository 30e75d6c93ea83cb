// Every operation of every registry, at every level that this processor runs, against the plain
// variant: the same bytes, in and around the destination, and the same status.
//
// The arguments are made from the operation's own signature, so a new operation of the kinds known
// here needs no line of test code:
//     const T*, int     a source image with its step        T*, int     a destination
//     const T*          one value per channel               T           a value
//     Size              the region                          int         a parameter, by its domain
//     T* after Size     results, compared like images
//     Length            the length: with it in the list, const T* and T* are vectors
#include <algorithm>
#include <climits>
#include <iostream>
#include <set>
#include <tuple>

#include "core/features.h"
#include "core/start_up.h"
#include "gmock/gmock.h"
#include "image/bits/bitwise.h"
#include "image/bits/comparison.h"
#include "image/moving/data_movement.h"
#include "image/arithmetic/float_elementary.h"
#include "image/statistics/extremes.h"
#include "image/statistics/float_sums.h"
#include "image/statistics/histogram.h"
#include "image/arithmetic/integer_arithmetic.h"
#include "image/statistics/sums.h"
#include "image/bits/threshold.h"
#include "image/arithmetic/float_arithmetic.h"
#include "image/arithmetic/complex_arithmetic.h"
#include "signal/integer_vectors.h"
#include "signal/float_vectors.h"
#include "signal/spectra.h"
#include "signal/vector_moves.h"
#include "support/image.h"
#include "support/processor_state.h"

namespace test {
namespace {

using orv::Length;
using orv::Size;
using orv::Status;

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

// May the destination be a source?
enum class Aliasing { allowed, not_promised };

bool begins_with(const std::string& name, const char* start) { return name.rfind(start, 0) == 0; }
bool contains(const std::string& name, const char* part) { return name.find(part) != std::string::npos; }

int channels_of(const std::string& name)
{
    return contains(name, "_C3") ? 3 : contains(name, "C4") ? 4 : 1;
}

// The elements of a result array.
constexpr int kMostResults = 300;

// Trailing integer parameters, by what the operation makes of them.
int random_parameter(const std::string& name, std::mt19937& g)
{
    if (begins_with(name, "Mirror")) return uniform(g, -1, 3);
    // The level count and either level: results hold that many.
    if (begins_with(name, "Histogram")) return uniform(g, 0, 9) == 0 ? -1 : uniform(g, 0, kMostResults);
    if (begins_with(name, "Compare")) return uniform(g, 0, 5);
    if (begins_with(name, "Threshold")) return uniform(g, 0, 9) == 0 ? uniform(g, -1, 5) : 4 * uniform(g, 0, 1);
    if (contains(name, "C_32s")) return random_value<int>(g, static_cast<Fill>(uniform(g, 0, 3)));
    // Scale factors: mostly those that matter, now and then anything.
    static const int far[] = {INT_MIN, INT_MIN + 1, -100, -64, -33, 33, 63, 64, 100, INT_MAX};
    if (uniform(g, 0, 9) == 0) return far[uniform(g, 0, 9)];
    return uniform(g, 0, 3) == 0 ? 0 : uniform(g, -18, 20);
}

template <class T>
T random_constant(const std::string& name, std::mt19937& g)
{
    if constexpr (std::is_same<T, int>::value) {
        if (begins_with(name, "SwapChannels")) return uniform(g, 0, uniform(g, 0, 9) == 0 ? 4 : channels_of(name) - 1);
    }
    if constexpr (std::is_same<T, unsigned>::value) {
        if (contains(name, "ShiftC") && uniform(g, 0, 3) != 0) return static_cast<unsigned>(uniform(g, 0, 33));
    }
    return random_value<T>(g, static_cast<Fill>(uniform(g, 0, static_cast<int>(Fill::kinds) - 1)));
}

template <class T> struct pointee { static constexpr bool is_pointer = false; };
template <class T>
struct pointee<T*> {
    static constexpr bool is_pointer = true;
    static constexpr bool is_source = std::is_const<T>::value;
    using type = typename std::remove_const<T>::type;
};

template <class... Args>
class Case {
public:
    using Tuple = std::tuple<Args...>;
    static constexpr std::size_t kCount = sizeof...(Args);
    template <std::size_t I> using Arg = typename std::tuple_element<I, Tuple>::type;
    static constexpr bool kVectors = (std::is_same<Args, Length>::value || ...);

    Case(const std::string& name, bool alias, std::mt19937& g) : name_(name), alias_(alias), g_(g)
    {
        const bool large = uniform(g, 0, 19) == 0;
        roi_ = {large ? uniform(g, 100, 300) : uniform(g, 1, 69), kVectors ? 1 : uniform(g, 1, 3)};
        build(std::make_index_sequence<kCount>());
    }

    Tuple& arguments() { return arguments_; }
    Size roi() const { return roi_; }

    // Restores all images, so that every variant starts from the same bytes.
    void reset()
    {
        for (Operand& o : operands_) o.image->restore(o.before);
        for (auto& result : results_) result.assign(result.size(), 0xA5);
    }
    // Every byte of every image: destinations with their surroundings, and the sources, too.
    std::vector<unsigned char> outcome()
    {
        std::vector<unsigned char> all;
        for (Operand& o : operands_) {
            const auto bytes = o.image->bytes();
            all.insert(all.end(), bytes.begin(), bytes.end());
        }
        for (const auto& result : results_) all.insert(all.end(), result.begin(), result.end());
        return all;
    }
    // With the destination in the place of a source: false where their types or shapes differ.
    bool has_alias() const { return alias_made_; }
    std::vector<unsigned char> destination_rows()
    {
        std::vector<unsigned char> rows;
        Image& image = *operands_.back().image;
        for (int y = 0; y < image.height(); ++y) rows.insert(rows.end(), image.row(y), image.row(y) + image.row_bytes());
        return rows;
    }

private:
    struct Operand {
        std::shared_ptr<Image> image;
        std::vector<unsigned char> before;
        std::size_t element_bytes;
    };

    template <std::size_t... I>
    void build(std::index_sequence<I...>)
    {
        (build_one<I>(), ...);
        for (Operand& o : operands_) o.before = o.image->bytes();
    }

    template <std::size_t I>
    static constexpr bool followed_by_int()
    {
        if constexpr (I + 1 < kCount) return std::is_same<Arg<I + 1>, int>::value;
        return false;
    }

    template <std::size_t I>
    static constexpr bool follows_size()
    {
        if constexpr (I > 0) return std::is_same<Arg<I - 1>, Size>::value || follows_size<I - 1>();
        return false;
    }

    template <std::size_t I>
    void build_one()
    {
        using A = Arg<I>;
        auto& argument = std::get<I>(arguments_);
        if constexpr (pointee<A>::is_pointer && follows_size<I>() && !std::is_const<typename std::remove_pointer<A>::type>::value) {
            using T = typename pointee<A>::type;
            results_.emplace_back((kMostResults + 1) * sizeof(T), static_cast<unsigned char>(0xA5));
            argument = reinterpret_cast<T*>(results_.back().data());
        } else if constexpr (pointee<A>::is_pointer && (kVectors || followed_by_int<I>())) {
            argument = make_image<typename pointee<A>::type>(pointee<A>::is_source)->template pixels<typename pointee<A>::type>();
        } else if constexpr (pointee<A>::is_pointer) {
            using T = typename pointee<A>::type;
            constants_.emplace_back(4 * sizeof(T));
            T* const values = reinterpret_cast<T*>(constants_.back().data());
            for (int c = 0; c < 4; ++c) values[c] = random_constant<T>(name_, g_);
            if (uniform(g_, 0, 3) == 0) values[1] = values[2] = values[3] = values[0];
            argument = values;
        } else if constexpr (std::is_same<A, Size>::value) {
            argument = roi_;
        } else if constexpr (std::is_same<A, Length>::value) {
            argument = {roi_.width};
        } else if constexpr (std::is_same<A, int>::value) {
            if constexpr (I > 0) {
                if constexpr (pointee<Arg<I - 1>>::is_pointer && !follows_size<I>()) {
                    argument = operands_.back().image->step();
                    return;
                }
            }
            argument = random_parameter(name_, g_);
        } else {
            argument = random_constant<A>(name_, g_);
        }
    }

    template <class T>
    std::shared_ptr<Image> make_image(bool source)
    {
        const bool transposed = !source && begins_with(name_, "Transpose");
        const int width = transposed ? roi_.height : roi_.width, height = transposed ? roi_.width : roi_.height;
        const bool mask = !source && begins_with(name_, "Compare");
        const int row_bytes = width * (mask ? 1 : channels_of(name_)) * static_cast<int>(sizeof(T));
        if (!source && alias_ && !operands_.empty()) {
            const Operand twin = operands_[static_cast<std::size_t>(uniform(g_, 0, static_cast<int>(operands_.size()) - 1))];
            if (twin.element_bytes == sizeof(T) && twin.image->row_bytes() == row_bytes) {
                alias_made_ = true;
                operands_.push_back(twin);
                return twin.image;
            }
        }
        Placement where = {};
        where.fenced = row_bytes <= FencedRows::kRowBytes && height <= FencedRows::kRows && uniform(g_, 0, 1) == 0;
        where.flush_right = uniform(g_, 0, 3) != 0;
        const int padding = uniform(g_, 0, 3) == 0 ? 0 : uniform(g_, 0, 70);
        where.step = row_bytes + padding;
        if (uniform(g_, 0, 7) == 0) where.step = -where.step;
        if (source && uniform(g_, 0, 15) == 0) where.step = 0;
        where.offset = uniform(g_, 0, 7) * static_cast<int>(sizeof(T));
        auto image = std::make_shared<Image>(row_bytes, height, where, g_);
        image->template fill<T>(g_, static_cast<Fill>(uniform(g_, 0, static_cast<int>(Fill::kinds) - 1)));
        operands_.push_back({image, {}, sizeof(T)});
        return image;
    }

    std::string name_;
    bool alias_;
    bool alias_made_ = false;
    std::mt19937& g_;
    Size roi_;
    Tuple arguments_;
    std::vector<Operand> operands_;
    std::vector<std::vector<unsigned char>> constants_, results_;
};

template <class... Args>
void check(const char* name, const orv::Operation<Status(Args...)>& operation, Aliasing aliasing)
{
    if (!options().operation.empty() && options().operation != name) return;
    std::set<const void*> seen;
    for (int level = 0; level < orv::kLevels; ++level) {
        auto* const kernel = operation.variant[level];
        if (!seen.insert(reinterpret_cast<const void*>(kernel)).second) {
            ++tally.shared;
            continue;
        }
        if (level > orv::orv_variant_index) {
            ++tally.skipped;
            continue;
        }
        if (options().level >= 0 && options().level != level) continue;
        ++tally.checked;

        std::mt19937 g = make_generator(name);
        const int cases = options().brief ? 30 : 400;
        for (int i = 0; i < cases; ++i) {
            const bool alias = aliasing == Aliasing::allowed && i % 4 == 3;
            const std::mt19937 same_case = g;
            Case<Args...> c(name, false, g);
            const Status expected_status = std::apply(operation.variant[0], c.arguments());
            const auto expected = c.outcome();
            c.reset();
            const ProcessorState before;
            const Status status = std::apply(kernel, c.arguments());
            { SCOPED_TRACE(name); before.expect_kept(); }
            ASSERT_EQ(status, expected_status) << name << " " << kTags[level] << " case " << i;
            const auto actual = c.outcome();
            if (actual != expected) {
                const auto at = std::mismatch(actual.begin(), actual.end(), expected.begin()).first - actual.begin();
                FAIL() << name << " at " << kTags[level] << " differs from px: case " << i << ", " << c.roi().width
                       << " x " << c.roi().height << ", byte " << at << " is " << int{actual[static_cast<std::size_t>(at)]}
                       << " instead of " << int{expected[static_cast<std::size_t>(at)]};
            }
            if (!alias) continue;

            // The same kernel on separate buffers is the oracle for the destination that is a source.
            g = same_case;
            Case<Args...> overlaid(name, true, g);
            if (!overlaid.has_alias()) continue;
            const Status plain_status = std::apply(operation.variant[0], overlaid.arguments());
            const auto plain = overlaid.destination_rows();
            overlaid.reset();
            ASSERT_EQ(std::apply(kernel, overlaid.arguments()), plain_status) << name << " " << kTags[level];
            ASSERT_EQ(overlaid.destination_rows(), plain) << name << " in place at " << kTags[level] << ", case " << i;
        }
    }
}

TEST(Variants, DataMovement)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::not_promised);
#include "image/moving/data_movement.inc"
#undef KERNEL
}

TEST(Variants, FloatElementary)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::allowed);
#include "image/arithmetic/float_elementary.inc"
#undef KERNEL
}

TEST(Variants, IntegerArithmetic)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::allowed);
#include "image/arithmetic/integer_arithmetic.inc"
#undef KERNEL
}

TEST(Variants, Statistics)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::not_promised);
#include "image/statistics/extremes.inc"
#include "image/statistics/float_sums.inc"
#include "image/statistics/histogram.inc"
#include "image/statistics/sums.inc"
#undef KERNEL
}

TEST(Variants, Bitwise)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::allowed);
#include "image/bits/bitwise.inc"
#undef KERNEL
}

TEST(Variants, Comparison)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::allowed);
#include "image/bits/comparison.inc"
#undef KERNEL
}

TEST(Variants, Threshold)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::allowed);
#include "image/bits/threshold.inc"
#undef KERNEL
}

TEST(Variants, FloatArithmetic)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::allowed);
#include "image/arithmetic/float_arithmetic.inc"
#undef KERNEL
}

TEST(Variants, ComplexArithmetic)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::allowed);
#include "image/arithmetic/complex_arithmetic.inc"
#undef KERNEL
}

TEST(Variants, IntegerVectors)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::allowed);
#include "signal/integer_vectors.inc"
#undef KERNEL
}

TEST(Variants, FloatVectors)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::allowed);
#include "signal/float_vectors.inc"
#undef KERNEL
}

TEST(Variants, Spectra)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::allowed);
#include "signal/spectra.inc"
#undef KERNEL
}

TEST(Variants, VectorMoves)
{
#define KERNEL(name, ...) check(#name, orv::orv_##name, Aliasing::allowed);
#include "signal/vector_moves.inc"
#undef KERNEL
}

}  // namespace
}  // namespace test
