// Lookup tables against OpenCV's, and against compiled loops where it has none.
#include <random>
#include <vector>

#include "ImageProcessingWrapper.h"
#include "image/colour/peers.h"

namespace {

using bench::compare;
using bench::mat;
using bench::picture;
using bench::Picture;
using W = ImageProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;

template <class T>
const T* noise_table(std::size_t n)
{
    static std::vector<T> table;
    std::mt19937 g(3);
    while (table.size() < n) table.push_back(static_cast<T>(g()));
    return table.data();
}

template <class S, class D>
void loop(const Picture& a, const Picture& d, const D* table, int side)
{
    for (int y = 0; y < side; ++y) {
        const S* const s = a->row<S>(y);
        D* const to = d->row<D>(y);
        for (int x = 0; x < side; ++x) to[x] = table[s[x]];
    }
}

template <class S, class D>
void add_table(const char* name, bool (*method)(const S*, int, const D*, D*, int, int, int), int opencv_type)
{
    const D* const table = noise_table<D>(65536);
    for (const int side : bench::kColourSides) {
        const Picture a = picture(side, sizeof(S)), d = picture(side, sizeof(D));
        const auto ours = [=] { method(a->as<S>(), a->step(), table, d->as<D>(), d->step(), side, side); };
        if (opencv_type >= 0) {
            const cv::Mat lut(1, 256, opencv_type, const_cast<D*>(table)), from = mat(a, CV_8UC1),
                                                                           to = mat(d, opencv_type);
            compare(name, side, a, d, ours, "opencv", [=]() mutable { cv::LUT(from, lut, to); });
        } else {
            compare(name, side, a, d, ours);
        }
        bench::add(name, bench::square(side), "loop", [=] { loop<S, D>(a, d, table, side); });
    }
}

void add_channels(const char* name, int channels, bool (*method)(const u8*, int, const u8* const*, u8*, int, int, int))
{
    const u8* const bytes = noise_table<u8>(65536);
    static const u8* const tables[4] = {bytes, bytes + 256, bytes + 512, bytes + 768};
    for (const int side : bench::kColourSides) {
        const Picture a = picture(side, channels), d = picture(side, channels);
        const int type = CV_MAKETYPE(CV_8U, channels);
        const cv::Mat lut(1, 256, type, const_cast<u8*>(bytes)), from = mat(a, type), to = mat(d, type);
        compare(
            name, side, a, d, [=] { method(a->as<u8>(), a->step(), tables, d->as<u8>(), d->step(), side, side); },
            "opencv", [=]() mutable { cv::LUT(from, lut, to); });
    }
}

const bool registered = [] {
    add_table("LUT_8u_C1", W::LUT_8u_C1, CV_8UC1);
    add_table("LUT_8u16u_C1", W::LUT_8u16u_C1, CV_16UC1);
    add_table("LUT_8u32f_C1", W::LUT_8u32f_C1, CV_32FC1);
    add_table("LUT_16u_C1", W::LUT_16u_C1, -1);
    add_table("LUT_16u8u_C1", W::LUT_16u8u_C1, -1);
    add_table("LUT_16u32f_C1", W::LUT_16u32f_C1, -1);
    add_channels("LUT_8u_C3", 3, W::LUT_8u_C3);
    add_channels("LUT_8u_C4", 4, W::LUT_8u_C4);
    for (const int side : bench::kColourSides) {
        const unsigned* const palette = noise_table<unsigned>(65536);
        const Picture a = picture(side, 2), d = picture(side, 4);
        const auto min_loop = [=] {
            for (int y = 0; y < side; ++y) {
                for (int x = 0; x < side; ++x) d->row<unsigned>(y)[x] = palette[std::min<int>(a->row<u16>(y)[x], 4095)];
            }
        };
        compare(
            "LUTPalette_16u32u_C1R", side, a, d,
            [=] {
                W::LUTPalette_16u32u_C1R(a->as<u16>(), a->step(), palette, 4096, d->as<unsigned>(), d->step(), side,
                                         side);
            },
            "loop", min_loop);
    }
    return true;
}();

}  // namespace
