#pragma once

#include "beams/BeamCurves.h"
#include "core/Refusal.h"
#include "sections/SectionRecord.h"

namespace forcelab::beams {

/// E times I of a section in lb-in^2, of the transformed section where it is composite.
struct Stiffness {
    double BeamEI = 1;
    bool EIMissing = true; ///< no section, or EI of 1 or less: BeamEI is then 1
};
Stiffness StiffnessOf(const sections::CrossSection& section);
/// What a student is told where slopes and deflections are first shown with an EI of 1.
Refusal NoStiffnessNotice();

/// The vertical scale of a curve picture before its margins for text, in divided values.
struct DiagramScale {
    double Top, Bottom;
    double YDivisor; ///< a power of ten that keeps the picture's numbers small; values divide by it
};
/// From the largest and smallest value of a quantity, 1.2 times each; 10 to -10 where both are
/// equal. `sizeRow` is kFirstSize or kSecondSize, `valueScale` turns the curve into what is shown.
DiagramScale ScaleOf(const ExtremeTable& extremes, int sizeRow, double valueScale = 1);

} // namespace forcelab::beams
