#include <calc-common/geometry.hpp>

#include <gtest/gtest.h>

#include <cmath>

namespace {

double const degree = std::acos(-1.0) / 180.0;

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

TEST(LateralDistance, LevelFlyoverHasClosedFormDistances) {
    double const least = std::hypot(100.0, 300.0 - 1.2);
    for (double x : {-900.0, 0.0, 500.0}) {
        for (double y : {100.0, -100.0}) {
            distances const along_x = measure(0.0, 0.0, x, y);
            EXPECT_NEAR(along_x.lateral, 100.0, 1e-9);
            EXPECT_NEAR(along_x.least, least, 1e-9);
            // Heading 90 flies along -y: the same observer is now 100 to the side along x.
            distances const along_y = measure(0.0, 90.0, y, x);
            EXPECT_NEAR(along_y.lateral, 100.0, 1e-9);
            EXPECT_NEAR(along_y.least, least, 1e-9);
        }
    }
    distances const under = measure(0.0, 0.0, 250.0, 0.0);
    EXPECT_NEAR(under.lateral, 0.0, 1e-9);
    EXPECT_NEAR(under.least, 298.8, 1e-9);
}

TEST(LateralDistance, ClimbingFlightLineDistanceIsTheCrossProduct) {
    // The ground track stays the x axis; the least distance is |(ear - source) x direction|.
    double const ux = std::cos(12 * degree), uz = std::sin(12 * degree);
    double const ex = 700.0, ey = 150.0, ez = 1.2 - 300.0;
    double const cx = ey * uz, cy = ez * ux - ex * uz, cz = -ey * ux;
    distances const d = measure(12.0, 0.0, ex, ey);
    EXPECT_NEAR(d.lateral, 150.0, 1e-9);
    EXPECT_NEAR(d.least, std::sqrt(cx * cx + cy * cy + cz * cz), 1e-9);
}

TEST(LateralDistance, FixedPointsAndVerticalLines) {
    _lateral_distance_inex_data_t const normal = lateral_distance_inex_normal();
    EXPECT_EQ(normal.inex_type, 0);
    EXPECT_EQ(normal.point_x, 0.0);
    EXPECT_EQ(normal.point_y, 0.0);
    EXPECT_EQ(normal.point_z, 0.0);
    _lateral_distance_inex_data_t const take_off =
        lateral_distance_inex_take_off_before_brake_release(50.0, 20.0, 10.0);
    _lateral_distance_inex_data_t const approach =
        lateral_distance_inex_approach_after_50ft(50.0, 20.0, 10.0);
    EXPECT_EQ(take_off.inex_type, 1);
    EXPECT_EQ(approach.inex_type, 2);
    EXPECT_EQ(approach.point_x, 50.0);
    EXPECT_EQ(approach.point_y, 20.0);
    EXPECT_EQ(approach.point_z, 10.0);
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
