// Buffers, copying, conversion, channel order, transposition, borders; the image container.
#include <Image.h>

#include <cmath>

#include "strips.h"

using W = ImageProcessingWrapper;

namespace {

void show_buffers(Page& page)
{
    page.family(
        "ImageProcessingWrapper", "Buffers",
        "Memory whose rows begin on 64-byte boundaries, as vector instructions like it. Other memory is as good.");
    std::vector<double> widths, one, three;
    for (int width = 1; width <= 128; ++width) {
        int step = 0;
        widths.push_back(width);
        W::Free(W::Malloc_8u_C1(width, 1, &step));
        one.push_back(step);
        W::Free(W::Malloc_8u_C3(width, 1, &step));
        three.push_back(step);
    }
    page.show(Plot("width (pixels)", "row step (bytes)", 0, 128, 0, 400)
                  .names_left()
                  .curve(widths, one, "#3b76a8", "one byte a pixel")
                  .curve(widths, three, "#c25b4e", "three bytes a pixel"),
              "The step from row to row is the width in bytes, made up to a multiple of 64",
              {"W::Malloc_8u_C3(width, 1, &step)"});
}

void show_copies(const Picture& photo, Page& page)
{
    page.family("ImageProcessingWrapper", "Copy and set",
                "Regions are copied and painted where they lie in a larger image: a region is an address, a step and a "
                "size.");
    const int width = photo.width, height = photo.height, w = width / 4, h = height / 3;
    SHOW_IN_PLACE(page, photo, image, image, "A region of the photograph, copied to its upper left corner",
                  W::Copy_8u_C3(photo.at(width / 2, height / 3), photo.step, image.data(), image.step, w, h));
    static const unsigned char orange[3] = {240, 140, 20};
    SHOW_IN_PLACE(page, photo, image, image, "A bar of one colour, set into the photograph",
                  W::Set_8u_C3(orange, image.at(width / 8, height * 3 / 4), image.step, width * 3 / 4, height / 12));
}

void show_conversion(const Picture& photo, Page& page)
{
    page.family(
        "ImageProcessingWrapper", "Conversion",
        "To wider types exactly; to narrower ones to the nearest integer, halves to the even one, and what lies "
        "beyond the range to its end.");
    const int width = photo.width, height = photo.height;
    FloatPicture floats(width, height, 3);
    static const float three[3] = {3, 3, 3};
    W::Convert_8u32f_C3(photo.data(), photo.step, floats.data(), floats.step, width, height);
    W::MulC_32f_C3IR(three, floats.data(), floats.step, width, height);
    Picture bytes(width, height, 3);
    SHOW(page, bytes, "The photograph as floats, three times as bright, and back: it saturates, nothing wraps round",
         W::Convert_32f8u_C3(floats.data(), floats.step, bytes.data(), bytes.step, width, height));
    std::vector<float> in;
    std::vector<double> xs, ys;
    for (int i = 0; i <= 240; ++i) in.push_back(static_cast<float>(i) / 40);
    std::vector<unsigned short> out(in.size());
    const int n = static_cast<int>(in.size());
    const Run run{"W::Convert_32f16u_C1(in.data(), 4 * n, out.data(), 2 * n, n, 1)", 0,
                  W::Convert_32f16u_C1(in.data(), 4 * n, out.data(), 2 * n, n, 1)};
    page.show(Plot("float", "integer", 0, 6, 0, 6).points({in.begin(), in.end()}, {out.begin(), out.end()}, "#3b76a8"),
              "Floats and the integers that they become: 0.5 gives 0, 1.5 and 2.5 give 2", run);
}

void show_channel_order(const Picture& photo, Page& page)
{
    page.family("ImageProcessingWrapper", "Channel order",
                "Each channel takes the values of the one that is named for it.");
    static const int reversed[3] = {2, 1, 0}, green[3] = {1, 1, 1};
    SHOW_IN_PLACE(page, photo, image, image, "Red and blue exchanged",
                  W::SwapChannels_8u_C3IR(image.data(), image.step, image.width, image.height, reversed));
    SHOW_IN_PLACE(page, photo, image, image, "All three channels from green: a grey picture",
                  W::SwapChannels_8u_C3IR(image.data(), image.step, image.width, image.height, green));
}

void show_transposition(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Transposition and mirroring", "Pixels change places as a whole.");
    const FloatPicture grey = brightness(pictures.cat), turned(grey.height, grey.width, 1);
    SHOW(page, to_picture(turned), "Rows become columns",
         W::Transpose_32f_C1R(grey.data(), grey.step, turned.data(), turned.step, grey.width, grey.height));
    SHOW_IN_PLACE(page, pictures.cat, image, image, "Left and right exchanged",
                  W::Mirror_8u_C3I(image.data(), image.step, image.width, image.height, 1));
    SHOW_IN_PLACE(page, pictures.cat, image, image, "Both exchanged: turned by a half",
                  W::Mirror_8u_C3I(image.data(), image.step, image.width, image.height, 2));
}

}  // namespace

void show_moving(const Pictures& pictures, Page& page)
{
    show_buffers(page);
    show_copies(pictures.photo, page);
    show_conversion(pictures.photo, page);
    show_channel_order(pictures.photo, page);
    show_transposition(pictures, page);
}

void show_border(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Border extension",
                "A frame round an image, as filters want it that read beyond the edge.");
    const Picture& photo = pictures.astronaut;
    const int width = photo.width, height = photo.height, frame = width / 8;
    const Picture larger(width + 2 * frame, height + 2 * frame, 3);
    static const unsigned char blue[3] = {30, 70, 130};
    SHOW(page, larger, "A frame of one colour",
         W::CopyConstBorder_8u_C3(photo.data(), photo.step, width, height, larger.data(), larger.step, larger.width,
                                  larger.height, frame, frame, blue));
    SHOW(page, larger, "The pixels of the edge, repeated outward",
         W::CopyReplicateBorder_8u_C3(photo.data(), photo.step, width, height, larger.data(), larger.step, larger.width,
                                      larger.height, frame, frame));
}

void show_container(Page& page)
{
    const Orvane::ImageProcessing::Image image(640, 480, 0);
    page.family(
        "Image", "Image container",
        "An object that describes an image, and always an empty one: an image constructed with 640 x 480 pixels "
        "says that it is " +
            std::to_string(image.GetWidth()) + " x " + std::to_string(image.GetHeight()) + ". Hosts pass it on.");
}
