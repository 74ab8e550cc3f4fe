// The properties by groups, as the form and the printed page list them.

#include "ReportSupport.h"
#include "core/ArithmeticFault.h"

#include <limits>

namespace forcelab::sections {
namespace {

/// The summary as lines of text: symbol, value and meaning between bars; headings alone.
std::vector<std::string> LinesOf(const Computed& of)
{
    std::vector<std::string> lines;
    for (const SummaryLine& line : Summary(of.Section, of.Entry))
        lines.push_back(line.Heading ? line.Symbol
                                     : line.Symbol + "|" + line.Value + "|" + line.Meaning);
    return lines;
}

std::vector<std::string> Expected(std::vector<std::string> lines)
{
    for (std::string& line : lines) line = LocalNumbers(line);
    return lines;
}

/// The value of the line with this symbol and meaning.
std::string ValueOf(const Computed& of, const std::string& symbol, const std::string& meaning)
{
    for (const SummaryLine& line : Summary(of.Section, of.Entry))
        if (line.Symbol == symbol && line.Meaning == meaning) return line.Value;
    return "no such line";
}

// Iz 167.299020, Iy 43.416667, area 17, centroid 6.852941 from the bottom of 10; about Y-Y all is
// symmetric in a width of 8. Plastic moduli 44.25 and 18.25.
TEST(Summary, OfATee)
{
    Computed tee = Compute({kTShape, {"8", "1", "9", "1"}});
    EXPECT_EQ(LinesOf(tee), Expected({
                                "Z - Z Properties",
                                "Y bot|6.8529 inch|From bottom to centroid",
                                "Y top|3.1471 inch|From centroid to top",
                                "Iz|167.299 inch^4|Moment of Inertia",
                                "rz|3.1371 inch|Radius of Gyration",
                                "Sz|24.4127 inch^3|Section Modulus",
                                "S bot|24.4127 inch^3|Section Modulus (bottom)",
                                "S top|53.1604 inch^3|Section Modulus (top)",
                                "Zz|44.2500 inch^3|Plastic Modulus",
                                "|1.8126|Shape Factor",
                                "Yp bot|8.5000 inch|From bottom to plastic n.a.",
                                "Yp top|1.5000 inch|From plastic n.a. to top",
                                "Y - Y Properties",
                                "Z left|4.0000 inch|From left to centroid",
                                "Z right|4.0000 inch|From centroid to right",
                                "Iy|43.4167 inch^4|Moment of Inertia",
                                "ry|1.5981 inch|Radius of Gyration",
                                "Sy|10.8542 inch^3|Section Modulus",
                                "S left|10.8542 inch^3|Section Modulus (left)",
                                "S right|10.8542 inch^3|Section Modulus (right)",
                                "Zy|18.2500 inch^3|Plastic Modulus",
                                "|1.6814|Shape Factor",
                                "Zp left|4.0000 inch|From left to plastic n.a.",
                                "Zp right|4.0000 inch|From plastic n.a. to right",
                                "Other Properties",
                                "A|17.0000 inch^2|Cross-Sectional Area",
                                "E|1.0000 psi|Elastic Modulus",
                                "J|210.716 inch^4|Polar Moment of Inertia",
                                "Imax|167.299 inch^4|Maximum Moment of Inertia",
                                "Imin|43.4167 inch^4|Minumum Moment of Inertia",
                                "|0.0000 degrees|Angle from z axis to Imax axis, Clockwise",
                            }));
}

// As wood 343.125 / 114.375 = 3 = ry^2 and 1287.3418 / 114.375 = 3.354892^2; as steel all by
// 18.125 and the radii the same.
TEST(Summary, OfAComposite)
{
    EXPECT_EQ(LinesOf(WoodUnderSteel()),
              Expected({
                  "Z - Z Properties",
                  "Y bot|7.4959 inch|From bottom to centroid",
                  "Y top|3.0041 inch|From centroid to top",
                  "Y - Y Properties",
                  "Z left|3.0000 inch|From left to centroid",
                  "Z right|3.0000 inch|From centroid to right",
                  "Elastic Moduli",
                  "Ea|1,600.00 ksi|Wood",
                  "Eb|29,000.0 ksi|Steel",
                  "Properties - Transforming Steel into equivalent amount of Wood",
                  "|18.1250|Modular Ratio - Eb/Ea",
                  "Atrans|114.375 inch^2|Total Area (transformed)",
                  "Iz|1,287.34 inch^4|Moment of Inertia",
                  "rz|3.3549 inch|Radius of Gyration",
                  "Iy|343.125 inch^4|Moment of Inertia",
                  "ry|1.7321 inch|Radius of Gyration",
                  "Properties - Transforming Wood into equivalent amount of Steel",
                  "|0.055172|Modular Ratio - Ea/Eb",
                  "Atrans|6.3103 inch^2|Total Area (transformed)",
                  "Iz|71.0258 inch^4|Moment of Inertia",
                  "rz|3.3549 inch|Radius of Gyration",
                  "Iy|18.9310 inch^4|Moment of Inertia",
                  "ry|1.7321 inch|Radius of Gyration",
              }));
}

struct ValueRow {
    const char* Symbol;
    const char* Meaning;
    const char* Value;
};

TEST(Summary, OfARectangle)
{
    const Computed rectangle = Compute({kRectangle, {"4", "10"}});
    for (const auto& row : {ValueRow{"A", "Cross-Sectional Area", "40.0000 inch^2"},
                            ValueRow{"Iz", "Moment of Inertia", "333.333 inch^4"},
                            ValueRow{"Iy", "Moment of Inertia", "53.3333 inch^4"},
                            ValueRow{"Sz", "Section Modulus", "66.6667 inch^3"},
                            ValueRow{"Zz", "Plastic Modulus", "100.000 inch^3"},
                            ValueRow{"", "Shape Factor", "1.5000"}})
        EXPECT_EQ(ValueOf(rectangle, row.Symbol, row.Meaning), LocalNumbers(row.Value))
            << row.Symbol;
}

// The same rectangle, 101.6 x 254 mm: 25806.4 mm^2, 333.333 * 25.4^4, 100 * 25.4^3.
TEST(Summary, InMillimetres)
{
    const Computed rectangle = Compute({kRectangle, {"101.6", "254"}, 1});
    for (const auto& row : {ValueRow{"A", "Cross-Sectional Area", "25,806.4 mm^2"},
                            ValueRow{"Iz", "Moment of Inertia", "138.744E+06 mm^4"},
                            ValueRow{"Zz", "Plastic Modulus", "1.6387E+06 mm^3"},
                            ValueRow{"Y bot", "From bottom to centroid", "127.000 mm"},
                            ValueRow{"", "Shape Factor", "1.5000"}})
        EXPECT_EQ(ValueOf(rectangle, row.Symbol, row.Meaning), LocalNumbers(row.Value))
            << row.Symbol;
}

TEST(Summary, ModulusStandsInItsUnit)
{
    Computed section = Compute({kRectangle, {"4", "10"}});
    section.Entry.Modulus[0] = LocalNumbers("200.5");
    for (const auto& [unit, text] : {std::pair{0, "200.500 psi"}, std::pair{1, "200.500 ksi"},
                                     std::pair{2, "200.500 MPa"}, std::pair{3, "200.500 GPa"}}) {
        section.Entry.ModulusUnit = unit;
        EXPECT_EQ(ValueOf(Finish(section, 0), "E", "Elastic Modulus"), LocalNumbers(text));
    }
}

/// Steel comes in inches and psi, whatever the options say.
TEST(Summary, OfASteelShapeIsWhatTheTablePublishes)
{
    Computed steel = ComputeSteel(kSteelW, "W14X90", 1);
    steel.Section.ModulusUnit = 3;
    for (const auto& row : {ValueRow{"A", "Cross-Sectional Area", "26.5000 inch^2"},
                            ValueRow{"Iz", "Moment of Inertia", "999.000 inch^4"},
                            ValueRow{"Sz", "Section Modulus", "143.000 inch^3"},
                            ValueRow{"Iy", "Moment of Inertia", "362.000 inch^4"},
                            ValueRow{"Zz", "Plastic Modulus", "157.000 inch^3"},
                            ValueRow{"J", "Polar Moment of Inertia", "4.0600 inch^4"},
                            ValueRow{"E", "Elastic Modulus", "29.0000E+06 psi"}})
        EXPECT_EQ(ValueOf(steel, row.Symbol, row.Meaning), LocalNumbers(row.Value)) << row.Symbol;
}

TEST(Summary, OfAPipe)
{
    const Computed pipe = ComputeSteel(kSteelPipe, "PIPE10STD");
    EXPECT_EQ(ValueOf(pipe, "A", "Cross-Sectional Area"), LocalNumbers("11.9000 inch^2"));
    EXPECT_EQ(ValueOf(pipe, "Iz", "Moment of Inertia"), LocalNumbers("161.000 inch^4"));
    EXPECT_EQ(ValueOf(pipe, "Sz", "Section Modulus"), LocalNumbers("29.9000 inch^3"));
}

/// Nothing plastic and no principal axes are known of specified properties.
TEST(Summary, OfSpecifiedProperties)
{
    const auto lines = LinesOf(Compute({kSpecified, {"1", "2", "3", "4", "5", "6", "7"}}));
    EXPECT_EQ(lines, Expected({
                         "Z - Z Properties",
                         "Y bot|4.0000 inch|From bottom to centroid",
                         "Y top|2.0000 inch|From centroid to top",
                         "Iz|5.0000 inch^4|Moment of Inertia",
                         "rz|0.84515 inch|Radius of Gyration",
                         "Sz|1.2500 inch^3|Section Modulus",
                         "S bot|1.2500 inch^3|Section Modulus (bottom)",
                         "S top|2.5000 inch^3|Section Modulus (top)",
                         "Y - Y Properties",
                         "Z left|3.0000 inch|From left to centroid",
                         "Z right|1.0000 inch|From centroid to right",
                         "Iy|6.0000 inch^4|Moment of Inertia",
                         "ry|0.92582 inch|Radius of Gyration",
                         "Sy|2.0000 inch^3|Section Modulus",
                         "S left|2.0000 inch^3|Section Modulus (left)",
                         "S right|6.0000 inch^3|Section Modulus (right)",
                         "Other Properties",
                         "A|7.0000 inch^2|Cross-Sectional Area",
                         "E|1.0000 psi|Elastic Modulus",
                         "J|11.0000 inch^4|Polar Moment of Inertia",
                     }));
}

// The L: tan of twice the angle is 21.5626 / 14.5410; the axis turns with the section. The Z, web
// 8 x 1 between flanges 4 x 1: Iyz = -54, Iz = 205.333, Iy = 29.333, 54 / 88.
TEST(Summary, PrincipalDirectionIsToldFromTheNearerAxis)
{
    const std::vector<std::string> leg{"5.625", "0.75", "6.875", "0.75"};
    const std::string z = "Angle from z axis to Imax axis, ";
    const std::string y = "Angle from y axis to Imax axis, ";
    const auto angleOf = [](const Computed& of) { return LinesOf(of).back(); };
    const auto line = [](const std::string& angle, const std::string& meaning) {
        return "|" + LocalNumbers(angle) + " degrees|" + meaning;
    };
    for (const double turn : {0.0, 180.0})
        EXPECT_EQ(angleOf(Compute({kLShape, leg, 0, turn})),
                  line("28.0029", z + "Counterclockwise"));
    for (const double turn : {90.0, 270.0})
        EXPECT_EQ(angleOf(Compute({kLShape, leg, 0, turn})),
                  line("28.0029", y + "Counterclockwise"));
    EXPECT_EQ(angleOf(Compute({kZShape, {"4", "1", "8", "1"}})),
              line("15.7674", z + "Counterclockwise"));
    EXPECT_EQ(angleOf(Compute({kRectangle, {"4", "4"}})), line("45.0000", z + "Clockwise"));
    EXPECT_EQ(angleOf(ComputeSteel(kSteelTS, "TS8X4X1/2")), line("0.0000", y + "Clockwise"));
    EXPECT_EQ(angleOf(ComputeSteel(kSteelTS, "TS8X4X1/2", 0, 90)),
              line("0.0000", z + "Counterclockwise"));
}

TEST(Summary, NeverShowsWhatIsNoNumber)
{
    Computed section = Compute({kRectangle, {"4", "10"}});
    section.Section.Record(Row::Inertia, Column::Yy) = std::numeric_limits<double>::infinity();
    EXPECT_THROW(Summary(section.Section, section.Entry), ArithmeticFault);
}

} // namespace
} // namespace forcelab::sections
