#include "TrussFormTest.h"

#include <set>

namespace forcelab::truss {
namespace {

using testing::AllOf;
using testing::Not;

/// What the picture shows while it moves and while it is drawn on.
class TrussPicture : public TrussFormTest {
  protected:
    QTimer& Motion() { return *TheForm().findChild<QTimer*>(QStringLiteral("timMotion")); }
    void ComputeTheSquare()
    {
        DrawSquare();
        Expect(MsgBox{kStop, "Truss Analysis Error",
                      "Sorry, the analysis was unsuccessful.  The\r"
                      "truss appears to be geometrically unstable.\r"
                      "Check the truss input data."});
        Click("cmdSpacing(1)");
    }
    /// As the window shows it, with what is painted over the picture.
    QImage Painted() { return Truss().grab().toImage(); }
    /// Runs the motion on without waiting for the clock.
    void TicksOfMotion(int count)
    {
        for (int i = 0; i < count; ++i) QMetaObject::invokeMethod(&Motion(), "timeout");
    }
};

TEST_F(TrussPicture, MechanismMovesAndTellsWhichJointsMove)
{
    ComputeTheSquare();
    ASSERT_TRUE(Motion().isActive());
    EXPECT_THAT(Shown("lblInstruct"), HasSubstr("Joints B and D can move"));
    const QImage rest = Painted();
    TicksOfMotion(25);
    const QImage there = Painted();
    TicksOfMotion(50);
    const QImage back = Painted();
    EXPECT_NE(rest, there);
    EXPECT_NE(there, back);
}

TEST_F(TrussPicture, MotionEndsByItself)
{
    ComputeTheSquare();
    TicksOfMotion(1000);
    EXPECT_FALSE(Motion().isActive());
    EXPECT_THAT(Shown("picTruss"), HasSubstr(Local("5.0"))); // the model with its load again
    EXPECT_THAT(Shown("lblInstruct"), HasSubstr("Joints B and D can move"));
    EXPECT_THAT(Shown("picTruss"), AllOf(HasSubstr("B"), HasSubstr("D")));
    const QImage lettered = Painted();
    Choose("optTrussDefine(0)");
    EXPECT_THAT(Shown("lblInstruct"), HasSubstr("To define a truss member"));
    EXPECT_THAT(Shown("picTruss"), AllOf(Not(HasSubstr("B")), Not(HasSubstr("D"))));
    EXPECT_NE(Painted(), lettered);
}

TEST_F(TrussPicture, AnyClickAndAnyKeyEndTheMotion)
{
    ComputeTheSquare();
    QTest::mouseClick(&Widget("lblInstruct"), Qt::LeftButton);
    EXPECT_FALSE(Motion().isActive());
    for (const char* control : {"picTruss", "cmdSpacing(2)"}) {
        Messages->AcceptAny = true;
        Click("cmdSpacing(1)");
        ASSERT_TRUE(Motion().isActive());
        Press(control, Qt::Key_Space);
        EXPECT_FALSE(Motion().isActive()) << control;
        EXPECT_TRUE(screen::Forms::IsVisible("frmTruss"));
    }
}

TEST_F(TrussPicture, RubberBandFollowsTheMouseAndEscapeGivesItUp)
{
    LayGrid(3, 3);
    Truss().setFocus();
    const QImage before = Painted();
    QTest::mousePress(&Truss(), Qt::LeftButton, Qt::NoModifier, Truss().PixelOf(0, 0));
    MoveTo(Truss().PixelOf(12, 17));
    const QImage first = Painted();
    MoveTo(Truss().PixelOf(28, 5));
    EXPECT_NE(before, first);
    EXPECT_NE(first, Painted());
    Press("picTruss", Qt::Key_Escape);
    EXPECT_EQ(before, Painted());
    QTest::mouseRelease(&Truss(), Qt::LeftButton, Qt::NoModifier, Truss().PixelOf(20, 10));
    EXPECT_EQ(CurrentTruss.MemberCount, 0);
}

TEST_F(TrussPicture, DragPaintsTheBandAloneAndFilesGoWithoutIt)
{
    DrawTriangle();
    Truss().PaintNow();
    const auto paint = Truss().OnPaint;
    int painted = 0;
    Truss().OnPaint = [&](Picture& pic) {
        ++painted;
        paint(pic);
    };
    const QImage still = Truss().Image();
    Choose("optTrussDefine(0)");
    Painted();
    painted = 0;
    QTest::mousePress(&Truss(), Qt::LeftButton, Qt::NoModifier, Truss().PixelOf(30, 30));
    const QImage before = Painted();
    for (const double x : {25, 20, 15, 10}) MoveTo(Truss().PixelOf(x, 20));
    EXPECT_NE(before, Painted());
    EXPECT_EQ(painted, 0);
    EXPECT_EQ(Truss().Image(), still);
    QTest::mouseRelease(&Truss(), Qt::LeftButton, Qt::NoModifier, Truss().PixelOf(10, 20));
    Painted();
    EXPECT_EQ(painted, 1);
    Truss().OnPaint = paint;
}

TEST_F(TrussPicture, ModeChangedDuringADragEndsIt)
{
    LayGrid(3, 3);
    QTest::mousePress(&Truss(), Qt::LeftButton, Qt::NoModifier, Truss().PixelOf(0, 0));
    Find<screen::OptionButton>("optTrussDefine(1)").setChecked(true);
    QTest::mouseRelease(&Truss(), Qt::LeftButton, Qt::NoModifier, Truss().PixelOf(20, 10));
    for (const TrussGridPoint& point : CurrentTruss.GridPoints)
        EXPECT_EQ(point.SupportX + point.SupportY, 0);
}

TEST_F(TrussPicture, WholeTriangleByKeyboard)
{
    LayGrid(2, 1);
    const auto keys = [this](std::initializer_list<Qt::Key> pressed) {
        for (const Qt::Key key : pressed) Press("picTruss", key);
    };
    using namespace Qt;
    Truss().setFocus();
    keys({Key_Space, Key_Space, Key_Right, Key_Right, Key_Space}); // (0,0) to (2,0)
    keys({Key_Space, Key_Left, Key_Up, Key_Space});                // (2,0) to (1,1)
    keys({Key_Space, Key_Left, Key_Down, Key_Space});              // (1,1) to (0,0)
    ASSERT_EQ(CurrentTruss.MemberCount, 3);
    Choose("optTrussDefine(1)");
    keys({Key_Space, Key_Left, Key_Space, Key_Space, Key_Down, Key_Space});
    keys({Key_Right, Key_Right, Key_Space, Key_Down, Key_Space});
    EXPECT_EQ(CurrentTruss.GridPoints[0].SupportX + CurrentTruss.GridPoints[0].SupportY, 2);
    EXPECT_EQ(CurrentTruss.GridPoints[CurrentTruss.PointAt(2, 0)].SupportY, 1);
    Choose("optTrussDefine(2)");
    keys({Key_Left, Key_Up, Key_Space, Key_Down});
    WhileModal("frmTrussLoad", "frmTruss", [this] {
        EXPECT_EQ(Shown("lblLoadPrompt(1)"), "(downward direction)");
        Type("txtLoadMagnitude", "10");
        Click("cmdLoadDefine(0)");
    });
    keys({Key_Space});
    Click("cmdSpacing(1)");
    EXPECT_THAT(List(1), testing::Contains(Local("Ay = 5.000 Upward")));
}

TEST_F(TrussPicture, EveryControlIsReachedByTab)
{
    DrawTriangle();
    Click("cmdSpacing(1)");
    std::set<std::string> reached;
    Widget("cmdGridMake").setFocus();
    for (int i = 0; i < 40; ++i) {
        reached.insert(FocusedControl());
        QTest::keyClick(TheForm().focusWidget(), Qt::Key_Tab);
    }
    for (const char* name :
         {"cmdGridMake", "picTruss", "cmdSpacing(1)", "cmdSpacing(2)", "cboTrussResults(0)",
          "cboTrussResults(1)", "cmdExplain", "txtExplain"})
        EXPECT_TRUE(reached.contains(name)) << name;
}

TEST_F(TrussPicture, NothingIsClippedInASmallWindow)
{
    DrawTriangle();
    TheForm().resize(1024, 700);
    Click("cmdSpacing(1)");
    QCoreApplication::processEvents();
    EXPECT_LE(TheForm().width(), 1024);
    EXPECT_LE(TheForm().height(), 700);
    for (int define = 0; define < 3; ++define)
        for (int make = 0; make < 2; ++make) {
            Choose("optMakeOrTake(" + std::to_string(make) + ")");
            Choose("optTrussDefine(" + std::to_string(define) + ")");
            Choose("optMakeOrTake(" + std::to_string(1 - make) + ")");
            QCoreApplication::processEvents();
            auto& text = Find<screen::Label>("lblInstruct");
            EXPECT_GE(text.height(), text.heightForWidth(text.width())) << define << make;
        }
}

} // namespace
} // namespace forcelab::truss
