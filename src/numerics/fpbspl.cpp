#include "numerics/dierckx.hpp"

namespace VARNO {
namespace detail {

void fpbspl(double const* t, int /*n*/, int k, double x, int l, double* h) {
    // Degree raised one step at a time: the j+1 splines of degree j come from the j of degree
    // j-1, each shared between its two neighbours in proportion to the distance of x from the
    // ends of its support. The knots met are t[l-k+1 .. l+k], never an empty interval.
    double previous[5];
    h[0] = 1.0;
    for (int j = 1; j <= k; ++j) {
        for (int i = 0; i < j; ++i) {
            previous[i] = h[i];
        }
        h[0] = 0.0;
        for (int i = 0; i < j; ++i) {
            double const right = t[l + i + 1];
            double const left = t[l + i + 1 - j];
            double const f = previous[i] / (right - left);
            h[i] = h[i] + f * (right - x);
            h[i + 1] = f * (x - left);
        }
    }
}

} // namespace detail
} // namespace VARNO
