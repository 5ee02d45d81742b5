#ifndef CALC_COMMON_SCENARIO_HPP
#define CALC_COMMON_SCENARIO_HPP

// Scenario model: environment, simulations, aircraft, options and calculation points.

#endif // CALC_COMMON_SCENARIO_HPP
