#include "plot.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr double kWidth = 480, kHeight = 330, kLeft = 70, kRight = 464, kTop = 14, kBottom = 272;

std::string number(double v)
{
    char text[32];
    std::snprintf(text, sizeof(text), "%.6g", std::fabs(v) < 1e-12 ? 0 : v);
    return text;
}

std::string text_at(double x, double y, const char* anchor, const std::string& text, const std::string& more = "")
{
    return "<text x=\"" + number(x) + "\" y=\"" + number(y) + "\" text-anchor=\"" + anchor + "\"" + more + ">" +
           escaped(text) + "</text>\n";
}

// 1, 2 or 5 times a power of ten, so that about `count` of them make `range`.
double tick(double range, int count)
{
    const double raw = range / count, power = std::pow(10, std::floor(std::log10(raw)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (raw <= factor * power) return factor * power;
    }
    return 10 * power;
}

// Pictures within pictures are not fetched, so they are in the drawing itself.
std::string base64(const std::string& bytes)
{
    static const char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        unsigned word = 0;
        for (std::size_t k = i; k < i + 3; ++k)
            word = word << 8 | (k < bytes.size() ? static_cast<unsigned char>(bytes[k]) : 0u);
        for (std::size_t k = 0; k < 4; ++k) out += i + k > bytes.size() ? '=' : digits[word >> (18 - 6 * k) & 63];
    }
    return out;
}

}  // namespace

std::string escaped(const std::string& text)
{
    std::string out;
    for (const char c : text) {
        if (c == '<')
            out += "&lt;";
        else if (c == '>')
            out += "&gt;";
        else if (c == '&')
            out += "&amp;";
        else if (c == '"')
            out += "&quot;";
        else
            out += c;
    }
    return out;
}

Plot::Plot(const std::string& x_label, const std::string& y_label, double x_from, double x_to, double y_from,
           double y_to)
    : labels_{x_label, y_label}, from_{x_from, y_from}, to_{x_to, y_to}
{
}

double Plot::at_x(double x) const { return kLeft + (kRight - kLeft) * (x - from_[0]) / (to_[0] - from_[0]); }

double Plot::at_y(double y) const
{
    const double inside = std::clamp((y - from_[1]) / (to_[1] - from_[1]), 0.0, 1.0);
    return kBottom - (kBottom - kTop) * inside;
}

void Plot::name(const std::string& text, const std::string& colour)
{
    if (text.empty()) return;
    const double y = kTop + 20 + 20 * named_++, x = names_left_ ? kLeft + 6 : kRight - 18;
    names_ += "<rect x=\"" + number(x) + "\" y=\"" + number(y - 11) + "\" width=\"12\" height=\"12\" fill=\"" + colour +
              "\"/>\n" +
              text_at(names_left_ ? x + 18 : x - 6, y, names_left_ ? "start" : "end", text,
                      " stroke=\"#fff\" stroke-width=\"4\" paint-order=\"stroke\"");
}

Plot& Plot::names_left()
{
    names_left_ = true;
    return *this;
}

Plot& Plot::curve(const std::vector<double>& values, const std::string& colour, const std::string& title)
{
    std::vector<double> xs;
    for (std::size_t i = 0; i < values.size(); ++i)
        xs.push_back(from_[0] + (to_[0] - from_[0]) * static_cast<double>(i) / static_cast<double>(values.size() - 1));
    return curve(xs, values, colour, title);
}

Plot& Plot::curve(const std::vector<double>& xs, const std::vector<double>& ys, const std::string& colour,
                  const std::string& title)
{
    body_ +=
        "<polyline fill=\"none\" stroke-width=\"1.6\" stroke-linejoin=\"round\" stroke=\"" + colour + "\" points=\"";
    for (std::size_t i = 0; i < xs.size(); ++i) body_ += number(at_x(xs[i])) + "," + number(at_y(ys[i])) + " ";
    body_ += "\"/>\n";
    name(title, colour);
    return *this;
}

Plot& Plot::points(const std::vector<double>& xs, const std::vector<double>& ys, const std::string& colour,
                   const std::string& title)
{
    for (std::size_t i = 0; i < xs.size(); ++i)
        body_ += "<circle r=\"2.4\" cx=\"" + number(at_x(xs[i])) + "\" cy=\"" + number(at_y(ys[i])) + "\" fill=\"" +
                 colour + "\"/>\n";
    name(title, colour);
    return *this;
}

Plot& Plot::columns(const std::vector<double>& values, const std::string& colour, const std::string& title)
{
    const double width = (kRight - kLeft) / static_cast<double>(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double top = at_y(values[i]);
        body_ += "<rect x=\"" + number(kLeft + width * static_cast<double>(i)) + "\" y=\"" + number(top) +
                 "\" width=\"" + number(width + 0.2) + "\" height=\"" + number(kBottom - top) + "\" fill=\"" + colour +
                 "\"/>\n";
    }
    name(title, colour);
    return *this;
}

Plot& Plot::picture(const std::string& png)
{
    body_ += "<image x=\"" + number(kLeft) + "\" y=\"" + number(kTop) + "\" width=\"" + number(kRight - kLeft) +
             "\" height=\"" + number(kBottom - kTop) + "\" preserveAspectRatio=\"none\" href=\"data:image/png;base64," +
             base64(png) + "\"/>\n";
    return *this;
}

std::string Plot::axis(bool horizontal) const
{
    const int k = horizontal ? 0 : 1;
    const double step = tick(to_[k] - from_[k], 6);
    std::string out;
    for (double v = std::ceil(from_[k] / step - 1e-9) * step; v <= to_[k] + 1e-9 * step; v += step) {
        const double at = horizontal ? at_x(v) : at_y(v);
        const std::string a = number(at);
        out += horizontal
                   ? "<line x1=\"" + a + "\" x2=\"" + a + "\" y1=\"" + number(kTop) + "\" y2=\"" + number(kBottom)
                   : "<line y1=\"" + a + "\" y2=\"" + a + "\" x1=\"" + number(kLeft) + "\" x2=\"" + number(kRight);
        out += "\" stroke=\"#888\" stroke-opacity=\".25\"/>\n";
        out +=
            horizontal ? text_at(at, kBottom + 20, "middle", number(v)) : text_at(kLeft - 8, at + 5, "end", number(v));
    }
    return out;
}

std::string Plot::svg() const
{
    const std::string turned = " transform=\"rotate(-90 14 " + number((kTop + kBottom) / 2) + ")\"";
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + number(kWidth) + " " + number(kHeight) +
           "\" width=\"" + number(kWidth) + "\" height=\"" + number(kHeight) +
           "\" font-family=\"sans-serif\" font-size=\"15\" fill=\"#333\">\n<rect width=\"100%\" height=\"100%\" "
           "fill=\"#fff\"/>\n" +
           body_ + axis(true) + axis(false) + text_at((kLeft + kRight) / 2, kBottom + 46, "middle", labels_[0]) +
           text_at(14, (kTop + kBottom) / 2, "middle", labels_[1], turned) + names_ + "</svg>\n";
}
