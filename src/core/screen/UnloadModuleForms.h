#pragma once

namespace forcelab::screen {

/// The work of a module's "&New": unloads the forms of MainModule::CurrentModule, which the caller
/// has just set, and shows the module's first form anew. Any other module code does nothing.
void UnloadModuleForms();

} // namespace forcelab::screen
