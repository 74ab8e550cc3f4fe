#include "GridForm.h"

namespace forcelab::test {
namespace {

// Twelve columns and twenty rows in a small window, the first of each fixed.
class ScrolledGrid : public Grid {
  protected:
    ScrolledGrid()
    {
        form_->resize(420, 260);
        TheGrid().SetSize(20, 12, 1, 1);
        for (int row = 0; row < 20; ++row)
            for (int column = 0; column < 12; ++column)
                TheGrid().SetCellText(row, column, std::to_string(100 * row + column));
        QCoreApplication::processEvents();
    }
    QRect PlaceOf(int row, int column)
    {
        return TheGrid().visualItemRect(TheGrid().item(row, column));
    }
    QImage Seen(const QRect& place) { return TheGrid().viewport()->grab(place).toImage(); }
    bool IsInSight(int row, int column)
    {
        return TheGrid().viewport()->rect().contains(PlaceOf(row, column));
    }
};

TEST_F(ScrolledGrid, FixedCellsStayInSight)
{
    const QRect corner = PlaceOf(0, 0);
    const QImage seen = Seen(corner);
    TheGrid().GoTo(19, 11);
    EXPECT_TRUE(IsInSight(19, 11));
    EXPECT_EQ(PlaceOf(0, 0), corner);
    EXPECT_EQ(Seen(corner), seen);
    EXPECT_EQ(PlaceOf(0, 11).top(), corner.top());
    EXPECT_EQ(PlaceOf(0, 11).left(), PlaceOf(19, 11).left());
    EXPECT_EQ(PlaceOf(19, 0).left(), corner.left());
    EXPECT_EQ(PlaceOf(19, 0).top(), PlaceOf(19, 11).top());
    EXPECT_NE(Seen(PlaceOf(0, 11)), Seen(PlaceOf(19, 11)));
}

TEST_F(ScrolledGrid, ScrolledHeadingsLookAsTheyDoWithoutScrolling)
{
    const QImage before = Seen(PlaceOf(0, 2));
    TheGrid().GoTo(19, 1);
    EXPECT_EQ(Seen(PlaceOf(0, 2)), before);
}

TEST_F(ScrolledGrid, CellsNeverHideUnderTheFixedOnes)
{
    for (const auto& [row, column] : {Cell(19, 11), Cell(1, 1), Cell(19, 1), Cell(1, 11),
                                      Cell(10, 6), Cell(9, 5), Cell(8, 4), Cell(1, 3)}) {
        TheGrid().GoTo(row, column);
        EXPECT_TRUE(IsInSight(row, column)) << row << ' ' << column;
        EXPECT_GE(PlaceOf(row, column).left(), PlaceOf(0, 0).right()) << row << ' ' << column;
        EXPECT_GE(PlaceOf(row, column).top(), PlaceOf(0, 0).bottom()) << row << ' ' << column;
    }
}

TEST_F(ScrolledGrid, TheMouseFindsWhatIsSeen)
{
    TheGrid().GoTo(19, 11);
    ClickCell(0, 11);
    ClickCell(19, 0);
    ClickCell(0, 0);
    EXPECT_EQ(Place(), Cell(19, 11));
    EXPECT_EQ(TheGrid().itemAt(PlaceOf(0, 0).center()), TheGrid().item(0, 0));
    EXPECT_EQ(TheGrid().itemAt(PlaceOf(0, 10).center()), TheGrid().item(0, 10));
    EXPECT_EQ(TheGrid().itemAt(PlaceOf(18, 0).center()), TheGrid().item(18, 0));
    ClickCell(18, 10);
    EXPECT_EQ(Place(), Cell(18, 10));
}

TEST_F(ScrolledGrid, TheBoxLiesOverTheCell)
{
    TheGrid().GoTo(19, 11);
    TheGrid().GoTo(12, 5);
    QTest::keyClicks(&TheGrid(), QStringLiteral("4"));
    EXPECT_EQ(TheBox().mapToGlobal(QPoint()),
              TheGrid().viewport()->mapToGlobal(PlaceOf(12, 5).topLeft()));
}

TEST_F(ScrolledGrid, HeadingsThatLeaveTooLittleRoomScroll)
{
    TheGrid().setColumnWidth(0, 300);
    QCoreApplication::processEvents();
    TheGrid().GoTo(1, 11);
    EXPECT_TRUE(IsInSight(1, 11));
    EXPECT_LT(PlaceOf(0, 0).right(), 0);
}

} // namespace
} // namespace forcelab::test
