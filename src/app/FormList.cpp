#include "app/FormList.h"

#include "beams/forms/frmAllowable.h"
#include "beams/forms/frmBeamDiagrams.h"
#include "beams/forms/frmBeamStuf.h"
#include "beams/forms/frmDetails.h"
#include "beams/forms/frmReverseShear.h"
#include "beams/forms/frmStiffPrint.h"
#include "core/MainModule.h"
#include "core/forms/frmAbout.h"
#include "core/forms/frmMainMenu.h"
#include "core/screen/Forms.h"
#include "general/forms/frmLinSolve.h"
#include "sections/SectionRecord.h"
#include "sections/forms/frmCrossSection.h"
#include "sections/forms/frmProperties.h"
#include "transform/forms/frmFailure.h"
#include "transform/forms/frmMohr.h"
#include "truss/forms/frmDefGrid.h"
#include "truss/forms/frmTruss.h"
#include "truss/forms/frmTrussLoad.h"
#include "truss/forms/frmTrussStress.h"

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
    Register<sections::frmProperties>("frmProperties");
    Register<sections::frmCrossSection>("frmCrossSection");
    Register<beams::frmBeamStuf>("frmBeamStuf");
    Register<beams::frmBeamDiagrams>("frmBeamDiagrams");
    Register<beams::frmDetails>("frmDetails");
    Register<beams::frmAllowable>("frmAllowable");
    Register<beams::frmReverseShear>("frmReverseShear");
    Register<beams::frmStiffPrint>("frmStiffPrint");
    Register<general::frmLinSolve>("frmLinSolve");
    Register<truss::frmTruss>("frmTruss");
    Register<truss::frmDefGrid>("frmDefGrid");
    Register<truss::frmTrussLoad>("frmTrussLoad");
    Register<truss::frmTrussStress>("frmTrussStress");
    MainModule::ForgetSection = sections::ForgetSection;
}

} // namespace forcelab
