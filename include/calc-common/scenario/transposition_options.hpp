#ifndef CALC_COMMON_SCENARIO_TRANSPOSITION_OPTIONS_HPP
#define CALC_COMMON_SCENARIO_TRANSPOSITION_OPTIONS_HPP

// Part of the scenario header (include <calc-common/scenario.hpp>): the transposition options,
// which move a source's noise to the observer, and the attenuations applied on the way.

#include <calc-common/export.hpp>
#include <calc-common/results.hpp>
#include <calc-common/spectra.hpp>
#include <calc-common/vocabulary.hpp>

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

/// Transposition settings common to every source. Apart from the ground fields, the library
/// only sets the defaults; the calculation libraries read them.
struct VARNO_CALC_COMMON_EXPORT common_all_sources_transposition_t {
    int common_option_1 = 1; ///< propagation option
    int common_option_2 = 1; ///< propagation option
    int common_option_3 = 1; ///< propagation option
    int common_option_4 = 4; ///< propagation option
    bool common_flag = true; ///< propagation switch
    /// Ground model of the reflection at the observer.
    ground_reflection_method_t ground_reflection_method = ground_slit_pore_user_defined;
    double ground_flow_resistivity = 1.0;       ///< user ground flow resistivity, kPa s/m^2
    double ground_layer_thickness = 0.0;        ///< user ground layer thickness, mm
    double attenborough_porosity_rate = 0.0;    ///< Attenborough porosity rate
    double attenborough_flow_resistivity = 0.0; ///< Attenborough flow resistivity, kPa s/m^2
    double slit_pore_porosity = 0.5;            ///< slit-pore porosity (0 to 1)
    double slit_pore_flow_resistivity = 50.0;   ///< slit-pore flow resistivity, kPa s/m^2
    double common_value_1 = 0.0;                ///< propagation value
    double common_value_2 = 0.0;                ///< propagation value
    double common_value_3 = 0.0;                ///< propagation value
    double common_value_4 = 0.0;                ///< propagation value
    double common_value_5 = 0.0;                ///< propagation value
};

/// Transposition settings of one source, with defaults that depend on its source type. The
/// library only sets the defaults; the calculation libraries read them.
struct VARNO_CALC_COMMON_EXPORT single_source_transposition_t {
    double level_factor = 1.0;           ///< factor on the source's levels
    int source_option_1 = 1;             ///< transposition option
    int source_option_2 = 0;             ///< transposition option
    int source_option_3 = 0;             ///< transposition option
    int source_option_4 = 0;             ///< transposition option
    int source_option_5 = -2;            ///< transposition option
    std::vector<double> source_values_1; ///< transposition values, none at first
    std::vector<double> source_values_2; ///< transposition values, none at first
    double source_reference = 0.0;       ///< transposition reference value
    bool source_flag_1 = false;          ///< transposition switch
    bool source_flag_2 = false;          ///< transposition switch
    bool source_flag_3 = false;          ///< transposition switch
    bool source_flag_4 = false;          ///< transposition switch
    bool source_flag_5 = true;           ///< transposition switch
    bool source_flag_6 = true;           ///< transposition switch
    bool source_flag_7 = true;           ///< transposition switch
    bool source_flag_8 = true;           ///< transposition switch
    double source_distance = 20.0;       ///< distance the source's levels refer to, m
    double source_value_1 = 0.0;         ///< transposition value
    double source_value_2 = 0.0;         ///< transposition value
    std::string source_name;             ///< name of the source, empty at first

    /// Defaults for a source of `type`: the jet is measured at 10 m, the forward fan (and its
    /// buzz-saw part) at 0 m, the aft fan and the airframe sources at 40 m, others at 20 m.
    explicit single_source_transposition_t(source_type_t type);
};

/// Transposition settings of the total of the aircraft: the single-source defaults of no
/// particular source type, and settings of the total.
struct VARNO_CALC_COMMON_EXPORT total_aircraft_transposition_t : single_source_transposition_t {
    int total_option_1 = 0;   ///< option of the total
    int total_option_2 = 3;   ///< option of the total
    int total_option_3 = 0;   ///< option of the total
    int total_option_4 = 0;   ///< option of the total
    double total_value = 0.0; ///< value of the total
    int total_option_5 = 1;   ///< option of the total

    /// The single-source defaults untouched by any source type, and the defaults of the total.
    total_aircraft_transposition_t();
};

/// The transposition options a calculation owns by default: the total of the aircraft, one
/// record for each of the 24 source types, and the settings common to all sources.
struct VARNO_CALC_COMMON_EXPORT default_transposition_options_t {
    /// The total of the aircraft: a total_aircraft_transposition_t.
    boost::shared_ptr<single_source_transposition_t> total_aircraft;
    /// One record per source type, made with the defaults of that type.
    std::map<source_type_t, boost::shared_ptr<single_source_transposition_t>> single_sources;
    /// Settings common to every source, among them the ground model.
    boost::shared_ptr<common_all_sources_transposition_t> common_all_sources;

    /// A new total, a record for each source type from 0 to 23, and new common settings.
    default_transposition_options_t();
};

/// One named attenuation applied to a result. Its values are read by the calculation libraries.
struct VARNO_CALC_COMMON_EXPORT attenuation_t {
    double attenuation_value_1 = 0.0;                 ///< attenuation value
    double attenuation_value_2 = 0.0;                 ///< attenuation value
    std::string name;                                 ///< name of the attenuation, empty at first
    int attenuation_option = 1;                       ///< attenuation option
    boost::shared_ptr<spectrum_t> attenuation_data_1; ///< spectral data, if any
    boost::shared_ptr<spectrum_t> attenuation_data_2; ///< spectral data, if any
    int attenuation_option_2 = 0;                     ///< attenuation option
    int attenuation_option_3 = 3;                     ///< attenuation option

    /// A copy whose data spectra stay shared with this record.
    boost::shared_ptr<attenuation_t> clone() const;
};

/// The attenuations applied to one result, in order.
struct VARNO_CALC_COMMON_EXPORT attenuation_list_t {
    std::vector<boost::shared_ptr<attenuation_t>> attenuations; ///< in order, none at first

    /// A new list holding a clone of each attenuation, in order.
    boost::shared_ptr<attenuation_list_t> clone() const;
};

/// Two parallel sets of `n` spectral attenuations, empty until the calculation fills them.
struct VARNO_CALC_COMMON_EXPORT spectrum_attenuation_t {
    std::vector<boost::shared_ptr<spectrum_t>> attenuation_spectra_1; ///< attenuations (dB)
    std::vector<boost::shared_ptr<spectrum_t>> attenuation_spectra_2; ///< attenuations (dB)

    /// `n` empty slots in each set.
    explicit spectrum_attenuation_t(std::size_t const& n = 0);
};

/// Comparison function of a map keyed by result identity. It holds the ordering function,
/// result_type_t::less_than unless another is given, so two keys of one identity are one key.
struct result_type_order {
    /// An ordering of result identities: true when the first comes before the second.
    typedef bool (*function_type)(boost::shared_ptr<result_type_t>,
                                  boost::shared_ptr<result_type_t>);

    /// Orders by `ordering`, the identity order unless another is given.
    result_type_order(function_type ordering = &result_type_t::less_than)
        : compare(ordering) {}

    /// True when `a` comes before `b`.
    bool operator()(boost::shared_ptr<result_type_t> const& a,
                    boost::shared_ptr<result_type_t> const& b) const {
        return compare(a, b);
    }

    function_type compare; ///< the ordering in use
};

/// The attenuation lists of an aircraft, by result identity.
typedef std::map<boost::shared_ptr<result_type_t>, boost::shared_ptr<attenuation_list_t>,
                 result_type_order>
    attenuations_t;

#endif // CALC_COMMON_SCENARIO_TRANSPOSITION_OPTIONS_HPP
