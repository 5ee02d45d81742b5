#ifndef CALC_COMMON_SPECTRA_HPP
#define CALC_COMMON_SPECTRA_HPP

/// @file
/// Spectral containers: frequency grids, spectra, tone identities, noise fields and the
/// conversion of narrowband spectra and lists of lines to third-octave bands.

#include <calc-common/export.hpp>
#include <calc-common/frame.hpp>

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <cstdio>
#include <iosfwd>
#include <vector>

/// The ordered frequencies (Hz) on which a spectrum lives. A range is first of all an identity:
/// containers are on the same grid only when they hold the very same object. A narrowband range
/// (df > 0) computes its frequencies from a start and a step; a listed range stores them.
struct VARNO_CALC_COMMON_EXPORT frequency_range_t {
    std::vector<double> frequencies; ///< listed frequencies in Hz; empty for a narrowband range
    double f_start;                  ///< first narrowband frequency in Hz, 0 otherwise
    double f_end;                    ///< last narrowband frequency asked for in Hz, 0 otherwise
    double df;                       ///< narrowband step in Hz, 0 otherwise
    std::size_t count;               ///< number of frequencies (held by itself for narrowband)

    /// An empty range: no frequency, narrowband in the sense of isNB().
    frequency_range_t();

    /// Regular grid f_start + k*df (Hz) for every k that is not past f_end. The count
    /// (f_end - f_start)/df + 1 is truncated; boost::numeric::negative_overflow or
    /// positive_overflow pass through when it does not fit a size_t.
    static boost::shared_ptr<frequency_range_t> create_nb(double f_start, double f_end, double df);

    /// Listed range of `count` frequencies, all 0 Hz, for discrete tones the caller fills in.
    static boost::shared_ptr<frequency_range_t> create_dt(std::size_t const& count);

    /// Appends a frequency in Hz to the list (no sorting, no check).
    void add_frequency(double const& frequency);

    /// Frequency in Hz at `index`: computed when df is tolerantly above 0, looked up otherwise.
    /// No range check.
    double operator()(std::size_t const& index) const;
    /// Same as operator().
    double at(std::size_t const& index) const;

    /// Number of frequencies, the field `count`.
    std::size_t size() const;

    /// True when no list is stored, except for the third-octave grid itself.
    bool isNB() const;

    /// Same numbers, with tolerance: narrowband ranges compare start, end and step; listed
    /// ranges compare count and every entry. A narrowband and a listed range are never equal.
    bool equals(boost::shared_ptr<frequency_range_t> other) const;

    /// Deep copy: equal numbers, but a different grid for energy addition.
    boost::shared_ptr<frequency_range_t> clone() const;
};

/// Nominal centre frequencies (Hz) of third-octave bands 1 to 50; band 17 is 50 Hz.
extern VARNO_CALC_COMMON_EXPORT double const tob_fc_nominal[50];

/// Lower edges (Hz) of third-octave bands 1 to 50, followed by the upper edge of band 50.
extern VARNO_CALC_COMMON_EXPORT double const tob_fl[51];

/// The shared 24-band third-octave grid, 50 Hz to 10 kHz. Treat it as constant.
extern VARNO_CALC_COMMON_EXPORT boost::shared_ptr<frequency_range_t> tob_frequency_range_ptr;

/// Identity of a discrete tone: its band on the holding spectrum's grid, its exact frequency
/// and level, and what produced it (blade-passing harmonic, open-rotor interaction harmonics,
/// engine order or `ni` order; the kind is whichever identifying field is non-zero).
struct VARNO_CALC_COMMON_EXPORT tone_id_t {
    int band_index;      ///< index of the tone's band on the holding spectrum's grid
    double bpf_harmonic; ///< blade-passing frequency harmonic number (whole numbers)
    int cror_harmonic_1; ///< first open-rotor interaction harmonic number
    int cror_harmonic_2; ///< second open-rotor interaction harmonic number
    int engine_order;    ///< engine order
    int ni_order;        ///< `ni` order; such tones never answer spectrum_t::frequency_at
    double frequency;    ///< exact tone frequency, Hz
    double level;        ///< tone level, dB

    /// All fields 0.
    tone_id_t();

    /// Harmonic of the blade-passing frequency (frequency in Hz, level in dB).
    static tone_id_t create_bpf(int band_index, double bpf_harmonic, double frequency,
                                double level);
    /// Interaction harmonic (h1, h2) of a contra-rotating open rotor.
    static tone_id_t create_cror(int band_index, int cror_harmonic_1, int cror_harmonic_2,
                                 double frequency, double level);
    /// Engine order tone.
    static tone_id_t create_eo(int band_index, int engine_order, double frequency, double level);
    /// Tone of the `ni` kind.
    static tone_id_t create_ni(int band_index, int ni_order, double frequency, double level);

    /// A copy equal in every field.
    tone_id_t clone() const;

    /// Same producer: harmonic numbers and orders match (bpf harmonic tolerantly); band,
    /// frequency and level take no part, so a Doppler-shifted tone is still the same tone.
    bool equals(tone_id_t const& other) const;
};

/// Levels in dB over a frequency range, one per frequency, with the discrete tones that lie in
/// it. A level of 0.0 means no sound in that band.
struct VARNO_CALC_COMMON_EXPORT spectrum_t {
    boost::shared_ptr<frequency_range_t> frequency_range; ///< the grid, usually shared
    bool owns_frequency_range;    ///< set once the spectrum holds a private copy of its grid
    std::vector<double> values;   ///< levels in dB, in the order of the range
    std::vector<tone_id_t> tones; ///< discrete tones, in order of addition

    /// No range, no values, no tones.
    spectrum_t();

    /// Silent spectrum (every level 0.0) on a shared range.
    explicit spectrum_t(boost::shared_ptr<frequency_range_t> range);

    /// Silent spectrum on the third-octave grid.
    static boost::shared_ptr<spectrum_t> create_tob();

    /// Prepares the slot `*holder` for a new fill on `range` without reallocating: an empty
    /// slot gets a new spectrum, a spectrum already on that very range is cleared, and a
    /// spectrum on another range is left untouched (it is not rebound). Throws varno_calc_error
    /// when `holder` is null.
    static void reserve(boost::shared_ptr<spectrum_t>* holder,
                        boost::shared_ptr<frequency_range_t> range);

    /// reserve() on the third-octave grid.
    static void reserve_tob(boost::shared_ptr<spectrum_t>* holder);

    /// Energy sum of two spectra into `result`, which may be one of them. Levels at or below
    /// 1 dB carry no energy, and a sum at or below 1 dB gives 0.0. All three must hold the very
    /// same range object, or varno_calc_error is thrown before anything is written. Tone lists
    /// are left as they are.
    static void log_add(boost::shared_ptr<spectrum_t> a, boost::shared_ptr<spectrum_t> b,
                        boost::shared_ptr<spectrum_t> result);

    /// Appends a frequency (Hz) to the shared range and a level (dB) to the values.
    void add_value(double const& frequency, double const& level);

    /// Multiplies every level by a plain factor (arithmetic on dB numbers, not a gain).
    void multiply(double const& factor);

    /// Sets every level to `level` dB.
    void fill_with(double const& level);

    /// Level in dB at `index`, no range check.
    double& at(std::size_t const& index);
    /// Same as at().
    double& operator()(std::size_t const& index);

    /// Frequency in Hz at `index`: that of the first tone recorded in this band (other than an
    /// `ni` tone), else the grid's.
    double frequency_at(std::size_t const& index) const;

    /// Silences every level and forgets the tones; does nothing on an empty or zero-count range.
    void clear();

    /// Copy of levels and tones on the same shared range, so still addable to this one.
    boost::shared_ptr<spectrum_t> clone() const;

    /// Copies levels and tones into `target`, leaving its range alone. Always returns false.
    bool copy_to(boost::shared_ptr<spectrum_t> target) const;

    /// Sets every level below 0.001 dB to 0.0 (raises nothing, despite the name).
    void assert_non_negative();

    /// Replaces the shared range by a private copy, once.
    void give_frequency_range_ownership();

    /// Appends the levels to a file as one block of 8-byte doubles, nothing else (no grid, no
    /// tones). False when the block was not written, which includes an empty spectrum.
    bool write(std::FILE* file) const;
    /// Reads one block of levels in place, as many as the grid has frequencies. False when the
    /// block was not all there, which includes an empty grid. The tones are left alone.
    bool read(std::FILE* file);
};

/// Writes the levels to a binary stream as 8-byte doubles, one by one (not a null pointer).
VARNO_CALC_COMMON_EXPORT std::ostream& operator<<(std::ostream& stream,
                                                  boost::shared_ptr<spectrum_t> spectrum);
/// Reads as many levels as the grid has frequencies from a binary stream; nothing for a null
/// pointer. The stream's state tells failure.
VARNO_CALC_COMMON_EXPORT void operator>>(std::istream& stream,
                                         boost::shared_ptr<spectrum_t> spectrum);

/// The directivity axis of a noise field: one entry per column in each of three parallel lists.
struct VARNO_CALC_COMMON_EXPORT noise_field_column_range_t {
    std::vector<double> distances;   ///< distance of each column (m)
    std::vector<double> angles;      ///< directivity angle of each column (degrees)
    std::vector<double> column_data; ///< a further value per column, stored and copied only

    /// No columns.
    noise_field_column_range_t();

    /// `count` columns; each list is copied from its pointer, or all zeros for a null pointer.
    noise_field_column_range_t(std::size_t count, double* distances, double* angles,
                               double* column_data);

    /// Columns at the given angles, with zero distances and data. The count goes through a
    /// 32-bit int.
    static boost::shared_ptr<noise_field_column_range_t> from_angles(std::vector<double>& angles);

    /// Number of columns: the length of `angles`.
    std::size_t size() const;

    /// Deep copy of the three lists.
    boost::shared_ptr<noise_field_column_range_t> clone() const;
};

/// Levels in dB over frequency and directivity: the directional result of a source, one
/// spectrum per column in one frequency-major block. A level of 0.0 means no sound.
struct VARNO_CALC_COMMON_EXPORT noise_field_t {
    boost::shared_ptr<frequency_range_t> frequency_range;       ///< frequency axis, usually shared
    bool owns_frequency_range;                                  ///< never set by this record
    boost::shared_ptr<noise_field_column_range_t> column_range; ///< directivity axis
    bool owns_column_range;       ///< set once the field holds a private copy of its columns
    std::vector<double> values;   ///< levels in dB; frequency i, column j at i*columns + j
    std::vector<tone_id_t> tones; ///< discrete tones, in order of addition

    /// No axes, no values, no tones.
    noise_field_t();

    /// Silent field (every level 0.0) on shared axes.
    noise_field_t(boost::shared_ptr<frequency_range_t> range,
                  boost::shared_ptr<noise_field_column_range_t> columns);

    /// Silent field on the third-octave grid.
    static boost::shared_ptr<noise_field_t>
    create_tob(boost::shared_ptr<noise_field_column_range_t> columns);

    /// Level in dB at a frequency index and a column, no range check.
    double& at(std::size_t const& frequency_index, std::size_t const& column);
    /// Same as at().
    double& operator()(std::size_t const& frequency_index, std::size_t const& column);

    /// Distance of a column, a reference into the (possibly shared) column range.
    double& distance_at(std::size_t const& column);

    /// Appends a tone to the list.
    void add_tone(tone_id_t tone);

    /// Energy sum of two fields into `result`, which may be one of them, with the level rules
    /// of spectrum_t::log_add. The frequency ranges must be the very same object; the column
    /// ranges need only have the same size. Otherwise varno_calc_error is thrown before
    /// anything is written. Tone lists are left as they are.
    static void log_add(boost::shared_ptr<noise_field_t> a, boost::shared_ptr<noise_field_t> b,
                        boost::shared_ptr<noise_field_t> result);

    /// Silences every level and forgets the tones; does nothing when an axis is missing or
    /// empty.
    void clear();

    /// Copy of levels and tones on the same shared axes.
    boost::shared_ptr<noise_field_t> clone() const;

    /// Copies levels and tones into `target`, leaving its axes alone. Always returns true.
    bool copy_to(boost::shared_ptr<noise_field_t> target) const;

    /// Sets every level below 0.001 dB to 0.0 (raises nothing, despite the name).
    void assert_non_negative();

    /// Replaces the shared column range by a private copy, once.
    void give_column_range_ownership();
};

/// How the energy of a narrowband line reaches the third-octave bands.
enum nbtob_conversion_method : int {
    nbtob_line_band = 0,    ///< all of it to the one band that holds the line
    nbtob_butterworth = 1,  ///< to every band, weighted by a third-order band-pass curve
    nbtob_width_overlap = 2 ///< to the bands the line's width overlaps, by the overlap
};

/// Converts a narrowband spectrum, or a list of discrete lines, to the third-octave grid.
/// `output` must be on tob_frequency_range_ptr and `input` must not be. A narrowband input
/// (df not 0) is summed by `method`; a band is filled only if it spans more than `line_count`
/// lines (methods 1 and 2), and a `line_count` of 3 selects VARNO::TrrApi::NbToTob instead.
/// A listed input (df 0) is a list of lines, shared across band edges within the 1.04 overlap;
/// `method` and `line_count` are then unused. Narrowband bands give 10*log10(energy) with no
/// cut (a band no line reaches stays 0.0); listed lines give 0.0 for energies at or below 1.
/// Returns 0, or 1 for a wrong grid (output untouched) or an unknown method, which is noticed at
/// the first narrowband level summed (output zeroed; an input with no line is not refused).
VARNO_CALC_COMMON_EXPORT int convert_spectrum_to_tob(boost::shared_ptr<spectrum_t> input,
                                                     boost::shared_ptr<spectrum_t> output,
                                                     nbtob_conversion_method method,
                                                     int line_count);

/// convert_spectrum_to_tob() for every column of a field. `output` must have the input's
/// number of columns.
VARNO_CALC_COMMON_EXPORT int convert_noise_field_to_tob(boost::shared_ptr<noise_field_t> input,
                                                        boost::shared_ptr<noise_field_t> output,
                                                        nbtob_conversion_method method,
                                                        int line_count);

namespace acoustics {

class OctaveBandFilterBank;

/// One fractional-octave band-pass filter of a bank: band number, exact and nominal centre
/// frequencies and band edges, all in Hz.
class VARNO_CALC_COMMON_EXPORT OctaveBandFilter {
public:
    /// Band `band_index` of `bank` (the bank's ratio and bands per octave must be set).
    OctaveBandFilter(OctaveBandFilterBank const* bank, int band_index);
    virtual ~OctaveBandFilter();

    OctaveBandFilterBank const* bank; ///< the bank it belongs to, not owned
    int band_index;                   ///< band number x; x = 30 is centred on 1 kHz
    double midband_frequency;         ///< exact centre frequency, Hz
    double nominal_frequency;         ///< rounded centre frequency, Hz
    double lower_edge;                ///< lower band edge, Hz
    double upper_edge;                ///< upper band edge, Hz
};

/// A bank of fractional-octave band-pass filters with constant relative bandwidth, referred to
/// 1 kHz, covering f_low to f_high. Its filters point back to it, so it is neither copied nor
/// moved.
class VARNO_CALC_COMMON_EXPORT OctaveBandFilterBank {
public:
    /// `bands_per_octave` bands per octave (b), Butterworth `order`, octave ratio 2 when
    /// `base_two`, else 10^0.3.
    OctaveBandFilterBank(std::size_t bands_per_octave, double f_low, double f_high,
                         std::size_t order, bool base_two);
    virtual ~OctaveBandFilterBank();
    OctaveBandFilterBank(OctaveBandFilterBank const&) = delete;
    OctaveBandFilterBank& operator=(OctaveBandFilterBank const&) = delete;

    double octave_ratio;                   ///< G: 2 or 10^0.3
    double reference_frequency;            ///< 1000 Hz
    std::size_t bands_per_octave;          ///< b
    std::size_t order;                     ///< Butterworth order
    double q_design;                       ///< Q that gives each band its nominal noise bandwidth
    std::vector<OctaveBandFilter> filters; ///< one per band number, ascending
};

} // namespace acoustics

namespace VARNO {
namespace TrrApi {

/// Third-octave levels (50 Hz to 10 kHz) of a narrowband spectrum through banks of band-pass
/// filters (1/12, 1/3 and 1/1 octave, base ten, so that the third-octave bands are those of
/// the grid). Method 0 gives ideal rectangular bands, 2 shares each line by the part of its
/// width df that a band covers, and any other a Butterworth response of order 3 whose noise
/// bandwidth is the band's width. A band narrower than ten lines is not resolved: it takes the
/// part of its octave band's energy that the lines' widths place in it. As in the narrowband
/// summation, every line carries 10^(L/10) with no cut, and a band reads 10*log10 of its energy
/// (0.0 only when none reaches it). `output` must be on the
/// third-octave grid; its values are replaced.
VARNO_CALC_COMMON_EXPORT void NbToTob(boost::shared_ptr<spectrum_t> input,
                                      boost::shared_ptr<spectrum_t> output,
                                      nbtob_conversion_method method);

/// NbToTob() for every column of a field; `output` must have the input's number of columns.
VARNO_CALC_COMMON_EXPORT void NbToTob(boost::shared_ptr<noise_field_t> input,
                                      boost::shared_ptr<noise_field_t> output,
                                      nbtob_conversion_method method);

} // namespace TrrApi
} // namespace VARNO

#endif // CALC_COMMON_SPECTRA_HPP
