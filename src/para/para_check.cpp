#include "para/para_check.h"

#include <array>

#include "base/text_helpers.h"

namespace tr7 {
namespace {

struct Range {
  double low, high;
  bool Holds(double value) const { return value >= low && value <= high; }
};

constexpr int kMaxPulses = 262143;  ///< 18 bits
constexpr int kMaxActStroke = 600;  ///< mm

/// By row number; rows 3, 10, 13 and 26 have rules of their own.
constexpr std::array<Range, kParaRows + 1> kRanges = {
    {{0, 0},          {1, 65535},      {1, 255},   {0, 0},   {1, 60},  {1, 60},  {0, 4},
     {1, kMaxPulses}, {1, 255},        {1, 65535}, {0, 0},   {0, 1},   {0, 1},   {0, 0},
     {0, 2},          {5, 65535},      {0, 15},    {0, 1},   {0, 1},   {1, 255}, {0, 2},
     {5, kMaxPulses}, {5, kMaxPulses}, {0, 255},   {0, 255}, {0, 100}, {0, 0},   {0, 1},
     {0, 255},        {0, 255},        {0, 1},     {0, 1},   {0, 1},   {0, 1},   {0, 1}}};

Range HomeVelRange(int lead) {
  if (lead == 8) return {1, 200};
  return {1, lead == 6 ? 150.0 : 50.0};
}

/// Not the rule of the home speed, and meant to differ: lead 7 gives 50 there and 200 here.
bool JogVelHolds(int lead, int vel) {
  if (lead == 1 || lead == 2) return vel >= 1 && vel <= 50;
  if (lead >= 3 && lead <= 6) return vel >= 1 && vel <= 150;
  if (lead == 7 || lead == 8) return vel >= 1 && vel <= 200;
  return true;
}

bool ActuatorHolds(const ParamSetRecord& set, int axis) {
  return !set.Actuator[axis].empty() && CharCount(set.ActSize[axis]) == 3 &&
         !set.ActSpeed[axis].empty() && set.ActStroke[axis] >= 0 &&
         set.ActStroke[axis] <= kMaxActStroke;
}

}  // namespace

bool ParaRowInRange(const ParamSetRecord& set, int row, int axis) {
  switch (row) {
    case kRowHomeVel:
      return HomeVelRange(set.AxisLead[axis]).Holds(set.HomeVel[axis]);
    case kRowJogVel:
      return JogVelHolds(set.AxisLead[axis], set.JogVel[axis]);
    case kRowActuator:
      return ActuatorHolds(set, axis);
    case kRowOneAxis:
      return set.OneAxis == 1 || set.OneAxis == 3 || set.OneAxis == 7 || set.OneAxis == 15;
    default:
      return kRanges.at(row).Holds(ParaValue(set, row, axis));
  }
}

std::vector<ParaCell> ParaCellsOutOfRange() {
  std::vector<ParaCell> cells;
  for (int row = 1; row <= kParaRows; ++row) {
    for (int axis = 0; axis < (IsAxisRow(row) ? kAxes : 1); ++axis) {
      const bool counts = !IsAxisRow(row) || IsLiveAxis(axis);
      if (counts && !ParaRowInRange(ParamSet, row, axis)) cells.push_back({row, axis});
    }
  }
  return cells;
}

int ParametaValueCheck() { return ParaCellsOutOfRange().empty() ? 0 : 1; }

}  // namespace tr7
