// Ground reflection on every ground type, with arbitrary ground and air values, distances,
// angles and grids. The routine keeps working storage between calls and rebuilds it when the
// grid changes, so a result must not depend on the grid of the call before: each input is
// computed, then computed again after a call on another grid, and the two must agree.

#include "fuzz_input.hpp"

#include <calc-common/frame.hpp>
#include <calc-common/propagation.hpp>
#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>

using fuzzing::fuzz_input;

namespace {

constexpr std::size_t max_bands = 48;

boost::shared_ptr<frequency_range_t> grid_from(fuzz_input& in) {
    std::uint8_t const kind = in.byte() % 4;
    if (kind == 0)
        return tob_frequency_range_ptr;
    auto range = boost::make_shared<frequency_range_t>();
    std::size_t const count = 1 + in.count(max_bands - 1);
    if (kind == 1) {
        range->frequencies = in.numbers(count);
    } else {
        range->f_start = in.number();
        range->df = in.number();
        // A step that is not above zero turns the grid into an empty list: every band past its end.
        if (!fuzzing::computes_frequencies(range->df))
            range->df = 1.0;
        range->f_end = range->f_start + (count - 1.0) * range->df;
    }
    range->count = count;
    return range;
}

struct reflection_call {
    boost::shared_ptr<common_all_sources_transposition_t> options =
        boost::make_shared<common_all_sources_transposition_t>();
    boost::shared_ptr<ambient_conditions_t> ambient = boost::make_shared<ambient_conditions_t>();
    double direct_distance = 0.0;
    double reflected_distance = 0.0;
    double sound_speed = 0.0;
    double grazing_angle = 0.0;
};

reflection_call call_from(fuzz_input& in) {
    reflection_call call;
    // Eight ground types and two values past them, which are refused.
    call.options->ground_reflection_method =
        static_cast<ground_reflection_method_t>(static_cast<int>(in.count(9)) - 1);
    call.options->ground_flow_resistivity = in.number();
    call.options->ground_layer_thickness = in.number();
    call.options->attenborough_porosity_rate = in.number();
    call.options->attenborough_flow_resistivity = in.number();
    call.options->slit_pore_porosity = in.number();
    call.options->slit_pore_flow_resistivity = in.number();
    call.ambient->temperature = in.number();
    call.ambient->pressure = in.number();
    call.ambient->relative_humidity = in.number();
    call.direct_distance = in.number();
    call.reflected_distance = in.number();
    call.sound_speed = in.number();
    call.grazing_angle = in.number();
    return call;
}

struct reflection_result {
    std::vector<double> effect;
    std::vector<double> phase;
    double delay = -1.0;
};

// Starts both spectra and the delay from known values, since the early exit and the refusal
// of an unknown ground leave some of them as they were.
reflection_result run(reflection_call const& call, boost::shared_ptr<frequency_range_t> grid) {
    auto effect = boost::make_shared<spectrum_t>(grid);
    auto phase = boost::make_shared<spectrum_t>(grid);
    std::fill(effect->values.begin(), effect->values.end(), -1.0);
    std::fill(phase->values.begin(), phase->values.end(), -2.0);
    reflection_result result;
    try {
        Calc_GroundReflectionEffect(call.options, call.ambient, call.direct_distance,
                                    call.reflected_distance, call.sound_speed, call.grazing_angle,
                                    effect, phase, &result.delay);
    } catch (varno_calc_error const&) {
        // An unknown ground type is refused.
    }
    result.effect = effect->values;
    result.phase = phase->values;
    return result;
}

void expect_same(char const* what, std::vector<double> const& got,
                 std::vector<double> const& expected) {
    for (std::size_t i = 0; i < got.size(); ++i)
        if (!fuzzing::same_result(got[i], expected[i]))
            fuzzing::mismatch(what, i, got[i], expected[i]);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz_input in(data, size);
    auto const grid = grid_from(in);
    auto const other_grid = grid_from(in);
    reflection_call const call = call_from(in);
    reflection_call const other_call = call_from(in);

    reflection_result const first = run(call, grid);
    run(other_call, other_grid);
    reflection_result const again = run(call, grid);

    expect_same("effect after a call on another grid", again.effect, first.effect);
    expect_same("phase after a call on another grid", again.phase, first.phase);
    if (!fuzzing::same_result(again.delay, first.delay))
        fuzzing::mismatch("delay after a call on another grid", 0, again.delay, first.delay);
    return 0;
}
