#include "BeamBuilders.h"

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;

namespace {

DefinitionText Typed(const std::string& length, const std::string& left = "",
                     const std::string& right = "")
{
    return {Local(length), Local(left), Local(right)};
}

BeamRecord OfType(int type)
{
    BeamRecord beam;
    beam.SupportType = type;
    return beam;
}

LoadText Point(const std::string& x, const std::string& w, int type = kPointDown)
{
    return {type, Local(x), "", {Local(w), "", ""}, kFoot, kLb};
}
LoadText Uniform(const std::string& x1, const std::string& x2, const std::string& w)
{
    return {kUniformDown, Local(x1), Local(x2), {Local(w), "", ""}, kFoot, kLb};
}

void ExpectRefusal(const std::optional<Refusal>& refusal, const std::string& title,
                   const std::string& text, const std::string& focus)
{
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->Icon, 16);
    EXPECT_EQ(refusal->Title, title);
    EXPECT_EQ(refusal->Text, text);
    EXPECT_EQ(refusal->Focus, focus);
}

std::vector<std::string> Locals(std::vector<std::string> lines)
{
    for (std::string& line : lines) line = Local(line);
    return lines;
}

TEST(DefineBeam, StoresASimpleBeamInInches)
{
    BeamRecord beam = OfType(kTwoSupports);
    DefinitionText text = Typed("10", "2", "8.5");
    const Definition result = DefineBeam(beam, text, kFoot);
    EXPECT_FALSE(result.Refused || result.Notice);
    EXPECT_TRUE(Near(beam.BeamLength, 120));
    EXPECT_TRUE(Near(beam.SupportA, 24));
    EXPECT_TRUE(Near(beam.SupportB, 102));
    EXPECT_EQ(beam.BeamLengthUnit, kFoot);
    EXPECT_EQ(beam.BeamLengthFactor, 12);
    EXPECT_EQ(text.Length, Local("10.00"));
    EXPECT_EQ(text.Left, Local("2.00"));
    EXPECT_EQ(text.Right, Local("8.50"));
}

TEST(DefineBeam, DropsSignsAndStrayLetters)
{
    BeamRecord beam = OfType(kFixedLeft);
    DefinitionText text = Typed("-3.1234567 m");
    EXPECT_FALSE(DefineBeam(beam, text, kMetre).Refused);
    EXPECT_EQ(text.Length, Local("3.123457"));
    EXPECT_TRUE(Near(beam.BeamLength, 3.1234567 * 1000 / 25.4));
    EXPECT_EQ(beam.SupportA, 0);
    EXPECT_EQ(beam.SupportB, beam.BeamLength);
}

TEST(DefineBeam, RefusesNoLength)
{
    for (const std::string typed : {"0", "", "abc"}) {
        BeamRecord beam = OfType(kTwoSupports);
        DefinitionText text = Typed(typed, "1", "2");
        ExpectRefusal(DefineBeam(beam, text, kFoot).Refused, "Beam Definition Error",
                      "Enter a non-zero length for the beam.", "txtBeamLength");
        EXPECT_EQ(text.Length, Local("0.00")) << "the box is written back all the same";
        EXPECT_EQ(beam.BeamLength, 0);
    }
}

TEST(DefineBeam, RefusesEqualSupports)
{
    BeamRecord beam = OfType(kTwoSupports);
    DefinitionText text = Typed("10", "4", "-4");
    ExpectRefusal(DefineBeam(beam, text, kFoot).Refused, "Beam Definition Error",
                  "Both supports cannot be at the same location.", "txtRightSimple");
    EXPECT_EQ(text.Left, Local("4.00"));
    EXPECT_EQ(text.Right, "-4") << "the right box is not reached";
}

TEST(DefineBeam, ExchangesSupportsButNotTheLeftBox)
{
    BeamRecord beam = OfType(kTwoSupports);
    DefinitionText text = Typed("10", "8", "2");
    EXPECT_FALSE(DefineBeam(beam, text, kInch).Refused);
    EXPECT_EQ(beam.SupportA, 2);
    EXPECT_EQ(beam.SupportB, 8);
    EXPECT_EQ(text.Left, Local("8.00"));
    EXPECT_EQ(text.Right, Local("8.00"));
}

TEST(DefineBeam, RefusesSupportsOffTheBeam)
{
    struct Row {
        std::string Left, Right, Focus;
    };
    for (const Row& row : {Row{"1", "10.5", "txtRightSimple"}, Row{"11", "12", "txtLeftSimple"}}) {
        BeamRecord beam = OfType(kTwoSupports);
        DefinitionText text = Typed("10", row.Left, row.Right);
        ExpectRefusal(DefineBeam(beam, text, kFoot).Refused, "Beam Definition Error",
                      "The location specified for the support\r\n"
                      "is not within the length of the beam.",
                      row.Focus);
    }
}

TEST(DefineBeam, LeavesRefusedNumbersInTheRecord)
{
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointDown, 5, 0, 1, kLb);
    DefinitionText text = Typed("20", "3", "25");
    EXPECT_TRUE(DefineBeam(beam, text, kMetre).Refused);
    EXPECT_EQ(beam.BeamLength, 20) << "in the units typed";
    EXPECT_EQ(beam.SupportA, 3);
    EXPECT_EQ(beam.SupportB, 25);
    EXPECT_EQ(beam.BeamLengthUnit, kFoot);
    EXPECT_EQ(beam.BeamLengthFactor, 12);
    EXPECT_EQ(beam.LoadCount, 1);
}

TEST(DefineBeam, DeletesLoadsBeyondAShorterLength)
{
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointDown, 9, 0, 1, kLb);
    Add(beam, kPointUp, 2, 0, 2, kLb);
    Add(beam, kUniformDown, 1, 9, 3, kLb);
    Add(beam, kMomentCw, 9, 0, 4, kLb);
    Add(beam, kMomentCcw, 8, 0, 5, kLb);
    DefinitionText text = Typed("8", "0", "8");
    const Definition result = DefineBeam(beam, text, kFoot);
    EXPECT_FALSE(result.Refused);
    ExpectRefusal(result.Notice, "Beam Definition Error",
                  "Some of the previously specified loads do\r\n"
                  "not fall within the specified beam length.\r\n\r\n"
                  "These loads will be deleted.",
                  "");
    EXPECT_EQ(beam.LoadCount, 2);
    EXPECT_THAT(MakeLabels(beam), Locals({"1P = 2. lbs (up)", "1M = 5. ft-lbs (ccw)"}));
}

TEST(DefineBeam, KeepsLoadsThatStillFit)
{
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointDown, 10, 0, 1, kLb);
    DefinitionText text = Typed("120", "0", "120");
    const Definition result = DefineBeam(beam, text, kInch);
    EXPECT_FALSE(result.Refused || result.Notice);
    EXPECT_EQ(beam.LoadCount, 1);
}

TEST(EnterLoad, StoresValuesInBaseUnits)
{
    BeamRecord beam = Simple(10, kMetre);
    EXPECT_FALSE(EnterLoad(beam, {kUniformUp, Local("-1"), "4", {"1e3", "7", "7"}, kMetre, kKn}));
    EXPECT_EQ(beam.LoadCount, 1);
    EXPECT_EQ(beam.LoadType[1], kUniformUp);
    EXPECT_EQ(beam.LoadClass[1], kUniformLoad);
    EXPECT_TRUE(Near(beam.LoadX[1][1], 1000 / 25.4)) << "without its sign";
    EXPECT_TRUE(Near(beam.LoadX[1][2], 4000 / 25.4));
    const double w = 1000 * 1000 * 0.224809 / 1000 * 25.4;
    EXPECT_TRUE(Near(beam.LoadMagnitude[1][kUnfactored], -w)) << "1e3 reads 1000";
    EXPECT_EQ(beam.LoadMagnitude[1][kService], beam.LoadMagnitude[1][kUnfactored]);
    EXPECT_EQ(beam.LoadUnitIndex[1][1], kMetre);
    EXPECT_EQ(beam.LoadUnitIndex[1][2], kKn);
    EXPECT_EQ(beam.LoadUnitFactor[1][1], 1000 / 25.4);
    EXPECT_EQ(beam.UniformLoadIndex[1], 1);
    EXPECT_EQ(beam.UniformMagnitude[1], beam.LoadMagnitude[1][kUnfactored]);
    EXPECT_EQ(beam.CurrentLoad, 2);
    EXPECT_EQ(beam.DiagramEntry, 4000);
}

TEST(EnterLoad, SignsFollowTheType)
{
    BeamRecord beam = Simple(10, kFoot);
    for (int type = 0; type < kLoadKinds; ++type)
        EXPECT_FALSE(EnterLoad(beam, {type, "1", "2", {"-12", "", ""}, kFoot, kLb}));
    const double expected[] = {-12, 12, -1, 1, 144, -144};
    for (int row = 1; row <= 6; ++row)
        EXPECT_TRUE(Near(beam.LoadMagnitude[row][kUnfactored], expected[row - 1])) << row;
    EXPECT_EQ(beam.LoadX[1][2], beam.LoadX[1][1]) << "a point has both ends alike";
    EXPECT_EQ(beam.LoadName[6], "2M");
}

TEST(EnterLoad, DeadAndLive)
{
    BeamRecord beam = Simple(20, kFoot);
    UseLoadFactors(beam, 1);
    EXPECT_FALSE(EnterLoad(beam, {kPointUp, "5", "", {"99", "2", "3"}, kFoot, kKip}));
    const auto& m = beam.LoadMagnitude[1];
    EXPECT_EQ(m[kUnfactored], 0) << "not used";
    EXPECT_TRUE(Near(m[kDead], -2000));
    EXPECT_TRUE(Near(m[kLive], -3000));
    EXPECT_TRUE(Near(m[kService], -5000));
    EXPECT_TRUE(Near(m[kFactored], -7200));
}

TEST(EnterLoad, RefusesALocationOffTheBeam)
{
    BeamRecord beam = Simple(10, kFoot);
    for (const LoadText& text : {Point("10.001", "5"), Uniform("0", "10.5", "1"),
                                 Uniform("11", "2", "1"), Point("-11", "1")})
        ExpectRefusal(EnterLoad(beam, text), "Load Location Error",
                      "The x-coordinate entered for the load location\r\n"
                      "does not fall within the specified beam length.",
                      "");
    EXPECT_EQ(beam.LoadCount, 0);
    EXPECT_EQ(beam.LoadUnitFactor[1][1], 0) << "nothing was stored";
    EXPECT_FALSE(EnterLoad(beam, Point("10", "5"))) << "the end itself is on the beam";
}

TEST(EnterLoad, RefusesTheFortyFirst)
{
    BeamRecord beam = Simple(10, kFoot);
    for (int i = 0; i < 40; ++i) EXPECT_FALSE(EnterLoad(beam, Point("5", "1")));
    ExpectRefusal(EnterLoad(beam, Point("5", "1")), "Too Many Specified Loads",
                  "Forcelab accepts only 40 loads on the determinate beam.  ", "");
    EXPECT_EQ(beam.LoadCount, 40);
    EXPECT_EQ(EnterLoad(beam, Point("11", "1"))->Title, "Load Location Error") << "looked at first";
    EXPECT_FALSE(RedoLoad(beam)) << "there is no row 41";
}

TEST(EnterLoad, AcceptsNoMagnitudeAndAReversedUniformLoad)
{
    BeamRecord beam = Simple(10, kFoot);
    EXPECT_FALSE(EnterLoad(beam, Point("5", "")));
    EXPECT_FALSE(EnterLoad(beam, Uniform("6", "2", "12")));
    EXPECT_EQ(beam.LoadMagnitude[1][kUnfactored], 0);
    EXPECT_EQ(beam.LoadX[2][1], 72);
    EXPECT_EQ(beam.LoadX[2][2], 24);
}

} // namespace
