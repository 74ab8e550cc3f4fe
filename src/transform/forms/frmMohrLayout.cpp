#include "transform/forms/frmMohrLayout.h"

#include "core/Modulus.h"

#include <QEvent>
#include <QGridLayout>
#include <QScrollArea>

#include <algorithm>

namespace forcelab::transform {

using screen::Label;
using screen::PictureBox;
using screen::Q;

namespace {

constexpr int kSketchSize = 108;   // of the small pictures beside the inputs, pixels
constexpr int kMohrSize = 280;     // least size of the circle's picture
constexpr int kElementWidth = 150; // least size of an element's picture
constexpr int kElementHeight = 130;
constexpr int kCircleShare = 5; // of the room for pictures, against the elements
constexpr int kElementShare = 3;
constexpr int kRotaterSteps = 18000; // of the scroll bar, to each side

/// A pane that says when its size has changed.
class ResizingPane : public QWidget {
  public:
    explicit ResizingPane(std::function<void()> resized) : resized_(std::move(resized)) {}

  protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QWidget::resizeEvent(event);
        resized_();
    }

  private:
    std::function<void()> resized_;
};

/// The inputs. As wide as it ever had to be, so that the pictures do not move to and fro.
class InputColumn : public QScrollArea {
  public:
    explicit InputColumn(QWidget* inputs)
    {
        setWidget(inputs);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFocusPolicy(Qt::NoFocus);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool done = QScrollArea::eventFilter(watched, event);
        if (watched == widget() && event->type() == QEvent::LayoutRequest) Fit();
        return done;
    }

  private:
    void Fit()
    {
        const int needed =
            widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
        if (needed <= minimumWidth()) return;
        setFixedWidth(needed);
        // At once, or the first showing of a wider analysis would lie under the pictures.
        parentWidget()->layout()->activate();
    }
};

QWidget* Titled(Label* title, PictureBox* picture)
{
    auto* pane = new QWidget;
    title->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    title->setWordWrap(true);
    title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* layout = screen::Down({title, picture});
    layout->setSpacing(2);
    layout->setStretch(1, 1);
    pane->setLayout(layout);
    return pane;
}

void SetLeastSize(PictureBox* picture, int width, int height)
{
    picture->setMinimumSize(width, height);
    picture->SetPreferredSize(width, height);
    picture->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SetFixedSquare(PictureBox* picture, int size)
{
    picture->SetPreferredSize(size, size);
    picture->setFixedSize(size, size);
}

/// Options in one line; a hidden one leaves no hole.
QWidget* OptionLine(const screen::OptionArray& options)
{
    auto* line = new QWidget;
    auto* layout = screen::Across({});
    for (const auto& [index, option] : options.Members()) layout->addWidget(option);
    layout->addStretch(1);
    line->setLayout(layout);
    return line;
}

} // namespace

frmMohrLayout::frmMohrLayout() : Form("frmMohr", "Mohr's Circle Transformations Module")
{
    SetCaptions();
    SetSizes();
    BuildInputs();
    BuildStresses();
    BuildRotation();
    BuildWindow();
    SetTabOrder();
    DescribeFixedControls();
    txtDetails->hide();
    fraStressFromStrains->hide();
}

void frmMohrLayout::SetCaptions()
{
    optStressUnits.SetCaptions(kMohrUnits);
    optStressOrStrain.SetCaptions({"Plane Stress", "Plane Strain"});
    for (int unit = 0; unit < 4; ++unit) {
        optElasticModulus(unit).SetCaption(kElasticModulusUnits[unit]);
        optUnitsStress(unit).SetCaption(kMohrUnits[unit]);
    }
    cmdMohr(0).setText(Q("&Compute"));
    cmdMohr(1).setText(Q("&Details"));
    cmdMohr(3).setText(Q("C&lear"));
    cmdRotater->setText(Q("&Rotate"));
    cmdRotaterNull->setText(Q("&Zero"));
    chkRosette->SetCaption("Stresses from Strains");
    fraStressFromStrains->SetCaption("Material and Stresses");
    fraPrincipalStresses->SetCaption("Principal Stresses");
    fraMaxShearStress->SetCaption("Maximum Shear Stress");
    lblMohr->SetCaption("Mohr's Circle");
    lblRotater->SetCaption("Arbitrary Orientation");
    for (const int first : {0, 4, 6}) optStressUnits.Choose(first == 4 ? 5 : first);
    for (const int first : {0, 2, 4}) optSigX.Choose(first);
    optStressOrStrain.Choose(0);
    optElasticModulus.Choose(0);
    optUnitsStress.Choose(0);
}

void frmMohrLayout::SetSizes()
{
    for (PictureBox* sketch : {picRosette45, picRosette60, picStrainOrient, picXprime})
        SetFixedSquare(sketch, kSketchSize);
    SetFixedSquare(picSignConvention, kSketchSize + 24);
    SetLeastSize(picMohr, kMohrSize, kMohrSize);
    for (PictureBox* element : {picPrincipal, picMaxShear, picRotater})
        SetLeastSize(element, kElementWidth, kElementHeight);
    for (QLineEdit* box :
         std::initializer_list<QLineEdit*>{&txtStress(0), &txtStress(1), &txtStress(2),
                                           txtElasticModulus, txtPoisson, txtRotater})
        box->setFixedWidth(screen::kNumberWidth);
    vsbRotater->setOrientation(Qt::Vertical);
    vsbRotater->setRange(-kRotaterSteps, kRotaterSteps);
    vsbRotater->setSingleStep(20);
    vsbRotater->setPageStep(1000);
    vsbRotater->setInvertedAppearance(true); // a turn to the left goes up
    vsbRotater->setFocusPolicy(Qt::StrongFocus);
    txtDetails->setReadOnly(true);
    txtDetails->setMinimumHeight(100);
}

QWidget* frmMohrLayout::BuildInputRows()
{
    auto* rows = new QWidget;
    auto* grid = new QGridLayout(rows);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(screen::kGap);
    grid->setVerticalSpacing(screen::kGap);
    for (int row = 0; row < 3; ++row) {
        auto* names = screen::Down({&lblDirection(row), &lblKind(row)});
        auto* senses = screen::Down({&optSigX(2 * row), &optSigX(2 * row + 1)});
        names->setSpacing(0);
        senses->setSpacing(0);
        lblDirection(row).setBuddy(&txtStress(row));
        grid->addLayout(names, row, 0);
        grid->addWidget(&txtStress(row), row, 1);
        grid->addLayout(senses, row, 2);
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    return rows;
}

void frmMohrLayout::BuildInputs()
{
    auto* sketches = screen::Down({picSignConvention, picRosette45, picRosette60, picStrainOrient});
    sketches->addStretch(1);
    auto* left =
        screen::Down({BuildInputRows(), OptionLine(optStressUnits), chkAbsMaxShear, chkRosette});
    left->addStretch(1);
    auto* buttons = screen::Across({&cmdMohr(0), &cmdMohr(1), &cmdMohr(3)});
    auto* across = screen::Across({});
    across->addLayout(left, 1);
    across->addLayout(sketches);
    auto* all = new QVBoxLayout(fraStress);
    all->addLayout(across);
    all->addLayout(buttons);
    for (const auto& [index, button] : cmdMohr.Members()) button->setAutoDefault(true);
}

void frmMohrLayout::BuildStresses()
{
    auto* principal = new QVBoxLayout(fraPrincipalStresses);
    principal->addWidget(&lblStressFromStrains(1));
    principal->addWidget(&lblStressFromStrains(2));
    auto* shear = new QVBoxLayout(fraMaxShearStress);
    shear->addWidget(&lblStressFromStrains(4));
    auto* results = new QWidget;
    results->setLayout(screen::Across({fraPrincipalStresses, fraMaxShearStress}));
    screen::Rows(fraStressFromStrains)
        .Wide(OptionLine(optStressOrStrain))
        .Row("Elastic Modulus", {txtElasticModulus, cboElasticModulus})
        .Row("", {OptionLine(optElasticModulus)})
        .Row("Poisson's Ratio", {txtPoisson})
        .Row("Stress Units", {OptionLine(optUnitsStress)})
        .Wide(results);
}

void frmMohrLayout::BuildRotation()
{
    auto* buttons = screen::Across({txtRotater, cmdRotater, cmdRotaterNull});
    auto* values = new QGridLayout;
    values->setHorizontalSpacing(screen::kGap);
    for (int row = 0; row < 3; ++row) {
        values->addWidget(&lblRotated(row), row, 0);
        values->addWidget(&lblRotatedValue(row), row, 1);
    }
    values->setColumnStretch(1, 1);
    auto* right = screen::Down({lblAngle});
    right->addLayout(buttons);
    right->addLayout(values);
    right->addStretch(1);
    auto* all = new QHBoxLayout(fraRotater);
    all->addWidget(picXprime, 0, Qt::AlignTop);
    all->addWidget(vsbRotater);
    all->addLayout(right, 1);
    lblAngle->setBuddy(txtRotater);
}

QWidget* frmMohrLayout::BuildPictures()
{
    maxShear_ = Titled(lblMaxShear, picMaxShear);
    elements_ = screen::Across(
        {Titled(lblPrincipal, picPrincipal), maxShear_, Titled(lblRotater, picRotater)});
    picturePane_ = new ResizingPane([this] { ArrangePictures(); });
    pictures_ = screen::Down({Titled(lblMohr, picMohr)});
    pictures_->addLayout(elements_);
    pictures_->setStretch(0, kCircleShare);
    pictures_->setStretch(1, kElementShare);
    picturePane_->setLayout(pictures_);
    return picturePane_;
}

QWidget* frmMohrLayout::BuildColumn()
{
    auto* inputs = new QWidget;
    auto* layout = screen::Down({fraStress, fraStressFromStrains, fraRotater});
    layout->addStretch(1);
    layout->setContentsMargins(0, 0, screen::kGap / 2, 0);
    inputs->setLayout(layout);
    return new InputColumn(inputs);
}

void frmMohrLayout::BuildWindow()
{
    splPictures->setOrientation(Qt::Vertical);
    splPictures->setChildrenCollapsible(false);
    splPictures->addWidget(BuildPictures());
    splPictures->addWidget(txtDetails);
    splPictures->setStretchFactor(0, 3);
    splPictures->setStretchFactor(1, 1);
    auto* central = new QWidget;
    auto* across = screen::Across({BuildColumn(), splPictures});
    across->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    across->setStretch(1, 1);
    central->setLayout(across);
    setCentralWidget(central);
}

void frmMohrLayout::SetTabOrder()
{
    std::vector<QWidget*> order;
    for (int row = 0; row < 3; ++row) {
        order.push_back(&txtStress(row));
        order.push_back(&optSigX(2 * row));
        order.push_back(&optSigX(2 * row + 1));
    }
    for (const auto& [index, unit] : optStressUnits.Members()) order.push_back(unit);
    order.insert(order.end(), {chkAbsMaxShear, chkRosette, &cmdMohr(0), &cmdMohr(1), &cmdMohr(3)});
    for (const auto& [index, option] : optStressOrStrain.Members()) order.push_back(option);
    order.insert(order.end(), {txtElasticModulus, cboElasticModulus});
    for (const auto& [index, unit] : optElasticModulus.Members()) order.push_back(unit);
    order.push_back(txtPoisson);
    for (const auto& [index, unit] : optUnitsStress.Members()) order.push_back(unit);
    order.insert(order.end(), {txtRotater, cmdRotater, cmdRotaterNull, vsbRotater, txtDetails});
    order.insert(order.end(), {picMohr, picPrincipal, picMaxShear, picRotater, picXprime});
    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void frmMohrLayout::ShowDetails(bool visible)
{
    txtDetails->setVisible(visible);
    const int height = splPictures->height();
    if (visible) splPictures->setSizes({2 * height / 3, height / 3});
}

// The elements stand beside the circle where the pane is wide, below it where it is high.
void frmMohrLayout::ArrangePictures()
{
    const int width = picturePane_->width();
    const bool wide = width > picturePane_->height();
    pictures_->setDirection(wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    elements_->setDirection(wide ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    const int beside = maxShear_->isHidden() ? 2 : 3;
    AlignTitles(wide ? width * kElementShare / (kElementShare + kCircleShare) : width / beside);
}

// Titles that stand side by side are equally high, however many lines they take.
void frmMohrLayout::AlignTitles(int width)
{
    int height = 0;
    for (Label* title : {lblPrincipal, lblMaxShear, lblRotater}) {
        title->setMinimumHeight(0); // or the height of before would count
        height = std::max(height, title->heightForWidth(width - screen::kGap));
    }
    for (Label* title : {lblPrincipal, lblMaxShear, lblRotater}) title->setFixedHeight(height);
}

} // namespace forcelab::transform
