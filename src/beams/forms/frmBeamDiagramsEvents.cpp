#include "beams/DiagramRequest.h"
#include "beams/forms/frmBeamDiagrams.h"

#include <QEvent>
#include <QShortcut>

namespace forcelab::beams {

void frmBeamDiagrams::BuildMenus()
{
    AddMenuItem("mnuBack", "&Back", [this] { mnuBack_Click(); });
    QMenu* diagrams = AddMenu("mnuDiagrams", "Dia&grams");
    mnuShearMoment =
        AddItem(diagrams, "mnuShearMoment", "&Shear/Moment", [this] { mnuShearMoment_Click(); });
    mnuSlopeDeflection = AddItem(diagrams, "mnuSlopeDeflection", "Slope/&Deflection",
                                 [this] { mnuSlopeDeflection_Click(); });
    for (QAction* view : {mnuShearMoment, mnuSlopeDeflection}) view->setCheckable(true);
    mnuShearMoment->setChecked(true);
    diagrams->addSeparator();
    mnuExplain = AddItem(diagrams, "mnuExplain", "&Explain", [this] { mnuExplain_Click(); });
    mnuExplain->setToolTip(screen::Q("The whole beam, from its equilibrium to its moments"));
    mnuExplainShear = AddItem(diagrams, "mnuExplainShear", "&Tips at the Bar's Point",
                              [this] { mnuExplainShear_Click(); });
    mnuExplainShear->setToolTip(screen::Q("How the moment follows from the shear there"));
    mnuSpecificPoint =
        AddMenuItem("mnuSpecificPoint", "&Details", [this] { mnuSpecificPoint_Click(); });
    mnuPrintDiagrams =
        AddMenuItem("mnuPrintDiagrams", "&Print", [this] { mnuPrintDiagrams_Click(); });
    QMenu* options = AddMenu("mnuOptions", "&Options");
    AddItem(options, "mnuShearSignConvention", "&Shear Diagram Sign Convention",
            [this] { mnuShearSignConvention_Click(); });
    AddMenuItem("mnuHelp", "&Help", [this] { mnuHelp_Click(); });
}

void frmBeamDiagrams::Connect()
{
    ConnectUnits();
    ConnectPictures();
    On(hsbX, &QScrollBar::actionTriggered, [this] { hsbX_ActionTriggered(); });
    On(hsbX, &QScrollBar::valueChanged, [this] { hsbX_Change(); });
    On(cboLoads, &QComboBox::activated, [this](int row) { cboLoads_Click(row); });
    On(cboReactions, &QComboBox::activated, [this] { cboReactions_Click(); });
    OnClick(cmdDiscontinuity, [this](int index) { cmdDiscontinuity_Click(index); });
    OnClick(cmdCloseExplain, [this](int) { CloseExplanation(); });
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    On(escape, &QShortcut::activated, [this] { CloseExplanation(); });
    for (QWidget* watched :
         std::initializer_list<QWidget*>{picLoadDiagram, picShearDiagram, cboLoads, cboReactions})
        watched->installEventFilter(this);
}

void frmBeamDiagrams::ConnectUnits()
{
    OnClick(optLengthUnits, [this](int index) { optLengthUnits_Click(index); });
    OnClick(optForceUnits, [this](int index) {
        SetUnit(&DiagramUnits::Force, index, kLoadPicture | kShearPicture);
    });
    OnClick(optMomentUnits, [this](int index) {
        SetUnit(&DiagramUnits::Moment, index, kLoadPicture | kMomentPicture);
    });
    OnClick(optSlopeUnits,
            [this](int index) { SetUnit(&DiagramUnits::Slope, index, kSlopePicture); });
    OnClick(optDeflectionUnits,
            [this](int index) { SetUnit(&DiagramUnits::Deflection, index, kDeflectionPicture); });
}

void frmBeamDiagrams::ConnectPictures()
{
    using screen::MouseAction;
    picLoadDiagram->OnPaint = [this](Picture& pic) { picLoadDiagram_Paint(pic); };
    picLoadDiagram->OnMouseMove = [this](const MouseAction& at) { picLoadDiagram_MouseMove(at); };
    picLoadDiagram->OnMouseUp = [this](const MouseAction& at) { picLoadDiagram_MouseUp(at); };
    picLoadDiagram->OnDblClick = [this](const MouseAction& at) { picLoadDiagram_DblClick(at); };
    picShearDiagram->OnMouseMove = [this](const MouseAction& at) { picShearDiagram_MouseMove(at); };
    picShearDiagram->OnMouseUp = [this](const MouseAction& at) { picShearDiagram_MouseUp(at); };
    picShearDiagram->OnDblClick = [this](const MouseAction& at) { imgReverseShear_DblClick(at); };
    for (const Diagram diagram :
         {Diagram::Shear, Diagram::Moment, Diagram::Slope, Diagram::Deflection})
        CurvePicture(diagram).OnPaint = [this, diagram](Picture& pic) {
            picCurve_Paint(diagram, pic);
        };
}

bool frmBeamDiagrams::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        if (watched == picLoadDiagram) AlignBar(picLoadDiagram->width());
        LayComboLabels();
    }
    auto* picture = dynamic_cast<screen::PictureBox*>(watched);
    if (event->type() == QEvent::Leave && picture) ShowHint(*picture, "");
    return Form::eventFilter(watched, event);
}

} // namespace forcelab::beams
