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

using spectrum_ptr = boost::shared_ptr<spectrum_t>;

// A finished tree of results: engine and airframe sources at two points, prepared once.
boost::shared_ptr<simulation_t> prepared_simulation() {
    auto aircraft = boost::make_shared<aircraft_t>();
    for (source_type_t type : {source_jet, source_fan_forward, source_turbine}) {
        aircraft->engine_sources.push_back(boost::make_shared<source_t>(type));
    }
    aircraft->engine_sources[1]->components[component_broadband_noise] =
        boost::make_shared<source_noise_t>();
    for (source_type_t type : {source_slats, source_other_landing_gear}) {
        aircraft->airframe_sources.push_back(boost::make_shared<source_t>(type));
    }
    auto simulation =
        simulation_t::create_tsour(aircraft, boost::make_shared<tsour_calculation_t>());
    simulation->create_calculation_points(2);
    range_provider_t no_narrowband = [](boost::shared_ptr<source_noise_t>, std::size_t) {
        return boost::shared_ptr<frequency_range_t>();
    };
    simulation->prepare_noise_sources_results(no_narrowband);
    return simulation;
}

struct shared_inputs {
    spectrum_ptr spectrum = spectrum_t::create_tob();
    spectrum_ptr narrowband =
        boost::make_shared<spectrum_t>(frequency_range_t::create_nb(20.0, 5000.0, 12.5));
    boost::shared_ptr<common_all_sources_transposition_t> ground =
        boost::make_shared<common_all_sources_transposition_t>();
    boost::shared_ptr<ambient_conditions_t> air = boost::make_shared<ambient_conditions_t>();
    std::vector<double> angles, directivity;
    boost::shared_ptr<simulation_t> simulation = prepared_simulation();

    shared_inputs() {
        for (std::size_t i = 0; i < 24; ++i) {
            spectrum->values[i] = 60.0 + 8.0 * std::sin(0.4 * static_cast<double>(i));
        }
        spectrum->values[9] += 12.0;
        spectrum->values[15] += 9.0;
        for (std::size_t i = 0; i < narrowband->values.size(); ++i) {
            narrowband->values[i] = 50.0 + 10.0 * std::cos(0.03 * static_cast<double>(i));
        }
        air->temperature = 288.15;
        air->pressure = 101325.0;
        air->relative_humidity = 70.0;
        for (int a = 0; a <= 180; a += 10) {
            angles.push_back(a);
            directivity.push_back(90.0 + 6.0 * std::cos(a * 0.05));
        }
    }

    spectrum_ptr shifted(double offset) const {
        spectrum_ptr copy = spectrum->clone();
        for (double& level : copy->values) {
            level += offset;
        }
        return copy;
    }
};

using outputs = std::pair<std::vector<double>, std::vector<std::string>>;

void keep(outputs& out, spectrum_ptr const& s) {
    out.first.insert(out.first.end(), s->values.begin(), s->values.end());
}

void tone_routines(shared_inputs const& in, int pass, outputs& out) {
    auto broadband = spectrum_t::create_tob();
    auto tones = spectrum_t::create_tob();
    Calc_TonesLocSlope(in.spectrum, broadband, tones);
    keep(out, tones);
    Calc_TonesLocFreq(in.spectrum, 2.0, 3.0, broadband, tones);
    keep(out, tones);
    for (auto how : {static_cast<tone_sep_method_t>(0), static_cast<tone_sep_method_t>(1)}) {
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
        auto absorbed = in.shifted(0.0);
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
    spectrum_t::log_add(in.spectrum, in.shifted(-3.0), sum);
    keep(out, sum);
}

void noise_metrics(shared_inputs const& in, int pass, outputs& out) {
    std::vector<spectrum_ptr> history;
    for (int k = 0; k < 11; ++k) {
        history.push_back(in.shifted(10.0 - 2.0 * std::abs(k - 5 - pass % 3)));
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

// Each pass runs every family once, its outputs kept in order.
std::vector<outputs> run_passes(shared_inputs const& in) {
    std::vector<outputs> results;
    for (int pass = 0; pass < 20; ++pass) {
        for (auto run : {tone_routines, propagation, interpolation, band_conversion, noise_metrics,
                         result_tree_reads}) {
            results.emplace_back();
            run(in, pass, results.back());
        }
    }
    return results;
}

} // namespace

TEST(ConcurrentCalculations, FourThreadsSeeWhatOneThreadSees) {
    shared_inputs const in;
    std::vector<outputs> const expected = run_passes(in);
    ASSERT_FALSE(expected[5].second.empty());
    std::vector<std::vector<outputs>> seen(4);
    std::vector<std::thread> threads;
    for (auto& results : seen) {
        threads.emplace_back([&in, &results] { results = run_passes(in); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (auto const& results : seen) {
        for (std::size_t i = 0; i < expected.size(); ++i) {
            EXPECT_EQ(results[i], expected[i]) << "family " << i % 6 << ", pass " << i / 6;
        }
    }
}
