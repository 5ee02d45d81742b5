// The building blocks of the smoothing-spline fit, on hand-worked values.
#include "numerics/dierckx.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <vector>

namespace {

using namespace VARNO::detail;

// Every reference fit runs through the rotations; here legs whose squares would overflow.
TEST(Givens, RotationAnnihilatesThePivotWithoutOverflow) {
    // Either leg the longer: {pivot, w, hypotenuse, cos, sin}.
    double const half_root = std::sqrt(0.5);
    for (auto const& [piv, w, hypotenuse, cos_expected, sin_expected] :
         {std::array{-1e300, 1e300, std::sqrt(2.0) * 1e300, half_root, -half_root},
          std::array{3e300, 4e300, 5e300, 0.8, 0.6}}) {
        double ww = w, cos = 0.0, sin = 0.0;
        fpgivs(piv, ww, cos, sin);
        EXPECT_DOUBLE_EQ(ww, hypotenuse);
        EXPECT_DOUBLE_EQ(cos, cos_expected);
        EXPECT_DOUBLE_EQ(sin, sin_expected);
    }
}

TEST(Fpchec, KnotsMustBeOrderedAndSupportedByData) {
    double const x[] = {0.0, 1.0, 2.0, 3.0, 4.0, 5.0};
    // Ordinary knots pass in the given-knot fits below; here the edge cases.
    std::vector<double> t = {0, 0, 0, 0, 2.5, 2.5, 5, 5, 5, 5}; // repeated interior knot
    int ier = -1;
    fpchec(x, 6, t.data(), 10, 3, ier);
    EXPECT_EQ(ier, 10);
    t = {0, 0, 0, 0, 4.2, 4.4, 4.6, 5, 5, 5, 5}; // three B-splines share one data point
    fpchec(x, 6, t.data(), 11, 3, ier);
    EXPECT_EQ(ier, 10);
    t = {0, 0, 0, 0, 2.5, 4.5, 5, 5, 5, 5}; // data still support every B-spline
    fpchec(x, 6, t.data(), 10, 3, ier);
    EXPECT_EQ(ier, 0);
}

// Noise-free samples of a smooth curve on uneven abscissas, and curfit's storage for a cubic fit
// with room for nest knots.
struct Curfit {
    std::vector<double> x, y, w, t, c, wrk;
    std::vector<int> iwrk;
    int n = 0, ier = 0;
    double fp = 0.0;
    Curfit(int m, int nest)
        : w(m, 1.0)
        , t(nest)
        , c(nest)
        , wrk(4 * m + 16 * nest)
        , iwrk(nest) {
        for (int i = 0; i < m; ++i) {
            x.push_back(i + 0.3 * std::sin(1.7 * i));
            y.push_back(std::sin(0.4 * x.back()) + 0.05 * std::cos(5.0 * x.back()));
        }
    }
    void run(int iopt, double s) {
        curfit(iopt, static_cast<int>(x.size()), x.data(), y.data(), w.data(), x.front(), x.back(),
               3, s, static_cast<int>(t.size()), n, t.data(), c.data(), fp, wrk.data(),
               static_cast<int>(wrk.size()), iwrk.data(), ier);
    }
};

TEST(Curfit, StorageAndInputChecks) {
    Curfit small(30, 12); // room for four interior knots only
    small.run(0, 1e-4);
    EXPECT_EQ(small.ier, 1);
    EXPECT_EQ(small.n, 12);
    small.run(0, 0.0); // interpolation needs m + 4 knots
    EXPECT_EQ(small.ier, 10);
    small.run(2, 1.0);
    EXPECT_EQ(small.ier, 10);
    Curfit short_work(30, 34);
    short_work.wrk.pop_back();
    short_work.run(0, 1.0);
    EXPECT_EQ(short_work.ier, 10);
}

TEST(Curfit, GivenKnotsGiveTheLeastSquaresSpline) {
    Curfit polynomial(30, 34);
    polynomial.run(0, 1e6);
    ASSERT_EQ(polynomial.ier, -2);
    ASSERT_EQ(polynomial.n, 8);

    // The boundary knots alone, given: the same least-squares polynomial.
    Curfit fixed(30, 34);
    fixed.n = 8;
    fixed.run(-1, 0.0);
    EXPECT_EQ(fixed.ier, -2);
    EXPECT_EQ(fixed.c, polynomial.c);
    EXPECT_EQ(fixed.fp, polynomial.fp);

    // Interior knots can only lower the residual.
    fixed.n = 11;
    fixed.t[4] = 8.0, fixed.t[5] = 15.0, fixed.t[6] = 22.0;
    fixed.run(-1, 0.0);
    EXPECT_EQ(fixed.ier, 0);
    EXPECT_LT(fixed.fp, 0.5 * polynomial.fp);

    fixed.t[5] = 7.0; // knots out of order
    fixed.run(-1, 0.0);
    EXPECT_EQ(fixed.ier, 10);
}

TEST(Curfit, ContinuationReachesTheNewFactorFromTheOldKnots) {
    Curfit fit(40, 44);
    fit.run(0, 0.05);
    ASSERT_EQ(fit.ier, 0);
    Curfit const first = fit;
    fit.run(1, 0.05); // the same factor: the same spline
    EXPECT_EQ(fit.n, first.n);
    EXPECT_EQ(fit.c, first.c);
    fit.run(1, 0.01);
    ASSERT_EQ(fit.ier, 0);
    EXPECT_GE(fit.n, first.n);
    EXPECT_NEAR(fit.fp, 0.01, 0.001 * 0.01);
}

} // namespace

TEST(Curfit, AKnotRequestBeyondAnIntIsBoundedWhileADouble) {
    // A continued fit whose last step lowered fp by one part in 1e15 asks, for a smoothing
    // factor far below fp, for about 1e15 knots at once: the search must add at most twice the
    // knots of its last step and go on until the smoothing condition holds.
    Curfit fit(20, 24);
    fit.n = 10;
    fit.t[4] = 6.0, fit.t[5] = 12.0;
    fit.run(-1, 0.0);
    ASSERT_EQ(fit.ier, 0);
    fit.wrk[fit.n - 1] = 2.0 * fit.fp;           // residual of the polynomial
    fit.wrk[fit.n - 2] = fit.fp * (1.0 + 1e-15); // residual of the knots before these
    fit.iwrk[fit.n - 1] = 1;                     // knots added at the last step
    double const s = fit.fp * 1e-13;
    fit.run(1, s);
    EXPECT_EQ(fit.ier, 0);
    EXPECT_NEAR(fit.fp, s, 0.001 * s);
}
