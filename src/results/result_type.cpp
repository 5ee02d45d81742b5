// Identity of a result: factories, hash, equality and order.

#include <calc-common/results.hpp>

#include <boost/make_shared.hpp>

namespace {

// Each family of results owns its own block of hash values.
constexpr std::uint32_t engine_source_base = 100;
constexpr std::uint32_t airframe_source_base = 20000;
constexpr std::uint32_t total_type_base = 300;
constexpr std::uint32_t genepass_base = 40000;
constexpr std::uint32_t block_width = 100;

// Unset fields of a total.
constexpr auto no_source_type = static_cast<source_type_t>(-1);
constexpr int no_engine = -1;

// The identity is defined in 32-bit two's-complement arithmetic; unsigned arithmetic gives the
// same bits without overflow being undefined, then the result is read back as signed.
std::size_t sign_extend(std::uint32_t bits) {
    return static_cast<std::size_t>(static_cast<std::int64_t>(static_cast<std::int32_t>(bits)));
}

std::uint32_t bits_of(int value) {
    return static_cast<std::uint32_t>(value);
}

} // namespace

boost::shared_ptr<result_type_t> result_type_t::create_airframe_source(source_type_t type,
                                                                       int index) {
    auto result = boost::make_shared<result_type_t>();
    result->airframe_source = true;
    result->source_index = index;
    result->source_type = type;
    return result;
}

boost::shared_ptr<result_type_t> result_type_t::create_engine_source(source_type_t type, int index,
                                                                     bool whole,
                                                                     noise_component_t component) {
    auto result = boost::make_shared<result_type_t>();
    result->engine_source = true;
    result->source_index = index;
    result->whole_source = whole;
    result->component = component;
    result->source_type = type;
    return result;
}

boost::shared_ptr<result_type_t>
result_type_t::create_engine_source_component(source_type_t type, int index,
                                              noise_component_t component) {
    return create_engine_source(type, index, false, component);
}

boost::shared_ptr<result_type_t> result_type_t::create_genepass(genepass_result_type_t type) {
    auto result = boost::make_shared<result_type_t>();
    result->genepass = true;
    result->genepass_type = type;
    result->whole_source = false;
    return result;
}

boost::shared_ptr<result_type_t> result_type_t::create_total(total_type_t total, source_type_t type,
                                                             int engine) {
    auto result = boost::make_shared<result_type_t>();
    result->total = true;
    result->total_type = total;
    result->source_type = type;
    result->engine_index = engine;
    return result;
}

boost::shared_ptr<result_type_t> result_type_t::create_total_engine() {
    return create_total(total_engine, no_source_type, no_engine);
}

boost::shared_ptr<result_type_t> result_type_t::create_total_airfoil() {
    return create_total(total_airfoil, no_source_type, no_engine);
}

boost::shared_ptr<result_type_t> result_type_t::create_total_landing_gear() {
    return create_total(total_landing_gear, no_source_type, no_engine);
}

boost::shared_ptr<result_type_t> result_type_t::create_total_airframe() {
    return create_total(total_airframe, no_source_type, no_engine);
}

boost::shared_ptr<result_type_t> result_type_t::create_total_aircraft() {
    return create_total(total_aircraft, no_source_type, no_engine);
}

boost::shared_ptr<result_type_t> result_type_t::create_total_by_source_type(source_type_t type) {
    return create_total(total_by_source_type, type, no_engine);
}

boost::shared_ptr<result_type_t> result_type_t::create_total_engine_data(int engine) {
    return create_total(total_engine_data, no_source_type, engine);
}

std::size_t result_type_t::hash() const {
    if (engine_source) {
        std::uint32_t const whole = (bits_of(source_index) + engine_source_base) * block_width;
        return sign_extend(whole_source ? whole : whole + bits_of(component));
    }
    if (airframe_source) {
        return sign_extend(bits_of(source_index) + airframe_source_base);
    }
    if (total) {
        std::uint32_t const engine = engine_index == no_engine ? 0u : bits_of(engine_index);
        std::uint32_t const source = total_type == total_by_source_type ? bits_of(source_type) : 0u;
        return sign_extend((bits_of(total_type) + total_type_base) * block_width + engine + source);
    }
    // The genePass flag itself is not read: a record of no family lands here too.
    return sign_extend(bits_of(genepass_type) + genepass_base);
}

bool result_type_t::operator==(result_type_t const& other) const {
    return hash() == other.hash();
}

bool result_type_t::operator!=(result_type_t const& other) const {
    return !(*this == other);
}

bool result_type_t::less_than(boost::shared_ptr<result_type_t> a,
                              boost::shared_ptr<result_type_t> b) {
    if (!a || !b) {
        return false;
    }
    return static_cast<std::uint64_t>(a->hash()) < static_cast<std::uint64_t>(b->hash());
}

bool result_type_t::is_airframe_source() const {
    return airframe_source;
}
