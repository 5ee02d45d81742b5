#include <calc-common/spectra.hpp>

#include "spectra/tob_conversion.hpp"

using namespace VARNO::detail;

// Choice of the conversion path for a spectrum or a field: the output must be the shared
// third-octave grid and the input another grid. A regular grid (df not 0) is narrowband and is
// summed into bands, or passed through the filter banks when `line_count` is 3; a listed grid
// is a list of discrete lines.

namespace {

template <class Levels>
int convert_to_tob(boost::shared_ptr<Levels> input, boost::shared_ptr<Levels> output,
                   nbtob_conversion_method method, int line_count) {
    if (output->frequency_range != tob_frequency_range_ptr ||
        input->frequency_range == tob_frequency_range_ptr) {
        return 1;
    }
    frequency_range_t const& range = *input->frequency_range;
    std::size_t const columns = column_count(*input);
    if (range.df != 0.0) {
        // A line count of 3 is the caller's way of asking for the filter banks.
        if (line_count == 3) {
            VARNO::TrrApi::NbToTob(input, output, method);
            return 0;
        }
        return sum_narrowband_into_tob(range, input->values, columns, method, line_count,
                                       output->values);
    }
    share_discrete_lines_into_tob(range, input->values, columns, output->values);
    return 0;
}

} // namespace

int convert_spectrum_to_tob(boost::shared_ptr<spectrum_t> input,
                            boost::shared_ptr<spectrum_t> output, nbtob_conversion_method method,
                            int line_count) {
    return convert_to_tob(input, output, method, line_count);
}

int convert_noise_field_to_tob(boost::shared_ptr<noise_field_t> input,
                               boost::shared_ptr<noise_field_t> output,
                               nbtob_conversion_method method, int line_count) {
    return convert_to_tob(input, output, method, line_count);
}
