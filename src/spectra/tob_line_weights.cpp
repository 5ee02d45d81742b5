#include "spectra/tob_line_weights.hpp"

#include "spectra/tob_conversion.hpp"

namespace VARNO {
namespace detail {

namespace {

// The grid-only data `Data` of the last grid a thread used, rebuilt by `build` on a new grid.
template <class Data, class Build>
Data const& kept_for(frequency_range_t const& range, Build build) {
    struct kept {
        regular_grid_key key;
        Data data;
    };
    thread_local kept last;
    regular_grid_key const key = regular_grid_key::of(range);
    if (!key.same_grid(last.key)) {
        last.key = regular_grid_key{}; // a build cut short by a failed allocation is never reused
        build(range, last.data);
        last.key = key;
    }
    return last.data;
}

// All of a line goes to one band: the runs start at the first band whose lower edge the grid
// reaches.
std::size_t first_band_of_whole_lines(frequency_range_t const& range) {
    for (std::size_t band = 0; band < tob_band_count; ++band) {
        if (tolerantly_at_most(range.f_start, tob_band_lower(band))) {
            return band;
        }
    }
    return 0;
}

// The grid ascends, so the lines of a band are a run of consecutive lines, found in one pass.
// Lines below the first band or above the last belong to none.
void build_whole_line_runs(frequency_range_t const& range, whole_line_runs& runs) {
    std::size_t const first = first_band_of_whole_lines(range);
    std::size_t const lines = range.count;
    runs.first_band = first;
    runs.run_start.fill(0);
    std::size_t line = 0;
    while (line < lines && tolerantly_below(range(line), tob_band_lower(first))) {
        ++line;
    }
    for (std::size_t band = first; band < tob_band_count; ++band) {
        runs.run_start[band] = line;
        while (line < lines && tolerantly_below(range(line), tob_band_upper(band))) {
            ++line;
        }
    }
    runs.run_start[tob_band_count] = line;
}

// Every band's curve is centred on the band's nominal frequency.
void build_filter_weights(frequency_range_t const& range, std::vector<double>& weights) {
    // Computed once, on first use; the language makes concurrent first calls wait for it.
    static double const q = butterworth_band_q(2.0, 3, tob_filter_order);
    weights.resize(range.count * tob_band_count);
    for (std::size_t k = 0; k < range.count; ++k) {
        double const frequency = range(k);
        for (std::size_t band = 0; band < tob_band_count; ++band) {
            double const centre = tob_fc_nominal[tob_first_band - 1 + band];
            weights[k * tob_band_count + band] =
                band_pass_power_response(q, tob_filter_order, frequency, centre);
        }
    }
}

// A line covers df around its frequency, and a band takes the part of that width that lies
// between its edges.
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

void build_overlap_shares(frequency_range_t const& range, overlap_shares& shares) {
    double const half_line = range.df / 2.0;
    shares.first_entry.assign(1, 0);
    shares.entries.clear();
    for (std::size_t k = 0; k < range.count; ++k) {
        double const frequency = range(k);
        for (std::size_t band = 0; band < tob_band_count; ++band) {
            double const share = overlap_share(frequency, tob_band_lower(band),
                                               tob_band_upper(band), half_line, range.df);
            if (share != 0.0) {
                shares.entries.push_back({band, share});
            }
        }
        shares.first_entry.push_back(shares.entries.size());
    }
}

} // namespace

whole_line_runs const& whole_line_runs_of(frequency_range_t const& range) {
    return kept_for<whole_line_runs>(range, build_whole_line_runs);
}

std::vector<double> const& filter_weights_of(frequency_range_t const& range) {
    return kept_for<std::vector<double>>(range, build_filter_weights);
}

overlap_shares const& overlap_shares_of(frequency_range_t const& range) {
    return kept_for<overlap_shares>(range, build_overlap_shares);
}

} // namespace detail
} // namespace VARNO
