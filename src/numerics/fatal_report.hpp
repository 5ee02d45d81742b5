#ifndef CALC_COMMON_SRC_NUMERICS_FATAL_REPORT_HPP
#define CALC_COMMON_SRC_NUMERICS_FATAL_REPORT_HPP

// The spline routines report a fatal fault in the console style of their published origins: an
// empty line, "<ROUTINE> - Fatal error!", then indented detail lines, on standard error.

#include <iostream>

namespace VARNO {
namespace detail {

/// Writes the empty line and the title of a fatal report, and gives the stream for the details.
inline std::ostream& begin_fatal_report(char const* routine) {
    std::cerr << "\n" << routine << " - Fatal error!\n";
    return std::cerr;
}

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_NUMERICS_FATAL_REPORT_HPP
