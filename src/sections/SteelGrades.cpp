#include "sections/SteelShapes.h"

#include "core/MainModule.h"
#include "core/NumericText.h"

namespace forcelab::sections {

namespace {

constexpr std::string_view kAllGroups = "all";

constexpr SteelGrade kRolled[] = {
    {"A36", 36000, 58000, kAllGroups},           {"A529 Grade 42", 42000, 60000, "1"},
    {"A529 Grade 50", 50000, 70000, "12"},       {"A572 Grade 42", 42000, 60000, kAllGroups},
    {"A572 Grade 50", 50000, 65000, kAllGroups}, {"A572 Grade 60", 60000, 75000, "12"},
    {"A572 Grade 65", 65000, 80000, "1"},        {"A242 Grade 42", 42000, 63000, "45"},
    {"A242 Grade 46", 46000, 67000, "3"},        {"A242 Grade 50", 50000, 70000, "12"},
    {"A588 Grade 50", 50000, 70000, kAllGroups},
};

constexpr SteelGrade kTubes[] = {
    {"A53 Type E Grade B", 35000, 60000, "P"},
    {"A53 Type S Grade B", 35000, 60000, "P"},
    {"A500 Grade A (Pipe)", 33000, 45000, "P"},
    {"A500 Grade B (Pipe)", 42000, 58000, "P"},
    {"A500 Grade C (Pipe)", 46000, 62000, "P"},
    {"A500 Grade A (TS Shapes)", 39000, 45000, "T"},
    {"A500 Grade B (TS Shapes)", 46000, 58000, "T"},
    {"A500 Grade C (TS Shapes)", 50000, 62000, "T"},
    {"A501", 36000, 58000, "P"},
    {"A618 Grade I", 50000, 70000, "P"},
    {"A618 Grade II", 50000, 70000, "P"},
    {"A618 Grade III", 50000, 65000, "P"},
};

/// How a family's captions begin: offered, and not offered.
struct AvailabilityTexts {
    std::string_view Offered;
    std::string_view Refused;
};
constexpr AvailabilityTexts kRolledTexts{"Selected shape is available",
                                         "Selected shape is NOT AVAILABLE"};
constexpr AvailabilityTexts kTubeTexts{"Selected TS shape is available",
                                       "Structural tube shapes are NOT AVAILABLE"};
constexpr AvailabilityTexts kPipeTexts{"Selected pipe shape is available",
                                       "Structural pipe shapes are NOT AVAILABLE"};

/// The size group of an angle by its thickness. The limits are single precision, like the figures
/// of the tables.
int GroupOfThickness(double thickness)
{
    const float t = float(thickness);
    return t <= 0.5F ? 1 : t <= 0.75F ? 2 : 3;
}

bool IsTubular(int family)
{
    return family == kFamilyTS || family == kFamilyPipe;
}

/// The letter or digit under which the table of grades offers a shape; blank: no size group.
char OfferCode(const SteelShape& shape)
{
    if (shape.Family == kFamilyTS) return 'T';
    if (shape.Family == kFamilyPipe) return 'P';
    const bool angle = shape.Family == kFamilyL || shape.Family == kFamily2L;
    const int group = angle ? GroupOfThickness(shape.Web) : shape.Group;
    return group >= 1 && group <= 5 ? char('0' + group) : ' ';
}

const AvailabilityTexts& TextsOf(int family)
{
    if (family == kFamilyTS) return kTubeTexts;
    return family == kFamilyPipe ? kPipeTexts : kRolledTexts;
}

} // namespace

std::span<const SteelGrade> RolledGrades()
{
    return kRolled;
}

std::span<const SteelGrade> TubeGrades()
{
    return kTubes;
}

std::span<const SteelGrade> GradesOf(int family)
{
    return IsTubular(family) ? TubeGrades() : RolledGrades();
}

std::string GradeAvailability(const SteelShape& shape, int grade)
{
    const auto grades = GradesOf(shape.Family);
    if (grade < 0 || grade >= int(grades.size())) return {};
    const std::string_view offered = grades[grade].Offered;
    const bool available =
        offered == kAllGroups || offered.find(OfferCode(shape)) != std::string_view::npos;
    const AvailabilityTexts& texts = TextsOf(shape.Family);
    return std::string(available ? texts.Offered : texts.Refused) +
           " in this steel type and grade.";
}

std::string GradeStresses(const SteelGrade& grade)
{
    const auto ksi = [](int psi) { return Format(psi / 1000.0, "###") + " ksi"; };
    return "Yield Stress = " + ksi(grade.Yield) + MainModule::CrLf +
           "Ultimate Stress = " + ksi(grade.Ultimate);
}

} // namespace forcelab::sections
