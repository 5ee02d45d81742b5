#ifndef CALC_COMMON_METRICS_HPP
#define CALC_COMMON_METRICS_HPP

/// @file
/// Noise indicators computed from third-octave spectra and their time histories: overall and
/// A-weighted levels, perceived noise level and its tone correction, the effective perceived
/// noise level of a flyover, maxima and exposure levels, and the cumulative indicators of a
/// day of events.
///
/// Spectra are on the 24-band third-octave grid from 50 Hz to 10 kHz (`tob_frequency_range_ptr`
/// or an equal copy of it); array forms take the same 24 levels in the same order. Levels are in
/// dB, and a level at or below 1 dB carries no energy. A not-a-number level makes the result not
/// a number. Bad input (a spectrum off the grid, a step that is not positive, an empty history)
/// raises varno_calc_error naming the function and the fault.

#include <calc-common/export.hpp>
#include <calc-common/spectra.hpp>

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <vector>

struct integrated_noise_indicators_t; // <calc-common/results.hpp>

// ---- Overall and A-weighted levels ----------------------------------------------------------

/// Overall sound pressure level (OASPL) in dB: the energy sum of all bands of the spectrum, on
/// any grid.
/// 0.0 for a silent spectrum.
VARNO_CALC_COMMON_EXPORT double Calc_OverallLevel(boost::shared_ptr<spectrum_t> spectrum);

/// Energy sum in dB of any list of levels (array form of Calc_OverallLevel, any length).
VARNO_CALC_COMMON_EXPORT double Calc_OverallLevel(std::vector<double> const& levels);

/// A-weighting in dB at a frequency in Hz, from the closed form of the electroacoustic sound
/// level meter standard (0 dB at 1 kHz, about -30.2 dB at 50 Hz).
VARNO_CALC_COMMON_EXPORT double Calc_AWeighting(double frequency);

/// A-weighted level in dB(A) of a third-octave spectrum: each band weighted at its exact
/// mid-band frequency 10^(b/10) Hz, then summed by energy. 0.0 for a silent spectrum.
VARNO_CALC_COMMON_EXPORT double Calc_AWeightedLevel(boost::shared_ptr<spectrum_t> spectrum);

/// Array form of Calc_AWeightedLevel: 24 third-octave levels from 50 Hz to 10 kHz.
VARNO_CALC_COMMON_EXPORT double Calc_AWeightedLevel(std::vector<double> const& tob_levels);

// ---- Perceived noise level ------------------------------------------------------------------

/// Perceived noisiness in noy of a level in dB in grid band `band_index` (0 is 50 Hz, 23 is
/// 10 kHz), from the mathematical formulation of the noy tables of aircraft noise
/// certification: 1 noy at 40 dB at 1 kHz, doubling every 10 dB above; 0 below the lowest
/// breakpoint of the band. Throws varno_calc_error for an index past 23.
VARNO_CALC_COMMON_EXPORT double Calc_Noy(std::size_t band_index, double level);

/// Perceived noise level PNL in PNdB: N = 0.85 n_max + 0.15 sum(n) over the 24 bands, then
/// PNL = 40 + (10/log10 2) log10 N. 0.0 when no band is noisy (N = 0).
VARNO_CALC_COMMON_EXPORT double Calc_PerceivedNoiseLevel(boost::shared_ptr<spectrum_t> spectrum);

/// Array form of Calc_PerceivedNoiseLevel.
VARNO_CALC_COMMON_EXPORT double Calc_PerceivedNoiseLevel(std::vector<double> const& tob_levels);

// ---- Tone correction ------------------------------------------------------------------------

/// The tone correction of one spectrum and what sets it.
struct VARNO_CALC_COMMON_EXPORT tone_correction_t {
    double correction = 0.0; ///< C in dB, the largest band correction (0 to 6 2/3 dB)
    int band_index = -1;     ///< grid index of the (first) band giving C; -1 when C is 0
    /// F in dB for each of the 24 bands: the level less the smoothed background. The first two
    /// bands have no background and hold 0; only F of 1.5 dB or more earns a correction.
    std::vector<double> level_differences;
};

/// Tone correction C in dB by the ten-step band-slope procedure of aircraft noise
/// certification (bands from 80 Hz up are judged; 50 to 400 Hz and 6.3 to 10 kHz earn up to
/// 3 1/3 dB, 500 Hz to 5 kHz up to 6 2/3 dB).
VARNO_CALC_COMMON_EXPORT double Calc_ToneCorrection(boost::shared_ptr<spectrum_t> spectrum);

/// Tone correction with the band that sets it and the per-band differences F.
VARNO_CALC_COMMON_EXPORT tone_correction_t
Calc_ToneCorrectionDetail(boost::shared_ptr<spectrum_t> spectrum);

/// Array form of Calc_ToneCorrectionDetail.
VARNO_CALC_COMMON_EXPORT tone_correction_t
Calc_ToneCorrectionDetail(std::vector<double> const& tob_levels);

// ---- Time histories -------------------------------------------------------------------------
// A history is a list of spectra (or levels) at a uniform step in seconds; sample k is at time
// k * time_step from the first sample.

/// The largest value of a level history and where it is (the first sample when tied).
struct VARNO_CALC_COMMON_EXPORT level_maximum_t {
    double level = 0.0;    ///< dB (or PNdB)
    std::size_t index = 0; ///< sample index
    double time = 0.0;     ///< s from the first sample
};

/// Effective perceived noise level of a flyover, with every intermediate quantity.
struct VARNO_CALC_COMMON_EXPORT effective_perceived_noise_t {
    std::vector<double> pnlt;        ///< PNLT(k) = PNL(k) + C(k), PNdB
    level_maximum_t pnltm;           ///< PNLTM, the largest PNLT, and where it is
    double band_sharing = 0.0;       ///< adjustment added to PNLTM for a tone shared over time, dB
    double pnltm_adjusted = 0.0;     ///< PNLTM plus the band-sharing adjustment, PNdB
    std::size_t first_10db_down = 0; ///< first sample with PNLT at least PNLTM - 10
    std::size_t last_10db_down = 0;  ///< last sample with PNLT at least PNLTM - 10
    double first_10db_down_time = 0.0; ///< s
    double last_10db_down_time = 0.0;  ///< s
    double duration_correction = 0.0;  ///< D, dB
    double epnl = 0.0;                 ///< EPNL = PNLTM adjusted + D, EPNdB
};

/// EPNL in EPNdB of spectra at a uniform step in seconds: PNLT(k) = PNL(k) + C(k); PNLTM is
/// raised to the mean C over the five samples around it when its own C is lower (a tone
/// shared between bands over time); D = 10 log10(sum 10^(PNLT(k)/10) time_step / 10 s) - PNLTM
/// over the samples from the first to the last at or above PNLTM - 10.
VARNO_CALC_COMMON_EXPORT double
Calc_EffectivePerceivedNoiseLevel(std::vector<boost::shared_ptr<spectrum_t>> const& history,
                                  double time_step);

/// Calc_EffectivePerceivedNoiseLevel with its intermediate quantities.
VARNO_CALC_COMMON_EXPORT effective_perceived_noise_t Calc_EffectivePerceivedNoise(
    std::vector<boost::shared_ptr<spectrum_t>> const& history, double time_step);

/// Array form: PNL(k) in PNdB and C(k) in dB (same length) at a uniform step in seconds.
VARNO_CALC_COMMON_EXPORT effective_perceived_noise_t Calc_EffectivePerceivedNoise(
    std::vector<double> const& pnl, std::vector<double> const& tone_corrections, double time_step);

/// Largest level of a history of levels (non-empty, positive step in s).
VARNO_CALC_COMMON_EXPORT level_maximum_t Calc_LevelMaximum(std::vector<double> const& levels,
                                                           double time_step);

/// Exposure level in dB re 1 s of a history of levels: 10 log10(sum 10^(L(k)/10) time_step).
VARNO_CALC_COMMON_EXPORT double Calc_ExposureLevel(std::vector<double> const& levels,
                                                   double time_step);

/// Exposure level in dB re 1 s over the samples from the first to the last at or above the
/// maximum less 10 dB.
VARNO_CALC_COMMON_EXPORT double Calc_ExposureLevel10dBDown(std::vector<double> const& levels,
                                                           double time_step);

/// Time in s during which a history of levels is above `threshold` dB (samples above it times
/// the step).
VARNO_CALC_COMMON_EXPORT double Calc_TimeAbove(std::vector<double> const& levels, double time_step,
                                               double threshold);

/// Sound exposure level SEL in dB(A) re 1 s of spectra at a uniform step in seconds, over the
/// whole history.
VARNO_CALC_COMMON_EXPORT double
Calc_SoundExposureLevel(std::vector<boost::shared_ptr<spectrum_t>> const& history,
                        double time_step);

/// Everything a history of spectra at one observer gives.
struct VARNO_CALC_COMMON_EXPORT time_history_metrics_t {
    std::vector<double> oaspl;             ///< OASPL(k), dB
    std::vector<double> dba;               ///< LA(k), dB(A)
    std::vector<double> pnl;               ///< PNL(k), PNdB
    level_maximum_t oaspl_max;             ///< OASPLmax
    level_maximum_t dba_max;               ///< LAmax
    level_maximum_t pnl_max;               ///< PNLmax
    effective_perceived_noise_t perceived; ///< PNLT, PNLTM, D, EPNL
    double sel = 0.0;                      ///< SEL over the whole history, dB(A) re 1 s
    double sel_10db_down = 0.0;            ///< SEL over the 10 dB-down period of LA, dB(A) re 1 s
};

/// All time-history metrics of spectra at a uniform step in seconds, each spectrum analysed once.
VARNO_CALC_COMMON_EXPORT time_history_metrics_t Calc_TimeHistoryMetrics(
    std::vector<boost::shared_ptr<spectrum_t>> const& history, double time_step);

// ---- Exposure over a day of events ----------------------------------------------------------
// Periods of the day: day 07:00-19:00, evening 19:00-22:00, night 22:00-07:00. The night
// weighting is +10 dB; the evening weighting of CNEL is 10 log10(3), about +4.77 dB.

/// One noise event at an observer, as the cumulative indicators need it.
struct VARNO_CALC_COMMON_EXPORT noise_event_t {
    double time_of_day = 0.0; ///< hours after midnight, [0, 24)
    double sel = 0.0;         ///< SEL, dB(A) re 1 s
    double epnl = 0.0;        ///< EPNL, EPNdB
    double la_max = 0.0;      ///< LAmax, dB(A)
    double time_above = 0.0;  ///< s above the threshold of the study
    double oaspl_max = 0.0;   ///< OASPLmax, dB
    double pnl_max = 0.0;     ///< PNLmax, PNdB
    double pnltm = 0.0;       ///< PNLTM, PNdB
};

/// Equivalent continuous level in dB(A) over the period from `start_hour` to `end_hour`
/// (hours after midnight; a period may run past midnight, and equal hours mean the whole day):
/// the SEL energy of the events in the period spread over its length.
VARNO_CALC_COMMON_EXPORT double Calc_EquivalentLevel(std::vector<noise_event_t> const& events,
                                                     double start_hour, double end_hour);

/// Day-night level DNL in dB(A): 24-hour equivalent level with night events weighted +10 dB.
VARNO_CALC_COMMON_EXPORT double Calc_DayNightLevel(std::vector<noise_event_t> const& events);

/// Community noise equivalent level CNEL in dB(A): as DNL, with evening events weighted
/// +4.77 dB.
VARNO_CALC_COMMON_EXPORT double
Calc_CommunityNoiseEquivalentLevel(std::vector<noise_event_t> const& events);

/// Number of events whose LAmax is above `threshold` dB(A).
VARNO_CALC_COMMON_EXPORT double Calc_NumberAbove(std::vector<noise_event_t> const& events,
                                                 double threshold);

/// Total time in s above the study's threshold: the sum of the events' `time_above`.
VARNO_CALC_COMMON_EXPORT double Calc_TotalTimeAbove(std::vector<noise_event_t> const& events);

/// Noise exposure forecast NEF: 10 log10(sum over day events of 10^(EPNL/10) + 16.67 times the
/// same sum over night events) - 88, day 07:00-22:00 and night 22:00-07:00. 0.0 without events.
VARNO_CALC_COMMON_EXPORT double
Calc_NoiseExposureForecast(std::vector<noise_event_t> const& events);

// ---- Filling the integrated indicators of a result ------------------------------------------

/// Fills `oaspl_max`, `dba_max`, `pnl_max`, `pnltm`, `epnl` and `sel` of `indicators` from
/// spectra at a uniform step in seconds (as Calc_TimeHistoryMetrics; `pnltm` without the
/// band-sharing adjustment, which `epnl` includes). When `angles` holds one directivity angle in
/// degrees per spectrum, `psi_oaspl_max`, `psi_dba_max`, `psi_pnl_max` and `psi_pnltm` get the
/// angle at each maximum; when it is empty they are left as they are.
VARNO_CALC_COMMON_EXPORT void
Calc_FillIndicators(std::vector<boost::shared_ptr<spectrum_t>> const& history, double time_step,
                    boost::shared_ptr<integrated_noise_indicators_t> indicators,
                    std::vector<double> const& angles = std::vector<double>());

/// Fills the cumulative indicators of `indicators` from a day of events: `leq24h`, `leqdt`
/// (07:00-22:00), `leqnt` (22:00-07:00), `dnl`, `cnel`, `na` (LAmax above `threshold` dB(A)),
/// `ta` (s, the events' `time_above`) and `nef`; and the exposure averages `avg_oaspl_max`,
/// `avg_dba_max`, `avg_pnl_max`, `avg_pnltm`, `avg_epnl` and `avg_sel`, each the energy mean of
/// the events' levels (0.0 without events). `nni`, `tne`, `ecpn`, the `wecpn*` fields, `senel`
/// and `indicator_30` are left untouched: their definitions differ between authorities.
VARNO_CALC_COMMON_EXPORT void
Calc_FillExposure(std::vector<noise_event_t> const& events, double threshold,
                  boost::shared_ptr<integrated_noise_indicators_t> indicators);

#endif // CALC_COMMON_METRICS_HPP
