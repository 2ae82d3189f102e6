#include "para/para_check.h"

#include "para/std_lists.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

/// A set that the check lets pass: its values lie well inside their ranges.
ParamSetRecord GoodSet() {
  ParamSetRecord set;
  for (int row = 1; row <= kParaRows; ++row) {
    for (int axis = 0; axis < (IsAxisRow(row) ? kAxes : 1); ++axis) {
      SetParaValue(set, row, axis, 1);
    }
  }
  for (int axis = 0; axis < kAxes; ++axis) {
    set.AxisLead[axis] = 8;
    set.AxisPulse[axis] = 400;
    set.PgAlarm[axis] = set.Zone1[axis] = set.Zone2[axis] = 100;
    set.Actuator[axis] = " 28L100";
    CutActuator(set, axis);
  }
  set.OneAxis = 15;
  return set;
}

class ParaCheck : public StateTest {
 protected:
  ParaCheck() { ParamSet = GoodSet(); }
  /// Checks the good set with this one value changed.
  static int CheckWith(int row, int axis, double value) {
    ParamSet = GoodSet();
    EXPECT_TRUE(SetParaValue(ParamSet, row, axis, value)) << row;
    return ParametaValueCheck();
  }
};

TEST_F(ParaCheck, SpeedsFollowTheLead) {
  constexpr int kAny = 500;
  const auto highest = [](int lead, int home, int jog) {
    const auto good = [&](int home_vel, int jog_vel) {
      ParamSet = GoodSet();
      ParamSet.AxisLead[1] = static_cast<std::int16_t>(lead);
      ParamSet.HomeVel[1] = static_cast<std::int16_t>(home_vel);
      ParamSet.JogVel[1] = static_cast<std::int16_t>(jog_vel);
      return ParametaValueCheck() == 0;
    };
    EXPECT_TRUE(good(home, jog) && !good(home + 1, 1)) << lead;
    EXPECT_TRUE(good(1, jog + 1) == (jog == kAny) && good(1, 0) == (jog == kAny)) << lead;
  };
  highest(2, 50, 50);
  highest(3, 50, 150);
  highest(6, 150, 150);
  highest(7, 50, 200);
  highest(8, 200, 200);
  highest(9, 50, kAny);
}

TEST_F(ParaCheck, AxisMasks) {
  for (int mask = 0; mask <= 16; ++mask) {
    const bool good = mask == 1 || mask == 3 || mask == 7 || mask == 15;
    EXPECT_EQ(CheckWith(kRowOneAxis, 0, mask), good ? 0 : 1) << mask;
  }
}

TEST_F(ParaCheck, Actuators) {
  const std::tuple<const char*, const char*, const char*, std::int16_t, int> rows[] = {
      {"E35L000", "E35", "L", 0, 0},     {"E35L600", "E35", "L", 600, 0},
      {"E35L601", "E35", "L", 601, 1},   {"E35L-01", "E35", "L", -1, 1},
      {"", "E35", "L", 100, 1},          {"35L100", "35", "L", 100, 1},
      {"E355L100", "E355", "L", 100, 1}, {"E35100", "E35", "", 100, 1}};
  for (const auto& [text, size, speed, stroke, result] : rows) {
    ParamSet.Actuator[2] = text;
    ParamSet.ActSize[2] = size;
    ParamSet.ActSpeed[2] = speed;
    ParamSet.ActStroke[2] = stroke;
    EXPECT_EQ(ParametaValueCheck(), result) << text;
  }
}

TEST_F(ParaCheck, TheDirectWriteLooksAtFewerRows) {
  // What it treats otherwise than the view, and one of each that both treat alike.
  const struct {
    int row;
    double value;
    int result;
  } rows[] = {{1, 0, 1},  {3, 201, 1}, {6, 5, 0},    {7, 262144, 1}, {11, 9, 0},  {12, 4, 0},
              {12, 5, 1}, {12, -1, 1}, {14, 3, 1},   {15, 4, 1},     {16, 16, 1}, {17, 2, 1},
              {18, 2, 1}, {19, 0, 1},  {20, 3, 1},   {21, 4, 1},     {22, 4, 1},  {23, 999, 0},
              {26, 5, 0}, {27, 9, 0},  {28, 999, 0}, {30, 9, 0},     {34, 9, 0}};
  for (const auto& row : rows) {
    const int axis = IsAxisRow(row.row) ? 3 : 0;
    CheckWith(row.row, axis, row.value);
    AppState.AxisMuko[3] = False;
    EXPECT_EQ(CheckParaFromStd(), row.result) << row.row << " " << row.value;
    AppState.AxisMuko[3] = True;
    EXPECT_EQ(CheckParaFromStd(), axis == 3 ? 0 : row.result) << row.row << " of an absent axis";
  }
}

TEST_F(ParaCheck, AxesNotInUseDoNotCount) {
  const struct {
    std::int16_t shown;  ///< as the parameter view has been set; 0: not
    int axis;
    int result;
  } rows[] = {{0, 3, 0}, {0, 2, 1}, {2, 2, 0}, {2, 1, 1}, {4, 3, 1}};
  AppState.AxisMuko = MukoOfMask(7);
  for (const auto& row : rows) {
    ParaFlags.ShownAxisCount = row.shown;
    EXPECT_EQ(CheckWith(1, row.axis, 0), row.result) << row.shown << " " << row.axis;
  }
}

}  // namespace
}  // namespace tr7
