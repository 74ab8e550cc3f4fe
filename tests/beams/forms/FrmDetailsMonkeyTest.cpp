#include "DetailsFormTest.h"

#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <random>

namespace forcelab::beams {
namespace {

constexpr int kSteps = 2000;
constexpr std::uint32_t kDefaultSeed = 45001;

/// Types, presses, drags and changes beams and sections at random. What shows must always be a
/// number, and no box may come that the forms do not know.
class DetailsMonkey : public DetailsFormTest {
  protected:
    DetailsMonkey()
    {
        const char* given = std::getenv("FORCELAB_SEED");
        const auto seed = given ? static_cast<std::uint32_t>(std::stoul(given)) : kDefaultSeed;
        std::printf("seed %u (FORCELAB_SEED)\n", seed);
        random_.seed(seed);
    }

    int Pick(std::size_t count) { return static_cast<int>(random_() % count); }

    template <class Control>
    Control* AnyVisible()
    {
        std::vector<Control*> found;
        for (QWidget* widget : TheForm().findChildren<QWidget*>()) {
            auto* control = dynamic_cast<Control*>(widget);
            if (control && control->isVisible() && control->isEnabled() &&
                !control->objectName().isEmpty() &&
                !control->objectName().startsWith(QLatin1String("qt_")))
                found.push_back(control);
        }
        return found.empty() ? nullptr : found[std::size_t(Pick(found.size()))];
    }

    void TypeSomething()
    {
        static const std::vector<std::string> kTexts{
            "0",   "1",    "-5",       "12.5",   "1,5",    "abc", "",  "3e+6", "1e-300",
            "100", "0.01", "1e+400",   "1e+307", "9e+300", "-",   "7", "10",   "-0.5",
            "25",  "4",    "1e+99999", "nan",    "inf",    "--1", "5"};
        auto* box = AnyVisible<screen::TextBox>();
        if (!box) return;
        box->SetFocus();
        box->selectAll();
        QTest::keyClicks(box, screen::Q(kTexts[std::size_t(Pick(kTexts.size()))]));
        if (Pick(3) == 0) QTest::keyClick(box, Qt::Key_Return);
    }

    void PressSomething()
    {
        if (auto* button = AnyVisible<QAbstractButton>())
            QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    }

    void MoveSomething()
    {
        if (Pick(2) == 0) {
            if (auto* bar = AnyVisible<QScrollBar>())
                bar->setValue(bar->minimum() +
                              Pick(std::size_t(bar->maximum() - bar->minimum()) + 1));
        } else if (auto* picture = AnyVisible<screen::PictureBox>()) {
            QTest::mouseClick(
                picture, Qt::LeftButton, Qt::NoModifier,
                {Pick(std::size_t(picture->width())), Pick(std::size_t(picture->height()))});
        }
    }

    void ChangeTheWorld()
    {
        if (Pick(3) == 0) UseSimpleBeam();
        CurrentPoint.SlopeView = Pick(3) == 0;
        ShownDiagramUnits.Force = Pick(4);
        ShownDiagramUnits.Moment = Pick(4);
        ClearPoint(CurrentPoint);
        TellPointChanged();
        const int shape = 1 + Pick(sections::kPipe);
        sections::CurrentSection =
            Pick(6) == 0 ? sections::CrossSection{}
                         : test::Computed(shape, test::SampleDimensions(shape)).Section;
        screen::Forms::Hide("frmDetails");
    }

    void SetLimits()
    {
        QTimer::singleShot(0, [this] {
            Use("frmAllowable");
            for (int i = 0; i < 6; ++i) Pick(2) ? TypeSomething() : PressSomething();
            screen::Forms::Hide("frmAllowable");
        });
        MenuItem("mnuAllowable").trigger();
    }

    void Step()
    {
        switch (Pick(12)) {
        case 0:
        case 1:
        case 2:
            return TypeSomething();
        case 3:
        case 4:
            return MoveSomething();
        case 5:
            return Pick(3) == 0 ? ChangeTheWorld() : SetLimits();
        default:
            return PressSomething();
        }
    }

    void ExpectNumbers(int step)
    {
        std::string all;
        for (const char* shown :
             {"txtKeyStresses(0)", "lblPointValue(0)", "lblPointValue(1)", "lblPointFiner(0)"})
            all += Shown(shown) + "\n";
        for (const char* picture : {"picST(0)", "picST(1)", "picST(2)", "picST(3)"})
            if (IsVisible(picture)) all += Shown(picture) + "\n";
        EXPECT_EQ(all.find("nan"), std::string::npos) << step << ": " << all;
        EXPECT_EQ(all.find("inf"), std::string::npos) << step << ": " << all;
        const bool view = IsVisible("picST(1)");
        EXPECT_EQ(view, IsVisible("picST(2)") || IsVisible("picST(3)")) << step;
        EXPECT_TRUE(IsVisible("fraKeyStresses") || !view) << step;
        views_ += view;
    }

    void ExpectKnownBoxes(int step)
    {
        for (const auto& box : Messages->Shown)
            EXPECT_TRUE(box.Title == "Forcelab" || box.Title == "Stress Calculation Error" ||
                        box.Title == "Stress Transformation Warning")
                << step << ": " << box.Title << ": " << box.Text;
        Messages->Shown.clear();
    }

    int views_ = 0; ///< steps after which stresses showed

  private:
    std::mt19937 random_;
};

TEST_F(DetailsMonkey, ShowsNumbersAlways)
{
    Messages->AcceptAny = true;
    UseSimpleBeam();
    TakeSection(test::Tee());
    for (int step = 0; step < kSteps && !HasFailure(); ++step) {
        screen::Forms::Hide("frmMohr");
        Open("frmDetails");
        Step();
        QCoreApplication::processEvents();
        Use("frmDetails");
        ExpectKnownBoxes(step);
        if (screen::Forms::IsVisible("frmDetails")) ExpectNumbers(step);
    }
    EXPECT_GE(views_, kSteps / 20);
}

} // namespace
} // namespace forcelab::beams
