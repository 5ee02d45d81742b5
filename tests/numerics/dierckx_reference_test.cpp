// Agreement with the FITPACK routines that SciPy wraps, on the committed tables of
// bspline_reference.inc (see generate_bspline_reference.py): the routines underneath at every
// degree, and the public B-spline class on the cubic cases.
#include "numerics/dierckx.hpp"

#include <calc-common/numerics.hpp>

#include "support/error_text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace {

using namespace VARNO::detail;

#include "bspline_reference.inc"

constexpr double relative_tolerance = 1e-10;

// Relative agreement, measured against the larger of the entry and a thousandth of the array's
// largest entry, so that entries passing through zero are judged on the scale of their
// neighbours.
void expect_agreement(double const* expected, double const* actual, int count,
                      std::string const& what) {
    double const scale =
        std::fabs(*std::max_element(expected, expected + count, [](double a, double b) {
            return std::fabs(a) < std::fabs(b);
        }));
    for (int i = 0; i < count; ++i) {
        double const bound = relative_tolerance * std::max(std::fabs(expected[i]), 1e-3 * scale);
        EXPECT_NEAR(actual[i], expected[i], bound) << what << " [" << i << "]";
    }
}

TEST(DierckxReference, FitsValuesAndDerivativesMatch) {
    for (ReferenceCase const& reference : reference_cases) {
        SCOPED_TRACE(reference.name);
        int const m = reference.m, k = reference.k, nest = m + k + 1;
        int const lwrk = m * (k + 1) + nest * (7 + 3 * k);
        std::vector<double> const w(m, 1.0);
        std::vector<double> wrk(lwrk), t(nest), c(nest);
        std::vector<int> iwrk(nest);
        int n = 0, ier = 0;
        double fp = 0.0;
        curfit(0, m, reference.x, reference.y, w.data(), reference.x[0], reference.x[m - 1], k,
               reference.s, nest, n, t.data(), c.data(), fp, wrk.data(), lwrk, iwrk.data(), ier);
        EXPECT_EQ(ier, reference.ier);
        ASSERT_EQ(n, reference.n);
        expect_agreement(reference.t, t.data(), n, "knots");
        expect_agreement(reference.c, c.data(), n - k - 1, "coefficients");
        EXPECT_NEAR(fp, reference.fp, relative_tolerance * std::max(reference.fp, 1e-20));

        std::vector<double> y(reference.points);
        splev(t.data(), n, c.data(), k, reference.at, y.data(), reference.points, ier);
        expect_agreement(reference.derivatives[0], y.data(), reference.points, "values");
        for (int order = 1; order <= std::min(3, k); ++order) {
            splder(t.data(), n, c.data(), k, order, reference.at, y.data(), reference.points,
                   wrk.data(), ier);
            expect_agreement(reference.derivatives[order], y.data(), reference.points,
                             "derivative " + std::to_string(order));
        }
        for (int i = 0; i < reference.spalde_points; ++i) {
            double d[6];
            spalde(t.data(), n, c.data(), k + 1, reference.spalde_at[i], d, ier);
            expect_agreement(reference.spalde + (k + 1) * i, d, k + 1, "all derivatives");
        }
    }
}

TEST(BSplineReference, CubicFitsAgreeOrRaiseTheirCode) {
    for (ReferenceCase const& reference : reference_cases) {
        if (reference.k != 3) {
            continue;
        }
        SCOPED_TRACE(reference.name);
        auto const fit = [&] {
            return VARNO::BSpline(reference.x, reference.y, reference.m, reference.s);
        };
        if (reference.ier == 2 || reference.ier == 3) {
            EXPECT_EQ(test_support::error_text(fit),
                      reference.ier == 2 ? "Error during B-Spline calculation: impossible result "
                                           "found (smoothing factor is probably too small)."
                                         : "Error during B-Spline calculation: failed to converge "
                                           "(smoothing factor is probably too small).");
            continue;
        }
        VARNO::BSpline const spline = fit();
        ASSERT_EQ(spline.knot_count, reference.n);
        expect_agreement(reference.c, spline.coefficients.get(), reference.n - 4, "coefficients");
        std::vector<double> y(reference.points);
        spline.evaluate(reference.at, y.data(), reference.points);
        expect_agreement(reference.derivatives[0], y.data(), reference.points, "values");
        for (int order = 1; order <= 3; ++order) {
            spline.getDerivative(order, reference.at, y.data(), reference.points);
            expect_agreement(reference.derivatives[order], y.data(), reference.points,
                             "derivative " + std::to_string(order));
        }
    }
}

} // namespace
