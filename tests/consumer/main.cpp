// A user of the installed package, calling each subsystem once through the umbrella header.
#include <calc-common/calc-common.hpp>

#include <boost/make_shared.hpp>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace {

// Logs one warning into a fresh folder and looks for its line in the log file there.
bool log_record_reaches_file() {
    namespace fs = std::filesystem;
    fs::path const dir = fs::temp_directory_path() /
                         ("varno-consumer-log-" + std::to_string(std::random_device{}()));
    VARNO::LogFileWriter::init(true, VARNO::LogFileWriter::notification, dir.string(), 1.0);
    VARNO::LogFileWriter::AddToLogFile(VARNO::LogFileWriter::warning, "consumer was here");
    bool found = false;
    for (auto const& entry : fs::directory_iterator(dir)) {
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            found = found || line.find(" :  <warning>  consumer was here") != std::string::npos;
        }
    }
    fs::remove_all(dir);
    std::printf("log record %s\n", found ? "found in the log file" : "missing");
    return found;
}

// An aircraft with a forward fan, a noise sources calculation and a simulation of three points
// stepped through two directions: the options in force are the calculation's defaults.
bool build_scenario() {
    environment_t environment;
    auto const aircraft = environment.add_aircraft();
    aircraft->engine_sources.push_back(boost::make_shared<source_t>(source_fan_forward));
    auto const calculation = environment.add_tsour_calculation();
    auto const simulation = environment.add_tsour_simulation(aircraft, calculation);
    simulation->create_calculation_points(3);
    simulation->direction_count = 2;
    simulation->direction_index = 0;
    bool const stepped = simulation->move_to_next_direction();
    bool const refused = !simulation->move_to_next_direction();
    bool const defaults =
        simulation->get_comp_fan_prediction_options(0) == calculation->prediction_options->fwd_fan;
    std::printf("scenario: %zu points, fan count %d, stepped %d\n",
                simulation->calculation_points.size(),
                simulation->get_fwd_fan_prediction_options(0)->comp_fan_count, stepped);
    return stepped && refused && defaults;
}

// A flat 60 dB third-octave spectrum weighs in at about 71.7 dB(A): the bands from 500 Hz to
// 5 kHz, near 0 dB of weighting, dominate.
bool a_weighted_flat_spectrum_is_plausible() {
    boost::shared_ptr<spectrum_t> flat = spectrum_t::create_tob();
    flat->fill_with(60.0);
    double const level = Calc_AWeightedLevel(flat);
    std::printf("flat 60 dB spectrum = %.2f dB(A)\n", level);
    return level > 71.0 && level < 72.5;
}

// Prepares the results of a jet on one point and writes its record: a flag word, 17 levels, five
// third-octave blocks and three marked ones (1 + 24 * 8 bytes each).
bool write_result_record() {
    environment_t environment;
    auto const aircraft = environment.add_aircraft();
    aircraft->engine_sources.push_back(boost::make_shared<source_t>(source_jet));
    auto const simulation =
        environment.add_tsour_simulation(aircraft, environment.add_tsour_calculation());
    simulation->create_calculation_points(1);
    range_provider_t third_octave_bands = [](boost::shared_ptr<source_noise_t>, std::size_t) {
        return boost::shared_ptr<frequency_range_t>();
    };
    simulation->prepare_noise_sources_results(third_octave_bands);

    auto const jet = simulation->result->points[0]->directional->find(
        result_type_t::create_engine_source(source_jet, 0, true, component_broadband_noise));
    std::FILE* file = std::tmpfile();
    jet->write(file, simulation);
    long const size = std::ftell(file);
    std::fclose(file);
    std::printf("%s record: %ld bytes\n", jet->type->to_string(simulation).c_str(), size);
    return size == 4 + 8 * 17 + 5 * 192 + 3 * 193;
}

} // namespace

int main() {
    if (!build_scenario() || !write_result_record() || !log_record_reaches_file() ||
        !a_weighted_flat_spectrum_is_plausible()) {
        return 1;
    }
    boost::shared_ptr<spectrum_t> a = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> b = spectrum_t::create_tob();
    a->fill_with(50.0);
    b->fill_with(50.0);
    spectrum_t::log_add(a, b, a);
    std::printf("50 dB + 50 dB = %.4f dB\n", a->values[0]);

    boost::shared_ptr<spectrum_t> other =
        boost::make_shared<spectrum_t>(tob_frequency_range_ptr->clone());
    try {
        spectrum_t::log_add(a, other, a);
    } catch (varno_calc_error const& error) {
        std::printf("caught varno_calc_error: %s\n", error.what());
        return a->values[0] > 53.01 && a->values[0] < 53.02 ? 0 : 1;
    }
    return 1;
}
