#include "numerics/dierckx.hpp"

namespace VARNO {
namespace detail {

void fpader(double const* t, int /*n*/, double const* c, int k1, double x, int l, double* d) {
    // The k1 coefficients acting on the interval are differenced j times (de Boor's derivative
    // formula without its factor), then the remaining degree is evaluated by the de Boor-Cox
    // recurrence; the factors k*(k-1)*... are applied at the end of each order.
    int const k = k1 - 1;
    int const first = l - k;
    double h[6];
    for (int i = 0; i < k1; ++i) {
        h[i] = c[first + i];
    }
    int kj = k1;
    double fac = 1.0;
    for (int j = 0; j < k1; ++j) {
        int ki = kj;
        if (j > 0) {
            for (int i = k; i >= j; --i) {
                int const li = i + first;
                h[i] = (h[i] - h[i - 1]) / (t[li + kj] - t[li]);
            }
        }
        for (int i = j; i < k1; ++i) {
            d[i] = h[i];
        }
        for (int jj = j + 1; jj < k1; ++jj) {
            --ki;
            for (int i = k; i >= jj; --i) {
                int const li = i + first;
                int const lj = li + ki;
                d[i] = ((x - t[li]) * d[i] + (t[lj] - x) * d[i - 1]) / (t[lj] - t[li]);
            }
        }
        d[j] = d[k] * fac;
        double const ak = k - j;
        fac = fac * ak;
        --kj;
    }
}

void spalde(double const* t, int n, double const* c, int k1, double x, double* d, int& ier) {
    ier = 10;
    int const nk1 = n - k1;
    if (x < t[k1 - 1] || x > t[nk1]) {
        return;
    }
    int l = k1 - 1;
    advance_to_interval(t, nk1, x, l);
    if (t[l] >= t[l + 1]) {
        return;
    }
    ier = 0;
    fpader(t, n, c, k1, x, l, d);
}

} // namespace detail
} // namespace VARNO
