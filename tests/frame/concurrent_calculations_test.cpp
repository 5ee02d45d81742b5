// Calculations that keep scratch storage between calls, and reads of a finished result tree, run
// from several threads at once over shared inputs with separate outputs: each thread must see
// what a single thread sees.
#include <calc-common/metrics.hpp>
#include <calc-common/numerics.hpp>
#include <calc-common/propagation.hpp>
#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>
#include <calc-common/spectra.hpp>
#include <calc-common/tones.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

struct shared_inputs {
    boost::shared_ptr<spectrum_t> spectrum = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> narrowband;
    boost::shared_ptr<common_all_sources_transposition_t> ground =
        boost::make_shared<common_all_sources_transposition_t>();
    boost::shared_ptr<ambient_conditions_t> air = boost::make_shared<ambient_conditions_t>();
    std::vector<double> angles;
    std::vector<double> directivity;
    boost::shared_ptr<simulation_t> simulation;
};

// A finished tree of results: engine and airframe sources at two points, prepared once.
boost::shared_ptr<simulation_t> prepared_simulation() {
    environment_t environment;
    auto aircraft = environment.add_aircraft();
    for (source_type_t type : {source_jet, source_fan_forward, source_turbine}) {
        aircraft->engine_sources.push_back(boost::make_shared<source_t>(type));
    }
    aircraft->engine_sources[1]->components[static_cast<noise_component_t>(1)] =
        boost::make_shared<source_noise_t>();
    for (source_type_t type : {source_slats, source_other_landing_gear}) {
        aircraft->airframe_sources.push_back(boost::make_shared<source_t>(type));
    }
    auto simulation =
        environment.add_tsour_simulation(aircraft, environment.add_tsour_calculation());
    simulation->create_calculation_points(2);
    range_provider_t no_narrowband = [](boost::shared_ptr<source_noise_t>, std::size_t) {
        return boost::shared_ptr<frequency_range_t>();
    };
    simulation->prepare_noise_sources_results(no_narrowband);
    return simulation;
}

shared_inputs make_inputs() {
    shared_inputs in;
    in.spectrum->values.resize(24);
    for (std::size_t i = 0; i < 24; ++i) {
        in.spectrum->values[i] = 60.0 + 8.0 * std::sin(0.4 * static_cast<double>(i));
    }
    in.spectrum->values[9] += 12.0;
    in.spectrum->values[15] += 9.0;
    in.narrowband =
        boost::make_shared<spectrum_t>(frequency_range_t::create_nb(20.0, 5000.0, 12.5));
    for (std::size_t i = 0; i < in.narrowband->values.size(); ++i) {
        in.narrowband->values[i] = 50.0 + 10.0 * std::cos(0.03 * static_cast<double>(i));
    }
    in.air->temperature = 288.15;
    in.air->pressure = 101325.0;
    in.air->relative_humidity = 70.0;
    for (int a = 0; a <= 180; a += 10) {
        in.angles.push_back(a);
        in.directivity.push_back(90.0 + 6.0 * std::cos(a * 0.05));
    }
    in.simulation = prepared_simulation();
    return in;
}

using outputs = std::pair<std::vector<double>, std::vector<std::string>>;

boost::shared_ptr<spectrum_t> tob_copy(shared_inputs const& in, double offset = 0.0) {
    auto copy = spectrum_t::create_tob();
    copy->values = in.spectrum->values;
    for (double& level : copy->values) {
        level += offset;
    }
    return copy;
}

void keep(outputs& out, boost::shared_ptr<spectrum_t> const& s) {
    out.first.insert(out.first.end(), s->values.begin(), s->values.end());
}

void tone_routines(shared_inputs const& in, int pass, outputs& out) {
    auto broadband = spectrum_t::create_tob();
    auto tones = spectrum_t::create_tob();
    Calc_TonesLocSlope(in.spectrum, broadband, tones);
    keep(out, tones);
    Calc_TonesLocFreq(in.spectrum, 2.0, 3.0, broadband, tones);
    keep(out, tones);
    for (int method = 0; method < 2; ++method) {
        auto const how = static_cast<tone_sep_method_t>(method);
        out.first.push_back(
            Calc_BBTones(in.spectrum, 1.5, 100.0, 0.0, how, 2.0, 3.0, broadband, tones));
        keep(out, broadband);
        auto harmonic = spectrum_t::create_tob();
        Calc_EnscaBBTones(in.spectrum, 1.5, 100.0, 315.0 + pass, 0.0, how, 2.0, 3.0, broadband,
                          harmonic);
        keep(out, harmonic);
    }
    auto unshifted = spectrum_t::create_tob();
    auto shifted = spectrum_t::create_tob();
    double shifted_hz = 0.0;
    double level = 0.0;
    Calc_DopplerizeTone(tones, broadband, 1.1, 900.0 + pass, unshifted, shifted, &shifted_hz,
                        &level, nullptr, true, false);
    keep(out, shifted);
    out.first.push_back(level);
}

void propagation(shared_inputs const& in, int pass, outputs& out) {
    for (auto const& range : {tob_frequency_range_ptr, in.narrowband->frequency_range}) {
        auto effect = boost::make_shared<spectrum_t>(range);
        auto phase = boost::make_shared<spectrum_t>(range);
        double delay = 0.0;
        Calc_GroundReflectionEffect(in.ground, in.air, 100.0, 104.0 + pass, 340.0, 20.0, effect,
                                    phase, &delay);
        keep(out, effect);
    }
    for (atm_abs_method_t method :
         {atm_abs_sutherland, atm_abs_arp866, atm_abs_sae_air1845, atm_abs_arp5534}) {
        auto absorbed = tob_copy(in);
        VARNO::TrrApi::AtmAbsCorrection(method, absorbed, 500.0 + pass, in.air);
        keep(out, absorbed);
    }
}

void interpolation(shared_inputs const& in, int pass, outputs& out) {
    out.first.push_back(Calc_AngularInterp_Parabolic(in.angles.data(), in.directivity.data(),
                                                     in.angles.size(), 33.0 + pass, false));
    VARNO::BSpline const spline(in.angles.data(), in.directivity.data(),
                                static_cast<int>(in.angles.size()), 1.0 + pass);
    double value = 0.0;
    double const at = 47.0;
    spline.evaluate(&at, &value, 1);
    out.first.push_back(value);
}

void band_conversion(shared_inputs const& in, int, outputs& out) {
    for (int method = 0; method <= 2; ++method) {
        auto const how = static_cast<nbtob_conversion_method>(method);
        auto bands = spectrum_t::create_tob();
        out.first.push_back(convert_spectrum_to_tob(in.narrowband, bands, how, 0));
        keep(out, bands);
        VARNO::TrrApi::NbToTob(in.narrowband, bands, how);
        keep(out, bands);
    }
    auto sum = spectrum_t::create_tob();
    spectrum_t::log_add(in.spectrum, tob_copy(in, -3.0), sum);
    keep(out, sum);
}

void noise_metrics(shared_inputs const& in, int pass, outputs& out) {
    std::vector<boost::shared_ptr<spectrum_t>> history;
    for (int k = 0; k < 11; ++k) {
        history.push_back(tob_copy(in, 10.0 - 2.0 * std::abs(k - 5 - pass % 3)));
    }
    out.first.push_back(Calc_PerceivedNoiseLevel(history[pass % 11]));
    out.first.push_back(Calc_ToneCorrection(history[pass % 11]));
    out.first.push_back(Calc_EffectivePerceivedNoiseLevel(history, 0.5));
}

// Every record of each point found again by its type, and the texts of their types.
void result_tree_reads(shared_inputs const& in, int, outputs& out) {
    for (auto const& point : in.simulation->result->points) {
        std::vector<boost::shared_ptr<directional_result_noise_t>> all;
        point->directional->get_all(all);
        for (auto const& record : all) {
            if (record) {
                out.first.push_back(point->directional->find(record->type) == record);
                out.second.push_back(record->type->to_string(in.simulation));
            }
        }
    }
}

using task = void (*)(shared_inputs const&, int, outputs&);
task const tasks[] = {tone_routines,   propagation,   interpolation,
                      band_conversion, noise_metrics, result_tree_reads};

std::vector<outputs> run_tasks(shared_inputs const& in, int pass) {
    std::vector<outputs> results;
    for (task run : tasks) {
        results.emplace_back();
        run(in, pass, results.back());
    }
    return results;
}

} // namespace

TEST(ConcurrentCalculations, FourThreadsSeeWhatOneThreadSees) {
    shared_inputs const in = make_inputs();
    int const passes = 20;
    std::vector<std::vector<outputs>> expected;
    for (int pass = 0; pass < passes; ++pass) {
        expected.push_back(run_tasks(in, pass));
    }
    ASSERT_FALSE(expected[0].back().second.empty());
    std::vector<std::vector<std::vector<outputs>>> seen(4);
    std::vector<std::thread> threads;
    for (auto& results : seen) {
        threads.emplace_back([&in, &results, passes] {
            for (int pass = 0; pass < passes; ++pass) {
                results.push_back(run_tasks(in, pass));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (auto const& results : seen) {
        for (int pass = 0; pass < passes; ++pass) {
            for (std::size_t t = 0; t < expected[pass].size(); ++t) {
                EXPECT_EQ(results[pass][t], expected[pass][t]) << "task " << t << ", pass " << pass;
            }
        }
    }
}
