#include "core/Materials.h"

namespace forcelab {

namespace {

constexpr std::array<std::string_view, 20> kNames{
    "Aluminum 2014-T6",
    "Aluminum 6061-T6",
    "Brass-C36000, Hard",
    "Brass-C83400",
    "Bronze C86100",
    "Concrete-Low Strength",
    "Concrete-Medium Strength",
    "Gray Cast Iron-A48 Gr.20",
    "Magnesium Am 1004-T61",
    "Monel, wrought, HR",
    "Steel-A36 Structural",
    "Steel-AISI 1020 HR",
    "Steel-AISI 1040 CR",
    "Steel-SAE 4340, HT",
    "Steel-Stainless 304 CR",
    "Stainless Steel 18-8 CR",
    "Titanium Ti-6Al-4V",
    "Wood-Douglas fir",
    "Wood-Southern Pine",
    "Wood-White Spruce",
};

constexpr std::array<std::string_view, 15> kShearNames{
    "Aluminum 2014-T6",       "Aluminum 6061-T6",        "Brass-C36000, Hard",
    "Brass-C83400",           "Bronze C86100",           "Gray Cast Iron-A48 Gr.20",
    "Magnesium Am 1004-T61",  "Monel, wrought, HR",      "Steel-A36 Structural",
    "Steel-AISI 1020 HR",     "Steel-AISI 1040 CR",      "Steel-SAE 4340, HT",
    "Stainless Steel 304 CR", "Stainless Steel 18-8 CR", "Titanium Ti-6Al-4V",
};

} // namespace

// E ksi, E GPa, alpha per F, alpha per C, Poisson. Woods have no coefficient of expansion.
const std::array<std::array<double, 5>, 31> MaterialConstants{{
    {10600, 73.1, 12.8, 23, 0.33}, {10000, 68.9, 13, 23.4, 0.33}, {16000, 110, 11.4, 20.5, 0.34},
    {14600, 101, 9.8, 18, 0.35},   {15000, 103, 9.6, 17, 0.34},   {3100, 21.5, 6, 10.8, 0.15},
    {4400, 30.4, 6, 10.8, 0.15},   {12200, 84, 6, 10.8, 0.27},    {6480, 44.7, 14.3, 26, 0.3},
    {26000, 180, 7.8, 14, 0.32},   {29000, 200, 6.6, 12, 0.32},   {30000, 207, 6.5, 11.7, 0.29},
    {30000, 207, 6.3, 11.3, 0.29}, {29000, 200, 6.6, 11.9, 0.32}, {28000, 193, 9.6, 17, 0.27},
    {28000, 190, 9.6, 17.3, 0.27}, {16500, 114, 5.3, 9.5, 0.3},   {1900, 13.1, 0, 0, 0.29},
    {1900, 13.1, 0, 0, 0.29},      {1400, 9.65, 0, 0, 0.31},
}};

// Yield psi, yield kPa.
const std::array<std::array<double, 2>, 21> MaterialStrengths{{
    {60000, 414000},   {40000, 275000},   {45000, 310000}, {11400, 79000},   {50000, 345000},
    {3000, 21000},     {6000, 41400},     {20000, 138000}, {22000, 152000},  {50000, 340000},
    {36000, 250000},   {48000, 331000},   {82000, 565000}, {132000, 910000}, {30000, 207000},
    {165000, 1140000}, {155000, 1070000}, {1900, 13100},   {1900, 13100},    {1400, 9650},
}};

// G ksi, G GPa.
const std::array<std::array<double, 2>, 31> MaterialShear{{
    {4000, 28},
    {3800, 26},
    {6000, 41.25},
    {5400, 37},
    {5600, 38},
    {4880, 33.6},
    {2500, 18},
    {9500, 66},
    {11000, 76},
    {11500, 80},
    {11500, 80},
    {11000, 76},
    {11000, 75},
    {12500, 86},
    {6100, 42},
}};

std::span<const std::string_view> MaterialNames()
{
    return kNames;
}

std::span<const std::string_view> ShearMaterialNames()
{
    return kShearNames;
}

} // namespace forcelab
