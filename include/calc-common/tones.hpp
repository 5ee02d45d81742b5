#ifndef CALC_COMMON_TONES_HPP
#define CALC_COMMON_TONES_HPP

/// @file
/// Tone analysis on third-octave spectra: locating tones, separating them from the broadband
/// floor and moving them under Doppler shift. Levels are in dB, frequencies in Hz. A level of
/// 0.0 means no sound. Output spectra are supplied by the caller on the grid of the input and are
/// never resized.
///
/// The locators, the separation drivers and Calc_DopplerizeTone keep scratch storage per thread:
/// threads may call them at once on separate outputs.

#include <calc-common/export.hpp>
#include <calc-common/spectra.hpp>
#include <calc-common/vocabulary.hpp>

#include <boost/shared_ptr.hpp>

// ---- Tone location ------------------------------------------------------------------------

/// Slope-difference locator. A band that stands above the mean of its two neighbours (by more
/// than 1e-9 dB) is a tone; the last band is a tone when it rises by 1 dB or more over the band
/// below it; band 0 is never a tone. Each band's level goes to exactly one of `broadband` and
/// `tones`, the other receiving 0.0. Needs at least two bands.
VARNO_CALC_COMMON_EXPORT void Calc_TonesLocSlope(boost::shared_ptr<spectrum_t> spectrum,
                                                 boost::shared_ptr<spectrum_t> broadband,
                                                 boost::shared_ptr<spectrum_t> tones);

/// Discrete-frequency locator (the band-slope procedure of tone correction for perceived noise).
/// Changes of slope between adjacent bands larger than `slope_step` (dB) flag candidate bands,
/// which are bridged to rebuild a smooth baseline; a band whose height above that baseline is at
/// least `tone_margin` (dB) is a tone. Each band's level goes to exactly one of `broadband` and
/// `tones`, the other receiving 0.0.
VARNO_CALC_COMMON_EXPORT void Calc_TonesLocFreq(boost::shared_ptr<spectrum_t> spectrum,
                                                double slope_step, double tone_margin,
                                                boost::shared_ptr<spectrum_t> broadband,
                                                boost::shared_ptr<spectrum_t> tones);

/// Fills, in place, the bands of `spectrum` whose level equals `gap_value` (within rounding; a
/// level that is not a number or infinite is never a gap): inner gaps by linear interpolation
/// between the values around them, a leading or trailing gap by extending the line through the
/// two nearest values. The extension is not limited and may go below zero.
VARNO_CALC_COMMON_EXPORT void Calc_InterpSpec(boost::shared_ptr<spectrum_t> spectrum,
                                              double gap_value);

// ---- Doppler shift and tone spectra -------------------------------------------------------

/// Shares a tone of `level` dB at `frequency` Hz between the two bands that overlap from
/// `overlap_low` to `overlap_high` Hz, in linear proportion to its distance from the two limits:
/// `*level_low` receives the lower band's share and `*level_high` the upper's, in dB. A tone on a
/// limit gives a share of minus infinity dB. Throws varno_calc_error ("Calc_SplitTone"), with both
/// outputs set to 0.0, unless overlap_low < overlap_high and the frequency lies between them.
VARNO_CALC_COMMON_EXPORT void Calc_SplitTone(double level, double frequency, double overlap_low,
                                             double overlap_high, double* level_low,
                                             double* level_high);

/// Writes into `spectrum` one tone of `level` dB at `frequency` Hz lying in grid band `band`:
/// split with the neighbouring band when within a factor 1.04 of a band edge, whole otherwise;
/// every other band is 0.0 and a share off the grid is lost. A band off the grid clears the
/// spectrum. A frequency outside `band` can make the split throw varno_calc_error, and then
/// `spectrum` is left as it was.
VARNO_CALC_COMMON_EXPORT void Calc_ToneSpectrum(double frequency, int band, double level,
                                                boost::shared_ptr<spectrum_t> spectrum);

/// Recovers the level of the tone at `frequency` Hz from the tone bands `tones` (only read),
/// writes its spectrum at its own frequency into `unshifted` and at `doppler_ratio`*frequency
/// into `shifted`, and reports the shifted frequency (Hz) and the tone level (dB; also into
/// `tone_level_copy` when it is not null). Near a band edge only part of the tone sits in its
/// band: with `keep_broadband` the level is corrected for the missing share; without it the
/// correction is made only when the neighbouring band of `broadband` holds enough energy to give
/// the remainder back, and that band is then lowered (by the exact energy difference with
/// `exact_energy`, by an approximation otherwise). A tone in the first or last band, near the
/// upper edge of the last band but one, or off the grid has level 0.0; a frequency that is not a
/// positive finite number counts as off the grid.
VARNO_CALC_COMMON_EXPORT void
Calc_DopplerizeTone(boost::shared_ptr<spectrum_t> tones, boost::shared_ptr<spectrum_t> broadband,
                    double doppler_ratio, double frequency, boost::shared_ptr<spectrum_t> unshifted,
                    boost::shared_ptr<spectrum_t> shifted, double* shifted_frequency,
                    double* tone_level, double* tone_level_copy, bool exact_energy,
                    bool keep_broadband);

// ---- Broadband and tone separation --------------------------------------------------------

/// Gives tone bands back to the broadband floor until a whole pass changes nothing. A tone of
/// 1 dB or less is never looked at. Below the cut index `k` a tone must stand `check_margin` dB
/// above the mean of its neighbours in `spectrum` (bands 0 and n - 1 are left alone there); at
/// or above `k` it must stand more than `check_margin` dB above the floor in `broadband`. The
/// floor is refilled (gaps equal to `gap_value`) after every pass, so on return `broadband` holds
/// the interpolated floor at the tone bands.
VARNO_CALC_COMMON_EXPORT void Calc_CheckTones(boost::shared_ptr<spectrum_t> spectrum, int k,
                                              double check_margin, double gap_value,
                                              boost::shared_ptr<spectrum_t> broadband,
                                              boost::shared_ptr<spectrum_t> tones);

/// Splits a 24-band third-octave spectrum by its shape alone into a broadband floor and tones
/// that add up to it by energy. The cut index k is the band number of `cut_frequency` less 19
/// (0 when that falls off the grid or the frequency is not positive); at and below k every band
/// is broadband. Above k a band that survives the tone check holds the energetic excess of the
/// input over the interpolated floor. The fourth argument is not read; `method` 1 selects the
/// discrete-frequency locator and any other value the slope-difference locator. Only the levels
/// of `broadband` and `tones` are written, not their tone lists. Returns k. Allocates nothing
/// after its first call.
VARNO_CALC_COMMON_EXPORT int Calc_BBTones(boost::shared_ptr<spectrum_t> spectrum,
                                          double const& check_margin, double const& cut_frequency,
                                          double const& unused, tone_sep_method_t method,
                                          double const& slope_step, double const& tone_margin,
                                          boost::shared_ptr<spectrum_t> broadband,
                                          boost::shared_ptr<spectrum_t> tones);

/// Splits a third-octave spectrum into broadband and the first five harmonics of `fundamental`
/// (Hz). Only bands that a harmonic can touch may hold a tone, and only if the input stands more
/// than 3 dB above the filled floor there; bands shared by two harmonics are settled, each
/// harmonic's level is recovered as Calc_DopplerizeTone does (lowering the neighbouring
/// broadband band where it takes energy back), and a bpf tone is appended to the tone list of
/// `tones` for each harmonic on the grid, level 0.0 included. The levels of `tones` are then
/// rebuilt from its whole tone list, including entries that were there before the call; a band
/// whose summed tone energy is 3.0 or less holds 0.0. `method` 0 and 1 select the locator, and
/// any other value runs none (the outputs stand as given before the gap filling and the check).
///
/// Nothing is read or written outside the 24-band grid: a harmonic below band 0 is skipped as
/// one at or above band 24 is, a share of a listed tone that falls off the grid adds nothing,
/// and a `fundamental` that is not a positive finite number yields no tone at all (every band
/// goes to `broadband` and the tone list is left unchanged).
VARNO_CALC_COMMON_EXPORT void
Calc_EnscaBBTones(boost::shared_ptr<spectrum_t> spectrum, double check_margin, double cut_frequency,
                  double fundamental, double gap_value, tone_sep_method_t method, double slope_step,
                  double tone_margin, boost::shared_ptr<spectrum_t> broadband,
                  boost::shared_ptr<spectrum_t> tones);

#endif // CALC_COMMON_TONES_HPP
