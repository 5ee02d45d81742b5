// The environment: the root of a scenario, which owns its aircraft, calculations and runs.

#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>

namespace {

// Appends a new default record and hands it back.
template <typename Record>
boost::shared_ptr<Record> append_new(std::vector<boost::shared_ptr<Record>>& records) {
    records.push_back(boost::make_shared<Record>());
    return records.back();
}

// Removal does not cascade: whoever else holds the element keeps it alive.
template <typename Record>
void erase_at(std::vector<boost::shared_ptr<Record>>& records, std::size_t index) {
    if (index < records.size()) {
        records.erase(records.begin() + static_cast<std::ptrdiff_t>(index));
    }
}

} // namespace

boost::shared_ptr<aircraft_t> environment_t::add_aircraft() {
    return append_new(aircraft);
}

boost::shared_ptr<tsour_calculation_t> environment_t::add_tsour_calculation() {
    return append_new(tsour_calculations);
}

boost::shared_ptr<nlcp_calculation_t> environment_t::add_nlcp_calculation() {
    return append_new(nlcp_calculations);
}

boost::shared_ptr<scaling_t> environment_t::add_scaling() {
    return append_new(scalings);
}

boost::shared_ptr<engine_scaling_calculation_t> environment_t::add_scaling_calculation() {
    return append_new(scaling_calculations);
}

boost::shared_ptr<simulation_t>
environment_t::add_tsour_simulation(boost::shared_ptr<aircraft_t> aircraft,
                                    boost::shared_ptr<tsour_calculation_t> tsour) {
    simulations.push_back(simulation_t::create_tsour(std::move(aircraft), std::move(tsour)));
    return simulations.back();
}

boost::shared_ptr<simulation_t>
environment_t::add_nlcp_simulation(boost::shared_ptr<aircraft_t> aircraft,
                                   boost::shared_ptr<nlcp_calculation_t> nlcp) {
    simulations.push_back(simulation_t::create_nlcp(std::move(aircraft), std::move(nlcp)));
    return simulations.back();
}

boost::shared_ptr<scaling_simulation_t>
environment_t::add_scaling_simulation(boost::shared_ptr<scaling_t> scaling,
                                      boost::shared_ptr<engine_scaling_calculation_t> calculation) {
    scaling_simulations.push_back(
        boost::make_shared<scaling_simulation_t>(std::move(scaling), std::move(calculation)));
    return scaling_simulations.back();
}

void environment_t::remove_aircraft_at(std::size_t const& index) {
    erase_at(aircraft, index);
}

void environment_t::remove_tsour_calculation_at(std::size_t const& index) {
    erase_at(tsour_calculations, index);
}

void environment_t::remove_nlcp_calculation_at(std::size_t const& index) {
    erase_at(nlcp_calculations, index);
}

void environment_t::remove_simulation_at(std::size_t const& index) {
    erase_at(simulations, index);
}
