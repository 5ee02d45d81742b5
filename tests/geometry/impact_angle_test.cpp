#include <calc-common/geometry.hpp>

#include "frame/numeric_helpers.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace {

double const degree = std::acos(-1.0) / 180.0;

struct impact {
    int status;
    double elevation, delay, distance;
};

impact solve(double temperature, double wave_radius, double mach, double pitch, double heading,
             double source_z, double observer_x, double observer_y, double observer_offset = 0.0,
             double observer_z = 0.0) {
    impact r{-1, -1.0, -1.0, -1.0};
    r.status = Calc_ImpactAngle(temperature, wave_radius, mach, pitch, heading, 0.0, 0.0, 0.0, 0.0,
                                source_z, observer_x, observer_y, observer_offset, observer_z,
                                &r.elevation, &r.delay, &r.distance);
    return r;
}

double sound_speed(double temperature) {
    return std::sqrt(1.4 * 287.0530720470647 * temperature);
}

// Classic retarded time of a source in level flight at Mach M along the x axis, now at
// (0, 0, h), heard at (x, y, 0): tau = (M x + sqrt(x^2 + (1 - M^2)(y^2 + h^2))) / (c (1 - M^2)).
double level_flight_retarded_time(double c, double mach, double h, double x, double y) {
    double const beta2 = 1.0 - mach * mach;
    return (mach * x + std::sqrt(x * x + beta2 * (y * y + h * h))) / (c * beta2);
}

} // namespace

TEST(ImpactAngle, LevelFlightMatchesTheClosedFormRetardedTime) {
    double const temperature = 288.15, mach = 0.3, h = 300.0;
    double const c = sound_speed(temperature);
    for (double x : {-2000.0, -150.0, 0.0, 400.0, 3000.0}) {
        for (double y : {0.0, 250.0, -600.0}) {
            double const tau = level_flight_retarded_time(c, mach, h, x, y);
            // Flying along +x (heading 0), and the same geometry turned to fly along -y.
            for (impact const r : {solve(temperature, 0.0, mach, 0.0, 0.0, h, x, y),
                                   solve(temperature, 0.0, mach, 0.0, 90.0, h, y, -x)}) {
                ASSERT_EQ(r.status, 0);
                EXPECT_NEAR(r.distance, c * tau, 1e-9 * c * tau) << x << ", " << y;
                EXPECT_NEAR(r.elevation, std::asin(h / (c * tau)) / degree, 1e-9) << x << ", " << y;
                EXPECT_EQ(r.delay, 0.0);
            }
        }
    }
    // An approaching source is heard from farther away than a receding one.
    EXPECT_GT(solve(temperature, 0.0, mach, 0.0, 0.0, h, 1000.0, 0.0).distance,
              solve(temperature, 0.0, mach, 0.0, 0.0, h, -1000.0, 0.0).distance);
}

TEST(ImpactAngle, WaveRadiusAlreadyTravelledShortensTheTime) {
    // (x + V tau)^2 + h^2 = (R + c tau)^2 on the x axis, solved for tau by hand in closed form.
    double const temperature = 300.0, mach = 0.25, h = 200.0, x = 500.0, radius = 100.0;
    double const c = sound_speed(temperature);
    double const v = mach * c;
    double const a = c * c - v * v;
    double const b = 2.0 * (radius * c - v * x);
    double const k = radius * radius - (x * x + h * h);
    double const tau = (-b + std::sqrt(b * b - 4.0 * a * k)) / (2.0 * a);
    impact const r = solve(temperature, radius, mach, 0.0, 0.0, h, x, 0.0);
    EXPECT_EQ(r.status, 0);
    EXPECT_NEAR(r.delay, radius / c, 1e-15);
    EXPECT_NEAR(r.distance, radius + c * tau, 1e-9);
}

TEST(ImpactAngle, ElevationUsesTheCurrentHeightOverTheRetardedDistance) {
    // Climbing at 20 degrees: the time is found by bisection on |d + tau V| = c tau, and the
    // elevation takes the source's present height over the observer.
    double const temperature = 288.15, mach = 0.4, h = 500.0, x = 800.0, y = 300.0;
    double const c = sound_speed(temperature);
    double const vx = mach * c * std::cos(20 * degree), vz = mach * c * std::sin(20 * degree);
    double lo = 0.0, hi = 100.0;
    for (int i = 0; i < 200; ++i) {
        double const t = 0.5 * (lo + hi);
        double const gap = std::hypot(std::hypot(x + t * vx, y), -h + t * vz) - c * t;
        (gap > 0 ? lo : hi) = t;
    }
    impact const r = solve(temperature, 0.0, mach, 20.0, 0.0, h, x, y);
    EXPECT_NEAR(r.distance, c * lo, 1e-8);
    EXPECT_NEAR(r.elevation, std::asin(h / (c * lo)) / degree, 1e-9);
    // The observer offset is subtracted from its z: these two describe the same observer.
    impact const lifted = solve(temperature, 0.0, mach, 20.0, 0.0, h + 30.0, x, y, 10.0, 40.0);
    EXPECT_NEAR(lifted.distance, r.distance, 1e-9);
}

TEST(ImpactAngle, UnsolvableCasesReportOne) {
    impact const cold = solve(0.0, 50.0, 0.3, 0.0, 0.0, 300.0, 100.0, 0.0);
    EXPECT_EQ(cold.status, 1);
    EXPECT_EQ(cold.elevation, 0.0);
    EXPECT_EQ(cold.delay, 0.0);
    EXPECT_EQ(cold.distance, 0.0);

    impact const sonic = solve(288.15, 50.0, 1.0, 0.0, 0.0, 300.0, 100.0, 0.0);
    EXPECT_EQ(sonic.status, 1);
    EXPECT_EQ(sonic.elevation, 0.0);
    EXPECT_EQ(sonic.distance, 0.0);
    // At 288.15 K this gas constant gives the library's sea-level speed of sound.
    EXPECT_NEAR(sonic.delay, 50.0 / VARNO::detail::sea_level_speed_of_sound, 1e-15);

    // Not-a-number temperature or Mach number is not taken for either case: it runs through.
    for (impact const unknown : {solve(std::nan(""), 50.0, 0.3, 0.0, 0.0, 300.0, 100.0, 0.0),
                                 solve(288.15, 50.0, std::nan(""), 0.0, 0.0, 300.0, 100.0, 0.0)}) {
        EXPECT_EQ(unknown.status, 0);
        EXPECT_TRUE(std::isnan(unknown.elevation));
        EXPECT_TRUE(std::isnan(unknown.distance));
    }

    // At rest, the distance is the plain distance.
    impact const still = solve(288.15, 0.0, 0.0, 0.0, 0.0, 300.0, 400.0, 0.0);
    EXPECT_EQ(still.status, 0);
    EXPECT_NEAR(still.distance, 500.0, 1e-9);
    EXPECT_NEAR(still.elevation, std::asin(0.6) / degree, 1e-9);
}
