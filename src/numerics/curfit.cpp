#include "numerics/dierckx.hpp"

namespace VARNO {
namespace detail {
namespace {

bool data_acceptable(int m, double const* x, double const* w, double xb, double xe) {
    if (xb > x[0] || xe < x[m - 1]) {
        return false;
    }
    for (int i = 0; i < m; ++i) {
        if (w[i] <= 0.0) {
            return false;
        }
        if (i > 0 && x[i - 1] >= x[i]) {
            return false;
        }
    }
    return true;
}

} // namespace

void curfit(int iopt, int m, double const* x, double const* y, double const* w, double xb,
            double xe, int k, double s, int nest, int& n, double* t, double* c, double& fp,
            double* wrk, int lwrk, int* iwrk, int& ier) {
    ier = 10;
    if (k <= 0 || k > 5) {
        return;
    }
    int const k1 = k + 1;
    int const k2 = k1 + 1;
    if (iopt < -1 || iopt > 1) {
        return;
    }
    int const nmin = 2 * k1;
    if (m < k1 || nest < nmin) {
        return;
    }
    int const lwest = m * k1 + nest * (7 + 3 * k);
    if (lwrk < lwest) {
        return;
    }
    if (!data_acceptable(m, x, w, xb, xe)) {
        return;
    }
    if (iopt >= 0) {
        // Interpolation (s = 0) needs room for m + k + 1 knots.
        if (s < 0.0 || (s == 0.0 && nest < m + k1)) {
            return;
        }
        ier = 0;
    } else {
        if (n < nmin || n > nest) {
            return;
        }
        for (int i = 0; i < k1; ++i) {
            t[i] = xb;
            t[n - 1 - i] = xe;
        }
        fpchec(x, m, t, n, k, ier);
        if (ier != 0) {
            return;
        }
    }
    double* const fpint = wrk;
    double* const z = fpint + nest;
    double* const a = z + nest;
    double* const b = a + nest * k1;
    double* const g = b + nest * k2;
    double* const q = g + nest * k2;
    fpcurf(iopt, x, y, w, m, xb, xe, k, s, nest, curfit_tolerance, curfit_max_iterations, k1, k2, n,
           t, c, fp, fpint, z, a, b, g, q, iwrk, ier);
}

} // namespace detail
} // namespace VARNO
