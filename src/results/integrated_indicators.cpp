// Integrated indicators of one result type: lookup by indicator and clearing between
// directions.

#include <calc-common/results.hpp>

#include "results/indicator_places.hpp"

namespace {

template <class Record, std::size_t Count>
double value_of(Record const& record,
                std::array<VARNO::detail::indicator_place<Record>, Count> const& places,
                indicator_type_t indicator) {
    for (auto const& place : places) {
        if (place.indicator == indicator) {
            return record.*place.field;
        }
    }
    // Only what is stored can be asked for: instantaneous indicators have no integrated value.
    return 0.0;
}

template <class Record, std::size_t Count>
void clear_places(Record& record,
                  std::array<VARNO::detail::indicator_place<Record>, Count> const& places) {
    for (auto const& place : places) {
        if (place.cleared) {
            record.*place.field = 0.0;
        }
    }
}

} // namespace

integrated_noise_indicators_t::integrated_noise_indicators_t(boost::shared_ptr<result_type_t> type)
    : type(type) {}

double integrated_noise_indicators_t::get(indicator_type_t const& indicator) const {
    return value_of(*this, VARNO::detail::integrated_places, indicator);
}

double integrated_noise_indicators_t::get_expo_avg(indicator_type_t const& indicator) const {
    return value_of(exposure, VARNO::detail::exposure_places, indicator);
}

void integrated_noise_indicators_t::clear_values() {
    clear_places(*this, VARNO::detail::integrated_places);
    clear_places(exposure, VARNO::detail::exposure_places);
    exposure.events.clear();
}
