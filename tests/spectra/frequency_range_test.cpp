#include <calc-common/spectra.hpp>

#include <boost/numeric/conversion/cast.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(FrequencyRange, NarrowbandCountTruncatesAndIndexIsComputed) {
    EXPECT_EQ(frequency_range_t::create_nb(0, 10, 3)->count, 4u);
    EXPECT_EQ(frequency_range_t::create_nb(0, 10, 2.5)->count, 5u);
    EXPECT_EQ(frequency_range_t::create_nb(0, -1.5, 1)->count, 0u); // n = -0.5 truncates

    boost::shared_ptr<frequency_range_t> single = frequency_range_t::create_nb(50, 50, 1);
    EXPECT_EQ(single->size(), 1u);
    EXPECT_EQ((*single)(0), 50.0);
    EXPECT_TRUE(single->frequencies.empty());
    EXPECT_TRUE(single->isNB());

    boost::shared_ptr<frequency_range_t> nb = frequency_range_t::create_nb(10, 100, 2.5);
    EXPECT_DOUBLE_EQ(nb->at(4), 20.0);
    // A frequency added to a narrowband range makes it listed for isNB, yet df still computes.
    nb->add_frequency(7.0);
    EXPECT_FALSE(nb->isNB());
    EXPECT_EQ(nb->count, 38u);
    EXPECT_DOUBLE_EQ((*nb)(0), 10.0);
}

TEST(FrequencyRange, NarrowbandCountsThatAreNoSizeFailInTheCast) {
    EXPECT_THROW(frequency_range_t::create_nb(0, -2, 1), boost::numeric::negative_overflow);
    EXPECT_THROW(frequency_range_t::create_nb(0, 1e30, 1), boost::numeric::positive_overflow);
    EXPECT_THROW(frequency_range_t::create_nb(0, 10, 0), boost::numeric::positive_overflow);
    try {
        frequency_range_t::create_nb(0, -5, 1);
        FAIL();
    } catch (boost::numeric::bad_numeric_cast const& error) {
        EXPECT_STREQ(error.what(), "bad numeric conversion: negative overflow");
    }
}

TEST(FrequencyRange, ListedKindsAndTheThirdOctaveGrid) {
    EXPECT_FALSE(tob_frequency_range_ptr->isNB());
    EXPECT_EQ(tob_frequency_range_ptr->size(), 24u);
    EXPECT_EQ((*tob_frequency_range_ptr)(0), 50.0);
    EXPECT_EQ(tob_frequency_range_ptr->at(13), 1000.0);
    EXPECT_EQ((*tob_frequency_range_ptr)(23), 10000.0);
    for (std::size_t i = 0; i < 24; ++i) {
        EXPECT_EQ((*tob_frequency_range_ptr)(i), tob_fc_nominal[16 + i]);
    }

    boost::shared_ptr<frequency_range_t> tones = frequency_range_t::create_dt(4);
    EXPECT_FALSE(tones->isNB());
    EXPECT_EQ(tones->size(), 4u);
    EXPECT_EQ((*tones)(3), 0.0);

    frequency_range_t empty;
    EXPECT_TRUE(empty.isNB());
    EXPECT_EQ(empty.size(), 0u);
}

TEST(FrequencyRange, TablesHoldTheirDigits) {
    EXPECT_EQ(tob_fc_nominal[0], 1.25);
    EXPECT_EQ(tob_fc_nominal[29], 1000.0);
    EXPECT_EQ(tob_fc_nominal[49], 100000.0);
    // The tables are cut to 15 significant digits, so they stay within 1e-14 of 10^(0.05+0.1k)
    // but are not that formula's doubles.
    for (int k = 0; k <= 50; ++k) {
        double const exact = std::pow(10.0, 0.05 + 0.1 * k);
        EXPECT_NEAR(tob_fl[k] / exact, 1.0, 1e-14) << k;
    }
    EXPECT_EQ(tob_fl[15], 35.4813389233575);
    EXPECT_EQ(tob_fl[49], 89125.0938133745);
    EXPECT_EQ(tob_fl[50], 112201.845430196);
}

TEST(FrequencyRange, EqualityIsByNumbersWithToleranceAndKind) {
    boost::shared_ptr<frequency_range_t> nb = frequency_range_t::create_nb(0, 10, 1);
    boost::shared_ptr<frequency_range_t> nb_close =
        frequency_range_t::create_nb(0, 10, std::nextafter(1.0, 2.0));
    EXPECT_TRUE(nb->equals(nb_close));
    EXPECT_FALSE(nb->equals(frequency_range_t::create_nb(0, 10, 1.001)));
    // count takes no part for narrowband ranges.
    nb_close->count = 99;
    EXPECT_TRUE(nb->equals(nb_close));

    boost::shared_ptr<frequency_range_t> listed = frequency_range_t::create_dt(0);
    for (int f = 0; f <= 10; ++f) {
        listed->add_frequency(f);
    }
    EXPECT_FALSE(nb->equals(listed));
    EXPECT_FALSE(listed->equals(nb));

    boost::shared_ptr<frequency_range_t> prefix = frequency_range_t::create_dt(0);
    for (int f = 0; f <= 9; ++f) {
        prefix->add_frequency(f);
    }
    EXPECT_FALSE(listed->equals(prefix));
    prefix->add_frequency(10.0);
    EXPECT_TRUE(listed->equals(prefix));
    prefix->frequencies[5] = 5.5;
    EXPECT_FALSE(listed->equals(prefix));
}

TEST(FrequencyRange, CloneIsEqualButAnotherGrid) {
    boost::shared_ptr<frequency_range_t> copy = tob_frequency_range_ptr->clone();
    EXPECT_NE(copy, tob_frequency_range_ptr);
    EXPECT_FALSE(copy->isNB());
    EXPECT_TRUE(copy->equals(tob_frequency_range_ptr));
    EXPECT_TRUE(tob_frequency_range_ptr->equals(copy));
    copy->add_frequency(12500.0);
    EXPECT_EQ(tob_frequency_range_ptr->size(), 24u);

    boost::shared_ptr<frequency_range_t> nb = frequency_range_t::create_nb(5, 20, 0.5);
    boost::shared_ptr<frequency_range_t> nb_copy = nb->clone();
    EXPECT_EQ(nb_copy->f_start, 5.0);
    EXPECT_EQ(nb_copy->f_end, 20.0);
    EXPECT_EQ(nb_copy->df, 0.5);
    EXPECT_EQ(nb_copy->count, nb->count);
}
