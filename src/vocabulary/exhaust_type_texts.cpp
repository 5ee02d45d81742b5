// Display texts of the exhaust configurations. Each text starts with the configuration number
// and a colon: the number is the key by which jet calculations choose their data, so the three
// speed variants of configuration 0 all start with "0:". Labels that say "do not use" are kept
// as they are: the values are still accepted.

#include <calc-common/vocabulary.hpp>

namespace VARNO {

std::string StringValue(exhaust_type_t const& value) {
    switch (value) {
    case exhaust_m0_primary_speed:
        return "0: M=0, calculation with primary speed";
    case exhaust_m0_bypass_speed:
        return "0: M=0, calculation with bypass speed";
    case exhaust_m0_mixing_speed:
        return "0: M=0, calculation with mixing speed";
    case exhaust_separated:
        return "1: Separated (CF6-80C2, PW4000, CFM56-5A/B)";
    case exhaust_confluent_iae:
        return "2: Confluent (IAE)";
    case exhaust_mixed_cfm56_5c:
        return "3: Mixed (CFM56-5C)";
    case exhaust_separated_cf6_80e1:
        return "4: Separated (CF6-80E1)";
    case exhaust_separated_rr:
        return "5: Separated RR (NB: do not use)";
    case exhaust_single_flow_arp876c:
        return "6: Single flow (ARP876C)";
    case exhaust_supersonic_mtf:
        return "7: Supersonic (MTF)";
    case exhaust_mixed_pw:
        return "8: Mixed PW (NB: do not use)";
    case exhaust_separated_cfmi_a320_development:
        return "9: Separated CFMI (CFM56-5B set up on A320) - used for calculations in "
               "developement";
    case exhaust_separated_pw4168a_a330:
        return "10: Separated PW4168A (in-flight tests A330-223)";
    case exhaust_separated_trent500_development:
        return "11: Separated Trent 500 (in-flight developement tests - Tarbes)";
    case exhaust_separated_cfmi_a321:
        return "12: Separated CFMI (CFM56-5B set up on A321) - NB: supplied by CFMI";
    case exhaust_trent500_a340_600_certification:
        return "13: Trent 500 (in-flight certification tests A340-600)";
    case exhaust_a380_trent900_ndft:
        return "14: A380 Trent900 (April 2006 - NDFT)";
    case exhaust_a380_trent900_ncft:
        return "15: A380 Trent900 (August 2006 - NCFT)";
    case exhaust_a380_gp7200_ndft:
        return "16: A380 GP7200 (NDFT from February 2007)";
    case exhaust_a380_gp7200_ncft:
        return "17: A380 GP7200 (NCFT from June 2007)";
    case exhaust_a380_gp7200_ncft_without_vjet_decrease:
        return "18: A380/GP7200 (NCFT without decrease according to VJET)";
    case exhaust_rosas:
        return "19: ROSAS";
    case exhaust_gtf:
        return "20: GTF";
    case exhaust_cfm56_5bp_nip_a:
        return "21: CFM56-5B/P NIP (in-flight tests A321/CFM56-5B NIP) - do not use with TSOUR";
    case exhaust_cfm56_5bp_nip_b:
        return "22: CFM56-5B/P NIP (in-flight tests A321/CFM56-5B NIP) - do not use with TSOUR";
    case exhaust_mixed_pw6000:
        return "25: Mixed (PW6000)";
    case exhaust_august_2007_secondary_jet:
        return "26: AOUT 2007 - JET SECONDAIRE";
    case exhaust_leap56_wind_tunnel:
        return "27: LEAP 56 (soufflerie)";
    case exhaust_cfm56_5b_nip_cepra19_a:
        return "28: CFM56-5B NIP WTT CEPRA19";
    case exhaust_cfm56_5b_nip_cepra19_rain:
        return "29: CFM56-5B NIP WTT CEPRA19 + RAIN";
    case exhaust_cfm56_5b_nip_cepra19_b:
        return "30: CFM56-5B NIP WTT CEPRA19";
    case exhaust_nip_cepra19_forward_silencer_aft:
        return "31: forward part of NIP WTT CEPRA19 + aft part of FT SILENCER";
    case exhaust_silencer_robust_curve:
        return "32: SILENCER FT data post processed for robust curve";
    case exhaust_rosas_from_cfm:
        return "33: ROSAS FROM CFM (K. Dorvel mail 7 Feb 11)";
    case exhaust_silencer_cfm56_5b_2004:
        return "34: SILENCER CFM56-5B 2004";
    case exhaust_a320_cfm565b_silencer:
        return "37: A320 CFM565B SILENCER";
    case exhaust_a321neo_flap_slat_micro_arc_fo:
        return "200: A321neo flap/slat - micro arc FO";
    case exhaust_a321neo_flap_slat_average:
        return "201: A321neo flap/slat - averag";
    case exhaust_a320neo_flap_slat_micro_arc_fo:
        return "202: A320neo flap/slat - micro arc FO";
    case exhaust_a320neo_flap_slat_average_micro_arc_fo_sl:
        return "203: A320neo flap/slat - average micro arc FO and SL";
    case exhaust_a321neo_m_curve_ap_micro_arc_fo:
        return "206: A321neo m curve - AP - micro arc FO";
    case exhaust_a320neo_m_curve_ap_micro_arc_fo:
        return "207: A320neo m curve - AP - micro arc FO";
    case exhaust_a320neo_m_curve_ap_micro_arc_fo_smoothed:
        return "208: A320neo m curve - AP - micro arc FO Lissage courbe par SN";
    }
    return {};
}

} // namespace VARNO
