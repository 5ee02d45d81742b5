#ifndef CALC_COMMON_SRC_FRAME_TOLERANCE_HPP
#define CALC_COMMON_SRC_FRAME_TOLERANCE_HPP

// Tolerant comparison: each side is widened by its own magnitude times machine epsilon, so
// values that differ only by the rounding of their last bit compare as equal.

#include <cmath>
#include <limits>

namespace VARNO {
namespace detail {

constexpr double machine_epsilon = std::numeric_limits<double>::epsilon();

/// The rounding allowance of a value: its magnitude times machine epsilon.
inline double widen(double a) {
    return std::fabs(a) * machine_epsilon;
}

/// a is above b by more than both values' rounding.
inline bool tolerantly_above(double a, double b) {
    return a - widen(a) > b + widen(b);
}

/// a is below b by more than both values' rounding.
inline bool tolerantly_below(double a, double b) {
    return a + widen(a) < b - widen(b);
}

/// a is not above b by more than both values' rounding.
inline bool tolerantly_at_most(double a, double b) {
    return a - widen(a) <= b + widen(b);
}

/// a is not below b by more than both values' rounding.
inline bool tolerantly_at_least(double a, double b) {
    return a + widen(a) >= b - widen(b);
}

/// Neither value is tolerantly above the other (so a not-a-number equals everything).
inline bool tolerantly_equal(double a, double b) {
    return !tolerantly_above(a, b) && !tolerantly_above(b, a);
}

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_FRAME_TOLERANCE_HPP
