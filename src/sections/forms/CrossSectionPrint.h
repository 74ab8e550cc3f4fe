#pragma once

#include "core/Picture.h"
#include "core/Refusal.h"
#include "sections/Report.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace forcelab::sections {

/// One page: the caption, the properties by groups, and the section where the page has room left.
struct PrintedReport {
    std::string Caption;
    std::vector<SummaryLine> Lines;
    double FontSize = 10; ///< points
    std::function<void(Picture&)> Paint;
};

/// Nothing is printed and nothing refused where the user cancels or there is no printer.
struct PrintOutcome {
    bool Printed = false;
    std::optional<Refusal> Refused;
};

/// Asks for a printer and prints. Refuses lines that are too wide and lists that are too long for
/// the page, before anything is printed; title "Printed Output Error".
PrintOutcome PrintReport(QWidget* owner, const PrintedReport& report);

} // namespace forcelab::sections
