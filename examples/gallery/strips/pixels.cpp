// Bits, comparison, thresholds, borders.
#include "strips.h"

using W = ImageProcessingWrapper;

void show_pixels(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height;
    page.strip("Bits, masks, thresholds, borders",
               "Masks are 255 where a relation holds in every channel of the pixel, else 0.");
    Picture result(width, height, 3), mask(width, height, 1);
    const Picture grey = to_picture(brightness(photo));

    static const unsigned char ones[3] = {255, 255, 255};
    SHOW(page, result, W::XorC_8u_C3(photo.data(), photo.step, ones, result.data(), result.step, width, height));
    static const unsigned char coarse[3] = {0xC0, 0xC0, 0xC0};
    SHOW(page, result, W::AndC_8u_C3(photo.data(), photo.step, coarse, result.data(), result.step, width, height));
    static const unsigned int counts[3] = {2, 2, 2};
    SHOW(page, result, W::LShiftC_8u_C3R(photo.data(), photo.step, counts, result.data(), result.step, width, height));

    static const unsigned char levels[3] = {120, 120, 120};
    SHOW(page, mask,
         W::CompareCGreater_8u_C3R(photo.data(), photo.step, levels, mask.data(), mask.step, width, height));
    Picture one(width, height, 1);
    SHOW(page, one, W::ThresholdLess_Val_8u_C1R(grey.data(), grey.step, one.data(), one.step, width, height, 90, 0));

    Picture framed(width + 80, height + 80, 3);
    static const unsigned char orange[3] = {240, 140, 20};
    SHOW(page, framed,
         W::CopyConstBorder_8u_C3(photo.data(), photo.step, width, height, framed.data(), framed.step, width + 80,
                                  height + 80, 40, 40, orange));
    // A piece of the picture, its edge repeated far outward.
    Picture repeated(width, height, 3);
    const int w = width / 3, h = height / 3;
    SHOW(page, repeated,
         W::CopyReplicateBorder_8u_C3(photo.data() + h * photo.step + 3 * w, photo.step, w, h, repeated.data(),
                                      repeated.step, width, height, h, w));
}
