#include "numerics/pchip.hpp"

#include "numerics/fatal_report.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace VARNO {
namespace detail {

namespace {

constexpr char const* pchip_set_title = "SPLINE_PCHIP_SET";
constexpr char const* pchip_val_title = "SPLINE_PCHIP_VAL";

// Exit codes of the monotone spline routines, as their callers have always seen them.
constexpr int exit_too_few_points = -1;
constexpr int exit_not_increasing = -3;
constexpr int exit_evaluation_failed = -5;

[[noreturn]] void fail(char const* routine, char const* detail, int code) {
    begin_fatal_report(routine) << "  " << detail << "\n";
    std::exit(code);
}

void check_table(char const* routine, int n, double const* x) {
    if (n < 2) {
        fail(routine, "Number of data points less than 2.", exit_too_few_points);
    }
    for (int i = 1; i < n; ++i) {
        if (x[i - 1] >= x[i]) {
            fail(routine, "X array not strictly increasing.", exit_not_increasing);
        }
    }
}

// Product of the signs of a and b: -1, 0 (either is zero) or +1.
double sign_test(double a, double b) {
    auto sign = [](double v) { return v > 0.0 ? 1.0 : (v < 0.0 ? -1.0 : 0.0); };
    return sign(a) * sign(b);
}

// Three-point end derivative, made shape preserving: no sign opposite to the end chord, and
// at most three times that chord where the data turn right after the end.
double end_derivative(double h_end, double h_next, double del_end, double del_next) {
    double const hsum = h_end + h_next;
    double d = ((h_end + hsum) / hsum) * del_end + (-h_end / hsum) * del_next;
    if (sign_test(d, del_end) <= 0.0) {
        d = 0.0;
    } else if (sign_test(del_end, del_next) < 0.0 && std::fabs(d) > std::fabs(3.0 * del_end)) {
        d = 3.0 * del_end;
    }
    return d;
}

// Brodlie's weighted harmonic mean of the two chords, or 0 at a local extremum or flat chord.
double inner_derivative(double h1, double h2, double del1, double del2) {
    if (sign_test(del1, del2) <= 0.0) {
        return 0.0;
    }
    double const hsum = h1 + h2;
    double const dmax = std::max(std::fabs(del1), std::fabs(del2));
    double const dmin = std::min(std::fabs(del1), std::fabs(del2));
    double const w1 = (hsum + h1) / (3.0 * hsum);
    double const w2 = (hsum + h2) / (3.0 * hsum);
    return dmin / (w1 * (del1 / dmax) + w2 * (del2 / dmax));
}

// First point from j_first on that lies at or beyond x_right, or ne + 1 when there is none or
// when the piece is the last one (which then extrapolates to the right). Counted from 1.
int first_point_beyond(int j_first, int ne, double const* xe, double x_right, bool last_piece) {
    for (int j = j_first; j <= ne; ++j) {
        if (xe[j - 1] >= x_right) {
            return last_piece ? ne + 1 : j;
        }
    }
    return ne + 1;
}

} // namespace

void spline_pchip_set(int n, double* x, double* f, double* d) {
    check_table(pchip_set_title, n, x);
    double h1 = x[1] - x[0];
    double del1 = (f[1] - f[0]) / h1;
    if (n == 2) {
        d[0] = del1;
        d[1] = del1;
        return;
    }
    double h2 = x[2] - x[1];
    double del2 = (f[2] - f[1]) / h2;
    d[0] = end_derivative(h1, h2, del1, del2);
    for (int i = 1; i < n - 1; ++i) {
        if (i > 1) {
            h1 = h2;
            del1 = del2;
            h2 = x[i + 1] - x[i];
            del2 = (f[i + 1] - f[i]) / h2;
        }
        d[i] = inner_derivative(h1, h2, del1, del2);
    }
    d[n - 1] = end_derivative(h2, h1, del2, del1);
}

void spline_pchip_val(int n, double* x, double* f, double* d, int ne, double* xe, double* fe) {
    check_table(pchip_val_title, n, x);
    if (ne < 1) {
        begin_fatal_report(pchip_val_title) << "  Number of evaluation points less than 1.\n";
        return;
    }
    // Indices count from 1 here: piece ir runs from x[ir-2] to x[ir-1], and points j_first to
    // j-1 are the ones it takes.
    int j_first = 1;
    for (int ir = 2; ir <= n && j_first <= ne; ++ir) {
        int j = first_point_beyond(j_first, ne, xe, x[ir - 1], ir == n);
        int const count = j - j_first;
        if (count == 0) {
            // No point falls in this piece: go on to the next one.
            continue;
        }
        int next[2];
        if (chfev(x[ir - 2], x[ir - 1], f[ir - 2], f[ir - 1], d[ir - 2], d[ir - 1], count,
                  xe + j_first - 1, fe + j_first - 1, next) < 0) {
            fail(pchip_val_title, "Error return from CHFEV.", exit_evaluation_failed);
        }
        if (next[1] != 0 && ir < n) {
            fail(pchip_val_title, "IR < N.", exit_evaluation_failed);
        }
        if (next[0] != 0 && ir > 2) {
            // A point left of this piece: the queries do not ascend. Restart the sweep from
            // that point, in the piece that holds it.
            int back = j_first;
            while (back < j && !(xe[back - 1] < x[ir - 2])) {
                ++back;
            }
            if (back == j) {
                fail(pchip_val_title, "Could not bracket the data point.", exit_evaluation_failed);
            }
            j = back;
            int i = 1;
            while (i < ir && !(xe[j - 1] < x[i - 1])) {
                ++i;
            }
            ir = std::max(1, i - 1);
        }
        j_first = j;
    }
}

int chfev(double x1, double x2, double f1, double f2, double d1, double d2, int ne, double* xe,
          double* fe, int* next) {
    if (ne < 1) {
        begin_fatal_report("CHFEV") << "  Number of evaluation points is less than 1.\n"
                                    << "  NE = " << ne << "\n";
        return -1;
    }
    double const h = x2 - x1;
    if (h == 0.0) {
        begin_fatal_report("CHFEV") << "  The interval [X1,X2] is of zero length.\n";
        return -2;
    }
    next[0] = 0;
    next[1] = 0;
    double const xmin = std::min(0.0, h);
    double const xmax = std::max(0.0, h);
    double const delta = (f2 - f1) / h;
    double const del1 = (d1 - delta) / h;
    double const del2 = (d2 - delta) / h;
    double const c2 = -(del1 + del1 + del2);
    double const c3 = (del1 + del2) / h;
    for (int i = 0; i < ne; ++i) {
        double const u = xe[i] - x1;
        fe[i] = ((u * c3 + c2) * u + d1) * u + f1;
        if (u < xmin) {
            ++next[0];
        }
        if (u > xmax) {
            ++next[1];
        }
    }
    return 0;
}

} // namespace detail
} // namespace VARNO
