#include "beams/forms/frmStiffPrint.h"

#include "core/screen/Forms.h"
#include "core/screen/Layout.h"

#include <QBoxLayout>

namespace forcelab::beams {

using screen::Q;

namespace {

constexpr const char* kName = "frmStiffPrint";
constexpr int kTitleWidth = 380; // pixels
constexpr int kLongest = 100;    // letters that one line of the page holds

} // namespace

frmStiffPrint::frmStiffPrint() : Form(kName, "Title of the Printed Page")
{
    Build();
    On(cmdOK, &QPushButton::clicked, [this] { cmdOK_Click(); });
    On(cmdCancel, &QPushButton::clicked, [this] { cmdCancel_Click(); });
    txtTitle->OnEnter = [this] { cmdOK_Click(); };
}

void frmStiffPrint::Build()
{
    lblTitle->SetCaption("&Title");
    lblTitle->setBuddy(txtTitle);
    txtTitle->setMinimumWidth(kTitleWidth);
    txtTitle->setMaxLength(kLongest);
    Describe(*txtTitle, "Title of the printed page");
    cmdOK->setText(Q("&OK"));
    cmdCancel->setText(Q("&Cancel"));
    cmdCancel->setShortcut(Qt::Key_Escape);
    for (QPushButton* button : {cmdOK, cmdCancel}) button->setAutoDefault(true);
    auto* buttons = screen::Across({cmdOK, cmdCancel});
    buttons->insertStretch(0, 1);
    auto* all = screen::Down({lblTitle, txtTitle});
    all->addLayout(buttons);
    all->addStretch(1);
    all->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    auto* central = new QWidget;
    central->setLayout(all);
    setCentralWidget(central);
    resize(minimumSizeHint());
}

// The title of the page before stands there, to be typed over.
void frmStiffPrint::Form_Activate()
{
    txtTitle->SetFocus();
    txtTitle->selectAll();
}

void frmStiffPrint::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    cmdCancel_Click();
}

std::optional<std::string> frmStiffPrint::AskTitle()
{
    screen::FormAs<frmStiffPrint>(kName).result_ = 0;
    screen::Forms::ShowModal(kName);
    if (!screen::Forms::IsLoaded(kName)) return std::nullopt;
    const auto& form = screen::FormAs<frmStiffPrint>(kName);
    return form.Result() == 1 ? std::optional(form.Title()) : std::nullopt;
}

void frmStiffPrint::cmdOK_Click()
{
    result_ = 1;
    screen::Forms::Hide(kName);
}

void frmStiffPrint::cmdCancel_Click()
{
    result_ = 0;
    screen::Forms::Hide(kName);
}

} // namespace forcelab::beams
