#include "truss/MemberStress.h"

#include "core/ArithmeticFault.h"
#include "core/DrawingHelpers.h"
#include "core/NumericText.h"

#include <algorithm>
#include <cmath>

namespace forcelab::truss {

namespace {

constexpr std::string_view kPlainMask = "###,##0.000";
constexpr double kLeastPlain = 0.1; // smaller ones would lose digits that count
constexpr double kGreatestPlain = 1e9;
constexpr int kPlaces = 3;
constexpr double kLineFactor = 1.25; // of the height of the text
constexpr int kHeadLines = 2;
constexpr double kColumnEnds[] = {90, 220, 350, 480}; // pixels; numbers end there

double RowHeight(const Picture& pic)
{
    return pic.TextHeight("0") * kLineFactor;
}

void PrintRow(Picture& pic, double top, const std::string_view (&cells)[4])
{
    PrintText(pic, 0, top, std::string(cells[0]));
    for (int column = 1; column < 4; ++column)
        PrintText(pic, kColumnEnds[column], top, std::string(cells[column]), HAlign::Right);
}

} // namespace

std::string StressText(double force, std::string_view area)
{
    const double square = ParseNumber(area);
    if (square <= 0) return {};
    const double stress = Finite(force / square);
    const double size = std::abs(stress);
    if (size == 0 || (size >= kLeastPlain && size < kGreatestPlain))
        return Format(stress, kPlainMask);
    return FormatValue(stress, kPlaces, false).Joined();
}

std::vector<StressRow> StressTable(const TrussModel& model, const TrussResults& results,
                                   const MemberAreas& areas)
{
    std::vector<StressRow> rows;
    for (const TrussMember& member : model.Members()) {
        if (rows.size() >= results.MemberForces.size()) break;
        StressRow row{
            {member.FromPoint, member.ToPoint}, results.MemberNames[rows.size()], {}, {}, {}};
        const double force = StringValue(results.MemberForces[rows.size()]);
        row.Force = Format(force, kPlainMask);
        if (const auto typed = areas.find(row.Member); typed != areas.end()) {
            row.Area = typed->second;
            row.Stress = StressText(force, row.Area);
        }
        rows.push_back(row);
    }
    return rows;
}

int StressRowsOn(const Picture& pic, double height)
{
    return std::max(0, static_cast<int>(height / RowHeight(pic)) - kHeadLines);
}

void PrintStressTable(Picture& pic, const std::vector<StressRow>& rows, std::size_t first,
                      std::size_t count)
{
    pic.ForeColor = IndexedColour(0);
    pic.FontBold = true;
    PrintRow(pic, 0, kStressColumns);
    pic.FontBold = false;
    const double step = RowHeight(pic);
    pic.Line(0, 1.2 * step, kColumnEnds[3], 1.2 * step);
    double top = 1.4 * step;
    for (std::size_t i = first; i < std::min(rows.size(), first + count); ++i) {
        PrintRow(pic, top, {rows[i].Name, rows[i].Force, rows[i].Area, rows[i].Stress});
        top += step;
    }
}

} // namespace forcelab::truss
