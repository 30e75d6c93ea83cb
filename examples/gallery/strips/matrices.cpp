// Singular values of the photograph, and a polynomial through noisy points.
#include <MKLWrapper.h>
#include <MatrixWrapper.h>

#include <chrono>
#include <cmath>

#include "plot.h"
#include "strips.h"

namespace {

void show_svd(const Picture& photo, Page& page)
{
    // A quarter of the photograph in each direction, column-major as LAPACK wants it.
    const FloatPicture grey = brightness(photo);
    int m = photo.height / 4, n = photo.width / 4, info = 0, lwork = -1;
    const int k = m < n ? m : n;
    std::vector<float> a(static_cast<std::size_t>(m) * static_cast<std::size_t>(n)), s(static_cast<std::size_t>(k)),
        u(static_cast<std::size_t>(m) * static_cast<std::size_t>(k)),
        vt(static_cast<std::size_t>(k) * static_cast<std::size_t>(n)), work(1);
    for (int x = 0; x < n; ++x) {
        for (int y = 0; y < m; ++y)
            a[static_cast<std::size_t>(x * m + y)] = grey.data()[4 * y * (grey.step / 4) + 4 * x];
    }
    char job = 'S';
    int ldvt = k;
    MKLWrapper::Sgesvd(&job, &job, &m, &n, a.data(), &m, s.data(), u.data(), &m, vt.data(), &ldvt, work.data(), &lwork,
                       &info);
    lwork = static_cast<int>(work[0]);
    work.resize(static_cast<std::size_t>(lwork));
    const auto start = std::chrono::steady_clock::now();
    MKLWrapper::Sgesvd(&job, &job, &m, &n, a.data(), &m, s.data(), u.data(), &m, vt.data(), &ldvt, work.data(), &lwork,
                       &info);
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;

    for (const int kept : {5, 20, 50}) {
        if (kept > k) continue;
        FloatPicture sum(n, m, 1);
        std::vector<float> us(static_cast<std::size_t>(m * kept));
        for (int j = 0; j < kept; ++j) {
            for (int y = 0; y < m; ++y)
                us[static_cast<std::size_t>(y * kept + j)] =
                    u[static_cast<std::size_t>(j * m + y)] * s[static_cast<std::size_t>(j)];
        }
        // u s has its rows packed, vt its columns: strides say so.
        const bool ok = MatrixWrapper::Mul_mm_32f(us.data(), 4 * kept, 4, kept, m, vt.data(), 4, 4 * k, n, kept,
                                                  sum.data(), sum.step, 4);
        page.show(to_picture(sum),
                  "MKLWrapper::Sgesvd(...); the " + std::to_string(kept) + " largest of " + std::to_string(k) +
                      " singular values, summed by MatrixWrapper::Mul_mm_32f",
                  time.count(), ok && info == 0);
    }
}

void show_fit(Page& page)
{
    // Normal equations of a cubic through noisy points, solved by LU decomposition.
    const int points = 200, n = 4;
    float normal[16] = {}, right[4] = {}, lu[16], x[4];
    int index[4];
    std::vector<double> data, fitted;
    unsigned state = 1;
    for (int i = 0; i < points; ++i) {
        const double t = 2.0 * i / points - 1;
        state = state * 1664525u + 1013904223u;
        data.push_back(3 * t * t * t - 2 * t + 0.3 + (static_cast<double>(state >> 8) / (1 << 24) - 0.5));
        double power[4] = {1, t, t * t, t * t * t};
        for (int r = 0; r < n; ++r) {
            right[r] += static_cast<float>(power[r] * data.back());
            for (int c = 0; c < n; ++c) normal[4 * r + c] += static_cast<float>(power[r] * power[c]);
        }
    }
    bool ok = false;
    const double time = best_microseconds(
        [&] {
            return MatrixWrapper::LUDecomp_m_32f(normal, 16, 4, index, lu, 16, 4, n) &&
                   MatrixWrapper::LUBackSubst_mv_32f(lu, 16, 4, index, right, 4, x, 4, n);
        },
        ok);
    for (int i = 0; i < points; ++i) {
        const double t = 2.0 * i / points - 1;
        fitted.push_back(x[0] + t * (x[1] + t * (x[2] + t * x[3])));
    }
    Picture plot = sheet(640, 360);
    draw_curve(plot, data, -2, 2.5, 190, 190, 200);
    draw_curve(plot, fitted, -2, 2.5, 160, 60, 40);
    page.show(plot,
              "MatrixWrapper::LUDecomp_m_32f(normal, 16, 4, index, lu, 16, 4, n) && "
              "MatrixWrapper::LUBackSubst_mv_32f(lu, 16, 4, index, right, 4, x, 4, n)",
              time, ok);
}

}  // namespace

void show_matrices(const Picture& photo, Page& page)
{
    page.strip("Matrices", "The photograph from a few of its singular values, and a cubic through noisy points.");
    show_svd(photo, page);
    show_fit(page);
}
