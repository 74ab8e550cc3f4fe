// Steel shapes through the window: families, rows and grades, and where their files are.

#include "PropertiesFormTest.h"

#include <QGuiApplication>

#include <algorithm>
#include <cmath>

namespace forcelab::sections {
namespace {

using test::Local;
using test::Near;

constexpr const char* kAvailable = "Selected shape is available in this steel type and grade.";
constexpr const char* kNotAvailable =
    "Selected shape is NOT AVAILABLE in this steel type and grade.";

/// Gives the file names in turn, and keeps what the dialogs were asked with.
class NotedFiles : public screen::FileDialogService {
  public:
    QString OpenFile(QWidget* /*owner*/, const QString& title, const QString& /*folder*/,
                     const QString& filter) override
    {
        Titles.push_back(title.toStdString());
        Filters.push_back(filter.toStdString());
        if (Answers.empty()) return {};
        const QString answer = Answers.front();
        Answers.erase(Answers.begin());
        return answer;
    }
    QString SaveFile(QWidget*, const QString&, const QString&, const QString&) override
    {
        return {};
    }
    std::vector<QString> Answers;
    std::vector<std::string> Titles;
    std::vector<std::string> Filters;
};

class SteelForm : public PropertiesFormTest {
  protected:
    void ComputeSteel(int family, const std::string& designation)
    {
        OpenShape("mnuAISC(" + std::to_string(family) + ")");
        SelectSteel(designation);
        Compute();
    }

    NotedFiles& NoteDialogs()
    {
        auto noted = std::make_unique<NotedFiles>();
        NotedFiles& files = *noted;
        screen::Services::Current().Files = std::move(noted);
        return files;
    }
};

TEST_F(SteelForm, WideFlangeShape)
{
    ComputeSteel(kFamilyW, "W14X90");
    EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), 26.5, 1e-6));
    EXPECT_TRUE(Near(Figure(Row::Inertia, Column::Zz), 999, 1e-6));
    EXPECT_TRUE(Near(Figure(Row::SmallestSectionModulus, Column::Zz), 143, 1e-6));
    EXPECT_TRUE(Near(Figure(Row::Inertia, Column::Yy), 362, 1e-6));
    EXPECT_TRUE(Near(Figure(Row::PlasticModulus, Column::Zz), 157, 1e-6));
    EXPECT_TRUE(Near(Figure(Row::Modulus, Column::ZzInches), 29000000));
    EXPECT_EQ(Shown("lblShapeTitle"), "W14X90  AISC Shape");
    EXPECT_TRUE(ReportIsShown());
    EXPECT_TRUE(IsEnabled("cmdMohr"));
}

TEST_F(SteelForm, StandardPipe)
{
    ComputeSteel(kFamilyPipe, "PIPE10STD");
    EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), 11.9, 1e-6));
    EXPECT_TRUE(Near(Figure(Row::Inertia, Column::Zz), 161, 1e-6));
    EXPECT_TRUE(Near(Figure(Row::SmallestSectionModulus, Column::Zz), 29.9, 1e-6));
}

TEST_F(SteelForm, EveryShapeOfEveryTableIsListedSelectedAndComputed)
{
    Open("frmProperties");
    for (int family = 0; family < kSteelFamilies; ++family) {
        Trigger("mnuAISC(" + std::to_string(family) + ")");
        const auto& table = Table(family);
        ASSERT_EQ(SteelList().count(), int(table.size()));
        for (int row = 0; row < int(table.size()); ++row) {
            const SteelShape& shape = table[std::size_t(row)];
            ASSERT_EQ(SteelList().item(row)->text().toStdString(), shape.Designation);
            SteelList().setCurrentRow(row);
            Find<QAbstractButton>("cmdShape(1)").click();
            ASSERT_TRUE(CurrentSection.SectionComputed) << shape.Designation;
            EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), shape.A)) << shape.Designation;
            for (int line = 0; line <= 18; ++line)
                for (int column = 1; column <= 4; ++column)
                    ASSERT_TRUE(std::isfinite(CurrentSection.Record.At(line, column)))
                        << shape.Designation << ", row " << line << ", column " << column;
        }
    }
}

struct FamilyRow {
    int Family;
    const char* Title;
    bool Rolled;
};
class SteelFamilyForm : public SteelForm, public testing::WithParamInterface<FamilyRow> {};

TEST_P(SteelFamilyForm, OpensItsListAndGrades)
{
    OpenShape("mnuAISC(" + std::to_string(GetParam().Family) + ")");
    EXPECT_EQ(Shown("lblShapeTitle"), GetParam().Title);
    EXPECT_TRUE(IsChosen("optAShape(" + std::to_string(GetParam().Family) + ")"));
    EXPECT_EQ(IsVisible("cboSteelGrade"), GetParam().Rolled);
    EXPECT_EQ(IsVisible("cboTubeGrade"), !GetParam().Rolled);
    EXPECT_EQ(Shown("txtSteelGrade"), "Steel Type and Grade");
    EXPECT_EQ(Shown("lblSteelGrade(0)"), "");
    EXPECT_EQ(Shown("lblSteelGrade(1)"), "");
    EXPECT_TRUE(IsVisible("fraAISCDefine"));
    EXPECT_FALSE(IsVisible("fraElasticModulus"));
    EXPECT_FALSE(IsVisible("optShapeUnits(0)"));
    EXPECT_FALSE(IsEnabled("cmdShape(3)"));
    EXPECT_TRUE(SteelList().selectedItems().isEmpty());
    EXPECT_EQ(CurrentSection.ShapeIndex, kSteelW + GetParam().Family);
}

TEST_P(SteelFamilyForm, WithoutARowCannotBeComputed)
{
    OpenShape("mnuAISC(" + std::to_string(GetParam().Family) + ")");
    Expect({kStop, "Section Properties Error",
            "Section properties cannot be calculated until all dimensions are specified."});
    Compute();
    EXPECT_FALSE(CurrentSection.SectionComputed);
}

TEST_P(SteelFamilyForm, FillsTheBoxesOfARow)
{
    OpenShape("mnuAISC(" + std::to_string(GetParam().Family) + ")");
    SteelList().setCurrentRow(1);
    const auto texts = SteelBoxes(Table(GetParam().Family)[1]);
    const int shape = kSteelW + GetParam().Family;
    for (int box = 0; box < int(texts.size()); ++box)
        if (InfoOf(shape).Box[std::size_t(box)]) {
            EXPECT_EQ(Shown(Box(box)), texts[std::size_t(box)]) << box;
        }
}

INSTANTIATE_TEST_SUITE_P(Families, SteelFamilyForm,
                         testing::Values(FamilyRow{kFamilyW, "AISC W, S, M, or HP Shape", true},
                                         FamilyRow{kFamilyC, "AISC C or MC Shape", true},
                                         FamilyRow{kFamilyWT, "AISC WT, ST, or MT Shape", true},
                                         FamilyRow{kFamilyL, "AISC L Shape", true},
                                         FamilyRow{kFamily2L, "AISC Double Angle Shape", true},
                                         FamilyRow{kFamilyTS, "AISC Structural Tube Shape", false},
                                         FamilyRow{kFamilyPipe, "AISC Pipe Shape", false}));

TEST_F(SteelForm, DimensionsOfTheTableStayAndTheGapCanBeEdited)
{
    OpenShape("mnuAISC(4)");
    SteelList().setCurrentRow(0);
    EXPECT_EQ(Shown(Box(4)), Local(".7500"));
    EXPECT_TRUE(Find<screen::TextBox>(Box(0)).isReadOnly());
    Type(Box(4), Local("1.25"));
    Compute();
    EXPECT_EQ(Shown(Box(4)), Local("1.25"));
    Trigger("mnuDouble(4)");
    EXPECT_FALSE(Find<screen::TextBox>(Box(0)).isReadOnly());
}

// --- remembered rows and grades

TEST_F(SteelForm, ARowIsRememberedOnceTheFamilyWasComputed)
{
    ComputeSteel(kFamilyW, "W14X90");
    Choose("optAShape(1)");
    EXPECT_TRUE(SteelList().selectedItems().isEmpty());
    Choose("optAShape(0)");
    ASSERT_NE(SteelList().currentItem(), nullptr);
    EXPECT_EQ(SteelList().currentItem()->text().toStdString(), "W14X90");
    EXPECT_EQ(Shown("lblShapeTitle"), "W14X90  AISC Shape");
    EXPECT_NE(Shown(Box(0)), Local("0.0"));
    Compute();
    EXPECT_TRUE(Near(Figure(Row::Inertia, Column::Zz), 999, 1e-6));
}

TEST_F(SteelForm, ARowIsForgottenWithoutACompute)
{
    OpenShape("mnuAISC(1)");
    SteelList().setCurrentRow(3);
    Choose("optAShape(2)");
    Choose("optAShape(1)");
    EXPECT_TRUE(SteelList().selectedItems().isEmpty());
    EXPECT_EQ(Shown(Box(0)), Local("0.0"));
    EXPECT_EQ(Shown("lblShapeTitle"), "AISC C or MC Shape");
}

TEST_F(SteelForm, AGradeIsRememberedPerFamily)
{
    OpenShape("mnuAISC(0)");
    Select("cboSteelGrade", "A572 Grade 50");
    EXPECT_EQ(Shown("txtSteelGrade"), "A572 Grade 50");
    EXPECT_EQ(Shown("lblSteelGrade(0)"), "Yield Stress = 50 ksi\r\nUltimate Stress = 65 ksi");
    EXPECT_EQ(Shown("lblSteelGrade(1)"), "");
    Choose("optAShape(1)");
    EXPECT_EQ(Shown("txtSteelGrade"), "Steel Type and Grade");
    EXPECT_EQ(Find<screen::ComboBox>("cboSteelGrade").ListIndex(), -1);
    Choose("optAShape(0)");
    EXPECT_EQ(Shown("txtSteelGrade"), "A572 Grade 50");
    EXPECT_EQ(Shown("cboSteelGrade"), "A572 Grade 50");
    const auto stress = dynamic_cast<frmProperties&>(TheForm()).SteelStressChosen();
    EXPECT_TRUE(Near(stress[0], 50000));
    EXPECT_TRUE(Near(stress[1], 65000));
}

TEST_F(SteelForm, AvailabilityFollowsTheShapeAndTheGrade)
{
    OpenShape("mnuAISC(0)");
    Select("cboSteelGrade", "A572 Grade 65"); // the smallest group alone
    const auto& table = Table(kFamilyW);
    const auto rowOf = [&table](int group) {
        return int(std::find_if(table.begin(), table.end(),
                                [group](const SteelShape& s) { return s.Group == group; }) -
                   table.begin());
    };
    SteelList().setCurrentRow(rowOf(1));
    EXPECT_EQ(Shown("lblSteelGrade(1)"), kAvailable);
    SteelList().setCurrentRow(rowOf(4));
    EXPECT_EQ(Shown("lblSteelGrade(1)"), kNotAvailable);
    Select("cboSteelGrade", "A242 Grade 42");
    EXPECT_EQ(Shown("lblSteelGrade(1)"), kAvailable);
    Choose("optAShape(5)");
    SteelList().setCurrentRow(0);
    Select("cboTubeGrade", "A501");
    EXPECT_EQ(Shown("lblSteelGrade(1)"),
              "Structural tube shapes are NOT AVAILABLE in this steel type and grade.");
    Select("cboTubeGrade", "A500 Grade B (TS Shapes)");
    EXPECT_EQ(Shown("lblSteelGrade(1)"),
              "Selected TS shape is available in this steel type and grade.");
}

TEST_F(SteelForm, LeavingTheTablesShowsTheModuliAgain)
{
    ComputeSteel(kFamilyW, "W14X90");
    Trigger("mnuRectangular(0)");
    EXPECT_FALSE(IsVisible("fraAISCDefine"));
    EXPECT_TRUE(IsVisible("fraElasticModulus"));
    EXPECT_TRUE(IsVisible("optShapeUnits(0)"));
    EXPECT_TRUE(IsEnabled("cmdShape(3)"));
    TypeDimensions({"4", "10"});
    Compute();
    EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), 40));
}

TEST_F(SteelForm, CompositeEntriesSurviveAVisitToTheTables)
{
    EnterComposite();
    Click(Swatch(0), Qt::RightButton);
    Trigger("mnuAISC(0)");
    EXPECT_FALSE(IsChosen("chkElasticModulus"));
    Trigger("mnuFlanged(4)");
    EXPECT_TRUE(IsChosen("chkElasticModulus"));
    EXPECT_EQ(GroundOf(0), IndexedColour(kMaterialB));
}

// --- where the files are

TEST_F(SteelForm, ACancelledDialogLeavesTheModuleAsItWas)
{
    ComputeShape("mnuRectangular(0)", {"4", "10"});
    NotedFiles& files = NoteDialogs();
    MainModule::DataPath = "nowhere/";
    Trigger("mnuAISC(0)");
    EXPECT_EQ(files.Titles, std::vector<std::string>{"Find the steel data files (*.stl)"});
    EXPECT_EQ(files.Filters, std::vector<std::string>{"Steel shape files (*.stl)"});
    EXPECT_FALSE(IsVisible("fraAISCDefine"));
    EXPECT_EQ(CurrentSection.ShapeIndex, kRectangle);
    EXPECT_EQ(Shown(Box(1)), Local("10.0"));
    EXPECT_TRUE(ReportIsShown());
    EXPECT_EQ(MainModule::DataPath, "nowhere/");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(SteelForm, AFoundFolderIsKept)
{
    NotedFiles& files = NoteDialogs();
    MainModule::DataPath = "nowhere/";
    files.Answers = {screen::Q(SteelFolder()) + QStringLiteral("WShapes.stl")};
    OpenShape("mnuAISC(3)");
    EXPECT_EQ(MainModule::DataPath, SteelFolder());
    EXPECT_TRUE(IsVisible("fraAISCDefine"));
    EXPECT_EQ(SteelList().count(), int(Table(kFamilyL).size()));
    EXPECT_EQ(files.Titles.size(), 1u);
    Trigger("mnuAISC(1)");
    EXPECT_EQ(files.Titles.size(), 1u);
}

TEST_F(SteelForm, AFolderWithoutAllFilesIsAskedForAgain)
{
    const QTemporaryDir folder;
    QFile::copy(screen::Q(SteelFolder()) + QStringLiteral("WShapes.stl"),
                folder.filePath(QStringLiteral("WShapes.stl")));
    NotedFiles& files = NoteDialogs();
    MainModule::DataPath = "nowhere/";
    files.Answers = {folder.filePath(QStringLiteral("WShapes.stl"))};
    OpenShape("mnuAISC(0)");
    EXPECT_EQ(files.Titles.size(), 2u);
    EXPECT_FALSE(IsVisible("fraAISCDefine"));
    EXPECT_EQ(CurrentSection.ShapeIndex, 0);
}

TEST_F(SteelForm, AnEmptyFileIsAnEmptyList)
{
    const QTemporaryDir folder;
    for (const SteelFile& file : kSteelFiles) {
        QFile empty(folder.filePath(screen::Q(file.Name)));
        ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
    }
    MainModule::DataPath = folder.path().toStdString() + "/";
    OpenShape("mnuAISC(0)");
    EXPECT_TRUE(IsVisible("fraAISCDefine"));
    EXPECT_EQ(SteelList().count(), 0);
}

} // namespace
} // namespace forcelab::sections
