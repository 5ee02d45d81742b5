// The spectrum block of result files: the levels as they lie in memory, and nothing else. The
// reader must already hold a spectrum on the right grid, since the block does not say its length.

#include <calc-common/spectra.hpp>

#include <istream>
#include <ostream>

namespace {

std::size_t frequency_count(spectrum_t const& spectrum) {
    return spectrum.frequency_range ? spectrum.frequency_range->size() : 0;
}

} // namespace

// The whole block is one element, so a block of no level is an element of size 0, which is
// never reported as transferred; it is not handed to the C library, whose buffer must exist.
bool spectrum_t::write(std::FILE* file) const {
    return !values.empty() &&
           std::fwrite(values.data(), values.size() * sizeof(double), 1, file) == 1;
}

bool spectrum_t::read(std::FILE* file) {
    values.resize(frequency_count(*this));
    return !values.empty() &&
           std::fread(values.data(), values.size() * sizeof(double), 1, file) == 1;
}

std::ostream& operator<<(std::ostream& stream, boost::shared_ptr<spectrum_t> spectrum) {
    for (double const& value : spectrum->values) {
        stream.write(reinterpret_cast<char const*>(&value), sizeof value);
    }
    return stream;
}

void operator>>(std::istream& stream, boost::shared_ptr<spectrum_t> spectrum) {
    if (!spectrum) {
        return;
    }
    spectrum->values.resize(frequency_count(*spectrum));
    for (double& value : spectrum->values) {
        stream.read(reinterpret_cast<char*>(&value), sizeof value);
    }
}
