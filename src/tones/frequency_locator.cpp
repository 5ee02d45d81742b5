#include <calc-common/tones.hpp>

#include "tones/tone_location.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace VARNO::detail;

// The band-slope procedure of tone correction for perceived noise: changes of slope between
// adjacent bands flag candidate tones, the flagged bands are bridged by their neighbours, and a
// baseline is rebuilt from three-band averages of the bridged slopes. A band that stands
// `tone_margin` or more above that baseline is a tone. The work is confined to the bands from the
// first to the last that hold any level.

namespace {

// Scratch arrays of one locator, reused while the band count stays the same.
struct frequency_locator_workspace {
    std::vector<double> slopes;
    std::vector<double> adjusted_slopes; // 2n + 3 entries; the first n + 1 are used
    std::vector<double> average_slopes;
    std::vector<double> adjusted;
    std::vector<double> baseline;
    std::vector<bool> flagged;

    void prepare(std::size_t n) {
        if (slopes.size() == n) {
            for (std::vector<double>* array :
                 {&slopes, &adjusted_slopes, &average_slopes, &adjusted, &baseline}) {
                std::fill(array->begin(), array->end(), 0.0);
            }
            std::fill(flagged.begin(), flagged.end(), false);
            return;
        }
        refill(slopes, n);
        refill(adjusted_slopes, 2 * n + 3);
        refill(average_slopes, n);
        refill(adjusted, n);
        refill(baseline, n);
        flagged.clear();
        flagged.resize(n, false);
    }

    static void refill(std::vector<double>& array, std::size_t size) {
        array.clear();
        array.resize(size, 0.0);
    }
};

// The bands from `first` to `last` that hold any level; both 0 when none does.
struct occupied_span {
    std::size_t first;
    std::size_t last;
};

occupied_span find_occupied_span(double const* levels, std::size_t n) {
    occupied_span span{0, 0};
    bool found = false;
    for (std::size_t i = 0; i < n; ++i) {
        if (levels[i] > empty_band_level) {
            if (!found) {
                span.first = i;
                found = true;
            }
            span.last = i;
        }
    }
    return span;
}

// Steps 2 to 4: slopes, flags on changes of slope, and the flags moved onto the peaks.
template <class Compare>
void flag_peaks(double const* levels, occupied_span span, double slope_step,
                frequency_locator_workspace& work) {
    std::vector<double>& slopes = work.slopes;
    for (std::size_t i = span.first + 1; i <= span.last; ++i) {
        slopes[i] = levels[i] - levels[i - 1];
    }
    for (std::size_t i = span.first + 2; i <= span.last; ++i) {
        if (Compare::above(std::fabs(slopes[i] - slopes[i - 1]), slope_step)) {
            work.flagged[i] = true;
        }
    }
    for (std::size_t i = span.first + 2; i <= span.last; ++i) {
        if (!work.flagged[i]) {
            continue;
        }
        if (Compare::above(slopes[i], 0.0) && Compare::above(slopes[i], slopes[i - 1])) {
            continue; // the level jumps up into this band: the flag stays
        }
        work.flagged[i] = false;
        if (Compare::at_most(slopes[i], 0.0) && Compare::above(slopes[i - 1], 0.0)) {
            work.flagged[i - 1] = true; // the peak is the band below
        }
    }
}

// Steps 5 to 9: bridge the flagged bands and rebuild a smooth baseline from the input level at
// `first` along three-band averages of the bridged slopes.
void rebuild_baseline(double const* levels, occupied_span span, frequency_locator_workspace& work) {
    std::size_t const first = span.first;
    std::size_t const last = span.last;
    std::vector<double>& adjusted = work.adjusted;
    for (std::size_t i = first; i < last; ++i) {
        adjusted[i] = work.flagged[i] ? (levels[i - 1] + levels[i + 1]) * 0.5 : levels[i];
    }
    // A flagged last band has no upper neighbour: carry the slope of the band below one band on.
    adjusted[last] = work.flagged[last] ? levels[last - 1] + work.slopes[last - 1] : levels[last];

    std::vector<double>& adjusted_slopes = work.adjusted_slopes;
    for (std::size_t i = first + 1; i <= last; ++i) {
        adjusted_slopes[i] = adjusted[i] - adjusted[i - 1];
    }
    adjusted_slopes[first] = adjusted_slopes[first + 1];
    adjusted_slopes[last + 1] = adjusted_slopes[last];
    for (std::size_t i = first; i < last; ++i) {
        work.average_slopes[i] =
            (adjusted_slopes[i] + adjusted_slopes[i + 1] + adjusted_slopes[i + 2]) / 3.0;
    }
    work.baseline[first] = levels[first];
    for (std::size_t i = first + 1; i <= last; ++i) {
        work.baseline[i] = work.baseline[i - 1] + work.average_slopes[i - 1];
    }
}

// Step 10: a height of exactly `tone_margin` above the baseline is a tone.
template <class Compare>
void split_by_baseline(double const* levels, std::size_t n, double tone_margin,
                       std::vector<double> const& baseline, double* broadband, double* tones) {
    for (std::size_t i = 0; i < n; ++i) {
        bool const is_tone = !Compare::below(levels[i] - baseline[i], tone_margin);
        broadband[i] = is_tone ? 0.0 : levels[i];
        tones[i] = is_tone ? levels[i] : 0.0;
    }
}

template <class Compare>
void locate_by_frequency(double const* levels, std::size_t n, occupied_span span, double slope_step,
                         double tone_margin, frequency_locator_workspace& work, double* broadband,
                         double* tones) {
    work.prepare(n);
    flag_peaks<Compare>(levels, span, slope_step, work);
    rebuild_baseline(levels, span, work);
    split_by_baseline<Compare>(levels, n, tone_margin, work.baseline, broadband, tones);
}

} // namespace

void Calc_TonesLocFreq(boost::shared_ptr<spectrum_t> spectrum, double slope_step,
                       double tone_margin, boost::shared_ptr<spectrum_t> broadband,
                       boost::shared_ptr<spectrum_t> tones) {
    thread_local frequency_locator_workspace work;
    std::vector<double> const& levels = spectrum->values;
    // A spectrum with no level at all runs through the procedure on band 0 alone.
    locate_by_frequency<tolerant_comparison>(
        levels.data(), levels.size(), find_occupied_span(levels.data(), levels.size()), slope_step,
        tone_margin, work, broadband->values.data(), tones->values.data());
}

void VARNO::detail::Calc_TonesLocFreqArray(std::vector<double> const& levels, double* broadband,
                                           double* tones, double const* slope_step,
                                           double const* tone_margin) {
    thread_local frequency_locator_workspace work;
    std::size_t const n = levels.size();
    bool const any_level = std::any_of(levels.begin(), levels.end(),
                                       [](double level) { return level > empty_band_level; });
    if (!any_level) {
        std::copy(levels.begin(), levels.end(), broadband);
        std::fill(tones, tones + n, 0.0);
        return;
    }
    locate_by_frequency<plain_comparison>(levels.data(), n, find_occupied_span(levels.data(), n),
                                          *slope_step, *tone_margin, work, broadband, tones);
}
