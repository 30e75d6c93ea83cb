// Elementary functions against glibc's vector math (through loops that the compiler vectorises, in a file of
// its own, elementary_peers.cpp) and SLEEF. Their accuracy, in units in the last place: libmvec up to 4,
// SLEEF u10 1, u35 3.5, u3500 3500. "loop" computes in double and rounds, as our A24 class does.
#include <cmath>
#include <random>

#include "ImageProcessingWrapper.h"
#include "SignalProcessingWrapper.h"
#include "elementary_peers.h"
#include "harness.h"

namespace {

using W = SignalProcessingWrapper;

// An image of one row: a vector.
template <class T>
std::shared_ptr<std::vector<T>> numbers(int n, double low, double high)
{
    auto v = std::make_shared<std::vector<T>>(static_cast<std::size_t>(n));
    std::mt19937 g(1);
    std::uniform_real_distribution<double> d(low, high);
    for (T& x : *v) x = static_cast<T>(d(g));
    return v;
}

constexpr int kLengths[] = {64, 4096, 1 << 20};

template <class T, class Ours>
void one(const char* name, double low, double high, Ours ours,
         std::initializer_list<std::pair<const char*, void (*)(const T*, T*, int)>> peers)
{
    for (const int n : kLengths) {
        auto x = numbers<T>(n, low, high), y = numbers<T>(n, 0, 1);
        bench::add(name, std::to_string(n), "orvane", [=] { ours(x->data(), y->data(), n); });
        for (const auto& peer : peers) {
            const auto call = peer.second;
            bench::add(name, std::to_string(n), peer.first, [=] { call(x->data(), y->data(), n); });
        }
    }
}

template <class T, class Ours>
void three(const char* name, double low, double high, Ours ours,
           std::initializer_list<std::pair<const char*, void (*)(const T*, T*, T*, int)>> peers)
{
    for (const int n : kLengths) {
        auto x = numbers<T>(n, low, high), y = numbers<T>(n, low + 1, high), z = numbers<T>(n, 0, 1);
        bench::add(name, std::to_string(n), "orvane", [=] { ours(x->data(), y->data(), z->data(), n); });
        for (const auto& peer : peers) {
            const auto call = peer.second;
            bench::add(name, std::to_string(n), peer.first, [=] { call(x->data(), y->data(), z->data(), n); });
        }
    }
}

const bool registered = [] {
    using namespace peers;
    one<float>("Exp_32f", -10, 10, W::Exp_32f, {{"libmvec", mvec_expf}, {"sleef-u10", sleef_expf}});
    one<float>("Exp_32f_C1", -10, 10,
               [](const float* x, float* y, int n) { ImageProcessingWrapper::Exp_32f_C1(x, 4 * n, y, 4 * n, n, 1); },
               {{"libmvec", mvec_expf}, {"sleef-u10", sleef_expf}});
    one<float>("Ln_32f_C1I", 1, 100, [](const float* x, float* y, int n) {
        for (int i = 0; i < n; ++i) y[i] = x[i];
        ImageProcessingWrapper::Ln_32f_C1I(y, 4 * n, n, 1);
    }, {{"libmvec", mvec_logf}, {"sleef-u10", sleef_logf}});
    one<float>("Exp_32f_A21", -10, 10, h9_ippsExp_32f_A21, {{"libmvec", mvec_expf}, {"sleef-u10", sleef_expf}});
    one<float>("Ln_32f_A21", 1, 100, h9_ippsLn_32f_A21, {{"libmvec", mvec_logf}, {"sleef-u35", sleef_logf_u35}});
    one<double>("Exp_64f", -10, 10, W::Exp_64f, {{"libmvec", mvec_exp}, {"sleef-u10", sleef_exp}});
    one<double>("Ln_64f", 1, 100, W::Ln_64f, {{"libmvec", mvec_log}, {"sleef-u10", sleef_log}});
    one<double>("Sqrt_64f", 1, 100, W::Sqrt_64f, {{"loop", loop_sqrt}});
    one<float>("Sin_32f_A11", -10, 10, W::Sin_32f_A11, {{"libmvec", mvec_sinf}, {"sleef-u3500", sleef_sinf}});
    one<float>("Cos_32f_A11", -10, 10, W::Cos_32f_A11, {{"libmvec", mvec_cosf}, {"sleef-u3500", sleef_cosf}});
    three<float>("SinCos_32f_A11", -10, 10, W::SinCos_32f_A11,
                 {{"libmvec-x2", mvec_sincosf}, {"sleef-u35", sleef_sincosf}});
    three<double>("SinCos_64f_A50", -10, 10, W::SinCos_64f_A50,
                  {{"libmvec-x2", mvec_sincos}, {"sleef-u10", sleef_sincos}});
    three<float>("Atan2_32f_A24", -10, 10, [](float* x, float* y, float* z, int n) { W::Atan2_32f_A24(x, y, z, n); },
                 {{"libmvec", mvec_atan2f}, {"sleef-u10", sleef_atan2f}});
    three<float>("Hypot_32f_A24", -10, 10, [](float* x, float* y, float* z, int n) { W::Hypot_32f_A24(x, y, z, n); },
                 {{"loop", loop_hypot}});
    one<float>("Abs_32f", -10, 10, W::Abs_32f, {{"loop", loop_abs}});
    one<float>("Floor_32f", -10, 10, [](float* x, float* y, int n) { W::Floor_32f(x, y, n); }, {{"loop", loop_floor}});
    return true;
}();

}  // namespace
