#pragma once

namespace forcelab::beams {

/// The place that frmBeamDiagrams leaves for frmDetails at the left of the work area, pixels.
inline constexpr int kDetailsWidth = 420;

} // namespace forcelab::beams
