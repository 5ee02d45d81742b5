#include <calc-common/vocabulary.hpp>

#include "vocabulary/source_catalogue.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace {

source_type_t source(int value) {
    return static_cast<source_type_t>(value);
}

} // namespace

TEST(SourceCatalogue, NamesCoverExactlyTheTwentyFourSources) {
    EXPECT_EQ(get_standard_source_name(source(0)), "Jet");
    EXPECT_EQ(get_standard_source_name(source(11)), "Total engine (pseudo-breakdown input)");
    EXPECT_EQ(get_standard_source_name(source(12)), "Slats");
    EXPECT_EQ(get_standard_source_name(source(23)), "Spoiler");
    EXPECT_EQ(get_standard_source_name(source(24)), "");
    EXPECT_EQ(get_standard_source_name(source(-1)), "");
    EXPECT_EQ(VARNO::StringValue(source(9)), "CROR propellers");
}

TEST(SourceCatalogue, ComponentsInStandardOrder) {
    using components = std::vector<noise_component_t>;
    EXPECT_TRUE(get_source_components(source(0)).empty());
    EXPECT_EQ(get_source_components(source(10)),
              (components{component_broadband_noise, component_tones}));
    // The forward fan's buzz-saw noise comes behind its tones.
    EXPECT_EQ(get_source_components(source(3)),
              (components{component_broadband_noise, component_tones, component_buzz_saw_noise}));
    EXPECT_EQ(get_source_components(source(9)),
              (components{component_broadband_noise, component_forward_tones, component_aft_tones,
                          component_interaction_tones}));
    EXPECT_TRUE(get_source_components(source(4)).empty());
    EXPECT_TRUE(get_source_components(source(-1)).empty());
}

TEST(SourceCatalogue, PredicatesAgreeWithTheBreakdownAndRejectOtherValues) {
    using VARNO::detail::is_broadband_engine_source;
    using VARNO::detail::is_cror_engine_source;
    for (int value = -40; value <= 40; ++value) {
        bool const has_components = !get_source_components(source(value)).empty();
        EXPECT_EQ(is_global_decomposable_engine_source(source(value)), has_components) << value;
    }
    std::vector<int> broadband;
    for (int value = -40; value <= 40; ++value) {
        if (is_broadband_engine_source(source(value))) {
            broadband.push_back(value);
        }
    }
    EXPECT_EQ(broadband, (std::vector<int>{0, 2, 6, 7, 11}));
    // The buzz-saw source (4) is a component with a value of its own: neither class, as the
    // sweeps above show.
    EXPECT_FALSE(is_cror_engine_source(source(4)));
    EXPECT_TRUE(is_cror_engine_source(source(9)));
    // Values that would alias set bits if compared with sign or without the guard.
    for (int value : {-2147483647 - 1, -32 + 1, 32 + 1, 64 + 3}) {
        EXPECT_FALSE(is_global_decomposable_engine_source(source(value))) << value;
        EXPECT_FALSE(is_broadband_engine_source(source(value))) << value;
    }
}
