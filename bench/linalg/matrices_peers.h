// Eigen's side of the matrix benchmark, compiled for AVX2 with fused multiply-add.
#pragma once

#include <vector>

namespace bench {

struct Peer {
    const char* name;
    using Call = void (*)(int n, const float* a, const float* b, float* d);
    using CallDouble = void (*)(int n, const double* a, const double* b, double* d);
    Call sum, product, decompose, substitute, invert, transpose;
    CallDouble invert_64f, transposed_product_64f, matrix_vector_64f, transposed_vector_64f;
};

// Sizes known at run time and, for 3, 4, 8 and 32, at compile time.
std::vector<Peer> eigen_peers(int n);

void eigen_factor(int n, const float* a, float* d);

}  // namespace bench
