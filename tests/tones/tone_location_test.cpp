#include "tone_test_support.hpp"
#include "tones/tone_location.hpp"

using namespace tone_test;

namespace {

// The spectrum form, checked against the array form it must agree with.
split_levels slope_located(std::vector<double> const& levels) {
    boost::shared_ptr<spectrum_t> broadband = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> tones = spectrum_t::create_tob();
    Calc_TonesLocSlope(tob_spectrum(levels), broadband, tones);
    split_levels array_form{std::vector<double>(24), std::vector<double>(24)};
    VARNO::detail::Calc_TonesLocSlopeArray(levels, array_form.broadband.data(),
                                           array_form.tones.data());
    EXPECT_EQ(array_form.broadband, broadband->values);
    EXPECT_EQ(array_form.tones, tones->values);
    return {broadband->values, tones->values};
}

split_levels frequency_located(std::vector<double> const& levels, double step, double margin,
                               bool array_form = false) {
    split_levels result{std::vector<double>(24, -1.0), std::vector<double>(24, -1.0)};
    if (array_form) {
        VARNO::detail::Calc_TonesLocFreqArray(levels, result.broadband.data(), result.tones.data(),
                                              &step, &margin);
        return result;
    }
    boost::shared_ptr<spectrum_t> broadband = tob_spectrum(result.broadband);
    boost::shared_ptr<spectrum_t> tones = tob_spectrum(result.tones);
    Calc_TonesLocFreq(tob_spectrum(levels), step, margin, broadband, tones);
    return {broadband->values, tones->values};
}

std::vector<double> filled(std::vector<double> levels) {
    boost::shared_ptr<spectrum_t> spectrum = tob_spectrum(levels);
    Calc_InterpSpec(spectrum, 0.0);
    VARNO::detail::Calc_InterpSpecArray(levels);
    EXPECT_EQ(levels, spectrum->values) << "array form differs";
    return spectrum->values;
}

} // namespace

TEST(SlopeLocator, ABandAboveTheMeanOfItsNeighboursIsATone) {
    // A rise within rounding noise is flat; the last band must rise a full decibel; band 0 is
    // never a tone.
    struct row {
        std::size_t band;
        double peak;
        bool tone;
    };
    for (row const r : {row{7, 50.0 + 1e-10, false}, row{7, 50.0 + 1e-8, true},
                        row{23, 50.99, false}, row{23, 51.0, true}, row{0, 90.0, false}}) {
        split_levels const split = slope_located(flat_with_peak(50.0, r.band, r.peak));
        EXPECT_EQ(split.tones[r.band], r.tone ? r.peak : 0.0) << r.band << " at " << r.peak;
        EXPECT_EQ(split.broadband[r.band], r.tone ? 0.0 : r.peak) << r.band << " at " << r.peak;
    }
}

TEST(FrequencyLocator, BridgesFlaggedBandsAndRebuildsTheBaseline) {
    // Shaped floor with four tones; expected split from the independent reference.
    std::vector<double> const shaped(shaped_levels, shaped_levels + 24);
    split_levels const shaped_split = frequency_located(shaped, 2.0, 3.0);
    expect_levels_near(shaped_split.broadband, frequency_locator_broadband, 0.0, "broadband");
    expect_levels_near(shaped_split.tones, frequency_locator_tones, 0.0, "tones");
    EXPECT_EQ(frequency_located(shaped, 2.0, 3.0, true).tones, shaped_split.tones);

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
    EXPECT_EQ(frequency_located(rising, 2.0, 4.0).tones, flat_with_peak(0.0, 23, 73.0));

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

    // A silent spectrum: the spectrum form runs on with a baseline of band 0 alone (every level
    // is broadband while the margin exceeds it, every band a tone for a negative margin); the
    // array form returns at once whatever the margin.
    std::vector<double> const silent = flat_with_peak(0.0005, 3, 0.001);
    EXPECT_EQ(frequency_located(silent, 2.0, 0.01).broadband, silent);
    EXPECT_EQ(frequency_located(silent, 2.0, -1.0).tones, silent);
    split_levels const array_form = frequency_located(silent, 2.0, -1.0, true);
    EXPECT_EQ(array_form.broadband, silent);
    EXPECT_EQ(array_form.tones, std::vector<double>(24, 0.0));
}

TEST(GapFilling, InterpolatesInnerGapsExtendsTheEndsAndKeepsNonGaps) {
    std::vector<double> inner = {40.0, 0.0, 0.0, 0.0, 48.0};
    inner.resize(24, 50.0);
    std::vector<double> const inner_filled = filled(inner);
    EXPECT_EQ(std::vector<double>(inner_filled.begin(), inner_filled.begin() + 5),
              (std::vector<double>{40.0, 42.0, 44.0, 46.0, 48.0}));

    // Two adjacent values: their line runs to both ends, below zero if it must.
    std::vector<double> pair = flat_with_peak(0.0, 10, 50.0);
    pair[11] = 52.0;
    std::vector<double> const pair_filled = filled(pair);
    EXPECT_DOUBLE_EQ(pair_filled[0], 30.0);
    EXPECT_DOUBLE_EQ(pair_filled[23], 76.0);
    std::vector<double> falling = flat_with_peak(0.0, 1, 30.0);
    falling[2] = 10.0;
    EXPECT_DOUBLE_EQ(filled(falling)[23], 10.0 - 20.0 * 21.0);

    // With no line to extend nothing changes.
    for (std::vector<double> const& alone :
         {std::vector<double>(24, 0.0), flat_with_peak(0.0, 23, 60.0), flat_with_peak(0.0, 0, 60.0),
          std::vector<double>{}}) {
        EXPECT_EQ(filled(alone), alone);
    }

    // The gap value is the caller's; a level that is not a number equals no gap value.
    boost::shared_ptr<spectrum_t> spectrum = tob_filled_with(50.0);
    spectrum->values[5] = -99.0;
    spectrum->values[6] = 0.0;
    Calc_InterpSpec(spectrum, -99.0);
    EXPECT_DOUBLE_EQ(spectrum->values[5], 25.0);
    spectrum->values[5] = not_a_number;
    Calc_InterpSpec(spectrum, 0.0);
    EXPECT_TRUE(std::isnan(spectrum->values[5]));

    // In the array form a level of exactly 0.1 is neither gap nor value: the gap before it
    // finds no value to close it and stays.
    std::vector<double> levels = flat_with_peak(50.0, 1, 0.05);
    levels[2] = 0.1;
    VARNO::detail::Calc_InterpSpecArray(levels);
    EXPECT_EQ(levels[1], 0.05);
    EXPECT_EQ(levels[2], 0.1);
}

TEST(HarmonicBands, ListsGridBandsTouchedByFiveHarmonics) {
    // 1 to 5 kHz lie clear of their band edges. At 453.45 Hz harmonics 1, 2, 4 and 5 lie near a
    // lower edge and 3 near an upper one (edges 464.5, 926.9, 1358.2, 1849.4 and 2328.3 Hz).
    // 11.2 kHz is in the upper overlap of band 23, whose neighbour is off the grid. 44 Hz lies
    // below the grid in the overlap with band 0: only band 0 is listed. The rest have no band,
    // or higher harmonics that overflow.
    std::pair<double, std::vector<int>> const rows[] = {{1000.0, {13, 16, 18, 19, 20}},
                                                        {453.45, {9, 10, 12, 13, 14, 15, 16, 17}},
                                                        {5600.0, {20, 21, 23}},
                                                        {44.0, {0, 2, 3, 4, 5, 6, 7}},
                                                        {5.0, {}},
                                                        {0.0, {}},
                                                        {not_a_number, {}},
                                                        {1e308, {}}};
    for (auto const& [fundamental, expected] : rows) {
        std::vector<int> bands{99};
        VARNO::detail::Calc_HarmonicBands(fundamental, bands);
        EXPECT_EQ(bands, expected) << fundamental << " Hz";
    }
}
