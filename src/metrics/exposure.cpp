#include <calc-common/metrics.hpp>

#include "frame/numeric_helpers.hpp"
#include "metrics/metrics_detail.hpp"

#include <boost/format.hpp>

#include <cmath>

// Cumulative indicators spread the exposure of a day of events over a period. Events are
// sorted into periods by their hour; the weightings penalise the evening and the night, when
// the same sound disturbs more.

namespace {

using VARNO::detail::not_a_number;
using VARNO::detail::seconds_per_hour;

constexpr double day_start = 7.0;      // h
constexpr double evening_start = 19.0; // h
constexpr double night_start = 22.0;   // h
constexpr double hours_per_day = 24.0;

constexpr double night_weight = 10.0;  // +10 dB
constexpr double evening_weight = 3.0; // 10 log10(3), about +4.77 dB
constexpr double nef_night_weight = 16.67;
constexpr double nef_offset = 88.0; // dB

/// True when `hour` lies in the period from `start` to `end`, which may run past midnight;
/// equal ends mean the whole day.
bool in_period(double hour, double start, double end) {
    if (start == end) {
        return true;
    }
    return start < end ? hour >= start && hour < end : hour >= start || hour < end;
}

double period_hours(double start, double end) {
    double const hours = std::fmod(end - start + hours_per_day, hours_per_day);
    return hours > 0.0 ? hours : hours_per_day;
}

void check_hours(std::vector<noise_event_t> const& events, char const* function) {
    for (noise_event_t const& event : events) {
        if (!(event.time_of_day >= 0.0 && event.time_of_day < hours_per_day)) {
            throw varno_calc_error::with_message(
                (boost::format("%1%: the time of day of an event is not within 0 to 24 hours") %
                 function)
                    .str());
        }
    }
}

/// Sum of the energies of one field of the events, each times the weight its hour earns;
/// not a number when a contributing level is.
template <class Field, class Weight>
double weighted_energy(std::vector<noise_event_t> const& events, Field field, Weight weight) {
    double energy = 0.0;
    for (noise_event_t const& event : events) {
        double const w = weight(event.time_of_day);
        if (w == 0.0) {
            continue;
        }
        double const level = event.*field;
        if (std::isnan(level)) {
            return not_a_number;
        }
        energy += w * VARNO::detail::level_to_energy(level);
    }
    return energy;
}

double level_of(double energy, double seconds) {
    return std::isnan(energy) ? not_a_number : VARNO::detail::energy_to_level(energy / seconds);
}

double day_night_weight(double hour) {
    return in_period(hour, night_start, day_start) ? night_weight : 1.0;
}

double day_evening_night_weight(double hour) {
    if (in_period(hour, evening_start, night_start)) {
        return evening_weight;
    }
    return day_night_weight(hour);
}

} // namespace

double Calc_EquivalentLevel(std::vector<noise_event_t> const& events, double start_hour,
                            double end_hour) {
    check_hours(events, "Calc_EquivalentLevel");
    double const energy = weighted_energy(events, &noise_event_t::sel, [&](double hour) {
        return in_period(hour, start_hour, end_hour) ? 1.0 : 0.0;
    });
    return level_of(energy, period_hours(start_hour, end_hour) * seconds_per_hour);
}

double Calc_DayNightLevel(std::vector<noise_event_t> const& events) {
    check_hours(events, "Calc_DayNightLevel");
    return level_of(weighted_energy(events, &noise_event_t::sel, day_night_weight),
                    hours_per_day * seconds_per_hour);
}

double Calc_CommunityNoiseEquivalentLevel(std::vector<noise_event_t> const& events) {
    check_hours(events, "Calc_CommunityNoiseEquivalentLevel");
    return level_of(weighted_energy(events, &noise_event_t::sel, day_evening_night_weight),
                    hours_per_day * seconds_per_hour);
}

double Calc_NumberAbove(std::vector<noise_event_t> const& events, double threshold) {
    double count = 0.0;
    for (noise_event_t const& event : events) {
        if (std::isnan(event.la_max)) {
            return not_a_number;
        }
        count += event.la_max > threshold ? 1.0 : 0.0;
    }
    return count;
}

double Calc_TotalTimeAbove(std::vector<noise_event_t> const& events) {
    double total = 0.0;
    for (noise_event_t const& event : events) {
        total += event.time_above;
    }
    return total;
}

double Calc_NoiseExposureForecast(std::vector<noise_event_t> const& events) {
    check_hours(events, "Calc_NoiseExposureForecast");
    double const energy = weighted_energy(events, &noise_event_t::epnl, [](double hour) {
        return in_period(hour, night_start, day_start) ? nef_night_weight : 1.0;
    });
    if (std::isnan(energy)) {
        return not_a_number;
    }
    return energy > 0.0 ? 10.0 * std::log10(energy) - nef_offset : 0.0;
}
