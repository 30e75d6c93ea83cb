// Fixed-kernel filters. They read a frame of one or two pixels around the region, so the region stays
// that far inside the image.
#include "strips.h"

using W = ImageProcessingWrapper;

void show_filters(const Picture& photo, Page& page)
{
    const int width = photo.width - 4, height = photo.height - 4;
    page.strip("Filters", "3x3 and 5x5 neighbourhoods; edges in grey, zero in the middle.");
    Picture smooth(width, height, 3);
    const unsigned char* const inner = photo.data() + 2 * photo.step + 6;
    SHOW(page, smooth, W::FilterLowpass3x3_8u_C3R(inner, photo.step, smooth.data(), smooth.step, width, height));
    SHOW(page, smooth, W::FilterLowpass5x5_8u_C3R(inner, photo.step, smooth.data(), smooth.step, width, height));

    const FloatPicture grey = brightness(photo);
    const float* const centre = grey.data() + 2 * (grey.step / 4) + 2;
    FloatPicture edges(width, height, 1);
#define EDGES(method, range) \
    W::method(centre, grey.step, edges.data(), edges.step, width, height); \
    SHOW(page, to_picture(edges, -(range), range), W::method(centre, grey.step, edges.data(), edges.step, width, height))
    EDGES(FilterHipass3x3_32f_C1R, 60);
    EDGES(FilterHipass5x5_32f_C1R, 300);
    EDGES(FilterLaplace3x3_32f_C1R, 60);
    EDGES(FilterLaplace5x5_32f_C1R, 200);
    EDGES(FilterSobelCross3x3_32f_C1R, 20);
    EDGES(FilterSobelCross5x5_32f_C1R, 150);
#undef EDGES
}
