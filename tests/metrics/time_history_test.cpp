#include <calc-common/metrics.hpp>
#include <calc-common/results.hpp>

#include "metrics_test_support.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>

using namespace metrics_test;

TEST(EffectivePerceivedNoise, TriangularHistoryHasTheClosedFormDurationCorrection) {
    // PNLT falls by a dB per sample on each side of a 100 PNdB peak. The M = floor(10/a)
    // samples on each side within 10 dB form geometric series of ratio r = 10^(-a/10), so
    // D = 10 log10(step/10 s * (1 + 2 r (1 - r^M)/(1 - r))).
    struct row {
        double fall_per_sample, step;
    };
    for (row const r : {row{0.5, 0.5}, row{0.7, 0.5}, row{2.0, 0.1}, row{3.0, 1.0}}) {
        int const m = static_cast<int>(std::floor(10.0 / r.fall_per_sample + 1e-9));
        int const half = m + 5;
        std::vector<double> pnlt;
        for (int k = -half; k <= half; ++k) {
            pnlt.push_back(100.0 - r.fall_per_sample * std::abs(k));
        }
        double const ratio = std::pow(10.0, -r.fall_per_sample / 10.0);
        double const d =
            10.0 * std::log10(r.step / 10.0 *
                              (1.0 + 2.0 * ratio * (1.0 - std::pow(ratio, m)) / (1.0 - ratio)));
        effective_perceived_noise_t const epnl =
            Calc_EffectivePerceivedNoise(pnlt, std::vector<double>(pnlt.size(), 0.0), r.step);
        EXPECT_NEAR(epnl.duration_correction, d, 1e-9) << r.fall_per_sample;
        EXPECT_NEAR(epnl.epnl, 100.0 + d, 1e-9);
        EXPECT_EQ(epnl.first_10db_down, static_cast<std::size_t>(half - m));
        EXPECT_EQ(epnl.last_10db_down, static_cast<std::size_t>(half + m));
        EXPECT_DOUBLE_EQ(epnl.pnltm.time, half * r.step);
    }
}

TEST(EffectivePerceivedNoise, SteadySpectrumGivesTheSameEpnlAtAnyStep) {
    // Held for 20 s, a steady sound has D = 10 log10(20 s / 10 s) whatever the sampling.
    std::vector<double> const levels = with_peak(70.0, 13, 10.0);
    double const pnlt = Calc_PerceivedNoiseLevel(tob_spectrum(levels)) + 10.0 / 3.0;
    for (double const step : {0.5, 0.25, 0.1, 2.0}) {
        std::size_t const samples = static_cast<std::size_t>(std::lround(20.0 / step));
        EXPECT_NEAR(Calc_EffectivePerceivedNoiseLevel(held(levels, samples), step),
                    pnlt + 10.0 * std::log10(2.0), 1e-9)
            << step;
    }
}

TEST(EffectivePerceivedNoise, RaisesPnltmToTheMeanToneCorrectionAroundIt) {
    struct row {
        std::vector<double> corrections;
        double band_sharing;
    };
    std::vector<double> const pnl = {80, 85, 90, 85, 80, 75};
    for (row const& r : {row{{2, 2, 0, 2, 2, 9}, 1.6}, row{{0, 0, 1, 0, 0, 0}, 0.0},
                         row{{0, 3, 0, 0, 3, 3}, 1.2}}) {
        effective_perceived_noise_t const epnl =
            Calc_EffectivePerceivedNoise(pnl, r.corrections, 0.5);
        double energy = 0.0;
        for (std::size_t k = epnl.first_10db_down; k <= epnl.last_10db_down; ++k) {
            energy += std::pow(10.0, epnl.pnlt[k] / 10.0);
        }
        EXPECT_NEAR(epnl.band_sharing, r.band_sharing, 1e-12);
        EXPECT_NEAR(epnl.epnl, r.band_sharing + 10.0 * std::log10(energy * 0.5 / 10.0), 1e-9);
    }
}

TEST(TimeHistoryMetrics, FindsEachMaximumWithItsTimeAndTheExposures) {
    double const a_1k = Calc_AWeighting(1000.0);
    std::vector<double> la_energy;
    for (double const level : {60.0, 71.0, 80.0, 75.0, 65.0}) {
        la_energy.push_back(std::pow(10.0, (level + a_1k) / 10.0));
    }
    la_energy[3] += std::pow(10.0, (95.0 + Calc_AWeighting(std::pow(10.0, 1.7))) / 10.0);
    double const total = la_energy[0] + la_energy[1] + la_energy[2] + la_energy[3] + la_energy[4];

    time_history_metrics_t const m = Calc_TimeHistoryMetrics(passby(), 0.5);
    EXPECT_EQ(m.dba_max.index, 2u);
    EXPECT_NEAR(m.dba_max.level, 80.0, 1e-3);
    EXPECT_DOUBLE_EQ(m.oaspl_max.time, 1.5);
    EXPECT_NEAR(m.oaspl_max.level, 10.0 * std::log10(std::pow(10.0, 9.5) + std::pow(10.0, 7.5)),
                1e-9);
    EXPECT_DOUBLE_EQ(m.pnl_max.time, 1.5);
    EXPECT_NEAR(m.sel, 10.0 * std::log10(0.5 * total), 1e-9);
    EXPECT_NEAR(m.sel_10db_down, 10.0 * std::log10(0.5 * (total - la_energy[0] - la_energy[4])),
                1e-9);
    EXPECT_NEAR(Calc_SoundExposureLevel(passby(), 0.5), m.sel, 1e-12);
    EXPECT_DOUBLE_EQ(Calc_TimeAbove(m.dba, 0.5, 75.2), 1.0);
}

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
