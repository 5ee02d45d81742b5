#include <calc-common/spectra.hpp>

#include <boost/make_shared.hpp>

namespace {

// A column list copied from the caller's array, or silent zeros when there is none.
std::vector<double> column_values(std::size_t count, double const* source) {
    if (source == nullptr) {
        return std::vector<double>(count, 0.0);
    }
    return std::vector<double>(source, source + count);
}

} // namespace

noise_field_column_range_t::noise_field_column_range_t() = default;

noise_field_column_range_t::noise_field_column_range_t(std::size_t count, double* distances,
                                                       double* angles, double* column_data)
    : distances(column_values(count, distances))
    , angles(column_values(count, angles))
    , column_data(column_values(count, column_data)) {}

boost::shared_ptr<noise_field_column_range_t>
noise_field_column_range_t::from_angles(std::vector<double>& angles) {
    // Column counts have always been carried as a 32-bit int here.
    int const count = static_cast<int>(angles.size());
    return boost::make_shared<noise_field_column_range_t>(static_cast<std::size_t>(count), nullptr,
                                                          angles.data(), nullptr);
}

std::size_t noise_field_column_range_t::size() const {
    return angles.size();
}

boost::shared_ptr<noise_field_column_range_t> noise_field_column_range_t::clone() const {
    return boost::make_shared<noise_field_column_range_t>(*this);
}
