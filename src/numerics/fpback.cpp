#include "numerics/dierckx.hpp"

#include <algorithm>

namespace VARNO {
namespace detail {

void fpback(double const* a, double const* z, int n, int k, double* c, int nest) {
    // Row i couples c[i] with at most k-1 unknowns below it, all known when row i is reached.
    c[n - 1] = z[n - 1] / a[n - 1];
    for (int i = n - 2; i >= 0; --i) {
        double store = z[i];
        int const coupled = std::min(k - 1, n - 1 - i);
        for (int offset = 1; offset <= coupled; ++offset) {
            store = store - c[i + offset] * a[i + offset * nest];
        }
        c[i] = store / a[i];
    }
}

} // namespace detail
} // namespace VARNO
