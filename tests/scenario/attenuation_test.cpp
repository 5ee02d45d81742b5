#include <calc-common/scenario.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

TEST(Attenuation, CloneCopiesTheListButSharesTheData) {
    auto const empty_copy = attenuation_list_t().clone();
    ASSERT_TRUE(empty_copy);
    EXPECT_TRUE(empty_copy->attenuations.empty());

    attenuation_list_t list;
    auto first = boost::make_shared<attenuation_t>();
    first->name = "barrier";
    first->attenuation_data_1 = spectrum_t::create_tob();
    list.attenuations.push_back(first);
    list.attenuations.push_back(boost::make_shared<attenuation_t>());
    auto const copy = list.clone();
    ASSERT_EQ(copy->attenuations.size(), 2u);
    EXPECT_NE(copy->attenuations[0], first);
    EXPECT_EQ(copy->attenuations[0]->name, "barrier");
    EXPECT_EQ(copy->attenuations[0]->attenuation_data_1, first->attenuation_data_1);
    EXPECT_EQ(copy->attenuations[1]->attenuation_option, 1);
    EXPECT_EQ(copy->attenuations[1]->attenuation_option_3, 3);
}

TEST(Attenuation, SpectrumAttenuationHoldsEmptySlots) {
    EXPECT_TRUE(spectrum_attenuation_t().attenuation_spectra_1.empty());
    spectrum_attenuation_t const three(3);
    ASSERT_EQ(three.attenuation_spectra_2.size(), 3u);
    EXPECT_FALSE(three.attenuation_spectra_1[2]);
}

TEST(Attenuation, MapKeysAreResultIdentities) {
    attenuations_t map;
    // The last key has the identity of the one before it with another source type: the same key.
    for (auto key :
         {result_type_t::create_total_landing_gear(), result_type_t::create_total_engine(),
          result_type_t::create_airframe_source(source_slats, 2),
          result_type_t::create_airframe_source(source_flaps, 2)}) {
        map[key] = boost::make_shared<attenuation_list_t>();
    }
    ASSERT_EQ(map.size(), 3u);
    EXPECT_EQ(map.begin()->first->hash(), 20002u);
    EXPECT_EQ(map.rbegin()->first->hash(), 30200u);
    EXPECT_EQ(map.count(result_type_t::create_total_engine()), 1u);

    // The map holds its comparison function: the identity order, by default or when given.
    EXPECT_EQ(map.key_comp().compare, &result_type_t::less_than);
    auto const given = boost::make_shared<attenuations_t>(&result_type_t::less_than);
    (*given)[result_type_t::create_total_engine()] = boost::make_shared<attenuation_list_t>();
    EXPECT_EQ(given->count(result_type_t::create_total_engine()), 1u);
}
