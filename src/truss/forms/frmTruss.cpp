#include "truss/forms/frmTruss.h"

#include "core/MainModule.h"
#include "core/screen/Forms.h"
#include "core/screen/Help.h"
#include "core/screen/NarrationBox.h"
#include "truss/MemberStress.h"
#include "truss/TrussNarration.h"
#include "truss/forms/frmDefGrid.h"
#include "truss/forms/frmTrussStress.h"

#include <QSignalBlocker>

#include <array>
#include <utility>

namespace forcelab::truss {

using screen::Forms;
using screen::Q;

namespace {

constexpr int kHelpTopic = 2000;
constexpr int kEraseModes = 10;
constexpr std::array<std::string_view, 2> kHeadings{"Member Forces", "Reactions"};
constexpr std::string_view kKeptGrid =
    "A grid cannot be laid with these spacings. Every spacing must be larger than zero, and the "
    "grid stays as it was.";

} // namespace

frmTruss::frmTruss()
{
    BuildMenus();
    Connect();
}

void frmTruss::BuildMenus()
{
    AddMenuItem("mnuBack", "&Back", [this] { mnuBack_Click(); });
    mnuTrussStress = AddMenuItem("mnuTrussStress", "&Stresses", [this] { mnuTrussStress_Click(); });
    mnuPrintResults = AddMenuItem("mnuPrintResults", "&Print", [this] { PrintTrussResults(1); });
    AddMenuItem("mnuHelpTruss", "&Help", [this] { mnuHelpTruss_Click(); });
}

void frmTruss::Connect()
{
    On(cmdGridMake, &QPushButton::clicked, [this] { cmdGridMake_Click(); });
    OnClick(cmdSpacing, [this](int index) { cmdSpacing_Click(index); });
    OnClick(optTrussDefine, [this](int index) { optTrussDefine_Click(index); });
    OnClick(optMakeOrTake, [this](int index) { optMakeOrTake_Click(index); });
    On(cmdExplain, &QPushButton::toggled, [this] { cmdExplain_Click(); });
    for (const auto& [index, heading] : txtTrussResults.Members())
        On(heading, &QLineEdit::textChanged, [this, i = index] { txtTrussResults_Change(i); });
    On(timMotion, &QTimer::timeout, [this] { timMotion_Timer(); });
    picTruss->OnPaint = [this](Picture& pic) { picTruss_Paint(pic); };
    picTruss->OnPaintOver = [this](Picture& pic) { DrawOver(pic); };
    picTruss->OnMouseDown = [this](const auto& mouse) { picTruss_MouseDown(mouse); };
    picTruss->OnMouseMove = [this](const auto& mouse) { picTruss_MouseMove(mouse); };
    picTruss->OnMouseUp = [this](const auto& mouse) { picTruss_MouseUp(mouse); };
    picTruss->setFocusPolicy(Qt::StrongFocus);
    picTruss->installEventFilter(this);
}

void frmTruss::Form_Load()
{
    CurrentTruss = {};
    CurrentAreas.clear();
    StartFromScratch();
}

void frmTruss::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    mnuBack_Click();
}

void frmTruss::Form_Unload()
{
    StopMotion();
}

void frmTruss::StartFromScratch()
{
    LastLoadText = kFirstLoadText;
    ForgetResults();
    optTrussDefine.Choose(0);
    optMakeOrTake.Choose(0);
    for (const auto& [index, frame] : fraDefineOptions.Members()) frame->hide();
    keys_.Reset();
    DrawModel();
    cmdSpacing(0).setEnabled(false);
    cmdSpacing(1).setEnabled(false);
    Instruct(WelcomeText());
}

void frmTruss::cmdGridMake_Click()
{
    if (ResultsShown) return DrawModel();
    StopMotion();
    auto& asked = screen::FormAs<frmDefGrid>("frmDefGrid");
    asked.Begin();
    Forms::ShowModal("frmDefGrid");
    if (asked.Cancelled()) return;
    if (asked.Unusable()) return Instruct(kKeptGrid);
    TakeNewGrid();
}

void frmTruss::TakeNewGrid()
{
    CurrentAreas.clear();
    StartFromScratch();
    for (const auto& [index, frame] : fraDefineOptions.Members()) frame->show();
    SetMode(ChangedBy::Define);
}

void frmTruss::cmdSpacing_Click(int Index)
{
    if (Index == 2) return mnuBack_Click();
    if (Index == 1) return Compute();
    UndoMember(CurrentTruss);
    ForgetResults();
    DrawModel();
}

void frmTruss::optTrussDefine_Click(int /*Index*/)
{
    SetMode(ChangedBy::Define);
}

void frmTruss::optMakeOrTake_Click(int /*Index*/)
{
    SetMode(ChangedBy::MakeOrTake);
}

// A drag that began in another mode must not end in this one.
void frmTruss::SetMode(ChangedBy by)
{
    TrussMode = optTrussDefine.Chosen() + kEraseModes * optMakeOrTake.Chosen();
    if (!CurrentTruss.HasGrid()) return;
    GiveUp();
    cmdSpacing(0).setEnabled(TrussMode == kCreateMembers);
    Instruct(InstructionText(TrussMode, by));
}

void frmTruss::txtTrussResults_Change(int Index)
{
    const QSignalBlocker quiet(&txtTrussResults(Index));
    txtTrussResults(Index).SetText(kHeadings[Index]);
}

void frmTruss::mnuBack_Click()
{
    StopMotion();
    drag_ = {};
    DrawModel();
    Forms::Show("frmMainMenu");
    Forms::Hide("frmTruss");
}

void frmTruss::mnuTrussStress_Click()
{
    screen::FormAs<frmTrussStress>("frmTrussStress").TakeResults(results_);
    Forms::ShowModal("frmTrussStress");
}

void frmTruss::mnuHelpTruss_Click()
{
    MainModule::HelpContext = kHelpTopic;
    screen::ShowHelpTopic();
}

// The first text names the button with its mnemonic, which only the label of a button may
// underline.
void frmTruss::Instruct(std::string_view text)
{
    const bool begins = !CurrentTruss.HasGrid();
    lblInstruct->setBuddy(begins ? cmdGridMake : nullptr);
    cmdGridMake->setText(cmdGridMake->text()); // brings its shortcut back
    if (begins) cmdGridMake->setShortcut({});
    lblInstruct->SetCaption(text);
    if (std::exchange(motionTold_, false)) picTruss->Refresh(); // the letters of the joints go
}

// The model in editing, which ends every change of it.
void frmTruss::DrawModel()
{
    StopMotion();
    ResultsShown = false;
    cmdGridMake->setText(Q("&New Truss"));
    Explain({});
    if (motionTold_) Instruct(InstructionText(TrussMode, ChangedBy::Define));
    if (const auto enabled = ComputeEnabled(CurrentTruss)) cmdSpacing(1).setEnabled(*enabled);
    picTruss->Refresh();
}

// Results of a truss that has changed since would mislead.
void frmTruss::ForgetResults()
{
    results_ = {};
    for (const auto& [index, list] : cboTrussResults.Members()) {
        list->Clear();
        list->hide();
    }
    for (const auto& [index, heading] : txtTrussResults.Members()) heading->hide();
    mnuTrussStress->setEnabled(false);
    mnuPrintResults->setEnabled(false);
}

void frmTruss::Compute()
{
    StopMotion();
    drag_ = {};
    const TrussAnalysis analysis = AnalyzeTruss(CurrentTruss);
    if (analysis.Failure) return ShowFailure(analysis);
    results_ = analysis.Results;
    ShowResults();
}

void frmTruss::ShowResults()
{
    const std::vector<std::string>* lines[] = {&results_.MemberLines, &results_.ReactionLines,
                                               &results_.MemberNames, &results_.MemberForces};
    for (int list = 0; list < 4; ++list) {
        cboTrussResults(list).Clear();
        for (const std::string& line : *lines[list]) cboTrussResults(list).AddItem(line);
        cboTrussResults(list).setVisible(list < 2);
        if (list < 2) txtTrussResults(list).show();
    }
    ResultsShown = true;
    cmdGridMake->setText(Q("E&dit"));
    mnuTrussStress->setEnabled(true);
    mnuPrintResults->setEnabled(true);
    Explain(ExplainTruss(CurrentTruss, results_));
    picTruss->Refresh();
}

void frmTruss::ShowFailure(const TrussAnalysis& analysis)
{
    mnuTrussStress->setEnabled(false);
    mnuPrintResults->setEnabled(false);
    Show(*analysis.Failure);
    if (analysis.Motion) StartMotion(*analysis.Motion);
}

void frmTruss::cmdExplain_Click()
{
    ShowExplanation(cmdExplain->isChecked() && cmdExplain->isEnabled());
}

void frmTruss::Explain(const std::string& text)
{
    screen::ShowNarration(*txtExplain, text);
    cmdExplain->setEnabled(!text.empty());
    cmdExplain_Click();
}

} // namespace forcelab::truss
