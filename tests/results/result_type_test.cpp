#include <calc-common/results.hpp>

#include "result_test_ids.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

using namespace result_test;

namespace {

using result_ptr = boost::shared_ptr<result_type_t>;

std::size_t signed_hash(std::int64_t value) {
    return static_cast<std::size_t>(value);
}

} // namespace

TEST(ResultType, WorkedHashes) {
    std::vector<std::pair<result_ptr, std::size_t>> const rows = {
        {result_type_t::create_engine_source(source(3), 0, true, component(5)), 10000},
        {result_type_t::create_engine_source_component(source(3), 2, component(5)), 10205},
        {result_type_t::create_airframe_source(source(12), 3), 20003},
        {result_type_t::create_total_engine(), 30000},
        {result_type_t::create_total_by_source_type(source(12)), 30512},
        {result_type_t::create_total_engine_data(1), 30601},
        {result_type_t::create_genepass(genepass_ground_reflection), 40002},
        {boost::make_shared<result_type_t>(), 39999},
        // Identity: a whole source ignores its component, component 0 is the whole source, the
        // source type plays no part, and engine source 100 runs into the airframe range.
        {result_type_t::create_engine_source(source(1), 0, true, component(9)), 10000},
        {result_type_t::create_engine_source_component(source(1), 0, component(0)), 10000},
        {result_type_t::create_engine_source_component(source(1), 0, component(9)), 10009},
        {result_type_t::create_engine_source(source(0), 100, true, component(0)), 20000},
        // 32-bit signed arithmetic, sign-extended; overflow wraps before the extension.
        {result_type_t::create_engine_source(source(0), -101, true, component(0)),
         signed_hash(-100)},
        {result_type_t::create_airframe_source(source(12), -20001), signed_hash(-1)},
        {result_type_t::create_airframe_source(source(12), 2147483647),
         signed_hash(std::int64_t{-2147483647 - 1} + 19999)},
    };
    for (auto const& row : rows) {
        EXPECT_EQ(row.first->hash(), row.second) << row.second;
    }
    // Equality is on the hash alone.
    EXPECT_TRUE(*result_type_t::create_airframe_source(source(12), 4) ==
                *result_type_t::create_airframe_source(source(13), 4));
    EXPECT_FALSE(*rows[0].first != *rows[8].first);
    EXPECT_TRUE(*rows[0].first != *rows[1].first);
    // Only the genePass factory clears whole_source outside the engine family.
    EXPECT_FALSE(result_type_t::create_genepass(genepass_total_aircraft_tones)->whole_source);
    EXPECT_TRUE(result_type_t::create_total_aircraft()->whole_source);
}

TEST(ResultType, OrderIsUnsignedHashWithNullNeverLess) {
    std::vector<result_ptr> const ordered = {
        result_type_t::create_engine_source(source(0), 0, true, component(0)),
        result_type_t::create_engine_source_component(source(0), 0, component(99)),
        result_type_t::create_engine_source(source(0), 99, true, component(0)),
        result_type_t::create_airframe_source(source(12), 9999),
        result_type_t::create_total_engine(),
        result_type_t::create_total_engine_data(99),
        result_type_t::create_genepass(genepass_total_aircraft_broadband),
        // A negative hash, sign-extended, sorts after every positive one.
        result_type_t::create_engine_source(source(0), -101, true, component(0)),
    };
    for (std::size_t i = 0; i + 1 < ordered.size(); ++i) {
        EXPECT_TRUE(result_type_t::less_than(ordered[i], ordered[i + 1])) << i;
        EXPECT_FALSE(result_type_t::less_than(ordered[i + 1], ordered[i])) << i;
    }
    EXPECT_FALSE(result_type_t::less_than(ordered[3], ordered[3]));

    result_ptr const held = result_type_t::create_total_aircraft();
    result_ptr const empty;
    EXPECT_FALSE(result_type_t::less_than(empty, held) || result_type_t::less_than(held, empty) ||
                 result_type_t::less_than(empty, empty));
    EXPECT_EQ(held.use_count(), 1);
}
