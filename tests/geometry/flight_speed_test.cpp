#include <calc-common/geometry.hpp>

#include <gtest/gtest.h>

#include <cmath>

TEST(TrueAirSpeed, CalibratedAtSeaLevelAndThinnerAirAloft) {
    // In the standard atmosphere at sea level the true speed is the calibrated one.
    double true_speed = 0.0, mach = 0.0, warm_speed = 0.0;
    EXPECT_EQ(Calc_TrueAirSpeed(150.0, 0.0, 288.15, &true_speed, &mach), 0);
    EXPECT_NEAR(true_speed, 150.0 * 0.5144, 1e-12 * 150.0);
    EXPECT_NEAR(mach, 150.0 * 0.5144 / std::sqrt(401.87 * 288.15), 1e-12);
    // 150 kt calibrated at 3048 m (268.34 K, 69.68 kPa): worked by hand through the impact
    // pressure, 3694 Pa, Mach 0.2727 and 89.5 m/s true.
    Calc_TrueAirSpeed(150.0, 3048.0, 288.15, &true_speed, &mach);
    EXPECT_NEAR(mach, 0.2727, 5e-4);
    EXPECT_NEAR(true_speed, 89.54, 0.05);
    // Warmer air at the same altitude is thinner still.
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
}

TEST(Speed, FillsInOnlyWhatIsMissing) {
    // {true speed, Mach, calibrated} given, and the true speed and Mach expected at 250 K local;
    // a calibrated speed, with 250 K at the ground, replaces a given true speed as well.
    double const a = std::sqrt(250.0 * 401.87);
    double calibrated_true = 0.0, calibrated_mach = 0.0;
    Calc_TrueAirSpeed(180.0, 2000.0, 250.0, &calibrated_true, &calibrated_mach);
    struct row {
        double true_speed, mach, calibrated, expected_true, expected_mach;
    } const rows[] = {
        {100.0, 0.5, 180.0, 100.0, 0.5},
        {100.0, 0.0, 0.0, 100.0, 100.0 / a},
        {0.0, 0.4, 0.0, 0.4 * a, 0.4},
        {0.0, 0.0, 0.0, 0.0, 0.0},
        {100.0, 0.0, 180.0, calibrated_true, calibrated_mach},
    };
    for (row const& r : rows) {
        double true_speed = r.true_speed, mach = r.mach;
        Calc_Speed(&true_speed, &mach, r.calibrated, 2000.0, 250.0);
        EXPECT_DOUBLE_EQ(true_speed, r.expected_true) << r.true_speed << ", " << r.mach;
        EXPECT_DOUBLE_EQ(mach, r.expected_mach) << r.true_speed << ", " << r.mach;
    }
}
