// What the footprint shows a reader: the areas inside SEL contours, a summary, a CSV of the grid
// and, through gnuplot, contour maps of each indicator over the ground.
#ifndef VARNO_EXAMPLES_FOOTPRINT_REPORT_HPP
#define VARNO_EXAMPLES_FOOTPRINT_REPORT_HPP

#include "footprint.hpp"

#include <string>

/// Area of the ground inside the SEL contour of `threshold` dB(A), m²: SEL is taken as
/// bilinear between the four observers of each grid cell and sampled 10 x 10 times per cell.
double area_inside_sel(footprint_t const& footprint, double threshold);

/// True when an observer on the edge of the grid hears an SEL of `threshold` dB(A) or more: the
/// contour leaves the grid, and the area inside it is larger than the grid shows.
bool sel_reaches_edge(footprint_t const& footprint, double threshold);

/// Prints the scenario, the time taken, the observers per second and the areas inside the 80,
/// 85 and 90 dB(A) SEL contours.
void print_summary(footprint_t const& footprint, footprint_options_t const& options,
                   double seconds);

/// Writes the grid as CSV: one row per observer, x and y in m, then SEL, LAmax and EPNL.
void write_grid_csv(footprint_t const& footprint, std::string const& path);

/// Draws contour maps of SEL, LAmax and EPNL over the ground, with the flight track, into `png`
/// with gnuplot; false when it fails.
bool plot_footprint(footprint_t const& footprint, footprint_options_t const& options,
                    std::string const& png);

#endif // VARNO_EXAMPLES_FOOTPRINT_REPORT_HPP
