// The choices that operations take.
#ifndef ORVANE_LAYER_CODES_HPP
#define ORVANE_LAYER_CODES_HPP

namespace orvane {

/// What lies beyond the edge of an image: the nearest pixel of the edge, or a constant.
enum class edge { replicate, constant };

/// The neighbourhood of a filter.
enum class mask { size3x3 = 3, size5x5 = 5 };

/// How pixels between pixels are made; the codes of the classes. See "Resize by factor and shift".
enum class interpolation {
    nearest = 1,
    linear = 2,
    cubic = 4,        ///< cubic convolution, a = -1/2
    b_spline = 5,     ///< no prefilter
    catmull_rom = 6,  ///< the same weights as cubic
    b05_c03 = 7,      ///< Mitchell and Netravali's B = 1/2, C = 3/10
    area = 8,         ///< the average of what a pixel covers; for reduction
    lanczos = 16,
};

/// What mirroring exchanges.
enum class axis { horizontal = 0, vertical = 1, both = 2 };

/// Luma and chroma: which matrix, and whether the values are 16 ... 235 or 0 ... 255.
enum class colour_standard { bt601_video = 0, bt601_full = 1, bt709_video = 2, bt709_full = 3 };

}  // namespace orvane

#endif
