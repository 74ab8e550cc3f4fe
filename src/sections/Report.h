#pragma once

#include "sections/SectionInput.h"
#include "sections/SectionRecord.h"

#include <string>
#include <vector>

namespace forcelab::sections {

/// The tables of the report, by the checked menu item.
enum class ReportTable { Centroid, Convert12, Convert21, Product, Plastic };

/// What frmCrossSection shows for one table and axis.
struct ReportGrid {
    std::string FrameCaption;
    std::string UnderGrid;                       ///< lblUnderGrid
    std::vector<std::vector<std::string>> Cells; ///< rows of equal length; row 0 the headings
    int FixedRows = 1;
    std::string Explanation; ///< the sentences and results under the table
};

/// True where the section has this table: composite sections have the two conversions and no
/// other; circle and pipe have no table of elements; W, tube and pipe of the steel tables and the
/// specified properties have no elements at all.
bool HasTable(const CrossSection& section, ReportTable table);
/// The grid for an axis: 0 Z-Z, 1 Y-Y. A heading's lines are parted by "\n", the explanation's by
/// CrLf. Without a table the cells are empty; circle and pipe still have their centroid and moment
/// of inertia in the explanation. Throws ArithmeticFault where a number is not finite.
ReportGrid FillTheGrid(const CrossSection& section, const SectionEntry& entry, ReportTable table,
                       int reportAxis);

/// A line of the summary: symbol, value with unit, and meaning; a heading has only a symbol. Ratios
/// and angles have no symbol.
struct SummaryLine {
    std::string Symbol;
    std::string Value;
    std::string Meaning;
    bool Heading = false;
};
/// The properties by groups, as the form and the printed page list them.
std::vector<SummaryLine> Summary(const CrossSection& section, const SectionEntry& entry);

} // namespace forcelab::sections
