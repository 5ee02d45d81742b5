#ifndef VARNO_TESTS_NUMERICS_BSPLINE_REFERENCE_HPP
#define VARNO_TESTS_NUMERICS_BSPLINE_REFERENCE_HPP

// FITPACK's fits and evaluations of the committed tables (generate_bspline_reference.py), and the
// measure of agreement with them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace bspline_reference {

#include "bspline_reference.inc"

constexpr double relative_tolerance = 1e-10;

// Relative agreement, measured against the larger of the entry and a thousandth of the array's
// largest entry, so that entries passing through zero are judged on the scale of their
// neighbours.
inline void expect_agreement(double const* expected, double const* actual, int count,
                             std::string const& what) {
    double scale = 0.0;
    for (int i = 0; i < count; ++i) {
        scale = std::max(scale, std::fabs(expected[i]));
    }
    for (int i = 0; i < count; ++i) {
        double const bound = relative_tolerance * std::max(std::fabs(expected[i]), 1e-3 * scale);
        EXPECT_NEAR(actual[i], expected[i], bound) << what << " [" << i << "]";
    }
}

} // namespace bspline_reference

#endif // VARNO_TESTS_NUMERICS_BSPLINE_REFERENCE_HPP
