#include "numerics/dierckx.hpp"

namespace VARNO {
namespace detail {

namespace {

// The derivative of a spline of degree kk is a spline of degree kk-1 on the same knots, one
// fewer at each end, with coefficients k*(c[i+1] - c[i])/(t[i+kk+1] - t[i+1]) (de Boor). Applied
// nu times in place on wrk.
void differentiate_coefficients(double const* t, int nk1, int k, int nu, double* wrk) {
    int kk = k;
    int count = nk1;
    for (int j = 1; j <= nu; ++j) {
        double const ak = kk;
        --count;
        for (int i = 0; i < count; ++i) {
            double const fac = t[j + i + kk] - t[j + i];
            if (fac <= 0.0) {
                continue;
            }
            wrk[i] = ak * (wrk[i + 1] - wrk[i]) / fac;
        }
        --kk;
    }
}

} // namespace

void splder(double const* t, int n, double const* c, int k, int nu, double const* x, double* y,
            int m, double* wrk, int& ier) {
    ier = 10;
    if (nu < 0 || nu > k || m < 1 || !abscissas_ascend(x, m)) {
        return;
    }
    ier = 0;
    int const k1 = k + 1;
    int const nk1 = n - k1;
    double const tb = t[k];
    double const te = t[nk1];
    for (int i = 0; i < nk1; ++i) {
        wrk[i] = c[i];
    }
    differentiate_coefficients(t, nk1, k, nu, wrk);
    int const kk = k - nu;
    int l = k;
    if (kk == 0) {
        // The k-th derivative is constant on each knot interval.
        for (int i = 0; i < m; ++i) {
            advance_to_interval(t, nk1, x[i], l);
            y[i] = wrk[l - k];
        }
        return;
    }
    double h[6];
    for (int i = 0; i < m; ++i) {
        double const arg = clamp_to_span(x[i], tb, te);
        advance_to_interval(t, nk1, arg, l);
        fpbspl(t, n, kk, arg, l, h);
        double sp = 0.0;
        for (int j = 0; j <= kk; ++j) {
            sp = sp + wrk[l - k + j] * h[j];
        }
        y[i] = sp;
    }
}

} // namespace detail
} // namespace VARNO
