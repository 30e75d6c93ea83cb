// Turned, straightened, undistorted.
#include <MatrixWrapper.h>

#include <cmath>

#include "strips.h"

using W = ImageProcessingWrapper;

namespace {

// A small piece, enlarged as it is turned: pixel by pixel.
void show_rotations(const Pictures& pictures, Page& page)
{
    const Picture& from = pictures.cat;
    const Picture piece = part(from, from.width / 3, from.height * 3 / 10, 60, 40);
    const struct {
        int code;
        const char* caption;
    } ways[] = {{1, "An eye, turned by 30 degrees: the nearest pixel"},
                {2, "Turned linearly"},
                {5, "Turned by the B-spline: soft"},
                {16, "Turned by Lanczos: sharp"}};
    std::vector<Picture> results;
    double bound[4];
    W::GetRotateBound(0, 0, piece.width, piece.height, 30, 0, 0, bound);
    const int width = static_cast<int>(std::ceil(bound[2] - bound[0])),
              height = static_cast<int>(std::ceil(bound[3] - bound[1]));
    for (const auto& way : ways) {
        const Picture turned(width, height, 3);
        SHOW(page, enlarged(turned, 6), way.caption,
             W::Rotate_8u_C3(piece.data(), piece.width, piece.height, piece.step, 0, 0, piece.width, piece.height,
                             turned.data(), turned.step, 0, 0, width, height, 30, -bound[0], -bound[1], way.code));
        results.push_back(turned);
    }
    page.show(enlarged(difference(results[1], results[3], 6), 6),
              "How linear and Lanczos differ, six times as strong: along edges");
}

// Turned eight times by 45 degrees: what one turn loses, eight lose more of.
void show_full_turn(const Picture& photo, Page& page)
{
    const int side = std::min(photo.width, photo.height);
    const auto turned_round = [&](int code) {
        Picture now = part(photo, 0, 0, side, side);
        for (int i = 0; i < 8; ++i) {
            const Picture next(side, side, 3);
            W::RotateCenter_8u_C3(now.data(), side, side, now.step, next.data(), next.step, side, side, 45, side / 2.0,
                                  side / 2.0, code);
            now = next;
        }
        return part(now, side / 3, side / 6, side / 3, side / 3);
    };
    page.show(
        beside(turned_round(2), turned_round(16)),
        "Eight turns by 45 degrees, one after the other, linearly and by Lanczos: a full turn that shows what each "
        "of them loses",
        {"W::RotateCenter_8u_C3(..., 45, side / 2.0, side / 2.0, code)"});
}

struct Point {
    double x, y;
};

// The matrix that takes the corners of a rectangle (from the upper left, clockwise) to four points: P. S. Heckbert,
// Fundamentals of Texture Mapping and Image Warping, 1989, section 2.2.3.
std::vector<double> matrix_to_corners(double width, double height, const Point (&p)[4])
{
    const double dx1 = p[1].x - p[2].x, dx2 = p[3].x - p[2].x, sx = p[0].x - p[1].x + p[2].x - p[3].x;
    const double dy1 = p[1].y - p[2].y, dy2 = p[3].y - p[2].y, sy = p[0].y - p[1].y + p[2].y - p[3].y;
    const double d = dx1 * dy2 - dx2 * dy1, g = (sx * dy2 - dx2 * sy) / d, h = (dx1 * sy - sx * dy1) / d;
    return {(p[1].x - p[0].x + g * p[1].x) / width,
            (p[3].x - p[0].x + h * p[3].x) / height,
            p[0].x,
            (p[1].y - p[0].y + g * p[1].y) / width,
            (p[3].y - p[0].y + h * p[3].y) / height,
            p[0].y,
            g / width,
            h / height,
            1};
}

// What a camera makes of a page that lies aslant, and what the inverse of the same matrix makes of that.
void show_document(const Picture& document, Page& page)
{
    const int w = 640, h = 400, row = 3 * static_cast<int>(sizeof(double)), element = sizeof(double);
    const std::vector<double> aslant =
        matrix_to_corners(document.width, document.height, {{190, 30}, {540, 70}, {620, 370}, {20, 300}});
    double back[9];
    MatrixWrapper::Invert_m_64f(aslant.data(), row, element, back, row, element, 3);
    Picture seen(w, h, 3), straight(document.width, document.height, 3);
    static const unsigned char desk[3] = {96, 72, 52};
    W::Set_8u_C3(desk, seen.data(), seen.step, w, h);
    SHOW(page, seen, "A printed page as a camera sees it from aside",
         W::WarpPerspective_8u_C3(document.data(), document.width, document.height, document.step, 0, 0, document.width,
                                  document.height, seen.data(), seen.step, 0, 0, w, h, aslant.data(), 2));
    page.feature();
    SHOW(page, straight, "Straight again, through the inverse of the same matrix",
         W::WarpPerspective_8u_C3(seen.data(), w, h, seen.step, 0, 0, w, h, straight.data(), straight.step, 0, 0,
                                  straight.width, straight.height, back, 4));
}

struct Maps {
    std::vector<float> x, y;
};

// Radii as parts of half the width: `radius` says where in the source a radius of the destination comes from.
template <class Radius>
Maps lens(const Picture& photo, Radius radius)
{
    Maps maps;
    const double middle_x = photo.width / 2.0, middle_y = photo.height / 2.0;
    for (int y = 0; y < photo.height; ++y) {
        for (int x = 0; x < photo.width; ++x) {
            const double dx = x + 0.5 - middle_x, dy = y + 0.5 - middle_y, r = std::hypot(dx, dy) / middle_x;
            const double scale = r > 0 ? radius(r) / r : 1;
            maps.x.push_back(static_cast<float>(middle_x + dx * scale - 0.5));
            maps.y.push_back(static_cast<float>(middle_y + dy * scale - 0.5));
        }
    }
    return maps;
}

// A barrel: r (1 + k r^2) of the scene lands at r. Its inverse by iteration.
void show_lens(const Picture& photo, Page& page)
{
    const double k = 0.25;
    const auto outward = [=](double r) { return r * (1 + k * r * r); };
    const auto inward = [=](double r) {
        double s = r;
        for (int i = 0; i < 30; ++i) s = r / (1 + k * s * s);
        return s;
    };
    const Maps distort = lens(photo, outward), undo = lens(photo, inward);
    const int step = 4 * photo.width;
    Picture barrel(photo.width, photo.height, 3), straight(photo.width, photo.height, 3);
    SHOW(page, barrel, "The barrel of a wide-angle lens, made by a map",
         W::Remap_8u_C3(photo.data(), photo.width, photo.height, photo.step, 0, 0, photo.width, photo.height,
                        distort.x.data(), step, distort.y.data(), step, barrel.data(), barrel.step, photo.width,
                        photo.height, 4));
    page.feature();
    SHOW(page, straight, "The map that undoes it",
         W::Remap_8u_C3(barrel.data(), photo.width, photo.height, barrel.step, 0, 0, photo.width, photo.height,
                        undo.x.data(), step, undo.y.data(), step, straight.data(), straight.step, photo.width,
                        photo.height, 4));
}

}  // namespace

void show_warp(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Rotation, perspective, remapping",
                "Each pixel of the result shows the source at a place that is computed for it.");
    show_rotations(pictures, page);
    show_full_turn(pictures.astronaut, page);
    show_document(pictures.page, page);
    show_lens(pictures.astronaut, page);
}
