#include "beams/forms/frmReverseShear.h"

#include "beams/BeamRecord.h"
#include "beams/DiagramRequest.h"
#include "beams/EntrySketches.h"
#include "core/screen/Forms.h"
#include "core/screen/Layout.h"

#include <QGridLayout>

namespace forcelab::beams {

namespace {

constexpr int kUpwardOnRight = 0; // the option that reverses the usual sign
constexpr int kSketchWidth = 140; // pixels
constexpr int kSketchHeight = 84;

} // namespace

frmReverseShear::frmReverseShear()
    : Form("frmReverseShear", "Sign Convention for Plotting Shear Diagram")
{
    optReverseShear.SetCaptions(
        {"Plot upward shear force on right-hand side of beam element as positive.",
         "Plot downward shear force on right-hand side of beam element as positive."});
    Build();
    OnClick(optReverseShear, [this](int index) { optReverseShear_Click(index); });
    On(cmdOK, &QPushButton::clicked, [this] { cmdOK_Click(); });
}

void frmReverseShear::Build()
{
    auto* central = new QWidget;
    auto* grid = new QGridLayout(central);
    grid->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    grid->setSpacing(screen::kGap);
    for (const auto& [index, picture] : picReverseShear.Members()) {
        picture->OnPaint = [reversed = index == kUpwardOnRight](Picture& pic) {
            pic.Cls();
            DrawShearSignSketch(pic, reversed);
        };
        picture->setFixedSize(kSketchWidth, kSketchHeight);
        Describe(*picture, "Beam element with positive shear forces");
        grid->addWidget(picture, index, 0);
        grid->addWidget(&optReverseShear(index), index, 1);
    }
    cmdOK->setText(screen::Q("&OK"));
    cmdOK->setAutoDefault(true);
    grid->addWidget(cmdOK, 2, 1, Qt::AlignRight);
    grid->setRowStretch(3, 1);
    setCentralWidget(central);
    resize(minimumSizeHint());
}

void frmReverseShear::Form_Activate()
{
    optReverseShear.Choose(CurrentBeam.ReverseShearSign ? kUpwardOnRight : 1 - kUpwardOnRight);
}

void frmReverseShear::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    cmdOK_Click();
}

void frmReverseShear::optReverseShear_Click(int Index)
{
    CurrentBeam.ReverseShearSign = Index == kUpwardOnRight;
}

void frmReverseShear::cmdOK_Click()
{
    screen::Forms::Hide("frmReverseShear");
    DiagramRequest request;
    request.Pictures = kShearPicture | kMomentPicture;
    RequestDiagrams(request);
}

} // namespace forcelab::beams
