#include <calc-common/spectra.hpp>

#include "narrowband_fixtures.hpp"
#include "spectra/filter_bank_conversion.hpp"
#include "support/allocation_counter.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace {

nbtob_conversion_method const all_methods[] = {nbtob_line_band, nbtob_butterworth,
                                               nbtob_width_overlap};

boost::shared_ptr<spectrum_t> filtered(boost::shared_ptr<spectrum_t> input,
                                       nbtob_conversion_method method) {
    boost::shared_ptr<spectrum_t> output = spectrum_t::create_tob();
    VARNO::TrrApi::NbToTob(input, output, method);
    return output;
}

} // namespace

TEST(NbToTob, WhiteNoiseFillsEachBandByItsWidth) {
    // L dB per line: a band reads L + 10*log10(width/df), however faint the lines (0 dB lines
    // sum to an audible band). At 4 Hz the 50 to 160 Hz bands span fewer than ten lines and take
    // their share of the octave around them.
    for (double level : {0.0, 40.0}) {
        for (double df : {1.0, 4.0}) {
            for (nbtob_conversion_method method : all_methods) {
                auto const output = filtered(narrowband(df, 20000.0, df, level), method);
                for (std::size_t band = 0; band < 24; ++band) {
                    EXPECT_NEAR(output->at(band), level + 10.0 * std::log10(band_width(band) / df),
                                0.5)
                        << "level " << level << " df " << df << " method " << method << " band "
                        << band;
                }
            }
        }
    }
}

TEST(NbToTob, ToneAtABandCentreLandsInThatBand) {
    for (nbtob_conversion_method method : all_methods) {
        for (std::size_t band : {6u, 13u, 20u}) {
            double const centre = tob_frequency_range_ptr->frequencies[band];
            auto output = filtered(single_line(centre, 60.0, 10.0), method);
            // An octave Butterworth filter, in place of the unresolved 200 Hz band, passes the
            // tone 0.4 dB down; the skirts of the others pass about 18.6 dB less into the
            // neighbours. The unresolved 160 Hz band takes its width's share of the octave
            // filter's skirt at 200 Hz, 46.4 dB.
            EXPECT_NEAR(output->at(band), 60.0, 0.5) << method << " " << band;
            EXPECT_LT(output->at(band - 1), 47.0) << method << " " << band;
            EXPECT_LT(output->at(band + 1), 42.0) << method << " " << band;
        }
    }

    // At 10 Hz the 50 to 400 Hz bands span fewer than ten lines. A 60 dB line at 60 Hz gives
    // the octave from 44.7 to 89.1 Hz its 60 dB, and its cell from 55 to 65 Hz lies 0.1234 in
    // the 50 Hz band (up to 56.234 Hz) and 0.8766 in the 63 Hz band.
    boost::shared_ptr<spectrum_t> output = filtered(single_line(60.0, 60.0, 10.0), nbtob_line_band);
    EXPECT_NEAR(output->at(0), 60.0 + 10.0 * std::log10(0.12341325190349), 1e-9);
    EXPECT_NEAR(output->at(1), 60.0 + 10.0 * std::log10(0.87658674809651), 1e-9);
    EXPECT_LT(output->at(2), -300.0) << "only the inaudible floor";
}

TEST(NbToTob, LineCountsAboveTwoUseTheFilterBank) {
    // Unknown methods fall to the Butterworth shape.
    EXPECT_EQ(VARNO::detail::filter_bank_shape_of(static_cast<nbtob_conversion_method>(-4)),
              VARNO::detail::filter_bank_butterworth);
    boost::shared_ptr<spectrum_t> input = narrowband(5.0, 12000.0, 5.0, 30.0);
    input->at(200) = 70.0;
    for (nbtob_conversion_method method : all_methods) {
        boost::shared_ptr<spectrum_t> converted = spectrum_t::create_tob();
        ASSERT_EQ(convert_spectrum_to_tob(input, converted, method, 3), 0);
        EXPECT_EQ(converted->values, filtered(input, method)->values) << method;
    }
}

TEST(NbToTob, CoarserBandsHoldTheEnergyOfTheirFinerOnes) {
    boost::shared_ptr<spectrum_t> input = narrowband(1.0, 20000.0, 1.0, 20.0);
    for (std::size_t k = 0; k < input->values.size(); ++k) {
        input->at(k) += 10.0 * std::sin(0.01 * static_cast<double>(k));
    }
    VARNO::detail::filter_bank_conversion conversion(*input->frequency_range, input->values, 1,
                                                     VARNO::detail::filter_bank_proportional);
    std::vector<double> thirds;
    std::vector<double> octaves;
    conversion.band_levels(3, 50.0, 10000.0, thirds);
    conversion.band_levels(1, 63.0, 8000.0, octaves);

    auto energy = [](double level) { return std::pow(10.0, level / 10.0); };
    ASSERT_EQ(octaves.size(), 8u);
    for (std::size_t octave = 0; octave < 8; ++octave) {
        double const sum = energy(thirds[3 * octave]) + energy(thirds[3 * octave + 1]) +
                           energy(thirds[3 * octave + 2]);
        EXPECT_NEAR(10.0 * std::log10(sum), octaves[octave], 1e-9) << octave;
    }
}

// A Butterworth band's level depends on the lines alone: not on the bands asked beside it or
// before it (a twelfth-octave result holds more bands than are summed side by side), nor on a
// line at 0 Hz, which no band-pass filter hears, even when that line's level is not a number.
TEST(NbToTob, ButterworthBandsHearTheirLinesAlone) {
    using VARNO::detail::filter_bank_conversion;
    boost::shared_ptr<spectrum_t> input = narrowband(0.0, 20000.0, 2.0, 30.0);
    std::vector<double> all;
    filter_bank_conversion(*input->frequency_range, input->values, 1,
                           VARNO::detail::filter_bank_butterworth)
        .band_levels(12, 50.0, 10000.0, all);
    input->at(700) = 80.0;
    filter_bank_conversion conversion(*input->frequency_range, input->values, 1,
                                      VARNO::detail::filter_bank_butterworth);
    std::vector<double> one_by_one;
    for (auto const& filter : VARNO::detail::shared_filter_banks().twelfth_octaves.filters) {
        double const nominal = filter.nominal_frequency;
        if (nominal >= 50.0 && nominal <= 10000.0) {
            std::vector<double> one;
            conversion.band_levels(12, nominal, nominal, one);
            one_by_one.insert(one_by_one.end(), one.begin(), one.end());
        }
    }
    conversion.band_levels(12, 50.0, 10000.0, all);
    EXPECT_EQ(all, one_by_one);

    std::vector<double> const with_a_number = filtered(input, nbtob_butterworth)->values;
    input->at(0) = std::nan("");
    EXPECT_EQ(filtered(input, nbtob_butterworth)->values, with_a_number);
}

// The banks are shared and a thread keeps the responses of its last grid: a repeated call
// gives what the first gave, after another grid has come between, and allocates nothing.
TEST(NbToTob, RepeatedCallsMatchTheFirstAndAllocateNothing) {
    boost::shared_ptr<spectrum_t> input = narrowband(1.0, 20000.0, 10.0, 40.0);
    input->at(100) = 75.0;
    boost::shared_ptr<spectrum_t> other = narrowband(1.0, 12000.0, 4.0, 45.0);
    boost::shared_ptr<spectrum_t> output = spectrum_t::create_tob();
    for (nbtob_conversion_method method : all_methods) {
        std::vector<double> const first = filtered(input, method)->values;
        filtered(other, method);
        VARNO::TrrApi::NbToTob(input, output, method);
        EXPECT_EQ(output->values, first) << method;
    }
    test_support::AllocationCounter counter;
    for (nbtob_conversion_method method : all_methods) {
        VARNO::TrrApi::NbToTob(input, output, method);
    }
    EXPECT_EQ(counter.count(), 0u);
}

// Inputs found by fuzzing: a field without columns, and a regular grid whose first line is not
// a number. Neither may reach an undefined conversion or read; the grid of no number is silent.
TEST(NbToTob, DegenerateInputsStaySilent) {
    auto const no_columns = boost::make_shared<noise_field_column_range_t>();
    auto const field = boost::make_shared<noise_field_t>(
        frequency_range_t::create_nb(10.0, 20000.0, 10.0), no_columns);
    auto const field_out = noise_field_t::create_tob(no_columns);
    auto const nowhere = frequency_range_t::create_nb(10.0, 20000.0, 10.0);
    nowhere->f_start = std::nan("");
    auto const input = boost::make_shared<spectrum_t>(nowhere);
    input->fill_with(60.0);
    for (nbtob_conversion_method const method : {nbtob_line_band, nbtob_width_overlap}) {
        VARNO::TrrApi::NbToTob(field, field_out, method);
        EXPECT_TRUE(field_out->values.empty());
        auto const output = filtered(input, method);
        for (double const level : output->values) {
            EXPECT_EQ(level, 0.0);
        }
    }
}
