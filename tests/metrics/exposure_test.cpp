#include <calc-common/metrics.hpp>

#include "metrics_test_support.hpp"

#include <gtest/gtest.h>

#include <cmath>

using namespace metrics_test;

TEST(Exposure, WeighsEachPeriodOfTheDay) {
    // One 90 dB(A) SEL event spread over 24 h, with the evening (CNEL only) and night
    // weightings; 07:00 is day, 22:00 is night.
    struct row {
        double hour, dnl, cnel;
    };
    double const base = 90.0 - 10.0 * std::log10(86400.0);
    double const evening = 10.0 * std::log10(3.0);
    for (row const r :
         {row{12.0, base, base}, row{7.0, base, base}, row{6.99, base + 10, base + 10},
          row{19.0, base, base + evening}, row{21.99, base, base + evening},
          row{22.0, base + 10, base + 10}, row{0.0, base + 10, base + 10}}) {
        std::vector<noise_event_t> const events = {event_at(r.hour, 90.0)};
        EXPECT_NEAR(Calc_DayNightLevel(events), r.dnl, 1e-9) << r.hour;
        EXPECT_NEAR(Calc_CommunityNoiseEquivalentLevel(events), r.cnel, 1e-9) << r.hour;
        EXPECT_NEAR(Calc_EquivalentLevel(events, 0.0, 24.0), base, 1e-9);
    }
}

TEST(Exposure, CountsAndSumsEventsOverPeriodsAndThresholds) {
    std::vector<noise_event_t> events = {event_at(23.0, 90.0, 69.9), event_at(3.0, 90.0, 70.0),
                                         event_at(12.0, 90.0, 70.1), event_at(15.0, 90.0, 85.0)};
    events[0].time_above = 12.5;
    events[3].time_above = 20.0;
    EXPECT_NEAR(Calc_EquivalentLevel(events, 22.0, 7.0),
                90.0 + 10.0 * std::log10(2.0 / (9.0 * 3600.0)), 1e-9);
    EXPECT_EQ(Calc_NumberAbove(events, 70.0), 2.0);
    EXPECT_EQ(Calc_TotalTimeAbove(events), 32.5);
    // NEF: 10 log10(2 * 10^10 + 16.67 * 2 * 10^9) - 88.
    EXPECT_NEAR(Calc_NoiseExposureForecast(events), 10.0 * std::log10(2.0e9 + 16.67 * 2.0e9) - 88.0,
                1e-9);
    EXPECT_EQ(Calc_DayNightLevel({}), 0.0);
    EXPECT_EQ(Calc_NoiseExposureForecast({}), 0.0);
}
