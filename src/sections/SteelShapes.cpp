#include "sections/SteelShapes.h"

#include "core/NumericText.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace forcelab::sections {

namespace {

constexpr std::size_t kCodeLength = 2;
constexpr std::size_t kFirstFloat = kCodeLength + kDesignationLength;
constexpr std::string_view kBoxMask = "####.0000";
constexpr double kAngleGap = 0.75; ///< inches between two angles, until the user edits it

using S = SteelShape;

constexpr SteelField kFieldsW[] = {{"A", &S::A, 2},      {"d", &S::Depth, 3},   {"tw", &S::Web, 4},
                                   {"bf", &S::Width, 5}, {"tf", &S::Flange, 6}, {"Ix", &S::Ix, 14},
                                   {"Sx", &S::Sx, 15},   {"rx", &S::Rx, 16},    {"Iy", &S::Iy, 17},
                                   {"Sy", &S::Sy, 18},   {"ry", &S::Ry, 19},    {"Zx", &S::Zx, 20},
                                   {"Zy", &S::Zy, 21},   {"J", &S::J, 22}};
constexpr SteelField kFieldsC[] = {{"A", &S::A, 2},
                                   {"d", &S::Depth, 3},
                                   {"tw", &S::Web, 4},
                                   {"bf", &S::Width, 5},
                                   {"tf", &S::Flange, 6},
                                   {"Ix", &S::Ix, 11},
                                   {"Sx", &S::Sx, 12},
                                   {"rx", &S::Rx, 13},
                                   {"Iy", &S::Iy, 14},
                                   {"Sy", &S::Sy, 15},
                                   {"ry", &S::Ry, 16},
                                   {"Zx", &S::Zx, 17},
                                   {"Zy", &S::Zy, 18},
                                   {"J", &S::J, 19},
                                   {"xbar", &S::Centroid, 21},
                                   {"xp", &S::PlasticAxis, 25}};
constexpr SteelField kFieldsWT[] = {{"A", &S::A, 2},
                                    {"d", &S::Depth, 3},
                                    {"tw", &S::Web, 4},
                                    {"bf", &S::Width, 5},
                                    {"tf", &S::Flange, 6},
                                    {"Ix", &S::Ix, 9},
                                    {"Sx", &S::Sx, 10},
                                    {"rx", &S::Rx, 11},
                                    {"Iy", &S::Iy, 12},
                                    {"Sy", &S::Sy, 13},
                                    {"ry", &S::Ry, 14},
                                    {"Zx", &S::Zx, 15},
                                    {"Zy", &S::Zy, 16},
                                    {"J", &S::J, 17},
                                    {"ybar", &S::Centroid, 19},
                                    {"yp", &S::PlasticAxis, 22}};
constexpr SteelField kFieldsL[] = {{"A", &S::A, 1},    {"d", &S::Depth, 2}, {"b", &S::Width, 3},
                                   {"t", &S::Web, 4},  {"Ix", &S::Ix, 5},   {"Sx", &S::Sx, 6},
                                   {"rx", &S::Rx, 7},  {"Iy", &S::Iy, 8},   {"Sy", &S::Sy, 9},
                                   {"ry", &S::Ry, 10}, {"Zx", &S::Zx, 12},  {"Zy", &S::Zy, 13},
                                   {"J", &S::J, 14}};
constexpr SteelField kFields2L[] = {{"A", &S::A, 1},   {"b", &S::Width, 2}, {"d", &S::Depth, 3},
                                    {"t", &S::Web, 4}, {"Ix", &S::Ix, 5},   {"Sx", &S::Sx, 6},
                                    {"rx", &S::Rx, 7}, {"Zx", &S::Zx, 11}};
constexpr SteelField kFieldsTS[] = {
    {"A", &S::A, 1},   {"depth", &S::Depth, 2}, {"width", &S::Width, 3}, {"t", &S::Web, 4},
    {"Ix", &S::Ix, 5}, {"Sx", &S::Sx, 6},       {"rx", &S::Rx, 7},       {"Iy", &S::Iy, 8},
    {"Sy", &S::Sy, 9}, {"ry", &S::Ry, 10},      {"Zx", &S::Zx, 11},      {"Zy", &S::Zy, 12},
    {"J", &S::J, 13}};
constexpr SteelField kFieldsPipe[] = {{"A", &S::A, 1},  {"OD", &S::Depth, 2}, {"ID", &S::Width, 3},
                                      {"I", &S::Ix, 5}, {"S", &S::Sx, 6},     {"r", &S::Rx, 7},
                                      {"J", &S::J, 8},  {"Z", &S::Zx, 9}};

constexpr std::span<const SteelField> kFields[kSteelFamilies] = {
    kFieldsW, kFieldsC, kFieldsWT, kFieldsL, kFields2L, kFieldsTS, kFieldsPipe};
constexpr std::string_view kCodes[kSteelFamilies] = {"W ", "C ", "WT", "L ", "2L", "TS", "P "};

std::uint32_t LittleEndian(std::span<const std::uint8_t> bytes)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) value |= std::uint32_t(bytes[i]) << (8 * i);
    return value;
}

void AppendLittleEndian(std::vector<std::uint8_t>& bytes, std::uint32_t value, int width)
{
    for (int i = 0; i < width; ++i) bytes.push_back(std::uint8_t(value >> (8 * i)));
}

/// The figure as it was published: the shortest decimal number that this float stands for, so
/// that 11.9 goes on as 11.9 and not as 11.899999618530273.
double PublishedFigure(float value)
{
    if (!std::isfinite(value)) return 0;
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    double figure = 0;
    std::from_chars(digits, end, figure);
    return figure;
}

/// The tables hold ASCII alone; a byte of a damaged file shows as a question mark, and a control
/// character as a blank.
std::string Designation(std::span<const std::uint8_t> bytes)
{
    std::string text;
    for (const std::uint8_t byte : bytes) text += byte > 126 ? '?' : byte < 32 ? ' ' : char(byte);
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

SteelShape ReadRecord(SteelFamily family, std::span<const std::uint8_t> record)
{
    SteelShape shape;
    shape.Family = family;
    shape.Designation = Designation(record.subspan(kCodeLength, kDesignationLength));
    for (const SteelField& field : FieldsOf(family)) {
        const auto bits = LittleEndian(record.subspan(kFirstFloat + 4 * field.Float, 4));
        shape.*field.Member = PublishedFigure(std::bit_cast<float>(bits));
    }
    if (kSteelFiles[family].HasGroup)
        shape.Group = std::int16_t(LittleEndian(record.last(sizeof(std::int16_t))));
    return shape;
}

/// Pounds per foot, which the names of W, C and WT shapes carry behind their last X; else 0.
float WeightPerFoot(SteelFamily family, std::string_view designation)
{
    const auto x = designation.rfind('X');
    if (family > kFamilyWT || x == std::string_view::npos) return 0;
    const std::string_view text = designation.substr(x + 1);
    float weight = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), weight);
    return read.ec == std::errc() && read.ptr == text.data() + text.size() ? weight : 0;
}

void AppendRecord(std::vector<std::uint8_t>& bytes, SteelFamily family, const SteelShape& shape)
{
    const SteelFile& file = kSteelFiles[family];
    std::string text(kCodes[family]);
    text += shape.Designation.substr(0, kDesignationLength);
    text.resize(kFirstFloat, ' ');
    bytes.insert(bytes.end(), text.begin(), text.end());
    std::vector<float> floats(file.Floats);
    floats[0] = WeightPerFoot(family, shape.Designation);
    for (const SteelField& field : FieldsOf(family))
        floats[field.Float] = float(shape.*field.Member);
    for (const float value : floats)
        AppendLittleEndian(bytes, std::bit_cast<std::uint32_t>(value), sizeof value);
    if (file.HasGroup) AppendLittleEndian(bytes, std::uint32_t(shape.Group), sizeof(std::int16_t));
}

/// The dimensions of boxes 0 to 4, as many as the family has. A tube's boxes take its depth first.
std::vector<double> BoxValues(const SteelShape& s)
{
    switch (s.Family) {
    case kFamilyW:
    case kFamilyC:
        return {s.Width, s.Flange, s.Depth - 2 * s.Flange, s.Web};
    case kFamilyWT:
        return {s.Width, s.Flange, s.Depth - s.Flange, s.Web};
    case kFamilyL:
        return {s.Width, s.Web, s.Depth - s.Web, s.Web};
    case kFamily2L:
        return {s.Width, s.Web, s.Depth - s.Web, s.Web, kAngleGap};
    case kFamilyTS:
        return {s.Depth, s.Width, s.Depth - 2 * s.Web, s.Width - 2 * s.Web};
    default:
        return {s.Depth, s.Width};
    }
}

} // namespace

const std::array<SteelFile, kSteelFamilies> kSteelFiles{{
    {"WShapes.stl", 136, 28, true, "AISC W, S, M, or HP Shape"},
    {"CShapes.stl", 128, 26, true, "AISC C or MC Shape"},
    {"TShapes.stl", 116, 23, true, "AISC WT, ST, or MT Shape"},
    {"LShapes.stl", 94, 18, false, "AISC L Shape"},
    {"2LShapes.stl", 94, 18, false, "AISC Double Angle Shape"},
    {"TSShapes.stl", 78, 14, false, "AISC Structural Tube Shape"},
    {"PShapes.stl", 62, 10, false, "AISC Pipe Shape"},
}};

std::span<const SteelField> FieldsOf(SteelFamily family)
{
    return kFields[family];
}

std::vector<SteelShape> ReadSteelTable(SteelFamily family, std::span<const std::uint8_t> bytes)
{
    const std::size_t length = kSteelFiles[family].RecordLength;
    std::vector<SteelShape> shapes;
    shapes.reserve(bytes.size() / length);
    for (; bytes.size() >= length; bytes = bytes.subspan(length)) {
        shapes.push_back(ReadRecord(family, bytes.first(length)));
        shapes.back().RecordNumber = int(shapes.size());
    }
    return shapes;
}

std::vector<std::uint8_t> PackSteelTable(SteelFamily family, std::span<const SteelShape> shapes)
{
    std::vector<std::uint8_t> bytes;
    bytes.reserve(shapes.size() * kSteelFiles[family].RecordLength);
    for (const SteelShape& shape : shapes) AppendRecord(bytes, family, shape);
    return bytes;
}

std::array<std::string, 5> SteelBoxes(const SteelShape& shape)
{
    std::array<std::string, 5> boxes;
    const std::vector<double> values = BoxValues(shape);
    std::transform(values.begin(), values.end(), boxes.begin(),
                   [](double value) { return Format(value, kBoxMask); });
    return boxes;
}

} // namespace forcelab::sections
