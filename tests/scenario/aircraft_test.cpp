#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <tuple>

TEST(Aircraft, NewAircraftHasOneEngineNoSourceAndThreeAttenuationLists) {
    aircraft_t const aircraft;
    ASSERT_EQ(aircraft.engines.size(), 1u);
    EXPECT_EQ(aircraft.engines[0]->index, 0);
    EXPECT_TRUE(aircraft.engine_sources.empty() && aircraft.airframe_sources.empty());
    EXPECT_EQ(aircraft.total_noise->value_1, 0.0);
    EXPECT_EQ(aircraft.attenuations->size(), 3u);
    // Keys compare by identity, not by pointer: a fresh key finds the entry.
    EXPECT_TRUE(aircraft.attenuations->at(result_type_t::create_total_landing_gear())
                    ->attenuations.empty());
    EXPECT_EQ(aircraft.attenuations->count(result_type_t::create_total_airframe()), 0u);
}

TEST(Aircraft, FindsTheFirstAirframeSourceOfAType) {
    aircraft_t aircraft;
    EXPECT_EQ(aircraft.find_airframe_source_index(source_flaps), -1);
    for (auto type : {source_slats, source_flaps, source_flaps}) {
        aircraft.airframe_sources.push_back(boost::make_shared<source_t>(type));
    }
    EXPECT_EQ(aircraft.find_airframe_source_index(source_flaps), 1);
    EXPECT_EQ(aircraft.find_airframe_source_index(source_spoiler), -1);
}

TEST(Aircraft, SourceStartsActiveWithoutRecordsAndKnowsItsClass) {
    source_t const cror(source_cror_propellers);
    EXPECT_TRUE(cror.active && cror.engine_index == 0);
    EXPECT_FALSE(cror.prediction_options || cror.transposition_options || cror.noise);
    EXPECT_TRUE(cror.is_cror_engine_source() && cror.is_global_decomposable_engine_source());
    EXPECT_FALSE(cror.is_broadband_engine_source());
    EXPECT_TRUE(source_t(source_residual).is_broadband_engine_source());
}

TEST(Engine, DefaultsOfGeometryAndCycle) {
    engine_t const engine(3);
    auto const& geometry = *engine.geometry;
    EXPECT_EQ(std::make_tuple(engine.index, engine.value_type, engine.selector,
                              engine.second_selector, geometry.shift_value),
              std::make_tuple(3, 2, 1, -1, -100));
    EXPECT_EQ(
        std::make_tuple(geometry.value_2, geometry.value_15, geometry.spool_down_law->value_8),
        std::make_tuple(50.0, 1.0, 0.5));
    auto& thermo = *engine.thermo_effects;
    EXPECT_TRUE(thermo.enabled && thermo.description.empty() && !thermo.callback);
    EXPECT_EQ(thermo.code, "000");
    EXPECT_TRUE(thermo.parameters[3]);
    EXPECT_NE(thermo.parameters[0], thermo.parameters[1]);
    EXPECT_EQ(thermo.user_segment_count(), 0u);
}

TEST(Engine, SetSegmentsAppendsToBothLists) {
    thermo_effects_t thermo;
    for (int count : {3, 3, -1, 0}) {
        thermo.set_segments(count);
    }
    EXPECT_EQ(thermo.user_segment_count(), 6u);
    EXPECT_EQ(thermo.second_user_segments.size(), 6u);
    EXPECT_NE(thermo.user_segments[0], thermo.user_segments[5]);
}

TEST(AircraftGeometry, SubRecordsAndAddedPartsKeepArgumentOrder) {
    aircraft_geometry_t geometry;
    EXPECT_EQ(std::make_tuple(geometry.flap_count_value, geometry.slat_count_value),
              std::make_tuple(2, 4));
    EXPECT_TRUE(geometry.fourth_landing_gear && geometry.second_flap && geometry.slats[3]);
    geometry.add_spoiler(1.0, 2.0);
    EXPECT_EQ(geometry.spoilers.at(0)->value_2, 2.0);
    auto& gear = *geometry.first_landing_gear;
    gear.add_unequipped_cylinder(1.0, 2.0, 3.0, 4.0);
    gear.add_equipped_cylinder(5.0, 6.0, 7.0);
    auto const& bare = *gear.unequipped_cylinders.at(0);
    EXPECT_EQ(std::make_tuple(bare.value_1, bare.value_2, bare.value_3, bare.value_4),
              std::make_tuple(1.0, 2.0, 3.0, 4.0));
    EXPECT_EQ(gear.equipped_cylinders.at(0)->value_3, 7.0);

    aero_data_t aero;
    auto const profile = aero.add_profile();
    EXPECT_TRUE(profile->amiet[5] && profile->howe[3] && profile->brooks);
    EXPECT_TRUE(profile->brooks->values.empty());
    profile->add_brooks_spoilers(1.0, 2.0, 3.0);
    EXPECT_EQ(profile->brooks_spoilers.at(0)->value_3, 3.0);
    aero.clear_profiles();
    EXPECT_TRUE(aero.profiles.empty());
}

TEST(MeasuredNoise, NewRecordHoldsItsElements) {
    measured_source_noise_t const noise(2);
    ASSERT_EQ(noise.elements.size(), 2u);
    EXPECT_NE(noise.elements[0], noise.elements[1]);
    EXPECT_TRUE(noise.elements[0]->power_management->empty());
    EXPECT_FALSE(noise.elements[0]->ambient_conditions);
    EXPECT_EQ(std::make_tuple(noise.first_switch, noise.selector, noise.value),
              std::make_tuple(true, 1, 0.0));
}

TEST(MeasuredNoise, PowerSettingsAreStoredInTheCanonicalUnitOfTheirFamily) {
    struct row {
        int type;
        int unit;
        double value;
        int stored_unit;
        double stored_value;
    };
    row const rows[] = {
        {3, 3, 100.0, 2, 954.9296585513721}, // N1 in rad/s
        {14, 4, 10.0, 2, 600.0},             // N2 in revolutions per second
        {5, 4, 1.0, 2, 60.0},                // the unnamed spool speed
        {3, 1, 50.0, 2, 50.0},               // N1 in percent keeps its number
        {7, 8, 1000.0, 7, 100.0},            // FN in N
        {8, 9, 2.0, 7, 200.0},               // FNc in kN
        {7, 10, 1.0, 7, 0.44482216152605},   // FN in lbf
        {11, 15, 100.0, 11, 51.44444444444444},
        {9, 12, 10.0, 11, 3.048},
        {13, 14, 1.0, 13, 57.29577951308232},
        {0, 0, 0.25, 0, 0.25}, // Mn: no family, kept as given
        {16, 5, 3.0, 5, 3.0},
    };
    for (auto const& r : rows) {
        measured_source_noise_element_t element;
        element.add_power_management_parameter(
            static_cast<power_management_parameter_type_t>(r.type), r.value,
            static_cast<power_management_parameter_unit_t>(r.unit));
        ASSERT_EQ(element.power_management->size(), 1u) << r.type;
        auto const& entry = *element.power_management->begin();
        EXPECT_EQ(std::make_tuple(entry.first.first, entry.first.second, entry.second->unit),
                  std::make_tuple(r.type, r.stored_unit, r.stored_unit));
        EXPECT_DOUBLE_EQ(entry.second->value, r.stored_value) << r.type;
    }
}

TEST(MeasuredNoise, OneParameterPerFamilyReplacesTheLast) {
    measured_source_noise_element_t element;
    element.add_power_management_parameter(power_parameter_fn, 10.0, power_unit_dan);
    element.add_power_management_parameter(power_parameter_fn, 3.0, power_unit_kn);
    ASSERT_EQ(element.power_management->size(), 1u);
    EXPECT_EQ(element.power_management->at({power_parameter_fn, power_unit_dan})->value, 300.0);
}
