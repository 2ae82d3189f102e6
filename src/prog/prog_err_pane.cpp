#include "prog/prog_err_pane.h"

#include "state/text.h"

namespace tr7 {
namespace {

constexpr double kPaneHeight = 3000;
constexpr int kStepColumn = 1, kTextColumn = 2;

}  // namespace

void InitSize_FGPrgErr(Grid& errors) {
  errors.SetColWidth(0, 400);
  errors.SetColWidth(kStepColumn, 1800);
  errors.SetColWidth(kTextColumn, -1);
  errors.SetColAlign(kTextColumn, ColAlign::Left);
}

void SetStr_FGProgErr(Grid& errors) {
  errors.SetText(0, 0, Text(711));
  errors.SetText(0, kStepColumn, Text(736));
  errors.SetText(0, kTextColumn, Text(737));
}

void ProgErrShow(ProgView& view) {
  Grid& errors = view.flgdPrgErr;
  ProgErrClear(errors);
  const auto& records = view.Store.ProgErrList;
  for (int row = 1; row < errors.Rows() && row <= static_cast<int>(records.size()); ++row) {
    const ProgError& record = records[static_cast<std::size_t>(row) - 1];
    errors.SetText(row, kStepColumn, std::to_string(record.step));
    errors.SetText(row, kTextColumn, record.text);
  }
  errors.SelectCell(0, 0);
}

void ProgErrClear(Grid& errors) {
  for (int row = 1; row < errors.Rows(); ++row) {
    errors.SetText(row, 0, std::to_string(row));
    errors.SetText(row, kStepColumn, "");
    errors.SetText(row, kTextColumn, "");
  }
}

void ProgErrPaneOpen(ProgView& view) {
  // A view that fills the frame has room for it: without the pane nothing would tell the errors,
  // nor take their mark away.
  if (view.Minimised) return;
  if (!view.ErrPaneIsOpen) view.Height += kPaneHeight;
  view.ErrPaneIsOpen = view.flgdPrgErr.Visible = view.cmdCloseSyntaxErr.Visible = true;
}

void ProgErrPaneClose(ProgView& view) {
  if (view.ErrPaneIsOpen) view.Height -= kPaneHeight;
  view.ErrPaneIsOpen = view.flgdPrgErr.Visible = view.cmdCloseSyntaxErr.Visible = false;
}

}  // namespace tr7
