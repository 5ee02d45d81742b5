// The noise of one result type at one point: construction on its grids, clearing between
// directions, and copying of the levels into another record.

#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>

#include "results/source_family.hpp"

#include <boost/make_shared.hpp>

#include <array>

namespace {

using spectrum_field = boost::shared_ptr<spectrum_t> directional_result_noise_t::*;
using level_field = double directional_result_noise_t::*;

// Airframe sources are weighted in full into the totals; engine results start unweighted.
double weight_of(result_type_t const& type) {
    return VARNO::detail::is_airframe_source_type(type.source_type) ? 1.0 : 0.0;
}

// Jet results carry the thermodynamic state of the jet: a jet source or a total of them, and
// the jet part of the pseudo-breakdown of a total engine.
bool holds_jet(result_type_t const& type) {
    return type.source_type == source_jet ||
           (type.source_type == source_total_engine_pseudo_breakdown &&
            type.component == component_jet);
}

// The spectra and levels that a new direction starts again from silence.
constexpr std::array<spectrum_field, 11> cleared_spectra = {
    {&directional_result_noise_t::first_native, &directional_result_noise_t::first_tob,
     &directional_result_noise_t::total_native, &directional_result_noise_t::total_tob,
     &directional_result_noise_t::optional_a, &directional_result_noise_t::first_extra,
     &directional_result_noise_t::optional_b, &directional_result_noise_t::optional_c,
     &directional_result_noise_t::second_native, &directional_result_noise_t::second_tob,
     &directional_result_noise_t::second_extra}};

constexpr std::array<level_field, 15> cleared_levels = {
    {&directional_result_noise_t::first_level_1, &directional_result_noise_t::first_level_2,
     &directional_result_noise_t::first_level_3, &directional_result_noise_t::second_level_1,
     &directional_result_noise_t::second_level_2, &directional_result_noise_t::second_level_3,
     &directional_result_noise_t::optional_a_level, &directional_result_noise_t::optional_b_level,
     &directional_result_noise_t::optional_b_level_2,
     &directional_result_noise_t::optional_b_level_3, &directional_result_noise_t::optional_c_level,
     &directional_result_noise_t::optional_c_level_2,
     &directional_result_noise_t::optional_c_level_3, &directional_result_noise_t::closing_level_1,
     &directional_result_noise_t::closing_level_2}};

// The spectra that copy_into carries over, in order.
constexpr std::array<spectrum_field, 7> copied_spectra = {
    {&directional_result_noise_t::first_native, &directional_result_noise_t::first_tob,
     &directional_result_noise_t::total_native, &directional_result_noise_t::total_tob,
     &directional_result_noise_t::total_second_range, &directional_result_noise_t::second_native,
     &directional_result_noise_t::second_tob}};

} // namespace

directional_result_noise_t::directional_result_noise_t(boost::shared_ptr<result_type_t> type)
    : type(type)
    , source_weight(weight_of(*type)) {
    clear_values();
}

directional_result_noise_t::directional_result_noise_t(boost::shared_ptr<result_type_t> type,
                                                       boost::shared_ptr<frequency_range_t> first,
                                                       boost::shared_ptr<frequency_range_t> second,
                                                       bool option_flag)
    : type(type)
    , source_weight(weight_of(*type))
    , option_flag(option_flag)
    , first_native(boost::make_shared<spectrum_t>(first))
    , first_tob(spectrum_t::create_tob())
    , first_extra(spectrum_t::create_tob())
    , second_native(boost::make_shared<spectrum_t>(first))
    , second_tob(spectrum_t::create_tob())
    , total_native(boost::make_shared<spectrum_t>(first))
    , total_tob(spectrum_t::create_tob())
    , total_second_range(boost::make_shared<spectrum_t>(second))
    , optional_a(spectrum_t::create_tob())
    , optional_b(spectrum_t::create_tob())
    , optional_c(spectrum_t::create_tob()) {
    if (holds_jet(*type)) {
        first_jet_params = boost::make_shared<jet_thermo_params_t>();
        second_jet_params = boost::make_shared<jet_thermo_params_t>();
    }
}

void directional_result_noise_t::clear_values() {
    for (spectrum_field field : cleared_spectra) {
        if (this->*field) {
            (this->*field)->clear();
        }
    }
    for (level_field field : cleared_levels) {
        this->*field = 0.0;
    }
}

void directional_result_noise_t::copy_into(
    boost::shared_ptr<directional_result_noise_t> target) const {
    if (!target) {
        return;
    }
    target->source_weight = source_weight;
    for (spectrum_field field : copied_spectra) {
        (this->*field)->copy_to((*target).*field);
    }
}
