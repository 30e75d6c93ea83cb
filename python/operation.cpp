#include "operation.h"

#include <pybind11/eval.h>

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace orvane_python {
namespace {

std::vector<std::string> words(const std::string& text, char separator)
{
    std::vector<std::string> all;
    std::istringstream stream(text);
    for (std::string word; std::getline(stream, word, separator);) {
        word.erase(0, word.find_first_not_of(' '));
        all.push_back(word);
    }
    return all;
}

bool alike_channels(const form& f)
{
    int channels = 0;
    for (const place& p : f.places) {
        if (p.is.kind != role::image && p.is.kind != role::vector) continue;
        if (channels != 0 && channels != p.is.channels) return false;
        channels = p.is.channels;
    }
    return true;
}

}  // namespace

operation::operation(const operation_row& row) : elementwise(row.elementwise), equal(row.equal)
{
    const std::string doc = row.doc;
    name = doc.substr(0, doc.find('('));
    read_signature(doc.substr(name.size() + 1, doc.find(")\n--") - name.size() - 1));
    out = find("out");
    dtype = find("dtype");
    shape = find("shape");
    for (int k = 0; k < row.count; ++k) {
        forms.push_back(read_form(row.first[k]));
    }
    for (const form& f : forms) {
        if (arguments.size() > kMost || f.places.size() > kMost) throw std::length_error(name);
    }
    flat = std::all_of(forms.begin(), forms.end(), alike_channels);
    measures = outputs == 0;
    stores = out >= 0 && arguments[out].required;
}

form operation::read_form(const overload& calls)
{
    form f{&calls, {}, std::vector<int>(arguments.size(), kNotTaken)};
    outputs = 0;
    for (const std::string& word : words(calls.names, ' ')) {
        const place p = read_word(word, calls.parameters[f.places.size()]);
        if (p.argument >= 0) f.place_of[p.argument] = int(f.places.size());
        if (p.sized_by >= 0 && p.side.empty()) f.place_of[p.sized_by] = kLength;
        f.in_place |= p.argument >= 0 && p.output >= 0;
        f.places.push_back(p);
    }
    return f;
}

void operation::read_signature(const std::string& signature)
{
    bool by_position = true;
    for (const std::string& text : words(signature, ',')) {
        if (text == "*") {
            by_position = false;
            continue;
        }
        const std::size_t equals = text.find('=');
        const bool required = equals == std::string::npos;
        const std::string key = text.substr(0, equals);
        arguments.push_back({key, py::reinterpret_steal<py::str>(PyUnicode_InternFromString(key.c_str())), required,
                             required ? py::none() : py::eval(text.substr(equals + 1))});
        positional += by_position;
    }
}

int operation::find(const std::string& key) const
{
    for (std::size_t k = 0; k < arguments.size(); ++k) {
        if (arguments[k].name == key) return static_cast<int>(k);
    }
    return -1;
}

place operation::read_word(const std::string& word, const parameter& is)
{
    place p{is, word.substr(0, word.find_first_of("=>[")), -1, -1, -1, 0, ""};
    const std::string rest = word.substr(p.layer.size());
    p.argument = find(p.layer);
    const bool is_output = rest == "=out" || rest.find(">out") != std::string::npos;
    if (is_output) p.output = outputs++;
    if (is_output && rest[0] == '>') return p;
    if (rest == "[]") {
        p.is.kind = role::array;
    } else if (!rest.empty() && rest[0] == '[') {
        p.is.kind = role::array;
        p.more = rest.find("+1") != std::string::npos ? 1 : 0;
        p.sized_by = find(rest.substr(1, rest.find_first_of("+]") - 1));
    } else if (const std::size_t dot = rest.find('.'); dot != std::string::npos) {
        p.sized_by = find(rest.substr(1, dot - 1));
        p.side = rest.substr(dot + 1);
    } else if (!rest.empty() && rest != "=out") {
        p.argument = find(rest.substr(1, rest.find('>') - 1));
    }
    return p;
}

}  // namespace orvane_python
