#include "prog/prog_verify.h"

#include <algorithm>

#include "forms/frm_prog_syogokekka.h"
#include "prog/prog_hint.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr const char* kDiffers = "X";

void Fill(const ProgSyogo& found) {
  Grid& grid = frmProgSyogokekka.flgdProgSyogoKekka;
  grid.SetRows(1 + static_cast<int>(found.steps.size()));
  for (int column = 0; column < grid.Cols(); ++column) {
    grid.SetText(0, column, ProgHeading(column));
    grid.SetColWidth(column, column == 0 ? 400 : 1000);
    if (column > 0) grid.SetColAlign(column, ColAlign::Centre);
  }
  int row = 1;
  for (const ProgSyogo::Step& step : found.steps) {
    grid.SetRowHeight(row, 250);
    grid.SetText(row, 0, std::to_string(step.number));
    for (int column = kProgCommand; column <= kProgResult; ++column) {
      const bool differs = step.differs.at(static_cast<std::size_t>(column) - 1);
      grid.SetText(row, column, differs ? kDiffers : "O");
    }
    ++row;
  }
}

}  // namespace

ProgSyogo ProgDataVerifyProc(const std::vector<ProgStep>& here,
                             const std::vector<ProgStep>& there) {
  ProgSyogo found;
  const std::size_t shorter = std::min(here.size(), there.size());
  for (std::size_t i = 0; i < std::max(here.size(), there.size()); ++i) {
    ProgSyogo::Step step{static_cast<int>(i) + 1, {}};
    for (std::size_t field = 0; field < step.differs.size(); ++field) {
      step.differs[field] = i >= shorter || here[i].Fields[field] != there[i].Fields[field];
    }
    const auto& marks = step.differs;
    if (std::find(marks.begin(), marks.end(), true) != marks.end()) found.steps.push_back(step);
  }
  return found;
}

void ShowProgSyogo(const ProgSyogo& found) {
  Fill(found);
  ShowViewModal(frmProgSyogokekka);
}

void InstallProgSyogokekka() {
  FrmProgSyogokekka& f = frmProgSyogokekka;
  f.flgdProgSyogoKekka.CanEdit = [](int, int) { return false; };
  f.flgdProgSyogoKekka.IsMarked = [](int row, int column) {
    const Grid& grid = frmProgSyogokekka.flgdProgSyogoKekka;
    return row >= 1 && row < grid.Rows() && column >= 1 && grid.Text(row, column) == kDiffers;
  };
  f.cmdClose.Click = [] { frmProgSyogokekka.Visible = false; };
}

}  // namespace tr7
