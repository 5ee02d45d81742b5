#include "bspline_reference.hpp"

#include <calc-common/numerics.hpp>

#include "support/allocation_counter.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using bspline_reference::expect_agreement;

template <typename Action>
std::string error_of(Action action) {
    try {
        action();
    } catch (varno_calc_error const& error) {
        return error.what();
    }
    return "no error";
}

std::string const ill_conditioned_fit =
    "Error during B-Spline calculation: ill-conditioned entries.";
std::string const ill_conditioned_evaluation =
    "Error during B-Spline evaluation: ill-conditioned entries.";

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
};

TEST(BSpline, AgreesWithFitpackOrRaisesItsCode) {
    for (auto const& reference : bspline_reference::reference_cases) {
        if (reference.k != 3) {
            continue;
        }
        SCOPED_TRACE(reference.name);
        auto const fit = [&] {
            VARNO::BSpline(reference.x, reference.y, reference.m, reference.s);
        };
        if (reference.ier == 2) {
            EXPECT_EQ(error_of(fit), "Error during B-Spline calculation: impossible result found "
                                     "(smoothing factor is probably too small).");
            continue;
        }
        if (reference.ier == 3) {
            EXPECT_EQ(error_of(fit), "Error during B-Spline calculation: failed to converge "
                                     "(smoothing factor is probably too small).");
            continue;
        }
        VARNO::BSpline const spline(reference.x, reference.y, reference.m, reference.s);
        EXPECT_EQ(spline.smoothing_factor, reference.s);
        ASSERT_EQ(spline.knot_count, reference.n);
        expect_agreement(reference.t, spline.knots.get(), reference.n, "knots");
        expect_agreement(reference.c, spline.coefficients.get(), reference.n - 4, "coefficients");
        std::vector<double> y(reference.points);
        spline.evaluate(reference.at, y.data(), reference.points);
        expect_agreement(reference.derivatives[0], y.data(), reference.points, "values");
        for (int order = 0; order <= 3; ++order) {
            spline.getDerivative(order, reference.at, y.data(), reference.points);
            expect_agreement(reference.derivatives[order], y.data(), reference.points,
                             "derivative " + std::to_string(order));
        }
        for (int i = 0; i < reference.spalde_points; ++i) {
            double d[4];
            spline.getAllDerivatives(reference.spalde_at[i], d);
            expect_agreement(reference.spalde + 4 * i, d, 4, "all derivatives");
        }
    }
}

TEST(BSpline, InterpolatesWithoutSmoothingAndReproducesACubic) {
    CubicTable const table;
    for (double const smoothing : {0.0, 1.0}) {
        VARNO::BSpline const spline(table.x.data(), table.y.data(), table.count(), smoothing);
        std::vector<double> y(table.x.size());
        spline.evaluate(table.x.data(), y.data(), table.count());
        for (std::size_t i = 0; i < y.size(); ++i) {
            EXPECT_NEAR(y[i], table.y[i], 1e-13);
        }
        double d[4];
        spline.getAllDerivatives(2.7, d);
        EXPECT_NEAR(d[0], cubic(2.7), 1e-13);
        EXPECT_NEAR(d[1], -2.0 + 2.7 + 0.75 * 2.7 * 2.7, 1e-12);
        EXPECT_NEAR(d[2], 1.0 + 1.5 * 2.7, 1e-12);
        EXPECT_NEAR(d[3], 1.5, 1e-11);
    }
    // A large factor leaves the least-squares cubic, on the boundary knots alone.
    VARNO::BSpline const polynomial(table.x.data(), table.y.data(), table.count(), 1.0);
    EXPECT_EQ(polynomial.knot_count, 8);
}

TEST(BSpline, OutsideTheSpanValuesAreClampedAndAllDerivativesRefused) {
    CubicTable const table;
    VARNO::BSpline const spline(table.x.data(), table.y.data(), table.count(), 0.0);
    double const x[] = {-3.0, 0.0, 5.0, 9.0};
    double y[4];
    spline.evaluate(x, y, 4);
    EXPECT_EQ(y[0], y[1]);
    EXPECT_EQ(y[3], y[2]);
    spline.getDerivative(1, x, y, 4);
    EXPECT_EQ(y[0], y[1]);
    EXPECT_EQ(y[3], y[2]);
    double d[4];
    EXPECT_EQ(error_of([&] { spline.getAllDerivatives(5.0 + 1e-9, d); }),
              ill_conditioned_evaluation);
    EXPECT_EQ(error_of([&] { spline.getAllDerivatives(-1e-9, d); }), ill_conditioned_evaluation);
}

TEST(BSpline, BadTablesAreIllConditioned) {
    CubicTable table;
    EXPECT_EQ(error_of([&] { VARNO::BSpline(table.x.data(), table.y.data(), 3, 0.0); }),
              ill_conditioned_fit);
    EXPECT_EQ(error_of([&] { VARNO::BSpline(table.x.data(), table.y.data(), 0, 0.0); }),
              ill_conditioned_fit);
    EXPECT_EQ(
        error_of([&] { VARNO::BSpline(table.x.data(), table.y.data(), table.count(), -1.0); }),
        ill_conditioned_fit);
    table.x[3] = table.x[2];
    EXPECT_EQ(error_of([&] { VARNO::BSpline(table.x.data(), table.y.data(), table.count(), 0.0); }),
              ill_conditioned_fit);
    table.x[3] = 1.0;
    EXPECT_EQ(error_of([&] { VARNO::BSpline(table.x.data(), table.y.data(), table.count(), 0.5); }),
              ill_conditioned_fit);
}

TEST(BSpline, BadEvaluationsAreIllConditioned) {
    CubicTable const table;
    VARNO::BSpline const spline(table.x.data(), table.y.data(), table.count(), 0.0);
    double const descending[] = {2.0, 1.0};
    double const repeated[] = {1.0, 1.0};
    double y[2];
    EXPECT_EQ(error_of([&] { spline.evaluate(descending, y, 2); }), ill_conditioned_evaluation);
    EXPECT_EQ(error_of([&] { spline.evaluate(repeated, y, 0); }), ill_conditioned_evaluation);
    EXPECT_EQ(error_of([&] { spline.evaluate(repeated, y, 2); }), "no error");
    EXPECT_EQ(error_of([&] { spline.getDerivative(1, descending, y, 2); }),
              ill_conditioned_evaluation);
    EXPECT_EQ(error_of([&] { spline.getDerivative(4, repeated, y, 2); }),
              ill_conditioned_evaluation);
    EXPECT_EQ(error_of([&] { spline.getDerivative(-1, repeated, y, 2); }),
              ill_conditioned_evaluation);
}

TEST(BSpline, CopiesShareTheirArrays) {
    CubicTable const table;
    VARNO::BSpline const spline(table.x.data(), table.y.data(), table.count(), 0.0);
    VARNO::BSpline copy = spline;
    EXPECT_EQ(copy.knots.get(), spline.knots.get());
    EXPECT_EQ(copy.coefficients.get(), spline.coefficients.get());
    VARNO::BSpline other(table.x.data(), table.y.data(), table.count(), 1.0);
    other = spline;
    EXPECT_EQ(other.knots.get(), spline.knots.get());
    EXPECT_EQ(other.knot_count, spline.knot_count);
}

TEST(BSpline, EvaluationAllocatesNothing) {
    CubicTable const table;
    VARNO::BSpline const spline(table.x.data(), table.y.data(), table.count(), 0.0);
    std::vector<double> y(table.x.size());
    double d[4];
    test_support::AllocationCounter counter;
    spline.evaluate(table.x.data(), y.data(), table.count());
    spline.getAllDerivatives(1.0, d);
    EXPECT_EQ(counter.count(), 0u);
}

} // namespace
