#ifndef VARNO_TESTS_METRICS_METRICS_TEST_SUPPORT_HPP
#define VARNO_TESTS_METRICS_METRICS_TEST_SUPPORT_HPP

#include <calc-common/metrics.hpp>

#include "support/tob_spectrum.hpp"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <vector>

namespace metrics_test {

using test_support::tob_spectrum;

inline std::vector<double> flat(double level) {
    return std::vector<double>(24, level);
}

/// A flat spectrum with one band raised by `height` dB.
inline std::vector<double> with_peak(double level, std::size_t band, double height) {
    std::vector<double> levels = flat(level);
    levels[band] += height;
    return levels;
}

/// The same spectrum `count` times.
inline std::vector<boost::shared_ptr<spectrum_t>> held(std::vector<double> const& levels,
                                                       std::size_t count) {
    return std::vector<boost::shared_ptr<spectrum_t>>(count, tob_spectrum(levels));
}

/// Every 0.5 s, a 1 kHz band at 60, 71, 80, 75 and 65 dB; with the 75 dB sample comes a 95 dB
/// band at 50 Hz, loudest overall and noisiest (about 20 noy against 16) but some 30 dB(A) down.
inline std::vector<boost::shared_ptr<spectrum_t>> passby() {
    std::vector<boost::shared_ptr<spectrum_t>> history;
    for (double const level : {60.0, 71.0, 80.0, 75.0, 65.0}) {
        history.push_back(tob_spectrum(with_peak(0.0, 13, level)));
    }
    history[3]->values[0] = 95.0;
    return history;
}

/// An event at `hour` of the day with the given SEL (also its EPNL) and maximum A-weighted level.
inline noise_event_t event_at(double hour, double sel, double la_max = 0.0) {
    noise_event_t event;
    event.time_of_day = hour;
    event.sel = sel;
    event.epnl = sel;
    event.la_max = la_max;
    return event;
}

} // namespace metrics_test

#endif // VARNO_TESTS_METRICS_METRICS_TEST_SUPPORT_HPP
