#ifndef VARNO_TESTS_METRICS_METRICS_TEST_SUPPORT_HPP
#define VARNO_TESTS_METRICS_METRICS_TEST_SUPPORT_HPP

#include <calc-common/metrics.hpp>

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <vector>

namespace metrics_test {

inline boost::shared_ptr<spectrum_t> tob_spectrum(std::vector<double> const& levels) {
    boost::shared_ptr<spectrum_t> spectrum = spectrum_t::create_tob();
    spectrum->values = levels;
    return spectrum;
}

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

} // namespace metrics_test

#endif // VARNO_TESTS_METRICS_METRICS_TEST_SUPPORT_HPP
