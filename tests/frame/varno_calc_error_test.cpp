#include <calc-common/frame.hpp>

#include <gtest/gtest.h>

#include <string>

TEST(VarnoCalcError, FunctionFormNamesTheRaisingFunction) {
    try {
        throw varno_calc_error("spectrum_t::reserve");
    } catch (std::runtime_error const& error) {
        EXPECT_STREQ(error.what(), "An error occurred in function spectrum_t::reserve");
    }
}

TEST(VarnoCalcError, DetailedFormKeepsTheTextAloneAndOutlivesItsSource) {
    varno_calc_error error = [] {
        std::string text = "Spline interpolation failed.";
        return varno_calc_error::with_message(text);
    }();
    EXPECT_STREQ(error.what(), "Spline interpolation failed.");
    std::exception const& base = error;
    EXPECT_STREQ(base.what(), "Spline interpolation failed.");
}
