#pragma once

#include "support/FormTest.h"
#include "truss/TrussEditor.h"
#include "truss/forms/frmDefGrid.h"
#include "truss/forms/frmTruss.h"
#include "truss/forms/frmTrussLoad.h"
#include "truss/forms/frmTrussStress.h"

#include <QScrollBar>
#include <QTimer>

#include <string>
#include <vector>

namespace forcelab::truss {

using test::FormTest;
using test::Local;
using test::MsgBox;
using testing::HasSubstr;

// Stands in for the main menu, which Back shows.
class MenuForm : public screen::Form {
  public:
    MenuForm() : Form("frmMainMenu", "Main Menu") {}
};

/// A place in the grid's own unit.
struct Place {
    double X = 0;
    double Y = 0;
};

/// Draws trusses with the mouse, as a person does.
class TrussFormTest : public FormTest {
  protected:
    TrussFormTest()
    {
        using screen::Forms;
        CurrentTruss = {};
        Forms::Register("frmMainMenu", [] { return new MenuForm; });
        Forms::Register("frmTruss", [] { return new frmTruss; });
        Forms::Register("frmDefGrid", [] { return new frmDefGrid; });
        Forms::Register("frmTrussLoad", [] { return new frmTrussLoad; });
        Forms::Register("frmTrussStress", [] { return new frmTrussStress; });
        Open("frmTruss");
    }

    /// Does something on a modal form as soon as it is shown, then goes on with the form of before.
    template <class Action>
    void WhileModal(const std::string& form, const std::string& opener, Action action,
                    int tries = 1000)
    {
        QTimer::singleShot(0, &TheForm(), [=, this] {
            const bool shown = screen::Forms::IsVisible(form);
            const bool ready = shown && screen::Forms::Load(form)->isActiveWindow();
            if (tries > 0 && !ready) return WhileModal(form, opener, action, tries - 1);
            if (!shown) return void(ADD_FAILURE() << form << " did not come");
            Use(form);
            action();
            Use(opener);
            EXPECT_FALSE(screen::Forms::IsVisible(form)) << form << " is not closed";
            screen::Forms::Hide(form);
        });
    }

    /// Fills the grid dialog, which cmdGridMake opens.
    void LayGrid(int spacesX, int spacesY, const std::string& spacingX = "10.0",
                 const std::string& spacingY = "10.0")
    {
        WhileModal("frmDefGrid", "frmTruss", [=, this] {
            Find<QScrollBar>("vsbSpaces(0)").setValue(spacesX);
            Find<QScrollBar>("vsbSpaces(1)").setValue(spacesY);
            Type("txtSpacing(0)", Local(spacingX));
            Type("txtSpacing(1)", Local(spacingY));
            Click("cmdDefGrid(0)");
        });
        Click("cmdGridMake");
    }

    screen::PictureBox& Truss() { return Find<screen::PictureBox>("picTruss"); }

    void Drag(Place from, Place to, Qt::MouseButton button = Qt::LeftButton)
    {
        auto& picture = Truss();
        QCoreApplication::processEvents(); // paints it where it changed
        const QPoint start = picture.PixelOf(from.X, from.Y);
        const QPoint end = picture.PixelOf(to.X, to.Y);
        QTest::mousePress(&picture, button, Qt::NoModifier, start);
        MoveTo((start + end) / 2, button);
        MoveTo(end, button);
        QTest::mouseRelease(&picture, button, Qt::NoModifier, end);
        QCoreApplication::processEvents();
    }

    /// A move of the mouse with a button held.
    void MoveTo(QPoint pixel, Qt::MouseButton held = Qt::LeftButton)
    {
        QMouseEvent move(QEvent::MouseMove, pixel, Truss().mapToGlobal(pixel), Qt::NoButton, held,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&Truss(), &move);
        QCoreApplication::processEvents();
    }

    void DrawMembers(const std::vector<std::pair<Place, Place>>& members)
    {
        Choose("optTrussDefine(0)");
        for (const auto& [from, to] : members) Drag(from, to);
    }

    /// A drag by half a space: downward and upward supports in Y, to the side ones in X.
    void Support(Place joint, bool x, bool y)
    {
        Choose("optTrussDefine(1)");
        const double across = CurrentTruss.GridSpacingX / 2;
        const double along = CurrentTruss.GridSpacingY / 2;
        if (x) Drag(joint, {joint.X - across, joint.Y});
        if (y) Drag(joint, {joint.X, joint.Y - along});
    }

    /// A drag from the joint, and its size typed into the dialog.
    void Load(Place joint, Place toward, const std::string& size)
    {
        Choose("optTrussDefine(2)");
        WhileModal("frmTrussLoad", "frmTruss", [=, this] {
            Type("txtLoadMagnitude", Local(size));
            Click("cmdLoadDefine(0)");
        });
        Drag(joint, toward);
    }

    std::vector<std::string> List(int index)
    {
        auto& combo = Find<QComboBox>("cboTrussResults(" + std::to_string(index) + ")");
        std::vector<std::string> lines;
        for (int row = 0; row < combo.count(); ++row)
            lines.push_back(combo.itemText(row).toStdString());
        return lines;
    }

    void DrawTriangle()
    {
        LayGrid(3, 3);
        DrawMembers({{{0, 0}, {20, 0}}, {{0, 0}, {10, 10}}, {{20, 0}, {10, 10}}});
        Support({0, 0}, true, true);
        Support({20, 0}, false, true);
        Load({10, 10}, {10, 5}, "10");
    }

    /// Four bars around a square with pins at both lower corners.
    void DrawSquare()
    {
        LayGrid(2, 2);
        DrawMembers(
            {{{0, 0}, {10, 0}}, {{0, 0}, {0, 10}}, {{10, 0}, {10, 10}}, {{0, 10}, {10, 10}}});
        Support({0, 0}, true, true);
        Support({10, 0}, true, true);
        Load({0, 10}, {5, 10}, "5");
    }
};

} // namespace forcelab::truss
