#include <calc-common/frame.hpp>
#include <calc-common/propagation.hpp>
#include <calc-common/scenario.hpp>

#include "reference_data.hpp"
#include "support/allocation_counter.hpp"
#include "support/error_text.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

namespace ref = propagation_reference;

boost::shared_ptr<frequency_range_t> reference_grid(int kind) {
    if (kind == 0) {
        return tob_frequency_range_ptr;
    }
    if (kind == 1) {
        auto grid = boost::make_shared<frequency_range_t>();
        for (double f : ref::listed_grid) {
            grid->add_frequency(f);
        }
        return grid;
    }
    return frequency_range_t::create_nb(ref::narrowband_start,
                                        ref::narrowband_start +
                                            ref::narrowband_step * (ref::narrowband_count - 1),
                                        ref::narrowband_step);
}

// One call of the ground reflection on the reference grounds and air, with its outputs.
struct ground_call {
    boost::shared_ptr<common_all_sources_transposition_t> options =
        boost::make_shared<common_all_sources_transposition_t>();
    boost::shared_ptr<ambient_conditions_t> ambient = boost::make_shared<ambient_conditions_t>();
    boost::shared_ptr<spectrum_t> effect;
    boost::shared_ptr<spectrum_t> phase;
    double delay = -1.0;

    explicit ground_call(boost::shared_ptr<frequency_range_t> const& grid)
        : effect(boost::make_shared<spectrum_t>(grid))
        , phase(boost::make_shared<spectrum_t>(grid)) {
        ambient->temperature = ref::ground_air_temperature;
        ambient->pressure = ref::ground_air_pressure;
        options->ground_flow_resistivity = ref::ground_delany_bazley_sigma;
        options->ground_layer_thickness = ref::ground_delany_bazley_thickness_mm;
        options->attenborough_porosity_rate = ref::ground_attenborough_porosity_rate;
        options->attenborough_flow_resistivity = ref::ground_attenborough_sigma;
        options->slit_pore_porosity = ref::ground_slit_pore_porosity;
        options->slit_pore_flow_resistivity = ref::ground_slit_pore_sigma;
    }

    void run(int method, double direct, double reflected, double grazing = 10.0,
             double sound_speed = 343.0) {
        options->ground_reflection_method = static_cast<ground_reflection_method_t>(method);
        Calc_GroundReflectionEffect(options, ambient, direct, reflected, sound_speed, grazing,
                                    effect, phase, &delay);
    }
};

void expect_near_reference(double actual, double expected, std::size_t band) {
    EXPECT_NEAR(actual, expected, 1e-9 * (1.0 + std::fabs(expected))) << "band " << band;
}

} // namespace

TEST(GroundReflection, EveryGroundOnEveryKindOfGridFollowsItsFormula) {
    for (auto const& reference : ref::ground_references) {
        ground_call call(reference_grid(reference.grid));
        ASSERT_EQ(call.effect->values.size(), reference.count);
        call.run(reference.method, reference.direct_distance, reference.reflected_distance,
                 reference.grazing_angle, reference.sound_speed);
        SCOPED_TRACE("method " + std::to_string(reference.method) + ", grid " +
                     std::to_string(reference.grid));
        for (std::size_t i = 0; i < reference.count; ++i) {
            expect_near_reference(call.effect->values[i], reference.effect[i], i);
            expect_near_reference(call.phase->values[i], reference.phase[i], i);
        }
        expect_near_reference(call.delay, reference.delay, 0);
    }
}

// Near the source, or with rays of one length, the reflected ray doubles the pressure whatever
// the ground; past that an unknown ground is refused with its value, before anything is written.
TEST(GroundReflection, NearSourceOrEqualPathsDoubleThePressureElseTheGroundIsChecked) {
    ground_call call(tob_frequency_range_ptr);
    call.phase->fill_with(-3.0);
    for (int method : {0, 4, 7, 8, -1}) {
        call.run(method, 0.9, 50.0);
        call.run(method, 200.0, 200.0);
        EXPECT_EQ(call.effect->values, std::vector<double>(24, 6.0)) << method;
    }
    EXPECT_EQ(call.phase->values[5], -3.0);
    EXPECT_EQ(call.delay, -1.0);

    call.effect->fill_with(42.0);
    EXPECT_EQ(test_support::error_text([&] { call.run(8, 1.0, 3.0); }), "Invalid ground type: 8.");
    EXPECT_EQ(call.effect->values[0], 42.0);
    EXPECT_EQ(test_support::error_text([&] { call.run(-3, 10.0, 30.0); }),
              "Invalid ground type: -3.");
}

// The named grounds are met through the reference grounds; a user-defined or unknown one has no
// resistivity of its own, and no resistivity means no layer. A user's layer of no thickness
// makes a ground whose reflection is not a number.
TEST(GroundReflection, DelanyBazleyLayers) {
    EXPECT_EQ(Calc_DelanyBazleySigma(ground_delany_bazley_user_defined), 0.0);
    EXPECT_EQ(Calc_DelanyBazleySigma(static_cast<ground_reflection_method_t>(99)), 0.0);
    EXPECT_EQ(Calc_DelanyBazleyThickness(0.0), 0.0);

    ground_call call(tob_frequency_range_ptr);
    call.options->ground_layer_thickness = 0.0;
    call.run(ground_delany_bazley_user_defined, 100.0, 101.0);
    for (double level : call.effect->values) {
        EXPECT_TRUE(std::isnan(level));
    }
}

TEST(GroundReflection, WorkingStorageIsReusedOnOneGridAndRebuiltOnAnother) {
    auto const narrowband = reference_grid(2);
    ground_call first(narrowband), again(narrowband), listed(reference_grid(1)), back(narrowband);
    first.run(7, 150.0, 152.0);
    test_support::AllocationCounter counter;
    again.run(7, 150.0, 152.0);
    EXPECT_EQ(counter.count(), 0u) << "a second call on the same grid allocates nothing";
    EXPECT_EQ(again.effect->values, first.effect->values);

    // Another grid in between, then back: the call gives what a first call would give.
    listed.run(7, 150.0, 152.0);
    back.run(7, 150.0, 152.0);
    EXPECT_EQ(back.effect->values, first.effect->values);
    EXPECT_EQ(back.phase->values, first.phase->values);
}
