#include <calc-common/metrics.hpp>

#include "metrics_test_support.hpp"
#include "support/error_text.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace metrics_test;
using test_support::error_text;

TEST(MetricsInput, BadInputNamesTheFunctionAndTheFault) {
    boost::shared_ptr<spectrum_t> narrowband =
        boost::make_shared<spectrum_t>(frequency_range_t::create_nb(50.0, 10000.0, 50.0));
    std::vector<noise_event_t> late(1);
    late[0].time_of_day = 24.0;
    EXPECT_EQ(
        error_text([&] { Calc_PerceivedNoiseLevel(narrowband); }),
        "Calc_PerceivedNoiseLevel: the spectrum is not on the third-octave grid (24 bands, 50 "
        "Hz to 10 kHz)");
    EXPECT_EQ(error_text([&] { Calc_AWeightedLevel(boost::shared_ptr<spectrum_t>()); }),
              "Calc_AWeightedLevel: the spectrum is not on the third-octave grid (24 bands, 50 Hz "
              "to 10 kHz)");
    EXPECT_EQ(error_text([&] { Calc_EffectivePerceivedNoiseLevel({}, 0.5); }),
              "Calc_EffectivePerceivedNoiseLevel: the history is empty");
    EXPECT_EQ(error_text([&] { Calc_SoundExposureLevel(held(flat(60.0), 4), 0.0); }),
              "Calc_SoundExposureLevel: the time step is not a positive number of seconds");
    EXPECT_EQ(error_text([&] { Calc_ToneCorrectionDetail(std::vector<double>(23, 60.0)); }),
              "Calc_ToneCorrection: expected 24 third-octave levels, 50 Hz to 10 kHz");
    EXPECT_EQ(error_text([&] { Calc_DayNightLevel(late); }),
              "Calc_DayNightLevel: the time of day of an event is not within 0 to 24 hours");
    // A private copy of the grid is still the grid.
    boost::shared_ptr<spectrum_t> own = tob_spectrum(flat(60.0));
    own->give_frequency_range_ownership();
    EXPECT_EQ(Calc_AWeightedLevel(own), Calc_AWeightedLevel(flat(60.0)));
}

TEST(MetricsInput, NotANumberPropagates) {
    std::vector<double> levels = flat(60.0);
    levels[7] = std::numeric_limits<double>::quiet_NaN();
    std::vector<boost::shared_ptr<spectrum_t>> history = held(flat(60.0), 4);
    history[2] = tob_spectrum(levels);
    time_history_metrics_t const m = Calc_TimeHistoryMetrics(history, 0.5);
    for (double const value :
         {Calc_OverallLevel(tob_spectrum(levels)), Calc_AWeightedLevel(levels),
          Calc_PerceivedNoiseLevel(levels), Calc_ToneCorrectionDetail(levels).correction,
          m.dba_max.level, m.perceived.epnl, m.sel, m.sel_10db_down,
          Calc_EffectivePerceivedNoiseLevel(history, 0.5)}) {
        EXPECT_TRUE(std::isnan(value));
    }
}
