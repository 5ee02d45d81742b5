#include <calc-common/tones.hpp>

#include "tones/tone_location.hpp"

#include <cmath>
#include <cstddef>

using namespace VARNO::detail;

// Once the tone bands are taken out of a broadband spectrum, its holes are filled in place by
// three passes, each seeing what the one before wrote: inner gaps by linear interpolation between
// the values on either side, then a leading gap and a trailing gap by extending the line through
// the two nearest values. The extensions are not limited.

namespace {

// Spectrum form: a gap is a level tolerantly equal to the caller's gap value; anything else is a
// value.
struct gap_value_bands {
    double gap_value;
    bool is_gap(double level) const { return tolerantly_same(level, gap_value); }
    bool is_value(double level) const { return !is_gap(level); }
};

// Array form: a gap is a level near zero. A level of exactly 0.1 is neither a gap nor a value,
// so it ends a run of either.
struct near_zero_gap_bands {
    static constexpr double threshold = 0.1;
    bool is_gap(double level) const { return std::fabs(level) < threshold; }
    bool is_value(double level) const { return std::fabs(level) > threshold; }
};

template <class Bands>
void fill_inner_gaps(double* levels, std::size_t n, Bands const& bands) {
    for (std::size_t i = 0; i + 1 < n; ++i) {
        if (!bands.is_value(levels[i]) || !bands.is_gap(levels[i + 1])) {
            continue;
        }
        std::size_t j = i;
        while (j < n - 1 && !(bands.is_gap(levels[j]) && bands.is_value(levels[j + 1]))) {
            ++j;
        }
        if (j == n - 1) {
            continue; // the gap runs to the end: left for the trailing pass
        }
        double const steps = static_cast<double>(j + 1 - i);
        double const start = levels[i];
        double const step = (levels[j + 1] - start) / steps;
        for (std::size_t k = i + 1; k <= j; ++k) {
            levels[k] = start + static_cast<double>(k - i) * step;
        }
    }
}

template <class Bands>
void fill_leading_gap(double* levels, std::size_t n, Bands const& bands) {
    if (!bands.is_gap(levels[0])) {
        return;
    }
    std::size_t k = 1;
    while (k < n && !(bands.is_gap(levels[k - 1]) && bands.is_value(levels[k]))) {
        ++k;
    }
    if (k >= n - 1) {
        return; // no value, or only the last band: no line to extend
    }
    double const anchor = levels[k];
    double const slope = levels[k + 1] - anchor;
    for (std::size_t i = 0; i <= k; ++i) {
        levels[i] = anchor - slope * static_cast<double>(k - i);
    }
}

template <class Bands>
void fill_trailing_gap(double* levels, std::size_t n, Bands const& bands) {
    if (!bands.is_gap(levels[n - 1])) {
        return;
    }
    std::ptrdiff_t last_value = static_cast<std::ptrdiff_t>(n) - 2;
    while (last_value >= 0 &&
           !(bands.is_value(levels[last_value]) && bands.is_gap(levels[last_value + 1]))) {
        --last_value;
    }
    if (last_value <= 0) {
        return; // no value, or only band 0: no line to extend
    }
    double const anchor = levels[last_value];
    double const slope = levels[last_value - 1] - anchor;
    for (std::ptrdiff_t j = last_value; j < static_cast<std::ptrdiff_t>(n); ++j) {
        levels[j] = anchor - slope * static_cast<double>(j - last_value);
    }
}

template <class Bands>
void fill_gaps(double* levels, std::size_t n, Bands const& bands) {
    if (n == 0) {
        return; // a spectrum with no band has no gap
    }
    fill_inner_gaps(levels, n, bands);
    fill_leading_gap(levels, n, bands);
    fill_trailing_gap(levels, n, bands);
}

} // namespace

void Calc_InterpSpec(boost::shared_ptr<spectrum_t> spectrum, double gap_value) {
    std::vector<double>& levels = spectrum->values;
    fill_gaps(levels.data(), levels.size(), gap_value_bands{gap_value});
}

void VARNO::detail::Calc_InterpSpecArray(std::vector<double>& levels) {
    fill_gaps(levels.data(), levels.size(), near_zero_gap_bands{});
}
