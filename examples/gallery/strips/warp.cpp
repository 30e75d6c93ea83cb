// Turned, straightened, undistorted.
#include <MatrixWrapper.h>

#include <cmath>
#include <vector>

#include "plot.h"
#include "strips.h"
#include "text.h"

using W = ImageProcessingWrapper;

namespace {

const struct {
    int code;
    const char* name;
} kInterpolations[] = {{1, "nearest"}, {2, "linear"}, {4, "cubic"}, {5, "B-spline"}, {7, "cubic, B = 0.5, C = 0.3"},
                       {16, "Lanczos"}};

// A small piece, enlarged as it is turned: the turned piece is the source of a second call, pixel by pixel.
void show_rotations(const Picture& piece, Page& page)
{
    for (const auto& way : kInterpolations) {
        double bound[4];
        W::GetRotateBound(0, 0, piece.width, piece.height, 30, 0, 0, bound);
        const int width = static_cast<int>(std::ceil(bound[2] - bound[0])),
                  height = static_cast<int>(std::ceil(bound[3] - bound[1]));
        const Picture turned(width, height, 3), large(4 * width, 4 * height, 3);
        bool ok = false;
        const double time = best_microseconds(
            [&] {
                return W::Rotate_8u_C3(piece.data(), piece.width, piece.height, piece.step, 0, 0, piece.width,
                                       piece.height, turned.data(), turned.step, 0, 0, width, height, 30, -bound[0],
                                       -bound[1], way.code);
            },
            ok);
        W::ResizeNN_8u_C3R(turned.data(), width, height, turned.step, large.data(), large.step, large.width,
                           large.height, 4, 4);
        page.show(large, std::string("Rotate_8u_C3 by 30 degrees, ") + way.name, time, ok);
    }
}

// A page with a headline, lines of text and the photograph.
Picture printed_page(const Picture& photo)
{
    Picture page = sheet(840, 1060);
    write_text(page, 60, 60, 7, "Primitives");
    const char* const lines[] = {
        "A page that lies aslant under a camera is a", "projection of the page that was printed. The",
        "matrix that undoes it follows from where its", "four corners are seen; letters stand upright",
        "again, as sharp as the pixels allow."};
    int y = 150;
    for (const char* line : lines) write_text(page, 60, y += 36, 3, line);
    const double zoom = 720.0 / photo.width;
    const int height = static_cast<int>(photo.height * zoom);
    W::ResizeCubic_8u_C3R(photo.data(), photo.width, photo.height, photo.step, page.data() + 400 * page.step + 3 * 60,
                          page.step, 720, height, zoom, zoom);
    write_text(page, 60, 420 + height, 3, "Fig. 1: the photograph, printed.");
    return page;
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
    return {(p[1].x - p[0].x + g * p[1].x) / width, (p[3].x - p[0].x + h * p[3].x) / height, p[0].x,
            (p[1].y - p[0].y + g * p[1].y) / width, (p[3].y - p[0].y + h * p[3].y) / height, p[0].y,
            g / width, h / height, 1};
}

// What a camera makes of a page that lies aslant, and what the inverse of the same matrix makes of that.
void show_document(const Picture& photo, Page& page)
{
    const Picture document = printed_page(photo);
    const int w = 1120, h = 840, row = 3 * static_cast<int>(sizeof(double)), element = sizeof(double);
    const std::vector<double> aslant = matrix_to_corners(document.width, document.height,
                                                         {{330, 40}, {820, 90}, {1060, 800}, {60, 690}});
    double back[9];
    MatrixWrapper::Invert_m_64f(aslant.data(), row, element, back, row, element, 3);
    Picture seen(w, h, 3), straight(document.width, document.height, 3);
    static const unsigned char desk[3] = {96, 72, 52};
    W::Set_8u_C3(desk, seen.data(), seen.step, w, h);
    SHOW(page, seen,
         W::WarpPerspective_8u_C3(document.data(), document.width, document.height, document.step, 0, 0, document.width,
                                  document.height, seen.data(), seen.step, 0, 0, w, h, aslant.data(), 2));
    SHOW(page, straight,
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
    SHOW(page, barrel,
         W::Remap_8u_C3(photo.data(), photo.width, photo.height, photo.step, 0, 0, photo.width, photo.height,
                        distort.x.data(), step, distort.y.data(), step, barrel.data(), barrel.step, photo.width,
                        photo.height, 4));
    SHOW(page, straight,
         W::Remap_8u_C3(barrel.data(), photo.width, photo.height, barrel.step, 0, 0, photo.width, photo.height,
                        undo.x.data(), step, undo.y.data(), step, straight.data(), straight.step, photo.width,
                        photo.height, 4));
}

}  // namespace

void show_warp(const Picture& photo, Page& page)
{
    page.strip("Rotation",
               "A piece of the photograph turned by 30 degrees through every interpolation, then four times as large "
               "pixel by pixel. "
               "What lies outside the piece keeps its value.");
    Picture piece(80, 53, 3);
    W::Copy_8u_C3(photo.data() + photo.height * 2 / 5 * photo.step + 3 * (photo.width * 21 / 25), photo.step,
                  piece.data(), piece.step, piece.width, piece.height);
    show_rotations(piece, page);

    page.strip(
        "A document straightened",
        "A printed page as a camera sees it that looks at it aslant, and straight again through the inverse of the "
        "same matrix.");
    show_document(photo, page);

    page.strip("A lens distortion undone", "A barrel made by a map, and the map that undoes it.");
    show_lens(photo, page);
}
