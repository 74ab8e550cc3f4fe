#include "core/screen/GuardedCall.h"
#include "sections/forms/frmProperties.h"

#include <QMenuBar>
#include <QShortcutEvent>

namespace forcelab::sections {

namespace {

/// A letter that a menu and a button share goes to the button, while it can be pressed.
class ButtonFirst : public QObject {
  public:
    ButtonFirst(QMenuBar* bar, QAbstractButton* button)
        : QObject(button), button_(button), letter_(button->shortcut())
    {
        button->setShortcut(QKeySequence());
        bar->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::Shortcut) return false;
        if (static_cast<QShortcutEvent*>(event)->key() != letter_) return false;
        if (!button_->isVisible() || !button_->isEnabled()) return false;
        button_->click();
        return true;
    }

  private:
    QAbstractButton* button_;
    QKeySequence letter_;
};

} // namespace

void frmProperties::BuildMenus()
{
    AddMenuItem("mnuBack", "&Back", [this] { mnuBack_Click(); });
    AddShapes(AddMenu("mnuRectangularShapes", "&Rectangular"), kRectangle, kBox);
    QMenu* flanged = AddMenu("mnuSingleShapes", "&Flanged");
    AddShapes(flanged, kGeneralFlanged, kHat);
    flanged->addSeparator();
    AddShapes(flanged, kStiffenedTDown, kStiffenedTUp);
    AddShapes(AddMenu("mnuDoubleShapes", "&Double"), kDoubleI, kDoubleL);
    AddShapes(AddMenu("mnuCircularShapes", "&Circular"), kCircle, kPipe);
    AddShapes(AddMenu("mnuStandardSteel", "St&eel"), kSteelW, kSteelPipe);
    AddShapes(AddMenu("mnuSpecial", "&Other"), kSpecified, kSpecified);
    AddMenuItem("mnuHelpProperties", "&Help", [this] { mnuHelpProperties_Click(); });
    new ButtonFirst(menuBar(), &cmdShape(1));
    choShapes->Fill([this](int shape) { return shapes_[std::size_t(shape)]; });
}

// The items of a menu array are counted from 0; a menu with one item has no array.
void frmProperties::AddShapes(QMenu* menu, int first, int last)
{
    for (int shape = first; shape <= last; ++shape) {
        const ShapeInfo& info = InfoOf(shape);
        const QString name = first == last
                                 ? screen::Q(info.Menu)
                                 : screen::ArrayName(std::string(info.Menu).c_str(), shape - first);
        shapes_[std::size_t(shape)] =
            AddItem(menu, name.toLatin1().constData(), info.Caption, [this, shape] {
                if (IsSteel(shape)) return mnuAISC_Click(shape - kSteelW);
                mnuShape_Click(shape);
            });
    }
}

void frmProperties::ConnectShape()
{
    OnClick(cmdShape, [this](int index) { cmdShape_click(index); });
    On(cmdMohr, &QPushButton::clicked, [this] { cmdMohr_Click(); });
    OnClick(optShapeUnits, [this](int) {
        if (!quiet_) optShapeUnits_Click();
    });
    OnClick(optShapeRotate, [this](int) { optShapeRotate_Click(); });
    for (const auto& [index, box] : txtShape.Members())
        On(box, &QLineEdit::textChanged, [this] { txtShape_Change(); });
    picShapeDefine->OnPaint = [this](Picture& pic) { picShapeDefine_Paint(pic); };
}

void frmProperties::ConnectMaterials()
{
    OnClick(optElasticModulus, [this](int index) { optElasticModulus_Click(index); });
    On(chkElasticModulus, &QCheckBox::toggled, [this] { chkElasticModulus_Click(); });
    for (const auto& [index, box] : txtElasticModulus.Members())
        On(box, &QLineEdit::textChanged, [this] { txtElasticModulus_Change(); });
    for (const auto& [index, list] : cboElasticModulus.Members()) {
        const auto choose = [this, i = index](int row) { cboElasticModulus_Click(i, row); };
        On(list, &QComboBox::currentIndexChanged, choose);
        On(list, &QComboBox::activated, choose); // the same row anew
    }
    for (const auto& [index, swatch] : picShape.Members())
        swatch->OnAssign = [this, i = index](int button) { picShape_MouseUp(i, button); };
}

void frmProperties::ConnectSteel()
{
    OnClick(optAShape, [this](int index) { optAShape_Click(index); });
    On(lstSteelShapes, &QListWidget::itemSelectionChanged, [this] { lstSteelShapes_click(); });
    On(lstSteelShapes, &QListWidget::itemClicked, [this] { lstSteelShapes_click(); });
    for (screen::ComboBox* grades : {cboSteelGrade, cboTubeGrade})
        On(grades, &QComboBox::currentIndexChanged, [this](int row) { cboGrade_Click(row); });
    for (const SteelGrade& grade : RolledGrades()) cboSteelGrade->AddItem(grade.Text);
    for (const SteelGrade& grade : TubeGrades()) cboTubeGrade->AddItem(grade.Text);
}

} // namespace forcelab::sections
