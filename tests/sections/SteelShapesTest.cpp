#include "sections/SteelShapes.h"

#include "SteelText.h"
#include "support/Near.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <fstream>

namespace forcelab::sections {
namespace {

using test::Local;
using test::Near;
using Bytes = std::vector<std::uint8_t>;

SteelText TextOf(SteelFamily family)
{
    std::ifstream file("data/steel/" + SteelTextName(family));
    return ReadSteelText(family, file);
}

Bytes PackedTable(SteelFamily family)
{
    return PackSteelTable(family, TextOf(family).Shapes);
}

SteelShape Find(SteelFamily family, const std::string& designation)
{
    for (const SteelShape& shape : ReadSteelTable(family, PackedTable(family)))
        if (shape.Designation == designation) return shape;
    ADD_FAILURE() << designation << " is not in the table";
    return {};
}

// --- every row of every table

struct TableRow {
    SteelFamily Family;
    std::size_t Shapes;
    int RecordLength;
    const char* File;
};

class SteelTables : public testing::TestWithParam<TableRow> {};

TEST_P(SteelTables, TextIsGoodAndComplete)
{
    const SteelText table = TextOf(GetParam().Family);
    EXPECT_EQ(table.Problem, "");
    EXPECT_EQ(table.Shapes.size(), GetParam().Shapes);
}

TEST_P(SteelTables, FileHasTheLengthOfItsRecords)
{
    EXPECT_EQ(kSteelFiles[GetParam().Family].Name, GetParam().File);
    EXPECT_EQ(kSteelFiles[GetParam().Family].RecordLength, GetParam().RecordLength);
    EXPECT_EQ(PackedTable(GetParam().Family).size(), GetParam().Shapes * GetParam().RecordLength);
}

TEST_P(SteelTables, EveryRowReadsBackAsWritten)
{
    const std::vector<SteelShape> written = TextOf(GetParam().Family).Shapes;
    const std::vector<SteelShape> read =
        ReadSteelTable(GetParam().Family, PackedTable(GetParam().Family));
    ASSERT_EQ(read.size(), written.size());
    for (std::size_t i = 0; i < read.size(); ++i) {
        SCOPED_TRACE(written[i].Designation);
        EXPECT_EQ(read[i].Designation, written[i].Designation);
        EXPECT_EQ(read[i].Family, GetParam().Family);
        EXPECT_EQ(read[i].RecordNumber, int(i) + 1);
        EXPECT_EQ(read[i].Group, written[i].Group);
        for (const SteelField& field : FieldsOf(GetParam().Family))
            EXPECT_EQ(read[i].*field.Member, written[i].*field.Member) << field.Heading;
    }
}

/// What must hold between the figures of a row, whatever the family: handbooks round each to three
/// digits.
TEST_P(SteelTables, FiguresOfARowAgreeWithEachOther)
{
    for (const SteelShape& s : TextOf(GetParam().Family).Shapes) {
        SCOPED_TRACE(s.Designation);
        EXPECT_TRUE(Near(s.Rx, std::sqrt(s.Ix / s.A), 0.02));
        EXPECT_GE(s.Zx * 1.01, s.Sx);
        EXPECT_TRUE(Near(s.Ry, std::sqrt(s.Iy / s.A), 0.02)); // both 0 where the family has none
    }
}

TEST_P(SteelTables, NoDimensionBoxIsZero)
{
    const auto used = GetParam().Family == kFamilyPipe ? 2 : GetParam().Family == kFamily2L ? 5 : 4;
    for (const SteelShape& shape : TextOf(GetParam().Family).Shapes) {
        const auto boxes = SteelBoxes(shape);
        for (int i = 0; i < 5; ++i) {
            SCOPED_TRACE(shape.Designation + " box " + std::to_string(i));
            if (i < used)
                EXPECT_GT(ParseNumber(boxes[i]), 0);
            else
                EXPECT_EQ(boxes[i], "");
        }
    }
}

TEST_P(SteelTables, NamesAreUnique)
{
    std::vector<std::string> names;
    for (const SteelShape& shape : TextOf(GetParam().Family).Shapes)
        names.push_back(shape.Designation);
    std::ranges::sort(names);
    EXPECT_EQ(std::ranges::adjacent_find(names), names.end());
}

INSTANTIATE_TEST_SUITE_P(All, SteelTables,
                         testing::Values(TableRow{kFamilyW, 355, 136, "WShapes.stl"},
                                         TableRow{kFamilyC, 72, 128, "CShapes.stl"},
                                         TableRow{kFamilyWT, 331, 116, "TShapes.stl"},
                                         TableRow{kFamilyL, 137, 94, "LShapes.stl"},
                                         TableRow{kFamily2L, 213, 94, "2LShapes.stl"},
                                         TableRow{kFamilyTS, 525, 78, "TSShapes.stl"},
                                         TableRow{kFamilyPipe, 51, 62, "PShapes.stl"}));

// --- the layout of a record, told float by float

struct RecordRow {
    SteelFamily Family;
    const char* Designation;
    const char* Code;
    std::vector<float> Floats; ///< all of them, the unread ones 0
    int Group;                 ///< 0: the record ends with its floats
};

class SteelRecords : public testing::TestWithParam<RecordRow> {};

TEST_P(SteelRecords, HaveTheirFiguresInPlace)
{
    const RecordRow& row = GetParam();
    const SteelShape shape = Find(row.Family, row.Designation);
    const Bytes bytes = PackSteelTable(row.Family, std::span(&shape, 1));
    const std::string text(bytes.begin(), bytes.begin() + 22);
    EXPECT_EQ(text.substr(0, 2), row.Code);
    EXPECT_EQ(text.substr(2, std::strlen(row.Designation)), row.Designation);
    EXPECT_EQ(text.find_first_not_of(' ', 2 + std::strlen(row.Designation)), std::string::npos);
    ASSERT_GE(bytes.size(), 22 + 4 * row.Floats.size());
    for (std::size_t i = 0; i < row.Floats.size(); ++i) {
        const auto at = bytes.begin() + 22 + 4 * std::ptrdiff_t(i);
        const std::uint32_t bits = at[0] | at[1] << 8 | at[2] << 16 | std::uint32_t(at[3]) << 24;
        EXPECT_EQ(std::bit_cast<float>(bits), row.Floats[i]) << "float " << i;
    }
    const Bytes tail(bytes.begin() + 22 + 4 * std::ptrdiff_t(row.Floats.size()), bytes.end());
    EXPECT_EQ(tail, row.Group > 0 ? (Bytes{std::uint8_t(row.Group), 0}) : Bytes{});
}

INSTANTIATE_TEST_SUITE_P(
    OneAFamily, SteelRecords,
    testing::Values(
        RecordRow{kFamilyW,
                  "W14X90",
                  "W ",
                  {90,  0,   26.5F, 14,  .44F,  14.5F, .71F, 0,     0,     0, 0, 0, 0, 0,
                   999, 143, 6.14F, 362, 49.9F, 3.7F,  157,  75.6F, 4.06F, 0, 0, 0, 0, 0},
                  2},
        RecordRow{kFamilyC,
                  "C15X50",
                  "C ",
                  {50,    0,  14.7F, 15,    .716F, 3.72F, .65F,  0, 0,     0, 0, 404, 53.8F,
                   5.24F, 11, 3.77F, .865F, 68.5F, 8.14F, 2.65F, 0, .799F, 0, 0, 0,   .49F},
                  2},
        RecordRow{kFamilyWT,
                  "WT9X30",
                  "WT",
                  {30, 0,     8.82F, 9.12F, .415F, 7.56F, .695F, 0,     0, 64.7F, 9.29F, 2.71F,
                   25, 6.63F, 1.68F, 16.5F, 10.3F, 1.08F, 0,     2.16F, 0, 0,     .583F},
                  1},
        RecordRow{kFamilyL,
                  "L8X6X1",
                  "L ",
                  {0, 13.1F, 8, 6, 1, 80.9F, 15.1F, 2.49F, 38.8F, 8.92F, 1.72F, 0, 27.3F, 16.2F,
                   4.34F, 0, 0, 0},
                  0},
        RecordRow{kFamily2L,
                  "2L6X4X1/2LLBB",
                  "2L",
                  {0, 9.5F, 4, 6, .5F, 34.6F, 8.62F, 1.91F, 0, 0, 0, 15.4F, 0, 0, 0, 0, 0, 0},
                  0},
        RecordRow{
            kFamilyTS,
            "TS8X4X1/2",
            "TS",
            {0, 9.74F, 8, 4, .465F, 71.8F, 17.9F, 2.71F, 23.6F, 11.8F, 1.56F, 23.5F, 14.3F, 61.1F},
            0},
        RecordRow{kFamilyPipe,
                  "PIPE10STD",
                  "P ",
                  {0, 11.9F, 10.75F, 10.02F, 0, 161, 29.9F, 3.67F, 321, 39.4F},
                  0}));

TEST(SteelShapes, PublishedFiguresComeBackAsPublished)
{
    const SteelShape w = Find(kFamilyW, "W14X90");
    EXPECT_EQ(w.A, 26.5);
    EXPECT_EQ(w.Ix, 999);
    EXPECT_EQ(w.Sx, 143);
    EXPECT_EQ(w.Iy, 362);
    EXPECT_EQ(w.Zx, 157);
    EXPECT_EQ(w.Web, 0.44) << "not the nearest float to it, 0.4399999976";
    const SteelShape pipe = Find(kFamilyPipe, "PIPE10STD");
    EXPECT_EQ(pipe.A, 11.9);
    EXPECT_EQ(pipe.Ix, 161);
    EXPECT_EQ(pipe.Sx, 29.9);
}

TEST(SteelShapes, ALongNameIsCutToItsField)
{
    SteelShape shape;
    shape.Designation = "W123456789012345678901234567890";
    const Bytes bytes = PackSteelTable(kFamilyW, std::span(&shape, 1));
    ASSERT_EQ(bytes.size(), 136U);
    EXPECT_EQ(ReadSteelTable(kFamilyW, bytes)[0].Designation, "W1234567890123456789");
}

// --- boxes

struct BoxRow {
    SteelFamily Family;
    const char* Designation;
    std::array<std::string, 5> Boxes;
};

class SteelBoxTexts : public testing::TestWithParam<BoxRow> {};

TEST_P(SteelBoxTexts, FollowTheFamily)
{
    auto expected = GetParam().Boxes;
    for (std::string& box : expected) box = Local(box);
    EXPECT_EQ(SteelBoxes(Find(GetParam().Family, GetParam().Designation)), expected);
}

INSTANTIATE_TEST_SUITE_P(
    OneAFamily, SteelBoxTexts,
    testing::Values(
        BoxRow{kFamilyW, "W14X90", {"14.5000", ".7100", "12.5800", ".4400", ""}},
        BoxRow{kFamilyC, "C15X50", {"3.7200", ".6500", "13.7000", ".7160", ""}},
        BoxRow{kFamilyWT, "WT9X30", {"7.5600", ".6950", "8.4250", ".4150", ""}},
        BoxRow{kFamilyL, "L8X6X1", {"6.0000", "1.0000", "7.0000", "1.0000", ""}},
        BoxRow{kFamily2L, "2L6X4X1/2LLBB", {"4.0000", ".5000", "5.5000", ".5000", ".7500"}},
        BoxRow{kFamilyTS, "TS8X4X1/2", {"8.0000", "4.0000", "7.0700", "3.0700", ""}},
        BoxRow{kFamilyPipe, "PIPE10STD", {"10.7500", "10.0200", "", "", ""}}));

} // namespace
} // namespace forcelab::sections
