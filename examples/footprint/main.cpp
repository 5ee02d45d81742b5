// The noise footprint of a take-off climb over a grid of observers, calculated on all cores:
// a summary with the areas inside SEL contours, the grid as CSV and contour maps.
#include "report.hpp"

#include <boost/filesystem.hpp>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>

namespace {

struct command_line_t {
    footprint_options_t footprint;
    std::string output = "footprint-output";
    bool plot = false;
};

void print_help() {
    std::printf("usage: footprint [options]\n"
                "  --extent X,Y      grid extent along and across the track, m (12000,4000)\n"
                "  --step X,Y        grid step along and across the track, m (200,100)\n"
                "  --threads N       threads sharing the observers, 0 for all cores (0)\n"
                "  --time-step S     s between the points of the trajectory (0.5)\n"
                "  --output DIR      folder of the CSV and plot (footprint-output)\n"
                "  --plot            draw DIR/footprint.png with gnuplot\n"
                "  --help            this text\n");
}

// Reads "X,Y" into two numbers; false unless both are there.
bool read_pair(std::string const& text, double& x, double& y) {
    std::size_t const comma = text.find(',');
    if (comma == std::string::npos) {
        return false;
    }
    char* end = nullptr;
    x = std::strtod(text.c_str(), &end);
    bool const first = end == text.c_str() + comma;
    y = std::strtod(text.c_str() + comma + 1, &end);
    return first && *end == '\0' && end != text.c_str() + comma + 1;
}

// Reads the command line; false, with a message, for anything it does not understand.
bool parse(int argc, char** argv, command_line_t& line) {
    footprint_options_t& f = line.footprint;
    for (int i = 1; i < argc; ++i) {
        std::string const option = argv[i];
        bool const has_value = i + 1 < argc;
        if (option == "--plot") {
            line.plot = true;
        } else if (option == "--extent" && has_value &&
                   read_pair(argv[i + 1], f.extent_x, f.extent_y)) {
            ++i;
        } else if (option == "--step" && has_value && read_pair(argv[i + 1], f.step_x, f.step_y)) {
            ++i;
        } else if (option == "--threads" && has_value) {
            f.threads = std::atoi(argv[++i]);
        } else if (option == "--time-step" && has_value) {
            f.climb.time_step = std::atof(argv[++i]);
        } else if (option == "--output" && has_value) {
            line.output = argv[++i];
        } else {
            std::fprintf(stderr, "footprint: cannot use '%s' (see --help)\n", option.c_str());
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        if (std::string(argv[i]) == "--help") {
            print_help();
            return 0;
        }
    }
    command_line_t line;
    if (!parse(argc, argv, line)) {
        return 2;
    }
    auto const start = std::chrono::steady_clock::now();
    footprint_t footprint;
    try {
        footprint = run_footprint(line.footprint);
    } catch (std::invalid_argument const& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
    std::chrono::duration<double> const elapsed = std::chrono::steady_clock::now() - start;
    print_summary(footprint, line.footprint, elapsed.count());

    boost::filesystem::create_directories(line.output);
    std::string const out = line.output + "/";
    write_grid_csv(footprint, out + "footprint.csv");
    std::printf("\nGrid: %sfootprint.csv\n", out.c_str());
    if (line.plot) {
        bool const drawn = plot_footprint(footprint, line.footprint, out + "footprint.png");
        std::printf("Plot: %s\n", drawn ? (out + "footprint.png").c_str() : "gnuplot failed");
        return drawn ? 0 : 1;
    }
    return 0;
}
