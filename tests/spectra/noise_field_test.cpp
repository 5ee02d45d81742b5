#include <calc-common/spectra.hpp>

#include "narrowband_fixtures.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <string>

TEST(NoiseField, LevelsAreFrequencyMajorAndColumnsAreSharedUntilOwned) {
    noise_field_t field(frequency_range_t::create_dt(3), columns_at({0.0, 90.0}));
    field(2, 1) = 42.0;
    EXPECT_EQ(field.values[5], 42.0);
    EXPECT_EQ(&field.at(1, 0), &field.values[2]);

    double distances[] = {100.0, 200.0};
    double data[] = {7.0, 8.0};
    auto shared = boost::make_shared<noise_field_column_range_t>(2, distances, nullptr, data);
    EXPECT_EQ(shared->angles, (std::vector<double>{0.0, 0.0})) << "a missing list is zeroed";
    noise_field_t first(tob_frequency_range_ptr, shared);
    noise_field_t second(tob_frequency_range_ptr, shared);
    first.distance_at(1) = 150.0;
    EXPECT_EQ(second.distance_at(1), 150.0);
    first.give_column_range_ownership();
    boost::shared_ptr<noise_field_column_range_t> owned = first.column_range;
    EXPECT_NE(owned, shared);
    first.give_column_range_ownership();
    EXPECT_EQ(first.column_range, owned) << "a second call clones nothing";
    first.distance_at(1) = 10.0;
    EXPECT_EQ(second.distance_at(1), 150.0);
}

TEST(NoiseField, LogAddMatchesGridsByIdentityAndColumnsBySize) {
    boost::shared_ptr<noise_field_t> a = noise_field_t::create_tob(columns_at({0.0, 90.0}));
    boost::shared_ptr<noise_field_t> b = noise_field_t::create_tob(columns_at({5.0, 95.0}));
    a->at(0, 0) = 50.0;
    b->at(0, 0) = 50.0;
    a->at(3, 1) = 1.0;
    b->at(3, 1) = 1.5;
    noise_field_t::log_add(a, b, a);
    EXPECT_NEAR(a->at(0, 0), 53.0103, 1e-4);
    EXPECT_NEAR(a->at(3, 1), 1.5, 1e-12) << "levels at or below 1 dB carry no energy";

    char const* expected = "An error occurred in function noise_field_t::log_add";
    auto on_equal_grid =
        boost::make_shared<noise_field_t>(tob_frequency_range_ptr->clone(), a->column_range);
    EXPECT_EQ(message_of_log_add(a, on_equal_grid, a), expected);
    EXPECT_EQ(message_of_log_add(a, a, on_equal_grid), expected);
    auto three_columns = noise_field_t::create_tob(columns_at({0.0, 45.0, 90.0}));
    EXPECT_EQ(message_of_log_add(a, three_columns, a), expected);
    EXPECT_EQ(message_of_log_add(a, b, three_columns), expected);
    EXPECT_NEAR(a->at(0, 0), 53.0103, 1e-4) << "nothing is written before the checks";
}

TEST(NoiseField, ClearCopyAndFloor) {
    boost::shared_ptr<noise_field_t> field = noise_field_t::create_tob(columns_at({0.0, 90.0}));
    field->at(0, 0) = -3.0;
    field->at(0, 1) = 0.0005;
    field->at(1, 0) = 0.001;
    field->add_tone(tone_id_t::create_bpf(1, 1.0, 63.0, 70.0));
    field->assert_non_negative();
    EXPECT_EQ(field->at(0, 0), 0.0);
    EXPECT_EQ(field->at(0, 1), 0.0);
    EXPECT_EQ(field->at(1, 0), 0.001);

    boost::shared_ptr<noise_field_t> target = noise_field_t::create_tob(columns_at({1.0, 2.0}));
    EXPECT_TRUE(field->copy_to(target));
    EXPECT_EQ(target->values, field->values);
    EXPECT_EQ(target->tones.size(), 1u);
    EXPECT_NE(target->column_range, field->column_range);

    field->clear();
    EXPECT_EQ(field->values, std::vector<double>(48, 0.0));
    EXPECT_TRUE(field->tones.empty());
    // A field with an empty axis keeps its tones.
    boost::shared_ptr<noise_field_t> no_columns = noise_field_t::create_tob(columns_at({}));
    no_columns->add_tone(tone_id_t());
    no_columns->clear();
    EXPECT_EQ(no_columns->tones.size(), 1u);
}
