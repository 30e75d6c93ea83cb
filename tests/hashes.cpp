// One hash per operation over a fixed set of arguments: equal for every compiler, optimisation, word size, system
// and processor level, and from one version to the next. hashes.inc has them; --write-hashes=FILE makes it anew.
//
// The arguments are made from integers alone, of the operation's signature, as in support/compare_levels.cpp:
//     const T*, int     a source image with its step        T*, int     a destination
//     const T*          one value per channel               T           a value
//     T* after Size     results                             int         a parameter, by its domain
// LAPACK is left out: its products are fused where the processor can.
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "FFT2Wrapper.h"
#include "FFTWrapper.h"
#include "ImageProcessingWrapper.h"
#include "MatrixWrapper.h"
#include "RandomNumberGenerator.h"
#include "families.h"
#include "gmock/gmock.h"
#include "support/arguments.h"
#include "support/levels.h"
#include "support/options.h"

namespace test {
namespace {

using orv::Length;
using orv::Size;
using orv::Status;
using W = ImageProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;

// --- Words, elements, hashes ----------------------------------------------------------------------

// S. Vigna, splitmix64.
class Words {
public:
    explicit Words(std::uint64_t seed) : state_(seed) {}
    std::uint64_t next()
    {
        std::uint64_t z = state_ += 0x9E3779B97F4A7C15u;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }
    int below(int n) { return static_cast<int>(next() % static_cast<std::uint64_t>(n)); }

private:
    std::uint64_t state_;
};

class Hash {
public:
    void add(const void* bytes, std::size_t n)
    {
        const auto* p = static_cast<const unsigned char*>(bytes);
        for (; n >= 8; n -= 8, p += 8) {
            std::uint64_t word;
            std::memcpy(&word, p, 8);
            add(word);
        }
        for (; n > 0; --n) add(*p++);
    }
    void add(std::uint64_t word)
    {
        state_ = (state_ ^ word) * 0x9E3779B97F4A7C15u;
        state_ ^= state_ >> 29;
    }
    template <class T>
    void add(bool done, const std::vector<T>& results)
    {
        add(done ? 1 : 0);
        add(results.data(), results.size() * sizeof(T));
    }
    std::uint64_t value() const { return state_; }

private:
    std::uint64_t state_ = 0xCBF29CE484222325u;
};

// Numbers near 1, numbers of all magnitudes, small whole ones; neither infinities nor NaNs.
enum Content { near_one, any_size, whole, contents };

std::uint32_t float_bits(Words& words, Content content)
{
    const std::uint64_t w = words.next();
    const auto sign = static_cast<std::uint32_t>(w >> 32) & 0x80000000u, low = static_cast<std::uint32_t>(w);
    if (content == near_one) return sign | (120 + (low >> 23) % 12) << 23 | (low & 0x7FFFFF);
    if (content == any_size) return sign | (low >> 23) % 255 << 23 | (low & 0x7FFFFF);
    const float value = static_cast<float>(low % 600) / 2;
    std::uint32_t bits;
    std::memcpy(&bits, &value, 4);
    return bits | sign;
}
std::uint64_t double_bits(Words& words, Content content)
{
    const std::uint64_t w = words.next(), sign = words.next() & 1u << 31;
    const std::uint64_t exponent = w >> 52;
    if (content == near_one) return sign << 32 | (1015 + exponent % 16) << 52 | (w & 0xFFFFFFFFFFFFFu);
    if (content == any_size) return sign << 32 | exponent % 2047 << 52 | (w & 0xFFFFFFFFFFFFFu);
    const double value = static_cast<double>(w % 1200) / 2;
    std::uint64_t bits;
    std::memcpy(&bits, &value, 8);
    return bits | sign << 32;
}

void fill(void* to, std::size_t bytes, Element e, Content content, Words& words)
{
    auto* p = static_cast<unsigned char*>(to);
    if (e == e_c32) e = e_f32;
    const bool any_word = e < e_f32 && content == near_one && bytes % 8 == 0;
    const std::size_t size = any_word ? 8 : static_cast<std::size_t>(bytes_of(e));
    for (; bytes >= size; bytes -= size, p += size) {
        std::uint64_t w = e == e_f64   ? double_bits(words, content)
                          : e == e_f32 ? float_bits(words, content)
                                       : words.next();
        // Integers near either end of the type.
        if (e < e_f32 && content == any_size) w = (w & 1) != 0 ? w >> 60 : ~(w >> 60);
        if (e < e_f32 && content == whole) w &= 15;
        std::memcpy(p, &w, size);
    }
}
template <class T>
std::vector<T> values(std::size_t n, Content content, std::uint64_t seed)
{
    std::vector<T> all(n);
    Words words(seed);
    fill(all.data(), n * sizeof(T), element<T>, content, words);
    return all;
}

using Hashes = std::map<std::string, std::uint64_t>;

// --- Operations of the registries -----------------------------------------------------------------

// How the arguments of a family are to be read.
enum Family { images, vectors, borders };

// The arguments of one call, in buffers that are the same for all.
class Arguments {
public:
    static constexpr int kStep = 1280, kMargin = 2 * kStep + 64;

    Arguments(const std::string& name, Family family, int number)
        : name_(name), family_(family), number_(number), words_(static_cast<std::uint64_t>(number) + 1)
    {
        for (const char c : name) words_ = Words(words_.next() ^ static_cast<unsigned char>(c));
        roi_ = {1 + words_.below(67), family == vectors ? 1 : 1 + words_.below(3)};
        if (family == vectors) roi_.width = 1 + words_.below(160);
        content_ = static_cast<Content>(number % contents);
    }

    void make(const Kind* kinds, int n, Slot* slots)
    {
        bool sized = false;
        int parameters = 0;
        for (int i = 0; i < n; ++i) {
            const bool before_int = i + 1 < n && kinds[i + 1].what == Kind::value && kinds[i + 1].element == e_s32;
            const bool after_image = i > 0 && (kinds[i - 1].what == Kind::target || kinds[i - 1].what == Kind::source);
            switch (kinds[i].what) {
                case Kind::source:
                    slots[i].set<const void*>(before_int || family_ == vectors ? buffer(kinds[i].element)
                                                                               : constants(kinds[i].element));
                    break;
                case Kind::target: slots[i].set<void*>(buffer(kinds[i].element)); break;
                case Kind::memory: slots[i].set<void*>(work_.data()); break;  // its contents do not matter
                case Kind::length: slots[i].set(Length{roi_.width}); break;
                case Kind::size:
                    slots[i].set(sized ? Size{roi_.width + 7, roi_.height + 5} : roi_);
                    sized = true;
                    break;
                default:
                    if (kinds[i].element != e_s32) fill(slots[i].bytes, 8, kinds[i].element, content_, words_);
                    else if (after_image && family_ == vectors) slots[i].set(roi_.width);
                    else if (after_image && (!sized || family_ == borders)) slots[i].set(kStep);
                    else slots[i].set(parameter(parameters++));
                    if (kinds[i].element == e_u32 && name_.find("ShiftC") != std::string::npos)
                        slots[i].set(words_.below(34));
            }
        }
    }
    void add_to(Hash& hash) const
    {
        for (const auto& b : buffers_) hash.add(b.data() + kMargin - 64, static_cast<std::size_t>(rows() * kStep));
    }

private:
    int rows() const { return begins_with(name_.c_str(), "Transpose") ? 70 : roi_.height + 6; }
    void* buffer(Element e)
    {
        buffers_.emplace_back(static_cast<std::size_t>(rows() * kStep + 2 * kMargin));
        fill(buffers_.back().data(), buffers_.back().size(), e, content_, words_);
        return buffers_.back().data() + kMargin;
    }
    const void* constants(Element e)
    {
        constants_.emplace_back(begins_with(name_.c_str(), "ColorTwist") ? 48 : 32);
        fill(constants_.back().data(), constants_.back().size(), e, content_, words_);
        for (int c = 0; c < 4; ++c) {
            const int order = words_.below(3), count = words_.below(34);
            if (begins_with(name_.c_str(), "SwapChannels")) std::memcpy(constants_.back().data() + 4 * c, &order, 4);
            if (name_.find("ShiftC") != std::string::npos) std::memcpy(constants_.back().data() + 4 * c, &count, 4);
        }
        return constants_.back().data();
    }
    int parameter(int which)
    {
        if (begins_with(name_.c_str(), "Mirror")) return number_ % 3;
        if (begins_with(name_.c_str(), "FilterMedian"))
            return which == 0 ? 3 + number_ % 4 / 2 * 2 + number_ / 8 % 2 * 8 : 3 + number_ % 4 / 2 * 2;
        if (begins_with(name_.c_str(), "Filter")) return which == 0 ? number_ % 2 * 22 + 33 : number_ / 2 % 2;
        if (begins_with(name_.c_str(), "Histogram"))
            return which == 0 ? 2 + words_.below(200) : which == 1 ? words_.below(100) : 100 + words_.below(60000);
        if (begins_with(name_.c_str(), "Compare")) return number_ % 5;
        if (begins_with(name_.c_str(), "AlphaComp")) return number_ / 3 % 2;
        if (name_.find("YCbCr") != std::string::npos || name_.find("YUV") != std::string::npos)
            return number_ / 3 % 5;  // 4 is refused
        if (begins_with(name_.c_str(), "Threshold") && family_ == vectors) return static_cast<int>(words_.next());
        if (begins_with(name_.c_str(), "Threshold")) return number_ % 2 * 4;
        if (family_ == borders) return 2 + which;
        return words_.below(number_ % 4 == 0 ? 1 : 20) - number_ % 4;
    }

    std::string name_;
    Family family_;
    int number_;
    Words words_;
    Size roi_;
    Content content_;
    std::vector<std::vector<unsigned char>> buffers_, constants_;
    std::vector<unsigned char> work_ = std::vector<unsigned char>(1 << 16);
};

void hash_operation(Hashes& hashes, const Subject& subject, Family family)
{
    if (contains(subject.name, "GetBufferSize")) return;  // may depend on the size of a pointer
    Hash hash;
    for (int i = 0; i < 24; ++i) {
        Arguments arguments(subject.name, family, i);
        Slot slots[16];
        arguments.make(subject.kinds, subject.count, slots);
        hash.add(static_cast<std::uint64_t>(subject.invoke(subject.variant[orv::orv_variant_index], slots)));
        arguments.add_to(hash);
    }
    hashes[subject.name] = hash.value();
}

// Those whose arguments follow from the signature; the others go through the exported methods, below.
void hash_registries(Hashes& hashes)
{
    const auto hash = [&](const Subject& subject) {
        const bool vector = begins_with(subject.family, "signal_");
        if (!vector && (!begins_with(subject.family, "image_") || contains(subject.family, "_resize_"))) return;
        if (contains(subject.family, "_tables_") || contains(subject.family, "_warp_")) return;
        if (contains(subject.family, "_wiener") || contains(subject.family, "_gauss")) return;
        if (contains(subject.family, "_edges_")) return;
        if (contains(subject.family, "_convolution_")) return;
        ASSERT_TRUE(subject.is_plain()) << subject.name;
        hash_operation(hashes, subject, vector ? vectors : contains(subject.family, "border") ? borders : images);
    };
#define REGISTRY_BEGIN(family) { const char* const folder = #family;
#define KERNEL(name, ...) hash(subject(folder, #name, orv::orv_##name));
#define REGISTRY_END(family) }
#include "registries.inc"
#undef REGISTRY_BEGIN
#undef KERNEL
#undef REGISTRY_END
}

// --- The others -----------------------------------------------------------------------------------

template <class T, class Method>
void hash_resize(Hashes& hashes, const char* name, int channels, Method method)
{
    const Size sizes[] = {{12, 9}, {30, 17}, {7, 5}, {64, 40}, {33, 4}};
    Hash hash;
    for (const Size from : sizes) {
        for (const Size to : sizes) {
            const auto pixels = [&](Size s) { return static_cast<std::size_t>(s.width * s.height * channels); };
            const auto src =
                values<T>(pixels(from), sizeof(T) == 4 ? near_one : any_size, static_cast<std::uint64_t>(to.width));
            std::vector<T> dst(pixels(to));
            const int pixel = channels * static_cast<int>(sizeof(T));
            method(src.data(), from, from.width * pixel, dst.data(), to.width * pixel, to);
            hash.add(dst.data(), dst.size() * sizeof(T));
        }
    }
    hashes[name] = hash.value();
}

void hash_resizes(Hashes& hashes)
{
#define PLAIN(method, T, channels) \
    hash_resize<T>(hashes, #method, channels, [](const T* s, Size from, int ss, T* d, int ds, Size to) { \
        W::method(s, from.width, from.height, ss, d, ds, to.width, to.height, 1, 1); \
    });
    PLAIN(ResizeNN_16u_C1R, u16, 1)
    PLAIN(ResizeNN_8u_C3R, u8, 3)
    PLAIN(ResizeNN_8u_C4R, u8, 4)
    PLAIN(ResizeCubic_16u_C1R, u16, 1)
    PLAIN(ResizeCubic_8u_C3R, u8, 3)
    PLAIN(ResizeCubic_8u_C4R, u8, 4)
#undef PLAIN
    hash_resize<u16>(hashes, "ResizeCenterNN_16u_C1R", 1, [](const u16* s, Size from, int ss, u16* d, int ds, Size to) {
        W::ResizeCenterNN_16u_C1R(s, from.width, from.height, ss, d, ds, to.width, to.height, 1, 1, to.width / 2 - 1,
                                  to.height / 2);
    });
#define ZOOM(method, T, channels)                                                                                    \
    hash_resize<T>(hashes, #method, channels, [](const T* s, Size from, int ss, T* d, int ds, Size to) {             \
        W::method(s, ss, from.width, from.height, d, ds, to.width, to.height, 1.25f, 1, -1, (to.width & 1) != 0);   \
    });
    ZOOM(Resize_8u_C3, u8, 3)
    ZOOM(Resize_8u_C4, u8, 4)
    ZOOM(Resize_16u_C1, u16, 1)
    ZOOM(Resize_32f_C1, float, 1)
#undef ZOOM
    for (const int interpolation : {1, 2, 4, 5, 6, 7, 8, 16}) {
        const std::string name = "ResizeSqrPixel_16u_C1R interpolation " + std::to_string(interpolation);
        hash_resize<u16>(hashes, name.c_str(), 1, [=](const u16* s, Size from, int ss, u16* d, int ds, Size to) {
            int bytes = 0;
            W::ResizeGetBufSize(0, 0, from.width, from.height, 0, 0, to.width, to.height, 1, interpolation, &bytes);
            std::vector<unsigned char> work(static_cast<std::size_t>(bytes) + 64);
            const double x = static_cast<double>(to.width) / from.width,
                         y = static_cast<double>(to.height) / from.height;
            W::ResizeSqrPixel_16u_C1R(s, from.width, from.height, ss, 0, 0, from.width, from.height, d, ds, 0, 0,
                                      to.width, to.height, x, y, 0.25, -0.5, interpolation, work.data());
        });
    }
}

// Images of `pixels` pixels of S become ones of D.
template <class S, class D, class Method>
void hash_table(Hashes& hashes, const char* name, int pixels, Method method)
{
    Hash hash;
    for (int content = 0; content < contents; ++content) {
        const auto src = values<S>(static_cast<std::size_t>(pixels), static_cast<Content>(content), 5);
        std::vector<D> dst(src.size());
        hash.add(method(src.data(), dst.data(), content), dst);
    }
    hashes[name] = hash.value();
}

template <class S>
std::vector<S> ascending_levels(int count)
{
    std::vector<S> levels;
    for (int k = 0; k < count; ++k) levels.push_back(static_cast<S>(5 + k * (200 + k) / count));
    return levels;
}

void hash_tables(Hashes& hashes)
{
    static const auto bytes = values<u8>(65536, near_one, 1);
    static const auto words = values<u16>(65536, near_one, 2);
    static const auto floats = values<float>(65536, any_size, 3);
    static const auto colours = values<unsigned>(300, near_one, 4);
    static const u8* const tables[4] = {bytes.data(), bytes.data() + 256, bytes.data() + 512, bytes.data() + 768};
    constexpr int n = 70 * 3;
#define TABLE(name, S, D, table) \
    hash_table<S, D>(hashes, #name, n, [](const S* s, D* d, int) { \
        return W::name(s, 70 * sizeof(S), table.data(), d, 70 * sizeof(D), 70, 3); \
    });
    TABLE(LUT_8u_C1, u8, u8, bytes)
    TABLE(LUT_8u16u_C1, u8, u16, words)
    TABLE(LUT_8u32f_C1, u8, float, floats)
    TABLE(LUT_16u_C1, u16, u16, words)
    TABLE(LUT_16u8u_C1, u16, u8, bytes)
    TABLE(LUT_16u32f_C1, u16, float, floats)
#undef TABLE
    hash_table<u8, u8>(hashes, "LUT_8u_C3", 3 * n,
                       [](const u8* s, u8* d, int) { return W::LUT_8u_C3(s, 210, tables, d, 210, 70, 3); });
    hash_table<u8, u8>(hashes, "LUT_8u_C4", 4 * n,
                       [](const u8* s, u8* d, int) { return W::LUT_8u_C4(s, 280, tables, d, 280, 70, 3); });
    hash_table<u16, unsigned>(hashes, "LUTPalette_16u32u_C1R", n, [](const u16* s, unsigned* d, int) {
        return W::LUTPalette_16u32u_C1R(s, 140, colours.data(), 300, d, 280, 70, 3);
    });
#define CURVE(name, S, D, all) \
    hash_table<S, D>(hashes, #name, n, [](const S* s, D* d, int content) { \
        const int count = content == 0 ? 2 : content == 1 ? 8 : 60; \
        return W::name(s, 70 * sizeof(S), ascending_levels<S>(count).data(), all.data() + content, count, d, \
                       70 * sizeof(D), 70, 3); \
    });
    CURVE(LUT_Linear_8u_C1, u8, u8, bytes)
    CURVE(LUT_Linear_16u_C1, u16, u16, words)
    CURVE(LUT_Linear_16u8u_C1, u16, u8, bytes)
    CURVE(LUT_Linear_32f_C1, float, float, floats)
#undef CURVE
}

void hash_matrices(Hashes& hashes)
{
    using M = MatrixWrapper;
    std::map<std::string, Hash> all;
    for (int n = 1; n <= 21; ++n) {
        const auto count = static_cast<std::size_t>(n * n);
        const auto seed = static_cast<std::uint64_t>(n);
        const auto a = values<float>(count, near_one, seed), b = values<float>(count, near_one, seed + 100);
        const auto p = values<double>(count, near_one, seed + 200), q = values<double>(count, near_one, seed + 300);
        const int s = 4 * n, t = 8 * n;
        std::vector<float> d(count), lu(count);
        std::vector<double> e(count);
        std::vector<int> index(count);
        const auto add = [&](const char* name, bool done) {
            all[name].add(done ? 1 : 0);
            all[name].add(d.data(), d.size() * 4);
            all[name].add(e.data(), e.size() * 8);
        };
        add("Add_mm_32f", M::Add_mm_32f(a.data(), s, 4, b.data(), s, 4, d.data(), s, 4, n, n));
        add("Sub_mm_32f", M::Sub_mm_32f(a.data(), s, 4, b.data(), 4, s, d.data(), s, 4, n, n));
        add("Mul_mc_32f", M::Mul_mc_32f(a.data(), s, 4, 1.5f, d.data(), s, 4, n, n));
        add("Mul_mm_32f", M::Mul_mm_32f(a.data(), s, 4, n, n, b.data(), s, 4, n, n, d.data(), s, 4));
        add("Mul_tm_64f", M::Mul_tm_64f(p.data(), t, 8, n, n, q.data(), t, 8, n, n, e.data(), t, 8));
        add("Mul_mv_64f", M::Mul_mv_64f(p.data(), t, 8, n, n, q.data(), 8, n, e.data(), 8));
        add("Mul_tv_64f", M::Mul_tv_64f(p.data(), t, 8, n, n, q.data(), 8, n, e.data(), 8));
        add("Transpose_m_32f", M::Transpose_m_32f(a.data(), s, 4, n, n, d.data(), s, 4));
        add("Invert_m_32f", M::Invert_m_32f(a.data(), s, 4, d.data(), s, 4, n));
        add("Invert_m_64f", M::Invert_m_64f(p.data(), t, 8, e.data(), t, 8, n));
        M::LUDecomp_m_32f(a.data(), s, 4, index.data(), lu.data(), s, 4, n);
        all["LUDecomp_m_32f"].add(lu.data(), lu.size() * 4);
        add("LUBackSubst_mv_32f", M::LUBackSubst_mv_32f(lu.data(), s, 4, index.data(), b.data(), 4, d.data(), 4, n));
    }
    for (const auto& entry : all) hashes[entry.first] = entry.second.value();
}

void hash_transforms(Hashes& hashes)
{
    Hash forward, power, plane, inverse;
    for (int order = 0; order <= 13; ++order) {
        const std::size_t n = std::size_t{1} << order;
        const auto signal = values<float>(n, near_one, n), window = values<float>(n, near_one, n + 1);
        int spec_bytes = 0, init_bytes = 0, work_bytes = 0;
        orv::orv_fft_sizes(order, 2, 1, &spec_bytes, &init_bytes, &work_bytes);
        const auto room = [](int bytes) { return std::vector<unsigned char>(static_cast<std::size_t>(bytes) + 64); };
        auto memory = room(spec_bytes), init = room(init_bytes), work = room(work_bytes);
        orv::FftSpec* spec = nullptr;
        forward.add(static_cast<std::uint64_t>(orv::orv_FftInit(&spec, order, 2, 1, memory.data(), init.data())));
        std::vector<float> out(n + 2);
        forward.add(static_cast<std::uint64_t>(orv::orv_FftForward_32f(signal.data(), out.data(), spec, work.data())));
        forward.add(out.data(), out.size() * 4);
        const int length = static_cast<int>(n);
        power.add(FFTWrapper(length).PsdFFT(signal.data(), window.data(), out.data(), length) ? 1 : 0);
        power.add(out.data(), n * 4);
    }
    for (const Size side : {Size{2, 2}, Size{4, 16}, Size{32, 8}, Size{64, 64}, Size{256, 128}}) {
        const auto pixels = static_cast<std::size_t>(side.width * side.height);
        const auto src = values<float>(pixels, near_one, pixels);
        std::vector<float> spectrum(pixels), back(pixels);
        FFT2Wrapper fft(side.width, side.height, false);
        const int step = 4 * side.width;
        fft.Forward(src.data(), step, spectrum.data(), step, side.width, side.height);
        fft.Inverse(spectrum.data(), step, back.data(), step, side.width, side.height);
        plane.add(spectrum.data(), pixels * 4);
        inverse.add(back.data(), pixels * 4);
    }
    hashes["FftForward_32f"] = forward.value();
    hashes["PsdFFT"] = power.value();
    hashes["FFT2 forward"] = plane.value();
    hashes["FFT2 inverse"] = inverse.value();
}

// Images of odd and even sizes, of floats and of complex numbers.
template <class From, class To, class Method>
void hash_packed(Hashes& hashes, const char* name, Method method)
{
    Hash hash;
    for (int width = 1; width < 60; width += width < 10 ? 1 : 7) {
        for (int height = 1; height < 12; ++height) {
            const auto pixels = static_cast<std::size_t>(width * height);
            const auto content = static_cast<Content>((width + height) % contents);
            const auto a = values<From>(pixels, content, pixels), b = values<From>(pixels, content, pixels + 1);
            std::vector<To> dst(pixels);
            hash.add(method(a.data(), b.data(), width * static_cast<int>(sizeof(From)), dst.data(),
                            width * static_cast<int>(sizeof(To)), width, height), dst);
        }
    }
    hashes[name] = hash.value();
}

void hash_packed_images(Hashes& hashes)
{
#define PRODUCT(name) \
    hash_packed<float, float>(hashes, #name, [](auto* a, auto* b, int step, auto* d, int dstStep, int w, int h) { \
        return W::name(a, step, b, step, d, dstStep, w, h); \
    });
    PRODUCT(MulPack_32f_C1R)
    PRODUCT(MulPackConj_32f_C1R)
#undef PRODUCT
#define IMAGE(name, From, To) \
    hash_packed<From, To>(hashes, #name, [](auto* a, auto*, int step, auto* d, int dstStep, int w, int h) { \
        return W::name(a, step, d, dstStep, w, h); \
    });
    IMAGE(MagnitudePack_32f_C1R, float, float)
    IMAGE(PhasePack_32f_C1R, float, float)
    IMAGE(PackToCplxExtend_32f32fc_C1R, float, Complex32f)
    IMAGE(CplxExtendToPack_32fc32f_C1R, Complex32f, float)
    IMAGE(Magnitude_32fc32f_C1R, Complex32f, float)
    IMAGE(Phase_32fc32f_C1R, Complex32f, float)
    IMAGE(WinHamming_32f_C1R, float, float)
    IMAGE(WinBartlett_32f_C1R, float, float)
#undef IMAGE
}

void hash_random_numbers(Hashes& hashes)
{
    Hash hash;
    for (const int seed : {0, 1, -5, 123456789}) {
        RandomNumberGenerator generator;
        hash.add(generator.Init(seed) ? 1 : 0);
        for (const int n : {1, 7, 500, 10000}) {
            std::vector<double> r(static_cast<std::size_t>(n));
            generator.GenerateGaussian(n, r.data(), 0.5, 3);
            hash.add(r.data(), r.size() * 8);
        }
    }
    hashes["GenerateGaussian"] = hash.value();
}

// Every interpolation of a warp, through one call each.
template <class T, class Method>
void hash_warp(Hashes& hashes, const char* name, int channels, Method method)
{
    const int w = 61, h = 47, wide = 90, high = 70;
    const auto count = [&](int pixels) { return static_cast<std::size_t>(pixels * channels); };
    const auto src = values<T>(count(w * h), near_one, 61);
    const int pixel = channels * static_cast<int>(sizeof(T));
    Hash hash;
    for (const int interpolation : {1, 2, 4, 5, 6, 7, 16}) {
        std::vector<T> dst(count(wide * high));
        hash.add(method(src.data(), Size{w, h}, w * pixel, dst.data(), wide * pixel, Size{wide, high}, interpolation),
                 dst);
    }
    hashes[name] = hash.value();
}

void hash_warps(Hashes& hashes)
{
    static const double matrix[9] = {1.25, 0.25, 2, -0.125, 1.0625, 5, 1.0 / 512, 1.0 / 256, 1};
    const auto xs = values<float>(90 * 70, whole, 1), ys = values<float>(90 * 70, whole, 2);
    // Whole numbers and halves, some of them outside.
    std::vector<float> x(xs.size()), y(ys.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        x[i] = static_cast<float>(i % 90) * 0.75f + xs[i] / 128;
        y[i] = static_cast<float>(i / 90) * 0.75f + ys[i] / 128;
    }
#define WARPS(suffix, T, channels) \
    hash_warp<T>(hashes, "Rotate_" #suffix, channels, \
                 [](const T* s, Size from, int ss, T* d, int ds, Size to, int code) { \
                     return W::Rotate_##suffix(s, from.width, from.height, ss, 0, 0, from.width, from.height, d, ds, \
                                               0, 0, to.width, to.height, 33, 4, 38, code); \
                 }); \
    hash_warp<T>(hashes, "WarpPerspective_" #suffix, channels, \
                 [&](const T* s, Size from, int ss, T* d, int ds, Size to, int code) { \
                     return W::WarpPerspective_##suffix(s, from.width, from.height, ss, 0, 0, from.width, from.height, \
                                                        d, ds, 0, 0, to.width, to.height, matrix, code); \
                 }); \
    hash_warp<T>(hashes, "Remap_" #suffix, channels, \
                 [&](const T* s, Size from, int ss, T* d, int ds, Size to, int code) { \
                     return W::Remap_##suffix(s, from.width, from.height, ss, 0, 0, from.width, from.height, x.data(), \
                                              4 * to.width, y.data(), 4 * to.width, d, ds, to.width, to.height, code); \
                 });
    WARPS(8u_C1, u8, 1)
    WARPS(8u_C3, u8, 3)
    WARPS(8u_C4, u8, 4)
    WARPS(16u_C1, u16, 1)
    WARPS(32f_C1, float, 1)
#undef WARPS
#define ABOUT(suffix, T, channels) \
    hash_warp<T>(hashes, "RotateCenter_" #suffix, channels, \
                 [](const T* s, Size from, int ss, T* d, int ds, Size to, int code) { \
                     return W::RotateCenter_##suffix(s, from.width, from.height, ss, d, ds, to.width, to.height, \
                                                     -77.25, 20, 31, code); \
                 });
    ABOUT(8u_C3, u8, 3)
    ABOUT(8u_C4, u8, 4)
    ABOUT(16u_C1, u16, 1)
    ABOUT(32f_C1, float, 1)
#undef ABOUT
    Hash rotated, shifts, projected;
    for (int i = -40; i < 40; ++i) {
        double bound[4], shift[2];
        W::GetRotateBound(i, 3, 40, 50, 13.25 * i, 0.1, 1e9, bound);
        rotated.add(bound, sizeof(bound));
        W::GetRotateShift(0.3 * i, 1.0 / 3, 1e5 * i, shift, shift + 1);
        shifts.add(shift, sizeof(shift));
        W::GetPerspectiveBound(i, 3, 40, 50, matrix, bound);
        projected.add(bound, sizeof(bound));
    }
    hashes["GetRotateBound"] = rotated.value();
    hashes["GetRotateShift"] = shifts.value();
    hashes["GetPerspectiveBound"] = projected.value();
}

// Filters with parameters, in a frame as wide as half their mask.
void hash_filters(Hashes& hashes)
{
    Hash wiener, gauss;
    const int width = 75, height = 9, frame = 7;
    std::vector<float> dst(static_cast<std::size_t>(width * height));
    for (int number = 0; number < 12; ++number) {
        const int step = width + 2 * frame, w = 2 * (number % 8) + 1, h = 2 * (number * 3 % 8) + 1;
        const auto src = values<float>(static_cast<std::size_t>(step * (height + 2 * frame)),
                                       static_cast<Content>(number % contents), 90);
        const float* const first = src.data() + frame * step + frame;
        double noise = number % 3 - 1;
        wiener.add(W::FilterWiener_32f_C1(first, 4 * step, dst.data(), 4 * width, width, height, w, h, &noise) ? 1 : 0);
        wiener.add(&noise, sizeof(noise));
        wiener.add(dst.data(), dst.size() * sizeof(float));
        const float sigma = static_cast<float>(number + 1) / 4;
        gauss.add(W::FilterGaussBorder_32f_C1R(first, 4 * step, dst.data(), 4 * width, width, height,
                                               number * number + 1 - number % 2, sigma), dst);
    }
    hashes["FilterWiener_32f_C1"] = wiener.value();
    hashes["FilterGaussBorder_32f_C1R"] = gauss.value();
}

void hash_edges(Hashes& hashes)
{
    Hash edges, areas;
    for (int i = 0; i < 24; ++i) {
        const int w = 1 + 13 * i, h = 1 + 7 * i % 40;
        const auto n = static_cast<std::size_t>(w * h);
        const auto src = values<float>(n, static_cast<Content>(i % contents), static_cast<std::uint64_t>(i));
        std::vector<u8> dst(n);
        edges.add(W::Canny_32f8u_C1(src.data(), 4 * w, dst.data(), w, w, h, static_cast<float>(i),
                                    static_cast<float>(40 * i)), dst);
        auto pixels = values<u8>(n, near_one, static_cast<std::uint64_t>(i));
        for (u8& p : pixels) p = p < 150 ? 1 : p < 250 ? 2 : 3;
        int count = 0;
        areas.add(W::FloodFill_8Con_8u_C1IR(pixels.data(), w, w, h, w / 2, h / 2, 5, &count) ? 1 : 0);
        areas.add(static_cast<std::uint64_t>(count));
        areas.add(pixels.data(), n);
    }
    hashes["Canny_32f8u_C1"] = edges.value();
    hashes["FloodFill_8Con_8u_C1IR"] = areas.value();
}

// Kernels of 1 x 1 to 9 x 7 weights: small ones, large ones, a column times a row.
template <class From, class To, class Weight, class Method>
void hash_convolution(Hashes& hashes, const char* name, int channels, Method method)
{
    Hash hash;
    for (int number = 0; number < 12; ++number) {
        const Size roi = {70 - 5 * number, 1 + number % 4}, side = {1 + number % 9, 1 + number % 7};
        const int row = (roi.width + side.width - 1) * channels;
        const auto src = values<From>(static_cast<std::size_t>(row * (roi.height + side.height - 1)),
                                      static_cast<Content>(number % contents), 7);
        auto kernel =
            values<Weight>(static_cast<std::size_t>(side.width * side.height), number % 2 == 0 ? whole : near_one, 8);
        for (std::size_t i = 0; number % 4 == 1 && i < kernel.size(); ++i) {
            kernel[i] =
                static_cast<Weight>((1 + static_cast<int>(i) / side.width) * (static_cast<int>(i) % side.width - 2));
        }
        const int x = number % side.width, y = number % side.height;
        const From* const first = src.data() + (side.height - 1 - y) * row + (side.width - 1 - x) * channels;
        std::vector<To> dst(static_cast<std::size_t>(roi.width * roi.height * channels));
        const int step = roi.width * channels * static_cast<int>(sizeof(To));
        hash.add(method(first, row * static_cast<int>(sizeof(From)), dst.data(), step, roi, kernel.data(), side, x, y,
                        3 * number - 4), dst);
    }
    hashes[name] = hash.value();
}

void hash_convolutions(Hashes& hashes)
{
#define INTEGERS(name, From, To, channels) \
    hash_convolution<From, To, int>( \
        hashes, #name, channels, \
        [](const From* s, int ss, To* d, int ds, Size roi, const int* k, Size side, int x, int y, int divisor) { \
            return W::name(s, ss, d, ds, roi.width, roi.height, k, side.width, side.height, x, y, divisor); \
        });
    INTEGERS(Filter_8u_C1R, u8, u8, 1)
    INTEGERS(Filter_8u_C3R, u8, u8, 3)
    INTEGERS(Filter_8u_C4R, u8, u8, 4)
    INTEGERS(Filter_16u_C1R, u16, u16, 1)
    INTEGERS(Filter_16s_C1R, short, short, 1)
    INTEGERS(Filter_8u16s_C1R, u8, short, 1)
#undef INTEGERS
#define FLOATS(name, From, channels) \
    hash_convolution<From, float, float>( \
        hashes, #name, channels, \
        [](const From* s, int ss, float* d, int ds, Size roi, const float* k, Size side, int x, int y, int) { \
            return W::name(s, ss, d, ds, roi.width, roi.height, k, side.width, side.height, x, y); \
        });
    FLOATS(Filter_32f_C1R, float, 1)
    FLOATS(Filter_32f_C3R, float, 3)
    FLOATS(Filter_8u32f_C1R, u8, 1)
    FLOATS(Filter_16u32f_C1R, u16, 1)
#undef FLOATS
}

Hashes all_hashes()
{
    Hashes hashes;
    hash_registries(hashes);
    hash_resizes(hashes);
    hash_tables(hashes);
    hash_matrices(hashes);
    hash_transforms(hashes);
    hash_packed_images(hashes);
    hash_random_numbers(hashes);
    hash_warps(hashes);
    hash_filters(hashes);
    hash_edges(hashes);
    hash_convolutions(hashes);
    return hashes;
}

TEST(Hashes, AreWhatTheyWere)
{
    const Hashes expected = {
#define HASH(name, value) {name, value},
#include "hashes.inc"
#undef HASH
    };
    const auto check = [&] {
        const Hashes actual = all_hashes();
        if (!options().hashes_file.empty()) {
            std::FILE* const file = std::fopen(options().hashes_file.c_str(), "w");
            ASSERT_NE(file, nullptr);
            for (const auto& h : actual)
                std::fprintf(file, "HASH(\"%s\", 0x%016llXu)\n", h.first.c_str(),
                             static_cast<unsigned long long>(h.second));
            std::fclose(file);
            return;
        }
        for (const auto& h : actual) {
            const auto found = expected.find(h.first);
            EXPECT_TRUE(found != expected.end() && found->second == h.second) << h.first;
        }
        EXPECT_EQ(actual.size(), expected.size());
    };
    // Emulated processors take turns with the levels.
    if (options().brief) check();
    else at_every_level(check);
}

}  // namespace
}  // namespace test
