// A level flyover heard by a microphone above the ground, calculated end to end with the
// library: scenario and result tree, source spectra, Doppler shift, propagation, totals, the
// indicators of the flight, a results file read back, a log, a table, a CSV and a plot.
#include "pieces.hpp"

#include <calc-common/LogFileWriter>

#include <boost/filesystem.hpp>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

namespace {

struct command_line_t {
    flyover_options_t flyover;
    std::string output = "flyover-output";
    bool plot = false;
};

std::map<std::string, ground_reflection_method_t> const grounds = {
    {"perfect", ground_perfect},
    {"grass", ground_delany_bazley_grass},
    {"asphalt", ground_delany_bazley_asphalt},
    {"certification", ground_delany_bazley_certification}};

void print_help() {
    std::printf(
        "usage: flyover [options]\n"
        "  --altitude M      height of the level flight path, m (120)\n"
        "  --mach M          flight Mach number (0.25)\n"
        "  --mic-height M    microphone height above the ground, m (1.2)\n"
        "  --ground NAME     perfect, grass, asphalt or certification (grass)\n"
        "  --points N        calculation points over the 20 s around overhead (100)\n"
        "  --output DIR      folder of the results file, CSV, log and plot (flyover-output)\n"
        "  --plot            draw DIR/flyover.png with gnuplot\n"
        "  --help            this text\n");
}

// Reads the command line; false, with a message, for anything it does not understand.
bool parse(int argc, char** argv, command_line_t& line) {
    for (int i = 1; i < argc; ++i) {
        std::string const option = argv[i];
        bool const has_value = i + 1 < argc;
        if (option == "--plot") {
            line.plot = true;
        } else if (option == "--altitude" && has_value) {
            line.flyover.altitude = std::atof(argv[++i]);
        } else if (option == "--mach" && has_value) {
            line.flyover.mach = std::atof(argv[++i]);
        } else if (option == "--mic-height" && has_value) {
            line.flyover.microphone_height = std::atof(argv[++i]);
        } else if (option == "--points" && has_value) {
            line.flyover.point_count = static_cast<std::size_t>(std::atol(argv[++i]));
        } else if (option == "--output" && has_value) {
            line.output = argv[++i];
        } else if (option == "--ground" && has_value && grounds.count(argv[i + 1]) != 0) {
            line.flyover.ground = grounds.at(argv[++i]);
        } else {
            std::fprintf(stderr, "flyover: cannot use '%s' (see --help)\n", option.c_str());
            return false;
        }
    }
    flyover_options_t const& f = line.flyover;
    if (f.point_count < 2 || !(f.altitude > f.microphone_height) || !(f.microphone_height > 0.0) ||
        !(f.mach > 0.0 && f.mach < 0.9)) {
        std::fprintf(stderr, "flyover: need 2 points or more, a microphone above the ground and "
                             "below the flight, and a Mach number between 0 and 0.9\n");
        return false;
    }
    return true;
}

void log(VARNO::LogFileWriter::SeverityLevel severity, std::string const& text) {
    VARNO::LogFileWriter::AddToLogFile(severity, text);
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
    boost::filesystem::create_directories(line.output);
    std::string const out = line.output + "/";
    VARNO::LogFileWriter::init(true, VARNO::LogFileWriter::notification, out + "log", 1.0);
    log(VARNO::LogFileWriter::notification, "flyover started");

    auto const start = std::chrono::steady_clock::now();
    flyover_t const flyover = run_flyover(line.flyover);
    std::chrono::duration<double> const elapsed = std::chrono::steady_clock::now() - start;

    std::printf("Level flyover at %.0f m, Mach %.2f, microphone %.1f m above the ground, %zu "
                "points (calculated in %.3f s)\n\n",
                line.flyover.altitude, line.flyover.mach, line.flyover.microphone_height,
                line.flyover.point_count, elapsed.count());
    print_report(flyover, std::max<std::size_t>(1, flyover.samples.size() / 20));
    log(VARNO::LogFileWriter::notification,
        "flyover calculated: EPNL " + std::to_string(flyover.metrics.perceived.epnl) + " EPNdB");

    bool const same = round_trip_results(flyover, line.flyover, out + "flyover.results");
    std::printf("\nResults file %sflyover.results: %s\n", out.c_str(),
                same ? "read back unchanged" : "DIFFERS when read back");
    log(same ? VARNO::LogFileWriter::notification : VARNO::LogFileWriter::error,
        same ? "results file read back unchanged" : "results file differs when read back");

    write_history_csv(flyover, out + "flyover.csv");
    std::printf("Time history: %sflyover.csv; log: %slog/\n", out.c_str(), out.c_str());
    if (line.plot) {
        bool const drawn = plot_history(flyover, out + "flyover.csv", out + "flyover.png");
        std::printf("Plot: %s\n", drawn ? (out + "flyover.png").c_str() : "gnuplot failed");
    }
    return same ? 0 : 1;
}
