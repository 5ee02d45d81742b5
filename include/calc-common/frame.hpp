#ifndef CALC_COMMON_FRAME_HPP
#define CALC_COMMON_FRAME_HPP

/// @file
/// The calculation frame: the one exception through which the library reports its own failures.

#include <calc-common/export.hpp>

#include <stdexcept>
#include <string>

/// The library's only exception. Every fault the library detects itself is thrown as this type,
/// by value, from the function that detects it; catch it by reference (also possible as
/// std::runtime_error or std::exception). It holds nothing but its message.
class VARNO_CALC_COMMON_EXPORT varno_calc_error : public std::runtime_error {
public:
    /// Usual form, naming the raising function: what() reads
    /// "An error occurred in function <function_name>".
    explicit varno_calc_error(char const* function_name);

    /// Detailed form: what() gives `message` as it stands, with no function name around it.
    static varno_calc_error with_message(std::string const& message) {
        return varno_calc_error(message, detailed_tag{});
    }

private:
    struct detailed_tag {};
    varno_calc_error(std::string const& message, detailed_tag)
        : std::runtime_error(message) {}
};

#endif // CALC_COMMON_FRAME_HPP
