// Edges (canny) and filled areas (flood_fill) against OpenCV, on what they are for and on the worst patterns: areas of
// as many pixels as a solid one, in which every pixel touches few others. OpenCV's edges are those of 8-bit images.
#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb/stb_image.h>
#pragma GCC diagnostic pop

#include <cstdlib>
#include <opencv2/imgproc.hpp>

#include "ImageProcessingWrapper.h"
#include "harness.h"

namespace {

using bench::Image;
using W = ImageProcessingWrapper;
using u8 = unsigned char;

cv::Mat view(const Image& image, int width, int type)
{
    return cv::Mat(image.height(), width, type, image.as<void>(), static_cast<std::size_t>(image.step()));
}

// --- Scenes ---------------------------------------------------------------------------------------

// Inward from the upper left corner, `pitch` from one winding to the next; the last pixel is `end`.
void draw_spiral(cv::Mat m, int pitch, double line, double end)
{
    const cv::Scalar colour(line);
    cv::Point at(0, 0);
    int left = 0, top = 0, right = m.cols - 1, bottom = m.rows - 1;
    const auto go = [&](int x, int y) {
        cv::line(m, at, cv::Point(x, y), colour);
        at = cv::Point(x, y);
    };
    while (right - left > pitch && bottom - top > pitch) {
        go(right, at.y);
        go(at.x, bottom);
        go(left, at.y);
        top += pitch;
        go(at.x, top);
        left += pitch, right -= pitch, bottom -= pitch;
    }
    m.at<u8>(at) = static_cast<u8>(end);
}

// The grey values of the file that ORVANE_PHOTOGRAPH names; without one, blurred noise.
cv::Mat photograph()
{
    int width = 0, height = 0, channels = 0;
    const char* const file = std::getenv("ORVANE_PHOTOGRAPH");
    u8* const pixels = file != nullptr ? stbi_load(file, &width, &height, &channels, 1) : nullptr;
    if (pixels != nullptr) {
        const cv::Mat grey = cv::Mat(height, width, CV_8UC1, pixels).clone();
        stbi_image_free(pixels);
        return grey;
    }
    cv::Mat noise(1024, 1024, CV_8UC1);
    cv::randu(noise, 0, 256);
    cv::GaussianBlur(noise, noise, cv::Size(0, 0), 4);
    cv::normalize(noise, noise, 0, 255, cv::NORM_MINMAX);
    return noise;
}
cv::Mat spiral_of_edges()
{
    cv::Mat m(1024, 1024, CV_8UC1, cv::Scalar(100));
    draw_spiral(m, 6, 120, 140);
    return m;
}
cv::Mat noise()
{
    cv::Mat m(1024, 1024, CV_8UC1);
    cv::randu(m, 0, 256);
    return m;
}

// --- Edges ----------------------------------------------------------------------------------------

void add_edges(const std::string& scene, cv::Mat (*make)(), float low, float high)
{
    struct Scene {
        cv::Mat bytes, floats, dst;
    };
    const auto made = std::make_shared<Scene>();
    const auto prepared = [made, make]() -> Scene& {
        if (made->bytes.empty()) {
            made->bytes = make();
            made->bytes.convertTo(made->floats, CV_32F);
            made->dst.create(made->bytes.size(), CV_8UC1);
        }
        return *made;
    };
    const std::string row = "Canny_32f8u_C1 " + scene;
    bench::add(row, "1 M", "orvane", [=] {
        Scene& s = prepared();
        W::Canny_32f8u_C1(s.floats.ptr<float>(), static_cast<int>(s.floats.step), s.dst.data,
                          static_cast<int>(s.dst.step), s.dst.cols, s.dst.rows, low, high);
    });
    bench::add(row, "1 M", "opencv", [=] {
        Scene& s = prepared();
        cv::Canny(s.bytes, s.dst, static_cast<double>(low), static_cast<double>(high), 3, true);
    });
}

// --- Areas ----------------------------------------------------------------------------------------

// All areas but the small ones have about a million pixels, of value 0 among others of 9; each call gives them another
// value.
void add_area(const std::string& scene, int width, int height, cv::Point seed, void (*draw)(cv::Mat))
{
    const auto area = std::make_shared<Image>(width, 1, [=](const Image& image) {
        cv::Mat m(height, width, CV_8UC1, image.as<void>(), static_cast<std::size_t>(image.step()));
        m.setTo(0);
        draw(m);
    });
    const auto value = std::make_shared<u8>(u8{0});
    const auto next = [value] { return *value = *value == 1 ? 2 : 1; };
    const std::string row = "FloodFill_8Con_8u_C1IR " + scene;
    const std::string size = std::to_string(width) + "x" + std::to_string(height);
    bench::add(row, size, "orvane", [=] {
        W::FloodFill_8Con_8u_C1IR(area->as<u8>(), area->step(), width, height, seed.x, seed.y, next(), nullptr);
    });
    bench::add(row, size, "opencv", [=] {
        cv::Mat m = view(*area, width, CV_8UC1).rowRange(0, height);
        cv::floodFill(m, seed, cv::Scalar(next()), nullptr, cv::Scalar(), cv::Scalar(), 8);
    });
}

template <class Keep>
void keep(cv::Mat m, Keep keep_pixel)
{
    for (int y = 0; y < m.rows; ++y) {
        for (int x = 0; x < m.cols; ++x) {
            if (!keep_pixel(x, y)) m.at<u8>(y, x) = 9;
        }
    }
}

const bool registered = [] {
    add_edges("photograph", photograph, 60, 150);
    add_edges("spiral", spiral_of_edges, 30, 90);
    add_edges("noise", noise, 60, 150);
    add_edges("noise, all weak", noise, 0, 100000);
    add_area("solid", 1024, 1024, {512, 512}, [](cv::Mat) {});
    add_area("100 pixels", 1024, 1024, {512, 512},
             [](cv::Mat m) { keep(m, [](int x, int y) { return x / 10 == 51 && y / 10 == 51; }); });
    add_area("column of 100", 1024, 1024, {512, 512},
             [](cv::Mat m) { keep(m, [](int x, int y) { return x == 512 && y / 100 == 5; }); });
    add_area("comb", 1448, 1448, {0, 0}, [](cv::Mat m) { keep(m, [](int x, int y) { return y == 0 || x % 2 == 0; }); });
    add_area("comb on its side", 1448, 1448, {0, 0},
             [](cv::Mat m) { keep(m, [](int x, int y) { return x == 0 || y % 2 == 0; }); });
    add_area("checkerboard", 1448, 1448, {724, 724},
             [](cv::Mat m) { keep(m, [](int x, int y) { return (x + y) % 2 == 0; }); });
    add_area("spiral", 1448, 1448, {0, 0}, [](cv::Mat m) {
        cv::Mat line(m.size(), CV_8UC1, cv::Scalar(9));
        draw_spiral(line, 2, 0, 0);
        line.copyTo(m);
    });
    add_area("noise", 1448, 1448, {724, 724}, [](cv::Mat m) {
        cv::RNG random(1);
        keep(m, [&](int x, int y) { return (x == 724 && y == 724) || random.uniform(0, 2) == 0; });
    });
    return true;
}();

}  // namespace
