#include "data/sm_show.h"

#include "data/sm_table.h"
#include "forms/frm_sq_mcr.h"
#include "state/app_state.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgHolding = 6501;
constexpr int kMsgNoneHolds = 6502;

std::string MacrosWithData() {
  std::string numbers;
  for (int n = 1; n <= kMacros; ++n) {
    if (!MacroHoldsData(SmTable[n - 1])) continue;
    numbers += (numbers.empty() ? "" : ", ") + std::to_string(n);
  }
  return numbers.empty() ? Text(kMsgNoneHolds) : Text(kMsgHolding, numbers);
}

/// A code that the list lacks leaves the row as it was.
void ShowStep(const SmStep& step, SmRow& row) {
  const int code = step.Command == kSmBlank ? kSmEnd : step.Command;
  if (code < 0 || code >= static_cast<int>(row.comboMerei.List.size())) return;
  row.comboMerei.ListIndex = code;
  row.txtSmData.Text = code == kSmEnd ? "" : std::to_string(step.Value);
  ShowWhatValueTakes(row);
}

}  // namespace

int ShownMacro() { return frmSqMcr.UpDownSmNo.Value; }

void ShowWhatValueTakes(SmRow& row) {
  const int code = row.comboMerei.ListIndex;
  row.txtSmData.AllowedChars = SmHighestValue(code) > 4 ? "123456789" : "1234";
  row.txtSmData.Enabled = code != kSmEnd && AppState.CommandsOffDepth == 0;
}

void SmShow() {
  FrmSqMcr& f = frmSqMcr;
  f.lblSqMacroNo.Caption = std::to_string(ShownMacro());
  f.lblSmHolds.Caption = MacrosWithData();
  for (std::size_t s = 0; s < f.Rows.size(); ++s) ShowStep(SmTable[ShownMacro() - 1][s], f.Rows[s]);
}

}  // namespace tr7
