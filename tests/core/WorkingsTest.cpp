#include "core/Workings.h"

#include "support/NarrationProof.h"
#include "support/Near.h"

#include <random>

namespace forcelab {
namespace {

using test::Local;
using test::Near;
using test::ProveLine;

constexpr NumberStyle kPlain{"#,##0.0"};

Expression N(double value)
{
    return Number(value, kPlain);
}

std::string Text(const Expression& expression)
{
    return expression.Print(0).Text;
}

TEST(Workings, NumbersPrintByTheirStyle)
{
    EXPECT_EQ(Text(N(1234.56)), Local("1,234.6"));
    EXPECT_EQ(Text(Number(12.345, {"##0.0#", "°"})), Local("12.35°"));
    EXPECT_EQ(Text(Number(3.4e-4, {"##0.0", "E-06"})), Local("340.0E-06"));
    EXPECT_EQ(NumberStyle({"##0.0", "E-06"})(-3.4e-4), Local("-340.0E-06"));
    EXPECT_EQ(Text(7), "7");
}

TEST(Workings, MorePlacesGoInFrontOfAnExponent)
{
    EXPECT_EQ(N(1.2345).Print(2).Text, Local("1.235"));
    EXPECT_EQ(Number(1234.5, {"##0.0E+00"}).Print(3).Text, Local("1.2345E+03"));
}

TEST(Workings, ThePrintAmountsToItsOwnNumbers)
{
    const Expression third = N(1.0 / 3);
    EXPECT_TRUE(Near(third.Print(0).Value, 0.3, 1e-12));
    EXPECT_TRUE(Near((third * third).Print(1).Value, 0.33 * 0.33, 1e-12));
    EXPECT_TRUE(Near((third * third).Unrounded().Value, 1.0 / 9, 1e-12));
    EXPECT_TRUE(Near(Number(3.44e-4, {"##0", "E-06"}).Print(0).Value, 344e-6, 1e-12));
}

TEST(Workings, SizeCancelsNothing)
{
    const Printed print = ((N(5) - N(3) + -N(4)) / N(-2)).Unrounded();
    EXPECT_TRUE(Near(print.Value, 1, 1e-12));
    EXPECT_TRUE(Near(print.Size, 6, 1e-12));
    EXPECT_EQ(Root(Raised(N(3), 2) + Raised(N(4), 2)).Unrounded().Size, 5);
}

TEST(Workings, ParenthesesStandWhereTheOrderOfOperationsAsksForThem)
{
    const Expression a = N(1), b = N(2), c = N(3);
    EXPECT_EQ(Text(a + b - c), Local("1.0 + 2.0 - 3.0"));
    EXPECT_EQ(Text(a - (b + c)), Local("1.0 - (2.0 + 3.0)"));
    EXPECT_EQ(Text((a + b) * (b - c)), Local("(1.0 + 2.0) × (2.0 - 3.0)"));
    EXPECT_EQ(Text(a * b / c), Local("1.0 × 2.0 ÷ 3.0"));
    EXPECT_EQ(Text(a / (b * c)), Local("1.0 ÷ (2.0 × 3.0)"));
    EXPECT_EQ(Text(a + b / 2), Local("1.0 + 2.0 ÷ 2"));
    EXPECT_EQ(Text(-(a + b)), Local("-(1.0 + 2.0)"));
    EXPECT_EQ(Text(-(a * b)), Local("-1.0 × 2.0"));
    EXPECT_EQ(Text(Raised(a - b, 3)), Local("(1.0 - 2.0)³"));
    EXPECT_EQ(Text(Raised(a, 1) * Raised(b, 4)), Local("1.0 × 2.0⁴"));
    EXPECT_EQ(Text(Raised(a * b, 2)), Local("(1.0 × 2.0)²"));
    EXPECT_EQ(Text(-Grouped(a * b)), Local("-(1.0 × 2.0)"));
    EXPECT_EQ(Text(Raised(Raised(a, 2), 3)), Local("(1.0²)³"));
}

TEST(Workings, ANumberBelowZeroStandsInParenthesesUnlessItBeginsASum)
{
    const Expression plus = N(2), minus = N(-3);
    EXPECT_EQ(Text(minus), Local("-3.0"));
    EXPECT_EQ(Text(minus + plus), Local("-3.0 + 2.0"));
    EXPECT_EQ(Text(plus + minus), Local("2.0 + (-3.0)"));
    EXPECT_EQ(Text(plus - minus), Local("2.0 - (-3.0)"));
    EXPECT_EQ(Text(minus * plus), Local("(-3.0) × 2.0"));
    EXPECT_EQ(Text(plus / minus), Local("2.0 ÷ (-3.0)"));
    EXPECT_EQ(Text(-minus), Local("-(-3.0)"));
    EXPECT_EQ(Text(plus * -plus), Local("2.0 × (-2.0)"));
    EXPECT_EQ(Text(plus - (minus + plus)), Local("2.0 - (-3.0 + 2.0)"));
    EXPECT_EQ(Text(plus + (minus + plus)), Local("2.0 + (-3.0 + 2.0)"));
    EXPECT_EQ(Text(Raised(minus, 2)), Local("(-3.0)²"));
    EXPECT_EQ(Text(Cos(minus)), Local("cos(-3.0)"));
    EXPECT_EQ(Text(plus + Expression(-1)), Local("2.0 + (-1)"));
    EXPECT_EQ(Text(N(-0.04)), Local("0.0")) << "prints as zero";
}

TEST(Workings, FunctionsTakeDegrees)
{
    const Expression angle = Number(30, {"##0.0#", "°"});
    EXPECT_EQ(Text(Sin(angle) + Root(3)), Local("sin(30.0°) + √(3)"));
    EXPECT_TRUE(Near(Sin(angle).Print(0).Value, 0.5, 1e-12));
    EXPECT_TRUE(Near(Cos(2 * angle).Print(0).Value, 0.5, 1e-12));
    EXPECT_TRUE(Near(Atan(Root(3) / 3).Print(0).Value, 30, 1e-12));
}

TEST(Workings, SumOfAList)
{
    EXPECT_EQ(Text(Sum(std::vector<Expression>{})), "0");
    EXPECT_EQ(Text(Sum(std::vector{N(1), N(-2), N(3)})), Local("1.0 + (-2.0) + 3.0"));
    EXPECT_EQ(Text(Sum({{true, N(1)}, {false, N(2)}, {true, N(-3)}})),
              Local("-1.0 + 2.0 - (-3.0)"));
}

TEST(WriteLine, HasNameSymbolsNumbersResultAndUnit)
{
    EXPECT_EQ(WriteLine({"V", "P ÷ 2", {N(9) / 2}, kPlain, "kN"}),
              Local("V = P ÷ 2 = 9.0 ÷ 2 = 4.5 kN"));
    EXPECT_EQ(WriteLine({"V", "", {N(9) / 2}, kPlain}), Local("V = 9.0 ÷ 2 = 4.5"));
}

TEST(WriteLine, LeavesOutASingleNumberThatIsTheResult)
{
    EXPECT_EQ(WriteLine({"C1", "-T", {N(-4.5)}, kPlain, "kN"}), Local("C1 = -T = -4.5 kN"));
    EXPECT_EQ(WriteLine({"C1", "", {Number(4.25, {"0.0##"})}, NumberStyle{"0.00"}}),
              Local("C1 = 4.25"));
    EXPECT_EQ(WriteLine({"P", "", {N(-10)}, NumberStyle{"0.000"}}), Local("P = -10.000"));
    EXPECT_EQ(WriteLine({"P", "", {-N(-10)}, kPlain}), Local("P = -(-10.0) = 10.0"));
}

TEST(WriteLine, AddsPlacesUntilThePrintGivesTheResult)
{
    EXPECT_EQ(WriteLine({"M", "", {N(100.04) * N(100)}, kPlain}),
              Local("M = 100.04 × 100.0 = 10,004.0"));
    EXPECT_EQ(WriteLine({"q", "", {N(3) / N(0.004)}, kPlain}), Local("q = 3.0 ÷ 0.004 = 750.0"))
        << "under one decimal the divisor would be zero";
}

TEST(WriteLine, ProvesEveryOneOfItsForms)
{
    const Expression a = N(3.04), b = N(40.06);
    const std::string line =
        WriteLine({"R",
                   "",
                   {Root(Raised(a, 2) + Raised(b, 2)),
                    Root(Worked(Raised(a, 2), kPlain) + Worked(Raised(b, 2), kPlain))},
                   NumberStyle{"0.000"}});
    EXPECT_EQ(line, Local("R = √(3.04² + 40.06²) = √(9.24 + 1,604.8) = 40.175"));
    EXPECT_EQ(ProveLine(line), 2);
}

/// A result that another part of the program works out may differ in its last bit.
TEST(WriteLine, ShowsTheResultThatItIsGiven)
{
    const double sum = 0.1 + 0.2;
    const WorkedLine line{"a", "", {N(0.1) + N(0.2)}, NumberStyle{"0.0##"}, "", 0.3};
    EXPECT_NE(sum, 0.3);
    EXPECT_EQ(WriteLine(line), Local("a = 0.1 + 0.2 = 0.3"));
}

/// Expressions as they come, of numbers of every size.
class AnyArithmetic : public testing::TestWithParam<unsigned> {
  protected:
    Expression Grow(int depth)
    {
        if (depth == 0) return N(Size());
        const Expression a = Grow(depth - 1);
        switch (random_() % 6) {
        case 0:
            return a + Grow(depth - 1);
        case 1:
            return a - Grow(depth - 1);
        case 2:
            return a * Grow(depth - 1);
        case 3:
            return a / N(Size());
        case 4:
            return -a;
        default:
            return random_() % 2 == 0 ? Raised(a, 2) : Root(Raised(a, 2));
        }
    }

  private:
    double Size()
    {
        const double size = std::pow(10.0, static_cast<int>(random_() % 5) - 2);
        return size * (static_cast<int>(random_() % 2001) - 1000.5) / 250;
    }
    std::mt19937 random_{GetParam()};
};

TEST_P(AnyArithmetic, HoldsAsItIsPrinted)
{
    for (int k = 0; k < 20; ++k) {
        const Expression grown = Grow(1 + k % 3);
        const std::string line = WriteLine({"x", "", {grown}, NumberStyle{"#,##0.000"}});
        const auto value = test::PrintedArithmetic::Compute(test::Terms(line)[1]);
        ASSERT_TRUE(value) << line;
        const auto result = test::ReadResult(test::Terms(line).back());
        EXPECT_NEAR(*value, result->Value, 0.0005001 + 1e-12 * grown.Unrounded().Size) << line;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, AnyArithmetic, testing::Range(1U, 31U));

} // namespace
} // namespace forcelab
