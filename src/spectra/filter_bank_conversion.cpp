#include "spectra/filter_bank_conversion.hpp"

#include "frame/numeric_helpers.hpp"
#include "spectra/tob_conversion.hpp"

#include <algorithm>
#include <array>
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

// Butterworth bands summed side by side in one pass over the lines: the 24 bands of the
// third-octave result at once, whose sums still fit the vector registers of any x86-64 and
// hide the latency of each other's additions.
constexpr std::size_t bands_per_pass = 24;

// Passes over the lines that sum `bands` Butterworth bands, bands_per_pass at a time.
std::size_t passes_for(std::size_t bands) {
    return (bands + bands_per_pass - 1) / bands_per_pass;
}

// Sums of the energies of `lines` lines, `stride` apart, through the responses of one pass's
// bands. A band that does not hear a line adds nothing, not even the product of its zero
// response with an energy that is not finite; when every energy is finite that product is a
// plain zero, and the test is left out so that the sums stay in registers.
template <bool every_energy_finite>
std::array<double, bands_per_pass> filtered_sums(double const* responses, double const* energy,
                                                 std::size_t lines, std::size_t stride) {
    std::array<double, bands_per_pass> sum{};
    for (std::size_t line = 0; line < lines; ++line, energy += stride) {
        for (std::size_t band = 0; band < bands_per_pass; ++band, ++responses) {
            if (every_energy_finite || *responses != 0.0) {
                sum[band] += *responses * *energy;
            }
        }
    }
    return sum;
}

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

filter_banks::filter_banks()
    : twelfth_octaves(12, bank_low_hz, bank_high_hz, bank_order, bank_base_two)
    , third_octaves(3, bank_low_hz, bank_high_hz, bank_order, bank_base_two)
    , octaves(1, bank_low_hz, bank_high_hz, bank_order, bank_base_two) {}

filter_banks const& shared_filter_banks() {
    // Built on first use; the language makes concurrent first calls wait for it.
    static filter_banks const banks;
    return banks;
}

filter_bank_scratch& filter_bank_scratch::of_this_thread() {
    thread_local filter_bank_scratch scratch;
    return scratch;
}

filter_bank_conversion::filter_bank_conversion(frequency_range_t const& range,
                                               std::vector<double> const& levels,
                                               std::size_t columns, filter_bank_shape shape)
    : range_(range)
    , columns_(columns)
    , shape_(shape)
    , banks_(shared_filter_banks())
    , scratch_(filter_bank_scratch::of_this_thread()) {
    // Each line's energy is needed by every band whose filter passes it: take it once.
    std::vector<double>& energies = scratch_.line_energies;
    energies.resize(range.count * columns);
    for (std::size_t entry = 0; entry < energies.size(); ++entry) {
        energies[entry] = fast_energy_of_level(levels[entry]);
    }
    for (std::vector<double>* sums :
         {&scratch_.coarser_energies, &scratch_.finer_cells, &scratch_.coarser_cells}) {
        sums->resize(columns);
    }
}

void filter_bank_conversion::band_levels(std::size_t bands_per_octave, double f_low, double f_high,
                                         std::vector<double>& levels) {
    std::vector<acoustics::OctaveBandFilter> const& filters = bank_with(bands_per_octave).filters;
    auto const first = std::find_if(filters.begin(), filters.end(), [f_low](auto const& filter) {
        return tolerantly_at_least(filter.nominal_frequency, f_low);
    });
    auto const last = std::find_if(first, filters.end(), [f_high](auto const& filter) {
        return tolerantly_above(filter.nominal_frequency, f_high);
    });
    if (shape_ == filter_bank_butterworth) {
        filter_through_butterworth_bands(first, last);
    }
    levels.assign(static_cast<std::size_t>(last - first) * columns_, 0.0);
    double* band_energies = levels.data();
    for (auto filter = first; filter != last; ++filter, band_energies += columns_) {
        add_band_energy(*filter, band_energies);
    }
    for (double& level : levels) {
        level = uncut_band_level(level);
    }
}

acoustics::OctaveBandFilterBank const&
filter_bank_conversion::bank_with(std::size_t bands_per_octave) const {
    if (bands_per_octave == 12) {
        return banks_.twelfth_octaves;
    }
    return bands_per_octave == 3 ? banks_.third_octaves : banks_.octaves;
}

acoustics::OctaveBandFilterBank const*
filter_bank_conversion::coarser_than(std::size_t bands_per_octave) const {
    if (bands_per_octave == 12) {
        return &banks_.third_octaves;
    }
    return bands_per_octave == 3 ? &banks_.octaves : nullptr;
}

// The band of the next coarser bank that holds the centre of a band too narrow for the lines,
// or none when the lines resolve the band or no coarser band holds it.
acoustics::OctaveBandFilter const*
filter_bank_conversion::holder_of(acoustics::OctaveBandFilter const& filter) const {
    acoustics::OctaveBandFilterBank const* coarser = coarser_than(filter.bank->bands_per_octave);
    if (coarser == nullptr || width(filter) >= lines_to_resolve_a_band * range_.df) {
        return nullptr;
    }
    double const centre = filter.midband_frequency;
    auto const holder =
        std::find_if(coarser->filters.begin(), coarser->filters.end(),
                     [centre](auto const& candidate) { return holds(candidate, centre); });
    return holder == coarser->filters.end() ? nullptr : &*holder;
}

void filter_bank_conversion::add_band_energy(acoustics::OctaveBandFilter const& filter,
                                             double* energies) {
    acoustics::OctaveBandFilter const* holder = holder_of(filter);
    if (holder == nullptr) {
        add_filtered_energy(filter, shape_, energies);
        return;
    }
    std::vector<double>& coarser_energies = scratch_.coarser_energies;
    std::vector<double>& finer_cells = scratch_.finer_cells;
    std::vector<double>& coarser_cells = scratch_.coarser_cells;
    for (std::vector<double>* sums : {&coarser_energies, &finer_cells, &coarser_cells}) {
        std::fill(sums->begin(), sums->end(), 0.0);
    }
    add_filtered_energy(*holder, shape_, coarser_energies.data());
    add_filtered_energy(filter, filter_bank_proportional, finer_cells.data());
    add_filtered_energy(*holder, filter_bank_proportional, coarser_cells.data());
    for (std::size_t column = 0; column < columns_; ++column) {
        if (coarser_cells[column] > 0.0) {
            energies[column] +=
                coarser_energies[column] * finer_cells[column] / coarser_cells[column];
        }
    }
}

void filter_bank_conversion::add_filtered_energy(acoustics::OctaveBandFilter const& filter,
                                                 filter_bank_shape shape, double* energies) const {
    if (columns_ == 0) {
        // A field without columns has no energies to gather.
        return;
    }
    if (shape == filter_bank_butterworth) {
        // Summed for every Butterworth band at once, before the bands are filled.
        auto const& heard = scratch_.heard_filters;
        std::size_t const index = static_cast<std::size_t>(
            std::find(heard.begin(), heard.end(), &filter) - heard.begin());
        std::size_t const per_column = passes_for(heard.size()) * bands_per_pass;
        for (std::size_t column = 0; column < columns_; ++column) {
            energies[column] += scratch_.filtered_energies[column * per_column + index];
        }
        return;
    }
    line_span const lines = lines_reaching(filter);
    double const* line_energies = scratch_.line_energies.data();
    if (columns_ == 1) {
        // A spectrum's band sum stays in a register instead of going through memory per line.
        double sum = energies[0];
        for (std::size_t line = lines.first; line < lines.last; ++line) {
            double const passed = response(filter, shape, range_(line));
            if (passed != 0.0) {
                sum += passed * line_energies[line];
            }
        }
        energies[0] = sum;
        return;
    }
    for (std::size_t line = lines.first; line < lines.last; ++line) {
        double const passed = response(filter, shape, range_(line));
        if (passed == 0.0) {
            continue;
        }
        double const* energies_of_line = &line_energies[line * columns_];
        for (std::size_t column = 0; column < columns_; ++column) {
            energies[column] += passed * energies_of_line[column];
        }
    }
}

// A Butterworth band hears every line. The bands of [first, last), or the coarser bands that
// stand in for those the lines do not resolve, are summed side by side, bands_per_pass at a
// time, so that their sums grow together in registers instead of each waiting on its previous
// line; each sum still takes the lines in order.
void filter_bank_conversion::filter_through_butterworth_bands(
    std::vector<acoustics::OctaveBandFilter>::const_iterator first,
    std::vector<acoustics::OctaveBandFilter>::const_iterator last) {
    auto& wanted = scratch_.wanted_filters;
    wanted.clear();
    for (auto filter = first; filter != last; ++filter) {
        acoustics::OctaveBandFilter const* holder = holder_of(*filter);
        acoustics::OctaveBandFilter const* heard = holder != nullptr ? holder : &*filter;
        if (std::find(wanted.begin(), wanted.end(), heard) == wanted.end()) {
            wanted.push_back(heard);
        }
    }
    keep_responses_of_wanted_filters();
    std::size_t const passes = passes_for(wanted.size());
    std::vector<double>& sums = scratch_.filtered_energies;
    sums.resize(passes * bands_per_pass * columns_);
    std::vector<double> const& energies = scratch_.line_energies;
    bool const finite = std::all_of(energies.begin(), energies.end(),
                                    [](double energy) { return std::isfinite(energy); });
    double const* responses = scratch_.responses.data();
    for (std::size_t pass = 0; pass < passes; ++pass, responses += range_.count * bands_per_pass) {
        for (std::size_t column = 0; column < columns_; ++column) {
            double const* energy = energies.data() + column;
            std::array<double, bands_per_pass> const sum =
                finite ? filtered_sums<true>(responses, energy, range_.count, columns_)
                       : filtered_sums<false>(responses, energy, range_.count, columns_);
            std::copy(sum.begin(), sum.end(), &sums[(column * passes + pass) * bands_per_pass]);
        }
    }
}

// The responses depend on the grid and the filters alone: they are computed on the first
// conversion of a regular grid and read back by the next ones. They are kept pass after pass,
// line after line, with silent bands filling the last pass.
void filter_bank_conversion::keep_responses_of_wanted_filters() {
    if (scratch_.responses_grid.same_grid(regular_grid_key::of(range_)) &&
        scratch_.heard_filters == scratch_.wanted_filters) {
        return;
    }
    scratch_.responses_grid = regular_grid_key{}; // a build cut short is never reused
    scratch_.heard_filters = scratch_.wanted_filters;
    auto const& heard = scratch_.heard_filters;
    std::vector<double>& responses = scratch_.responses;
    responses.assign(passes_for(heard.size()) * range_.count * bands_per_pass, 0.0);
    for (std::size_t band = 0; band < heard.size(); ++band) {
        std::size_t const pass = band / bands_per_pass;
        for (std::size_t line = 0; line < range_.count; ++line) {
            responses[(pass * range_.count + line) * bands_per_pass + band % bands_per_pass] =
                response(*heard[band], filter_bank_butterworth, range_(line));
        }
    }
    scratch_.responses_grid = regular_grid_key::of(range_);
}

filter_bank_conversion::line_span
filter_bank_conversion::lines_reaching(acoustics::OctaveBandFilter const& filter) const {
    // A listed range is in no known order. On a regular grid an ideal or proportional band
    // hears only the lines within a line of its edges, so that each band visits its own lines
    // only.
    if (!(range_.df > 0.0)) {
        return {0, range_.count};
    }
    if (std::isnan(range_.f_start)) {
        // A grid that starts at no number places its lines on no band.
        return {0, 0};
    }
    auto line_near = [this](double frequency) {
        double const steps = std::floor((frequency - range_.f_start) / range_.df);
        return static_cast<std::size_t>(
            std::min(std::max(steps, 0.0), static_cast<double>(range_.count)));
    };
    std::size_t const last = line_near(filter.upper_edge + range_.df) + 1;
    return {line_near(filter.lower_edge - range_.df), std::min(last, range_.count)};
}

double filter_bank_conversion::response(acoustics::OctaveBandFilter const& filter,
                                        filter_bank_shape shape, double frequency) const {
    switch (shape) {
    case filter_bank_rectangular:
        return holds(filter, frequency) ? 1.0 : 0.0;
    case filter_bank_proportional:
        // Lines of a listed range have no width and count where they lie.
        return range_.df > 0.0 ? covered_fraction(filter, frequency, range_.df)
                               : (holds(filter, frequency) ? 1.0 : 0.0);
    case filter_bank_butterworth:
        return band_pass_power_response(filter.bank->q_design, filter.bank->order, frequency,
                                        filter.midband_frequency);
    }
    return 0.0;
}

} // namespace detail
} // namespace VARNO
