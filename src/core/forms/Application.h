#pragma once

namespace forcelab {

inline constexpr const char* kApplicationTitle = "Forcelab";
inline constexpr int kVersionMajor = 1;
inline constexpr int kVersionMinor = 0;

} // namespace forcelab
