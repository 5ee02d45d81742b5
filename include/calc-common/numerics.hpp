#ifndef CALC_COMMON_NUMERICS_HPP
#define CALC_COMMON_NUMERICS_HPP

// Numerical toolkit: interpolation, splines, smoothing B-splines, Chebyshev polynomials and complex
// arithmetic.

#endif // CALC_COMMON_NUMERICS_HPP
