#ifndef CALC_COMMON_PROPAGATION_HPP
#define CALC_COMMON_PROPAGATION_HPP

// Propagation: atmospheric absorption, spherical divergence and ground reflection.

#endif // CALC_COMMON_PROPAGATION_HPP
