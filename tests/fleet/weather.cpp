#include "tests/fleet/voyage.h"

namespace tr7 {
namespace {

using qvr7sim::Fault;
using qvr7sim::FaultKind;

qvr7sim::Device AnyDevice(Random& random) {
  qvr7sim::Device device;
  device.size = random.OneOf({" 28", " 35", " 40", "E35"});
  device.speed = device.size == "E35" ? 'L' : random.OneOf({'L', 'M', 'H'});
  device.lead = random.OneOf({1, 2, 5, 10, 12});
  device.ppr = random.OneOf({400, 500, 800, 1000});
  device.stroke_mm = random.OneOf({50, 100, 150, 300});
  device.pg = random.Below(3);
  return device;
}

Fault AnyFault(Random& random) {
  Fault fault;
  fault.kind = random.OneOf({FaultKind::kSilence, FaultKind::kDeaf, FaultKind::kDelay,
                             FaultKind::kLostByte, FaultKind::kChangedByte, FaultKind::kExtraByte,
                             FaultKind::kSplit, FaultKind::kDoubled, FaultKind::kWrongPrefix,
                             FaultKind::kWrongLength, FaultKind::kErrorReply, FaultKind::kAlarm,
                             FaultKind::kMoving, FaultKind::kPowerCycle});
  if (random.Chance(60)) {
    fault.at_request = random.Between(1, 120);
  } else {
    fault.probability = 0.002 * random.Between(1, 50);
  }
  // The longest outlasts the time-outs of some commands: the late reply meets the next request.
  fault.time_us = random.OneOf({200'000, 200'000, 1'500'000, 6'000'000});
  // No inputs move an axis for longer than the tool is then left alone.
  if (fault.kind == FaultKind::kMoving) fault.time_us = 1'500'000;
  fault.error = {random.OneOf({'0', '1', '2', '4', '7'}), '0', random.OneOf({'1', '9', 'Z'})};
  return fault;
}

void AlarmSoon(Voyage& voyage) {
  voyage.Note("alarm-soon");
  voyage.virt.pump.After(voyage.random.Below(3'000'000), [&virt = voyage.virt] {
    virt.port.Ct().RaiseAlarm({'1', '0', '9'}, virt.pump.NowUs(), true);
  });
}

/// The engineer plugs the cable into another machine.
void AnotherController(Voyage& voyage) {
  voyage.Note("another-controller");
  const std::uint64_t seed = voyage.seed * 31 + static_cast<std::uint64_t>(voyage.random.Below(99));
  voyage.virt.port.Ct() = qvr7sim::Controller(AnyController(voyage.random), seed);
  voyage.line_lies = voyage.power_fails = false;
  PlanFaults(voyage);
}

}  // namespace

qvr7sim::Setup AnyController(Random& random) {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.axis_count = random.Chance(50) ? qvr7sim::kAxes : random.Between(1, 4);
  setup.mask =
      random.OneOf({1u, 3u, 7u, 15u, 15u, 15u, 15u, 5u, 10u}) & ((1u << setup.axis_count) - 1);
  if (setup.mask == 0) setup.mask = 1;
  setup.mode = random.Chance(30) ? qvr7sim::Mode::kProgram : qvr7sim::Mode::kPosition;
  for (qvr7sim::Device& device : setup.devices) {
    if (random.Chance(8)) device = AnyDevice(random);
  }
  setup.rest_as_f = random.Chance(50);
  setup.paced = random.Chance(80);
  setup.processing_us = random.Chance(30) ? random.Below(3000) : 0;
  if (random.Chance(3)) setup.marker = "XYZ";
  for (const int program : {1, 8}) {
    for (int steps = random.Below(6); steps > 0; --steps) {
      setup.programs[program] += random.OneOf({"0A0003E800000000000", "020003E83FF12C3E915",
                                               "FF123456789ABCDEF01", "1B3FF12C20001C0000C"});
    }
  }
  return setup;
}

void PlanFaults(Voyage& voyage) {
  if (voyage.random.Chance(25)) return;  // a quiet sea
  for (int kinds = voyage.random.Between(1, 3); kinds > 0; --kinds) {
    const Fault fault = AnyFault(voyage.random);
    voyage.line_lies = voyage.line_lies || fault.kind == FaultKind::kChangedByte;
    voyage.power_fails = voyage.power_fails || fault.kind == FaultKind::kPowerCycle;
    voyage.Note(std::string(qvr7sim::FaultName(fault.kind)));
    voyage.virt.port.Ct().AddFault(fault);
  }
}

void ChangeWeather(Voyage& voyage) {
  SimPort& port = voyage.virt.port;
  Random& random = voyage.random;
  port.open_fault = PortFault::None;
  port.writes_until_dead = -1;
  port.Ct().SetSilent(false);
  switch (random.Below(10)) {
    case 0:
      port.open_fault = random.OneOf({PortFault::NoSuchPort, PortFault::InUse,
                                      PortFault::NotPermitted, PortFault::DeviceError});
      return voyage.Note("port-fault");
    case 1:
      port.writes_until_dead = random.Between(1, 60);
      return voyage.Note("port-dies");
    case 2:
      port.Ct().SetSilent(true);
      return voyage.Note("silent");
    case 3:
      return AlarmSoon(voyage);
    case 4:
      port.Ct().PowerCycle(voyage.virt.pump.NowUs());
      return voyage.Note("power-cycle");
    case 5:
      return AnotherController(voyage);
    case 6:
      voyage.virt.pump.After(random.Below(3'000'000), [&port] { port.Vanish(); });
      return voyage.Note("port-vanishes");
    default:
      return;
  }
}

void SpoilFiles(Voyage& voyage) {
  Random& random = voyage.random;
  voyage.Note("file-fault");
  voyage.virt.files.FailAt(random.Between(1, 6),
                           random.OneOf({FileFault::NotPermitted, FileFault::DiskFull,
                                         FileFault::Other, FileFault::TooLarge}));
}

}  // namespace tr7
