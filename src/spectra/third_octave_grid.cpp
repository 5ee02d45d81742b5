#include <calc-common/spectra.hpp>

#include "frame/bands.hpp"

#include <boost/make_shared.hpp>

using namespace VARNO::detail;

// The tables are data, not formulas: these digits are the values callers rely on.

double const tob_fc_nominal[50] = {
    1.25,  1.6,   2,     2.5,   3.15,  4,     5,     6.3,   8,     10,    12.5,  16,   20,
    25,    31.5,  40,    50,    63,    80,    100,   125,   160,   200,   250,   315,  400,
    500,   630,   800,   1000,  1250,  1600,  2000,  2500,  3150,  4000,  5000,  6300, 8000,
    10000, 12500, 16000, 20000, 25000, 31500, 40000, 50000, 63000, 80000, 100000};

double const tob_fl[51] = {
    1.12201845430196, 1.41253754462275, 1.77827941003892, 2.23872113856834, 2.81838293126445,
    3.54813389233576, 4.46683592150963, 5.62341325190349, 7.07945784384138, 8.91250938133746,
    11.2201845430196, 14.1253754462275, 17.7827941003892, 22.3872113856834, 28.1838293126445,
    35.4813389233575, 44.6683592150963, 56.2341325190349, 70.7945784384138, 89.1250938133746,
    112.201845430196, 141.253754462275, 177.827941003892, 223.872113856834, 281.838293126445,
    354.813389233576, 446.683592150963, 562.341325190349, 707.945784384138, 891.250938133746,
    1122.01845430196, 1412.53754462275, 1778.27941003892, 2238.72113856834, 2818.38293126445,
    3548.13389233575, 4466.83592150963, 5623.41325190349, 7079.45784384138, 8912.50938133746,
    11220.1845430196, 14125.3754462275, 17782.7941003892, 22387.2113856834, 28183.8293126445,
    35481.3389233575, 44668.3592150963, 56234.1325190349, 70794.5784384138, 89125.0938133745,
    112201.845430196};

namespace {

// The 24-band grid: the nominal centres of bands 17 (50 Hz) to 40 (10 kHz).
boost::shared_ptr<frequency_range_t> make_tob_grid() {
    double const* const first = tob_fc_nominal + (tob_first_band - 1);
    boost::shared_ptr<frequency_range_t> grid = boost::make_shared<frequency_range_t>();
    grid->frequencies.assign(first, first + tob_band_count);
    grid->count = grid->frequencies.size();
    return grid;
}

} // namespace

boost::shared_ptr<frequency_range_t> tob_frequency_range_ptr = make_tob_grid();
