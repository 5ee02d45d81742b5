// The 216-byte indicators block of result files: the 27 doubles of the integrated indicators,
// in record order, as one element. The block is gathered through the table of places, so the
// bytes never depend on how the compiler lays out the record.

#include <calc-common/results.hpp>

#include "results/indicator_places.hpp"

#include <istream>
#include <ostream>

namespace {

using block_t = std::array<double, VARNO::detail::integrated_places.size()>;

block_t gather(integrated_noise_indicators_t const& record) {
    block_t block{};
    for (std::size_t i = 0; i < block.size(); ++i) {
        block[i] = record.*VARNO::detail::integrated_places[i].field;
    }
    return block;
}

void scatter(block_t const& block, integrated_noise_indicators_t& record) {
    for (std::size_t i = 0; i < block.size(); ++i) {
        record.*VARNO::detail::integrated_places[i].field = block[i];
    }
}

} // namespace

void integrated_noise_indicators_t::write(std::FILE* file) const {
    block_t const block = gather(*this);
    std::fwrite(block.data(), sizeof block, 1, file);
}

bool integrated_noise_indicators_t::read(std::FILE* file) {
    block_t block;
    if (std::fread(block.data(), sizeof block, 1, file) != 1) {
        return false;
    }
    scatter(block, *this);
    return true;
}

std::ostream& operator<<(std::ostream& stream,
                         boost::shared_ptr<integrated_noise_indicators_t> indicators) {
    block_t const block = gather(*indicators);
    return stream.write(reinterpret_cast<char const*>(block.data()), sizeof block);
}

void operator>>(std::istream& stream, boost::shared_ptr<integrated_noise_indicators_t> indicators) {
    block_t block;
    if (stream.read(reinterpret_cast<char*>(block.data()), sizeof block)) {
        scatter(block, *indicators);
    }
}
