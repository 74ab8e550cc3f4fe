#pragma once

#include "sections/SteelShapes.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace forcelab::sections {

/// The seven tables of steel shapes, by family.
using SteelTables = std::array<std::vector<SteelShape>, kSteelFamilies>;

/// Reads the seven files of a folder, whose name ends with a separator; nothing where one of them
/// cannot be read.
std::optional<SteelTables> ReadSteelFiles(const std::string& folder);

} // namespace forcelab::sections
