#include "core/ArithmeticFault.h"
#include "core/screen/PictureForm.h"

#include <QAccessible>

namespace forcelab::test {
namespace {

using screen::MouseAction;
using screen::PictureBox;

TEST_F(PictureBoxes, PaintsByItsHandlerAndKeepsTheTexts)
{
    EXPECT_EQ(pic_->Texts(), "first line\nsecond line");
    EXPECT_EQ(pic_->accessibleDescription(), "first line\nsecond line");
    EXPECT_EQ(pic_->Sheet().Point(5, 5), Rgb(255, 0, 0));
    EXPECT_EQ(pic_->Sheet().Point(-5, -5), Rgb(255, 255, 255));
    EXPECT_EQ(pic_->Sheet().ScaleTop(), 10);
}

TEST_F(PictureBoxes, WhatIsPaintedIsWhatTheWindowShows)
{
    const QImage shown = pic_->grab().toImage();
    const QPoint inside = pic_->PixelOf(5, 5);
    EXPECT_EQ(shown.pixelColor(inside), QColor(255, 0, 0));
}

TEST_F(PictureBoxes, RefreshPaintsOnceForAnyNumberOfCalls)
{
    QCoreApplication::processEvents();
    const int before = form_->Paintings;
    for (int i = 0; i < 5; ++i) pic_->Refresh();
    pic_->grab();
    EXPECT_EQ(form_->Paintings, before + 1);
    pic_->grab();
    EXPECT_EQ(form_->Paintings, before + 1) << "a picture that is up to date is only copied";
}

TEST_F(PictureBoxes, AHiddenPictureWaitsUntilItIsShown)
{
    pic_->hide();
    const int before = form_->Paintings;
    pic_->Refresh();
    QCoreApplication::processEvents();
    EXPECT_EQ(form_->Paintings, before);
    pic_->show();
    QTest::qWait(1);
    EXPECT_EQ(form_->Paintings, before + 1);
}

TEST_F(PictureBoxes, EachPaintingStartsWithFreshSettingsAndTheOldScale)
{
    double leftSeen = 0;
    pic_->OnPaint = [&](Picture& sheet) {
        form_->FontSeen = sheet.FontSize;
        leftSeen = sheet.ScaleLeft();
    };
    pic_->PaintNow();
    EXPECT_EQ(form_->FontSeen, 8);
    EXPECT_EQ(leftSeen, -10);
}

TEST_F(PictureBoxes, AFaultKeepsTheLastPicture)
{
    const QImage last = pic_->Image();
    form_->Faulty = true;
    form_->Title = "never seen";
    form_->Ink = Rgb(0, 0, 255);
    pic_->PaintNow();
    EXPECT_EQ(pic_->Texts(), "first line\nsecond line");
    EXPECT_EQ(pic_->Image(), last);
    EXPECT_EQ(pic_->Sheet().Point(5, 5), Rgb(255, 0, 0));
    form_->Faulty = false;
    pic_->PaintNow();
    EXPECT_EQ(pic_->Sheet().Point(5, 5), Rgb(0, 0, 255)) << "the next painting works again";
}

TEST_F(PictureBoxes, AFaultAfterResizingShowsTheLastPictureInTheNewSize)
{
    form_->Faulty = true;
    form_->resize(600, 500);
    const QImage shown = pic_->grab().toImage();
    EXPECT_EQ(shown.pixelColor(pic_->PixelOf(5, 5)), QColor(255, 0, 0));
    EXPECT_EQ(shown.pixelColor(pic_->PixelOf(-5, -5)), QColor(255, 255, 255));
}

TEST_F(PictureBoxes, AHandlerMayAskForAnotherPainting)
{
    form_->Title = "nested";
    pic_->OnPaint = [this](Picture& sheet) {
        form_->Paint(sheet);
        pic_->PaintNow();
        pic_->grab();
        sheet.Print(" goes on");
    };
    pic_->PaintNow();
    EXPECT_EQ(pic_->Texts(), "nested\nsecond line goes on");
}

TEST_F(PictureBoxes, TheMouseSpeaksTheScaleOfThePicture)
{
    MouseAction down;
    MouseAction up;
    pic_->OnMouseDown = [&](const MouseAction& action) { down = action; };
    pic_->OnMouseUp = [&](const MouseAction& action) { up = action; };
    const QPoint place(pic_->width() * 3 / 4, pic_->height() / 4);
    QTest::mousePress(pic_, Qt::LeftButton, Qt::ShiftModifier, place);
    QTest::mouseRelease(pic_, Qt::LeftButton, Qt::ControlModifier, pic_->PixelOf(-5, 2));
    EXPECT_EQ(down.Button, screen::kLeftButton);
    EXPECT_EQ(down.Shift, screen::kShift);
    EXPECT_TRUE(Near(down.X, 5, 0.02));
    EXPECT_TRUE(Near(down.Y, 5, 0.02)) << "y runs upward";
    EXPECT_EQ(up.Shift, screen::kControl);
    EXPECT_TRUE(Near(up.X, -5, 0.02));
    EXPECT_TRUE(Near(up.Y, 2, 0.05));
}

TEST_F(PictureBoxes, AMoveNamesTheButtonsThatAreHeld)
{
    std::vector<int> buttons;
    pic_->OnMouseMove = [&](const MouseAction& action) { buttons.push_back(action.Button); };
    const auto move = [this](Qt::MouseButtons held) {
        QMouseEvent event(QEvent::MouseMove, QPointF(9, 9), pic_->mapToGlobal(QPointF(9, 9)),
                          Qt::NoButton, held, Qt::NoModifier);
        QApplication::sendEvent(pic_, &event);
    };
    move(Qt::NoButton);
    move(Qt::LeftButton | Qt::MiddleButton);
    EXPECT_EQ(buttons, (std::vector<int>{0, screen::kLeftButton + screen::kMiddleButton}));
    EXPECT_TRUE(pic_->hasMouseTracking());
}

TEST_F(PictureBoxes, ADoubleClickHasItsOwnHandler)
{
    int presses = 0;
    int doubles = 0;
    const auto clickTwice = [this] {
        QTest::mouseClick(pic_, Qt::LeftButton);
        QTest::mouseDClick(pic_, Qt::LeftButton);
    };
    pic_->OnMouseDown = [&](const MouseAction&) { ++presses; };
    clickTwice();
    EXPECT_EQ(presses, 2) << "without that handler each press counts";
    pic_->OnDblClick = [&](const MouseAction&) { ++doubles; };
    clickTwice();
    EXPECT_EQ(presses, 3);
    EXPECT_EQ(doubles, 1);
}

TEST_F(PictureBoxes, AFaultInAMouseHandlerBecomesTheMessageOfItsForm)
{
    pic_->OnMouseDown = [](const MouseAction&) { throw ArithmeticFault("too large"); };
    Messages->AcceptAny = true;
    QTest::mouseClick(pic_, Qt::LeftButton);
    ASSERT_EQ(Messages->Shown.size(), 1U);
    EXPECT_EQ(Messages->Shown[0].Code, kStop);
}

TEST_F(PictureBoxes, TheRightButtonOpensTheMenu)
{
    int released = 0;
    pic_->OnMouseUp = [&](const MouseAction&) { ++released; };
    QTest::mouseClick(pic_, Qt::RightButton);
    SendMenuRequest(QContextMenuEvent::Mouse);
    EXPECT_NE(OpenMenu(), nullptr);
    EXPECT_EQ(released, 0);
}

TEST_F(PictureBoxes, ARightButtonThatIsOwnedOpensItWithControlOnly)
{
    std::vector<int> released;
    pic_->OwnsRightButton = true;
    pic_->OnMouseUp = [&](const MouseAction& action) { released.push_back(action.Button); };
    QTest::mouseClick(pic_, Qt::RightButton);
    SendMenuRequest(QContextMenuEvent::Mouse);
    EXPECT_EQ(OpenMenu(), nullptr);
    EXPECT_EQ(released, std::vector<int>{screen::kRightButton});
    QTest::mouseClick(pic_, Qt::RightButton, Qt::ControlModifier);
    SendMenuRequest(QContextMenuEvent::Mouse, Qt::ControlModifier);
    EXPECT_NE(OpenMenu(), nullptr);
    EXPECT_EQ(released.size(), 1U);
}

TEST_F(PictureBoxes, TheMenuKeyOpensTheMenu)
{
    pic_->OwnsRightButton = true;
    pic_->setFocus(Qt::TabFocusReason);
    QTest::keyClick(form_->windowHandle(), Qt::Key_Menu);
    SendMenuRequest(QContextMenuEvent::Keyboard); // some platforms send this as well
    QCoreApplication::processEvents();
    const auto menus = pic_->findChildren<QMenu*>();
    ASSERT_EQ(menus.size(), 1);
    QStringList captions;
    for (const QAction* action : menus[0]->actions()) captions << action->text();
    EXPECT_EQ(captions, (QStringList{"&Copy picture", "Save as &SVG...", "Save as P&DF...",
                                     "Save as P&NG..."}));
}

TEST_F(PictureBoxes, ShiftF10OpensTheMenuAndOtherKeysDoNot)
{
    pic_->setFocus(Qt::TabFocusReason);
    QTest::keyClick(pic_, Qt::Key_F10);
    QTest::keyClick(pic_, Qt::Key_A);
    EXPECT_EQ(OpenMenu(), nullptr);
    QTest::keyClick(pic_, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_NE(OpenMenu(), nullptr);
}

TEST_F(PictureBoxes, ThePictureWithTheFocusHasAFrame)
{
    pic_->clearFocus();
    const QImage without = pic_->grab().toImage();
    pic_->setFocus(Qt::TabFocusReason);
    const QImage with = pic_->grab().toImage();
    EXPECT_EQ(with.pixelColor(0, 9), pic_->palette().color(QPalette::Highlight));
    EXPECT_NE(without.pixelColor(0, 9), with.pixelColor(0, 9));
    EXPECT_EQ(pic_->focusPolicy(), Qt::TabFocus);
}

TEST_F(PictureBoxes, ASquarePictureLiesInTheMiddle)
{
    pic_->SetSquare(true);
    pic_->PaintNow();
    const int side = std::min(pic_->width(), pic_->height());
    ASSERT_LT(side, pic_->width());
    EXPECT_EQ(pic_->Image().size(), QSize(side, side));
    EXPECT_EQ(pic_->PixelOf(0, 0), QPoint(pic_->width() / 2, pic_->height() / 2));
    MouseAction down;
    pic_->OnMouseDown = [&](const MouseAction& action) { down = action; };
    QTest::mouseClick(pic_, Qt::LeftButton, Qt::NoModifier, pic_->PixelOf(7, -3));
    EXPECT_TRUE(Near(down.X, 7, 0.02));
    EXPECT_TRUE(Near(down.Y, -3, 0.05));
}

TEST_F(PictureBoxes, SaysItsSizes)
{
    pic_->SetPreferredSize(500, 250);
    EXPECT_EQ(pic_->sizeHint(), QSize(500, 250));
    EXPECT_EQ(pic_->minimumSizeHint(), QSize(160, 160));
}

TEST_F(PictureBoxes, AScreenReaderFindsAGraphicWithItsTexts)
{
    QAccessibleInterface* found = QAccessible::queryAccessibleInterface(pic_);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->role(), QAccessible::Graphic);
    EXPECT_EQ(found->text(QAccessible::Name), "Sample");
    EXPECT_EQ(found->text(QAccessible::Description), "first line\nsecond line");
}

TEST(PictureBoxAlone, ShowsWhiteUntilItHasAHandler)
{
    PictureBox box;
    box.resize(200, 180);
    EXPECT_EQ(box.grab().toImage().pixelColor(100, 90), QColor(Qt::white));
    EXPECT_EQ(box.Texts(), "");
}

} // namespace
} // namespace forcelab::test
