#pragma once

#include "sections/SteelShapes.h"

#include <istream>
#include <string>
#include <vector>

namespace forcelab::sections {

/// A table of data/steel, or what is wrong with it.
struct SteelText {
    std::vector<SteelShape> Shapes;
    std::string Problem; ///< "line 12: ..."; empty where the text is good
};

/// Reads a table from text: comments begin with #, the first other line names the columns, every
/// further line is a shape. The columns are "designation", those of FieldsOf(family) and, where
/// the family's file ends with it, "group"; their order is free. Figures are positive, with a
/// decimal point whatever the settings of the system. Reading stops at the first problem.
SteelText ReadSteelText(SteelFamily family, std::istream& text);

/// The name of a family's table in data/steel: "WShapes.txt".
std::string SteelTextName(SteelFamily family);

} // namespace forcelab::sections
