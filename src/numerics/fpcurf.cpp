#include "numerics/dierckx.hpp"

#include <algorithm>
#include <cmath>

namespace VARNO {
namespace detail {
namespace {

// Bounds of the search for the smoothing parameter p: a step of p is never larger than a factor
// 1/0.04, and a new p that leaves the bracket [p1, p3] is pulled back to 0.1/0.9 of the way.
constexpr double con1 = 0.1;
constexpr double con9 = 0.9;
constexpr double con4 = 0.04;

// Knots of the interpolating spline: at the data for odd degree, midway between data for even
// degree, leaving out k/2 + 1 points at each end (the not-a-knot condition for cubics).
void place_interpolation_knots(double const* x, int m, int k, double* t) {
    int const interior = m - (k + 1);
    int const skipped = k / 2 + 1;
    for (int i = 0; i < interior; ++i) {
        int const point = skipped + i;
        t[k + 1 + i] = (k % 2 == 1) ? x[point] : (x[point] + x[point - 1]) * 0.5;
    }
}

void set_boundary_knots(double xb, double xe, int k1, int n, double* t) {
    for (int j = 0; j < k1; ++j) {
        t[j] = xb;
        t[n - 1 - j] = xe;
    }
}

// The table and the work arrays of one fit, handed whole to its two stages.
struct Fit {
    double const* x;
    double const* y;
    double const* w;
    int m;
    double xb;
    double xe;
    int k;
    int nest;
    double* t;
    double* c;
    double* fpint;
    double* z;
    double* a;
    double* b;
    double* g;
    double* q;
    int* nrdata;
};

// Value of the spline at data point `point`, from the B-spline values kept in q; `first` is the
// index of the first of the k+1 coefficients that act there.
double value_at_data(Fit const& fit, int point, int first) {
    double value = 0.0;
    for (int j = 0; j <= fit.k; ++j) {
        value = value + fit.c[first + j] * fit.q[point + j * fit.m];
    }
    return value;
}

// Weighted least-squares spline on the current knots: each row of the observation matrix is
// rotated into the triangle a with the right-hand side z, and the B-spline values are kept in q
// for the later evaluations at the data. Returns the weighted sum of squared residuals.
double least_squares_fit(Fit const& fit, int n) {
    int const k = fit.k;
    int const k1 = k + 1;
    int const nk1 = n - k1;
    int const nest = fit.nest;
    double* const a = fit.a;
    for (int i = 0; i < nk1; ++i) {
        fit.z[i] = 0.0;
        for (int j = 0; j < k1; ++j) {
            a[i + j * nest] = 0.0;
        }
    }
    double h[6];
    double fp = 0.0;
    int l = k;
    for (int point = 0; point < fit.m; ++point) {
        double const xi = fit.x[point];
        double const wi = fit.w[point];
        double yi = fit.y[point] * wi;
        advance_to_interval(fit.t, nk1, xi, l);
        fpbspl(fit.t, n, k, xi, l, h);
        for (int i = 0; i < k1; ++i) {
            fit.q[point + i * fit.m] = h[i];
            h[i] = h[i] * wi;
        }
        for (int i = 0; i < k1; ++i) {
            int const row = l - k + i;
            double const piv = h[i];
            if (piv == 0.0) {
                continue;
            }
            double cos;
            double sin;
            fpgivs(piv, a[row], cos, sin);
            fprota(cos, sin, yi, fit.z[row]);
            for (int i1 = i + 1; i1 < k1; ++i1) {
                fprota(cos, sin, h[i1], a[row + (i1 - i) * nest]);
            }
        }
        fp = fp + yi * yi;
    }
    return fp;
}

// Calls visit(term, crossed) for the data points in order: term is the point's squared weighted
// residual under the coefficients c, and crossed tells that the point lies on or past the next
// interior knot.
template <typename Visit>
void visit_residuals(Fit const& fit, int n, Visit visit) {
    int const nk1 = n - fit.k - 1;
    int l = fit.k + 1;
    for (int point = 0; point < fit.m; ++point) {
        bool const crossed = fit.x[point] >= fit.t[l] && l < nk1;
        if (crossed) {
            ++l;
        }
        double const value = value_at_data(fit, point, l - fit.k - 1);
        double const residual = fit.w[point] * (value - fit.y[point]);
        visit(residual * residual, crossed);
    }
}

// Sum of squared weighted residuals in each knot interval, in fpint[0..nrint-1]. A data point on
// a knot gives half its residual to each side.
void residuals_per_interval(Fit const& fit, int n, int nrint) {
    double fpart = 0.0;
    int interval = 0;
    visit_residuals(fit, n, [&](double term, bool crossed) {
        fpart = fpart + term;
        if (crossed) {
            double const store = term * 0.5;
            fit.fpint[interval] = fpart - store;
            ++interval;
            fpart = store;
        }
    });
    fit.fpint[nrint - 1] = fpart;
}

double sum_of_squared_residuals(Fit const& fit, int n) {
    double fp = 0.0;
    visit_residuals(fit, n, [&](double term, bool) { fp = fp + term; });
    return fp;
}

// Smoothing spline for the parameter p: the rows of the jump matrix b, weighted 1/p, are rotated
// into a copy g of the least-squares triangle a, then solved for c.
void smoothing_fit(Fit const& fit, int n, double p) {
    int const k1 = fit.k + 1;
    int const k2 = k1 + 1;
    int const nest = fit.nest;
    double const* const a = fit.a;
    double const* const b = fit.b;
    double* const g = fit.g;
    double* const c = fit.c;
    int const nk1 = n - k1;
    int const n8 = n - 2 * k1;
    double const pinv = 1.0 / p;
    for (int i = 0; i < nk1; ++i) {
        c[i] = fit.z[i];
        g[i + k1 * nest] = 0.0;
        for (int j = 0; j < k1; ++j) {
            g[i + j * nest] = a[i + j * nest];
        }
    }
    double h[7];
    for (int it = 0; it < n8; ++it) {
        for (int i = 0; i < k2; ++i) {
            h[i] = b[it + i * nest] * pinv;
        }
        double yi = 0.0;
        for (int j = it; j < nk1; ++j) {
            double const piv = h[0];
            double cos;
            double sin;
            fpgivs(piv, g[j], cos, sin);
            fprota(cos, sin, yi, c[j]);
            if (j == nk1 - 1) {
                break;
            }
            int const width = (j >= n8) ? nk1 - 1 - j : k1;
            for (int i = 1; i <= width; ++i) {
                fprota(cos, sin, h[i], g[j + i * nest]);
                h[i - 1] = h[i];
            }
            h[width] = 0.0;
        }
    }
    fpback(g, c, nk1, k2, c, nest);
}

// Progress of the knot search, kept in the work arrays between calls for a continued fit.
struct KnotSearch {
    double fp0 = 0.0;   // residual of the least-squares polynomial
    double fpold = 0.0; // residual of the previous set of knots
    int nplus = 0;      // knots added at the last step
};

// How many knots to add: one after the polynomial, then as many as a linear model of the
// decrease of fp asks for, at most doubling and at least halving the last step.
int knots_to_add(KnotSearch const& search, double fp, double fpms, double acc) {
    int const most = search.nplus * 2;
    int npl1 = most;
    double const rn = search.nplus;
    if (search.fpold - fp > acc) {
        // Bounded while still a double: a tiny decrease of fp asks for more knots than an int
        // holds, and its conversion would be undefined.
        double const asked = rn * fpms / (search.fpold - fp);
        npl1 = asked < most ? static_cast<int>(std::max(asked, 0.0)) : most;
    }
    return std::min(most, std::max({npl1, search.nplus / 2, 1}));
}

// Stage 1: least-squares splines on growing sets of knots until one has fp <= s (then true:
// stage 2 smooths on these knots) or the search ends with a code in ier (then false). On return
// fp and fpms = fp - s are those of the last least-squares spline, whose coefficients are in c.
bool choose_knots(Fit const& fit, int iopt, double s, double acc, KnotSearch& search, int& n,
                  double& fp, double& fpms, int& ier) {
    int const k1 = fit.k + 1;
    int const nmin = 2 * k1;
    int const nmax = fit.m + k1;
    for (int trial = 1; trial <= fit.m; ++trial) {
        if (n == nmin) {
            ier = -2;
        }
        int nrint = n - nmin + 1;
        int const nk1 = n - k1;
        set_boundary_knots(fit.xb, fit.xe, k1, n, fit.t);
        fp = least_squares_fit(fit, n);
        if (ier == -2) {
            search.fp0 = fp;
        }
        // Kept for a continued call (iopt = 1).
        fit.fpint[n - 1] = search.fp0;
        fit.fpint[n - 2] = search.fpold;
        fit.nrdata[n - 1] = search.nplus;
        fpback(fit.a, fit.z, nk1, k1, fit.c, fit.nest);
        if (iopt < 0) {
            return false;
        }
        fpms = fp - s;
        if (std::fabs(fpms) < acc) {
            return false;
        }
        if (fpms < 0.0) {
            return ier != -2;
        }
        if (n == nmax) {
            ier = -1;
            return false;
        }
        if (n == fit.nest) {
            ier = 1;
            return false;
        }
        if (ier != 0) {
            search.nplus = 1;
            ier = 0;
        } else {
            search.nplus = knots_to_add(search, fp, fpms, acc);
        }
        search.fpold = fp;
        residuals_per_interval(fit, n, nrint);
        for (int added = 0; added < search.nplus; ++added) {
            fpknot(fit.x, fit.m, fit.t, n, fit.fpint, fit.nrdata, nrint, fit.nest, 1);
            if (n == nmax) {
                place_interpolation_knots(fit.x, fit.m, fit.k, fit.t);
                break;
            }
            if (n == fit.nest) {
                break;
            }
        }
    }
    return ier != -2;
}

// Stage 2: the smoothing spline on the chosen knots, s(x) minimising
// p * sum((w*(y - s))^2) + sum of squared jumps of the k-th derivative, with p the root of
// f(p) = fp(p) - s. f decreases and is convex in p; the root is bracketed by (p1, f1 > 0) and
// (p3, f3 < 0), p3 < 0 standing for infinity, and approached by rational interpolation.
// f_infinity is f of the least-squares spline on these knots.
void find_smoothing_parameter(Fit const& fit, double s, double acc, int maxit, int n, double fp0,
                              double f_infinity, double& fp, int& ier) {
    int const k1 = fit.k + 1;
    int const k2 = k1 + 1;
    int const nk1 = n - k1;
    fpdisc(fit.t, n, k2, fit.b, fit.nest);
    double p1 = 0.0;
    double f1 = fp0 - s;
    double p3 = -1.0;
    double f3 = f_infinity;
    // Start where the jump rows, weighted 1/p, are of the size of the triangle's mean diagonal.
    double p = 0.0;
    for (int i = 0; i < nk1; ++i) {
        p = p + fit.a[i];
    }
    double const rn = nk1;
    p = rn / p;
    bool ich1 = false;
    bool ich3 = false;
    for (int iter = 1; iter <= maxit; ++iter) {
        smoothing_fit(fit, n, p);
        fp = sum_of_squared_residuals(fit, n);
        double const fpms = fp - s;
        if (std::fabs(fpms) < acc) {
            return;
        }
        if (iter == maxit) {
            ier = 3;
            return;
        }
        double const p2 = p;
        double const f2 = fpms;
        if (!ich3) {
            if (f2 - f3 <= acc) {
                // p is still too large: f has not yet moved away from its value at infinity.
                p3 = p2;
                f3 = f2;
                p = p * con4;
                if (p <= p1) {
                    p = p1 * con9 + p2 * con1;
                }
                continue;
            }
            if (f2 < 0.0) {
                ich3 = true;
            }
        }
        if (!ich1) {
            if (f1 - f2 <= acc) {
                // p is still too small: f has not yet moved away from its value at 0.
                p1 = p2;
                f1 = f2;
                p = p / con4;
                if (p3 < 0.0) {
                    continue;
                }
                if (p >= p3) {
                    p = p2 * con1 + p3 * con9;
                }
                continue;
            }
            if (f2 > 0.0) {
                ich1 = true;
            }
        }
        // f must stay strictly between the bracket values, as the theory says it does.
        if (f2 >= f1 || f2 <= f3) {
            ier = 2;
            return;
        }
        p = fprati(p1, f1, p2, f2, p3, f3);
    }
}

} // namespace

void fpcurf(int iopt, double const* x, double const* y, double const* w, int m, double xb,
            double xe, int k, double s, int nest, double tol, int maxit, int k1, int /*k2*/, int& n,
            double* t, double* c, double& fp, double* fpint, double* z, double* a, double* b,
            double* g, double* q, int* nrdata, int& ier) {
    Fit const fit{x, y, w, m, xb, xe, k, nest, t, c, fpint, z, a, b, g, q, nrdata};
    int const nmin = 2 * k1;
    int const nmax = m + k1;
    double const acc = iopt >= 0 ? tol * s : 0.0;
    KnotSearch search;
    // With s > 0 the knot search starts from the least-squares polynomial (no interior knot),
    // or, on a continued call, from the knots of the last call unless the polynomial already
    // satisfies s; with s = 0 the knots are those of the interpolating spline.
    if (iopt >= 0 && s > 0.0) {
        bool from_polynomial = iopt == 0 || n == nmin;
        if (!from_polynomial) {
            search.fp0 = fpint[n - 1];
            search.fpold = fpint[n - 2];
            search.nplus = nrdata[n - 1];
            from_polynomial = search.fp0 <= s;
        }
        if (from_polynomial) {
            n = nmin;
            search = KnotSearch();
            nrdata[0] = m - 2;
        }
    } else if (iopt >= 0) {
        n = nmax;
        if (nmax > nest) {
            ier = 1;
            return;
        }
        place_interpolation_knots(x, m, k, t);
    }
    double fpms = 0.0;
    if (choose_knots(fit, iopt, s, acc, search, n, fp, fpms, ier)) {
        find_smoothing_parameter(fit, s, acc, maxit, n, search.fp0, fpms, fp, ier);
    }
}

} // namespace detail
} // namespace VARNO
