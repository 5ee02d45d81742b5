#include <calc-common/propagation.hpp>

#include "reference_data.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using propagation_reference::absorption_references;

boost::shared_ptr<ambient_conditions_t> air(double temperature, double pressure,
                                            double relative_humidity) {
    auto ambient = boost::make_shared<ambient_conditions_t>();
    ambient->temperature = temperature;
    ambient->pressure = pressure;
    ambient->relative_humidity = relative_humidity;
    return ambient;
}

boost::shared_ptr<spectrum_t> listed_spectrum(std::vector<double> const& frequencies,
                                              double level) {
    auto spectrum = boost::make_shared<spectrum_t>(boost::make_shared<frequency_range_t>());
    for (double f : frequencies) {
        spectrum->add_value(f, level);
    }
    return spectrum;
}

boost::shared_ptr<ambient_conditions_t> const ambient = air(288.15, 101325.0, 70.0);

// Coefficient in dB/100 m of `method` at one frequency.
double coefficient(atm_abs_method_t method, double frequency,
                   boost::shared_ptr<ambient_conditions_t> ambient, double distance = 100.0) {
    auto spectrum = listed_spectrum({frequency}, 0.0);
    VARNO::TrrApi::AtmAbsCoefficients(method, distance, ambient, spectrum);
    return spectrum->values[0] * 100.0 / distance;
}

} // namespace

TEST(AtmosphericAbsorption, EveryMethodFollowsItsFormula) {
    for (auto const& ref : absorption_references) {
        auto const ambient = air(ref.temperature, ref.pressure, ref.relative_humidity);
        auto const method = static_cast<atm_abs_method_t>(ref.method);
        auto absorption = listed_spectrum({ref.frequency}, 123.0);
        VARNO::TrrApi::AtmAbsCoefficients(method, ref.distance, ambient, absorption);
        EXPECT_NEAR(absorption->values[0], ref.loss, 1e-12 * std::fabs(ref.loss) + 1e-15)
            << "method " << ref.method << " at " << ref.frequency << " Hz, " << ref.temperature
            << " K, " << ref.distance << " m";

        auto spectrum = listed_spectrum({ref.frequency}, 90.0);
        VARNO::TrrApi::AtmAbsCorrection(method, spectrum, ref.distance, ambient);
        EXPECT_NEAR(spectrum->values[0], 90.0 - ref.loss, 1e-12 * std::fabs(ref.loss) + 1e-13);
    }
}

TEST(AtmosphericAbsorption, UnusableFrequenciesAndLevelsStayInTheirElement) {
    double const nan = std::nan("");
    for (auto method : {atm_abs_sutherland, atm_abs_arp866, atm_abs_sae_air1845, atm_abs_arp5534}) {
        auto absorption = listed_spectrum({0.0, -1000.0, 1000.0}, 55.0);
        VARNO::TrrApi::AtmAbsCoefficients(method, 250.0, ambient, absorption);
        EXPECT_EQ(absorption->values[0], 0.0) << method;
        EXPECT_TRUE(std::isnan(absorption->values[1])) << method;
        EXPECT_GT(absorption->values[2], 0.0) << method;

        auto spectrum = listed_spectrum({0.0, -1000.0, 1000.0, 2000.0}, 55.0);
        spectrum->values[3] = nan;
        VARNO::TrrApi::AtmAbsCorrection(method, spectrum, 250.0, ambient);
        EXPECT_EQ(spectrum->values[0], 55.0) << method;
        EXPECT_TRUE(std::isnan(spectrum->values[1])) << method;
        EXPECT_NEAR(spectrum->values[2], 55.0 - absorption->values[2], 1e-12) << method;
        EXPECT_TRUE(std::isnan(spectrum->values[3])) << method;
    }
}

TEST(AtmosphericAbsorption, UnknownMethodLeavesTheSpectrumAlone) {
    // Returns before it looks at the air, so none need be given.
    boost::shared_ptr<ambient_conditions_t> const ambient;
    for (int method : {3, 5, -1}) {
        auto spectrum = listed_spectrum({125.0, 4000.0}, 70.0);
        VARNO::TrrApi::AtmAbsCorrection(static_cast<atm_abs_method_t>(method), spectrum, 500.0,
                                        ambient);
        EXPECT_EQ(spectrum->values, (std::vector<double>{70.0, 70.0})) << method;
        VARNO::TrrApi::AtmAbsCoefficients(static_cast<atm_abs_method_t>(method), 500.0, ambient,
                                          spectrum);
        EXPECT_EQ(spectrum->values, (std::vector<double>{70.0, 70.0})) << method;
    }
}

TEST(AtmosphericAbsorption, FrequenciesComeFromAnyKindOfGrid) {
    // A narrowband grid starting at 0 Hz: the first line is not absorbed.
    auto narrowband =
        boost::make_shared<spectrum_t>(frequency_range_t::create_nb(0.0, 300.0, 100.0));
    narrowband->fill_with(60.0);
    VARNO::TrrApi::AtmAbsCorrection(atm_abs_sutherland, narrowband, 1000.0, ambient);
    EXPECT_EQ(narrowband->values[0], 60.0);
    EXPECT_NEAR(narrowband->values[3],
                60.0 - coefficient(atm_abs_sutherland, 300.0, ambient) * 10.0, 1e-12);

    // The AIR 1845 table reads nothing of the air, so none need be given; its top band runs to
    // 11.2 kHz.
    auto third_octave = spectrum_t::create_tob();
    VARNO::TrrApi::AtmAbsCoefficients(atm_abs_sae_air1845, 100.0, nullptr, third_octave);
    EXPECT_EQ(third_octave->values[0], 0.033);
    EXPECT_EQ(third_octave->values[23], 9.836);
    EXPECT_EQ(coefficient(atm_abs_sae_air1845, 11200.0, nullptr), 9.836);
}

TEST(AtmosphericAbsorption, Arp866RatesHighBandsAtTheirEffectiveFrequency) {
    // A listed centre is matched within 1 mHz and rated at its effective frequency (5 kHz in the
    // reference table); an unlisted frequency above 4 kHz (there 6 kHz) falls back to a rating
    // frequency of 0.033 Hz.
    EXPECT_EQ(coefficient(atm_abs_arp866, 5000.0005, ambient),
              coefficient(atm_abs_arp866, 5000.0, ambient));
    EXPECT_LT(coefficient(atm_abs_arp866, 4999.0, ambient), 1e-3);
}

TEST(AtmosphericAbsorption, Arp5534IsABandLossOverThePath) {
    // One coefficient for the whole band.
    EXPECT_EQ(coefficient(atm_abs_arp5534, 900.0, ambient, 500.0),
              coefficient(atm_abs_arp5534, 1100.0, ambient, 500.0));
    // A path of zero length has no defined band loss.
    auto absorption = listed_spectrum({1000.0}, 0.0);
    VARNO::TrrApi::AtmAbsCoefficients(atm_abs_arp5534, 0.0, ambient, absorption);
    EXPECT_TRUE(std::isnan(absorption->values[0]));
}

// Plausibility against ISO 9613-1, whose pure-tone formula the generator evaluates (and checks
// against the standard's published table) at three airs and the octave bands 63 Hz to 8 kHz.
TEST(AtmosphericAbsorption, AgreesWithIso9613) {
    for (auto const& iso : propagation_reference::iso9613_references) {
        auto const ambient = air(iso.temperature, 101325.0, iso.relative_humidity);
        double const f = std::pow(10.0, iso.band / 10.0);
        // Sutherland's nitrogen relaxation frequency rises faster with humidity than ISO's
        // (350 h against 280 h), so below the oxygen peak its loss is up to a fifth smaller;
        // elsewhere the two differ by about a tenth.
        EXPECT_NEAR(coefficient(atm_abs_sutherland, f, ambient) * 10.0, iso.db_per_km,
                    0.2 * iso.db_per_km)
            << f << " Hz, " << iso.temperature << " K, " << iso.relative_humidity << " %";
        // ARP 5534 is ISO's pure-tone loss converted to a band loss, which over 100 m adds
        // about 2 %, and its saturation vapour pressure differs slightly from ISO's.
        EXPECT_NEAR(coefficient(atm_abs_arp5534, f, ambient) * 10.0, iso.db_per_km,
                    0.025 * iso.db_per_km)
            << f << " Hz, " << iso.temperature << " K, " << iso.relative_humidity << " %";
    }
}

TEST(AtmosphericAbsorption, BandMethodsGiveNotANumberForAFrequencyWithNoBand) {
    for (atm_abs_method_t method : {atm_abs_sae_air1845, atm_abs_arp5534}) {
        auto absorption = listed_spectrum({std::nan(""), HUGE_VAL, 1000.0}, 0.0);
        VARNO::TrrApi::AtmAbsCoefficients(method, 100.0, ambient, absorption);
        EXPECT_TRUE(std::isnan(absorption->values[0])) << method;
        EXPECT_TRUE(std::isnan(absorption->values[1])) << method;
        EXPECT_EQ(absorption->values[2], coefficient(method, 1000.0, ambient)) << method;
    }
}
