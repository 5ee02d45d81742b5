#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include "result_test_ids.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace result_test;

namespace {

using result_ptr = boost::shared_ptr<result_type_t>;

// A simulation whose engine source i and airframe source i have type i and 12 + i. Results are
// created with type 4 throughout: only the aircraft's own source decides.
boost::shared_ptr<simulation_t> simulation_with_every_source() {
    auto aircraft = boost::make_shared<aircraft_t>();
    for (int type = 0; type < 12; ++type) {
        aircraft->engine_sources.push_back(boost::make_shared<source_t>(source(type)));
        aircraft->airframe_sources.push_back(boost::make_shared<source_t>(source(type + 12)));
    }
    auto simulation = boost::make_shared<simulation_t>();
    simulation->aircraft = aircraft;
    return simulation;
}

result_ptr engine(int index, int part) {
    return part < 0
               ? result_type_t::create_engine_source(source(4), index, true, component(0))
               : result_type_t::create_engine_source_component(source(4), index, component(part));
}

} // namespace

// The texts of the turbine, the forward fan and the pseudo-breakdown, with their components, of
// the fixed totals and of the genePass results are checked in the prepared result trees.
TEST(ResultTypeText, EngineSourcesByTypeAndComponent) {
    struct row {
        int type;
        std::vector<int> parts; // -1: whole source
        char const* texts;
    };
    std::vector<row> const rows = {
        {0, {-1, 5}, "Jet|Jet"},
        {2, {9}, "Combustion"},
        {3, {4}, "unknown"},
        {4, {-1}, "unknown"},
        {5, {-1, 1, 5}, "Fan aft|Fan aft - broadband|Fan aft - interaction tones"},
        {6, {1}, "Residual"},
        {7, {-1}, "Total engine, propeller(s) excluded"},
        {8, {-1, 1, 5}, "Propeller|Propeller - broadband|Propeller - tones"},
        {9,
         {-1, 1, 6, 7, 8},
         "CROR propellers|CROR propellers - broadband|CROR forward propeller tones|"
         "CROR aft propeller tones|CROR propellers - interaction tones"},
        {10, {-1, 1, 5}, "Compressor|Compressor - broadband|Compressor - tones"},
    };
    auto const simulation = simulation_with_every_source();
    for (row const& r : rows) {
        std::string texts;
        for (int part : r.parts) {
            texts += engine(r.type, part)->to_string(simulation) + '|';
        }
        EXPECT_EQ(texts, r.texts + std::string("|")) << r.type;
    }
}

TEST(ResultTypeText, AirframeSourcesAndTotalsBySourceType) {
    // By source type: airframe texts from 12 on, totals from 0 to 24.
    auto const simulation = simulation_with_every_source();
    std::string airframe, totals;
    for (int i = 0; i < 12; ++i) {
        airframe +=
            result_type_t::create_airframe_source(source(0), i)->to_string(simulation) + '|';
    }
    for (int type = 0; type < 25; ++type) {
        totals +=
            result_type_t::create_total_by_source_type(source(type))->to_string(nullptr) + '|';
    }
    EXPECT_EQ(airframe,
              "Slats|Flaps|Clean wing|Empennage|Nose landing gear|Main landing gear|"
              "Other landing gear|Inboard cavity|Outboard cavity|Extraneous airframe source|NAI|"
              "Spoiler|");
    EXPECT_EQ(totals,
              "Jet (total)|Turbine (total)|Combustion (total)|Fan forward (total)|unknown|"
              "Fan aft (total)|Residual (total)|Total engine, propeller(s) excluded (total)|"
              "Propeller (total)|CROR propellers (total)|Compressor (total)|unknown|Slats (total)|"
              "Flaps (total)|Wing (total)|Empennage (total)|Nose landing gear (total)|"
              "Main landing gear (total)|Central landing gear (total)|Inboard cavity (total)|"
              "Outboard cavity (total)|Extraneous (total)|NAI (total)|Spoiler (total)|unknown|");
    // Engine types on the airframe list have no airframe text.
    simulation->aircraft->airframe_sources[0]->type = source(3);
    EXPECT_EQ(result_type_t::create_airframe_source(source(12), 0)->to_string(simulation),
              "unknown");
}

TEST(ResultTypeText, TotalsGenePassAndUnknownNeedNoSimulation) {
    EXPECT_EQ(result_type_t::create_total_engine_data(3)->to_string(nullptr), "Engine");
    auto const unknown_genepass = static_cast<genepass_result_type_t>(3);
    EXPECT_EQ(result_type_t::create_genepass(unknown_genepass)->to_string(nullptr), "unknown");
    EXPECT_EQ(boost::make_shared<result_type_t>()->to_string(nullptr), "unknown");
}

TEST(ResultTypeQueries, ClassesFollowTheAircraftsSource) {
    auto const simulation = simulation_with_every_source();
    auto const aircraft = simulation->aircraft;
    struct row {
        result_ptr type;
        bool broadband_source, cror, decomposable, pure_broadband, pure_tones, mixed;
    };
    std::vector<row> const rows = {
        {engine(0, -1), true, false, false, true, false, false},
        {engine(2, 1), false, false, false, true, false, false}, // broadband by component
        {result_type_t::create_engine_source(source(4), 1, true, component(7)), false, false, true,
         false, true, true}, // a whole source still answers by its component
        {engine(1, 5), false, false, false, false, true, false},
        {engine(1, 2), false, false, false, false, true, false}, // buzz-saw
        {engine(3, 9), false, false, false, false, true, false}, // haystack
        {engine(9, 6), false, true, false, false, true, false},  // CROR component
        {engine(9, -1), false, true, true, false, false, true},
        {engine(4, -1), false, false, false, false, false, false},
        {result_type_t::create_airframe_source(source(0), 3), false, false, false, true, false,
         false},
        {result_type_t::create_total_aircraft(), false, false, false, false, false, true},
        {result_type_t::create_total_engine(), false, false, false, false, false, false},
    };
    for (std::size_t i = 0; i < rows.size(); ++i) {
        row const& r = rows[i];
        EXPECT_EQ(r.type->is_broadband_engine_source(simulation), r.broadband_source) << i;
        EXPECT_FALSE(r.type->is_tonal_engine_source(simulation)) << i;
        EXPECT_EQ(r.type->is_cror_engine_source(simulation), r.cror) << i;
        EXPECT_EQ(r.type->is_global_decomposable_engine_source(aircraft), r.decomposable) << i;
        EXPECT_EQ(r.type->is_pure_broadband(simulation), r.pure_broadband) << i;
        EXPECT_EQ(r.type->is_pure_tones(simulation), r.pure_tones) << i;
        EXPECT_EQ(r.type->is_mixed_broadband_tones(aircraft), r.mixed) << i;
    }
}
