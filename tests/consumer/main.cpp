// A user of the installed package: two spectra added by energy, the library's exception caught
// by its type when the grids differ, and one record written to the shared log.
#include <calc-common/calc-common.hpp>

#include <boost/make_shared.hpp>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

// Logs one warning into a fresh folder and looks for its line in the log file there.
static bool log_record_reaches_file() {
    namespace fs = std::filesystem;
    fs::path const dir = fs::temp_directory_path() /
                         ("varno-consumer-log-" + std::to_string(std::random_device{}()));
    VARNO::LogFileWriter::init(true, VARNO::LogFileWriter::notification, dir.string(), 1.0);
    VARNO::LogFileWriter::AddToLogFile(VARNO::LogFileWriter::warning, "consumer was here");
    bool found = false;
    for (auto const& entry : fs::directory_iterator(dir)) {
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            found = found || line.find(" :  <warning>  consumer was here") != std::string::npos;
        }
    }
    fs::remove_all(dir);
    std::printf("log record %s\n", found ? "found in the log file" : "missing");
    return found;
}

int main() {
    if (!log_record_reaches_file()) {
        return 1;
    }
    boost::shared_ptr<spectrum_t> a = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> b = spectrum_t::create_tob();
    a->fill_with(50.0);
    b->fill_with(50.0);
    spectrum_t::log_add(a, b, a);
    std::printf("50 dB + 50 dB = %.4f dB\n", a->values[0]);

    boost::shared_ptr<spectrum_t> other =
        boost::make_shared<spectrum_t>(tob_frequency_range_ptr->clone());
    try {
        spectrum_t::log_add(a, other, a);
    } catch (varno_calc_error const& error) {
        std::printf("caught varno_calc_error: %s\n", error.what());
        return a->values[0] > 53.01 && a->values[0] < 53.02 ? 0 : 1;
    }
    return 1;
}
