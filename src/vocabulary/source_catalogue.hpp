#ifndef CALC_COMMON_SRC_VOCABULARY_SOURCE_CATALOGUE_HPP
#define CALC_COMMON_SRC_VOCABULARY_SOURCE_CATALOGUE_HPP

// Class predicates on a noise source value, for the records that hold a source type.

#include <calc-common/vocabulary.hpp>

namespace VARNO {
namespace detail {

/// True for the engine sources heard as broadband noise only (jet, combustion, residual and
/// the two engine totals).
bool is_broadband_engine_source(source_type_t type);

/// True for the contra-rotating open rotor source alone.
bool is_cror_engine_source(source_type_t type);

} // namespace detail
} // namespace VARNO

#endif // CALC_COMMON_SRC_VOCABULARY_SOURCE_CATALOGUE_HPP
