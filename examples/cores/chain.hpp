// A chain of six steps over a grey scan, as examples/cluster has it in Python: less noise, specks closed, smoothed in
// floats, sharpened. It is the same for all of an image and for rows of it.
#include <orvane/orvane.hpp>
#include <orvane/orvane_tiles.hpp>

using grey = orvane::view<unsigned char, 1>;
using const_grey = orvane::view<const unsigned char, 1>;

// The steps one after the other; their halos added: the pixels round a part that its result depends on.
inline constexpr orvane::rule steps =
    orvane::chain(orvane::rules::lowpass(orvane::mask::size5x5), orvane::rules::dilate, orvane::rules::erode,
                  orvane::rules::convert, orvane::rules::gauss(9), orvane::rules::convert,
                  orvane::rules::convolve(3, 3, 1, 1));
inline constexpr orvane::halo around = steps.around;

// With memory for what lies between the steps.
inline void restore(const_grey paper, grey a, grey b, orvane::view<float, 1> f, orvane::view<float, 1> smooth,
                    grey result)
{
    orvane::lowpass(paper, a, orvane::mask::size5x5, orvane::edge::replicate).check();
    orvane::dilate(a, b).check();
    orvane::erode(b, a).check();
    orvane::convert(a, f).check();
    orvane::gauss(f, smooth, 9, 2.f).check();
    orvane::convert(smooth, a).check();
    const int sharper[9] = {0, -1, 0, -1, 5, -1, 0, -1, 0};
    orvane::convolve(a, result, sharper, 3, 3, 1, 1, 1, orvane::edge::replicate).check();
}

inline void restore(const_grey paper, grey result)
{
    orvane::image<unsigned char, 1> a(paper.width(), paper.height()), b(paper.width(), paper.height());
    orvane::image<float, 1> f(paper.width(), paper.height()), smooth(paper.width(), paper.height());
    restore(paper, a, b, f, smooth, result);
}

// The same in bands of 128 rows, whose intermediate images stay in the cache.
template <class Executor>
void restore_in_bands(const Executor& executor, const_grey paper, grey result)
{
    orvane::for_each_band(executor, paper.height(), 128, [&](const orvane::band& band) {
        const orvane::rows_read read = band.reading(around);
        orvane::image<unsigned char, 1> made(paper.width(), read.count);
        restore(read.of(paper), made);
        orvane::copy(band.inside(read).of(made), band.of(result)).check();
    });
}
