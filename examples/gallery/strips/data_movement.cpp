// Set, conversion, channel order, transposition, mirroring.
#include "strips.h"

using W = ImageProcessingWrapper;

void show_data_movement(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height;
    page.strip("Data movement",
               "Pixels keep their values and change their places; conversions to float and back are exact.");

    static const int order[3] = {2, 1, 0};
    SHOW_IN_PLACE(page, photo, image, W::SwapChannels_8u_C3IR(image.data(), image.step, width, height, order));
    SHOW_IN_PLACE(page, photo, image, W::Mirror_8u_C3I(image.data(), image.step, width, height, 1));
    SHOW_IN_PLACE(page, photo, image, W::MirrorHorizontal_8u_C3I(image.data(), image.step, width, height));

    // A frame of one colour, set into the picture.
    static const unsigned char orange[3] = {240, 140, 20};
    SHOW_IN_PLACE(page, photo, image,
                  W::Set_8u_C3(orange, image.data() + image.step * (height / 4) + 3 * (width / 4), image.step,
                               width / 2, height / 24));

    // One channel as float, transposed, and back.
    const FloatPicture grey = brightness(photo);
    FloatPicture transposed(height, width, 1);
    W::Transpose_32f_C1R(grey.data(), grey.step, transposed.data(), transposed.step, width, height);
    SHOW(page, to_picture(transposed),
         W::Transpose_32f_C1R(grey.data(), grey.step, transposed.data(), transposed.step, width, height));
}
