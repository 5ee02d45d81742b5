#include <calc-common/spectra.hpp>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

boost::shared_ptr<noise_field_column_range_t> columns_at(std::vector<double> angles) {
    return noise_field_column_range_t::from_angles(angles);
}

std::string message_of_log_add(boost::shared_ptr<noise_field_t> a,
                               boost::shared_ptr<noise_field_t> b,
                               boost::shared_ptr<noise_field_t> result) {
    try {
        noise_field_t::log_add(a, b, result);
    } catch (varno_calc_error const& error) {
        return error.what();
    }
    return "";
}

} // namespace

TEST(NoiseFieldColumnRange, ListsAreCopiedOrZeroed) {
    boost::shared_ptr<noise_field_column_range_t> from_angles = columns_at({10.0, 20.0, 30.0});
    EXPECT_EQ(from_angles->size(), 3u);
    EXPECT_EQ(from_angles->distances, std::vector<double>(3, 0.0));
    EXPECT_EQ(from_angles->column_data, std::vector<double>(3, 0.0));
    EXPECT_EQ(from_angles->angles, (std::vector<double>{10.0, 20.0, 30.0}));

    double distances[] = {100.0, 200.0};
    double data[] = {7.0, 8.0};
    noise_field_column_range_t columns(2, distances, nullptr, data);
    EXPECT_EQ(columns.distances, (std::vector<double>{100.0, 200.0}));
    EXPECT_EQ(columns.angles, (std::vector<double>{0.0, 0.0}));
    boost::shared_ptr<noise_field_column_range_t> copy = columns.clone();
    copy->column_data[0] = -1.0;
    EXPECT_EQ(columns.column_data[0], 7.0) << "a clone owns its lists";
    EXPECT_EQ(noise_field_column_range_t().size(), 0u);
}

TEST(NoiseField, LevelsAreFrequencyMajor) {
    noise_field_t field(frequency_range_t::create_dt(3), columns_at({0.0, 90.0}));
    EXPECT_EQ(field.values, std::vector<double>(6, 0.0));
    field(2, 1) = 42.0;
    EXPECT_EQ(field.values[5], 42.0);
    EXPECT_EQ(&field.at(1, 0), &field.values[2]);

    boost::shared_ptr<noise_field_t> tob = noise_field_t::create_tob(columns_at({0.0, 90.0}));
    EXPECT_EQ(tob->frequency_range, tob_frequency_range_ptr);
    EXPECT_EQ(tob->values.size(), 48u);
    EXPECT_FALSE(tob->owns_frequency_range);
    EXPECT_FALSE(tob->owns_column_range);
}

TEST(NoiseField, LogAddMatchesGridsByIdentityAndColumnsBySize) {
    boost::shared_ptr<noise_field_t> a = noise_field_t::create_tob(columns_at({0.0, 90.0}));
    boost::shared_ptr<noise_field_t> b = noise_field_t::create_tob(columns_at({5.0, 95.0}));
    a->at(0, 0) = 50.0;
    b->at(0, 0) = 50.0;
    a->at(3, 1) = 1.0;
    b->at(3, 1) = 1.5;
    a->at(7, 1) = -20.0;
    b->at(7, 1) = 60.0;
    noise_field_t::log_add(a, b, a);
    EXPECT_NEAR(a->at(0, 0), 53.0103, 1e-4);
    EXPECT_NEAR(a->at(3, 1), 1.5, 1e-12);
    EXPECT_NEAR(a->at(7, 1), 60.0, 1e-12);
    EXPECT_EQ(a->at(1, 0), 0.0);

    char const* expected = "An error occurred in function noise_field_t::log_add";
    boost::shared_ptr<noise_field_t> on_equal_grid =
        boost::make_shared<noise_field_t>(tob_frequency_range_ptr->clone(), a->column_range);
    EXPECT_EQ(message_of_log_add(a, on_equal_grid, a), expected);
    EXPECT_EQ(message_of_log_add(a, a, on_equal_grid), expected);
    boost::shared_ptr<noise_field_t> three_columns =
        noise_field_t::create_tob(columns_at({0.0, 45.0, 90.0}));
    EXPECT_EQ(message_of_log_add(a, three_columns, a), expected);
    EXPECT_EQ(message_of_log_add(a, b, three_columns), expected);
    EXPECT_NEAR(a->at(0, 0), 53.0103, 1e-4) << "nothing is written before the checks";

    boost::shared_ptr<noise_field_t> no_columns = noise_field_t::create_tob(columns_at({}));
    EXPECT_EQ(message_of_log_add(no_columns, no_columns->clone(), no_columns), "");
}

TEST(NoiseField, ClearCloneCopyAndFloor) {
    boost::shared_ptr<noise_field_t> field = noise_field_t::create_tob(columns_at({0.0, 90.0}));
    field->at(0, 0) = -3.0;
    field->at(0, 1) = 0.0005;
    field->at(1, 0) = 0.001;
    field->at(23, 1) = 70.0;
    field->add_tone(tone_id_t::create_bpf(1, 1.0, 63.0, 70.0));

    boost::shared_ptr<noise_field_t> copy = field->clone();
    EXPECT_EQ(copy->frequency_range, field->frequency_range);
    EXPECT_EQ(copy->column_range, field->column_range);
    EXPECT_EQ(copy->values, field->values);
    ASSERT_EQ(copy->tones.size(), 1u);

    field->assert_non_negative();
    EXPECT_EQ(field->at(0, 0), 0.0);
    EXPECT_EQ(field->at(0, 1), 0.0);
    EXPECT_EQ(field->at(1, 0), 0.001);
    EXPECT_EQ(field->at(23, 1), 70.0);

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

TEST(NoiseField, ColumnRangeIsSharedUntilOwned) {
    boost::shared_ptr<noise_field_column_range_t> shared = columns_at({0.0, 90.0});
    noise_field_t first(tob_frequency_range_ptr, shared);
    noise_field_t second(tob_frequency_range_ptr, shared);
    first.distance_at(1) = 150.0;
    EXPECT_EQ(second.distance_at(1), 150.0);

    first.give_column_range_ownership();
    boost::shared_ptr<noise_field_column_range_t> owned = first.column_range;
    EXPECT_NE(owned, shared);
    EXPECT_TRUE(first.owns_column_range);
    first.give_column_range_ownership();
    EXPECT_EQ(first.column_range, owned) << "a second call clones nothing";
    first.distance_at(1) = 10.0;
    EXPECT_EQ(second.distance_at(1), 150.0);
    EXPECT_EQ(first.frequency_range, tob_frequency_range_ptr);
    EXPECT_FALSE(first.owns_frequency_range);
}
