// The switches that say which indicators a calculation produces: defaults and deep copies.

#include <calc-common/results.hpp>

#include <boost/make_shared.hpp>

namespace {

// A switch record that a caller has dropped stays dropped in the copy.
template <class Record>
boost::shared_ptr<Record> clone_of(boost::shared_ptr<Record> const& record) {
    return record ? record->clone() : boost::shared_ptr<Record>();
}

} // namespace

indicators_flag_t::indicators_flag_t(bool value)
    : flag_0(value)
    , flag_1(value)
    , flag_2(value)
    , flag_3(value)
    , flag_4(value)
    , flag_5(value)
    , flag_6(value) {}

boost::shared_ptr<indicators_flag_t> indicators_flag_t::clone() const {
    return boost::make_shared<indicators_flag_t>(*this);
}

instantaneous_indicators_flag_t::instantaneous_indicators_flag_t()
    : first_flags(boost::make_shared<indicators_flag_t>(false))
    , second_flags(boost::make_shared<indicators_flag_t>(false))
    , third_flags(boost::make_shared<indicators_flag_t>(true)) {}

boost::shared_ptr<instantaneous_indicators_flag_t> instantaneous_indicators_flag_t::clone() const {
    auto copy = boost::make_shared<instantaneous_indicators_flag_t>(*this);
    copy->first_flags = clone_of(first_flags);
    copy->second_flags = clone_of(second_flags);
    copy->third_flags = clone_of(third_flags);
    return copy;
}

boost::shared_ptr<noise_exposure_metrics_flags_t> noise_exposure_metrics_flags_t::clone() const {
    return boost::make_shared<noise_exposure_metrics_flags_t>(*this);
}

noise_indicators_t::noise_indicators_t()
    : instantaneous(boost::make_shared<instantaneous_indicators_flag_t>())
    , exposure_metrics(boost::make_shared<noise_exposure_metrics_flags_t>()) {}

boost::shared_ptr<noise_indicators_t> noise_indicators_t::clone() const {
    auto copy = boost::make_shared<noise_indicators_t>(*this);
    copy->instantaneous = clone_of(instantaneous);
    copy->exposure_metrics = clone_of(exposure_metrics);
    return copy;
}
