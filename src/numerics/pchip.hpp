#ifndef CALC_COMMON_SRC_NUMERICS_PCHIP_HPP
#define CALC_COMMON_SRC_NUMERICS_PCHIP_HPP

// Monotone piecewise cubic Hermite interpolation (Fritsch-Carlson with the Fritsch-Butland
// harmonic mean and Brodlie's weights), after the PCHIM / PCHFE / CHFEV routines of the PCHIP
// package. Fatal input faults end the process after a report on standard error.

namespace VARNO {
namespace detail {

/// Shape-preserving Hermite derivatives d at the n points (x, f), x strictly increasing. Exits
/// with -1 for fewer than 2 points and -3 for x out of order.
void spline_pchip_set(int n, double* x, double* f, double* d);

/// Values fe of the Hermite interpolant (x, f, d) at the ne points xe, cheapest when they ascend.
/// Beyond the table the end pieces continue. Exits with -1 for fewer than 2 points, -3 for x out
/// of order and -5 when an evaluation point cannot be bracketed; returns after a report when ne
/// is below 1.
void spline_pchip_val(int n, double* x, double* f, double* d, int ne, double* xe, double* fe);

/// Values fe at the ne points xe of the cubic with values f1, f2 and derivatives d1, d2 at x1 and
/// x2. next[0] and next[1] count the points left of and right of the interval. Returns 0, or
/// after a report -1 when ne is below 1 and -2 when the interval has zero length.
int chfev(double x1, double x2, double f1, double f2, double d1, double d2, int ne, double* xe,
          double* fe, int* next);

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_NUMERICS_PCHIP_HPP
