#include <calc-common/spectra.hpp>

#include <boost/numeric/conversion/cast.hpp>
#include <gtest/gtest.h>

#include <cmath>

TEST(FrequencyRange, NarrowbandCountTruncatesAndBadCountsFailTheCast) {
    struct row {
        double f_end;
        double df;
        std::size_t count;
    };
    for (row const r : {row{10, 3, 4}, row{10, 2.5, 5}, row{-1.5, 1, 0}, row{0, 1, 1}}) {
        EXPECT_EQ(frequency_range_t::create_nb(0, r.f_end, r.df)->count, r.count)
            << "f_end " << r.f_end << " df " << r.df;
    }
    EXPECT_THROW(frequency_range_t::create_nb(0, 1e30, 1), boost::numeric::positive_overflow);
    EXPECT_THROW(frequency_range_t::create_nb(0, 10, 0), boost::numeric::positive_overflow);
    try {
        frequency_range_t::create_nb(0, -5, 1);
        FAIL();
    } catch (boost::numeric::negative_overflow const& error) {
        EXPECT_STREQ(error.what(), "bad numeric conversion: negative overflow");
    }

    // An added frequency makes a narrowband range listed for isNB, yet values still compute.
    boost::shared_ptr<frequency_range_t> nb = frequency_range_t::create_nb(10, 100, 2.5);
    EXPECT_DOUBLE_EQ(nb->at(4), 20.0);
    nb->add_frequency(7.0);
    EXPECT_FALSE(nb->isNB());
    EXPECT_DOUBLE_EQ((*nb)(0), 10.0);
    EXPECT_TRUE(frequency_range_t().isNB());
}

TEST(FrequencyRange, ThirdOctaveGridAndTablesHoldTheirDigits) {
    EXPECT_FALSE(tob_frequency_range_ptr->isNB());
    ASSERT_EQ(tob_frequency_range_ptr->size(), 24u);
    EXPECT_EQ((*tob_frequency_range_ptr)(0), 50.0);
    EXPECT_EQ(tob_frequency_range_ptr->at(13), 1000.0);
    EXPECT_EQ((*tob_frequency_range_ptr)(23), 10000.0);
    EXPECT_EQ(tob_fc_nominal[0], 1.25);
    EXPECT_EQ(tob_fc_nominal[49], 100000.0);
    // The edges are cut to 15 significant digits: within 1e-14 of 10^(0.05+0.1k), not its doubles.
    for (int k = 0; k <= 50; ++k) {
        EXPECT_NEAR(tob_fl[k] / std::pow(10.0, 0.05 + 0.1 * k), 1.0, 1e-14) << k;
    }
    EXPECT_EQ(tob_fl[15], 35.4813389233575);
    EXPECT_EQ(tob_fl[50], 112201.845430196);
}

TEST(FrequencyRange, EqualityIsByNumbersWithToleranceAndKindNotIdentity) {
    boost::shared_ptr<frequency_range_t> nb = frequency_range_t::create_nb(0, 10, 1);
    auto nb_close = frequency_range_t::create_nb(0, 10, std::nextafter(1.0, 2.0));
    nb_close->count = 99; // count takes no part for narrowband ranges
    EXPECT_TRUE(nb->equals(nb_close));
    EXPECT_FALSE(nb->equals(frequency_range_t::create_nb(0, 10, 1.001)));

    // Listed ranges are equal by count and frequencies.
    boost::shared_ptr<frequency_range_t> listed = frequency_range_t::create_dt(11);
    boost::shared_ptr<frequency_range_t> prefix = frequency_range_t::create_dt(10);
    EXPECT_FALSE(nb->equals(listed));
    EXPECT_FALSE(listed->equals(nb));
    EXPECT_FALSE(listed->equals(prefix));
    prefix->add_frequency(0.0);
    EXPECT_TRUE(listed->equals(prefix));
    prefix->frequencies[5] = 5.5;
    EXPECT_FALSE(listed->equals(prefix));

    // A clone is equal but another object, and growing it leaves the shared grid alone.
    boost::shared_ptr<frequency_range_t> copy = tob_frequency_range_ptr->clone();
    EXPECT_NE(copy, tob_frequency_range_ptr);
    EXPECT_TRUE(copy->equals(tob_frequency_range_ptr));
    EXPECT_TRUE(tob_frequency_range_ptr->equals(copy));
    copy->add_frequency(12500.0);
    EXPECT_EQ(tob_frequency_range_ptr->size(), 24u);
    EXPECT_TRUE(nb->clone()->equals(nb));
}
