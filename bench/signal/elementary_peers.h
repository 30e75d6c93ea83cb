// Loops over the vector functions of glibc and SLEEF, and the plain loops beside them.
#pragma once

extern "C" int h9_ippsExp_32f_A21(const float* src, float* dst, int len);
extern "C" int h9_ippsLn_32f_A21(const float* src, float* dst, int len);

namespace peers {

void mvec_expf(const float* x, float* y, int n);
void mvec_logf(const float* x, float* y, int n);
void mvec_sinf(const float* x, float* y, int n);
void mvec_cosf(const float* x, float* y, int n);
void mvec_exp(const double* x, double* y, int n);
void mvec_log(const double* x, double* y, int n);
void mvec_sincosf(const float* x, float* s, float* c, int n);
void mvec_sincos(const double* x, double* s, double* c, int n);
void mvec_atan2f(const float* y, float* x, float* r, int n);

void sleef_expf(const float* x, float* y, int n);
void sleef_logf(const float* x, float* y, int n);
void sleef_logf_u35(const float* x, float* y, int n);
void sleef_sinf(const float* x, float* y, int n);
void sleef_cosf(const float* x, float* y, int n);
void sleef_exp(const double* x, double* y, int n);
void sleef_log(const double* x, double* y, int n);
void sleef_sincosf(const float* x, float* s, float* c, int n);
void sleef_sincos(const double* x, double* s, double* c, int n);
void sleef_atan2f(const float* y, float* x, float* r, int n);

void loop_sqrt(const double* x, double* y, int n);
void loop_hypot(const float* x, float* y, float* r, int n);
void loop_abs(const float* x, float* y, int n);
void loop_floor(const float* x, float* y, int n);

}  // namespace peers
