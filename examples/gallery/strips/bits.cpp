// Bits, comparison, thresholds.
#include "strips.h"

using W = ImageProcessingWrapper;

namespace {

void show_bitwise(const Picture& photo, Page& page)
{
    page.family("ImageProcessingWrapper", "Bitwise operations and shifts", "Bits of pixels, channel by channel.");
    const int width = photo.width, height = photo.height;
    const Picture result(width, height, 3);
    static const unsigned char ones[3] = {255, 255, 255}, two_bits[3] = {0xC0, 0xC0, 0xC0};
    SHOW(page, result, "All bits turned over: the negative",
         W::XorC_8u_C3(photo.data(), photo.step, ones, result.data(), result.step, width, height));
    SHOW(page, result, "The two upper bits alone: four steps of each colour",
         W::AndC_8u_C3(photo.data(), photo.step, two_bits, result.data(), result.step, width, height));
    static const unsigned int counts[3] = {3, 3, 3};
    SHOW(page, result, "Shifted to the left by three: what the five lower bits hold, and the upper ones hide",
         W::LShiftC_8u_C3R(photo.data(), photo.step, counts, result.data(), result.step, width, height));
}

void show_comparison(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Comparison",
                "Masks: 255 where a relation holds, in every channel of a pixel, else 0.");
    const Picture coins = grey(pictures.coins), mask(coins.width, coins.height, 1);
    page.show(coins, "Greek coins, under uneven light");
    SHOW(page, mask, "Where they are brighter than 120: the light at the top decides, too",
         W::CompareCGreater_8u_C1R(coins.data(), coins.step, 120, mask.data(), mask.step, coins.width, coins.height));
    FloatPicture background(coins.width, coins.height, 1), values(coins.width, coins.height, 1);
    W::Convert_8u32f_C1(coins.data(), coins.step, values.data(), values.step, coins.width, coins.height);
    W::FilterGaussBorder_32f_C1R(values.data(), values.step, background.data(), background.step, coins.width,
                                 coins.height, 127, 30);
    SHOW(page, mask, "Where they are brighter than their surroundings, the same picture smoothed: the coins are whole",
         W::CompareGreater_32f_C1(values.data(), values.step, background.data(), background.step, mask.data(),
                                  mask.step, coins.width, coins.height));
}

void show_thresholds(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Thresholding",
                "Pixels beyond a threshold become the threshold, or a value of one's own; all others stay.");
    const Picture one = grey(pictures.coins), result(one.width, one.height, 1);
    SHOW(page, result, "What is darker than 110 becomes black",
         W::ThresholdLess_Val_8u_C1R(one.data(), one.step, result.data(), result.step, one.width, one.height, 110, 0));
    const FloatPicture light = brightness(pictures.photo), limited(light.width, light.height, 1);
    SHOW(page, to_picture(limited), "The photograph, what is below 60 as 0, what is above 150 as 255",
         W::Threshold_LTValGTVal_32f_C1R(light.data(), light.step, limited.data(), limited.step, light.width,
                                         light.height, 60, 0, 150, 255));
}

}  // namespace

void show_bits(const Pictures& pictures, Page& page)
{
    show_bitwise(pictures.photo, page);
    show_comparison(pictures, page);
    show_thresholds(pictures, page);
}
