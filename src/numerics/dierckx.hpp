#ifndef CALC_COMMON_SRC_NUMERICS_DIERCKX_HPP
#define CALC_COMMON_SRC_NUMERICS_DIERCKX_HPP

// Dierckx's smoothing-spline algorithm (P. Dierckx, "Curve and Surface Fitting with Splines",
// 1993, and "An algorithm for smoothing, differentiation and integration of experimental data
// using spline functions", J. Comp. Appl. Math. 1, 1975), with the argument lists, work-space
// conventions and return codes of the published routines.
//
// Conventions shared by every routine here:
// - A spline of degree k is held as n knots t[0..n-1] and n-k-1 B-spline coefficients c[]. Its
//   span is t[k] .. t[n-k-1]; the first and last k+1 knots carry the boundary.
// - Banded matrices are stored by columns with a leading dimension (nest), so that row i of the
//   band is a[i], a[i + nest], a[i + 2*nest], ...; row indices are 0-based.
// - Return codes: 0 success; for curfit -1 (interpolating spline), -2 (least-squares
//   polynomial), 1 (nest too small), 2 (impossible result), 3 (iteration limit reached); 10 for
//   invalid input everywhere.
// - The routines keep no state between calls: they work only in the arrays they are given.

namespace VARNO {
namespace detail {

/// Relative tolerance on the smoothing condition |fp - s| < tol*s.
constexpr double curfit_tolerance = 0.001;
/// Most iterations allowed in the search for the smoothing parameter.
constexpr int curfit_max_iterations = 20;

/// Weighted smoothing spline of degree k (1..5) on [xb, xe] for m points whose abscissas strictly
/// increase: few knots, and fp = sum((w*(y - s(x)))^2) equal to s within tol*s (or below s for
/// the least-squares polynomial, -2, and 0 for the interpolating spline, -1). iopt 0 starts afresh,
/// 1 continues from the knots of the last call (wrk and iwrk kept), -1 fits the n knots given in t.
/// nest bounds n (m+k+1 is always enough); wrk holds lwrk >= m*(k+1) + nest*(7+3k) doubles, iwrk
/// nest ints. On return n, t, c and fp (the weighted sum of squared residuals) describe the spline,
/// and ier the outcome.
void curfit(int iopt, int m, double const* x, double const* y, double const* w, double xb,
            double xe, int k, double s, int nest, int& n, double* t, double* c, double& fp,
            double* wrk, int lwrk, int* iwrk, int& ier);

/// Worker of curfit, with the work space split into its arrays: fpint (nest) sums of squared
/// residuals per knot interval, z (nest) rotated right-hand side, a (nest x k1) and g (nest x k2)
/// triangular bands, b (nest x k2) jumps of the k-th derivative, q (m x k1) B-spline values at the
/// data, nrdata (nest) counts of data points strictly inside each knot interval.
void fpcurf(int iopt, double const* x, double const* y, double const* w, int m, double xb,
            double xe, int k, double s, int nest, double tol, int maxit, int k1, int k2, int& n,
            double* t, double* c, double& fp, double* fpint, double* z, double* a, double* b,
            double* g, double* q, int* nrdata, int& ier);

/// Values at m ascending abscissas x of the spline (t, n, c, k); a point outside the span is
/// evaluated at the nearest end of the span. ier 10 when m < 1 or x descends somewhere.
void splev(double const* t, int n, double const* c, int k, double const* x, double* y, int m,
           int& ier);

/// Derivative of order nu (0..k) at m ascending abscissas, clamped to the span as in splev.
/// wrk holds n doubles. ier 10 on a bad order, m < 1 or descending x.
void splder(double const* t, int n, double const* c, int k, int nu, double const* x, double* y,
            int m, double* wrk, int& ier);

/// All derivatives d[0..k1-1] (orders 0..k1-1) of the spline of order k1 (degree k1-1) at x.
/// ier 10 when x lies outside the span.
void spalde(double const* t, int n, double const* c, int k1, double x, double* d, int& ier);

/// The derivatives of spalde at x in the knot interval t[l] <= x < t[l+1].
void fpader(double const* t, int n, double const* c, int k1, double x, int l, double* d);

/// The k+1 B-splines of degree k that do not vanish on t[l] <= x < t[l+1], by the stable
/// recurrence of de Boor and Cox, in h[0..k].
void fpbspl(double const* t, int n, int k, double x, int l, double* h);

/// Givens rotation that annihilates piv against ww: on return ww holds sqrt(ww^2 + piv^2),
/// computed without overflow, with cos = ww/dd and sin = piv/dd.
void fpgivs(double piv, double& ww, double& cos, double& sin);

/// Applies the rotation (cos, sin) to the pair (a, b).
void fprota(double cos, double sin, double& a, double& b);

/// Solves a*c = z for an n x n upper triangular band a of bandwidth k (stored by columns with
/// leading dimension nest). c may alias z.
void fpback(double const* a, double const* z, int n, int k, double* c, int nest);

/// Jumps of the k-th derivative of the B-splines at the interior knots t[k+1..n-k-2], scaled by
/// the mean interval length, in the band b (nest x k2, k2 = k+2).
void fpdisc(double const* t, int n, int k2, double* b, int nest);

/// Adds one knot inside the interval of largest residual sum fpint that still holds a data point,
/// at its middle data point, and keeps fpint, nrdata, n and nrint up to date. istart is the
/// (1-based) position of the data point that opens the first interval.
void fpknot(double const* x, int m, double* t, int& n, double* fpint, int* nrdata, int& nrint,
            int nest, int istart);

/// Root of the rational function r(p) = (u*p + v)/(p + w) through (p1, f1), (p2, f2), (p3, f3),
/// p3 < 0 standing for infinity. Then moves (p2, f2) into the bracket: into (p1, f1) when f2 >= 0,
/// into (p3, f3) otherwise.
double fprati(double& p1, double& f1, double p2, double f2, double& p3, double& f3);

/// True when x[0..m-1] never descends (equal neighbours allowed).
inline bool abscissas_ascend(double const* x, int m) {
    for (int i = 1; i < m; ++i) {
        if (x[i] < x[i - 1]) {
            return false;
        }
    }
    return true;
}

/// Moves l forward to the knot interval t[l] <= arg < t[l+1] of the span, the last interval
/// (l = nk1 - 1) also taking arg = t[nk1]. Searching forward only suits ascending arguments.
inline void advance_to_interval(double const* t, int nk1, double arg, int& l) {
    while (!(arg < t[l + 1] || l == nk1 - 1)) {
        ++l;
    }
}

/// The argument at which splev and splder evaluate x: x itself inside the span [tb, te], the
/// nearest end of the span outside it.
inline double clamp_to_span(double x, double tb, double te) {
    if (x < tb) {
        return tb;
    }
    if (x > te) {
        return te;
    }
    return x;
}

/// Writes to y the values at m ascending abscissas x, each taken at the nearest end of the span
/// [t[k], t[n-k-1]] when outside it, of the spline of `degree` (at most k) on the knots of a
/// degree-k spline whose coefficients for knot interval l start at coefficients[l - k]. splev
/// evaluates with degree k, splder with the lower degree of a derivative.
void evaluate_ascending(double const* t, int n, int k, int degree, double const* coefficients,
                        double const* x, double* y, int m);

/// ier 0 when the knots t[0..n-1] suit a spline of degree k through the m abscissas x: ordered
/// boundary knots, strictly increasing interior knots, data inside the span, and the
/// Schoenberg-Whitney conditions. ier 10 otherwise.
void fpchec(double const* x, int m, double const* t, int n, int k, int& ier);

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_NUMERICS_DIERCKX_HPP
