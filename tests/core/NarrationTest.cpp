#include "core/Narration.h"

#include <gtest/gtest.h>

namespace forcelab {
namespace {

TEST(Narration, IsEmptyAtFirst)
{
    EXPECT_EQ(Narration().Text(), "");
    EXPECT_EQ(Narration().Paragraph().Text(), "") << "nothing to keep apart";
}

TEST(Narration, SentencesGoOnInTheirParagraph)
{
    Narration text;
    text.Sentence("The rod is in tension.").Sentence("It controls.");
    EXPECT_EQ(text.Text(), "The rod is in tension. It controls.");
}

TEST(Narration, LinesStandAlone)
{
    Narration text;
    text.Sentence("First.").Line("A = 2").Line("B = 3").Sentence("Last.");
    EXPECT_EQ(text.Text(), "First.\r\nA = 2\r\nB = 3\r\nLast.");
}

TEST(Narration, ParagraphLeavesOneEmptyLine)
{
    Narration text;
    text.Sentence("One.").Paragraph().Paragraph().Sentence("Two.");
    EXPECT_EQ(text.Text(), "One.\r\n\r\nTwo.");
}

TEST(Narration, HeadingHasAnEmptyLineBeforeIt)
{
    Narration text;
    text.Heading("Given").Line("P = 5 kips").Heading("Found").Sentence("Stress.");
    EXPECT_EQ(text.Text(), "Given\r\nP = 5 kips\r\n\r\nFound\r\nStress.");
}

TEST(Narration, PiecesOfArithmetic)
{
    EXPECT_EQ(Times("a", "b"), "a × b");
    EXPECT_EQ(Divided("a", "b"), "a ÷ b");
    EXPECT_EQ(WithUnit("12.5", "MPa"), "12.5 MPa");
    EXPECT_EQ(WithUnit("0.3", ""), "0.3") << "a number without a unit";
}

} // namespace
} // namespace forcelab
