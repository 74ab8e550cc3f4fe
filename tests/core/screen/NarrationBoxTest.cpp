#include "core/screen/NarrationBox.h"
#include "core/Narration.h"
#include "core/screen/Controls.h"

#include <QPlainTextEdit>
#include <QTextBlock>

#include <gtest/gtest.h>

namespace forcelab::screen {
namespace {

std::string Explanation()
{
    Narration told;
    told.Heading("Reactions").Line("Two equations give them.");
    told.Line("W = 5.0 × (10.0 - 0.0) = 50.0 kN");
    told.Heading("Shear").Line("It begins with A:").Line("V = 30.6 kN");
    told.Paragraph().Line("M = 0.0");
    return told.Text();
}

std::vector<std::string> BoldLines(const QPlainTextEdit& box)
{
    std::vector<std::string> lines;
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next())
        for (auto piece = block.begin(); !piece.atEnd(); ++piece)
            if (piece.fragment().charFormat().fontWeight() == QFont::Bold)
                lines.push_back(block.text().toStdString());
    return lines;
}

TEST(ShowNarration, SetsHeadingsInBold)
{
    QPlainTextEdit box;
    ShowNarration(box, Explanation());
    EXPECT_EQ(BoldLines(box), (std::vector<std::string>{"Reactions", "Shear"}));
    ShowNarration(box, "Sums.\r\n\r\nForces\r\nnone\r\n");
    EXPECT_EQ(BoldLines(box), std::vector<std::string>{"Forces"});
}

TEST(ShowNarration, GivesThePlainTextBack)
{
    QPlainTextEdit box;
    ShowNarration(box, Explanation());
    EXPECT_EQ(box.toPlainText(), Q(Explanation()).remove(u'\r'));
    ShowNarration(box, "");
    EXPECT_EQ(box.toPlainText(), QString());
}

TEST(ShowNarration, ArithmeticBreaksNeitherInParenthesesNorBeforeItsUnit)
{
    QPlainTextEdit box;
    ShowNarration(box, Explanation());
    const QString line = box.document()->findBlockByNumber(2).text();
    EXPECT_TRUE(line.contains(QStringLiteral("(10.0\u00A0-\u00A00.0)"))) << line.toStdString();
    EXPECT_TRUE(line.endsWith(QStringLiteral("= 50.0\u00A0kN"))) << line.toStdString();
    EXPECT_TRUE(box.document()->findBlockByNumber(1).text().contains(u' '));
}

TEST(ShowNarration, ALongSumInParenthesesBreaksBetweenItsTerms)
{
    QPlainTextEdit box;
    ShowNarration(box, "R = -(5.0 × (-20.0 - 1.0) + 10.0 × (-20.0) + 15.0 × (-40.0)) ÷ 3.0 = 9 kN");
    const QString line = box.document()->firstBlock().text();
    EXPECT_TRUE(line.contains(QStringLiteral("(-20.0 - 1.0) + 10.0"))) << qPrintable(line);
}

} // namespace
} // namespace forcelab::screen
