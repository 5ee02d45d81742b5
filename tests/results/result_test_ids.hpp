#ifndef VARNO_TESTS_RESULTS_RESULT_TEST_IDS_HPP
#define VARNO_TESTS_RESULTS_RESULT_TEST_IDS_HPP

#include <calc-common/vocabulary.hpp>

namespace result_test {

// Source types and noise components by number, as the tables of result identities give them.
inline source_type_t source(int value) {
    return static_cast<source_type_t>(value);
}

inline noise_component_t component(int value) {
    return static_cast<noise_component_t>(value);
}

} // namespace result_test

#endif // VARNO_TESTS_RESULTS_RESULT_TEST_IDS_HPP
