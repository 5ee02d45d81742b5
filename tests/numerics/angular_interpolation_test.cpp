#include <calc-common/numerics.hpp>

#include "support/allocation_counter.hpp"
#include "support/error_text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <vector>

using test_support::error_text;

namespace {

double const angles[] = {10.0, 40.0, 90.0, 150.0};
double const levels[] = {80.0, 86.0, 90.0, 84.0};
std::size_t const count = 4;

} // namespace

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
    std::vector<double> const queries = {0.0, 25.0, 90.0, 120.0, 200.0};
    for (bool extrapolate : {false, true}) {
        std::vector<double> yi(queries.size()), dyi(queries.size()), slopes(count);
        Calc_ParabolicInterp(angles, levels, count, extrapolate, queries.data(), queries.size(),
                             yi.data(), dyi.data(), slopes.data());
        for (std::size_t i = 0; i < queries.size(); ++i) {
            EXPECT_EQ(Calc_AngularInterp_Parabolic(angles, levels, count, queries[i], extrapolate),
                      yi[i]);
        }
    }
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
    double const parabolic = Calc_AngularInterp_Parabolic(angles, levels, count, 120.0, true);
    angular_interpolation_t const standard;
    EXPECT_EQ(standard.type, ANGULAR_INTERPOLATION_PARABOLIC);
    EXPECT_EQ(standard.interpolator(angles, levels, count, 120.0, true), parabolic);
    EXPECT_EQ(angular_interpolation_t::linear->type, ANGULAR_INTERPOLATION_LINEAR);
    EXPECT_EQ(angular_interpolation_t::parabolic->type, ANGULAR_INTERPOLATION_PARABOLIC);
    EXPECT_EQ(angular_interpolation_t::linear->interpolator(angles, levels, count, 120.0, true),
              87.0);
    EXPECT_EQ(angular_interpolation_t::parabolic->interpolator(angles, levels, count, 120.0, true),
              parabolic);
}
