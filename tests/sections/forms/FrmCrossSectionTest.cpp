#include "sections/forms/frmCrossSection.h"

#include "core/screen/Services.h"
#include "sections/SectionCases.h"
#include "support/FormTest.h"

#include <QFile>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>

namespace forcelab::sections {
namespace {

using forcelab::test::Local;
using screen::FlexGrid;
using screen::PictureBox;
using testing::HasSubstr;

/// A printer with pages of A5 on their longer side.
class LowPages : public screen::PrintService {
  public:
    explicit LowPages(QString path) : path_(std::move(path)) {}
    std::unique_ptr<QPagedPaintDevice> AskForPrinter(QWidget* /*owner*/) override
    {
        auto writer = std::make_unique<QPdfWriter>(path_);
        writer->setPageSize(QPageSize(QPageSize::A5));
        writer->setPageOrientation(QPageLayout::Landscape);
        return writer;
    }

  private:
    QString path_;
};

class CrossSectionForm : public forcelab::test::FormTest {
  protected:
    CrossSectionForm()
    {
        screen::Forms::Register("frmCrossSection", [] { return new frmCrossSection; });
        CurrentSection = {};
        CurrentEntry = {};
    }
    ~CrossSectionForm() override
    {
        CurrentSection = {};
        CurrentEntry = {};
    }

    static void Take(test::Worked worked)
    {
        worked.Section.SectionComputed = true;
        CurrentSection = worked.Section;
        CurrentEntry = worked.Entry;
    }
    void OpenWith(const test::Worked& worked)
    {
        Take(worked);
        Open("frmCrossSection");
    }
    void OpenTee() { OpenWith(test::Computed(kTShape, {8, 1, 9, 1})); }

    static test::Worked PlateOnWood()
    {
        test::Worked worked = test::Entered(kTShape, std::vector<double>{6, 0.5, 10, 6});
        worked.Entry.Composite = true;
        worked.Entry.Swatch[0] = IndexedColour(9);
        worked.Entry.Swatch[1] = IndexedColour(10);
        worked.Entry.Modulus = {"0", Local("29000.0"), Local("1600.0")};
        worked.Entry.ModulusUnit = 1;
        worked.Entry.Material = {"Steel", "Wood"};
        EXPECT_FALSE(worked.Compute().has_value());
        return worked;
    }

    std::string Cell(int row, int column) { return Find<FlexGrid>("grdD").CellText(row, column); }
    std::string LastCell(int row) { return Cell(row, Find<FlexGrid>("grdD").columnCount() - 1); }
    int Rows() { return Find<FlexGrid>("grdD").rowCount(); }

    /// The value beside a symbol in the list of properties.
    std::string Listed(const std::string& symbol)
    {
        for (const char* name : {"grdSummary(0)", "grdSummary(1)"}) {
            auto& grid = Find<FlexGrid>(name);
            for (int row = 0; row < grid.rowCount(); ++row)
                if (grid.CellText(row, 0) == symbol) return grid.CellText(row, 1);
        }
        return "not listed";
    }

    QByteArray Printed() const
    {
        QFile file(path_);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void Go(const std::string& caption)
    {
        Printers->PdfFile = path_;
        Trigger("mnuPrint");
        Type("txtPrintCaption", caption);
        Click("cmdPrint");
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath("page.pdf");
};

TEST_F(CrossSectionForm, ShowsTheTableOfATee)
{
    OpenTee();
    EXPECT_EQ(TheForm().windowTitle(), "Cross-Section Properties");
    EXPECT_EQ(Shown("fraDetailProperties"),
              "Centroid in Y-direction and Moment of Inertia about the Z-Z axis");
    EXPECT_EQ(Rows(), 4); // headings, two elements, totals
    EXPECT_EQ(LastCell(3), Local("167.299"));
    EXPECT_THAT(Shown("lblExplanation"), HasSubstr(Local("6.8529 inch")));
    EXPECT_FALSE(IsVisible("lblUnderGrid"));
}

TEST_F(CrossSectionForm, ListsTheProperties)
{
    OpenTee();
    EXPECT_EQ(Listed("Y bot"), Local("6.8529 inch"));
    EXPECT_EQ(Listed("Iz"), Local("167.299 inch^4"));
    EXPECT_EQ(Listed("Zz"), Local("44.2500 inch^3"));
    EXPECT_EQ(Listed("Iy"), Local("43.4167 inch^4"));
    EXPECT_THAT(Shown("picCrossSection"), HasSubstr("Y bot"));
}

TEST_F(CrossSectionForm, TurnsToTheOtherAxis)
{
    OpenTee();
    EXPECT_TRUE(IsChosen("mnuOrient(0)"));
    Trigger("mnuOrient(1)");
    EXPECT_FALSE(IsChosen("mnuOrient(0)"));
    EXPECT_EQ(Shown("fraDetailProperties"),
              "Centroid in Z-direction and Moment of Inertia about the Y-Y axis");
    EXPECT_EQ(LastCell(3), Local("43.4167"));
}

struct DetailRow {
    const char* Item;
    const char* Caption;
    const char* Result;
};
class Details : public CrossSectionForm, public testing::WithParamInterface<DetailRow> {};

TEST_P(Details, AreExclusive)
{
    OpenTee();
    Trigger(GetParam().Item);
    for (const char* item : {"mnuDetailsCentroid", "mnuDetailsPlastic", "mnuDetailsProduct"})
        EXPECT_EQ(IsChosen(item), std::string(item) == GetParam().Item);
    EXPECT_EQ(Shown("fraDetailProperties"), GetParam().Caption);
    EXPECT_THAT(Shown("lblExplanation"), HasSubstr(Local(GetParam().Result)));
}

INSTANTIATE_TEST_SUITE_P(
    OfATee, Details,
    testing::Values(DetailRow{"mnuDetailsCentroid",
                              "Centroid in Y-direction and Moment of Inertia about the Z-Z axis",
                              "167.299 inch^4"},
                    DetailRow{"mnuDetailsPlastic", "Plastic Modulus relative to the Z-Z axis",
                              "44.2500 inch^3"},
                    DetailRow{"mnuDetailsProduct", "Product of Inertia", "0.0000 inch^4"}),
    [](const auto& row) { return std::string(row.param.Item); });

TEST_F(CrossSectionForm, EnablesOnlyTheTablesOfTheSection)
{
    OpenTee();
    for (const char* item : {"mnuDetailsCentroid", "mnuDetailsPlastic", "mnuDetailsProduct"})
        EXPECT_TRUE(MenuItem(item).isEnabled()) << item;
    for (const char* item : {"mnuConvert12", "mnuConvert21"})
        EXPECT_FALSE(MenuItem(item).isEnabled()) << item;
}

TEST_F(CrossSectionForm, ShowsTheConversionsOfACompositeSection)
{
    OpenWith(PlateOnWood());
    EXPECT_FALSE(MenuItem("mnuDetailsCentroid").isEnabled());
    EXPECT_TRUE(IsChosen("mnuConvert12"));
    EXPECT_EQ(Shown("lblUnderGrid"), "Converting Steel to Wood");
    EXPECT_EQ(LastCell(3), Local("1,287.34"));
    Trigger("mnuConvert21");
    EXPECT_EQ(Shown("lblUnderGrid"), "Converting Wood to Steel");
    EXPECT_EQ(LastCell(3), Local("71.0258"));
}

TEST_F(CrossSectionForm, ComesBackToTheChosenTableAfterASectionThatHasItNot)
{
    OpenTee();
    Take(PlateOnWood());
    dynamic_cast<frmCrossSection&>(TheForm()).Refresh();
    EXPECT_TRUE(IsChosen("mnuConvert12"));
    Take(test::Computed(kRectangle, {4, 10}));
    dynamic_cast<frmCrossSection&>(TheForm()).Refresh();
    EXPECT_TRUE(IsChosen("mnuDetailsCentroid"));
    EXPECT_EQ(Listed("Iz"), Local("333.333 inch^4"));
}

TEST_F(CrossSectionForm, FollowsEachComputationWhenItBecomesActive)
{
    OpenTee();
    Take(test::Computed(kRectangle, {4, 10}));
    screen::Forms::Hide("frmCrossSection");
    screen::Forms::Show("frmCrossSection");
    QCoreApplication::processEvents();
    EXPECT_EQ(Rows(), 3);
    EXPECT_EQ(Listed("Sz"), Local("66.6667 inch^3"));
}

TEST_F(CrossSectionForm, CopesWithASectionWithoutElements)
{
    OpenWith(test::Computed(kSpecified, {3, 5, 3, 5, 500, 90, 60}));
    for (const char* item : {"mnuDetailsCentroid", "mnuDetailsPlastic", "mnuDetailsProduct"})
        EXPECT_FALSE(MenuItem(item).isEnabled()) << item;
    EXPECT_FALSE(IsVisible("grdD"));
    EXPECT_THAT(Shown("lblExplanation"), HasSubstr("no elements"));
    EXPECT_EQ(Listed("Iz"), Local("500.000 inch^4"));
}

TEST_F(CrossSectionForm, IsEmptyBeforeAnyComputation)
{
    Open("frmCrossSection");
    EXPECT_FALSE(IsVisible("grdD"));
    EXPECT_EQ(Find<FlexGrid>("grdSummary(0)").rowCount(), 0);
    EXPECT_EQ(Shown("picCrossSection"), "");
}

TEST_F(CrossSectionForm, TheWindowsBoxHidesIt)
{
    OpenTee();
    Trigger("mnuDetailsPlastic");
    TheForm().close();
    EXPECT_TRUE(screen::Forms::IsLoaded("frmCrossSection"));
    EXPECT_FALSE(screen::Forms::IsVisible("frmCrossSection"));
    Open("frmCrossSection");
    EXPECT_TRUE(IsChosen("mnuDetailsPlastic"));
}

TEST_F(CrossSectionForm, EverythingFitsAt1024By700)
{
    OpenWith(test::Computed(kDoubleCBack, {3, 0.5, 8, 0.4, 2}));
    TheForm().resize(1024, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(TheForm().size(), QSize(1024, 700));
    auto& grid = Find<FlexGrid>("grdD");
    int width = 0;
    for (int column = 0; column < grid.columnCount(); ++column) width += grid.columnWidth(column);
    EXPECT_LE(width, grid.width());
    EXPECT_GE(Find<PictureBox>("picCrossSection").width(), 250);
    EXPECT_GE(Find<PictureBox>("picCrossSection").height(), 250);
}

// --- the print panel

TEST_F(CrossSectionForm, ThePrintPanelComesAndGoes)
{
    OpenTee();
    EXPECT_FALSE(IsVisible("txtPrintCaption"));
    Trigger("mnuPrint");
    EXPECT_EQ(Shown("lblPrintCaption"), "Enter caption for printed output");
    EXPECT_EQ(Shown("cmdPrint"), "&Go");
    EXPECT_EQ(FocusedControl(), "txtPrintCaption");
    Click("cmdPrintCancel");
    EXPECT_FALSE(IsVisible("txtPrintCaption"));
    EXPECT_EQ(Printers->Asked, 0);
}

TEST_F(CrossSectionForm, PrintsOnePage)
{
    OpenTee();
    Go("Tee of the roof");
    EXPECT_EQ(QString::fromLatin1(Printed()).count(QRegularExpression("/Type /Page\\b")), 1);
    EXPECT_GT(Printed().size(), 4000);
    EXPECT_FALSE(IsVisible("txtPrintCaption"));
}

TEST_F(CrossSectionForm, CancellingThePrinterKeepsThePanel)
{
    OpenTee();
    Trigger("mnuPrint");
    Click("cmdPrint");
    EXPECT_EQ(Printers->Asked, 1);
    EXPECT_TRUE(IsVisible("txtPrintCaption"));
}

TEST_F(CrossSectionForm, RefusesACaptionThatIsTooWide)
{
    OpenTee();
    Expect({kExclamation, "Printed Output Error",
            "The printed output will be too wide to fit on the page for the selected font.  "
            "Choose a smaller font."});
    Go(std::string(120, 'W'));
    EXPECT_TRUE(IsVisible("txtPrintCaption"));
    EXPECT_EQ(FocusedControl(), "cboPrintSize");
}

TEST_F(CrossSectionForm, RefusesAListThatIsTooLong)
{
    OpenWith(test::Computed(kLShape, {5.625, 0.75, 6.875, 0.75}));
    Trigger("mnuPrint");
    Expect({kExclamation, "Printed Output Error",
            "The printed output will be too long to fit on the page for the selected font.  "
            "Choose a smaller font."});
    screen::Services::Current().Printers = std::make_unique<LowPages>(path_);
    Type("txtPrintCaption", "Angle");
    Click("cmdPrint");
    EXPECT_EQ(FocusedControl(), "cboPrintSize");
    Select("cboPrintSize", "7");
    Click("cmdPrint");
    EXPECT_FALSE(IsVisible("txtPrintCaption"));
}

TEST_F(CrossSectionForm, APrinterThatDoesNotRespondIsReported)
{
    OpenTee();
    Trigger("mnuPrint");
    Printers->PdfFile = folder_.filePath("no such folder/page.pdf");
    Expect({kExclamation, "Printer Error",
            "Forcelab could not get your printer\r\n"
            "to respond.  Please check your printer\r\n"
            "and your printer setup in Windows."});
    Click("cmdPrint");
    EXPECT_TRUE(IsVisible("txtPrintCaption"));
}

TEST(SummaryColumns, KeepGroupsTogether)
{
    std::vector<SummaryLine> lines;
    for (const int size : {4, 4, 3}) {
        lines.push_back({"Group", "", "", true});
        for (int k = 1; k < size; ++k) lines.push_back({"s", "v", "m"});
    }
    const auto columns = SummaryColumns(lines);
    EXPECT_EQ(columns[0].size(), 4U);
    EXPECT_EQ(columns[1].size(), 7U);
    EXPECT_TRUE(columns[1][0].Heading);
}

TEST(SummaryColumns, ShareOutNothing)
{
    const auto columns = SummaryColumns({});
    EXPECT_TRUE(columns[0].empty());
    EXPECT_TRUE(columns[1].empty());
}

} // namespace
} // namespace forcelab::sections
