#include <calc-common/numerics.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <complex>

namespace {

void expect_complex(complex_t z, double r, double i, double tolerance = 1e-15) {
    EXPECT_NEAR(z.r, r, tolerance);
    EXPECT_NEAR(z.i, i, tolerance);
}

} // namespace

TEST(Complex, ArithmeticAgreesWithTheStandardLibrary) {
    complex_t const z = create_complex(1.5, -2.0);
    complex_t const u = create_complex(-0.5, 3.0);
    std::complex<double> const sz(1.5, -2.0), su(-0.5, 3.0);
    EXPECT_EQ(real(z), 1.5);
    EXPECT_EQ(aimag(z), -2.0);
    EXPECT_DOUBLE_EQ(absc(z), 2.5);
    expect_complex(conjg(z), 1.5, 2.0);
    expect_complex(copp(z), -1.5, 2.0);
    expect_complex(cadd(z, u), 1.0, 1.0);
    expect_complex(csub(z, u), 2.0, -5.0);
    expect_complex(cmul(z, u), (sz * su).real(), (sz * su).imag());
    expect_complex(cdiv(z, u), (sz / su).real(), (sz / su).imag());
    expect_complex(radd(2.0, z), 3.5, -2.0);
    expect_complex(rsub(1.0, create_complex(2.0, 3.0)), -1.0, -3.0);
    expect_complex(rmul(2.0, z), 3.0, -4.0);
    expect_complex(rdiv(z, 2.0), 0.75, -1.0);
    expect_complex(rdivc(2.0, u), (2.0 / su).real(), (2.0 / su).imag());
    expect_complex(c_exp(u), std::exp(su).real(), std::exp(su).imag());
}

TEST(Complex, SquareRootIsPrincipalAndNeverSquaresALargePart) {
    expect_complex(c_sqrt(create_complex(0.0, 0.0)), 0.0, 0.0);
    expect_complex(c_sqrt(create_complex(-4.0, 0.0)), 0.0, 2.0);
    expect_complex(c_sqrt(create_complex(-4.0, -0.0)), 0.0, 2.0);
    expect_complex(c_sqrt(create_complex(3.0, 4.0)), 2.0, 1.0);
    expect_complex(c_sqrt(create_complex(-3.0, -4.0)), 1.0, -2.0);
    expect_complex(c_sqrt(create_complex(0.0, 2.0)), 1.0, 1.0);
    // Parts whose squares overflow.
    double const root = std::sqrt(1e300);
    expect_complex(c_sqrt(create_complex(3e300, 4e300)), 2.0 * root, root, 1e-14 * root);
    expect_complex(c_sqrt(create_complex(-3e300, 4e300)), root, 2.0 * root, 1e-14 * root);
}
