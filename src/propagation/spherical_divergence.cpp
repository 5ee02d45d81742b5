// Geometric loss of spherical spreading.

#include <calc-common/propagation.hpp>

#include <cmath>

namespace VARNO {
namespace TrrApi {

double SphericalDivergence(double const& distance, double const& reference_distance) {
    // A source practically at the observer gets a fixed, bounded gain instead of a pole.
    if (distance < 0.001) {
        return 50.0;
    }
    return -20.0 * std::log10(distance / reference_distance);
}

} // namespace TrrApi
} // namespace VARNO
