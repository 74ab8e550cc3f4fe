#include "core/screen/Services.h"

#include "core/screen/Form.h"
#include "core/screen/Forms.h"
#include "core/screen/HelpViewer.h"
#include "core/screen/SystemServices.h"

#include <QApplication>
#include <QPagedPaintDevice>

namespace forcelab::screen {

Services& Services::Current()
{
    static Services services;
    return services;
}

void Services::UseSystem()
{
    Messages = MakeSystemMessages();
    Files = MakeSystemFiles();
    Printers = MakeSystemPrinters();
    Help = MakeSystemHelp();
    Screen = MakeSystemScreen();
    Registry = MakeSystemRegistry();
}

int MsgBox(const std::string& text, int code, const std::string& title)
{
    return Services::Current().Messages->Show(Forms::Active(), code, text, title);
}

Hourglass::Hourglass()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

Hourglass::~Hourglass()
{
    QApplication::restoreOverrideCursor();
}

} // namespace forcelab::screen
