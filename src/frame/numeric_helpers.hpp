#ifndef CALC_COMMON_SRC_FRAME_NUMERIC_HELPERS_HPP
#define CALC_COMMON_SRC_FRAME_NUMERIC_HELPERS_HPP

// The numeric rules every subsystem shares, each in its own header: tolerant comparison,
// levels and energies, third-octave band arithmetic, and the shared constants (angles, the
// speed of sound). Code outside VARNO::detail reaches them, as every internal routine, through
// one file-scope `using namespace VARNO::detail;` after its includes.

#include "frame/bands.hpp"
#include "frame/constants.hpp"
#include "frame/levels.hpp"
#include "frame/tolerance.hpp"

#endif // CALC_COMMON_SRC_FRAME_NUMERIC_HELPERS_HPP
