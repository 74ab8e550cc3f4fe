#include "beams/BeamRecord.h"

#include "core/Units.h"

namespace forcelab::beams {

namespace {

struct FamilyUnits {
    const std::array<std::string_view, 4>* Captions;
    double (*Factor)(int);
};

/// In the order of LoadFamily.
constexpr std::array<FamilyUnits, 3> kUnits{{
    {&kMomentUnits, MomentFactor},
    {&kForceUnits, ForceFactor},
    {&kUniformUnits, DistLoadFactor},
}};

} // namespace

int FamilyOf(int loadType)
{
    constexpr std::array<int, kLoadKinds> kFamily{kPointLoad,   kPointLoad,  kUniformLoad,
                                                  kUniformLoad, kMomentLoad, kMomentLoad};
    return kFamily.at(loadType);
}

bool IsNegativeType(int loadType)
{
    return loadType == kPointUp || loadType == kUniformUp || loadType == kMomentCw;
}

std::string_view MagnitudeUnit(int family, int unit)
{
    return kUnits.at(family).Captions->at(unit);
}

double MagnitudeFactor(int family, int unit)
{
    return kUnits.at(family).Factor(unit);
}

int ShearMomentCase(const BeamRecord& beam)
{
    return beam.FactoredLoads ? kFactored : kUnfactored;
}

int SlopeDeflectionCase(const BeamRecord& beam)
{
    return beam.FactoredLoads ? kService : kUnfactored;
}

} // namespace forcelab::beams
