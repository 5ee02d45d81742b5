#include <calc-common/geometry.hpp>
#include <calc-common/numerics.hpp>

#include "frame/numeric_helpers.hpp"

#include <cmath>

using namespace VARNO::detail;

namespace {

constexpr double half_step = 0.5;
constexpr int max_extrapolation_steps = 1000;

// First table interval [x[s], x[s+1]] that holds g, by plain comparisons; count - 1 if none.
std::size_t interval_holding(std::vector<double> const& x, std::size_t count, double g) {
    for (std::size_t s = 0; s + 1 < count; ++s) {
        if (x[s] <= g && g <= x[s + 1]) {
            return s;
        }
    }
    return count - 1;
}

double interpolate(std::vector<double> const& x, std::vector<double> const& y, std::size_t s,
                   double g) {
    return Calc_LinearInterp(x[s], y[s], x[s + 1], y[s + 1], g);
}

} // namespace

void interpIntegratedMetrics(int centre, std::vector<double> const& x,
                             std::vector<double> const& y1, std::vector<double> const& y2,
                             std::vector<double> const& y3, std::size_t const& count,
                             std::vector<double>& out1, std::vector<double>& out2,
                             std::vector<double>& out3) {
    std::size_t const c = static_cast<std::size_t>(centre);
    double const before = x[c] - x[0];
    int const left = static_cast<int>(2.0 * before);
    int const right = static_cast<int>(2.0 * (x[count - 1] - x[c]));
    // Half steps below the centre keep the phase of the first abscissa's offset, so that the
    // centre itself lies on the grid exactly.
    double const remainder = std::fmod(before, half_step);
    if (count == 1) {
        return;
    }
    for (int q = 0; q <= left + right; ++q) {
        double const g = q < left    ? q * half_step + (remainder + x[0])
                         : q == left ? x[c]
                                     : (q - left) * half_step + x[c];
        std::size_t const s = interval_holding(x, count, g);
        if (s + 1 == count) {
            continue;
        }
        std::size_t const at = static_cast<std::size_t>(q);
        out3[at] = interpolate(x, y3, s, g);
        out1[at] = interpolate(x, y1, s, g);
        out2[at] = interpolate(x, y2, s, g);
    }
}

void extrapIntegratedMetrics(double const& start_distance, double const& speed,
                             double const& start_level, double const& stop_level, bool ratio_form,
                             double* energy) {
    *energy = 0.0;
    if (tolerantly_at_most(speed, 0.0) || !tolerantly_above(start_level, stop_level)) {
        return;
    }
    double t = 0.0;
    for (int step = 0; step < max_extrapolation_steps; ++step) {
        t += half_step;
        double const distance = t * speed + start_distance;
        // Spherical spreading from the start distance, written in either of its two forms.
        double const level = ratio_form ? 20 * std::log10(start_distance / distance) + start_level
                                        : start_level - 20 * std::log10(distance / start_distance);
        // Every sample carries its energy, however faint: no cut applies to this sum.
        *energy += energy_of_level(level) * half_step;
        if (!tolerantly_above(level, stop_level)) {
            return;
        }
    }
}
