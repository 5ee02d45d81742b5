#include "numerics/dierckx.hpp"

namespace VARNO {
namespace detail {

void splev(double const* t, int n, double const* c, int k, double const* x, double* y, int m,
           int& ier) {
    ier = 10;
    if (m < 1 || !abscissas_ascend(x, m)) {
        return;
    }
    ier = 0;
    int const k1 = k + 1;
    int const nk1 = n - k1;
    double const tb = t[k];
    double const te = t[nk1];
    double h[6];
    // The abscissas ascend, so the knot interval is only ever searched forward.
    int l = k;
    for (int i = 0; i < m; ++i) {
        double const arg = clamp_to_span(x[i], tb, te);
        advance_to_interval(t, nk1, arg, l);
        fpbspl(t, n, k, arg, l, h);
        double sp = 0.0;
        for (int j = 0; j < k1; ++j) {
            sp = sp + c[l - k + j] * h[j];
        }
        y[i] = sp;
    }
}

} // namespace detail
} // namespace VARNO
