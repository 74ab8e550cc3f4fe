#pragma once

#include "beams/StressInput.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace forcelab::beams {

/// Rows of the stress limits.
enum StressLimit : int {
    kTensionLimit = 0,
    kTensionLimitB = 1,
    kCompressionLimit = 2,
    kCompressionLimitB = 3,
    kShearLimit = 4,
    kShearLimitB = 5,
};

/// The stress limits of the material or of both materials.
struct StressLimits {
    std::array<double, 6> AllowableStress{};  ///< psi
    std::array<double, 6> AllowableEntered{}; ///< as typed
    bool AllowableSet = false;
};
inline StressLimits CurrentLimits;

/// What the boxes and options of frmAllowable say.
struct LimitsEntry {
    std::array<std::string, 6> Box; ///< by StressLimit
    int StressUnit = 0;             ///< psi, ksi, kPa, MPa
    bool Same = true;               ///< optSame(0): compression takes the limits of tension
};

/// The boxes into the limits: sizes without sign.
void ReadAllowableBoxes(StressLimits& limits, const LimitsEntry& entry);
/// What cmdASD_Click(0) does: reads the boxes, copies tension to compression where one limit
/// serves both, and Material A to Material B where the section has one material.
void SetLimits(StressLimits& limits, const LimitsEntry& entry, bool compositeSection);

/// Captions of lblHead: one for both limits, or one for each.
std::vector<std::string_view> LimitHeads(bool same);
/// Names in cboASD: the materials and "User Defined".
std::vector<std::string_view> LimitMaterials();
/// The yield strength of a row of cboASD in a stress unit; nothing where no material is chosen,
/// where the user defines it, and where the table knows none.
std::optional<double> YieldOf(int materialRow, int stressUnit);

/// Each force that by itself brings the section to a limit, in the units of the form.
struct AllowableForces {
    double AxialTension = 0;
    double AxialCompression = 0;
    std::optional<double> ShearForce; ///< nothing where the widths are not known
    double PositiveMoment = 0;
    double NegativeMoment = 0; ///< not above 0
};
/// Throws ArithmeticFault where a result is not finite.
AllowableForces AllowableForcesOf(const sections::CrossSection& section, const StressLimits& limits,
                                  const StressDetails& details);
/// The lines below the key stresses, with units.
std::vector<std::string> AllowableLines(const AllowableForces& forces,
                                        const StressDetails& details);

} // namespace forcelab::beams
