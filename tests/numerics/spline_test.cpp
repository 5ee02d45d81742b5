#include <calc-common/numerics.hpp>

#include "support/error_text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

#include "spline_reference.inc"

namespace {

template <std::size_t N>
std::vector<double> copied(double const (&values)[N]) {
    return std::vector<double>(std::begin(values), std::end(values));
}

// A table and its queries in the mutable arrays that Calc_Spline takes.
struct spline_case {
    std::vector<double> x, y, queries, expected;
    int n() const { return static_cast<int>(x.size()); }
    double at(double q, spline_type type) { return Calc_Spline(n(), x.data(), y.data(), q, type); }
};

// Agreement to 1e-12 relative to the larger of the value and the table's unit scale.
void expect_agrees(double actual, double reference, double query) {
    EXPECT_NEAR(actual, reference, 1e-12 * std::max(1.0, std::fabs(reference))) << "at " << query;
}

#define SPLINE_CASE(name)                                                                          \
    spline_case {                                                                                  \
        copied(spline_reference::name##_x), copied(spline_reference::name##_y),                    \
            copied(spline_reference::name##_queries), copied(spline_reference::name##_values)      \
    }

} // namespace

TEST(Spline, NaturalAndPchipMatchScipyAtKnotsBetweenThemAndOutside) {
    struct row {
        spline_case c;
        spline_type type;
    } rows[] = {{SPLINE_CASE(natural_uneven), SPLINE_NATURAL},
                {SPLINE_CASE(natural_even), SPLINE_NATURAL},
                {SPLINE_CASE(natural_even), SPLINE_CUBIC}, // even knots: the same spline
                {SPLINE_CASE(pchip_uneven), SPLINE_PCHIP},
                {SPLINE_CASE(pchip_monotone), SPLINE_PCHIP}};
    for (row& r : rows) {
        for (std::size_t i = 0; i < r.c.queries.size(); ++i) {
            expect_agrees(r.c.at(r.c.queries[i], r.type), r.c.expected[i], r.c.queries[i]);
        }
    }
    // The array form keeps its bracket between queries, which must not depend on their order.
    spline_case c = SPLINE_CASE(natural_uneven);
    std::vector<double> values(c.queries.size());
    for (int pass = 0; pass < 2; ++pass) {
        Calc_Spline(c.n(), c.x.data(), c.y.data(), static_cast<int>(c.queries.size()),
                    c.queries.data(), values.data(), SPLINE_NATURAL);
        for (std::size_t i = 0; i < values.size(); ++i) {
            expect_agrees(values[i], c.expected[i], c.queries[i]);
        }
        std::reverse(c.queries.begin(), c.queries.end());
        std::reverse(c.expected.begin(), c.expected.end());
    }
}

// The cubic kind solves with the interval lengths the other way round from the textbook, as its
// callers have always had it: the natural spline on even knots (see above), not on uneven ones.
TEST(Spline, PentadiagonalCubicDiffersFromNaturalOnUnevenKnots) {
    spline_case c = SPLINE_CASE(natural_uneven);
    double largest_difference = 0.0;
    for (std::size_t i = 0; i + 1 < c.x.size(); ++i) {
        double const middle = 0.5 * (c.x[i] + c.x[i + 1]);
        largest_difference = std::max(largest_difference, std::fabs(c.at(middle, SPLINE_CUBIC) -
                                                                    c.at(middle, SPLINE_NATURAL)));
    }
    EXPECT_GT(largest_difference, 1e-2);
}

TEST(Spline, TwoPointsGiveTheStraightLineForEveryKind) {
    double x[] = {1.0, 3.0};
    double y[] = {2.0, 6.0};
    for (spline_type type : {SPLINE_NATURAL, SPLINE_CUBIC, SPLINE_PCHIP}) {
        for (double q : {-1.0, 1.0, 2.5, 3.0, 7.0}) {
            EXPECT_NEAR(Calc_Spline(2, x, y, q, type), 2.0 * q, 1e-13) << type << " at " << q;
        }
    }
}

TEST(Spline, ArrayFormAnswersOneQueryForCubicAndPchipAndNoneForUnknownKinds) {
    double x[] = {0.0, 1.0, 2.5, 3.0};
    double y[] = {1.0, 3.0, 2.0, 5.0};
    double xq[] = {0.5, 1.5, 2.0, 2.7, 4.0};
    for (spline_type type : {SPLINE_CUBIC, SPLINE_PCHIP}) {
        double yq[5] = {-7.0, -7.0, -7.0, -7.0, -7.0};
        Calc_Spline(4, x, y, 5, xq, yq, type);
        EXPECT_EQ(yq[0], Calc_Spline(4, x, y, 0.5, type));
        EXPECT_EQ(std::count(yq + 1, yq + 5, -7.0), 4);
    }
    spline_type const unknown = static_cast<spline_type>(3);
    double yq[5] = {-7.0, -7.0, -7.0, -7.0, -7.0};
    Calc_Spline(4, x, y, 5, xq, yq, unknown);
    EXPECT_EQ(std::count(yq, yq + 5, -7.0), 5);
    EXPECT_EQ(Calc_Spline(4, x, y, 0.5, unknown), 0.0);
}

TEST(Spline, NaturalFailsOnlyWhenAQueryFallsInAnEmptyInterval) {
    double x[] = {0.0, 1.0, 1.0};
    double y[] = {0.0, 1.0, 2.0};
    EXPECT_EQ(test_support::error_text([&] { Calc_Spline(3, x, y, 0.5, SPLINE_NATURAL); }),
              "no error");
    EXPECT_EQ(test_support::error_text([&] { Calc_Spline(3, x, y, 1.5, SPLINE_NATURAL); }),
              "Spline interpolation failed.");
}
