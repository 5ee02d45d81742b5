#ifndef CALC_COMMON_VOCABULARY_HPP
#define CALC_COMMON_VOCABULARY_HPP

// Vocabulary: the enumerations with their numeric values and display texts, and the noise source
// catalogue.

/// Method separating tones from broadband noise.
enum tone_sep_method_t : int {
    tone_sep_slope_differences = 0,
    tone_sep_discrete_frequencies_detection = 1,
};

#endif // CALC_COMMON_VOCABULARY_HPP
