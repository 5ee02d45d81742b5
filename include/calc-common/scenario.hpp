#ifndef CALC_COMMON_SCENARIO_HPP
#define CALC_COMMON_SCENARIO_HPP

/// @file
/// Scenario model: the environment that roots a scenario, its aircraft with engines, noise
/// sources and geometry, the calculations with their prediction and transposition options, the
/// simulations that join an aircraft to a calculation, their calculation points, and the lookup
/// of the options in force for one source.
///
/// Every record is built with its defaults, which the calculation libraries read without setting
/// them. Records are held and passed as boost::shared_ptr; a copy shares its parts, and only the
/// operations named clone copy deeply.

#include <calc-common/scenario/aircraft.hpp>
#include <calc-common/scenario/prediction_options.hpp>
#include <calc-common/scenario/simulation.hpp>
#include <calc-common/scenario/transposition_options.hpp>

#endif // CALC_COMMON_SCENARIO_HPP
