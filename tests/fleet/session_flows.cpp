#include "para/change_device.h"
#include "para/para_file.h"
#include "tests/fleet/states.h"

namespace tr7 {
namespace {

constexpr int kAskMode = 490, kAskDevices = 371;
constexpr std::size_t kModeAt = 18;  ///< of the mode within block 0

bool SameAxes(const MachineState& a, const MachineState& b) { return a.in_use == b.in_use; }

/// What a connect leaves, whatever was asked and answered on the way.
void CheckConnect(Voyage& voyage, const MachineState& before, const MachineState& of_ct) {
  if (voyage.line_lies || voyage.power_fails) return;
  const MachineState now = MachineOfPc();
  const auto of_either = [&](auto part) { return part(before) || part(of_ct); };
  voyage.Require(
      of_either([&](const MachineState& m) { return m.program_mode == now.program_mode; }),
      "a mode of nobody's");
  voyage.Require(of_either([&](const MachineState& m) { return SameAxes(m, now); }),
                 "axes of nobody's");
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!now.in_use[axis] || !before.in_use[axis]) continue;
    voyage.Require(
        of_either([&](const MachineState& m) { return m.devices[axis] == now.devices[axis]; }),
        "a device of nobody's");
  }
  if (AppState.Offline) {
    // The mode and its axes come first; devices come with all axes or not at all.
    voyage.Require(voyage.Chosen(kAskMode) == 0 || now == before || now == of_ct,
                   "offline with half of the controller's state");
    return;
  }
  voyage.Require(now.program_mode == of_ct.program_mode, "online in another mode");
  voyage.Require(voyage.Chosen(kAskMode).value_or(0) == 0, "online though the PC's was written");
  if (voyage.Chosen(kAskDevices).value_or(0) == 0) {
    voyage.Require(now == of_ct, "online with other axes or devices, unasked");
  }
}

/// Runs what may connect, and holds what it leaves to that. `always`: it connects also when online.
void Connecting(Voyage& voyage, bool always, const std::function<void()>& flow) {
  const bool connects = always || AppState.Offline;
  const MachineState before = MachineOfPc();
  const MachineState of_ct = MachineOfCt(voyage.virt.port.Ct());
  flow();
  if (connects) CheckConnect(voyage, before, of_ct);
}

void GoOnline(Voyage& voyage) {
  Connecting(voyage, false, [] { frmMain.mnuSettingOnline.Press(); });
}

void GoOffline(Voyage&) { frmMain.mnuSettingOffline.Press(); }

void ResetAlarm(Voyage& voyage) {
  // A reset that the controller refuses does not get as far as connecting.
  Connecting(voyage, AppState.Offline, [] { frmMain.cmdReset.Press(); });
}

void ShowVersion(Voyage& voyage) {
  Connecting(voyage, false, [] { frmMain.mnuContVersion.Press(); });
  voyage.Require(!voyage.WasTold(426) || !AppState.Offline, "a version of nobody's");
}

void ChangeMode(Voyage& voyage) {
  const std::string before = voyage.virt.port.Ct().CommittedBlock(0);
  if (voyage.random.Chance(50)) {
    frmMain.mnuSettingCtMode.Press();
  } else {
    frmMain.lblCtMode.DblClick();
  }
  std::string now = voyage.virt.port.Ct().CommittedBlock(0);
  if (voyage.WasTold(497) && !voyage.line_lies) {
    const std::string chosen = "0" + std::to_string(voyage.Chosen(476).value_or(-1));
    voyage.Require(now.substr(kModeAt, 2) == chosen, "a mode change that was told is not stored");
  }
  voyage.Require(!voyage.WasTold(497) || AppState.CtModePending, "the new mode does not wait");
}

void ChangeOptions(Voyage&) { frmMain.mnuSettingOptions.Press(); }

void ChangeDevices(Voyage& voyage) {
  const auto muko = AppState.AxisMuko;
  const bool failed = Change_Device() != 0;
  voyage.Require(!failed || muko == AppState.AxisMuko, "a failed device change changed the axes");
}

void WriteDevices(Voyage&) { frmMain.mnuSettingDeviceOnline.Press(); }

/// The window's own close button while something runs, or while nothing does.
void CloseByWindow(Voyage& voyage) {
  voyage.virt.pump.After(voyage.random.Below(2'000'000), [&voyage] {
    if (AppState.ComBusy && CloseView(frmMain, CloseReason::ControlMenu)) {
      voyage.Fail("closed while busy");
    }
  });
  frmMain.mnuContVersion.Press();
  voyage.virt.pump.RunFor(2'000'000);
}

/// A close from the menu ends the tool, also with a flow beneath it, and soon.
void Exit(Voyage& voyage) {
  std::int64_t closed_at = 0;
  voyage.virt.pump.After(voyage.random.Below(500'000), [&] {
    CloseView(frmMain, CloseReason::Code);
    closed_at = voyage.virt.pump.NowUs();
  });
  frmMain.mnuContPosiRead.Click();
  voyage.virt.pump.RunFor(1'000'000);
  if (!voyage.virt.forms.ended) return;
  voyage.Require(!voyage.virt.port.IsOpen(), "port open after the end");
  voyage.Require(voyage.virt.pump.NowUs() - closed_at < 3'000'000, "the end takes long");
}

constexpr Flow kFlows[] = {
    {"online", 5, GoOnline},       {"offline", 3, GoOffline},
    {"reset", 2, ResetAlarm},      {"version", 1, ShowVersion},
    {"mode", 2, ChangeMode},       {"options", 2, ChangeOptions},
    {"devices", 2, ChangeDevices}, {"write-devices", 2, WriteDevices},
    {"close", 1, CloseByWindow},   {"exit", 1, Exit},
};

}  // namespace

std::span<const Flow> SessionFlows() { return kFlows; }

void StartTool(Voyage& voyage) {
  const MachineState of_ct = MachineOfCt(voyage.virt.port.Ct());
  Main();
  WriteParaFile(kParaPath);  // the user's one, with whatever the start has brought
  if (AppState.Offline || voyage.line_lies) return;
  voyage.Require(MachineOfPc() == of_ct, "the first connection takes something else");
}

}  // namespace tr7
