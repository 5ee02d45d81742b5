#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <vector>

namespace {

using result_ptr = boost::shared_ptr<result_type_t>;
using noise_ptr = boost::shared_ptr<directional_result_noise_t>;
auto const& tob = tob_frequency_range_ptr;

boost::shared_ptr<aircraft_t> aircraft_with(int engine_sources, int airframe_sources) {
    auto aircraft = boost::make_shared<aircraft_t>();
    aircraft->engine_sources.assign(engine_sources,
                                    boost::make_shared<source_t>(source_fan_forward));
    aircraft->airframe_sources.assign(airframe_sources, boost::make_shared<source_t>(source_slats));
    return aircraft;
}

noise_ptr tob_record(result_ptr type) {
    return boost::make_shared<directional_result_noise_t>(type, tob, tob, true);
}

result_ptr engine_part(int index, int part) {
    return result_type_t::create_engine_source_component(source_fan_forward, index,
                                                         static_cast<noise_component_t>(part));
}

} // namespace

TEST(DirectionalResultNoise, ConstructorsBuildWhatTheTypeNeeds) {
    auto const narrow = frequency_range_t::create_nb(100.0, 500.0, 100.0);
    auto const second = frequency_range_t::create_dt(2);
    directional_result_noise_t const jets(result_type_t::create_total_by_source_type(source_jet),
                                          narrow, second, false);
    EXPECT_EQ(jets.second_native->frequency_range, narrow);
    EXPECT_TRUE(!jets.second_extra && jets.second_jet_params);

    directional_result_noise_t const bare(result_type_t::create_airframe_source(source_slats, 0));
    EXPECT_TRUE(bare.option_flag && bare.source_weight == 1.0);
    EXPECT_FALSE(bare.first_native || bare.total_tob || bare.first_jet_params);
}

TEST(DirectionalResultNoise, ClearingSparesTheNamedFieldsAndCopyingTakesSevenSpectra) {
    auto const record = tob_record(result_type_t::create_total_aircraft());
    for (auto spectrum : {record->first_tob, record->total_second_range, record->optional_b}) {
        spectrum->fill_with(60.0);
        spectrum->tones.push_back(tone_id_t::create_eo(3, 2, 100.0, 60.0));
    }
    record->first_level_2 = record->closing_level_2 = record->closing_level_3 = 70.0;
    record->clear_values();
    EXPECT_EQ(record->first_tob->values[3], 0.0);
    EXPECT_TRUE(record->optional_b->tones.empty());
    EXPECT_EQ(record->total_second_range->values[3], 60.0);
    EXPECT_EQ(record->first_level_2 + record->closing_level_2, 0.0);
    EXPECT_EQ(record->closing_level_3, 70.0);

    record->source_weight = 0.5;
    record->second_tob->fill_with(40.0);
    record->optional_a->fill_with(40.0);
    auto const target = tob_record(result_type_t::create_total_aircraft());
    auto const own_spectrum = target->second_tob;
    record->copy_into(target);
    record->copy_into(noise_ptr());
    EXPECT_EQ(target->source_weight, 0.5);
    EXPECT_EQ(target->second_tob, own_spectrum);
    EXPECT_EQ(target->second_tob->values[0], 40.0);
    EXPECT_EQ(target->total_second_range->tones.size(), 1u);
    EXPECT_EQ(target->optional_a->values[0], 0.0);
}

TEST(DirectionalResultPoint, SlotsAreFoundCreatedReplacedAndListed) {
    directional_result_point_t point(aircraft_with(2, 3));
    std::vector<noise_ptr> all = {noise_ptr()};
    point.get_all(all);
    EXPECT_EQ(all.size(), 12u); // the kept entry, total engine, three airframe slots, seven fixed

    auto const tones = engine_part(1, 5);
    auto const first = point.create(tones, tob, tob, true);
    EXPECT_FALSE(point.find(result_type_t::create_engine_source(source_jet, 1, true, {})));
    EXPECT_FALSE(point.find(engine_part(1, 1)));
    EXPECT_EQ(point.engine_sources[1]->components.size(), 1u);
    auto const second = point.create(tones, tob, tob, true);
    EXPECT_EQ(point.find(tones), second);
    EXPECT_EQ(first.use_count(), 1);
    auto const per_engine = result_type_t::create_total_engine_data(0);
    EXPECT_FALSE(point.create(per_engine, tob, tob, true) || point.find(per_engine));

    second->total_tob->fill_with(50.0);
    point.clear_values();
    EXPECT_EQ(second->total_tob->values[0], 0.0);
    EXPECT_EQ(point.find(tones), second);
}

TEST(DirectionalResult, GlobalListingLeavesOutTotalsOfNoFamily) {
    directional_result_t global(aircraft_with(1, 1));
    global.create(result_type_t::create_total_by_source_type(static_cast<source_type_t>(30)));
    std::vector<boost::shared_ptr<integrated_noise_indicators_t>> all;
    global.get_all(all);
    EXPECT_EQ(all.size(), 9u); // total engine, the airframe slot, seven fixed

    all.clear();
    directional_result_t{boost::shared_ptr<aircraft_t>()}.get_all(all);
    EXPECT_EQ(all.size(), 8u);
}

TEST(ResultIndicators, PairsEachGlobalRecordWithItsPointRecords) {
    auto const aircraft = aircraft_with(1, 1);
    result_t result;
    result.global = boost::make_shared<directional_result_t>(aircraft);
    result.points = {boost::make_shared<result_point_t>(aircraft),
                     boost::make_shared<result_point_t>(aircraft)};
    auto const by_type = result_type_t::create_total_by_source_type(source_fan_forward);
    result.global->create(engine_part(0, 1));
    result.global->create(by_type);
    auto const held = result.points[0]->directional->create(engine_part(0, 1), tob, tob, true);
    result.points[1]->directional->create(engine_part(0, 2), tob, tob, true);

    std::vector<boost::shared_ptr<result_indicators_t>> all = {
        boost::make_shared<result_indicators_t>()};
    result.get_all_indicators(all);
    ASSERT_EQ(all.size(), 11u); // component, total by type, total engine, airframe, seven fixed
    EXPECT_EQ(all[0]->indicators, result.global->find(engine_part(0, 1)));
    EXPECT_EQ(all[0]->directional, (std::vector<noise_ptr>{held, noise_ptr()}));
    // The slots that a point lacked were added to it, empty.
    EXPECT_EQ(result.points[1]->directional->engine_sources[0]->components.size(), 2u);
    EXPECT_EQ(result.points[1]->directional->totals_by_source_type.size(), 1u);
    EXPECT_EQ(all[1]->indicators, result.global->find(by_type));
}

TEST(IntegratedIndicators, LookupAndClearingKeepTheNamedValues) {
    integrated_noise_indicators_t indicators(result_type_t::create_total_aircraft());
    indicators.oaspl_max = indicators.epnl = 1.0;
    indicators.psi_pnltm = indicators.indicator_30 = indicators.nef = 2.0;
    indicators.exposure.avg_sel = 3.0;
    indicators.exposure.avg_indicator_30 = indicators.exposure.exposure_extra_2 = 4.0;
    indicators.exposure.events.resize(2);
    EXPECT_EQ(indicators.get(indicator_oaspl), 0.0); // only the maxima are stored
    EXPECT_EQ(indicators.get_expo_avg(indicator_sel), 3.0);
    EXPECT_EQ(indicators.get_expo_avg(indicator_psioasplmax), 0.0);

    indicators.clear_values();
    EXPECT_EQ(indicators.get(indicator_oasplmax) + indicators.get(indicator_epnl), 0.0);
    EXPECT_EQ(indicators.get(indicator_psipnltm) + indicators.indicator_30 + indicators.nef, 6.0);
    EXPECT_EQ(indicators.exposure.avg_sel, 0.0);
    EXPECT_EQ(indicators.exposure.avg_indicator_30 + indicators.exposure.exposure_extra_2, 8.0);
    EXPECT_TRUE(indicators.exposure.events.empty());
}

TEST(IndicatorSwitches, DefaultsAndDeepClones) {
    noise_indicators_t indicators;
    EXPECT_TRUE(indicators.switch_4 && !indicators.switch_5);
    EXPECT_EQ(indicators.instantaneous->threshold, 80.0);
    EXPECT_TRUE(indicators.instantaneous->third_flags->flag_6);
    EXPECT_FALSE(indicators.instantaneous->second_flags->flag_6);

    auto const deep = indicators.clone();
    EXPECT_EQ(noise_indicators_t(indicators).instantaneous, indicators.instantaneous);
    EXPECT_NE(deep->instantaneous->third_flags, indicators.instantaneous->third_flags);
    EXPECT_NE(deep->exposure_metrics, indicators.exposure_metrics);
    indicators.exposure_metrics.reset();
    EXPECT_FALSE(indicators.clone()->exposure_metrics);
}
