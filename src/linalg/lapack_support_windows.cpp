// Mathematics for the LAPACK routines from the system's C library, which has the double forms only. MinGW's
// library has all of it, but needs the start-up code of a program.
extern "C" {

// What the import library calls them.
extern double (*const _imp__pow)(double x, double y);
extern double (*const _imp__log)(double x);

double pow(double x, double y);
float powf(float x, float y);
float logf(float x);
long lroundf(float x);

double pow(double x, double y) { return _imp__pow(x, y); }
float powf(float x, float y) { return static_cast<float>(_imp__pow(x, y)); }
float logf(float x) { return static_cast<float>(_imp__log(x)); }
long lroundf(float x) { return static_cast<long>(x < 0 ? x - 0.5f : x + 0.5f); }

}  // extern "C"
