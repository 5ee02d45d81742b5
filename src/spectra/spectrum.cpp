#include <calc-common/spectra.hpp>

#include "frame/numeric_helpers.hpp"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cstdint>

using namespace VARNO::detail;

spectrum_t::spectrum_t()
    : owns_frequency_range(false) {}

spectrum_t::spectrum_t(boost::shared_ptr<frequency_range_t> range)
    : frequency_range(range)
    , owns_frequency_range(false)
    , values(range->count, 0.0) {}

boost::shared_ptr<spectrum_t> spectrum_t::create_tob() {
    return boost::make_shared<spectrum_t>(tob_frequency_range_ptr);
}

void spectrum_t::reserve(boost::shared_ptr<spectrum_t>* holder,
                         boost::shared_ptr<frequency_range_t> range) {
    if (holder == nullptr) {
        throw varno_calc_error("spectrum_t::reserve");
    }
    if (!*holder) {
        *holder = boost::make_shared<spectrum_t>(range);
    } else if ((*holder)->frequency_range == range) {
        (*holder)->clear();
    }
    // A spectrum on another grid is deliberately kept as it is: reserve never rebinds.
}

void spectrum_t::reserve_tob(boost::shared_ptr<spectrum_t>* holder) {
    reserve(holder, tob_frequency_range_ptr);
}

void spectrum_t::log_add(boost::shared_ptr<spectrum_t> a, boost::shared_ptr<spectrum_t> b,
                         boost::shared_ptr<spectrum_t> result) {
    // Same grid means the same object: equal numbers on two objects are two grids.
    if (a->frequency_range != b->frequency_range || a->frequency_range != result->frequency_range) {
        throw varno_calc_error("spectrum_t::log_add");
    }
    std::size_t const count = a->frequency_range->count;
    for (std::size_t i = 0; i < count; ++i) {
        // Both inputs are read before the output is written, so result may alias a or b.
        result->values[i] = add_levels(a->values[i], b->values[i]);
    }
}

void spectrum_t::add_value(double const& frequency, double const& level) {
    frequency_range->add_frequency(frequency);
    values.push_back(level);
}

void spectrum_t::multiply(double const& factor) {
    for (double& value : values) {
        value *= factor;
    }
}

void spectrum_t::fill_with(double const& level) {
    std::fill(values.begin(), values.end(), level);
}

double& spectrum_t::at(std::size_t const& index) {
    return values[index];
}

double& spectrum_t::operator()(std::size_t const& index) {
    return values[index];
}

double spectrum_t::frequency_at(std::size_t const& index) const {
    // Tones record their band as an int, so the index is matched on its low 32 bits.
    int const band = static_cast<int>(static_cast<std::uint32_t>(index));
    for (tone_id_t const& tone : tones) {
        if (tone.band_index == band && tone.ni_order == 0) {
            return tone.frequency;
        }
    }
    return (*frequency_range)(index);
}

void spectrum_t::clear() {
    if (!frequency_range || frequency_range->count == 0) {
        return;
    }
    std::fill(values.begin(), values.end(), 0.0);
    tones.clear();
}

boost::shared_ptr<spectrum_t> spectrum_t::clone() const {
    boost::shared_ptr<spectrum_t> copy = boost::make_shared<spectrum_t>(frequency_range);
    copy->values = values;
    copy->tones = tones;
    return copy;
}

bool spectrum_t::copy_to(boost::shared_ptr<spectrum_t> target) const {
    target->values = values;
    target->tones = tones;
    // Callers have always received false here; the copy has nonetheless been made.
    return false;
}

void spectrum_t::assert_non_negative() {
    std::size_t const count = frequency_range->count;
    for (std::size_t i = 0; i < count; ++i) {
        if (values[i] < 0.001) {
            values[i] = 0.0;
        }
    }
}

void spectrum_t::give_frequency_range_ownership() {
    if (!owns_frequency_range) {
        frequency_range = frequency_range->clone();
        owns_frequency_range = true;
    }
}
