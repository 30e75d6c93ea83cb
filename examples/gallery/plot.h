// Plots with axes: drawings in SVG.
#pragma once

#include <string>
#include <vector>

class Plot {
public:
    // Labels say what the axes show and in which unit.
    Plot(const std::string& x_label, const std::string& y_label, double x_from, double x_to, double y_from,
         double y_to);

    Plot& names_left();  // the names of what follows stand on the left
    // Values at equal distances from the left end of the plot to its right end.
    Plot& curve(const std::vector<double>& values, const std::string& colour, const std::string& name = "");
    Plot& curve(const std::vector<double>& xs, const std::vector<double>& ys, const std::string& colour,
                const std::string& name = "");
    Plot& points(const std::vector<double>& xs, const std::vector<double>& ys, const std::string& colour,
                 const std::string& name = "");
    // Columns beside each other, from the lower end of the plot.
    Plot& columns(const std::vector<double>& values, const std::string& colour, const std::string& name = "");
    // A raster picture, the bytes of a PNG file, that fills the plot.
    Plot& picture(const std::string& png);

    std::string svg() const;

private:
    double at_x(double x) const;
    double at_y(double y) const;
    void name(const std::string& text, const std::string& colour);
    std::string axis(bool horizontal) const;

    std::string labels_[2], body_, names_;
    double from_[2], to_[2];
    int named_ = 0;
    bool names_left_ = false;
};

// A text for XML.
std::string escaped(const std::string& text);
