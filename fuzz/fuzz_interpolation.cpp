// Akima-type interpolation and the natural cubic spline on arbitrary sorted tables, with
// arbitrary queries. The first byte picks the routine.

#include "fuzz_input.hpp"

#include <calc-common/frame.hpp>
#include <calc-common/numerics.hpp>

#include <algorithm>

using fuzzing::fuzz_input;

namespace {

constexpr std::size_t max_points = 40;
constexpr std::size_t max_queries = 16;

// Abscissas in ascending order; repeated values are kept, as callers' tables may hold them.
std::vector<double> sorted_abscissas(fuzz_input& in, std::size_t count) {
    std::vector<double> x = in.numbers(count);
    // An abscissa that is not a number has no place in an ordered table.
    for (double& value : x)
        if (std::isnan(value))
            value = 0.0;
    std::sort(x.begin(), x.end());
    return x;
}

std::vector<double> queries(fuzz_input& in) {
    std::vector<double> q = in.numbers(1 + in.count(max_queries - 1));
    // Queries are meant to ascend; descending ones are a documented, checked-for-nothing use,
    // so half of the runs keep the fuzzer's order.
    if (in.flag()) {
        for (double& value : q)
            if (std::isnan(value))
                value = 0.0;
        std::sort(q.begin(), q.end());
    }
    return q;
}

void parabolic(fuzz_input& in) {
    std::size_t const n = in.count(max_points);
    std::vector<double> const x = sorted_abscissas(in, n);
    std::vector<double> const y = in.numbers(n);
    bool const extrapolate = in.flag();
    std::vector<double> const xi = queries(in);
    std::size_t const ni = xi.size();
    std::vector<double> yi(ni, 0.0);
    std::vector<double> dyi(ni, 0.0);
    // The workspace holds n slopes, and one per query for a two-point table.
    std::vector<double> slopes(std::max(n, ni), 0.0);
    try {
        Calc_ParabolicInterp(x.data(), y.data(), n, extrapolate, xi.data(), ni, yi.data(),
                             dyi.data(), slopes.data());
    } catch (varno_calc_error const&) {
        // An empty table is refused.
    }
}

void natural_spline(fuzz_input& in) {
    // A table of fewer than two points has no interval: nothing tests it, callers never pass one.
    int const n = 2 + static_cast<int>(in.count(max_points - 2));
    std::vector<double> x = sorted_abscissas(in, static_cast<std::size_t>(n));
    std::vector<double> y = in.numbers(static_cast<std::size_t>(n));
    std::vector<double> xq = queries(in);
    std::vector<double> yq(xq.size(), 0.0);
    try {
        Calc_Spline(n, x.data(), y.data(), static_cast<int>(xq.size()), xq.data(), yq.data(),
                    SPLINE_NATURAL);
        Calc_Spline(n, x.data(), y.data(), xq[0], SPLINE_NATURAL);
    } catch (varno_calc_error const&) {
        // A query in the gap of a repeated abscissa is refused.
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz_input in(data, size);
    if (in.flag())
        parabolic(in);
    else
        natural_spline(in);
    return 0;
}
