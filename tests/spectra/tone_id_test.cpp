#include <calc-common/spectra.hpp>

#include <gtest/gtest.h>

#include <cmath>

TEST(ToneId, EqualityIsIdentityOfTheProducer) {
    // The same harmonic moved by Doppler into another band at another level is the same tone.
    EXPECT_TRUE(tone_id_t::create_bpf(3, 2.0, 400.0, 80.0)
                    .equals(tone_id_t::create_bpf(4, 2.0, 455.0, 72.0)));
    EXPECT_TRUE(tone_id_t::create_bpf(3, 2.0, 1, 1)
                    .equals(tone_id_t::create_bpf(3, std::nextafter(2.0, 3.0), 1, 1)));
    EXPECT_FALSE(tone_id_t::create_bpf(3, 2.0, 1, 1).equals(tone_id_t::create_bpf(3, 3.0, 1, 1)));
    // Every identifying field 0: nothing tells the kinds apart.
    EXPECT_TRUE(tone_id_t::create_bpf(3, 0.0, 1, 1).equals(tone_id_t::create_eo(3, 0, 2, 2)));
    tone_id_t const cror = tone_id_t::create_cror(0, 1, 2, 1, 1);
    EXPECT_FALSE(cror.equals(tone_id_t::create_cror(0, 2, 1, 1, 1)));
    EXPECT_TRUE(cror.clone().equals(cror));
    EXPECT_FALSE(tone_id_t::create_eo(0, 5, 1, 1).equals(tone_id_t::create_ni(0, 5, 1, 1)));
}
