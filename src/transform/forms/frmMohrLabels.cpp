#include "transform/forms/frmMohrLayout.h"

namespace forcelab::transform {

using screen::Describe;
using screen::Label;

namespace {

/// What the frame of the inputs is called, by the analysis.
constexpr std::array<std::string_view, 5> kTitles{
    "Plane Stress", "Plane Strain", "Strain Rosette, Rectangular 0-45-90",
    "Strain Rosette, Delta 0-60-120", "Moments of Inertia"};

bool ShowWith(Label& label, std::string_view caption)
{
    label.SetCaption(caption);
    label.setVisible(!caption.empty());
    return !caption.empty();
}

/// What a person calls the value of a row: "Normal Stress in the X-direction".
std::string RowName(const ModeLabels& labels, int row)
{
    const std::string direction(labels.Direction[row]);
    if (labels.Kind[row].empty())
        return (row == 2 ? "Product of inertia, " : "Moment of inertia, ") + direction;
    const std::string kind(labels.Kind[row]);
    const bool gauge = labels.Kind[row].find("Direction") != std::string_view::npos;
    return gauge ? direction + ", " + kind : kind + " in the " + direction;
}

} // namespace

void frmMohrLayout::SetupLabels(MohrMode mode)
{
    const ModeLabels& labels = LabelsOf(mode);
    for (int row = 0; row < 3; ++row) SetupRow(row, labels);
    for (const auto& [index, unit] : optStressUnits.Members())
        unit->setVisible(index >= labels.FirstUnit && index <= labels.LastUnit);
    chkRosette->setVisible(IsRosette(mode));
    picSignConvention->setVisible(!IsRosette(mode));
    picRosette45->setVisible(mode == MohrMode::Rosette45);
    picRosette60->setVisible(mode == MohrMode::Rosette60);
    picStrainOrient->setVisible(IsRosette(mode));
    fraStress->SetCaption(kTitles[static_cast<int>(mode)]);
    SetupResults(labels);
    DescribeControls(labels);
    ShowStressFrame(IsRosette(mode) && chkRosette->Value());
}

void frmMohrLayout::SetupRow(int row, const ModeLabels& labels)
{
    ShowWith(lblDirection(row), labels.Direction[row]);
    ShowWith(lblKind(row), labels.Kind[row]);
    for (int sense = 0; sense < 2; ++sense) {
        screen::OptionButton& option = optSigX(2 * row + sense);
        option.SetCaption(labels.Sense[row][sense]);
        option.setVisible(!labels.Sense[row][sense].empty());
    }
}

void frmMohrLayout::SetupResults(const ModeLabels& labels)
{
    chkAbsMaxShear->SetCaption(labels.AbsMaxShear);
    chkAbsMaxShear->setVisible(!labels.AbsMaxShear.empty());
    lblPrincipal->SetCaption(labels.Principal);
    lblMaxShear->SetCaption(labels.MaxShear);
    maxShear_->setVisible(!labels.MaxShear.empty());
    fraRotater->SetCaption(labels.RotationFrame);
    lblAngle->SetCaption(labels.Angle);
    for (int row = 0; row < 3; ++row) lblRotated(row).SetCaption(labels.Rotated[row]);
    ArrangePictures();
}

void frmMohrLayout::ShowStressFrame(bool visible)
{
    fraStressFromStrains->setVisible(visible);
}

void frmMohrLayout::DescribeControls(const ModeLabels& labels)
{
    for (int row = 0; row < 3; ++row) {
        const std::string name = RowName(labels, row);
        Describe(txtStress(row), name);
        for (int sense = 0; sense < 2; ++sense)
            Describe(optSigX(2 * row + sense), name + ": " + std::string(labels.Sense[row][sense]));
        Describe(lblRotatedValue(row), labels.Rotated[row]);
    }
    Describe(*picPrincipal, labels.Principal);
    Describe(*picMaxShear, labels.MaxShear);
    Describe(*txtRotater, std::string(labels.Angle) + ", degrees, counterclockwise positive",
             "Degrees from -90 to 90, counterclockwise positive");
}

// What is the same in every analysis.
void frmMohrLayout::DescribeFixedControls()
{
    for (const auto& [index, unit] : optStressUnits.Members())
        Describe(*unit, "Unit of the values: " + std::string(kMohrUnits[index]));
    for (int unit = 0; unit < 4; ++unit) {
        Describe(optElasticModulus(unit),
                 "Unit of the elastic modulus: " + optElasticModulus(unit).text().toStdString());
        Describe(optUnitsStress(unit),
                 "Unit of the stresses: " + optUnitsStress(unit).text().toStdString());
    }
    Describe(optStressOrStrain(0), "The gauged body is in plane stress");
    Describe(optStressOrStrain(1), "The gauged body is in plane strain");
    Describe(*txtElasticModulus, "Elastic modulus");
    Describe(*cboElasticModulus, "Material", "Takes the elastic modulus of a material");
    Describe(*txtPoisson, "Poisson's ratio", "Above 0 and below 1");
    Describe(lblStressFromStrains(1), "First principal stress");
    Describe(lblStressFromStrains(2), "Second principal stress");
    Describe(lblStressFromStrains(4), "Maximum shear stress in the plane");
    Describe(cmdMohr(0), "Compute", "Compute the circle from the values above");
    Describe(cmdMohr(1), "Details", "Compute and explain each step, or put the explanation away");
    Describe(cmdMohr(3), "Clear", "Empty the boxes and the pictures");
    Describe(*cmdRotater, "Rotate", "Turn the element to the angle in the box");
    Describe(*cmdRotaterNull, "Zero", "Turn the element back to 0 degrees");
    Describe(*vsbRotater, "Angle of rotation", "Turn the element");
    Describe(*picXprime, "Angle picture", "Click where the X' axis is to point");
    Describe(*picMohr, "Mohr's circle");
    Describe(*picRotater, "Element at the arbitrary orientation");
    Describe(*picSignConvention, "Sign convention");
    Describe(*picRosette45, "Rectangular rosette, gauges at 0, 45 and 90 degrees");
    Describe(*picRosette60, "Delta rosette, gauges at 0, 60 and 120 degrees");
    Describe(*picStrainOrient, "Positive strains of an element");
    Describe(*txtDetails, "Explanation of the calculation");
}

} // namespace forcelab::transform
