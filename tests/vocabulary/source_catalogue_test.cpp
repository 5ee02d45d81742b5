#include <calc-common/vocabulary.hpp>

#include "vocabulary/source_catalogue.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace {

source_type_t source(int value) {
    return static_cast<source_type_t>(value);
}

} // namespace

TEST(SourceCatalogue, ComponentsInStandardOrder) {
    using components = std::vector<noise_component_t>;
    EXPECT_EQ(get_source_components(source(10)),
              (components{component_broadband_noise, component_tones}));
    // The forward fan's buzz-saw noise comes behind its tones.
    EXPECT_EQ(get_source_components(source(3)),
              (components{component_broadband_noise, component_tones, component_buzz_saw_noise}));
    EXPECT_EQ(get_source_components(source(9)),
              (components{component_broadband_noise, component_forward_tones, component_aft_tones,
                          component_interaction_tones}));
}

TEST(SourceCatalogue, PredicatesAgreeWithTheBreakdownAndRejectOtherValues) {
    // Only sources with components are decomposable. The sweep holds values that would alias set
    // bits if compared with sign or without the guard (-32, -31, 33).
    std::vector<int> broadband, cror;
    for (int value = -40; value <= 40; ++value) {
        EXPECT_EQ(is_global_decomposable_engine_source(source(value)),
                  !get_source_components(source(value)).empty())
            << value;
        if (VARNO::detail::is_broadband_engine_source(source(value))) {
            broadband.push_back(value);
        }
        if (VARNO::detail::is_cror_engine_source(source(value))) {
            cror.push_back(value);
        }
    }
    EXPECT_EQ(broadband, (std::vector<int>{0, 2, 6, 7, 11}));
    EXPECT_EQ(cror, std::vector<int>{9});
}
