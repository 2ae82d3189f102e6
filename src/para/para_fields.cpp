#include "para/para_fields.h"

namespace tr7 {
namespace {

using F = FrmParameta2;
using Set = ParamSetRecord;

constexpr double kAnything = 1, kNoLimit = 0;  ///< a low end above its high end
constexpr int kNeverTyped = 0;

}  // namespace

// These limits are the editor's own. Some are meant to be looser or tighter than what the check of
// the whole set lets pass.
const std::vector<ParaTextField>& ParaTextFields() {
  static const std::vector<ParaTextField> fields = {
      {1, &F::txtHomeOffset, 5, 1, 65535},
      {2, &F::txtHomePush, 3, 1, 255},
      {3, &F::txtHomeVel, 3, 1, 60},
      {4, &F::txtHomeOfsVel, 3, 1, 60},
      {5, &F::txtHomePushVel, 3, 1, 60},
      {6, &F::txtHomeOrder, 1, 0, 255},
      {7, &F::txtAxisStroke, 6, 0, 262143},
      {8, &F::txtAxisLead, 3, 0, 255},
      {9, &F::txtAxisPulse, 5, 0, 65535},
      {10, &F::txtJogHighVel, 2, 1, 30},
      {15, &F::txtPgAlarm, 5, 5, 65535},
      {16, &F::txtHomeOut, 2, kAnything, kNoLimit},
      {19, &F::txtSmTimeoutTimer, 3, 1, 255},
      {21, &F::txtZoneSet1, kNeverTyped, kAnything, kNoLimit},
      {22, &F::txtZoneSet2, kNeverTyped, kAnything, kNoLimit},
      {23, &F::txtInpLimit, 3, 0, 255},
      {24, &F::txtPushHoldTime, 3, 0, 255},
      {25, &F::txtAutoStartPrgNo, 3, 0, 255},
      {26, &F::txtOneAxis, 2, kAnything, kNoLimit},
      {28, &F::txtPgCheckTimer, 3, 0, 255},
      {29, &F::txtLsSerchTimer, 3, 0, 255},
  };
  return fields;
}

const std::vector<ParaListField>& ParaListFields() {
  static const std::vector<ParaListField> fields = {
      {11, &F::comboAxisAutoDrv, 2, {6051, 6052}}, {12, &F::comboEtcMaOrXa, 5, {6053, 6054}},
      {14, &F::comboPgFunc, 3, {6055, 6056}},      {17, &F::comboEtcGrpEnable, 2, {6057, 6058}},
      {18, &F::comboSmInTimer, 2, {6057, 6058}},   {20, &F::comboZoneEnable, 3, {6057, 6059, 6060}},
      {27, &F::comboAutoHome, 2, {6057, 6058}},    {30, &F::comboSoftLimit, 3, {6057, 6058}},
  };
  return fields;
}

const std::vector<ParaOptionField>& ParaOptionFields() {
  static const std::vector<ParaOptionField> fields = {
      {31, &F::optEmgLogic, 0},
      {32, &F::optAlarmAutoClear, 1},
      {33, &F::optPosPrg, 1},
      {34, &F::optStopPause, 1},
  };
  return fields;
}

const std::vector<ParaMmField>& ParaMmFields() {
  static const std::vector<ParaMmField> fields = {
      {kRowStroke, &F::txtAxisMmStroke, &F::txtAxisStroke, &Set::MmStroke, &Set::MmStrokeText},
      {kRowZone1, &F::txtMmZone1, &F::txtZoneSet1, &Set::MmZone1, &Set::MmZone1Text},
      {kRowZone2, &F::txtMmZone2, &F::txtZoneSet2, &Set::MmZone2, &Set::MmZone2Text},
  };
  return fields;
}

int MaskOfAxisCount(int count) { return count < 1 || count > 4 ? 0 : (1 << count) - 1; }

int AxisCountOfMask(int mask) {
  for (int count = 1; count <= 4; ++count) {
    if (mask == MaskOfAxisCount(count)) return count;
  }
  return 0;
}

}  // namespace tr7
