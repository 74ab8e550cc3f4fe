#include "beams/forms/frmDetailsLayout.h"

#include "beams/BeamRecord.h"
#include "beams/StressInput.h"
#include "core/screen/Services.h"

#include <QBoxLayout>
#include <QMenuBar>

#include <algorithm>
#include <vector>

namespace forcelab::beams {

using screen::Across;
using screen::Describe;
using screen::Down;
using screen::Q;

namespace {

constexpr int kPictureWidth = 300; // least size, pixels
constexpr int kPictureHeight = 340;
constexpr int kCoordWidth = 76;
constexpr int kPlainWidth = 420;   // of the form without a section
constexpr int kWidestInputs = 430; // of each of the two groups
constexpr int kKeyHeight = 170;
constexpr int kHighest = 1100;
constexpr int kBarPage = 20;

constexpr std::array<std::string_view, 4> kButtons{"&Normal Stress", "&Shear Stress",
                                                   "&Mohr's Circle", "&End"};
constexpr std::array<std::string_view, 4> kPictureNames{
    "Cross-section with the specified point", "Normal stress over the height of the section",
    "Normal stress seen from the side", "Shear stress over the height of the section"};

template <class Control>
void Append(std::vector<QWidget*>& order, const screen::ControlArray<Control>& controls)
{
    for (const auto& [index, control] : controls.Members()) order.push_back(control);
}

} // namespace

frmDetailsLayout::frmDetailsLayout() : Form("frmDetails", "Beam Details")
{
    SetCaptions();
    SetSizes();
    BuildKeyStresses();
    BuildWindow();
    SetTabOrder();
    DescribeControls();
}

void frmDetailsLayout::SetCaptions()
{
    lblNoSection->SetCaption("For the stresses in the beam, define a shape from the "
                             "Cross-Section menu of the beam form.");
    fraVM->SetCaption("Forces at the Section");
    lblVM(0).SetCaption("Axial Force");
    lblVM(1).SetCaption("Shear Force");
    lblVM(2).SetCaption("Bending Moment");
    fraCoord->SetCaption("Stress at (y,z) coordinates");
    lblCoord(0).SetCaption("z");
    lblCoord(1).SetCaption("y");
    fraStressUnits->SetCaption("Stress Units");
    fraKeyStresses->SetCaption("Stresses at some key locations");
    lblQnote->SetCaption("Q calculated at the target location y");
    lblPrompt->SetCaption("Type the forces, or take them from a point of the beam.\n\n"
                          "Then choose Normal Stress or Shear Stress.");
    for (const auto& [index, button] : cmdVM.Members())
        button->setText(Q(kButtons[std::size_t(index)]));
    cmdShadeSolid->setText(Q("3d Solid &Rendering"));
    optForceUnits.SetCaptions(kForceUnits);
    optMomentUnits.SetCaptions(kMomentUnits);
    optStressUnits.SetCaptions(kStressUnits);
    optShapeUnits.SetCaptions(kShapeUnits);
    for (const auto* units : {&optForceUnits, &optMomentUnits, &optStressUnits, &optShapeUnits})
        units->Choose(0);
}

void frmDetailsLayout::SetSizes()
{
    for (auto* box : findChildren<QLineEdit*>()) box->setFixedWidth(screen::kNumberWidth);
    for (const auto& [index, box] : txtCoord.Members()) box->setFixedWidth(kCoordWidth);
    for (const auto& [index, picture] : picST.Members()) {
        picture->setMinimumSize(kPictureWidth, kPictureHeight);
        picture->SetPreferredSize(kPictureWidth, kPictureHeight);
        picture->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }
    hsbZ->setOrientation(Qt::Horizontal);
    vsbY->setOrientation(Qt::Vertical);
    for (QScrollBar* bar : {hsbZ, vsbY}) {
        bar->setFocusPolicy(Qt::StrongFocus);
        bar->setPageStep(kBarPage);
    }
    for (auto* button : findChildren<QPushButton*>()) button->setAutoDefault(true);
    cmdShadeSolid->setEnabled(false); // there is no view of solids
    for (QLabel* text : {lblNoSection, lblPrompt, lblQnote}) text->setWordWrap(true);
    lblPrompt->setAlignment(Qt::AlignCenter);
    lblPrompt->setMinimumWidth(kPictureWidth);
    lblQnote->setAlignment(Qt::AlignCenter);
}

QWidget* frmDetailsLayout::BuildPoint()
{
    auto* grid = new QGridLayout(fraPoint);
    grid->setHorizontalSpacing(screen::kGap);
    grid->setVerticalSpacing(screen::kGap / 2);
    grid->addWidget(lblSpecificPoint, 0, 0);
    grid->addWidget(txtSpecificPoint, 0, 1);
    grid->addWidget(cmdSpecificPoint, 0, 2, 1, 2);
    lblSpecificPoint->setBuddy(txtSpecificPoint);
    for (int i = 0; i < 2; ++i) {
        grid->addWidget(&lblPointName(i), i + 1, 0);
        grid->addWidget(&lblPointValue(i), i + 1, 1);
        grid->addWidget(&lblPointUnit(i), i + 1, 2);
        grid->addWidget(&lblPointFiner(i), i + 1, 3);
        lblPointValue(i).setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    grid->setColumnStretch(3, 1);
    return fraPoint;
}

QWidget* frmDetailsLayout::BuildCoord()
{
    auto* line = new QHBoxLayout(fraCoord);
    line->setSpacing(screen::kGap);
    for (int i = 0; i < 2; ++i) {
        line->addWidget(&lblCoord(i));
        line->addWidget(&txtCoord(i));
        lblCoord(i).setBuddy(&txtCoord(i));
    }
    line->addStretch(1);
    for (int i = 0; i < 2; ++i) line->addWidget(&optShapeUnits(i));
    return fraCoord;
}

QWidget* frmDetailsLayout::BuildButtons()
{
    buttons_ = new QWidget;
    auto* grid = new QGridLayout(buttons_);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(screen::kGap);
    for (int i = 0; i < 3; ++i) grid->addWidget(&cmdVM(i), 0, i);
    grid->addWidget(cmdShadeSolid, 1, 0, 1, 2);
    grid->addWidget(&cmdVM(3), 1, 2);
    return buttons_;
}

QWidget* frmDetailsLayout::BuildForces()
{
    screen::Rows rows(fraVM);
    for (int i = 0; i < 3; ++i) rows.Row(&lblVM(i), {&txtVM(i)});
    rows.Wide(screen::OptionRow(optForceUnits, 0, 3));
    rows.Wide(screen::OptionRow(optMomentUnits, 0, 3));
    return fraVM;
}

QWidget* frmDetailsLayout::BuildStressUnits()
{
    auto* line = new QVBoxLayout(fraStressUnits);
    line->addWidget(screen::OptionRow(optStressUnits, 0, 3));
    return fraStressUnits;
}

void frmDetailsLayout::BuildKeyStresses()
{
    QPlainTextEdit& text = txtKeyStresses(0);
    text.setReadOnly(true);
    text.setTabChangesFocus(true);
    text.setMinimumHeight(kKeyHeight);
    auto* all = new QVBoxLayout(fraKeyStresses);
    all->setSpacing(screen::kGap / 2);
    all->addWidget(lblKeyStresses);
    all->addWidget(&text, 1);
}

QWidget* frmDetailsLayout::BuildPictures()
{
    pictures_ = new QWidget;
    grid_ = new QGridLayout(pictures_);
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setSpacing(screen::kGap / 2);
    grid_->addWidget(&picST(0), 0, 0);
    grid_->addWidget(vsbY, 0, 1);
    grid_->addWidget(hsbZ, 1, 0);
    grid_->addWidget(lblQnote, 1, 2);
    grid_->addWidget(lblPrompt, 0, 2);
    for (const int column : {0, 2}) grid_->setColumnStretch(column, 1);
    for (const int row : {0, 2}) grid_->setRowStretch(row, 1);
    ArrangePictures(kNoKeyStresses, false);
    return pictures_;
}

// What belongs to the view stands beside the section; the third picture below it.
void frmDetailsLayout::ArrangePictures(int view, bool keyStresses)
{
    if (arranged_ == std::pair(view, keyStresses)) return;
    arranged_ = {view, keyStresses};
    const bool shear = view == kShearView;
    const int below = shear ? 1 : 2;
    grid_->addWidget(&picST(shear ? 3 : 1), 0, 2);
    grid_->addWidget(&picST(below), 2, 0);
    // Without pictures the stresses at the point stand beside the section.
    grid_->addWidget(fraKeyStresses, view == kNoKeyStresses ? 0 : 2, 2);
    picST(1).setVisible(view != kNoKeyStresses);
    picST(2).setVisible(view == kNormalView);
    picST(3).setVisible(shear);
    fraKeyStresses->setVisible(keyStresses);
    lblPrompt->setVisible(view == kNoKeyStresses && !keyStresses);
}

void frmDetailsLayout::BuildWindow()
{
    auto* left = new QWidget;
    auto* column = Down({BuildPoint(), lblNoSection, BuildCoord(), BuildButtons()});
    column->addStretch(1);
    left->setLayout(column);
    right_ = new QWidget;
    auto* forces = Down({BuildForces(), BuildStressUnits()});
    forces->addStretch(1);
    right_->setLayout(forces);
    for (QWidget* part : {left, right_}) part->setMaximumWidth(kWidestInputs);
    inputs_ = new QWidget;
    inputs_->setLayout(beside_ = Across({left, right_}));
    beside_->addStretch(0); // where the window is wide, they stay at its left
    everything_ = Down({inputs_, BuildPictures()});
    everything_->setStretch(1, 1);
    everything_->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin,
                                    screen::kMargin);
    auto* central = new QWidget;
    central->setLayout(everything_);
    scroll_ = new QScrollArea;
    scroll_->setWidget(central);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setFocusPolicy(Qt::NoFocus);
    setCentralWidget(scroll_);
}

void frmDetailsLayout::ShowStressPart(bool visible)
{
    stressPart_ = visible;
    lblNoSection->setVisible(!visible);
    for (QWidget* part : {static_cast<QWidget*>(fraCoord), buttons_, right_, pictures_})
        part->setVisible(visible);
    SetPointButton(cmdSpecificPoint->text().toStdString());
    ArrangeWindow();
}

void frmDetailsLayout::SetPointButton(std::string_view caption)
{
    cmdSpecificPoint->setText(Q(caption));
    if (stressPart_) cmdSpecificPoint->setShortcut({});
}

void frmDetailsLayout::Form_Resize()
{
    ArrangeWindow();
}

// A wide window has the inputs in one column beside the pictures, a narrow one above them.
void frmDetailsLayout::ArrangeWindow()
{
    const int column = std::max(inputs_->layout()->itemAt(0)->widget()->minimumSizeHint().width(),
                                right_->minimumSizeHint().width());
    const int needed = column + pictures_->minimumSizeHint().width() + 2 * screen::kMargin +
                       screen::kGap + scroll_->verticalScrollBar()->sizeHint().width();
    const bool wide = stressPart_ && width() >= needed;
    for (const int group : {0, 1}) beside_->setStretch(group, wide ? 0 : 1);
    beside_->setDirection(wide ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    everything_->setDirection(wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void frmDetailsLayout::FitWindow()
{
    const QRect desk = screen::Services::Current().Screen->WorkArea();
    const int bar = scroll_->verticalScrollBar()->sizeHint().width();
    for (QLayout* layout :
         {beside_->itemAt(0)->widget()->layout(), right_->layout(), static_cast<QLayout*>(beside_),
          static_cast<QLayout*>(grid_), static_cast<QLayout*>(everything_)}) {
        layout->invalidate(); // it may have been measured with other parts visible
        layout->activate();
    }
    const int width = scroll_->widget()->minimumSizeHint().width() + bar;
    const int plain =
        everything_->totalHeightForWidth(kPlainWidth) + menuBar()->sizeHint().height();
    const QSize wish = stressPart_ ? QSize(width, kHighest) : QSize(kPlainWidth, plain);
    resize(wish.boundedTo(desk.size()));
}

void frmDetailsLayout::SetTabOrder()
{
    std::vector<QWidget*> order{txtSpecificPoint, cmdSpecificPoint};
    Append(order, txtVM);
    for (const auto* units : {&optForceUnits, &optMomentUnits, &optStressUnits})
        Append(order, *units);
    Append(order, txtCoord);
    Append(order, optShapeUnits);
    Append(order, cmdVM);
    order.insert(order.end(), {cmdShadeSolid, hsbZ, vsbY, &txtKeyStresses(0)});
    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void frmDetailsLayout::DescribeControls()
{
    Describe(*txtSpecificPoint, "Point along the beam, x");
    for (const auto& [index, box] : txtVM.Members())
        Describe(*box, lblVM(index).Caption() + " at the section");
    Describe(txtCoord(0), "z of the point, to the right from the centroid",
             "To the right from the centroid");
    Describe(txtCoord(1), "y of the point, upward from the centroid", "Upward from the centroid");
    Describe(*hsbZ, "z of the point", "Moves the point across the section");
    Describe(*vsbY, "y of the point", "Moves the point up and down the section");
    for (const auto& [index, picture] : picST.Members())
        Describe(*picture, kPictureNames[std::size_t(index)]);
    picST(0).setToolTip(Q("Click or drag to move the point"));
    Describe(cmdVM(2), "Mohr's Circle", "Mohr's circle for the stresses at the point");
    Describe(cmdVM(3), "End", "Back to the beam");
    Describe(txtKeyStresses(0), "Stresses at some key locations");
    DescribeUnits(optForceUnits, "Forces in ");
    DescribeUnits(optMomentUnits, "Moment in ");
    DescribeUnits(optStressUnits, "Stresses in ");
    DescribeUnits(optShapeUnits, "Coordinates in ");
}

void frmDetailsLayout::DescribeUnits(const screen::OptionArray& options, std::string_view what)
{
    for (const auto& [unit, option] : options.Members())
        Describe(*option, std::string(what) + option->text().toStdString());
}

} // namespace forcelab::beams
