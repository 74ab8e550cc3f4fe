#pragma once

#include "core/screen/Services.h"

#include <memory>

/// The services as the system itself provides them. The help viewer has a file of its own.
namespace forcelab::screen {

std::unique_ptr<MessageService> MakeSystemMessages();
std::unique_ptr<FileDialogService> MakeSystemFiles();
/// The system's print dialog, which also offers a PDF file; it works where no printer is installed.
std::unique_ptr<PrintService> MakeSystemPrinters();
/// The primary screen. Its fonts include "Symbol", for pictures draw Greek on every system.
std::unique_ptr<ScreenService> MakeSystemScreen();
/// There is no registry on this system, so nothing is ever found in it.
std::unique_ptr<RegistryService> MakeSystemRegistry();

/// The separators of a locale, brought to the two settings that the program knows.
Regional SeparatorsOf(const QString& decimalPoint);

} // namespace forcelab::screen
