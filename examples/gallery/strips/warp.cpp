// Turned, straightened, undistorted.
#include <MatrixWrapper.h>

#include <cmath>
#include <vector>

#include "strips.h"

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

// What a camera makes of a page that lies aslant, and what the inverse of the same matrix makes of that.
void show_document(const Picture& photo, Page& page)
{
    const int w = photo.width / 2, h = photo.height / 2;
    const double aslant[9] = {0.42, -0.1, 0.16 * w, 0.06, 0.3, 0.1 * h, 0.0, -0.28 / h, 1.05};
    double back[9];
    const int row = 3 * static_cast<int>(sizeof(double)), element = sizeof(double);
    MatrixWrapper::Invert_m_64f(aslant, row, element, back, row, element, 3);
    Picture seen(w, h, 3), straight(photo.width, photo.height, 3);
    SHOW(page, seen,
         W::WarpPerspective_8u_C3(photo.data(), photo.width, photo.height, photo.step, 0, 0, photo.width, photo.height,
                                  seen.data(), seen.step, 0, 0, w, h, aslant, 2));
    SHOW(page, straight,
         W::WarpPerspective_8u_C3(seen.data(), w, h, seen.step, 0, 0, w, h, straight.data(), straight.step, 0, 0,
                                  photo.width, photo.height, back, 4));
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
    W::Copy_8u_C3(photo.data() + photo.height * 2 / 5 * photo.step + 3 * (photo.width * 4 / 5), photo.step,
                  piece.data(), piece.step, piece.width, piece.height);
    show_rotations(piece, page);

    page.strip("A document straightened",
               "The photograph as a camera sees it that looks at it from below, and straight again through the inverse "
               "matrix.");
    show_document(photo, page);

    page.strip("A lens distortion undone", "A barrel made by a map, and the map that undoes it.");
    show_lens(photo, page);
}
