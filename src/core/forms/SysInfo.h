#pragma once

#include <optional>
#include <string>

namespace forcelab {

/// A value of a key under the registry's local-machine root: a string up to its first zero
/// character and at most 1024 characters long, or a 32-bit number in decimal. Nothing where the
/// registry has no such value.
std::optional<std::string> GetKeyValue(const std::string& key, const std::string& name);

/// Where the registry says that the system information tool is; nothing where it says nothing.
std::optional<std::string> SystemInformationTool();

} // namespace forcelab
