#include "LinSolveFormTest.h"

#include "core/NumericText.h"

#include <QPdfWriter>
#include <QRegularExpression>

namespace forcelab::general {
namespace {

using test::Local;
using testing::Each;
using testing::ElementsAre;

const std::vector<std::vector<std::string>> kThree{
    {"2", "1", "-1", "8"}, {"-3", "-1", "2", "-11"}, {"-2", "1", "2", "-3"}};

class LinSolve : public LinSolveFormTest {
  protected:
    std::vector<std::string> Solved(std::vector<std::string> values)
    {
        for (std::string& value : values) value = Local(value);
        return values;
    }
    static qsizetype PagesOf(const QString& pdf)
    {
        QFile file(pdf);
        if (!file.open(QIODevice::ReadOnly)) return -1;
        return QString::fromLatin1(file.readAll()).count(QRegularExpression("/Type /Page\\b"));
    }
};

TEST_F(LinSolve, OpensWithThreeEmptyEquations)
{
    EXPECT_EQ(TheForm().windowTitle().toStdString(),
              "Matrix Solution of Simultaneous Algebraic Equations");
    EXPECT_EQ(Shown("lblElements"), "3");
    EXPECT_EQ(Grid().rowCount(), 4);
    EXPECT_EQ(Grid().columnCount(), 6);
    EXPECT_EQ(Cell(0, 4), "Unknowns");
    EXPECT_EQ(Cell(0, 5), "Constants");
    EXPECT_THAT(Column(0), ElementsAre("1", "2", "3"));
    EXPECT_THAT(Column(4), ElementsAre("X1", "X2", "X3"));
    EXPECT_THAT(Column(1), Each(""));
    EXPECT_EQ(Current(), std::pair(1, 1));
    EXPECT_EQ(FocusedControl(), "fgElements");
    EXPECT_EQ(Shown("cmdStiffness"), "&Compute");
}

TEST_F(LinSolve, ColoursTellWhatCanBeEdited)
{
    const QColor edit(255, 255, 153);
    for (int row = 1; row <= 3; ++row) {
        for (const int column : {1, 2, 3, 5}) EXPECT_EQ(Grid().CellColour(row, column), edit);
        EXPECT_EQ(Grid().CellColour(row, 4), QColor(255, 255, 255));
    }
    for (int row = 0; row <= 3; ++row)
        for (int column = 0; column <= 5; ++column)
            EXPECT_TRUE(Grid().item(row, column)->textAlignment() & Qt::AlignRight);
}

TEST_F(LinSolve, SolvesThreeEquations)
{
    TypeEquations(kThree);
    Click("cmdStiffness");
    EXPECT_THAT(Column(4), testing::ElementsAreArray(Solved({"2.00000", "3.00000", "-1.00000"})));
    EXPECT_THAT(Column(1), ElementsAre("2", "-3", "-2"));
}

TEST_F(LinSolve, SolvesTheJointOfTheHelpPage)
{
    TypeEquations({{"1", "0.70711", "0"}, {"0", "0.70711", "-6.667"}});
    Click("cmdStiffness");
    EXPECT_THAT(Column(3), testing::ElementsAreArray(Solved({"6.66700", "-9.42852"})));
}

TEST_F(LinSolve, ComputeTakesTheNumberThatIsStillBeingTyped)
{
    SetCount(1);
    TypeCell(1, 1, "4");
    GoTo(1, 3);
    Keys(Local("1.0"));
    ASSERT_TRUE(Editing());
    Find<QPushButton>("cmdStiffness").click(); // as by its mnemonic, which leaves the focus
    EXPECT_FALSE(Editing());
    EXPECT_EQ(Cell(1, 3), Local("1.0"));
    EXPECT_EQ(Cell(1, 2), Local("0.25000"));
}

TEST_F(LinSolve, EmptyEquationsEndInTheMessage)
{
    ExpectNoSolution();
    Click("cmdStiffness");
    for (const int column : {1, 2, 3, 5}) EXPECT_THAT(Column(column), Each("0"));
    EXPECT_THAT(Column(4), ElementsAre("X1", "X2", "X3"));
}

TEST_F(LinSolve, AFailedSolveKeepsTheEarlierSolution)
{
    TypeEquations(kThree);
    Click("cmdStiffness");
    for (int column = 1; column <= 3; ++column) TypeCell(3, column, Cell(1, column));
    ExpectNoSolution();
    Click("cmdStiffness");
    EXPECT_EQ(Cell(1, 4), Local("2.00000"));
    EXPECT_EQ(Cell(3, 1), "2");
}

TEST_F(LinSolve, TenHilbertEquationsAreRefused)
{
    SetCount(10);
    for (int row = 1; row <= 10; ++row) {
        for (int column = 1; column <= 10; ++column)
            TypeCell(row, column, Format(1.0 / (row + column - 1), "0.############"));
        TypeCell(row, 12, "1");
    }
    ExpectNoSolution();
    Click("cmdStiffness");
    EXPECT_EQ(Cell(10, 11), "X10");
    EXPECT_EQ(Cell(10, 1), Local("0.1"));
}

TEST_F(LinSolve, ANumberTooLargeLeavesTheSolution)
{
    SetCount(1);
    TypeCell(1, 1, "1");
    TypeCell(1, 3, "7");
    Click("cmdStiffness");
    TypeCell(1, 3, "1E+400");
    GoTo(1, 1);
    Key(Qt::Key_Delete);
    Expect({kStop, "Forcelab",
            "A number in this calculation is too large. "
            "What is shown stays as it was; please check the input."});
    Click("cmdStiffness");
    EXPECT_EQ(Cell(1, 2), Local("7.00000"));
    EXPECT_EQ(Cell(1, 1), "0");
}

TEST_F(LinSolve, ShrinkingAndGrowingKeepsCoefficientsAndConstants)
{
    TypeEquations(kThree);
    Click("cmdStiffness");
    SetCount(1);
    EXPECT_EQ(Shown("lblElements"), "1");
    EXPECT_EQ(Grid().columnCount(), 4);
    EXPECT_EQ(Cell(1, 3), "8");
    SetCount(4);
    EXPECT_EQ(Cell(2, 3), "2");
    EXPECT_THAT(Column(6), ElementsAre("8", "-11", "-3", ""));
    EXPECT_THAT(Column(4), Each(""));
    EXPECT_THAT(Column(5), ElementsAre("X1", "X2", "X3", "X4"));
    EXPECT_EQ(Grid().CellColour(4, 4), QColor(255, 255, 153));
    SetCount(3);
    Click("cmdStiffness");
    EXPECT_EQ(Cell(3, 4), Local("-1.00000"));
}

TEST_F(LinSolve, TheNumberOfEquationsGoesFromOneToTen)
{
    Press("updnElements", Qt::Key_Up);
    EXPECT_EQ(Shown("lblElements"), "4");
    for (int i = 0; i < 12; ++i) Press("updnElements", Qt::Key_Up);
    EXPECT_EQ(Shown("lblElements"), "10");
    for (int i = 0; i < 12; ++i) Press("updnElements", Qt::Key_Down);
    EXPECT_EQ(Shown("lblElements"), "1");
    EXPECT_EQ(Grid().rowCount(), 2);
}

TEST_F(LinSolve, TheFrameGrowsWithTheGridAndStaysInsideTheForm)
{
    const auto& frame = Widget("fraElements");
    for (const QSize size : {QSize(1024, 700), QSize(1280, 900), QSize(500, 400)}) {
        TheForm().resize(size);
        int width = 0;
        for (const int count : {1, 3, 10}) {
            SetCount(count);
            QCoreApplication::processEvents();
            EXPECT_GE(frame.width(), width);
            width = frame.width();
            EXPECT_LE(frame.mapTo(&TheForm(), frame.rect().bottomRight()).x(), size.width());
            EXPECT_LE(frame.mapTo(&TheForm(), frame.rect().bottomRight()).y(), size.height());
            if (size.width() < 1000) continue;
            EXPECT_FALSE(Grid().horizontalScrollBar()->isVisible()) << count;
            EXPECT_FALSE(Grid().verticalScrollBar()->isVisible()) << count;
        }
    }
}

TEST_F(LinSolve, ALongTextMakesItsColumnWider)
{
    const int usual = Grid().columnWidth(1);
    EXPECT_EQ(usual, 1170 / 15);
    TypeCell(1, 1, "-1234567890123456789E+100");
    EXPECT_GT(Grid().columnWidth(1), usual);
    EXPECT_EQ(Grid().columnWidth(2), usual);
}

TEST_F(LinSolve, BackShowsTheMainMenuWhileThereIsNoGeneralAnalysis)
{
    TypeCell(2, 2, "5");
    Trigger("mnuBack");
    EXPECT_FALSE(screen::Forms::IsVisible("frmLinSolve"));
    EXPECT_TRUE(screen::Forms::IsVisible("frmMainMenu"));
    Open("frmLinSolve");
    EXPECT_EQ(Cell(2, 2), "5");
}

TEST_F(LinSolve, BackOnlyHidesWhereTheGeneralAnalysisIsBelow)
{
    RegisterEmpty("frmStiff");
    TheForm().close();
    EXPECT_TRUE(screen::Forms::IsLoaded("frmLinSolve"));
    EXPECT_FALSE(screen::Forms::IsVisible("frmLinSolve"));
    EXPECT_FALSE(screen::Forms::IsVisible("frmMainMenu"));
    EXPECT_FALSE(screen::Forms::IsVisible("frmStiff"));
}

TEST_F(LinSolve, HelpOpensThePageWithTheSolver)
{
    Trigger("mnuHelp");
    ASSERT_EQ(Help->Opened.size(), 1U);
    EXPECT_EQ(Help->Opened[0].second, 2000);
}

TEST_F(LinSolve, EveryControlHasAnAccessibleName)
{
    for (const char* name :
         {"updnElements", "lblElements", "fgElements", "txtEditElements", "cmdStiffness"})
        EXPECT_FALSE(Widget(name).accessibleName().isEmpty()) << name;
}

TEST_F(LinSolve, PrintsAsManyPagesAsTheColumnsNeed)
{
    const QTemporaryDir folder;
    Printers->PdfFile = folder.filePath("three.pdf");
    TypeEquations(kThree);
    Trigger("mnuPrintModel");
    EXPECT_EQ(PagesOf(Printers->PdfFile), 1);
    SetCount(10);
    for (int column = 1; column <= 10; ++column) TypeCell(1, column, Local("-123456.789012"));
    Printers->PdfFile = folder.filePath("ten.pdf");
    Trigger("mnuPrintModel");
    EXPECT_GE(PagesOf(Printers->PdfFile), 2);
}

TEST_F(LinSolve, CancelledPrintingChangesNothing)
{
    Trigger("mnuPrintModel");
    EXPECT_EQ(Printers->Asked, 1);
    EXPECT_TRUE(Messages->Shown.empty());
}

/// Paper of 3 cm, on which no column of the table fits.
class TinyPaper : public screen::PrintService {
  public:
    std::unique_ptr<QPagedPaintDevice> AskForPrinter(QWidget* /*owner*/) override
    {
        auto writer = std::make_unique<QPdfWriter>(folder_.filePath("tiny.pdf"));
        writer->setPageSize(QPageSize(QSizeF(30, 30), QPageSize::Millimeter));
        writer->setPageMargins(QMarginsF(5, 5, 5, 5), QPageLayout::Millimeter);
        return writer;
    }

  private:
    QTemporaryDir folder_;
};

TEST_F(LinSolve, PaperWithoutRoomIsAnError)
{
    screen::Services::Current().Printers = std::make_unique<TinyPaper>();
    Expect({kStop, "Error", "Error # 482 was generated by Forcelab\r\nPrinter error"});
    Trigger("mnuPrintModel");
}

} // namespace
} // namespace forcelab::general
