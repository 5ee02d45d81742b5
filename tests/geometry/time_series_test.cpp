#include <calc-common/geometry.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using links = std::vector<std::vector<std::size_t>>;

} // namespace

TEST(AlignTimeSeries, GreedyPathTiesAndNotANumberCosts) {
    double const nan = std::nan("");
    struct row {
        std::vector<double> first, second;
        links second_links, first_links;
    } const rows[] = {
        // Costs 2, 1, 1 from (0,0): the tie goes to the step in `first`; then diagonals at 0.
        {{0.0, 1.0, 2.0, 3.0}, {0.0, 2.0, 3.0}, {{0, 1}, {2}, {3}}, {{0}, {0}, {1}, {2}}},
        {{0.0, 1.0}, {0.0, 1.0}, {{0}, {1}}, {{0}, {1}}},
        {{4.0}, {7.0}, {{0}}, {{0}}},
        // All equal: ties run through `second`, then `first`.
        {{5.0, 5.0, 5.0}, {5.0, 5.0}, {{0}, {0, 1, 2}}, {{0, 1}, {1}, {1}}},
        // Costs 5, nan, nan: a not-a-number is never strictly cheaper, so the step in `second`
        // stays; costs nan, 1, nan: nothing compares below it, so the first candidate stays.
        {{0.0, nan}, {0.0, 5.0}, {{0}, {0, 1}}, {{0, 1}, {1}}},
        {{0.0, 1.0}, {0.0, nan}, {{0}, {0, 1}}, {{0, 1}, {1}}},
    };
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        links second_links, first_links;
        Calc_AlignTimeSeries(rows[i].first, rows[i].second, second_links, first_links);
        EXPECT_EQ(second_links, rows[i].second_links) << "row " << i;
        EXPECT_EQ(first_links, rows[i].first_links) << "row " << i;
    }
}

TEST(AlignTimeSeries, EmptyInputLeavesOutputsAndFilledOutputsAreAppendedTo) {
    links second_links{{9}}, first_links{{8}, {7}};
    Calc_AlignTimeSeries({}, {1.0}, second_links, first_links);
    EXPECT_EQ(second_links, (links{{9}}));
    EXPECT_EQ(first_links, (links{{8}, {7}}));
    Calc_AlignTimeSeries({1.0}, {1.0, 2.0}, second_links, first_links);
    EXPECT_EQ(second_links, (links{{9, 0}, {0}}));
    EXPECT_EQ(first_links, (links{{8, 0, 1}}));
}
