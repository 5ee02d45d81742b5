#include "numerics/dierckx.hpp"

namespace VARNO {
namespace detail {
namespace {

bool boundary_knots_ordered(double const* t, int n, int k) {
    for (int i = 0; i < k; ++i) {
        if (t[i] > t[i + 1] || t[n - 1 - i] < t[n - 2 - i]) {
            return false;
        }
    }
    return true;
}

bool interior_knots_increase(double const* t, int k, int nk1) {
    for (int i = k + 1; i <= nk1; ++i) {
        if (t[i] <= t[i - 1]) {
            return false;
        }
    }
    return true;
}

// Schoenberg-Whitney: the data hold a subsequence y[j] with t[j] < y[j] < t[j+k+1] for every
// B-spline j, which makes the least-squares system non-singular. Greedy matching from the left
// finds one when any exists.
bool schoenberg_whitney(double const* x, int m, double const* t, int k, int nk1) {
    if (x[0] >= t[k + 1] || x[m - 1] <= t[nk1 - 1]) {
        return false;
    }
    int i = 0;
    for (int j = 1; j <= nk1 - 2; ++j) {
        double const left = t[j];
        double const right = t[j + k + 1];
        do {
            ++i;
            if (i >= m - 1) {
                return false;
            }
        } while (x[i] <= left);
        if (x[i] >= right) {
            return false;
        }
    }
    return true;
}

} // namespace

void fpchec(double const* x, int m, double const* t, int n, int k, int& ier) {
    int const nk1 = n - k - 1;
    ier = 10;
    if (nk1 < k + 1 || nk1 > m) {
        return;
    }
    if (!boundary_knots_ordered(t, n, k) || !interior_knots_increase(t, k, nk1)) {
        return;
    }
    if (x[0] < t[k] || x[m - 1] > t[nk1]) {
        return;
    }
    if (!schoenberg_whitney(x, m, t, k, nk1)) {
        return;
    }
    ier = 0;
}

} // namespace detail
} // namespace VARNO
