#include "BeamDiagramsFormTest.h"

#include <QStyleOptionSlider>
#include <QWheelEvent>

namespace forcelab::beams {
namespace {

using screen::Forms;
using test::Local;
using test::Near;

/// The point of the readout, its bar and its marker.
class DiagramPoint : public BeamDiagramsFormTest {
  protected:
    QScrollBar& Bar() { return Find<QScrollBar>("hsbX"); }
    void Step(int times, Qt::Key key = Qt::Key_Right)
    {
        for (int i = 0; i < times; ++i) Press("hsbX", key);
    }
    /// True where a column of the picture has the colour of the marker.
    bool HasMarkerAt(const std::string& picture, double x)
    {
        auto& box = Picture(picture);
        box.PaintNow();
        const QPoint at = box.PixelOf(x, box.Sheet().ScaleTop());
        for (int near = -1; near <= 1; ++near)
            if (box.Image().pixel(at.x() + near, 4) == qRgb(0xd8, 0x6f, 0x00)) return true;
        return false;
    }
    std::string Line(const std::string& x, const std::string& length, const std::string& shear,
                     const std::string& force, const std::string& bending,
                     const std::string& moment)
    {
        return "At X = " + Local(x) + " " + length + ": shear force " + Local(shear) + " " + force +
               ", bending moment " + Local(bending) + " " + moment;
    }
};

TEST_F(DiagramPoint, TheBarSpansTheBeam)
{
    MetreBeam();
    EXPECT_EQ(Bar().minimum(), 0);
    EXPECT_EQ(Bar().maximum(), 10000);
    Choose("optLengthUnits(1)"); // 32.8084 ft, a hundredth of a foot a step
    EXPECT_EQ(Bar().maximum(), 3281);
}

TEST_F(DiagramPoint, KeysMoveThePointAndItsMarker)
{
    MetreBeam();
    Choose("optMomentUnits(3)");
    Step(20);
    // V = 30.6 - 5 x 2 = 20.6, M = 30.6 x 2 - 5 x 2 = 51.2
    EXPECT_EQ(Readout(), Line("2.00", "m", "20.60", "kN", "51.20", "kN-m"));
    EXPECT_EQ(CurrentPoint.XText, Local("2.00"));
    for (const char* picture : {"picShearDiagram", "picMomentDiagram"}) {
        EXPECT_TRUE(HasMarkerAt(picture, 2 * kInchesOfMetre)) << picture;
        EXPECT_FALSE(HasMarkerAt(picture, 6 * kInchesOfMetre)) << picture;
    }
    Step(1, Qt::Key_Left);
    EXPECT_EQ(CurrentPoint.XText, Local("1.90"));
    Step(1, Qt::Key_End);
    EXPECT_EQ(Readout(), Line("10.00", "m", "0.00", "kN", "0.00", "kN-m")); // behind the support
}

TEST_F(DiagramPoint, DragAndWheelMoveItToo)
{
    MetreBeam();
    Bar().setSliderDown(true);
    Bar().setSliderPosition(3000);
    Bar().setSliderDown(false);
    // At the load the value behind it counts: 30.6 - 15 - 8.
    EXPECT_EQ(CurrentPoint.Texts[0], Local("7.60"));
    const int before = Bar().value();
    QWheelEvent wheel(QPointF(20, 5), Bar().mapToGlobal(QPointF(20, 5)), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&Bar(), &wheel);
    EXPECT_NE(Bar().value(), before);
    EXPECT_TRUE(CurrentPoint.X);
    EXPECT_TRUE(Near(*CurrentPoint.X, Bar().value() / 1000.0 * kInchesOfMetre, 1e-6));
}

TEST_F(DiagramPoint, AChangeInCodeOnlyClears)
{
    MetreBeam();
    Step(20);
    Bar().setValue(4525);
    EXPECT_EQ(CurrentPoint.XText, Local("4.525"));
    EXPECT_EQ(CurrentPoint.Texts[0], "Not calculated");
    EXPECT_EQ(CurrentPoint.Texts[1], "Not calculated");
    EXPECT_FALSE(CurrentPoint.X);
    EXPECT_FALSE(HasMarkerAt("picShearDiagram", 4.525 * kInchesOfMetre));
    Press("hsbX", Qt::Key_Home);
    Press("hsbX", Qt::Key_Home); // the bar is there already: nothing moves by hand
    Bar().setValue(100);
    EXPECT_FALSE(CurrentPoint.X);
}

TEST_F(DiagramPoint, TheDetailsMoveMarkerAndBar)
{
    MetreBeam();
    int told = 0;
    OnPointForDetails = [&told] { ++told; };
    CurrentPoint.XText = Local("7.5");
    CalculatePoint(CurrentPoint, CurrentBeam, ShownDiagramUnits);
    TellPointChanged();
    EXPECT_EQ(told, 1); // the bar does not tell again
    EXPECT_EQ(Bar().value(), 7500);
    EXPECT_TRUE(HasMarkerAt("picMomentDiagram", 7.5 * kInchesOfMetre));
    EXPECT_EQ(CurrentPoint.XText, Local("7.5"));
    Step(1);
    EXPECT_EQ(told, 2);
}

TEST_F(DiagramPoint, KeepsItsPlaceInAnotherLengthUnit)
{
    MetreBeam();
    Step(20);
    Choose("optLengthUnits(2)");
    EXPECT_EQ(CurrentPoint.XText, Local("2,000.00"));
    EXPECT_EQ(CurrentPoint.Texts[0], Local("20.60"));
    Choose("optLengthUnits(0)");
    EXPECT_EQ(CurrentPoint.XText, Local("78.74"));
    EXPECT_TRUE(Near(*CurrentPoint.X, 78.74, 1e-4));
    EXPECT_TRUE(HasMarkerAt("picShearDiagram", 78.74));
    EXPECT_EQ(Bar().value(), 787);
}

TEST_F(DiagramPoint, FollowsForceAndMomentUnits)
{
    MetreBeam();
    Step(20);
    Choose("optForceUnits(2)");
    Choose("optMomentUnits(2)");
    EXPECT_EQ(Readout(), Line("2.00", "m", "20,600.00", "N", "51,200.00", "N-m"));
}

TEST_F(DiagramPoint, FollowsAChangeOfTheLoads)
{
    MetreBeam();
    Step(20);
    Entry();
    EnterPoint(kPointDown, "1", "10"); // 9 kN more at A, and 10 less from 1 m on
    EXPECT_EQ(CurrentPoint.Texts[0], Local("19.60"));
    Trigger("mnuUndoLoadEntry");
    EXPECT_EQ(CurrentPoint.Texts[0], Local("20.60"));
    Trigger("mnuUndoLoadEntry");
    Trigger("mnuUndoLoadEntry");
    EXPECT_FALSE(CurrentPoint.X); // nothing is left to read
    EXPECT_EQ(CurrentPoint.Texts[0], "Not calculated");
}

TEST_F(DiagramPoint, StaysOnAShorterBeam)
{
    FootBeam();
    Press("hsbX", Qt::Key_End);
    Entry();
    Click("cmdBeamType(0)");
    Type("txtBeamLength", "8");
    Type("txtRightSimple", "8");
    Click("cmdBeamDefineOK");
    Diagrams();
    EXPECT_EQ(CurrentPoint.XText, Local("8.00"));
    EXPECT_TRUE(Near(*CurrentPoint.X, 96));
    EXPECT_EQ(Bar().maximum(), 8000);
    EXPECT_EQ(Bar().value(), 8000);
}

TEST_F(DiagramPoint, AnotherViewClearsIt)
{
    UseSteelSection();
    MetreBeam();
    Step(20);
    int told = 0;
    OnPointForDetails = [&told] { ++told; };
    Trigger("mnuSlopeDeflection");
    EXPECT_GE(told, 1);
    EXPECT_TRUE(CurrentPoint.SlopeView);
    EXPECT_FALSE(CurrentPoint.X);
    EXPECT_EQ(CurrentPoint.Texts[0], "Not calculated");
    Step(1);
    EXPECT_EQ(Readout().find("At X = " + Local("2.10") + " m: slope "), 0U) << Readout();
    EXPECT_TRUE(HasMarkerAt("picDeflectionDiagram", 2.1 * kInchesOfMetre));
    Trigger("mnuShearMoment");
    EXPECT_FALSE(CurrentPoint.X);
}

// The bar's slider stands under its point.
TEST_F(DiagramPoint, BarAndPictureAreAligned)
{
    MetreBeam();
    for (const int width : {394, 860, 1280}) {
        TheForm().resize(width, 900);
        QTest::qWait(10);
        for (const int value : {0, 5000, 10000}) {
            Bar().setValue(value);
            QStyleOptionSlider option;
            option.initFrom(&Bar());
            option.orientation = Qt::Horizontal;
            option.minimum = 0;
            option.maximum = Bar().maximum();
            option.sliderPosition = option.sliderValue = value;
            option.pageStep = Bar().pageStep();
            const QRect slider = Bar().style()->subControlRect(QStyle::CC_ScrollBar, &option,
                                                               QStyle::SC_ScrollBarSlider, &Bar());
            auto& picture = Picture("picLoadDiagram");
            picture.PaintNow();
            const int column =
                picture.mapTo(&TheForm(), picture.PixelOf(value / 1000.0 * kInchesOfMetre, 0)).x();
            EXPECT_NEAR(Bar().mapTo(&TheForm(), slider.center()).x(), column, 4)
                << width << " " << value;
        }
    }
}

} // namespace
} // namespace forcelab::beams
