#include <calc-common/propagation.hpp>

#include <gtest/gtest.h>

#include <cmath>

TEST(SphericalDivergence, InverseSquareLawWithACapNearTheSource) {
    using VARNO::TrrApi::SphericalDivergence;
    EXPECT_EQ(SphericalDivergence(0.0009, 1.0), 50.0);
    EXPECT_EQ(SphericalDivergence(0.0009, 1000.0), 50.0);
    EXPECT_EQ(SphericalDivergence(-5.0, 1.0), 50.0);
    EXPECT_EQ(SphericalDivergence(30.0, 30.0), 0.0);
    EXPECT_DOUBLE_EQ(SphericalDivergence(300.0, 30.0), -20.0);
    EXPECT_NEAR(SphericalDivergence(15.0, 30.0), 6.0206, 1e-4);
    EXPECT_TRUE(std::isnan(SphericalDivergence(10.0, -1.0)));
}
