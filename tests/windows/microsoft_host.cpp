// A host of the Microsoft ABI: links orvane.lib, calls a method of every class in every calling shape, has
// images made, shared and destroyed.
#include "FFT2Wrapper.h"
#include "FFTWrapper.h"
#include "Image.h"
#include "ImageProcessingWrapper.h"
#include "MKLWrapper.h"
#include "MatrixWrapper.h"
#include "RandomNumberGenerator.h"
#include "SignalProcessingWrapper.h"
#include "runtime.h"

extern "C" {
int _fltused = 1;

// What the DLL exports for those who know the processor: entry points that remove their arguments
// themselves, and their tables.
__declspec(dllimport) int __stdcall px_ippsAtan2_32f_A24(const float* src1, const float* src2, float* dst, int len);
__declspec(dllimport) int __stdcall w7_ippsAtan2_32f_A24(const float* src1, const float* src2, float* dst, int len);
__declspec(dllimport) int __stdcall w7_ippsExp_32f_A21(const float* src, float* dst, int len);
__declspec(dllimport) int __stdcall px_ippsFloor_32f(const float* src, float* dst, int len);
__declspec(dllimport) extern const float own_ipps_sExp_W7_ctab[3];
__declspec(dllimport) extern void* const own_ipps_sFloor_PX_ttab[3];
}

void* operator new(unsigned bytes) { return malloc(bytes); }
void* operator new[](unsigned bytes) { return malloc(bytes); }
void* operator new(unsigned, void* place) noexcept { return place; }
void operator delete(void* block) noexcept { free(block); }
void operator delete[](void* block) noexcept { free(block); }
void operator delete(void* block, unsigned) noexcept { free(block); }
void operator delete[](void* block, unsigned) noexcept { free(block); }

int passed, failed;
void check_environments();

namespace {

using Orvane::ImageProcessing::Image;

void check_image_methods()
{
    const unsigned char a[4] = {200, 201, 203, 10}, b[4] = {100, 100, 0, 3}, value[3] = {1, 2, 3};
    unsigned char d[12] = {};
    expect(ImageProcessingWrapper::Add_8u_C1(a, 4, b, 4, d, 4, 4, 1, 1) && d[1] == 150, "two images");
    expect(ImageProcessingWrapper::AddC_8u_C1(a, 4, 60, d, 4, 4, 1, 0) && d[3] == 70, "a constant by value");
    expect(ImageProcessingWrapper::AddC_8u_C3(a, 4, value, d, 4, 1, 1, 0) && d[2] == 206, "constants by pointer");
    expect(!ImageProcessingWrapper::Div_8u_C1(b, 4, a, 4, d, 4, 4, 1, 0) && d[2] == 255, "a warning gives false");
    expect(ImageProcessingWrapper::MulC_8u_C1I(2, d, 4, 4, 1, 0), "in place");
    expect(!ImageProcessingWrapper::AddC_8u_C1(nullptr, 4, 60, d, 4, 4, 1, 0), "an error gives false");
    const float colour[3] = {1.5f, 2.5f, 70000.f};
    float pixels[3];
    expect(ImageProcessingWrapper::Set_32f_C3(colour, pixels, 12, 1, 1), "floats");
    unsigned short narrow[3];
    expect(
        ImageProcessingWrapper::Convert_32f16u_C1(pixels, 12, narrow, 6, 3, 1) && narrow[1] == 2 && narrow[2] == 65535,
        "narrowing");
    const Complex32f source = {1, 2};
    Complex32f sum = {};
    expect(ImageProcessingWrapper::AddC_32fc_C1(&source, 8, {10, 20}, &sum, 8, 1, 1) && sum.re == 11 && sum.im == 22,
           "a structure by value");
    double mean = 0;
    expect(ImageProcessingWrapper::Mean_32f_C1R(pixels, 8, 2, 1, &mean, true) && mean == 2,
           "a result by pointer, a hint");
    int step = 0;
    unsigned char* const buffer = ImageProcessingWrapper::Malloc_8u_C3(22, 2, &step);
    expect(buffer != nullptr && step == 128 && reinterpret_cast<unsigned>(buffer) % 64 == 0, "a buffer");
    ImageProcessingWrapper::Free(buffer);
    expect(fnImageProcessingWrapper() == 42 && nImageProcessingWrapper == 0, "the free function and the variable");
    unsigned char large[35], source_pixel[12] = {9, 8, 7};
    expect(ImageProcessingWrapper::ResizeNN_8u_C3R(source_pixel, 1, 1, 3, large, 6, 2, 2, 2.0, 2.0) && large[9] == 9,
           "doubles by value");
}

void check_other_classes()
{
    double* const vector = SignalProcessingWrapper::Malloc_64f(10);
    for (int i = 0; i < 10; ++i) vector[i] = i;
    expect(SignalProcessingWrapper::MulC_64f_I(vector, 2.5, 10) && vector[9] == 22.5, "a vector");
    SignalProcessingWrapper::Free(vector);
    unsigned char bytes[2] = {10, 20};
    expect(!SignalProcessingWrapper::SubC_8u_I(3, bytes, 2, 0) && bytes[1] == 17, "an inverted result");
    expect(SignalProcessingWrapper::SubC_8u_I(3, bytes, 0, 0), "an inverted refusal");

    const float m[4] = {2, 0, 0, 4};
    float inverse[4];
    expect(MatrixWrapper::Invert_m_32f(m, 8, 4, inverse, 8, 4, 2) && inverse[3] == 0.25f, "a matrix");
    float lu[4] = {2, 0, 0, 4};
    int two = 2, pivots[2] = {}, info = 1;
    MKLWrapper::Sgetrf(&two, &two, lu, &two, pivots, &info);
    expect(info == 0 && lu[3] == 4 && pivots[1] == 2, "LAPACK");

    FFT2Wrapper plane(4, 4, false);
    float image[16] = {1}, spectrum[16] = {};
    plane.Forward(image, 16, spectrum, 16, 4, 4);
    expect(spectrum[0] == 1 && spectrum[15] == 1, "a transform of an image");
    RandomNumberGenerator generator, other;
    double r[2] = {}, s[2] = {};
    expect(generator.Init(7) && generator.GenerateGaussian(2, r, 0, 1) && r[0] != r[1], "random numbers");
    expect(other.Init(7) && other.GenerateGaussian(2, s, 0, 1) && memcmp(r, s, sizeof(r)) == 0, "the same again");

    const float x[3] = {1, 2.5f, 2}, y[3] = {1, 4, 0};
    float direct[3], method[3], floors[3];
    SignalProcessingWrapper::Atan2_32f_A24(x, y, method, 3);
    expect(px_ippsAtan2_32f_A24(x, y, direct, 3) == 0 && memcmp(direct, method, sizeof(direct)) == 0,
           "the plain entry point");
    expect(w7_ippsAtan2_32f_A24(x, y, direct, 3) == 0 && memcmp(direct, method, sizeof(direct)) == 0,
           "an entry point of a level");
    expect(w7_ippsExp_32f_A21(nullptr, direct, 3) == -8 && own_ipps_sExp_W7_ctab[2] == 7.2f,
           "an entry point with three arguments, and a table");
    expect(reinterpret_cast<int (*)(const float*, float*, int)>(own_ipps_sFloor_PX_ttab[1])(x, floors, 3) == 0 &&
               floors[1] == 2,
           "an implementation");
    expect(px_ippsFloor_32f(x, floors, 3) == 0 && floors[1] == 2, "the entry point of the same");
}

// Blocks whose last bin is not zero have the whole length transformed: their order is right. (The longer
// ones, up to 2^28, are the test program's.)
void check_orders()
{
    for (int order = 0; order <= 18; ++order) {
        const int n = 1 << order;
        float* const signal = SignalProcessingWrapper::Malloc_32f(n);
        float* const window = SignalProcessingWrapper::Malloc_32f(n);
        for (int i = 0; i < n; ++i) signal[i] = 0, window[i] = 1;
        signal[0] = 1;
        FFTWrapper transform(n);
        transform.PsdFFT(signal, window, signal, n);
        expect(order == 0 ? signal[0] == 0 : signal[n - 1] > 0.9f, "an order");
        SignalProcessingWrapper::Free(window);
        SignalProcessingWrapper::Free(signal);
    }
}

// Blocks that are free have no size any more.
bool is_free(void* block) { return _msize(block) == ~0u; }

void check_images()
{
    expect(sizeof(Image) == 36 && sizeof(FFTWrapper) == 4 && sizeof(FFT2Wrapper) == 16 &&
               sizeof(RandomNumberGenerator) == 4,
           "sizes");
    Image* const one = new Image(640, 480, 1);
    Image* const other = new Image(*one);
    *other = *one;
    expect(other->GetWidth() == 0 && other->GetData(3, 2) == nullptr &&
               memcmp(static_cast<void*>(one), static_cast<void*>(other), 36) == 0,
           "images that share");
    expect(_msize(one) != ~0u, "a block in use has a size");
    delete one;
    delete other;
    expect(is_free(one) && is_free(other), "deleted through the virtual destructor");
    delete[] new Image[3];

    // Microsoft compilers leave an array to its virtual destructor; clang does not, so by hand.
    using Destroy = void*(__thiscall*)(Image*, unsigned flags);
    const auto destroy = [](Image* image, unsigned flags) {
        return (**reinterpret_cast<Destroy**>(image))(image, flags);
    };
    for (unsigned length = 0; length < 5; ++length) {
        unsigned* const block = static_cast<unsigned*>(malloc(4 + 36 * 5));
        *block = length;
        Image* const images = reinterpret_cast<Image*>(block + 1);
        new (images) Image;  // an empty array, too, needs a table to be called through
        for (unsigned i = 1; i < length; ++i) new (images + i) Image;
        destroy(images, 2);
        expect(!is_free(block), "an array destroyed and kept");
        expect(destroy(images, 3) == block && is_free(block), "an array destroyed and released");
    }
    Image* const single = new Image;
    expect(destroy(single, 0) == single && !is_free(single), "an image destroyed and kept");
    expect(destroy(single, 1) == single && is_free(single), "an image destroyed and released");

    unsigned char raw[36];
    memset(raw, 1, sizeof(raw));
    reinterpret_cast<Image*>(raw)->__autoclassinit2(35);
    expect(raw[34] == 0 && raw[35] == 1, "zeros before construction");
}

}  // namespace

extern "C" void host_main()
{
    check_image_methods();
    check_other_classes();
    check_orders();
    check_images();
    check_environments();
    printf("%d passed, %d failed\n", passed, failed);
    exit(failed != 0);
}
