#include <calc-common/numerics.hpp>

#include "support/allocation_counter.hpp"
#include "support/error_text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

using test_support::error_text;

namespace {

// y = x^2 on uneven knots. The parabolas through the end points are the data's own, so the ghost
// chords are sums of abscissas and every Akima slope can be worked by hand: the extended
// abscissas are -3, -2 | 0, 1, 3, 7 | 9, 13 and the chords -5, -2 | 1, 4, 10 | 16, 22, giving
// t = -0.5, 2, 6, 13 (weights 3,3; 3,6; 3,6; 6,6).
double const square_x[] = {0.0, 1.0, 3.0, 7.0};
double const square_y[] = {0.0, 1.0, 9.0, 49.0};
std::size_t const square_n = 4;

// A directivity table for the linear lookup.
double const angles[] = {10.0, 40.0, 90.0, 150.0};
double const levels[] = {80.0, 86.0, 90.0, 84.0};
std::size_t const count = 4;

struct akima_run {
    std::vector<double> yi, dyi, slopes;
};

akima_run run(double const* x, double const* y, std::size_t n, bool extrapolate,
              std::vector<double> const& xi) {
    akima_run out{std::vector<double>(xi.size(), 77.0), std::vector<double>(xi.size(), 77.0),
                  std::vector<double>(std::max(n, xi.size()), 77.0)};
    Calc_ParabolicInterp(x, y, n, extrapolate, xi.data(), xi.size(), out.yi.data(), out.dyi.data(),
                         out.slopes.data());
    return out;
}

} // namespace

TEST(ParabolicInterp, AkimaSlopesAndEndRulesMatchTheHandWorkedTable) {
    // Inner slopes are exact for a parabola, so the first inner interval reproduces it; on [3, 7]
    // p2 = 5/4, p3 = -1/16. Below the table the first point's slope carries on; on the last point
    // (and one ulp beyond) the cubic's slope is t(3) = 13, beyond it the last chord, 10.
    std::vector<double> const xi = {-2.0, 2.0, 5.0, 7.0, std::nextafter(7.0, 8.0), 9.0};
    double const y[] = {1.0, 4.0, 25.5, 49.0, 49.0, 69.0};
    double const dy[] = {-0.5, 4.0, 10.25, 13.0, 13.0, 10.0};
    akima_run const out = run(square_x, square_y, square_n, true, xi);
    double const t[] = {-0.5, 2.0, 6.0, 13.0};
    for (std::size_t i = 0; i < square_n; ++i) {
        EXPECT_NEAR(out.slopes[i], t[i], 1e-13) << "slope " << i;
    }
    for (std::size_t i = 0; i < xi.size(); ++i) {
        EXPECT_NEAR(out.yi[i], y[i], 1e-12) << "at " << xi[i];
        EXPECT_NEAR(out.dyi[i], dy[i], 1e-12) << "at " << xi[i];
    }
    // Without extrapolation the end values are held and the derivatives left alone.
    akima_run const held = run(square_x, square_y, square_n, false, {-1.0, 0.0, 8.0});
    EXPECT_EQ(held.yi, (std::vector<double>{0.0, 0.0, 49.0}));
    EXPECT_EQ(held.dyi, std::vector<double>(3, 77.0));
}

TEST(ParabolicInterp, QueriesAreSweptForwardOnly) {
    // A query that steps back is evaluated on the current interval's cubic, continued: 2 on the
    // cubic of [3, 7] is 9 - 6 + 5/4 + 1/16, not the 4 of its own interval. A query on a knot
    // (3) stays on the interval that ends there, so the step back after it still reads 4.
    akima_run const back = run(square_x, square_y, square_n, true, {3.0, 2.0, 5.0, 2.0});
    EXPECT_NEAR(back.yi[1], 4.0, 1e-13);
    EXPECT_NEAR(back.yi[3], 4.3125, 1e-13);
}

TEST(ParabolicInterp, CollinearDataAndThreePointTables) {
    double const x[] = {-1.0, 0.5, 0.75, 4.0, 10.0};
    double const y[] = {-1.0, 2.0, 2.5, 9.0, 21.0};
    std::vector<double> const xi = {-3.0, 0.0, 0.6, 5.0, 12.0};
    akima_run const line = run(x, y, 5, true, xi);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_NEAR(line.slopes[i], 2.0, 1e-12) << i;
        EXPECT_NEAR(line.yi[i], 2.0 * xi[i] + 1.0, 1e-12) << xi[i];
        EXPECT_NEAR(line.dyi[i], 2.0, 1e-12) << xi[i];
    }
    // Parabola y = x^2 on 0, 1, 3: extended abscissas -3, -2 | 0, 1, 3 | 4, 6, chords
    // -5, -2, 1, 4, 7, 10, all steps 3, so every slope is the plain mean of its two chords.
    akima_run const three = run(square_x, square_y, 3, true, {2.0});
    EXPECT_NEAR(three.slopes[0], -0.5, 1e-13);
    EXPECT_NEAR(three.slopes[1], 2.5, 1e-13);
    EXPECT_NEAR(three.slopes[2], 5.5, 1e-13);
}

TEST(ParabolicInterp, SmallTables) {
    double const x[] = {1.0, 3.0};
    double const y[] = {2.0, 6.0};
    akima_run const one = run(x, y, 1, true, {5.0, 6.0, 7.0});
    EXPECT_EQ(one.yi, (std::vector<double>{2.0, 77.0, 77.0}));
    EXPECT_EQ(one.dyi[0], -999.0);
    EXPECT_EQ(one.slopes[0], -999.0);

    // Two points: the line on both sides, whatever the flag, and zeros indexed by query.
    akima_run const two = run(x, y, 2, false, {-1.0, 2.0, 5.0});
    EXPECT_EQ(two.yi, (std::vector<double>{-2.0, 4.0, 10.0}));
    EXPECT_EQ(two.dyi, (std::vector<double>{2.0, 2.0, 2.0}));
    EXPECT_EQ(two.slopes, (std::vector<double>{0.0, 0.0, 0.0}));

    double out = 0.0;
    EXPECT_EQ(error_text([&] { Calc_ParabolicInterp(x, y, 0, true, x, 1, &out, &out, &out); }),
              "An error occurred in function Calc_ParabolicInterp");
}

TEST(Max, FirstOfTolerantlyEqualValuesWins) {
    double maximum = -1.0;
    std::vector<double> values = {1.0, 3.0, 2.0, 3.0, 3.0 * (1 + 2e-16)};
    EXPECT_EQ(Calc_Max(values, &maximum), 1);
    EXPECT_EQ(maximum, 3.0);

    values = {-4.0, -2.0, -3.0};
    EXPECT_EQ(Calc_MaxLimitedRange(values.data(), 3, &maximum), 1);
    EXPECT_EQ(maximum, -2.0);
    EXPECT_EQ(Calc_MaxLimitedRange(values.data(), 1, &maximum), 0);
    EXPECT_EQ(maximum, -4.0);

    std::vector<double> empty;
    EXPECT_EQ(Calc_Max(empty, &maximum), -1);
    EXPECT_EQ(maximum, 0.0);
}

TEST(AngularInterpLinear, InterpolatesInsideAndClampsOutside) {
    // No wrap-around: 370 degrees is beyond the table, not 10 degrees.
    double const rows[][2] = {{25.0, 83.0}, {120.0, 87.0}, {40.0, 86.0}, {0.0, 80.0},
                              {10.0, 80.0}, {200.0, 84.0}, {370.0, 84.0}};
    for (bool extrapolate : {false, true}) {
        for (auto const& r : rows) {
            EXPECT_DOUBLE_EQ(Calc_AngularInterp_Linear(angles, levels, count, r[0], extrapolate),
                             r[1])
                << r[0] << (extrapolate ? " extrapolated" : "");
        }
    }
    EXPECT_EQ(Calc_AngularInterp_Linear(angles, levels, 1, 70.0, true), 80.0);
    EXPECT_EQ(error_text([] { Calc_AngularInterp_Linear(angles, levels, 0, 20.0, true); }),
              "An error occurred in function Calc_AngularInterp_Linear");
}

TEST(AngularInterpParabolic, IsTheAkimaCurveAtOneAngle) {
    // On the hand-worked table: the cubic of [3, 7] inside; below the table the first point's
    // slope carries on, or without extrapolation the first value is held.
    EXPECT_NEAR(Calc_AngularInterp_Parabolic(square_x, square_y, square_n, 5.0, false), 25.5,
                1e-12);
    EXPECT_NEAR(Calc_AngularInterp_Parabolic(square_x, square_y, square_n, -2.0, true), 1.0, 1e-12);
    EXPECT_EQ(Calc_AngularInterp_Parabolic(square_x, square_y, square_n, -2.0, false), 0.0);
    EXPECT_EQ(error_text([] { Calc_AngularInterp_Parabolic(angles, levels, 0, 20.0, true); }),
              "An error occurred in function Calc_ParabolicInterp");
}

TEST(AngularInterpParabolic, GrowsItsWorkspaceOnceAndThenAllocatesNothing) {
    // A straight line on more points than the first workspace holds.
    std::vector<double> x(100), y(100);
    std::iota(x.begin(), x.end(), 0.0);
    std::transform(x.begin(), x.end(), y.begin(), [](double v) { return 3.0 * v; });
    std::size_t const n = x.size();
    EXPECT_NEAR(Calc_AngularInterp_Parabolic(x.data(), y.data(), n, 50.5, false), 151.5, 1e-9);
    test_support::AllocationCounter counter;
    EXPECT_NEAR(Calc_AngularInterp_Parabolic(x.data(), y.data(), n, 20.25, false), 60.75, 1e-9);
    EXPECT_NEAR(Calc_AngularInterp_Parabolic(angles, levels, count, 40.0, false), 86.0, 1e-12);
    EXPECT_EQ(counter.count(), 0u);
}

TEST(AngularInterpolationRecord, DefaultIsParabolicAndTheSharedRecordsMatchTheirTypes) {
    // The linear lookup would give 29 at 5 on the hand-worked table.
    angular_interpolation_t const standard;
    EXPECT_EQ(standard.type, ANGULAR_INTERPOLATION_PARABOLIC);
    EXPECT_NEAR(standard.interpolator(square_x, square_y, square_n, 5.0, true), 25.5, 1e-12);
    EXPECT_EQ(angular_interpolation_t::linear->type, ANGULAR_INTERPOLATION_LINEAR);
    EXPECT_EQ(angular_interpolation_t::parabolic->type, ANGULAR_INTERPOLATION_PARABOLIC);
    EXPECT_EQ(angular_interpolation_t::linear->interpolator(angles, levels, count, 120.0, true),
              87.0);
    EXPECT_NEAR(
        angular_interpolation_t::parabolic->interpolator(square_x, square_y, square_n, 5.0, true),
        25.5, 1e-12);
}
