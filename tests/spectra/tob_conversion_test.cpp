#include <calc-common/spectra.hpp>

#include "narrowband_fixtures.hpp"
#include "spectra/tob_conversion.hpp"
#include "support/allocation_counter.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>

TEST(TobConversion, RefusesWrongGridsAndUnknownMethods) {
    boost::shared_ptr<spectrum_t> input = narrowband(0.0, 1000.0, 10.0, 40.0);
    boost::shared_ptr<spectrum_t> on_copy = tob_filled_with(7.0);
    on_copy->give_frequency_range_ownership();
    EXPECT_EQ(convert_spectrum_to_tob(input, on_copy, nbtob_line_band, 0), 1);
    EXPECT_EQ(on_copy->values, std::vector<double>(24, 7.0)) << "untouched";

    boost::shared_ptr<spectrum_t> output = tob_filled_with(7.0);
    EXPECT_EQ(convert_spectrum_to_tob(spectrum_t::create_tob(), output, nbtob_line_band, 0), 1);

    EXPECT_EQ(convert_spectrum_to_tob(input, output, static_cast<nbtob_conversion_method>(5), 0),
              1);
    EXPECT_EQ(output->values, std::vector<double>(24, 0.0)) << "zeroed";
    // The method is met at the first level summed: with no line it is never refused.
    EXPECT_EQ(convert_spectrum_to_tob(narrowband(0.0, -0.5, 1.0, 0.0), output,
                                      static_cast<nbtob_conversion_method>(5), 0),
              0);

    // A list of lines ignores the method altogether.
    EXPECT_EQ(convert_spectrum_to_tob(listed_lines({1000.0}, {60.0}), output,
                                      static_cast<nbtob_conversion_method>(5), 9),
              0);
    EXPECT_NEAR(output->at(13), 60.0, 1e-12);

    boost::shared_ptr<noise_field_t> field = noise_field_t::create_tob(columns_at({0.0, 90.0}));
    EXPECT_EQ(convert_noise_field_to_tob(field, field->clone(), nbtob_line_band, 0), 1);
}

TEST(TobConversion, WholeLinesGoToTheBandThatHoldsThem) {
    // Lines 40, 50, ..., 120 Hz at 10 dB (an energy of 10 each). 40 Hz is below the first band
    // and adds nothing; 60 and 70 share the 63 Hz band, 90 to 110 the 100 Hz band.
    boost::shared_ptr<spectrum_t> input = narrowband(40.0, 120.0, 10.0, 10.0);
    boost::shared_ptr<spectrum_t> output = spectrum_t::create_tob();
    ASSERT_EQ(convert_spectrum_to_tob(input, output, nbtob_line_band, 0), 0);
    double const expected[] = {10.0, 10.0 * std::log10(20.0), 10.0, 10.0 * std::log10(30.0), 10.0};
    for (std::size_t band = 0; band < 5; ++band) {
        EXPECT_NEAR(output->at(band), expected[band], 1e-12) << band;
    }
    EXPECT_EQ(std::vector<double>(output->values.begin() + 5, output->values.end()),
              std::vector<double>(19, 0.0));

    // A line exactly on the 63/80 Hz edge belongs to the band above it.
    boost::shared_ptr<spectrum_t> on_edge = narrowband(tob_fl[18], tob_fl[18] + 20.0, 10.0, 20.0);
    ASSERT_EQ(convert_spectrum_to_tob(on_edge, output, nbtob_line_band, 7), 0);
    EXPECT_EQ(output->at(1), 0.0);
    EXPECT_NEAR(output->at(2), 20.0 + 10.0 * std::log10(2.0), 1e-12);
    EXPECT_NEAR(output->at(3), 20.0, 1e-12);

    // No cut on this path: an energy of 0.5 (900 and 910 Hz; 890 Hz is below the first band
    // the grid reaches) reads -3 dB.
    boost::shared_ptr<spectrum_t> faint = narrowband(890.0, 910.0, 10.0, 10.0 * std::log10(0.25));
    ASSERT_EQ(convert_spectrum_to_tob(faint, output, nbtob_line_band, 0), 0);
    EXPECT_NEAR(output->at(13), 10.0 * std::log10(0.5), 1e-12);
}

TEST(TobConversion, LineWidthsAreSharedByTheirOverlapWithBands) {
    // Lines 30 to 130 Hz, 10 Hz apart at 10 dB: each line covers 5 Hz either side, so bands
    // take the exact width of white noise, 10*log10(width/df) + 10, until the grid ends.
    boost::shared_ptr<spectrum_t> input = narrowband(30.0, 130.0, 10.0, 10.0);
    boost::shared_ptr<spectrum_t> output = spectrum_t::create_tob();
    ASSERT_EQ(convert_spectrum_to_tob(input, output, nbtob_width_overlap, 0), 0);
    for (std::size_t band = 0; band < 4; ++band) {
        EXPECT_NEAR(output->at(band), 10.0 + 10.0 * std::log10(band_width(band) / 10.0), 1e-12);
    }
    // The 125 Hz band ends past the grid: it holds 120 and 130 Hz whole and 0.28 of 110 Hz.
    EXPECT_NEAR(output->at(4), 13.57899693816784, 1e-12);
    EXPECT_EQ(output->at(5), 0.0);

    // Bands must span more than line_count + 1 lines: at 10 Hz and a count of 1, the 50 to
    // 80 Hz bands (11.6, 14.6 and 18.3 Hz wide) are too narrow and stay silent.
    ASSERT_EQ(convert_spectrum_to_tob(input, output, nbtob_width_overlap, 1), 0);
    EXPECT_EQ(output->at(0), 0.0);
    EXPECT_EQ(output->at(2), 0.0);
    EXPECT_NEAR(output->at(3), 13.63174675619877, 1e-12);

    // A band is filled only when the grid reaches half a line (5 Hz) below its lower edge: a
    // grid from 35 Hz fills the 50 Hz band (from 44.7 Hz), one from 40 Hz does not.
    for (double const f_start : {35.0, 40.0}) {
        input = narrowband(f_start, 130.0, 10.0, 10.0);
        ASSERT_EQ(convert_spectrum_to_tob(input, output, nbtob_width_overlap, 0), 0);
        EXPECT_EQ(output->at(0) != 0.0, f_start == 35.0) << f_start;
    }
}

TEST(TobConversion, FilteredLinesReachEveryBandThroughTheCurve) {
    // One 60 dB line at 1 kHz: its own band passes it whole, and the 800 Hz and 1.25 kHz bands
    // take it 18.575 dB down, 10*log10(1 + (Q*(0.8 - 1.25))^6).
    boost::shared_ptr<spectrum_t> input = single_line(1000.0, 60.0, 10.0, 2000.0);
    boost::shared_ptr<spectrum_t> output = spectrum_t::create_tob();
    ASSERT_EQ(convert_spectrum_to_tob(input, output, nbtob_butterworth, 0), 0);
    EXPECT_NEAR(output->at(13), 60.0, 1e-9);
    EXPECT_NEAR(output->at(12), 41.42500138395033, 1e-9);
    EXPECT_NEAR(output->at(14), 41.42500138395033, 1e-9);
    // The grid ends at 2 kHz: bands above the 2 kHz band are not filled.
    auto through_curve = [](double centre) {
        return 60.0 - 10.0 * std::log10(1.0 + std::pow(4.522294399688317 *
                                                           (1000.0 / centre - centre / 1000.0),
                                                       6));
    };
    EXPECT_NEAR(output->at(16), through_curve(2000.0), 1e-9);
    EXPECT_EQ(output->at(17), 0.0);

    // Too narrow for the resolution at a line count of 1 (more than 20 Hz needed): 80 Hz is
    // silent, 100 Hz takes the line through the curve.
    ASSERT_EQ(convert_spectrum_to_tob(input, output, nbtob_butterworth, 1), 0);
    EXPECT_EQ(output->at(2), 0.0);
    EXPECT_NEAR(output->at(3), through_curve(100.0), 1e-9);
}

TEST(TobConversion, DiscreteLinesAreSharedAcrossBandEdges) {
    // Lines at 60 dB: 1 kHz lies inside its band; 900 Hz is in the overlap of the 1 kHz band's
    // lower edge (891.25 Hz * 1.04) and 1100 Hz in that of its upper edge (1122 Hz / 1.04);
    // 45 Hz shares 0.415 with a band below the grid, which is lost. Lines below 1 Hz, at a
    // frequency that is not a finite number and of bands off the grid are dropped, and a silent
    // line alone leaves its band silent.
    boost::shared_ptr<spectrum_t> input = listed_lines(
        {1000.0, 900.0, 1100.0, 45.0, 0.5, 12000.0, 2000.0, std::nan(""), HUGE_VAL, -HUGE_VAL},
        {60.0, 60.0, 60.0, 60.0, 90.0, 90.0, 0.0, 90.0, 90.0, 90.0});
    boost::shared_ptr<spectrum_t> output = spectrum_t::create_tob();
    ASSERT_EQ(convert_spectrum_to_tob(input, output, nbtob_line_band, 3), 0);
    EXPECT_NEAR(output->at(0), 57.67023862295765, 1e-12);
    EXPECT_NEAR(output->at(12), 55.85111212059501, 1e-12);
    EXPECT_NEAR(output->at(13), 63.757043971866736, 1e-12);
    EXPECT_NEAR(output->at(14), 53.80368069120956, 1e-12);
    EXPECT_EQ(output->at(1) + output->at(11) + output->at(15) + output->at(16) + output->at(23),
              0.0);

    // The one cut is on the band total: a band energy of 0.5 is silence, but two 0.9 dB lines
    // (1000 and 1010 Hz) add up to 10*log10(2 * 10^0.09) = 3.9103 dB.
    auto faint = listed_lines({1000.0, 1010.0}, {10.0 * std::log10(0.25), 10.0 * std::log10(0.25)});
    ASSERT_EQ(convert_spectrum_to_tob(faint, output, nbtob_line_band, 0), 0);
    EXPECT_EQ(output->at(13), 0.0);
    faint->values = {0.9, 0.9};
    ASSERT_EQ(convert_spectrum_to_tob(faint, output, nbtob_line_band, 0), 0);
    EXPECT_NEAR(output->at(13), 0.9 + 10.0 * std::log10(2.0), 1e-12);
}

TEST(TobConversion, FieldColumnsConvertAsSeparateSpectra) {
    auto const listed = frequency_range_t::create_dt(40);
    for (std::size_t k = 0; k < 40; ++k) {
        listed->frequencies[k] = 40.0 * std::pow(1.15, static_cast<double>(k));
    }
    auto const columns = columns_at({0.0, 45.0, 90.0});
    for (auto const& range : {frequency_range_t::create_nb(20.0, 12000.0, 5.0), listed}) {
        auto const field = boost::make_shared<noise_field_t>(range, columns);
        for (std::size_t i = 0; i < field->values.size(); ++i) {
            field->values[i] = 20.0 + 15.0 * std::sin(0.37 * static_cast<double>(i));
        }
        for (int method = 0; method < 3; ++method) {
            for (int line_count : {0, 3}) {
                auto const how = static_cast<nbtob_conversion_method>(method);
                auto const bands = noise_field_t::create_tob(columns);
                ASSERT_EQ(convert_noise_field_to_tob(field, bands, how, line_count), 0);
                for (std::size_t column = 0; column < 3; ++column) {
                    auto const one = boost::make_shared<spectrum_t>(range);
                    for (std::size_t k = 0; k < range->count; ++k) {
                        one->at(k) = field->at(k, column);
                    }
                    auto const expected = spectrum_t::create_tob();
                    ASSERT_EQ(convert_spectrum_to_tob(one, expected, how, line_count), 0);
                    for (std::size_t band = 0; band < 24; ++band) {
                        EXPECT_NEAR(bands->at(band, column), expected->at(band), 1e-9)
                            << "method " << method << " count " << line_count << " column "
                            << column << " band " << band;
                    }
                }
            }
        }
    }
}

// The weights a thread keeps for one grid must give what a first call on the grid gives, after
// another grid has come between, and cost no allocation once built.
TEST(TobConversion, KeptGridWeightsMatchFirstCallsAndAllocateNothing) {
    boost::shared_ptr<spectrum_t> input = narrowband(1.0, 20000.0, 5.0, 40.0);
    input->at(200) = 70.0;
    boost::shared_ptr<spectrum_t> other = narrowband(2.0, 8000.0, 3.0, 50.0);
    boost::shared_ptr<spectrum_t> lines = listed_lines({100.0, 1000.0, 5000.0}, {50.0, 60.0, 70.0});
    boost::shared_ptr<spectrum_t> output = spectrum_t::create_tob();
    for (int method = 0; method < 3; ++method) {
        auto const how = static_cast<nbtob_conversion_method>(method);
        boost::shared_ptr<spectrum_t> first = spectrum_t::create_tob();
        convert_spectrum_to_tob(input, first, how, 0);
        convert_spectrum_to_tob(other, output, how, 0);
        convert_spectrum_to_tob(input, output, how, 0);
        EXPECT_EQ(output->values, first->values) << "method " << method;
    }
    test_support::AllocationCounter counter;
    for (int method = 0; method < 3; ++method) {
        convert_spectrum_to_tob(input, output, static_cast<nbtob_conversion_method>(method), 0);
    }
    convert_spectrum_to_tob(lines, output, nbtob_line_band, 0);
    EXPECT_EQ(counter.count(), 0u);
}

// A line at 1001 Hz loud enough that its energy overflows spoils every band of the span, as
// its product with a zero share does, and a spoilt band reads as one that no energy reaches.
TEST(TobConversion, OverflowingLineSilencesEveryBandOfTheSpan) {
    boost::shared_ptr<spectrum_t> input = narrowband(1.0, 20000.0, 5.0, 40.0);
    input->at(200) = 4000.0;
    boost::shared_ptr<spectrum_t> output = spectrum_t::create_tob();
    convert_spectrum_to_tob(input, output, nbtob_width_overlap, 0);
    EXPECT_EQ(output->values, std::vector<double>(24, 0.0));
}
