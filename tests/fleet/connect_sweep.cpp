#include <array>
#include <functional>
#include <iterator>

#include "device/dev_setting.h"
#include "forms/frm_main.h"
#include "tests/fleet/flows.h"
#include "tests/fleet/states.h"

// Going online, with every fault at every line of the sequence, for each thing that the controller
// may have otherwise than the PC. The seed counts through them: some 2000 seeds meet them all.

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

constexpr FaultKind kKinds[] = {
    FaultKind::kSilence,     FaultKind::kDeaf,        FaultKind::kDelay,      FaultKind::kLostByte,
    FaultKind::kChangedByte, FaultKind::kExtraByte,   FaultKind::kSplit,      FaultKind::kDoubled,
    FaultKind::kWrongPrefix, FaultKind::kWrongLength, FaultKind::kErrorReply, FaultKind::kAlarm};
constexpr std::uint64_t kLines = 28;  ///< of the longest way

/// A controller that agrees with the PC in everything.
qvr7sim::Setup TwinOfPc() {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.mask = 0;
  setup.mode = AppState.CtMode ? qvr7sim::Mode::kProgram : qvr7sim::Mode::kPosition;
  for (int axis = 0; axis < kAxes; ++axis) {
    const DevSettingRecord& device = DevSetting[axis];
    if (AppState.AxisMuko[axis] || device.Stroke < 1 || device.Speed.empty()) continue;
    setup.mask |= 1u << axis;
    setup.devices[axis] = {device.Size,          device.Speed[0], device.Stroke,
                           device.Lead,          device.Ppr,      0,
                           device.WithPG ? 1 : 0};
  }
  if (setup.mask == 0) setup.mask = 1;
  return setup;
}

void OtherAxes(qvr7sim::Setup& setup, std::uint64_t n) {
  setup.mask ^= 1u << (n % kAxes);
  if (setup.mask == 0) setup.mask = 0xF;
}

void OtherMode(qvr7sim::Setup& setup, std::uint64_t) {
  setup.mode =
      setup.mode == qvr7sim::Mode::kProgram ? qvr7sim::Mode::kPosition : qvr7sim::Mode::kProgram;
}

/// One field of the device on the first axis in use.
void OtherDevice(qvr7sim::Setup& setup, std::uint64_t n) {
  int axis = 0;
  while ((setup.mask & (1u << axis)) == 0) ++axis;
  qvr7sim::Device& device = setup.devices[axis];
  const std::function<void()> changes[] = {
      [&] { device.lead = device.lead == 5 ? 10 : 5; },
      [&] { device.ppr = device.ppr == 800 ? 400 : 800; },
      [&] { device.stroke_mm = device.stroke_mm == 150 ? 100 : 150; },
      [&] { device.size = device.size == " 35" ? " 28" : " 35"; },
      [&] { device.speed = device.speed == 'L' ? 'M' : 'L'; },
      [&] { device.pg = device.pg == 0 ? 1 : 0; },
  };
  changes[n % std::size(changes)]();
}

using Change = void (*)(qvr7sim::Setup& setup, std::uint64_t n);
constexpr std::array<Change, 2> kDifferences[] = {{nullptr, nullptr},     {OtherAxes, nullptr},
                                                  {OtherMode, nullptr},   {OtherAxes, OtherMode},
                                                  {OtherDevice, nullptr}, {OtherMode, OtherDevice}};

}  // namespace

void SweepConnect(Voyage& voyage) {
  for (int tries = 9; !AppState.Offline && tries > 0; --tries) frmMain.mnuSettingOffline.Press();
  voyage.sent_at_refusal.reset();
  std::uint64_t n = voyage.seed;
  const auto count_off = [&n](std::uint64_t choices) {
    const std::uint64_t choice = n % choices;
    n /= choices;
    return choice;
  };
  qvr7sim::Fault fault;
  fault.kind = kKinds[count_off(std::size(kKinds))];
  const std::uint64_t line = count_off(kLines);
  fault.at_request = static_cast<int>(line) + 1;
  qvr7sim::Setup setup = TwinOfPc();
  for (const Change change : kDifferences[count_off(std::size(kDifferences))]) {
    if (change) change(setup, line);
  }
  // What a wrong byte has made the PC believe, no controller is.
  if (!setup.Check().empty()) setup = qvr7sim::Setup::Useful();
  voyage.virt.port.Ct() = qvr7sim::Controller(setup, voyage.seed);
  voyage.virt.port.Ct().AddFault(fault);
  voyage.line_lies = fault.kind == FaultKind::kChangedByte;
  GoOnline(voyage);
}

}  // namespace tr7
