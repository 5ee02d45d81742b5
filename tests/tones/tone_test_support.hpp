#ifndef VARNO_TESTS_TONES_TONE_TEST_SUPPORT_HPP
#define VARNO_TESTS_TONES_TONE_TEST_SUPPORT_HPP

#include <calc-common/spectra.hpp>
#include <calc-common/tones.hpp>

#include "support/tob_spectrum.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace tone_test {

#include "tone_reference.inc"

using test_support::tob_spectrum;

double const not_a_number = std::numeric_limits<double>::quiet_NaN();
double const infinity = std::numeric_limits<double>::infinity();

inline boost::shared_ptr<spectrum_t> tob_filled_with(double level) {
    return tob_spectrum(std::vector<double>(24, level));
}

/// The two halves a separation leaves: broadband floor and tones, in dB per band.
struct split_levels {
    std::vector<double> broadband;
    std::vector<double> tones;
};

/// 24 levels of `level` with `band` raised to `peak`.
inline std::vector<double> flat_with_peak(double level, std::size_t band, double peak) {
    std::vector<double> levels(24, level);
    levels[band] = peak;
    return levels;
}

inline void expect_levels_near(std::vector<double> const& actual, double const* expected,
                               double tolerance, std::string const& what) {
    ASSERT_EQ(actual.size(), 24u) << what;
    for (std::size_t i = 0; i < 24; ++i) {
        EXPECT_NEAR(actual[i], expected[i], tolerance) << what << ", band " << i;
    }
}

inline double energy(double level_db) {
    return std::pow(10.0, level_db / 10.0);
}

} // namespace tone_test

#endif
