#include <calc-common/geometry.hpp>

#include "frame/numeric_helpers.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct distances {
    double lateral, least;
};

// Source at (0, 0, 300); observer on the ground at (x, y) with its ear 1.2 above.
distances measure(double pitch, double heading, double x, double y,
                  _lateral_distance_inex_data_t inex = lateral_distance_inex_normal()) {
    distances d{-1.0, -1.0};
    Calc_LateralDistance(pitch, heading, 0.0, 0.0, 0.0, 0.0, 300.0, x, y, 0.0, 1.2, inex,
                         &d.lateral, &d.least);
    return d;
}

} // namespace

TEST(LateralDistance, LevelAndClimbingFlyoversHaveClosedFormDistances) {
    double const least = std::hypot(100.0, 300.0 - 1.2);
    for (double x : {-900.0, 0.0, 500.0}) {
        for (double y : {100.0, -100.0}) {
            // Along +x, and heading 90 along -y, where the same observer is 100 aside along x.
            for (distances const d : {measure(0.0, 0.0, x, y), measure(0.0, 90.0, y, x)}) {
                EXPECT_NEAR(d.lateral, 100.0, 1e-9) << x << ", " << y;
                EXPECT_NEAR(d.least, least, 1e-9) << x << ", " << y;
            }
        }
    }
    // Climbing at 12 degrees over the x axis: the least distance is |(ear - source) x direction|.
    double const ux = std::cos(12 * VARNO::detail::degrees_to_radians);
    double const uz = std::sin(12 * VARNO::detail::degrees_to_radians);
    double const ex = 700.0, ey = 150.0, ez = 1.2 - 300.0;
    distances const d = measure(12.0, 0.0, ex, ey);
    EXPECT_NEAR(d.lateral, 150.0, 1e-9);
    EXPECT_NEAR(d.least, std::hypot(ey * uz, ez * ux - ex * uz, ey * ux), 1e-9);
}

TEST(LateralDistance, FixedPointsAndVerticalLines) {
    _lateral_distance_inex_data_t const take_off =
        lateral_distance_inex_take_off_before_brake_release(50.0, 20.0, 10.0);
    _lateral_distance_inex_data_t const approach =
        lateral_distance_inex_approach_after_50ft(50.0, 20.0, 10.0);
    EXPECT_EQ(take_off.inex_type, 1);
    EXPECT_EQ(approach.inex_type, 2);
    for (_lateral_distance_inex_data_t const& inex : {take_off, approach}) {
        distances const d = measure(3.0, 40.0, 80.0, 60.0, inex);
        EXPECT_NEAR(d.lateral, 50.0, 1e-12);
        EXPECT_NEAR(d.least, std::sqrt(30.0 * 30.0 + 40.0 * 40.0 + 8.8 * 8.8), 1e-12);
    }
    // Straight up: no ground track, whatever the record says.
    distances const vertical = measure(90.0, 0.0, 80.0, 60.0, take_off);
    EXPECT_EQ(vertical.lateral, 0.0);
    EXPECT_EQ(vertical.least, 0.0);
}
