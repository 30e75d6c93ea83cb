// Rank filters: noise that a mean would only smear, and the shapes of letters.
#include "strips.h"

using W = ImageProcessingWrapper;

namespace {

// Every fifth pixel black or white.
FloatPicture with_salt_and_pepper(const FloatPicture& picture)
{
    FloatPicture noisy = picture.copy();
    unsigned state = 1;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            state = state * 1664525 + 1013904223;
            const unsigned chance = state >> 24;
            if (chance < 52) *noisy.at(x, y) = chance < 26 ? 0.f : 255.f;
        }
    }
    return noisy;
}

void show_medians(const Picture& photo, Page& page)
{
    const FloatPicture noisy = with_salt_and_pepper(brightness(photo));
    const int width = noisy.width, height = noisy.height;
    constexpr int frame = 7;  // what the largest of the medians reads beyond the edge
    FloatPicture framed(width + 2 * frame, height + 2 * frame, 1), clean(width, height, 1);
    W::CopyReplicateBorder_32f_C1(noisy.data(), noisy.step, width, height, framed.data(), framed.step, framed.width,
                                  framed.height, frame, frame);
    const float* const region = framed.at(frame, frame);
    page.show(to_picture(noisy), "A fifth of all pixels is lost: black or white");
    SHOW(page, to_picture(clean), "The median of 3 x 3 pixels",
         W::FilterMedian_32f_C1(region, framed.step, clean.data(), clean.step, width, height, 3, 3));
    SHOW(page, to_picture(clean), "The median of 5 x 5 pixels",
         W::FilterMedian_32f_C1(region, framed.step, clean.data(), clean.step, width, height, 5, 5));
    SHOW(page, to_picture(clean), "The median of 15 x 15 pixels: details go, edges stay",
         W::FilterMedian_32f_C1(region, framed.step, clean.data(), clean.step, width, height, 15, 15));
}

void show_morphology(const Picture& text, Page& page)
{
    const int w = text.width / 2, h = text.height / 2, width = 2 * w, height = 2 * h;
    const Picture twice(width, height, 3);
    W::ResizeCubic_8u_C3R(text.data(), w, h, text.step, twice.data(), twice.step, width, height, 2, 2);
    const Picture print = grey(twice);
    const Picture letters(width, height, 1), result(width, height, 1);
    W::CompareCGreater_8u_C1R(print.data(), print.step, 100, letters.data(), letters.step, width, height);
    page.show(enlarged(letters, 2), "Print at twice its size, black where it is darker than 100");
    SHOW(page, enlarged(result, 2), "Eroded: the darkest of 3 x 3 pixels, black grows and gaps close",
         W::Erode3x3_8u_C1(letters.data(), letters.step, result.data(), result.step, width, height));
    SHOW(page, enlarged(result, 2), "Dilated: the brightest of 3 x 3 pixels, lines become thin, dots vanish",
         W::Dilate3x3_8u_C1(letters.data(), letters.step, result.data(), result.step, width, height));
}

}  // namespace

void show_rank(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Rank filters",
                "The middle, the darkest or the brightest pixel of a neighbourhood.");
    show_medians(pictures.astronaut, page);
    show_morphology(pictures.page, page);
}
