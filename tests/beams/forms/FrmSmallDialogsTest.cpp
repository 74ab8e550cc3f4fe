#include "BeamStufFormTest.h"

#include <QTimer>

namespace forcelab::beams {
namespace {

using screen::Forms;

class PageTitle : public BeamStufFormTest {
  protected:
    /// What AskTitle gives when a person types a title and presses a button.
    std::optional<std::string> Answer(const std::string& title, const std::string& button)
    {
        QTimer::singleShot(0, [this, title, button] {
            Use("frmStiffPrint");
            Type("txtTitle", title);
            Click(button);
        });
        return frmStiffPrint::AskTitle();
    }
};

TEST_F(PageTitle, OkGivesTheTitle)
{
    EXPECT_EQ(Answer("Beam of problem 4", "cmdOK"), "Beam of problem 4");
    EXPECT_EQ(screen::FormAs<frmStiffPrint>("frmStiffPrint").Result(), 1);
    EXPECT_FALSE(Forms::IsVisible("frmStiffPrint"));
}

TEST_F(PageTitle, CancelAndCloseBoxGiveNothing)
{
    EXPECT_EQ(Answer("x", "cmdOK"), "x");
    EXPECT_EQ(Answer("y", "cmdCancel"), std::nullopt);
    QTimer::singleShot(0, [] { Forms::Load("frmStiffPrint")->close(); });
    EXPECT_EQ(frmStiffPrint::AskTitle(), std::nullopt);
    EXPECT_TRUE(Forms::IsLoaded("frmStiffPrint"));
}

TEST_F(PageTitle, EnterAndEscapeAnswer)
{
    Open("frmStiffPrint");
    EXPECT_EQ(FocusedControl(), "txtTitle");
    Press("txtTitle", Qt::Key_Return);
    EXPECT_EQ(screen::FormAs<frmStiffPrint>("frmStiffPrint").Result(), 1);
    Open("frmStiffPrint");
    Activate();
    Press("txtTitle", Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([] { return !Forms::IsVisible("frmStiffPrint"); }));
    EXPECT_EQ(screen::FormAs<frmStiffPrint>("frmStiffPrint").Result(), 0);
}

class ShearSign : public BeamStufFormTest {};

TEST_F(ShearSign, ShowsAndSetsTheConvention)
{
    Open("frmReverseShear");
    EXPECT_EQ(TheForm().windowTitle().toStdString(), "Sign Convention for Plotting Shear Diagram");
    EXPECT_EQ(Shown("optReverseShear(0)"),
              "Plot upward shear force on right-hand side of beam element as positive.");
    EXPECT_EQ(Shown("optReverseShear(1)"),
              "Plot downward shear force on right-hand side of beam element as positive.");
    EXPECT_TRUE(IsChosen("optReverseShear(1)"));
    Choose("optReverseShear(0)");
    EXPECT_TRUE(CurrentBeam.ReverseShearSign);
    Choose("optReverseShear(1)");
    EXPECT_FALSE(CurrentBeam.ReverseShearSign);
}

TEST_F(ShearSign, OpensWithTheConventionInForce)
{
    CurrentBeam.ReverseShearSign = true;
    Open("frmReverseShear");
    EXPECT_TRUE(IsChosen("optReverseShear(0)"));
    EXPECT_TRUE(CurrentBeam.ReverseShearSign);
}

TEST_F(ShearSign, ClosingItPaintsShearAndMomentAnew)
{
    for (const bool byBox : {false, true}) {
        Open("frmReverseShear");
        TakeDiagramRequest();
        byBox ? static_cast<void>(TheForm().close()) : Click("cmdOK");
        EXPECT_EQ(TakeDiagramRequest().Pictures, kShearPicture | kMomentPicture);
        EXPECT_FALSE(Forms::IsVisible("frmReverseShear"));
        EXPECT_TRUE(Forms::IsLoaded("frmReverseShear"));
    }
}

TEST_F(ShearSign, SketchesDiffer)
{
    Open("frmReverseShear");
    auto& upward = Find<screen::PictureBox>("picReverseShear(0)");
    auto& downward = Find<screen::PictureBox>("picReverseShear(1)");
    upward.PaintNow();
    downward.PaintNow();
    EXPECT_NE(upward.Image(), downward.Image());
    EXPECT_EQ(Shown("picReverseShear(0)"), "V\nV\n+");
}

} // namespace
} // namespace forcelab::beams
