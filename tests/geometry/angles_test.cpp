#include <calc-common/geometry.hpp>

#include <gtest/gtest.h>

#include <cmath>

namespace {

double const pi = std::acos(-1.0);
double const degree = pi / 180.0;

// Source at (10, 20, 300); the observer is placed by its offset from the source.
double doppler(double pitch, double heading, double roll, double attack, double dx, double dy,
               double dz) {
    double angle = -1.0;
    Calc_DopplerAngle(pitch, heading, roll, attack, 10.0, 20.0, 300.0, 10.0 + dx, 20.0 + dy,
                      300.0 + dz, 0.0, &angle);
    return angle;
}

double emission(double pitch, double heading, double roll, double axis_angle, double dx, double dy,
                double dz) {
    double angle = -1.0, to_path = -1.0, to_body = -1.0;
    Calc_EmissionAngle(pitch, 0.0, heading, roll, axis_angle, 10.0, 20.0, 300.0, 10.0 + dx,
                       20.0 + dy, 300.0 + dz, 0.0, &angle, &to_path, &to_body);
    return angle;
}

double azimuth(double yaw, double roll, double pitch, double plane_angle, double dx, double dy,
               double dz) {
    return Calc_AzimuthAngle(1.0, 2.0, 3.0, 1.0 + dx, 2.0 + dy, 3.0 + dz, yaw, roll, pitch,
                             plane_angle);
}

} // namespace

TEST(DopplerAngle, LevelFlightSeesObserversAheadBehindBesideAboveAndBelow) {
    EXPECT_EQ(doppler(0, 0, 0, 0, 800, 0, 0), 0.0);
    EXPECT_EQ(doppler(0, 0, 0, 0, -800, 0, 0), pi);
    EXPECT_NEAR(doppler(0, 0, 0, 0, 0, 500, 0), pi / 2, 1e-15);
    EXPECT_NEAR(doppler(0, 0, 0, 0, 0, -500, 0), pi / 2, 1e-15);
    EXPECT_NEAR(doppler(0, 0, 0, 0, 0, 0, 500), pi / 2, 1e-15);
    EXPECT_NEAR(doppler(0, 0, 0, 0, 0, 0, -300), pi / 2, 1e-15);
    EXPECT_NEAR(doppler(0, 0, 0, 0, 300, 0, -300), pi / 4, 1e-15);
}

TEST(DopplerAngle, EachAttitudeAngleTurnsTheFlightDirectionTheStatedWay) {
    // Heading 90 flies towards -y.
    EXPECT_NEAR(doppler(0, 90, 0, 0, 0, -700, 0), 0.0, 1e-7);
    EXPECT_NEAR(doppler(0, 90, 0, 0, 0, 700, 0), pi, 1e-7);
    // Pitch 30 climbs.
    EXPECT_NEAR(doppler(30, 0, 0, 0, 866.0254037844386, 0, 500), 0.0, 1e-7);
    EXPECT_NEAR(doppler(30, 0, 0, 0, 866.0254037844386, 0, -500), 60 * degree, 1e-12);
    // Positive attack puts the flight path below the nose.
    EXPECT_NEAR(doppler(0, 0, 0, 10, std::cos(10 * degree), 0, -std::sin(10 * degree)), 0.0, 1e-7);
    // Attack 90 flies along the lower axis, which positive roll tilts towards +y.
    EXPECT_NEAR(doppler(0, 0, 0, 90, 0, 0, -50), 0.0, 1e-7);
    EXPECT_NEAR(doppler(0, 0, 90, 90, 0, 50, 0), 0.0, 1e-7);
}

TEST(DopplerAngle, CoincidentPointsAndTheObserverHeight) {
    double angle = -1.0;
    Calc_DopplerAngle(0, 0, 0, 0, 5.0, 5.0, 100.0, 5.0, 5.0, 40.0, 60.0, &angle);
    EXPECT_EQ(angle, 1.5707963267948966);
    Calc_DopplerAngle(0, 0, 0, 0, 5.0, 5.0, 100.0, 900.0, 5.0, 40.0, 60.0, &angle);
    EXPECT_EQ(angle, 0.0);
    // A separation on the threshold still counts as coincident here.
    Calc_DopplerAngle(0, 0, 0, 0, 0.0, 0.0, 0.0, 1e-9, 0.0, 0.0, 0.0, &angle);
    EXPECT_EQ(angle, 1.5707963267948966);
    // A not-a-number distance is not taken for coincidence: it runs through.
    Calc_DopplerAngle(0, 0, 0, 0, 0.0, 0.0, 0.0, std::nan(""), 0.0, 0.0, 0.0, &angle);
    EXPECT_TRUE(std::isnan(angle));
}

TEST(EmissionAngle, AxisIsRaisedAndDerivedAnglesFollow) {
    EXPECT_EQ(emission(0, 0, 0, 0, 800, 0, 0), 0.0);
    EXPECT_EQ(emission(0, 0, 0, 0, -800, 0, 0), 180.0);
    EXPECT_NEAR(emission(0, 0, 0, 0, 0, 400, 0), 90.0, 1e-12);
    EXPECT_NEAR(emission(0, 0, 0, 0, 0, 0, -400), 90.0, 1e-12);
    // The axis angle raises the reference axis above the nose.
    EXPECT_NEAR(emission(0, 0, 0, 30, std::cos(30 * degree), 0, std::sin(30 * degree)), 0.0, 1e-6);
    EXPECT_NEAR(emission(0, 0, 0, 30, 1.0, 0, 0), 30.0, 1e-12);
    EXPECT_NEAR(emission(0, 90, 0, 0, 0, -1.0, 0), 0.0, 1e-6);

    double angle, to_path, to_body;
    // Pitch 5 and axis angle 2 raise the axis 7 degrees above an observer straight ahead.
    Calc_EmissionAngle(5.0, 3.0, 0.0, 0.0, 2.0, 0, 0, 100, 400, 0, 100, 0, &angle, &to_path,
                       &to_body);
    EXPECT_NEAR(angle, 7.0, 1e-12);
    EXPECT_DOUBLE_EQ(to_path, angle - 5.0 + 3.0 - 2.0);
    EXPECT_DOUBLE_EQ(to_body, angle - 2.0);

    // Coincident points give 90, and the derived angles come from it.
    Calc_EmissionAngle(5.0, 3.0, 0.0, 0.0, 2.0, 0, 0, 100, 0, 0, 40, 60, &angle, &to_path,
                       &to_body);
    EXPECT_EQ(angle, 90.0);
    EXPECT_EQ(to_path, 86.0);
    EXPECT_EQ(to_body, 88.0);
    // On the threshold the angle is still measured, unlike the Doppler angle.
    Calc_EmissionAngle(0, 0, 0, 0, 0, 0.0, 0.0, 0.0, 1e-9, 0.0, 0.0, 0.0, &angle, &to_path,
                       &to_body);
    EXPECT_EQ(angle, 0.0);
}

TEST(AzimuthAngle, SidesAndPlaneInABodyFrameWithZDown) {
    EXPECT_DOUBLE_EQ(azimuth(0, 0, 0, 0, 0, 100, 0), 90.0);
    EXPECT_DOUBLE_EQ(azimuth(0, 0, 0, 0, 0, -100, 0), -90.0);
    EXPECT_NEAR(azimuth(0, 0, 0, 0, 0, 0, 100), 0.0, 1e-12);
    EXPECT_NEAR(azimuth(0, 0, 0, 0, 0, 0, -100), 0.0, 1e-12);
    EXPECT_NEAR(azimuth(0, 0, 0, 0, 0, 100, 100), 45.0, 1e-12);
    EXPECT_TRUE(std::isnan(azimuth(0, 0, 0, 0, 100, 0, 0)));
    // The plane angle turns the reference plane from the lower axis to the forward one.
    EXPECT_NEAR(azimuth(0, 0, 0, 90, 100, 0, 0), 0.0, 1e-12);
    EXPECT_NEAR(azimuth(0, 0, 0, 90, 100, 100, 0), 45.0, 1e-12);
    // Yaw 90 points the lateral axis to -x; roll 30 tilts it downwards (+z).
    EXPECT_NEAR(azimuth(90, 0, 0, 0, -100, 0, 0), 90.0, 1e-6);
    EXPECT_NEAR(azimuth(0, 30, 0, 0, 0, std::cos(30 * degree), std::sin(30 * degree)), 90.0, 1e-6);
    EXPECT_NEAR(azimuth(0, 0, 30, 0, 0, 100, 0), 90.0, 1e-12);
}

TEST(ElevationAngle, BothFormsAndNoClamping) {
    double from_ratio, elevation;
    Calc_ElevationAngle(100.0, 0.0, 0.0, 200.0, std::sqrt(3.0) * 100.0, 200.0, &from_ratio,
                        &elevation);
    EXPECT_NEAR(from_ratio, 30.0, 1e-12);
    EXPECT_NEAR(elevation, 30.0, 1e-12);
    Calc_ElevationAngle(-60.0, 0.0, 40.0, 200.0, 250.0, 200.0, &from_ratio, &elevation);
    EXPECT_NEAR(elevation, -30.0, 1e-12);
    EXPECT_TRUE(std::isnan(from_ratio));
}
