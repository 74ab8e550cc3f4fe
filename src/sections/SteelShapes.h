#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace forcelab::sections {

/// The seven families of steel shapes, in the order of the Steel menu; shape index less 20.
enum SteelFamily : int {
    kFamilyW,
    kFamilyC,
    kFamilyWT,
    kFamilyL,
    kFamily2L,
    kFamilyTS,
    kFamilyPipe
};
inline constexpr int kSteelFamilies = 7;

/// How a family's file is laid out.
struct SteelFile {
    std::string_view Name; ///< "WShapes.stl"
    int RecordLength;      ///< bytes
    int Floats;
    bool HasGroup;          ///< ends with the ASTM size group
    std::string_view Title; ///< "AISC W, S, M, or HP Shape"
};
extern const std::array<SteelFile, kSteelFamilies> kSteelFiles;

/// One record of a steel table, in inches. Properties that a family has not are 0.
struct SteelShape {
    int Family = 0;
    int RecordNumber = 0;    ///< from 1
    std::string Designation; ///< trimmed
    double A = 0, Depth = 0, Width = 0, Web = 0,
           Flange = 0; ///< d, bf, tw, tf; L, 2L, TS: wall in Web; pipe: OD and ID
    double Ix = 0, Sx = 0, Rx = 0, Iy = 0, Sy = 0, Ry = 0, Zx = 0, Zy = 0, J = 0;
    double Centroid = 0;    ///< x-bar of C, y-bar of WT
    double PlasticAxis = 0; ///< of C and WT, from the same face
    int Group = 0;          ///< W, C and WT: 1 to 5
};

inline constexpr int kDesignationLength = 20; ///< bytes of the name in a record, blank-padded

/// Where a figure stands: its heading in data/steel and its float in a record of the file.
struct SteelField {
    std::string_view Heading;
    double SteelShape::*Member;
    int Float;
};
std::span<const SteelField> FieldsOf(SteelFamily family);

/// Reads a whole table from the bytes of its file. A trailing piece shorter than a record is
/// ignored; floats that are not finite become 0.
std::vector<SteelShape> ReadSteelTable(SteelFamily family, std::span<const std::uint8_t> bytes);
/// The bytes of a table, for the tool that packs the data.
std::vector<std::uint8_t> PackSteelTable(SteelFamily family, std::span<const SteelShape> shapes);

/// The texts of the dimension boxes 0 to 4 for a shape, by the mask "####.0000".
std::array<std::string, 5> SteelBoxes(const SteelShape& shape);

/// A type and grade of steel.
struct SteelGrade {
    std::string_view Text;
    int Yield;                ///< psi
    int Ultimate;             ///< psi
    std::string_view Offered; ///< groups, "12", or "all"; tubes: "P" pipe, "T" tubes
};
std::span<const SteelGrade> RolledGrades();
std::span<const SteelGrade> TubeGrades();
/// The grades that a family offers to choose from.
std::span<const SteelGrade> GradesOf(int family);

/// The caption that tells whether the shape is available in the grade with this index; empty for
/// -1. Angles take their group from their thickness.
std::string GradeAvailability(const SteelShape& shape, int grade);
/// "Yield Stress = 36 ksi", carriage return, "Ultimate Stress = 58 ksi".
std::string GradeStresses(const SteelGrade& grade);

} // namespace forcelab::sections
