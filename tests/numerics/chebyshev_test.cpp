#include <calc-common/numerics.hpp>

#include "support/error_text.hpp"

#include <gtest/gtest.h>

#include <cmath>

TEST(Chebyshev, ValuesAreTheCosinesOfMultipleAngles) {
    // On [2, 6]: 3.5 maps to -0.25, and the ends to -1 and 1.
    for (double const x : {3.5, 2.0, 6.0}) {
        double values[7];
        Calc_ChebyshevPolynomial(x, 2.0, 6.0, 6, values);
        double const theta = std::acos((x - 4.0) / 2.0);
        for (int k = 0; k <= 6; ++k) {
            EXPECT_NEAR(values[k], std::cos(k * theta), 1e-14) << x << ", order " << k;
        }
    }
    double pair[3] = {0.0, 0.0, -7.0};
    Calc_ChebyshevPolynomial(5.0, 2.0, 6.0, 1, pair);
    EXPECT_EQ(pair[0], 1.0);
    EXPECT_EQ(pair[1], 0.5);
    EXPECT_EQ(pair[2], -7.0);
}

TEST(Chebyshev, ArgumentsAreCheckedWithinTheRoundingBand) {
    double values[4] = {-7.0, -7.0, -7.0, -7.0};
    double const rows[][2] = {{6.001, 3}, {1.999, 3}, {4.0, 0}, {4.0, -2}};
    for (auto const& r : rows) {
        EXPECT_EQ(test_support::error_text([&] {
                      Calc_ChebyshevPolynomial(r[0], 2.0, 6.0, static_cast<int>(r[1]), values);
                  }),
                  "Error in jet mixing noise prediction: invalid parameters passed to Chebyshev "
                  "polynomials computation function.")
            << r[0] << ", order " << r[1];
    }
    EXPECT_EQ(values[0], -7.0) << "nothing is written before the check";
    EXPECT_NO_THROW(Calc_ChebyshevPolynomial(std::nextafter(6.0, 7.0), 2.0, 6.0, 1, values));
    EXPECT_GT(values[1], 1.0);
    // A degenerate interval passes the checks and maps to not-a-number.
    EXPECT_NO_THROW(Calc_ChebyshevPolynomial(3.0, 3.0, 3.0, 1, values));
    EXPECT_TRUE(std::isnan(values[1]));
}
