#pragma once

namespace forcelab {

/// Makes every form of the program known to Forms.
void RegisterForms();

} // namespace forcelab
