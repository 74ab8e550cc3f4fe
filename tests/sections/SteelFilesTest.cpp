// Damaged tables, the text form of the tables, grades and their availability.

#include "sections/SteelShapes.h"

#include "SteelText.h"
#include "support/Near.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <fstream>
#include <limits>
#include <random>
#include <sstream>

namespace forcelab::sections {
namespace {

using testing::IsEmpty;
using Bytes = std::vector<std::uint8_t>;

Bytes PackedTable(int family)
{
    std::ifstream file("data/steel/" + SteelTextName(SteelFamily(family)));
    return PackSteelTable(SteelFamily(family), ReadSteelText(SteelFamily(family), file).Shapes);
}

// --- damaged files

class DamagedFiles : public testing::TestWithParam<int> {};

TEST_P(DamagedFiles, AnEmptyFileIsAnEmptyList)
{
    EXPECT_THAT(ReadSteelTable(SteelFamily(GetParam()), {}), IsEmpty());
}

TEST_P(DamagedFiles, ATrailingPieceIsIgnored)
{
    const Bytes bytes = PackedTable(GetParam());
    const std::size_t length = kSteelFiles[GetParam()].RecordLength;
    const auto read = [&](std::size_t size) {
        return ReadSteelTable(SteelFamily(GetParam()), std::span(bytes).first(size)).size();
    };
    EXPECT_EQ(read(length - 1), 0U);
    EXPECT_EQ(read(length), 1U);
    EXPECT_EQ(read(length + 1), 1U);
    EXPECT_EQ(read(2 * length - 1), 1U);
    EXPECT_EQ(read(bytes.size() - 1), bytes.size() / length - 1);
}

void ExpectSound(const SteelShape& shape)
{
    for (const SteelField& field : FieldsOf(SteelFamily(shape.Family)))
        ASSERT_TRUE(std::isfinite(shape.*field.Member)) << shape.Designation << field.Heading;
    for (const char c : shape.Designation) ASSERT_TRUE(c >= ' ' && c <= '~');
    ASSERT_FALSE(shape.Designation.starts_with(' ') || shape.Designation.ends_with(' '));
    for (const std::string& box : SteelBoxes(shape)) ASSERT_LE(box.size(), 60U);
    for (int grade = -1; grade < 13; ++grade) GradeAvailability(shape, grade);
}

/// Cuts a table anywhere and turns up to 400 of its bits.
Bytes Damaged(Bytes bytes, std::mt19937& random)
{
    bytes.resize(random() % (bytes.size() + 1));
    for (std::size_t flips = bytes.empty() ? 0 : random() % 400; flips > 0; --flips)
        bytes[random() % bytes.size()] ^= std::uint8_t(1U << random() % 8);
    return bytes;
}

TEST_P(DamagedFiles, NeverGiveWhatCannotBeShown)
{
    constexpr unsigned kSeed = 20260101;
    SCOPED_TRACE("seed " + std::to_string(kSeed));
    std::mt19937 random(kSeed);
    const Bytes good = PackedTable(GetParam());
    const std::size_t length = kSteelFiles[GetParam()].RecordLength;
    for (int round = 0; round < 2000; ++round) {
        Bytes bytes = Damaged(good, random);
        if (bytes.size() > 40 * length) bytes.resize(40 * length);
        const auto shapes = ReadSteelTable(SteelFamily(GetParam()), bytes);
        ASSERT_EQ(shapes.size(), bytes.size() / length);
        for (const SteelShape& shape : shapes) ExpectSound(shape);
        if (HasFatalFailure()) return;
    }
}

TEST_P(DamagedFiles, FloatsThatAreNoNumbersBecomeZero)
{
    Bytes bytes(std::size_t(kSteelFiles[GetParam()].RecordLength), 'A');
    const float bad[] = {std::numeric_limits<float>::quiet_NaN(),
                         std::numeric_limits<float>::infinity(),
                         -std::numeric_limits<float>::infinity()};
    for (int i = 0; i < kSteelFiles[GetParam()].Floats; ++i) {
        const auto bits = std::bit_cast<std::uint32_t>(bad[i % 3]);
        for (int byte = 0; byte < 4; ++byte)
            bytes[22 + 4 * i + byte] = std::uint8_t(bits >> (8 * byte));
    }
    const auto shapes = ReadSteelTable(SteelFamily(GetParam()), bytes);
    ASSERT_EQ(shapes.size(), 1U);
    for (const SteelField& field : FieldsOf(SteelFamily(GetParam())))
        EXPECT_EQ(shapes[0].*field.Member, 0) << field.Heading;
}

INSTANTIATE_TEST_SUITE_P(All, DamagedFiles, testing::Range(0, kSteelFamilies));

TEST(DamagedNames, AreTrimmedAndPrintable)
{
    Bytes bytes(94, 0);
    const std::string name = "XX  L1\xFFX\t2     \0      ";
    std::copy(name.begin(), name.end(), bytes.begin());
    EXPECT_EQ(ReadSteelTable(kFamilyL, bytes)[0].Designation, "L1?X 2");
    EXPECT_EQ(ReadSteelTable(kFamilyL, Bytes(94, 0))[0].Designation, "");
}

// --- the text form

struct ProblemRow {
    const char* Text;
    const char* Problem;
};

class SteelTextProblems : public testing::TestWithParam<ProblemRow> {};

TEST_P(SteelTextProblems, AreNamedWithTheirLine)
{
    std::istringstream text(GetParam().Text);
    const SteelText table = ReadSteelText(kFamily2L, text);
    EXPECT_EQ(table.Problem, GetParam().Problem);
    EXPECT_THAT(table.Shapes, IsEmpty());
}

#define HEADINGS "# angles\ndesignation A b d t Ix Sx rx Zx\n"

INSTANTIATE_TEST_SUITE_P(
    Rows, SteelTextProblems,
    testing::Values(
        ProblemRow{"designation A b d t Ix Sx rx\n", "line 1: a heading is missing"},
        ProblemRow{"designation A b d t Ix Sx rx Zy\n", "line 1: unexpected heading Zy"},
        ProblemRow{"designation A A b d t Ix Sx rx\n", "line 1: unexpected heading A"},
        ProblemRow{"designation A b d t Ix Sx rx group\n", "line 1: unexpected heading group"},
        ProblemRow{HEADINGS "2L 1 2 3 4 5 6 7\n",
                   "line 3: the row has not a cell for each heading"},
        ProblemRow{HEADINGS "2L 1 2 3 4 5 6 7 8 9\n",
                   "line 3: the row has not a cell for each heading"},
        ProblemRow{HEADINGS "2L 1 2 3 4 5 6 7 8\n\n2L 1 2 3 4 5 6,5 7 8\n",
                   "line 5: Sx cannot be 6,5"},
        ProblemRow{HEADINGS "2L 1 2 3 0 5 6 7 8\n", "line 3: t cannot be 0"},
        ProblemRow{HEADINGS "2L 1 2 3 4 inf 6 7 8\n", "line 3: Ix cannot be inf"},
        ProblemRow{HEADINGS "2L3456789012345678901 1 2 3 4 5 6 7 8\n",
                   "line 3: designation cannot be 2L3456789012345678901"}));

TEST(SteelText, ColumnsMayStandInAnyOrder)
{
    std::istringstream text("A designation b d t Ix Sx rx Zx\n1 2LA 2 3 4 5 6 7 8\n");
    const SteelText table = ReadSteelText(kFamily2L, text);
    ASSERT_EQ(table.Shapes.size(), 1U);
    EXPECT_EQ(table.Shapes[0].Designation, "2LA");
    EXPECT_EQ(table.Shapes[0].A, 1);
    EXPECT_EQ(table.Shapes[0].Width, 2);
    EXPECT_EQ(table.Shapes[0].Zx, 8);
}

TEST(SteelText, GroupsAreOneToFive)
{
    for (const char* group : {"0", "6", "12", "x"}) {
        std::istringstream text("designation A d tw bf tf Ix Sx rx Iy Sy ry Zx Zy J group\n"
                                "W1X1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 " +
                                std::string(group));
        EXPECT_EQ(ReadSteelText(kFamilyW, text).Problem,
                  "line 2: group cannot be " + std::string(group));
    }
}

// --- grades

struct GradeRow {
    const char* Text;
    int Yield, Ultimate;     ///< ksi
    std::vector<int> Groups; ///< in which it is offered, of 0 to 6; tubes: family codes
};

SteelShape InGroup(int group)
{
    SteelShape shape;
    shape.Family = kFamilyW;
    shape.Group = group;
    return shape;
}

constexpr auto kOffered = "Selected shape is available in this steel type and grade.";
constexpr auto kNotOffered = "Selected shape is NOT AVAILABLE in this steel type and grade.";
const std::vector<int> kAll{-1, 0, 1, 2, 3, 4, 5, 6};

const GradeRow kRolledRows[] = {
    {"A36", 36, 58, kAll},
    {"A529 Grade 42", 42, 60, {1}},
    {"A529 Grade 50", 50, 70, {1, 2}},
    {"A572 Grade 42", 42, 60, kAll},
    {"A572 Grade 50", 50, 65, kAll},
    {"A572 Grade 60", 60, 75, {1, 2}},
    {"A572 Grade 65", 65, 80, {1}},
    {"A242 Grade 42", 42, 63, {4, 5}},
    {"A242 Grade 46", 46, 67, {3}},
    {"A242 Grade 50", 50, 70, {1, 2}},
    {"A588 Grade 50", 50, 70, kAll},
};

std::string StressText(int yield, int ultimate)
{
    return "Yield Stress = " + std::to_string(yield) +
           " ksi\r\nUltimate Stress = " + std::to_string(ultimate) + " ksi";
}

TEST(RolledGrades, TextsStressesAndGroups)
{
    const auto grades = RolledGrades();
    ASSERT_EQ(grades.size(), std::size(kRolledRows));
    for (std::size_t i = 0; i < grades.size(); ++i) {
        const GradeRow& row = kRolledRows[i];
        SCOPED_TRACE(row.Text);
        EXPECT_EQ(grades[i].Text, row.Text);
        EXPECT_EQ(grades[i].Yield, row.Yield * 1000);
        EXPECT_EQ(grades[i].Ultimate, row.Ultimate * 1000);
        EXPECT_EQ(GradeStresses(grades[i]), StressText(row.Yield, row.Ultimate));
        for (const int group : kAll)
            EXPECT_EQ(GradeAvailability(InGroup(group), int(i)),
                      std::ranges::count(row.Groups, group) ? kOffered : kNotOffered)
                << "group " << group;
    }
}

constexpr auto kPipeOffered = "Selected pipe shape is available in this steel type and grade.";
constexpr auto kPipeNot = "Structural pipe shapes are NOT AVAILABLE in this steel type and grade.";
constexpr auto kTubeOffered = "Selected TS shape is available in this steel type and grade.";
constexpr auto kTubeNot = "Structural tube shapes are NOT AVAILABLE in this steel type and grade.";

const GradeRow kTubeRows[] = {
    {"A53 Type E Grade B", 35, 60, {kFamilyPipe}},
    {"A53 Type S Grade B", 35, 60, {kFamilyPipe}},
    {"A500 Grade A (Pipe)", 33, 45, {kFamilyPipe}},
    {"A500 Grade B (Pipe)", 42, 58, {kFamilyPipe}},
    {"A500 Grade C (Pipe)", 46, 62, {kFamilyPipe}},
    {"A500 Grade A (TS Shapes)", 39, 45, {kFamilyTS}},
    {"A500 Grade B (TS Shapes)", 46, 58, {kFamilyTS}},
    {"A500 Grade C (TS Shapes)", 50, 62, {kFamilyTS}},
    {"A501", 36, 58, {kFamilyPipe}},
    {"A618 Grade I", 50, 70, {kFamilyPipe}},
    {"A618 Grade II", 50, 70, {kFamilyPipe}},
    {"A618 Grade III", 50, 65, {kFamilyPipe}},
};

TEST(TubeGrades, TextsStressesAndFamilies)
{
    const auto grades = TubeGrades();
    ASSERT_EQ(grades.size(), std::size(kTubeRows));
    SteelShape tube, pipe;
    tube.Family = kFamilyTS;
    pipe.Family = kFamilyPipe;
    for (std::size_t i = 0; i < grades.size(); ++i) {
        const GradeRow& row = kTubeRows[i];
        SCOPED_TRACE(row.Text);
        EXPECT_EQ(grades[i].Text, row.Text);
        EXPECT_EQ(GradeStresses(grades[i]), StressText(row.Yield, row.Ultimate));
        const bool forPipe = row.Groups.front() == kFamilyPipe;
        EXPECT_EQ(GradeAvailability(pipe, int(i)), forPipe ? kPipeOffered : kPipeNot);
        EXPECT_EQ(GradeAvailability(tube, int(i)), forPipe ? kTubeNot : kTubeOffered);
    }
}

TEST(Grades, FamiliesChooseFromTheirOwnList)
{
    for (int family = 0; family < kSteelFamilies; ++family)
        EXPECT_EQ(GradesOf(family).data(),
                  family < kFamilyTS ? RolledGrades().data() : TubeGrades().data());
}

TEST(Grades, NoGradeHasNoCaption)
{
    for (int family = 0; family < kSteelFamilies; ++family) {
        SteelShape shape;
        shape.Family = family;
        EXPECT_EQ(GradeAvailability(shape, -1), "");
        EXPECT_EQ(GradeAvailability(shape, 12), "") << "behind the list";
    }
}

struct ThicknessRow {
    double Thickness;
    int Group;
};

class AngleThickness : public testing::TestWithParam<std::tuple<int, ThicknessRow>> {};

/// A572 Grade 65 is offered in group 1, A529 Grade 50 in 1 and 2, A242 Grade 46 in 3.
TEST_P(AngleThickness, GivesTheGroup)
{
    const auto& [family, row] = GetParam();
    SteelShape shape;
    shape.Family = family;
    shape.Web = row.Thickness;
    shape.Group = 5; // not read
    EXPECT_EQ(GradeAvailability(shape, 6), row.Group == 1 ? kOffered : kNotOffered);
    EXPECT_EQ(GradeAvailability(shape, 2), row.Group <= 2 ? kOffered : kNotOffered);
    EXPECT_EQ(GradeAvailability(shape, 8), row.Group == 3 ? kOffered : kNotOffered);
    EXPECT_EQ(GradeAvailability(shape, 0), kOffered);
}

// A ten-thousand-millionth over the limit is the limit in single precision.
INSTANTIATE_TEST_SUITE_P(
    Rows, AngleThickness,
    testing::Combine(testing::Values(int(kFamilyL), int(kFamily2L)),
                     testing::Values(ThicknessRow{0.4999, 1}, ThicknessRow{0.5, 1},
                                     ThicknessRow{0.5000000001, 1}, ThicknessRow{0.5001, 2},
                                     ThicknessRow{0.75, 2}, ThicknessRow{0.7500000001, 2},
                                     ThicknessRow{0.7501, 3}, ThicknessRow{1.125, 3})));

} // namespace
} // namespace forcelab::sections
