#include <calc-common/numerics.hpp>

#include <cmath>

complex_t create_complex(double r, double im) {
    return complex_t{r, im};
}

double real(complex_t z) {
    return z.r;
}

double aimag(complex_t z) {
    return z.i;
}

double absc(complex_t z) {
    return std::sqrt(z.r * z.r + z.i * z.i);
}

complex_t conjg(complex_t z) {
    return {z.r, -z.i};
}

complex_t copp(complex_t z) {
    return {-z.r, -z.i};
}

complex_t cadd(complex_t z, complex_t u) {
    return {z.r + u.r, z.i + u.i};
}

complex_t csub(complex_t z, complex_t u) {
    return {z.r - u.r, z.i - u.i};
}

complex_t cmul(complex_t z, complex_t u) {
    return {u.r * z.r - u.i * z.i, z.i * u.r + u.i * z.r};
}

complex_t cdiv(complex_t z, complex_t u) {
    double const m = u.r * u.r + u.i * u.i;
    return {(z.r * u.r + z.i * u.i) / m, (z.i * u.r - z.r * u.i) / m};
}

complex_t radd(double x, complex_t z) {
    return {x + z.r, z.i};
}

complex_t rsub(double x, complex_t z) {
    return {x - z.r, -z.i};
}

complex_t rmul(double x, complex_t z) {
    return {x * z.r, x * z.i};
}

complex_t rdiv(complex_t z, double x) {
    return {z.r / x, z.i / x};
}

complex_t rdivc(double x, complex_t z) {
    double const m = z.r * z.r + z.i * z.i;
    return {(z.r * x) / m, -(z.i * x) / m};
}

complex_t c_exp(complex_t z) {
    double const magnitude = std::exp(z.r);
    return {magnitude * std::cos(z.i), magnitude * std::sin(z.i)};
}

complex_t c_sqrt(complex_t z) {
    if (z.r == 0.0 && z.i == 0.0) {
        return {0.0, 0.0};
    }
    // The smaller part is scaled by the larger one, so no part is ever squared.
    double const p = std::fabs(z.r);
    double const q = std::fabs(z.i);
    double w;
    if (p >= q) {
        double const s = q / p;
        w = std::sqrt(p) * std::sqrt((std::sqrt(s * s + 1.0) + 1.0) * 0.5);
    } else {
        double const s = p / q;
        w = std::sqrt(q) * std::sqrt((std::sqrt(s * s + 1.0) + s) * 0.5);
    }
    if (z.r >= 0.0) {
        return {w, z.i / (w + w)};
    }
    double const imaginary = z.i >= 0.0 ? w : -w;
    return {z.i / (imaginary + imaginary), imaginary};
}
