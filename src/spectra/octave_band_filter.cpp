#include <calc-common/spectra.hpp>

#include "frame/numeric_helpers.hpp"

#include <cmath>

using namespace VARNO::detail;

// Fractional-octave filters after the usual band-numbering convention: band 30 is centred on
// the 1 kHz reference, bands of an odd count per octave are centred on ratio powers of the
// reference, and those of an even count sit half a band off it. Octave and third-octave bands
// whose number is a multiple of ten get their exact decade centres, and those two bank kinds
// take their nominal centres from the preferred-number tables.

namespace acoustics {

namespace {

bool is_odd(std::size_t count) {
    return count % 2 == 1;
}

// Integer division rounding towards minus infinity, so that band numbers below 0 keep their
// decade (-1 lies in the decade of -10 to -1, not with 0 to 9); for band numbers from 0 up it is
// the plain integer division.
int floor_div(int value, int divisor) {
    int const quotient = value / divisor;
    return quotient * divisor > value ? quotient - 1 : quotient;
}

int floor_mod(int value, int divisor) {
    return value - floor_div(value, divisor) * divisor;
}

double octave_decade(int band) {
    return std::pow(1000.0, floor_div(band, 10) - 2);
}

double third_octave_decade(int band) {
    return std::pow(10.0, floor_div(band, 10));
}

// Preferred centres inside a decade of band numbers, for band number mod 10.
double const octave_preferred[10] = {1, 2, 4, 8, 16, 31.5, 63, 125, 250, 500};
double const third_octave_preferred[10] = {1, 1.25, 1.6, 2, 2.5, 3.15, 4, 5, 6.3, 8};

// `value` rounded to `digits` significant digits; magnitudes below 1e-10 count as zero.
double round_to_significant(double value, int digits) {
    double const magnitude = std::fabs(value);
    if (magnitude < 1e-10) {
        return 0.0;
    }
    double power = std::ceil(std::log10(magnitude));
    // An exact power of ten has as many digits before the point as the next power.
    if (std::fabs(magnitude - std::pow(10.0, power)) < 1e-10) {
        power += 1.0;
    }
    double const scale = std::pow(10.0, digits - power);
    return std::round(value * scale) / scale;
}

// Three significant digits when the centre starts with 1 to 4, two otherwise (so 1.12 k and
// 5.6 k, as preferred numbers read).
double rounded_nominal(double midband) {
    double const decade = std::pow(10.0, std::floor(std::log10(midband)));
    int const leading = static_cast<int>(midband / decade);
    return round_to_significant(midband, leading >= 1 && leading <= 4 ? 3 : 2);
}

double exact_midband(OctaveBandFilterBank const& bank, int band) {
    double const b = static_cast<double>(bank.bands_per_octave);
    double const exponent =
        is_odd(bank.bands_per_octave) ? (band - 30) / b : (2.0 * band - 59.0) / (2.0 * b);
    double const midband = bank.reference_frequency * std::pow(bank.octave_ratio, exponent);
    bool const on_decade = floor_mod(band, 10) == 0;
    if (bank.bands_per_octave == 1 && on_decade) {
        return octave_decade(band);
    }
    if (bank.bands_per_octave == 3 && on_decade) {
        return third_octave_decade(band);
    }
    return midband;
}

double nominal_centre(OctaveBandFilterBank const& bank, int band, double midband) {
    if (bank.bands_per_octave == 1) {
        return octave_decade(band) * octave_preferred[floor_mod(band, 10)];
    }
    if (bank.bands_per_octave == 3) {
        return third_octave_decade(band) * third_octave_preferred[floor_mod(band, 10)];
    }
    return rounded_nominal(midband);
}

// Band number whose centre lies nearest `frequency` on the bank's logarithmic scale.
int band_at(OctaveBandFilterBank const& bank, double frequency) {
    double const b = static_cast<double>(bank.bands_per_octave);
    double const offset = is_odd(bank.bands_per_octave) ? 30.0 : 29.5;
    return static_cast<int>(std::round(
        std::log(frequency / bank.reference_frequency) * b / std::log(bank.octave_ratio) + offset));
}

} // namespace

OctaveBandFilter::OctaveBandFilter(OctaveBandFilterBank const* bank, int band_index)
    : bank(bank)
    , band_index(band_index)
    , midband_frequency(exact_midband(*bank, band_index))
    , nominal_frequency(nominal_centre(*bank, band_index, midband_frequency)) {
    double const half_band = 1.0 / (2.0 * static_cast<double>(bank->bands_per_octave));
    lower_edge = std::pow(bank->octave_ratio, -half_band) * midband_frequency;
    upper_edge = std::pow(bank->octave_ratio, half_band) * midband_frequency;
}

OctaveBandFilter::~OctaveBandFilter() = default;

OctaveBandFilterBank::OctaveBandFilterBank(std::size_t bands_per_octave, double f_low,
                                           double f_high, std::size_t order, bool base_two)
    : octave_ratio(base_two ? 2.0 : std::pow(10.0, 0.3))
    , reference_frequency(1000.0)
    , bands_per_octave(bands_per_octave)
    , order(order)
    , q_design(0.0) {
    int const first = band_at(*this, f_low);
    int const last = band_at(*this, f_high);
    for (int band = first; band <= last; ++band) {
        filters.emplace_back(this, band);
    }
    q_design = butterworth_band_q(octave_ratio, bands_per_octave, order);
}

OctaveBandFilterBank::~OctaveBandFilterBank() = default;

} // namespace acoustics
