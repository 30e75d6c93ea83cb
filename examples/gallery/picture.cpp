#include "picture.h"

#include <algorithm>
#include <stdexcept>

using W = ImageProcessingWrapper;

FloatPicture brightness(const Picture& colour)
{
    FloatPicture floats(colour.width, colour.height, 3), grey(colour.width, colour.height, 1);
    W::Convert_8u32f_C3(colour.data(), colour.step, floats.data(), floats.step, colour.width, colour.height);
    for (int y = 0; y < colour.height; ++y) {
        const float* const c = floats.row(y);
        for (int x = 0; x < colour.width; ++x)
            *grey.at(x, y) = 0.299f * c[3 * x] + 0.587f * c[3 * x + 1] + 0.114f * c[3 * x + 2];
    }
    return grey;
}

Picture grey(const Picture& colour) { return to_picture(brightness(colour)); }

Picture colours_of(const Picture& grey)
{
    Picture p(grey.width, grey.height, 3);
    for (int y = 0; y < p.height; ++y) {
        for (int x = 0; x < p.width; ++x) std::fill_n(p.at(x, y), 3, *grey.at(x, y));
    }
    return p;
}

Picture channel(const Picture& colour, int c)
{
    Picture p(colour.width, colour.height, 1);
    for (int y = 0; y < p.height; ++y) {
        for (int x = 0; x < p.width; ++x) *p.at(x, y) = colour.at(x, y)[c];
    }
    return p;
}

namespace {

template <class T>
void require_inside(const Rows<T>& picture, int x, int y, int width, int height)
{
    if (x < 0 || y < 0 || x + width > picture.width || y + height > picture.height)
        throw std::out_of_range("a part of a picture that lies outside");
}

}  // namespace

Picture part(const Picture& picture, int x, int y, int width, int height)
{
    require_inside(picture, x, y, width, height);
    Picture p(width, height, picture.channels);
    W::Copy_8u_C1(picture.at(x, y), picture.step, p.data(), p.step, width * p.channels, height);
    return p;
}

FloatPicture part(const FloatPicture& picture, int x, int y, int width, int height)
{
    require_inside(picture, x, y, width, height);
    FloatPicture p(width, height, picture.channels);
    W::Copy_32f_C1(picture.at(x, y), picture.step, p.data(), p.step, width * p.channels, height);
    return p;
}

Picture reduced(const Picture& picture, int width)
{
    if (picture.width <= width) return picture;
    const Picture from = picture.channels == 3 ? picture : colours_of(picture);
    const int height = std::max(1, static_cast<int>(static_cast<long>(picture.height) * width / picture.width));
    Picture p(width, height, 3);
    // The average of areas, for the whole picture.
    W::Resize_8u_C3(from.data(), from.step, from.width, from.height, p.data(), p.step, width, height, 1, 0, 0, false);
    return p;
}

Picture enlarged(const Picture& picture, int times)
{
    const Picture from = picture.channels == 3 ? picture : colours_of(picture);
    Picture p(times * from.width, times * from.height, 3);
    W::ResizeNN_8u_C3R(from.data(), from.width, from.height, from.step, p.data(), p.step, p.width, p.height, times,
                       times);
    return p;
}

Picture difference(const Picture& a, const Picture& b, int times)
{
    Picture more = a.copy(), less = b.copy();
    const int width = a.width * a.channels;
    W::Sub_8u_C1I(b.data(), b.step, more.data(), more.step, width, a.height, 0);
    W::Sub_8u_C1I(a.data(), a.step, less.data(), less.step, width, a.height, 0);
    W::Add_8u_C1I(less.data(), less.step, more.data(), more.step, width, a.height, 0);
    W::MulC_8u_C1I(static_cast<unsigned char>(times), more.data(), more.step, width, a.height, 0);
    return more;
}

Picture beside(const Picture& a, const Picture& b)
{
    constexpr int gap = 8;
    Picture p(a.width + gap + b.width, a.height, a.channels);
    W::Set_8u_C1(255, p.data(), p.step, p.width * p.channels, p.height);
    W::Copy_8u_C1(a.data(), a.step, p.data(), p.step, a.width * a.channels, a.height);
    W::Copy_8u_C1(b.data(), b.step, p.at(a.width + gap, 0), p.step, b.width * b.channels, b.height);
    return p;
}

Picture to_picture(const FloatPicture& f, float low, float high)
{
    Picture p(f.width, f.height, 1);
    for (int y = 0; y < f.height; ++y) {
        for (int x = 0; x < f.width; ++x) {
            const float v = (*f.at(x, y) - low) * 255 / (high - low);
            *p.at(x, y) = static_cast<unsigned char>(v > 0 ? std::min(v, 255.f) : 0);
        }
    }
    return p;
}
