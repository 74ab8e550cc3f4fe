#include "core/NumericText.h"

#include "core/ArithmeticFault.h"
#include "core/MainModule.h"
#include "support/Near.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace forcelab {
namespace {

using test::Local;
using test::Near;

bool Comma()
{
    return Regional::Current.DecimalPoint == ',';
}

struct ReadRow {
    const char* Text; ///< with decimal point
    double Value;
};

class Typed : public testing::TestWithParam<ReadRow> {};

TEST_P(Typed, IsReadByParseNumber)
{
    EXPECT_TRUE(Near(ParseNumber(Local(GetParam().Text)), GetParam().Value, 1e-15));
}

INSTANTIATE_TEST_SUITE_P(Numbers, Typed,
                         testing::Values(ReadRow{"", 0}, ReadRow{".", 0}, ReadRow{"-", 0},
                                         ReadRow{"abc", 0}, ReadRow{"70", 70},
                                         ReadRow{"-12.5", -12.5}, ReadRow{"+12.5", 12.5},
                                         ReadRow{".5", 0.5}, ReadRow{"5.", 5},
                                         ReadRow{"  7 . 5 ", 7.5}, ReadRow{"1,250.5", 1250.5},
                                         ReadRow{"1,2,5,0", 1250}, ReadRow{"12 ft", 12},
                                         ReadRow{"5 mm", 5}, ReadRow{"007", 7}));
INSTANTIATE_TEST_SUITE_P(
    Exponents, Typed,
    testing::Values(ReadRow{"1e3", 1}, ReadRow{"1.5e3", 1.5}, ReadRow{"1e+3", 1000},
                    ReadRow{"1.5e+3", 1500}, ReadRow{"1e-3", 0.001}, ReadRow{"2E-2", 0.02},
                    ReadRow{"2D+2", 200}, ReadRow{"2d+2", 200}, ReadRow{"1e", 1}, ReadRow{"3e", 3},
                    ReadRow{"1e+", 1}, ReadRow{"2 dm", 2}, ReadRow{"5e-1.5", 5e-15},
                    ReadRow{"1e+-2", 0.01}, ReadRow{"1e-+2", 100}, ReadRow{"1e2+1", 1e21},
                    ReadRow{"1e+2e1", 1e21}, ReadRow{"e+3", 0}, ReadRow{"1e-400", 0},
                    ReadRow{"1e400", 1}, ReadRow{"-2e+3 kN", -2000}));
// The strict reading fails and what stands first counts.
INSTANTIATE_TEST_SUITE_P(FallBack, Typed,
                         testing::Values(ReadRow{"1-2", 1}, ReadRow{"5-", 5}, ReadRow{"--5", 0},
                                         ReadRow{"+-5", 0}, ReadRow{"1-2e+3", 1000}));

TEST(ParseNumber, FallBackKnowsThePointOnly)
{
    // With the decimal comma the fall-back stops at the comma.
    EXPECT_EQ(ParseNumber(Local("1.2.3")), Comma() ? 1 : 1.2);
    EXPECT_EQ(ParseNumber(Local("1.2.3e+1")), Comma() ? 10 : 12);
    EXPECT_EQ(ParseNumber(Local("2.5 dm")), Comma() ? 2 : 2.5);
}

TEST(ParseNumber, TheOtherSeparatorVanishes)
{
    EXPECT_EQ(ParseNumber(Comma() ? "1.250,5" : "1,250.5"), 1250.5);
    EXPECT_EQ(ParseNumber(Comma() ? "1.250" : "1,250"), 1250);
}

TEST(ParseNumber, OverflowIsAFault)
{
    EXPECT_THROW(ParseNumber("1e+400"), ArithmeticFault);
    EXPECT_THROW(ParseNumber("100e+308"), ArithmeticFault);
    EXPECT_THROW(ParseNumber("e+400"), ArithmeticFault) << "the power fails before the mantissa";
    EXPECT_THROW(ParseNumber("1-2e+400"), ArithmeticFault);
    EXPECT_THROW(ParseNumber(std::string(400, '9')), ArithmeticFault);
    EXPECT_THROW(ParseNumber("1e+" + std::string(400, '9')), ArithmeticFault);
    EXPECT_EQ(ParseNumber("1e-" + std::string(300, '9')), 0);
}

TEST(ParseNumber, FollowsDecimalChar)
{
    EXPECT_EQ(MainModule::DecimalChar, Comma() ? 44 : 46);
    EXPECT_EQ(ParseNumber(Local("2.25")), 2.25);
}

TEST(ParseNumber, ThrowsNothingButArithmeticFault)
{
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> byte(0, 255);
    std::uniform_int_distribution<int> length(0, 24);
    constexpr std::string_view kTelling = "0123456789+-.,eEdD ";
    int faults = 0;
    for (int round = 0; round < 100000; ++round) {
        std::string text(length(random), ' ');
        for (char& c : text)
            c = round % 2 == 0 ? static_cast<char>(byte(random))
                               : kTelling[byte(random) % kTelling.size()];
        try {
            EXPECT_TRUE(std::isfinite(ParseNumber(text))) << text;
            EXPECT_TRUE(std::isfinite(StringValue(text))) << text;
        } catch (const ArithmeticFault&) {
            ++faults;
        }
    }
    EXPECT_GT(faults, 0) << "no text of the run had an overflow";
}

class Strict : public testing::TestWithParam<ReadRow> {};

TEST_P(Strict, IsReadWhole)
{
    const auto value = NumberFromText(Local(GetParam().Text));
    ASSERT_TRUE(value.has_value());
    EXPECT_TRUE(Near(*value, GetParam().Value, 1e-15));
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, Strict,
    testing::Values(ReadRow{"0", 0}, ReadRow{"1,234.50", 1234.5}, ReadRow{"1,234,567", 1234567},
                    ReadRow{"-1,234.50", -1234.5}, ReadRow{"+5", 5}, ReadRow{"  5 ", 5},
                    ReadRow{"12.", 12}, ReadRow{".5", 0.5}, ReadRow{"-.5", -0.5},
                    ReadRow{"1e3", 1000}, ReadRow{"1E+03", 1000}, ReadRow{"12.500E-06", 12.5e-6},
                    ReadRow{".1235E+005", 12350}, ReadRow{"1d2", 100}, ReadRow{"1e-400", 0},
                    ReadRow{"0e400", 0}, ReadRow{"5e-324", 5e-324},
                    ReadRow{"1.7976931348623157e308", 1.7976931348623157e308}));

TEST(NumberFromText, RefusesWhatIsNoNumber)
{
    for (const char* text :
         {"",      " ",      ".",   "-",    "+",       "abc",   "5-",    "1-2",
          "1.2.3", "1,,234", ",5",  "5,",   "1.234,5", "12 ft", "1e",    "1e+",
          "- 5",   "--5",    "1 2", "0x10", "inf",     "nan",   "1e400", "-1e400"})
        EXPECT_FALSE(NumberFromText(Local(text)).has_value()) << text;
    EXPECT_FALSE(NumberFromText("1e" + std::string(30, '9')).has_value());
    EXPECT_FALSE(NumberFromText(std::string_view("5\0", 2)).has_value());
}

TEST(NumberFromText, JudgesTheSizeAndNotTheExponentAlone)
{
    const std::string zeros(400, '0');
    EXPECT_TRUE(Near(*NumberFromText(Local("0." + zeros + "5e401")), 5, 1e-15));
    EXPECT_TRUE(Near(*NumberFromText("5" + zeros + "e-400"), 5, 1e-15));
    EXPECT_EQ(*NumberFromText("1e-" + std::string(30, '9')), 0);
    EXPECT_EQ(*NumberFromText(Local("0." + zeros + "5")), 0);
}

class Leading : public testing::TestWithParam<ReadRow> {};

TEST_P(Leading, IsReadWithThePointInAnySetting)
{
    EXPECT_TRUE(Near(LeadingNumber(GetParam().Text), GetParam().Value, 1e-15));
}

INSTANTIATE_TEST_SUITE_P(Numbers, Leading,
                         testing::Values(ReadRow{"", 0}, ReadRow{"abc", 0}, ReadRow{"  12 ft", 12},
                                         ReadRow{"1.2.3", 1.2}, ReadRow{"1,250.5", 1},
                                         ReadRow{"-3.5x", -3.5}, ReadRow{"+4", 4}, ReadRow{"5-", 5},
                                         ReadRow{"1e3", 1000}, ReadRow{"1E+3x", 1000},
                                         ReadRow{"1d-2", 0.01}, ReadRow{"1e", 1}, ReadRow{"1e+", 1},
                                         ReadRow{".", 0}, ReadRow{"-.5", -0.5}, ReadRow{".e5", 0},
                                         ReadRow{"1e-400", 0}));

TEST(LeadingNumber, OverflowIsAFault)
{
    EXPECT_THROW(LeadingNumber("1e400"), ArithmeticFault);
    EXPECT_THROW(LeadingNumber("-1e400 lbs"), ArithmeticFault);
}

TEST(StringValue, ReadsWhatTheProgramWrote)
{
    EXPECT_EQ(StringValue(Local("1,234.50")), 1234.5);
    EXPECT_EQ(StringValue("1e3"), 1000);
    EXPECT_EQ(StringValue("5-"), 5);
    EXPECT_EQ(StringValue(""), 0);
    EXPECT_EQ(StringValue("12 ft"), 12);
    EXPECT_THROW(StringValue("1e400"), ArithmeticFault);
}

TEST(Power, IsFiniteOrAFault)
{
    EXPECT_EQ(Power(10, 3), 1000);
    EXPECT_EQ(Power(10, -400), 0);
    EXPECT_EQ(Power(0, 0), 1);
    EXPECT_THROW(Power(10, 400), ArithmeticFault);
    EXPECT_THROW(Power(-8, 0.5), ArithmeticFault);
    EXPECT_THROW(Power(0, -1), ArithmeticFault);
}

TEST(Format, ReadsBackToItsRounding)
{
    std::mt19937_64 random(77);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    std::uniform_int_distribution<int> order(-7, 8);
    for (int round = 0; round < 100000; ++round) {
        const double value = mantissa(random) * std::pow(10.0, order(random));
        for (const char* mask : {"0.000000", "###,##0.000000"}) {
            const std::string text = Format(value, mask);
            const auto back = NumberFromText(text);
            ASSERT_TRUE(back.has_value()) << text;
            ASSERT_NEAR(*back, value, 0.56e-6) << text;
        }
    }
}

} // namespace
} // namespace forcelab
