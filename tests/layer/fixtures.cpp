#include "layer/fixtures.h"

#include <algorithm>

namespace layer_test {

operand::operand(const char* n, int width, int height, int pixel, int element)
    : name(n),
      columns(width),
      rows(height),
      stride((width + 2 * kFrame) * pixel + 2 * element),
      pixel_bytes(pixel),
      element_bytes(element),
      bytes(static_cast<std::size_t>(stride) * static_cast<std::size_t>(height + 2 * kFrame))
{
    first = bytes.data() + kFrame * stride + kFrame * pixel;
}

namespace {

using Memory = std::vector<std::vector<unsigned char>>;

Memory remember(const std::vector<operand*>& operands)
{
    Memory all;
    for (const operand* o : operands) all.push_back(o->bytes);
    return all;
}

Memory remember(const std::vector<operand*>& operands, const std::vector<memory*>& results)
{
    Memory all = remember(operands);
    for (const memory* m : results) all.push_back(m->bytes());
    return all;
}

// Into the same memory: addresses stay.
void restore(const std::vector<operand*>& operands, const Memory& all)
{
    for (std::size_t k = 0; k < operands.size(); ++k)
        std::copy(all[k].begin(), all[k].end(), operands[k]->bytes.begin());
}

// Something that an operand says of itself, spoilt for the life of the object.
template <class T>
class spoilt
{
public:
    spoilt(T& value, T wrong) : value_(value), right_(value) { value = wrong; }
    ~spoilt() { value_ = right_; }

private:
    T& value_;
    T right_;
};

struct Refusal {
    const std::vector<operand*>& operands;
    const std::vector<memory*>& results;
    const layer_call& layer;

    void names(const char* name, const char* how) const
    {
        const Memory before = remember(operands, results);
        const orvane::status s = layer();
        EXPECT_STREQ(s.argument(), name) << how << ": " << s.message();
        EXPECT_EQ(s.result(), orvane::outcome::refused) << how << ": " << s.message();
        EXPECT_EQ(remember(operands, results), before) << how << " and written all the same";
    }
};

void call_wrongly(const std::vector<operand*>& operands, const std::vector<memory*>& results, const layer_call& layer,
                  bool equal_sizes)
{
    const Refusal refused{operands, results, layer};
    for (std::size_t k = 0; k < operands.size(); ++k) {
        operand& o = *operands[k];
        {
            const spoilt<unsigned char*> null(o.first, nullptr);
            refused.names(o.name, "null");
        }
        {
            const spoilt<int> empty(o.columns, 0);
            refused.names(o.name, "empty");
        }
        if (equal_sizes && operands.size() > 1) {
            const spoilt<int> smaller(o.columns, o.columns - 1);
            // Of two nobody can say which one is wrong: the first one's size counts.
            refused.names(operands.size() == 2 ? operands[1]->name : o.name, "another size");
        }
        if (!o.is_vector()) {
            const spoilt<std::ptrdiff_t> step(o.stride, o.columns * o.pixel_bytes - o.element_bytes);
            refused.names(o.name, "a short step");
        }
    }
}

void call_rightly(const std::vector<operand*>& operands, const std::vector<memory*>& results, const layer_call& layer,
                  const method_call& method)
{
    unsigned seed = 7;
    for (operand* o : operands) o->fill(++seed);
    const Memory before = remember(operands);
    const orvane::status s = layer();
    const Memory by_layer = remember(operands, results);
    restore(operands, before);
    EXPECT_EQ(static_cast<bool>(s), method()) << s.message();
    EXPECT_EQ(by_layer, remember(operands, results)) << "other bytes than the method's";
}

void call_in_parts(const std::vector<operand*>& operands, const layer_call& layer)
{
    const Memory before = remember(operands);
    (void)layer();
    const Memory whole = remember(operands);
    restore(operands, before);
    const int columns = operands[0]->columns;
    const int each = columns / 3 + 1;
    for (int x = 0; x < columns; x += each) {
        for (operand* o : operands) {
            o->first += x * o->pixel_bytes;
            o->columns = std::min(each, columns - x);
        }
        (void)layer();
        for (operand* o : operands) {
            o->first -= x * o->pixel_bytes;
            o->columns = columns;
        }
    }
    EXPECT_EQ(remember(operands), whole) << "parts differ from the whole";
}

void call_example(const std::vector<operand*>& operands, const std::vector<memory*>& results, const layer_call& layer,
                  const std::vector<expectation>& example)
{
    const auto values = [&](const std::string& name) -> const std::vector<double>* {
        for (const expectation& e : example) {
            if (e.name == name) return &e.values;
        }
        return nullptr;
    };
    for (operand* o : operands) {
        if (const auto* v = values(o->name)) o->set(*v);
    }
    const std::string last = operands.back()->name;
    if (results.empty() && values(last + "_after") == nullptr) operands.back()->fill(3);  // it is written only
    const orvane::status s = layer();
    EXPECT_TRUE(s) << s.message();
    for (const operand* o : operands) {
        const auto* after = values(std::string(o->name) + "_after");
        if (after == nullptr) after = values(o->name);
        if (after != nullptr) {
            EXPECT_TRUE(o->holds(*after)) << o->name << " is not what the example says";
        }
    }
    for (const memory* m : results) {
        if (const auto* v = values(m->name())) {
            EXPECT_TRUE(m->holds(*v)) << m->name() << " is not what the example says";
        }
    }
}

}  // namespace

void check(const char* what, std::vector<operand*> operands, std::vector<memory*> results, const layer_call& layer,
           const method_call& method, const habits& habits)
{
    SCOPED_TRACE(what);
    call_wrongly(operands, results, layer, habits.equal_sizes);
    call_rightly(operands, results, layer, method);
    if (habits.cut_anywhere) call_in_parts(operands, layer);
    if (!habits.example.empty()) call_example(operands, results, layer, habits.example);
}

void check_edge(const char* what, operand* source, operand* destination, const layer_call& edged,
                const layer_call& framed)
{
    SCOPED_TRACE(what);
    const orvane::detail::frame frame = source->frame;
    source->fill(5);
    destination->fill(6);
    const Memory before = remember({source, destination});
    source->frame = destination->frame = {};  // what lies around is not the layer's to read
    EXPECT_STREQ(framed().argument(), source->name) << "a missing frame";
    ASSERT_TRUE(edged());
    const std::vector<unsigned char> made = destination->bytes;
    restore({source, destination}, before);

    source->frame = destination->frame = frame;
    for (int y = -kFrame; y < source->rows + kFrame; ++y) {
        for (int x = -kFrame; x < source->columns + kFrame; ++x) {
            const int nearest_x = std::clamp(x, 0, source->columns - 1), nearest_y = std::clamp(y, 0, source->rows - 1);
            std::copy_n(source->first + nearest_y * source->stride + nearest_x * source->pixel_bytes,
                        source->pixel_bytes, source->first + y * source->stride + x * source->pixel_bytes);
        }
    }
    ASSERT_TRUE(framed());
    EXPECT_EQ(made, destination->bytes) << "an edge differs from a replicated frame";
}

}  // namespace layer_test
