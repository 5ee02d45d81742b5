#ifndef CALC_COMMON_RESULTS_HPP
#define CALC_COMMON_RESULTS_HPP

// Results: result identity, indicators and directional results, result files and result
// preparation.

#endif // CALC_COMMON_RESULTS_HPP
