#ifndef CALC_COMMON_CALC_COMMON_HPP
#define CALC_COMMON_CALC_COMMON_HPP

// Everything the library offers, in one include.

#include <calc-common/LogFileWriter>
#include <calc-common/frame.hpp>
#include <calc-common/geometry.hpp>
#include <calc-common/metrics.hpp>
#include <calc-common/numerics.hpp>
#include <calc-common/propagation.hpp>
#include <calc-common/results.hpp>
#include <calc-common/scenario.hpp>
#include <calc-common/spectra.hpp>
#include <calc-common/tones.hpp>
#include <calc-common/vocabulary.hpp>

#endif // CALC_COMMON_CALC_COMMON_HPP
