#include "app/FormList.h"
#include "core/screen/Forms.h"
#include "core/screen/Services.h"
#include "core/screen/Style.h"

#include <QApplication>

int main(int argc, char** argv)
{
    // Nothing here is drawn through OpenGL; not looking for it saves memory and time.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    QApplication application(argc, argv);
    // Going from form to form hides one before the next is seen; only Exit ends the program.
    QApplication::setQuitOnLastWindowClosed(false);
    forcelab::screen::ApplyStyle(application);
    auto& services = forcelab::screen::Services::Current();
    services.UseSystem();
    forcelab::Regional::Current = services.Screen->Separators();
    forcelab::RegisterForms();
    forcelab::screen::Forms::Show("frmMainMenu");
    return QApplication::exec();
}
