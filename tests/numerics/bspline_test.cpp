#include <calc-common/numerics.hpp>

#include "support/allocation_counter.hpp"
#include "support/error_text.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using test_support::error_text;

// A cubic lies in every space of cubic splines, so every fit reproduces it exactly.
double cubic(double x) {
    return 1.0 - 2.0 * x + 0.5 * x * x + 0.25 * x * x * x;
}

struct CubicTable {
    std::vector<double> x{0.0, 0.5, 1.5, 2.0, 3.5, 4.0, 5.0};
    std::vector<double> y;
    CubicTable() {
        for (double const xi : x) {
            y.push_back(cubic(xi));
        }
    }
    int count() const { return static_cast<int>(x.size()); }
    VARNO::BSpline fit(double smoothing) const {
        return VARNO::BSpline(x.data(), y.data(), count(), smoothing);
    }
};

// Values and derivatives of fits are checked against FITPACK in dierckx_reference_test.cpp; what
// that leaves is the call for all derivatives at once and the ends outside the span.
TEST(BSpline, ReproducesACubicAndClampsOutsideTheSpan) {
    VARNO::BSpline const spline = CubicTable().fit(0.0);
    double d[4];
    spline.getAllDerivatives(2.7, d);
    EXPECT_NEAR(d[0], cubic(2.7), 1e-13);
    EXPECT_NEAR(d[1], -2.0 + 2.7 + 0.75 * 2.7 * 2.7, 1e-12);
    EXPECT_NEAR(d[2], 1.0 + 1.5 * 2.7, 1e-12);
    EXPECT_NEAR(d[3], 1.5, 1e-11);
    // Outside the span values and derivatives take the end's.
    double const outside[] = {-3.0, 0.0, 5.0, 9.0};
    spline.evaluate(outside, d, 4);
    EXPECT_TRUE(d[0] == d[1] && d[3] == d[2]);
    spline.getDerivative(1, outside, d, 4);
    EXPECT_TRUE(d[0] == d[1] && d[3] == d[2]);
}

TEST(BSpline, BadTablesAndEvaluationsAreIllConditioned) {
    std::string const fit_error = "Error during B-Spline calculation: ill-conditioned entries.";
    std::string const evaluation_error =
        "Error during B-Spline evaluation: ill-conditioned entries.";
    CubicTable table;
    VARNO::BSpline const spline = table.fit(0.0);
    double const descending[] = {2.0, 1.0}, repeated[] = {1.0, 1.0};
    double y[4];
    CubicTable coincident, unsupported;
    coincident.x[3] = coincident.x[2];
    unsupported.x[3] = 1.0;
    struct row {
        char const* what;
        std::function<void()> action;
        std::string const& message;
    } const rows[] = {
        {"three points", [&] { VARNO::BSpline(table.x.data(), table.y.data(), 3, 0.0); },
         fit_error},
        {"no points", [&] { VARNO::BSpline(table.x.data(), table.y.data(), 0, 0.0); }, fit_error},
        {"negative factor", [&] { table.fit(-1.0); }, fit_error},
        {"repeated abscissa", [&] { coincident.fit(0.0); }, fit_error},
        {"abscissas out of order", [&] { unsupported.fit(0.5); }, fit_error},
        {"descending queries", [&] { spline.evaluate(descending, y, 2); }, evaluation_error},
        {"no queries", [&] { spline.evaluate(repeated, y, 0); }, evaluation_error},
        {"descending derivative", [&] { spline.getDerivative(1, descending, y, 2); },
         evaluation_error},
        {"order 4", [&] { spline.getDerivative(4, repeated, y, 2); }, evaluation_error},
        {"order -1", [&] { spline.getDerivative(-1, repeated, y, 2); }, evaluation_error},
        {"all beyond the end", [&] { spline.getAllDerivatives(5.0 + 1e-9, y); }, evaluation_error},
        {"all before the start", [&] { spline.getAllDerivatives(-1e-9, y); }, evaluation_error},
    };
    for (row const& r : rows) {
        EXPECT_EQ(error_text(r.action), r.message) << r.what;
    }
    EXPECT_EQ(error_text([&] { spline.evaluate(repeated, y, 2); }), "no error");
}

TEST(BSpline, CopiesShareTheirArraysAndEvaluationAllocatesNothing) {
    CubicTable const table;
    VARNO::BSpline const spline = table.fit(0.0);
    VARNO::BSpline other = table.fit(1.0);
    other = spline;
    EXPECT_EQ(other.knots.get(), spline.knots.get());
    EXPECT_EQ(other.coefficients.get(), spline.coefficients.get());
    std::vector<double> y(table.x.size());
    double d[4];
    test_support::AllocationCounter counter;
    spline.evaluate(table.x.data(), y.data(), table.count());
    spline.getAllDerivatives(1.0, d);
    EXPECT_EQ(counter.count(), 0u);
}

} // namespace
