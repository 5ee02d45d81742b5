#include <calc-common/metrics.hpp>
#include <calc-common/results.hpp>

#include "metrics_test_support.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>

using namespace metrics_test;

namespace {

boost::shared_ptr<integrated_noise_indicators_t> record_with_marks() {
    auto record =
        boost::make_shared<integrated_noise_indicators_t>(result_type_t::create_total_aircraft());
    record->psi_oaspl_max = record->psi_dba_max = record->psi_pnl_max = record->psi_pnltm = -1.0;
    record->nni = record->wecpnl = record->senel = -1.0;
    return record;
}

} // namespace

TEST(FillIndicators, TakesMaximaFromTheHistoryAndAnglesWhereTheyOccur) {
    // A 1 kHz tone peaks at sample 2; a low band makes sample 3 the loudest overall.
    std::vector<boost::shared_ptr<spectrum_t>> history;
    for (double const level : {60.0, 75.0, 80.0, 70.0}) {
        history.push_back(tob_spectrum(with_peak(0.0, 13, level)));
    }
    history[3]->values[0] = 95.0;
    boost::shared_ptr<integrated_noise_indicators_t> record = record_with_marks();
    Calc_FillIndicators(history, 0.5, record);
    EXPECT_EQ(record->psi_dba_max, -1.0);
    EXPECT_NEAR(record->dba_max, 80.0, 1e-3);
    EXPECT_NEAR(record->epnl, Calc_EffectivePerceivedNoiseLevel(history, 0.5), 1e-12);

    Calc_FillIndicators(history, 0.5, record, {10.0, 20.0, 30.0, 40.0});
    EXPECT_EQ(record->psi_dba_max, 30.0);
    EXPECT_EQ(record->psi_oaspl_max, 40.0);
    EXPECT_EQ(record->psi_pnltm, 40.0);
}

TEST(FillExposure, FillsCumulativeIndicatorsAndEnergyAveragesOnly) {
    std::vector<noise_event_t> events(2);
    events[0].time_of_day = 12.0;
    events[1].time_of_day = 23.0;
    events[0].sel = events[1].sel = 90.0;
    events[0].la_max = 80.0;
    events[1].la_max = 70.0;
    events[0].time_above = 15.0;
    boost::shared_ptr<integrated_noise_indicators_t> record = record_with_marks();
    Calc_FillExposure(events, 75.0, record);
    EXPECT_NEAR(record->leq24h, 90.0 + 10.0 * std::log10(2.0 / 86400.0), 1e-9);
    EXPECT_NEAR(record->dnl, 90.0 + 10.0 * std::log10(11.0 / 86400.0), 1e-9);
    EXPECT_EQ(record->na, 1.0);
    EXPECT_EQ(record->ta, 15.0);
    EXPECT_NEAR(record->exposure.avg_dba_max, 10.0 * std::log10((1e8 + 1e7) / 2.0), 1e-9);
    EXPECT_EQ(record->nni, -1.0);
    EXPECT_EQ(record->wecpnl, -1.0);
    EXPECT_EQ(record->senel, -1.0);
}
