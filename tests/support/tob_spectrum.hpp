#ifndef VARNO_TESTS_SUPPORT_TOB_SPECTRUM_HPP
#define VARNO_TESTS_SUPPORT_TOB_SPECTRUM_HPP

#include <calc-common/spectra.hpp>

#include <boost/shared_ptr.hpp>

#include <vector>

namespace test_support {

/// A third-octave spectrum holding `levels` (dB, one per band of the 24-band grid).
inline boost::shared_ptr<spectrum_t> tob_spectrum(std::vector<double> const& levels) {
    boost::shared_ptr<spectrum_t> spectrum = spectrum_t::create_tob();
    spectrum->values = levels;
    return spectrum;
}

} // namespace test_support

#endif
