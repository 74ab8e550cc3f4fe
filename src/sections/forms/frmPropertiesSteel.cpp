#include "core/MainModule.h"
#include "core/NumericText.h"
#include "core/screen/Services.h"
#include "sections/forms/frmProperties.h"

#include <algorithm>
#include <utility>

namespace forcelab::sections {

namespace {

constexpr const char* kFindTitle = "Find the steel data files (*.stl)";
constexpr const char* kFindFilter = "Steel shape files (*.stl)";
constexpr const char* kNoGrade = "Steel Type and Grade";

std::string TitleOf(const SteelShape& shape)
{
    return shape.Designation + "  AISC Shape";
}

bool IsTubular(int family)
{
    return family == kFamilyTS || family == kFamilyPipe;
}

// The text up to and including the last separator.
std::string FolderOf(const QString& file)
{
    const std::string path = file.toStdString();
    return path.substr(0, path.find_last_of("/\\") + 1);
}

} // namespace

// Asks for the folder until all seven files can be read there, or until the dialog is cancelled.
void frmProperties::OpenSteelFiles()
{
    for (;;) {
        {
            const screen::Hourglass hourglass;
            if (auto tables = ReadSteelFiles(MainModule::DataPath)) {
                steel_ = std::move(*tables);
                SteelFilesMissing = false;
                return;
            }
        }
        if (!AskForSteelFolder()) {
            SteelFilesMissing = true;
            return;
        }
    }
}

bool frmProperties::AskForSteelFolder()
{
    const QString file = screen::Services::Current().Files->OpenFile(
        this, screen::Q(kFindTitle), screen::Q(MainModule::DataPath), screen::Q(kFindFilter));
    if (file.isEmpty()) return false;
    MainModule::DataPath = FolderOf(file);
    return true;
}

// The entries of the shape that goes are saved before the composite check is cleared.
void frmProperties::mnuAISC_Click(int Index)
{
    OpenSteelFiles();
    if (SteelFilesMissing) return;
    CollectKeep();
    collected_ = true;
    ShowInputs();
    ShowSteelFrame(true);
    chkElasticModulus->setChecked(false);
    cmdShape(1).setEnabled(true);
    if (optAShape.Chosen() == Index) return optAShape_Click(Index);
    optAShape.Choose(Index);
}

void frmProperties::optAShape_Click(int Index)
{
    if (CurrentSection.SectionComputed) familyComputed_[SteelFamilyShown - kSteelW] = true;
    cboSteelGrade->setVisible(!IsTubular(Index));
    cboTubeGrade->setVisible(IsTubular(Index));
    lblShapeTitle->SetCaption(kSteelFiles[Index].Title);
    SteelFamilyShown = Index + kSteelW;
    if (!collected_) CollectKeep();
    collected_ = true;
    ListSteelShapes(Index);
    const bool remembered = SelectRememberedRow(Index);
    SelectRememberedGrade(Index);
    SelectShape(Index + kSteelW - 1);
    if (!remembered)
        Quietly([this] {
            for (const auto& [box, text] : txtShape.Members()) text->SetText(Format(0, "0.0"));
        });
    lstSteelShapes->setFocus(Qt::OtherFocusReason);
}

void frmProperties::ListSteelShapes(int family)
{
    QStringList names;
    for (const SteelShape& shape : steel_[family]) names.append(screen::Q(shape.Designation));
    Quietly([&] {
        lstSteelShapes->clear();
        lstSteelShapes->addItems(names);
        lstSteelShapes->setCurrentRow(-1);
    });
    SteelRecordNumber = 0;
}

// A row comes back only where the family had been computed before it was left.
bool frmProperties::SelectRememberedRow(int family)
{
    const int record = SteelRowChosen[family];
    if (record == 0 || !familyComputed_[family] || record > int(steel_[family].size()))
        return false;
    Quietly([&] { lstSteelShapes->setCurrentRow(record - 1); });
    SteelRecordNumber = record;
    lblShapeTitle->SetCaption(TitleOf(steel_[family][record - 1]));
    return true;
}

void frmProperties::SelectRememberedGrade(int family)
{
    const QSignalBlocker steel(cboSteelGrade);
    const QSignalBlocker tubes(cboTubeGrade);
    GradesShown(family)->SetListIndex(SteelGradeChosen[family] - 1);
    ShowGrade(family);
}

void frmProperties::ShowGrade(int family)
{
    const int grade = SteelGradeChosen[family] - 1;
    if (grade < 0) {
        txtSteelGrade->SetText(kNoGrade);
        for (const auto& [index, label] : lblSteelGrade.Members()) label->clear();
        return;
    }
    const SteelGrade& chosen = GradesOf(family)[grade];
    txtSteelGrade->SetText(chosen.Text);
    SteelStress = {double(chosen.Yield), double(chosen.Ultimate)};
    lblSteelGrade(0).SetCaption(GradeStresses(chosen));
    CheckSteelGrade(family);
}

void frmProperties::lstSteelShapes_click()
{
    const auto selected = lstSteelShapes->selectedItems(); // the focus alone selects no row
    const int family = FamilyShown();
    if (quiet_ || selected.isEmpty()) return;
    const int row = lstSteelShapes->row(selected.front());
    SteelRecordNumber = row + 1;
    SteelRowChosen[family] = SteelRecordNumber;
    const SteelShape& shape = steel_[family][row];
    const auto boxes = SteelBoxes(shape);
    for (std::size_t box = 0; box < boxes.size(); ++box)
        if (!boxes[box].empty()) txtShape(int(box)).SetText(boxes[box]);
    lblShapeTitle->SetCaption(TitleOf(shape));
    HideResults();
    CheckSteelGrade(family);
}

void frmProperties::cboGrade_Click(int ListIndex)
{
    if (ListIndex < 0) return;
    SteelGradeChosen[FamilyShown()] = ListIndex + 1;
    ShowGrade(FamilyShown());
}

void frmProperties::CheckSteelGrade(int family)
{
    const SteelShape* shape = SteelShapeChosen();
    lblSteelGrade(1).SetCaption(shape ? GradeAvailability(*shape, SteelGradeChosen[family] - 1)
                                      : std::string());
}

screen::ComboBox* frmProperties::GradesShown(int family) const
{
    return IsTubular(family) ? cboTubeGrade : cboSteelGrade;
}

int frmProperties::FamilyShown() const
{
    return std::max(optAShape.Chosen(), 0);
}

// The selected row, where the list of a family is shown.
const SteelShape* frmProperties::SteelShapeChosen() const
{
    if (fraAISCDefine->isHidden() || SteelRecordNumber == 0) return nullptr;
    const auto& table = steel_[FamilyShown()];
    return SteelRecordNumber <= int(table.size()) ? &table[SteelRecordNumber - 1] : nullptr;
}

} // namespace forcelab::sections
