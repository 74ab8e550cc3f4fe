#include "core/Units.h"

#include "support/Near.h"

#include <gtest/gtest.h>

namespace forcelab {
namespace {

using test::Near;

struct FactorRow {
    const char* Name;
    double (*Factor)(int);
    int Unit;
    double Expected;
};

// The functions with an `unchanged` argument, with its default.
double Stress(int unit)
{
    return StressFactor(unit);
}
double Modulus(int unit)
{
    return ModulusFactor(unit);
}
double Angle(int unit)
{
    return AngleFactor(unit);
}
double Strain(int unit)
{
    return StrainFactor(unit);
}

class Factor : public testing::TestWithParam<FactorRow> {};

TEST_P(Factor, IsTheRatioOfTheUnits)
{
    EXPECT_TRUE(Near(GetParam().Factor(GetParam().Unit), GetParam().Expected, 1e-15));
}

INSTANTIATE_TEST_SUITE_P(
    Units, Factor,
    testing::Values(
        FactorRow{"LengthIn", LengthFactor, 0, 1}, FactorRow{"LengthFt", LengthFactor, 1, 12},
        FactorRow{"LengthMm", LengthFactor, 2, 0.03937007874015748},
        FactorRow{"LengthM", LengthFactor, 3, 39.37007874015748},
        FactorRow{"LengthMinus", LengthFactor, -1, 1}, FactorRow{"Length4", LengthFactor, 4, 1},
        FactorRow{"LengthInMm0", LengthFactorInMm, 0, 1},
        FactorRow{"LengthInMm1", LengthFactorInMm, 1, 0.03937007874015748},
        FactorRow{"LengthInMm2", LengthFactorInMm, 2, 1},
        FactorRow{"DiameterInMm0", DiameterFactorInMm, 0, 1},
        FactorRow{"DiameterInMm1", DiameterFactorInMm, 1, 0.03937007874015748},
        FactorRow{"DiameterInMm2", DiameterFactorInMm, 2, 1}, FactorRow{"AreaIn", AreaFactor, 0, 1},
        FactorRow{"AreaMm", AreaFactor, 1, 0.0015500031000062},
        FactorRow{"Area2", AreaFactor, 2, 1}, FactorRow{"ForceLbs", ForceFactor, 0, 1},
        FactorRow{"ForceKips", ForceFactor, 1, 1000}, FactorRow{"ForceN", ForceFactor, 2, 0.224809},
        FactorRow{"ForceKN", ForceFactor, 3, 224.809}, FactorRow{"Force7", ForceFactor, 7, 1},
        FactorRow{"DistLbsFt", DistLoadFactor, 0, 0.083333333333333333},
        FactorRow{"DistKipsFt", DistLoadFactor, 1, 83.333333333333333},
        FactorRow{"DistNM", DistLoadFactor, 2, 0.0057101486},
        FactorRow{"DistKNM", DistLoadFactor, 3, 5.7101486},
        FactorRow{"Dist4", DistLoadFactor, 4, 1}, FactorRow{"MomentFtLbs", MomentFactor, 0, 12},
        FactorRow{"MomentFtKips", MomentFactor, 1, 12000},
        FactorRow{"MomentNM", MomentFactor, 2, 8.8507480314960630},
        FactorRow{"MomentKNM", MomentFactor, 3, 8850.7480314960630},
        FactorRow{"MomentLbIn", MomentFactor, 4, 1},
        FactorRow{"MomentNMm", MomentFactor, 5, 0.0088507480314960630},
        FactorRow{"Moment6", MomentFactor, 6, 1}, FactorRow{"StressPsi", Stress, 0, 1},
        FactorRow{"StressKsi", Stress, 1, 1000},
        FactorRow{"StressKPa", Stress, 2, 0.14503774389728312},
        FactorRow{"StressMPa", Stress, 3, 145.03774389728312}, FactorRow{"Stress4", Stress, 4, 1},
        FactorRow{"ModulusPsi", Modulus, 0, 1}, FactorRow{"ModulusKsi", Modulus, 1, 1000},
        FactorRow{"ModulusKPa", Modulus, 2, 0.14503774389728312},
        FactorRow{"ModulusMPa", Modulus, 3, 145.03774389728312},
        FactorRow{"AngleRadians", Angle, 0, 1},
        FactorRow{"AngleDegrees", Angle, 1, 0.0174532925199432777},
        FactorRow{"Strain", Strain, 0, 1}, FactorRow{"MicroStrain", Strain, 1, 0.000001}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(Factors, KeepTheOrderOfTheirOperations)
{
    EXPECT_EQ(LengthFactor(2), 1 / 25.4);
    EXPECT_EQ(LengthFactor(3), 1000 / 25.4);
    EXPECT_EQ(AreaFactor(1), (1 / 25.4) * (1 / 25.4));
    EXPECT_EQ(ForceFactor(3), 1000 * 0.224809);
    EXPECT_EQ(DistLoadFactor(2), (0.224809 / 1000) * 25.4);
    EXPECT_EQ(DistLoadFactor(3), ((1000 * 0.224809) / 1000) * 25.4);
    EXPECT_EQ(MomentFactor(2), (0.224809 * 1000) / 25.4);
    EXPECT_EQ(MomentFactor(3), ((1000 * 0.224809) * 1000) / 25.4);
    EXPECT_EQ(MomentFactor(5), 0.224809 / 25.4);
    EXPECT_EQ(StressFactor(2), 1 / 6.894757);
    EXPECT_EQ(AngleFactor(1), 3.14159265358979 / 180);
}

TEST(Factors, LeaveTheFactorUnchangedOutsideTheirTables)
{
    for (const int unit : {-1, 99}) {
        EXPECT_EQ(StressFactor(unit, 7.5), 7.5);
        EXPECT_EQ(ModulusFactor(unit, 7.5), 7.5);
        EXPECT_EQ(AngleFactor(unit, 7.5), 7.5);
        EXPECT_EQ(StrainFactor(unit, 7.5), 7.5);
    }
    EXPECT_EQ(StressFactor(4, 7.5), 7.5);
    EXPECT_EQ(AngleFactor(2, 7.5), 7.5);
    EXPECT_EQ(StressFactor(1, 7.5), 1000);
}

TEST(Factors, AgreeWithEachOther)
{
    // A moment of 1 kN-m is a force of 1 kN at 1 m.
    EXPECT_TRUE(Near(MomentFactor(3), ForceFactor(3) * LengthFactor(3), 1e-14));
    EXPECT_TRUE(Near(DistLoadFactor(2), ForceFactor(2) / LengthFactor(3), 1e-14));
    // 1 MPa is 1 N on 1 mm^2; the two constants were rounded on their own.
    EXPECT_TRUE(Near(StressFactor(3), ForceFactor(2) / AreaFactor(1), 1e-6));
}

} // namespace
} // namespace forcelab
