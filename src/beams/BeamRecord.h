#pragma once

#include <array>
#include <string>
#include <string_view>

namespace forcelab::beams {

inline constexpr int kMaxLoads = 40;
/// Tables of loads have rows 1 to 40; row 0 exists and is unused.
inline constexpr int kLoadRows = kMaxLoads + 1;

/// Values of BeamRecord::SupportType.
enum Support : int {
    kNoBeam = 0,
    kTwoSupports = 1, ///< each anywhere on the beam
    kFixedLeft = 2,
    kFixedRight = 3,
};

/// Values of BeamRecord::LoadType.
enum LoadKind : int {
    kPointUp = 0,
    kPointDown = 1,
    kUniformUp = 2,
    kUniformDown = 3,
    kMomentCcw = 4,
    kMomentCw = 5,
};
inline constexpr int kLoadKinds = 6;

/// Values of BeamRecord::LoadClass, which is also the power of the load in the moment's formula.
enum LoadFamily : int { kMomentLoad = 0, kPointLoad = 1, kUniformLoad = 2 };

/// Columns of BeamRecord::LoadMagnitude: the load cases.
enum LoadCase : int {
    kUnfactored = 1,
    kService = 2, ///< dead + live; without factors a copy of the load
    kDead = 3,
    kLive = 4,
    kFactored = 5, ///< dead x DeadFactor + live x LiveFactor
};
inline constexpr int kLoadCases = 5;

template <typename T>
using LoadColumn = std::array<T, kLoadRows>;
template <typename T, int Columns>
using LoadTable = std::array<std::array<T, Columns + 1>, kLoadRows>; ///< columns from 1

/// One beam with its loads, in inches and pounds; each load remembers the units of its entry.
///
/// A downward force and a counterclockwise moment are positive.
struct BeamRecord {
    int SupportType = kNoBeam;
    double BeamLength = 0;
    double SupportA = 0;         ///< x of the left support; 0 for cantilevers
    double SupportB = 0;         ///< x of the right support; BeamLength for cantilevers
    int BeamLengthUnit = 0;      ///< 0 in, 1 ft, 2 mm, 3 m
    double BeamLengthFactor = 1; ///< inches to that unit
    int LoadCount = 0;
    int PointLoadCount = 0; ///< these three are counted anew by MakeLabels
    int UniformLoadCount = 0;
    int MomentLoadCount = 0;
    LoadColumn<int> LoadType{};
    LoadColumn<int> LoadClass{};
    LoadTable<double, 2> LoadX{}; ///< 1 location or start, 2 end; a point has both alike
    LoadTable<double, kLoadCases> LoadMagnitude{}; ///< lb, lb/in or lb-in
    LoadTable<int, 2> LoadUnitIndex{};             ///< 1 length; 2 force, uniform load or moment
    LoadTable<double, 2> LoadUnitFactor{};         ///< 1 above 0: the row holds or held a load
    LoadColumn<std::string> LoadName;              ///< "1P", "2w", "1M"
    LoadColumn<double> UniformMagnitude{};         ///< column 1 of the n-th uniform load
    LoadColumn<int> UniformLoadIndex{};            ///< its row
    bool FactoredLoads = false;                    ///< dead and live magnitudes instead of one
    double DeadFactor = 1.4;
    double LiveFactor = 0;
    int CurrentLoad = 0; ///< row shown in the Edit panel; LoadCount + 1 after an entry
    bool ReverseShearSign = false;
    int DiagramEntry = 0; ///< 4000 after an entry by hand, 1 after an example
};

inline BeamRecord CurrentBeam;

/// Captions of the unit options, by index.
inline constexpr std::array<std::string_view, 4> kLengthUnits{"in", "ft", "mm", "m"};
inline constexpr std::array<std::string_view, 4> kForceUnits{"lbs", "kips", "N", "kN"};
inline constexpr std::array<std::string_view, 4> kUniformUnits{"lbs/ft", "kips/ft", "N/m", "kN/m"};
inline constexpr std::array<std::string_view, 4> kMomentUnits{"ft-lbs", "ft-kips", "N-m", "kN-m"};

/// The family of a load type.
int FamilyOf(int loadType);
/// True for the types whose magnitude is stored negative: up and clockwise.
bool IsNegativeType(int loadType);
/// The caption of a magnitude's unit.
std::string_view MagnitudeUnit(int family, int unit);
/// Inches and pounds to that unit.
double MagnitudeFactor(int family, int unit);

/// The case that shear and moment are drawn for: 5 with load factors, else 1.
int ShearMomentCase(const BeamRecord& beam);
/// The case that slope and deflection are drawn for: 2 with load factors, else 1.
int SlopeDeflectionCase(const BeamRecord& beam);

} // namespace forcelab::beams
