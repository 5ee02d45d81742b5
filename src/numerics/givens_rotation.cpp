#include "numerics/dierckx.hpp"

#include <cmath>

namespace VARNO {
namespace detail {

void fpgivs(double piv, double& ww, double& cos, double& sin) {
    // The hypotenuse is scaled by the larger leg so that no square can overflow.
    double const magnitude = std::fabs(piv);
    double dd;
    if (magnitude >= ww) {
        double const ratio = ww / piv;
        dd = magnitude * std::sqrt(1.0 + ratio * ratio);
    } else {
        double const ratio = piv / ww;
        dd = ww * std::sqrt(1.0 + ratio * ratio);
    }
    cos = ww / dd;
    sin = piv / dd;
    ww = dd;
}

void fprota(double cos, double sin, double& a, double& b) {
    double const old_a = a;
    double const old_b = b;
    b = cos * old_b + sin * old_a;
    a = cos * old_a - sin * old_b;
}

} // namespace detail
} // namespace VARNO
