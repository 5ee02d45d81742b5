// The aircraft, its noise sources and its airframe geometry.

#include <calc-common/scenario.hpp>

#include "vocabulary/source_catalogue.hpp"

#include <boost/make_shared.hpp>

source_t::source_t(source_type_t const& type)
    : type(type) {}

bool source_t::is_broadband_engine_source() const {
    return VARNO::detail::is_broadband_engine_source(type);
}

bool source_t::is_cror_engine_source() const {
    return VARNO::detail::is_cror_engine_source(type);
}

bool source_t::is_global_decomposable_engine_source() const {
    return ::is_global_decomposable_engine_source(type);
}

void landing_gear_geometry_t::add_equipped_cylinder(double first, double second, double third) {
    equipped_cylinders.push_back(
        boost::make_shared<equipped_cylinder_t>(equipped_cylinder_t{first, second, third}));
}

void landing_gear_geometry_t::add_unequipped_cylinder(double first, double second, double third,
                                                      double fourth) {
    unequipped_cylinders.push_back(boost::make_shared<unequipped_cylinder_t>(
        unequipped_cylinder_t{first, second, third, fourth}));
}

aircraft_geometry_t::aircraft_geometry_t()
    : first_landing_gear(boost::make_shared<landing_gear_geometry_t>())
    , second_landing_gear(boost::make_shared<landing_gear_geometry_t>())
    , third_landing_gear(boost::make_shared<landing_gear_geometry_t>())
    , fourth_landing_gear(boost::make_shared<landing_gear_geometry_t>())
    , first_flap(boost::make_shared<flap_geometry_t>())
    , second_flap(boost::make_shared<flap_geometry_t>()) {
    for (auto& slat : slats) {
        slat = boost::make_shared<slat_geometry_t>();
    }
}

void aircraft_geometry_t::add_spoiler(double first, double second) {
    spoilers.push_back(boost::make_shared<spoiler_geometry_t>(spoiler_geometry_t{first, second}));
}

aircraft_t::aircraft_t()
    : engines{boost::make_shared<engine_t>(0)}
    , aero_data(boost::make_shared<aero_data_t>())
    , geometry(boost::make_shared<aircraft_geometry_t>())
    , total_noise(boost::make_shared<total_noise_db_t>())
    , attenuations(boost::make_shared<attenuations_t>()) {
    // The totals that attenuations are usually applied to.
    for (auto const& key :
         {result_type_t::create_total_engine(), result_type_t::create_total_airfoil(),
          result_type_t::create_total_landing_gear()}) {
        attenuations->emplace(key, boost::make_shared<attenuation_list_t>());
    }
}

int aircraft_t::find_airframe_source_index(source_type_t const& type) const {
    for (std::size_t index = 0; index < airframe_sources.size(); ++index) {
        if (airframe_sources[index]->type == type) {
            return static_cast<int>(index);
        }
    }
    return -1;
}
