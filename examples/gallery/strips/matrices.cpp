// Small matrices; LAPACK.
#include <MKLWrapper.h>
#include <MatrixWrapper.h>

#include <algorithm>
#include <cmath>

#include "strips.h"

using M = MatrixWrapper;

namespace {

constexpr double kPi = 3.14159265358979323846;

// The matrix of the cosine transform of eight values.
std::vector<float> cosine_transform()
{
    std::vector<float> c;
    for (int k = 0; k < 8; ++k) {
        for (int i = 0; i < 8; ++i)
            c.push_back(static_cast<float>(std::sqrt(k == 0 ? 0.125 : 0.25) * std::cos((2 * i + 1) * k * kPi / 16)));
    }
    return c;
}

// Blocks of 8 x 8 pixels through the transform, of which the coefficients below a diagonal are left out, and back.
FloatPicture few_coefficients(const FloatPicture& image, int diagonals)
{
    const std::vector<float> c = cosine_transform();
    FloatPicture out(image.width, image.height, 1);
    float half[64], whole[64];
    for (int y = 0; y + 8 <= image.height; y += 8) {
        for (int x = 0; x + 8 <= image.width; x += 8) {
            ImageProcessingWrapper::Mul_mm_32f(c.data(), 32, 4, 8, 8, image.at(x, y), image.step, 4, 8, 8, half, 32, 4);
            // A transposed matrix is one whose strides are exchanged.
            ImageProcessingWrapper::Mul_mm_32f(half, 32, 4, 8, 8, c.data(), 4, 32, 8, 8, whole, 32, 4);
            for (int k = 0; k < 64; ++k) {
                if (k / 8 + k % 8 >= diagonals) whole[k] = 0;
            }
            ImageProcessingWrapper::Mul_mm_32f(c.data(), 4, 32, 8, 8, whole, 32, 4, 8, 8, half, 32, 4);
            ImageProcessingWrapper::Mul_mm_32f(half, 32, 4, 8, 8, c.data(), 32, 4, 8, 8, out.at(x, y), out.step, 4);
        }
    }
    return out;
}

// The 64 products of two cosines, as an array of matrices that is laid out row by row.
Picture basis()
{
    const std::vector<float> c = cosine_transform();
    constexpr int cell = 9;
    FloatPicture sheet(8 * cell, 8 * cell, 1);
    for (int v = 0; v < 8; ++v) {
        float row[8 * 64];
        for (int u = 0; u < 8; ++u)
            ImageProcessingWrapper::Mul_mm_32f(&c[static_cast<std::size_t>(8 * v)], 4, 4, 1, 8,
                                               &c[static_cast<std::size_t>(8 * u)], 4, 4, 8, 1, row + 64 * u, 32, 4);
        ImageProcessingWrapper::Copy_ma_32f_SS(row, 256, 32, 4, sheet.at(0, v * cell), 4 * cell, sheet.step, 4, 8, 8,
                                               8);
    }
    return enlarged(to_picture(sheet, -0.25f, 0.25f), 6);
}

}  // namespace

void show_small_matrices(const Pictures& pictures, Page& page)
{
    page.family(
        "ImageProcessingWrapper", "Small matrices",
        "Two of the operations on matrices, on pieces of images: each is a matrix whose rows lie a step apart.");
    page.show(basis(),
              "The 64 patterns of the cosine transform: products of a column and a row, laid out by one copy for "
              "each row",
              {"W::Copy_ma_32f_SS(row, 256, 32, 4, sheet, 36, step, 4, 8, 8, 8)"});
    const FloatPicture whole = brightness(pictures.cat), image = part(whole, 0, 0, whole.width & ~7, whole.height & ~7);
    page.show(to_picture(few_coefficients(image, 3)), "The cat from 6 of the 64 coefficients of each block",
              {"W::Mul_mm_32f(c, 32, 4, 8, 8, block, step, 4, 8, 8, half, 32, 4)"});
}

namespace {

void show_sums(const FloatPicture& a, const FloatPicture& b, Page& page)
{
    page.family("MatrixWrapper", "Sums and products with a constant", "Matrices of any strides, element by element.");
    const FloatPicture difference(a.width, a.height, 1);
    SHOW(page, to_picture(difference, -120, 120),
         "The difference of two square matrices, a picture and its mirror image about the diagonal: the same "
         "memory "
         "with its strides exchanged",
         M::Sub_mm_32f(a.data(), a.step, 4, b.data(), 4, b.step, difference.data(), difference.step, 4, a.width,
                       a.height));
}

// A torus of points, turned.
void show_products(Page& page)
{
    page.family("MatrixWrapper", "Products", "Matrices, vectors and transposed ones.");
    std::vector<float> points, turned;
    for (int i = 0; i < 60; ++i) {
        for (int j = 0; j < 24; ++j) {
            const double u = 2 * kPi * i / 60, v = 2 * kPi * j / 24, r = 2 + 0.8 * std::cos(v);
            for (const double c : {r * std::cos(u), r * std::sin(u), 0.8 * std::sin(v)})
                points.push_back(static_cast<float>(c));
        }
    }
    turned.resize(points.size());
    const int n = static_cast<int>(points.size() / 3);
    const float c = 0.45f, s = 0.893f;  // about the first axis
    const float turn[9] = {1, 0, 0, 0, c, -s, 0, s, c};
    Run run{"M::Mul_mm_32f(turn, 12, 4, 3, 3, points.data(), 4, 12, n, 3, turned.data(), 4, 12)"};
    run.microseconds = best_microseconds(
        [&] { return M::Mul_mm_32f(turn, 12, 4, 3, 3, points.data(), 4, 12, n, 3, turned.data(), 4, 12); }, run.ok);
    std::vector<double> xs, ys;
    for (std::size_t i = 0; i < turned.size(); i += 3) xs.push_back(turned[i]), ys.push_back(turned[i + 1]);
    page.show(Plot("x", "y", -3.4, 3.4, -2, 2).points(xs, ys, "#3b76a8"),
              "A torus of 1440 points, turned by a 3 x 3 matrix: the product with a matrix of 3 x 1440", run);
}

void show_matrix_transposition(const FloatPicture& a, Page& page)
{
    page.family("MatrixWrapper", "Transposition", "Rows become columns, in any strides.");
    const FloatPicture turned(a.height, a.width, 1);
    SHOW(page, to_picture(turned), "A picture as a matrix, transposed",
         M::Transpose_m_32f(a.data(), a.step, 4, a.width, a.height, turned.data(), turned.step, 4));
}

// Normal equations of a cubic through noisy points.
void show_fit(Page& page)
{
    page.family("MatrixWrapper", "Elimination", "Decomposition, solution, inverse.");
    const int points = 120, n = 4;
    float normal[16] = {}, right[4] = {}, lu[16], x[4];
    int index[4];
    std::vector<double> ts, data, fitted;
    unsigned state = 1;
    for (int i = 0; i < points; ++i) {
        const double t = 2.0 * i / (points - 1) - 1;
        state = state * 1664525u + 1013904223u;
        ts.push_back(t);
        data.push_back(3 * t * t * t - 2 * t + 0.3 + (static_cast<double>(state >> 8) / (1 << 24) - 0.5));
        double power[4] = {1, t, t * t, t * t * t};
        for (int r = 0; r < n; ++r) {
            right[r] += static_cast<float>(power[r] * data.back());
            for (int c = 0; c < n; ++c) normal[4 * r + c] += static_cast<float>(power[r] * power[c]);
        }
    }
    Run run{
        "M::LUDecomp_m_32f(normal, 16, 4, index, lu, 16, 4, n) && "
        "M::LUBackSubst_mv_32f(lu, 16, 4, index, right, 4, x, 4, n)"};
    run.microseconds = best_microseconds(
        [&] {
            return M::LUDecomp_m_32f(normal, 16, 4, index, lu, 16, 4, n) &&
                   M::LUBackSubst_mv_32f(lu, 16, 4, index, right, 4, x, 4, n);
        },
        run.ok);
    for (const double t : ts) fitted.push_back(x[0] + t * (x[1] + t * (x[2] + t * x[3])));
    page.show(Plot("t", "value", -1, 1, -2, 2.5)
                  .names_left()
                  .points(ts, data, "#8fa9c0", "120 noisy values")
                  .curve(ts, fitted, "#c25b4e", "the cubic that fits them best"),
              "Four equations for the coefficients of a cubic", run);
}

void show_arrays(Page& page)
{
    page.family("MatrixWrapper", "Arrays of matrices", "Many matrices of one size, at a fixed distance.");
    const FloatPicture sheet(64, 8, 1);
    SHOW(page, enlarged(to_picture(sheet, 0, 1), 8), "Eight matrices of 8 x 8, made identities by one call",
         M::LoadIdentity_ma_32f(sheet.data(), 32, sheet.step, 4, 8, 8, 8));
}

// Column-major, as LAPACK has matrices: a picture's transpose is the same memory.
struct Decomposition {
    int m, n, k, info = 0;
    std::vector<float> a, s, u, vt;
    double microseconds = 0;

    explicit Decomposition(const FloatPicture& image)
        : m(image.height),
          n(image.width),
          k(std::min(m, n)),
          s(static_cast<std::size_t>(k)),
          u(static_cast<std::size_t>(m * k)),
          vt(static_cast<std::size_t>(k * n))
    {
        for (int x = 0; x < n; ++x) {
            for (int y = 0; y < m; ++y) a.push_back(*image.at(x, y));
        }
        char job = 'S';
        int lwork = -1;
        std::vector<float> work(1);
        for (int pass = 0; pass < 2; ++pass) {  // the first one asks for the size of the memory
            const auto start = std::chrono::steady_clock::now();
            MKLWrapper::Sgesvd(&job, &job, &m, &n, a.data(), &m, s.data(), u.data(), &m, vt.data(), &k, work.data(),
                               &lwork, &info);
            microseconds = std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
            lwork = static_cast<int>(work[0]);
            work.resize(static_cast<std::size_t>(lwork));
        }
    }
    // From the largest singular values alone.
    Picture sum(int kept) const
    {
        FloatPicture out(n, m, 1);
        std::vector<float> us(static_cast<std::size_t>(m * kept));
        for (int j = 0; j < kept; ++j) {
            for (int y = 0; y < m; ++y)
                us[static_cast<std::size_t>(y * kept + j)] =
                    u[static_cast<std::size_t>(j * m + y)] * s[static_cast<std::size_t>(j)];
        }
        M::Mul_mm_32f(us.data(), 4 * kept, 4, kept, m, vt.data(), 4, 4 * k, n, kept, out.data(), out.step, 4);
        return to_picture(out);
    }
};

void show_svd(const FloatPicture& image, Page& page)
{
    page.family("MKLWrapper", "Singular value decomposition", "A picture as a sum of products of a column and a row.");
    const Decomposition d(image);
    const Run run{"MKLWrapper::Sgesvd(...)", d.microseconds, d.info == 0};
    std::vector<double> sizes;
    for (const float s : d.s) sizes.push_back(std::log10(s > 0 ? s : 1e-3));
    page.show(Plot("number", "log10 of the singular value", 0, d.k, 0, 5).curve(sizes, "#3b76a8"),
              "The singular values of a picture of " + std::to_string(d.n) + " x " + std::to_string(d.m) + " pixels",
              run);
    for (const int kept : {5, 20, 60}) {
        if (kept < d.k)
            page.show(d.sum(kept),
                      "The picture from the " + std::to_string(kept) + " largest of " + std::to_string(d.k) +
                          " singular values",
                      run);
    }
}

// A hole in a picture, filled so that every pixel is the mean of its four neighbours: one equation a pixel.
void show_hole(const FloatPicture& image, Page& page)
{
    page.family("MKLWrapper", "Linear systems", "A decomposition once, solutions as often as one likes.");
    constexpr int side = 24, from = 20, n = side * side;
    const FloatPicture hole = part(image, 0, 0, 64, 64), filled = hole.copy();
    std::vector<float> a(static_cast<std::size_t>(n) * n), b(n);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const int row = y * side + x;
            *hole.at(from + x, from + y) = 255;
            a[static_cast<std::size_t>(row * n + row)] = 4;
            const int dx[] = {1, -1, 0, 0}, dy[] = {0, 0, 1, -1};
            for (int k = 0; k < 4; ++k) {
                const int u = x + dx[k], v = y + dy[k];
                if (u >= 0 && v >= 0 && u < side && v < side)
                    a[static_cast<std::size_t>((v * side + u) * n + row)] = -1;
                else
                    b[static_cast<std::size_t>(row)] += *filled.at(from + u, from + v);
            }
        }
    }
    int size = n, one = 1, info = 0;
    std::vector<int> pivots(n);
    char trans = 'N';
    Run run{
        "MKLWrapper::Sgetrf(&n, &n, a, &n, pivots, &info); MKLWrapper::Sgetrs(&trans, &n, &one, a, &n, pivots, b, &n, "
        "&info)"};
    const auto start = std::chrono::steady_clock::now();
    MKLWrapper::Sgetrf(&size, &size, a.data(), &size, pivots.data(), &info);
    MKLWrapper::Sgetrs(&trans, &size, &one, a.data(), &size, pivots.data(), b.data(), &size, &info);
    run.microseconds = std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
    run.ok = info == 0;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) *filled.at(from + x, from + y) = b[static_cast<std::size_t>(y * side + x)];
    }
    page.show(
        enlarged(beside(to_picture(hole), to_picture(filled)), 5),
        "A hole of 24 x 24 pixels, and filled from its edge: 576 equations, each pixel the mean of its neighbours",
        run);
}

}  // namespace

void show_matrices(const Pictures& pictures, Page& page)
{
    const FloatPicture image = brightness(pictures.astronaut);
    const int side = std::min({256, image.width, image.height});
    const FloatPicture square = part(image, std::min(64, image.width - side), 0, side, side);
    show_sums(square, square, page);
    show_products(page);
    show_matrix_transposition(part(image, 0, 0, std::min(320, image.width), std::min(256, image.height)), page);
    show_fit(page);
    show_arrays(page);
}

void show_lapack(const Pictures& pictures, Page& page)
{
    const FloatPicture coins = brightness(pictures.coins), sky = brightness(pictures.retina);
    show_svd(part(coins, 0, 0, std::min(300, coins.width), std::min(240, coins.height)), page);
    show_hole(part(sky, sky.width / 2, sky.height / 2, 64, 64), page);
}
