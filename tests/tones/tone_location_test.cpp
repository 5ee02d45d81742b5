#include <calc-common/tones.hpp>

#include "tone_test_support.hpp"
#include "tones/tone_location.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

using namespace tone_test;
using VARNO::detail::Calc_HarmonicBands;

namespace {

#include "tone_reference.inc"

struct located {
    std::vector<double> broadband;
    std::vector<double> tones;
};

located slope_located(std::vector<double> const& levels) {
    boost::shared_ptr<spectrum_t> spectrum = spectrum_t::create_tob();
    spectrum->values = levels;
    boost::shared_ptr<spectrum_t> broadband = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> tones = spectrum_t::create_tob();
    Calc_TonesLocSlope(spectrum, broadband, tones);
    located array_form{std::vector<double>(24), std::vector<double>(24)};
    VARNO::detail::Calc_TonesLocSlopeArray(levels, array_form.broadband.data(),
                                           array_form.tones.data());
    EXPECT_EQ(array_form.broadband, broadband->values);
    EXPECT_EQ(array_form.tones, tones->values);
    return {broadband->values, tones->values};
}

located frequency_located(std::vector<double> const& levels, double step, double margin) {
    boost::shared_ptr<spectrum_t> spectrum = spectrum_t::create_tob();
    spectrum->values = levels;
    boost::shared_ptr<spectrum_t> broadband = tob_filled_with(-1.0);
    boost::shared_ptr<spectrum_t> tones = tob_filled_with(-1.0);
    Calc_TonesLocFreq(spectrum, step, margin, broadband, tones);
    return {broadband->values, tones->values};
}

located frequency_located_array(std::vector<double> const& levels, double step, double margin) {
    located result{std::vector<double>(24, -1.0), std::vector<double>(24, -1.0)};
    VARNO::detail::Calc_TonesLocFreqArray(levels, result.broadband.data(), result.tones.data(),
                                          &step, &margin);
    return result;
}

std::vector<double> filled(std::vector<double> levels) {
    boost::shared_ptr<spectrum_t> spectrum = spectrum_t::create_tob();
    spectrum->values = levels;
    Calc_InterpSpec(spectrum, 0.0);
    VARNO::detail::Calc_InterpSpecArray(levels);
    EXPECT_EQ(levels, spectrum->values) << "array form differs";
    return spectrum->values;
}

std::vector<int> harmonic_bands(double fundamental) {
    std::vector<int> bands{99};
    Calc_HarmonicBands(fundamental, bands);
    return bands;
}

} // namespace

TEST(SlopeLocator, ABandAboveTheMeanOfItsNeighboursIsATone) {
    located const flat = slope_located(std::vector<double>(24, 50.0));
    EXPECT_EQ(flat.tones, std::vector<double>(24, 0.0));
    EXPECT_EQ(flat.broadband, std::vector<double>(24, 50.0));

    EXPECT_EQ(slope_located(flat_with_peak(50.0, 7, 50.0 + 1e-10)).tones[7], 0.0);
    located const peak = slope_located(flat_with_peak(50.0, 7, 50.0 + 1e-8));
    EXPECT_EQ(peak.tones[7], 50.0 + 1e-8);
    EXPECT_EQ(peak.broadband[7], 0.0);

    // The last band must rise a full decibel; band 0 is never a tone.
    EXPECT_EQ(slope_located(flat_with_peak(50.0, 23, 50.99)).tones[23], 0.0);
    EXPECT_EQ(slope_located(flat_with_peak(50.0, 23, 51.0)).tones[23], 51.0);
    located const high_first = slope_located(flat_with_peak(50.0, 0, 90.0));
    EXPECT_EQ(high_first.tones[0], 0.0);
    EXPECT_EQ(high_first.broadband[0], 90.0);
}

TEST(FrequencyLocator, BridgesFlaggedBandsAndRebuildsTheBaseline) {
    // Shaped floor with four tones; expected split from the independent reference.
    std::vector<double> const shaped(shaped_levels, shaped_levels + 24);
    located const shaped_split = frequency_located(shaped, 2.0, 3.0);
    expect_levels_near(shaped_split.broadband, frequency_locator_broadband, 0.0, "broadband");
    expect_levels_near(shaped_split.tones, frequency_locator_tones, 0.0, "tones");
    EXPECT_EQ(frequency_located_array(shaped, 2.0, 3.0).tones, shaped_split.tones);

    // By hand: a 3 dB peak on a 50 dB floor is bridged to 50 dB, so it stands exactly
    // tone_margin above the baseline and is a tone; at 2.9 dB it is not.
    EXPECT_EQ(frequency_located(flat_with_peak(50.0, 10, 53.0), 2.0, 3.0).tones[10], 53.0);
    EXPECT_EQ(frequency_located(flat_with_peak(50.0, 10, 52.9), 2.0, 3.0).tones[10], 0.0);

    // A flagged last band carries the slope of the band below (baseline 63 dB, height 10 dB);
    // left unbridged it would stand only 3.33 dB above the baseline.
    std::vector<double> rising(24);
    for (std::size_t i = 0; i < 24; ++i) {
        rising[i] = 40.0 + static_cast<double>(i);
    }
    rising[23] = 73.0;
    located const rising_split = frequency_located(rising, 2.0, 4.0);
    EXPECT_EQ(rising_split.tones[23], 73.0);
    EXPECT_EQ(rising_split.tones[22], 0.0);

    // The jump into band first + 1 is never flagged: band 3 is not bridged to the 60 dB mean of
    // its neighbours, its baseline is 61.67 dB (slopes 15, 15, 5 averaged) and at 3.33 dB above
    // it the band is no tone for a 4 dB margin. Bridged, it would stand 5 dB above.
    std::vector<double> from_silence(24, 0.0);
    from_silence[2] = 50.0;
    from_silence[3] = 65.0;
    for (std::size_t i = 4; i < 24; ++i) {
        from_silence[i] = 70.0 + 5.0 * static_cast<double>(i - 4);
    }
    EXPECT_EQ(frequency_located(from_silence, 2.0, 4.0).tones, std::vector<double>(24, 0.0));
    EXPECT_EQ(frequency_located(from_silence, 2.0, 3.0).tones[3], 65.0);
}

TEST(FrequencyLocator, SilentSpectrumDiffersBetweenTheTwoForms) {
    std::vector<double> silent(24, 0.0005);
    silent[3] = 0.001;
    // The spectrum form runs on with a baseline of band 0 alone: every level is broadband as
    // long as the margin exceeds it, and with a negative margin every band is a tone.
    EXPECT_EQ(frequency_located(silent, 2.0, 0.01).broadband, silent);
    EXPECT_EQ(frequency_located(silent, 2.0, -1.0).tones, silent);
    // The array form returns at once whatever the margin.
    located const array_form = frequency_located_array(silent, 2.0, -1.0);
    EXPECT_EQ(array_form.broadband, silent);
    EXPECT_EQ(array_form.tones, std::vector<double>(24, 0.0));
}

TEST(GapFilling, InterpolatesInnerGapsAndExtendsTheEnds) {
    std::vector<double> inner(24, 50.0);
    inner[0] = 40.0;
    inner[1] = inner[2] = inner[3] = 0.0;
    inner[4] = 48.0;
    std::vector<double> const inner_filled = filled(inner);
    EXPECT_DOUBLE_EQ(inner_filled[1], 42.0);
    EXPECT_DOUBLE_EQ(inner_filled[2], 44.0);
    EXPECT_DOUBLE_EQ(inner_filled[3], 46.0);

    // Two adjacent values: their line runs to both ends, below zero if it must.
    std::vector<double> pair(24, 0.0);
    pair[10] = 50.0;
    pair[11] = 52.0;
    std::vector<double> const pair_filled = filled(pair);
    for (std::size_t i = 0; i < 24; ++i) {
        EXPECT_DOUBLE_EQ(pair_filled[i], 50.0 + 2.0 * (static_cast<double>(i) - 10.0)) << i;
    }
    std::vector<double> falling(24, 0.0);
    falling[1] = 30.0;
    falling[2] = 10.0;
    EXPECT_DOUBLE_EQ(filled(falling)[23], 10.0 - 20.0 * 21.0);

    // With no line to extend nothing changes.
    std::vector<double> const gaps_only(24, 0.0);
    EXPECT_EQ(filled(gaps_only), gaps_only);
    EXPECT_EQ(filled(flat_with_peak(0.0, 23, 60.0)), flat_with_peak(0.0, 23, 60.0));
    EXPECT_EQ(filled(flat_with_peak(0.0, 0, 60.0)), flat_with_peak(0.0, 0, 60.0));
    EXPECT_EQ(filled({}), std::vector<double>{});
}

TEST(GapFilling, GapValueAndTheArrayRuleForGaps) {
    boost::shared_ptr<spectrum_t> spectrum = tob_filled_with(50.0);
    spectrum->values[5] = -99.0;
    spectrum->values[6] = 0.0; // a value when the gap value is -99
    Calc_InterpSpec(spectrum, -99.0);
    EXPECT_DOUBLE_EQ(spectrum->values[5], 25.0);

    // A level that is not a number equals no gap value, so it is a value and stays.
    spectrum->values[5] = std::numeric_limits<double>::quiet_NaN();
    Calc_InterpSpec(spectrum, 0.0);
    EXPECT_TRUE(std::isnan(spectrum->values[5]));

    // In the array form a level of exactly 0.1 is neither gap nor value: the gap before it
    // finds no value to close it and stays.
    std::vector<double> levels(24, 50.0);
    levels[1] = 0.05;
    levels[2] = 0.1;
    VARNO::detail::Calc_InterpSpecArray(levels);
    EXPECT_EQ(levels[1], 0.05);
    EXPECT_EQ(levels[2], 0.1);
}

TEST(HarmonicBands, ListsGridBandsTouchedByFiveHarmonics) {
    // 1, 2, 3, 4 and 5 kHz all lie clear of their band edges.
    EXPECT_EQ(harmonic_bands(1000.0), (std::vector<int>{13, 16, 18, 19, 20}));
    // 453.45 Hz: harmonics 1 and 2 lie near a lower edge, 3 near an upper edge, 4 and 5 near
    // lower edges (hand computed edges 464.5, 926.9, 1358.2, 1849.4 and 2328.3 Hz).
    EXPECT_EQ(harmonic_bands(453.45), (std::vector<int>{9, 10, 12, 13, 14, 15, 16, 17}));
    // 11.2 kHz lies in the upper overlap of band 23, whose neighbour is off the grid; 16.8 kHz
    // and above add nothing.
    EXPECT_EQ(harmonic_bands(5600.0), (std::vector<int>{20, 21, 23}));
}

TEST(HarmonicBands, NothingBelowTheGridAndNoBandForAFundamentalWithoutOne) {
    // 44 Hz lies below the grid, in the overlap with band 0: only band 0 is listed.
    EXPECT_EQ(harmonic_bands(44.0), (std::vector<int>{0, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(harmonic_bands(5.0), std::vector<int>{});
    for (double fundamental : {0.0, -100.0, std::numeric_limits<double>::quiet_NaN(),
                               std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(harmonic_bands(fundamental), std::vector<int>{}) << fundamental;
    }
    // Huge but finite: the higher harmonics overflow and are skipped, not misread.
    EXPECT_EQ(harmonic_bands(1e308), std::vector<int>{});
}
