#ifndef CALC_COMMON_TONES_HPP
#define CALC_COMMON_TONES_HPP

// Tone analysis: locating tones, separating them from broadband noise and shifting them by Doppler.

#endif // CALC_COMMON_TONES_HPP
