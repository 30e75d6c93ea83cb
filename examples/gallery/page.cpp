#include "page.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <fstream>

namespace {

constexpr int kThumbnail = 480;

const char kHead[] = R"(<!doctype html>
<html lang="en"><head><meta charset="utf-8"><title>Orvane primitives: gallery</title>
<meta name="viewport" content="width=device-width, initial-scale=1">
<style>
:root { color-scheme: light dark; --back: #fafafa; --card: #fff; --ink: #222; --soft: #666; --line: #ddd; --link: #1d5f99; }
@media (prefers-color-scheme: dark) { :root { --back: #17191c; --card: #212429; --ink: #ddd; --soft: #999; --line: #383c42; --link: #7db8e8; } }
body { font: 16px/1.55 system-ui, sans-serif; margin: 2rem auto; max-width: 1280px; padding: 0 1rem; color: var(--ink); background: var(--back); }
h1 { font-weight: 600; margin-bottom: .2rem; }
h2 { font-weight: 600; margin: 2.5rem 0 0; border-top: 1px solid var(--line); padding-top: 1.2rem; font-size: 1.35rem; }
h2 small { font-weight: 400; font-size: .85rem; padding-left: .6rem; }
p { max-width: 50rem; }
a { color: var(--link); }
nav { columns: 4 9rem; font-size: .9rem; border: 1px solid var(--line); border-radius: 8px; padding: .8rem 1rem; background: var(--card); }
nav b { display: block; margin-top: .4rem; font-size: .8rem; overflow-wrap: anywhere; }
nav a { display: block; text-decoration: none; padding: .1rem 0; }
.strip { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(280px, 100%), 1fr)); gap: 1.2rem; margin-top: 1rem; align-items: start; }
figure { margin: 0; background: var(--card); border: 1px solid var(--line); border-radius: 8px; overflow: hidden; }
img { width: 100%; height: auto; display: block; }
figcaption { padding: .6rem .8rem; font-size: .9rem; }
summary, .time { color: var(--soft); font-size: .8rem; }
summary { cursor: pointer; }
code { font-size: .78rem; overflow-wrap: anywhere; }
.refused { color: #c33; }
table { border-collapse: collapse; font-size: .85rem; margin: 1rem 0; }
.wide { overflow-x: auto; }
td, th { border: 1px solid var(--line); padding: .25rem .6rem; text-align: left; }
td { font-family: ui-monospace, monospace; }
footer { margin-top: 3rem; border-top: 1px solid var(--line); padding-top: 1rem; font-size: .85rem; color: var(--soft); }
</style></head><body>
)";

std::string time_text(double microseconds)
{
    char text[32];
    if (microseconds < 1) std::snprintf(text, sizeof(text), "%.0f ns", std::max(1.0, 1000 * microseconds));
    else if (microseconds < 10) std::snprintf(text, sizeof(text), "%.1f µs", microseconds);
    else if (microseconds < 1000) std::snprintf(text, sizeof(text), "%.0f µs", microseconds);
    else std::snprintf(text, sizeof(text), "%.1f ms", microseconds / 1000);
    return text;
}

std::string quoted(const std::string& text)
{
    std::string out = "\"";
    for (const char c : text) out += c == '"' || c == '\\' ? std::string("\\") + c : c == '\n' ? " " : std::string(1, c);
    return out + "\"";
}

// A call as the text of the program has it, with the class in the place of its short name there.
std::string with_class(std::string call, const std::string& owner)
{
    for (const char* alias : {"W::", "M::"}) {
        for (std::size_t at = call.find(alias); at != std::string::npos; at = call.find(alias, at + owner.size())) {
            if (at == 0 || (!std::isalnum(static_cast<unsigned char>(call[at - 1])))) call.replace(at, 1, owner);
        }
    }
    return call;
}

// Four in a row, each cut to three by two.
Picture strip(const std::vector<Picture>& pictures)
{
    constexpr int kWidth = 300, kHeight = 200, kGap = 6, kColumns = 4;
    const int rows = (static_cast<int>(pictures.size()) + kColumns - 1) / kColumns;
    Picture all(kColumns * (kWidth + kGap) - kGap, rows * (kHeight + kGap) - kGap, 3);
    ImageProcessingWrapper::Set_8u_C1(255, all.data(), all.step, 3 * all.width, all.height);
    int k = 0;
    for (const Picture& picture : pictures) {
        const int wide = std::min(picture.width, picture.height * kWidth / kHeight), high = wide * kHeight / kWidth;
        const Picture cut = part(picture, (picture.width - wide) / 2, (picture.height - high) / 2, wide, high);
        const Picture from = cut.channels == 3 ? cut : colours_of(cut);
        unsigned char* const to = all.at(k % kColumns * (kWidth + kGap), k / kColumns * (kHeight + kGap));
        ImageProcessingWrapper::Resize_8u_C3(from.data(), from.step, wide, high, to, all.step, kWidth, kHeight, 1, 0, 0,
                                             wide < kWidth);
        ++k;
    }
    return all;
}

}  // namespace

std::string digest(const void* data, std::size_t size)
{
    // FNV-1a.
    unsigned long long hash = 0xCBF29CE484222325;
    for (std::size_t i = 0; i < size; ++i)
        hash = (hash ^ static_cast<const unsigned char*>(data)[i]) * 0x100000001B3;
    char text[20];
    std::snprintf(text, sizeof(text), "%016llx", hash);
    return text;
}

Page::Page(const std::string& folder) : folder_(folder) {}

void Page::begin(const std::string& title, const std::string& text, const std::string& link)
{
    const std::string id = "s" + std::to_string(++sections_);
    if (sections_ > 1) body_ += "</div>\n";
    contents_ += "<a href=\"#" + id + "\">" + escaped(title) + "</a>\n";
    body_ += "<h2 id=\"" + id + "\">" + escaped(title) + link + "</h2>\n<p>" + escaped(text) +
             "</p>\n<div class=\"strip\">\n";
}

void Page::family(const std::string& owner, const std::string& title, const std::string& text)
{
    if (owner != owner_) contents_ += "<b>" + owner + "</b>\n";
    owner_ = owner;
    title_ = title;
    // The site puts the family's page in the place of the header.
    begin(title, text, "<small><a data-family=\"" + owner + "/" + title + "\" href=\"../prefix/include/orvane/" + owner +
                           ".h\">" + owner + "</a></small>");
}

void Page::section(const std::string& title, const std::string& text)
{
    title_ = "";
    begin(title, text, "");
}

void Page::block(const std::string& html) { body_ += "</div>\n" + html + "\n<div class=\"strip\">\n"; }

bool Page::is_new(const std::string& bytes) { return seen_.insert(digest(bytes.data(), bytes.size())).second; }

void Page::show(const Picture& picture, const std::string& caption, const Run& run)
{
    const std::string bytes = png_of(picture);
    if (!is_new(bytes)) return;
    const std::string number = std::to_string(++pictures_), file = number + ".png";
    std::ofstream(folder_ + "/" + file, std::ios::binary) << bytes;
    std::string thumbnail = file;
    if (picture.width > kThumbnail || bytes.size() > 60000) {
        thumbnail = number + ".jpg";
        write_jpeg(reduced(picture, kThumbnail), folder_ + "/" + thumbnail);
    }
    last_ = picture.copy();  // its buffer may become the next picture
    figure(file, thumbnail, caption, run);
}

void Page::show(const Plot& plot, const std::string& caption, const Run& run)
{
    const std::string text = plot.svg();
    if (!is_new(text)) return;
    const std::string file = std::to_string(++pictures_) + ".svg";
    std::ofstream(folder_ + "/" + file) << text;
    figure(file, file, caption, run);
}

void Page::figure(const std::string& file, const std::string& thumbnail, const std::string& caption, const Run& run)
{
    const std::string alt = (title_.empty() ? "" : title_ + ": ") + caption;
    body_ += "<figure><a href=\"" + file + "\"><img loading=\"lazy\" src=\"" + thumbnail + "\" alt=\"" + escaped(alt) +
             "\"></a><figcaption>" + escaped(caption);
    if (!run.ok) body_ += " <span class=\"refused\">returned false</span>";
    const std::string call = with_class(run.call, owner_);
    if (!call.empty()) {
        body_ += "<details><summary>the call";
        if (run.microseconds > 0) body_ += ", " + time_text(run.microseconds);
        body_ += "</summary><code>" + escaped(call) + "</code></details>";
    }
    body_ += "</figcaption></figure>\n";
    json_ += (json_.empty() ? "" : ",\n") + ("{\"file\": " + quoted(file)) + ", \"thumbnail\": " + quoted(thumbnail) +
             ", \"class\": " + quoted(title_.empty() ? "" : owner_) + ", \"family\": " + quoted(title_) + ", \"caption\": " +
             quoted(caption) + ", \"alt\": " + quoted(alt) + ", \"call\": " + quoted(call) + "}";
}

void Page::feature() { featured_.push_back(last_); }

void Page::write() const
{
    const std::string head =
        "<h1>Orvane primitives</h1>\n<p>A section for each family of the library's operations, with what they make of "
        "photographs, sounds and numbers. Every picture was computed by the library when this page was made. Times are "
        "the shortest of several calls, on one core. A click shows a picture in full size.</p>\n<nav>\n";
    std::ofstream(folder_ + "/index.html") << kHead << head << contents_ << "</nav>\n" << body_ << "</div>\n"
                                           << "</body></html>\n";
    std::ofstream(folder_ + "/pictures.json") << "[\n" << json_ << "\n]\n";
    if (!featured_.empty()) write_jpeg(strip(featured_), folder_ + "/strip.jpg");
}
