#include "sections/Report.h"

#include "core/MainModule.h"
#include "core/Narration.h"
#include "sections/ReportNumbers.h"
#include "sections/ShapeCatalogue.h"

#include <algorithm>
#include <cmath>

namespace forcelab::sections {

namespace {

using MainModule::EqualsText;
using MainModule::SquaredText;

/// What the tables say about an axis, and where their numbers stand in the DetailTable.
struct AxisTexts {
    std::string Name; ///< "Z-Z"
    std::string CentroidCaption;
    std::string Coordinate;     ///< of an element
    std::string CoordinateFrom; ///< the edge from which it counts
    std::string Centroid;       ///< of the section
    std::string CentroidLine;
    std::string HalfTheArea; ///< pieces of the sentence on the plastic neutral axis
    std::string OtherHalf;
    std::string Edge;
    std::array<std::string, 4> PlasticRows; ///< area and lever on the high side, on the low side
    int CentroidColumn;                     ///< the first of seven: A, yi, A yi, Ic, d, A d2, sum
    int TransformedSize; ///< the first of two: the transformed extent, the other extent
    int PlasticColumn;   ///< the first of five: area, lever, area, lever, contribution
    Column Results;
};

const AxisTexts kAxes[] = {
    {"Z-Z",
     "Centroid in Y-direction and Moment of Inertia about the Z-Z axis",
     "yi",
     "(from bottom)",
     "Y bot",
     "Distance from bottom to centroid,",
     "below y = ",
     " and half of the area is above this location.  ",
     " from the bottom edge of the shape.",
     {"Area above plastic n.a.", "yi above n.a.", "Area below plastic n.a.", "yi below n.a."},
     8,
     31,
     34,
     Column::Zz},
    {"Y-Y",
     "Centroid in Z-direction and Moment of Inertia about the Y-Y axis",
     "zi",
     "(from left)",
     "Z left",
     "Distance from leftmost edge to centroid,",
     "to the left of z = ",
     " and half of the area is to the right of this location.  ",
     " from the leftmost edge of the shape.",
     {"Area to the right of plastic n.a.", "zi right of n.a.", "Area to the left of plastic n.a.",
      "zi left of n.a."},
     1,
     29,
     29,
     Column::Yy},
};

constexpr std::string_view kSteelNote =
    "The rows are the rectangles of the shape. Its published properties also count the fillets.";

bool IsRound(int shape)
{
    return shape == kCircle || shape == kPipe;
}

/// Shapes whose properties are given as they are and not summed from elements.
bool HasElements(int shape)
{
    constexpr int kWithout[] = {kNoShape, kSteelW, kSteelTS, kSteelPipe, kSpecified};
    return std::ranges::find(kWithout, shape) == std::end(kWithout);
}

bool IsConversion(ReportTable table)
{
    return table == ReportTable::Convert12 || table == ReportTable::Convert21;
}

/// A heading of a table: its lines, one below the other.
std::string Stack(std::initializer_list<std::string_view> lines)
{
    std::string text;
    for (const std::string_view line : lines)
        if (!line.empty()) text += (text.empty() ? "" : "\n") + std::string(line);
    return text;
}

/// Writes the table of one menu item and axis.
class GridWriter {
  public:
    GridWriter(const CrossSection& section, const SectionEntry& entry, ReportTable table,
               const AxisTexts& axis)
        : section_(section), entry_(entry), table_(table), axis_(axis)
    {
        for (int k = 0; k < kElements; ++k)
            if (section.Shown[k]) elements_.push_back(k);
        for (const int k : elements_) {
            const Corners& c = section.ElementCorners[k];
            for (const double edge : {c.Left, c.Bottom, c.Right, c.Top})
                length_ = std::max(length_, std::abs(edge));
        }
    }

    ReportGrid GridCentroid();
    ReportGrid GridPlastic();
    ReportGrid GridProductOfInertia();
    ReportGrid RoundCentroid();

  private:
    [[nodiscard]] double Detail(int element, int column) const
    {
        return section_.Details[element + 1][column];
    }
    [[nodiscard]] double Total(int column) const { return section_.Details[0][column]; }
    [[nodiscard]] std::string Unit(int power) const
    {
        return LengthUnitText(section_, entry_, power);
    }
    [[nodiscard]] std::string WithPower(double value, int power) const
    {
        return WithUnit(ReportNumber(value), Unit(power));
    }
    [[nodiscard]] double Distance(double value) const { return WithoutNoise(value, length_); }
    [[nodiscard]] double AreaScale() const { return section_.Record(Row::Area, axis_.Results); }

    /// The first of the seven columns of the centroid table.
    [[nodiscard]] int FirstColumn() const
    {
        return axis_.CentroidColumn + (table_ == ReportTable::Convert12 ? 14 : 0);
    }
    [[nodiscard]] bool AboutZz() const { return axis_.Results == Column::Zz; }

    std::vector<std::string> CentroidHeadings() const;
    std::vector<std::string> CentroidRow(int element) const;
    std::array<double, 2> WidthAndHeight(int element) const;
    void ExplainTransformation(Narration& text) const;
    std::string CentroidLine(const std::string& value) const;
    std::string InertiaLine(double inertia) const;
    std::string Finished(Narration& text) const;
    std::vector<std::string> PlasticRow(int row) const;
    double PlasticValue(int element, int row) const;

    const CrossSection& section_;
    const SectionEntry& entry_;
    ReportTable table_;
    const AxisTexts& axis_;
    std::vector<int> elements_;
    double length_ = 0; ///< reach of the section from its centroid
};

std::vector<std::string> GridWriter::CentroidHeadings() const
{
    const bool converts = IsConversion(table_);
    const std::string_view width = converts && AboutZz() ? "(transformed)" : "";
    const std::string_view height = converts && !AboutZz() ? "(transformed)" : "";
    return {"Shape",
            Stack({"Width, b", width, Unit(1)}),
            Stack({"Height, h", height, Unit(1)}),
            Stack({"Area", "A", Unit(2)}),
            Stack({axis_.Coordinate, axis_.CoordinateFrom, Unit(1)}),
            Stack({Times("A", axis_.Coordinate), Unit(3)}),
            Stack({"Ic", Unit(4)}),
            Stack({"distance, d", "= " + axis_.Coordinate + " - " + axis_.Centroid, Unit(1)}),
            Stack({"Ic + d" + SquaredText + "A", Unit(4)})};
}

/// Of the element, or of its transformed rectangle.
std::array<double, 2> GridWriter::WidthAndHeight(int element) const
{
    const Corners& c = section_.ElementCorners[element];
    if (!IsConversion(table_)) return {c.Right - c.Left, c.Top - c.Bottom};
    const int column = axis_.TransformedSize + (table_ == ReportTable::Convert12 ? 4 : 0);
    const double transformed = Detail(element, column);
    const double other = Detail(element, column + 1);
    return AboutZz() ? std::array{transformed, other} : std::array{other, transformed};
}

std::vector<std::string> GridWriter::CentroidRow(int element) const
{
    const int first = FirstColumn();
    const auto [width, height] = WidthAndHeight(element);
    std::vector<std::string> row{std::to_string(element + 1)};
    for (const double value : {width, height, Detail(element, first), Detail(element, first + 1),
                               Detail(element, first + 2), Detail(element, first + 3),
                               Distance(Detail(element, first + 4)), Detail(element, first + 6)})
        row.push_back(ReportNumber(value));
    return row;
}

std::string GridWriter::CentroidLine(const std::string& value) const
{
    return axis_.CentroidLine + " " + axis_.Centroid + EqualsText + WithUnit(value, Unit(1));
}

std::string GridWriter::InertiaLine(double inertia) const
{
    return "Moment of inertia about the " + axis_.Name + " axis = " + WithPower(inertia, 4);
}

/// The explanation, with a word on the fillets under the rectangles of a steel shape.
std::string GridWriter::Finished(Narration& text) const
{
    if (IsSteel(section_.ShapeIndex)) text.Line(kSteelNote);
    return text.Text();
}

void GridWriter::ExplainTransformation(Narration& text) const
{
    const bool intoB = table_ == ReportTable::Convert12;
    const CompositeRow ratio = intoB ? CompositeRow::RatioAToB : CompositeRow::RatioBToA;
    text.Line(std::string("Modular Ratio - ") + (intoB ? "Ea/Eb" : "Eb/Ea") + EqualsText +
              ReportNumber(section_.Record(ratio, Column::CompositeZz)));
    text.Line("Transformed Area = " + WithPower(Total(FirstColumn()), 2));
}

/// Serves the transformed section as well, whose numbers stand in other columns.
ReportGrid GridWriter::GridCentroid()
{
    const int first = FirstColumn();
    ReportGrid grid;
    grid.Cells.push_back(CentroidHeadings());
    for (const int k : elements_) grid.Cells.push_back(CentroidRow(k));
    grid.Cells.push_back({"Total", "", "", ReportNumber(Total(first)), "",
                          ReportNumber(Total(first + 2)), "", "", ReportNumber(Total(first + 6))});
    Narration text;
    if (IsConversion(table_)) ExplainTransformation(text);
    text.Line(CentroidLine(QuotientText(Total(first + 2), Total(first), Total(first + 3))));
    text.Line(InertiaLine(Total(first + 6)));
    grid.Explanation = Finished(text);
    return grid;
}

/// Circle and pipe have closed forms and no table of elements.
ReportGrid GridWriter::RoundCentroid()
{
    ReportGrid grid;
    Narration text;
    text.Line(CentroidLine(ReportNumber(section_.Record(Row::LowEdge, axis_.Results))));
    text.Line(InertiaLine(section_.Record(Row::Inertia, axis_.Results)));
    grid.Explanation = text.Text();
    return grid;
}

/// Rows 0 and 2 are areas, 1 and 3 levers, 4 contributions.
double GridWriter::PlasticValue(int element, int row) const
{
    const double value = Detail(element, axis_.PlasticColumn + row);
    if (row == 4) return value;
    return row % 2 == 0 ? WithoutNoise(value, AreaScale()) : Distance(value);
}

std::vector<std::string> GridWriter::PlasticRow(int row) const
{
    constexpr int kPowers[] = {2, 1, 2, 1, 3};
    const std::string label =
        row == 4 ? "Sum of " + Times("A", axis_.Coordinate) : axis_.PlasticRows[row];
    std::vector<std::string> cells{Stack({label, Unit(kPowers[row])})};
    for (const int k : elements_) cells.push_back(ReportNumber(PlasticValue(k, row)));
    cells.push_back(row == 4 ? ReportNumber(Total(axis_.PlasticColumn + 4)) : "");
    return cells;
}

ReportGrid GridWriter::GridPlastic()
{
    ReportGrid grid;
    std::vector<std::string> headings{"Shape"};
    for (const int k : elements_) headings.push_back(std::to_string(k + 1));
    headings.emplace_back("Total");
    grid.Cells.push_back(headings);
    for (int row = 0; row < 5; ++row) grid.Cells.push_back(PlasticRow(row));

    const std::string position = WithPower(Total(axis_.PlasticColumn), 1);
    Narration text;
    text.Line("By inspection or trial-and-error, determine that half of the cross-sectional area "
              "is located " +
              axis_.HalfTheArea + position + axis_.OtherHalf +
              "Therefore, the plastic neutral axis is located " + position + axis_.Edge);
    text.Line("Plastic Modulus Z about the " + axis_.Name +
              " axis = " + WithPower(Total(axis_.PlasticColumn + 4), 3));
    grid.Explanation = Finished(text);
    return grid;
}

ReportGrid GridWriter::GridProductOfInertia()
{
    ReportGrid grid;
    grid.Cells.push_back({"Shape", Stack({"Area, A", Unit(2)}), Stack({"(z - Z left)", Unit(1)}),
                          Stack({"(y - Y bot)", Unit(1)}), Stack({"Iyz", Unit(4)})});
    for (const int k : elements_) {
        const double z = Distance(Detail(k, 5));
        const double y = Distance(Detail(k, 12));
        const double product = z == 0 || y == 0 ? 0 : Detail(k, 15);
        grid.Cells.push_back({std::to_string(k + 1), ReportNumber(Detail(k, 1)), ReportNumber(z),
                              ReportNumber(y), ReportNumber(product)});
    }
    const double sum = WithoutNoise(Total(15), AreaScale() * length_ * length_);
    grid.Cells.push_back({"Total", ReportNumber(Total(1)), "", "", ReportNumber(sum)});
    Narration text;
    text.Line("Product of inertia Iyz = " + WithPower(sum, 4));
    grid.Explanation = Finished(text);
    return grid;
}

std::string CaptionOf(ReportTable table, const AxisTexts& axis)
{
    if (table == ReportTable::Product) return "Product of Inertia";
    if (table == ReportTable::Plastic)
        return "Plastic Modulus relative to the " + axis.Name + " axis";
    return axis.CentroidCaption;
}

std::string LabelOf(ReportTable table, const SectionEntry& entry)
{
    if (!IsConversion(table)) return {};
    const int from = table == ReportTable::Convert12 ? 0 : 1;
    return "Converting " + MaterialText(entry, from) + " to " + MaterialText(entry, 1 - from);
}

} // namespace

bool HasTable(const CrossSection& section, ReportTable table)
{
    if (!HasElements(section.ShapeIndex)) return false;
    if (section.CompositeSection || IsConversion(table))
        return section.CompositeSection && IsConversion(table);
    return table != ReportTable::Centroid || !IsRound(section.ShapeIndex);
}

ReportGrid FillTheGrid(const CrossSection& section, const SectionEntry& entry, ReportTable table,
                       int reportAxis)
{
    const AxisTexts& axis = kAxes[reportAxis == 1 ? 1 : 0];
    GridWriter writer(section, entry, table, axis);
    ReportGrid grid;
    if (IsRound(section.ShapeIndex) && table == ReportTable::Centroid)
        grid = writer.RoundCentroid();
    else if (!HasTable(section, table))
        grid = {};
    else if (table == ReportTable::Plastic)
        grid = writer.GridPlastic();
    else if (table == ReportTable::Product)
        grid = writer.GridProductOfInertia();
    else
        grid = writer.GridCentroid();
    grid.FrameCaption = CaptionOf(table, axis);
    grid.UnderGrid = LabelOf(table, entry);
    return grid;
}

} // namespace forcelab::sections
