#include <calc-common/numerics.hpp>

#include "frame/numeric_helpers.hpp"

using namespace VARNO::detail;

void Calc_ChebyshevPolynomial(double x, double lower, double upper, int order,
                              double* const values) {
    bool const inside = tolerantly_at_most(lower, x) && tolerantly_at_most(x, upper);
    if (!inside || order <= 0) {
        throw varno_calc_error::with_message(
            "Error in jet mixing noise prediction: invalid parameters passed to Chebyshev "
            "polynomials computation function.");
    }
    double const t = ((x + x - upper) - lower) / (upper - lower);
    values[0] = 1.0;
    values[1] = t;
    for (int k = 2; k <= order; ++k) {
        values[k] = (t + t) * values[k - 1] - values[k - 2];
    }
}
