// Narrowband and discrete-line conversion to the third-octave grid, on arbitrary grids and
// levels. A noise field is converted once whole and once column by column as spectra: the two
// must agree, since each column of a field is converted as the spectrum it holds.

#include "fuzz_input.hpp"

#include <calc-common/frame.hpp>
#include <calc-common/spectra.hpp>

#include <boost/make_shared.hpp>

#include <climits>

using fuzzing::fuzz_input;

namespace {

constexpr std::size_t max_lines = 96;
constexpr std::size_t max_columns = 3;

boost::shared_ptr<frequency_range_t> narrowband_range(fuzz_input& in, std::size_t count) {
    auto range = boost::make_shared<frequency_range_t>();
    range->f_start = in.number();
    range->df = in.number();
    // A step that is not above zero turns the grid into an empty list: every line past its end.
    if (!fuzzing::computes_frequencies(range->df))
        range->df = 1.0;
    // Callers set the fields themselves; most keep the end where the step puts it.
    range->f_end = in.flag() ? in.number() : range->f_start + (count - 1.0) * range->df;
    range->count = count;
    return range;
}

boost::shared_ptr<frequency_range_t> listed_range(fuzz_input& in, std::size_t count) {
    auto range = boost::make_shared<frequency_range_t>();
    range->frequencies = in.numbers(count);
    range->count = count;
    return range;
}

boost::shared_ptr<frequency_range_t> input_range(fuzz_input& in) {
    switch (in.byte() % 8) {
    case 0:
        return tob_frequency_range_ptr; // refused: already on the grid
    case 1:
    case 2:
    case 3:
        return listed_range(in, in.count(max_lines));
    default:
        return narrowband_range(in, in.count(max_lines));
    }
}

int line_count_from(fuzz_input& in) {
    switch (in.byte() % 16) {
    case 0:
        return INT_MAX;
    case 1:
        return INT_MIN;
    case 2:
        return 3; // selects the filter bank
    default:
        return static_cast<int>(in.byte()) - 16;
    }
}

boost::shared_ptr<spectrum_t> column_as_spectrum(noise_field_t const& field, std::size_t column) {
    auto spectrum = boost::make_shared<spectrum_t>(field.frequency_range);
    std::size_t const columns = field.column_range->size();
    for (std::size_t i = 0; i < spectrum->values.size(); ++i)
        spectrum->values[i] = field.values[i * columns + column];
    return spectrum;
}

void expect_columns_match(noise_field_t const& field, std::size_t column,
                          spectrum_t const& spectrum) {
    std::size_t const columns = field.column_range->size();
    for (std::size_t i = 0; i < spectrum.values.size(); ++i) {
        double const whole = field.values[i * columns + column];
        if (!fuzzing::close_result(whole, spectrum.values[i]))
            fuzzing::mismatch("field column against its spectrum", i, whole, spectrum.values[i]);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz_input in(data, size);
    auto const range = input_range(in);
    auto const method = static_cast<nbtob_conversion_method>(static_cast<int>(in.count(4)) - 1);
    int const line_count = line_count_from(in);
    // An output that is not the grid object itself is refused; a clone tests that refusal.
    bool const output_on_clone = in.byte() % 16 == 0;
    std::size_t const columns = in.count(max_columns);

    std::vector<double> angles(columns, 0.0);
    auto const column_range = noise_field_column_range_t::from_angles(angles);
    auto field = boost::make_shared<noise_field_t>(range, column_range);
    // The value count follows the grid's count: a shorter list is an index past the end.
    field->values = in.numbers(field->values.size());

    auto const output_grid =
        output_on_clone ? tob_frequency_range_ptr->clone() : tob_frequency_range_ptr;
    auto field_out = boost::make_shared<noise_field_t>(output_grid, column_range);
    int const field_result = convert_noise_field_to_tob(field, field_out, method, line_count);
    for (std::size_t column = 0; column < columns; ++column) {
        auto const spectrum = column_as_spectrum(*field, column);
        auto spectrum_out = boost::make_shared<spectrum_t>(output_grid);
        int const result = convert_spectrum_to_tob(spectrum, spectrum_out, method, line_count);
        if (result != field_result)
            fuzzing::mismatch("conversion result of a column", column, result, field_result);
        expect_columns_match(*field_out, column, *spectrum_out);
    }

    // The filter bank writes the whole third-octave grid, so its output must be on that grid.
    auto bank_out = noise_field_t::create_tob(column_range);
    VARNO::TrrApi::NbToTob(field, bank_out, method);
    for (std::size_t column = 0; column < columns; ++column) {
        auto spectrum_out = spectrum_t::create_tob();
        VARNO::TrrApi::NbToTob(column_as_spectrum(*field, column), spectrum_out, method);
        expect_columns_match(*bank_out, column, *spectrum_out);
    }
    return 0;
}
