#include "propagation/complex_division.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <limits>

using VARNO::detail::smith_divide;
using complex = std::complex<double>;

// Through either part of the divisor; scaling keeps huge divisors from overflowing.
TEST(ComplexDivision, QuotientsOfOrdinaryNumbers) {
    complex const rows[][3] = {{{1.0, 2.0}, {3.0, -4.0}, {-0.2, 0.4}},
                               {{5.0, 1.0}, {8.0, 0.5}, complex{40.5, 5.5} / 64.25},
                               {{1e300, 1e300}, {1e300, 1e300}, {1.0, 0.0}}};
    for (auto const& row : rows) {
        complex const q = smith_divide(row[0], row[1]);
        EXPECT_DOUBLE_EQ(q.real(), row[2].real()) << row[0] << " / " << row[1];
        EXPECT_DOUBLE_EQ(q.imag(), row[2].imag()) << row[0] << " / " << row[1];
    }
}

TEST(ComplexDivision, ZeroOrNotANumberDivisorGivesNotANumberInBothParts) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    for (complex divisor :
         {complex{0.0, 0.0}, complex{-0.0, 0.0}, complex{nan, 1.0}, complex{1.0, nan}}) {
        complex const q = smith_divide({1.0, 1.0}, divisor);
        EXPECT_TRUE(std::isnan(q.real())) << divisor;
        EXPECT_TRUE(std::isnan(q.imag())) << divisor;
    }
}
