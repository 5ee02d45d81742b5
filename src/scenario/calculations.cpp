// Calculations and engine scalings: what a run computes, with its default options.

#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>

tsour_calculation_t::tsour_calculation_t()
    : prediction_options(boost::make_shared<default_prediction_options_t>())
    , transposition_options(boost::make_shared<default_transposition_options_t>()) {}

nlcp_calculation_t::nlcp_calculation_t()
    : transposition_options(boost::make_shared<default_transposition_options_t>()) {
    // An integrated calculation transposes the total of the aircraft with its own setting.
    auto total = boost::make_shared<total_aircraft_transposition_t>();
    total->source_option_2 = 1;
    transposition_options->total_aircraft = total;
}

engine_scaling_calculation_t::engine_scaling_calculation_t()
    : prediction_options(boost::make_shared<default_prediction_options_t>())
    , ambient_conditions(boost::make_shared<ambient_conditions_t>()) {}

// A scaling compares exactly two engines from the moment it exists.
scaling_t::scaling_t()
    : engines{boost::make_shared<engine_t>(0), boost::make_shared<engine_t>(1)}
    , attenuations{boost::make_shared<attenuations_t>(), boost::make_shared<attenuations_t>()} {}

scaling_simulation_t::scaling_simulation_t(
    boost::shared_ptr<scaling_t> scaling,
    boost::shared_ptr<engine_scaling_calculation_t> calculation)
    : scaling(std::move(scaling))
    , calculation(std::move(calculation))
    , results(boost::make_shared<scaling_results_t>()) {}
