// The result records of every point in one binary file, read back to check the round trip. The
// library writes and reads one record at a time; the layout of the whole file is the caller's:
// here simply every point's records one after the other, in the order get_all lists them.
#include "pieces.hpp"

#include <cstdio>
#include <memory>

namespace {

using records_t = std::vector<boost::shared_ptr<directional_result_noise_t>>;
using file_ptr = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// Every prepared record of every point of a simulation, point after point.
records_t all_records(simulation_t const& simulation) {
    records_t all;
    for (auto const& point : simulation.result->points) {
        point->directional->get_all(all);
    }
    records_t prepared;
    for (auto const& record : all) {
        if (record) {
            prepared.push_back(record);
        }
    }
    return prepared;
}

bool same_spectrum(boost::shared_ptr<spectrum_t> const& a, boost::shared_ptr<spectrum_t> const& b) {
    return (!a && !b) || (a && b && a->values == b->values);
}

bool same_levels(directional_result_noise_t const& a, directional_result_noise_t const& b) {
    return same_spectrum(a.total_tob, b.total_tob) &&
           same_spectrum(a.first_native, b.first_native) &&
           same_spectrum(a.first_tob, b.first_tob) && a.closing_level_1 == b.closing_level_1;
}

} // namespace

bool round_trip_results(flyover_t const& flyover, flyover_options_t const& options,
                        std::string const& path) {
    records_t const written = all_records(*flyover.simulation);
    {
        file_ptr file(std::fopen(path.c_str(), "wb"), &std::fclose);
        if (!file) {
            return false;
        }
        for (auto const& record : written) {
            record->write(file.get(), flyover.simulation);
        }
        if (std::ferror(file.get())) {
            return false;
        }
    }

    // The same scenario prepared afresh gives records on the same grids, still silent.
    auto const fan_grid = make_fan_grid();
    auto const fresh = build_flyover_simulation(options, fan_grid);
    records_t const read = all_records(*fresh);
    file_ptr file(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (!file || read.size() != written.size()) {
        return false;
    }
    bool same = true;
    for (std::size_t i = 0; i < read.size(); ++i) {
        read[i]->read(file.get());
        same = same && same_levels(*written[i], *read[i]);
    }
    // Nothing may be left over once every record is read.
    return same && std::fgetc(file.get()) == EOF;
}
