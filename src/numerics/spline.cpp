#include <calc-common/numerics.hpp>

#include "frame/numeric_helpers.hpp"
#include "numerics/cubic_spline.hpp"
#include "numerics/pchip.hpp"

#include <cmath>
#include <memory>
#include <vector>

using namespace VARNO::detail;

namespace {

// Second derivatives of the natural cubic spline through (x, y), by the tridiagonal sweep.
std::vector<double> natural_second_derivatives(int n, double const* x, double const* y) {
    std::size_t const count = static_cast<std::size_t>(n);
    std::vector<double> u(count - 1, 0.0);
    std::vector<double> m(count, 0.0);
    for (std::size_t i = 1; i + 1 < count; ++i) {
        double const sig = (x[i] - x[i - 1]) / (x[i + 1] - x[i - 1]);
        double const p = sig * m[i - 1] + 2.0;
        m[i] = (sig - 1.0) / p;
        double const d =
            (y[i + 1] - y[i]) / (x[i + 1] - x[i]) - (y[i] - y[i - 1]) / (x[i] - x[i - 1]);
        u[i] = (6.0 * d / (x[i + 1] - x[i - 1]) - sig * u[i - 1]) / p;
    }
    // The natural end written as the general end condition with zero end terms, so that
    // non-finite data still come out as not-a-number.
    m[count - 1] = (0.0 - u[count - 2] * 0.0) / (m[count - 1] * 0.0 + 1.0);
    for (std::size_t k = count - 1; k-- > 0;) {
        m[k] = m[k] * m[k + 1] + u[k];
    }
    return m;
}

// Interval [klo, khi] of the table that holds a query, kept from one query to the next so that
// ascending queries in one interval cost no search.
class bracket {
public:
    explicit bracket(int n)
        : last_(static_cast<std::size_t>(n) - 1)
        , klo_(0)
        , khi_(last_) {}

    void locate(double const* x, double q) {
        bool const outside = tolerantly_below(x[khi_], q) || tolerantly_below(q, x[klo_]);
        if (khi_ - klo_ < 2 && !outside) {
            return;
        }
        // Bisection leaves a query outside the table in the first or last interval.
        klo_ = 0;
        khi_ = last_;
        while (khi_ - klo_ > 1) {
            std::size_t const k = (khi_ + klo_) >> 1;
            if (tolerantly_below(q, x[k])) {
                khi_ = k;
            } else {
                klo_ = k;
            }
        }
    }

    std::size_t low() const { return klo_; }
    std::size_t high() const { return khi_; }

private:
    std::size_t last_;
    std::size_t klo_;
    std::size_t khi_;
};

void evaluate_natural_spline(int n, double const* x, double const* y, int nq, double const* xq,
                             double* yq) {
    std::vector<double> const m = natural_second_derivatives(n, x, y);
    bracket interval(n);
    for (int i = 0; i < nq; ++i) {
        double const q = xq[i];
        interval.locate(x, q);
        std::size_t const klo = interval.low();
        std::size_t const khi = interval.high();
        double const h = x[khi] - x[klo];
        if (tolerantly_at_most(h, 0.0) && tolerantly_at_least(h, 0.0)) {
            throw varno_calc_error::with_message("Spline interpolation failed.");
        }
        double const a = (x[khi] - q) / h;
        double const b = (q - x[klo]) / h;
        yq[i] = ((std::pow(a, 3.0) - a) * m[klo] + (std::pow(b, 3.0) - b) * m[khi]) * h * h / 6.0 +
                a * y[klo] + b * y[khi];
    }
}

double evaluate_cubic_spline(int n, double* x, double* y, double q) {
    // Zero curvature at both ends, as for the natural spline.
    std::unique_ptr<double[]> const ypp(spline_cubic_set(n, x, y, 2, 0.0, 2, 0.0));
    double derivative = 0.0;
    double curvature = 0.0;
    return spline_cubic_val(n, x, y, ypp.get(), q, &derivative, &curvature);
}

double evaluate_pchip(int n, double* x, double* y, double q) {
    std::vector<double> d(static_cast<std::size_t>(n > 0 ? n : 0));
    spline_pchip_set(n, x, y, d.data());
    double value = 0.0;
    spline_pchip_val(n, x, y, d.data(), 1, &q, &value);
    return value;
}

} // namespace

double Calc_Spline(int n, double* const x, double* const y, double xq, spline_type type) {
    double value = 0.0;
    Calc_Spline(n, x, y, 1, &xq, &value, type);
    return value;
}

void Calc_Spline(int n, double* const x, double* const y, int nq, double* const xq,
                 double* const yq, spline_type type) {
    switch (type) {
    case SPLINE_NATURAL:
        evaluate_natural_spline(n, x, y, nq, xq, yq);
        break;
    // These two kinds solve the whole table for one value: they answer the first query only.
    case SPLINE_CUBIC:
        yq[0] = evaluate_cubic_spline(n, x, y, xq[0]);
        break;
    case SPLINE_PCHIP:
        yq[0] = evaluate_pchip(n, x, y, xq[0]);
        break;
    }
}
