#include "transform/Failure.h"

#include "core/MainModule.h"
#include "core/RecordingPicture.h"
#include "support/Near.h"

using namespace forcelab;
using namespace forcelab::transform;
using forcelab::test::Local;
using forcelab::test::Near;
using testing::Contains;

namespace {

struct Verdict {
    const char* Name;
    FailureEntry Entry;
    bool Fails;
};
class Verdicts : public testing::TestWithParam<Verdict> {};

TEST_P(Verdicts, AreTheSameByFormulaAndInThePicture)
{
    EXPECT_EQ(MaterialFails(GetParam().Entry), GetParam().Fails);
    RecordingPicture pic(300, 300);
    EXPECT_EQ(DrawFailure(pic, GetParam().Entry), GetParam().Fails);
    EXPECT_THAT(pic.Texts(),
                Contains(GetParam().Fails ? "The material fails" : "The material does not fail"));
    EXPECT_TRUE(pic.Smooth);
}

INSTANTIATE_TEST_SUITE_P(
    Theories, Verdicts,
    testing::Values(Verdict{"TrescaOpposite", {0, 30, -30, 50, 0}, true},
                    Verdict{"VonMisesOpposite", {1, 30, -30, 50, 0}, true},
                    Verdict{"RankineOpposite", {2, 30, -30, 50, 0}, false},
                    Verdict{"TrescaOnTheBoundary", {0, 25, -25, 50, 0}, true},
                    Verdict{"TrescaWithinTheBoundary", {0, 24.9, -25, 50, 0}, false},
                    Verdict{"TrescaAlike", {0, 40, 40, 50, 0}, false},
                    Verdict{"VonMisesAlike", {1, 40, 40, 50, 0}, false},
                    Verdict{"RankineAlike", {2, 40, 40, 50, 0}, false},
                    Verdict{"MohrAlike", {3, 40, 40, 50, 50}, false},
                    Verdict{"TrescaUniaxial", {0, 50, 0, 50, 0}, true},
                    Verdict{"VonMisesOnTheBoundary", {1, 50, 50, 50, 0}, true},
                    Verdict{"RankineOnTheBoundary", {2, -50, 10, 50, 0}, true},
                    Verdict{"MohrStrongInCompression", {3, 10, -90, 50, 150}, false},
                    Verdict{"MohrMixedBeyond", {3, 40, -90, 50, 150}, true},
                    Verdict{"MohrWeakInCompression", {3, -30, -30, 50, 20}, true},
                    Verdict{"MohrWeakButInside", {3, 20, 30, 50, 20}, false},
                    Verdict{"MohrWithoutCompression", {3, -10, 20, 50, 0}, true},
                    Verdict{"MohrTinyLimits", {3, 5000, -5000, 1, 2}, true}),
    [](const auto& row) { return std::string(row.param.Name); });

/// Where the limits have no room on the sheet the seed lies outside, and nothing is filled.
TEST(DrawFailure, TinyLimitsFillNothing)
{
    RecordingPicture pic(300, 300);
    EXPECT_TRUE(DrawFailure(pic, {3, 5000, -5000, 1, 2}));
    EXPECT_TRUE(pic.All(RecordedOperation::Kind::Flood).empty());
}

TEST(DrawFailure, ZeroLimitsPrompt)
{
    RecordingPicture pic(300, 300);
    const char* prompts[] = {"Enter the yield stress", "Enter the yield stress",
                             "Enter the ultimate stress", "Enter the ultimate stress"};
    for (int theory = 0; theory < 4; ++theory) {
        EXPECT_FALSE(DrawFailure(pic, {theory, 70, -30, 0, 90}));
        EXPECT_THAT(pic.Texts(), testing::ElementsAre(prompts[theory]));
        EXPECT_TRUE(pic.All(RecordedOperation::Kind::Path).empty());
    }
}

TEST(DrawFailure, TheDotTakesTheColourOfTheVerdict)
{
    RecordingPicture pic(300, 300);
    DrawFailure(pic, {0, 70, -30, 90, 0});
    auto dot = pic.All(RecordedOperation::Kind::Ellipse).back();
    EXPECT_EQ(dot.Fill, IndexedColour(12));
    EXPECT_EQ(dot.Points[0], (PicturePoint{70, -30}));
    EXPECT_TRUE(Near(dot.Radius, 3 * 90.0 / 80));
    DrawFailure(pic, {2, 70, -30, 90, 0});
    EXPECT_EQ(pic.All(RecordedOperation::Kind::Ellipse).back().Fill, IndexedColour(14));
}

TEST(DrawFailure, TheScaleHoldsTheLargestSize)
{
    RecordingPicture pic(300, 300);
    DrawFailure(pic, {3, 10, -20, 30, 100});
    EXPECT_TRUE(Near(pic.ScaleLeft(), -150));
    EXPECT_TRUE(Near(pic.ScaleTop(), 150));
    DrawFailure(pic, {0, 10, -20, 30, 100}); // no limit for compression here
    EXPECT_TRUE(Near(pic.ScaleTop(), 45));
}

TEST(DrawFailure, AxesCarryGreekWhereTheSystemHasIt)
{
    RecordingPicture pic(300, 300);
    DrawFailure(pic, {0, 10, -20, 30, 0});
    EXPECT_THAT(pic.Texts(), testing::IsSupersetOf({"sig1", "sig2"}));
    MainModule::SymbolFontPresent = true;
    DrawFailure(pic, {0, 10, -20, 30, 0});
    MainModule::SymbolFontPresent = false;
    EXPECT_THAT(pic.Texts(), testing::IsSupersetOf({"σ1", "σ2"}));
    EXPECT_EQ(pic.FontName, "MS Sans Serif");
    EXPECT_TRUE(Near(pic.FontSize, 8));
}

/// The ellipse holds every state whose equivalent stress is the limit.
TEST(DrawFailure, EllipseFollowsTheDistortionEnergy)
{
    RecordingPicture pic(300, 300);
    DrawFailure(pic, {1, 10, -20, 50, 0});
    const auto curve = pic.All(RecordedOperation::Kind::Path).front().Points;
    ASSERT_EQ(curve.size(), 101U);
    for (const PicturePoint& p : curve)
        EXPECT_TRUE(Near(p.X * p.X + p.Y * p.Y - p.X * p.Y, 2500, 1e-9));
}

TEST(ReadFailureEntry, LimitsCountByTheirSize)
{
    const FailureEntry entry =
        ReadFailureEntry(3, Local("70.5"), Local("-30"), Local("-1,250.5"), "-90");
    EXPECT_TRUE(Near(entry.Sigma1, 70.5));
    EXPECT_TRUE(Near(entry.Sigma2, -30));
    EXPECT_TRUE(Near(entry.Yield, 1250.5));
    EXPECT_TRUE(Near(entry.Compression, 90));
}

TEST(Limits, AreConvertedBetweenUnits)
{
    EXPECT_EQ(ConvertLimit(Local("36.000"), 1, 0), Local("36,000.000"));
    EXPECT_EQ(ConvertLimit(Local("-36,000"), 0, 3), Local("248.211"));
    EXPECT_EQ(ConvertLimit(Local("250"), 3, 2), Local("250,000.000"));
    EXPECT_EQ(ConvertLimit("", 0, 3), Local("0.000"));
}

TEST(Limits, ComeFromTheMaterialsTable)
{
    EXPECT_EQ(MaterialLimit(2, 0), Local("45,000.000")); // hard brass
    EXPECT_EQ(MaterialLimit(2, 1), Local("45.000"));
    EXPECT_EQ(MaterialLimit(2, 2), Local("310,000.000"));
    EXPECT_EQ(MaterialLimit(2, 3), Local("310.000"));
    EXPECT_EQ(MaterialLimit(1000, 0), Local("0.000"));
}

TEST(FailureTheories, NameTheirInputs)
{
    EXPECT_EQ(kFailureTheories[0].InputLabel, "Yield Stress\r\n");
    EXPECT_EQ(kFailureTheories[2].InputLabel, "Ultimate Stress\r\n");
    EXPECT_EQ(kFailureTheories[3].InputLabel, "Tension Ultimate");
    EXPECT_TRUE(kFailureTheories[3].HasCompression);
}

} // namespace
