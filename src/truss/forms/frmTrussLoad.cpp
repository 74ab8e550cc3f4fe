#include "truss/forms/frmTrussLoad.h"

#include "core/screen/Forms.h"

#include <QBoxLayout>
#include <QKeyEvent>

namespace forcelab::truss {

using screen::Q;

frmTrussLoad::frmTrussLoad() : Form("frmTrussLoad", "Define Truss Load")
{
    Build();
    OnClick(cmdLoadDefine, [this](int index) { cmdLoadDefine_Click(index); });
    txtLoadMagnitude->OnEnter = [this] { cmdLoadDefine_Click(0); };
}

void frmTrussLoad::Form_Activate()
{
    txtLoadMagnitude->SetFocus();
    txtLoadMagnitude->selectAll();
}

void frmTrussLoad::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    cmdLoadDefine_Click(1);
}

void frmTrussLoad::TakeQuestion(std::string_view direction, std::string_view magnitude)
{
    accepted_ = false;
    lblLoadPrompt(1).SetCaption(direction);
    txtLoadMagnitude->SetText(magnitude);
}

void frmTrussLoad::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) return Form::keyPressEvent(event);
    Guard([this] { cmdLoadDefine_Click(1); });
}

void frmTrussLoad::cmdLoadDefine_Click(int Index)
{
    accepted_ = Index == 0;
    screen::Forms::Hide("frmTrussLoad");
}

void frmTrussLoad::Build()
{
    lblLoadPrompt(0).SetCaption("Load Magnitude");
    cmdLoadDefine(0).setText(Q("&Enter Load"));
    cmdLoadDefine(1).setText(Q("&Cancel"));
    lblLoadPrompt(1).setMinimumWidth(
        fontMetrics().horizontalAdvance(Q("(right to left direction)")) + screen::kGap);
    screen::Describe(*txtLoadMagnitude, "Load magnitude");
    auto* central = new QWidget;
    auto* down = screen::Down({&lblLoadPrompt(0), &lblLoadPrompt(1), txtLoadMagnitude});
    down->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    down->addLayout(screen::Across({&cmdLoadDefine(0), &cmdLoadDefine(1)}));
    central->setLayout(down);
    setCentralWidget(central);
    setTabOrder(txtLoadMagnitude, &cmdLoadDefine(0));
    setTabOrder(&cmdLoadDefine(0), &cmdLoadDefine(1));
}

} // namespace forcelab::truss
