// Enlarging and reducing.
#include "strips.h"

using W = ImageProcessingWrapper;

void show_resize(const Picture& photo, Page& page)
{
    page.strip("Resize", "A piece of the photograph, eight times as large: the nearest pixel, and cubic. Then the whole, smaller.");
    const int w = 80, h = 53;
    const unsigned char* const piece = photo.data() + (photo.height * 2 / 5) * photo.step + 3 * (photo.width * 4 / 5);
    Picture large(8 * w, 8 * h, 3);
    SHOW(page, large, W::ResizeNN_8u_C3R(piece, w, h, photo.step, large.data(), large.step, 8 * w, 8 * h, 8, 8));
    SHOW(page, large, W::ResizeCubic_8u_C3R(piece, w, h, photo.step, large.data(), large.step, 8 * w, 8 * h, 8, 8));

    const float zoom = 1;  // the whole picture
    Picture small(photo.width / 4, photo.height / 4, 3);
    SHOW(page, small, W::Resize_8u_C3(photo.data(), photo.step, photo.width, photo.height, small.data(), small.step, small.width, small.height, zoom, 0, 0, false));
    SHOW(page, small, W::Resize_8u_C3(photo.data(), photo.step, photo.width, photo.height, small.data(), small.step, small.width, small.height, zoom, 0, 0, true));
}
