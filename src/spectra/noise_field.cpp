#include <calc-common/spectra.hpp>

#include "frame/numeric_helpers.hpp"

#include <boost/make_shared.hpp>

#include <algorithm>

using namespace VARNO::detail;

noise_field_t::noise_field_t()
    : owns_frequency_range(false)
    , owns_column_range(false) {}

noise_field_t::noise_field_t(boost::shared_ptr<frequency_range_t> range,
                             boost::shared_ptr<noise_field_column_range_t> columns)
    : frequency_range(range)
    , owns_frequency_range(false)
    , column_range(columns)
    , owns_column_range(false)
    , values(columns->size() * range->count, 0.0) {}

boost::shared_ptr<noise_field_t>
noise_field_t::create_tob(boost::shared_ptr<noise_field_column_range_t> columns) {
    return boost::make_shared<noise_field_t>(tob_frequency_range_ptr, columns);
}

double& noise_field_t::at(std::size_t const& frequency_index, std::size_t const& column) {
    return values[frequency_index * column_range->size() + column];
}

double& noise_field_t::operator()(std::size_t const& frequency_index, std::size_t const& column) {
    return at(frequency_index, column);
}

double& noise_field_t::distance_at(std::size_t const& column) {
    return column_range->distances[column];
}

void noise_field_t::add_tone(tone_id_t tone) {
    tones.push_back(tone);
}

void noise_field_t::log_add(boost::shared_ptr<noise_field_t> a, boost::shared_ptr<noise_field_t> b,
                            boost::shared_ptr<noise_field_t> result) {
    // The frequency axis is one grid only when it is the same object, but the directivity
    // axis is matched by its number of columns alone: two fields on equal-sized column ranges
    // of different objects add.
    std::size_t const columns = a->column_range->size();
    if (a->frequency_range != b->frequency_range || a->frequency_range != result->frequency_range ||
        columns != b->column_range->size() || columns != result->column_range->size()) {
        throw varno_calc_error("noise_field_t::log_add");
    }
    std::size_t const frequencies = a->frequency_range->count;
    for (std::size_t column = 0; column < columns; ++column) {
        for (std::size_t i = 0; i < frequencies; ++i) {
            // Both inputs are read before the output is written, so result may alias a or b.
            std::size_t const entry = i * columns + column;
            result->values[entry] = add_levels(a->values[entry], b->values[entry]);
        }
    }
}

void noise_field_t::clear() {
    if (!frequency_range || !column_range || frequency_range->count == 0 ||
        column_range->size() == 0) {
        return;
    }
    std::fill(values.begin(), values.end(), 0.0);
    tones.clear();
}

boost::shared_ptr<noise_field_t> noise_field_t::clone() const {
    boost::shared_ptr<noise_field_t> copy =
        boost::make_shared<noise_field_t>(frequency_range, column_range);
    copy->values = values;
    copy->tones = tones;
    return copy;
}

bool noise_field_t::copy_to(boost::shared_ptr<noise_field_t> target) const {
    target->values = values;
    target->tones = tones;
    // True, unlike spectrum_t::copy_to: callers have always seen the two differ.
    return true;
}

void noise_field_t::assert_non_negative() {
    std::size_t const entries = frequency_range->count * column_range->size();
    for (std::size_t entry = 0; entry < entries; ++entry) {
        if (values[entry] < 0.001) {
            values[entry] = 0.0;
        }
    }
}

void noise_field_t::give_column_range_ownership() {
    if (!owns_column_range) {
        column_range = column_range->clone();
        owns_column_range = true;
    }
}
