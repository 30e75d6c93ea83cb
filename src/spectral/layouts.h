// The layouts in which real-data spectra are kept. N real samples have N independent real numbers in
// their spectrum, since X[N-k] = conj(X[k]); the three layouts differ in where these stand.
//
// CCS (complex, conjugate-symmetric): the first half with both ends, N + 2 floats for even N. The two
// imaginary parts that symmetry makes zero are written as zeros.
//
//     0     1     2     3          2k    2k+1        N        N+1
//     Re0   0     Re1   Im1  ...   Rek   Imk   ...   Re N/2   0
//
// Pack: the same without those zeros, N floats. For odd N the last pair ends the row.
//
//     0     1     2           2k-1  2k          N-1
//     Re0   Re1   Im1   ...   Rek   Imk   ...   Re N/2 (even N only)
//
// RCPack2D: a W x H spectrum F[v][u] in a W x H image, here 6 x 6 with "R21" for Re F[2][1]. Every
// row holds complex values from its second column on. The columns u = 0 and u = W/2 are spectra of
// real data again, and stand as Pack down the first and (even W only) the last column.
//
//     R00   R01 I01   R02 I02   R03
//     R10   R11 I11   R12 I12   R13
//     I10   R21 I21   R22 I22   I13
//     R20   R31 I31   R32 I32   R23
//     I20   R41 I41   R42 I42   I23
//     R30   R51 I51   R52 I52   R33
#pragma once

namespace orv {

// Where Pack has the real part of X[k]; the imaginary part of a pair follows it.
constexpr int pack_position(int k) { return k == 0 ? 0 : 2 * k - 1; }

}  // namespace orv
