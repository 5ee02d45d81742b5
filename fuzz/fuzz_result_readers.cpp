// Result blocks read from arbitrary bytes, as from a file cut short or written by another
// program. The first bytes choose the block and the grids it is read on; the rest is the file.
// Where a block has both a FILE* and a stream reader, the two must read the same values.

#include "fuzz_input.hpp"

#include <calc-common/results.hpp>
#include <calc-common/spectra.hpp>

#include <boost/make_shared.hpp>

#include <cstdio>
#include <sstream>
#include <string>

using fuzzing::fuzz_input;

namespace {

constexpr std::size_t max_lines = 40;

// A narrowband grid of up to 40 lines; no line at all is the empty grid a reader may meet.
boost::shared_ptr<frequency_range_t> grid_of(std::size_t lines) {
    if (lines == 0)
        return boost::make_shared<frequency_range_t>();
    return frequency_range_t::create_nb(10.0, 10.0 * lines, 10.0);
}

class memory_file {
public:
    explicit memory_file(std::string& bytes)
        : file_(bytes.empty() ? nullptr : fmemopen(&bytes[0], bytes.size(), "rb")) {}
    ~memory_file() {
        if (file_ != nullptr)
            std::fclose(file_);
    }
    memory_file(memory_file const&) = delete;
    memory_file& operator=(memory_file const&) = delete;
    std::FILE* get() const { return file_; }

private:
    std::FILE* file_;
};

void read_spectrum(std::string& bytes, std::size_t lines) {
    auto const grid = grid_of(lines);
    auto from_file = boost::make_shared<spectrum_t>(grid);
    bool read = false;
    memory_file file(bytes);
    if (file.get() != nullptr)
        read = from_file->read(file.get());
    auto from_stream = boost::make_shared<spectrum_t>(grid);
    std::istringstream stream(bytes, std::ios::binary);
    stream >> from_stream;
    if (!read)
        return;
    for (std::size_t i = 0; i < from_file->values.size(); ++i)
        if (std::memcmp(&from_file->values[i], &from_stream->values[i], sizeof(double)) != 0)
            fuzzing::mismatch("spectrum read from a file and a stream", i, from_file->values[i],
                              from_stream->values[i]);
}

void read_indicators(std::string& bytes) {
    auto const type = result_type_t::create_total_aircraft();
    auto from_file = boost::make_shared<integrated_noise_indicators_t>(type);
    bool read = false;
    memory_file file(bytes);
    if (file.get() != nullptr)
        read = from_file->read(file.get());
    auto from_stream = boost::make_shared<integrated_noise_indicators_t>(type);
    std::istringstream stream(bytes, std::ios::binary);
    stream >> from_stream;
    // The block is the record's leading 27 doubles, oaspl_max to nef.
    std::size_t const block = 27 * sizeof(double);
    if (read && std::memcmp(from_file.get(), from_stream.get(), block) != 0)
        fuzzing::mismatch("indicators read from a file and a stream", 0, from_file->oaspl_max,
                          from_stream->oaspl_max);
}

void read_directional(std::string& bytes, std::size_t first_lines, std::size_t second_lines) {
    // The record read into holds every spectrum the flags may name, as a result tree makes it.
    auto record = boost::make_shared<directional_result_noise_t>(
        result_type_t::create_total_aircraft(), grid_of(first_lines), grid_of(second_lines), true);
    memory_file file(bytes);
    if (file.get() != nullptr)
        record->read(file.get());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz_input in(data, size);
    std::uint8_t const block = in.byte() % 3;
    std::size_t const first_lines = in.count(max_lines);
    std::size_t const second_lines = in.count(max_lines);
    std::size_t const header = std::min<std::size_t>(size, 3);
    std::string bytes(reinterpret_cast<char const*>(data) + header, size - header);
    switch (block) {
    case 0:
        read_spectrum(bytes, first_lines);
        break;
    case 1:
        read_indicators(bytes);
        break;
    default:
        read_directional(bytes, first_lines, second_lines);
        break;
    }
    return 0;
}
