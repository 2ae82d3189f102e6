#include "prog/prog_no.h"

#include "base/text_helpers.h"
#include "forms/frm_prog_no.h"
#include "prog/prog_store.h"
#include "state/app_state.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

void ShowSelected() { frmProgNo.lblProgNo.Caption = std::to_string(frmProgNo.flgdProgNo.Row); }

void Load() {
  Grid& list = frmProgNo.flgdProgNo;
  ListPrograms(list);
  DispStepNo(list);
  frmProgNo.ProgSelCancel = True;  // until OK: the window may close by itself
  list.SelectCell(frmProgNo.ProgSelNo, 1);
  list.TopRow = frmProgNo.ProgSelNo;
}

void Accept() {
  const Grid& list = frmProgNo.flgdProgNo;
  if (list.Row < 1) return;
  frmProgNo.ProgSelNo = static_cast<std::int16_t>(list.Row);
  frmProgNo.ProgSelSteps = static_cast<std::int16_t>(Val(list.Text(list.Row, 1)));
  frmProgNo.ProgSelCancel = False;
  frmProgNo.Visible = false;
}

}  // namespace

void ListPrograms(Grid& list) {
  list.SetText(0, 0, Text(711));
  list.SetColWidth(0, 400);
  list.SetColWidth(1, 1200);
  list.SetColAlign(1, ColAlign::Centre);
  list.FitsView = true;
  list.SetRowHeight(0, 300);
  for (int program = 1; program <= kPrograms; ++program) {
    list.SetRowHeight(program, 250);
    list.SetText(program, 0, std::to_string(program));
  }
}

void DispStepNo(Grid& list) {
  const bool known = !AppState.Offline && AppState.ProgStepsRead;
  list.SetText(0, 1, Text(known ? MsgId(712) : MsgId(715)));
  for (int program = 1; program <= kPrograms; ++program) {
    const int steps = known ? ProgCt.ProgStepCounts[program] : GetProgStepMax(program);
    list.SetText(program, 1, std::to_string(steps));
  }
}

std::optional<int> AskProgNo() {
  ShowViewModal(frmProgNo);
  if (frmProgNo.ProgSelCancel) return std::nullopt;
  return frmProgNo.ProgSelNo;
}

void InstallProgNo() {
  FrmProgNo& f = frmProgNo;
  f.Load = Load;
  f.flgdProgNo.CanEdit = [](int, int) { return false; };
  f.flgdProgNo.SelChange = ShowSelected;
  f.flgdProgNo.Choose = f.cmdOk.Click = Accept;
  f.cmdCancel.Click = [] { frmProgNo.Visible = false; };
}

}  // namespace tr7
