#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <vector>

namespace {

using result_ptr = boost::shared_ptr<result_type_t>;
using noise_ptr = boost::shared_ptr<directional_result_noise_t>;

source_type_t source(int value) {
    return static_cast<source_type_t>(value);
}

noise_component_t component(int value) {
    return static_cast<noise_component_t>(value);
}

boost::shared_ptr<aircraft_t> aircraft_with(int engine_sources, int airframe_sources) {
    auto aircraft = boost::make_shared<aircraft_t>();
    for (int i = 0; i < engine_sources; ++i) {
        aircraft->engine_sources.push_back(boost::make_shared<source_t>(source_fan_forward));
    }
    for (int i = 0; i < airframe_sources; ++i) {
        aircraft->airframe_sources.push_back(boost::make_shared<source_t>(source_slats));
    }
    return aircraft;
}

noise_ptr tob_record(result_ptr type) {
    return boost::make_shared<directional_result_noise_t>(type, tob_frequency_range_ptr,
                                                          tob_frequency_range_ptr, true);
}

} // namespace

TEST(DirectionalResultNoise, ConstructorsBuildWhatTheTypeNeeds) {
    auto const narrow = frequency_range_t::create_nb(100.0, 500.0, 100.0);
    auto const second = frequency_range_t::create_dt(2);
    directional_result_noise_t const jet(
        result_type_t::create_engine_source(source_jet, 0, true, component(0)), narrow, second,
        false);
    EXPECT_FALSE(jet.option_flag);
    EXPECT_EQ(jet.source_weight, 0.0);
    EXPECT_EQ(jet.first_native->frequency_range, narrow);
    EXPECT_EQ(jet.second_native->frequency_range, narrow);
    EXPECT_EQ(jet.total_second_range->frequency_range, second);
    EXPECT_EQ(jet.optional_c->frequency_range, tob_frequency_range_ptr);
    EXPECT_FALSE(jet.second_extra);
    EXPECT_TRUE(jet.first_jet_params && jet.second_jet_params);

    auto const pseudo_jet =
        tob_record(result_type_t::create_engine_source_component(source(11), 2, component_jet));
    EXPECT_TRUE(pseudo_jet->first_jet_params);
    auto const turbine =
        tob_record(result_type_t::create_engine_source(source_turbine, 0, true, component(0)));
    EXPECT_FALSE(turbine->first_jet_params || turbine->second_jet_params);
    EXPECT_EQ(tob_record(result_type_t::create_airframe_source(source_spoiler, 0))->source_weight,
              1.0);

    directional_result_noise_t const bare(result_type_t::create_airframe_source(source_slats, 0));
    EXPECT_TRUE(bare.option_flag);
    EXPECT_FALSE(bare.first_native || bare.total_tob || bare.first_jet_params);
}

TEST(DirectionalResultNoise, ClearingSparesTheNamedFieldsAndCopyingTakesSevenSpectra) {
    auto const record = tob_record(result_type_t::create_total_aircraft());
    for (auto spectrum : {record->first_tob, record->total_second_range, record->optional_b}) {
        spectrum->fill_with(60.0);
        spectrum->tones.push_back(tone_id_t::create_eo(3, 2, 100.0, 60.0));
    }
    record->first_level_2 = record->closing_level_2 = record->closing_level_3 = 70.0;
    record->spare_value = 2.0;
    record->clear_values();
    EXPECT_EQ(record->first_tob->values[3], 0.0);
    EXPECT_TRUE(record->optional_b->tones.empty());
    EXPECT_EQ(record->total_second_range->values[3], 60.0);
    EXPECT_EQ(record->first_level_2 + record->closing_level_2, 0.0);
    EXPECT_EQ(record->closing_level_3, 70.0);
    EXPECT_EQ(record->spare_value, 2.0);

    record->source_weight = 0.5;
    record->second_tob->fill_with(40.0);
    record->optional_a->fill_with(40.0);
    record->first_level_1 = 50.0;
    auto const target = tob_record(result_type_t::create_total_aircraft());
    auto const own_spectrum = target->second_tob;
    record->copy_into(target);
    record->copy_into(noise_ptr());
    EXPECT_EQ(target->source_weight, 0.5);
    EXPECT_EQ(target->second_tob, own_spectrum);
    EXPECT_EQ(target->second_tob->values[0], 40.0);
    EXPECT_EQ(target->total_second_range->values[3], 60.0);
    EXPECT_EQ(target->total_second_range->tones.size(), 1u);
    EXPECT_EQ(target->optional_a->values[0], 0.0);
    EXPECT_EQ(target->first_level_1, 0.0);
}

TEST(DirectionalResultPoint, SlotsAreFoundCreatedAndReplaced) {
    directional_result_point_t point(aircraft_with(2, 3));
    std::vector<noise_ptr> all = {noise_ptr()};
    point.get_all(all);
    EXPECT_EQ(all.size(), 12u); // kept entry, total engine, three airframe slots, seven fixed

    auto const whole = result_type_t::create_engine_source(source(3), 1, true, component(0));
    auto const tones = result_type_t::create_engine_source_component(source(3), 1, component(5));
    EXPECT_FALSE(point.find(whole));
    auto const first = point.create(tones, tob_frequency_range_ptr, tob_frequency_range_ptr, true);
    EXPECT_EQ(point.find(tones), first);
    EXPECT_FALSE(point.find(whole));
    EXPECT_FALSE(
        point.find(result_type_t::create_engine_source_component(source(3), 1, component(1))));
    EXPECT_EQ(point.engine_sources[1]->components.size(), 1u);
    auto const second = point.create(tones, tob_frequency_range_ptr, tob_frequency_range_ptr, true);
    EXPECT_EQ(point.find(tones), second);
    EXPECT_EQ(first.use_count(), 1);

    auto const per_engine = result_type_t::create_total_engine_data(0);
    EXPECT_FALSE(point.create(per_engine, tob_frequency_range_ptr, tob_frequency_range_ptr, true));
    EXPECT_FALSE(point.find(per_engine));
    auto const airframe = result_type_t::create_airframe_source(source(12), 2);
    EXPECT_EQ(point.create(airframe, tob_frequency_range_ptr, tob_frequency_range_ptr, true),
              point.airframe_sources[2]);
    for (auto type : {result_type_t::create_total_by_source_type(source(12)),
                      result_type_t::create_total_by_source_type(source(3)),
                      result_type_t::create_genepass(genepass_total_aircraft_tones)}) {
        auto const made =
            point.create(type, tob_frequency_range_ptr, tob_frequency_range_ptr, true);
        EXPECT_EQ(point.find(type), made);
    }

    all.clear();
    point.get_all(all);
    std::vector<noise_ptr> const expected = {second,
                                             point.totals_by_source_type[source(3)],
                                             point.totals_by_source_type[source(12)],
                                             noise_ptr(),
                                             noise_ptr(),
                                             noise_ptr(),
                                             point.airframe_sources[2],
                                             noise_ptr(),
                                             noise_ptr(),
                                             noise_ptr(),
                                             noise_ptr(),
                                             noise_ptr(),
                                             point.genepass_tones,
                                             noise_ptr()};
    EXPECT_EQ(all, expected);

    second->total_tob->fill_with(50.0);
    point.clear_values();
    EXPECT_EQ(second->total_tob->values[0], 0.0);
    EXPECT_EQ(point.find(tones), second);
}

TEST(DirectionalResult, GlobalListingSplitsTotalsByFamily) {
    directional_result_t global(aircraft_with(1, 1));
    for (auto type : {result_type_t::create_total_by_source_type(source(13)),
                      result_type_t::create_total_by_source_type(source(3)),
                      result_type_t::create_total_by_source_type(source(30)),
                      result_type_t::create_engine_source(source(3), 0, true, component(0)),
                      result_type_t::create_airframe_source(source(13), 0),
                      result_type_t::create_total_engine()}) {
        global.create(type);
    }
    std::vector<boost::shared_ptr<integrated_noise_indicators_t>> all;
    global.get_all(all);
    std::vector<std::size_t> hashes;
    for (auto const& record : all) {
        hashes.push_back(record ? record->type->hash() : 0);
    }
    std::vector<std::size_t> const expected = {10000, 30503, 30000, 20000, 30513, 0,
                                               0,     0,     0,     0,     0,     0};
    EXPECT_EQ(hashes, expected);

    directional_result_t const empty{boost::shared_ptr<aircraft_t>()};
    all.clear();
    empty.get_all(all);
    EXPECT_EQ(all.size(), 8u);
}

TEST(ResultIndicators, PairsEachGlobalRecordWithItsPointRecords) {
    auto const aircraft = aircraft_with(1, 1);
    result_t result;
    result.global = boost::make_shared<directional_result_t>(aircraft);
    result.points = {boost::make_shared<result_point_t>(aircraft),
                     boost::make_shared<result_point_t>(aircraft)};
    auto const component_1 =
        result_type_t::create_engine_source_component(source(3), 0, component(1));
    auto const by_type = result_type_t::create_total_by_source_type(source(3));
    result.global->create(component_1);
    result.global->create(by_type);
    result.points[0]->directional->create(component_1, tob_frequency_range_ptr,
                                          tob_frequency_range_ptr, true);
    result.points[1]->directional->create(
        result_type_t::create_engine_source(source(3), 0, true, component(0)),
        tob_frequency_range_ptr, tob_frequency_range_ptr, true);

    std::vector<boost::shared_ptr<result_indicators_t>> all = {
        boost::make_shared<result_indicators_t>()};
    result.get_all_indicators(all);
    ASSERT_EQ(all.size(), 11u); // component, total by type, total engine, airframe, seven fixed
    EXPECT_EQ(all[0]->indicators, result.global->engine_sources[0]->components[component(1)]);
    EXPECT_EQ(all[0]->directional[0], result.points[0]->directional->find(component_1));
    EXPECT_FALSE(all[0]->directional[1]);
    // Missing slots were added to the point that lacked them.
    EXPECT_EQ(result.points[1]->directional->engine_sources[0]->components.count(component(1)), 1u);
    EXPECT_EQ(result.points[1]->directional->totals_by_source_type.count(source(3)), 1u);
    EXPECT_EQ(all[1]->indicators, result.global->find(by_type));
    EXPECT_EQ(all[2]->directional.size(), 2u);
}

TEST(IntegratedIndicators, LookupAndClearingKeepTheNamedValues) {
    integrated_noise_indicators_t indicators(result_type_t::create_total_aircraft());
    indicators.oaspl_max = 1.0;
    indicators.psi_pnltm = 2.0;
    indicators.epnl = 3.0;
    indicators.indicator_30 = 4.0;
    indicators.nef = 5.0;
    indicators.exposure.avg_sel = 6.0;
    indicators.exposure.avg_indicator_30 = 7.0;
    indicators.exposure.exposure_extra_2 = 8.0;
    indicators.exposure.events.resize(2);
    EXPECT_EQ(indicators.get(indicator_oasplmax), 1.0);
    EXPECT_EQ(indicators.get(indicator_oaspl), 0.0);
    EXPECT_EQ(indicators.get(indicator_epnl), 3.0);
    EXPECT_EQ(indicators.get(indicator_nef), 5.0);
    EXPECT_EQ(indicators.get_expo_avg(indicator_sel), 6.0);
    EXPECT_EQ(indicators.get_expo_avg(static_cast<indicator_type_t>(30)), 7.0);
    EXPECT_EQ(indicators.get_expo_avg(indicator_psioasplmax), 0.0);

    indicators.clear_values();
    EXPECT_EQ(indicators.get(indicator_oasplmax) + indicators.get(indicator_epnl), 0.0);
    EXPECT_EQ(indicators.get(indicator_psipnltm), 2.0);
    EXPECT_EQ(indicators.indicator_30, 4.0);
    EXPECT_EQ(indicators.get(indicator_nef), 5.0);
    EXPECT_EQ(indicators.exposure.avg_sel, 0.0);
    EXPECT_EQ(indicators.exposure.avg_indicator_30, 7.0);
    EXPECT_EQ(indicators.exposure.exposure_extra_2, 8.0);
    EXPECT_TRUE(indicators.exposure.events.empty());
}

TEST(IndicatorSwitches, DefaultsAndDeepClones) {
    noise_indicators_t const indicators;
    EXPECT_TRUE(indicators.switch_1 && indicators.switch_2 && indicators.switch_4);
    EXPECT_FALSE(indicators.switch_3 || indicators.switch_5);
    EXPECT_EQ(indicators.instantaneous->threshold, 80.0);
    EXPECT_EQ(indicators.instantaneous->mode, 1);
    EXPECT_FALSE(indicators.instantaneous->second_flags->flag_6);
    EXPECT_TRUE(indicators.instantaneous->third_flags->flag_0);

    noise_indicators_t const shallow = indicators;
    EXPECT_EQ(shallow.instantaneous, indicators.instantaneous);
    auto const deep = indicators.clone();
    EXPECT_NE(deep->instantaneous, indicators.instantaneous);
    EXPECT_NE(deep->instantaneous->third_flags, indicators.instantaneous->third_flags);
    EXPECT_NE(deep->exposure_metrics, indicators.exposure_metrics);

    noise_indicators_t partial;
    partial.exposure_metrics.reset();
    EXPECT_FALSE(partial.clone()->exposure_metrics);
}
