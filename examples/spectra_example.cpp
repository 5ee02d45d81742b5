// A tour of the spectrum algebra: a third-octave spectrum and a narrowband one are built and
// filled, two sources are added by energy, tones are recorded, and the error for mismatched
// grids is shown.
#include <calc-common/calc-common.hpp>

#include <boost/make_shared.hpp>

#include <cstdio>

namespace {

void print_rule() {
    std::printf("----------------------------------------------------------\n");
}

} // namespace

int main() {
    // Two sources on the shared third-octave grid: a fan with a hump around 1 kHz and a jet
    // that falls off with frequency.
    boost::shared_ptr<spectrum_t> fan = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> jet = spectrum_t::create_tob();
    for (std::size_t i = 0; i < fan->values.size(); ++i) {
        double const offset = static_cast<double>(i) - 13.0;
        fan->at(i) = 75.0 - 0.15 * offset * offset;
        jet->at(i) = 82.0 - 0.8 * static_cast<double>(i);
    }
    jet->at(23) = 0.0; // silence in the top band

    // A blade-passing tone and its first harmonic, recorded where they lie.
    fan->tones.push_back(tone_id_t::create_bpf(13, 1.0, 1030.0, 74.0));
    fan->tones.push_back(tone_id_t::create_bpf(16, 2.0, 2060.0, 68.0));

    boost::shared_ptr<spectrum_t> total = spectrum_t::create_tob();
    spectrum_t::log_add(fan, jet, total);

    std::printf("Third-octave spectra, levels in dB (0.0 means silence)\n");
    print_rule();
    std::printf("%5s %10s %8s %8s %8s\n", "band", "f [Hz]", "fan", "jet", "total");
    print_rule();
    for (std::size_t i = 0; i < total->values.size(); ++i) {
        std::printf("%5zu %10.1f %8.2f %8.2f %8.2f\n", i, fan->frequency_at(i), fan->values[i],
                    jet->values[i], total->values[i]);
    }
    print_rule();
    std::printf("Tones in the fan spectrum: %zu (the sum keeps its own tone list, empty: %zu)\n",
                fan->tones.size(), total->tones.size());

    // A narrowband spectrum: 0 to 500 Hz in steps of 12.5 Hz.
    boost::shared_ptr<frequency_range_t> nb_grid = frequency_range_t::create_nb(0.0, 500.0, 12.5);
    boost::shared_ptr<spectrum_t> narrowband = boost::make_shared<spectrum_t>(nb_grid);
    narrowband->fill_with(40.0);
    narrowband->at(8) = 63.0; // a line at 100 Hz
    std::printf("\nNarrowband grid: %zu lines from %.1f Hz in steps of %.1f Hz; line 8 at %.1f Hz "
                "holds %.1f dB\n",
                nb_grid->size(), nb_grid->f_start, nb_grid->df, (*nb_grid)(8), narrowband->at(8));

    // Adding spectra that are not on the very same grid object is refused.
    try {
        spectrum_t::log_add(total, narrowband, total);
    } catch (varno_calc_error const& error) {
        std::printf("Adding third-octave and narrowband spectra: varno_calc_error \"%s\"\n",
                    error.what());
    }
    boost::shared_ptr<spectrum_t> on_copied_grid =
        boost::make_shared<spectrum_t>(tob_frequency_range_ptr->clone());
    try {
        spectrum_t::log_add(total, on_copied_grid, total);
    } catch (varno_calc_error const& error) {
        std::printf("Adding on an equal but separate grid:     varno_calc_error \"%s\"\n",
                    error.what());
    }
    return 0;
}
