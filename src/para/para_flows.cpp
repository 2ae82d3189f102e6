#include "para/para_flows.h"

#include <string>

#include "device/ct_device.h"
#include "device/ct_difference.h"
#include "device/limits.h"
#include "device/take_ct_device.h"
#include "forms/frm_parameta2.h"
#include "para/axes_on_trial.h"
#include "para/para_columns.h"
#include "para/para_content.h"
#include "para/para_file_flow.h"
#include "para/para_show.h"
#include "para/para_take_view.h"
#include "para/para_transfer_commands.h"
#include "para/para_verify.h"
#include "para/param_set.h"
#include "session/followers.h"
#include "session/reconcile.h"
#include "session/session.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"
#include "steps/transfer_scope.h"

namespace tr7 {
namespace {

constexpr int kMsgError = 6550;

enum class Devices { AsHere, FromCt, Ended };

bool AxesAreRead() {
  if (ReadCtAxisFromCt() == 0) return true;
  Tell(359);
  return false;
}

/// Holds the controller's devices against those in use. Ended: the user would rather not take
/// them, or they could not be read.
Devices AgreeOnDevices(bool other_axes) {
  const int difference = CompareCtDevice();
  if (difference < 0) return Devices::Ended;
  if (difference == 0 && !other_axes) return Devices::AsHere;
  const std::string question = TwoLines(356, 357) + "\n" + Text(358);
  if (MsgBoxWithDetails(question, DeviceDifference(), MsgButtons::OkCancel, MsgIcon::Question) !=
      MsgAnswer::Ok) {
    return Devices::Ended;
  }
  if (!WarnOfDeviceChange(true)) return Devices::Ended;
  if (ReadCtDeviceFromCt() == 0) {
    return DevicesOfCtCanBeTaken() ? Devices::FromCt : Devices::Ended;
  }
  EndSession();
  return Devices::Ended;
}

void TakeDevices() {
  TakeDevFromCt();
  RecalcLimits();
  Followers.PositionsFollowDevices();
}

void ShowRead() {
  YukoJikuHyojiSettei();
  ParametaHyoji();
  MarkParaSaved();
  frmParameta2.FilePath.clear();
}

bool ViewMayBeCompared(FilledCheck& filled) { return filled.Holds() && TakeParaView(1524, 1525); }

/// `mask`: the axes that the other side has.
void ReportComparison(int mask) {
  switch (BuildParaVerifyReport(mask)) {
    case 0:
      return TellDone(826);
    case 1:
      MsgBoxWithDetails(ParaVerifyText(), ParaFlags.VerifyDetails);
      return;
    default:
      Tell(kMsgError);
  }
}

}  // namespace

bool ParametersAreRead() {
  const WaitCursorScope wait_cursor;
  const Outcome outcome = ReadParaFromCt();
  if (outcome == Outcome::Stopped) TellDone(425);
  return outcome == Outcome::Done;
}

void GetParametaValue() {
  if (!MayDropParaChanges(355)) return;
  const TransferScope transfer;
  if (!ConnectOrOpenPort()) return;
  AxesOnTrial axes;
  if (!AxesAreRead()) return;
  const Devices devices = AgreeOnDevices(axes.Changed());
  // Nothing is taken before all of it is there.
  if (devices == Devices::Ended || !ParametersAreRead() || TakeParamTable() != 0) return;
  axes.Keep();
  if (devices == Devices::FromCt) TakeDevices();
  ShowRead();
}

void VerifyParaToCt() {
  FilledCheck filled;
  const TransferScope transfer;
  if (!ViewMayBeCompared(filled) || !ConnectOrOpenPort()) return;
  if (ParametersAreRead()) ReportComparison(ParaOfCt.AxisMask);
}

void VerifyParaToFile() {
  FilledCheck filled;
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!ViewMayBeCompared(filled) || !AskOk(679)) return;
  if (ReadParaFileToVerify()) ReportComparison(LiveAxisMask());
}

}  // namespace tr7
