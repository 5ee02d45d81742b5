#include "numerics/dierckx.hpp"

namespace VARNO {
namespace detail {

void fpdisc(double const* t, int n, int k2, double* b, int nest) {
    // The k-th derivative of a B-spline of degree k is constant between knots; its jump at a
    // knot follows from the divided-difference form of the B-spline. Scaling by the number of
    // intervals over the span makes the rows of b independent of the span's length.
    int const k1 = k2 - 1;
    int const k = k1 - 1;
    int const nk1 = n - k1;
    int const interval_count = nk1 - k;
    double const fac = interval_count / (t[nk1] - t[k]);
    double h[12];
    for (int knot = k + 1; knot < nk1; ++knot) {
        int const row = knot - k1;
        for (int j = 0; j < k1; ++j) {
            h[j] = t[knot] - t[knot + j - k1];
            h[j + k1] = t[knot] - t[knot + j + 1];
        }
        for (int j = 0; j < k2; ++j) {
            double prod = h[j];
            for (int i = 1; i <= k; ++i) {
                prod = prod * h[j + i] * fac;
            }
            b[row + j * nest] = (t[row + j + k1] - t[row + j]) / prod;
        }
    }
}

} // namespace detail
} // namespace VARNO
