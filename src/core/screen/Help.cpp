#include "core/screen/Help.h"

#include "core/MainModule.h"
#include "core/screen/Services.h"

namespace forcelab::screen {

namespace {
constexpr int kOpenHelp = 6;
constexpr int kHelpOnContext = 1;
} // namespace

CommonDialog CommonDialog::CMDialog1;

void CommonDialog::Action(int action) const
{
    if (action == kOpenHelp) Services::Current().Help->Open(HelpFile, HelpContext);
}

void ShowHelpTopic()
{
    CommonDialog& dialog = CommonDialog::CMDialog1;
    dialog.HelpFile = kHelpFile;
    dialog.HelpCommand = kHelpOnContext;
    dialog.HelpContext = MainModule::HelpContext;
    dialog.Action(kOpenHelp);
}

} // namespace forcelab::screen
