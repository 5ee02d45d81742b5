#include "propagation/complex_division.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <limits>

using VARNO::detail::smith_divide;

TEST(ComplexDivision, QuotientsOfOrdinaryNumbers) {
    std::complex<double> const q = smith_divide({1.0, 2.0}, {3.0, -4.0});
    EXPECT_DOUBLE_EQ(q.real(), -0.2);
    EXPECT_DOUBLE_EQ(q.imag(), 0.4);
    std::complex<double> const p = smith_divide({5.0, 1.0}, {0.5, 8.0});
    std::complex<double> const expected =
        std::complex<double>{5.0, 1.0} / std::complex<double>{0.5, 8.0};
    EXPECT_DOUBLE_EQ(p.real(), expected.real());
    EXPECT_DOUBLE_EQ(p.imag(), expected.imag());
    // Scaling keeps huge divisors from overflowing.
    std::complex<double> const huge = smith_divide({1e300, 1e300}, {1e300, 1e300});
    EXPECT_DOUBLE_EQ(huge.real(), 1.0);
    EXPECT_DOUBLE_EQ(huge.imag(), 0.0);
}

TEST(ComplexDivision, ZeroOrNotANumberDivisorGivesNotANumberInBothParts) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    for (std::complex<double> divisor :
         {std::complex<double>{0.0, 0.0}, std::complex<double>{-0.0, 0.0},
          std::complex<double>{nan, 1.0}, std::complex<double>{1.0, nan}}) {
        std::complex<double> const q = smith_divide({1.0, 1.0}, divisor);
        EXPECT_TRUE(std::isnan(q.real()));
        EXPECT_TRUE(std::isnan(q.imag()));
    }
}
