#pragma once

#include "core/Picture.h"

#include <array>
#include <string>
#include <string_view>

namespace forcelab::transform {

/// Captions of one theory of failure, by the index of optFailure.
struct FailureTheory {
    std::string_view Caption;
    std::string_view Group;      ///< "Ductile Materials" or "Brittle Materials"
    std::string_view InputLabel; ///< of the first limit
    std::string_view Prompt;     ///< where the limit is 0
    bool HasCompression;         ///< a second limit is asked for
};
extern const std::array<FailureTheory, 4> kFailureTheories;

/// What frmFailure says: the state and the limits in one stress unit.
struct FailureEntry {
    int TheoryIndex = 0;
    double Sigma1 = 0;
    double Sigma2 = 0;
    double Yield = 0;       ///< absolute value
    double Compression = 0; ///< absolute value, for the last theory
};
/// Reads the texts of the form; limits count by their absolute value.
FailureEntry ReadFailureEntry(int theoryIndex, const std::string& sigma1, const std::string& sigma2,
                              const std::string& yield, const std::string& compression);

/// The verdict of the first three theories by their formulas. The last one is read from the
/// picture, where DrawFailure gives it; asked here it is judged by the same boundary, on which a
/// state counts as failed.
bool MaterialFails(const FailureEntry& entry);

/// Draws the safe region, the state and the verdict, or the prompt where the limit is 0.
/// Returns True where the material fails. Reads the verdict of the last theory from the picture.
bool DrawFailure(Picture& pic, const FailureEntry& entry);

/// The text of a limit brought from one stress unit (0 psi, 1 ksi, 2 kPa, 3 MPa) to another, by
/// FormatValue with 3 places.
std::string ConvertLimit(const std::string& text, int fromUnit, int toUnit);
/// The strength of a row of the materials list in a stress unit, by FormatValue with 3 places.
std::string MaterialLimit(int row, int unit);

} // namespace forcelab::transform
