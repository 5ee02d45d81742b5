#include "tone_test_support.hpp"

#include <tuple>

using namespace tone_test;

namespace {

struct harmonic_split {
    boost::shared_ptr<spectrum_t> broadband = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> tones = spectrum_t::create_tob();
};

// Separates into `split`, by default two fresh spectra with no tones listed.
harmonic_split separate(std::vector<double> const& levels, double fundamental,
                        harmonic_split split = {}) {
    Calc_EnscaBBTones(tob_spectrum(levels), 1.0, 125.0, fundamental, 0.0,
                      tone_sep_slope_differences, 2.0, 3.0, split.broadband, split.tones);
    return split;
}

} // namespace

TEST(EnscaBBTones, WorkedExampleWithSharedBandsAndRepeatedCalls) {
    // 453.45 Hz puts harmonics 1, 2, 4 and 5 near lower band edges and 3 near an upper one, so
    // band 15 holds parts of harmonics 3 and 4 (redistributed to its neighbours) and band 16
    // parts of 4 and 5 (lowered by 3 dB).
    std::vector<double> const levels(harmonic_levels, harmonic_levels + 24);
    harmonic_split const split = separate(levels, harmonic_fundamental);
    expect_levels_near(split.broadband->values, ensca_first_broadband, 1e-9, "broadband");
    expect_levels_near(split.tones->values, ensca_first_tones, 1e-9, "tones");
    ASSERT_EQ(split.tones->tones.size(), 5u);

    // A second call appends five more tones, and the rebuilt levels count both sets.
    separate(levels, harmonic_fundamental, split);
    expect_levels_near(split.broadband->values, ensca_second_broadband, 1e-9, "2nd broadband");
    expect_levels_near(split.tones->values, ensca_second_tones, 1e-9, "2nd tones");
    ASSERT_EQ(split.tones->tones.size(), 10u);
    for (std::size_t t = 0; t < 10; ++t) {
        tone_id_t const& tone = split.tones->tones[t];
        EXPECT_EQ(tone.band_index, ensca_tone_list[t].band) << t;
        EXPECT_EQ(tone.bpf_harmonic, ensca_tone_list[t].harmonic) << t;
        EXPECT_EQ(tone.frequency, ensca_tone_list[t].frequency) << t;
        EXPECT_NEAR(tone.level, ensca_tone_list[t].level, 1e-9) << t;
    }
}

TEST(EnscaBBTones, OnlyHarmonicsMoreThanThreeDecibelsAboveTheFloorAreTones) {
    // 1 kHz is clear of its band edges (grid band 13).
    std::vector<double> levels = flat_with_peak(50.0, 13, 53.0);
    levels[5] = 80.0; // strong, but no harmonic of 1 kHz
    harmonic_split const split = separate(levels, 1000.0);
    EXPECT_EQ(split.tones->values, std::vector<double>(24, 0.0));
    EXPECT_EQ(split.broadband->values, levels);
    ASSERT_EQ(split.tones->tones.size(), 5u) << "listed although silent";
    EXPECT_EQ(split.tones->tones[0].level, 0.0);

    // Half a decibel more: the tone holds the excess over the 50 dB floor, which stays, and the
    // two add up to the input.
    harmonic_split const stronger = separate(flat_with_peak(50.0, 13, 53.5), 1000.0);
    EXPECT_NEAR(stronger.tones->values[13], 10.0 * std::log10(energy(53.5) - energy(50.0)), 1e-12);
    EXPECT_EQ(stronger.broadband->values[13], 50.0);
}

TEST(EnscaBBTones, NothingIsReadOrWrittenOffTheGrid) {
    // At 20 Hz harmonics 1 and 2 lie below the grid and are skipped. 44 Hz lies below the grid,
    // in the overlap with band 0, and is not listed. At 5.6 kHz harmonics 3 to 5 lie above it,
    // at 6 kHz harmonics 2 to 5 (12 kHz is in the band just above the grid's last).
    for (auto const& [fundamental, listed, first_harmonic, first_band] :
         {std::tuple{20.0, 3u, 3.0, 1},
          {44.0, 4u, 2.0, 2},
          {5600.0, 2u, 1.0, 20},
          {6000.0, 1u, 1.0, 21}}) {
        harmonic_split const split = separate(std::vector<double>(24, 50.0), fundamental);
        ASSERT_EQ(split.tones->tones.size(), listed) << fundamental;
        EXPECT_EQ(split.tones->tones[0].bpf_harmonic, first_harmonic) << fundamental;
        EXPECT_EQ(split.tones->tones[0].band_index, first_band) << fundamental;
    }

    // A fundamental with no band yields no tone: all goes to broadband, and the tone list,
    // which holds tones below, at the foot of and above the grid, is unchanged. None of them
    // adds to a band.
    std::vector<double> const levels(harmonic_levels, harmonic_levels + 24);
    for (double fundamental : {0.0, -453.45, not_a_number, infinity}) {
        harmonic_split none;
        none.tones->tones = {tone_id_t::create_bpf(-1, 1.0, 40.0, 80.0),
                             tone_id_t::create_bpf(0, 2.0, 0.0, 80.0),
                             tone_id_t::create_bpf(24, 3.0, 12500.0, 80.0)};
        separate(levels, fundamental, none);
        EXPECT_EQ(none.broadband->values, levels) << fundamental;
        EXPECT_EQ(none.tones->values, std::vector<double>(24, 0.0)) << fundamental;
        EXPECT_EQ(none.tones->tones.size(), 3u) << fundamental;
        EXPECT_EQ(none.tones->tones[0].level, 80.0) << fundamental;
    }
}
