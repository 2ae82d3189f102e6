#include "data/sm_view.h"

#include <cstddef>
#include <cstdint>
#include <optional>

#include "base/text_helpers.h"
#include "data/data_keep.h"
#include "data/data_view.h"
#include "data/kept_aside.h"
#include "data/sm_file.h"
#include "data/sm_kind.h"
#include "data/sm_show.h"
#include "data/sm_table.h"
#include "forms/frm_main.h"
#include "forms/frm_sq_mcr.h"
#include "platform/doors.h"
#include "state/busy_scope.h"
#include "state/views.h"

namespace tr7 {
namespace {

KeptAside<SmTableRecord> macros_aside;

SmStep& StepAt(std::size_t row) { return SmTable[ShownMacro() - 1][row]; }

// The rows.

/// A command that has been picked and not left yet: going through the list must not cost the step
/// its value on the way past END.
struct PickedCommand {
  std::size_t macro, row;
};
std::optional<PickedCommand> picked;

/// The table with that command in it.
SmTableRecord WithPicked() {
  SmTableRecord table = SmTable;
  if (!picked) return table;
  SmStep& step = table[picked->macro][picked->row];
  step.Command = static_cast<std::int16_t>(frmSqMcr.Rows[picked->row].comboMerei.ListIndex);
  if (step.Command == kSmEnd) step.Value = 0;
  return table;
}

void TakePicked() {
  if (!picked) return;
  SmTable = WithPicked();
  picked.reset();
  SmShow();
}

void CommandPicked(std::size_t row) {
  const PickedCommand now{static_cast<std::size_t>(ShownMacro()) - 1, row};
  if (picked && picked->row != row) TakePicked();
  picked = now;
  ShowWhatValueTakes(frmSqMcr.Rows[row]);
}

void CommandLeft(std::size_t row) {
  const int code = frmSqMcr.Rows[row].comboMerei.ListIndex;
  if (code < 0 || code >= static_cast<int>(kSmCommands.size())) return doors.forms->Beep();
  TakePicked();
}

void ShowOtherMacro() {
  TakePicked();
  SmShow();
}

/// A value out of its command's range becomes 1.
void ValueEntered(std::size_t row) {
  TakePicked();
  SmStep& step = StepAt(row);
  if (step.Command == kSmEnd) return;
  if (step.Value >= 1 && step.Value <= SmHighestValue(step.Command)) return;
  step.Value = 1;
  SmShow();
}

void ValueTyped(std::size_t row) {
  StepAt(row).Value = static_cast<std::int16_t>(Val(frmSqMcr.Rows[row].txtSmData.Text));
}

void InstallRow(std::size_t row) {
  SmRow& shown = frmSqMcr.Rows[row];
  for (std::size_t code = 0; code < kSmCommands.size(); ++code) {
    shown.comboMerei.AddItem(kSmCommands[code], static_cast<int>(code));
  }
  shown.comboMerei.Click = [row] { CommandPicked(row); };
  shown.comboMerei.LostFocus = shown.comboMerei.Enter = [row] { CommandLeft(row); };
  shown.txtSmData.GotFocus = [row] { ValueEntered(row); };
  shown.txtSmData.Change = [row] { ValueTyped(row); };
  shown.txtSmData.Enter = [row] {
    doors.forms->SetFocus(frmSqMcr.Rows[(row + 1) % frmSqMcr.Rows.size()].comboMerei);
  };
}

// The view.

void LoadMacros() {
  picked.reset();
  for (std::size_t row = 0; row < frmSqMcr.Rows.size(); ++row) {
    frmSqMcr.Rows[row].lblSmStep.Caption = std::to_string(row + 1) + ".";
  }
  SmTable = SmTableRecord{};
  SmFlags.SmFilePath.clear();
  frmSqMcr.UpDownSmNo.Value = 1;
  macros_aside.Offer(frmSqMcr.cmdSmRestore);
  SmShow();
}

void ForgetMacros() {
  TakePicked();
  macros_aside.Keep(SmTable, SmTable == SmSaved);
}

void BringBack() {
  TakePicked();
  macros_aside.BringBack(SmTable, SmSaved);
  SmFlags.SmFilePath.clear();  // which file they came from is not kept
  macros_aside.Offer(frmSqMcr.cmdSmRestore);
  SmShow();
}

bool RefusesToEnd() {
  TakePicked();
  return macros_aside.RefusesToEnd(frmSqMcr.Loaded && SmKind().IsChanged(), frmSqMcr.Tag);
}

KeepKind KeptMacros() {
  return KeptTables<SmTableRecord>({.word = "sm",
                                    .view = frmSqMcr,
                                    .shown_by = frmMain.mnuViewSM,
                                    .aside = macros_aside,
                                    .held = SmTable,
                                    .saved = SmSaved,
                                    .path = SmFlags.SmFilePath,
                                    .on_screen = WithPicked,
                                    .text_of = SmFileText,
                                    .read_to_stage = SmTextRead,
                                    .show_stage = SmKind().TakeStage});
}

void SwitchCommands(bool on) {
  TakePicked();
  SwitchControls(frmSqMcr, on);
  SmShow();  // an end takes no value
}

void InstallButtons() {
  FrmSqMcr& f = frmSqMcr;
  InstallDataButtons(f, frmMain.mnuViewSM,
                     {f.cmdReadSMfromCt, f.cmdWriteSMtoCt, f.cmdSmCTShogo, f.cmdSmFileOpen,
                      f.cmdSmFileSave, f.cmdSmFileShogo, f.cmdClose},
                     SmKind());
  f.cmdSmCompare.Click = CompareMacros;
  f.cmdSmRestore.Click = BringBack;
}

}  // namespace

void InstallSmView() {
  FrmSqMcr& f = frmSqMcr;
  macros_aside = {};
  picked.reset();
  f.Load = LoadMacros;
  f.QueryUnload = [](CloseReason) { return FlowKeepsViewsOpen(); };
  f.QueryEnd = RefusesToEnd;
  f.Unload = ForgetMacros;
  f.CmdMuko = [] { SwitchCommands(false); };
  f.CmdYuko = [] { SwitchCommands(true); };
  for (std::size_t row = 0; row < f.Rows.size(); ++row) InstallRow(row);
  f.UpDownSmNo.Change = ShowOtherMacro;
  f.OpenedBy = &frmMain.mnuViewSM;
  KeepKinds().push_back(KeptMacros());
  InstallButtons();
  SwitchControls(f, true);
}

}  // namespace tr7
