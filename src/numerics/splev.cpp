#include "numerics/dierckx.hpp"

namespace VARNO {
namespace detail {

void evaluate_ascending(double const* t, int n, int k, int degree, double const* coefficients,
                        double const* x, double* y, int m) {
    int const nk1 = n - k - 1;
    double const tb = t[k];
    double const te = t[nk1];
    double h[6];
    // The abscissas ascend, so the knot interval is only ever searched forward.
    int l = k;
    for (int i = 0; i < m; ++i) {
        double const arg = clamp_to_span(x[i], tb, te);
        advance_to_interval(t, nk1, arg, l);
        fpbspl(t, n, degree, arg, l, h);
        double sp = 0.0;
        for (int j = 0; j <= degree; ++j) {
            sp = sp + coefficients[l - k + j] * h[j];
        }
        y[i] = sp;
    }
}

void splev(double const* t, int n, double const* c, int k, double const* x, double* y, int m,
           int& ier) {
    ier = 10;
    if (m < 1 || !abscissas_ascend(x, m)) {
        return;
    }
    ier = 0;
    evaluate_ascending(t, n, k, k, c, x, y, m);
}

} // namespace detail
} // namespace VARNO
