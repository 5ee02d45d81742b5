#ifndef VARNO_TESTS_SUPPORT_ERROR_TEXT_HPP
#define VARNO_TESTS_SUPPORT_ERROR_TEXT_HPP

#include <calc-common/frame.hpp>

#include <string>

namespace test_support {

// The text of the library error an action throws, or "no error", so that a test can compare the
// exact message in one expectation.
template <typename Action>
std::string error_text(Action action) {
    try {
        action();
    } catch (varno_calc_error const& error) {
        return error.what();
    }
    return "no error";
}

} // namespace test_support

#endif // VARNO_TESTS_SUPPORT_ERROR_TEXT_HPP
