// Engines: installation geometry and thermodynamic cycle.

#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>

engine_geometry_t::engine_geometry_t()
    : spool_down_law(boost::make_shared<spool_down_law_t>()) {}

thermo_effects_t::thermo_effects_t() {
    for (auto& set : parameters) {
        set = boost::make_shared<thermodynamic_parameters_t>();
    }
}

void thermo_effects_t::set_segments(int count) {
    // Appends without clearing, so that segments can be added in several steps.
    for (int segment = 0; segment < count; ++segment) {
        user_segments.push_back(boost::make_shared<thermodynamic_parameters_t>());
        second_user_segments.push_back(boost::make_shared<thermodynamic_parameters_t>());
    }
}

std::size_t thermo_effects_t::user_segment_count() const {
    return user_segments.size();
}

engine_t::engine_t(int index)
    : index(index)
    , geometry(boost::make_shared<engine_geometry_t>())
    , thermo_effects(boost::make_shared<thermo_effects_t>()) {}
