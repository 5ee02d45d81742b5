// The footprint for a reader: contour areas, a summary, the grid as CSV and contour maps.
#include "report.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace {

// Sub-samples per cell side of the bilinear surface whose area is measured.
constexpr int samples_per_side = 10;

// Fraction of a cell where the bilinear surface through its corner values is at least
// `threshold`: corners 00 at (x0, y0), 10 at (x1, y0), 01 at (x0, y1), 11 at (x1, y1).
double fraction_at_least(double l00, double l10, double l01, double l11, double threshold) {
    int inside = 0;
    for (int a = 0; a < samples_per_side; ++a) {
        double const u = (a + 0.5) / samples_per_side;
        for (int b = 0; b < samples_per_side; ++b) {
            double const v = (b + 0.5) / samples_per_side;
            double const level = (1.0 - u) * (1.0 - v) * l00 + u * (1.0 - v) * l10 +
                                 (1.0 - u) * v * l01 + u * v * l11;
            inside += level >= threshold ? 1 : 0;
        }
    }
    return static_cast<double>(inside) / (samples_per_side * samples_per_side);
}

// The grid of one indicator for gnuplot: x and y in km and the three indicators, a blank line
// after each row so that gnuplot sees the rows as the scans of a surface.
void write_surface(footprint_t const& footprint, std::string const& path) {
    std::ofstream dat(path);
    for (std::size_t j = 0; j < footprint.y.size(); ++j) {
        for (std::size_t i = 0; i < footprint.x.size(); ++i) {
            observer_levels_t const& at = level_at(footprint, i, j);
            dat << footprint.x[i] / 1000.0 << ' ' << footprint.y[j] / 1000.0 << ' ' << at.sel << ' '
                << at.la_max << ' ' << at.epnl << '\n';
        }
        dat << '\n';
    }
}

// One panel: the indicator in column `column` as colours, its contours every 5 dB in black.
void plot_panel(std::ofstream& gp, std::string const& surface, int column, std::string const& title,
                std::string const& contours) {
    gp << "set contour base\nunset surface\nset view map\n"
       << "set cntrparam levels incremental 50,5,150\n"
       << "set table '" << contours << "'\n"
       << "splot '" << surface << "' using 1:2:" << column << "\n"
       << "unset table\nunset contour\n"
       << "set title '" << title << "'\n"
       << "plot '" << surface << "' using 1:2:" << column << " with image, '" << contours
       << "' using 1:2 with lines lc rgb 'black' lw 0.7\n";
}

} // namespace

double area_inside_sel(footprint_t const& footprint, double threshold) {
    double area = 0.0;
    for (std::size_t j = 0; j + 1 < footprint.y.size(); ++j) {
        for (std::size_t i = 0; i + 1 < footprint.x.size(); ++i) {
            double const cell =
                (footprint.x[i + 1] - footprint.x[i]) * (footprint.y[j + 1] - footprint.y[j]);
            area += cell * fraction_at_least(level_at(footprint, i, j).sel,
                                             level_at(footprint, i + 1, j).sel,
                                             level_at(footprint, i, j + 1).sel,
                                             level_at(footprint, i + 1, j + 1).sel, threshold);
        }
    }
    return area;
}

bool sel_reaches_edge(footprint_t const& footprint, double threshold) {
    std::size_t const columns = footprint.x.size();
    std::size_t const rows = footprint.y.size();
    for (std::size_t j = 0; j < rows; ++j) {
        for (std::size_t i = 0; i < columns; ++i) {
            bool const edge = i == 0 || j == 0 || i + 1 == columns || j + 1 == rows;
            if (edge && level_at(footprint, i, j).sel >= threshold) {
                return true;
            }
        }
    }
    return false;
}

void print_summary(footprint_t const& footprint, footprint_options_t const& options,
                   double seconds) {
    climb_t const& climb = options.climb;
    std::size_t const observers = footprint.levels.size();
    std::printf("Take-off climb from %.0f m to %.0f m over %.0f m at Mach %.2f, engines at "
                "take-off power: %zu trajectory points every %.2f s\n",
                climb.start_altitude, climb.end_altitude, climb.length, climb.mach,
                footprint.trajectory_points, climb.time_step);
    std::printf("%zu x %zu observers over %.0f m x %.0f m, microphones %.1f m above the ground\n",
                footprint.x.size(), footprint.y.size(), footprint.x.back() - footprint.x.front(),
                footprint.y.back() - footprint.y.front(), options.microphone_height);
    std::printf("Calculated on %d threads in %.2f s: %.1f observers/s\n\n", footprint.threads,
                seconds, static_cast<double>(observers) / seconds);
    auto const loudest = [&](double observer_levels_t::*metric) {
        double most = 0.0;
        for (observer_levels_t const& at : footprint.levels) {
            most = std::max(most, at.*metric);
        }
        return most;
    };
    std::printf("Loudest observer: SEL %.1f dB(A), LAmax %.1f dB(A), EPNL %.1f EPNdB\n",
                loudest(&observer_levels_t::sel), loudest(&observer_levels_t::la_max),
                loudest(&observer_levels_t::epnl));
    std::printf("Area inside the SEL contours (bilinear between observers, %d x %d samples per "
                "cell):\n",
                samples_per_side, samples_per_side);
    for (double threshold : {80.0, 85.0, 90.0}) {
        std::printf("  SEL >= %.0f dB(A): %7.2f km2%s\n", threshold,
                    area_inside_sel(footprint, threshold) / 1e6,
                    sel_reaches_edge(footprint, threshold)
                        ? "  (the contour leaves the grid: the area is larger)"
                        : "");
    }
}

void write_grid_csv(footprint_t const& footprint, std::string const& path) {
    std::ofstream csv(path);
    csv << "x_m,y_m,sel_dba,lamax_dba,epnl_epndb\n";
    for (std::size_t j = 0; j < footprint.y.size(); ++j) {
        for (std::size_t i = 0; i < footprint.x.size(); ++i) {
            observer_levels_t const& at = level_at(footprint, i, j);
            csv << footprint.x[i] << ',' << footprint.y[j] << ',' << at.sel << ',' << at.la_max
                << ',' << at.epnl << '\n';
        }
    }
}

bool plot_footprint(footprint_t const& footprint, footprint_options_t const& options,
                    std::string const& png) {
    std::string const surface = png + ".dat";
    write_surface(footprint, surface);
    climb_t const& climb = options.climb;
    std::string const script = png + ".gp";
    std::ofstream gp(script);
    gp << "set terminal pngcairo size 900,1050 font 'sans,10'\n"
       << "set output '" << png << "'\n"
       << "set multiplot layout 3,1 title 'Take-off climb from " << climb.start_altitude << " m to "
       << climb.end_altitude << " m over " << climb.length / 1000.0
       << " km: contours every 5 dB, flight track in white'\n"
       << "set size ratio -1\nunset key\n"
       << "set xlabel 'x along the track [km]'\nset ylabel 'y [km]'\n"
       << "set xrange [" << footprint.x.front() / 1000.0 << ':' << footprint.x.back() / 1000.0
       << "]\nset yrange [" << footprint.y.front() / 1000.0 << ':' << footprint.y.back() / 1000.0
       << "]\nset cbrange [60:110]\nset palette rgb 33,13,10\n"
       << "set arrow from 0,0 to " << climb.length / 1000.0
       << ",0 nohead front lw 2 lc rgb 'white'\n";
    plot_panel(gp, surface, 3, "SEL [dB(A)]", png + ".sel.contours");
    plot_panel(gp, surface, 4, "LAmax [dB(A)]", png + ".lamax.contours");
    plot_panel(gp, surface, 5, "EPNL [EPNdB]", png + ".epnl.contours");
    gp << "unset multiplot\n";
    gp.close();
    std::string const command = "gnuplot '" + script + "'";
    return std::system(command.c_str()) == 0;
}
