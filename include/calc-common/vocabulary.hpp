#ifndef CALC_COMMON_VOCABULARY_HPP
#define CALC_COMMON_VOCABULARY_HPP

// Vocabulary: the enumerations with their numeric values and display texts, and the noise source
// catalogue.

/// How tones are told from broadband noise in a third-octave spectrum.
enum tone_sep_method_t : int {
    slope_differences = 0,             ///< "Slope differences"
    discrete_frequencies_detection = 1 ///< "Discrete frequencies detection"
};

#endif // CALC_COMMON_VOCABULARY_HPP
