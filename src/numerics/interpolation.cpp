#include <calc-common/numerics.hpp>

#include "frame/numeric_helpers.hpp"

#include <cmath>

using namespace VARNO::detail;

namespace {

// Marker for "no derivative" on a one-point table.
constexpr double no_derivative = -999.0;

// Below this total change of the neighbouring chord slopes, Akima's weights are meaningless and
// the two chords beside the point are simply averaged. Absolute, so that it also fires on nearly
// straight runs of small data.
constexpr double flat_run_slope_change = 1e-8;

// Parabola through three points, in Lagrange form.
class parabola_through {
public:
    parabola_through(double const* x, double const* y)
        : x0_(x[0])
        , x1_(x[1])
        , x2_(x[2])
        , c0_(y[0] / ((x[0] - x[2]) * (x[0] - x[1])))
        , c1_(-y[1] / ((x[1] - x[2]) * (x[0] - x[1])))
        , c2_(y[2] / ((x[0] - x[2]) * (x[1] - x[2]))) {}

    double operator()(double t) const {
        return c0_ * (t - x1_) * (t - x2_) + c1_ * (t - x0_) * (t - x2_) +
               c2_ * (t - x0_) * (t - x1_);
    }

private:
    double x0_, x1_, x2_;
    double c0_, c1_, c2_;
};

// Chord slopes s(-2) .. s(n) of the table extended by two ghost points at each end, which lie on
// the parabolas through the three end points. s(-2) .. s(n-3) live in the caller's workspace
// (shifted by two), the last three in this record, so that Akima slopes can later overwrite the
// workspace in place.
struct extended_chords {
    double* low; // s(k) at low[k + 2], for k up to n-3
    std::size_t n;
    double last_three[3]; // s(n-2), s(n-1), s(n)

    double operator()(std::ptrdiff_t k) const {
        std::size_t const slot = static_cast<std::size_t>(k + 2);
        return slot < n ? low[slot] : last_three[slot - n];
    }
    double last_table_chord() const { return last_three[0]; }
};

extended_chords chord_slopes(double const* x, double const* y, std::size_t n, double* workspace) {
    extended_chords s{workspace, n, {0.0, 0.0, 0.0}};
    auto chord = [&](std::size_t j) { return (y[j + 1] - y[j]) / (x[j + 1] - x[j]); };

    parabola_through const head(x, y);
    double const g1 = x[0] + x[1] - x[2];
    double const g2 = 2 * x[0] - x[2];
    workspace[0] = (head(g1) - head(g2)) / (g1 - g2);
    workspace[1] = (y[0] - head(g1)) / (x[0] - g1);
    for (std::size_t j = 0; j + 2 < n; ++j) {
        workspace[j + 2] = chord(j);
    }

    parabola_through const tail(x + n - 3, y + n - 3);
    double const h1 = x[n - 1] + x[n - 2] - x[n - 3];
    double const h2 = 2 * x[n - 1] - x[n - 3];
    s.last_three[0] = chord(n - 2);
    s.last_three[1] = (tail(h1) - y[n - 1]) / (h1 - x[n - 1]);
    s.last_three[2] = (tail(h2) - tail(h1)) / (h2 - h1);
    return s;
}

// Akima's slope at each table point from the four chords around it, written over the workspace
// from the lowest index up: point i reads only entries i and above.
void akima_slopes(extended_chords const& s, double* slopes) {
    for (std::size_t i = 0; i < s.n; ++i) {
        std::ptrdiff_t const k = static_cast<std::ptrdiff_t>(i);
        double const before = s(k - 1), after = s(k);
        double const a = std::fabs(before - s(k - 2));
        double const b = std::fabs(s(k + 1) - after);
        double const sum = a + b;
        slopes[i] = tolerantly_above(flat_run_slope_change, sum) ? 0.5 * (before + after)
                                                                 : (after * a + before * b) / sum;
    }
}

// Cubic Hermite piece on [x[j-1], x[j]] with the end slopes t0 and t1, in powers of the distance
// from its left end.
struct hermite_piece {
    double x0 = 0.0, y0 = 0.0, t0 = 0.0, p2 = 0.0, p3 = 0.0;

    static hermite_piece on_interval(double const* x, double const* y, double const* t,
                                     std::size_t j) {
        hermite_piece piece;
        double const h = x[j] - x[j - 1];
        double const m = (y[j] - y[j - 1]) / h;
        piece.x0 = x[j - 1];
        piece.y0 = y[j - 1];
        piece.t0 = t[j - 1];
        piece.p2 = (3.0 * m - 2 * t[j - 1] - t[j]) / h;
        piece.p3 = (t[j - 1] + t[j] - 2 * m) / std::pow(h, 2.0);
        return piece;
    }

    void evaluate(double q, double& value, double& derivative) const {
        double const d = q - x0;
        double const d2 = std::pow(d, 2.0);
        value = y0 + t0 * d + p2 * d2 + p3 * d * d2;
        derivative = t0 + 2 * p2 * d + 3 * p3 * d2;
    }
};

void evaluate_straight_line(double const* x, double const* y, double const* xi, std::size_t ni,
                            double* yi, double* dyi, double* slopes) {
    double const m = (y[1] - y[0]) / (x[1] - x[0]);
    for (std::size_t i = 0; i < ni; ++i) {
        yi[i] = (xi[i] - x[0]) * m + y[0];
        dyi[i] = m;
        // The workspace is indexed by the query here, which is why it must hold ni elements.
        slopes[i] = 0.0;
    }
}

// One forward sweep for all queries: the interval search never steps back, so queries must
// ascend; a query below the current interval takes that interval's cubic.
void evaluate_akima(double const* x, double const* y, std::size_t n, bool extrapolate,
                    double const* xi, std::size_t ni, double* yi, double* dyi, double const* slopes,
                    double last_chord) {
    std::size_t lower = 0;
    std::size_t upper = 0;
    hermite_piece piece;
    for (std::size_t i = 0; i < ni; ++i) {
        double const q = xi[i];
        if (tolerantly_at_least(x[0], q)) {
            // Below the table the curve continues with the first point's Akima slope...
            if (extrapolate) {
                dyi[i] = slopes[0];
                yi[i] = (q - x[0]) * slopes[0] + y[0];
            } else {
                yi[i] = y[0];
            }
            continue;
        }
        if (tolerantly_above(q, x[n - 1])) {
            // ...but above it with the last chord: the two ends are deliberately unlike.
            if (extrapolate) {
                dyi[i] = last_chord;
                yi[i] = (q - x[n - 1]) * last_chord + y[n - 1];
            } else {
                yi[i] = y[n - 1];
            }
            continue;
        }
        std::size_t j = lower + 1;
        while (j < n && tolerantly_below(x[j], q)) {
            ++j;
        }
        lower = j - 1;
        if (j != upper) {
            upper = j;
            piece = hermite_piece::on_interval(x, y, slopes, j);
        }
        piece.evaluate(q, yi[i], dyi[i]);
    }
}

} // namespace

double Calc_LinearInterp(double x0, double y0, double x1, double y1, double x) {
    double const m = (y1 - y0) / (x1 - x0);
    return (y0 - m * x0) + m * x;
}

void Calc_ParabolicInterp(double const* x, double const* y, std::size_t const& n, bool extrapolate,
                          double const* xi, std::size_t const& ni, double* yi, double* dyi,
                          double* slopes) {
    if (n == 0) {
        throw varno_calc_error("Calc_ParabolicInterp");
    }
    if (n == 1) {
        yi[0] = y[0];
        dyi[0] = no_derivative;
        slopes[0] = no_derivative;
        return;
    }
    if (n == 2) {
        evaluate_straight_line(x, y, xi, ni, yi, dyi, slopes);
        return;
    }
    extended_chords const chords = chord_slopes(x, y, n, slopes);
    akima_slopes(chords, slopes);
    evaluate_akima(x, y, n, extrapolate, xi, ni, yi, dyi, slopes, chords.last_table_chord());
}

int Calc_MaxLimitedRange(double* values, std::size_t count, double* maximum) {
    if (count == 0) {
        *maximum = 0.0;
        return -1;
    }
    *maximum = values[0];
    std::size_t found = 0;
    for (std::size_t i = 0; i < count; ++i) {
        // Strictly above by more than the rounding, so the first of near-equal values wins.
        if (tolerantly_above(values[i], *maximum)) {
            *maximum = values[i];
            found = i;
        }
    }
    return static_cast<int>(found);
}

int Calc_Max(std::vector<double>& values, double* maximum) {
    return Calc_MaxLimitedRange(values.data(), values.size(), maximum);
}
