#include <calc-common/metrics.hpp>
#include <calc-common/results.hpp>

#include "metrics_test_support.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>

using namespace metrics_test;

TEST(FillIndicators, FillsTheirFieldsOnlyAndAnglesWhereTheMaximaOccur) {
    auto record =
        boost::make_shared<integrated_noise_indicators_t>(result_type_t::create_total_aircraft());
    record->psi_dba_max = record->nni = record->wecpnl = record->senel = -1.0;
    Calc_FillIndicators(passby(), 0.5, record);
    EXPECT_EQ(record->psi_dba_max, -1.0);
    EXPECT_NEAR(record->dba_max, 80.0, 1e-3);
    EXPECT_EQ(record->epnl, Calc_EffectivePerceivedNoiseLevel(passby(), 0.5));
    Calc_FillIndicators(passby(), 0.5, record, {10.0, 20.0, 30.0, 40.0, 50.0});
    EXPECT_EQ(record->psi_dba_max, 30.0);
    EXPECT_EQ(record->psi_oaspl_max, 40.0);

    Calc_FillExposure({event_at(12.0, 90.0, 80.0), event_at(23.0, 90.0, 70.0)}, 75.0, record);
    EXPECT_NEAR(record->dnl, 90.0 + 10.0 * std::log10(11.0 / 86400.0), 1e-9);
    EXPECT_EQ(record->na, 1.0);
    EXPECT_NEAR(record->exposure.avg_dba_max, 10.0 * std::log10((1e8 + 1e7) / 2.0), 1e-9);
    EXPECT_EQ(record->nni + record->wecpnl + record->senel, -3.0);
}
