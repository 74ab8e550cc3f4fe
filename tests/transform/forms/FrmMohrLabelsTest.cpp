#include "MohrFormTest.h"

#include <QMenuBar>

#include <set>

namespace forcelab::transform {
namespace {

struct LabelRow {
    std::string Menu;
    std::array<std::string, 3> Direction;
    std::array<std::string, 3> Kind;
    std::array<std::string, 6> Sense; ///< empty: hidden
    std::string CheckBox;
    std::string Principal;
    std::string MaxShear;
    std::string Frame;
    std::string Angle;
    std::array<std::string, 3> Rotated;
    std::set<int> Units;
};

void PrintTo(const LabelRow& row, std::ostream* out)
{
    *out << row.Menu;
}

std::string Member(const char* array, int index)
{
    return std::string(array) + "(" + std::to_string(index) + ")";
}

class MohrLabels : public MohrFormTest, public testing::WithParamInterface<LabelRow> {
  protected:
    void ExpectLabel(const std::string& control, const std::string& text)
    {
        EXPECT_EQ(IsVisible(control), !text.empty()) << control;
        if (text.empty()) return;
        EXPECT_EQ(Shown(control), text);
    }
};

TEST_P(MohrLabels, AreThoseOfTheAnalysis)
{
    const LabelRow& row = GetParam();
    OpenAnalysis(row.Menu);
    for (int i = 0; i < 3; ++i) {
        ExpectLabel(Member("lblDirection", i), row.Direction[i]);
        ExpectLabel(Member("lblKind", i), row.Kind[i]);
        ExpectLabel(Member("lblRotated", i), row.Rotated[i]);
    }
    for (int i = 0; i < 6; ++i) ExpectLabel(Member("optSigX", i), row.Sense[i]);
    ExpectLabel("chkAbsMaxShear", row.CheckBox);
    ExpectLabel("lblPrincipal", row.Principal);
    ExpectLabel("lblMaxShear", row.MaxShear);
    ExpectLabel("fraRotater", row.Frame);
    ExpectLabel("lblAngle", row.Angle);
    for (int unit = 0; unit < 8; ++unit)
        EXPECT_EQ(IsVisible(Member("optStressUnits", unit)), row.Units.count(unit) == 1) << unit;
}

TEST_P(MohrLabels, EveryControlHasASpokenName)
{
    OpenAnalysis(GetParam().Menu);
    if (IsVisible("chkRosette")) Choose("chkRosette");
    for (QWidget* widget : TheForm().findChildren<QWidget*>()) {
        const QString name = widget->objectName();
        const bool input =
            name.startsWith(QLatin1String("txt")) || name.startsWith(QLatin1String("cbo")) ||
            name.startsWith(QLatin1String("vsb")) || name.startsWith(QLatin1String("pic")) ||
            name.startsWith(QLatin1String("opt"));
        if (!input || !widget->isVisible()) continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << name.toStdString();
    }
}

// Every visible control lies inside the form and none lies on another one.
TEST_P(MohrLabels, NothingOverlapsInTheSmallestWindow)
{
    OpenAnalysis(GetParam().Menu);
    if (IsVisible("chkRosette")) Choose("chkRosette");
    TheForm().resize(1024, 700);
    QCoreApplication::processEvents();
    std::vector<QWidget*> controls;
    for (QWidget* widget : TheForm().findChildren<QWidget*>()) {
        const bool leaf = dynamic_cast<QAbstractButton*>(widget) || dynamic_cast<QLabel*>(widget) ||
                          dynamic_cast<QLineEdit*>(widget) || dynamic_cast<QComboBox*>(widget) ||
                          dynamic_cast<screen::PictureBox*>(widget);
        const bool own = !widget->objectName().isEmpty() &&
                         !widget->objectName().startsWith(QLatin1String("qt_"));
        if (leaf && own && widget->isVisible()) controls.push_back(widget);
    }
    const auto place = [this](QWidget* widget) {
        return QRect(widget->mapTo(&TheForm(), QPoint(0, 0)), widget->size());
    };
    ASSERT_GT(controls.size(), 20U);
    for (std::size_t i = 0; i < controls.size(); ++i) {
        EXPECT_LE(place(controls[i]).right(), 1024) << controls[i]->objectName().toStdString();
        for (std::size_t k = i + 1; k < controls.size(); ++k)
            EXPECT_FALSE(place(controls[i]).intersects(place(controls[k])))
                << controls[i]->objectName().toStdString() << " and "
                << controls[k]->objectName().toStdString();
    }
}

// The column of inputs makes room for the widest of them, in every analysis.
TEST_P(MohrLabels, TheInputsKeepOffThePictures)
{
    Open("frmMohr");
    TheForm().resize(1024, 700);
    QCoreApplication::processEvents();
    MenuItem(GetParam().Menu).trigger();
    Find<QLineEdit>("txtStress(0)").setText("400");
    Find<QLineEdit>("txtStress(2)").setText("300");
    Find<QPushButton>("cmdMohr(0)").click();
    QCoreApplication::processEvents();
    const auto left = [this](const char* name) {
        return Widget(name).mapTo(&TheForm(), QPoint(0, 0)).x();
    };
    for (const char* frame : {"fraStress", "fraRotater"})
        EXPECT_LE(left(frame) + Widget(frame).width() + screen::kGap, left("splPictures")) << frame;
}

// Alt with a letter does one thing only.
TEST_P(MohrLabels, MnemonicsAreUnique)
{
    OpenAnalysis(GetParam().Menu);
    if (IsVisible("chkRosette")) Choose("chkRosette");
    std::multiset<QString> letters;
    const auto note = [&letters](const QString& caption) {
        const qsizetype mark = caption.indexOf(u'&');
        if (mark >= 0) letters.insert(caption.mid(mark + 1, 1).toUpper());
    };
    for (const QAction* item : TheForm().menuBar()->actions()) note(item->text());
    for (const QAbstractButton* button : TheForm().findChildren<QAbstractButton*>())
        if (button->isVisible()) note(button->text());
    ASSERT_EQ(letters.size(), 11U);
    for (const QString& letter : letters)
        EXPECT_EQ(letters.count(letter), 1U) << letter.toStdString();
}

TEST_P(MohrLabels, TabReachesEveryInput)
{
    OpenAnalysis(GetParam().Menu);
    if (IsVisible("chkRosette")) Choose("chkRosette");
    Find<screen::TextBox>("txtStress(0)").SetFocus();
    std::vector<std::string> walked;
    for (int step = 0; step < 60; ++step) {
        walked.push_back(FocusedControl());
        QTest::keyClick(TheForm().focusWidget(), Qt::Key_Tab);
        if (FocusedControl() == "txtStress(0)") break;
    }
    EXPECT_EQ(FocusedControl(), "txtStress(0)");
    for (const char* control : {"txtStress(1)", "txtStress(2)", "cmdMohr(0)", "cmdMohr(3)",
                                "txtRotater", "cmdRotater", "vsbRotater", "picMohr"})
        EXPECT_THAT(walked, testing::Contains(control));
}

constexpr const char* kStrainFrame = "Compute Normal and Shear Strains at Arbitrary Orientation";
const std::array<std::string, 3> kStrainResults{"Epsilon X'", "Epsilon Y'", "Gamma X'Y'"};
const std::array<std::string, 3> kGauges{"Gage A Strain", "Gage B Strain", "Gage C Strain"};

LabelRow RosetteRow(const std::string& menu, const std::array<std::string, 3>& directions)
{
    return {menu,
            kGauges,
            directions,
            {"Elongation", "Contraction", "Elongation", "Contraction", "Elongation", "Contraction"},
            "Show Absolute Maximum Shear Strain",
            "Principal Strain Orientation",
            "Max XY Shear Strain Orientation",
            kStrainFrame,
            "Angle from A-axis to X'-axis",
            kStrainResults,
            {4, 5}};
}

INSTANTIATE_TEST_SUITE_P(
    Analyses, MohrLabels,
    testing::Values(LabelRow{"mnuPlaneStress",
                             {"X-direction", "Y-direction", "XY-direction"},
                             {"Normal Stress", "Normal Stress", "Shear Stress"},
                             {"Tension", "Compression", "Tension", "Compression", "CW on X-face",
                              "CCW on X-face"},
                             "Show Absolute Maximum Shear Stress",
                             "Principal Stress Orientation",
                             "Max XY Shear Stress Orientation",
                             "Compute Normal and Shear Stresses at Arbitrary Orientation",
                             "Angle from X-axis to X'-axis",
                             {"Sigma X'", "Sigma Y'", "Tau X'Y'"},
                             {0, 1, 2, 3}},
                    LabelRow{"mnuPlaneStrain",
                             {"X-direction", "Y-direction", "XY-direction"},
                             {"Normal Strain", "Normal Strain", "Shear Strain"},
                             {"Elongation", "Contraction", "Elongation", "Contraction",
                              "CW from X-axis", "CCW from X-axis"},
                             "Show Absolute Maximum Shear Strain",
                             "Principal Strain Orientation",
                             "Max XY Shear Strain Orientation",
                             kStrainFrame,
                             "Angle from X-axis to X'-axis",
                             kStrainResults,
                             {4, 5}},
                    RosetteRow("mnuRosette45", {"0° Direction", "45° Direction", "90° Direction"}),
                    RosetteRow("mnuRosette60", {"0° Direction", "60° Direction", "120° Direction"}),
                    LabelRow{"mnuMomentOfInertia",
                             {"Z-direction", "Y-direction", "YZ-direction"},
                             {"", "", ""},
                             {"", "", "", "", "", ""},
                             "",
                             "Orientation of Principal Axes",
                             "",
                             "Compute Moments of Inertia at Arbitrary Orientation",
                             "Angle from Z-axis to Z'-axis",
                             {"Iz'", "Iy'", "Iy'z'"},
                             {6, 7}}));

} // namespace
} // namespace forcelab::transform
