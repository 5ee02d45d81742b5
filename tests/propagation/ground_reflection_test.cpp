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

boost::shared_ptr<ambient_conditions_t> reference_air() {
    auto ambient = boost::make_shared<ambient_conditions_t>();
    ambient->temperature = ref::ground_air_temperature;
    ambient->pressure = ref::ground_air_pressure;
    return ambient;
}

boost::shared_ptr<common_all_sources_transposition_t> reference_ground(int method) {
    auto options = boost::make_shared<common_all_sources_transposition_t>();
    options->ground_reflection_method = static_cast<ground_reflection_method_t>(method);
    options->ground_flow_resistivity = ref::ground_delany_bazley_sigma;
    options->ground_layer_thickness = ref::ground_delany_bazley_thickness_mm;
    options->attenborough_porosity_rate = ref::ground_attenborough_porosity_rate;
    options->attenborough_flow_resistivity = ref::ground_attenborough_sigma;
    options->slit_pore_porosity = ref::ground_slit_pore_porosity;
    options->slit_pore_flow_resistivity = ref::ground_slit_pore_sigma;
    return options;
}

boost::shared_ptr<frequency_range_t> listed_grid() {
    auto grid = boost::make_shared<frequency_range_t>();
    for (double f : ref::listed_grid) {
        grid->add_frequency(f);
    }
    return grid;
}

boost::shared_ptr<frequency_range_t> reference_grid(int kind) {
    switch (kind) {
    case 0:
        return tob_frequency_range_ptr;
    case 1:
        return listed_grid();
    default:
        return frequency_range_t::create_nb(ref::narrowband_start,
                                            ref::narrowband_start +
                                                ref::narrowband_step * (ref::narrowband_count - 1),
                                            ref::narrowband_step);
    }
}

struct ground_call {
    boost::shared_ptr<spectrum_t> effect;
    boost::shared_ptr<spectrum_t> phase;
    double delay = -1.0;

    explicit ground_call(boost::shared_ptr<frequency_range_t> const& grid)
        : effect(boost::make_shared<spectrum_t>(grid))
        , phase(boost::make_shared<spectrum_t>(grid)) {}

    void run(int method, double direct, double reflected, double grazing = 10.0,
             double sound_speed = 343.0) {
        Calc_GroundReflectionEffect(reference_ground(method), reference_air(), direct, reflected,
                                    sound_speed, grazing, effect, phase, &delay);
    }
};

void expect_near_reference(double actual, double expected, std::string const& where) {
    EXPECT_NEAR(actual, expected, 1e-9 * (1.0 + std::fabs(expected))) << where;
}

} // namespace

TEST(GroundReflection, EveryGroundOnEveryKindOfGridFollowsItsFormula) {
    for (auto const& reference : ref::ground_references) {
        ground_call call(reference_grid(reference.grid));
        ASSERT_EQ(call.effect->values.size(), reference.count);
        call.run(reference.method, reference.direct_distance, reference.reflected_distance,
                 reference.grazing_angle, reference.sound_speed);
        for (std::size_t i = 0; i < reference.count; ++i) {
            std::string const where = "method " + std::to_string(reference.method) + ", grid " +
                                      std::to_string(reference.grid) + ", band " +
                                      std::to_string(i);
            expect_near_reference(call.effect->values[i], reference.effect[i], where);
            expect_near_reference(call.phase->values[i], reference.phase[i], where);
        }
        expect_near_reference(call.delay, reference.delay, "delay");
    }
}

TEST(GroundReflection, NearSourceOrEqualPathsDoubleThePressure) {
    ground_call call(tob_frequency_range_ptr);
    call.phase->fill_with(-3.0);
    for (int method : {0, 4, 7, 8, -1}) {
        call.run(method, 0.9, 50.0);
        call.run(method, 200.0, 200.0);
        for (double level : call.effect->values) {
            EXPECT_EQ(level, 6.0) << method;
        }
    }
    EXPECT_EQ(call.phase->values[5], -3.0);
    EXPECT_EQ(call.delay, -1.0);
}

TEST(GroundReflection, LayerOfZeroThicknessGivesNotANumber) {
    ground_call call(tob_frequency_range_ptr);
    auto options = reference_ground(5);
    options->ground_layer_thickness = 0.0;
    Calc_GroundReflectionEffect(options, reference_air(), 100.0, 101.0, 343.0, 10.0, call.effect,
                                call.phase, &call.delay);
    for (double level : call.effect->values) {
        EXPECT_TRUE(std::isnan(level));
    }
}

TEST(GroundReflection, InvalidGroundIsReportedWithItsValue) {
    ground_call call(tob_frequency_range_ptr);
    call.effect->fill_with(42.0);
    EXPECT_EQ(test_support::error_text([&] { call.run(8, 1.0, 3.0); }), "Invalid ground type: 8.");
    EXPECT_EQ(call.effect->values[0], 42.0);
    EXPECT_EQ(test_support::error_text([&] { call.run(-3, 10.0, 30.0); }),
              "Invalid ground type: -3.");
}

TEST(GroundReflection, DelanyBazleyGroundParameters) {
    EXPECT_EQ(Calc_DelanyBazleySigma(ground_delany_bazley_certification), 60.0);
    EXPECT_EQ(Calc_DelanyBazleySigma(ground_delany_bazley_grass), 200.0);
    EXPECT_EQ(Calc_DelanyBazleySigma(ground_delany_bazley_asphalt), 20000.0);
    EXPECT_EQ(Calc_DelanyBazleySigma(ground_delany_bazley_user_defined), 0.0);
    EXPECT_EQ(Calc_DelanyBazleySigma(static_cast<ground_reflection_method_t>(99)), 0.0);
    EXPECT_EQ(Calc_DelanyBazleyThickness(0.0), 0.0);
    EXPECT_DOUBLE_EQ(Calc_DelanyBazleyThickness(45104.0), 0.001);
    // 10^(log10(60/45104)/-1.7584) mm: softer grounds have deeper layers.
    EXPECT_NEAR(Calc_DelanyBazleyThickness(60.0), 0.04321296696450872, 1e-15);
}

TEST(GroundReflection, WorkingStorageIsReusedOnOneGridAndRebuiltOnAnother) {
    auto const narrowband = reference_grid(2);
    ground_call first(narrowband), again(narrowband), listed(listed_grid()), back(narrowband);
    first.run(7, 150.0, 152.0);

    // A second call on the same grid allocates nothing.
    auto const options = reference_ground(7);
    auto const ambient = reference_air();
    {
        test_support::AllocationCounter counter;
        Calc_GroundReflectionEffect(options, ambient, 150.0, 152.0, 343.0, 10.0, again.effect,
                                    again.phase, &again.delay);
        EXPECT_EQ(counter.count(), 0u);
    }
    EXPECT_EQ(again.effect->values, first.effect->values);

    // Another grid in between, then back: the call gives what a first call would give.
    listed.run(7, 150.0, 152.0);
    back.run(7, 150.0, 152.0);
    EXPECT_EQ(back.effect->values, first.effect->values);
    EXPECT_EQ(back.phase->values, first.phase->values);
}
