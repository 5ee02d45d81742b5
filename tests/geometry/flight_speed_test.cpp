#include <calc-common/geometry.hpp>

#include <gtest/gtest.h>

#include <cmath>

namespace {

double const knot = 0.5144;

} // namespace

TEST(TrueAirSpeed, EqualsTheCalibratedSpeedAtSeaLevelInTheStandardAtmosphere) {
    for (double knots : {60.0, 150.0, 320.0}) {
        double true_speed = 0.0, mach = 0.0;
        EXPECT_EQ(Calc_TrueAirSpeed(knots, 0.0, 288.15, &true_speed, &mach), 0);
        double const v = knots * knot;
        EXPECT_NEAR(true_speed, v, 1e-12 * v);
        EXPECT_NEAR(mach, v / std::sqrt(115798.84049999999), 1e-12);
    }
}

TEST(TrueAirSpeed, GrowsWithAltitudeAsTheAirThins) {
    // 150 kt calibrated at 3048 m in the standard atmosphere (268.34 K, 69.68 kPa): worked by
    // hand through the impact pressure, 3694 Pa, Mach 0.2727 and 89.5 m/s true.
    double true_speed = 0.0, mach = 0.0;
    Calc_TrueAirSpeed(150.0, 3048.0, 288.15, &true_speed, &mach);
    EXPECT_NEAR(mach, 0.2727, 5e-4);
    EXPECT_NEAR(true_speed, 89.54, 0.05);
    // Warmer air at the same altitude is thinner still.
    double warm_speed = 0.0;
    Calc_TrueAirSpeed(150.0, 3048.0, 303.15, &warm_speed, &mach);
    EXPECT_GT(warm_speed, true_speed);
}

TEST(PressureAltitude, IteratesToTheWarmAirFixedPoint) {
    double h = -1.0;
    EXPECT_EQ(Calc_PressureAltitude(3000.0, 0.0, &h), 0);
    EXPECT_EQ(h, 3000.0);
    // Fixed point of H = 3000 - ln((288.15 - 0.0065 H)/288.15) * 15 / -0.0065.
    Calc_PressureAltitude(3000.0, 15.0, &h);
    EXPECT_NEAR(h, 2846.832211285662, 0.01);
    Calc_PressureAltitude(3000.0, -15.0, &h);
    EXPECT_GT(h, 3000.0);
}

TEST(Speed, FillsInOnlyWhatIsMissing) {
    double const a = std::sqrt(250.0 * 401.87);
    double true_speed = 100.0, mach = 0.5;
    Calc_Speed(&true_speed, &mach, 180.0, 2000.0, 250.0);
    EXPECT_EQ(true_speed, 100.0);
    EXPECT_EQ(mach, 0.5);

    // A calibrated speed replaces the given true speed as well.
    double expected_true = 0.0, expected_mach = 0.0;
    Calc_TrueAirSpeed(180.0, 2000.0, 250.0, &expected_true, &expected_mach);
    mach = 0.0;
    Calc_Speed(&true_speed, &mach, 180.0, 2000.0, 250.0);
    EXPECT_EQ(true_speed, expected_true);
    EXPECT_EQ(mach, expected_mach);

    true_speed = 100.0;
    mach = 0.0;
    Calc_Speed(&true_speed, &mach, 0.0, 2000.0, 250.0);
    EXPECT_DOUBLE_EQ(mach, 100.0 / a);
    true_speed = 0.0;
    mach = 0.4;
    Calc_Speed(&true_speed, &mach, 0.0, 2000.0, 250.0);
    EXPECT_DOUBLE_EQ(true_speed, 0.4 * a);
    true_speed = 0.0;
    mach = 0.0;
    Calc_Speed(&true_speed, &mach, 0.0, 2000.0, 250.0);
    EXPECT_EQ(true_speed, 0.0);
    EXPECT_EQ(mach, 0.0);
}
