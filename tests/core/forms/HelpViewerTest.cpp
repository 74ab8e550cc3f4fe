#include "core/screen/HelpViewer.h"

#include "core/MainModule.h"
#include "core/screen/Help.h"
#include "support/FormTest.h"

#include <QApplication>
#include <QDir>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSvgRenderer>

namespace forcelab::test {
namespace {

using screen::HelpBrowser;
using screen::HelpViewer;
using testing::ElementsAre;
using testing::HasSubstr;

class Viewer : public testing::Test {
  protected:
    template <class Type>
    Type& Part(const char* name)
    {
        return *viewer_.findChild<Type*>(QLatin1String(name));
    }
    std::string Page() { return Part<QTextBrowser>("txtHelp").toPlainText().toStdString(); }
    bool SaysNoPage() { return Part<QWidget>("lblNoPage").isVisibleTo(&viewer_); }
    HelpViewer viewer_;
};

TEST_F(Viewer, OpensATopicByItsNumber)
{
    viewer_.OpenTopic(3000);
    EXPECT_THAT(Page(), HasSubstr("Mohr's circle"));
    EXPECT_FALSE(SaysNoPage());
}

TEST_F(Viewer, AnUnknownTopicShowsTheContentsAndSaysSo)
{
    viewer_.OpenTopic(1);
    const std::string contents = Page();
    EXPECT_FALSE(SaysNoPage());
    viewer_.OpenTopic(7000);
    EXPECT_EQ(Page(), contents);
    EXPECT_TRUE(SaysNoPage());
    EXPECT_THAT(Part<QLabel>("lblNoPage").text().toStdString(), HasSubstr("7000"));
    viewer_.OpenTopic(3000);
    EXPECT_FALSE(SaysNoPage());
}

TEST_F(Viewer, GoesBackForwardAndToTheContents)
{
    viewer_.OpenTopic(1);
    const std::string contents = Page();
    EXPECT_FALSE(Part<QAction>("cmdBack").isEnabled());
    viewer_.OpenTopic(3000);
    const std::string mohr = Page();
    Part<QAction>("cmdBack").trigger();
    EXPECT_EQ(Page(), contents);
    Part<QAction>("cmdForward").trigger();
    EXPECT_EQ(Page(), mohr);
    Part<QAction>("cmdContents").trigger();
    EXPECT_EQ(Page(), contents);
}

TEST_F(Viewer, FindsFromPlaceToPlaceAndRoundTheEnd)
{
    viewer_.OpenTopic(3000);
    auto& page = Part<QTextBrowser>("txtHelp");
    Part<QLineEdit>("txtFind").setText(QStringLiteral("rosette"));
    viewer_.FindNext();
    const int first = page.textCursor().selectionStart();
    EXPECT_EQ(page.textCursor().selectedText().toLower(), "rosette");
    viewer_.FindNext();
    EXPECT_GT(page.textCursor().selectionStart(), first);
    viewer_.FindPrevious();
    EXPECT_EQ(page.textCursor().selectionStart(), first);
    viewer_.FindPrevious();
    EXPECT_GT(page.textCursor().selectionStart(), first);
    viewer_.FindNext();
    EXPECT_EQ(page.textCursor().selectionStart(), first);
}

TEST_F(Viewer, WhatIsNotThereIsNotFound)
{
    viewer_.OpenTopic(1);
    Part<QLineEdit>("txtFind").setText(QStringLiteral("no such words at all"));
    viewer_.FindNext();
    EXPECT_FALSE(Part<QTextBrowser>("txtHelp").textCursor().hasSelection());
}

TEST_F(Viewer, LinksWithinAPageFindTheirHeading)
{
    viewer_.resize(800, 500);
    viewer_.show();
    viewer_.OpenTopic(3000);
    auto& page = Part<QTextBrowser>("txtHelp");
    const QString text = page.toMarkdown();
    const QRegularExpression link(QStringLiteral(R"(\]\((#[^)]+)\))"));
    auto found = link.globalMatch(text);
    int links = 0;
    int before = 0;
    while (found.hasNext()) {
        page.setSource(page.source().resolved(QUrl(found.next().captured(1))));
        EXPECT_GT(page.verticalScrollBar()->value(), before)
            << page.source().toString().toStdString();
        before = page.verticalScrollBar()->value();
        ++links;
    }
    EXPECT_EQ(links, 7);
}

TEST_F(Viewer, PicturesAreAsSharpAsTheScreen)
{
    viewer_.OpenTopic(3000);
    auto& page = Part<HelpBrowser>("txtHelp");
    const auto image = page.loadResource(QTextDocument::ImageResource,
                                         QUrl(QStringLiteral("images/mohr-circle.svg")))
                           .value<QImage>();
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.devicePixelRatio(), page.devicePixelRatioF());
    EXPECT_GT(image.deviceIndependentSize().width(), 200);
}

// Every link leads to a page and every picture is there and can be drawn.
TEST(HelpPages, HaveNoLooseEnds)
{
    const QDir pages(QStringLiteral(":/help"));
    const QRegularExpression link(QStringLiteral(R"(\]\(([^)#]+\.(?:md|svg))\))"));
    const QRegularExpression brokenWords(QStringLiteral(R"(!\[[^\]]*\n)"));
    int links = 0;
    for (const QString& name : pages.entryList({QStringLiteral("*.md")})) {
        QFile file(pages.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        // The reader of Markdown would show a picture once for each line of its words.
        EXPECT_FALSE(text.contains(brokenWords)) << name.toStdString();
        auto found = link.globalMatch(text);
        while (found.hasNext()) {
            const QString target = pages.filePath(found.next().captured(1));
            ++links;
            EXPECT_TRUE(QFile::exists(target)) << target.toStdString();
            if (target.endsWith(QLatin1String(".svg"))) {
                EXPECT_TRUE(QSvgRenderer(target).isValid()) << target.toStdString();
            }
        }
    }
    EXPECT_GT(links, 4);
}

class HelpTopic : public FormTest {};

TEST_F(HelpTopic, IsOpenedThroughTheCommonDialog)
{
    MainModule::HelpContext = 3000;
    screen::ShowHelpTopic();
    EXPECT_THAT(Help->Opened, ElementsAre(std::pair<std::string, int>("forcelab.hlp", 3000)));
    const auto& dialog = screen::CommonDialog::CMDialog1;
    EXPECT_EQ(dialog.HelpFile, "forcelab.hlp");
    EXPECT_EQ(dialog.HelpCommand, 1);
    EXPECT_EQ(dialog.HelpContext, 3000);
}

TEST_F(HelpTopic, OtherActionsOpenNothing)
{
    screen::CommonDialog::CMDialog1.Action(1);
    EXPECT_TRUE(Help->Opened.empty());
}

TEST(SystemHelp, MakesOneWindowForAllTopics)
{
    const auto viewers = [] {
        int count = 0;
        for (QWidget* widget : QApplication::topLevelWidgets())
            count += widget->objectName() == QLatin1String("frmHelp") ? 1 : 0;
        return count;
    };
    {
        const auto help = screen::MakeSystemHelp();
        EXPECT_EQ(viewers(), 0);
        help->Open("forcelab.hlp", 1);
        help->Open("forcelab.hlp", 3000);
        EXPECT_EQ(viewers(), 1);
    }
    EXPECT_EQ(viewers(), 0);
}

} // namespace
} // namespace forcelab::test
