// Real problems typed through the window, units, rotation, and the order of the window.

#include "PropertiesFormTest.h"

#include <QMenuBar>

#include <cmath>
#include <set>

namespace forcelab::sections {
namespace {

using screen::Forms;
using test::Local;
using test::Near;
using testing::HasSubstr;

// --- problems with known answers

struct Answer {
    Row At;
    Column Of;
    double Value;
    double Tolerance; ///< of its size: half of the last digit that the source prints
};

struct Problem {
    const char* Name;
    const char* Menu;
    std::vector<std::string> Dimensions;
    std::vector<Answer> Answers;
};

void PrintTo(const Problem& problem, std::ostream* out)
{
    *out << problem.Name;
}

// By hand; b h^3 / 12 and the parallel-axis theorem.
const Problem kRectangleProblem{"Rectangle",
                                "mnuRectangular(0)",
                                {"4", "10"},
                                {{Row::Area, Column::Zz, 40, 1e-12},
                                 {Row::Inertia, Column::Zz, 1000 / 3.0, 1e-12},
                                 {Row::Inertia, Column::Yy, 160 / 3.0, 1e-12},
                                 {Row::SmallestSectionModulus, Column::Zz, 200 / 3.0, 1e-12},
                                 {Row::PlasticModulus, Column::Zz, 100, 1e-12},
                                 {Row::ShapeFactor, Column::Zz, 1.5, 1e-12}}};
const Problem kTeeProblem{"Tee",
                          "mnuFlanged(4)",
                          {"8", "1", "9", "1"},
                          {{Row::LowEdge, Column::Zz, 6.853, 1e-4},
                           {Row::Inertia, Column::Zz, 167.30, 1e-4},
                           {Row::Inertia, Column::Yy, 43.417, 1e-4},
                           {Row::PlasticModulus, Column::Zz, 44.25, 1e-4},
                           {Row::ShapeFactor, Column::Zz, 1.813, 3e-4},
                           {Row::PlasticAxisLow, Column::Zz, 8.5, 1e-4}}};
const Problem kAngleProblem{"Angle",
                            "mnuFlanged(5)",
                            {"5.625", "0.75", "6.875", "0.75"},
                            {{Row::Area, Column::Zz, 9.375, 1e-12},
                             {Row::Inertia, Column::Zz, 54.2333, 1e-6},
                             {Row::Inertia, Column::Yy, 25.1513, 2e-6}}};
// Inches, whatever is typed.
const Problem kInchesProblem{"RectangleInInches",
                             "mnuRectangular(0)",
                             {"4", "10"},
                             {{Row::Area, Column::ZzInches, 40, 1e-12},
                              {Row::Inertia, Column::ZzInches, 1000 / 3.0, 1e-12}}};

class SectionProblem : public PropertiesFormTest, public testing::WithParamInterface<Problem> {};

TEST_P(SectionProblem, ComesOut)
{
    ComputeShape(GetParam().Menu, GetParam().Dimensions);
    for (const Answer& answer : GetParam().Answers)
        EXPECT_TRUE(Near(Figure(answer.At, answer.Of), answer.Value, answer.Tolerance))
            << "row " << int(answer.At) << ", column " << int(answer.Of);
    EXPECT_TRUE(ReportIsShown());
    EXPECT_TRUE(CurrentSection.SectionComputed);
    EXPECT_TRUE(IsEnabled("cmdMohr"));
}

INSTANTIATE_TEST_SUITE_P(ByHand, SectionProblem,
                         testing::Values(kRectangleProblem, kTeeProblem, kAngleProblem,
                                         kInchesProblem),
                         [](const auto& row) { return row.param.Name; });

class PropertiesForm : public PropertiesFormTest {};

TEST_F(PropertiesForm, AnglesProductOfInertia)
{
    ComputeShape("mnuFlanged(5)", kAngleProblem.Dimensions);
    EXPECT_TRUE(Near(std::abs(Figure(Row::ProductOfInertia, Column::Zz)), 21.5626, 3e-6));
}

TEST_F(PropertiesForm, SpecifiedProperties)
{
    ComputeShape("mnuOtherShapes", {"2", "3", "4", "5", "600", "200", "30"});
    EXPECT_TRUE(Near(Figure(Row::LowEdge, Column::Zz), 5));
    EXPECT_TRUE(Near(Figure(Row::HighEdge, Column::Zz), 3));
    EXPECT_TRUE(Near(Figure(Row::LowEdge, Column::Yy), 4));
    EXPECT_TRUE(Near(Figure(Row::HighEdge, Column::Yy), 2));
    EXPECT_TRUE(Near(Figure(Row::Inertia, Column::Zz), 600));
    EXPECT_TRUE(Near(Figure(Row::Inertia, Column::Yy), 200));
    EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), 30));
    EXPECT_FALSE(IsEnabled("cmdMohr"));
}

// --- rotation

struct Turn {
    int Option;
    Column About;   ///< the column that takes the figures about Z-Z
    double LowEdge; ///< in that column
};
class TurnedTee : public PropertiesFormTest, public testing::WithParamInterface<Turn> {};

TEST_P(TurnedTee, HasTheSameFiguresOnItsAxis)
{
    OpenShape("mnuFlanged(4)");
    TypeDimensions(kTeeProblem.Dimensions);
    Choose("optShapeRotate(" + std::to_string(GetParam().Option) + ")");
    EXPECT_FALSE(IsEnabled("cmdShape(1)"));
    Click("cmdShape(0)");
    EXPECT_TRUE(IsEnabled("cmdShape(1)"));
    EXPECT_TRUE(IsChosen("optShapeRotate(0)"));
    Compute();
    const Column about = GetParam().About;
    EXPECT_TRUE(Near(Figure(Row::LowEdge, about), GetParam().LowEdge, 1e-4));
    EXPECT_TRUE(Near(Figure(Row::Inertia, about), 167.30, 1e-4));
    EXPECT_TRUE(Near(Figure(Row::PlasticModulus, about), 44.25, 1e-4));
    EXPECT_TRUE(Near(Figure(Row::ShapeFactor, about), 1.813, 3e-4));
    const Column other = about == Column::Zz ? Column::Yy : Column::Zz;
    EXPECT_TRUE(Near(Figure(Row::Inertia, other), 43.417, 1e-4));
}

// A quarter turn counterclockwise brings the flange to the left.
INSTANTIATE_TEST_SUITE_P(Turns, TurnedTee,
                         testing::Values(Turn{1, Column::Yy, 10 - 6.852941},
                                         Turn{2, Column::Zz, 10 - 6.852941},
                                         Turn{3, Column::Yy, 6.852941}));

TEST_F(PropertiesForm, RotationHidesTheResults)
{
    ComputeShape("mnuFlanged(4)", kTeeProblem.Dimensions);
    Choose("optShapeRotate(1)");
    Click("cmdShape(0)");
    EXPECT_FALSE(ReportIsShown());
    EXPECT_FALSE(IsEnabled("cmdMohr"));
    EXPECT_EQ(CurrentSection.ElementLie[0], 0);
    EXPECT_TRUE(CurrentSection.SectionComputed);
}

TEST_F(PropertiesForm, RoundAndSpecifiedShapesDoNotRotate)
{
    Open("frmProperties");
    for (const char* shape : {"mnuCircular(0)", "mnuCircular(1)", "mnuOtherShapes", "mnuAISC(6)"}) {
        Trigger(shape);
        EXPECT_FALSE(IsEnabled("cmdShape(0)")) << shape;
        EXPECT_FALSE(IsEnabled("optShapeRotate(1)")) << shape;
        EXPECT_TRUE(IsEnabled("cmdShape(1)")) << shape;
    }
    Trigger("mnuFlanged(6)");
    EXPECT_TRUE(IsEnabled("cmdShape(0)"));
    EXPECT_TRUE(IsEnabled("optShapeRotate(3)"));
}

// --- units

TEST_F(PropertiesForm, UnitButtonThereAndBack)
{
    ComputeShape("mnuRectangular(0)", {"4", "10"});
    const double inches = Figure(Row::Inertia, Column::ZzInches);
    Click("cmdShape(3)");
    EXPECT_EQ(Shown(Box(0)), Local("101.6"));
    EXPECT_EQ(Shown(Box(1)), Local("254.0"));
    EXPECT_TRUE(IsChosen("optShapeUnits(1)"));
    EXPECT_EQ(Shown("cmdShape(3)"), "to in");
    EXPECT_EQ(Widget("cmdShape(3)").toolTip().toStdString(), "Convert to US units");
    EXPECT_FALSE(ReportIsShown());
    EXPECT_FALSE(IsEnabled("cmdMohr"));
    Compute();
    EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), 101.6 * 254));
    EXPECT_TRUE(Near(Figure(Row::Inertia, Column::ZzInches), inches));
    Click("cmdShape(3)");
    EXPECT_EQ(Shown(Box(0)), Local("4.0"));
    EXPECT_EQ(Shown(Box(1)), Local("10.0"));
    EXPECT_EQ(Shown("cmdShape(3)"), "to mm");
    EXPECT_EQ(Widget("cmdShape(3)").toolTip().toStdString(), "Convert to SI units");
}

TEST_F(PropertiesForm, SpecifiedPropertiesConvertByTheirPowers)
{
    OpenShape("mnuOtherShapes");
    TypeDimensions({"1", "2", "3", "4", "1", "2", "3"});
    Click("cmdShape(3)");
    EXPECT_EQ(Shown(Box(0)), Local("25.4"));
    EXPECT_EQ(Shown(Box(4)), Local("416231.4256"));
    EXPECT_EQ(Shown(Box(5)), Local("832462.8512"));
    EXPECT_EQ(Shown(Box(6)), Local("1935.48"));
    EXPECT_THAT(Shown("picShapeDefine"), HasSubstr("mm"));
}

TEST_F(PropertiesForm, UnitOptionConvertsNothing)
{
    ComputeShape("mnuRectangular(0)", {"4", "10"});
    Choose("optShapeUnits(1)");
    EXPECT_EQ(Shown(Box(0)), Local("4.0"));
    EXPECT_FALSE(ReportIsShown());
    EXPECT_EQ(Shown("cmdShape(3)"), "to in");
}

// --- entries

TEST_F(PropertiesForm, ComputeRewritesTheBoxes)
{
    ComputeShape("mnuRectangular(0)", {"-4", "10.12345678"});
    EXPECT_EQ(Shown(Box(0)), Local("4.0"));
    EXPECT_EQ(Shown(Box(1)), Local("10.123457"));
    EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), 4 * 10.12345678, 1e-12));
}

TEST_F(PropertiesForm, EditingHidesTheResults)
{
    ComputeShape("mnuRectangular(0)", {"4", "10"});
    Type(Box(0), "5");
    EXPECT_FALSE(ReportIsShown());
    EXPECT_FALSE(IsEnabled("cmdMohr"));
    Compute();
    EXPECT_TRUE(ReportIsShown());
    Type("txtElasticModulus(0)", "29000");
    EXPECT_FALSE(ReportIsShown());
    EXPECT_FALSE(IsEnabled("cmdMohr"));
    EXPECT_TRUE(CurrentSection.SectionComputed);
}

TEST_F(PropertiesForm, EnterIsSwallowedAndFocusSelectsAll)
{
    OpenShape("mnuRectangular(0)");
    Type(Box(0), "4");
    Press(Box(0), Qt::Key_Return);
    EXPECT_EQ(Shown(Box(0)), "4");
    EXPECT_FALSE(ReportIsShown());
    Find<screen::TextBox>(Box(1)).SetFocus();
    EXPECT_EQ(Find<screen::TextBox>(Box(1)).selectedText().toStdString(), Local("0.0"));
}

TEST_F(PropertiesForm, AnOverflowLeavesTheResults)
{
    ComputeShape("mnuRectangular(0)", {"4", "10"});
    Type(Box(0), "1e+200");
    Type(Box(1), "1e+200");
    Expect({kStop, "Forcelab",
            "A number in this calculation is too large. What is shown stays as it was; please "
            "check the input."});
    Compute();
    EXPECT_TRUE(Near(Figure(Row::Area, Column::Zz), 40));
    EXPECT_EQ(Shown(Box(0)), "1e+200");
    EXPECT_FALSE(ReportIsShown());
}

// --- the window

TEST_F(PropertiesForm, MenuBarReadsAsItShould)
{
    Open("frmProperties");
    EXPECT_EQ(TheForm().windowTitle().toStdString(), "Section Properties Module");
    const std::vector<std::pair<std::string, std::string>> captions{
        {"mnuBack", "&Back"},
        {"mnuRectangularShapes", "&Rectangular"},
        {"mnuSingleShapes", "&Flanged"},
        {"mnuDoubleShapes", "&Double"},
        {"mnuCircularShapes", "&Circular"},
        {"mnuStandardSteel", "St&eel"},
        {"mnuSpecial", "&Other"},
        {"mnuHelpProperties", "&Help"}};
    const auto actions = TheForm().menuBar()->actions();
    ASSERT_EQ(actions.size(), qsizetype(captions.size()));
    for (std::size_t i = 0; i < captions.size(); ++i) {
        EXPECT_EQ(actions[int(i)]->objectName().toStdString(), captions[i].first);
        EXPECT_EQ(actions[int(i)]->text().toStdString(), captions[i].second);
    }
    Trigger("mnuHelpProperties");
    ASSERT_EQ(Help->Opened.size(), 1u);
    EXPECT_EQ(Help->Opened.front().second, 6000);
}

TEST_F(PropertiesForm, OpensWithoutAShape)
{
    Open("frmProperties");
    EXPECT_FALSE(IsVisible("fraSectionProperties"));
    EXPECT_TRUE(IsVisible("lblChooseShape"));
    EXPECT_EQ(CurrentSection.ShapeIndex, 0);
    EXPECT_FALSE(MainModule::FirstSectionUse);
}

TEST_F(PropertiesForm, AShapeIsChosenByItsPicture)
{
    Open("frmProperties");
    Click("cmdChoose(7)");
    EXPECT_EQ(CurrentSection.ShapeIndex, kZShape);
    EXPECT_FALSE(IsVisible("fraChooseShape"));
    EXPECT_EQ(Shown("lblShapeTitle"), "User-defined Z Shape");
    Forms::Unload("frmProperties");
    Open("frmProperties");
    Click("cmdChoose(25)");
    EXPECT_TRUE(IsVisible("fraAISCDefine"));
    EXPECT_EQ(CurrentSection.ShapeIndex, kSteelTS);
}

// Every shape by its menu item, in the order of the catalogue.
std::vector<std::string> AllShapes()
{
    std::vector<std::string> items;
    const auto add = [&items](const std::string& menu, int count) {
        for (int i = 0; i < count; ++i) items.push_back(menu + "(" + std::to_string(i) + ")");
    };
    add("mnuFlanged", 8);
    add("mnuDouble", 5);
    add("mnuStiffT", 2);
    add("mnuRectangular", 2);
    add("mnuCircular", 2);
    add("mnuAISC", 7);
    items.emplace_back("mnuOtherShapes");
    return items;
}

TEST_F(PropertiesForm, EveryShapeShowsWhatTheCatalogueSays)
{
    Open("frmProperties");
    const auto items = AllShapes();
    ASSERT_EQ(int(items.size()), kShapes);
    for (int shape = 1; shape <= kShapes; ++shape) {
        const ShapeInfo& info = InfoOf(shape);
        EXPECT_EQ(MenuItem(items[std::size_t(shape) - 1]).text().toStdString(), info.Caption);
        Trigger(items[std::size_t(shape) - 1]);
        EXPECT_EQ(CurrentSection.ShapeIndex, shape);
        if (!IsSteel(shape)) {
            EXPECT_EQ(Shown("lblShapeTitle"), info.Title);
        }
        for (int box = 0; box < kBoxes; ++box) EXPECT_EQ(IsVisible(Box(box)), info.Box[box]);
        EXPECT_EQ(IsEnabled("chkElasticModulus"), info.MayBeComposite);
        for (int element = 0; element < kElements; ++element)
            EXPECT_EQ(IsVisible(Swatch(element)),
                      info.MayBeComposite && element <= info.LastElement);
    }
}

TEST_F(PropertiesForm, BoxesStandInsideTheDrawingAndApart)
{
    Open("frmProperties");
    for (const QSize size : {QSize(1024, 700), QSize(1280, 900), QSize(1900, 1000)}) {
        TheForm().resize(size);
        for (const std::string& item : AllShapes()) {
            Trigger(item);
            QCoreApplication::processEvents();
            std::vector<QRect> places;
            for (int box = 0; box < kBoxes; ++box)
                if (IsVisible(Box(box))) places.push_back(Widget(Box(box)).geometry());
            const QRect drawing = Widget("picShapeDefine").rect();
            for (std::size_t i = 0; i < places.size(); ++i) {
                EXPECT_TRUE(drawing.contains(places[i])) << item << ", box " << i;
                for (std::size_t k = 0; k < i; ++k)
                    EXPECT_FALSE(places[i].intersects(places[k])) << item << i << k;
            }
        }
    }
}

TEST_F(PropertiesForm, FitsTheSmallestScreen)
{
    Open("frmProperties");
    for (const std::string& item : AllShapes()) {
        Trigger(item);
        const QSize least = TheForm().minimumSizeHint();
        EXPECT_LE(least.width(), 1024) << item;
        EXPECT_LE(least.height(), 700) << item;
    }
}

TEST_F(PropertiesForm, BoxesAreNamedForScreenReaders)
{
    OpenShape("mnuFlanged(4)");
    EXPECT_EQ(Widget(Box(2)).accessibleName().toStdString(),
              "Dimension 1 of element 2: stem height");
    Trigger("mnuDouble(0)");
    EXPECT_EQ(Widget(Box(4)).accessibleName().toStdString(), "Spacing: gap between the webs");
    EXPECT_EQ(Widget(Box(7)).accessibleName().toStdString(),
              "Dimension 2 of element 4: bottom flange thickness");
    EXPECT_EQ(Widget(Box(4)).palette().color(QPalette::Base), QColor(255, 255, 0));
    EXPECT_EQ(Widget(Box(0)).palette().color(QPalette::Base), QColor(192, 192, 192));
    Trigger("mnuOtherShapes");
    EXPECT_EQ(Widget(Box(4)).accessibleName().toStdString(), "Moment of inertia about Z-Z");
}

TEST_F(PropertiesForm, EveryControlHasAName)
{
    Open("frmProperties");
    for (const std::string& item : AllShapes()) {
        Trigger(item);
        for (const QWidget* control : TheForm().findChildren<QWidget*>()) {
            if (!control->isVisible() || control->focusPolicy() == Qt::NoFocus) continue;
            if (control->objectName().startsWith(QLatin1String("qt_"))) continue;
            const auto* button = qobject_cast<const QAbstractButton*>(control);
            const bool named =
                !control->accessibleName().isEmpty() || (button && !button->text().isEmpty());
            EXPECT_TRUE(named) << item << ": " << control->objectName().toStdString();
        }
    }
}

// The order in which the Tab key comes to the visible controls.
std::vector<std::string> TabChain(QWidget* from)
{
    std::vector<std::string> chain;
    QWidget* at = from;
    do {
        const bool stops =
            at->isVisible() && at->isEnabled() && (at->focusPolicy() & Qt::TabFocus) != 0;
        if (stops && !at->objectName().isEmpty()) chain.push_back(at->objectName().toStdString());
        at = at->nextInFocusChain();
    } while (at != from);
    return chain;
}

TEST_F(PropertiesForm, TabGoesFromTheBoxesToTheButtons)
{
    OpenShape("mnuFlanged(4)");
    Shown("picShapeDefine");
    std::vector<std::string> boxes{Box(0), Box(1), Box(2), Box(3)};
    std::sort(boxes.begin(), boxes.end(),
              [this](const auto& a, const auto& b) { return Widget(a).x() < Widget(b).x(); });
    const auto chain = TabChain(&Widget(boxes.front()));
    std::vector<std::string> expected = boxes;
    // Of options the chosen one stops Tab; arrow keys choose among them.
    for (const char* name : {"optShapeUnits(0)", "cmdShape(3)", "optShapeRotate(0)"})
        expected.emplace_back(name);
    for (int i = 0; i < 3; ++i) expected.push_back("cmdShape(" + std::to_string(i) + ")");
    ASSERT_GE(chain.size(), expected.size());
    EXPECT_EQ(std::vector(chain.begin(), chain.begin() + long(expected.size())), expected);
    EXPECT_EQ(FocusedControl(), boxes.front());
}

TEST_F(PropertiesForm, MnemonicsAreUniqueAndComputeHasItsOwn)
{
    ComputeShape("mnuFlanged(4)", kTeeProblem.Dimensions);
    Forms::Hide("frmCrossSection");
    std::set<QString> letters;
    for (const QAction* action : TheForm().menuBar()->actions())
        EXPECT_TRUE(letters.insert(QKeySequence::mnemonic(action->text()).toString()).second);
    for (const QAbstractButton* button : TheForm().findChildren<QAbstractButton*>())
        if (!button->shortcut().isEmpty()) {
            EXPECT_TRUE(letters.insert(button->shortcut().toString()).second)
                << button->text().toStdString();
        }
    TheForm().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&TheForm()));
    QTest::keyClick(&Widget(Box(0)), Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(ReportIsShown());
}

} // namespace
} // namespace forcelab::sections
