// Sums, extremes, histograms.
#include "plot.h"
#include "strips.h"

using W = ImageProcessingWrapper;

void show_statistics(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height;
    const Picture grey = to_picture(brightness(photo));
    double mean = 0, deviation = 0;
    unsigned char darkest = 0, brightest = 0;
    int column = 0, row = 0;
    W::Mean_StdDev_8u_C1R(grey.data(), grey.step, width, height, &mean, &deviation);
    W::MinMax_8u_C1(grey.data(), grey.step, width, height, &darkest, &brightest);
    W::MaxIndx_8u_C1R(grey.data(), grey.step, width, height, &brightest, &column, &row);
    page.strip("Statistics", "Brightness of the photograph: mean " + std::to_string(mean) + ", deviation " +
                                 std::to_string(deviation) + ", from " + std::to_string(darkest) + " to " +
                                 std::to_string(brightest) + ", first met at column " + std::to_string(column) +
                                 ", row " + std::to_string(row) + ".");

    static int histogram[256], levels[257];
    Picture plot = sheet(640, 360);
    W::HistogramEven_8u_C1(grey.data(), grey.step, width, height, histogram, levels, 257, 0, 256);
    draw_columns(plot, std::vector<double>(histogram, histogram + 256), 70, 110, 160);
    SHOW(page, plot, W::HistogramEven_8u_C1(grey.data(), grey.step, width, height, histogram, levels, 257, 0, 256));
}
