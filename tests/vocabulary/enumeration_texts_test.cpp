#include <calc-common/vocabulary.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

namespace {

// The texts of count values from first on, joined by '|'.
template <class Enumeration>
std::string texts(int first, int count = 1) {
    std::string joined;
    for (int value = first; value < first + count; ++value) {
        joined += (value == first ? "" : "|") + VARNO::StringValue(static_cast<Enumeration>(value));
    }
    return joined;
}

} // namespace

TEST(EnumerationTexts, TablesWithTheirGapsAndEnds) {
    // Some tables start at 1, some have gaps; values past either end, negative ones included,
    // have no text either.
    EXPECT_EQ(texts<aircraft_type_t>(0, 2), "|A340");
    EXPECT_EQ(texts<aircraft_type_t>(11, 2), "A400M|");
    EXPECT_EQ(texts<jet_type_t>(0, 2), "|Primary");
    EXPECT_EQ(texts<time_period_t>(0, 2), "|Day time");
    EXPECT_EQ(texts<power_management_parameter_unit_t>(0, 2), "|%");
    EXPECT_EQ(texts<power_management_parameter_type_t>(4, 5), "N1K||SHP|FN|FNc");
    EXPECT_EQ(texts<atm_abs_method_t>(2, 3), "SAE AIR1845||ARP5534");
    EXPECT_EQ(texts<engine_manufacturer_t>(5, 4), "|Engine Alliance||EPI Inc.");
    EXPECT_EQ(texts<iso_parameter_t>(3, 7), "|iso-V9|iso-V19|iso-Vmix|iso-W3|iso-LPT-UTIPC|");
    EXPECT_EQ(texts<indicator_type_t>(1, 8), "|||SPLADJ||||SPL");
    EXPECT_EQ(texts<indicator_type_t>(27, 8), "PSIPNLTM|EPNL|SEL||SENEL|TA|NA|LEQ24H");
    EXPECT_EQ(texts<indicator_type_t>(46, 2), "NEF|");
    EXPECT_EQ(texts<fan_method_t>(4, 2), "|Heidmann 1979");
    EXPECT_EQ(texts<noise_component_t>(9, 2), "Haystack noise|");
    EXPECT_EQ(texts<ground_reflection_method_t>(-1, 10),
              "|Perfect ground|Certification ground (SAE AIR 1672B)|Delany-Bazley (Certification)|"
              "Delany-Bazley (Grass)|Delany-Bazley (Asphalt)|Delany-Bazley (User-defined ground)|"
              "Attenborough (User-defined ground)|Slit-Pore (User-defined ground)|");
    // Export flags name single flags and three combinations only.
    EXPECT_EQ(texts<export_flag_t>(0, 2), "|Microphone-independent trajectory data");
    EXPECT_EQ(texts<export_flag_t>(3, 4), "Trajectory data|Time-dependent noise metrics||");
    EXPECT_EQ(texts<export_flag_t>(8, 5), "Time-independent noise metrics||||Noise metrics");
    EXPECT_EQ(texts<export_flag_t>(128), "Footprints");
    EXPECT_EQ(texts<export_flag_t>(254, 3), "|All available data|");
    EXPECT_EQ(texts<export_flag_t>(48), "");
    // The flight speed effect reads as the default method for every other value.
    EXPECT_EQ(texts<flight_speed_effect_method_t>(-1, 4), "Standard|Standard|EPI Jet|Standard");
    // Labels where a slip is likely.
    EXPECT_EQ(texts<jet_noise_prediction_method_t>(3), "SAE ARP 876F (double-stream)");
    EXPECT_EQ(texts<combustion_method_t>(0), "SAE ARP876 F");
    EXPECT_EQ(texts<turbine_method_t>(3), "SAE ARP876 F");
    EXPECT_EQ(texts<fan_esr_model_t>(0), "no fan-OGV distance correction");
    EXPECT_EQ(texts<power_management_parameter_type_t>(15), "AoA");
    EXPECT_EQ(texts<nlcp_calculation_type_t>(2), "In-flight noise (take-off)");
    EXPECT_EQ(texts<noise_component_t>(2), "Buzz-saw noise");
    EXPECT_EQ(texts<comp_fan_noise_component_t>(3), "Buzz-saw noise");
    EXPECT_EQ(texts<source_type_t>(-1, 2), "|Jet");
    EXPECT_EQ(texts<source_type_t>(7, 3),
              "Total engine, propeller(s) excluded|Propeller|CROR propellers");
    EXPECT_EQ(texts<source_type_t>(11, 2), "Total engine (pseudo-breakdown input)|Slats");
    EXPECT_EQ(texts<source_type_t>(23, 2), "Spoiler|");
}

TEST(EnumerationTexts, ExhaustLabelsCarryTheirConfigurationNumber) {
    EXPECT_EQ(texts<exhaust_type_t>(-2), "0: M=0, calculation with primary speed");
    EXPECT_EQ(texts<exhaust_type_t>(-1), "0: M=0, calculation with bypass speed");
    EXPECT_EQ(texts<exhaust_type_t>(0), "0: M=0, calculation with mixing speed");
    // The number in the label is the value from 0 on; the gaps (23, 24, 35, ...) have no label,
    // which the count of labels holds.
    int labelled = 0;
    for (int value = -3; value <= 209; ++value) {
        std::string const label = texts<exhaust_type_t>(value);
        if (!label.empty()) {
            ++labelled;
            EXPECT_EQ(label.rfind(std::to_string(std::max(value, 0)) + ": ", 0), 0u) << value;
        }
    }
    EXPECT_EQ(labelled, 43);
    // Long labels and labels shared up to the number.
    EXPECT_EQ(texts<exhaust_type_t>(9), "9: Separated CFMI (CFM56-5B set up on A320) - used for "
                                        "calculations in developement");
    EXPECT_EQ(texts<exhaust_type_t>(21).substr(4), texts<exhaust_type_t>(22).substr(4));
    EXPECT_EQ(texts<exhaust_type_t>(28).substr(4), texts<exhaust_type_t>(30).substr(4));
    EXPECT_EQ(texts<exhaust_type_t>(33), "33: ROSAS FROM CFM (K. Dorvel mail 7 Feb 11)");
    EXPECT_EQ(texts<exhaust_type_t>(201), "201: A321neo flap/slat - averag");
    EXPECT_EQ(texts<exhaust_type_t>(208),
              "208: A320neo m curve - AP - micro arc FO Lissage courbe par SN");
}

TEST(EnumerationTexts, StreamWritesTheTextExceptForTheMachOption) {
    // The Mach number option has no text and shows its number; an exhaust configuration has no
    // stream output of its own and streams as its number through the conversion to int.
    std::ostringstream os;
    os << static_cast<aircraft_type_t>(7) << '|' << static_cast<flight_speed_effect_method_t>(42)
       << '|' << static_cast<source_type_t>(4) << '|' << static_cast<indicator_type_t>(30) << '|'
       << static_cast<comp_fan_noise_machper_option_t>(-17) << '|'
       << static_cast<exhaust_type_t>(-2) << '|' << static_cast<time_period_t>(3) << '|'
       << static_cast<seasonal_adjustment_t>(1);
    EXPECT_EQ(os.str(), "A300-600|Standard|Fan forward - buzz-saw||-17|-2|Night time|Temperate");
}
