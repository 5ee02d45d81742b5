#include "numerics/pchip.hpp"

#include <calc-common/numerics.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using VARNO::detail::chfev;
using VARNO::detail::spline_pchip_set;
using VARNO::detail::spline_pchip_val;

namespace {

double x[] = {0.0, 1.0, 2.5, 3.0, 5.0};
double f[] = {0.0, 2.0, 1.0, 1.0, 4.0};

std::vector<double> derivatives() {
    std::vector<double> d(5);
    spline_pchip_set(5, x, f, d.data());
    return d;
}

} // namespace

TEST(Pchip, DerivativesPreserveShape) {
    // The reference values of the monotone spline hold the weighted harmonic mean and the zero
    // slopes at turns and beside flat chords; here the end formula's limits. On 0, 1, 2 the end
    // formula is 1.5 times the end chord less 0.5 times the next. A sharp turn after the first
    // chord limits its 1.5 + 1.75 to 3 * 1; chords 1, 4 give -0.5 against the end chord's sign,
    // which is set to 0. Two points: both derivatives are the chord.
    double xs[] = {0.0, 1.0, 2.0};
    struct row {
        int n;
        double f[3], d[3];
    } const rows[] = {{3, {0.0, 1.0, -2.5}, {3.0, 0.0, -5.75}},
                      {3, {0.0, 1.0, 5.0}, {0.0, 1.6, 5.5}},
                      {2, {0.0, 1.0, 0.0}, {1.0, 1.0, 0.0}}};
    for (row const& r : rows) {
        double f[3] = {r.f[0], r.f[1], r.f[2]}, dr[3] = {0.0, 0.0, 0.0};
        spline_pchip_set(r.n, xs, f, dr);
        EXPECT_EQ(std::vector<double>(dr, dr + 3), std::vector<double>(r.d, r.d + 3)) << r.f[2];
    }
}

TEST(Pchip, BatchEvaluationAgreesWithSingleQueriesInAnyOrder) {
    std::vector<double> d = derivatives();
    auto expect_batch_matches_single = [&](std::vector<double> xe) {
        std::vector<double> fe(xe.size());
        spline_pchip_val(5, x, f, d.data(), static_cast<int>(xe.size()), xe.data(), fe.data());
        for (std::size_t i = 0; i < xe.size(); ++i) {
            double one;
            spline_pchip_val(5, x, f, d.data(), 1, &xe[i], &one);
            EXPECT_EQ(fe[i], one) << xe[i];
        }
    };
    // Ascending, past three pieces that hold no point: had one of them gone to the piece
    // evaluator, it would have complained on standard error.
    testing::internal::CaptureStderr();
    expect_batch_matches_single({4.0, 4.5, 6.0});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    // Queries that step back are bracketed again.
    expect_batch_matches_single({4.0, 0.5, 2.7, -1.0, 6.0, 1.2});
}

TEST(Pchip, PieceEvaluatorCountsPointsOnEitherSideAndReportsBadInput) {
    double xe[] = {-1.0, 0.0, 0.5, 2.0, 3.0};
    double fe[5];
    int next[2] = {9, 9};
    // Its values are held by the reference values of the monotone spline; here the counts of
    // points left and right of [0, 2].
    EXPECT_EQ(chfev(0.0, 2.0, 1.0, 3.0, 0.0, 0.0, 5, xe, fe, next), 0);
    EXPECT_EQ(next[0], 1);
    EXPECT_EQ(next[1], 1);

    testing::internal::CaptureStderr();
    EXPECT_EQ(chfev(0.0, 2.0, 1.0, 3.0, 0.0, 0.0, 0, xe, fe, next), -1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "\nCHFEV - Fatal error!\n  Number of evaluation points is less than 1.\n"
              "  NE = 0\n");
    testing::internal::CaptureStderr();
    EXPECT_EQ(chfev(2.0, 2.0, 1.0, 3.0, 0.0, 0.0, 1, xe, fe, next), -2);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "\nCHFEV - Fatal error!\n  The interval [X1,X2] is of zero length.\n");

    std::vector<double> d = derivatives();
    testing::internal::CaptureStderr();
    spline_pchip_val(5, x, f, d.data(), 0, xe, fe);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "\nSPLINE_PCHIP_VAL - Fatal error!\n  Number of evaluation points less than 1.\n");
}

TEST(PchipDeathTest, FatalFaultsEndTheProcessWithTheirCodes) {
    double repeated[] = {0.0, 1.0, 1.0};
    double values[] = {0.0, 1.0, 2.0};
    double d[3] = {0.0, 0.0, 0.0};
    double q = 0.5, out = 0.0;
    EXPECT_EXIT(spline_pchip_set(1, x, f, d), testing::ExitedWithCode(255),
                "\nSPLINE_PCHIP_SET - Fatal error!\n  Number of data points less than 2.\n");
    EXPECT_EXIT(spline_pchip_set(3, repeated, values, d), testing::ExitedWithCode(253),
                "\nSPLINE_PCHIP_SET - Fatal error!\n  X array not strictly increasing.\n");
    EXPECT_EXIT(spline_pchip_val(1, x, f, d, 1, &q, &out), testing::ExitedWithCode(255),
                "\nSPLINE_PCHIP_VAL - Fatal error!\n  Number of data points less than 2.\n");
    EXPECT_EXIT(spline_pchip_val(3, repeated, values, d, 1, &q, &out), testing::ExitedWithCode(253),
                "\nSPLINE_PCHIP_VAL - Fatal error!\n  X array not strictly increasing.\n");

    // Through the public entry point, the monotone and cubic kinds end the process too.
    EXPECT_EXIT(Calc_Spline(3, repeated, values, 0.5, SPLINE_PCHIP), testing::ExitedWithCode(253),
                "SPLINE_PCHIP_SET - Fatal error!");
    EXPECT_EXIT(Calc_Spline(1, x, f, 0.5, SPLINE_PCHIP), testing::ExitedWithCode(255),
                "SPLINE_PCHIP_SET - Fatal error!");
    EXPECT_EXIT(Calc_Spline(3, repeated, values, 0.5, SPLINE_CUBIC), testing::ExitedWithCode(1),
                "SPLINE_CUBIC_SET - Fatal error!");
}
