#include <calc-common/frame.hpp>

#include <gtest/gtest.h>

#include <string>

TEST(VarnoCalcError, FunctionFormNamesTheRaisingFunctionAndDetailedFormKeepsTheTextAlone) {
    try {
        throw varno_calc_error("spectrum_t::reserve");
    } catch (std::runtime_error const& error) {
        EXPECT_STREQ(error.what(), "An error occurred in function spectrum_t::reserve");
    }
    // The detailed text is the error's own copy: it outlives the string it was made from.
    varno_calc_error const error = [] {
        std::string text = "Spline interpolation failed.";
        return varno_calc_error::with_message(text);
    }();
    std::exception const& base = error;
    EXPECT_STREQ(base.what(), "Spline interpolation failed.");
}
