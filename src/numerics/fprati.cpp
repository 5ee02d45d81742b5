#include "numerics/dierckx.hpp"

namespace VARNO {
namespace detail {

double fprati(double& p1, double& f1, double p2, double f2, double& p3, double& f3) {
    double p;
    if (p3 > 0.0) {
        double const h1 = f1 * (f2 - f3);
        double const h2 = f2 * (f3 - f1);
        double const h3 = f3 * (f1 - f2);
        p = -(p1 * p2 * h3 + p2 * p3 * h1 + p3 * p1 * h2) / (p1 * h1 + p2 * h2 + p3 * h3);
    } else {
        // p3 at infinity: the rational function tends to f3 there.
        p = (p1 * (f1 - f3) * f2 - p2 * (f2 - f3) * f1) / ((f1 - f2) * f3);
    }
    // Keep the root bracketed: f1 > 0 on the left, f3 < 0 on the right.
    if (f2 < 0.0) {
        p3 = p2;
        f3 = f2;
    } else {
        p1 = p2;
        f1 = f2;
    }
    return p;
}

} // namespace detail
} // namespace VARNO
