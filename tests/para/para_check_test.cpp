#include "para/para_check.h"

#include "para/param_set.h"
#include "para/std_lists.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

/// A set that the check lets pass: its values lie well inside their ranges.
ParamSetRecord GoodSet() {
  ParamSetRecord set;
  for (int row = 1; row <= kParaRows; ++row) {
    for (std::size_t axis = 0; axis < (IsAxisRow(row) ? kAxes : 1); ++axis) {
      SetParaValue(set, row, axis, 1);
    }
  }
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
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
  static int CheckWith(int row, std::size_t axis, double value) {
    ParamSet = GoodSet();
    EXPECT_TRUE(SetParaValue(ParamSet, row, axis, value)) << row;
    return ParametaValueCheck();
  }
};

TEST_F(ParaCheck, BothEndsOfEveryRange) {
  const struct {
    int row;
    double low, high;
  } rows[] = {
      {1, 1, 65535},  {2, 1, 255},     {3, 1, 200},     {4, 1, 60},   {5, 1, 60},   {6, 0, 4},
      {7, 1, 262143}, {8, 1, 255},     {9, 1, 65535},   {10, 1, 200}, {11, 0, 1},   {12, 0, 1},
      {14, 0, 2},     {15, 5, 65535},  {16, 0, 15},     {17, 0, 1},   {18, 0, 1},   {19, 1, 255},
      {20, 0, 2},     {21, 5, 262143}, {22, 5, 262143}, {23, 0, 255}, {24, 0, 255}, {25, 0, 100},
      {27, 0, 1},     {28, 0, 255},    {29, 0, 255},    {30, 0, 1},   {31, 0, 1},   {32, 0, 1},
      {33, 0, 1},     {34, 0, 1},
  };
  EXPECT_EQ(std::size(rows), kParaRows - 2u);  // all but the device text and AXIS
  EXPECT_EQ(ParametaValueCheck(), 0);
  for (const auto& row : rows) {
    for (std::size_t axis = 0; axis < (IsAxisRow(row.row) ? kAxes : 1); ++axis) {
      const std::string where = "row " + std::to_string(row.row) + " axis " + std::to_string(axis);
      EXPECT_EQ(CheckWith(row.row, axis, row.low), 0) << where;
      EXPECT_EQ(CheckWith(row.row, axis, row.low - 1), 1) << where;
      EXPECT_EQ(CheckWith(row.row, axis, row.high), 0) << where;
      EXPECT_EQ(CheckWith(row.row, axis, row.high + 1), 1) << where;
    }
  }
}

TEST_F(ParaCheck, SpeedsFollowTheLead) {
  constexpr int kAny = 500;
  const struct {
    std::int16_t lead;
    int home, jog;  ///< highest good value
  } leads[] = {{2, 50, 50},  {3, 50, 150},  {5, 50, 150}, {6, 150, 150},
               {7, 50, 200}, {8, 200, 200}, {9, 50, kAny}};
  for (const auto& c : leads) {
    const auto check = [&](int home, int jog) {
      ParamSet = GoodSet();
      ParamSet.AxisLead[1] = c.lead;
      ParamSet.HomeVel[1] = static_cast<std::int16_t>(home);
      ParamSet.JogVel[1] = static_cast<std::int16_t>(jog);
      return ParametaValueCheck();
    };
    EXPECT_EQ(check(c.home, c.jog), 0) << c.lead;
    EXPECT_EQ(check(c.home + 1, 1), 1) << c.lead;
    EXPECT_EQ(check(1, c.jog + 1), c.jog == kAny ? 0 : 1) << c.lead;
    EXPECT_EQ(check(1, 0), c.jog == kAny ? 0 : 1) << c.lead;
  }
}

TEST_F(ParaCheck, AxisMasks) {
  for (int mask = 0; mask <= 16; ++mask) {
    const bool good = mask == 1 || mask == 3 || mask == 7 || mask == 15;
    EXPECT_EQ(CheckWith(kRowOneAxis, 0, mask), good ? 0 : 1) << mask;
  }
}

TEST_F(ParaCheck, Actuators) {
  const struct {
    const char *text, *size, *speed;
    std::int16_t stroke;
    int result;
  } rows[] = {{"E35L000", "E35", "L", 0, 0},     {"E35L600", "E35", "L", 600, 0},
              {"E35L601", "E35", "L", 601, 1},   {"E35L-01", "E35", "L", -1, 1},
              {"", "E35", "L", 100, 1},          {"35L100", "35", "L", 100, 1},
              {"E355L100", "E355", "L", 100, 1}, {"E35100", "E35", "", 100, 1}};
  for (const auto& row : rows) {
    ParamSet.Actuator[2] = row.text;
    ParamSet.ActSize[2] = row.size;
    ParamSet.ActSpeed[2] = row.speed;
    ParamSet.ActStroke[2] = row.stroke;
    EXPECT_EQ(ParametaValueCheck(), row.result) << row.text;
  }
}

TEST_F(ParaCheck, AxesNotInUseDoNotCount) {
  const struct {
    std::int16_t shown;  ///< as the parameter view has been set; 0: not
    std::size_t axis;
    int result;
  } rows[] = {{0, 3, 0}, {0, 2, 1}, {2, 2, 0}, {2, 1, 1}, {4, 3, 1}};
  AppState.AxisMuko = MukoOfMask(7);
  for (const auto& row : rows) {
    ParaFlags.ShownAxisCount = row.shown;
    EXPECT_EQ(CheckWith(1, row.axis, 0), row.result) << row.shown << " " << row.axis;
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
    const std::size_t axis = IsAxisRow(row.row) ? 3 : 0;
    CheckWith(row.row, axis, row.value);
    AppState.AxisMuko[3] = False;
    EXPECT_EQ(CheckParaFromStd(), row.result) << row.row << " " << row.value;
    AppState.AxisMuko[3] = True;
    EXPECT_EQ(CheckParaFromStd(), axis == 3 ? 0 : row.result) << row.row << " of an absent axis";
  }
}

}  // namespace
}  // namespace tr7
