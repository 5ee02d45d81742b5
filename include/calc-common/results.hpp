#ifndef CALC_COMMON_RESULTS_HPP
#define CALC_COMMON_RESULTS_HPP

/// @file
/// Results: the identity of a result.

#include <calc-common/export.hpp>
#include <calc-common/vocabulary.hpp>

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <cstdint>

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

private:
    static boost::shared_ptr<result_type_t> create_total(total_type_t total, source_type_t type,
                                                         int engine);
};

#endif // CALC_COMMON_RESULTS_HPP
