// Smoothing B-spline fits of arbitrary sorted tables with arbitrary smoothing factors, then
// values and derivatives at arbitrary abscissas. Failed fits and evaluations are refused
// with the library's error, which is part of the contract.

#include "fuzz_input.hpp"

#include <calc-common/frame.hpp>
#include <calc-common/numerics.hpp>

#include <algorithm>

using fuzzing::fuzz_input;

namespace {

constexpr std::size_t max_points = 48;
constexpr std::size_t max_queries = 8;

void evaluate(VARNO::BSpline const& spline, fuzz_input& in) {
    std::vector<double> const x = in.numbers(1 + in.count(max_queries - 1));
    std::vector<double> y(x.size(), 0.0);
    int const count = static_cast<int>(x.size());
    try {
        spline.evaluate(x.data(), y.data(), count);
    } catch (varno_calc_error const&) {
    }
    try {
        int const order = static_cast<int>(in.count(5)) - 1;
        spline.getDerivative(order, x.data(), y.data(), count);
    } catch (varno_calc_error const&) {
    }
    try {
        double derivatives[4];
        spline.getAllDerivatives(x[0], derivatives);
    } catch (varno_calc_error const&) {
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz_input in(data, size);
    // The fit reads the table's first and last abscissa: an empty table is an index past the end.
    int const count = 1 + static_cast<int>(in.count(max_points - 1));
    std::vector<double> x = in.numbers(static_cast<std::size_t>(count));
    // An abscissa that is not a number has no place in an ordered table.
    for (double& value : x)
        if (std::isnan(value))
            value = 0.0;
    // Unsorted tables are refused by the fit's own checks; most runs sort to reach the fit.
    if (in.byte() % 8 != 0)
        std::sort(x.begin(), x.end());
    std::vector<double> const y = in.numbers(static_cast<std::size_t>(count));
    double const smoothing_factor = in.number();
    try {
        VARNO::BSpline const spline(x.data(), y.data(), count, smoothing_factor);
        evaluate(spline, in);
    } catch (varno_calc_error const&) {
    }
    return 0;
}
