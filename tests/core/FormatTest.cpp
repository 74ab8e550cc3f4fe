#include "core/ArithmeticFault.h"
#include "core/NumericText.h"
#include "support/Near.h"

#include <gtest/gtest.h>

#include <limits>

namespace forcelab {
namespace {

using test::Local;

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

struct MaskRow {
    double Value;
    const char* Mask;
    const char* Text; ///< with decimal point and thousands comma
};

class Mask : public testing::TestWithParam<MaskRow> {};

TEST_P(Mask, Prints)
{
    EXPECT_EQ(Format(GetParam().Value, GetParam().Mask), Local(GetParam().Text));
}

INSTANTIATE_TEST_SUITE_P(
    OfTheProgram, Mask,
    testing::Values(
        MaskRow{12.5, "########0.000###", "12.500"}, MaskRow{0, "########0.000###", "0.000"},
        MaskRow{1.23456789, "########0.000###", "1.234568"},
        MaskRow{1.2345, "########0.000###", "1.2345"},
        MaskRow{1234567890.5, "########0.000###", "1234567890.500"},
        MaskRow{20, "#######0.00####", "20.00"}, MaskRow{6.125, "#######0.00####", "6.125"},
        MaskRow{5, "#####.####", "5."}, MaskRow{0.25, "#####.####", ".25"},
        MaskRow{0, "#####.####", "."}, MaskRow{1234567.891, "#####.####", "1234567.891"},
        MaskRow{1234.5, "###,###,###,##0.00 ", "1,234.50 "},
        MaskRow{-1234567.891, "###,###,###,##0.00 ", "-1,234,567.89 "},
        MaskRow{0, "###,###,###,##0.00 ", "0.00 "}, MaskRow{12.3456, "###,##0.00#", "12.346"},
        MaskRow{12.34, "###,##0.00#", "12.34"}, MaskRow{-1234.5, "###,##0.00#", "-1,234.50"},
        MaskRow{3, "######0.0#", "3.0"}, MaskRow{3.25, "######0.0#", "3.25"},
        MaskRow{3, "######0.#", "3."}, MaskRow{3.25, "######0.#", "3.3"}, MaskRow{2.5, "0", "3"},
        MaskRow{-2.5, "0", "-3"}, MaskRow{0.4, "0", "0"}, MaskRow{1234567, "0", "1234567"},
        MaskRow{36000, "##,###,###,##0.000", "36,000.000"},
        MaskRow{123456789012.0, "##,###,###,##0.000", "123,456,789,012.000"},
        MaskRow{2.5, "####0.###", "2.5"}, MaskRow{2, "####0.###", "2."},
        MaskRow{5, "+####;-####", "+5"}, MaskRow{-5, "+####;-####", "-5"},
        MaskRow{0, "+####;-####", "+"}, MaskRow{-0.4, "+####;-####", "+"},
        MaskRow{-0.5, "+####;-####", "-1"}, MaskRow{12345, "+####;-####", "+12345"},
        MaskRow{12, "0.", "12."}, MaskRow{0, "0.", "0."}, MaskRow{12, "###,##0.", "12."},
        MaskRow{1.5, "0.", "2."}, MaskRow{5, "#00", "05"}, MaskRow{123, "#00", "123"},
        MaskRow{0, "#00", "00"}, MaskRow{1234, "#00", "1234"},
        MaskRow{0.5, "#.0000000", ".5000000"}, MaskRow{0, "####", ""}, MaskRow{7, "####", "7"}));

INSTANTIATE_TEST_SUITE_P(
    Scientific, Mask,
    testing::Values(
        MaskRow{12345.678, "##0.0000E+00", "12.3457E+03"},
        MaskRow{999.99999, "##0.0000E+00", "1.0000E+03"}, MaskRow{0, "##0.0000E+00", "0.0000E+00"},
        MaskRow{99.99999, "##0.0000E+00", "100.0000E+00"},
        MaskRow{0.00012345, "##0.0000E+00", "123.4500E-06"},
        MaskRow{0.1, "##0.0000E+00", "100.0000E-03"}, MaskRow{0.001, "##0.0000E+00", "1.0000E-03"},
        MaskRow{-1e-9, "##0.0000E+00", "-1.0000E-09"},
        MaskRow{1e100, "##0.0000E+00", "10.0000E+99"},
        MaskRow{1e102, "##0.0000E+00", "1.0000E+102"},
        MaskRow{12345.678, ".0000E+000", ".1235E+005"},
        MaskRow{0.99999, ".0000E+000", ".1000E+001"},
        MaskRow{-0.00012345, ".0000E+000", "-.1235E-003"}, MaskRow{0, ".0000E+000", ".0000E+000"},
        MaskRow{12345.678, "0.00E+00", "1.23E+04"}, MaskRow{9.999, "0.00E+00", "1.00E+01"},
        MaskRow{1.5e15, "###,##0.00E+00", "1.50E+15"}, MaskRow{1.5e15, "E+00", "1.5E+15"},
        MaskRow{-1e15, "E+00", "-1E+15"}, MaskRow{0, "E+00", "0E+00"}));

INSTANTIATE_TEST_SUITE_P(
    Rounding, Mask,
    testing::Values(MaskRow{2.675, "0.00", "2.68"}, MaskRow{-2.675, "0.00", "-2.68"},
                    MaskRow{1.005, "0.00", "1.01"}, MaskRow{0.125, "0.00", "0.13"},
                    MaskRow{0.1 + 0.2, "0.0###############", "0.3"}, MaskRow{0.05, "0.0", "0.1"},
                    MaskRow{0.049999, "0.0", "0.0"}, MaskRow{0.005, "0.0", "0.0"},
                    MaskRow{0.95, "0.0", "1.0"}, MaskRow{9.96, "0.0", "10.0"},
                    MaskRow{999.5, "#,##0", "1,000"},
                    MaskRow{999999.996, "###,##0.00", "1,000,000.00"},
                    MaskRow{123456789012345678.0, "0.0", "123456789012346000.0"},
                    MaskRow{1.0 / 3, "0.00000000000000000000", "0.33333333333333300000"}));

INSTANTIATE_TEST_SUITE_P(SignOfZero, Mask,
                         testing::Values(MaskRow{-0.0, "0.00", "0.00"},
                                         MaskRow{-0.004, "0.00", "0.00"},
                                         MaskRow{-0.005, "0.00", "-0.01"}, MaskRow{-0.0, "", "0"},
                                         MaskRow{-0.3, "0.0 ;-0", "0.0 "},
                                         MaskRow{-12, "0.0 ;-0", "-12"},
                                         MaskRow{-12, "0.0;", "-12.0"}));

INSTANTIATE_TEST_SUITE_P(Grouping, Mask,
                         testing::Values(MaskRow{1, "###,##0", "1"}, MaskRow{100, "###,##0", "100"},
                                         MaskRow{1000, "###,##0", "1,000"},
                                         MaskRow{-100000, "###,##0", "-100,000"},
                                         MaskRow{1234567, "###,##0", "1,234,567"},
                                         MaskRow{5, "0,000", "0,005"}));

INSTANTIATE_TEST_SUITE_P(
    General, Mask,
    testing::Values(MaskRow{0, "", "0"}, MaskRow{1234.5, "", "1234.5"}, MaskRow{-2, "", "-2"},
                    MaskRow{0.1, "", "0.1"}, MaskRow{0.0001, "", "0.0001"},
                    MaskRow{0.00001, "", "1E-05"}, MaskRow{1.0 / 3, "", "0.333333333333333"},
                    MaskRow{123456789012345.0, "", "123456789012345"}, MaskRow{1e15, "", "1E+15"},
                    MaskRow{-1.25e-7, "", "-1.25E-07"}, MaskRow{1e100, "", "1E+100"}));

TEST(Format, RefusesWhatIsNotFinite)
{
    for (const double value : {kInfinite, -kInfinite, kNoNumber})
        for (const char* mask : {"", "0.00", "+0;-0", "0.0E+00"})
            EXPECT_THROW(Format(value, mask), ArithmeticFault) << mask;
}

TEST(Format, PrintsTheLargestDouble)
{
    const std::string text = Format(std::numeric_limits<double>::max(), "0");
    EXPECT_EQ(text.size(), 309u);
    EXPECT_EQ(text.substr(0, 15), "179769313486232");
    EXPECT_EQ(Format(std::numeric_limits<double>::denorm_min(), "0.0E+00"), Local("4.9E-324"));
}

struct ValueRow {
    double Value;
    int Places;
    bool Plain;
    const char* Mantissa;
    const char* Exponent;
    const char* Whole;
};

class Shown : public testing::TestWithParam<ValueRow> {};

TEST_P(Shown, ByFormatValue)
{
    const ValueRow& row = GetParam();
    const FormattedValue text = FormatValue(row.Value, row.Places, row.Plain);
    EXPECT_EQ(text.Mantissa, Local(row.Mantissa));
    EXPECT_EQ(text.Exponent, row.Exponent);
    EXPECT_EQ(text.Whole, Local(row.Whole));
    EXPECT_EQ(text.Joined(), Local(row.Mantissa) + row.Exponent);
}

INSTANTIATE_TEST_SUITE_P(Plain, Shown,
                         testing::Values(ValueRow{0, 3, false, "0.000", "", "0."},
                                         ValueRow{-0.0, 1, true, "0.0", "", "0."},
                                         ValueRow{0.0005, 3, true, "0.001", "", "0."},
                                         ValueRow{0.001, 3, true, "0.001", "", "0."},
                                         ValueRow{1e-13, 2, true, "0.00", "", "0."},
                                         ValueRow{0.0011, 4, false, "0.0011", "", "0."},
                                         ValueRow{999999.9, 1, false, "999,999.9", "",
                                                  "1,000,000."},
                                         ValueRow{1234.5, 0, false, "1,235", "", "1,235."},
                                         ValueRow{-1234.5678, 2, false, "-1,234.57", "", "-1,235."},
                                         ValueRow{1.23456789, 4, false, "1.2346", "", "1."},
                                         ValueRow{1.23456789, 5, false, "1.23457", "", "1."},
                                         ValueRow{1.23456789, 6, false, "1.234568", "", "1."},
                                         ValueRow{1234.5, 7, false, "1234.5", "", "1,235."},
                                         ValueRow{1234.5, -1, false, "1234.5", "", "1,235."}));

INSTANTIATE_TEST_SUITE_P(Scaled, Shown,
                         testing::Values(ValueRow{1234567, 2, false, "1.23", "E+06", "1."},
                                         ValueRow{1234567, 2, true, "1.23", "E+06", "1."},
                                         ValueRow{-0.000002, 1, false, "-2.0", "E-06", "-2."},
                                         ValueRow{0.0005, 1, false, "500.0", "E-06", "500."},
                                         ValueRow{0.001, 3, false, "1.000", "E-03", "1."},
                                         ValueRow{-0.001, 0, false, "-1", "E-03", "-1."},
                                         ValueRow{0.000001, 2, false, "1.00", "E-06", "1."},
                                         ValueRow{2.5e-9, 2, false, "2.50", "E-09", "3."},
                                         ValueRow{2.5e-12, 2, false, "2.50", "E-12", "3."},
                                         ValueRow{1e6, 0, false, "1", "E+06", "1."},
                                         ValueRow{29e6, 3, false, "29.000", "E+06", "29."},
                                         ValueRow{-5.5e9, 1, false, "-5.5", "E+09", "-6."},
                                         ValueRow{9.99e11, 2, false, "999.00", "E+09", "999."},
                                         ValueRow{1e12, 2, false, "1.00", "E+12", "1."},
                                         ValueRow{9.9e14, 1, false, "990.0", "E+12", "990."},
                                         ValueRow{1.5e7, 9, false, "15", "E+06", "15."}));

TEST(FormatValue, TooSmallIsZero)
{
    // The whole part is the mantissa's up to a "."; a decimal comma is skipped.
    const bool comma = Regional::Current.DecimalPoint == ',';
    for (int places = 0; places <= 7; ++places) {
        const FormattedValue text = FormatValue(-1e-13, places, false);
        EXPECT_EQ(text.Mantissa, Local("0.0"));
        EXPECT_EQ(text.Exponent, "");
        EXPECT_EQ(text.Whole, comma ? "00" : "0.");
    }
}

TEST(FormatValue, VeryLargeHasTheMasksExponent)
{
    const bool comma = Regional::Current.DecimalPoint == ',';
    const FormattedValue text = FormatValue(-1.2345e16, 2, true);
    EXPECT_EQ(text.Joined(), Local("-12.35E+15"));
    EXPECT_EQ(text.Exponent, "E+15");
    EXPECT_EQ(text.Whole, comma ? "-123515" : "-12.");
    EXPECT_EQ(FormatValue(1e15, 7, false).Joined(), "1E+15");
    EXPECT_EQ(FormatValue(1e200, 1, false).Joined(), Local("100.0E+198"));
    EXPECT_EQ(FormatValue(1e200, 1, false).Exponent, "+198") << "the last four characters";
}

TEST(FormatValue, FollowsTheSettingsInForce)
{
    DecimalPlaces = 1;
    PlainNumbers = true;
    EXPECT_EQ(FormatValue(0.0005).Joined(), Local("0.0"));
    EXPECT_EQ(FormatValue(12.34).Joined(), Local("12.3"));
    EXPECT_EQ(FormatValue(0.0005, 2, false).Joined(), Local("500.00E-06"));
    EXPECT_EQ(DecimalPlaces, 1);
    EXPECT_TRUE(PlainNumbers);
    DecimalPlaces = 3;
    PlainNumbers = false;
    EXPECT_EQ(FormatValue(0.0005).Joined(), Local("500.000E-06"));
}

TEST(FormatValue, RefusesWhatIsNotFinite)
{
    for (const double value : {kInfinite, -kInfinite, kNoNumber}) {
        EXPECT_THROW(FormatValue(value, 2, false), ArithmeticFault);
        EXPECT_THROW(FormatValue(value, 2, true), ArithmeticFault);
    }
}

} // namespace
} // namespace forcelab
