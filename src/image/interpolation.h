// What the families that interpolate share: rectangles and the codes of interpolations.
#pragma once

namespace orv {

// In pixels, relative to the first pixel of an image.
struct Rectangle {
    int x, y, width, height;
    int left = 0, top = 0;  // of destinations: the pixel that its memory begins with
};

constexpr int kNearest = 1;
constexpr int kLinear = 2;
constexpr int kCubic = 4;         // cubic convolution with a = -1/2, the same as Catmull-Rom
constexpr int kBSpline = 5;       // B = 1, C = 0
constexpr int kCatmullRom = 6;    // B = 0, C = 1/2
constexpr int kCubicB05C03 = 7;   // B = 1/2, C = 3/10
constexpr int kSupersampling = 8; // area average
constexpr int kLanczos = 16;      // three lobes

}  // namespace orv
