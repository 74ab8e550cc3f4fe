#include "core/screen/UnloadModuleForms.h"

#include "core/MainModule.h"
#include "core/screen/Forms.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace forcelab::screen {

namespace {

struct ModuleForms {
    int Module;
    std::array<std::string_view, 3> Unloaded; ///< the first one is then shown
};

constexpr std::array<std::string_view, 3> kBeamForms{"frmBeamStuf", "frmBeamDiagrams",
                                                     "frmDetails"};

constexpr std::array<ModuleForms, 6> kModules{{
    {4000, kBeamForms},
    {4300, kBeamForms},
    {5000, {"frmPower"}},
    {5700, {"frmTorsion"}},
    {7000, {"frmStrut"}},
    {8000, {"frmIndet"}},
}};

} // namespace

void UnloadModuleForms()
{
    const auto* const module =
        std::find_if(kModules.begin(), kModules.end(), [](const ModuleForms& row) {
            return row.Module == MainModule::CurrentModule;
        });
    if (module == kModules.end()) return;
    for (const std::string_view form : module->Unloaded) Forms::Unload(form);
    Forms::Show(module->Unloaded.front());
}

} // namespace forcelab::screen
