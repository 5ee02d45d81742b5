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
    int const nk1 = n - k - 1;
    for (int i = 0; i < nk1; ++i) {
        wrk[i] = c[i];
    }
    differentiate_coefficients(t, nk1, k, nu, wrk);
    int const kk = k - nu;
    if (kk == 0) {
        // The k-th derivative is constant on each knot interval.
        int l = k;
        for (int i = 0; i < m; ++i) {
            advance_to_interval(t, nk1, x[i], l);
            y[i] = wrk[l - k];
        }
        return;
    }
    evaluate_ascending(t, n, k, kk, wrk, x, y, m);
}

} // namespace detail
} // namespace VARNO
