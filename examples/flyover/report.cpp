// What the flyover shows a reader: a table of the time history, the integrated indicators, a
// CSV of the history and, through gnuplot, a picture of it.
#include "pieces.hpp"

#include <cstdio>
#include <cstdlib>
#include <fstream>

void print_report(flyover_t const& flyover, std::size_t every) {
    std::printf("%7s %9s %9s %8s %10s %9s %9s %9s %9s\n", "t [s]", "dist [m]", "emis [o]",
                "doppler", "fan f [Hz]", "L [dB]", "LA [dBA]", "PNLT", "peak [Hz]");
    for (std::size_t k = 0; k < flyover.samples.size(); k += every) {
        flyover_sample_t const& s = flyover.samples[k];
        std::printf("%7.2f %9.1f %9.1f %8.3f %10.0f %9.1f %9.1f %9.1f %9.0f\n", s.time, s.distance,
                    s.emission_angle, s.doppler_ratio, s.fan_tone_received, s.oaspl, s.la, s.pnlt,
                    s.loudest_band);
    }
    time_history_metrics_t const& m = flyover.metrics;
    std::printf("\nIntegrated over the flyover (fan blade-passing frequency %.0f Hz emitted):\n",
                flyover.fan_blade_passing_frequency);
    std::printf("  LAmax  %6.1f dB(A)  at t = %6.2f s\n", m.dba_max.level,
                flyover.samples[m.dba_max.index].time);
    std::printf("  PNLTM  %6.1f PNdB   at t = %6.2f s\n", m.perceived.pnltm.level,
                flyover.samples[m.perceived.pnltm.index].time);
    std::printf("  EPNL   %6.1f EPNdB  (duration correction %.1f dB)\n", m.perceived.epnl,
                m.perceived.duration_correction);
    std::printf("  SEL    %6.1f dB(A)\n", m.sel);
}

void write_history_csv(flyover_t const& flyover, std::string const& path) {
    std::ofstream csv(path);
    csv << "time_s,distance_m,emission_angle_deg,doppler_ratio,fan_tone_hz,oaspl_db,la_dba,"
           "pnlt_pndb,loudest_band_hz";
    for (std::size_t i = 0; i < 24; ++i) {
        csv << ",band_" << tob_fc_nominal[16 + i];
    }
    csv << '\n';
    for (flyover_sample_t const& s : flyover.samples) {
        csv << s.time << ',' << s.distance << ',' << s.emission_angle << ',' << s.doppler_ratio
            << ',' << s.fan_tone_received << ',' << s.oaspl << ',' << s.la << ',' << s.pnlt << ','
            << s.loudest_band;
        for (double level : s.total->values) {
            csv << ',' << level;
        }
        csv << '\n';
    }
}

// The spectrogram as gnuplot's image style reads it: time, band index and level, a blank line
// between instants.
void write_spectrogram(flyover_t const& flyover, std::string const& path) {
    std::ofstream dat(path);
    for (flyover_sample_t const& s : flyover.samples) {
        for (std::size_t i = 0; i < s.total->values.size(); ++i) {
            dat << s.time << ' ' << i << ' ' << s.total->values[i] << '\n';
        }
        dat << '\n';
    }
}

bool plot_history(flyover_t const& flyover, std::string const& csv, std::string const& png) {
    std::string const spectrogram = png + ".dat";
    write_spectrogram(flyover, spectrogram);
    std::string const script = png + ".gp";
    std::ofstream gp(script);
    gp << "set terminal pngcairo size 800,600 font 'sans,10'\n"
       << "set output '" << png << "'\n"
       << "set datafile separator ','\n"
       << "set multiplot layout 2,1\n"
       << "set title 'Level flyover at the microphone'\n"
       << "set xlabel 'time from overhead [s]'\nset ylabel 'level'\nset grid\n"
       << "set key top left\n"
       << "set xrange [" << flyover.samples.front().time << ':' << flyover.samples.back().time
       << "]\n"
       << "plot '" << csv << "' every ::1 using 1:6 with lines lw 2 title 'L [dB]', "
       << "'' every ::1 using 1:7 with lines lw 2 title 'LA [dB(A)]', "
       << "'' every ::1 using 1:8 with lines lw 2 title 'PNLT [PNdB]'\n"
       << "set datafile separator whitespace\nunset grid\nunset key\n"
       << "set title 'Third-octave spectrum of the total aircraft [dB]'\n"
       << "set ylabel 'band [Hz]'\n"
       << "set ytics ('50' 0, '100' 3, '200' 6, '400' 9, '800' 12, '1.6k' 15, '3.15k' 18, "
       << "'6.3k' 21, '10k' 23)\n"
       << "set yrange [-0.5:23.5]\nset cbrange [20:*]\nset palette rgb 33,13,10\n"
       << "plot '" << spectrogram << "' using 1:2:3 with image\n"
       << "unset multiplot\n";
    gp.close();
    std::string const command = "gnuplot '" + script + "'";
    return std::system(command.c_str()) == 0;
}
