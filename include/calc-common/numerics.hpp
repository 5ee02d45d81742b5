#ifndef CALC_COMMON_NUMERICS_HPP
#define CALC_COMMON_NUMERICS_HPP

/// @file
/// Numerical toolkit: interpolation, splines, smoothing B-splines, Chebyshev polynomials and
/// complex arithmetic.

#include <calc-common/export.hpp>
#include <calc-common/frame.hpp>

#include <boost/function.hpp>
#include <boost/shared_array.hpp>
#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <vector>

// ==== Interpolation =============================================================================

/// Straight line through (x0, y0) and (x1, y1), evaluated at x and extended without limit on both
/// sides. Coincident abscissas are not detected: the result is then infinite or not-a-number.
VARNO_CALC_COMMON_EXPORT double Calc_LinearInterp(double x0, double y0, double x1, double y1,
                                                  double x);

/// Akima-type local piecewise cubic through the table (x, y) of n points (x strictly increasing,
/// not checked), evaluated at the ni ascending abscissas xi. Writes the values to yi and the first
/// derivatives to dyi. Beyond the table, with `extrapolate`, the curve continues as a straight line
/// with the Hermite slope of the first point below the table and with the last chord above it;
/// without it, the end values are returned and dyi is left as it was.
///
/// `slopes` is a caller-owned workspace of n elements (and of ni elements when n is 2). On return,
/// for n of 3 or more, it holds the Hermite slope at each table point.
/// A one-point table writes y[0] and the no-derivative marker -999.0 to element 0 only; a two-point
/// table gives the straight line on both sides whatever `extrapolate` says.
/// Throws varno_calc_error naming "Calc_ParabolicInterp" when n is 0.
VARNO_CALC_COMMON_EXPORT void Calc_ParabolicInterp(double const* x, double const* y,
                                                   std::size_t const& n, bool extrapolate,
                                                   double const* xi, std::size_t const& ni,
                                                   double* yi, double* dyi, double* slopes);

/// Directivity table lookup, linear between table angles (degrees, ascending) and clamped to the
/// end values beyond the table; `extrapolate` is not read. No wrap-around: an angle is a plain
/// abscissa. Throws varno_calc_error naming "Calc_AngularInterp_Linear" when n is 0.
VARNO_CALC_COMMON_EXPORT double Calc_AngularInterp_Linear(double const* angles,
                                                          double const* values,
                                                          std::size_t const& n, double const& angle,
                                                          bool extrapolate);

/// Directivity table lookup with the Akima curve of Calc_ParabolicInterp at one angle (degrees).
/// Keeps its workspace per thread: threads may call it at once.
VARNO_CALC_COMMON_EXPORT double Calc_AngularInterp_Parabolic(double const* angles,
                                                             double const* values,
                                                             std::size_t const& n,
                                                             double const& angle, bool extrapolate);

/// Index of the first maximum of `count` values, found with tolerant comparison (a later value
/// must exceed the current maximum by more than its rounding), and the maximum in *maximum.
/// With no value: -1 and a maximum of 0.0.
VARNO_CALC_COMMON_EXPORT int Calc_MaxLimitedRange(double* values, std::size_t count,
                                                  double* maximum);

/// Calc_MaxLimitedRange over the whole vector.
VARNO_CALC_COMMON_EXPORT int Calc_Max(std::vector<double>& values, double* maximum);

// ==== Directivity interpolator record ===========================================================

/// Which directivity interpolator an angular_interpolation_t carries.
enum angular_interpolation_type_t : int {
    ANGULAR_INTERPOLATION_LINEAR = 0,
    ANGULAR_INTERPOLATION_PARABOLIC = 1
};

/// A directivity interpolator carried as data, so a calculation can store its choice.
struct VARNO_CALC_COMMON_EXPORT angular_interpolation_t {
    /// Signature of a directivity interpolator: table angles (degrees), table values, table size,
    /// query angle (degrees), extrapolation flag; gives the interpolated value.
    typedef boost::function<double(double const* angles, double const* values, std::size_t count,
                                   double const& angle, bool extrapolate)>
        interpolator_function;

    interpolator_function interpolator; ///< the callable
    angular_interpolation_type_t type;  ///< which interpolator this is

    /// The parabolic interpolator (Calc_AngularInterp_Parabolic).
    angular_interpolation_t();
    /// Stores both as given; nothing checks that they agree.
    angular_interpolation_t(interpolator_function interpolator, angular_interpolation_type_t type);
    /// A copy of the callable and its type.
    angular_interpolation_t(angular_interpolation_t const& other);
    /// Takes over the callable and its type.
    angular_interpolation_t(angular_interpolation_t&& other);
    /// Copies the callable and its type.
    angular_interpolation_t& operator=(angular_interpolation_t const& other);
    /// Takes over the callable and its type.
    angular_interpolation_t& operator=(angular_interpolation_t&& other);
    /// Releases the callable.
    ~angular_interpolation_t();

    /// Shared record of Calc_AngularInterp_Linear, built when the library is loaded.
    static boost::shared_ptr<angular_interpolation_t> linear;
    /// Shared record of Calc_AngularInterp_Parabolic, built when the library is loaded.
    static boost::shared_ptr<angular_interpolation_t> parabolic;
};

// ==== Cubic and monotone splines ================================================================

/// Kind of spline used by Calc_Spline.
enum spline_type : int {
    SPLINE_NATURAL = 0, ///< natural cubic spline; throws when a bracketing interval is empty
    SPLINE_CUBIC = 1,   ///< cubic spline with zero end curvature, by the pentadiagonal solver
    SPLINE_PCHIP = 2    ///< monotone piecewise cubic Hermite interpolation
};

/// Value at xq of the spline of the given kind through the n points (x, y), x ascending. Outside
/// the table the end pieces continue. An unknown kind gives 0.0.
/// SPLINE_NATURAL throws varno_calc_error "Spline interpolation failed." when the interval that
/// brackets xq has zero width; SPLINE_CUBIC and SPLINE_PCHIP end the process with a message on
/// standard error for too few points or abscissas out of order.
VARNO_CALC_COMMON_EXPORT double Calc_Spline(int n, double* const x, double* const y, double xq,
                                            spline_type type);

/// Array form. SPLINE_NATURAL evaluates all nq queries (cheapest when they ascend: the bracket is
/// kept from one query to the next). SPLINE_CUBIC and SPLINE_PCHIP evaluate xq[0] alone and write
/// yq[0] alone, whatever nq is. An unknown kind writes nothing.
VARNO_CALC_COMMON_EXPORT void Calc_Spline(int n, double* const x, double* const y, int nq,
                                          double* const xq, double* const yq, spline_type type);

// ==== Chebyshev polynomials =====================================================================

/// Values of the Chebyshev polynomials of the first kind T_0 .. T_order at x, after mapping
/// [lower, upper] onto [-1, 1]; `values` holds order + 1 elements. Throws varno_calc_error when x
/// lies tolerantly outside the interval or order is not positive, before writing anything.
VARNO_CALC_COMMON_EXPORT void Calc_ChebyshevPolynomial(double x, double lower, double upper,
                                                       int order, double* const values);

// ==== Complex arithmetic ========================================================================

/// A plain complex number: real part r, imaginary part i.
struct complex_t {
    double r; ///< real part
    double i; ///< imaginary part
};

/// r + i*im.
VARNO_CALC_COMMON_EXPORT complex_t create_complex(double r, double im);
/// Real part.
VARNO_CALC_COMMON_EXPORT double real(complex_t z);
/// Imaginary part.
VARNO_CALC_COMMON_EXPORT double aimag(complex_t z);
/// Modulus, sqrt(r*r + i*i) without scaling.
VARNO_CALC_COMMON_EXPORT double absc(complex_t z);
/// Complex conjugate.
VARNO_CALC_COMMON_EXPORT complex_t conjg(complex_t z);
/// Opposite, -z.
VARNO_CALC_COMMON_EXPORT complex_t copp(complex_t z);
/// z + u.
VARNO_CALC_COMMON_EXPORT complex_t cadd(complex_t z, complex_t u);
/// z - u.
VARNO_CALC_COMMON_EXPORT complex_t csub(complex_t z, complex_t u);
/// z * u.
VARNO_CALC_COMMON_EXPORT complex_t cmul(complex_t z, complex_t u);
/// z / u, by the plain formula without scaling; a zero divisor is not detected.
VARNO_CALC_COMMON_EXPORT complex_t cdiv(complex_t z, complex_t u);
/// x + z (real first).
VARNO_CALC_COMMON_EXPORT complex_t radd(double x, complex_t z);
/// x - z (real first).
VARNO_CALC_COMMON_EXPORT complex_t rsub(double x, complex_t z);
/// x * z (real first).
VARNO_CALC_COMMON_EXPORT complex_t rmul(double x, complex_t z);
/// z / x (real last).
VARNO_CALC_COMMON_EXPORT complex_t rdiv(complex_t z, double x);
/// x / z (real first).
VARNO_CALC_COMMON_EXPORT complex_t rdivc(double x, complex_t z);
/// Complex exponential.
VARNO_CALC_COMMON_EXPORT complex_t c_exp(complex_t z);
/// Principal square root (real part not negative), scaled so that no large part is squared.
VARNO_CALC_COMMON_EXPORT complex_t c_sqrt(complex_t z);

// ==== Smoothing B-splines =======================================================================

namespace VARNO {

/// A smoothing cubic spline fitted to a table (Dierckx's algorithm): the spline with the fewest
/// knots whose sum of squared residuals over the table is within 0.1 % of the smoothing factor.
/// Copies share the knot and coefficient arrays. The fit and the evaluators keep no state between
/// calls: threads may fit and evaluate at once, evaluating one spline included.
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
