#include <calc-common/frame.hpp>

#include <boost/format.hpp>

varno_calc_error::varno_calc_error(char const* function_name)
    : std::runtime_error(
          (boost::format("An error occurred in function %1%") % function_name).str()) {}
