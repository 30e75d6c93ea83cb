// What a call came to, and why.
#ifndef ORVANE_LAYER_STATUS_HPP
#define ORVANE_LAYER_STATUS_HPP

#include <new>
#include <stdexcept>
#include <string>

namespace orvane {

enum class outcome : unsigned char {
    done,
    warned,         ///< everything was written, and something deserves a look: a division by zero
    refused,        ///< nothing was written: an argument is wrong
    out_of_memory,  ///< nothing was written
};

namespace detail {

// Why; the numbers that each takes are told in message().
enum class reason : unsigned char {
    none,
    // refused
    null,
    empty_image,
    empty_vector,
    short_step,
    uneven_step,
    long_step,
    other_size,
    other_length,
    too_long,
    unknown_code,
    outside,
    not_above,
    not_rising,
    above_upper,
    too_small,
    no_odd_side,
    unprepared,
    below_zero,
    no_frame,
    overlap,
    no_power_of_two,
    zero_divisor,
    not_finite,
    other_ratio,
    empty_matrix,
    bad_stride,
    other_shape,
    singular,
    singular_in_part,
    no_factors,
    failed,
    // out of memory
    memory,
    // warned
    division_by_zero,
    negative_root,
    logarithm_of_no_positive,
};

constexpr outcome outcome_of(reason why)
{
    return why == reason::none     ? outcome::done
           : why < reason::memory  ? outcome::refused
           : why == reason::memory ? outcome::out_of_memory
                                   : outcome::warned;
}

}  // namespace detail

/// The result of every operation: trivially copyable, and not to be dropped unread.
///
///     orvane::add(a, b, sum).check();                        // throws where nothing was written
///     if (const auto s = orvane::add(a, b, sum); !s) log(s.message());
class [[nodiscard]] status
{
public:
    constexpr status() = default;
    constexpr status(const char* operation, const char* argument, detail::reason why, long long first = 0,
                     long long second = 0, long long third = 0, long long fourth = 0)
        : operation_(operation), argument_(argument), numbers_{first, second, third, fourth}, why_(why)
    {
    }

    /// True where the operation was done and nothing deserves a look.
    constexpr explicit operator bool() const { return why_ == detail::reason::none; }
    constexpr outcome result() const { return detail::outcome_of(why_); }
    /// True where the destination was written, all of it: done or warned.
    constexpr bool written() const { return result() == outcome::done || result() == outcome::warned; }
    /// The name of the argument that is wrong, as the declaration has it; empty where it is none of them.
    constexpr const char* argument() const { return argument_; }
    /// The whole story, in words.
    std::string message() const;
    /// Throws where nothing was written: orvane::error, or std::bad_alloc when memory ran out.
    void check() const
    {
        if (!written()) raise();
    }

private:
    std::string cause() const;
    [[noreturn]] void raise() const;

    const char* operation_ = "";
    const char* argument_ = "";
    long long numbers_[4] = {};
    detail::reason why_ = detail::reason::none;
};

/// An operation that was refused.
class error : public std::invalid_argument
{
public:
    explicit error(const status& why) : std::invalid_argument(why.message()), why_(why) {}
    const status& why() const { return why_; }

private:
    status why_;
};

inline void status::raise() const
{
    if (result() == outcome::out_of_memory) throw std::bad_alloc();
    throw error(*this);
}

inline std::string status::cause() const
{
    using detail::reason;
    const std::string name = argument_;
    const auto n = [this](int k) { return std::to_string(numbers_[k]); };
    switch (why_) {
        case reason::none:
            return "done";
        case reason::null:
            return name + " is null";
        case reason::empty_image:
            return name + " is " + n(0) + " x " + n(1) + " pixels";
        case reason::empty_vector:
            return name + " has no elements";
        case reason::short_step:
            return name + " step " + n(0) + " is shorter than a row of " + n(1) + " pixels (" + n(2) + " bytes)";
        case reason::uneven_step:
            return name + " step " + n(0) + " is no multiple of an element of " + n(1) + " bytes";
        case reason::long_step:
            return name + " step " + n(0) + " is beyond 2^31 - 1 bytes";
        case reason::other_size:
            return name + " is " + n(0) + " x " + n(1) + " where " + n(2) + " x " + n(3) + " is needed";
        case reason::other_length:
            return name + " has " + n(0) + " elements where " + n(1) + " are needed";
        case reason::too_long:
            return name + " has " + n(0) + " elements, more than 2^31 - 1";
        case reason::unknown_code:
            return name + " " + n(0) + " is not one of those that this operation has";
        case reason::outside:
            return name + " " + n(0) + " is outside " + n(1) + " ... " + n(2);
        case reason::not_above:
            return name + " is not above 0";
        case reason::not_rising:
            return name + " does not rise at element " + n(0);
        case reason::above_upper:
            return name + " is above the upper one";
        case reason::too_small:
            return name + " has " + n(0) + " row or column, and there is nothing to exchange";
        case reason::unprepared:
            return "nothing was prepared";
        case reason::no_odd_side:
            return name + " " + n(0) + " is not odd, or outside 1 ... 255";
        case reason::below_zero:
            return name + " is below 0, or not a number";
        case reason::no_frame:
            return name + " has a frame of " + n(0) + " pixels where the operation reads " + n(1) +
                   " beyond it: pass a part of a larger image, or an edge";
        case reason::overlap:
            return name + " overlaps a source";
        case reason::no_power_of_two:
            return name + " " + n(0) + " is no power of two; " + n(1) + " would be transformed";
        case reason::zero_divisor:
            return name + " is 0, and it divides";
        case reason::not_finite:
            return name + " is infinite or not a number";
        case reason::other_ratio:
            return name + " is not a reduction of the source that keeps the ratio of its sides";
        case reason::empty_matrix:
            return name + " has " + n(0) + " rows and " + n(1) + " columns";
        case reason::bad_stride:
            return name + " step " + n(0) + " is below 1 or no multiple of an element of " + n(1) + " bytes";
        case reason::other_shape:
            return name + " has " + n(0) + " rows and " + n(1) + " columns where " + n(2) + " and " + n(3) +
                   " are needed";
        case reason::no_factors:
            return "factors and order come from no decomposition, or memory ran out";
        case reason::singular_in_part:
            return name + " is singular, or memory ran out";
        case reason::singular:
            return name + " is singular, or memory ran out";
        case reason::failed:
            return "an argument is outside what the operation takes";
        case reason::memory:
            return "memory ran out";
        case reason::division_by_zero:
            return "a division by zero";
        case reason::negative_root:
            return "a square root of a negative number or of a NaN";
        case reason::logarithm_of_no_positive:
            return "a logarithm of what is not above 0";
    }
    return {};
}

inline std::string status::message() const
{
    if (*this) return "done";
    const char* after = why_ == detail::reason::singular_in_part ? "; the steps before that were written"
                        : written()                              ? "; everything was written"
                                                                 : "; nothing was written";
    return std::string(operation_) + ": " + cause() + after;
}

}  // namespace orvane

#endif
