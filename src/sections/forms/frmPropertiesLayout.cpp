#include "sections/forms/frmPropertiesLayout.h"

#include "core/Modulus.h"
#include "core/screen/Style.h"
#include "sections/KeptShapes.h"
#include "sections/ShapeCatalogue.h"

#include <QGridLayout>

#include <algorithm>

namespace forcelab::sections {

using screen::Across;
using screen::Describe;
using screen::Down;
using screen::kGap;
using screen::Label;
using screen::OptionRow;
using screen::Q;

namespace {

constexpr int kColumnWidth = 330;  // of the inputs, pixels
constexpr int kModulusWidth = 118; // of a box for a modulus
constexpr int kLeastDrawing = 420; // least side of the drawing
constexpr int kSteelColumns = 4;   // options of the steel families in a line
constexpr int kTitleSize = 13;     // points
constexpr int kBoxColour = 7;      // indexed, of a dimension box
constexpr int kSpacingColour = 14; // of the box of the spacing
constexpr int kSpacingBox = 4;
constexpr int kMaterialInks[] = {0, 15, 0}; // of the boxes of a modulus: one material, A, B
constexpr const char* kWidestNumber = "00000.00000";
constexpr const char* kChooseShape = "Choose a shape from the menus or from the pictures below.";
constexpr const char* kModulusNote =
    "Beams and columns take the moduli of a composite section as psi.";
constexpr const char* kSteelUnit = "The tables are in inches.";

struct FamilyCaption {
    std::string_view Caption;
    std::string_view Name;
};
constexpr std::array<FamilyCaption, kSteelFamilies> kFamilies{{{"W", "W, S, M and HP shapes"},
                                                               {"C", "Channels, C and MC"},
                                                               {"WT", "Tees, WT, ST and MT"},
                                                               {"L", "Angles"},
                                                               {"2L", "Double angles"},
                                                               {"TS", "Structural tubes"},
                                                               {"Pipe", "Pipe"}}};

QColor ColourOf(int index)
{
    const Colour colour = IndexedColour(index);
    return {colour.Red, colour.Green, colour.Blue};
}

void SetBoxColours(QWidget& box, int ground, int ink)
{
    QPalette palette = box.palette();
    palette.setColor(QPalette::Base, ColourOf(ground));
    palette.setColor(QPalette::Text, ColourOf(ink));
    box.setPalette(palette);
}

void Quieten(QLabel& label)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, QColor(screen::kQuietInkTone));
    label.setPalette(palette);
    label.setWordWrap(true);
}

void Embolden(QWidget& widget, int points = 0)
{
    QFont font = widget.font();
    font.setBold(true);
    if (points > 0) font.setPointSize(points);
    widget.setFont(font);
}

} // namespace

frmPropertiesLayout::frmPropertiesLayout() : Form("frmProperties", "Section Properties Module")
{
    SetCaptions();
    SetMaterialCaptions();
    SetSizes();
    BuildUnits();
    BuildRotation();
    BuildModuli();
    BuildSteel();
    BuildWindow();
    DescribeControls();
    ShowModuli(false);
    ShowSteelFrame(false);
    fraSectionProperties->hide();
    TabStopRoutine();
}

void frmPropertiesLayout::SetCaptions()
{
    fraShapeUnits->SetCaption("Units");
    fraShapeRotate->SetCaption("Rotation");
    optShapeUnits.SetCaptions({"in", "mm"});
    optShapeUnits.Choose(0);
    optShapeRotate.SetCaptions({"0", "90", "180", "270"});
    optShapeRotate.Choose(0);
    cmdShape(0).setText(Q("Rot&ate"));
    cmdShape(0).setToolTip(Q("Rotate the shape"));
    cmdShape(1).setText(Q("C&ompute"));
    cmdShape(2).setText(Q("E&nd"));
    cmdShape(3).setText(Q("to mm"));
    cmdShape(3).setToolTip(Q("Convert to SI units"));
    cmdMohr->setText(Q("&Mohr's Circle"));
    cmdMohr->setToolTip(Q("Link to Mohr's Circle moments of inertia"));
    cmdMohr->setEnabled(false);
    for (const auto& [element, swatch] : picShape.Members())
        swatch->SetCaption("Shape " + std::to_string(element + 1));
    lblChooseShape->SetCaption(kChooseShape);
    lblSteelUnit->SetCaption(kSteelUnit);
    fraAISCDefine->SetCaption("Steel Shapes");
    for (int family = 0; family < kSteelFamilies; ++family)
        optAShape(family).SetCaption(kFamilies[family].Caption);
}

void frmPropertiesLayout::SetMaterialCaptions()
{
    fraElasticModulus->SetCaption("Elastic Modulus");
    for (int unit = 0; unit < optElasticModulus.Count(); ++unit)
        optElasticModulus(unit).SetCaption(kElasticModulusUnits[unit]);
    optElasticModulus.Choose(0);
    lblEmod(0).SetCaption("Material Elastic Modulus");
    lblEmod(1).SetCaption("Modulus for Material A  (left mouse button select)");
    lblEmod(2).SetCaption("Modulus for Material B (right mouse button select)");
    for (const auto& [index, label] : lblMaterial.Members()) {
        label->SetCaption(kMaterialCaptions[index - 1]);
        Embolden(*label);
    }
    chkElasticModulus->SetCaption("Composite Beam ");
    lblModulusNote->SetCaption(kModulusNote);
    for (Label* quiet : {&lblEmod(1), &lblEmod(2), lblModulusNote, lblSteelUnit}) Quieten(*quiet);
    for (const auto& [index, list] : cboElasticModulus.Members())
        list->setPlaceholderText(Q("Choose a material"));
    for (screen::ComboBox* grades : {cboSteelGrade, cboTubeGrade})
        grades->setPlaceholderText(Q("Choose a type and grade"));
}

void frmPropertiesLayout::SetSizes()
{
    picShapeDefine->setMinimumSize(kLeastDrawing, kLeastDrawing);
    const BoxSize size = SizeOfBoxes();
    for (const auto& [index, box] : txtShape.Members()) {
        box->setFixedSize(int(size.Width), int(size.Height));
        box->setAlignment(Qt::AlignHCenter);
    }
    for (const auto& [index, box] : txtElasticModulus.Members()) box->setFixedWidth(kModulusWidth);
    for (const auto& [index, list] : cboElasticModulus.Members())
        list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    for (screen::ComboBox* grades : {cboSteelGrade, cboTubeGrade})
        grades->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    lstSteelShapes->setUniformItemSizes(true);
    txtSteelGrade->setReadOnly(true);
    txtSteelGrade->setFrame(false);
    txtSteelGrade->setFocusPolicy(Qt::NoFocus);
    QPalette palette = txtSteelGrade->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    txtSteelGrade->setPalette(palette);
    Embolden(*txtSteelGrade);
    for (Label* title : {lblShapeTitle, lblChooseShape}) Embolden(*title, kTitleSize);
    for (const auto& [index, label] : lblSteelGrade.Members()) {
        label->setWordWrap(true);
        label->setMinimumHeight(2 * label->fontMetrics().lineSpacing()); // the list keeps its size
    }
}

BoxSize frmPropertiesLayout::SizeOfBoxes() const
{
    const QFontMetrics metrics(txtShape(0).font());
    return {double(metrics.horizontalAdvance(QLatin1String(kWidestNumber))),
            double(txtShape(0).sizeHint().height())};
}

void frmPropertiesLayout::BuildUnits()
{
    auto* line = Across({OptionRow(optShapeUnits, 0, 1), lblSteelUnit, &cmdShape(3)});
    line->insertStretch(1);
    line->setStretch(2, 1);
    auto* layout = new QVBoxLayout(fraShapeUnits);
    layout->addLayout(line);
}

void frmPropertiesLayout::BuildRotation()
{
    auto* line = Across({OptionRow(optShapeRotate, 0, 3), &cmdShape(0)});
    line->insertStretch(1, 1);
    auto* layout = new QVBoxLayout(fraShapeRotate);
    layout->addLayout(line);
}

void frmPropertiesLayout::BuildModuli()
{
    auto* all = new QVBoxLayout(fraElasticModulus);
    all->setSpacing(kGap - 2);
    all->addWidget(OptionRow(optElasticModulus, 0, 3));
    for (int set = 0; set < txtElasticModulus.Count(); ++set) {
        if (set == 1) all->addWidget(chkElasticModulus);
        if (set > 0) all->addWidget(&lblMaterial(set));
        all->addWidget(&lblEmod(set));
        auto* line = Across({&txtElasticModulus(set), &cboElasticModulus(set)});
        line->setStretch(1, 1);
        all->addLayout(line);
        lblEmod(set).setBuddy(&txtElasticModulus(set));
    }
    all->addWidget(lblModulusNote);
}

void frmPropertiesLayout::BuildSteel()
{
    auto* all = new QVBoxLayout(fraAISCDefine);
    all->addWidget(OptionRow(optAShape, 0, kSteelFamilies - 1, kSteelColumns));
    all->addWidget(lstSteelShapes, 1);
    all->addWidget(cboSteelGrade);
    all->addWidget(cboTubeGrade);
    all->addWidget(txtSteelGrade);
    all->addWidget(&lblSteelGrade(0));
    all->addWidget(&lblSteelGrade(1));
}

QWidget* frmPropertiesLayout::BuildColumn()
{
    auto* buttons = Across({cmdMohr, &cmdShape(2)});
    auto* column = new QWidget;
    auto* layout = Down({fraShapeUnits, fraShapeRotate, fraElasticModulus, fraAISCDefine});
    layout->setStretch(3, 1);
    layout->addStretch(0);
    layout->addWidget(&cmdShape(1));
    layout->addLayout(buttons);
    column->setLayout(layout);
    column->setFixedWidth(kColumnWidth);
    Embolden(cmdShape(1));
    return column;
}

QWidget* frmPropertiesLayout::BuildDrawing()
{
    swatches_ = new QWidget;
    auto* line = Across({});
    for (const auto& [index, swatch] : picShape.Members()) line->addWidget(swatch);
    line->addStretch(1);
    swatches_->setLayout(line);
    auto* pane = new QWidget;
    auto* layout = Down({lblShapeTitle, swatches_, picShapeDefine});
    layout->setStretch(2, 1);
    pane->setLayout(layout);
    return pane;
}

void frmPropertiesLayout::BuildWindow()
{
    auto* across = Across({BuildColumn(), BuildDrawing()});
    across->setSpacing(2 * kGap);
    across->setStretch(1, 1);
    fraSectionProperties->setLayout(across);
    auto* choice = Down({lblChooseShape, choShapes});
    choice->setStretch(1, 1);
    fraChooseShape->setLayout(choice);
    auto* central = new QWidget;
    auto* all = Down({fraChooseShape, fraSectionProperties});
    all->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    central->setLayout(all);
    setCentralWidget(central);
}

void frmPropertiesLayout::DescribeControls()
{
    Describe(*picShapeDefine, "Drawing of the cross-section");
    Describe(*lstSteelShapes, "Steel shapes of the family");
    Describe(*cboSteelGrade, "Steel type and grade of rolled shapes");
    Describe(*cboTubeGrade, "Steel type and grade of tubes and pipe");
    Describe(*txtSteelGrade, "Chosen steel type and grade");
    Describe(*chkElasticModulus, "Composite beam of two materials");
    constexpr const char* kOf[] = {"the material", "Material A", "Material B"};
    for (int set = 0; set < txtElasticModulus.Count(); ++set) {
        Describe(txtElasticModulus(set), std::string("Elastic modulus of ") + kOf[set]);
        Describe(cboElasticModulus(set), std::string("List of materials for ") + kOf[set]);
    }
    for (const auto& [index, option] : optShapeUnits.Members())
        Describe(*option, "Dimensions in " + std::string(index == 0 ? "inches" : "millimetres"));
    for (const auto& [index, option] : optShapeRotate.Members())
        Describe(*option, "Rotate by " + option->text().toStdString() + " degrees");
    for (const auto& [index, option] : optElasticModulus.Members())
        Describe(*option, "Elastic modulus in " + option->text().toStdString());
    for (const auto& [family, option] : optAShape.Members())
        Describe(*option, kFamilies[family].Name, kFamilies[family].Name);
}

void frmPropertiesLayout::ShowInputs()
{
    fraChooseShape->hide();
    fraSectionProperties->show();
}

void frmPropertiesLayout::ShowControlsOf(int shapeIndex)
{
    const ShapeInfo& info = InfoOf(shapeIndex);
    for (const auto& [index, box] : txtShape.Members()) {
        const bool spacing = info.HasSpacing && index == kSpacingBox;
        box->setVisible(info.Box[index]);
        box->setReadOnly(IsSteel(shapeIndex) && !spacing); // what a table gives stays
        SetBoxColours(*box, spacing ? kSpacingColour : kBoxColour, 0);
        if (!info.Box[index]) continue;
        const std::string name = DimensionName(shapeIndex, index);
        Describe(*box, name, name);
    }
    for (const auto& [element, swatch] : picShape.Members())
        swatch->setVisible(info.MayBeComposite && element <= info.LastElement);
    swatches_->setVisible(info.MayBeComposite);
    chkElasticModulus->setEnabled(info.MayBeComposite);
    fraShapeRotate->setEnabled(info.MayRotate);
    cmdShape(0).setEnabled(info.MayRotate);
    for (const auto& [index, option] : optShapeRotate.Members()) option->setEnabled(info.MayRotate);
}

void frmPropertiesLayout::ShowModuli(bool composite)
{
    cmdMohr->setVisible(!composite);
    for (int set = 0; set < txtElasticModulus.Count(); ++set) {
        const bool visible = composite == (set > 0);
        lblEmod(set).setVisible(visible);
        txtElasticModulus(set).setVisible(visible);
        cboElasticModulus(set).setVisible(visible);
        if (set == 0) continue;
        lblMaterial(set).setVisible(visible);
        if (composite) SetBoxColours(txtElasticModulus(set), kUnassigned + set, kMaterialInks[set]);
    }
}

void frmPropertiesLayout::ShowSteelFrame(bool visible)
{
    fraAISCDefine->setVisible(visible);
    fraElasticModulus->setVisible(!visible);
    for (const auto& [index, option] : optShapeUnits.Members()) option->setVisible(!visible);
    lblSteelUnit->setVisible(visible);
    cmdShape(3).setEnabled(!visible);
}

} // namespace forcelab::sections
