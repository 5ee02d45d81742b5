#include <calc-common/results.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

using result_ptr = boost::shared_ptr<result_type_t>;

source_type_t source(int value) {
    return static_cast<source_type_t>(value);
}

noise_component_t component(int value) {
    return static_cast<noise_component_t>(value);
}

} // namespace

TEST(ResultType, WorkedHashes) {
    EXPECT_EQ(result_type_t::create_engine_source(source(3), 0, true, component(5))->hash(),
              10000u);
    EXPECT_EQ(result_type_t::create_engine_source_component(source(3), 2, component(5))->hash(),
              10205u);
    EXPECT_EQ(result_type_t::create_airframe_source(source(12), 3)->hash(), 20003u);
    EXPECT_EQ(result_type_t::create_total_engine()->hash(), 30000u);
    EXPECT_EQ(result_type_t::create_total_airfoil()->hash(), 30100u);
    EXPECT_EQ(result_type_t::create_total_landing_gear()->hash(), 30200u);
    EXPECT_EQ(result_type_t::create_total_airframe()->hash(), 30300u);
    EXPECT_EQ(result_type_t::create_total_aircraft()->hash(), 30400u);
    EXPECT_EQ(result_type_t::create_total_by_source_type(source(12))->hash(), 30512u);
    EXPECT_EQ(result_type_t::create_total_by_source_type(source(4))->hash(), 30504u);
    EXPECT_EQ(result_type_t::create_total_engine_data(1)->hash(), 30601u);
    EXPECT_EQ(result_type_t::create_total_engine_data(0)->hash(), 30600u);
    EXPECT_EQ(result_type_t::create_genepass(genepass_ground_reflection)->hash(), 40002u);
    EXPECT_EQ(result_type_t().hash(), 39999u);
    EXPECT_TRUE(result_type_t() == result_type_t());
}

TEST(ResultType, DefaultRecordNamesNothingAndKeepsItsFieldOrder) {
    result_type_t const blank;
    EXPECT_FALSE(blank.engine_source || blank.airframe_source || blank.total || blank.genepass);
    EXPECT_EQ(blank.source_index, -1);
    EXPECT_TRUE(blank.whole_source);
    EXPECT_EQ(blank.component, component(0));
    EXPECT_EQ(blank.total_type, static_cast<total_type_t>(-1));
    EXPECT_EQ(blank.source_type, source(-1));
    EXPECT_EQ(blank.engine_index, -1);
    EXPECT_EQ(blank.genepass_type, static_cast<genepass_result_type_t>(-1));

    // The fields are laid out in their documented order.
    std::vector<std::size_t> const offsets = {
        offsetof(result_type_t, engine_source), offsetof(result_type_t, airframe_source),
        offsetof(result_type_t, source_index),  offsetof(result_type_t, whole_source),
        offsetof(result_type_t, component),     offsetof(result_type_t, total),
        offsetof(result_type_t, total_type),    offsetof(result_type_t, source_type),
        offsetof(result_type_t, engine_index),  offsetof(result_type_t, genepass),
        offsetof(result_type_t, genepass_type)};
    EXPECT_TRUE(std::is_sorted(offsets.begin(), offsets.end()));
}

TEST(ResultType, FactoriesSetOnlyTheirFields) {
    result_ptr const genepass = result_type_t::create_genepass(genepass_total_aircraft_tones);
    EXPECT_TRUE(genepass->genepass);
    EXPECT_FALSE(genepass->whole_source);
    EXPECT_FALSE(genepass->total || genepass->engine_source || genepass->airframe_source);

    result_ptr const airframe = result_type_t::create_airframe_source(source(13), 4);
    EXPECT_TRUE(airframe->is_airframe_source());
    EXPECT_TRUE(airframe->whole_source);
    EXPECT_EQ(airframe->source_type, source(13));
    EXPECT_EQ(airframe->engine_index, -1);

    result_ptr const by_type = result_type_t::create_total_by_source_type(source(16));
    EXPECT_EQ(by_type->total_type, total_by_source_type);
    EXPECT_EQ(by_type->engine_index, -1);
    EXPECT_TRUE(by_type->whole_source);
    EXPECT_FALSE(by_type->is_airframe_source());
}

TEST(ResultType, IdentityIsTheHashAlone) {
    for (int c : {0, 1, 5, 9}) {
        EXPECT_EQ(result_type_t::create_engine_source(source(1), 0, true, component(c))->hash(),
                  10000u);
        EXPECT_EQ(result_type_t::create_engine_source_component(source(1), 0, component(c))->hash(),
                  10000u + static_cast<unsigned>(c));
    }
    EXPECT_TRUE(*result_type_t::create_engine_source_component(source(3), 0, component(0)) ==
                *result_type_t::create_engine_source(source(3), 0, true, component(5)));
    EXPECT_TRUE(*result_type_t::create_airframe_source(source(12), 4) ==
                *result_type_t::create_airframe_source(source(13), 4));
    EXPECT_FALSE(*result_type_t::create_airframe_source(source(12), 4) !=
                 *result_type_t::create_airframe_source(source(13), 4));
    // Engine source 100 runs into the airframe range.
    EXPECT_TRUE(*result_type_t::create_engine_source(source(0), 100, true, component(0)) ==
                *result_type_t::create_airframe_source(source(12), 0));
    EXPECT_TRUE(*result_type_t::create_engine_source(source(0), 1, true, component(0)) !=
                *result_type_t::create_engine_source(source(0), 2, true, component(0)));
}

TEST(ResultType, HashIsSignedThirtyTwoBitSignExtended) {
    // Negative results are sign-extended, not truncated to 32 bits.
    EXPECT_EQ(result_type_t::create_engine_source(source(0), -101, true, component(0))->hash(),
              static_cast<std::size_t>(std::int64_t{-100}));
    EXPECT_EQ(result_type_t::create_airframe_source(source(12), -20001)->hash(),
              static_cast<std::size_t>(std::int64_t{-1}));
    // Overflow wraps in 32 bits before the sign extension.
    EXPECT_EQ(result_type_t::create_airframe_source(source(12), 2147483647)->hash(),
              static_cast<std::size_t>(std::int64_t{-2147483647 - 1} + 19999));
}

TEST(ResultType, OrderIsUnsignedHashWithNullNeverLess) {
    std::vector<result_ptr> const ordered = {
        result_type_t::create_engine_source(source(0), 0, true, component(0)),
        result_type_t::create_engine_source_component(source(0), 0, component(1)),
        result_type_t::create_engine_source_component(source(0), 0, component(99)),
        result_type_t::create_engine_source(source(0), 1, true, component(0)),
        result_type_t::create_engine_source(source(0), 99, true, component(0)),
        result_type_t::create_airframe_source(source(12), 0),
        result_type_t::create_airframe_source(source(12), 9999),
        result_type_t::create_total_engine(),
        result_type_t::create_total_by_source_type(source(23)),
        result_type_t::create_total_engine_data(99),
        result_type_t::create_genepass(genepass_total_aircraft_broadband),
        result_type_t::create_genepass(genepass_ground_reflection),
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
    EXPECT_FALSE(result_type_t::less_than(empty, held));
    EXPECT_FALSE(result_type_t::less_than(held, empty));
    EXPECT_FALSE(result_type_t::less_than(empty, empty));
    EXPECT_EQ(held.use_count(), 1);
}
