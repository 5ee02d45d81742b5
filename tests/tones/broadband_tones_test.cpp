#include "support/allocation_counter.hpp"
#include "tone_test_support.hpp"

using namespace tone_test;

namespace {

// Runs the tone check on a spectrum whose tones are the bands in `tone_bands`, with the floor
// filled as the separation leaves it.
split_levels check_tones(std::vector<double> const& levels, std::vector<std::size_t> tone_bands,
                         int k, double margin) {
    boost::shared_ptr<spectrum_t> broadband = tob_spectrum(levels);
    boost::shared_ptr<spectrum_t> tones = tob_filled_with(0.0);
    for (std::size_t band : tone_bands) {
        tones->values[band] = levels[band];
        broadband->values[band] = 0.0;
    }
    Calc_InterpSpec(broadband, 0.0);
    Calc_CheckTones(tob_spectrum(levels), k, margin, 0.0, broadband, tones);
    return {broadband->values, tones->values};
}

struct separated : split_levels {
    int k;
};

separated bb_tones(std::vector<double> const& levels, double cut_frequency, int method) {
    boost::shared_ptr<spectrum_t> broadband = tob_filled_with(-3.0);
    boost::shared_ptr<spectrum_t> tones = tob_filled_with(-3.0);
    tones->tones.push_back(tone_id_t::create_eo(4, 2, 100.0, 60.0));
    int const k = Calc_BBTones(tob_spectrum(levels), 1.5, cut_frequency, not_a_number,
                               static_cast<tone_sep_method_t>(method), 2.0, 3.0, broadband, tones);
    EXPECT_EQ(tones->tones.size(), 1u) << "the tone list is left alone";
    EXPECT_TRUE(broadband->tones.empty());
    return {{broadband->values, tones->values}, k};
}

} // namespace

TEST(CheckTones, GivesBackTonesUntilAPassChangesNothing) {
    std::vector<double> levels = flat_with_peak(50.0, 10, 54.0);
    levels[11] = 56.0;
    // Pass 1 gives band 10 back (4 dB above the 50 dB floor); the floor under band 11 then
    // rises to 52 dB and pass 2 gives band 11 back too (4 dB again).
    split_levels const pair = check_tones(levels, {10, 11}, 0, 4.5);
    EXPECT_EQ(pair.tones, std::vector<double>(24, 0.0));
    EXPECT_EQ(pair.broadband, levels);

    // Exactly check_margin above the floor is given back; above it the band stays a tone and the
    // floor is interpolated beneath it.
    std::vector<double> const peak = flat_with_peak(50.0, 10, 53.0);
    EXPECT_EQ(check_tones(peak, {10}, 0, 3.0).tones[10], 0.0);
    split_levels const kept = check_tones(peak, {10}, 0, 2.9);
    EXPECT_EQ(kept.tones[10], 53.0);
    EXPECT_EQ(kept.broadband[10], 50.0);

    // Below the cut index the test is against the neighbours in the input, from the cut index
    // up against the floor: beside a 60 dB tone, 53 dB is 3 above the floor but 2 below the
    // neighbours' mean.
    EXPECT_EQ(check_tones(peak, {10}, 12, 3.0).tones[10], 0.0);
    EXPECT_EQ(check_tones(peak, {10}, 12, 2.0).tones[10], 53.0);
    // A lower neighbour at 54 dB lifts that mean to 52 dB, within 2 dB of the tone.
    std::vector<double> lifted = peak;
    lifted[9] = 54.0;
    EXPECT_EQ(check_tones(lifted, {10}, 12, 2.0).tones[10], 0.0);
    std::vector<double> beside = peak;
    beside[11] = 60.0;
    EXPECT_EQ(check_tones(beside, {10, 11}, 11, 1.0).tones[10], 0.0);
    EXPECT_EQ(check_tones(beside, {10, 11}, 10, 1.0).tones[10], 53.0);

    // The end bands below the cut are left alone, though their one neighbour's half would give
    // them back, as are faint tones.
    std::vector<double> ends = flat_with_peak(50.0, 0, 60.0);
    ends[23] = 60.0;
    split_levels const kept_ends = check_tones(ends, {0, 23}, 24, 40.0);
    EXPECT_EQ(kept_ends.tones[0] + kept_ends.tones[23], 120.0);
    EXPECT_EQ(check_tones(flat_with_peak(50.0, 5, 1.0), {5}, 0, 3.0).tones[5], 1.0);
}

TEST(BBTones, WorkedExamplesWithBothLocators) {
    // The shaped spectrum, and the same with a bump that only the slope locator keeps as a tone.
    for (bb_tones_reference const& expected : bb_tones_cases) {
        std::vector<double> const levels(expected.levels, expected.levels + 24);
        separated const split = bb_tones(levels, 250.0, expected.method);
        std::string const what = "case " + std::to_string(&expected - bb_tones_cases) +
                                 ", method " + std::to_string(expected.method);
        EXPECT_EQ(split.k, expected.k) << what;
        expect_levels_near(split.broadband, expected.broadband, 1e-12, what + ", broadband");
        expect_levels_near(split.tones, expected.tones, 1e-12, what + ", tones");
    }

    // At and below the cut index the input stands in the broadband: 3.15 kHz gives index 16, so
    // the tones at bands 8, 12 and 16 keep their full level there.
    std::vector<double> const levels(shaped_levels, shaped_levels + 24);
    separated const high_cut = bb_tones(levels, 3150.0, 0);
    EXPECT_EQ(high_cut.k, 16);
    EXPECT_EQ(std::vector<double>(high_cut.broadband.begin(), high_cut.broadband.begin() + 17),
              std::vector<double>(levels.begin(), levels.begin() + 17));
    // A cut frequency whose index falls off the grid, or that has no band, gives 0.
    for (double cut : {20.0, 1e6, 0.0, -100.0, not_a_number}) {
        separated const split = bb_tones(flat_with_peak(50.0, 0, 70.0), cut, 0);
        EXPECT_EQ(split.k, 0) << cut;
        EXPECT_EQ(split.broadband[0], 70.0) << cut;
        EXPECT_EQ(split.tones[0], 0.0) << cut;
    }
}

TEST(ToneSeparation, AllocatesNothingAfterTheFirstCallOnAGrid) {
    boost::shared_ptr<spectrum_t> spectrum =
        tob_spectrum(std::vector<double>(shaped_levels, shaped_levels + 24));
    boost::shared_ptr<spectrum_t> broadband = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> tones = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> unshifted = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> shifted = spectrum_t::create_tob();
    // The separation runs both array locators; the spectrum form of the frequency locator keeps
    // a workspace of its own.
    auto run_all = [&] {
        Calc_TonesLocSlope(spectrum, broadband, tones);
        Calc_TonesLocFreq(spectrum, 2.0, 3.0, broadband, tones);
        Calc_InterpSpec(broadband, 0.0);
        for (int method : {0, 1}) {
            Calc_BBTones(spectrum, 1.5, 250.0, 0.0, static_cast<tone_sep_method_t>(method), 2.0,
                         3.0, broadband, tones);
        }
        double shifted_frequency = 0.0;
        double level = 0.0;
        Calc_DopplerizeTone(tones, broadband, 1.1, 455.0, unshifted, shifted, &shifted_frequency,
                            &level, nullptr, true, false);
    };
    run_all(); // sizes this thread's workspaces for the 24-band grid
    test_support::AllocationCounter counter;
    run_all();
    EXPECT_EQ(counter.count(), 0u);
}

TEST(BroadbandTones, AToneWhoseEnergyRoundsAwayIsSilence) {
    // With every band a tone (negative margins), band 21 gets a floor of 47.769999999999989 under
    // its level of 47.769999999999996: the same energy, so nothing is left for a tone.
    std::vector<double> levels(24);
    for (std::size_t i = 0; i < 24; ++i) {
        levels[i] = 40.0 + 0.37 * static_cast<double>(i);
    }
    levels[14] = 48.985283447913545;
    levels[15] = 56.0;
    levels[16] = 63.014716552086455;
    boost::shared_ptr<spectrum_t> broadband = tob_filled_with(0.0);
    boost::shared_ptr<spectrum_t> tones = tob_filled_with(0.0);
    Calc_BBTones(tob_spectrum(levels), -1.0, 50.0, 0.0, tone_sep_discrete_frequencies_detection,
                 9.2673767653701198, -1.0, broadband, tones);
    ASSERT_LT(broadband->values[21], levels[21]);
    EXPECT_EQ(tones->values[21], 0.0);
}
