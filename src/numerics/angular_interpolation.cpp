#include <calc-common/numerics.hpp>

#include "frame/numeric_helpers.hpp"

#include <boost/make_shared.hpp>

#include <utility>

using namespace VARNO::detail;

double Calc_AngularInterp_Linear(double const* angles, double const* values, std::size_t const& n,
                                 double const& angle, bool /*extrapolate*/) {
    if (n == 0) {
        throw varno_calc_error("Calc_AngularInterp_Linear");
    }
    if (tolerantly_at_least(angles[0], angle) || n == 1) {
        return values[0];
    }
    // An angle on an inner table point goes on to the interval after it, which gives the point's
    // value up to rounding.
    for (std::size_t i = 1; i < n; ++i) {
        if (tolerantly_above(angles[i], angle)) {
            return Calc_LinearInterp(angles[i - 1], values[i - 1], angles[i], values[i], angle);
        }
    }
    return values[n - 1];
}

double Calc_AngularInterp_Parabolic(double const* angles, double const* values,
                                    std::size_t const& n, double const& angle, bool extrapolate) {
    // One workspace per thread, grown to the largest table seen and never shrunk, so that a
    // directivity lookup allocates nothing in the steady state.
    thread_local std::vector<double> slopes(32);
    double unused_derivative = 0.0;
    if (slopes.size() < n) {
        slopes.resize(n);
    }
    double value = 0.0;
    Calc_ParabolicInterp(angles, values, n, extrapolate, &angle, 1, &value, &unused_derivative,
                         slopes.data());
    return value;
}

namespace {

// The record's callable passes the table size by value; the interpolators take it by reference.
template <double (*interpolate)(double const*, double const*, std::size_t const&, double const&,
                                bool)>
double by_value_count(double const* angles, double const* values, std::size_t count,
                      double const& angle, bool extrapolate) {
    return interpolate(angles, values, count, angle, extrapolate);
}

} // namespace

angular_interpolation_t::angular_interpolation_t()
    : interpolator(&by_value_count<Calc_AngularInterp_Parabolic>)
    , type(ANGULAR_INTERPOLATION_PARABOLIC) {}

angular_interpolation_t::angular_interpolation_t(interpolator_function interpolator,
                                                 angular_interpolation_type_t type)
    : interpolator(std::move(interpolator))
    , type(type) {}

angular_interpolation_t::angular_interpolation_t(angular_interpolation_t const& other) = default;
angular_interpolation_t::angular_interpolation_t(angular_interpolation_t&& other) = default;
angular_interpolation_t&
angular_interpolation_t::operator=(angular_interpolation_t const& other) = default;
angular_interpolation_t&
angular_interpolation_t::operator=(angular_interpolation_t&& other) = default;
angular_interpolation_t::~angular_interpolation_t() = default;

boost::shared_ptr<angular_interpolation_t> angular_interpolation_t::linear =
    boost::make_shared<angular_interpolation_t>(&by_value_count<Calc_AngularInterp_Linear>,
                                                ANGULAR_INTERPOLATION_LINEAR);

boost::shared_ptr<angular_interpolation_t> angular_interpolation_t::parabolic =
    boost::make_shared<angular_interpolation_t>(&by_value_count<Calc_AngularInterp_Parabolic>,
                                                ANGULAR_INTERPOLATION_PARABOLIC);
