#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <tuple>

TEST(Aircraft, NewAircraftAndItsSources) {
    aircraft_t aircraft;
    ASSERT_EQ(aircraft.engines.size(), 1u);
    EXPECT_EQ(aircraft.engines[0]->index, 0);
    EXPECT_EQ(aircraft.total_noise->value_1, 0.0);
    EXPECT_EQ(aircraft.attenuations->size(), 3u);
    // Keys compare by identity, not by pointer: a fresh key finds the entry.
    EXPECT_TRUE(aircraft.attenuations->at(result_type_t::create_total_landing_gear())
                    ->attenuations.empty());
    EXPECT_EQ(aircraft.attenuations->count(result_type_t::create_total_airframe()), 0u);

    for (auto type : {source_slats, source_flaps, source_flaps}) {
        aircraft.airframe_sources.push_back(boost::make_shared<source_t>(type));
    }
    EXPECT_EQ(aircraft.find_airframe_source_index(source_flaps), 1);
    EXPECT_EQ(aircraft.find_airframe_source_index(source_spoiler), -1);

    // A source starts active, on the first engine, and knows its class.
    source_t const cror(source_cror_propellers);
    EXPECT_TRUE(cror.active && cror.engine_index == 0);
    EXPECT_TRUE(cror.is_cror_engine_source() && cror.is_global_decomposable_engine_source());
    EXPECT_FALSE(cror.is_broadband_engine_source());
    EXPECT_TRUE(source_t(source_residual).is_broadband_engine_source());
}

TEST(Engine, DefaultsOfGeometryAndCycleAndSegmentsAppendedToBothLists) {
    engine_t const engine(3);
    auto const& geometry = *engine.geometry;
    EXPECT_EQ(std::make_tuple(engine.index, engine.value_type, engine.selector,
                              engine.second_selector, geometry.shift_value),
              std::make_tuple(3, 2, 1, -1, -100));
    EXPECT_EQ(
        std::make_tuple(geometry.value_2, geometry.value_15, geometry.spool_down_law->value_8),
        std::make_tuple(50.0, 1.0, 0.5));
    auto& thermo = *engine.thermo_effects;
    EXPECT_EQ(std::make_tuple(thermo.enabled, thermo.code), std::make_tuple(true, "000"));
    EXPECT_TRUE(thermo.parameters[3]);
    EXPECT_NE(thermo.parameters[0], thermo.parameters[1]);

    // Segments are appended, never cleared; a count below one adds none.
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
    profile->add_brooks_spoilers(1.0, 2.0, 3.0);
    EXPECT_EQ(profile->brooks_spoilers.at(0)->value_3, 3.0);
    aero.clear_profiles();
    EXPECT_TRUE(aero.profiles.empty());
}

TEST(MeasuredNoise, NewRecordHoldsItsElementsWithOneParameterPerFamilyInItsCanonicalUnit) {
    measured_source_noise_t const noise(2);
    ASSERT_EQ(noise.elements.size(), 2u);
    EXPECT_NE(noise.elements[0], noise.elements[1]);
    EXPECT_EQ(std::make_tuple(noise.first_switch, noise.selector, noise.value),
              std::make_tuple(true, 1, 0.0));

    // A later parameter of the same family replaces the last, whatever its unit.
    auto& element = *noise.elements[0];
    element.add_power_management_parameter(power_parameter_fn, 10.0, power_unit_dan);
    element.add_power_management_parameter(power_parameter_fn, 3.0, power_unit_kn);
    ASSERT_EQ(element.power_management->size(), 1u);
    EXPECT_EQ(element.power_management->at({power_parameter_fn, power_unit_dan})->value, 300.0);

    // Each family's parameters are stored in its canonical unit.
    struct row {
        int type, unit, stored_unit;
        double value, stored_value;
    };
    row const rows[] = {
        {3, 3, 2, 100.0, 954.9296585513721}, // N1 in rad/s
        {14, 4, 2, 10.0, 600.0},             // N2 in revolutions per second
        {5, 4, 2, 1.0, 60.0},                // the unnamed spool speed
        {3, 1, 2, 50.0, 50.0},               // N1 in percent keeps its number
        {7, 8, 7, 1000.0, 100.0},            // FN in N
        {8, 9, 7, 2.0, 200.0},               // FNc in kN
        {7, 10, 7, 1.0, 0.44482216152605},   // FN in lbf
        {11, 15, 11, 100.0, 51.44444444444444},
        {9, 12, 11, 10.0, 3.048},
        {13, 14, 13, 1.0, 57.29577951308232},
        {0, 0, 0, 0.25, 0.25}, // Mn: no family, kept as given
        {16, 5, 5, 3.0, 3.0},
    };
    for (auto const& r : rows) {
        measured_source_noise_element_t fresh;
        fresh.add_power_management_parameter(
            static_cast<power_management_parameter_type_t>(r.type), r.value,
            static_cast<power_management_parameter_unit_t>(r.unit));
        ASSERT_EQ(fresh.power_management->size(), 1u) << r.type;
        auto const& entry = *fresh.power_management->begin();
        EXPECT_EQ(std::make_tuple(entry.first.first, entry.first.second, entry.second->unit),
                  std::make_tuple(r.type, r.stored_unit, r.stored_unit));
        EXPECT_DOUBLE_EQ(entry.second->value, r.stored_value) << r.type;
    }
}

TEST(Attenuation, CloneCopiesTheListButSharesTheDataAndSpectrumSlotsStartEmpty) {
    auto first = boost::make_shared<attenuation_t>();
    first->name = "barrier";
    first->attenuation_data_1 = spectrum_t::create_tob();
    attenuation_list_t list;
    list.attenuations = {first, boost::make_shared<attenuation_t>()};
    auto const copy = list.clone();
    ASSERT_EQ(copy->attenuations.size(), 2u);
    EXPECT_NE(copy->attenuations[0], first);
    EXPECT_EQ(copy->attenuations[0]->name, "barrier");
    EXPECT_EQ(copy->attenuations[0]->attenuation_data_1, first->attenuation_data_1);
    EXPECT_EQ(std::make_tuple(copy->attenuations[1]->attenuation_option,
                              copy->attenuations[1]->attenuation_option_3),
              std::make_tuple(1, 3));

    EXPECT_TRUE(spectrum_attenuation_t().attenuation_spectra_1.empty());
    spectrum_attenuation_t const three(3);
    EXPECT_EQ(
        std::make_tuple(three.attenuation_spectra_1.size(), three.attenuation_spectra_2.size()),
        std::make_tuple(3u, 3u));
}

TEST(Attenuation, MapKeysAreResultIdentities) {
    attenuations_t map;
    // The last key has the identity of the one before it with another source type: the same key.
    for (auto key :
         {result_type_t::create_total_landing_gear(), result_type_t::create_total_engine(),
          result_type_t::create_airframe_source(source_slats, 2),
          result_type_t::create_airframe_source(source_flaps, 2)}) {
        map[key] = boost::make_shared<attenuation_list_t>();
    }
    ASSERT_EQ(map.size(), 3u);
    EXPECT_EQ(map.begin()->first->hash(), 20002u);
    EXPECT_EQ(map.rbegin()->first->hash(), 30200u);
    EXPECT_EQ(map.count(result_type_t::create_total_engine()), 1u);

    // The map holds its comparison function: the identity order, by default or when given.
    EXPECT_EQ(map.key_comp().compare, &result_type_t::less_than);
    auto const given = boost::make_shared<attenuations_t>(&result_type_t::less_than);
    (*given)[result_type_t::create_total_engine()] = boost::make_shared<attenuation_list_t>();
    EXPECT_EQ(given->count(result_type_t::create_total_engine()), 1u);
}
