#include <calc-common/vocabulary.hpp>

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

template <class Enumeration>
std::string text(int value) {
    return VARNO::StringValue(static_cast<Enumeration>(value));
}

template <class Enumeration>
std::string streamed(int value) {
    std::ostringstream os;
    os << static_cast<Enumeration>(value);
    return os.str();
}

} // namespace

TEST(EnumerationTexts, ValuesOutsideATableOrInItsGapsHaveNoText) {
    // Tables that start at 1.
    EXPECT_EQ(text<aircraft_type_t>(0), "");
    EXPECT_EQ(text<jet_type_t>(0), "");
    EXPECT_EQ(text<time_period_t>(0), "");
    EXPECT_EQ(text<power_management_parameter_unit_t>(0), "");
    // Gaps inside tables.
    EXPECT_EQ(text<atm_abs_method_t>(3), "");
    EXPECT_EQ(text<atm_abs_method_t>(4), "ARP5534");
    EXPECT_EQ(text<engine_manufacturer_t>(5), "");
    EXPECT_EQ(text<engine_manufacturer_t>(7), "");
    EXPECT_EQ(text<engine_manufacturer_t>(8), "EPI Inc.");
    EXPECT_EQ(text<iso_parameter_t>(3), "");
    EXPECT_EQ(text<iso_parameter_t>(4), "iso-V9");
    EXPECT_EQ(text<power_management_parameter_type_t>(5), "");
    EXPECT_EQ(text<power_management_parameter_type_t>(6), "SHP");
    for (int gap : {1, 2, 3, 5, 6, 7, 30}) {
        EXPECT_EQ(text<indicator_type_t>(gap), "") << gap;
    }
    EXPECT_EQ(text<indicator_type_t>(29), "SEL");
    EXPECT_EQ(text<indicator_type_t>(31), "SENEL");
    EXPECT_EQ(text<indicator_type_t>(46), "NEF");
    EXPECT_EQ(text<indicator_type_t>(47), "");
    EXPECT_EQ(text<fan_method_t>(4), "");
    EXPECT_EQ(text<fan_method_t>(5), "Heidmann 1979");
    // Past the ends, including negative values.
    EXPECT_EQ(text<aircraft_type_t>(12), "");
    EXPECT_EQ(text<ground_reflection_method_t>(8), "");
    EXPECT_EQ(text<ground_reflection_method_t>(-1), "");
    EXPECT_EQ(text<noise_component_t>(10), "");
}

TEST(EnumerationTexts, ExportFlagsNameSingleFlagsAndThreeCombinationsOnly) {
    EXPECT_EQ(text<export_flag_t>(1), "Microphone-independent trajectory data");
    EXPECT_EQ(text<export_flag_t>(3), "Trajectory data");
    EXPECT_EQ(text<export_flag_t>(12), "Noise metrics");
    EXPECT_EQ(text<export_flag_t>(255), "All available data");
    EXPECT_EQ(text<export_flag_t>(128), "Footprints");
    for (int combination : {0, 5, 6, 9, 48, 254, 256}) {
        EXPECT_EQ(text<export_flag_t>(combination), "") << combination;
    }
}

TEST(EnumerationTexts, FlightSpeedEffectReadsAsTheDefaultForEveryOtherValue) {
    EXPECT_EQ(text<flight_speed_effect_method_t>(1), "EPI Jet");
    for (int value : {0, 2, 99, -1}) {
        EXPECT_EQ(text<flight_speed_effect_method_t>(value), "Standard") << value;
    }
}

TEST(EnumerationTexts, ExhaustLabelsCarryTheirConfigurationNumber) {
    EXPECT_EQ(text<exhaust_type_t>(-2), "0: M=0, calculation with primary speed");
    EXPECT_EQ(text<exhaust_type_t>(-1), "0: M=0, calculation with bypass speed");
    EXPECT_EQ(text<exhaust_type_t>(0), "0: M=0, calculation with mixing speed");
    // The number in the label is the value from 0 on; the gaps (23, 24, 35, ...) have no label,
    // which the count of labels holds.
    int labelled = 0;
    for (int value = -3; value <= 209; ++value) {
        std::string const label = text<exhaust_type_t>(value);
        if (label.empty()) {
            continue;
        }
        ++labelled;
        int const number = value < 0 ? 0 : value;
        EXPECT_EQ(label.rfind(std::to_string(number) + ": ", 0), 0u) << value;
    }
    EXPECT_EQ(labelled, 43);
    // Long labels and labels shared up to the number.
    EXPECT_EQ(text<exhaust_type_t>(9), "9: Separated CFMI (CFM56-5B set up on A320) - used for "
                                       "calculations in developement");
    EXPECT_EQ(text<exhaust_type_t>(21).substr(4), text<exhaust_type_t>(22).substr(4));
    EXPECT_EQ(text<exhaust_type_t>(28).substr(4), text<exhaust_type_t>(30).substr(4));
    EXPECT_EQ(text<exhaust_type_t>(33), "33: ROSAS FROM CFM (K. Dorvel mail 7 Feb 11)");
    EXPECT_EQ(text<exhaust_type_t>(201), "201: A321neo flap/slat - averag");
    EXPECT_EQ(text<exhaust_type_t>(208),
              "208: A320neo m curve - AP - micro arc FO Lissage courbe par SN");
}

TEST(EnumerationTexts, LabelsWhereASlipIsLikely) {
    EXPECT_EQ(text<ground_reflection_method_t>(1), "Certification ground (SAE AIR 1672B)");
    EXPECT_EQ(text<ground_reflection_method_t>(5), "Delany-Bazley (User-defined ground)");
    EXPECT_EQ(text<ground_reflection_method_t>(7), "Slit-Pore (User-defined ground)");
    EXPECT_EQ(text<atm_abs_method_t>(2), "SAE AIR1845");
    EXPECT_EQ(text<jet_noise_prediction_method_t>(3), "SAE ARP 876F (double-stream)");
    EXPECT_EQ(text<combustion_method_t>(0), "SAE ARP876 F");
    EXPECT_EQ(text<turbine_method_t>(3), "SAE ARP876 F");
    EXPECT_EQ(text<fan_esr_model_t>(0), "no fan-OGV distance correction");
    EXPECT_EQ(text<power_management_parameter_type_t>(8), "FNc");
    EXPECT_EQ(text<power_management_parameter_type_t>(15), "AoA");
    EXPECT_EQ(text<power_management_parameter_unit_t>(1), "%");
    EXPECT_EQ(text<iso_parameter_t>(8), "iso-LPT-UTIPC");
    EXPECT_EQ(text<nlcp_calculation_type_t>(2), "In-flight noise (take-off)");
    EXPECT_EQ(text<noise_component_t>(2), "Buzz-saw noise");
    EXPECT_EQ(text<comp_fan_noise_component_t>(3), "Buzz-saw noise");
    EXPECT_EQ(text<indicator_type_t>(27), "PSIPNLTM");
    EXPECT_EQ(text<indicator_type_t>(34), "LEQ24H");
    EXPECT_EQ(text<source_type_t>(7), "Total engine, propeller(s) excluded");
}

TEST(EnumerationTexts, StreamWritesTheTextExceptForTheMachOption) {
    EXPECT_EQ(streamed<aircraft_type_t>(7), "A300-600");
    EXPECT_EQ(streamed<aircraft_type_t>(0), "");
    EXPECT_EQ(streamed<flight_speed_effect_method_t>(42), "Standard");
    EXPECT_EQ(streamed<source_type_t>(4), "Fan forward - buzz-saw");
    EXPECT_EQ(streamed<indicator_type_t>(30), "");
    // The Mach number option has no text: it is shown by its number.
    EXPECT_EQ(streamed<comp_fan_noise_machper_option_t>(2), "2");
    EXPECT_EQ(streamed<comp_fan_noise_machper_option_t>(-17), "-17");
    // An exhaust configuration has a text but no stream output of its own: it streams as its
    // number through the conversion to int.
    EXPECT_EQ(streamed<exhaust_type_t>(3), "3");
    EXPECT_EQ(streamed<exhaust_type_t>(-2), "-2");

    std::ostringstream chained;
    chained << static_cast<time_period_t>(3) << '/' << static_cast<seasonal_adjustment_t>(1);
    EXPECT_EQ(chained.str(), "Night time/Temperate");
}
