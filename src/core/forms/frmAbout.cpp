#include "core/forms/frmAbout.h"

#include "core/forms/Application.h"
#include "core/forms/SysInfo.h"
#include "core/forms/TitlePicture.h"
#include "core/screen/Forms.h"
#include "core/screen/Layout.h"
#include "core/screen/Services.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QShortcut>

namespace forcelab {

using screen::Services;

namespace {

constexpr const char* kAuthors =
    "Written by the Forcelab authors for students of the mechanics of materials.";
constexpr const char* kNoSystemInformation = "System Information Is Unavailable At This Time";

std::string TitleLine()
{
    return std::string(kApplicationTitle) + " Version " + std::to_string(kVersionMajor) + "." +
           std::to_string(kVersionMinor);
}

} // namespace

frmAbout::frmAbout()
    : Form("frmAbout", std::string("About ") + kApplicationTitle),
      cmdOK(Make<QPushButton>("cmdOK", QStringLiteral("OK"))),
      cmdSysInfo(Make<QPushButton>("cmdSysInfo", QStringLiteral("&System Info...")))
{
    lblTitle->SetCaption(TitleLine());
    lblAuthors->SetCaption(kAuthors);
    BuildWindow();
    On(cmdOK, &QPushButton::clicked, [this] { cmdOK_Click(); });
    On(cmdSysInfo, &QPushButton::clicked, [] { cmdSysInfo_Click(); });
    On(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, [this] { cmdOK_Click(); });
    for (QPushButton* button : {cmdOK, cmdSysInfo}) button->setAutoDefault(true);
    cmdOK->setFocus();
}

void frmAbout::BuildWindow()
{
    QFont large = lblTitle->font();
    large.setPointSizeF(large.pointSizeF() * 1.35);
    large.setBold(true);
    lblTitle->setFont(large);
    lblAuthors->setWordWrap(true);
    auto* title = new TitlePicture(this);
    title->setFixedHeight(112);
    auto* texts = screen::Down({lblTitle, lblAuthors});
    texts->setContentsMargins(24, 20, 24, 16);
    auto* buttons = screen::Across({});
    buttons->setContentsMargins(24, 0, 24, 20);
    buttons->addStretch(1);
    buttons->addWidget(cmdSysInfo);
    buttons->addWidget(cmdOK);
    auto* all = screen::Down({title});
    all->setSpacing(0);
    all->addLayout(texts);
    all->addStretch(1);
    all->addLayout(buttons);
    auto* body = new QWidget;
    body->setMinimumWidth(520);
    body->setLayout(all);
    setCentralWidget(body);
    setTabOrder(cmdOK, cmdSysInfo);
}

void frmAbout::cmdOK_Click()
{
    screen::Forms::Unload(objectName().toStdString());
}

void frmAbout::cmdSysInfo_Click()
{
    auto& registry = *Services::Current().Registry;
    const auto tool = SystemInformationTool();
    if (tool && registry.FileExists(*tool) && registry.Run(*tool)) return;
    screen::MsgBox(kNoSystemInformation, kInformation, kApplicationTitle);
}

} // namespace forcelab
