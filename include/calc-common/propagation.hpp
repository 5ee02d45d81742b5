#ifndef CALC_COMMON_PROPAGATION_HPP
#define CALC_COMMON_PROPAGATION_HPP

/// @file
/// Propagation: what the air and the ground do to a spectrum on its way to the observer.
/// Atmospheric absorption, spherical divergence and ground reflection.

#include <calc-common/export.hpp>
#include <calc-common/spectra.hpp>
#include <calc-common/vocabulary.hpp>

#include <boost/shared_ptr.hpp>

/// State of the air along a propagation path. Every field is 0 on creation.
struct VARNO_CALC_COMMON_EXPORT ambient_conditions_t {
    double temperature = 0.0;       ///< air temperature, K
    double pressure = 0.0;          ///< static air pressure, Pa
    double relative_humidity = 0.0; ///< relative humidity, percent (0 to 100)
    double value_1 = 0.0;           ///< kept for the calculation libraries; not read here
    double value_2 = 0.0;           ///< kept for the calculation libraries; not read here
    double value_3 = 0.0;           ///< kept for the calculation libraries; not read here
};

// The ground model of the reflection is chosen by the transposition options, which
// <calc-common/scenario.hpp> defines.
struct common_all_sources_transposition_t;

namespace VARNO {
namespace TrrApi {

/// Fills `absorption` with the atmospheric absorption loss in dB over `distance` (m) at each
/// frequency of its range, by `method` (with a distance of 100 m this is the coefficient in
/// dB/100 m). A frequency of 0 gives 0, a negative frequency not-a-number. Sutherland and
/// ARP 866 give pure-tone losses at the exact frequency, SAE AIR1845 a fixed value per
/// third-octave band, ARP 5534 the loss of a whole third-octave band over this path. An unknown
/// method leaves `absorption` as it was.
VARNO_CALC_COMMON_EXPORT void AtmAbsCoefficients(atm_abs_method_t method, double const& distance,
                                                 boost::shared_ptr<ambient_conditions_t> ambient,
                                                 boost::shared_ptr<spectrum_t> absorption);

/// Subtracts the atmospheric absorption loss over `distance` (m) from every level (dB) of
/// `spectrum`, in place, by `method`. Not-a-number levels stay so, levels at 0 Hz are left
/// alone, negative frequencies give not-a-number. An unknown method changes nothing.
VARNO_CALC_COMMON_EXPORT void AtmAbsCorrection(atm_abs_method_t method,
                                               boost::shared_ptr<spectrum_t> spectrum,
                                               double const& distance,
                                               boost::shared_ptr<ambient_conditions_t> ambient);

/// Gain in dB of spherical spreading from `reference_distance` to `distance` (m):
/// -20 log10(distance/reference), negative beyond the reference, and a fixed 50 dB for a
/// source closer than 1 mm.
VARNO_CALC_COMMON_EXPORT double SphericalDivergence(double const& distance,
                                                    double const& reference_distance);

} // namespace TrrApi
} // namespace VARNO

/// Change of level in dB that the ray reflected at the ground brings to the direct sound, for
/// each frequency of `effect`'s range, written into `effect`. The ground model is the method of
/// `options`; the air is `ambient`. Distances in m (direct and reflected path), `grazing_angle`
/// in degrees; `sound_speed` (m/s) only sets the band averaging on a narrowband grid. `phase`
/// receives the phase of the reflection coefficient (rad) and `*delay` the delay of the
/// reflected ray (ms). A source within 1 m, or paths of equal length, give +6 dB everywhere and
/// leave `phase` and `*delay` alone. Throws varno_calc_error for a method outside 0 to 7.
/// Keeps working storage per thread between calls: threads may call it at once on separate
/// outputs.
VARNO_CALC_COMMON_EXPORT void
Calc_GroundReflectionEffect(boost::shared_ptr<common_all_sources_transposition_t> options,
                            boost::shared_ptr<ambient_conditions_t> ambient, double direct_distance,
                            double reflected_distance, double sound_speed, double grazing_angle,
                            boost::shared_ptr<spectrum_t> effect,
                            boost::shared_ptr<spectrum_t> phase, double* delay);

/// Flow resistivity of the fixed Delany-Bazley grounds (certification 60, grass 200,
/// asphalt 20000); 0 for any other method.
VARNO_CALC_COMMON_EXPORT double Calc_DelanyBazleySigma(ground_reflection_method_t method);

/// Thickness in m of the porous layer of a Delany-Bazley ground of flow resistivity `sigma`
/// (the resistivity scale of Calc_DelanyBazleySigma); 0 for a resistivity of 0.
VARNO_CALC_COMMON_EXPORT double Calc_DelanyBazleyThickness(double sigma);

#endif // CALC_COMMON_PROPAGATION_HPP
