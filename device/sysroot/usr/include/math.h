// The device's <math.h> as far as the C++ library's <cmath> names it: each function for float,
// double and long double.
#pragma once

#define HUGE_VAL __builtin_huge_val()
#define HUGE_VALF __builtin_huge_valf()
#define HUGE_VALL __builtin_huge_vall()
#define INFINITY __builtin_inff()
#define NAN __builtin_nanf("")

#define FP_NAN 1
#define FP_INFINITE 2
#define FP_ZERO 3
#define FP_NORMAL 4
#define FP_SUBNORMAL 5
#define FP_ILOGB0 (-2147483647 - 1)
#define FP_ILOGBNAN (-2147483647 - 1)

#ifdef __cplusplus
extern "C" {
#endif

typedef float float_t;
typedef double double_t;

#define ZQ_OF_ONE(name) \
    float name##f(float); \
    double name(double); \
    long double name##l(long double);
#define ZQ_OF_TWO(name) \
    float name##f(float, float); \
    double name(double, double); \
    long double name##l(long double, long double);
#define ZQ_WITH(name, second) \
    float name##f(float, second); \
    double name(double, second); \
    long double name##l(long double, second);
#define ZQ_TO(result, name) \
    result name##f(float); \
    result name(double); \
    result name##l(long double);

ZQ_OF_ONE(acos) ZQ_OF_ONE(acosh) ZQ_OF_ONE(asin) ZQ_OF_ONE(asinh) ZQ_OF_ONE(atan) ZQ_OF_ONE(atanh)
ZQ_OF_ONE(cbrt) ZQ_OF_ONE(ceil) ZQ_OF_ONE(cos) ZQ_OF_ONE(cosh) ZQ_OF_ONE(erf) ZQ_OF_ONE(erfc)
ZQ_OF_ONE(exp) ZQ_OF_ONE(exp2) ZQ_OF_ONE(expm1) ZQ_OF_ONE(fabs) ZQ_OF_ONE(floor)
ZQ_OF_ONE(lgamma) ZQ_OF_ONE(log) ZQ_OF_ONE(log10) ZQ_OF_ONE(log1p) ZQ_OF_ONE(log2) ZQ_OF_ONE(logb)
ZQ_OF_ONE(nearbyint) ZQ_OF_ONE(rint) ZQ_OF_ONE(round) ZQ_OF_ONE(sin) ZQ_OF_ONE(sinh)
ZQ_OF_ONE(sqrt) ZQ_OF_ONE(tan) ZQ_OF_ONE(tanh) ZQ_OF_ONE(tgamma) ZQ_OF_ONE(trunc)
ZQ_OF_TWO(atan2) ZQ_OF_TWO(copysign) ZQ_OF_TWO(fdim) ZQ_OF_TWO(fmax) ZQ_OF_TWO(fmin)
ZQ_OF_TWO(fmod) ZQ_OF_TWO(hypot) ZQ_OF_TWO(nextafter) ZQ_OF_TWO(pow) ZQ_OF_TWO(remainder)
ZQ_WITH(frexp, int *) ZQ_WITH(ldexp, int) ZQ_WITH(nexttoward, long double) ZQ_WITH(scalbln, long)
ZQ_WITH(scalbn, int)
ZQ_TO(int, ilogb) ZQ_TO(long, lrint) ZQ_TO(long, lround)
ZQ_TO(long long, llrint) ZQ_TO(long long, llround)

#undef ZQ_OF_ONE
#undef ZQ_OF_TWO
#undef ZQ_WITH
#undef ZQ_TO

float fmaf(float, float, float);
double fma(double, double, double);
long double fmal(long double, long double, long double);
float modff(float, float *);
double modf(double, double *);
long double modfl(long double, long double *);
float nanf(const char *);
double nan(const char *);
long double nanl(const char *);
float remquof(float, float, int *);
double remquo(double, double, int *);
long double remquol(long double, long double, int *);

#ifdef __cplusplus
}
#endif
