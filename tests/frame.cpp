// The frame: features, level choice, start-up, buffers, the image container, the static-only classes.
#include <cstring>
#include <functional>
#include <new>
#include <type_traits>
#include <vector>

#include "Image.h"
#include "ImageProcessingWrapper.h"
#include "MKLWrapper.h"
#include "MatrixWrapper.h"
#include "SignalProcessingWrapper.h"
#include "core/sizes.h"
#include "core/start_up.h"
#include "gmock/gmock.h"
#include "support/allocations.h"
#include "support/guarded_block.h"

namespace test {
namespace {

using namespace orv;

// What a host's own static initialiser sees.
const int index_during_static_initialisation = orv_variant_index;
const FeatureMask features_during_static_initialisation = orv_enabled_features;

TEST(StartUp, RunsBeforeStaticInitialisers)
{
    FeatureMask features = 0;
    ASSERT_EQ(query_features(&features, nullptr), StatusOk);
    EXPECT_EQ(index_during_static_initialisation, choose_level(features).level);
    EXPECT_EQ(features_during_static_initialisation, choose_level(features).enabled);
}

TEST(StartUp, RepeatedRunIsHarmless)
{
    const int index = orv_variant_index;
    const Status first = start_up();
    EXPECT_EQ(start_up(), first);
    EXPECT_EQ(orv_variant_index, index);
    EXPECT_THAT(first, testing::AnyOf(StatusOk, StatusNotIntelProcessor));
}

TEST(Features, QueryWantsAnOutput)
{
    EXPECT_EQ(query_features(nullptr, nullptr), StatusNullPointer);
    FeatureMask features = 0;
    Identification id;
    EXPECT_EQ(query_features(&features, &id), StatusOk);
    EXPECT_EQ(features, features_from(id));
    EXPECT_EQ(features >> 32, 0u);
}

TEST(Features, EachBitFromItsRegister)
{
    struct Row {
        FeatureMask feature;
        std::uint32_t Identification::Registers::*word;
        int bit;
    };
    using R = Identification::Registers;
    const Row leaf1[] = {{kMmx, &R::edx, 23},  {kSse, &R::edx, 25},   {kSse2, &R::edx, 26},     {kSse3, &R::ecx, 0},
                         {kSsse3, &R::ecx, 9}, {kMovbe, &R::ecx, 22}, {kSse41, &R::ecx, 19},    {kSse42, &R::ecx, 20},
                         {kAvx, &R::ecx, 28},  {kAes, &R::ecx, 25},   {kPclmulqdq, &R::ecx, 1}, {kRdrand, &R::ecx, 30},
                         {kF16c, &R::ecx, 29}};
    for (const Row& row : leaf1) {
        Identification id = {};
        id.supported = true;
        id.leaf1.*row.word = 1u << row.bit;
        EXPECT_EQ(features_from(id), row.feature) << row.bit;
    }
    const Row leaf7[] = {{kAdx, &R::ebx, 19}, {kRdseed, &R::ebx, 18}};
    for (const Row& row : leaf7) {
        Identification id = {};
        id.leaf7.*row.word = 1u << row.bit;
        id.highest_basic = 6;
        EXPECT_EQ(features_from(id), 0u) << "leaf 7 does not exist";
        id.highest_basic = 7;
        EXPECT_EQ(features_from(id), row.feature);
    }
}

TEST(Features, Combinations)
{
    Identification id = {};
    id.highest_basic = 7;
    id.leaf1.ecx = 1u << 27 | 1u << 28;
    for (const std::uint32_t xcr0 : {0u, 2u, 4u}) {
        id.xcr0 = xcr0;
        EXPECT_EQ(features_from(id), kAvx);
    }
    id.xcr0 = 6;
    EXPECT_EQ(features_from(id), kAvx | kAvxState);
    id.leaf1.ecx = 1u << 28;
    EXPECT_EQ(features_from(id), kAvx) << "XGETBV is not enabled";

    // The AVX2 group takes all four.
    const std::uint32_t group = 1u << 5 | 1u << 3 | 1u << 8;
    id = {};
    id.highest_basic = 7;
    id.leaf1.ecx = 1u << 12;
    id.leaf7.ebx = group;
    EXPECT_EQ(features_from(id), kAvx2Group);
    for (const int missing : {5, 3, 8}) {
        id.leaf7.ebx = group & ~(1u << missing);
        EXPECT_EQ(features_from(id), 0u);
    }

    id = {};
    id.extended1.ecx = 1u << 8;
    EXPECT_EQ(features_from(id), 0u);
    id.highest_extended = 0x80000001u;
    EXPECT_EQ(features_from(id), kPrefetchw);

    id = {};
    id.coprocessor1.edx = 2;
    EXPECT_EQ(features_from(id), 0u);
    id.leaf1.eax = 0xB10;
    EXPECT_EQ(features_from(id), kCoprocessorExtension | kCoprocessorLine);
}

TEST(Level, FollowsTheFeatures)
{
    const FeatureMask base = kMmx | kSse, sse2 = base | kSse2, ssse3 = sse2 | kSse3 | kSsse3;
    const FeatureMask sse41 = ssse3 | kSse41, avx = sse41 | kSse42 | kAvx | kAvxState;
    struct Row {
        FeatureMask features;
        Level level;
        FeatureMask enabled;
    };
    const Row rows[] = {{0, level_px, 0},
                        {base, level_px, base},
                        {sse2, level_w7, sse2},
                        {sse2 | kMovbe, level_w7, sse2},
                        {ssse3, level_v8, ssse3},
                        {ssse3 | kMovbe, level_s8, ssse3 | kMovbe},
                        {sse41, level_p8, sse41},
                        {sse41 | kMovbe, level_p8, sse41},
                        {sse41 | kAvx, level_p8, sse41},
                        {sse41 | kAvxState, level_p8, sse41},
                        {sse41 | kAvx2Group, level_p8, sse41},
                        {avx, level_g9, avx},
                        {avx | kAes | kF16c, level_g9, avx | kAes | kF16c},
                        {avx | kMovbe | kAdx, level_g9, avx},
                        {avx | kAvx2Group | kMovbe | kCoprocessorLine, level_h9, avx | kAvx2Group | kMovbe},
                        {avx | kAvx2Group | kCoprocessorExtension, level_h9, avx | kAvx2Group}};
    for (const Row& row : rows) {
        EXPECT_EQ(choose_level(row.features).level, row.level) << std::hex << row.features;
        EXPECT_EQ(choose_level(row.features).enabled, row.enabled) << std::hex << row.features;
    }
    EXPECT_EQ(kLevelWithoutIdentification.level, level_px);
    EXPECT_EQ(kLevelWithoutIdentification.enabled, 3u);
}

TEST(Level, UnknownVendorIsAWarning)
{
    Identification id = {};
    EXPECT_EQ(status_of_start_up(id), StatusNotIntelProcessor) << "no identification";
    id.supported = true;
    std::strcpy(id.vendor, "GenuineIntel");
    EXPECT_EQ(status_of_start_up(id), StatusOk);
    std::strcpy(id.vendor, "AuthenticAMD");
    EXPECT_EQ(status_of_start_up(id), StatusNotIntelProcessor);
}

// --- Buffers --------------------------------------------------------------------------------------

template <class T>
void check_image_buffer(T* (*allocate)(int, int, int*), int width, int height, int expected_step)
{
    int step = -1;
    T* const buffer = allocate(width, height, &step);
    ASSERT_NE(buffer, nullptr);
    EXPECT_EQ(step, expected_step);
    EXPECT_EQ(reinterpret_cast<std::size_t>(buffer) % 64, 0u);
    std::memset(static_cast<void*>(buffer), 0xA5, static_cast<std::size_t>(step) * static_cast<std::size_t>(height));
    ImageProcessingWrapper::Free(buffer);

    for (const int bad : {0, -1, -2147483647 - 1}) {
        step = -1;
        EXPECT_EQ(allocate(bad, height, &step), nullptr);
        EXPECT_EQ(step, 0);
        step = -1;
        EXPECT_EQ(allocate(width, bad, &step), nullptr);
        EXPECT_EQ(step, 0);
    }
    EXPECT_EQ(allocate(width, height, nullptr), nullptr);
    // A product that wraps below 1: refused, after the step was written.
    EXPECT_EQ(allocate(width, 0x40000000, &step), nullptr);
    EXPECT_EQ(step, expected_step);
}

TEST(Buffers, Images)
{
    using W = ImageProcessingWrapper;
    check_image_buffer(W::Malloc_8u_C1, 1, 1, 64);
    check_image_buffer(W::Malloc_8u_C1, 64, 3, 64);
    check_image_buffer(W::Malloc_8u_C1, 65, 3, 128);
    check_image_buffer(W::Malloc_8u_C3, 22, 2, 128);
    check_image_buffer(W::Malloc_8u_C4, 16, 2, 64);
    check_image_buffer(W::Malloc_8u_AC4, 17, 2, 128);
    check_image_buffer(W::Malloc_16u_C1, 33, 2, 128);
    check_image_buffer(W::Malloc_16s_C1, 32, 2, 64);
    check_image_buffer(W::Malloc_32s_C1, 17, 2, 128);
    check_image_buffer(W::Malloc_32f_C1, 16, 2, 64);
    check_image_buffer(W::Malloc_32f_C3, 10, 2, 128);
    check_image_buffer(W::Malloc_32f_C4, 5, 2, 128);
    check_image_buffer(W::Malloc_32fc_C1, 8, 2, 64);
    W::Free(nullptr);

    int step = 0;  // 2^31 - 1 pixels of 4 bytes: the row itself wraps
    W::Free(W::Malloc_8u_C4(0x40000001, 1, &step));
    EXPECT_EQ(step, 64);
}

template <class T>
void check_vector_buffer(T* (*allocate)(int))
{
    for (const int len : {1, 7, 1000}) {
        T* const buffer = allocate(len);
        ASSERT_NE(buffer, nullptr);
        EXPECT_EQ(reinterpret_cast<std::size_t>(buffer) % 64, 0u);
        std::memset(static_cast<void*>(buffer), 0xA5, sizeof(T) * static_cast<std::size_t>(len));
        SignalProcessingWrapper::Free(buffer);
    }
    EXPECT_EQ(allocate(0), nullptr);
    EXPECT_EQ(allocate(-5), nullptr);
    const AllocationFailure none_left(0);
    EXPECT_EQ(allocate(8), nullptr);
}

TEST(Buffers, Vectors)
{
    using W = SignalProcessingWrapper;
    check_vector_buffer(W::Malloc_8u);
    check_vector_buffer(W::Malloc_16u);
    check_vector_buffer(W::Malloc_32s);
    check_vector_buffer(W::Malloc_32f);
    check_vector_buffer(W::Malloc_64f);
    check_vector_buffer(W::Malloc_32fc);
    W::Free(nullptr);
    EXPECT_EQ(W::Malloc_64f(0x10000000), nullptr) << "2^31 bytes";
}

TEST(Buffers, ProductsOfSizesNeverWrap)
{
    const long long most = 0x7FFFFFFF;
    EXPECT_EQ(size_product(3, 5, 7), 105);
    EXPECT_EQ(size_product(most, 1), most);
    EXPECT_EQ(size_product(1 << 16, 1 << 15), most + 1);
    EXPECT_EQ(size_product(most, 0, most), 0);
    // Each of these is small, zero or negative in the low 32 or 64 bits.
    EXPECT_EQ(size_product(1 << 16, 1 << 16), kTooLarge);
    EXPECT_EQ(size_product(2147483642, 400000000, 12), kTooLarge);
    EXPECT_EQ(size_product(1074003968, 2147479553, 4), kTooLarge);
    EXPECT_EQ(size_product(most, most, most, most), kTooLarge);
    EXPECT_EQ(size_product(1LL << 62, 4), kTooLarge);
    for (const long long bytes : {0LL, 1LL, 63LL, 64LL, 65LL, most - 63, most - 62, most, 1LL << 62}) {
        const long long padded = padded_to_lines(bytes);
        EXPECT_EQ(padded % 64, 0) << bytes;
        EXPECT_TRUE(padded == kTooLarge ? bytes > most - 63 : padded >= bytes && padded < bytes + 64) << bytes;
    }
}

// --- In-place forms -------------------------------------------------------------------------------

// Rows that overlap, so that the region is copied; it is far beyond any memory, but the bytes of its copy come
// out negative, zero or small when they are counted in 32 or 64 bits.
TEST(InPlace, RegionsBeyondMemoryAreRefused)
{
    using W = ImageProcessingWrapper;
    std::vector<Complex32f> memory(8192, {1.f, 2.f});
    const std::vector<Complex32f> before = memory;
    Complex32f* const z = memory.data();
    float* const f = &z->re;
    unsigned char* const b = reinterpret_cast<unsigned char*>(z);
    unsigned short* const w = reinterpret_cast<unsigned short*>(z);
    const unsigned char bytes[4] = {1, 2, 3, 4};
    const unsigned counts[3] = {1, 2, 3};
    const float floats[3] = {2, 3, 4};

    struct Form {
        const char* name;
        bool always_true;
        std::function<bool(int, int)> call;
    };
    const Form forms[] = {
        {"MulC_32f_C3IR", false, [=](int x, int y) { return W::MulC_32f_C3IR(floats, f, 4, x, y); }},
        {"Div_32f_C3I", false, [=](int x, int y) { return W::Div_32f_C3I(f, 4, f, 4, x, y); }},
        {"Abs_32f_C1I", false, [=](int x, int y) { return W::Abs_32f_C1I(f, 4, x, y); }},
        {"Sqrt_32f_C1I", false, [=](int x, int y) { return W::Sqrt_32f_C1I(f, 4, x, y); }},
        {"Ln_32f_C1I", false, [=](int x, int y) { return W::Ln_32f_C1I(f, 4, x, y); }},
        {"Add_32f_C1I", false, [=](int x, int y) { return W::Add_32f_C1I(f, 4, f, 4, x, y); }},
        {"AddC_8u_C4I", false, [=](int x, int y) { return W::AddC_8u_C4I(bytes, b, 4, x, y, 0); }},
        {"Div_8u_C4I", false, [=](int x, int y) { return W::Div_8u_C4I(b, 4, b, 4, x, y, 0); }},
        {"Mirror_8u_C4I", false, [=](int x, int y) { return W::Mirror_8u_C4I(b, 4, x, y, 2); }},
        {"Not_8u_C4I", false, [=](int x, int y) { return W::Not_8u_C4I(b, 4, x, y); }},
        {"LShiftC_16u_C1IR", false, [=](int x, int y) { return W::LShiftC_16u_C1IR(1, w, 4, x, y); }},
        {"RShiftC_8u_C3IR", false, [=](int x, int y) { return W::RShiftC_8u_C3IR(counts, b, 4, x, y); }},
        {"ThresholdLess_32f_C3IR", false, [=](int x, int y) { return W::ThresholdLess_32f_C3IR(f, 4, x, y, floats); }},
        {"Add_32fc_C1I", true, [=](int x, int y) { return W::Add_32fc_C1I(z, 4, z, 4, x, y); }},
    };
    const Size sizes[] = {{2147483642, 400000000}, {2147483631, 1140000000}, {1074003968, 2147479553},
                          {537001984, 2147479553}, {358001322, 2147479553},  {1 << 30, 1 << 30},
                          {1 << 16, 1 << 16},      {0x7FFFFFFF, 0x7FFFFFFF}, {1, 1 << 25},
                          {0x7FFFFFFF, 1}};
    for (const Form& form : forms) {
        for (const Size& size : sizes) {
            EXPECT_EQ(form.call(size.width, size.height), form.always_true)
                << form.name << ' ' << size.width << " x " << size.height;
        }
    }
    EXPECT_EQ(std::memcmp(memory.data(), before.data(), memory.size() * sizeof(Complex32f)), 0);
}

// Steps below 1 are refused before a row is looked for where they lead: into the page in front of the image.
TEST(InPlace, StepsBelowOneAreNotFollowed)
{
    using W = ImageProcessingWrapper;
    const GuardedBlock block(256, false);
    unsigned char* const b = block.as<unsigned char>();
    float* const f = block.as<float>();
    const int order[3] = {2, 1, 0};
    for (const int step : {0, -4, -8}) {
        EXPECT_FALSE(W::And_8u_C1I(b, 16, b, step, 16, 2)) << step;
        EXPECT_FALSE(W::SwapChannels_8u_C3IR(b, step, 16, 2, order)) << step;
        EXPECT_FALSE(W::Div_8u_C1I(b, 16, b, step, 16, 2, 0)) << step;
        EXPECT_FALSE(W::Div_32f_C1I(f, 64, f, step, 16, 2)) << step;
        EXPECT_FALSE(W::Sqrt_32f_C1I(f, step, 16, 2)) << step;
        EXPECT_FALSE(W::ThresholdLess_32f_C1IR(f, step, 16, 2, 1.f)) << step;
    }
}

// How much memory a call asks for. There is none, so it touches nothing.
template <class Call>
std::size_t request_of(Call call)
{
    static std::size_t request;
    request = 0;
    const AllocationFailure none_left(0);
    orv_memory_functions.allocate = [](std::size_t bytes) -> void* {
        request = bytes;
        return nullptr;
    };
    call();
    return request;
}

// The copy of a vector has no padding: whatever an int can count is done in place.
TEST(InPlace, VectorsOfUpToTwoGigabytes)
{
    using W = SignalProcessingWrapper;
    double element = 1;
    void* const p = &element;
    unsigned char* const b = static_cast<unsigned char*>(p);
    unsigned short* const w = static_cast<unsigned short*>(p);
    float* const f = static_cast<float*>(p);
    struct Form {
        const char* name;
        int element_bytes;
        bool copies;
        std::function<void(int)> call;
    };
    const Form forms[] = {
        {"Add_8u_I", 1, false, [=](int n) { W::Add_8u_I(b, b, n, 0); }},
        {"AddC_16u_I", 2, false, [=](int n) { W::AddC_16u_I(1, w, n, 0); }},
        {"Abs_32f_I", 4, false, [=](int n) { W::Abs_32f_I(f, n); }},
        {"Ln_64f_I", 8, false, [=](int n) { W::Ln_64f_I(static_cast<double*>(p), n); }},
        {"MulPack_32f_I", 4, true, [=](int n) { W::MulPack_32f_I(f, f, n); }},
        {"WinHamming_32f_I", 4, true, [=](int n) { W::WinHamming_32f_I(f, n); }},
    };
    const int most = 0x7FFFFFFF;
    for (const Form& form : forms) {
        const int longest = most / form.element_bytes;
        const std::size_t expected =
            form.copies ? static_cast<std::size_t>(longest) * static_cast<std::size_t>(form.element_bytes) : 64;
        EXPECT_EQ(request_of([&] { form.call(longest); }), expected + 64 + sizeof(void*)) << form.name;
        if (longest < most) {
            EXPECT_EQ(request_of([&] { form.call(longest + 1); }), 0u) << form.name;
        }
        EXPECT_EQ(request_of([&] { form.call(0); }), 0u) << form.name;
    }
    EXPECT_EQ(element, 1);
}

// --- Image container ------------------------------------------------------------------------------

using Container = Orvane::ImageProcessing::Image;

void expect_empty(const Container& image)
{
    EXPECT_EQ(image.GetWidth(), 0);
    EXPECT_EQ(image.GetHeight(), 0);
    EXPECT_EQ(image.GetStride(), 0);
    EXPECT_EQ(image.GetChannels(), 0);
    EXPECT_EQ(image.GetType(), 0);
    EXPECT_EQ(image.GetData(), nullptr);
    EXPECT_EQ(image.GetData(3, 2), nullptr);
    EXPECT_EQ(const_cast<Container&>(image).GetData(), nullptr);
    EXPECT_EQ(const_cast<Container&>(image).GetData(3, 2), nullptr);
}

// The object as it lies in memory: virtual table, seven reserved words, the description.
struct Layout {
    void* virtual_table;
    int reserved[7];
    int* description;
};
static_assert(sizeof(Layout) == sizeof(Container), "");
static_assert(sizeof(void*) != 4 || sizeof(Container) == 36, "");

TEST(Image, IsEmptyHoweverMade)
{
    const Container plain, sized(640, 480, 1), copy(sized);
    expect_empty(plain);
    expect_empty(sized);
    expect_empty(copy);
    Container* const several = new Container[3];
    expect_empty(several[2]);
    delete[] several;
}

TEST(Image, AssignmentSharesTheDescription)
{
    alignas(Container) unsigned char memory[2][sizeof(Container)];
    Container* images[2];
    for (int i = 0; i < 2; ++i) {
        reinterpret_cast<Container*>(memory[i])->__autoclassinit2(sizeof(Container));
        images[i] = new (memory[i]) Container(i, i, i);
    }
    Layout* const first = reinterpret_cast<Layout*>(memory[0]);
    Layout* const second = reinterpret_cast<Layout*>(memory[1]);
    EXPECT_NE(first->description, second->description);
    EXPECT_EQ(first->reserved[6], 0);

    unsigned char pixels[64] = {};
    const int fields[6] = {8, 4, 16, 2, 2, 77};
    std::memcpy(first->description, fields, sizeof(fields));
    unsigned char* const data = pixels;
    std::memcpy(first->description + 6, &data, sizeof(data));
    first->reserved[3] = 1234;

    EXPECT_EQ(&(*images[1] = *images[0]), images[1]);
    EXPECT_EQ(second->reserved[3], 1234);
    EXPECT_EQ(images[1]->GetWidth(), 8);
    EXPECT_EQ(images[1]->GetHeight(), 4);
    EXPECT_EQ(images[1]->GetStride(), 16);
    EXPECT_EQ(images[1]->GetChannels(), 2);
    EXPECT_EQ(images[1]->GetType(), 77);
    EXPECT_EQ(images[1]->GetData(), pixels);
    EXPECT_EQ(images[1]->GetData(3, 2), pixels + 3 * 2 + 2 * 16);
    const Container copy(*images[0]);
    expect_empty(copy);
    images[0]->~Container();
    EXPECT_EQ(images[1]->GetWidth(), 8) << "the destructor releases nothing";
}

// --- Static-only classes --------------------------------------------------------------------------

template <class Class>
constexpr bool without_instances =
    !std::is_default_constructible<Class>::value && !std::is_copy_constructible<Class>::value &&
    !std::is_destructible<Class>::value && std::is_copy_assignable<Class>::value;
static_assert(without_instances<ImageProcessingWrapper> && without_instances<SignalProcessingWrapper>, "");
static_assert(without_instances<MatrixWrapper> && without_instances<MKLWrapper>, "");

TEST(Exports, FreeFunctionAndVariable)
{
    EXPECT_EQ(nImageProcessingWrapper, 0);
    EXPECT_EQ(fnImageProcessingWrapper(), 42);
}

}  // namespace
}  // namespace test
