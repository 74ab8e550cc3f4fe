// The tables of the report: texts, and figures worked by hand beside them.

#include "ReportSupport.h"

namespace forcelab::sections {
namespace {

using testing::ElementsAre;

// --- a rectangle 4 wide and 10 high: A 40, Iz 4 * 1000 / 12, Iy 10 * 64 / 12, Z = b h^2 / 4

Computed TheRectangle(int unit = 0)
{
    return Compute({kRectangle, {"4", "10"}, unit});
}

TEST(Rectangle, CentroidAndInertiaAboutZz)
{
    const ReportGrid grid = GridOf(TheRectangle(), ReportTable::Centroid, kZz);
    EXPECT_EQ(Body(grid),
              LocalRows({{"1", "4.0000", "10.0000", "40.0000", "5.0000", "200.000", "333.333",
                          "0.0000", "333.333"},
                         {"Total", "", "", "40.0000", "", "200.000", "", "", "333.333"}}));
    EXPECT_EQ(
        grid.Explanation,
        LocalNumbers("Distance from bottom to centroid, Y bot = 200.000 ÷ 40.0000 = 5.0000 inch\r\n"
                     "Moment of inertia about the Z-Z axis = 333.333 inch^4\r\n"));
}

TEST(Rectangle, CentroidAndInertiaAboutYy)
{
    const ReportGrid grid = GridOf(TheRectangle(), ReportTable::Centroid, kYy);
    EXPECT_EQ(Body(grid),
              LocalRows({{"1", "4.0000", "10.0000", "40.0000", "2.0000", "80.0000", "53.3333",
                          "0.0000", "53.3333"},
                         {"Total", "", "", "40.0000", "", "80.0000", "", "", "53.3333"}}));
    EXPECT_EQ(grid.Explanation,
              LocalNumbers("Distance from leftmost edge to centroid, Z left = 80.0000 ÷ 40.0000 = "
                           "2.0000 inch\r\n"
                           "Moment of inertia about the Y-Y axis = 53.3333 inch^4\r\n"));
}

TEST(Rectangle, PlasticAxis)
{
    EXPECT_EQ(Body(GridOf(TheRectangle(), ReportTable::Plastic, kZz)),
              LocalRows({{"Area above plastic n.a.\ninch^2", "20.0000", ""},
                         {"yi above n.a.\ninch", "2.5000", ""},
                         {"Area below plastic n.a.\ninch^2", "20.0000", ""},
                         {"yi below n.a.\ninch", "2.5000", ""},
                         {"Sum of A × yi\ninch^3", "100.000", "100.000"}}));
}

// --- a T: flange 8 x 1 on a stem 9 high, 1 wide
// A = 8 + 9; A y = 8 * 9.5 + 9 * 4.5 = 116.5; Y bot = 116.5 / 17 = 6.852941
// flange: Ic 8 / 12, d = 2.647059, Ic + A d^2 = 0.666667 + 56.055363
// stem: Ic 729 / 12, d = -2.352941, Ic + A d^2 = 60.75 + 49.826990

Computed TheT(double degrees = 0)
{
    return Compute({kTShape, {"8", "1", "9", "1"}, 0, degrees});
}

TEST(Tee, HeadingsAboutZz)
{
    EXPECT_THAT(GridOf(TheT(), ReportTable::Centroid, kZz).Cells[0],
                ElementsAre("Shape", "Width, b\ninch", "Height, h\ninch", "Area\nA\ninch^2",
                            "yi\n(from bottom)\ninch", "A × yi\ninch^3", "Ic\ninch^4",
                            "distance, d\n= yi - Y bot\ninch", "Ic + d ² A\ninch^4"));
}

TEST(Tee, HeadingsAboutYy)
{
    EXPECT_THAT(GridOf(TheT(), ReportTable::Centroid, kYy).Cells[0],
                ElementsAre("Shape", "Width, b\ninch", "Height, h\ninch", "Area\nA\ninch^2",
                            "zi\n(from left)\ninch", "A × zi\ninch^3", "Ic\ninch^4",
                            "distance, d\n= zi - Z left\ninch", "Ic + d ² A\ninch^4"));
}

TEST(Tee, CentroidAndInertiaAboutZz)
{
    const ReportGrid grid = GridOf(TheT(), ReportTable::Centroid, kZz);
    EXPECT_EQ(grid.FrameCaption,
              "Centroid in Y-direction and Moment of Inertia about the Z-Z axis");
    EXPECT_EQ(grid.UnderGrid, "");
    EXPECT_EQ(Body(grid),
              LocalRows({{"1", "8.0000", "1.0000", "8.0000", "9.5000", "76.0000", "0.66667",
                          "2.6471", "56.7220"},
                         {"2", "1.0000", "9.0000", "9.0000", "4.5000", "40.5000", "60.7500",
                          "-2.3529", "110.577"},
                         {"Total", "", "", "17.0000", "", "116.500", "", "", "167.299"}}));
    EXPECT_EQ(
        grid.Explanation,
        LocalNumbers("Distance from bottom to centroid, Y bot = 116.500 ÷ 17.0000 = 6.8529 inch\r\n"
                     "Moment of inertia about the Z-Z axis = 167.299 inch^4\r\n"));
}

TEST(Tee, CentroidAndInertiaAboutYy)
{
    // 512 / 12 + 9 / 12; both centroids lie at 4.
    const ReportGrid grid = GridOf(TheT(), ReportTable::Centroid, kYy);
    EXPECT_EQ(grid.FrameCaption,
              "Centroid in Z-direction and Moment of Inertia about the Y-Y axis");
    EXPECT_EQ(Body(grid),
              LocalRows({{"1", "8.0000", "1.0000", "8.0000", "4.0000", "32.0000", "42.6667",
                          "0.0000", "42.6667"},
                         {"2", "1.0000", "9.0000", "9.0000", "4.0000", "36.0000", "0.75000",
                          "0.0000", "0.75000"},
                         {"Total", "", "", "17.0000", "", "68.0000", "", "", "43.4167"}}));
}

TEST(Tee, PlasticAxisAboutZz)
{
    // 8.5 below: 8.5 of the stem with its middle 4.25 below the axis. 8 + 0.5 above, 1 and 0.25
    // above it. Z = 8 + 0.125 + 36.125.
    const ReportGrid grid = GridOf(TheT(), ReportTable::Plastic, kZz);
    EXPECT_EQ(grid.FrameCaption, "Plastic Modulus relative to the Z-Z axis");
    EXPECT_THAT(grid.Cells[0], ElementsAre("Shape", "1", "2", "Total"));
    EXPECT_EQ(Body(grid), LocalRows({{"Area above plastic n.a.\ninch^2", "8.0000", "0.50000", ""},
                                     {"yi above n.a.\ninch", "1.0000", "0.25000", ""},
                                     {"Area below plastic n.a.\ninch^2", "0.0000", "8.5000", ""},
                                     {"yi below n.a.\ninch", "0.0000", "4.2500", ""},
                                     {"Sum of A × yi\ninch^3", "8.0000", "36.2500", "44.2500"}}));
    EXPECT_EQ(
        grid.Explanation,
        LocalNumbers("By inspection or trial-and-error, determine that half of the cross-sectional "
                     "area is located below y = 8.5000 inch and half of the area is above this "
                     "location.  Therefore, the plastic neutral axis is located 8.5000 inch from "
                     "the bottom edge of the shape.\r\n"
                     "Plastic Modulus Z about the Z-Z axis = 44.2500 inch^3\r\n"));
}

TEST(Tee, PlasticAxisAboutYy)
{
    // 4 on each side of the flange at 2, 4.5 of the stem at 0.25: 2 * (8 + 1.125).
    const ReportGrid grid = GridOf(TheT(), ReportTable::Plastic, kYy);
    EXPECT_EQ(grid.FrameCaption, "Plastic Modulus relative to the Y-Y axis");
    EXPECT_EQ(Body(grid),
              LocalRows({{"Area to the right of plastic n.a.\ninch^2", "4.0000", "4.5000", ""},
                         {"zi right of n.a.\ninch", "2.0000", "0.25000", ""},
                         {"Area to the left of plastic n.a.\ninch^2", "4.0000", "4.5000", ""},
                         {"zi left of n.a.\ninch", "2.0000", "0.25000", ""},
                         {"Sum of A × zi\ninch^3", "16.0000", "2.2500", "18.2500"}}));
    EXPECT_EQ(
        grid.Explanation,
        LocalNumbers("By inspection or trial-and-error, determine that half of the cross-sectional "
                     "area is located to the left of z = 4.0000 inch and half of the area is to "
                     "the right of this location.  Therefore, the plastic neutral axis is located "
                     "4.0000 inch from the leftmost edge of the shape.\r\n"
                     "Plastic Modulus Z about the Y-Y axis = 18.2500 inch^3\r\n"));
}

class TurnedTee : public testing::TestWithParam<double> {};

/// Differences of equal numbers stand as 0, not as what the machine leaves of them.
TEST_P(TurnedTee, HasNoNoise)
{
    const ReportGrid grid = GridOf(TheT(GetParam()), ReportTable::Product, kZz);
    for (const auto& row : Body(grid)) EXPECT_EQ(row.back(), LocalNumbers("0.0000"));
    EXPECT_EQ(grid.Explanation, LocalNumbers("Product of inertia Iyz = 0.0000 inch^4\r\n"));
}

INSTANTIATE_TEST_SUITE_P(Quarters, TurnedTee, testing::Values(0, 90, 180, 270));

// --- wood 6 x 10, E 1600, under a steel plate 6 x 0.5, E 29000: n = 18.125
// as wood: A = 60 + 54.375; A y = 300 + 557.34375; Y bot = 7.495902
// plate: Ic 108.75 * 0.125 / 12 = 1.1328, d = 2.754098, 413.570; stem: 500 + 60 * 2.495902^2

TEST(CompositeTee, SteelAsWood)
{
    const ReportGrid grid = GridOf(WoodUnderSteel(), ReportTable::Convert21, kZz);
    EXPECT_EQ(grid.FrameCaption,
              "Centroid in Y-direction and Moment of Inertia about the Z-Z axis");
    EXPECT_EQ(grid.UnderGrid, "Converting Steel to Wood");
    EXPECT_EQ(grid.Cells[0][1], "Width, b\n(transformed)\ninch");
    EXPECT_EQ(grid.Cells[0][2], "Height, h\ninch");
    EXPECT_EQ(Body(grid),
              LocalRows({{"1", "108.750", "0.50000", "54.3750", "10.2500", "557.344", "1.1328",
                          "2.7541", "413.570"},
                         {"2", "6.0000", "10.0000", "60.0000", "5.0000", "300.000", "500.000",
                          "-2.4959", "873.771"},
                         {"Total", "", "", "114.375", "", "857.344", "", "", "1,287.34"}}));
    EXPECT_EQ(
        grid.Explanation,
        LocalNumbers("Modular Ratio - Eb/Ea = 18.1250\r\n"
                     "Transformed Area = 114.375 inch^2\r\n"
                     "Distance from bottom to centroid, Y bot = 857.344 ÷ 114.375 = 7.4959 inch\r\n"
                     "Moment of inertia about the Z-Z axis = 1,287.34 inch^4\r\n"));
}

TEST(CompositeTee, WoodAsSteel)
{
    // Everything above by 18.125. The quotient needs one more place to be seen.
    const ReportGrid grid = GridOf(WoodUnderSteel(), ReportTable::Convert12, kZz);
    EXPECT_EQ(grid.UnderGrid, "Converting Wood to Steel");
    EXPECT_EQ(Body(grid),
              LocalRows({{"1", "6.0000", "0.50000", "3.0000", "10.2500", "30.7500", "0.062500",
                          "2.7541", "22.8177"},
                         {"2", "0.33103", "10.0000", "3.3103", "5.0000", "16.5517", "27.5862",
                          "-2.4959", "48.2081"},
                         {"Total", "", "", "6.3103", "", "47.3017", "", "", "71.0258"}}));
    EXPECT_EQ(grid.Explanation,
              LocalNumbers(
                  "Modular Ratio - Ea/Eb = 0.055172\r\n"
                  "Transformed Area = 6.3103 inch^2\r\n"
                  "Distance from bottom to centroid, Y bot = 47.30172 ÷ 6.31034 = 7.4959 inch\r\n"
                  "Moment of inertia about the Z-Z axis = 71.0258 inch^4\r\n"));
}

TEST(CompositeTee, AboutYyTheHeightsAreTransformed)
{
    // 18.125 * 0.5 * 216 / 12 = 163.125, 10 * 216 / 12 = 180.
    const ReportGrid grid = GridOf(WoodUnderSteel(), ReportTable::Convert21, kYy);
    EXPECT_EQ(grid.Cells[0][1], "Width, b\ninch");
    EXPECT_EQ(grid.Cells[0][2], "Height, h\n(transformed)\ninch");
    EXPECT_EQ(Body(grid),
              LocalRows({{"1", "6.0000", "9.0625", "54.3750", "3.0000", "163.125", "163.125",
                          "0.0000", "163.125"},
                         {"2", "6.0000", "10.0000", "60.0000", "3.0000", "180.000", "180.000",
                          "0.0000", "180.000"},
                         {"Total", "", "", "114.375", "", "343.125", "", "", "343.125"}}));
}

TEST(CompositeTee, MaterialsWithoutANameAreCalledAAndB)
{
    Computed section = WoodUnderSteel();
    section.Entry.Material = {};
    EXPECT_EQ(GridOf(section, ReportTable::Convert12, kZz).UnderGrid,
              "Converting Material A to Material B");
    EXPECT_EQ(GridOf(section, ReportTable::Convert21, kZz).UnderGrid,
              "Converting Material B to Material A");
}

// --- an L, horizontal leg 5.625 x 0.75, vertical leg 6.875 x 0.75
// A = 4.21875 + 5.15625; from the centroid 1.340625, -2.096875 and -1.096875, 1.715625

TEST(Angle, ProductOfInertia)
{
    const Computed angle = Compute({kLShape, {"5.625", "0.75", "6.875", "0.75"}});
    for (const int axis : {kZz, kYy}) {
        const ReportGrid grid = GridOf(angle, ReportTable::Product, axis);
        EXPECT_EQ(grid.FrameCaption, "Product of Inertia");
        EXPECT_EQ(grid.UnderGrid, "");
        EXPECT_THAT(grid.Cells[0], ElementsAre("Shape", "Area, A\ninch^2", "(z - Z left)\ninch",
                                               "(y - Y bot)\ninch", "Iyz\ninch^4"));
        EXPECT_EQ(Body(grid), LocalRows({{"1", "4.2188", "1.3406", "-2.0969", "-11.8594"},
                                         {"2", "5.1563", "-1.0969", "1.7156", "-9.7032"},
                                         {"Total", "9.3750", "", "", "-21.5626"}}));
        EXPECT_EQ(grid.Explanation, LocalNumbers("Product of inertia Iyz = -21.5626 inch^4\r\n"));
    }
}

TEST(Angle, InMillimetres)
{
    const Computed angle = Compute({kLShape, {"142.875", "19.05", "174.625", "19.05"}, 1});
    const ReportGrid grid = GridOf(angle, ReportTable::Centroid, kZz);
    EXPECT_THAT(grid.Cells[0],
                ElementsAre("Shape", "Width, b\nmm", "Height, h\nmm", "Area\nA\nmm^2",
                            "yi\n(from bottom)\nmm", "A × yi\nmm^3", "Ic\nmm^4",
                            "distance, d\n= yi - Y bot\nmm", "Ic + d ² A\nmm^4"));
    // 9.375 in^2, 2.471875 in and 54.2333 in^4 by powers of 25.4.
    EXPECT_EQ(grid.Cells[3][3], LocalNumbers("6,048.38"));
    EXPECT_EQ(
        grid.Explanation,
        LocalNumbers("Distance from bottom to centroid, Y bot = 379,751.0 ÷ 6,048.38 = 62.7856 mm"
                     "\r\nMoment of inertia about the Z-Z axis = 22.5736E+06 mm^4\r\n"));
}

// --- a box 6 x 8 with a hollow 4 x 6: the hollow counts with a negative area

TEST(HollowBox, SubtractsItsHollow)
{
    const Computed box = Compute({kBox, {"6", "8", "4", "6"}});
    EXPECT_EQ(Body(GridOf(box, ReportTable::Centroid, kZz)),
              LocalRows({{"1", "6.0000", "8.0000", "48.0000", "4.0000", "192.000", "256.000",
                          "0.0000", "256.000"},
                         {"2", "4.0000", "6.0000", "-24.0000", "4.0000", "-96.0000", "-72.0000",
                          "0.0000", "-72.0000"},
                         {"Total", "", "", "24.0000", "", "96.0000", "", "", "184.000"}}));
    EXPECT_EQ(Body(GridOf(box, ReportTable::Plastic, kZz)).back(),
              LocalRows({{"Sum of A × yi\ninch^3", "96.0000", "-36.0000", "60.0000"}})[0]);
}

} // namespace
} // namespace forcelab::sections
