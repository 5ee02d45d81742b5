#ifndef CALC_COMMON_VOCABULARY_HPP
#define CALC_COMMON_VOCABULARY_HPP

// Vocabulary: the enumerations with their numeric values and display texts, and the noise source
// catalogue.

#endif // CALC_COMMON_VOCABULARY_HPP
