#include "page.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace {

std::string escaped(const std::string& text)
{
    std::string out;
    for (const char c : text) {
        if (c == '<') out += "&lt;";
        else if (c == '>') out += "&gt;";
        else if (c == '&') out += "&amp;";
        else out += c;
    }
    return out;
}

const char kHead[] = R"(<!doctype html>
<html lang="en"><head><meta charset="utf-8"><title>Orvane primitives: gallery</title>
<meta name="viewport" content="width=device-width, initial-scale=1">
<style>
body { font: 16px/1.5 system-ui, sans-serif; margin: 2rem auto; max-width: 1240px; padding: 0 1rem; color: #222; background: #fafafa; }
h1 { font-weight: 600; margin-bottom: 0; }
h2 { font-weight: 600; margin: 2.5rem 0 0; border-top: 1px solid #ddd; padding-top: 1.5rem; }
.strip { display: grid; grid-template-columns: repeat(auto-fill, minmax(280px, 1fr)); gap: 1.2rem; margin-top: 1rem; }
figure { margin: 0; background: #fff; border: 1px solid #e2e2e2; border-radius: 6px; overflow: hidden; }
img { width: 100%; display: block; }
figcaption { padding: .6rem .8rem; font-size: .8rem; }
code { font-size: .78rem; overflow-wrap: anywhere; color: #234; }
.time { color: #777; float: right; padding-left: .6rem; }
.refused { color: #b00; }
</style></head><body>
<h1>Orvane primitives</h1>
<p>Every picture was made by the call beneath it, on the photograph that comes first. Times are the shortest of five calls on one core.</p>
)";

}  // namespace

Page::Page(const std::string& folder) : folder_(folder), html_(kHead) {}

Page::~Page()
{
    if (pictures_ > 0) html_ += "</div>\n";
    html_ += "</body></html>\n";
    std::ofstream(folder_ + "/index.html") << html_;
}

void Page::strip(const std::string& title, const std::string& text)
{
    if (pictures_ > 0) html_ += "</div>\n";
    html_ += "<h2>" + escaped(title) + "</h2>\n<p>" + escaped(text) + "</p>\n<div class=\"strip\">\n";
}

void Page::show(const Picture& picture, const std::string& call, double microseconds, bool ok)
{
    const std::string file = std::to_string(++pictures_) + ".png";
    write_png(picture, folder_ + "/" + file);
    std::string time;
    if (microseconds > 0) {
        char text[32];
        std::snprintf(text, sizeof(text), "%.0f µs", microseconds);
        time = std::string("<span class=\"time\">") + text + "</span>";
    }
    html_ += "<figure><a href=\"" + file + "\"><img src=\"" + file + "\" alt=\"\"></a><figcaption>" + time + "<code>" +
             escaped(call) + "</code>" + (ok ? "" : " <span class=\"refused\">returned false</span>") +
             "</figcaption></figure>\n";
}
