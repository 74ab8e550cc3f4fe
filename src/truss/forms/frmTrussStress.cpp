#include "truss/forms/frmTrussStress.h"

#include "core/screen/Forms.h"
#include "truss/forms/frmTruss.h"

#include <QBoxLayout>
#include <QHeaderView>

namespace forcelab::truss {

using screen::Forms;
using screen::Q;

namespace {

constexpr int kAreaColumn = 2;
constexpr int kColumns = 4;
constexpr Qt::Alignment kNumberAlignment = Qt::AlignRight | Qt::AlignVCenter;
const QColor kAreaColour(0xFF, 0xFB, 0xE0); // of the cells to type in

} // namespace

frmTrussStress::frmTrussStress() : Form("frmTrussStress", "Member Stresses")
{
    Build();
    Connect();
}

void frmTrussStress::Form_Activate()
{
    ShowTable();
    grdStress->GoTo(1, kAreaColumn);
    grdStress->setFocus(Qt::OtherFocusReason);
}

void frmTrussStress::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    mnuBack_Click();
}

void frmTrussStress::TakeResults(const TrussResults& results)
{
    results_ = results;
}

void frmTrussStress::mnuBack_Click()
{
    grdStress->setFocus(Qt::OtherFocusReason); // stores an area that is being typed
    Forms::Hide("frmTrussStress");
}

void frmTrussStress::cmdStress_Click(int Index)
{
    if (Index == 1) return mnuBack_Click();
    SameAreaForAll();
}

void frmTrussStress::grdStress_KeyPress(int keyAscii)
{
    grdStress->GoTo(grdStress->Row(), kAreaColumn);
    screen::GridEditStart(*grdStress, *txtGridEdit, keyAscii);
}

// An area that cannot be read leaves the one of before.
void frmTrussStress::txtGridEdit_LostFocus()
{
    StoreArea(static_cast<std::size_t>(grdStress->Row() - 1), txtGridEdit->Text());
    ShowTable();
}

std::vector<StressRow> frmTrussStress::Table() const
{
    return StressTable(CurrentTruss, results_, CurrentAreas);
}

void frmTrussStress::StoreArea(std::size_t row, const std::string& area)
{
    const std::vector<StressRow> rows = Table();
    if (row >= rows.size()) return;
    MemberAreas areas = CurrentAreas;
    areas[rows[row].Member] = area;
    static_cast<void>(StressTable(CurrentTruss, results_, areas)); // or there is no stress for it
    CurrentAreas = areas;
}

void frmTrussStress::SameAreaForAll()
{
    const std::vector<StressRow> rows = Table();
    const auto current = static_cast<std::size_t>(grdStress->Row() - 1);
    if (current >= rows.size()) return;
    MemberAreas areas = CurrentAreas;
    for (const StressRow& row : rows) areas[row.Member] = rows[current].Area;
    static_cast<void>(StressTable(CurrentTruss, results_, areas));
    CurrentAreas = areas;
    ShowTable();
    grdStress->setFocus(Qt::OtherFocusReason);
}

void frmTrussStress::ShowTable()
{
    const std::vector<StressRow> rows = Table();
    grdStress->SetSize(static_cast<int>(rows.size()) + 1, kColumns, 1, 1);
    for (int column = 0; column < kColumns; ++column) {
        grdStress->SetCellText(0, column, kStressColumns[column]);
        if (column > 0) grdStress->SetCellAlignment(0, column, kNumberAlignment);
    }
    int line = 0;
    for (const StressRow& row : rows) {
        const std::string* cells[kColumns] = {&row.Name, &row.Force, &row.Area, &row.Stress};
        ++line;
        for (int column = 0; column < kColumns; ++column) {
            grdStress->SetCellText(line, column, *cells[column]);
            if (column > 0) grdStress->SetCellAlignment(line, column, kNumberAlignment);
        }
        grdStress->SetCellColour(line, kAreaColumn, kAreaColour);
    }
}

void frmTrussStress::Build()
{
    AddMenuItem("mnuBack", "&Back", [this] { mnuBack_Click(); });
    AddMenuItem("mnuPrintStress", "&Print",
                [] { screen::FormAs<frmTruss>("frmTruss").PrintTrussResults(2); });
    lblStress->SetCaption("Type the area of each member. Stress = force ÷ area, in the units of "
                          "the loads and of the areas; tension is positive.");
    lblStress->setWordWrap(true);
    cmdStress(0).setText(Q("&Same Area for All"));
    cmdStress(1).setText(Q("&Close"));
    screen::Describe(*grdStress, "Member stresses", "");
    screen::Describe(*txtGridEdit, "Area");
    screen::Describe(cmdStress(0), "Same area for all",
                     "Give all members the area of the chosen line");
    grdStress->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    auto* central = new QWidget;
    auto* down = screen::Down({lblStress, grdStress});
    down->setContentsMargins(screen::kMargin, screen::kMargin, screen::kMargin, screen::kMargin);
    auto* buttons = screen::Across({&cmdStress(0), &cmdStress(1)});
    buttons->insertStretch(1, 1);
    down->addLayout(buttons);
    central->setLayout(down);
    setCentralWidget(central);
    txtGridEdit->setParent(central);
    setTabOrder(grdStress, &cmdStress(0));
    setTabOrder(&cmdStress(0), &cmdStress(1));
    resize(460, 520);
}

void frmTrussStress::Connect()
{
    OnClick(cmdStress, [this](int index) { cmdStress_Click(index); });
    grdStress->OnKeyPress = [this](int key) { grdStress_KeyPress(key); };
    txtGridEdit->OnKeyDown = [this](int key, int shift) {
        screen::GridKeyDown(*grdStress, *txtGridEdit, key, shift);
    };
    txtGridEdit->OnLostFocus = [this] { txtGridEdit_LostFocus(); };
}

} // namespace forcelab::truss
