#pragma once

#include "core/ArithmeticFault.h"
#include "support/FormTest.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QTemporaryDir>
#include <QVBoxLayout>

namespace forcelab::test {

/// A form with one picture: a red square in the upper right quarter of a scale with y upward.
class PictureForm : public screen::Form {
  public:
    PictureForm() : Form("frmPicture", "Picture")
    {
        auto* body = new QWidget(this);
        auto* layout = new QVBoxLayout(body);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(pic);
        setCentralWidget(body);
        screen::Describe(*pic, "Sample");
        pic->OnPaint = [this](Picture& sheet) { Paint(sheet); };
        resize(400, 300);
    }
    void Paint(Picture& sheet)
    {
        ++Paintings;
        FontSeen = sheet.FontSize;
        sheet.Cls();
        sheet.Scale(-10, 10, 10, -10);
        sheet.FontSize = 12;
        sheet.ForeColor = Ink;
        sheet.FilledBox(0, 0, 10, 10);
        sheet.CurrentX = -9;
        sheet.CurrentY = 9;
        sheet.Print(Title);
        sheet.CurrentX = -9;
        sheet.CurrentY = 5;
        sheet.Print("second line");
        if (Faulty) sheet.Line(0, 0, Finite(1e308 * 10), 0);
    }

    screen::PictureBox* pic = Make<screen::PictureBox>("pic");
    Colour Ink = Rgb(255, 0, 0);
    std::string Title = "first line";
    bool Faulty = false;
    int Paintings = 0;
    double FontSeen = 0;
};

class PictureBoxes : public FormTest {
  protected:
    PictureBoxes()
    {
        screen::Forms::Register("frmPicture", [] { return new PictureForm; });
        form_ = &dynamic_cast<PictureForm&>(Open("frmPicture"));
        pic_ = form_->pic;
        pic_->PaintNow();
    }
    QMenu* OpenMenu()
    {
        QCoreApplication::processEvents();
        return pic_->findChild<QMenu*>();
    }
    void SendMenuRequest(QContextMenuEvent::Reason reason, Qt::KeyboardModifiers held = {})
    {
        QContextMenuEvent request(reason, QPoint(5, 5), pic_->mapToGlobal(QPoint(5, 5)), held);
        QApplication::sendEvent(pic_, &request);
    }
    // Opens the context menu and chooses the item with the caption.
    void ChooseFromMenu(const QString& caption)
    {
        SendMenuRequest(QContextMenuEvent::Keyboard);
        QMenu* menu = OpenMenu();
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions())
            if (action->text() == caption) {
                menu->close();
                return action->trigger();
            }
        FAIL() << "no item " << caption.toStdString();
    }
    PictureForm* form_;
    screen::PictureBox* pic_;
    QTemporaryDir folder_;
};

} // namespace forcelab::test
