#include "sim/setup.h"

namespace qvr7sim {

namespace {

// Axis 1 lifts, axis 2 and 3 travel, axis 4 opens and shuts the gripper.
constexpr std::size_t kLift = 0;
constexpr std::size_t kDepth = 1;
constexpr std::size_t kWidth = 2;
constexpr std::size_t kGrip = 3;

constexpr int kLiftUp = 400;          // 2 mm
constexpr int kLiftAtFeeder = 15000;  // 75 mm
constexpr int kLiftAtTray = 17000;    // 85 mm
constexpr int kGripOpen = 12000;      // 120 mm
constexpr int kGripShut = 6500;       // 65 mm

AxisTarget To(int vel, int acc, int pulses) {
  return {.vel = vel, .acc = acc, .way = 1, .pulses = pulses};
}

PositionRecord Above(int depth, int width) {
  PositionRecord record;
  record.axis[kLift] = To(50, 10, kLiftUp);
  record.axis[kDepth] = To(150, 15, depth);
  record.axis[kWidth] = To(200, 15, width);
  record.itpl = 1;
  return record;
}

PositionRecord Lower(int lift, int out, int macro) {
  PositionRecord record;
  record.axis[kLift] = To(30, 20, lift);
  record.out = out;
  record.sm = macro;
  return record;
}

PositionRecord Grip(int pulses, int push) {
  PositionRecord record;
  record.axis[kGrip] = To(40, 5, pulses);
  record.axis[kGrip].pf = push;
  record.axis[kGrip].ps = push == 0 ? 0 : 30;
  return record;
}

/// Numbers 1 to 4: wait, above the feeder, down, grip with force.
void AddPick(Setup* setup) {
  PositionRecord wait = Above(0, 0);
  wait.axis[kGrip] = To(100, 10, kGripOpen);
  setup->positions[1] = wait;
  setup->positions[2] = Above(2000, 1000);
  setup->positions[3] = Lower(kLiftAtFeeder, 1, 1);
  setup->positions[4] = Grip(kGripShut, 40);
}

/// Numbers 5 to 40: above, down and let go for each of the 12 pockets of a 3 by 4 tray.
void AddTray(Setup* setup) {
  for (int pocket = 0; pocket < 12; ++pocket) {
    const int first = 5 + 3 * pocket;
    setup->positions[first] = Above(4000 + 2800 * (pocket / 4), 5000 + 3000 * (pocket % 4));
    setup->positions[first + 1] = Lower(kLiftAtTray, 2, 2);
    setup->positions[first + 2] = Grip(kGripOpen, 0);
    setup->groups[2 + pocket] = {first, first + 2};
  }
}

}  // namespace

Setup Setup::Useful() {
  Setup setup;
  setup.devices = {Device{.size = " 28", .speed = 'L', .stroke_mm = 100, .lead = 2, .ppr = 400},
                   Device{.size = " 35", .speed = 'H', .stroke_mm = 200, .lead = 6, .ppr = 400},
                   Device{.size = " 42", .speed = 'H', .stroke_mm = 300, .lead = 8, .ppr = 400},
                   Device{.size = " 50", .speed = 'L', .stroke_mm = 150, .lead = 4, .ppr = 400}};
  AddPick(&setup);
  setup.groups[1] = {1, 4};
  AddTray(&setup);
  setup.groups[14] = {1, 40};
  // Wait for input 1, then let output 1 stand for half a second.
  setup.macros[1] = {{1, 1}, {3, 1}, {5, 5}, {4, 1}};
  // Output 2 off, a pause, wait for input 2 to go off.
  setup.macros[2] = {{4, 2}, {6, 1}, {2, 2}};
  return setup;
}

}  // namespace qvr7sim
