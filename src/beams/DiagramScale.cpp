#include "beams/DiagramScale.h"

#include "core/MainModule.h"

namespace forcelab::beams {

namespace {

constexpr double kHeadroom = 1.2;
constexpr double kEmptyHalf = 10.0;
constexpr double kTallest = 100000000.0;

} // namespace

Stiffness StiffnessOf(const sections::CrossSection& section)
{
    using sections::Column;
    using sections::CompositeRow;
    using sections::Row;
    if (section.ShapeIndex <= 0) return {};
    const auto& record = section.Record;
    const double ei =
        section.CompositeSection
            ? record(CompositeRow::ModulusA, Column::CompositeZzInches) *
                  record(CompositeRow::InertiaAsA, Column::CompositeZzInches)
            : record(Row::Modulus, Column::ZzInches) * record(Row::Inertia, Column::ZzInches);
    return ei > 1 ? Stiffness{ei, false} : Stiffness{};
}

Refusal NoStiffnessNotice()
{
    const std::string& line = MainModule::CrLf;
    return {kInformation, "Slope/Deflection Message",
            "A value of EI = 1 will be used for now, but you should" + line +
                "define a shape from the Cross-Section menu." + line + line +
                "(Note:  Divide the displayed slopes and deflections by the" + line +
                "actual EI to find the true slopes and deflections.)",
            ""};
}

DiagramScale ScaleOf(const ExtremeTable& extremes, int sizeRow, double valueScale)
{
    DiagramScale scale{kHeadroom * valueScale * extremes[2][sizeRow + 1],
                       kHeadroom * valueScale * extremes[2][sizeRow + 2], 1.0};
    if (scale.Top == scale.Bottom) scale = {kEmptyHalf, -kEmptyHalf, 1.0};
    while ((scale.Top - scale.Bottom) / scale.YDivisor >= kTallest) scale.YDivisor *= 10;
    scale.Top /= scale.YDivisor;
    scale.Bottom /= scale.YDivisor;
    return scale;
}

} // namespace forcelab::beams
