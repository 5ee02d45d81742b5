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

// Value of the spline (coefficients c) at data point `point`, from the B-spline values kept in q;
// `first` is the index of the first of the k1 coefficients that act there.
double value_at_data(double const* c, double const* q, int m, int point, int first, int k1) {
    double value = 0.0;
    for (int j = 0; j < k1; ++j) {
        value = value + c[first + j] * q[point + j * m];
    }
    return value;
}

// Weighted least-squares spline on the current knots: each row of the observation matrix is
// rotated into the triangle a with the right-hand side z, and the B-spline values are kept in q
// for the later evaluations at the data. Returns the weighted sum of squared residuals.
double least_squares_fit(double const* x, double const* y, double const* w, int m, int k, int nest,
                         int n, double const* t, double* z, double* a, double* q) {
    int const k1 = k + 1;
    int const nk1 = n - k1;
    for (int i = 0; i < nk1; ++i) {
        z[i] = 0.0;
        for (int j = 0; j < k1; ++j) {
            a[i + j * nest] = 0.0;
        }
    }
    double h[6];
    double fp = 0.0;
    int l = k;
    for (int point = 0; point < m; ++point) {
        double const xi = x[point];
        double const wi = w[point];
        double yi = y[point] * wi;
        advance_to_interval(t, nk1, xi, l);
        fpbspl(t, n, k, xi, l, h);
        for (int i = 0; i < k1; ++i) {
            q[point + i * m] = h[i];
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
            fprota(cos, sin, yi, z[row]);
            for (int i1 = i + 1; i1 < k1; ++i1) {
                fprota(cos, sin, h[i1], a[row + (i1 - i) * nest]);
            }
        }
        fp = fp + yi * yi;
    }
    return fp;
}

// Sum of squared weighted residuals in each knot interval, in fpint[0..nrint-1]. A data point on
// a knot gives half its residual to each side.
void residuals_per_interval(double const* x, double const* y, double const* w, int m, int k,
                            int nk1, double const* t, double const* c, double const* q, int nrint,
                            double* fpint) {
    int const k1 = k + 1;
    double fpart = 0.0;
    int interval = 0;
    int l = k + 1;
    for (int point = 0; point < m; ++point) {
        bool const crossed = x[point] >= t[l] && l < nk1;
        if (crossed) {
            ++l;
        }
        double const value = value_at_data(c, q, m, point, l - k - 1, k1);
        double const residual = w[point] * (value - y[point]);
        double const term = residual * residual;
        fpart = fpart + term;
        if (crossed) {
            double const store = term * 0.5;
            fpint[interval] = fpart - store;
            ++interval;
            fpart = store;
        }
    }
    fpint[nrint - 1] = fpart;
}

double sum_of_squared_residuals(double const* x, double const* y, double const* w, int m, int k,
                                int nk1, double const* t, double const* c, double const* q) {
    int const k1 = k + 1;
    double fp = 0.0;
    int l = k + 1;
    for (int point = 0; point < m; ++point) {
        if (x[point] >= t[l] && l < nk1) {
            ++l;
        }
        double const value = value_at_data(c, q, m, point, l - k - 1, k1);
        double const residual = w[point] * (value - y[point]);
        fp = fp + residual * residual;
    }
    return fp;
}

// Smoothing spline for the parameter p: the rows of the jump matrix b, weighted 1/p, are rotated
// into a copy g of the least-squares triangle a, then solved for c.
void smoothing_fit(double p, int k1, int k2, int nest, int n, double const* z, double const* a,
                   double const* b, double* g, double* c) {
    int const nk1 = n - k1;
    int const n8 = n - 2 * k1;
    double const pinv = 1.0 / p;
    for (int i = 0; i < nk1; ++i) {
        c[i] = z[i];
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

} // namespace

void fpcurf(int iopt, double const* x, double const* y, double const* w, int m, double xb,
            double xe, int k, double s, int nest, double tol, int maxit, int k1, int k2, int& n,
            double* t, double* c, double& fp, double* fpint, double* z, double* a, double* b,
            double* g, double* q, int* nrdata, int& ier) {
    int const nmin = 2 * k1;
    int const nmax = m + k1;
    double acc = 0.0;
    double fp0 = 0.0;
    double fpold = 0.0;
    double fpms = 0.0;
    int nplus = 0;

    // Stage 1: the number of knots and their position. With s > 0 the search starts from the
    // least-squares polynomial (no interior knot), or, on a continued call, from the knots of
    // the last call if they do not already satisfy s; with s = 0 the knots are those of the
    // interpolating spline.
    if (iopt >= 0) {
        acc = tol * s;
        if (s > 0.0) {
            bool from_polynomial = iopt == 0 || n == nmin;
            if (!from_polynomial) {
                fp0 = fpint[n - 1];
                fpold = fpint[n - 2];
                nplus = nrdata[n - 1];
                from_polynomial = fp0 <= s;
            }
            if (from_polynomial) {
                n = nmin;
                fpold = 0.0;
                nplus = 0;
                nrdata[0] = m - 2;
            }
        } else {
            n = nmax;
            if (nmax > nest) {
                ier = 1;
                return;
            }
            place_interpolation_knots(x, m, k, t);
        }
    }

    int nk1 = n - k1;
    for (int trial = 1; trial <= m; ++trial) {
        if (n == nmin) {
            ier = -2;
        }
        int nrint = n - nmin + 1;
        nk1 = n - k1;
        set_boundary_knots(xb, xe, k1, n, t);
        fp = least_squares_fit(x, y, w, m, k, nest, n, t, z, a, q);
        if (ier == -2) {
            fp0 = fp;
        }
        // Kept for a continued call (iopt = 1).
        fpint[n - 1] = fp0;
        fpint[n - 2] = fpold;
        nrdata[n - 1] = nplus;
        fpback(a, z, nk1, k1, c, nest);
        if (iopt < 0) {
            return;
        }
        fpms = fp - s;
        if (std::fabs(fpms) < acc) {
            return;
        }
        if (fpms < 0.0) {
            break;
        }
        if (n == nmax) {
            ier = -1;
            return;
        }
        if (n == nest) {
            ier = 1;
            return;
        }
        // How many knots to add: one after the polynomial, then as many as a linear model of
        // the decrease of fp asks for, at most doubling and at least halving the last step.
        if (ier != 0) {
            nplus = 1;
            ier = 0;
        } else {
            int npl1 = nplus * 2;
            double const rn = nplus;
            if (fpold - fp > acc) {
                npl1 = static_cast<int>(rn * fpms / (fpold - fp));
            }
            nplus = std::min(nplus * 2, std::max({npl1, nplus / 2, 1}));
        }
        fpold = fp;
        residuals_per_interval(x, y, w, m, k, nk1, t, c, q, nrint, fpint);
        for (int added = 0; added < nplus; ++added) {
            fpknot(x, m, t, n, fpint, nrdata, nrint, nest, 1);
            if (n == nmax) {
                place_interpolation_knots(x, m, k, t);
                break;
            }
            if (n == nest) {
                break;
            }
        }
    }

    if (ier == -2) {
        return;
    }

    // Stage 2: the smoothing spline on these knots, s(x) minimising
    // p * sum((w*(y - s))^2) + sum of squared jumps of the k-th derivative, with p found as the
    // root of f(p) = fp(p) - s. f decreases and is convex in p; the root is bracketed by
    // (p1, f1 > 0) and (p3, f3 < 0), p3 < 0 standing for infinity, and approached by rational
    // interpolation.
    fpdisc(t, n, k2, b, nest);
    double p1 = 0.0;
    double f1 = fp0 - s;
    double p3 = -1.0;
    double f3 = fpms;
    double p = 0.0;
    for (int i = 0; i < nk1; ++i) {
        p = p + a[i];
    }
    double const rn = nk1;
    p = rn / p;
    bool ich1 = false;
    bool ich3 = false;
    for (int iter = 1; iter <= maxit; ++iter) {
        smoothing_fit(p, k1, k2, nest, n, z, a, b, g, c);
        fp = sum_of_squared_residuals(x, y, w, m, k, nk1, t, c, q);
        fpms = fp - s;
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
                // p is still too large: f has not yet turned positive.
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
                // p is still too small.
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

} // namespace detail
} // namespace VARNO
