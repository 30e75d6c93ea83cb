// Rank filters: noise that a mean would only smear, and the shapes of letters.
#include <cstring>

#include "strips.h"

using W = ImageProcessingWrapper;

namespace {

// Every fifth pixel black or white.
FloatPicture with_salt_and_pepper(const FloatPicture& picture)
{
    FloatPicture noisy(picture.width, picture.height, 1);
    unsigned state = 1;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            state = state * 1664525 + 1013904223;
            const unsigned chance = state >> 24;
            noisy.data()[y * (noisy.step / 4) + x] = chance < 26   ? 0.f
                                                     : chance < 52 ? 255.f
                                                                   : picture.data()[y * (picture.step / 4) + x];
        }
    }
    return noisy;
}

// Letters of 5 x 7 squares, in light and uneven print.
Picture printed(int width, int height)
{
    static const char* const letters[] = {"01110100011000110001100011000101110", "11110100011000111110101001001010001",
                                          "10001100011000110001010100101000100", "01110100011000111111100011000110001",
                                          "10001110011010110011100011000110001", "11111100001000011110100001000011111"};
    Picture page(width, height, 1);
    W::Set_8u_C1(235, page.data(), page.step, width, height);
    const int square = width / 40, top = (height - 7 * square) / 2;
    for (int letter = 0; letter < 6; ++letter) {
        for (int cell = 0; cell < 35; ++cell) {
            if (letters[letter][cell] == '0') continue;
            const int x = (2 + 6 * letter + cell % 5) * square, y = top + cell / 5 * square;
            W::Set_8u_C1(60, page.data() + y * page.step + x, page.step, square, square);
        }
    }
    unsigned state = 7;
    for (int i = 0; i < width * height / 60; ++i) {
        state = state * 1664525 + 1013904223;
        unsigned char& pixel = page.data()[static_cast<int>(state >> 20) % height * page.step +
                                           static_cast<int>(state >> 8 & 0xFFF) % width];
        pixel = static_cast<unsigned char>(255 - pixel);
    }
    return page;
}

}  // namespace

void show_rank(const Picture& photo, Page& page)
{
    page.strip("Medians, erosion, dilation",
               "Every fifth pixel lost, and what medians of 3x3, 5x5 and 15x15 pixels make of it. Letters of a noisy "
               "print: their threshold, its dilation (white grows), its erosion, and one after the other.");
    const FloatPicture noisy = with_salt_and_pepper(brightness(photo));
    const int width = noisy.width, height = noisy.height;
    page.show(to_picture(noisy), "brightness, a fifth of it black or white", 0, true);
    // Medians read a frame.
    constexpr int frame = 7;
    FloatPicture framed(width + 2 * frame, height + 2 * frame, 1), clean(width, height, 1);
    W::CopyReplicateBorder_32f_C1(noisy.data(), noisy.step, width, height, framed.data(), framed.step, framed.width,
                                  framed.height, frame, frame);
    const float* const region = framed.data() + frame * (framed.step / 4) + frame;
#define MEDIAN(side)                                                                                  \
    W::FilterMedian_32f_C1(region, framed.step, clean.data(), clean.step, width, height, side, side); \
    SHOW(page, to_picture(clean),                                                                     \
         W::FilterMedian_32f_C1(region, framed.step, clean.data(), clean.step, width, height, side, side))
    MEDIAN(3);
    MEDIAN(5);
    MEDIAN(15);
#undef MEDIAN

    const Picture print = printed(width, height / 3);
    const int lines = print.height;
    page.show(print, "a noisy print", 0, true);
    Picture letters(width, lines, 1), grown(width, lines, 1);
    SHOW(page, letters,
         W::CompareCGreater_8u_C1R(print.data(), print.step, 128, letters.data(), letters.step, width, lines));
    SHOW(page, grown, W::Dilate3x3_8u_C1(letters.data(), letters.step, grown.data(), grown.step, width, lines));
    SHOW_IN_PLACE(page, letters, eroded, W::Erode3x3_8u_C1I(eroded.data(), eroded.step, width, lines));
    SHOW_IN_PLACE(page, grown, closed, W::Erode3x3_8u_C1I(closed.data(), closed.step, width, lines));
}
