// A darkroom: a picture is brightened, reduced, softened and sharpened.
#include <cstdio>
#include <orvane/orvane.hpp>

using picture = orvane::image<unsigned char, 3>;

// Rings on a coloured ground.
picture draw(int width, int height)
{
    picture made(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int u = x - width / 2, v = y - height / 2, ring = (u * u + v * v) / 512 % 2;
            made(x, y, 0) = static_cast<unsigned char>(40 + 100 * x / width);
            made(x, y, 1) = static_cast<unsigned char>(30 + 110 * ring);
            made(x, y, 2) = static_cast<unsigned char>(40 + 100 * y / height);
        }
    }
    return made;
}

void tell(const char* what, const picture& photo)
{
    double total[3];
    orvane::sum(photo, total).check();
    const double pixels = static_cast<double>(photo.width()) * photo.height();
    const unsigned char* const middle = photo.row(photo.height() / 2) + 3 * (photo.width() / 2 + 10);
    std::printf("%-10s %3d x %3d, mean %6.2f %6.2f %6.2f, green", what, photo.width(), photo.height(),
                total[0] / pixels, total[1] / pixels, total[2] / pixels);
    for (int k = 0; k < 8; ++k) std::printf(" %3d", middle[3 * k + 1]);
    std::printf("\n");
}

int main()
{
    picture photo = draw(480, 320);
    tell("as taken", photo);

    orvane::multiply(photo, {166, 166, 166}, photo, 7).check();  // 166 / 2^7 = 1.3
    tell("brightened", photo);

    picture reduced(240, 160), softened(240, 160), sharpened(240, 160);
    orvane::resize(photo, reduced, orvane::interpolation::area).check();
    tell("reduced", reduced);

    orvane::lowpass(reduced, softened, orvane::mask::size5x5, orvane::edge::replicate).check();
    tell("softened", softened);

    const int kernel[9] = {0, -1, 0, -1, 5, -1, 0, -1, 0};
    orvane::convolve(reduced, sharpened, kernel, 3, 3, 1, 1, 1, orvane::edge::replicate).check();
    tell("sharpened", sharpened);

    // What the filter says of a picture that has nothing around it.
    std::puts(orvane::lowpass(reduced, softened, orvane::mask::size5x5).message().c_str());
}
