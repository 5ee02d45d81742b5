#include "spectra/tob_conversion.hpp"

#include "frame/numeric_helpers.hpp"
#include "spectra/tob_line_weights.hpp"

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

// The bands [first, last) that the summation fills.
struct band_span {
    std::size_t first;
    std::size_t last;
};

// Lines are spread over bands, so a band is filled only when the grid covers it by half a line
// beyond its edges and it spans more than `line_count` lines: bands too narrow for the
// resolution stay silent.
band_span bands_of_spread_lines(frequency_range_t const& range, int line_count) {
    double const half_line = range.df / 2.0;
    double const narrowest = (static_cast<double>(line_count) + 1.0) * range.df;
    band_span span{0, band_count};
    for (std::size_t band = 0; band < band_count; ++band) {
        if (tolerantly_above(tob_band_upper(band) - tob_band_lower(band), narrowest) &&
            tolerantly_below(range.f_start, tob_band_lower(band) - half_line)) {
            span.first = band;
            break;
        }
    }
    for (std::size_t band = 0; band < band_count; ++band) {
        if (tolerantly_below(range.f_end, tob_band_upper(band) + half_line)) {
            span.last = band + 1;
            break;
        }
    }
    return span;
}

// Method 0: every line goes wholly to the band that holds it, one energy and one addition per
// line and column.
void sum_whole_lines(frequency_range_t const& range, std::vector<double> const& levels,
                     std::size_t columns, std::vector<double>& energies) {
    whole_line_runs const& runs = whole_line_runs_of(range);
    for (std::size_t band = runs.first_band; band < band_count; ++band) {
        for (std::size_t k = runs.run_start[band]; k < runs.run_start[band + 1]; ++k) {
            for (std::size_t column = 0; column < columns; ++column) {
                energies[band * columns + column] +=
                    fast_energy_of_level(levels[k * columns + column]);
            }
        }
    }
}

// Zeroed band sums of `columns` columns, column after column, kept per thread.
std::vector<double>& column_band_sums(std::size_t columns) {
    thread_local std::vector<double> sums;
    sums.assign(columns * band_count, 0.0);
    return sums;
}

// Method 1 on one spectrum: its 24 band sums stay in registers while the lines pass.
void sum_filtered_lines_of_one_spectrum(double const* weights, std::vector<double> const& levels,
                                        std::size_t count, band_span span, double* energies) {
    std::array<double, band_count> sums{};
    for (std::size_t k = 0; k < count; ++k, weights += band_count) {
        double const energy = fast_energy_of_level(levels[k]);
        for (std::size_t band = 0; band < band_count; ++band) {
            sums[band] += energy * weights[band];
        }
    }
    for (std::size_t band = span.first; band < span.last; ++band) {
        energies[band] += sums[band];
    }
}

// Method 1: every band of the span takes the line through its band-pass curve, centred on the
// band's nominal frequency. The curve's weight 10^(-W/10), W = 10*log10(1 + (Q*detuning)^6),
// is the power response itself, so it costs no power.
void sum_filtered_lines(frequency_range_t const& range, std::vector<double> const& levels,
                        std::size_t columns, band_span span, std::vector<double>& energies) {
    double const* weights = filter_weights_of(range).data();
    if (columns == 1) {
        sum_filtered_lines_of_one_spectrum(weights, levels, range.count, span, energies.data());
        return;
    }
    // The band sums of a column are kept band after band in `sums`, where no weight can lie, so
    // that the compiler adds a line's 24 products at once over the whole grid (the sums of bands
    // outside the span are left unread); each sum still takes the lines in order.
    std::vector<double>& sums = column_band_sums(columns);
    for (std::size_t k = 0; k < range.count; ++k, weights += band_count) {
        std::array<double, band_count> weight;
        std::copy_n(weights, band_count, weight.begin());
        for (std::size_t column = 0; column < columns; ++column) {
            double const energy = fast_energy_of_level(levels[k * columns + column]);
            double* const sum = &sums[column * band_count];
            for (std::size_t band = 0; band < band_count; ++band) {
                sum[band] += energy * weight[band];
            }
        }
    }
    for (std::size_t column = 0; column < columns; ++column) {
        for (std::size_t band = span.first; band < span.last; ++band) {
            energies[band * columns + column] += sums[column * band_count + band];
        }
    }
}

// Method 2: a band takes the part of each line's width that lies between its edges. A line
// whose energy is not finite still poisons every band of the span, as its product with a zero
// share would.
void add_to_every_band(double energy, band_share const* first, band_share const* last,
                       band_span span, double* energies, std::size_t columns) {
    for (std::size_t band = span.first; band < span.last; ++band) {
        while (first != last && first->band < band) {
            ++first;
        }
        double const share = first != last && first->band == band ? first->share : 0.0;
        energies[band * columns] += energy * share;
    }
}

// Method 2 on one spectrum: the entries of a regular grid ascend by band, line after line, so
// each band's sum is made whole in a register, still in line order, before the next one begins.
void sum_overlapping_lines_of_one_spectrum(overlap_shares const& shares,
                                           std::vector<double> const& levels, std::size_t count,
                                           band_span span, double* energies) {
    std::size_t band = span.first;
    double sum = 0.0;
    auto const close_band = [&] {
        if (band >= span.first && band < span.last) {
            energies[band] += sum;
        }
        sum = 0.0;
    };
    for (std::size_t k = 0; k < count; ++k) {
        band_share const* const first = shares.entries.data() + shares.first_entry[k];
        band_share const* const last = shares.entries.data() + shares.first_entry[k + 1];
        double const energy = fast_energy_of_level(levels[k]);
        if (!std::isfinite(energy)) {
            add_to_every_band(energy, first, last, span, energies, 1);
            continue;
        }
        for (band_share const* part = first; part != last; ++part) {
            if (part->band != band) {
                close_band();
                band = part->band;
            }
            sum += energy * part->share;
        }
    }
    close_band();
}

void sum_overlapping_lines(frequency_range_t const& range, std::vector<double> const& levels,
                           std::size_t columns, band_span span, std::vector<double>& energies) {
    overlap_shares const& shares = overlap_shares_of(range);
    if (columns == 1) {
        sum_overlapping_lines_of_one_spectrum(shares, levels, range.count, span, energies.data());
        return;
    }
    for (std::size_t k = 0; k < range.count; ++k) {
        band_share const* first = shares.entries.data() + shares.first_entry[k];
        band_share const* last = shares.entries.data() + shares.first_entry[k + 1];
        for (std::size_t column = 0; column < columns; ++column) {
            double const energy = fast_energy_of_level(levels[k * columns + column]);
            if (!std::isfinite(energy)) {
                add_to_every_band(energy, first, last, span, energies.data() + column, columns);
                continue;
            }
            for (band_share const* part = first; part != last; ++part) {
                if (part->band >= span.first && part->band < span.last) {
                    energies[part->band * columns + column] += energy * part->share;
                }
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
