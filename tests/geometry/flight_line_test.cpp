#include <calc-common/geometry.hpp>

#include "frame/numeric_helpers.hpp"

#include <gtest/gtest.h>

#include <cmath>

using VARNO::detail::degrees_to_radians;
using VARNO::detail::radians_to_degrees;

namespace {

struct impact {
    int status;
    double elevation, delay, distance;
};

// Source at (0, 0, source_z) with no roll or attack; observer at (x, y, observer_z) less the
// offset.
impact solve(double temperature, double wave_radius, double mach, double pitch, double heading,
             double source_z, double x, double y, double offset = 0.0, double observer_z = 0.0) {
    impact r{-1, -1.0, -1.0, -1.0};
    r.status =
        Calc_ImpactAngle(temperature, wave_radius, mach, pitch, heading, 0.0, 0.0, 0.0, 0.0,
                         source_z, x, y, offset, observer_z, &r.elevation, &r.delay, &r.distance);
    return r;
}

double sound_speed(double temperature) {
    return std::sqrt(1.4 * 287.0530720470647 * temperature);
}

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

TEST(ImpactAngle, LevelFlightMatchesTheClosedFormRetardedTime) {
    // A source in level flight at Mach M along x, now at (0, 0, h), is heard at (x, y, 0) from
    // tau = (M x + sqrt(x^2 + (1 - M^2)(y^2 + h^2))) / (c (1 - M^2)) ago. Behind a supersonic
    // source both roots are past emissions: this one, the more recent, is heard first.
    double const temperature = 288.15, h = 300.0, c = sound_speed(temperature);
    for (double mach : {0.0, 0.3, 2.0}) {
        double const beta2 = 1.0 - mach * mach;
        for (double x : {-3000.0, -2000.0, -150.0, 0.0, 400.0, 3000.0}) {
            if (mach > 1.0 && x > -2000.0) {
                continue; // not yet heard there
            }
            for (double y : {0.0, 250.0, -600.0}) {
                double const tau =
                    (mach * x + std::sqrt(x * x + beta2 * (y * y + h * h))) / (c * beta2);
                SCOPED_TRACE(testing::Message() << mach << ": " << x << ", " << y);
                // Flying along +x (heading 0), and the same geometry turned to fly along -y.
                for (impact const r : {solve(temperature, 0.0, mach, 0.0, 0.0, h, x, y),
                                       solve(temperature, 0.0, mach, 0.0, 90.0, h, y, -x)}) {
                    ASSERT_EQ(r.status, 0);
                    EXPECT_NEAR(r.distance, c * tau, 1e-9 * c * tau);
                    EXPECT_NEAR(r.elevation, std::asin(h / (c * tau)) * radians_to_degrees, 1e-9);
                    EXPECT_EQ(r.delay, 0.0);
                }
            }
        }
    }
}

TEST(ImpactAngle, ClimbingWithATravelledWaveAndAnObserverOffset) {
    // Climbing at 20 degrees with a wave front of radius R already out: the time by bisection on
    // |d + tau V| = R + c tau, which has one root with R + c tau >= 0 (a front wider than the
    // distance gives a negative one). The elevation takes the source's present height.
    double const c = sound_speed(288.15), h = 500.0, x = 800.0, y = 300.0;
    double const vx = 0.4 * c * std::cos(20 * degrees_to_radians);
    double const vz = 0.4 * c * std::sin(20 * degrees_to_radians);
    for (double radius : {100.0, 2000.0}) {
        double lo = -radius / c, hi = 100.0;
        for (int i = 0; i < 200; ++i) {
            double const t = 0.5 * (lo + hi);
            (std::hypot(x + t * vx, y, -h + t * vz) > radius + c * t ? lo : hi) = t;
        }
        impact const r = solve(288.15, radius, 0.4, 20.0, 0.0, h, x, y);
        EXPECT_EQ(r.status, 0);
        EXPECT_NEAR(r.delay, radius / c, 1e-15);
        EXPECT_NEAR(r.distance, radius + c * lo, 1e-8) << radius;
        EXPECT_NEAR(r.elevation, std::asin(h / r.distance) * radians_to_degrees, 1e-9) << radius;
        // The observer offset is subtracted from its z: these two describe the same observer.
        EXPECT_NEAR(solve(288.15, radius, 0.4, 20.0, 0.0, h + 30.0, x, y, 10.0, 40.0).distance,
                    r.distance, 1e-9);
    }
}

TEST(ImpactAngle, UnsolvableCasesReportOneAndNotANumberRunsThrough) {
    impact const cold = solve(0.0, 50.0, 0.3, 0.0, 0.0, 300.0, 100.0, 0.0);
    EXPECT_EQ(cold.status, 1);
    EXPECT_EQ(cold.elevation + cold.delay + cold.distance, 0.0);
    impact const sonic = solve(288.15, 50.0, 1.0, 0.0, 0.0, 300.0, 100.0, 0.0);
    EXPECT_EQ(sonic.status, 1);
    EXPECT_EQ(sonic.elevation + sonic.distance, 0.0);
    // At 288.15 K the speed of sound of this geometry is 340.294 m/s.
    EXPECT_NEAR(sonic.delay, 50.0 / 340.29410779, 1e-10);
    // Not-a-number temperature or Mach number is taken for neither case.
    for (impact const unknown : {solve(std::nan(""), 50.0, 0.3, 0.0, 0.0, 300.0, 100.0, 0.0),
                                 solve(288.15, 50.0, std::nan(""), 0.0, 0.0, 300.0, 100.0, 0.0)}) {
        EXPECT_EQ(unknown.status, 0);
        EXPECT_TRUE(std::isnan(unknown.elevation));
        EXPECT_TRUE(std::isnan(unknown.distance));
    }
}

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
    double const ux = std::cos(12 * degrees_to_radians);
    double const uz = std::sin(12 * degrees_to_radians);
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

// Only the observer's place relative to the source counts: moving both across the ground by one
// step changes no distance and no angle.
TEST(FlightLine, MovingSourceAndObserverTogetherChangesNothing) {
    double const x = 700.0, y = -150.0;
    double lateral[2], least[2];
    impact heard[2];
    for (int moved = 0; moved < 2; ++moved) {
        double const sx = 250.0 * moved, sy = -120.0 * moved;
        Calc_LateralDistance(12.0, 30.0, 0.0, 0.0, sx, sy, 300.0, x + sx, y + sy, 0.0, 1.2,
                             lateral_distance_inex_normal(), &lateral[moved], &least[moved]);
        impact& r = heard[moved];
        r.status = Calc_ImpactAngle(288.15, 0.0, 0.3, 12.0, 30.0, 0.0, 0.0, sx, sy, 300.0, x + sx,
                                    y + sy, 0.0, 0.0, &r.elevation, &r.delay, &r.distance);
    }
    EXPECT_NEAR(lateral[1], lateral[0], 1e-9);
    EXPECT_NEAR(least[1], least[0], 1e-9);
    ASSERT_EQ(heard[1].status, 0);
    EXPECT_NEAR(heard[1].distance, heard[0].distance, 1e-9);
    EXPECT_NEAR(heard[1].elevation, heard[0].elevation, 1e-9);
}
