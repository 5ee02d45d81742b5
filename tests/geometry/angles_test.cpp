#include <calc-common/geometry.hpp>

#include "frame/numeric_helpers.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <iterator>

using VARNO::detail::degrees_to_radians;

namespace {

// An attitude (pitch, heading, roll, and the turn of the nose down), the observer's offset from
// the source at (10, 20, 300), and the expected angle in degrees.
struct sighting {
    double pitch, heading, roll, turn, dx, dy, dz, expected;
};

double const c10 = std::cos(10 * degrees_to_radians), s10 = std::sin(10 * degrees_to_radians);
double const c30 = std::cos(30 * degrees_to_radians), s30 = std::sin(30 * degrees_to_radians);

} // namespace

TEST(DopplerAndEmissionAngle, AroundTheFlightDirectionAndAtCoincidentPoints) {
    // The Doppler angle is measured from the nose turned down by the angle of attack, the emission
    // angle from the nose raised by the axis angle: the same angle for opposite turns.
    // clang-format off
    sighting const rows[] = {
        {0, 0, 0, 0, 800, 0, 0, 0},     {0, 0, 0, 0, -800, 0, 0, 180},   // ahead, behind
        {0, 0, 0, 0, 0, 500, 0, 90},    {0, 0, 0, 0, 0, -500, 0, 90},    // either side
        {0, 0, 0, 0, 0, 0, 500, 90},    {0, 0, 0, 0, 0, 0, -300, 90},    // above, below
        {0, 0, 0, 0, 300, 0, -300, 45}, {0, 90, 0, 0, 0, -700, 0, 0},    // heading 90 flies to -y
        {30, 0, 0, 0, 2 * c30, 0, 1, 0}, {30, 0, 0, 0, 2 * c30, 0, -1, 60}, // pitch 30 climbs
        {0, 0, 0, 10, c10, 0, -s10, 0}, {0, 0, 0, 90, 0, 0, -50, 0},     // attack lowers the path
        {0, 0, 90, 90, 0, 50, 0, 0},                                     // roll tilts lower to +y
        {0, 0, 0, -30, c30, 0, s30, 0}, {0, 0, 0, -30, 1, 0, 0, 30},     // axis raised by 30
        {5, 0, 0, -2, 400, 0, 0, 7},                                     // pitch adds to the axis
    };
    // clang-format on
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        sighting const& r = rows[i];
        double doppler = -1.0, emission = -1.0, to_path, to_body;
        Calc_DopplerAngle(r.pitch, r.heading, r.roll, r.turn, 10.0, 20.0, 300.0, 10.0 + r.dx,
                          20.0 + r.dy, 300.0 + r.dz, 0.0, &doppler);
        Calc_EmissionAngle(r.pitch, 0.0, r.heading, r.roll, -r.turn, 10.0, 20.0, 300.0, 10.0 + r.dx,
                           20.0 + r.dy, 300.0 + r.dz, 0.0, &emission, &to_path, &to_body);
        EXPECT_NEAR(doppler, r.expected * degrees_to_radians, 1e-7) << "row " << i;
        EXPECT_NEAR(emission, r.expected, 1e-6) << "row " << i;
    }
    // The ear 60 above the ground point at 40 meets the source; on the threshold the Doppler angle
    // still counts as coincident; a not-a-number distance runs through.
    double angle = -1.0;
    Calc_DopplerAngle(0, 0, 0, 0, 5.0, 5.0, 100.0, 5.0, 5.0, 40.0, 60.0, &angle);
    EXPECT_EQ(angle, 1.5707963267948966);
    Calc_DopplerAngle(0, 0, 0, 0, 0.0, 0.0, 0.0, 1e-9, 0.0, 0.0, 0.0, &angle);
    EXPECT_EQ(angle, 1.5707963267948966);
    Calc_DopplerAngle(0, 0, 0, 0, 0.0, 0.0, 0.0, std::nan(""), 0.0, 0.0, 0.0, &angle);
    EXPECT_TRUE(std::isnan(angle));
    // Coincident points give 90, and the angles to path (pitch 5, path 3, axis 2) and body.
    double to_path, to_body;
    Calc_EmissionAngle(5.0, 3.0, 0.0, 0.0, 2.0, 0, 0, 100, 0, 0, 40, 60, &angle, &to_path,
                       &to_body);
    EXPECT_EQ(angle, 90.0);
    EXPECT_EQ(to_path, 86.0);
    EXPECT_EQ(to_body, 88.0);
    // On the threshold the emission angle is still measured.
    Calc_EmissionAngle(0, 0, 0, 0, 0, 0.0, 0.0, 0.0, 1e-9, 0.0, 0.0, 0.0, &angle, &to_path,
                       &to_body);
    EXPECT_EQ(angle, 0.0);
}

TEST(AzimuthAngle, SidesAndPlaneInABodyFrameWithZDown) {
    // Here the fields are yaw, roll, pitch and plane angle.
    // clang-format off
    sighting const rows[] = {
        {0, 0, 0, 0, 0, 100, 0, 90},    {0, 0, 0, 0, 0, -100, 0, -90},  // sides
        {0, 0, 0, 0, 0, 0, 100, 0},     {0, 0, 0, 0, 0, 0, -100, 0},    // plane of symmetry
        {0, 0, 0, 0, 0, 100, 100, 45},  {0, 0, 0, 90, 100, 100, 0, 45}, // plane turned forward
        {90, 0, 0, 0, -100, 0, 0, 90},  {0, 30, 0, 0, 0, c30, s30, 90}, // yaw 90: lateral is -x
        {0, 0, 30, 0, 0, 100, 0, 90},                                   // roll tilts it down
    };
    // clang-format on
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        sighting const& r = rows[i];
        EXPECT_NEAR(Calc_AzimuthAngle(1.0, 2.0, 3.0, 1.0 + r.dx, 2.0 + r.dy, 3.0 + r.dz, r.pitch,
                                      r.heading, r.roll, r.turn),
                    r.expected, 1e-6)
            << "row " << i;
    }
    EXPECT_TRUE(std::isnan(Calc_AzimuthAngle(1, 2, 3, 101, 2, 3, 0, 0, 0, 0)));
}

// Yaw, pitch and roll together: a body axis is turned into the ground frame (z down) by the roll
// about x, then the pitch about y, then the yaw about z, one plane rotation after another.
TEST(AzimuthAngle, FollowsTheBodyAxesOfCombinedTurns) {
    for (auto const [yaw, pitch, roll] : {std::array{30.0, 10.0, 20.0}, {-120.0, -25.0, 45.0}}) {
        double const cy = std::cos(yaw * degrees_to_radians),
                     sy = std::sin(yaw * degrees_to_radians);
        double const cp = std::cos(pitch * degrees_to_radians);
        double const sp = std::sin(pitch * degrees_to_radians);
        double const cr = std::cos(roll * degrees_to_radians),
                     sr = std::sin(roll * degrees_to_radians);
        // The observer 100 along a sum of body axes (forward, lateral, lower); plane angle 0 is
        // the plane through the lower axis, 90 the one through the nose.
        auto const azimuth = [&](std::array<double, 3> v, double plane) {
            v = {v[0], cr * v[1] - sr * v[2], sr * v[1] + cr * v[2]};
            v = {cp * v[0] + sp * v[2], v[1], cp * v[2] - sp * v[0]};
            v = {cy * v[0] - sy * v[1], sy * v[0] + cy * v[1], v[2]};
            return Calc_AzimuthAngle(1.0, 2.0, 3.0, 1.0 + 100.0 * v[0], 2.0 + 100.0 * v[1],
                                     3.0 + 100.0 * v[2], yaw, roll, pitch, plane);
        };
        SCOPED_TRACE(testing::Message() << yaw << ", " << pitch << ", " << roll);
        EXPECT_NEAR(azimuth({0, 1, 0}, 0.0), 90.0, 1e-9);
        EXPECT_NEAR(azimuth({0, -1, 0}, 0.0), -90.0, 1e-9);
        EXPECT_NEAR(azimuth({0, 0, 1}, 0.0), 0.0, 1e-9);
        EXPECT_NEAR(azimuth({0, 1, 1}, 0.0), 45.0, 1e-9);
        EXPECT_NEAR(azimuth({1, 1, 0}, 90.0), 45.0, 1e-9);
        EXPECT_NEAR(azimuth({1, -1, 0}, 90.0), -45.0, 1e-9);
    }
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
