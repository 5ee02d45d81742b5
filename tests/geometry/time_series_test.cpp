#include <calc-common/geometry.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using links = std::vector<std::vector<std::size_t>>;

struct alignment {
    links second_links, first_links;
};

alignment align(std::vector<double> const& first, std::vector<double> const& second) {
    alignment a;
    Calc_AlignTimeSeries(first, second, a.second_links, a.first_links);
    return a;
}

} // namespace

TEST(AlignTimeSeries, GreedyPathStepsToTheNearestValues) {
    // From (0,0): costs 2, 1, 1, the tie goes to the step in `first`; then the diagonals at 0.
    alignment const a = align({0.0, 1.0, 2.0, 3.0}, {0.0, 2.0, 3.0});
    EXPECT_EQ(a.second_links, (links{{0, 1}, {2}, {3}}));
    EXPECT_EQ(a.first_links, (links{{0}, {0}, {1}, {2}}));

    alignment const diagonal = align({0.0, 1.0}, {0.0, 1.0});
    EXPECT_EQ(diagonal.second_links, (links{{0}, {1}}));
    EXPECT_EQ(diagonal.first_links, (links{{0}, {1}}));

    alignment const single = align({4.0}, {7.0});
    EXPECT_EQ(single.second_links, (links{{0}}));
    EXPECT_EQ(single.first_links, (links{{0}}));
}

TEST(AlignTimeSeries, TiesRunThroughSecondThenFirst) {
    alignment const a = align({5.0, 5.0, 5.0}, {5.0, 5.0});
    EXPECT_EQ(a.second_links, (links{{0}, {0, 1, 2}}));
    EXPECT_EQ(a.first_links, (links{{0, 1}, {1}, {1}}));
}

TEST(AlignTimeSeries, NotANumberCostNeitherDisplacesNorIsDisplaced) {
    double const nan = std::nan("");
    // Costs 5, nan, nan: a not-a-number is never strictly cheaper, so the step in `second` stays.
    alignment const later = align({0.0, nan}, {0.0, 5.0});
    EXPECT_EQ(later.second_links, (links{{0}, {0, 1}}));
    EXPECT_EQ(later.first_links, (links{{0, 1}, {1}}));
    // Costs nan, 1, nan: nothing compares below the not-a-number, so the first candidate stays.
    alignment const first = align({0.0, 1.0}, {0.0, nan});
    EXPECT_EQ(first.second_links, (links{{0}, {0, 1}}));
    EXPECT_EQ(first.first_links, (links{{0, 1}, {1}}));
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
