#include "numerics/cubic_spline.hpp"

#include "numerics/fatal_report.hpp"

#include <cstdlib>
#include <memory>

namespace VARNO {
namespace detail {

namespace {

constexpr char const* cubic_set_title = "SPLINE_CUBIC_SET";

[[noreturn]] void fail_bad_end_condition(char const* name, int value) {
    begin_fatal_report(cubic_set_title) << "  " << name << " must be 0, 1 or 2.\n"
                                        << "  The input value is " << value << "\n";
    std::exit(1);
}

void check_knots(int n, double const* t) {
    if (n < 2) {
        begin_fatal_report(cubic_set_title) << "  The number of data points N must be at least 2.\n"
                                            << "  The input value is " << n << "\n";
        std::exit(1);
    }
    for (int i = 0; i < n - 1; ++i) {
        if (t[i + 1] <= t[i]) {
            begin_fatal_report(cubic_set_title) << "  The knots must be strictly increasing, but\n"
                                                << "  T(" << i << ") = " << t[i] << "\n"
                                                << "  T(" << i + 1 << ") = " << t[i + 1] << "\n";
            std::exit(1);
        }
    }
}

// Rows of the pentadiagonal system for the second derivatives.
struct penta_system {
    std::unique_ptr<double[]> a1, a2, a3, a4, a5, b;

    explicit penta_system(int n)
        : a1(new double[n]())
        , a2(new double[n]())
        , a3(new double[n]())
        , a4(new double[n]())
        , a5(new double[n]())
        , b(new double[n]()) {}
};

void set_first_row(penta_system& s, double const* t, double const* y, int ibcbeg, double ybcbeg) {
    switch (ibcbeg) {
    case 0:
        s.a3[0] = 1.0;
        s.a4[0] = -1.0;
        break;
    case 1:
        s.b[0] = (y[1] - y[0]) / (t[1] - t[0]) - ybcbeg;
        s.a3[0] = (t[1] - t[0]) / 3.0;
        s.a4[0] = (t[1] - t[0]) / 6.0;
        break;
    case 2:
        s.b[0] = ybcbeg;
        s.a3[0] = 1.0;
        break;
    case 3:
        s.a3[0] = -(t[2] - t[1]);
        s.a4[0] = t[2] - t[0];
        s.a5[0] = -(t[1] - t[0]);
        break;
    default:
        fail_bad_end_condition("IBCBEG", ibcbeg);
    }
}

// The interval lengths stand the other way round from the textbook system: the one to the right
// of knot i multiplies the unknown at i-1. This is how the routine has always solved, and results
// that callers rely on come from it; on evenly spaced knots it is the natural spline.
void set_inner_rows(penta_system& s, int n, double const* t, double const* y) {
    for (int i = 1; i < n - 1; ++i) {
        s.b[i] = (y[i + 1] - y[i]) / (t[i + 1] - t[i]) - (y[i] - y[i - 1]) / (t[i] - t[i - 1]);
        s.a2[i] = (t[i + 1] - t[i]) / 6.0;
        s.a3[i] = (t[i + 1] - t[i - 1]) / 3.0;
        s.a4[i] = (t[i] - t[i - 1]) / 6.0;
    }
}

void set_last_row(penta_system& s, int n, double const* t, double const* y, int ibcbeg, int ibcend,
                  double ybcend) {
    int const last = n - 1;
    switch (ibcend) {
    case 0:
        s.a2[last] = -1.0;
        s.a3[last] = 1.0;
        return;
    case 1:
        s.b[last] = ybcend - (y[last] - y[last - 1]) / (t[last] - t[last - 1]);
        s.a2[last] = (t[last] - t[last - 1]) / 6.0;
        s.a3[last] = (t[last] - t[last - 1]) / 3.0;
        return;
    case 2:
        s.b[last] = ybcend;
        s.a3[last] = 1.0;
        return;
    default:
        break;
    }
    // The not-a-knot row is reached through the condition at the beginning, not at the end.
    if (ibcbeg != 3) {
        fail_bad_end_condition("IBCEND", ibcend);
    }
    s.a1[last] = -(t[last] - t[last - 1]);
    s.a2[last] = t[last] - t[last - 2];
    s.a3[last] = -(t[last - 1] - t[last - 2]);
}

} // namespace

double* spline_cubic_set(int n, double* t, double* y, int ibcbeg, double ybcbeg, int ibcend,
                         double ybcend) {
    check_knots(n, t);
    penta_system system(n);
    set_first_row(system, t, y, ibcbeg, ybcbeg);
    set_inner_rows(system, n, t, y);
    set_last_row(system, n, t, y, ibcbeg, ibcend, ybcend);
    if (n == 2 && ibcbeg == 0 && ibcend == 0) {
        // The two equal-curvature rows are singular together: any common value fits, take 0.
        return new double[2]();
    }
    return penta(n, system.a1.get(), system.a2.get(), system.a3.get(), system.a4.get(),
                 system.a5.get(), system.b.get());
}

double spline_cubic_val(int n, double* t, double* y, double* ypp, double tval, double* ypval,
                        double* yppval) {
    int i = 0;
    while (i < n - 2 && !(t[i + 1] > tval)) {
        ++i;
    }
    double const dt = tval - t[i];
    double const h = t[i + 1] - t[i];
    double const m0 = ypp[i];
    double const m1 = ypp[i + 1];
    double const c = (y[i + 1] - y[i]) / h - (m0 / 3.0 + m1 / 6.0) * h;
    *ypval = ((m1 - m0) * 0.5 / h * dt + m0) * dt + c;
    *yppval = (m1 - m0) * dt / h + m0;
    return (((m1 - m0) / (6.0 * h) * dt + m0 * 0.5) * dt + c) * dt + y[i];
}

double* penta(int n, double* a1, double* a2, double* a3, double* a4, double* a5, double* b) {
    for (int i = 1; i < n - 1; ++i) {
        double f = a2[i] / a3[i - 1];
        a3[i] -= f * a4[i - 1];
        a4[i] -= f * a5[i - 1];
        b[i] -= f * b[i - 1];
        f = a1[i + 1] / a3[i - 1];
        a2[i + 1] -= f * a4[i - 1];
        a3[i + 1] -= f * a5[i - 1];
        b[i + 1] -= f * b[i - 1];
    }
    double* s = new double[n];
    double const f = a2[n - 1] / a3[n - 2];
    a3[n - 1] -= f * a4[n - 2];
    s[n - 1] = (b[n - 1] - f * b[n - 2]) / a3[n - 1];
    s[n - 2] = (b[n - 2] - a4[n - 2] * s[n - 1]) / a3[n - 2];
    for (int i = n - 3; i >= 0; --i) {
        s[i] = (b[i] - a4[i] * s[i + 1] - a5[i] * s[i + 2]) / a3[i];
    }
    return s;
}

} // namespace detail
} // namespace VARNO
