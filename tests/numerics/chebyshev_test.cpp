#include <calc-common/numerics.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

std::string const invalid = "Error in jet mixing noise prediction: invalid parameters passed to "
                            "Chebyshev polynomials computation function.";

std::string message_of(double x, double lower, double upper, int order) {
    double values[8] = {-7, -7, -7, -7, -7, -7, -7, -7};
    try {
        Calc_ChebyshevPolynomial(x, lower, upper, order, values);
    } catch (varno_calc_error const& error) {
        EXPECT_EQ(values[0], -7.0) << "nothing is written before the check";
        return error.what();
    }
    return "";
}

} // namespace

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
    double values[2];
    double const just_above = std::nextafter(6.0, 7.0);
    EXPECT_NO_THROW(Calc_ChebyshevPolynomial(just_above, 2.0, 6.0, 1, values));
    EXPECT_GT(values[1], 1.0);
    EXPECT_EQ(message_of(6.001, 2.0, 6.0, 3), invalid);
    EXPECT_EQ(message_of(1.999, 2.0, 6.0, 3), invalid);
    EXPECT_EQ(message_of(4.0, 2.0, 6.0, 0), invalid);
    EXPECT_EQ(message_of(4.0, 2.0, 6.0, -2), invalid);
    // A degenerate interval passes the checks and maps to not-a-number.
    EXPECT_NO_THROW(Calc_ChebyshevPolynomial(3.0, 3.0, 3.0, 1, values));
    EXPECT_TRUE(std::isnan(values[1]));
}
