#include <calc-common/geometry.hpp>

#include <gtest/gtest.h>

#include <vector>

TEST(InterpIntegratedMetrics, ResamplesOnHalfStepsThroughTheCentre) {
    std::vector<double> const x = {0.0, 1.0, 2.0};
    std::vector<double> const y1 = {0.0, 10.0, 30.0}, y2 = {1.0, 1.0, 3.0}, y3 = {5.0, 4.0, 3.0};
    std::vector<double> out1(5, -1.0), out2(5, -1.0), out3(5, -1.0), shared(5, -1.0);
    interpIntegratedMetrics(1, x, y1, y2, y3, 3, out1, out2, out3);
    EXPECT_EQ(out1, (std::vector<double>{0.0, 5.0, 10.0, 20.0, 30.0}));
    EXPECT_EQ(out2, (std::vector<double>{1.0, 1.0, 1.0, 2.0, 3.0}));
    EXPECT_EQ(out3, (std::vector<double>{5.0, 4.5, 4.0, 3.5, 3.0}));
    // Written in the order third, first, second: with one output for all, the second wins.
    interpIntegratedMetrics(1, x, y1, y2, y3, 3, shared, shared, shared);
    EXPECT_EQ(shared, out2);

    // Off the half-step phase: left 1, right 0, grid 0.2 + fmod(0.8, 0.5) and then 1.0.
    std::vector<double> const xs = {0.2, 1.0}, ys = {0.0, 8.0};
    std::vector<double> out(2, -1.0), untouched(1, -1.0);
    interpIntegratedMetrics(1, xs, ys, ys, ys, 2, out, out, out);
    EXPECT_NEAR(out[0], 3.0, 1e-12);
    EXPECT_EQ(out[1], 8.0);
    interpIntegratedMetrics(0, x, y1, y2, y3, 1, untouched, untouched, untouched);
    EXPECT_EQ(untouched[0], -1.0);
}

TEST(ExtrapIntegratedMetrics, SumsHalfStepEnergiesDownToTheStopLevelOrAThousandSteps) {
    // From 100 m at 200 m per unit: distances 200, 300, 400 give 100 dB less 20 log10 of 2, 3, 4;
    // the third sample, 87.96 dB, is the first at or below 90 and still counts.
    double const expected = 0.5 * 1e10 * (1.0 / 4 + 1.0 / 9 + 1.0 / 16);
    double energy = -1.0;
    for (bool ratio_form : {true, false}) {
        extrapIntegratedMetrics(100.0, 200.0, 100.0, 90.0, ratio_form, &energy);
        EXPECT_NEAR(energy, expected, 1e-12 * expected) << ratio_form;
    }
    double sum = 0.0;
    for (int k = 1; k <= 1000; ++k) {
        sum += 0.5 * 1e6 / ((1.0 + k) * (1.0 + k));
    }
    extrapIntegratedMetrics(50.0, 100.0, 60.0, -1e9, false, &energy);
    EXPECT_NEAR(energy, sum, 1e-12 * sum);
    // No speed, or a start not above the stop.
    extrapIntegratedMetrics(50.0, 0.0, 60.0, 40.0, true, &energy);
    EXPECT_EQ(energy, 0.0);
    energy = -1.0;
    extrapIntegratedMetrics(50.0, 100.0, 60.0, 60.0, true, &energy);
    EXPECT_EQ(energy, 0.0);
}
