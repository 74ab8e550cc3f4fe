#include "app/FormList.h"

#include "core/forms/frmAbout.h"
#include "core/forms/frmMainMenu.h"
#include "core/screen/Forms.h"
#include "transform/forms/frmFailure.h"
#include "transform/forms/frmMohr.h"

namespace forcelab {

namespace {

template <class FormType>
void Register(const char* name)
{
    screen::Forms::Register(name, [] { return new FormType; });
}

} // namespace

void RegisterForms()
{
    Register<frmMainMenu>("frmMainMenu");
    Register<frmAbout>("frmAbout");
    Register<transform::frmMohr>("frmMohr");
    Register<transform::frmFailure>("frmFailure");
}

} // namespace forcelab
