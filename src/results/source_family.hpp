#ifndef CALC_COMMON_SRC_RESULTS_SOURCE_FAMILY_HPP
#define CALC_COMMON_SRC_RESULTS_SOURCE_FAMILY_HPP

// The two families of noise sources, as results sort them.

#include <calc-common/vocabulary.hpp>

namespace VARNO {
namespace detail {

/// Slats to spoiler: the sources of the airframe.
inline bool is_airframe_source_type(source_type_t type) {
    return type >= source_slats && type <= source_spoiler;
}

/// Every value below the airframe sources counts with the engine.
inline bool is_engine_source_type(source_type_t type) {
    return type < source_slats;
}

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_RESULTS_SOURCE_FAMILY_HPP
