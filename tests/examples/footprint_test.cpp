// The footprint example as a calculation: on a small grid, levels fall away from the track,
// mirror about it, and do not depend on how many threads shared the observers.
#include "report.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace {

class FootprintTest : public ::testing::Test {
protected:
    // Three columns along the track (1, 3 and 5 km) and five rows across it (0, 400 and 800 m
    // on either side), the trajectory every second: small enough for the memory checks.
    static void SetUpTestSuite() {
        footprint_options_t options;
        options.climb.time_step = 1.0;
        options.extent_x = 4000.0;
        options.step_x = 2000.0;
        options.extent_y = 1600.0;
        options.step_y = 400.0;
        options.threads = 1;
        one_thread = run_footprint(options);
        options.threads = 3;
        three_threads = run_footprint(options);
    }
    static footprint_t one_thread;
    static footprint_t three_threads;
};

footprint_t FootprintTest::one_thread;
footprint_t FootprintTest::three_threads;

using metric_t = double observer_levels_t::*;
metric_t const metrics[] = {&observer_levels_t::sel, &observer_levels_t::la_max,
                            &observer_levels_t::epnl};

// Away from the track the observer is further from every point of the trajectory; along it, the
// aircraft passes higher at each column (100, 300 and 500 m).
TEST_F(FootprintTest, LevelsFallAwayFromTheTrackAndAsTheAircraftClimbs) {
    footprint_t const& f = one_thread;
    ASSERT_EQ(f.x.size(), 3u);
    ASSERT_EQ(f.y.size(), 5u);
    ASSERT_EQ(f.y[2], 0.0);
    for (metric_t metric : metrics) {
        for (std::size_t i = 0; i < f.x.size(); ++i) {
            for (std::size_t j = 2; j + 1 < f.y.size(); ++j) {
                EXPECT_GT(level_at(f, i, j).*metric, level_at(f, i, j + 1).*metric + 1.0)
                    << "x = " << f.x[i] << ", y = " << f.y[j];
            }
            if (i + 1 < f.x.size()) {
                EXPECT_GT(level_at(f, i, 2).*metric, level_at(f, i + 1, 2).*metric + 1.0)
                    << "x = " << f.x[i];
            }
        }
    }
}

// Nothing in the chain tells one side of the track from the other but squares and absolute
// values of the lateral offset, and the rows mirror exactly: so do the levels, to the last bit.
TEST_F(FootprintTest, MirrorsExactlyAboutTheTrack) {
    footprint_t const& f = one_thread;
    for (std::size_t i = 0; i < f.x.size(); ++i) {
        for (std::size_t j = 0; j < f.y.size(); ++j) {
            std::size_t const mirror = f.y.size() - 1 - j;
            ASSERT_EQ(f.y[j], -f.y[mirror]);
            for (metric_t metric : metrics) {
                EXPECT_EQ(level_at(f, i, j).*metric, level_at(f, i, mirror).*metric)
                    << "x = " << f.x[i] << ", y = " << f.y[j];
            }
        }
    }
}

TEST_F(FootprintTest, SameToTheLastBitOnOneThreadAndOnThree) {
    EXPECT_EQ(one_thread.threads, 1);
    EXPECT_EQ(three_threads.threads, 3);
    ASSERT_EQ(one_thread.levels.size(), three_threads.levels.size());
    for (std::size_t n = 0; n < one_thread.levels.size(); ++n) {
        for (metric_t metric : metrics) {
            EXPECT_EQ(one_thread.levels[n].*metric, three_threads.levels[n].*metric) << n;
        }
    }
}

// Four 1 km cells around one observer at 90 dB(A), the others at 80: inside each cell the
// bilinear surface is 80 + 10 u v from the far corner, at least 85 where u v >= 1/2, a fraction
// 1/2 - ln(2)/2 of the cell.
TEST(FootprintReport, AreaInsideAContourIsThatOfTheBilinearSurface) {
    footprint_t peak;
    peak.x = {0.0, 1000.0, 2000.0};
    peak.y = {-1000.0, 0.0, 1000.0};
    peak.levels.assign(9, observer_levels_t{80.0, 0.0, 0.0});
    peak.levels[4].sel = 90.0;
    double const exact = 4e6 * (0.5 - 0.5 * std::log(2.0));
    EXPECT_NEAR(area_inside_sel(peak, 85.0), exact, 0.03 * exact);
    EXPECT_EQ(area_inside_sel(peak, 79.0), 4e6);
    EXPECT_EQ(area_inside_sel(peak, 90.5), 0.0);
    EXPECT_FALSE(sel_reaches_edge(peak, 85.0));
    EXPECT_TRUE(sel_reaches_edge(peak, 80.0));
}

} // namespace
