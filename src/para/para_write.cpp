#include <optional>

#include "device/ct_device.h"
#include "device/ct_difference.h"
#include "forms/frm_main.h"
#include "forms/frm_parameta2.h"
#include "link/status_commands.h"
#include "para/axes_on_trial.h"
#include "para/device_take.h"
#include "para/para_axis_show.h"
#include "para/para_content.h"
#include "para/para_flows.h"
#include "para/para_take_view.h"
#include "para/para_transfer_commands.h"
#include "platform/doors.h"
#include "session/session.h"
#include "state/message_box.h"
#include "state/selection.h"
#include "state/text.h"
#include "state/views.h"
#include "steps/held_write.h"
#include "steps/transfer_scope.h"
#include "steps/write_taken.h"

namespace tr7 {
namespace {

constexpr int kMsgWriteFailed = 1528, kMsgNumberOfAxes = 7837;

enum class AxesOf { Both, Pc, Ct, Neither };

/// The line says what it does while nothing of it can be seen.
class WaitNotice {
 public:
  WaitNotice() {
    frmMain.lblStatus.Caption = Text(1902);
    doors.forms->Refresh();
  }
  ~WaitNotice() { frmMain.lblStatus.Caption.clear(); }
  WaitNotice(const WaitNotice&) = delete;
  WaitNotice& operator=(const WaitNotice&) = delete;
};

bool ModeIsRead() {
  if (ReadCtModeAndAxis() == 0) return true;
  Tell(377);
  return false;
}

AxesOf TakeAxesOfCt() {
  if (ReadCtAxisFromCt() == 0) {
    ParaFlags.ShownAxisCount = 0;  // the view's own number of axes counts no more
    return AxesOf::Ct;
  }
  Tell(kMsgWriteFailed);
  return AxesOf::Neither;
}

/// Also known as CheckParaAxisOfCt: which side's axes count, by those just read with the mode.
AxesOf AgreeOnAxes() {
  if (AppState.AxisMuko == AppState.AxisMukoOfCt) return AxesOf::Both;
  switch (SelectionDialog({.Title = Text(471),
                           .What = 7190,
                           .Prompt = Text(472),
                           .Choices = {Text(473), Text(474)},
                           .Details = AxesDifference()})) {
    case Selection::First:
      return AxesOf::Pc;
    case Selection::Second:
      return TakeAxesOfCt();
    default:
      return AxesOf::Neither;
  }
}

bool AxesMayBeWritten() {
  std::string counts;
  const int more = CheckCtAxisAndParaAxis(&counts);
  if (more != 1) return more == 0;
  return AskYesToLose(TwoLines(631, 632) + "\n" + Text(633), counts);
}

bool ViewIsTaken(AxesOf axes) {
  if (!TakeParaView(1524, 1525)) return false;
  if (axes == AxesOf::Ct) ParamSet.OneAxis = AppState.AxisPattern;
  return true;
}

/// False after the user has been told. Parameters that are stored count, whatever became of the
/// axes' release behind them.
bool Write(AxesOf axes) {
  std::optional<Outcome> sent;
  static_cast<void>(WriteHeld([&] {
    sent = axes == AxesOf::Pc ? WriteAxesAndParaToCt() : WriteParaToCt();
    return *sent;
  }));
  if (sent && *sent != Outcome::Done) Tell(kMsgWriteFailed);
  return sent == Outcome::Done;
}

/// What was written becomes the PC's where the user wants that.
void Reflect(AxesOnTrial& before) {
  if (!AskYes(685)) return;
  const WaitNotice notice;
  if (TakeDevicesOfParam()) return before.Keep();
  MsgBox(TwoLines(4, 5));
}

void TellWritten(bool other_mode) {
  TellWriteDone(1527);
  if (!other_mode) return;
  AppState.CtModePending = True;
  MsgBox(TwoLines(492, 497), MsgButtons::Ok, MsgIcon::Information);
}

/// True when the tool ends because of what was written.
bool WriteAndTell() {
  FilledCheck filled;
  const TransferScope transfer;
  if (!AskYesToLose(Text(470)) || !ConnectOrOpenPort() || !ModeIsRead()) return false;
  const bool ct_runs_programs = AppState.CtModeOfCt;
  AxesOnTrial before;
  const AxesOf axes = AgreeOnAxes();
  if (axes == AxesOf::Neither) return false;
  if (!filled.Holds() || !AxesMayBeWritten() || !ViewIsTaken(axes) || !Write(axes)) return false;
  ShowParaAxisMask();
  if (ParaIsChanged()) frmParameta2.FilePath.clear();  // the file holds other values
  MarkParaSaved();
  Reflect(before);
  const bool other_mode = (ParamSet.PosPrg == 1) != ct_runs_programs;
  TellWritten(other_mode);
  return other_mode;
}

}  // namespace

int CheckCtAxisAndParaAxis(std::string* counts) {
  const int of_ct = GetVersionNoAxis();
  if (of_ct < 0) return -1;
  const int chosen = frmParameta2.comboOneAxis.ListIndex;
  const int of_view = chosen >= 1 && chosen < kAxes ? chosen + 1 : 1;
  const int wanted = frmParameta2.chkTokuParaChange.Value ? of_view : AppState.AxisCount;
  if (counts) {
    *counts = DifferenceLine(Text(kMsgNumberOfAxes), std::to_string(wanted), std::to_string(of_ct));
  }
  return wanted <= of_ct ? 0 : 1;
}

void WriteParaFlow() {
  // The views refuse to close while a flow runs, so the end comes behind it.
  if (WriteAndTell()) CloseView(frmMain, CloseReason::Code);
}

}  // namespace tr7
