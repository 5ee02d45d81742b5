#include <calc-common/vocabulary.hpp>

#include <gtest/gtest.h>

TEST(EngineTypeToString, FirstKindBitWinsThenMountingThenBreakdown) {
    EXPECT_EQ(VARNO::EngineTypeToString(2 + 4 + 8 + 1), "Turbofan: fuselage-mounted");
    EXPECT_EQ(VARNO::EngineTypeToString(4 + 8), "Turboprop: wing-mounted");
    EXPECT_EQ(VARNO::EngineTypeToString(20), "Turboprop: wing-mounted (PSEUDO-breakdown)");
    EXPECT_EQ(VARNO::EngineTypeToString(8 + 1 + 16),
              "Propfan (CROR): fuselage-mounted (PSEUDO-breakdown)");
    // Bits above 16 are ignored; without a kind bit the others describe nothing.
    EXPECT_EQ(VARNO::EngineTypeToString(32 + 2), "Turbofan: wing-mounted");
    EXPECT_EQ(VARNO::EngineTypeToString(-1), "Turbofan: fuselage-mounted (PSEUDO-breakdown)");
    for (int word : {0, 1, 16, 17, 32, -2 & ~14}) {
        EXPECT_EQ(VARNO::EngineTypeToString(word), "Unknown") << word;
    }
}
