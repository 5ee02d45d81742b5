#ifndef CALC_COMMON_NUMERICS_HPP
#define CALC_COMMON_NUMERICS_HPP

// Numerical toolkit: interpolation, splines, smoothing B-splines, Chebyshev polynomials and complex
// arithmetic.

// ---------------------------------------------------------------------------------------------
// Smoothing B-splines
// ---------------------------------------------------------------------------------------------

#include <calc-common/export.hpp>
#include <calc-common/frame.hpp>

#include <boost/shared_array.hpp>

namespace VARNO {

/// A smoothing cubic spline fitted to a table (Dierckx's algorithm): the spline with the fewest
/// knots whose sum of squared residuals over the table is within 0.1 % of the smoothing factor.
/// Copies share the knot and coefficient arrays. The fit and the evaluators keep scratch state
/// that is not reentrant: serialise all calls, also on different objects.
class VARNO_CALC_COMMON_EXPORT BSpline {
public:
    /// Fits the spline to `count` points (x[i], y[i]) whose abscissas strictly increase, with
    /// unit weights, over [x[0], x[count-1]]. smoothing_factor bounds the sum of squared
    /// residuals in the units of y squared: 0 interpolates, a large one gives the least-squares
    /// cubic. Throws varno_calc_error "Error during B-Spline calculation: ..." when the fit fails.
    BSpline(double const* x, double const* y, int const& count, double const& smoothing_factor);

    /// Writes the spline's values at `count` ascending abscissas x to y; a point outside the
    /// knots' span takes the value at the nearest end of the span. Throws varno_calc_error
    /// "Error during B-Spline evaluation: ill-conditioned entries." when x descends or count < 1.
    void evaluate(double const* x, double* y, int const& count) const;

    /// Writes the derivative of `order` (0 to 3) at `count` ascending abscissas x to y, in units
    /// of y per unit of x to the power `order`; outside the span as evaluate. Throws as
    /// evaluate, also for an order outside 0 to 3.
    void getDerivative(int const& order, double const* x, double* y, int const& count) const;

    /// Writes the value and the first, second and third derivatives at x to derivatives[0..3].
    /// Throws "Error during B-Spline evaluation: ill-conditioned entries." when x lies outside
    /// the knots' span.
    void getAllDerivatives(double const& x, double* derivatives) const;

    double smoothing_factor;                  ///< the smoothing factor of the fit
    int knot_count;                           ///< number of knots of the fit
    boost::shared_array<double> knots;        ///< knots, room for the table size + 4
    boost::shared_array<double> coefficients; ///< B-spline coefficients, same room
};

} // namespace VARNO

#endif // CALC_COMMON_NUMERICS_HPP
