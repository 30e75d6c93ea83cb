// How regions may be cut, for each operation. Made from interface/table.toml by interface/generate.py.
#ifndef ORVANE_LAYER_RULES_HPP
#define ORVANE_LAYER_RULES_HPP

#include "codes.hpp"
#include "cuts.hpp"

/// A rule for each operation of the layer by its name: a constant; a function of those arguments that its reach
/// depends on; or a constant for each type of elements where types differ, "whole" for those that are not named.
namespace orvane::rules {

inline constexpr rule copy{cut::point};
inline constexpr rule fill{cut::point};
inline constexpr rule clear{cut::point};
inline constexpr rule convert{cut::point};
inline constexpr rule slope{cut::whole};
inline constexpr rule ramp{cut::whole};
inline constexpr rule swap_channels{cut::point};
inline constexpr rule transpose{cut::place};
inline constexpr rule mirror{cut::place};
inline constexpr rule mirror_horizontal{cut::whole};
inline constexpr rule mirror_vertical{cut::whole};
inline constexpr rule mirror_both{cut::whole};
inline constexpr rule extend_constant{cut::whole};
inline constexpr rule extend_replicate{cut::whole};
inline constexpr rule add{cut::point};
inline constexpr rule subtract{cut::point};
inline constexpr rule subtract_from{cut::point};
inline constexpr rule multiply{cut::point};
inline constexpr rule divide{cut::point};
inline constexpr rule divide_into{cut::point};
inline constexpr rule add_product{cut::point};
inline constexpr rule larger{cut::point};
inline constexpr rule smaller{cut::point};
inline constexpr rule absolute{cut::point};
inline constexpr rule square_root{cut::point};
inline constexpr rule logarithm{cut::point};
inline constexpr rule exponential{cut::point};
inline constexpr rule sine{cut::point};
inline constexpr rule cosine{cut::point};
inline constexpr rule sine_cosine{cut::point};
inline constexpr rule angle{cut::point};
inline constexpr rule hypotenuse{cut::point};
inline constexpr rule floor{cut::point};
inline constexpr rule bit_and{cut::point};
inline constexpr rule bit_or{cut::point};
inline constexpr rule bit_xor{cut::point};
inline constexpr rule bit_not{cut::point};
inline constexpr rule left_shift{cut::point};
inline constexpr rule right_shift{cut::point};
inline constexpr rule less{cut::point};
inline constexpr rule less_equal{cut::point};
inline constexpr rule equal{cut::point};
inline constexpr rule greater_equal{cut::point};
inline constexpr rule greater{cut::point};
inline constexpr rule threshold_less{cut::point};
inline constexpr rule threshold_greater{cut::point};
inline constexpr rule threshold_both{cut::point};
inline constexpr rule rgb_to_ycbcr{cut::point};
inline constexpr rule rgb_to_grey{cut::point};
inline constexpr rule ycbcr_to_rgb{cut::point};
inline constexpr rule rgb_to_yuv422{cut::point, {}, 2, 1};
inline constexpr rule yuv422_to_rgb{cut::point, {}, 2, 1};
inline constexpr rule yuv420_to_rgb{cut::point, {}, 2, 2};
inline constexpr rule composite{cut::point};
inline constexpr rule composite_on_opaque{cut::point};
inline constexpr rule blend{cut::point};
inline constexpr rule colour_matrix{cut::point};
inline constexpr rule lookup{cut::point};
inline constexpr rule curve{cut::point};
inline constexpr rule palette{cut::point};
inline constexpr rule zoom{cut::destination};
inline constexpr rule rotate{cut::destination};
inline constexpr rule rotate_about{cut::destination};
inline constexpr rule rotate_bound{cut::whole};
inline constexpr rule rotate_shift{cut::whole};
inline constexpr rule perspective_bound{cut::whole};
inline constexpr rule warp_perspective{cut::destination};
inline constexpr rule remap{cut::destination};
inline constexpr rule resize{cut::destination};
constexpr rule lowpass(mask size)
{
    return rule{cut::frame, {detail::half(size), detail::half(size), detail::half(size), detail::half(size)}};
}
constexpr rule highpass(mask size)
{
    return rule{cut::frame, {detail::half(size), detail::half(size), detail::half(size), detail::half(size)}};
}
constexpr rule laplace(mask size)
{
    return rule{cut::frame, {detail::half(size), detail::half(size), detail::half(size), detail::half(size)}};
}
constexpr rule sobel_cross(mask size)
{
    return rule{cut::frame, {detail::half(size), detail::half(size), detail::half(size), detail::half(size)}};
}
constexpr rule gauss(mask size)
{
    return rule{cut::frame, {detail::half(size), detail::half(size), detail::half(size), detail::half(size)}};
}
constexpr rule gauss(int kernel_size)
{
    return rule{cut::halo, {kernel_size / 2, kernel_size / 2, kernel_size / 2, kernel_size / 2}};
}
constexpr rule wiener(int mask_width, int mask_height, double noise)
{
    return noise < 0 ? rule{cut::whole} : rule{cut::frame, {mask_width / 2, mask_height / 2, mask_width / 2,
        mask_height / 2}};
}
constexpr rule median(int mask_width, int mask_height)
{
    return rule{cut::frame, {mask_width / 2, mask_height / 2, mask_width / 2, mask_height / 2}};
}
inline constexpr rule erode{cut::halo, {1, 1, 1, 1}};
inline constexpr rule dilate{cut::halo, {1, 1, 1, 1}};
constexpr rule convolve(int kernel_width, int kernel_height, int anchor_x, int anchor_y)
{
    return rule{cut::frame, {kernel_width - 1 - anchor_x, kernel_height - 1 - anchor_y, anchor_x, anchor_y}};
}
inline constexpr rule canny{cut::whole};
inline constexpr rule flood_fill{cut::whole};
template <class T>
inline constexpr rule sum{cut::whole};
template <>
inline constexpr rule sum<unsigned char>{cut::join};
template <>
inline constexpr rule sum<unsigned short>{cut::join};
template <>
inline constexpr rule sum<short>{cut::join};
inline constexpr rule mean{cut::whole};
inline constexpr rule mean_deviation{cut::whole};
inline constexpr rule deviation{cut::whole};
inline constexpr rule dot_product{cut::whole};
inline constexpr rule sum_squares{cut::join};
inline constexpr rule deviation_of_sums{cut::whole};
template <class T>
inline constexpr rule minimum{cut::whole};
template <>
inline constexpr rule minimum<unsigned char>{cut::join};
template <>
inline constexpr rule minimum<unsigned short>{cut::join};
template <>
inline constexpr rule minimum<short>{cut::join};
template <>
inline constexpr rule minimum<float>{cut::join, {}, 0, 1};
template <>
inline constexpr rule minimum<int>{cut::join};
template <>
inline constexpr rule minimum<double>{cut::join, {}, 0, 1};
template <class T>
inline constexpr rule maximum{cut::whole};
template <>
inline constexpr rule maximum<unsigned char>{cut::join};
template <>
inline constexpr rule maximum<unsigned short>{cut::join};
template <>
inline constexpr rule maximum<short>{cut::join};
template <>
inline constexpr rule maximum<float>{cut::join, {}, 0, 1};
template <>
inline constexpr rule maximum<int>{cut::join};
template <>
inline constexpr rule maximum<double>{cut::join, {}, 0, 1};
template <class T>
inline constexpr rule minimum_maximum{cut::whole};
template <>
inline constexpr rule minimum_maximum<unsigned char>{cut::join};
template <>
inline constexpr rule minimum_maximum<unsigned short>{cut::join};
template <>
inline constexpr rule minimum_maximum<short>{cut::join};
template <>
inline constexpr rule minimum_maximum<float>{cut::join, {}, 0, 1};
template <>
inline constexpr rule minimum_maximum<int>{cut::join};
template <>
inline constexpr rule minimum_maximum<double>{cut::join, {}, 0, 1};
inline constexpr rule histogram{cut::join};
inline constexpr rule sort{cut::whole};
inline constexpr rule sort_descending{cut::whole};
inline constexpr rule sort_index{cut::whole};
inline constexpr rule sort_index_descending{cut::whole};
inline constexpr rule phase{cut::point};
inline constexpr rule multiply_packed{cut::whole};
inline constexpr rule multiply_packed_conjugate{cut::whole};
inline constexpr rule magnitude_packed{cut::whole};
inline constexpr rule phase_packed{cut::whole};
inline constexpr rule packed_to_complex{cut::whole};
inline constexpr rule complex_to_packed{cut::whole};
inline constexpr rule magnitude{cut::point};
inline constexpr rule to_complex{cut::point};
inline constexpr rule hamming_window{cut::whole};
inline constexpr rule bartlett_window{cut::whole};

}  // namespace orvane::rules

#endif
