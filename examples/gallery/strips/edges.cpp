// Edges, and areas of one value.
#include "strips.h"

using W = ImageProcessingWrapper;

void show_edges(const Pictures& pictures, Page& page)
{
    page.family(
        "ImageProcessingWrapper", "Edges and filled areas",
        "Edges of a smoothed photograph, one pixel wide: those above a high threshold, and those above a low one "
        "that are joined to them. Areas of one value, filled from one pixel.");
    const FloatPicture light = brightness(pictures.cat);
    const int width = light.width, height = light.height;
    FloatPicture smooth(width, height, 1);
    W::FilterGaussBorder_32f_C1R(light.data(), light.step, smooth.data(), smooth.step, width, height, 9, 1.2f);
    const Picture edges(width, height, 1);
    SHOW(page, edges, "Thresholds 15 and 45: whiskers and fur",
         W::Canny_32f8u_C1(smooth.data(), smooth.step, edges.data(), edges.step, width, height, 15, 45));
    page.feature();
    SHOW(page, edges, "Thresholds 40 and 110: the outlines",
         W::Canny_32f8u_C1(smooth.data(), smooth.step, edges.data(), edges.step, width, height, 40, 110));

    // The background of the coins, from a corner.
    const Picture coins = grey(pictures.coins), mask(coins.width, coins.height, 1);
    W::CompareCGreater_8u_C1R(coins.data(), coins.step, 120, mask.data(), mask.step, coins.width, coins.height);
    int count = 0;
    SHOW_IN_PLACE(page, mask, filled, filled,
                  "A mask of coins, its background filled with grey from the lower left corner",
                  W::FloodFill_8Con_8u_C1IR(filled.data(), filled.step, filled.width, filled.height, 2,
                                            filled.height - 3, 128, &count));
}
