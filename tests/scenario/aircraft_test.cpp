#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

TEST(Aircraft, NewAircraftHasOneEngineNoSourceAndThreeAttenuationLists) {
    aircraft_t const aircraft;
    ASSERT_EQ(aircraft.engines.size(), 1u);
    EXPECT_EQ(aircraft.engines[0]->index, 0);
    EXPECT_TRUE(aircraft.engine_sources.empty());
    EXPECT_TRUE(aircraft.airframe_sources.empty());
    EXPECT_EQ(aircraft.total_noise->value_1, 0.0);
    ASSERT_EQ(aircraft.attenuations->size(), 3u);
    // Keys compare by identity, not by pointer: a fresh key finds the entry.
    auto const found = aircraft.attenuations->find(result_type_t::create_total_landing_gear());
    ASSERT_NE(found, aircraft.attenuations->end());
    EXPECT_TRUE(found->second->attenuations.empty());
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
    EXPECT_TRUE(cror.active);
    EXPECT_EQ(cror.engine_index, 0);
    EXPECT_FALSE(cror.prediction_options || cror.transposition_options || cror.noise);
    EXPECT_TRUE(cror.is_cror_engine_source());
    EXPECT_TRUE(cror.is_global_decomposable_engine_source());
    EXPECT_FALSE(cror.is_broadband_engine_source());
    EXPECT_TRUE(source_t(source_residual).is_broadband_engine_source());
}

TEST(Engine, DefaultsOfGeometryAndCycle) {
    engine_t const engine(3);
    EXPECT_EQ(engine.index, 3);
    EXPECT_EQ(engine.value_type, 2);
    EXPECT_EQ(engine.selector, 1);
    EXPECT_EQ(engine.second_selector, -1);
    EXPECT_EQ(engine.geometry->value_2, 50.0);
    EXPECT_EQ(engine.geometry->shift_value, -100);
    EXPECT_EQ(engine.geometry->value_15, 1.0);
    EXPECT_EQ(engine.geometry->spool_down_law->value_8, 0.5);
    auto& thermo = *engine.thermo_effects;
    EXPECT_TRUE(thermo.enabled);
    EXPECT_EQ(thermo.code, "000");
    EXPECT_TRUE(thermo.description.empty());
    EXPECT_FALSE(thermo.callback);
    EXPECT_TRUE(thermo.parameters[3]);
    EXPECT_NE(thermo.parameters[0], thermo.parameters[1]);
    EXPECT_EQ(thermo.user_segment_count(), 0u);
}

TEST(Engine, SetSegmentsAppendsToBothLists) {
    thermo_effects_t thermo;
    thermo.set_segments(3);
    thermo.set_segments(3);
    thermo.set_segments(-1);
    thermo.set_segments(0);
    EXPECT_EQ(thermo.user_segment_count(), 6u);
    EXPECT_EQ(thermo.second_user_segments.size(), 6u);
    EXPECT_NE(thermo.user_segments[0], thermo.user_segments[5]);
}

TEST(AircraftGeometry, SubRecordsAndAddedPartsKeepArgumentOrder) {
    aircraft_geometry_t geometry;
    EXPECT_EQ(geometry.flap_count_value, 2);
    EXPECT_EQ(geometry.slat_count_value, 4);
    EXPECT_TRUE(geometry.fourth_landing_gear && geometry.second_flap && geometry.slats[3]);
    geometry.add_spoiler(1.0, 2.0);
    EXPECT_EQ(geometry.spoilers.at(0)->value_2, 2.0);
    auto& gear = *geometry.first_landing_gear;
    gear.add_unequipped_cylinder(1.0, 2.0, 3.0, 4.0);
    gear.add_equipped_cylinder(5.0, 6.0, 7.0);
    auto const& bare = *gear.unequipped_cylinders.at(0);
    EXPECT_EQ(std::vector<double>({bare.value_1, bare.value_2, bare.value_3, bare.value_4}),
              std::vector<double>({1.0, 2.0, 3.0, 4.0}));
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
    EXPECT_TRUE(noise.first_switch);
    EXPECT_EQ(noise.selector, 1);
    EXPECT_EQ(noise.value, 0.0);
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
        EXPECT_EQ(entry.first.first, r.type);
        EXPECT_EQ(entry.first.second, r.stored_unit) << r.type;
        EXPECT_DOUBLE_EQ(entry.second->value, r.stored_value) << r.type;
        EXPECT_EQ(entry.second->unit, r.stored_unit) << r.type;
    }
}

TEST(MeasuredNoise, OneParameterPerFamilyReplacesTheLast) {
    measured_source_noise_element_t element;
    element.add_power_management_parameter(power_parameter_fn, 10.0, power_unit_dan);
    element.add_power_management_parameter(power_parameter_fn, 3.0, power_unit_kn);
    ASSERT_EQ(element.power_management->size(), 1u);
    EXPECT_EQ(element.power_management->at({power_parameter_fn, power_unit_dan})->value, 300.0);
}
