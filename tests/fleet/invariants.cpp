#include "device/device_cascade.h"
#include "link/request_queue.h"
#include "tests/fleet/voyage.h"

namespace tr7 {
namespace {

void CheckCommands(Voyage& voyage) {
  voyage.Require(frmMain.cmdReset.Enabled && frmMain.mnuFile.Enabled &&
                     frmMain.mnuSetting.Enabled && frmPosi.cmdPosiRead.Enabled &&
                     frmPosi.flgdData.Enabled && AppState.CommandsOffDepth == 0,
                 "commands are off");
  voyage.Require(!AppState.ComBusy, "busy");
  voyage.Require(!frmMain.ProgressBar1.Visible && !frmMain.cmdComCancel.Visible &&
                     frmMain.lblStatus.Caption.empty(),
                 "progress bar stands");
  voyage.Require(frmPosi.flgdData.Redraw, "grid does not paint");
  voyage.Require(voyage.virt.forms.wait_cursors == 0, "wait cursor stands");
  for (const ProgView* view : ProgramViews()) {
    voyage.Require(view->cmdProgCheck.Enabled && view->flgdProg.Enabled && view->flgdProg.Redraw &&
                       view->cmdProgWrite.Enabled == !AppState.Offline,
                   "a program's commands lie");
  }
  voyage.Require(!DeviceDialog.DevDialogActive && !DeviceDialog.DevWriting,
                 "a device dialogue stands");
}

/// Online or offline, never between, and everything on the screen says which.
void CheckOnlineState(Voyage& voyage) {
  const bool online = !AppState.Offline;
  const bool program = AppState.CtMode;
  voyage.Require(!AppState.OfflineTemporarilyLifted, "between online and offline");
  voyage.Require(frmMain.imgAlarm.Visible == AppState.AlarmOn, "alarm lamp lies");
  voyage.Require(frmMain.imgOnline.Visible == online &&
                     frmMain.lblOnline.Caption == Text(online ? MsgId(5116) : MsgId(5117)),
                 "online lamp lies");
  voyage.Require(frmMain.mnuSettingOnline.Enabled == !online &&
                     frmMain.mnuSettingOffline.Enabled == online &&
                     frmMain.mnuSettingDeviceOnline.Enabled == online &&
                     frmMain.mnuCont.Enabled == online && frmMain.mnuMonitor.Enabled == online,
                 "menus lie about the line");
  voyage.Require(frmMain.mnuFileNewProg.Visible == program &&
                     frmMain.mnuViewGrp.Visible == !program &&
                     frmMain.mnuContProg.Visible == program &&
                     frmMain.lblCtMode.Caption == Text(program ? MsgId(129) : MsgId(128)),
                 "menus lie about the mode");
  const bool tabs_on = online && !AppState.CtModePending;
  for (const TabStrip* strip : {&frmPosi.tabCmd, &frmPosi.tabCmdPrg}) {
    voyage.Require(strip->Tabs[1].Enabled == tabs_on && strip->Tabs[2].Enabled == tabs_on &&
                       strip->Tabs[static_cast<std::size_t>(strip->Selected)].Enabled,
                   "tabs lie");
  }
  voyage.Require(frmPosi.tabCmdPrg.Visible == program && frmPosi.tabCmd.Visible == !program,
                 "the strip is the other mode's");
}

void CheckTable(Voyage& voyage) {
  const int rows = frmPosi.flgdData.Rows() - kPosiHeaderRows;
  const int count = AppState.PosiFirstNo < 1 ? 0 : AppState.PosiLastNo - AppState.PosiFirstNo + 1;
  voyage.Require(rows == count && AppState.PosiCount == count && AppState.PosiLastNo <= 999,
                 "the grid does not show its range");
  for (int row = 0; row < rows; ++row) {
    const std::string number = std::to_string(AppState.PosiFirstNo + row);
    if (frmPosi.flgdData.Text(row + kPosiHeaderRows, 0) == number) continue;
    return voyage.Fail("a line bears another number");
  }
}

/// The last frame that named axes has released them, was refused, or is remembered.
bool HeldAxesAreKnown(const Voyage& voyage) {
  const std::string& sent = voyage.virt.port.sent;
  constexpr std::size_t kFrame = 10;  // "0CM", how, a digit for each axis, line end
  std::size_t at = sent.rfind("0CM");
  while (at != std::string::npos && at > 0 && sent.find('\n', at) != at + kFrame - 1) {
    at = sent.rfind("0CM", at - 1);
  }
  if (at == std::string::npos || sent.find('\n', at) != at + kFrame - 1) return true;
  return sent.substr(at + 4, kAxes) == "0000" || AppState.AxesMayBeHeld ||
         voyage.refused_at.contains(at + kFrame);
}

void CheckLink(Voyage& voyage) {
  SimPort& port = voyage.virt.port;
  voyage.Require(AppState.PortOccupy || !port.IsOpen(), "port open though not occupied");
  voyage.Require(TusinQueue.IsEmpty() && !TusinQueue.untold, "a request is left");
  voyage.Require(!frmMain.timerTimeout.Enabled, "time-out armed");
  voyage.Require(HeldAxesAreKnown(voyage) && (AppState.Offline || !AppState.AxesMayBeHeld),
                 "axes stay held");
  for (const qvr7sim::MotionStart& start : port.Ct().MotionStarts()) {
    voyage.Require(start.request == "inputs", "a motion nobody asked for");
  }
  voyage.Require(voyage.flow == "write" || !voyage.HasSent({"0WP", "0WA"}),
                 "positions are written unasked");
  voyage.Require(voyage.flow == "write" || voyage.flow == "kind-write" || !voyage.HasSent({"0WM"}),
                 "a program is written unasked");
  voyage.Require(!AppState.Offline || !AppState.ProgStepsRead, "step counts of no line are known");
  const std::size_t sent = port.sent.size();
  voyage.Require(voyage.sent_at_refusal.value_or(sent) == sent, "sent after a refusal");
  voyage.virt.pump.RunFor(3'000'000);
  voyage.Require(port.sent.size() == sent, "something is sent while idle");
  voyage.Require(frmMain.imgComPort.Visible == port.IsOpen(), "port lamp lies");
  for (int axis = 1; axis <= kAxes; ++axis) {
    voyage.Require(!port.Ct().Axis(axis, voyage.virt.pump.NowUs()).moving, "an axis moves");
  }
}

}  // namespace

void CheckRest(Voyage& voyage) {
  CloseMonitors(voyage);
  CheckCommands(voyage);
  CheckOnlineState(voyage);
  CheckTable(voyage);
  CheckLink(voyage);
}

}  // namespace tr7
