#include <calc-common/spectra.hpp>

#include "spectra/filter_bank_conversion.hpp"
#include "spectra/tob_conversion.hpp"

using namespace VARNO::detail;

// The filter-bank conversion of a spectrum or a field: the third-octave bands from 50 Hz to
// 10 kHz, which are exactly the bands of the library's grid.

namespace {

constexpr double tob_low_hz = 50.0;
constexpr double tob_high_hz = 10000.0;
constexpr std::size_t third_octave = 3;

template <class Levels>
void filter_into_tob(Levels const& input, Levels& output, nbtob_conversion_method method) {
    filter_bank_conversion conversion(*input.frequency_range, input.values, column_count(input),
                                      filter_bank_shape_of(method));
    conversion.band_levels(third_octave, tob_low_hz, tob_high_hz, output.values);
}

} // namespace

namespace VARNO {
namespace TrrApi {

void NbToTob(boost::shared_ptr<spectrum_t> input, boost::shared_ptr<spectrum_t> output,
             nbtob_conversion_method method) {
    filter_into_tob(*input, *output, method);
}

void NbToTob(boost::shared_ptr<noise_field_t> input, boost::shared_ptr<noise_field_t> output,
             nbtob_conversion_method method) {
    filter_into_tob(*input, *output, method);
}

} // namespace TrrApi
} // namespace VARNO
