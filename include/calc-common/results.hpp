#ifndef CALC_COMMON_RESULTS_HPP
#define CALC_COMMON_RESULTS_HPP

/// @file
/// Results: the identity of a result, the tree of result records that a simulation fills, the
/// switches that say which indicators to produce, and the binary blocks of result files.

#include <calc-common/export.hpp>
#include <calc-common/spectra.hpp>
#include <calc-common/vocabulary.hpp>

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <iosfwd>
#include <map>
#include <set>
#include <string>
#include <vector>

// Scenario records, declared with the scenario model; results only point at them.
struct aircraft_t;
struct simulation_t;
struct jet_thermo_params_t;

/// Which total a total result holds.
enum total_type_t : int {
    total_engine = 0,
    total_airfoil = 1,
    total_landing_gear = 2,
    total_airframe = 3,
    total_aircraft = 4,
    total_by_source_type = 5,
    total_engine_data = 6,
};

/// Which global result of a genePass calculation a result holds.
enum genepass_result_type_t : int {
    genepass_total_aircraft_broadband = 0,
    genepass_total_aircraft_tones = 1,
    genepass_ground_reflection = 2,
};

/// Identity of one kind of noise result: an engine source (whole or one component), an
/// airframe source, a total, or a global genePass result. It holds no levels. Identity is
/// numeric: equality and ordering look at hash() and at nothing else, so the source type given
/// at creation plays no part in the identity of a source.
struct VARNO_CALC_COMMON_EXPORT result_type_t {
    bool engine_source = false;     ///< names an engine source
    bool airframe_source = false;   ///< names an airframe source
    std::int32_t source_index = -1; ///< index into the aircraft's engine or airframe sources
    bool whole_source = true;       ///< covers the whole engine source, not one component
    noise_component_t component = static_cast<noise_component_t>(0); ///< when not whole
    bool total = false;                                              ///< names a total
    total_type_t total_type = static_cast<total_type_t>(-1);         ///< which total
    source_type_t source_type = static_cast<source_type_t>(-1); ///< source type given at creation
    std::int32_t engine_index = -1; ///< engine number of a per-engine total
    bool genepass = false;          ///< names a global genePass result
    genepass_result_type_t genepass_type = static_cast<genepass_result_type_t>(-1); ///< which

    /// Airframe source number `index` (into the aircraft's airframe sources).
    static boost::shared_ptr<result_type_t> create_airframe_source(source_type_t type, int index);
    /// Engine source number `index`, whole or reduced to `component`.
    static boost::shared_ptr<result_type_t>
    create_engine_source(source_type_t type, int index, bool whole, noise_component_t component);
    /// One component of engine source number `index`.
    static boost::shared_ptr<result_type_t>
    create_engine_source_component(source_type_t type, int index, noise_component_t component);
    /// A global genePass result.
    static boost::shared_ptr<result_type_t> create_genepass(genepass_result_type_t type);
    /// Total of all engines.
    static boost::shared_ptr<result_type_t> create_total_engine();
    /// Total of the airfoil sources.
    static boost::shared_ptr<result_type_t> create_total_airfoil();
    /// Total of the landing gears.
    static boost::shared_ptr<result_type_t> create_total_landing_gear();
    /// Total of the airframe.
    static boost::shared_ptr<result_type_t> create_total_airframe();
    /// Total of the whole aircraft.
    static boost::shared_ptr<result_type_t> create_total_aircraft();
    /// Total over every source of one source type.
    static boost::shared_ptr<result_type_t> create_total_by_source_type(source_type_t type);
    /// Total of one engine, by engine number.
    static boost::shared_ptr<result_type_t> create_total_engine_data(int engine);

    /// The identity: engine sources from 10000 (100 per source, plus the component), airframe
    /// sources from 20000, totals from 30000 (100 per total type), genePass results from 40000.
    /// Computed in 32-bit signed arithmetic and sign-extended. The ranges stay apart only while
    /// engine source indices are below 100; nothing checks this.
    std::size_t hash() const;

    /// Same identity: equal hashes.
    bool operator==(result_type_t const& other) const;
    /// Different identity.
    bool operator!=(result_type_t const& other) const;

    /// Strict order by hash compared as unsigned, for ordered containers: engine sources, then
    /// airframe sources, then totals, then genePass results. False when either pointer is empty.
    static bool less_than(boost::shared_ptr<result_type_t> a, boost::shared_ptr<result_type_t> b);

    /// True when this names an airframe source.
    bool is_airframe_source() const;

    // What kind of noise a result holds depends on the source at source_index in the aircraft
    // (its own type, not the source_type given at creation). Indices are not checked, and the
    // simulation or aircraft is read only on the branches that need the source.

    /// A whole engine source of a broadband-only type (jet, combustion, residual, the engine
    /// totals).
    bool is_broadband_engine_source(boost::shared_ptr<simulation_t> simulation) const;
    /// Never true: no engine source is held as tones alone.
    bool is_tonal_engine_source(boost::shared_ptr<simulation_t> simulation) const;
    /// An engine source, whole or a component, of a contra-rotating open rotor.
    bool is_cror_engine_source(boost::shared_ptr<simulation_t> simulation) const;
    /// A whole engine source that breaks down into broadband and tone components.
    bool is_global_decomposable_engine_source(boost::shared_ptr<aircraft_t> aircraft) const;
    /// The broadband component, whatever the kind of result (only `component` is read).
    bool is_broadband_component_of_decomposable_engine_source(
        boost::shared_ptr<simulation_t> simulation) const;
    /// A tone component (buzz-saw, tones, forward, aft, interaction or haystack), whatever the
    /// kind of result (only `component` is read).
    bool is_tonal_component_of_decomposable_engine_source(
        boost::shared_ptr<simulation_t> simulation) const;
    /// Broadband noise only: an airframe source, a broadband engine source or a broadband
    /// component.
    bool is_pure_broadband(boost::shared_ptr<simulation_t> simulation) const;
    /// Tones only: a tone component.
    bool is_pure_tones(boost::shared_ptr<simulation_t> simulation) const;
    /// Broadband and tones together: the total aircraft or a whole decomposable engine source.
    bool is_mixed_broadband_tones(boost::shared_ptr<aircraft_t> aircraft) const;

    /// Display text printed in result files, such as "Fan forward - buzz-saw" or
    /// "Slats (total)"; "unknown" for anything without a text. Totals and genePass results do
    /// not read the simulation, which may then be null.
    std::string to_string(boost::shared_ptr<simulation_t> simulation) const;

private:
    static boost::shared_ptr<result_type_t> create_total(total_type_t total, source_type_t type,
                                                         int engine);
};

// ---- Directional results: the noise at one calculation point --------------------------------

/// Noise of one result type at one calculation point: spectra and levels in dB, grouped as the
/// calculation libraries fill them and as result files store them. Copies share the spectra.
struct VARNO_CALC_COMMON_EXPORT directional_result_noise_t {
    boost::shared_ptr<result_type_t> type;      ///< which result this is
    double source_weight = 0.0;                 ///< 1.0 for airframe source types, 0 otherwise
    bool option_flag = true;                    ///< stored and copied for the calculation libraries
    boost::shared_ptr<spectrum_t> first_native; ///< first group, on the first frequency range
    boost::shared_ptr<spectrum_t> first_tob;    ///< first group, third-octave bands
    double first_level_1 = 0.0;                 ///< first group level, dB
    double first_level_2 = 0.0;                 ///< first group level, dB
    double first_level_3 = 0.0;                 ///< first group level, dB
    boost::shared_ptr<spectrum_t> first_extra;  ///< first group, third-octave, not filed
    boost::shared_ptr<spectrum_t> second_native; ///< second group, on the first frequency range
    boost::shared_ptr<spectrum_t> second_tob;    ///< second group, third-octave bands
    double second_level_1 = 0.0;                 ///< second group level, dB
    double second_level_2 = 0.0;                 ///< second group level, dB
    double second_level_3 = 0.0;                 ///< second group level, dB
    boost::shared_ptr<spectrum_t> second_extra;  ///< second group extra, not filed
    boost::shared_ptr<spectrum_t> total_native;  ///< total, on the first frequency range
    boost::shared_ptr<spectrum_t> total_tob;     ///< total, third-octave bands
    boost::shared_ptr<spectrum_t> total_second_range; ///< total, on the second frequency range
    double spare_value = 0.0;                         ///< stored and copied only
    double optional_a_level = 0.0;                    ///< optional group A level, dB
    boost::shared_ptr<spectrum_t> optional_a;         ///< optional group A, third-octave
    double optional_b_level = 0.0;                    ///< optional group B level, dB
    boost::shared_ptr<spectrum_t> optional_b;         ///< optional group B, third-octave
    double optional_b_level_2 = 0.0;                  ///< optional group B level, dB
    double optional_b_level_3 = 0.0;                  ///< optional group B level, dB
    double optional_c_level = 0.0;                    ///< optional group C level, dB
    boost::shared_ptr<spectrum_t> optional_c;         ///< optional group C, third-octave
    double optional_c_level_2 = 0.0;                  ///< optional group C level, dB
    double optional_c_level_3 = 0.0;                  ///< optional group C level, dB
    double closing_level_1 = 0.0;                     ///< closing level, dB
    double closing_level_2 = 0.0;                     ///< closing level, dB
    double closing_level_3 = 0.0;                     ///< closing level, dB; kept by clearing
    boost::shared_ptr<jet_thermo_params_t> first_jet_params;  ///< jet results only
    boost::shared_ptr<jet_thermo_params_t> second_jet_params; ///< jet results only

    /// A record with no spectra: every spectrum and jet record null, levels 0, option_flag true,
    /// the weight from the type.
    explicit directional_result_noise_t(boost::shared_ptr<result_type_t> type);

    /// A record ready to fill: native and total spectra on `first`, the total of the second
    /// range on `second`, the third-octave spectra on the shared grid (second_extra stays
    /// null), and zeroed jet records for jet results (a jet source or total, or the jet part of
    /// the pseudo-breakdown).
    directional_result_noise_t(boost::shared_ptr<result_type_t> type,
                               boost::shared_ptr<frequency_range_t> first,
                               boost::shared_ptr<frequency_range_t> second, bool option_flag);

    /// Silences the spectra (keeping their grids) and zeroes the group, optional and first two
    /// closing levels, for a new direction. total_second_range, closing_level_3, the weight,
    /// the flag, the spare value, the type and the jet records are kept.
    void clear_values();

    /// Copies the weight and the levels and tones of the native, third-octave and total spectra
    /// into the target's own spectra (which must all exist); nothing for a null target.
    void copy_into(boost::shared_ptr<directional_result_noise_t> target) const;

    /// Appends the record's block to a file: a flag word chosen by the simulation (0 from 100
    /// directions on, 31 for a source calculation, 28 otherwise) and the items it selects.
    /// Stops at the first failed write; the file's error indicator tells.
    void write(std::FILE* file, boost::shared_ptr<simulation_t> simulation) const;
    /// The same bytes through a binary stream, item after item, whatever the stream's state.
    void write(std::ostream& stream, boost::shared_ptr<simulation_t> simulation) const;
    /// Reads a block in place, the flag word of the file choosing the items. The spectra named
    /// by the flags must exist on the grids of the record written. Stops at the first short read,
    /// keeping what was read.
    void read(std::FILE* file);
};

/// One engine source at one point: the whole source and its components.
struct VARNO_CALC_COMMON_EXPORT directional_engine_source_result_noise_t {
    boost::shared_ptr<directional_result_noise_t> whole; ///< the whole source, may be null
    std::map<noise_component_t, boost::shared_ptr<directional_result_noise_t>>
        components; ///< by component
};

/// All noise at one calculation point, one slot for each result type of an aircraft.
struct VARNO_CALC_COMMON_EXPORT directional_result_point_t {
    /// Engine sources by source index; null until prepared.
    std::vector<boost::shared_ptr<directional_engine_source_result_noise_t>> engine_sources;
    /// Airframe sources by source index; null until prepared.
    std::vector<boost::shared_ptr<directional_result_noise_t>> airframe_sources;
    /// Totals over the sources of one type.
    std::map<source_type_t, boost::shared_ptr<directional_result_noise_t>> totals_by_source_type;
    boost::shared_ptr<directional_result_noise_t> total_aircraft;             ///< total aircraft
    boost::shared_ptr<directional_result_noise_t> genepass_broadband;         ///< genePass
    boost::shared_ptr<directional_result_noise_t> genepass_tones;             ///< genePass
    boost::shared_ptr<directional_result_noise_t> genepass_ground_reflection; ///< genePass
    boost::shared_ptr<directional_result_noise_t> total_airfoil;              ///< airfoil total
    boost::shared_ptr<directional_result_noise_t> total_landing_gear; ///< landing gear total
    boost::shared_ptr<directional_result_noise_t> total_airframe;     ///< airframe total
    boost::shared_ptr<directional_result_noise_t> total_engine;       ///< engine total

    /// Empty slots sized to the aircraft's engine and airframe sources (not null).
    explicit directional_result_point_t(boost::shared_ptr<aircraft_t> aircraft);

    /// The record in the slot of `type`, or an empty pointer for an empty or missing slot.
    boost::shared_ptr<directional_result_noise_t> find(boost::shared_ptr<result_type_t> type);

    /// Makes a record for `type` on the two ranges and stores it in its slot, replacing any.
    /// An engine source gets its entry on demand. Empty when the type has no slot (a per-engine
    /// total), the new record then being dropped.
    boost::shared_ptr<directional_result_noise_t>
    create(boost::shared_ptr<result_type_t> type, boost::shared_ptr<frequency_range_t> first,
           boost::shared_ptr<frequency_range_t> second, bool option);

    /// Appends every slot to `all`: engine sources (whole, then components), totals by source
    /// type, total engine, airframe sources, then the fixed totals and genePass slots. Fixed
    /// and airframe slots are listed even when null.
    void get_all(std::vector<boost::shared_ptr<directional_result_noise_t>>& all) const;

    /// clear_values on every record held; the structure stays.
    void clear_values();

protected:
    /// The slot that holds `type`, or null when there is none.
    boost::shared_ptr<directional_result_noise_t>* find_ptr(boost::shared_ptr<result_type_t> type);
};

// ---- Integrated indicators: one value per flight ---------------------------------------------

/// One noise event of an exposure scenario, filled by the calculation libraries.
struct VARNO_CALC_COMMON_EXPORT noise_exposure_event_t {
    boost::shared_ptr<result_type_t> type;                   ///< result the event belongs to
    boost::shared_ptr<spectrum_t> spectrum;                  ///< spectrum of the event
    std::vector<boost::shared_ptr<spectrum_t>> time_history; ///< spectra along the event
};

/// Averages of the indicators over the events of an exposure scenario, dB.
struct VARNO_CALC_COMMON_EXPORT noise_exposure_t {
    std::vector<noise_exposure_event_t> events; ///< the events averaged
    double avg_oaspl_max = 0.0;                 ///< average OASPLMAX
    double avg_dba_max = 0.0;                   ///< average DBAMAX
    double avg_pnl_max = 0.0;                   ///< average PNLMAX
    double avg_pnltm = 0.0;                     ///< average PNLTM
    double avg_epnl = 0.0;                      ///< average EPNL
    double avg_sel = 0.0;                       ///< average SEL
    double avg_indicator_30 = 0.0;              ///< average of indicator 30; kept by clearing
    double avg_senel = 0.0;                     ///< average SENEL
    double exposure_extra_1 = 0.0;              ///< stored and copied only
    double exposure_extra_2 = 0.0;              ///< stored and copied only
};

/// Integrated indicators of one result type over a flight: maxima in dB with the directivity
/// angles (degrees) where they occur, exposure levels, and the counts and averages of noise
/// exposure metrics. The 27 doubles stand first and together, in the order of the file block.
struct VARNO_CALC_COMMON_EXPORT integrated_noise_indicators_t {
    double oaspl_max = 0.0;                ///< OASPLMAX, dB
    double psi_oaspl_max = 0.0;            ///< angle of OASPLMAX, degrees
    double dba_max = 0.0;                  ///< DBAMAX, dB(A)
    double psi_dba_max = 0.0;              ///< angle of DBAMAX, degrees
    double pnl_max = 0.0;                  ///< PNLMAX, PNdB
    double psi_pnl_max = 0.0;              ///< angle of PNLMAX, degrees
    double pnltm = 0.0;                    ///< PNLTM, PNdB
    double psi_pnltm = 0.0;                ///< angle of PNLTM, degrees
    double epnl = 0.0;                     ///< EPNL, EPNdB
    double sel = 0.0;                      ///< SEL, dB(A)
    double indicator_30 = 0.0;             ///< indicator 30, stored only
    double senel = 0.0;                    ///< SENEL, dB
    double ta = 0.0;                       ///< TA, time above a threshold, s
    double na = 0.0;                       ///< NA, number of events above a threshold
    double leq24h = 0.0;                   ///< LEQ24H, dB(A)
    double leqdt = 0.0;                    ///< LEQDT, day, dB(A)
    double leqnt = 0.0;                    ///< LEQNT, night, dB(A)
    double dnl = 0.0;                      ///< DNL, dB(A)
    double nni = 0.0;                      ///< NNI
    double tne = 0.0;                      ///< TNE
    double ecpn = 0.0;                     ///< ECPN
    double wecpn1 = 0.0;                   ///< WECPN1
    double wecpn2 = 0.0;                   ///< WECPN2
    double wecpn3 = 0.0;                   ///< WECPN3
    double wecpnl = 0.0;                   ///< WECPNL
    double cnel = 0.0;                     ///< CNEL, dB(A)
    double nef = 0.0;                      ///< NEF
    noise_exposure_t exposure;             ///< exposure averages, not filed
    boost::shared_ptr<result_type_t> type; ///< which result this is, not filed

    /// Every number 0, for `type`.
    explicit integrated_noise_indicators_t(boost::shared_ptr<result_type_t> type);

    /// The stored value of an indicator (10, 11, 13, 14, 19, 20, 26 to 46), 0.0 for any other
    /// indicator.
    double get(indicator_type_t const& indicator) const;
    /// The exposure average of an indicator (10, 13, 19, 26, 28 to 31), 0.0 for any other.
    double get_expo_avg(indicator_type_t const& indicator) const;

    /// Zeroes the levels and metrics and forgets the events for a new direction; the four
    /// angles, indicator 30, NEF, the average of indicator 30 and the two exposure extras keep
    /// their values.
    void clear_values();

    /// Appends the 216-byte block of the 27 doubles to a file; failure shows on the file.
    void write(std::FILE* file) const;
    /// Reads a 216-byte block; false, with the record unchanged, when it is not all there.
    bool read(std::FILE* file);
};

/// One engine source over a flight: the whole source and its components.
struct VARNO_CALC_COMMON_EXPORT integrated_engine_source_noise_indicators_t {
    boost::shared_ptr<integrated_noise_indicators_t> whole; ///< the whole source, may be null
    std::map<noise_component_t, boost::shared_ptr<integrated_noise_indicators_t>>
        components; ///< by component
};

/// All integrated indicators of a simulation, one slot for each result type of an aircraft.
struct VARNO_CALC_COMMON_EXPORT directional_result_t {
    /// Engine sources by source index; null until prepared.
    std::vector<boost::shared_ptr<integrated_engine_source_noise_indicators_t>> engine_sources;
    /// Airframe sources by source index; null until prepared.
    std::vector<boost::shared_ptr<integrated_noise_indicators_t>> airframe_sources;
    /// Totals over the sources of one type.
    std::map<source_type_t, boost::shared_ptr<integrated_noise_indicators_t>> totals_by_source_type;
    boost::shared_ptr<integrated_noise_indicators_t> total_engine;               ///< engine total
    boost::shared_ptr<integrated_noise_indicators_t> total_airfoil;              ///< airfoil
    boost::shared_ptr<integrated_noise_indicators_t> total_landing_gear;         ///< landing gear
    boost::shared_ptr<integrated_noise_indicators_t> total_airframe;             ///< airframe
    boost::shared_ptr<integrated_noise_indicators_t> total_aircraft;             ///< aircraft
    boost::shared_ptr<integrated_noise_indicators_t> genepass_broadband;         ///< genePass
    boost::shared_ptr<integrated_noise_indicators_t> genepass_tones;             ///< genePass
    boost::shared_ptr<integrated_noise_indicators_t> genepass_ground_reflection; ///< genePass

    /// Empty slots sized to the aircraft's sources; empty vectors for a null aircraft.
    explicit directional_result_t(boost::shared_ptr<aircraft_t> aircraft);

    /// The record in the slot of `type`, or an empty pointer for an empty or missing slot.
    boost::shared_ptr<integrated_noise_indicators_t> find(boost::shared_ptr<result_type_t> type);

    /// Makes a record for `type` and stores it in its slot, replacing any; as the point's.
    boost::shared_ptr<integrated_noise_indicators_t> create(boost::shared_ptr<result_type_t> type);

    /// Appends every slot to `all`: engine sources, engine totals by source type, total engine,
    /// airframe sources, airframe totals by source type, then the fixed totals and genePass
    /// slots. Fixed and airframe slots are listed even when null.
    void get_all(std::vector<boost::shared_ptr<integrated_noise_indicators_t>>& all) const;

    /// clear_values on every record held; the structure stays.
    void clear_values();

protected:
    /// The slot that holds `type`, or null when there is none.
    boost::shared_ptr<integrated_noise_indicators_t>*
    find_ptr(boost::shared_ptr<result_type_t> type);
};

// ---- The result of a simulation --------------------------------------------------------------

/// The result at one calculation point.
struct VARNO_CALC_COMMON_EXPORT result_point_t {
    boost::shared_ptr<directional_result_point_t> directional; ///< the noise at the point

    /// A point record sized for `aircraft` (not null).
    explicit result_point_t(boost::shared_ptr<aircraft_t> aircraft);
};

/// One result type across a whole result: the integrated record and the record of each point.
struct VARNO_CALC_COMMON_EXPORT result_indicators_t {
    boost::shared_ptr<integrated_noise_indicators_t> indicators;            ///< integrated values
    std::vector<boost::shared_ptr<directional_result_noise_t>> directional; ///< one per point
};

/// Everything a simulation computes: one record per calculation point and one global record.
struct VARNO_CALC_COMMON_EXPORT result_t {
    std::vector<boost::shared_ptr<result_point_t>> points; ///< in calculation point order
    boost::shared_ptr<directional_result_t> global;        ///< integrated indicators

    /// Replaces the content of `all` by one entry per global record, paired with the same slot
    /// of every point: engine sources, totals by source type, total engine, airframe sources,
    /// then the fixed totals and genePass slots. Every point must hold an entry for each engine
    /// source that the global record holds; components and totals that a point lacks are added
    /// to it as empty slots.
    void get_all_indicators(std::vector<boost::shared_ptr<result_indicators_t>>& all);
};

// ---- Which indicators to produce -------------------------------------------------------------

/// Seven switches of one family of indicators, read by the calculation libraries.
struct VARNO_CALC_COMMON_EXPORT indicators_flag_t {
    bool flag_0; ///< switch 0
    bool flag_1; ///< switch 1
    bool flag_2; ///< switch 2
    bool flag_3; ///< switch 3
    bool flag_4; ///< switch 4
    bool flag_5; ///< switch 5
    bool flag_6; ///< switch 6

    /// All seven set to `value`.
    explicit indicators_flag_t(bool value);
    /// A new copy.
    boost::shared_ptr<indicators_flag_t> clone() const;
};

/// Which instantaneous indicators to produce.
struct VARNO_CALC_COMMON_EXPORT instantaneous_indicators_flag_t {
    boost::shared_ptr<indicators_flag_t> first_flags;  ///< all false by default
    boost::shared_ptr<indicators_flag_t> second_flags; ///< all false by default
    boost::shared_ptr<indicators_flag_t> third_flags;  ///< all true by default
    double threshold = 80.0;                           ///< level threshold, dB
    std::int32_t mode = 1;                             ///< read by the calculation libraries
    std::set<indicator_type_t> first_set;              ///< indicators asked for
    std::set<double> second_set;                       ///< values chosen by the caller
    std::set<double> third_set;                        ///< values chosen by the caller

    /// The defaults above, with three new flag records.
    instantaneous_indicators_flag_t();
    /// A deep copy: the three flag records are copied too (a plain copy shares them).
    boost::shared_ptr<instantaneous_indicators_flag_t> clone() const;
};

/// Which noise exposure metrics to produce.
struct VARNO_CALC_COMMON_EXPORT noise_exposure_metrics_flags_t {
    bool enabled_1 = false;         ///< read by the calculation libraries
    bool enabled_2 = false;         ///< read by the calculation libraries
    double parameter = 0.0;         ///< read by the calculation libraries
    indicators_flag_t flags{false}; ///< seven switches, all false
    std::int32_t selector = 0;      ///< read by the calculation libraries
    bool closing_flag = false;      ///< read by the calculation libraries

    /// A new copy.
    boost::shared_ptr<noise_exposure_metrics_flags_t> clone() const;
};

/// Which indicators a calculation produces.
struct VARNO_CALC_COMMON_EXPORT noise_indicators_t {
    boost::shared_ptr<instantaneous_indicators_flag_t> instantaneous;   ///< new default record
    boost::shared_ptr<noise_exposure_metrics_flags_t> exposure_metrics; ///< new default record
    bool switch_1 = true;  ///< read by the calculation libraries
    bool switch_2 = true;  ///< read by the calculation libraries
    bool switch_3 = false; ///< read by the calculation libraries
    bool switch_4 = true;  ///< read by the calculation libraries
    bool switch_5 = false; ///< read by the calculation libraries

    /// The defaults above, with two new records.
    noise_indicators_t();
    /// A copy whose two records are clones (a plain copy shares them); null records stay null.
    boost::shared_ptr<noise_indicators_t> clone() const;
};

// ---- Blocks of result files ------------------------------------------------------------------

/// Writes the 216-byte indicators block to a binary stream (the pointer must not be null).
VARNO_CALC_COMMON_EXPORT std::ostream&
operator<<(std::ostream& stream, boost::shared_ptr<integrated_noise_indicators_t> indicators);
/// Reads the 216-byte indicators block from a binary stream; the stream's state tells failure,
/// and a block not all there leaves the record unchanged.
VARNO_CALC_COMMON_EXPORT void
operator>>(std::istream& stream, boost::shared_ptr<integrated_noise_indicators_t> indicators);

#endif // CALC_COMMON_RESULTS_HPP
