#include "core/Modulus.h"
#include "core/Narration.h"
#include "sections/Report.h"
#include "sections/ReportNumbers.h"
#include "sections/ShapeCatalogue.h"

#include <cmath>

namespace forcelab::sections {

namespace {

/// A line of the properties about an axis.
struct PropertyText {
    const char* Symbol;
    Row Property;
    int Power; ///< of length
    const char* Meaning;
    bool Plastic = false; ///< unknown where only the elastic properties were specified
};

/// The properties of one material about an axis.
struct AxisGroup {
    const char* Heading;
    Column Values;
    std::array<PropertyText, 11> Properties;
};

constexpr AxisGroup kGroups[] = {
    {"Z - Z Properties",
     Column::Zz,
     {{{"Y bot", Row::LowEdge, 1, "From bottom to centroid"},
       {"Y top", Row::HighEdge, 1, "From centroid to top"},
       {"Iz", Row::Inertia, 4, "Moment of Inertia"},
       {"rz", Row::RadiusOfGyration, 1, "Radius of Gyration"},
       {"Sz", Row::SmallestSectionModulus, 3, "Section Modulus"},
       {"S bot", Row::SectionModulusLow, 3, "Section Modulus (bottom)"},
       {"S top", Row::SectionModulusHigh, 3, "Section Modulus (top)"},
       {"Zz", Row::PlasticModulus, 3, "Plastic Modulus", true},
       {"", Row::ShapeFactor, 0, "Shape Factor", true},
       {"Yp bot", Row::PlasticAxisLow, 1, "From bottom to plastic n.a.", true},
       {"Yp top", Row::PlasticAxisHigh, 1, "From plastic n.a. to top", true}}}},
    {"Y - Y Properties",
     Column::Yy,
     {{{"Z left", Row::LowEdge, 1, "From left to centroid"},
       {"Z right", Row::HighEdge, 1, "From centroid to right"},
       {"Iy", Row::Inertia, 4, "Moment of Inertia"},
       {"ry", Row::RadiusOfGyration, 1, "Radius of Gyration"},
       {"Sy", Row::SmallestSectionModulus, 3, "Section Modulus"},
       {"S left", Row::SectionModulusLow, 3, "Section Modulus (left)"},
       {"S right", Row::SectionModulusHigh, 3, "Section Modulus (right)"},
       {"Zy", Row::PlasticModulus, 3, "Plastic Modulus", true},
       {"", Row::ShapeFactor, 0, "Shape Factor", true},
       {"Zp left", Row::PlasticAxisLow, 1, "From left to plastic n.a.", true},
       {"Zp right", Row::PlasticAxisHigh, 1, "From plastic n.a. to right", true}}}},
};

/// Where the results of one conversion stand, and what its ratio is called.
struct Conversion {
    int From; ///< material that is transformed, 0 A, 1 B
    CompositeRow Ratio, Area, Inertia, Gyration;
    const char* RatioText;
};
constexpr Conversion kConversions[] = {
    {1, CompositeRow::RatioBToA, CompositeRow::AreaAsA, CompositeRow::InertiaAsA,
     CompositeRow::GyrationAsA, "Modular Ratio - Eb/Ea"},
    {0, CompositeRow::RatioAToB, CompositeRow::AreaAsB, CompositeRow::InertiaAsB,
     CompositeRow::GyrationAsB, "Modular Ratio - Ea/Eb"},
};

class SummaryWriter {
  public:
    SummaryWriter(const CrossSection& section, const SectionEntry& entry)
        : section_(section), entry_(entry)
    {}

    std::vector<SummaryLine> Homogeneous()
    {
        for (const AxisGroup& group : kGroups) AxisProperties(group);
        OtherProperties();
        return std::move(lines_);
    }

    std::vector<SummaryLine> Composite()
    {
        CompositeEdges();
        Heading("Elastic Moduli");
        Line("Ea", Modulus(CompositeRow::ModulusA), MaterialText(entry_, 0));
        Line("Eb", Modulus(CompositeRow::ModulusB), MaterialText(entry_, 1));
        for (const Conversion& conversion : kConversions) Transformed(conversion);
        return std::move(lines_);
    }

  private:
    void Heading(const std::string& text) { lines_.push_back({text, "", "", true}); }
    void Line(const std::string& symbol, const std::string& value, const std::string& meaning)
    {
        lines_.push_back({symbol, value, meaning});
    }
    [[nodiscard]] std::string WithPower(double value, int power) const
    {
        const std::string unit = LengthUnitText(section_, entry_, power);
        return unit.empty() ? ReportNumber(value) : WithUnit(ReportNumber(value), unit);
    }
    /// Only the elastic properties of shape 27 are known.
    [[nodiscard]] bool Specified() const { return section_.ShapeIndex == kSpecified; }

    void AxisProperties(const AxisGroup& group)
    {
        Heading(group.Heading);
        for (const PropertyText& text : group.Properties)
            if (!text.Plastic || !Specified())
                Line(text.Symbol,
                     WithPower(section_.Record(text.Property, group.Values), text.Power),
                     text.Meaning);
    }

    void CompositeEdges()
    {
        constexpr Column kValues[] = {Column::CompositeZz, Column::CompositeYy};
        for (int axis = 0; axis < 2; ++axis) {
            const AxisGroup& group = kGroups[axis];
            Heading(group.Heading);
            for (const int edge : {0, 1})
                Line(group.Properties[edge].Symbol,
                     WithPower(section_.Record(group.Properties[edge].Property, kValues[axis]), 1),
                     group.Properties[edge].Meaning);
        }
    }

    void OtherProperties()
    {
        const auto value = [this](Row row, int power) {
            return WithPower(section_.Record(row, Column::Zz), power);
        };
        // The steel tables come with their modulus in psi, whatever unit is chosen.
        const int unit = IsSteel(section_.ShapeIndex) ? 0 : section_.ModulusUnit;
        Heading("Other Properties");
        Line("A", value(Row::Area, 2), "Cross-Sectional Area");
        Line("E", WithUnit(value(Row::Modulus, 0), kElasticModulusUnits[unit]), "Elastic Modulus");
        Line("J", value(Row::PolarMoment, 4), "Polar Moment of Inertia");
        if (Specified()) return;
        Line("Imax", value(Row::LargestPrincipal, 4), "Maximum Moment of Inertia");
        Line("Imin", value(Row::SmallestPrincipal, 4), "Minumum Moment of Inertia");
        PrincipalDirection();
    }

    /// From the nearer axis. The record counts its angle from the z axis, up to 90 degrees; what
    /// lies beyond 45 is told from the y axis, from which it turns the other way.
    void PrincipalDirection()
    {
        const double fromZ = std::abs(section_.Record(Row::PrincipalAngle, Column::Zz));
        const bool clockwise = section_.Record(Row::PrincipalSense, Column::Zz) > 0;
        const bool nearZ = fromZ <= 45;
        const double angle = WithoutNoise(nearZ ? fromZ : 90 - fromZ, 90);
        Line("", WithUnit(ReportNumber(angle), "degrees"),
             std::string("Angle from ") + (nearZ ? "z" : "y") + " axis to Imax axis, " +
                 (clockwise == nearZ ? "Clockwise" : "Counterclockwise"));
    }

    [[nodiscard]] std::string Modulus(CompositeRow row) const
    {
        return WithUnit(ReportNumber(section_.Record(row, Column::CompositeZz)),
                        kElasticModulusUnits[section_.ModulusUnit]);
    }

    void Transformed(const Conversion& to)
    {
        const auto value = [this](CompositeRow row, Column column, int power) {
            return WithPower(section_.Record(row, column), power);
        };
        constexpr Column kZz = Column::CompositeZz;
        constexpr Column kYy = Column::CompositeYy;
        Heading("Properties - Transforming " + MaterialText(entry_, to.From) +
                " into equivalent amount of " + MaterialText(entry_, 1 - to.From));
        Line("", value(to.Ratio, kZz, 0), to.RatioText);
        Line("Atrans", value(to.Area, kZz, 2), "Total Area (transformed)");
        Line("Iz", value(to.Inertia, kZz, 4), "Moment of Inertia");
        Line("rz", value(to.Gyration, kZz, 1), "Radius of Gyration");
        Line("Iy", value(to.Inertia, kYy, 4), "Moment of Inertia");
        Line("ry", value(to.Gyration, kYy, 1), "Radius of Gyration");
    }

    const CrossSection& section_;
    const SectionEntry& entry_;
    std::vector<SummaryLine> lines_;
};

} // namespace

std::vector<SummaryLine> Summary(const CrossSection& section, const SectionEntry& entry)
{
    SummaryWriter writer(section, entry);
    return section.CompositeSection ? writer.Composite() : writer.Homogeneous();
}

} // namespace forcelab::sections
