#include "GridForm.h"

#include <random>

namespace forcelab::test {
namespace {

TEST_F(Grid, StartsAtTheFirstFreeCell)
{
    EXPECT_EQ(Place(), Cell(1, 1));
    EXPECT_EQ(TheGrid().FixedRows(), 1);
    EXPECT_EQ(TheGrid().FixedCols(), 1);
}

TEST_F(Grid, KeepsTextColourAndAlignmentOfItsCells)
{
    TheGrid().SetCellText(2, 3, "σ 1.5");
    TheGrid().SetCellColour(2, 3, QColor(255, 255, 0));
    TheGrid().SetCellAlignment(2, 3, Qt::AlignRight);
    EXPECT_EQ(TheGrid().CellText(2, 3), "σ 1.5");
    EXPECT_EQ(TheGrid().CellColour(2, 3), QColor(255, 255, 0));
    EXPECT_NE(TheGrid().CellColour(1, 1), TheGrid().CellColour(0, 0));
    EXPECT_EQ(TheGrid().item(2, 3)->textAlignment(), int(Qt::AlignRight));
}

TEST_F(Grid, CellsOutsideAreEmptyAndTakeNothing)
{
    TheGrid().SetCellText(9, 9, "x");
    TheGrid().SetCellColour(-1, 0, Qt::red);
    EXPECT_EQ(TheGrid().CellText(9, 9), "");
    EXPECT_FALSE(TheGrid().CellColour(9, 9).isValid());
}

TEST_F(Grid, GoToStaysOutOfFixedCells)
{
    TheGrid().GoTo(0, 0);
    EXPECT_EQ(Place(), Cell(1, 1));
    TheGrid().GoTo(99, 99);
    EXPECT_EQ(Place(), Cell(4, 3));
    TheGrid().GoTo(-7, 2);
    EXPECT_EQ(Place(), Cell(1, 2));
    TheGrid().setCurrentCell(0, 3);
    EXPECT_EQ(Place(), Cell(1, 2)) << "a fixed cell cannot become the current one";
}

TEST_F(Grid, KeysMoveAndStopAtEveryEdge)
{
    TheGrid().GoTo(1, 1);
    KeyGrid(Qt::Key_Up);
    KeyGrid(Qt::Key_Left);
    KeyGrid(Qt::Key_Home, Qt::ControlModifier);
    KeyGrid(Qt::Key_PageUp);
    EXPECT_EQ(Place(), Cell(1, 1));
    KeyGrid(Qt::Key_Right);
    KeyGrid(Qt::Key_Down);
    EXPECT_EQ(Place(), Cell(2, 2));
    KeyGrid(Qt::Key_End);
    EXPECT_EQ(Place(), Cell(2, 3));
    KeyGrid(Qt::Key_Home);
    EXPECT_EQ(Place(), Cell(2, 1));
    KeyGrid(Qt::Key_PageDown);
    KeyGrid(Qt::Key_Down);
    KeyGrid(Qt::Key_End, Qt::ControlModifier);
    KeyGrid(Qt::Key_Right);
    EXPECT_EQ(Place(), Cell(4, 3));
}

TEST_F(Grid, TheMouseChoosesFreeCellsOnly)
{
    ClickCell(3, 2);
    EXPECT_EQ(Place(), Cell(3, 2));
    ClickCell(0, 1);
    ClickCell(2, 0);
    ClickCell(0, 0);
    EXPECT_EQ(Place(), Cell(3, 2));
}

TEST_F(Grid, DraggingOverFixedCellsStaysInside)
{
    QTest::mousePress(TheGrid().viewport(), Qt::LeftButton, Qt::NoModifier, MiddleOf(2, 2));
    QTest::mouseMove(TheGrid().viewport(), MiddleOf(0, 0));
    QTest::mouseRelease(TheGrid().viewport(), Qt::LeftButton, Qt::NoModifier, MiddleOf(0, 0));
    EXPECT_GE(TheGrid().Row(), 1);
    EXPECT_GE(TheGrid().Col(), 1);
}

TEST_F(Grid, TypedCharactersComeAsTheirCodes)
{
    form_->grid->OnKeyPress = [this](int key) { form_->Keys.push_back(key); };
    QTest::keyClicks(form_->grid, QStringLiteral("7-a,. "));
    KeyGrid(Qt::Key_Return);
    KeyGrid(Qt::Key_Backspace);
    KeyGrid(Qt::Key_F2);
    KeyGrid(Qt::Key_Escape);
    KeyGrid(Qt::Key_Delete);
    KeyGrid(Qt::Key_C, Qt::ControlModifier);
    KeyGrid(Qt::Key_Shift);
    EXPECT_EQ(form_->Keys, (std::vector<int>{'7', '-', 'a', ',', '.', ' ', 13, 8, 13}));
}

TEST_F(Grid, ADoubleClickIsAnEnter)
{
    form_->grid->OnKeyPress = [this](int key) { form_->Keys.push_back(key); };
    ClickCell(2, 2);
    QTest::mouseDClick(TheGrid().viewport(), Qt::LeftButton, Qt::NoModifier, MiddleOf(2, 2));
    EXPECT_EQ(form_->Keys, std::vector<int>{13});
    QTest::mouseDClick(TheGrid().viewport(), Qt::LeftButton, Qt::NoModifier, MiddleOf(0, 2));
    EXPECT_EQ(form_->Keys, std::vector<int>{13}) << "a fixed cell";
}

TEST_F(Grid, AGridOfFixedCellsOnlyHasNoCurrentOne)
{
    TheGrid().SetSize(1, 3, 1, 1);
    TheGrid().GoTo(0, 2);
    KeyGrid(Qt::Key_Down);
    QTest::keyClicks(form_->grid, QStringLiteral("5"));
    EXPECT_TRUE(form_->Keys.empty());
    EXPECT_FALSE(TheBox().isVisible());
}

TEST_F(Grid, ASmallerGridKeepsItsPlaceInside)
{
    TheGrid().GoTo(4, 3);
    TheGrid().SetSize(3, 3, 1, 1);
    EXPECT_EQ(Place(), Cell(2, 2));
    EXPECT_EQ(TheGrid().rowCount(), 3);
}

// The box belongs to the grid in one half of the runs and to the form in the other.
class GridEditing : public Grid, public testing::WithParamInterface<bool> {
  protected:
    GridEditing()
    {
        if (GetParam()) TheBox().setParent(TheGrid().viewport());
    }
};

TEST_P(GridEditing, TypingReplacesTheTextOfTheCell)
{
    TheGrid().SetCellText(2, 2, "old");
    TheGrid().GoTo(2, 2);
    QTest::keyClicks(form_->grid, QStringLiteral("4"));
    ASSERT_TRUE(TheBox().isVisible());
    EXPECT_TRUE(TheBox().hasFocus());
    EXPECT_EQ(TheBox().Text(), "4");
    EXPECT_EQ(TheBox().cursorPosition(), 1);
    QTest::keyClicks(form_->box, QStringLiteral("2"));
    EXPECT_EQ(TheBox().Text(), "42");
}

TEST_P(GridEditing, EnterTakesTheTextOfTheCellWithTheCaretAtItsEnd)
{
    TheGrid().SetCellText(1, 1, "12");
    KeyGrid(Qt::Key_Return);
    EXPECT_EQ(TheBox().Text(), "12");
    EXPECT_FALSE(TheBox().hasSelectedText());
    QTest::keyClicks(form_->box, QStringLiteral("5"));
    EXPECT_EQ(TheBox().Text(), "125");
}

TEST_P(GridEditing, TheBoxLiesOverTheCell)
{
    TheGrid().GoTo(3, 2);
    KeyGrid(Qt::Key_Space);
    const QRect cell = TheGrid().visualItemRect(TheGrid().item(3, 2));
    EXPECT_EQ(TheBox().mapToGlobal(QPoint()), TheGrid().viewport()->mapToGlobal(cell.topLeft()));
    EXPECT_EQ(TheBox().size(), cell.size());
}

TEST_P(GridEditing, EscapeStoresNothing)
{
    TheGrid().SetCellText(1, 1, "12");
    QTest::keyClicks(form_->grid, QStringLiteral("9"));
    KeyBox(Qt::Key_Escape);
    EXPECT_FALSE(TheBox().isVisible());
    EXPECT_TRUE(TheGrid().hasFocus());
    EXPECT_EQ(TheGrid().CellText(1, 1), "12");
    EXPECT_EQ(form_->Stored, 0);
    QTest::keyClicks(form_->grid, QStringLiteral("8"));
    KeyBox(Qt::Key_Return);
    EXPECT_EQ(TheGrid().CellText(1, 1), "8") << "storing works again afterwards";
}

struct KeyMove {
    Qt::Key Key;
    Qt::KeyboardModifiers Modifiers;
    Cell To;
};

TEST_P(GridEditing, EachKeyStoresAndMoves)
{
    const KeyMove moves[] = {
        {Qt::Key_Return, Qt::NoModifier, {2, 2}},     {Qt::Key_Enter, Qt::NoModifier, {2, 2}},
        {Qt::Key_Up, Qt::NoModifier, {1, 2}},         {Qt::Key_Down, Qt::NoModifier, {3, 2}},
        {Qt::Key_Left, Qt::NoModifier, {2, 1}},       {Qt::Key_Right, Qt::NoModifier, {2, 3}},
        {Qt::Key_Tab, Qt::NoModifier, {2, 3}},        {Qt::Key_Tab, Qt::ShiftModifier, {2, 1}},
        {Qt::Key_Backtab, Qt::ShiftModifier, {2, 1}},
    };
    int stored = 0;
    for (const KeyMove& move : moves) {
        TheGrid().GoTo(2, 2);
        TheGrid().SetCellText(2, 2, "");
        QTest::keyClicks(form_->grid, QStringLiteral("6"));
        KeyBox(move.Key, move.Modifiers);
        EXPECT_EQ(Place(), move.To) << move.Key;
        EXPECT_EQ(TheGrid().CellText(2, 2), "6") << move.Key;
        EXPECT_EQ(form_->Stored, ++stored) << move.Key;
        EXPECT_TRUE(TheGrid().hasFocus()) << move.Key;
        EXPECT_FALSE(TheBox().isVisible()) << move.Key;
    }
}

TEST_P(GridEditing, KeysStayInsideAndOutOfFixedCells)
{
    const KeyMove corners[] = {
        {Qt::Key_Up, Qt::NoModifier, {1, 1}},     {Qt::Key_Left, Qt::NoModifier, {1, 1}},
        {Qt::Key_Tab, Qt::ShiftModifier, {1, 1}}, {Qt::Key_Down, Qt::NoModifier, {4, 3}},
        {Qt::Key_Right, Qt::NoModifier, {4, 3}},  {Qt::Key_Tab, Qt::NoModifier, {4, 3}},
    };
    for (const KeyMove& corner : corners) {
        TheGrid().GoTo(corner.To.first, corner.To.second);
        QTest::keyClicks(form_->grid, QStringLiteral("1"));
        KeyBox(corner.Key, corner.Modifiers);
        EXPECT_EQ(Place(), corner.To) << corner.Key;
    }
}

TEST_P(GridEditing, ARefusedTextKeepsTheBoxWhereItIs)
{
    form_->box->OnLostFocus = [this] {
        if (form_->Stored++ == 0) TheBox().SetFocus();
    };
    QTest::keyClicks(form_->grid, QStringLiteral("x"));
    KeyBox(Qt::Key_Down);
    EXPECT_TRUE(TheBox().hasFocus());
    EXPECT_TRUE(TheBox().isVisible());
    EXPECT_EQ(Place(), Cell(1, 1));
}

TEST_P(GridEditing, LeavingForAnotherControlStores)
{
    QTest::keyClicks(form_->grid, QStringLiteral("3"));
    form_->other->setFocus();
    EXPECT_EQ(TheGrid().CellText(1, 1), "3");
    EXPECT_FALSE(TheBox().isVisible());
}

TEST_P(GridEditing, AMonkeyNeverLeavesTheGrid)
{
    const Qt::Key keys[] = {Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right,
                            Qt::Key_Tab,    Qt::Key_Return, Qt::Key_Escape,   Qt::Key_Home,
                            Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_5,
                            Qt::Key_Period, Qt::Key_Delete, Qt::Key_Space,    Qt::Key_Backspace};
    constexpr unsigned seed = 20250131;
    std::mt19937 random(seed);
    const auto any = [&random](int below) {
        return static_cast<int>(random() % static_cast<unsigned>(below));
    };
    for (int i = 0; i < 2000; ++i) {
        QWidget* target = TheBox().isVisible() ? static_cast<QWidget*>(&TheBox()) : &TheGrid();
        const auto modifier = any(4) == 0 ? Qt::ShiftModifier : Qt::NoModifier;
        const QPoint place(any(500), any(300));
        const int what = any(10);
        if (what < 8)
            QTest::keyClick(target, keys[any(std::size(keys))], modifier);
        else if (what == 8)
            QTest::mouseClick(TheGrid().viewport(), Qt::LeftButton, modifier, place);
        else
            QTest::mouseDClick(TheGrid().viewport(), Qt::LeftButton, modifier, place);
        ASSERT_GE(TheGrid().Row(), 1) << "step " << i << " of seed " << seed;
        ASSERT_GE(TheGrid().Col(), 1) << "step " << i << " of seed " << seed;
        ASSERT_LT(TheGrid().Row(), 5) << "step " << i << " of seed " << seed;
        ASSERT_LT(TheGrid().Col(), 4) << "step " << i << " of seed " << seed;
    }
    EXPECT_GT(form_->Stored, 100);
}

INSTANTIATE_TEST_SUITE_P(BoxOfTheGridOrOfTheForm, GridEditing, testing::Bool());

} // namespace
} // namespace forcelab::test
