// Edges, and areas of one value.
#include "strips.h"

using W = ImageProcessingWrapper;

void show_edges(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height;
    page.strip(
        "Edges and areas",
        "Edges of the smoothed photograph, between a weak and a strong threshold, and areas that are reached from "
        "one pixel: of grey values in steps of 32.");
    const FloatPicture grey = brightness(photo), smooth(width, height, 1);
    W::FilterGaussBorder_32f_C1R(grey.data(), grey.step, smooth.data(), smooth.step, width, height, 9, 1.5f);
    Picture edges(width, height, 1);
    SHOW(page, edges, W::Canny_32f8u_C1(smooth.data(), smooth.step, edges.data(), edges.step, width, height, 10, 30));
    SHOW(page, edges, W::Canny_32f8u_C1(smooth.data(), smooth.step, edges.data(), edges.step, width, height, 30, 90));
    SHOW(page, edges, W::Canny_32f8u_C1(smooth.data(), smooth.step, edges.data(), edges.step, width, height, 80, 200));

    const Picture smooth_bytes = to_picture(smooth), steps(width, height, 1);
    W::AndC_8u_C1(smooth_bytes.data(), smooth_bytes.step, 0xE0, steps.data(), steps.step, width, height);
    page.show(steps, "grey values in steps of 32", 0, true);
    int count = 0;
    SHOW_IN_PLACE(page, steps, sky,
                  W::FloodFill_8Con_8u_C1IR(sky.data(), sky.step, width, height, width / 2, 5, 255, &count));
    SHOW_IN_PLACE(
        page, steps, ground,
        W::FloodFill_8Con_8u_C1IR(ground.data(), ground.step, width, height, width / 2, height - 5, 255, &count));
}
