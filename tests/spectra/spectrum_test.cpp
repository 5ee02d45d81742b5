#include <calc-common/spectra.hpp>

#include "narrowband_fixtures.hpp"
#include "support/error_text.hpp"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>

TEST(Spectrum, LogAddSumsEnergiesWithTheOneDecibelCut) {
    struct row {
        double a;
        double b;
        double sum;
    };
    row const rows[] = {{50.0, 50.0, 50.0 + 10.0 * std::log10(2.0)},
                        {1.0, 0.0, 0.0},
                        {1.0, 1.0, 0.0},
                        {1.5, 1.0, 1.5},
                        {-20.0, 60.0, 60.0},
                        {std::nan(""), 30.0, 30.0}};
    boost::shared_ptr<spectrum_t> a = spectrum_t::create_tob();
    boost::shared_ptr<spectrum_t> b = spectrum_t::create_tob();
    for (std::size_t i = 0; i < 6; ++i) {
        a->at(i) = rows[i].a;
        (*b)(i) = rows[i].b;
    }
    spectrum_t::log_add(a, b, a); // writing into an operand is allowed
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_NEAR(a->values[i], rows[i].sum, 1e-12) << rows[i].a << " + " << rows[i].b;
    }
}

TEST(Spectrum, LogAddNeedsTheVerySameGridObject) {
    boost::shared_ptr<spectrum_t> a = tob_filled_with(40.0);
    auto on_copy = boost::make_shared<spectrum_t>(tob_frequency_range_ptr->clone());
    on_copy->fill_with(30.0);
    char const* expected = "An error occurred in function spectrum_t::log_add";
    EXPECT_EQ(message_of_log_add(a, on_copy, a), expected);
    EXPECT_EQ(message_of_log_add(a, a, on_copy), expected);
    EXPECT_EQ(on_copy->values[0], 30.0) << "nothing is written before the check";

    // A clone keeps the grid object and so adds to its source; a private copy no longer does.
    EXPECT_EQ(message_of_log_add(a, a->clone(), a), "");
    boost::shared_ptr<spectrum_t> owner = tob_filled_with(20.0);
    owner->give_frequency_range_ownership();
    boost::shared_ptr<frequency_range_t> const private_range = owner->frequency_range;
    EXPECT_EQ(message_of_log_add(a, owner, a), expected);
    owner->give_frequency_range_ownership();
    EXPECT_EQ(owner->frequency_range, private_range) << "ownership is taken once";
}

TEST(Spectrum, ReserveReusesButNeverRebinds) {
    EXPECT_EQ(test_support::error_text([] { spectrum_t::reserve_tob(nullptr); }),
              "An error occurred in function spectrum_t::reserve");

    boost::shared_ptr<spectrum_t> slot;
    spectrum_t::reserve_tob(&slot);
    ASSERT_TRUE(slot);
    EXPECT_EQ(slot->frequency_range, tob_frequency_range_ptr);
    spectrum_t* const first = slot.get();
    slot->fill_with(70.0);
    slot->tones.push_back(tone_id_t::create_bpf(3, 1.0, 100.0, 70.0));
    spectrum_t::reserve_tob(&slot);
    EXPECT_EQ(slot.get(), first);
    EXPECT_EQ(slot->values[5], 0.0);
    EXPECT_TRUE(slot->tones.empty());

    slot->fill_with(70.0);
    spectrum_t::reserve(&slot, frequency_range_t::create_nb(0, 100, 1));
    EXPECT_EQ(slot->frequency_range, tob_frequency_range_ptr);
    EXPECT_EQ(slot->values[5], 70.0);
}

TEST(Spectrum, FloorAndFrequencyAt) {
    boost::shared_ptr<spectrum_t> spectrum = tob_filled_with(20.0);
    spectrum->values[0] = -3.0;
    spectrum->values[1] = 0.0005;
    spectrum->values[2] = 0.001;
    spectrum->values[3] = std::nan("");
    spectrum->assert_non_negative();
    EXPECT_EQ(spectrum->values[0], 0.0);
    EXPECT_EQ(spectrum->values[1], 0.0);
    EXPECT_EQ(spectrum->values[2], 0.001);
    EXPECT_TRUE(std::isnan(spectrum->values[3]));

    spectrum->tones.push_back(tone_id_t::create_ni(2, 1, 77.0, 50.0));
    spectrum->tones.push_back(tone_id_t::create_bpf(5, 1.0, 171.5, 60.0));
    spectrum->tones.push_back(tone_id_t::create_eo(5, 4, 165.0, 55.0));
    EXPECT_EQ(spectrum->frequency_at(5), 171.5) << "the first tone of the band answers";
    EXPECT_EQ(spectrum->frequency_at(2), 80.0) << "an ni tone never answers";
    EXPECT_EQ(spectrum->frequency_at(6), 200.0);
    EXPECT_EQ(spectrum->frequency_at((std::size_t(1) << 32) + 5), 171.5) << "low 32 bits";
}

TEST(Spectrum, ClearCloneAndCopy) {
    boost::shared_ptr<spectrum_t> spectrum = tob_filled_with(45.0);
    spectrum->tones.push_back(tone_id_t::create_eo(1, 2, 64.0, 45.0));

    auto target = boost::make_shared<spectrum_t>(frequency_range_t::create_nb(0, 10, 1));
    EXPECT_FALSE(spectrum->copy_to(target)) << "copy_to reports false although it copied";
    EXPECT_EQ(target->values, spectrum->values);
    EXPECT_NE(target->frequency_range, tob_frequency_range_ptr);

    boost::shared_ptr<spectrum_t> copy = spectrum->clone();
    spectrum->clear();
    EXPECT_EQ(spectrum->values, std::vector<double>(24, 0.0));
    EXPECT_TRUE(spectrum->tones.empty());
    EXPECT_EQ(copy->values[0], 45.0);
    EXPECT_EQ(copy->tones.size(), 1u);

    // On a zero-count range clear does nothing, so the tones stay.
    spectrum_t on_empty(frequency_range_t::create_dt(0));
    on_empty.tones.push_back(tone_id_t::create_bpf(0, 1.0, 10.0, 10.0));
    on_empty.clear();
    EXPECT_EQ(on_empty.tones.size(), 1u);
}
