#include "spectra/filter_bank_conversion.hpp"

#include "frame/numeric_helpers.hpp"
#include "spectra/tob_conversion.hpp"

#include <algorithm>
#include <cmath>

namespace VARNO {
namespace detail {

namespace {

// Every bank spans the audible range and well beyond it, so that coarser bands exist around
// any band asked for.
constexpr double bank_low_hz = 1.0;
constexpr double bank_high_hz = 100000.0;
constexpr std::size_t bank_order = 3;
constexpr bool bank_base_two = false;

// Fewer lines than this across a band leave its level to the placing of one or two lines.
constexpr double lines_to_resolve_a_band = 10.0;

double width(acoustics::OctaveBandFilter const& filter) {
    return filter.upper_edge - filter.lower_edge;
}

bool holds(acoustics::OctaveBandFilter const& filter, double frequency) {
    return tolerantly_at_most(filter.lower_edge, frequency) &&
           tolerantly_below(frequency, filter.upper_edge);
}

// Part of the width df centred on `frequency` that lies between the band's edges, over df.
double covered_fraction(acoustics::OctaveBandFilter const& filter, double frequency, double df) {
    double const bottom = std::max(frequency - df / 2.0, filter.lower_edge);
    double const top = std::min(frequency + df / 2.0, filter.upper_edge);
    return top > bottom ? (top - bottom) / df : 0.0;
}

} // namespace

filter_bank_shape filter_bank_shape_of(nbtob_conversion_method method) {
    switch (method) {
    case nbtob_line_band:
        return filter_bank_rectangular;
    case nbtob_width_overlap:
        return filter_bank_proportional;
    default:
        return filter_bank_butterworth;
    }
}

filter_bank_conversion::filter_bank_conversion(frequency_range_t const& range,
                                               std::vector<double> const& levels,
                                               std::size_t columns, filter_bank_shape shape)
    : range_(range)
    , columns_(columns)
    , shape_(shape)
    , line_energies_(range.count * columns)
    , coarser_energies_(columns)
    , finer_cells_(columns)
    , coarser_cells_(columns)
    , twelfth_octaves_(12, bank_low_hz, bank_high_hz, bank_order, bank_base_two)
    , third_octaves_(3, bank_low_hz, bank_high_hz, bank_order, bank_base_two)
    , octaves_(1, bank_low_hz, bank_high_hz, bank_order, bank_base_two) {
    // Each line's energy is needed by every band whose filter passes it: take it once.
    for (std::size_t entry = 0; entry < line_energies_.size(); ++entry) {
        line_energies_[entry] = energy_of_level_tenths(levels[entry]);
    }
}

void filter_bank_conversion::band_levels(std::size_t bands_per_octave, double f_low, double f_high,
                                         std::vector<double>& levels) {
    acoustics::OctaveBandFilterBank const& bank = bank_with(bands_per_octave);
    std::vector<acoustics::OctaveBandFilter> const& filters = bank.filters;
    auto const first = std::find_if(filters.begin(), filters.end(), [f_low](auto const& filter) {
        return tolerantly_at_least(filter.nominal_frequency, f_low);
    });
    auto const last = std::find_if(first, filters.end(), [f_high](auto const& filter) {
        return tolerantly_above(filter.nominal_frequency, f_high);
    });
    levels.assign(static_cast<std::size_t>(last - first) * columns_, 0.0);
    double* band_energies = levels.data();
    for (auto filter = first; filter != last; ++filter, band_energies += columns_) {
        add_band_energy(bank, *filter, band_energies);
    }
    for (double& level : levels) {
        level = uncut_band_level(level);
    }
}

acoustics::OctaveBandFilterBank const&
filter_bank_conversion::bank_with(std::size_t bands_per_octave) const {
    if (bands_per_octave == 12) {
        return twelfth_octaves_;
    }
    return bands_per_octave == 3 ? third_octaves_ : octaves_;
}

acoustics::OctaveBandFilterBank const*
filter_bank_conversion::coarser_than(std::size_t bands_per_octave) const {
    if (bands_per_octave == 12) {
        return &third_octaves_;
    }
    return bands_per_octave == 3 ? &octaves_ : nullptr;
}

void filter_bank_conversion::add_band_energy(acoustics::OctaveBandFilterBank const& bank,
                                             acoustics::OctaveBandFilter const& filter,
                                             double* energies) {
    acoustics::OctaveBandFilterBank const* coarser = coarser_than(bank.bands_per_octave);
    bool const resolved = width(filter) >= lines_to_resolve_a_band * range_.df;
    if (resolved || coarser == nullptr) {
        add_filtered_energy(bank, filter, shape_, energies);
        return;
    }
    double const centre = filter.midband_frequency;
    auto const holder =
        std::find_if(coarser->filters.begin(), coarser->filters.end(),
                     [centre](auto const& candidate) { return holds(candidate, centre); });
    if (holder == coarser->filters.end()) {
        add_filtered_energy(bank, filter, shape_, energies);
        return;
    }
    for (std::vector<double>* scratch : {&coarser_energies_, &finer_cells_, &coarser_cells_}) {
        std::fill(scratch->begin(), scratch->end(), 0.0);
    }
    add_filtered_energy(*coarser, *holder, shape_, coarser_energies_.data());
    add_filtered_energy(bank, filter, filter_bank_proportional, finer_cells_.data());
    add_filtered_energy(*coarser, *holder, filter_bank_proportional, coarser_cells_.data());
    for (std::size_t column = 0; column < columns_; ++column) {
        if (coarser_cells_[column] > 0.0) {
            energies[column] +=
                coarser_energies_[column] * finer_cells_[column] / coarser_cells_[column];
        }
    }
}

void filter_bank_conversion::add_filtered_energy(acoustics::OctaveBandFilterBank const& bank,
                                                 acoustics::OctaveBandFilter const& filter,
                                                 filter_bank_shape shape, double* energies) const {
    line_span const lines = lines_reaching(filter, shape);
    for (std::size_t line = lines.first; line < lines.last; ++line) {
        double const passed = response(bank, filter, shape, range_(line));
        if (passed == 0.0) {
            continue;
        }
        double const* energies_of_line = &line_energies_[line * columns_];
        for (std::size_t column = 0; column < columns_; ++column) {
            energies[column] += passed * energies_of_line[column];
        }
    }
}

filter_bank_conversion::line_span
filter_bank_conversion::lines_reaching(acoustics::OctaveBandFilter const& filter,
                                       filter_bank_shape shape) const {
    // A Butterworth band hears every line, and a listed range is in no known order. On a
    // regular grid an ideal or proportional band hears only the lines within a line of its
    // edges, so that each band visits its own lines only.
    if (shape == filter_bank_butterworth || !(range_.df > 0.0)) {
        return {0, range_.count};
    }
    auto line_near = [this](double frequency) {
        double const steps = std::floor((frequency - range_.f_start) / range_.df);
        return static_cast<std::size_t>(
            std::min(std::max(steps, 0.0), static_cast<double>(range_.count)));
    };
    std::size_t const last = line_near(filter.upper_edge + range_.df) + 1;
    return {line_near(filter.lower_edge - range_.df), std::min(last, range_.count)};
}

double filter_bank_conversion::response(acoustics::OctaveBandFilterBank const& bank,
                                        acoustics::OctaveBandFilter const& filter,
                                        filter_bank_shape shape, double frequency) const {
    switch (shape) {
    case filter_bank_rectangular:
        return holds(filter, frequency) ? 1.0 : 0.0;
    case filter_bank_proportional:
        // Lines of a listed range have no width and count where they lie.
        return range_.df > 0.0 ? covered_fraction(filter, frequency, range_.df)
                               : (holds(filter, frequency) ? 1.0 : 0.0);
    case filter_bank_butterworth:
        return band_pass_power_response(bank.q_design, bank.order, frequency,
                                        filter.midband_frequency);
    }
    return 0.0;
}

} // namespace detail
} // namespace VARNO
