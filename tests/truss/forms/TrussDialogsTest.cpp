#include "TrussFormTest.h"

#include <QFile>
#include <QTemporaryDir>

namespace forcelab::truss {
namespace {

using TrussDialogs = TrussFormTest;

TEST_F(TrussDialogs, GridDialogBeginsWithThreeSpacesOfTen)
{
    WhileModal("frmDefGrid", "frmTruss", [this] {
        EXPECT_EQ(TheForm().windowTitle(), "Define Grid");
        for (const int index : {0, 1}) {
            const std::string at = "(" + std::to_string(index) + ")";
            auto& bar = Find<QScrollBar>("vsbSpaces" + at);
            EXPECT_EQ(Shown("lblSpaces" + at), "3");
            EXPECT_EQ(Shown("txtSpacing" + at), Local("10.0"));
            EXPECT_EQ(bar.minimum(), 1);
            EXPECT_EQ(bar.maximum(), 50);
            EXPECT_EQ(bar.pageStep(), index == 0 ? 6 : 12);
            bar.setValue(50);
            EXPECT_EQ(Shown("lblSpaces" + at), "50");
        }
        auto& spacing = Find<screen::TextBox>("txtSpacing(0)");
        spacing.setFocus(Qt::TabFocusReason);
        EXPECT_EQ(spacing.selectedText().toStdString(), Local("10.0"));
        Click("cmdDefGrid(1)");
    });
    Click("cmdGridMake");
    EXPECT_FALSE(CurrentTruss.HasGrid());
    EXPECT_FALSE(IsVisible("fraDefineOptions(0)"));
}

TEST_F(TrussDialogs, GridDialogLaysTheGrid)
{
    LayGrid(4, 2, "2.5", "-1.5");
    EXPECT_EQ(CurrentTruss.GridPointCount, 15);
    EXPECT_EQ(CurrentTruss.GridSpacingX, 2.5F);
    EXPECT_EQ(CurrentTruss.GridSpacingY, 1.5F);
    EXPECT_TRUE(IsVisible("fraDefineOptions(0)") && IsVisible("fraDefineOptions(1)"));
    EXPECT_TRUE(IsEnabled("cmdSpacing(0)"));
    EXPECT_FALSE(IsEnabled("cmdSpacing(1)"));
    EXPECT_THAT(Shown("lblInstruct"), HasSubstr("To define a truss member"));
    EXPECT_THAT(Shown("picTruss"), HasSubstr(Local("7.5")));
}

TEST_F(TrussDialogs, CancelAndAbsurdSpacingsKeepTheTruss)
{
    DrawTriangle();
    for (const bool cancelled : {true, false}) {
        WhileModal("frmDefGrid", "frmTruss", [=, this] {
            Type("txtSpacing(0)", "0");
            Click(cancelled ? "cmdDefGrid(1)" : "cmdDefGrid(0)");
        });
        Click("cmdGridMake");
        EXPECT_EQ(CurrentTruss.MemberCount, 3);
        EXPECT_EQ(CurrentTruss.GridSpacingX, 10);
    }
    EXPECT_THAT(Shown("lblInstruct"), HasSubstr("larger than zero"));
}

TEST_F(TrussDialogs, SpacingTooLargeToReadLeavesTheDialogOpen)
{
    Messages->AcceptAny = true;
    WhileModal("frmDefGrid", "frmTruss", [this] {
        Type("txtSpacing(0)", "1e+400");
        Click("cmdDefGrid(0)");
        EXPECT_TRUE(screen::Forms::IsVisible("frmDefGrid"));
        TheForm().close();
    });
    Click("cmdGridMake");
    EXPECT_EQ(Messages->Shown.size(), 1U);
    EXPECT_FALSE(CurrentTruss.HasGrid());
}

struct LoadRow {
    const char* Name;
    double Right, Up;
    const char* Direction;
    float X, Y;
};
void PrintTo(const LoadRow& row, std::ostream* out)
{
    *out << row.Name;
}
class LoadDirections : public TrussFormTest, public testing::WithParamInterface<LoadRow> {};

TEST_P(LoadDirections, AreAskedForAndStored)
{
    const LoadRow& row = GetParam();
    LayGrid(2, 2);
    DrawMembers({{{0, 0}, {10, 10}}});
    Choose("optTrussDefine(2)");
    WhileModal("frmTrussLoad", "frmTruss", [&] {
        EXPECT_EQ(TheForm().windowTitle(), "Define Truss Load");
        EXPECT_EQ(Shown("lblLoadPrompt(0)"), "Load Magnitude");
        EXPECT_EQ(Shown("lblLoadPrompt(1)"), row.Direction);
        EXPECT_EQ(Shown("txtLoadMagnitude"), "1");
        EXPECT_EQ(Find<screen::TextBox>("txtLoadMagnitude").selectedText(), "1");
        Type("txtLoadMagnitude", Local("-12.5"));
        Press("txtLoadMagnitude", Qt::Key_Return);
    });
    Drag({10, 10}, {10 + row.Right, 10 + row.Up});
    const TrussGridPoint& joint = CurrentTruss.GridPoints[CurrentTruss.PointAt(1, 1)];
    EXPECT_EQ(joint.LoadX, row.X);
    EXPECT_EQ(joint.LoadY, row.Y);
    EXPECT_THAT(Shown("picTruss"), HasSubstr(Local("12.5")));
}
INSTANTIATE_TEST_SUITE_P(
    All, LoadDirections,
    testing::Values(LoadRow{"Right", 4, 1, "(left to right direction)", 12.5F, 0},
                    LoadRow{"Left", -4, 1, "(right to left direction)", -12.5F, 0},
                    LoadRow{"Up", 1, 4, "(upward direction)", 0, 12.5F},
                    LoadRow{"Down", 1, -4, "(downward direction)", 0, -12.5F},
                    LoadRow{"ClickIsUpward", 0, 0, "(upward direction)", 0, 12.5F}));

TEST_F(TrussDialogs, LoadCancelledStoresNothingAndTheLastSizeIsProposed)
{
    DrawTriangle();
    for (const int way : {0, 1, 2}) {
        WhileModal("frmTrussLoad", "frmTruss", [=, this] {
            EXPECT_EQ(Shown("txtLoadMagnitude"), "10");
            Type("txtLoadMagnitude", "99");
            if (way == 0) Click("cmdLoadDefine(1)");
            if (way == 1) TheForm().close();
            if (way == 2) Press("txtLoadMagnitude", Qt::Key_Escape);
        });
        Drag({10, 10}, {14, 10});
        EXPECT_EQ(CurrentTruss.GridPoints[CurrentTruss.PointAt(1, 1)].LoadX, 0) << way;
    }
}

TEST_F(TrussDialogs, LoadTooLargeIsToldAndNotStored)
{
    DrawTriangle();
    Messages->AcceptAny = true;
    Load({10, 10}, {14, 10}, "1e+99");
    ASSERT_EQ(Messages->Shown.size(), 1U);
    EXPECT_EQ(CurrentTruss.GridPoints[CurrentTruss.PointAt(1, 1)].LoadX, 0);
    Choose("optTrussDefine(0)");
    Drag({0, 0}, {0, 10});
    EXPECT_EQ(CurrentTruss.MemberCount, 4); // drawing goes on
}

TEST_F(TrussDialogs, StressIsForceOverTheTypedArea)
{
    DrawTriangle();
    Click("cmdSpacing(1)");
    const auto cell = [this](int row, int column) {
        return Find<screen::FlexGrid>("grdStress").CellText(row, column);
    };
    const auto typeArea = [this](int row, const std::string& area) {
        auto& grid = Find<screen::FlexGrid>("grdStress");
        grid.GoTo(row, 2);
        grid.setFocus();
        QTest::keyClick(&grid, Qt::Key_F2);
        Type("txtGridEdit", Local(area));
        Press("txtGridEdit", Qt::Key_Return);
    };
    WhileModal("frmTrussStress", "frmTruss", [&] {
        const int tie = cell(1, 0) == "AC" ? 1 : 2;
        EXPECT_EQ(cell(0, 3), "Stress");
        EXPECT_EQ(cell(tie, 1), Local("5.000"));
        EXPECT_EQ(cell(tie, 2) + cell(tie, 3), "");
        typeArea(tie, "0.4");
        EXPECT_EQ(cell(tie, 3), Local("12.500"));
        typeArea(3, "0");
        EXPECT_EQ(cell(3, 3), "");
        typeArea(3, "-2");
        EXPECT_EQ(cell(3, 3), "");
        Find<screen::FlexGrid>("grdStress").GoTo(tie, 2);
        Click("cmdStress(0)");
        EXPECT_EQ(cell(3, 3), Local("-17.678")); // 7.0711 / 0.4
        Click("cmdStress(1)");
    });
    Trigger("mnuTrussStress");
    EXPECT_FALSE(screen::Forms::IsVisible("frmTrussStress"));
    WhileModal("frmTrussStress", "frmTruss", [&] {
        EXPECT_EQ(cell(3, 2), Local("0.4")); // remembered
        Trigger("mnuBack");
    });
    Trigger("mnuTrussStress");
}

TEST_F(TrussDialogs, AreaThatCannotBeReadLeavesTheOneOfBefore)
{
    DrawTriangle();
    Click("cmdSpacing(1)");
    Messages->AcceptAny = true;
    WhileModal("frmTrussStress", "frmTruss", [&] {
        auto& grid = Find<screen::FlexGrid>("grdStress");
        for (const char* area : {"2", "1e+400", "1e-320"}) {
            grid.GoTo(1, 2);
            grid.setFocus();
            QTest::keyClick(&grid, Qt::Key_F2);
            Type("txtGridEdit", area);
            Press("txtGridEdit", Qt::Key_Return);
        }
        EXPECT_EQ(grid.CellText(1, 2), "2");
        Click("cmdStress(1)");
    });
    Trigger("mnuTrussStress");
    EXPECT_FALSE(Messages->Shown.empty());
}

/// Prints the picture alone, then from the stress form the table too.
class TrussPrinting : public TrussFormTest {
  protected:
    QByteArray Print(bool table)
    {
        Printers->PdfFile = folder_.filePath(QStringLiteral("page.pdf"));
        if (table) {
            WhileModal("frmTrussStress", "frmTruss", [this] {
                Trigger("mnuPrintStress");
                Trigger("mnuBack");
            });
            Trigger("mnuTrussStress");
        } else {
            Trigger("mnuPrintResults");
        }
        QFile file(Printers->PdfFile);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    static qsizetype PagesOf(const QByteArray& pdf) { return pdf.count("/Type /Page\n"); }

  private:
    QTemporaryDir folder_;
};

TEST_F(TrussPrinting, CancelPrintsNothing)
{
    DrawTriangle();
    Click("cmdSpacing(1)");
    Trigger("mnuPrintResults");
    EXPECT_EQ(Printers->Asked, 1);
    EXPECT_TRUE(IsEnabled("mnuPrintResults"));
}

TEST_F(TrussPrinting, AShortTableStandsBelowThePicture)
{
    DrawTriangle();
    Click("cmdSpacing(1)");
    const QByteArray picture = Print(false);
    const QByteArray both = Print(true);
    EXPECT_TRUE(picture.startsWith("%PDF"));
    EXPECT_EQ(PagesOf(picture), 1);
    EXPECT_EQ(PagesOf(both), 1);
    EXPECT_GT(both.size(), picture.size());
}

TEST_F(TrussPrinting, ALongTableGoesOnToFurtherPages)
{
    LayGrid(24, 1);
    std::vector<std::pair<Place, Place>> members{{{240, 0}, {240, 10}}};
    for (double x = 0; x < 240; x += 10)
        members.insert(members.end(), {{{x, 0}, {x, 10}},
                                       {{x, 0}, {x + 10, 0}},
                                       {{x, 10}, {x + 10, 10}},
                                       {{x, 0}, {x + 10, 10}}});
    DrawMembers(members);
    Support({0, 0}, true, true);
    Support({240, 0}, false, true);
    Load({120, 10}, {120, 5}, "100");
    Click("cmdSpacing(1)");
    EXPECT_EQ(PagesOf(Print(false)), 1);
    EXPECT_EQ(PagesOf(Print(true)), 3);
}

} // namespace
} // namespace forcelab::truss
