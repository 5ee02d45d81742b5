#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include "result_test_ids.hpp"

#include <boost/function.hpp>
#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace result_test;

namespace {

boost::shared_ptr<source_t> add_source(std::vector<boost::shared_ptr<source_t>>& list,
                                       source_type_t type, int engine = 0) {
    list.push_back(boost::make_shared<source_t>(type));
    list.back()->engine_index = engine;
    return list.back();
}

// Engine sources: 0 jet (narrowband at point 0), 1 fan forward with components 1, 2, 5,
// 2 fan forward alone, 3 pseudo-breakdown total on engine 1, 4 turbine on engine 1, 5 an inactive
// combustion. Airframe sources: two slats and three other landing gears. Two points.
struct scenario {
    boost::shared_ptr<simulation_t> simulation;
    boost::shared_ptr<source_noise_t> jet_noise = boost::make_shared<source_noise_t>();
    boost::shared_ptr<frequency_range_t> narrow = frequency_range_t::create_nb(10.0, 50.0, 10.0);
    std::vector<std::size_t> asked_points;
    range_provider_t provider = [this](boost::shared_ptr<source_noise_t> noise, std::size_t j) {
        asked_points.push_back(j);
        return noise == jet_noise && j == 0 ? narrow : boost::shared_ptr<frequency_range_t>();
    };

    explicit scenario(bool genepass) {
        environment_t environment;
        auto aircraft = environment.add_aircraft();
        aircraft->engines.push_back(boost::make_shared<engine_t>(1));
        aircraft->engines[1]->value_type |= engine_t::pseudo_breakdown_bit;
        auto& engines = aircraft->engine_sources;
        add_source(engines, source_jet)->noise = jet_noise;
        auto fan = add_source(engines, source_fan_forward);
        for (int c : {1, 2, 5}) {
            fan->components[component(c)] = c == 2 ? nullptr : boost::make_shared<source_noise_t>();
        }
        add_source(engines, source_fan_forward);
        add_source(engines, source_total_engine_pseudo_breakdown, 1);
        add_source(engines, source_turbine, 1);
        add_source(engines, source_combustion)->active = false;
        for (source_type_t type : {source_slats, source_slats, source_other_landing_gear,
                                   source_other_landing_gear, source_other_landing_gear}) {
            add_source(aircraft->airframe_sources, type);
        }
        simulation =
            environment.add_tsour_simulation(aircraft, environment.add_tsour_calculation());
        simulation->second_switch = genepass;
        simulation->create_calculation_points(2);
        simulation->prepare_noise_sources_results(provider);
    }

    // The texts of the slots a tree lists, each followed by '|', "-" for an empty one.
    template <class Record, class Tree>
    std::string texts(Tree const& tree) const {
        std::vector<boost::shared_ptr<Record>> all;
        tree->get_all(all);
        std::string result;
        for (auto const& record : all) {
            result += (record ? record->type->to_string(simulation) : "-") + '|';
        }
        return result;
    }
    std::string point_texts(std::size_t j) const {
        return texts<directional_result_noise_t>(simulation->result->points[j]->directional);
    }
    std::string global_texts() const {
        return texts<integrated_noise_indicators_t>(simulation->result->global);
    }
    boost::shared_ptr<directional_result_noise_t> at(std::size_t j, int source_index,
                                                     int part = -1) const {
        auto const& entry =
            simulation->result->points[j]->directional->engine_sources[source_index];
        return part < 0 ? entry->whole : entry->components.at(component(part));
    }
};

std::string const airframe_texts =
    "Slats|Slats|Other landing gear|Other landing gear|Other landing gear|";
std::string const closing_texts = "Airfoil|Total landing gear|Total airframe|Total aircraft|-|-|";
std::string const fan_with_components =
    "Fan forward|Fan forward - broadband|Fan forward - buzz-saw|Fan forward - interaction tones|";
std::string const pseudo_breakdown_parts =
    "Jet|Residual|Total engine tones (pseudo-breakdown output)|";
// Globally, in both ways: no whole for the pseudo-breakdown, nothing for the turbine on that
// engine, and no totals of the airframe's slats (which the classic way adds).
std::string const global_sources = "Jet|" + fan_with_components + "Fan forward|" +
                                   pseudo_breakdown_parts + "Fan forward (total)|Total engine|" +
                                   airframe_texts;
// Total engine, five airframe slots, seven fixed: only the aircraft total is there.
std::string const aircraft_total_alone = "-|-|-|-|-|-|-|-|-|Total aircraft|";

} // namespace

TEST(ResultPreparation, ClassicTreeSlotBySlot) {
    scenario const s(false);
    std::string const point =
        "Jet|" + fan_with_components + "Fan forward|Total engine (pseudo-breakdown input)|" +
        pseudo_breakdown_parts + "Turbine|Fan forward (total)|Slats (total)|Total engine|" +
        airframe_texts + closing_texts + "-|";
    EXPECT_EQ(s.point_texts(0), point);
    EXPECT_EQ(s.point_texts(1), point);
    // Globally the airframe total follows the airframe sources.
    EXPECT_EQ(s.global_texts(), global_sources + "Slats (total)|" + closing_texts + "-|");
    // The turbine on the pseudo-breakdown engine has an empty entry, the inactive source none.
    EXPECT_TRUE(s.simulation->result->global->engine_sources[4]);
    EXPECT_FALSE(s.simulation->result->points[0]->directional->engine_sources[5]);

    EXPECT_EQ(s.at(0, 0)->first_native->frequency_range, s.narrow);
    EXPECT_EQ(s.at(1, 0)->first_native->frequency_range, tob_frequency_range_ptr);
    EXPECT_TRUE(s.at(0, 0)->first_jet_params && s.at(0, 3, 3)->first_jet_params);
    EXPECT_NE(s.at(0, 0)->type, s.at(1, 0)->type);
    // Source by source, each point: the jet, then every component of the fan, even one that
    // has no noise record.
    EXPECT_EQ(s.asked_points, (std::vector<std::size_t>{0, 1, 0, 0, 0, 1, 1, 1}));
    EXPECT_EQ(s.simulation->result->points[1]->directional->airframe_sources[4]->source_weight,
              1.0);
}

TEST(ResultPreparation, GenePassTreeSlotBySlot) {
    scenario const s(true);
    std::string const point =
        "Jet|" + fan_with_components +
        "Fan forward|Fan forward - broadband|Fan forward - interaction tones|"
        "Total engine (pseudo-breakdown input)|" +
        pseudo_breakdown_parts +
        "Turbine|Turbine - broadband|Turbine - tones|Fan forward (total)|Total engine|" +
        airframe_texts + closing_texts + "Ground reflection|";
    EXPECT_EQ(s.point_texts(0), point);
    EXPECT_EQ(s.point_texts(1), point);
    EXPECT_EQ(s.global_texts(), global_sources + closing_texts + "Ground reflection|");

    // Added components are third-octave and flagged off; given ones keep their flag.
    EXPECT_FALSE(s.at(0, 2, 1)->option_flag);
    EXPECT_EQ(s.at(0, 2, 5)->first_native->frequency_range, tob_frequency_range_ptr);
    EXPECT_TRUE(s.at(0, 1, 5)->option_flag);
    EXPECT_EQ(s.at(0, 0)->type, s.at(1, 0)->type);

    auto const ground_0 = s.simulation->result->points[0]->directional->genepass_ground_reflection;
    auto const ground_1 = s.simulation->result->points[1]->directional->genepass_ground_reflection;
    EXPECT_FALSE(ground_0->option_flag);
    EXPECT_EQ(ground_0->first_native->values.size(), 2236u); // 25 Hz to 11.2 kHz by 5 Hz
    EXPECT_EQ(ground_0->total_second_range->frequency_range,
              ground_1->first_native->frequency_range);
}

TEST(ResultPreparation, DisabledSourcesLeaveOnlyTheAircraftTotal) {
    scenario const s(false);
    tsour_calculation_t& calculation = *s.simulation->tsour;
    calculation.engine_sources_enabled = calculation.airframe_sources_enabled = false;
    range_provider_t empty_provider;
    s.simulation->prepare_noise_sources_results(empty_provider);
    EXPECT_EQ(s.point_texts(1), aircraft_total_alone + "-|-|-|");
    EXPECT_EQ(s.global_texts(), aircraft_total_alone + "-|-|-|");

    // The jet needs the provider, and finds it empty.
    calculation.engine_sources_enabled = true;
    EXPECT_THROW(s.simulation->prepare_noise_sources_results(empty_provider),
                 boost::bad_function_call);
}

TEST(ResultPreparation, IntegratedAircraftResultsReplaceTheTree) {
    scenario const s(true);
    s.simulation->prepare_integrated_aircraft_results();
    EXPECT_EQ(s.global_texts(), "-|-|-|-|-|-|-|-|-|-|-|-|-|");
    EXPECT_EQ(s.point_texts(1), aircraft_total_alone +
                                    "Total aircraft - broadband|Total aircraft - tones|"
                                    "Ground reflection|");
    auto const& result = *s.simulation->result;
    auto const& point = *result.points[1]->directional;
    EXPECT_TRUE(point.total_aircraft->option_flag);
    EXPECT_FALSE(point.genepass_broadband->option_flag);
    EXPECT_EQ(point.genepass_tones->total_second_range->values.size(), 0u);
    EXPECT_EQ(
        point.genepass_ground_reflection->first_native->frequency_range,
        result.points[0]->directional->genepass_ground_reflection->first_native->frequency_range);

    s.simulation->clear_results();
    EXPECT_FALSE(s.simulation->result);
}

TEST(ResultPreparation, DirectionStepClearsAMatchingTreeInPlace) {
    scenario const s(false);
    simulation_t& simulation = *s.simulation;
    auto const jet = s.at(1, 0);
    auto const total = simulation.result->global->total_aircraft;
    jet->total_tob->fill_with(60.0);
    total->epnl = 90.0;
    simulation.direction_count = 3;
    simulation.direction_index = 0;
    ASSERT_TRUE(simulation.move_to_next_direction());
    EXPECT_EQ(s.at(1, 0), jet);
    EXPECT_EQ(jet->total_tob->values[0] + total->epnl, 0.0);

    // A tree made for other points is left as it is.
    jet->total_tob->fill_with(60.0);
    simulation.insert_calculation_point(2);
    ASSERT_TRUE(simulation.move_to_next_direction());
    EXPECT_EQ(jet->total_tob->values[0], 60.0);
}
