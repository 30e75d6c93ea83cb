// Sums, extremes, histograms; the processor's clock.
#include <algorithm>

#include "strips.h"

using W = ImageProcessingWrapper;

namespace {

void show_histogram(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height;
    const Picture one = grey(photo);
    double mean = 0, deviation = 0;
    unsigned char darkest = 0, brightest = 0;
    int column = 0, row = 0;
    W::Mean_StdDev_8u_C1R(one.data(), one.step, width, height, &mean, &deviation);
    W::MinMax_8u_C1(one.data(), one.step, width, height, &darkest, &brightest);
    W::MaxIndx_8u_C1R(one.data(), one.step, width, height, &brightest, &column, &row);
    char numbers[200];
    std::snprintf(
        numbers, sizeof(numbers),
        "Brightness of the photograph: mean %.2f, standard deviation %.2f, from %d to %d, which is first met in "
        "column %d of row %d.",
        mean, deviation, darkest, brightest, column, row);
    page.family("ImageProcessingWrapper", "Statistics", numbers);

    static int histogram[256], levels[257];
    const Run run{"W::HistogramEven_8u_C1(one.data(), one.step, width, height, histogram, levels, 257, 0, 256)", 0,
                  W::HistogramEven_8u_C1(one.data(), one.step, width, height, histogram, levels, 257, 0, 256)};
    const std::vector<double> counts(histogram, histogram + 256);
    const double most = *std::max_element(counts.begin(), counts.end());
    page.show(Plot("brightness", "pixels", 0, 256, 0, 1.05 * most)
                  .columns(counts, "#3b76a8")
                  .curve({mean, mean}, {0, 1.05 * most}, "#c25b4e", "mean"),
              "How many pixels have each brightness", run);
}

void show_clock(const Picture& photo, Page& page)
{
    page.family("ImageProcessingWrapper", "Time", "The processor's own counter, for ratios of times on one machine.");
    const Picture copy = photo.copy();
    std::vector<double> clocks;
    for (int i = 0; i < 200; ++i) {
        const unsigned long long start = W::GetCpuClocks();
        W::Copy_8u_C3(photo.data(), photo.step, copy.data(), copy.step, photo.width, photo.height);
        clocks.push_back(static_cast<double>(W::GetCpuClocks() - start) / 1000);
    }
    std::vector<double> sorted = clocks;
    std::sort(sorted.begin(), sorted.end());
    page.show(Plot("repetition", "thousand clocks", 0, 200, 0, 3 * sorted[100]).curve(clocks, "#3b76a8"),
              "Two hundred copies of the photograph, one after the other", {"W::GetCpuClocks()"});
}

}  // namespace

void show_statistics(const Pictures& pictures, Page& page)
{
    show_histogram(pictures.photo, page);
    show_clock(pictures.photo, page);
}
