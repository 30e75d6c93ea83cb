#include "matrices_peers.h"

#include <Eigen/Dense>

namespace bench {
namespace {

template <class T, int N> using Matrix = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
template <class T, int N> using Map = Eigen::Map<Matrix<T, N>>;
template <class T, int N> using ConstMap = Eigen::Map<const Matrix<T, N>>;
template <class T, int N> using Vector = Eigen::Map<Eigen::Matrix<T, N, 1>>;
template <class T, int N> using ConstVector = Eigen::Map<const Eigen::Matrix<T, N, 1>>;

template <int N>
Eigen::PartialPivLU<Matrix<float, N>>& factors(int n, const float* a)
{
    static Eigen::PartialPivLU<Matrix<float, N>> lu;
    static int size = 0;
    if (size != n) lu.compute(ConstMap<float, N>(a, n, n));
    size = n;
    return lu;
}

template <int N>
Peer peer(const char* name)
{
    return {
        name,
        [](int n, const float* a, const float* b, float* d) {
            Map<float, N>(d, n, n) = ConstMap<float, N>(a, n, n) + ConstMap<float, N>(b, n, n);
        },
        [](int n, const float* a, const float* b, float* d) {
            Map<float, N>(d, n, n).noalias() = ConstMap<float, N>(a, n, n) * ConstMap<float, N>(b, n, n);
        },
        [](int n, const float* a, const float*, float* d) {
            Map<float, N>(d, n, n) = ConstMap<float, N>(a, n, n).partialPivLu().matrixLU();
        },
        [](int n, const float* a, const float*, float* d) {
            Vector<float, N>(d, n) = factors<N>(n, a).solve(ConstVector<float, N>(a, n));
        },
        [](int n, const float* a, const float*, float* d) {
            Map<float, N>(d, n, n) = ConstMap<float, N>(a, n, n).inverse();
        },
        [](int n, const float* a, const float*, float* d) {
            Map<float, N>(d, n, n) = ConstMap<float, N>(a, n, n).transpose();
        },
        [](int n, const double* a, const double*, double* d) {
            Map<double, N>(d, n, n) = ConstMap<double, N>(a, n, n).inverse();
        },
        [](int n, const double* a, const double* b, double* d) {
            Map<double, N>(d, n, n).noalias() = ConstMap<double, N>(a, n, n).transpose() * ConstMap<double, N>(b, n, n);
        },
        [](int n, const double* a, const double* b, double* d) {
            Vector<double, N>(d, n).noalias() = ConstMap<double, N>(a, n, n) * ConstVector<double, N>(b, n);
        },
        [](int n, const double* a, const double* b, double* d) {
            Vector<double, N>(d, n).noalias() = ConstMap<double, N>(a, n, n).transpose() * ConstVector<double, N>(b, n);
        }};
}

}  // namespace

std::vector<Peer> eigen_peers(int n)
{
    std::vector<Peer> all = {peer<Eigen::Dynamic>("eigen")};
    if (n == 3) all.push_back(peer<3>("eigen-fixed"));
    if (n == 4) all.push_back(peer<4>("eigen-fixed"));
    if (n == 8) all.push_back(peer<8>("eigen-fixed"));
    return all;
}

void eigen_factor(int n, const float* a, float* d)
{
    Eigen::Map<Eigen::MatrixXf>(d, n, n) = Eigen::Map<const Eigen::MatrixXf>(a, n, n).partialPivLu().matrixLU();
}

}  // namespace bench
