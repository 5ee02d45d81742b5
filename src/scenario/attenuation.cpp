// Attenuation records and their copies.

#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>

boost::shared_ptr<attenuation_t> attenuation_t::clone() const {
    return boost::make_shared<attenuation_t>(*this);
}

boost::shared_ptr<attenuation_list_t> attenuation_list_t::clone() const {
    auto copy = boost::make_shared<attenuation_list_t>();
    copy->attenuations.reserve(attenuations.size());
    for (auto const& attenuation : attenuations) {
        copy->attenuations.push_back(attenuation->clone());
    }
    return copy;
}

spectrum_attenuation_t::spectrum_attenuation_t(std::size_t const& n)
    : attenuation_spectra_1(n)
    , attenuation_spectra_2(n) {}
