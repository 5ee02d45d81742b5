// Agreement with the FITPACK routines that SciPy wraps, on the committed tables of
// bspline_reference.inc (see generate_bspline_reference.py).
#include "bspline_reference.hpp"
#include "numerics/dierckx.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using bspline_reference::expect_agreement;
using bspline_reference::reference_cases;
using bspline_reference::ReferenceCase;
constexpr double relative_tolerance = bspline_reference::relative_tolerance;

struct Fit {
    int ier = 0;
    int n = 0;
    double fp = 0.0;
    std::vector<double> t;
    std::vector<double> c;
};

Fit fit(ReferenceCase const& reference) {
    int const m = reference.m;
    int const k = reference.k;
    int const nest = m + k + 1;
    int const lwrk = m * (k + 1) + nest * (7 + 3 * k);
    std::vector<double> const w(m, 1.0);
    std::vector<double> wrk(lwrk);
    std::vector<int> iwrk(nest);
    Fit result;
    result.t.assign(nest, 0.0);
    result.c.assign(nest, 0.0);
    VARNO::detail::curfit(0, m, reference.x, reference.y, w.data(), reference.x[0],
                          reference.x[m - 1], k, reference.s, nest, result.n, result.t.data(),
                          result.c.data(), result.fp, wrk.data(), lwrk, iwrk.data(), result.ier);
    return result;
}

TEST(DierckxReference, FitsValuesAndDerivativesMatch) {
    for (ReferenceCase const& reference : reference_cases) {
        SCOPED_TRACE(reference.name);
        Fit const result = fit(reference);
        EXPECT_EQ(result.ier, reference.ier);
        ASSERT_EQ(result.n, reference.n);
        expect_agreement(reference.t, result.t.data(), reference.n, "knots");
        expect_agreement(reference.c, result.c.data(), reference.n - reference.k - 1,
                         "coefficients");
        double const residual_scale = std::max(reference.fp, 1e-20);
        EXPECT_NEAR(result.fp, reference.fp, relative_tolerance * residual_scale);

        std::vector<double> y(reference.points);
        std::vector<double> wrk(result.n);
        int ier = -1;
        VARNO::detail::splev(result.t.data(), result.n, result.c.data(), reference.k, reference.at,
                             y.data(), reference.points, ier);
        EXPECT_EQ(ier, 0);
        expect_agreement(reference.derivatives[0], y.data(), reference.points, "values");
        for (int order = 1; order <= std::min(3, reference.k); ++order) {
            VARNO::detail::splder(result.t.data(), result.n, result.c.data(), reference.k, order,
                                  reference.at, y.data(), reference.points, wrk.data(), ier);
            EXPECT_EQ(ier, 0);
            expect_agreement(reference.derivatives[order], y.data(), reference.points,
                             "derivative " + std::to_string(order));
        }
        int const orders = reference.k + 1;
        for (int i = 0; i < reference.spalde_points; ++i) {
            double d[6];
            VARNO::detail::spalde(result.t.data(), result.n, result.c.data(), orders,
                                  reference.spalde_at[i], d, ier);
            EXPECT_EQ(ier, 0);
            expect_agreement(reference.spalde + orders * i, d, orders, "all derivatives");
        }
    }
}

} // namespace
