#ifndef CALC_COMMON_SRC_NUMERICS_CUBIC_SPLINE_HPP
#define CALC_COMMON_SRC_NUMERICS_CUBIC_SPLINE_HPP

// Interpolating cubic spline through a table, by the pentadiagonal form of the classic
// SPLINE_CUBIC_SET / SPLINE_CUBIC_VAL pair. Fatal input faults end the process with exit code 1
// after a report on standard error.

namespace VARNO {
namespace detail {

/// Second derivatives at the n knots t (strictly increasing) of the cubic spline through y.
/// The end conditions: ibcbeg 0 makes the first two second derivatives equal, 1 fixes the first
/// derivative at t[0] to ybcbeg, 2 fixes the second derivative to ybcbeg, 3 is the not-a-knot
/// condition; ibcend likewise at the other end (its not-a-knot row is taken only with ibcbeg 3).
/// The result is allocated with new[] and belongs to the caller.
double* spline_cubic_set(int n, double* t, double* y, int ibcbeg, double ybcbeg, int ibcend,
                         double ybcend);

/// Value of the spline (t, y, ypp) at tval; the first and second derivatives go to *ypval and
/// *yppval. Outside the knots the first or last piece continues.
double spline_cubic_val(int n, double* t, double* y, double* ypp, double tval, double* ypval,
                        double* yppval);

/// Solution of the pentadiagonal system whose row i reads
/// a1[i]*s[i-2] + a2[i]*s[i-1] + a3[i]*s[i] + a4[i]*s[i+1] + a5[i]*s[i+2] = b[i],
/// by elimination without pivoting (n of 2 or more). Overwrites a2, a3, a4 and b. The result is
/// allocated with new[] and belongs to the caller.
double* penta(int n, double* a1, double* a2, double* a3, double* a4, double* a5, double* b);

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_NUMERICS_CUBIC_SPLINE_HPP
