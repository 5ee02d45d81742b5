// The flyover example as a calculation: its results survive the file, and the sound at the
// microphone behaves as a flyover does.
#include "pieces.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>

namespace {

class FlyoverTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        options.point_count = 41; // one point overhead, at t = 0
        flyover = run_flyover(options);
    }
    static flyover_options_t options;
    static flyover_t flyover;
};

flyover_options_t FlyoverTest::options;
flyover_t FlyoverTest::flyover;

TEST_F(FlyoverTest, ResultsComeBackFromTheirFileUnchanged) {
    std::string const path =
        (std::filesystem::temp_directory_path() / "varno-flyover-test.results").string();
    EXPECT_TRUE(round_trip_results(flyover, options, path));
    std::remove(path.c_str());
}

TEST_F(FlyoverTest, LoudestOverheadAndQuieterOnBothSides) {
    std::size_t const overhead = flyover.samples.size() / 2;
    ASSERT_NEAR(flyover.samples[overhead].time, 0.0, 1e-9);
    level_maximum_t const& la_max = flyover.metrics.dba_max;
    EXPECT_LE(std::max(la_max.index, overhead) - std::min(la_max.index, overhead), 1u);
    EXPECT_LT(flyover.samples.front().la, la_max.level - 15.0);
    EXPECT_LT(flyover.samples.back().la, la_max.level - 15.0);
    EXPECT_GT(flyover.metrics.perceived.epnl, 0.0);
}

TEST_F(FlyoverTest, FanToneHeardHigherOnApproachAndLowerAfter) {
    double const emitted = flyover.fan_blade_passing_frequency;
    for (flyover_sample_t const& sample : flyover.samples) {
        if (sample.time < -0.5) {
            EXPECT_GT(sample.fan_tone_received, emitted) << "at t = " << sample.time;
        } else if (sample.time > 0.5) {
            EXPECT_LT(sample.fan_tone_received, emitted) << "at t = " << sample.time;
        }
    }
}

} // namespace
