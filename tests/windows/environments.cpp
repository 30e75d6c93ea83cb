// A method of every family, in the floating-point environments and on the stacks that hosts bring: the same
// bits, and afterwards the host's control words and an empty x87 stack.
#include "FFT2Wrapper.h"
#include "FFTWrapper.h"
#include "ImageProcessingWrapper.h"
#include "MKLWrapper.h"
#include "MatrixWrapper.h"
#include "RandomNumberGenerator.h"
#include "SignalProcessingWrapper.h"
#include "runtime.h"

namespace {

using I = ImageProcessingWrapper;
using S = SignalProcessingWrapper;
using M = MatrixWrapper;

// What the methods read: 8 rows of 32 bytes, 16 words, 8 floats or 4 doubles. The floats hold a zero, a
// signalling and a quiet NaN, an infinity, subnormals and the largest, so whatever can be raised would be.
struct Input {
    unsigned char bytes[256];
    unsigned short words[128];
    int integers[64];
    float floats[64];
    float tame[64];
    double doubles[32];
    Complex32f complex[32];
};
Input in;
unsigned char out[2048];
float* const out_floats = reinterpret_cast<float*>(out);
double* const out_doubles = reinterpret_cast<double*>(out);
unsigned short* const out_words = reinterpret_cast<unsigned short*>(out);
int* const out_integers = reinterpret_cast<int*>(out);
Complex32f* const out_complex = reinterpret_cast<Complex32f*>(out);

void prepare()
{
    unsigned seed = 1;
    for (unsigned char& b : in.bytes) b = static_cast<unsigned char>((seed = seed * 1664525 + 1013904223) >> 24);
    for (unsigned short& w : in.words) w = static_cast<unsigned short>((seed = seed * 1664525 + 1013904223) >> 16);
    for (int& i : in.integers) i = static_cast<int>(seed = seed * 1664525 + 1013904223);
    const unsigned special[] = {0,          0x80000000, 0x7FA00001, 0x7FC00000, 0x7F800000,
                                0xFF800000, 1,          0x007FFFFF, 0x7F7FFFFF, 0x00800000};
    for (int i = 0; i < 64; ++i) {
        in.tame[i] = static_cast<float>(in.bytes[i]) / 7 - 11;
        in.floats[i] = in.tame[i];
        if (i % 6 == 5) memcpy(&in.floats[i], &special[i / 6 % 10], 4);
    }
    for (int i = 0; i < 32; ++i) {
        in.doubles[i] = in.tame[i] * 1.1;
        in.complex[i] = {in.floats[2 * i], in.floats[2 * i + 1]};
    }
    in.doubles[3] = 0;
}

struct Case {
    const char* name;
    void (*run)();
};

const Case cases[] = {
    {"integer arithmetic", [] { I::Div_8u_C1(in.bytes, 32, in.bytes + 1, 32, out, 32, 31, 7, 1); }},
    {"multiplication of words", [] { I::Mul_16u_C1(in.words, 32, in.words + 1, 32, out_words, 32, 15, 8, 9); }},
    {"float arithmetic", [] { I::Div_32f_C1(in.floats, 32, in.tame, 32, out_floats, 32, 8, 8); }},
    {"a float by value", [] { I::DivC_32f_C1(in.floats, 32, 3.f, out_floats, 32, 8, 8); }},
    {"complex arithmetic", [] { I::Div_32fc_C1(in.complex, 32, in.complex + 1, 32, out_complex, 32, 4, 7); }},
    {"a structure by value",
     [] { I::AddC_32fc_C1(in.complex, 32, {1.5f, 3e38f}, out_complex, 32, 4, 8); }},
    {"bits",
     [] {
         I::XorC_8u_C3(in.bytes, 32, in.bytes + 5, out, 32, 10, 8);
         I::LShiftC_8u_C1R(out, 32, 3, out + 512, 32, 30, 8);
     }},
    {"comparison",
     [] {
         I::CompareLess_32f_C1(in.floats, 32, in.tame + 1, 32, out, 32, 7, 7);
         I::CompareCLess_32f_C1R(in.floats, 32, 2.f, out + 512, 32, 8, 8);
     }},
    {"thresholds",
     [] {
         I::ThresholdLess_32f_C1R(in.floats, 32, out_floats, 32, 8, 8, 1.f);
         I::Threshold_LTValGTVal_32f_C1R(in.floats, 32, out_floats + 128, 32, 8, 8, -2, -3, 4, 5);
     }},
    {"conversion",
     [] {
         I::Convert_32f8u_C3(in.floats, 32, out, 32, 2, 8);
         I::Transpose_32f_C1R(in.floats, 32, out_floats + 128, 32, 8, 8);
     }},
    {"borders", [] { I::CopyReplicateBorder_32f_C1(in.floats, 32, 8, 8, out_floats, 48, 12, 12, 2, 2); }},
    {"elementary functions of images",
     [] {
         I::Exp_32f_C1(in.floats, 32, out_floats, 32, 8, 8);
         memcpy(out + 512, in.floats, 256);
         I::Ln_32f_C1I(out_floats + 128, 32, 8, 8);
         memcpy(out + 1024, in.floats, 256);
         I::Sqrt_32f_C1I(out_floats + 256, 32, 8, 8);
     }},
    {"sums",
     [] {
         I::Sum_32f_C1R(in.floats, 32, 8, 8, out_doubles, true);
         I::Mean_32f_C1R(in.tame, 32, 8, 8, out_doubles + 1, false);
         I::Mean_StdDev_8u_C1R(in.bytes, 32, 32, 8, out_doubles + 2, out_doubles + 3);
     }},
    {"extremes",
     [] {
         I::Min_16u_C1(in.words, 32, 16, 8, out_words);
         I::MinMax_32f_C1(in.floats, 32, 8, 8, out_floats + 1, out_floats + 2);
     }},
    {"histograms", [] { I::HistogramEven_8u_C1(in.bytes, 32, 32, 8, out_integers, out_integers + 64, 17, 0, 256); }},
    {"integer filters",
     [] {
         I::FilterLowpass5x5_8u_C3R(in.bytes + 70, 32, out, 32, 6, 4);
         I::FilterGauss5x5_16u_C1R(in.words + 34, 32, out_words + 256, 32, 12, 4);
     }},
    {"float filters",
     [] {
         I::FilterLowpass3x3_32f_C1R(in.floats + 9, 32, out_floats, 32, 6, 6);
         I::FilterSobelCross3x3_32f_C1R(in.floats + 9, 32, out_floats + 128, 32, 6, 6);
     }},
    {"rank filters",
     [] {
         I::FilterMedian_32f_C1(in.floats + 9, 32, out_floats, 32, 6, 6, 3, 3);
         I::FilterMedian_32f_C1(in.floats + 9, 32, out_floats + 64, 32, 4, 6, 5, 1);
         I::Erode3x3_32f_C1(in.floats, 32, out_floats + 128, 32, 8, 8);
         I::Dilate3x3_8u_C3(in.bytes, 32, out + 1024, 32, 10, 8);
     }},
    {"edges",
     [] {
         I::Canny_32f8u_C1(in.floats, 32, out, 32, 8, 8, 1, 100);
         I::Canny_32f8u_C1(in.tame, 32, out + 512, 32, 8, 8, 0, 0);
     }},
    {"nearest pixels", [] { I::ResizeNN_8u_C3R(in.bytes, 10, 8, 32, out, 64, 17, 13, 1.7, 1.7); }},
    {"linear interpolation",
     [] {
         I::Resize_8u_C3(in.bytes, 32, 10, 8, out, 64, 17, 13, 1.7f, 0, 0, true);
         I::Resize_32f_C1(in.tame, 32, 8, 8, out_floats + 256, 48, 12, 12, 1.5f, 0, 0, true);
     }},
    {"cubic interpolation", [] { I::ResizeCubic_16u_C1R(in.words, 16, 8, 32, out_words, 64, 27, 13, 1.7, 1.7); }},
    {"resampling",
     [] {
         int size = 0;
         I::ResizeGetBufSize(0, 0, 16, 8, 0, 0, 20, 10, 1, 2, &size);
         unsigned char* const buffer = S::Malloc_8u(size);
         I::ResizeSqrPixel_16u_C1R(in.words, 16, 8, 32, 0, 0, 16, 8, out_words, 40, 0, 0, 20, 10, 1.25, 1.25, 0.25, 0,
                                   2, buffer);
         S::Free(buffer);
     }},
    {"integer vectors",
     [] {
         S::Div_32s(in.integers, in.integers + 1, out_integers, 63, 3);
         S::DivC_16u(in.words, 7, out_words + 256, 128, 1);
     }},
    {"float vectors",
     [] { S::DivCRev_32f(in.floats, 2.f, out_floats, 64); S::AddProduct_32f(in.floats, in.tame, out_floats, 64); }},
    {"double vectors",
     [] {
         S::Div_64f(in.doubles, in.doubles + 1, out_doubles, 31);
         S::MulC_64f(in.doubles, 1.7, out_doubles + 32, 32);
     }},
    {"exponential and logarithm",
     [] {
         S::Exp_32f(in.floats, out_floats, 64);
         S::Exp_64f(in.doubles, out_doubles + 32, 32);
         S::Ln_64f(in.doubles, out_doubles + 64, 32);
         S::Sqrt_64f(in.doubles, out_doubles + 96, 32);
     }},
    {"sine and cosine",
     [] {
         S::SinCos_32f_A11(in.floats, out_floats, out_floats + 64, 64);
         S::SinCos_64f_A50(in.doubles, out_doubles + 64, out_doubles + 96, 32);
     }},
    {"angle, length, floor",
     [] {
         S::Atan2_32f_A24(in.floats, in.tame, out_floats, 64);
         S::Hypot_32f_A24(in.floats, in.tame, out_floats + 64, 64);
         S::Floor_32f(in.floats, out_floats + 128, 64);
     }},
    {"spectra",
     [] {
         S::MulPack_32f(in.floats, in.tame, out_floats, 64);
         S::Magnitude_32f(in.floats, in.tame, out_floats + 64, 64);
         S::WinHamming_32f(in.floats, out_floats + 128, 64);
     }},
    {"matrix products",
     [] {
         M::Mul_mm_32f(in.floats, 32, 4, 8, 8, in.tame, 32, 4, 8, 8, out_floats, 32, 4);
         M::Mul_mc_32f(in.floats, 32, 4, 3.f, out_floats + 128, 32, 4, 8, 8);
     }},
    {"matrix inversion",
     [] {
         M::Invert_m_32f(in.tame, 32, 4, out_floats, 32, 4, 8);
         M::Invert_m_64f(in.doubles + 4, 40, 8, out_doubles + 64, 40, 8, 5);
         M::Invert_m_32f(in.floats, 32, 4, out_floats + 256, 32, 4, 8);
     }},
    {"singular values",
     [] {
         char job = 'A';
         int n = 8, work_length = 400, info = 0;
         static float a[64], u[64], vt[64], work[400];
         memcpy(a, in.tame, sizeof(a));
         MKLWrapper::Sgesvd(&job, &job, &n, &n, a, &n, out_floats, u, &n, vt, &n, work, &work_length, &info);
         memcpy(out + 64, u, sizeof(u));
     }},
    {"linear systems",
     [] {
         char no = 'N';
         int n = 8, one = 1, info = 0;
         memcpy(out, in.floats, 256);
         memcpy(out + 512, in.tame, 32);
         MKLWrapper::Sgetrf(&n, &n, out_floats, &n, out_integers + 256, &info);
         MKLWrapper::Sgetrs(&no, &n, &one, out_floats, &n, out_integers + 256, out_floats + 128, &n, &info);
     }},
    {"power spectra",
     [] {
         FFTWrapper transform(64);
         transform.PsdFFT(in.tame, in.tame, out_floats, 64);
         transform.Init(32);
         transform.PsdFFT(in.floats, in.tame, out_floats + 64, 32);
     }},
    {"transforms of images",
     [] {
         FFT2Wrapper transform(8, 8, false);
         transform.Forward(in.tame, 32, out_floats, 32, 8, 8);
         transform.Inverse(in.floats, 32, out_floats + 128, 32, 8, 8);
     }},
    {"random numbers",
     [] {
         RandomNumberGenerator generator;
         generator.Init(5);
         generator.GenerateGaussian(60, out_doubles, 1.5, 2.5);
     }},
};

struct Control {
    unsigned short x87;
    unsigned short tags;  // FFFF: nothing on the stack
    unsigned sse;
};

// Calls run() under the given control words, on a stack that is `displacement` bytes from a multiple of 16,
// and says what the words are afterwards.
__attribute__((naked)) void call_under(void (*)(), const Control*, Control*, unsigned)
{
    __asm__ volatile(
        "pushl %ebp\n movl %esp, %ebp\n pushl %ebx\n pushl %esi\n pushl %edi\n subl $40, %esp\n"
        "fnstcw -16(%ebp)\n stmxcsr -20(%ebp)\n"
        "movl 8(%ebp), %eax\n movl 12(%ebp), %ecx\n"
        "andl $-16, %esp\n subl $16, %esp\n addl 20(%ebp), %esp\n fnclex\n"
        "fldcw (%ecx)\n ldmxcsr 4(%ecx)\n"
        "call *%eax\n"
        "movl 16(%ebp), %ecx\n fnstcw (%ecx)\n stmxcsr 4(%ecx)\n"
        "fnclex\n fldcw -16(%ebp)\n ldmxcsr -20(%ebp)\n"
        "leal -52(%ebp), %esp\n subl $32, %esp\n fnstenv (%esp)\n movw 8(%esp), %ax\n movw %ax, 2(%ecx)\n fldenv "
        "(%esp)\n"
        "leal -12(%ebp), %esp\n popl %edi\n popl %esi\n popl %ebx\n popl %ebp\n ret\n");
}

}  // namespace

void check_environments()
{
    const struct {
        const char* name;
        Control control;
    } settings[] = {
        {"24 bits", {0x007F, 0, 0x1F80}},
        {"53 bits", {0x027F, 0, 0x1F80}},
        {"64 bits", {0x037F, 0, 0x1F80}},
        {"unmasked exceptions", {0x0340, 0, 0x0000}},
        {"upwards, flushing", {0x0B7F, 0, 0xDFC0}},
        {"towards zero, unmasked", {0x0C60, 0, 0x6D80}},
    };
    prepare();
    const Control usual = {0x027F, 0, 0x1F80};
    static unsigned char want[sizeof(out)];
    for (const Case& c : cases) {
        Control after;
        memset(out, 0xA5, sizeof(out));
        call_under(c.run, &usual, &after, 0);
        memcpy(want, out, sizeof(out));
        for (const auto& setting : settings) {
            for (unsigned displacement = 0; displacement < 16; displacement += 4) {
                memset(out, 0xA5, sizeof(out));
                call_under(c.run, &setting.control, &after, displacement);
                const bool same = memcmp(out, want, sizeof(out)) == 0;
                const bool kept = after.x87 == setting.control.x87 && (after.sse & ~0x3Fu) == setting.control.sse &&
                                  after.tags == 0xFFFF;
                if (!same) printf("%s with %s, stack at 16n + %u: other results\n", c.name, setting.name, displacement);
                if (!kept)
                    printf("%s with %s, stack at 16n + %u: %04x %04x %04x\n", c.name, setting.name, displacement,
                           after.x87, after.sse, after.tags);
                expect(same && kept, c.name);
            }
        }
        bool written = false;
        for (const unsigned char byte : want) written = written || byte != 0xA5;
        expect(written, c.name);
    }
}
