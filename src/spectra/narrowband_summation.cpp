#include "spectra/tob_conversion.hpp"

#include "frame/numeric_helpers.hpp"

#include <algorithm>
#include <array>
#include <cmath>

// Summation of a regular narrowband grid into the third-octave bands. Every line carries the
// energy 10^(L/10) of its level, with no cut: this path turns bands into dB as they are, so a
// small band energy gives a negative level and only a band that no line reaches stays 0.0.

namespace VARNO {
namespace detail {

namespace {

constexpr std::size_t band_count = tob_band_count;

// Band i of the grid runs from tob_fl[16 + i] to tob_fl[17 + i].
double band_lower(std::size_t band) {
    return tob_fl[tob_first_band - 1 + band];
}

double band_upper(std::size_t band) {
    return tob_fl[tob_first_band + band];
}

// The bands [first, last) that the summation fills.
struct band_span {
    std::size_t first;
    std::size_t last;
};

// All of a line goes to one band: the span starts at the first band whose lower edge the grid
// reaches. Which bands the lines actually reach is settled by the line-to-band map.
std::size_t first_band_of_whole_lines(frequency_range_t const& range) {
    for (std::size_t band = 0; band < band_count; ++band) {
        if (tolerantly_at_most(range.f_start, band_lower(band))) {
            return band;
        }
    }
    return 0;
}

// Lines are spread over bands, so a band is filled only when the grid covers it by half a line
// beyond its edges and it spans more than `line_count` lines: bands too narrow for the
// resolution stay silent.
band_span bands_of_spread_lines(frequency_range_t const& range, int line_count) {
    double const half_line = range.df / 2.0;
    double const narrowest = (static_cast<double>(line_count) + 1.0) * range.df;
    band_span span{0, band_count};
    for (std::size_t band = 0; band < band_count; ++band) {
        if (tolerantly_above(band_upper(band) - band_lower(band), narrowest) &&
            tolerantly_below(range.f_start, band_lower(band) - half_line)) {
            span.first = band;
            break;
        }
    }
    for (std::size_t band = 0; band < band_count; ++band) {
        if (tolerantly_below(range.f_end, band_upper(band) + half_line)) {
            span.last = band + 1;
            break;
        }
    }
    return span;
}

// Method 0. The grid ascends, so the map from line to band is a run of consecutive lines per
// band, built in one pass: band i holds lines [run_start[i], run_start[i + 1]). Lines below the
// first band or above the last belong to none. The sum is then one pow and one addition per
// line and column, with no allocation.
void sum_whole_lines(frequency_range_t const& range, std::vector<double> const& levels,
                     std::size_t columns, std::vector<double>& energies) {
    std::size_t const first = first_band_of_whole_lines(range);
    std::size_t const lines = range.count;
    std::array<std::size_t, band_count + 1> run_start{};
    std::size_t line = 0;
    while (line < lines && tolerantly_below(range(line), band_lower(first))) {
        ++line;
    }
    for (std::size_t band = first; band < band_count; ++band) {
        run_start[band] = line;
        while (line < lines && tolerantly_below(range(line), band_upper(band))) {
            ++line;
        }
    }
    run_start[band_count] = line;

    for (std::size_t band = first; band < band_count; ++band) {
        for (std::size_t k = run_start[band]; k < run_start[band + 1]; ++k) {
            for (std::size_t column = 0; column < columns; ++column) {
                energies[band * columns + column] +=
                    energy_of_level_tenths(levels[k * columns + column]);
            }
        }
    }
}

// Method 1: every band of the span takes the line through its band-pass curve, centred on the
// band's nominal frequency. The curve's weight 10^(-W/10), W = 10*log10(1 + (Q*detuning)^6),
// is the power response itself, so it costs no pow.
void sum_filtered_lines(frequency_range_t const& range, std::vector<double> const& levels,
                        std::size_t columns, band_span span, std::vector<double>& energies) {
    // Computed once, on first use; the language makes concurrent first calls wait for it.
    static double const q = butterworth_band_q(2.0, 3, tob_filter_order);
    for (std::size_t k = 0; k < range.count; ++k) {
        double const frequency = range(k);
        for (std::size_t column = 0; column < columns; ++column) {
            double const energy = energy_of_level_tenths(levels[k * columns + column]);
            for (std::size_t band = span.first; band < span.last; ++band) {
                double const centre = tob_fc_nominal[tob_first_band - 1 + band];
                energies[band * columns + column] +=
                    energy * band_pass_power_response(q, tob_filter_order, frequency, centre);
            }
        }
    }
}

// Method 2: a line covers df around its frequency, and a band takes the part of that width
// that lies between its edges.
double overlap_share(double frequency, double lower, double upper, double half_line, double df) {
    if (!tolerantly_below(lower - half_line, frequency) ||
        !tolerantly_below(frequency, upper + half_line)) {
        return 0.0;
    }
    if (tolerantly_at_most(lower + half_line, frequency) &&
        tolerantly_at_most(frequency, upper - half_line)) {
        return 1.0;
    }
    if (tolerantly_below(frequency, lower + half_line)) {
        return (frequency - lower + half_line) / df;
    }
    return (upper - frequency + half_line) / df;
}

void sum_overlapping_lines(frequency_range_t const& range, std::vector<double> const& levels,
                           std::size_t columns, band_span span, std::vector<double>& energies) {
    double const half_line = range.df / 2.0;
    for (std::size_t k = 0; k < range.count; ++k) {
        double const frequency = range(k);
        for (std::size_t column = 0; column < columns; ++column) {
            double const energy = energy_of_level_tenths(levels[k * columns + column]);
            for (std::size_t band = span.first; band < span.last; ++band) {
                double const share = overlap_share(frequency, band_lower(band), band_upper(band),
                                                   half_line, range.df);
                energies[band * columns + column] += energy * share;
            }
        }
    }
}

bool is_known(nbtob_conversion_method method) {
    return method == nbtob_line_band || method == nbtob_butterworth ||
           method == nbtob_width_overlap;
}

} // namespace

int sum_narrowband_into_tob(frequency_range_t const& range, std::vector<double> const& levels,
                            std::size_t columns, nbtob_conversion_method method, int line_count,
                            std::vector<double>& tob_levels) {
    std::fill_n(tob_levels.begin(), band_count * columns, 0.0);
    if (!is_known(method)) {
        // The method is read as each level is summed, so an input with no line or no column
        // never meets it: its bands stay silent and the conversion counts as done.
        return range.count > 0 && columns > 0 ? 1 : 0;
    }
    switch (method) {
    case nbtob_line_band:
        sum_whole_lines(range, levels, columns, tob_levels);
        break;
    case nbtob_butterworth:
        sum_filtered_lines(range, levels, columns, bands_of_spread_lines(range, line_count),
                           tob_levels);
        break;
    case nbtob_width_overlap:
        sum_overlapping_lines(range, levels, columns, bands_of_spread_lines(range, line_count),
                              tob_levels);
        break;
    }
    for (std::size_t entry = 0; entry < band_count * columns; ++entry) {
        tob_levels[entry] = uncut_band_level(tob_levels[entry]);
    }
    return 0;
}

} // namespace detail
} // namespace VARNO
