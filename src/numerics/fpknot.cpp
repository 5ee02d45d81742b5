#include "numerics/dierckx.hpp"

namespace VARNO {
namespace detail {

void fpknot(double const* x, int /*m*/, double* t, int& n, double* fpint, int* nrdata, int& nrint,
            int /*nest*/, int istart) {
    int const k = (n - nrint - 1) / 2;
    // The interval that contributes most to the residual, among those with a data point inside
    // (a knot can only go where there is data). first_point counts data points from 1, as istart.
    double fpmax = 0.0;
    int number = 0;
    int maxpt = 0;
    int maxbeg = 0;
    int first_point = istart;
    for (int j = 0; j < nrint; ++j) {
        int const inside = nrdata[j];
        if (fpmax < fpint[j] && inside != 0) {
            fpmax = fpint[j];
            number = j;
            maxpt = inside;
            maxbeg = first_point;
        }
        first_point += inside + 1;
    }
    // The new knot coincides with the middle data point inside that interval.
    int const ihalf = maxpt / 2 + 1;
    int const new_knot_point = maxbeg + ihalf;
    int const next = number + 1;
    for (int j = nrint - 1; j >= next; --j) {
        fpint[j + 1] = fpint[j];
        nrdata[j + 1] = nrdata[j];
        t[j + k + 1] = t[j + k];
    }
    nrdata[number] = ihalf - 1;
    nrdata[next] = maxpt - ihalf;
    // The residual of the split interval is shared in proportion to the points on each side.
    double const all_points = maxpt;
    fpint[number] = fpmax * static_cast<double>(nrdata[number]) / all_points;
    fpint[next] = fpmax * static_cast<double>(nrdata[next]) / all_points;
    t[next + k] = x[new_knot_point - 1];
    n = n + 1;
    nrint = nrint + 1;
}

} // namespace detail
} // namespace VARNO
