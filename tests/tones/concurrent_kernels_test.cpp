// The kernels that keep scratch storage between calls, run from several threads at once over
// shared inputs with separate outputs: each thread must see what a single thread sees.
#include <calc-common/numerics.hpp>
#include <calc-common/propagation.hpp>
#include <calc-common/scenario.hpp>
#include <calc-common/tones.hpp>

#include "tone_test_support.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <thread>
#include <vector>

namespace {

using namespace tone_test;

struct shared_inputs {
    boost::shared_ptr<spectrum_t> spectrum;
    boost::shared_ptr<common_all_sources_transposition_t> ground;
    boost::shared_ptr<ambient_conditions_t> air;
    boost::shared_ptr<frequency_range_t> narrowband;
    std::vector<double> angles;
    std::vector<double> directivity;
};

shared_inputs make_inputs() {
    shared_inputs in;
    std::vector<double> levels(24);
    for (std::size_t i = 0; i < 24; ++i) {
        levels[i] = 60.0 + 8.0 * std::sin(0.4 * static_cast<double>(i));
    }
    levels[9] += 12.0;
    levels[15] += 9.0;
    in.spectrum = tob_spectrum(levels);
    in.ground = boost::make_shared<common_all_sources_transposition_t>();
    in.air = boost::make_shared<ambient_conditions_t>();
    in.air->temperature = 288.15;
    in.air->pressure = 101325.0;
    in.air->relative_humidity = 70.0;
    in.narrowband = frequency_range_t::create_nb(20.0, 5000.0, 12.5);
    for (int a = 0; a <= 180; a += 10) {
        in.angles.push_back(a);
        in.directivity.push_back(90.0 + 6.0 * std::cos(a * 0.05));
    }
    return in;
}

// Every output of one pass over the kernels, in one list.
std::vector<double> run_kernels(shared_inputs const& in, int pass) {
    std::vector<double> out;
    auto keep = [&out](boost::shared_ptr<spectrum_t> const& s) {
        out.insert(out.end(), s->values.begin(), s->values.end());
    };
    boost::shared_ptr<spectrum_t> broadband = tob_filled_with(0.0);
    boost::shared_ptr<spectrum_t> tones = tob_filled_with(0.0);
    Calc_TonesLocSlope(in.spectrum, broadband, tones);
    keep(tones);
    Calc_TonesLocFreq(in.spectrum, 2.0, 3.0, broadband, tones);
    keep(tones);
    for (int method = 0; method < 2; ++method) {
        auto const how = static_cast<tone_sep_method_t>(method);
        out.push_back(Calc_BBTones(in.spectrum, 1.5, 100.0, 0.0, how, 2.0, 3.0, broadband, tones));
        keep(broadband);
        keep(tones);
        boost::shared_ptr<spectrum_t> harmonic = tob_filled_with(0.0);
        Calc_EnscaBBTones(in.spectrum, 1.5, 100.0, 315.0 + pass, 0.0, how, 2.0, 3.0, broadband,
                          harmonic);
        keep(harmonic);
    }
    boost::shared_ptr<spectrum_t> unshifted = tob_filled_with(0.0);
    boost::shared_ptr<spectrum_t> shifted = tob_filled_with(0.0);
    double shifted_hz = 0.0;
    double level = 0.0;
    Calc_DopplerizeTone(tones, broadband, 1.1, 900.0 + pass, unshifted, shifted, &shifted_hz,
                        &level, nullptr, true, false);
    keep(unshifted);
    keep(shifted);
    out.push_back(level);
    for (boost::shared_ptr<frequency_range_t> range : {tob_frequency_range_ptr, in.narrowband}) {
        auto effect = boost::make_shared<spectrum_t>(range);
        auto phase = boost::make_shared<spectrum_t>(range);
        double delay = 0.0;
        Calc_GroundReflectionEffect(in.ground, in.air, 100.0, 104.0 + pass, 340.0, 20.0, effect,
                                    phase, &delay);
        keep(effect);
    }
    out.push_back(Calc_AngularInterp_Parabolic(in.angles.data(), in.directivity.data(),
                                               in.angles.size(), 33.0 + pass, false));
    VARNO::BSpline const spline(in.angles.data(), in.directivity.data(),
                                static_cast<int>(in.angles.size()), 1.0 + pass);
    double value = 0.0;
    double const at = 47.0;
    spline.evaluate(&at, &value, 1);
    out.push_back(value);
    return out;
}

} // namespace

TEST(ConcurrentKernels, FourThreadsSeeWhatOneThreadSees) {
    shared_inputs const in = make_inputs();
    int const passes = 40;
    std::vector<std::vector<double>> expected;
    for (int pass = 0; pass < passes; ++pass) {
        expected.push_back(run_kernels(in, pass));
    }
    std::vector<std::vector<std::vector<double>>> seen(4);
    std::vector<std::thread> threads;
    for (auto& results : seen) {
        threads.emplace_back([&in, &results, passes] {
            for (int pass = 0; pass < passes; ++pass) {
                results.push_back(run_kernels(in, pass));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (auto const& results : seen) {
        EXPECT_EQ(results, expected);
    }
}
