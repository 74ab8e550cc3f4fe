#pragma once

#include "core/screen/ControlArray.h"
#include "core/screen/FlexGrid.h"
#include "core/screen/Form.h"
#include "core/screen/Layout.h"
#include "core/screen/PictureBox.h"
#include "sections/Report.h"

#include <QPushButton>

#include <cstdint>
#include <vector>

namespace forcelab::sections {

/// Shows how the properties of the current section came about: the tables of its elements, its
/// picture and the list of its properties, which it also prints.
class frmCrossSection : public screen::Form {
  public:
    frmCrossSection();

    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;
    void Form_Resize() override;

    /// Shows what the last computation left in CurrentSection.
    void Refresh();

  private:
    void mnuOrient_Click(int Index);
    void mnuDetails_Click();
    void mnuPrint_Click();
    void cmdPrint_Click();
    void cmdPrintCancel_Click();
    void picCrossSection_Paint(Picture& pic);

    void EnableItems();
    [[nodiscard]] ReportTable CheckedTable() const;
    void ShowGrid();
    void FillCells(const ReportGrid& grid);
    void ResetGridRowHeight();
    void ResetGridColumnWidth();
    void ShowSummary();
    void ShowPrintPanel(bool visible);

    void Build();
    void BuildMenus();
    void BuildDetails();
    QWidget* BuildSummary();
    void BuildPrintPanel();
    void BuildWindow();
    void DescribeControls();
    void Connect();

    std::int16_t ReportAxis = 0;    ///< 0 Z-Z, 1 Y-Y
    std::vector<QAction*> details_; ///< by ReportTable
    ReportTable chosen_ = ReportTable::Centroid;

    screen::Frame* fraDetailProperties = Make<screen::Frame>("fraDetailProperties");
    screen::FlexGrid* grdD = Make<screen::FlexGrid>("grdD");
    screen::Label* lblUnderGrid = Make<screen::Label>("lblUnderGrid");
    screen::Label* lblExplanation = Make<screen::Label>("lblExplanation");
    screen::PictureBox* picCrossSection = Make<screen::PictureBox>("picCrossSection");
    screen::Frame* fraSummary = Make<screen::Frame>("fraSummary");
    screen::ControlArray<screen::FlexGrid> grdSummary{this, "grdSummary", 2};
    screen::Frame* fraPrint = Make<screen::Frame>("fraPrint");
    screen::Label* lblPrintCaption = Make<screen::Label>("lblPrintCaption");
    screen::TextBox* txtPrintCaption = Make<screen::TextBox>("txtPrintCaption");
    screen::Label* lblPrintSize = Make<screen::Label>("lblPrintSize");
    screen::ComboBox* cboPrintSize = Make<screen::ComboBox>("cboPrintSize");
    QPushButton* cmdPrint = Make<QPushButton>("cmdPrint");
    QPushButton* cmdPrintCancel = Make<QPushButton>("cmdPrintCancel");
};

/// Shares the lines of the summary out to the two columns in which they are listed; a group stays
/// together.
std::array<std::vector<SummaryLine>, 2> SummaryColumns(const std::vector<SummaryLine>& lines);

} // namespace forcelab::sections
