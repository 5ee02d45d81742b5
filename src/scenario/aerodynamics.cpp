// Aerodynamic profiles and the data of their airframe noise models.

#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>

aero_profile_t::aero_profile_t()
    : brooks(boost::make_shared<brooks_model_data_t>()) {
    for (auto& data : amiet) {
        data = boost::make_shared<amiet_model_data_t>();
    }
    for (auto& data : howe) {
        data = boost::make_shared<howe_model_data_t>();
    }
}

void aero_profile_t::add_brooks_spoilers(double first, double second, double third) {
    auto data = boost::make_shared<brooks_model_data_t>();
    data->value_1 = first;
    data->value_2 = second;
    data->value_3 = third;
    brooks_spoilers.push_back(data);
}

boost::shared_ptr<aero_profile_t> aero_data_t::add_profile() {
    profiles.push_back(boost::make_shared<aero_profile_t>());
    return profiles.back();
}

void aero_data_t::clear_profiles() {
    profiles.clear();
}
