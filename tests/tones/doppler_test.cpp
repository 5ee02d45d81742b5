#include "support/error_text.hpp"
#include "tone_test_support.hpp"

#include <array>

using namespace tone_test;

namespace {

struct doppler_outcome {
    double level, level_copy, shifted_frequency;
    std::vector<double> broadband, unshifted, shifted;
};

// The Doppler correction of `frequency` Hz by `ratio` over a flat broadband floor (dB).
doppler_outcome dopplerize(std::vector<double> const& tone_levels, double frequency,
                           double ratio = 1.0, bool exact_energy = true,
                           bool keep_broadband = false, double floor = 40.0) {
    boost::shared_ptr<spectrum_t> tones = tob_spectrum(tone_levels);
    boost::shared_ptr<spectrum_t> broadband = tob_filled_with(floor);
    boost::shared_ptr<spectrum_t> unshifted = tob_filled_with(-7.0);
    boost::shared_ptr<spectrum_t> shifted = tob_filled_with(-7.0);
    doppler_outcome out{-1.0, -1.0, -1.0, {}, {}, {}};
    Calc_DopplerizeTone(tones, broadband, ratio, frequency, unshifted, shifted,
                        &out.shifted_frequency, &out.level, &out.level_copy, exact_energy,
                        keep_broadband);
    EXPECT_EQ(tones->values, tone_levels) << "the tone bands are only read";
    out.broadband = broadband->values;
    out.unshifted = unshifted->values;
    out.shifted = shifted->values;
    return out;
}

} // namespace

TEST(SplitTone, SharesEnergyByDistanceFromTheLimitsAndWritesToneSpectra) {
    // The shares near an edge are checked with the Doppler cases. A tone on either limit is all
    // in that limit's band; the other gets a share of zero, that is minus infinity dB.
    double low = -1.0;
    double high = -1.0;
    Calc_SplitTone(60.0, 100.0, 100.0, 200.0, &low, &high);
    EXPECT_NEAR(low, 60.0, 1e-12);
    EXPECT_EQ(high, -infinity);
    Calc_SplitTone(60.0, 200.0, 100.0, 200.0, &low, &high);
    EXPECT_EQ(low, -infinity);
    EXPECT_NEAR(high, 60.0, 1e-12);

    // Outside the overlap, and an overlap of no width, fail and zero both shares.
    for (auto const& r : {std::array<double, 3>{99.0, 100.0, 200.0},
                          {201.0, 100.0, 200.0},
                          {150.0, 150.0, 150.0}}) {
        low = high = -1.0;
        EXPECT_EQ(
            test_support::error_text([&] { Calc_SplitTone(60.0, r[0], r[1], r[2], &low, &high); }),
            "An error occurred in function Calc_SplitTone");
        EXPECT_TRUE(low == 0.0 && high == 0.0) << r[0] << " Hz";
    }

    // Calc_ToneSpectrum writes the one tone, split near a band edge. 45 Hz is in the lower overlap
    // of band 0 (44.67 Hz): the share below the grid is lost.
    boost::shared_ptr<spectrum_t> spectrum = tob_filled_with(33.0);
    Calc_ToneSpectrum(45.0, 0, 60.0, spectrum);
    EXPECT_NEAR(spectrum->values[0], 57.67023862295765, 1e-12);
    EXPECT_EQ(spectrum->values[1], 0.0);

    // A band off the grid clears the spectrum, tone list included.
    spectrum->tones.push_back(tone_id_t::create_bpf(3, 1.0, 80.0, 60.0));
    Calc_ToneSpectrum(1000.0, 24, 60.0, spectrum);
    EXPECT_EQ(spectrum->values, std::vector<double>(24, 0.0));
    EXPECT_TRUE(spectrum->tones.empty());

    // A frequency outside its band fails and leaves the spectrum as it was.
    spectrum->fill_with(12.0);
    EXPECT_THROW(Calc_ToneSpectrum(1000.0, 5, 60.0, spectrum), varno_calc_error);
    EXPECT_EQ(spectrum->values, std::vector<double>(24, 12.0));
}

TEST(DopplerizeTone, CorrectsAToneNearEachEdgeInThreeForms) {
    std::vector<double> const tone_levels = flat_with_peak(0.0, 10, 70.0);
    for (doppler_reference const& expected : doppler_cases) {
        doppler_outcome const out =
            dopplerize(tone_levels, expected.frequency, expected.ratio, expected.exact_energy,
                       expected.keep_broadband, expected.floor);
        std::string const what = "case " + std::to_string(&expected - doppler_cases) + ", " +
                                 std::to_string(expected.frequency) + " Hz";
        EXPECT_NEAR(out.level, expected.level, 1e-12) << what;
        EXPECT_EQ(out.level_copy, out.level) << what;
        EXPECT_DOUBLE_EQ(out.shifted_frequency, expected.ratio * expected.frequency) << what;
        expect_levels_near(out.broadband, expected.broadband, 1e-9, what + ", broadband");
        expect_levels_near(out.unshifted, expected.unshifted, 1e-9, what + ", unshifted");
        expect_levels_near(out.shifted, expected.shifted, 1e-9, what + ", shifted");
    }
}

TEST(DopplerizeTone, NeighbouringTonesAndTheEdgesOfTheGrid) {
    // Between the overlaps the level is the band's, in one band both before and after.
    doppler_outcome const centred = dopplerize(flat_with_peak(0.0, 13, 65.0), 1000.0);
    EXPECT_EQ(centred.level, 65.0);
    EXPECT_EQ(centred.unshifted, flat_with_peak(0.0, 13, 65.0));
    EXPECT_EQ(centred.shifted, flat_with_peak(0.0, 13, 65.0));

    // Near the lower edge with a tone below: the two bands are summed, and the unshifted
    // spectrum shows them and the tone above as measured while the shifted one holds the split
    // tone.
    std::vector<double> pair = flat_with_peak(0.0, 10, 70.0);
    pair[9] = 64.0;
    pair[11] = 66.0;
    doppler_outcome const summed = dopplerize(pair, 455.0);
    EXPECT_NEAR(summed.level, 10.0 * std::log10(energy(64.0) + energy(70.0)), 1e-12);
    EXPECT_EQ(summed.unshifted, pair);
    EXPECT_NE(summed.shifted, pair) << "the shifted tone is split, not as measured";

    // The upper neighbour counts from above 0 dB, the lower from above 0.001 dB.
    std::vector<double> faint = flat_with_peak(0.0, 10, 70.0);
    faint[11] = 0.0005;
    EXPECT_NEAR(dopplerize(faint, 550.0).level, 10.0 * std::log10(energy(70.0) + energy(0.0005)),
                1e-12);
    faint[11] = 0.0;
    faint[9] = 0.0005;
    EXPECT_EQ(dopplerize(faint, 455.0).level, 70.0);

    // An infinite level equals nothing, itself included: the split tone is not replaced by the
    // band as measured.
    doppler_outcome const infinite =
        dopplerize(flat_with_peak(0.0, 10, infinity), 455.0, 1.0, true, true);
    EXPECT_EQ(infinite.unshifted[9], infinity);

    // First and last bands, and the top of the last band but one, have no level.
    EXPECT_EQ(dopplerize(flat_with_peak(0.0, 0, 70.0), 50.0).level, 0.0);
    doppler_outcome const last = dopplerize(flat_with_peak(0.0, 23, 70.0), 10000.0);
    EXPECT_EQ(last.level, 0.0);
    EXPECT_EQ(last.unshifted, last.shifted);
    EXPECT_EQ(last.shifted, std::vector<double>(24, 0.0));
    // 8.8 kHz lies in the upper overlap of band 22 (8570 to 9269 Hz).
    EXPECT_EQ(dopplerize(flat_with_peak(0.0, 22, 70.0), 8800.0, 1.0, false, true).level, 0.0);

    // A shift off the grid leaves `shifted` silent but still reports frequency and level.
    doppler_outcome const off = dopplerize(flat_with_peak(0.0, 13, 65.0), 1000.0, 20.0);
    EXPECT_EQ(off.shifted, std::vector<double>(24, 0.0));
    EXPECT_EQ(off.shifted_frequency, 20000.0);
    EXPECT_EQ(off.level, 65.0);
    // A share below 0.001 dB is silence: just inside the overlap of 1122 Hz the far band is 0.0.
    double const just_inside = std::pow(10.0, 61.0 / 20.0) / 1.04 * (1.0 + 1e-12);
    EXPECT_EQ(dopplerize(flat_with_peak(0.0, 13, 65.0), 1000.0, just_inside / 1000.0).shifted[14],
              0.0);
    // A frequency with no band is off the grid too.
    doppler_outcome const nowhere = dopplerize(flat_with_peak(0.0, 13, 65.0), -5.0);
    EXPECT_EQ(nowhere.level, 0.0);
    EXPECT_EQ(nowhere.unshifted, std::vector<double>(24, 0.0));
}
