#ifndef CALC_COMMON_SRC_PROPAGATION_COMPLEX_DIVISION_HPP
#define CALC_COMMON_SRC_PROPAGATION_COMPLEX_DIVISION_HPP

// Complex division by Smith's scaled method. The ground models divide by impedances that can
// vanish (a layer of zero thickness); the result must then be not-a-number in both parts, so
// that the failure shows in the output, where the standard library's division would give an
// infinity that later divisions turn back into plausible finite numbers.

#include <cmath>
#include <complex>
#include <limits>

namespace VARNO {
namespace detail {

inline std::complex<double> smith_divide(std::complex<double> const& numerator,
                                         std::complex<double> const& divisor) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    double const a = numerator.real();
    double const b = numerator.imag();
    double const c = divisor.real();
    double const d = divisor.imag();
    if (std::isnan(c) || std::isnan(d) || (c == 0.0 && d == 0.0)) {
        return {nan, nan};
    }
    // Divide through by the larger part of the divisor, so that no intermediate overflows.
    if (std::fabs(c) >= std::fabs(d)) {
        double const ratio = d / c;
        double const denominator = c + d * ratio;
        if (denominator == 0.0 || std::isnan(denominator)) {
            return {nan, nan};
        }
        return {(a + b * ratio) / denominator, (b - a * ratio) / denominator};
    }
    double const ratio = c / d;
    double const denominator = d + c * ratio;
    if (denominator == 0.0 || std::isnan(denominator)) {
        return {nan, nan};
    }
    return {(a * ratio + b) / denominator, (b * ratio - a) / denominator};
}

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_PROPAGATION_COMPLEX_DIVISION_HPP
