#include "support/compare_levels.h"

#include <algorithm>
#include <climits>

#include "core/start_up.h"
#include "gmock/gmock.h"
#include "support/image.h"
#include "support/processor_state.h"

namespace test {
namespace {

using orv::Length;
using orv::Size;
using orv::Status;

// --- What the names say ---------------------------------------------------------------------------

int channels_of(const char* name) { return contains(name, "_C3") ? 3 : contains(name, "C4") ? 4 : 1; }

// Families whose destination may be one of the sources.
bool may_be_in_place(const Subject& s)
{
    if (begins_with(s.name, "Sqrt_32f_C1")) return false;  // rounds its steps to whole elements: others are other rows
    if (contains(s.family, "_statistics")) return false;  // a result is no vector
    return !contains(s.family, "_moving_") && !contains(s.family, "_filters_") && !contains(s.family, "_resize_");
}

// Families that give a meaning to rows of the destination that lie among those of a source.
bool has_overlap(const Subject& s)
{
    return contains(s.family, "_arithmetic_") || contains(s.family, "_bits_") || contains(s.name, "Copy_");
}

// How far a filter reads beyond the region.
int frame_of(const Subject& s, int mask)
{
    if (!begins_with(s.name, "Filter") || contains(s.name, "Border")) return 0;
    return mask == 55 ? 2 : 1;
}

constexpr int kMostResults = 300;

int random_parameter(const char* name, Generator& g)
{
    if (begins_with(name, "Mirror")) return uniform(g, -1, 3);
    // The level count and either level: results hold that many.
    if (begins_with(name, "Histogram")) return uniform(g, 0, 9) == 0 ? -1 : uniform(g, 0, kMostResults);
    if (begins_with(name, "Compare")) return uniform(g, 0, 5);
    if (begins_with(name, "Threshold")) return uniform(g, 0, 9) == 0 ? uniform(g, -1, 5) : 4 * uniform(g, 0, 1);
    if (contains(name, "Border")) return uniform(g, 0, 9) == 0 ? -1 : uniform(g, 0, 4);
    if (begins_with(name, "Resize")) return uniform(g, -1, 17);
    if (contains(name, "YCbCr") || contains(name, "YUV")) return uniform(g, -1, 4);
    if (begins_with(name, "AlphaComp")) return uniform(g, 0, 1);
    if (contains(name, "C_32s") || (begins_with(name, "Threshold") && contains(name, "_32s")))
        return random_value<int>(g, static_cast<Fill>(uniform(g, 0, 3)));
    // Scale factors: mostly those that matter, now and then anything.
    static const int far[] = {INT_MIN, INT_MIN + 1, -100, -64, -33, 33, 63, 64, 100, INT_MAX};
    if (uniform(g, 0, 9) == 0) return far[uniform(g, 0, 9)];
    return uniform(g, 0, 3) == 0 ? 0 : uniform(g, -18, 20);
}

Fill random_fill(Generator& g) { return static_cast<Fill>(uniform(g, 0, static_cast<int>(Fill::kinds) - 1)); }

template <class T>
T random_constant(const char* name, Generator& g)
{
    if constexpr (std::is_same<T, int>::value) {
        if (begins_with(name, "SwapChannels")) return uniform(g, 0, uniform(g, 0, 9) == 0 ? 4 : channels_of(name) - 1);
    }
    if constexpr (std::is_same<T, unsigned>::value) {
        if (contains(name, "ShiftC") && uniform(g, 0, 3) != 0) return static_cast<unsigned>(uniform(g, 0, 33));
    }
    return random_value<T>(g, random_fill(g));
}

std::string difference(const Bytes& actual, const Bytes& expected)
{
    if (actual.size() != expected.size()) return "another size";
    const auto at = std::mismatch(actual.begin(), actual.end(), expected.begin()).first - actual.begin();
    return "byte " + std::to_string(at) + " is " + std::to_string(actual[static_cast<std::size_t>(at)]) +
           " instead of " + std::to_string(expected[static_cast<std::size_t>(at)]);
}

// --- A call that follows from the signature --------------------------------------------------------

class PlainTrial : public Trial {
public:
    PlainTrial(const Subject& subject, Generator& g, int number) : s_(subject), g_(g)
    {
        mode_ = number % 8 == 3 || number % 8 == 7 ? in_place_mode
                : number % 8 == 5                  ? overlapping
                : number % 8 == 6                  ? constants_inside
                                                   : separate;
        if ((mode_ == in_place_mode && !may_be_in_place(s_)) || (mode_ == overlapping && !has_overlap(s_)))
            mode_ = separate;
        vectors_ = is_vector_operation();
        const bool large = kSmaller == 1 && uniform(g, 0, 19) == 0;
        roi_ = {large ? uniform(g, 100, 300) : uniform(g, 1, 69), vectors_ ? 1 : uniform(g, 1, 3)};
        mask_ = uniform(g, 0, 9) == 0 ? uniform(g, 0, 60) : 33 + 22 * uniform(g, 0, 1);
        for (int i = 0; i < s_.count; ++i) make(i);
        if (mode_ == constants_inside) move_constants_inside();
        for (Operand& o : operands_) o.before = o.image->bytes();
    }

    Status call(Kernel kernel) override { return s_.invoke(kernel, slots_); }
    void reset() override
    {
        for (Operand& o : operands_) o.image->restore(o.before);
        for (auto& result : results_) result.assign(result.size(), 0xA5);
    }
    // Every byte of every image: destinations with their surroundings, and the sources, too.
    Bytes outcome() override
    {
        Bytes all;
        for (Operand& o : operands_) {
            const auto bytes = o.image->bytes();
            all.insert(all.end(), bytes.begin(), bytes.end());
        }
        for (const auto& result : results_) all.insert(all.end(), result.begin(), result.end());
        return all;
    }
    std::string text() const override
    {
        return std::to_string(roi_.width) + " x " + std::to_string(roi_.height) + ", mode " + std::to_string(mode_);
    }
    void check_in_place(Kernel plain) override
    {
        if (alias_ < 0 || starts_between_elements(operands_.back())) return;
        const Bytes apart = rows_apart(plain);
        reset();
        call(plain);
        const Bytes rows = rows_of(*operands_.back().image);
        if (rows != apart) ADD_FAILURE() << s_.name << " in place, " << text() << ", " << difference(rows, apart);
        reset();
    }

private:
    static constexpr int kMostArguments = 16;
    enum Mode { separate, in_place_mode, overlapping, constants_inside };
    static constexpr int kSlack = 8;  // rows above and below a source that the destination overlaps
    struct Operand {
        std::shared_ptr<Image> image;
        Bytes before;
        Element element;
        int row_bytes;
        unsigned char* first;  // the region's first pixel
    };

    static Bytes rows_of(Image& image)
    {
        Bytes rows;
        for (int y = 0; y < image.height(); ++y)
            rows.insert(rows.end(), image.row(y), image.row(y) + image.row_bytes());
        return rows;
    }

    // Some operations round steps down to whole elements: their rows are elsewhere.
    static bool starts_between_elements(const Operand& o) { return o.image->step() % bytes_of(o.element) != 0; }
    // What a call with a destination of its own gives there.
    Bytes rows_apart(Kernel kernel)
    {
        Slot slots[kMostArguments];
        std::copy(slots_, slots_ + s_.count, slots);
        Image& image = *operands_.back().image;
        Generator fixed;
        Image apart(image.row_bytes(), image.height(), {false, false, image.row_bytes() + 8, 0}, fixed);
        for (int y = 0; y < image.height(); ++y)
            std::memcpy(apart.row(y), image.row(y), static_cast<std::size_t>(image.row_bytes()));
        slots[alias_].set<void*>(apart.row(0));
        if (!vectors_) slots[alias_ + 1].set(apart.step());
        s_.invoke(kernel, slots);
        return rows_of(apart);
    }

    const Kind& kind(int i) const { return s_.kinds[i]; }
    bool is_int(int i) const { return i < s_.count && kind(i).what == Kind::value && kind(i).element == e_s32; }
    bool is_pointer(int i) const { return i >= 0 && (kind(i).what == Kind::source || kind(i).what == Kind::target); }
    bool follows_size(int i) const
    {
        return std::any_of(s_.kinds, s_.kinds + i, [](const Kind& k) { return k.what == Kind::size; });
    }
    // With a length, or with nothing but pointers before a last int.
    bool is_vector_operation() const
    {
        bool pointers = is_int(s_.count - 1);
        for (int i = 0; i < s_.count; ++i) {
            if (kind(i).what == Kind::length) return true;
            if (i + 1 < s_.count && !is_pointer(i)) pointers = false;
        }
        return pointers;
    }

    void make(int i)
    {
        ASSERT_LT(s_.count, kMostArguments + 1);
        switch (kind(i).what) {
            case Kind::target:
                if (follows_size(i)) return make_results(i);
                return make_image(i, false);
            case Kind::source:
                if (vectors_ || is_int(i + 1)) return make_image(i, true);
                return make_constants(i);
            case Kind::memory: work_.assign(1 << 17, 0x5A); return slots_[i].set<void*>(work_.data());
            case Kind::length: return slots_[i].set(Length{roi_.width});
            case Kind::size: return slots_[i].set(follows_size(i) ? second_size() : roi_);
            default: return make_value(i);
        }
    }
    void make_value(int i)
    {
        if (!is_int(i)) {
            return with_type(kind(i).element,
                             [&](auto like) { slots_[i].set(random_constant<decltype(like)>(s_.name, g_)); });
        }
        const bool after_pointer = i > 0 && is_pointer(i - 1);
        if (vectors_ && after_pointer) return slots_[i].set(roi_.width);
        if (after_pointer && (!follows_size(i) || contains(s_.name, "Border")))
            return slots_[i].set(operands_.back().image->step());
        if (begins_with(s_.name, "Filter"))
            return slots_[i].set(i > 0 && kind(i - 1).what == Kind::size ? mask_ : uniform(g_, 0, 1));
        slots_[i].set(random_parameter(s_.name, g_));
    }
    // Of what a border is put around, or of a destination that no memory belongs to.
    Size second_size()
    {
        if (contains(s_.name, "Border")) return grown_;
        static const int lengths[] = {0, 1, 7, 100, 4096, 65536, 1 << 30, INT_MAX};
        return {lengths[uniform(g_, 0, 7)], lengths[uniform(g_, 0, 7)]};
    }
    void make_results(int i)
    {
        // Borders have their destination behind the size of the source.
        if (contains(s_.name, "CopyConstBorder") || contains(s_.name, "CopyReplicateBorder"))
            return make_image(i, false);
        results_.emplace_back(static_cast<std::size_t>((kMostResults + 1) * bytes_of(kind(i).element)),
                              static_cast<unsigned char>(0xA5));
        slots_[i].set<void*>(results_.back().data());
    }
    void make_constants(int i)
    {
        with_type(kind(i).element, [&](auto like) {
            using T = decltype(like);
            constants_.emplace_back(4 * sizeof(T));
            T values[4];
            for (T& value : values) value = random_constant<T>(s_.name, g_);
            if (uniform(g_, 0, 3) == 0) values[1] = values[2] = values[3] = values[0];
            std::memcpy(constants_.back().data(), values, sizeof(values));
            constants_at_ = i;
            slots_[i].set<const void*>(constants_.back().data());
        });
    }

    void make_image(int i, bool source)
    {
        const Element e = kind(i).element;
        const bool border = contains(s_.name, "CopyConstBorder") || contains(s_.name, "CopyReplicateBorder");
        const bool mask = !source && begins_with(s_.name, "Compare");
        const int pixel = bytes_of(e) * (mask || vectors_ ? 1 : channels_of(s_.name));
        const int frame = source && !vectors_ ? frame_of(s_, mask_) : 0;
        Size size = roi_;
        if (!source && begins_with(s_.name, "Transpose")) size = {roi_.height, roi_.width};
        if (!source && border) size = grown_ = {roi_.width + uniform(g_, 0, 9), roi_.height + uniform(g_, 0, 5)};
        const int row_bytes = (size.width + 2 * frame) * pixel;
        int height = size.height + 2 * frame;

        if (!source && !operands_.empty() && (mode_ == in_place_mode || mode_ == overlapping)) {
            const Operand twin =
                operands_[static_cast<std::size_t>(uniform(g_, 0, static_cast<int>(operands_.size()) - 1))];
            if (twin.element == e && twin.row_bytes == row_bytes) return place_over(i, twin, pixel);
        }
        Placement where = {};
        where.fenced = row_bytes <= FencedRows::kRowBytes && height <= FencedRows::kRows && uniform(g_, 0, 1) == 0;
        where.flush_right = uniform(g_, 0, 3) != 0;
        const int padding = uniform(g_, 0, 3) == 0 ? 0 : uniform(g_, 0, 70);
        where.step = row_bytes + padding;
        if (uniform(g_, 0, 7) == 0) where.step = -where.step;
        // In place, rows that are one would be computed twice.
        if (source && frame == 0 && mode_ != in_place_mode && uniform(g_, 0, 15) == 0) where.step = 0;
        where.offset = uniform(g_, 0, 7) * bytes_of(e);
        int first_row = frame;
        if (source && mode_ == overlapping) {
            where.fenced = false;
            where.step = row_bytes + (uniform(g_, 0, 1) == 0 ? 0 : padding / pixel * pixel);
            height += 2 * kSlack;
            first_row = kSlack;
        }
        const auto image = std::make_shared<Image>(row_bytes, height, where, g_);
        // Which NaN comes out of a transform is left open.
        const Fill kind_of_fill =
            begins_with(s_.family, "spectral_") ? static_cast<Fill>(uniform(g_, 0, 1)) : random_fill(g_);
        with_type(e, [&](auto like) { image->template fill<decltype(like)>(g_, kind_of_fill); });
        if (vectors_ && uniform(g_, 0, 1) == 0) fill_near_one_size(*image, e);
        operands_.push_back({image, {}, e, row_bytes, image->row(first_row) + frame * pixel});
        slots_[i].set<void*>(operands_.back().first);
    }
    // Numbers of one magnitude: what most functions are about.
    void fill_near_one_size(Image& image, Element e)
    {
        const double sigma = std::exp2(uniform(g_, -8, 24));
        auto&& pixels = generator_of_pixels(g_);
        for (int i = 0; i < roi_.width; ++i) {
            const double v = normal(pixels, sigma);
            const float f = static_cast<float>(v);
            if (e == e_f64) std::memcpy(image.row(0) + 8 * i, &v, 8);
            if (e == e_f32) std::memcpy(image.row(0) + 4 * i, &f, 4);
        }
    }
    // On top of a source, exactly or a few rows and pixels away.
    void place_over(int i, const Operand& twin, int pixel)
    {
        operands_.push_back(twin);
        unsigned char* first = twin.first;
        if (mode_ == overlapping) first += uniform(g_, -2, 2) * twin.image->step() + uniform(g_, -2, 2) * pixel;
        else alias_ = i;
        operands_.back().first = first;
        slots_[i].set<void*>(first);
    }
    // The constants in the first row of the destination.
    void move_constants_inside()
    {
        if (constants_at_ < 0 || operands_.empty()) return;
        const Operand& target = operands_.back();
        const Bytes& values = constants_.back();
        const auto size = static_cast<std::size_t>(bytes_of(kind(constants_at_).element));
        unsigned char* const first = target.first;
        const std::size_t gap = (size - reinterpret_cast<std::size_t>(first) % size) % size;
        if (gap + values.size() > static_cast<std::size_t>(target.row_bytes)) return;
        std::memcpy(first + gap, values.data(), values.size());
        slots_[constants_at_].set<const void*>(first + gap);
    }

    const Subject& s_;
    Generator& g_;
    Mode mode_;
    bool vectors_;
    Size roi_, grown_ = {};
    int mask_, alias_ = -1, constants_at_ = -1;
    Slot slots_[kMostArguments];
    std::vector<Operand> operands_;
    std::vector<Bytes> constants_, results_;
    Bytes work_;
};

}  // namespace

Result result_of(Trial& trial, Kernel kernel)
{
    const Status status = trial.call(kernel);
    return {status, trial.outcome()};
}

std::string disagreement(Trial& trial, Kernel kernel, const Result& expected)
{
    trial.reset();
    const ProcessorState before;
    const Status status = trial.call(kernel);
    before.expect_kept();
    if (status != expected.status)
        return "status " + std::to_string(status) + " instead of " + std::to_string(expected.status);
    const Bytes actual = trial.outcome();
    return trial.agrees(actual, expected.outcome) ? std::string() : difference(actual, expected.outcome);
}

void compare_levels(const Subject& subject)
{
    ASSERT_TRUE(subject.is_plain()) << subject.name << " has an argument that needs a maker of its own";
    compare_levels(subject.name, subject.variant, [subject](Generator& g, int number) -> std::unique_ptr<Trial> {
        return std::make_unique<PlainTrial>(subject, g, number);
    });
}

}  // namespace test
