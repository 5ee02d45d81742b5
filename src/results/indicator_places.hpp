#ifndef CALC_COMMON_SRC_RESULTS_INDICATOR_PLACES_HPP
#define CALC_COMMON_SRC_RESULTS_INDICATOR_PLACES_HPP

// Where each integrated indicator lives: one table for the lookup by indicator, the clearing
// between directions and the order of the file block.

#include <calc-common/results.hpp>

#include <array>

namespace VARNO {
namespace detail {

/// One stored indicator: its field, the indicator it answers to, and whether a new direction
/// clears it (angles of the maxima and a few running values are kept).
template <class Record>
struct indicator_place {
    double Record::*field;
    indicator_type_t indicator;
    bool cleared;
};

using integrated_place = indicator_place<integrated_noise_indicators_t>;
using exposure_place = indicator_place<noise_exposure_t>;

/// The 27 doubles of the indicators block, in block order.
inline constexpr std::array<integrated_place, 27> integrated_places = {{
    {&integrated_noise_indicators_t::oaspl_max, indicator_oasplmax, true},
    {&integrated_noise_indicators_t::psi_oaspl_max, indicator_psioasplmax, false},
    {&integrated_noise_indicators_t::dba_max, indicator_dbamax, true},
    {&integrated_noise_indicators_t::psi_dba_max, indicator_psidbamax, false},
    {&integrated_noise_indicators_t::pnl_max, indicator_pnlmax, true},
    {&integrated_noise_indicators_t::psi_pnl_max, indicator_psipnlmax, false},
    {&integrated_noise_indicators_t::pnltm, indicator_pnltm, true},
    {&integrated_noise_indicators_t::psi_pnltm, indicator_psipnltm, false},
    {&integrated_noise_indicators_t::epnl, indicator_epnl, true},
    {&integrated_noise_indicators_t::sel, indicator_sel, true},
    // Indicator 30 has no name of its own in the enumeration.
    {&integrated_noise_indicators_t::indicator_30, static_cast<indicator_type_t>(30), false},
    {&integrated_noise_indicators_t::senel, indicator_senel, true},
    {&integrated_noise_indicators_t::ta, indicator_ta, true},
    {&integrated_noise_indicators_t::na, indicator_na, true},
    {&integrated_noise_indicators_t::leq24h, indicator_leq24h, true},
    {&integrated_noise_indicators_t::leqdt, indicator_leqdt, true},
    {&integrated_noise_indicators_t::leqnt, indicator_leqnt, true},
    {&integrated_noise_indicators_t::dnl, indicator_dnl, true},
    {&integrated_noise_indicators_t::nni, indicator_nni, true},
    {&integrated_noise_indicators_t::tne, indicator_tne, true},
    {&integrated_noise_indicators_t::ecpn, indicator_ecpn, true},
    {&integrated_noise_indicators_t::wecpn1, indicator_wecpn1, true},
    {&integrated_noise_indicators_t::wecpn2, indicator_wecpn2, true},
    {&integrated_noise_indicators_t::wecpn3, indicator_wecpn3, true},
    {&integrated_noise_indicators_t::wecpnl, indicator_wecpnl, true},
    {&integrated_noise_indicators_t::cnel, indicator_cnel, true},
    {&integrated_noise_indicators_t::nef, indicator_nef, false},
}};

/// The exposure averages, with the indicator each answers to.
inline constexpr std::array<exposure_place, 8> exposure_places = {{
    {&noise_exposure_t::avg_oaspl_max, indicator_oasplmax, true},
    {&noise_exposure_t::avg_dba_max, indicator_dbamax, true},
    {&noise_exposure_t::avg_pnl_max, indicator_pnlmax, true},
    {&noise_exposure_t::avg_pnltm, indicator_pnltm, true},
    {&noise_exposure_t::avg_epnl, indicator_epnl, true},
    {&noise_exposure_t::avg_sel, indicator_sel, true},
    {&noise_exposure_t::avg_indicator_30, static_cast<indicator_type_t>(30), false},
    {&noise_exposure_t::avg_senel, indicator_senel, true},
}};

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_RESULTS_INDICATOR_PLACES_HPP
