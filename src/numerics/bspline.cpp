#include <calc-common/numerics.hpp>

#include "numerics/dierckx.hpp"

#include <algorithm>
#include <cstddef>
#include <vector>

using namespace VARNO::detail;

namespace VARNO {
namespace {

constexpr int cubic = 3;

void throw_on_fit_code(int ier) {
    switch (ier) {
    case 0:
    case -1: // interpolating spline
    case -2: // least-squares cubic polynomial
        return;
    case 1:
        throw varno_calc_error::with_message(
            "Error during B-Spline calculation: temporary storage space too small.");
    case 2:
        throw varno_calc_error::with_message("Error during B-Spline calculation: impossible result "
                                             "found (smoothing factor is probably too small).");
    case 3:
        throw varno_calc_error::with_message("Error during B-Spline calculation: failed to "
                                             "converge (smoothing factor is probably too small).");
    case 10:
        throw varno_calc_error::with_message(
            "Error during B-Spline calculation: ill-conditioned entries.");
    default:
        throw varno_calc_error::with_message("Error during B-Spline calculation: unknown.");
    }
}

void throw_on_evaluation_code(int ier) {
    if (ier == 0) {
        return;
    }
    if (ier == 10) {
        throw varno_calc_error::with_message(
            "Error during B-Spline evaluation: ill-conditioned entries.");
    }
    throw varno_calc_error::with_message("Error during B-Spline evaluation: unknown.");
}

std::size_t array_size(int entries) {
    return static_cast<std::size_t>(std::max(entries, 0));
}

} // namespace

BSpline::BSpline(double const* x, double const* y, int const& count, double const& smoothing_factor)
    : smoothing_factor(smoothing_factor)
    , knot_count(0) {
    std::vector<double> const weights(array_size(count), 1.0);
    // At most count + 4 knots: the interpolating cubic spline.
    int const nest = count + 4;
    knots.reset(new double[array_size(nest)]());
    coefficients.reset(new double[array_size(nest)]());
    int const lwrk = 4 * (count + 4 * nest) + 41;
    std::vector<double> wrk(array_size(lwrk));
    std::vector<int> iwrk(array_size(lwrk));
    // An empty table is refused by the fit itself; its interval is then never read.
    double const xb = count > 0 ? x[0] : 0.0;
    double const xe = count > 0 ? x[count - 1] : 0.0;
    double fp = 0.0;
    int ier = 0;
    curfit(0, count, x, y, weights.data(), xb, xe, cubic, smoothing_factor, nest, knot_count,
           knots.get(), coefficients.get(), fp, wrk.data(), lwrk, iwrk.data(), ier);
    throw_on_fit_code(ier);
}

void BSpline::evaluate(double const* x, double* y, int const& count) const {
    int ier = 0;
    splev(knots.get(), knot_count, coefficients.get(), cubic, x, y, count, ier);
    throw_on_evaluation_code(ier);
}

void BSpline::getDerivative(int const& order, double const* x, double* y, int const& count) const {
    std::vector<double> wrk(array_size(knot_count));
    int ier = 0;
    splder(knots.get(), knot_count, coefficients.get(), cubic, order, x, y, count, wrk.data(), ier);
    throw_on_evaluation_code(ier);
}

void BSpline::getAllDerivatives(double const& x, double* derivatives) const {
    int ier = 0;
    spalde(knots.get(), knot_count, coefficients.get(), cubic + 1, x, derivatives, ier);
    throw_on_evaluation_code(ier);
}

} // namespace VARNO
