#include "numerics/cubic_spline.hpp"

#include <gtest/gtest.h>

#include <memory>

using VARNO::detail::spline_cubic_set;
using VARNO::detail::spline_cubic_val;

namespace {

double t_even[] = {0.0, 1.0, 2.0, 3.0};
double y_even[] = {0.0, 1.0, 0.0, 1.0};

} // namespace

TEST(SplineCubic, SecondDerivativesForEachEndConditionAndTheirPieces) {
    // Zero end curvature on unit knots: second derivatives 0, -4, 4, 0.
    std::unique_ptr<double[]> const ypp(spline_cubic_set(4, t_even, y_even, 2, 0.0, 2, 0.0));
    // A prescribed end curvature is honoured.
    std::unique_ptr<double[]> const bent(spline_cubic_set(4, t_even, y_even, 2, 1.5, 2, -0.5));
    EXPECT_NEAR(bent[0], 1.5, 1e-14);
    EXPECT_NEAR(bent[3], -0.5, 1e-14);
    // Not-a-knot at both ends reproduces a cubic exactly.
    double t[] = {0.0, 0.5, 1.0, 1.5, 2.0};
    double y[5];
    for (int i = 0; i < 5; ++i) {
        y[i] = t[i] * t[i] * t[i] - t[i];
    }
    std::unique_ptr<double[]> const cubic(spline_cubic_set(5, t, y, 3, 0.0, 3, 0.0));
    for (int i = 0; i < 5; ++i) {
        EXPECT_NEAR(cubic[i], 6.0 * t[i], 1e-12) << i;
    }
    // ... and its derivatives between knots half a unit apart.
    double slope = 0.0, curvature = 0.0;
    EXPECT_NEAR(spline_cubic_val(5, t, y, cubic.get(), 1.3, &slope, &curvature), 0.897, 1e-12);
    EXPECT_NEAR(slope, 3.0 * 1.69 - 1.0, 1e-12);
    EXPECT_NEAR(curvature, 7.8, 1e-12);

    // The values are held by the reference values of the natural spline; here the derivatives
    // that come with them. First piece: y = 5/3 t - 2/3 t^3; the last knot has no curvature.
    double yp = 0.0, ypp_value = 0.0;
    spline_cubic_val(4, t_even, y_even, ypp.get(), 0.5, &yp, &ypp_value);
    EXPECT_NEAR(yp, 5.0 / 3.0 - 0.5, 1e-14);
    EXPECT_NEAR(ypp_value, -2.0, 1e-14);
    spline_cubic_val(4, t_even, y_even, ypp.get(), 3.0, &yp, &ypp_value);
    EXPECT_NEAR(ypp_value, 0.0, 1e-13);
}

TEST(SplineCubicDeathTest, FatalFaultsEndTheProcessWithCodeOne) {
    double t[] = {0.0, 2.0, 2.0, 3.0};
    double y[] = {0.0, 1.0, 2.0, 3.0};
    EXPECT_EXIT(spline_cubic_set(1, t, y, 2, 0.0, 2, 0.0), testing::ExitedWithCode(1),
                "\nSPLINE_CUBIC_SET - Fatal error!\n"
                "  The number of data points N must be at least 2.\n"
                "  The input value is 1\n");
    EXPECT_EXIT(spline_cubic_set(4, t, y, 2, 0.0, 2, 0.0), testing::ExitedWithCode(1),
                "SPLINE_CUBIC_SET - Fatal error!\n"
                "  The knots must be strictly increasing, but\n"
                "  T\\(1\\) = 2\n  T\\(2\\) = 2\n");
    EXPECT_EXIT(spline_cubic_set(4, t_even, y_even, 4, 0.0, 2, 0.0), testing::ExitedWithCode(1),
                "SPLINE_CUBIC_SET - Fatal error!\n"
                "  IBCBEG must be 0, 1 or 2.\n  The input value is 4\n");
    EXPECT_EXIT(spline_cubic_set(4, t_even, y_even, 2, 0.0, 3, 0.0), testing::ExitedWithCode(1),
                "SPLINE_CUBIC_SET - Fatal error!\n"
                "  IBCEND must be 0, 1 or 2.\n  The input value is 3\n");
}
