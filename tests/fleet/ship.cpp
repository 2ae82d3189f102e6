#include "tests/fleet/ship.h"

#include "core/hooks.h"
#include "core/main_entry.h"
#include "core/text.h"
#include "core/views.h"
#include "forms/frm_device.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "forms/frm_select_posi_no.h"
#include "link/request_queue.h"
#include "para/device_cascade.h"
#include "posi/posi_table.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using qvr7sim::Fault;
using qvr7sim::FaultKind;

constexpr int kFlows = 5;
constexpr std::int64_t kLongestRunUs = std::int64_t{2} * 3600 * 1'000'000;

qvr7sim::Setup RandomSetup(std::uint64_t seed) {
  Random random(seed ^ 0x5EED);
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.axis_count = random.Between(1, 4);
  setup.mask = random.OneOf({1u, 3u, 7u, 15u, 5u, 10u}) & ((1u << setup.axis_count) - 1);
  if (setup.mask == 0) setup.mask = 1;
  setup.mode = random.Chance(30) ? qvr7sim::Mode::kProgram : qvr7sim::Mode::kPosition;
  setup.paced = random.Chance(80);
  setup.processing_us = random.Chance(30) ? random.Below(3000) : 0;
  if (random.Chance(3)) setup.marker = "XYZ";
  return setup;
}

/// What a failed read must leave as it was.
struct TableState {
  std::int16_t first, last;
  std::string name;
  int rows;
  double some_cells;
  bool operator==(const TableState&) const = default;
};

TableState Snapshot() {
  double sum = 0;
  for (int n = AppState.PosiFirstNo; n <= AppState.PosiLastNo && n > 0; ++n) {
    const auto number = static_cast<std::size_t>(n);
    for (std::size_t axis = 0; axis < kAxes; ++axis) {
      sum = sum * 3 + PosiTable.PosiPulse[axis][number] +
            ValueOf(PosiTable.PosiRec[6 * axis + kVel][number]);
    }
  }
  return {AppState.PosiFirstNo, AppState.PosiLastNo, PosiTable.Name, frmPosi.flgdData.Rows(), sum};
}

}  // namespace

Ship::Ship(std::uint64_t seed) : seed_(seed), random_(seed), virt_(RandomSetup(seed), seed) {
  ResetState();
  virt_.settings.Set("Settings", "Language", random_.Chance(50) ? "1" : "2");
  virt_.settings.Set("Settings", "PortOccupy", random_.Chance(50) ? "1" : "0");
  virt_.pump.SetLimit(virt_.pump.NowUs() + kLongestRunUs);
}

void Ship::Fail(const std::string& what) {
  failures_.push_back("seed " + std::to_string(seed_) + ": " + what + " [" + log_ + "]");
}

void Ship::PlanUser() {
  virt_.forms.on_message_box = [this](const MessageBoxCall& call) -> std::optional<MsgAnswer> {
    if (call.Buttons == MsgButtons::OkCancel) {
      return random_.Chance(85) ? MsgAnswer::Ok : MsgAnswer::Cancel;
    }
    return random_.OneOf({MsgAnswer::Yes, MsgAnswer::No, MsgAnswer::No});
  };
  virt_.forms.on_any_modal = [this](View& view) {
    if (auto* selection = dynamic_cast<SelectionView*>(&view)) {
      AnswerSelection(*selection, random_.Below(2));
    } else if (auto* range = dynamic_cast<SelectPosiNoView*>(&view)) {
      const int first = random_.Between(1, 60);
      FillRange(*range, first, first + random_.Below(12));
      if (range->Visible) range->cmdCancel.Press();
    } else if (auto* devices = dynamic_cast<DeviceView*>(&view)) {
      AnswerDevices(*devices);
    }
  };
}

/// Changes this and that, perhaps writes, and leaves by one of the buttons.
void Ship::AnswerDevices(DeviceView& view) {
  const auto pick = [this](ComboBox& combo) {
    if (!combo.List.empty()) combo.Pick(random_.Below(static_cast<int>(combo.List.size())));
  };
  for (int clicks = random_.Below(4); clicks > 0; --clicks) {
    const auto axis = static_cast<std::size_t>(random_.Below(kAxes));
    switch (random_.Below(6)) {
      case 0:
        pick(view.comboAxisSelect);
        break;
      case 1:
        view.chkAxisEnable[axis].Set(!view.chkAxisEnable[axis].Value);
        break;
      case 2:
        view.chkNewOrOld[axis].Set(!view.chkNewOrOld[axis].Value);
        break;
      case 3:
        view.chkDevPgUse[axis].Set(!view.chkDevPgUse[axis].Value);
        break;
      default:
        pick(view.comboDeviceSize[axis]);
        pick(view.comboDeviceSpeed[axis]);
        pick(view.comboDeviceStroke[axis]);
        break;
    }
  }
  if (random_.Chance(40)) view.cmdPrmCtWrite.Press();
  for (CommandButton* button : {&view.cmdDeviceSet, &view.cmdDeviceBack, &view.cmdDeviceCancel}) {
    if (view.Visible && random_.Chance(60)) button->Press();
  }
  if (view.Visible) view.cmdDeviceCancel.Press();
}

void Ship::PlanFaults() {
  if (random_.Chance(25)) return;  // a quiet sea
  const int kinds = random_.Between(1, 3);
  for (int i = 0; i < kinds; ++i) {
    Fault fault;
    fault.kind =
        random_.OneOf({FaultKind::kSilence, FaultKind::kDeaf, FaultKind::kDelay,
                       FaultKind::kLostByte, FaultKind::kChangedByte, FaultKind::kExtraByte,
                       FaultKind::kSplit, FaultKind::kDoubled, FaultKind::kWrongPrefix,
                       FaultKind::kWrongLength, FaultKind::kErrorReply, FaultKind::kAlarm});
    if (random_.Chance(50)) {
      fault.at_request = random_.Between(1, 60);
    } else {
      fault.probability = 0.01 * random_.Between(1, 20);
    }
    fault.error = {random_.OneOf({'0', '1', '2', '4', '7'}), '0', random_.OneOf({'1', '9', 'Z'})};
    virt_.port.Ct().AddFault(fault);
  }
}

/// What befalls the line between and within flows.
void Ship::Spoil() {
  switch (random_.Below(8)) {
    case 0:
      virt_.port.open_fault = random_.OneOf({PortFault::NoSuchPort, PortFault::InUse,
                                             PortFault::NotPermitted, PortFault::DeviceError});
      log_ += " port-fault";
      break;
    case 1:
      virt_.port.writes_until_dead = random_.Between(1, 30);
      log_ += " port-dies";
      break;
    case 2:
      virt_.port.Ct().SetSilent(true);
      log_ += " silent";
      break;
    case 3:
      virt_.pump.After(random_.Below(3'000'000), [this] {
        virt_.port.Ct().RaiseAlarm({'1', '0', '9'}, virt_.pump.NowUs(), true);
      });
      log_ += " alarm-soon";
      break;
    default:
      virt_.port.open_fault = PortFault::None;
      virt_.port.writes_until_dead = -1;
      virt_.port.Ct().SetSilent(false);
      break;
  }
}

void Ship::Start() {
  log_ += " start";
  Main();
  CheckRest("start");
}

void Ship::Read() {
  log_ += " read";
  const TableState before = Snapshot();
  bool cancelled = false;
  if (random_.Chance(20)) {
    virt_.pump.After(random_.Below(1'500'000), [&cancelled] {
      cancelled = frmMain.cmdComCancel.Enabled && frmMain.cmdComCancel.Visible;
      frmMain.cmdComCancel.Press();
    });
  }
  frmPosi.ReadDone = False;
  frmPosi.cmdPosiRead.Press();
  virt_.pump.RunFor(2'000'000);
  if (!frmPosi.ReadDone && !(Snapshot() == before)) Fail("a read that failed changed the table");
  if (frmPosi.ReadDone && frmPosi.flgdData.Rows() != AppState.PosiCount + 2) {
    Fail("a read that succeeded does not show its range");
  }
  CheckRest("read");
}

void Ship::Reset() {
  log_ += " reset";
  frmMain.cmdReset.Press();
  CheckRest("reset");
}

void Ship::GoOnline() {
  log_ += " online";
  frmMain.mnuSettingOnline.Press();
  CheckRest("online");
}

void Ship::GoOffline() {
  log_ += " offline";
  frmMain.mnuSettingOffline.Press();
  CheckRest("offline");
}

void Ship::ShowVersion() {
  log_ += " version";
  frmMain.mnuContVersion.Press();
  CheckRest("version");
}

void Ship::ChangeDevices() {
  log_ += " devices";
  const auto muko = AppState.AxisMuko;
  const bool failed = Hooks.Change_Device() != 0;
  if (failed && muko != AppState.AxisMuko) Fail("a device change that failed changed the axes");
  CheckRest("devices");
}

void Ship::WriteDevices() {
  log_ += " write-devices";
  frmMain.mnuSettingDeviceOnline.Press();
  CheckRest("write-devices");
}

void Ship::CloseByWindow() {
  log_ += " close-later";
  virt_.pump.After(random_.Below(2'000'000), [this] {
    if (AppState.ComBusy && CloseView(frmMain, CloseReason::ControlMenu)) {
      Fail("closed while busy");
    }
  });
  Read();
}

void Ship::DoFlow() {
  switch (random_.Below(10)) {
    case 0:
      return Reset();
    case 1:
      return GoOnline();
    case 2:
      return GoOffline();
    case 3:
      return ShowVersion();
    case 4:
      return CloseByWindow();
    case 5:
      return ChangeDevices();
    case 6:
      return WriteDevices();
    default:
      return Read();
  }
}

/// What holds between any two flows.
void Ship::CheckRest(const std::string& after) {
  const auto require = [&](bool holds, const char* what) {
    if (!holds) Fail(std::string(what) + " after " + after);
  };
  require(frmMain.cmdReset.Enabled && frmMain.mnuFile.Enabled && frmMain.mnuSetting.Enabled &&
              frmPosi.cmdPosiRead.Enabled && frmPosi.flgdData.Enabled,
          "commands are off");
  require(!AppState.ComBusy, "busy");
  require(!frmMain.ProgressBar1.Visible && !frmMain.cmdComCancel.Visible, "progress bar stands");
  require(frmPosi.flgdData.Redraw, "grid does not paint");
  require(virt_.forms.wait_cursors == 0, "wait cursor stands");
  require(AppState.PortOccupy || !virt_.port.IsOpen(), "port open though not occupied");
  require(frmMain.imgOnline.Visible == !AppState.Offline, "online lamp lies");
  require(frmMain.mnuSettingOnline.Enabled == AppState.Offline &&
              frmMain.mnuSettingOffline.Enabled == !AppState.Offline,
          "menus lie");
  require(frmPosi.tabCmd.Tabs[1].Enabled == !AppState.Offline, "tabs lie");
  require(!DeviceDialog.DevDialogActive && !DeviceDialog.DevWriting, "a device dialogue stands");
  require(!AppState.TusinExchanging && frmMain.TimerTusin.Enabled, "request timer off");
  require(!frmMain.timerTimeout.Enabled, "time-out armed");
  const std::size_t sent = virt_.port.sent.size();
  virt_.pump.RunFor(3'000'000);
  require(virt_.port.sent.size() == sent, "something is sent while idle");
  for (int axis = 1; axis <= kAxes; ++axis) {
    require(!virt_.port.Ct().Axis(axis, virt_.pump.NowUs()).moving, "an axis moves");
  }
}

std::vector<std::string> Ship::Sail() {
  PlanUser();
  PlanFaults();
  try {
    Start();
    for (int i = 0; i < kFlows && !virt_.forms.ended; ++i) {
      if (random_.Chance(40)) Spoil();
      DoFlow();
    }
  } catch (const VirtualTimeExceeded& exceeded) {
    Fail(std::string("does not end: ") + exceeded.what());
  }
  return failures_;
}

}  // namespace tr7
