#include <calc-common/spectra.hpp>

#include "frame/numeric_helpers.hpp"

#include <boost/make_shared.hpp>
#include <boost/numeric/conversion/cast.hpp>

using namespace VARNO::detail;

frequency_range_t::frequency_range_t()
    : f_start(0.0)
    , f_end(0.0)
    , df(0.0)
    , count(0) {}

boost::shared_ptr<frequency_range_t> frequency_range_t::create_nb(double f_start, double f_end,
                                                                  double df) {
    boost::shared_ptr<frequency_range_t> range = boost::make_shared<frequency_range_t>();
    range->f_start = f_start;
    range->f_end = f_end;
    range->df = df;
    // Truncation keeps every step that is not past the end; the cast reports a count that
    // cannot be a size.
    range->count = boost::numeric_cast<std::size_t>((f_end - f_start) / df + 1.0);
    return range;
}

boost::shared_ptr<frequency_range_t> frequency_range_t::create_dt(std::size_t const& count) {
    boost::shared_ptr<frequency_range_t> range = boost::make_shared<frequency_range_t>();
    range->frequencies.assign(count, 0.0);
    range->count = count;
    return range;
}

void frequency_range_t::add_frequency(double const& frequency) {
    frequencies.push_back(frequency);
    ++count;
}

double frequency_range_t::operator()(std::size_t const& index) const {
    if (tolerantly_above(df, 0.0)) {
        return static_cast<double>(index) * df + f_start;
    }
    return frequencies[index];
}

double frequency_range_t::at(std::size_t const& index) const {
    return (*this)(index);
}

std::size_t frequency_range_t::size() const {
    return count;
}

bool frequency_range_t::isNB() const {
    // The third-octave grid is listed by definition, whatever a caller has done to its list.
    return this != tob_frequency_range_ptr.get() && frequencies.empty();
}

bool frequency_range_t::equals(boost::shared_ptr<frequency_range_t> other) const {
    bool const this_nb = isNB();
    if (this_nb != other->isNB()) {
        return false;
    }
    if (this_nb) {
        return tolerantly_equal(f_start, other->f_start) && tolerantly_equal(f_end, other->f_end) &&
               tolerantly_equal(df, other->df);
    }
    if (count != other->count) {
        return false;
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (!tolerantly_equal(frequencies[i], other->frequencies[i])) {
            return false;
        }
    }
    return true;
}

boost::shared_ptr<frequency_range_t> frequency_range_t::clone() const {
    return boost::make_shared<frequency_range_t>(*this);
}
