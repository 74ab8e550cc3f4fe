#include "core/Materials.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace forcelab {
namespace {

using testing::Each;
using testing::ElementsAre;

TEST(Materials, NamesStandInTheirOrder)
{
    EXPECT_THAT(MaterialNames(),
                ElementsAre("Aluminum 2014-T6", "Aluminum 6061-T6", "Brass-C36000, Hard",
                            "Brass-C83400", "Bronze C86100", "Concrete-Low Strength",
                            "Concrete-Medium Strength", "Gray Cast Iron-A48 Gr.20",
                            "Magnesium Am 1004-T61", "Monel, wrought, HR", "Steel-A36 Structural",
                            "Steel-AISI 1020 HR", "Steel-AISI 1040 CR", "Steel-SAE 4340, HT",
                            "Steel-Stainless 304 CR", "Stainless Steel 18-8 CR",
                            "Titanium Ti-6Al-4V", "Wood-Douglas fir", "Wood-Southern Pine",
                            "Wood-White Spruce"));
}

TEST(Materials, ShearNamesStandInTheirOwnOrder)
{
    EXPECT_THAT(ShearMaterialNames(),
                ElementsAre("Aluminum 2014-T6", "Aluminum 6061-T6", "Brass-C36000, Hard",
                            "Brass-C83400", "Bronze C86100", "Gray Cast Iron-A48 Gr.20",
                            "Magnesium Am 1004-T61", "Monel, wrought, HR", "Steel-A36 Structural",
                            "Steel-AISI 1020 HR", "Steel-AISI 1040 CR", "Steel-SAE 4340, HT",
                            "Stainless Steel 304 CR", "Stainless Steel 18-8 CR",
                            "Titanium Ti-6Al-4V"));
}

struct MaterialRow {
    const char* Name;
    std::array<double, 5> Constants;
    std::array<double, 2> Strengths;
};

std::size_t RowOf(std::span<const std::string_view> names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) - names.begin();
}

class Material : public testing::TestWithParam<MaterialRow> {};

TEST_P(Material, HasItsFigures)
{
    const std::size_t row = RowOf(MaterialNames(), GetParam().Name);
    ASSERT_LT(row, MaterialNames().size());
    EXPECT_EQ(MaterialConstants[row], GetParam().Constants);
    EXPECT_EQ(MaterialStrengths[row], GetParam().Strengths);
}

INSTANTIATE_TEST_SUITE_P(
    Catalogue, Material,
    testing::Values(
        MaterialRow{"Aluminum 2014-T6", {10600, 73.1, 12.8, 23, 0.33}, {60000, 414000}},
        MaterialRow{"Aluminum 6061-T6", {10000, 68.9, 13, 23.4, 0.33}, {40000, 275000}},
        MaterialRow{"Brass-C36000, Hard", {16000, 110, 11.4, 20.5, 0.34}, {45000, 310000}},
        MaterialRow{"Brass-C83400", {14600, 101, 9.8, 18, 0.35}, {11400, 79000}},
        MaterialRow{"Bronze C86100", {15000, 103, 9.6, 17, 0.34}, {50000, 345000}},
        MaterialRow{"Concrete-Low Strength", {3100, 21.5, 6, 10.8, 0.15}, {3000, 21000}},
        MaterialRow{"Concrete-Medium Strength", {4400, 30.4, 6, 10.8, 0.15}, {6000, 41400}},
        MaterialRow{"Gray Cast Iron-A48 Gr.20", {12200, 84, 6, 10.8, 0.27}, {20000, 138000}},
        MaterialRow{"Magnesium Am 1004-T61", {6480, 44.7, 14.3, 26, 0.3}, {22000, 152000}},
        MaterialRow{"Monel, wrought, HR", {26000, 180, 7.8, 14, 0.32}, {50000, 340000}},
        MaterialRow{"Steel-A36 Structural", {29000, 200, 6.6, 12, 0.32}, {36000, 250000}},
        MaterialRow{"Steel-AISI 1020 HR", {30000, 207, 6.5, 11.7, 0.29}, {48000, 331000}},
        MaterialRow{"Steel-AISI 1040 CR", {30000, 207, 6.3, 11.3, 0.29}, {82000, 565000}},
        MaterialRow{"Steel-SAE 4340, HT", {29000, 200, 6.6, 11.9, 0.32}, {132000, 910000}},
        MaterialRow{"Steel-Stainless 304 CR", {28000, 193, 9.6, 17, 0.27}, {30000, 207000}},
        MaterialRow{"Stainless Steel 18-8 CR", {28000, 190, 9.6, 17.3, 0.27}, {165000, 1140000}},
        MaterialRow{"Titanium Ti-6Al-4V", {16500, 114, 5.3, 9.5, 0.3}, {155000, 1070000}},
        MaterialRow{"Wood-Douglas fir", {1900, 13.1, 0, 0, 0.29}, {1900, 13100}},
        MaterialRow{"Wood-Southern Pine", {1900, 13.1, 0, 0, 0.29}, {1900, 13100}},
        MaterialRow{"Wood-White Spruce", {1400, 9.65, 0, 0, 0.31}, {1400, 9650}}));

struct ShearRow {
    const char* Name;
    double Ksi, GPa;
};
class ShearMaterial : public testing::TestWithParam<ShearRow> {};

TEST_P(ShearMaterial, HasItsModulus)
{
    const std::size_t row = RowOf(ShearMaterialNames(), GetParam().Name);
    ASSERT_LT(row, ShearMaterialNames().size());
    EXPECT_EQ(MaterialShear[row][kShearModulusKsi], GetParam().Ksi);
    EXPECT_EQ(MaterialShear[row][kShearModulusGPa], GetParam().GPa);
}

INSTANTIATE_TEST_SUITE_P(
    Catalogue, ShearMaterial,
    testing::Values(
        ShearRow{"Aluminum 2014-T6", 4000, 28}, ShearRow{"Aluminum 6061-T6", 3800, 26},
        ShearRow{"Brass-C36000, Hard", 6000, 41.25}, ShearRow{"Brass-C83400", 5400, 37},
        ShearRow{"Bronze C86100", 5600, 38}, ShearRow{"Gray Cast Iron-A48 Gr.20", 4880, 33.6},
        ShearRow{"Magnesium Am 1004-T61", 2500, 18}, ShearRow{"Monel, wrought, HR", 9500, 66},
        ShearRow{"Steel-A36 Structural", 11000, 76}, ShearRow{"Steel-AISI 1020 HR", 11500, 80},
        ShearRow{"Steel-AISI 1040 CR", 11500, 80}, ShearRow{"Steel-SAE 4340, HT", 11000, 76},
        ShearRow{"Stainless Steel 304 CR", 11000, 75},
        ShearRow{"Stainless Steel 18-8 CR", 12500, 86}, ShearRow{"Titanium Ti-6Al-4V", 6100, 42}));

TEST(Materials, RowsPastTheNamesAreZero)
{
    for (std::size_t row = MaterialNames().size(); row < MaterialConstants.size(); ++row)
        EXPECT_THAT(MaterialConstants[row], Each(0));
    for (std::size_t row = MaterialNames().size(); row < MaterialStrengths.size(); ++row)
        EXPECT_THAT(MaterialStrengths[row], Each(0));
    for (std::size_t row = ShearMaterialNames().size(); row < MaterialShear.size(); ++row)
        EXPECT_THAT(MaterialShear[row], Each(0));
}

TEST(Materials, WoodsDoNotExpand)
{
    for (const char* wood : {"Wood-Douglas fir", "Wood-Southern Pine", "Wood-White Spruce"}) {
        const auto& row = MaterialConstants[RowOf(MaterialNames(), wood)];
        EXPECT_EQ(row[kExpansionPerF], 0) << wood;
        EXPECT_EQ(row[kExpansionPerC], 0) << wood;
    }
}

TEST(Materials, TwoSteelsShareTheirModulusOnly)
{
    const std::size_t hot = RowOf(MaterialNames(), "Steel-AISI 1020 HR");
    const std::size_t cold = RowOf(MaterialNames(), "Steel-AISI 1040 CR");
    EXPECT_EQ(MaterialConstants[hot][kModulusKsi], MaterialConstants[cold][kModulusKsi]);
    EXPECT_NE(MaterialStrengths[hot][kYieldPsi], MaterialStrengths[cold][kYieldPsi]);
}

// Both unit systems were rounded on their own, to about three digits, the strengths to two.
TEST(Materials, BothUnitSystemsSayTheSame)
{
    for (std::size_t row = 0; row < MaterialNames().size(); ++row) {
        const auto& of = MaterialConstants[row];
        EXPECT_NEAR(of[kModulusGPa] / (of[kModulusKsi] * 6.894757e-3), 1, 0.02)
            << MaterialNames()[row];
        EXPECT_NEAR(of[kExpansionPerC], of[kExpansionPerF] * 1.8, 0.4) << MaterialNames()[row];
        EXPECT_NEAR(MaterialStrengths[row][kYieldKPa] /
                        (MaterialStrengths[row][kYieldPsi] * 6.894757),
                    1, 0.02)
            << MaterialNames()[row];
    }
}

} // namespace
} // namespace forcelab
