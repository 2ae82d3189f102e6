#include "para/para_file_flow.h"

#include <string>

#include "para/para_blocks.h"
#include "para/para_check.h"
#include "para/para_content.h"
#include "para/para_file.h"
#include "para/para_filled.h"
#include "para/para_show.h"
#include "para/param_set.h"
#include "platform/doors.h"
#include "state/busy_scope.h"
#include "state/file_kind.h"
#include "state/message_box.h"
#include "state/text.h"
#include "steps/file_steps.h"

namespace tr7 {
namespace {

constexpr DataFile kParaDataFile{1827, "pmt", 12};

constexpr int kMsgOpenFailed = 681;
constexpr int kMsgBadValue = 6151;
constexpr int kMsgNoAxis = 6336;
constexpr int kMsgNoScale = 6337;
constexpr int kMsgAxis1 = 220;  ///< AXIS2 to AXIS4 follow

/// A message, and behind it why the file could not be read or written, where there is more to say.
void TellFileFault(MsgId message_id) {
  MsgBox(WithReason(Text(message_id), ParaFlags.FileFaultText));
}

Attempt Read(const std::string& path) {
  ParaFlags.ParaFileBad = False;
  return ReadParaTable(path) == 0 ? Attempt::Good : Attempt::MayPass;
}

/// What was read into `ParamSet`: all of it, or nothing with `ParaFileBad`.
bool TakeOver() {
  if (TakeParamTable() == 0) return true;
  ParaFlags.ParaFileBad = True;
  ParaFlags.FileFaultText = Text(kMsgBadValue, ParaRowName(RefusedParaRow()));
  return false;
}

/// Why the devices of `ParamSet` cannot serve: no position could be converted. Empty: they can.
std::string DeviceTrouble() {
  bool any = false;
  for (const int axis : AxisList(ParamSet.OneAxis)) {
    any = true;
    if (ParamSet.AxisLead[axis] > 0 && ParamSet.AxisPulse[axis] > 0) continue;
    return Text(kMsgNoScale, Text(MsgId::At(kMsgAxis1, axis)));
  }
  return any ? std::string() : Text(kMsgNoAxis);
}

/// The same for a file whose devices come into use.
bool TakeOverForDevice() {
  const ParamSetRecord before = ParamSet;
  if (!TakeOver()) return false;
  ParaFlags.FileFaultText = DeviceTrouble();
  if (ParaFlags.FileFaultText.empty()) return true;
  ParaFlags.ParaFileBad = True;
  ParamSet = before;
  return false;
}

/// Takes the view into `ParamSet`. False after the user has been told what is missing or wrong.
/// `missing` is then the field that holds nothing.
bool TakeFromView(Control*& missing) {
  const MissingParaField empty = FirstMissingParaField();
  missing = empty.Field;
  if (missing) {
    MsgBox(WithReason(TwoLines(7, 8), empty.Name));
    return false;
  }
  TorikomiParametaValue();
  if (ParametaValueCheck() != 0) {
    MsgBox(TwoLines(9, 10));
    return false;
  }
  return true;
}

int Save(Control*& missing) {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!TakeFromView(missing)) return 1;
  const auto path = AskSavePath(kParaDataFile, 11);
  if (!path) return 1;
  if (WriteParaFile(*path) != 0) {
    TellFileFault(13);
    return 1;
  }
  MarkParaSaved();
  TellDone(14);
  return 0;
}

}  // namespace

int SaveParaToFile() {
  Control* missing = nullptr;
  const int result = Save(missing);
  // Only now, with the commands on again, can a field take the focus.
  if (missing) doors.forms->SetFocus(*missing);
  return result;
}

void OpenParaFile() {
  const CommandsOff commands_off;
  const BusyScope busy;
  const auto path = AskOpenPath(kParaDataFile, 686);
  if (!path || path->empty()) return;
  if (Read(*path) != Attempt::Good || !TakeOver()) {
    TellFileFault(kMsgOpenFailed);
    return;
  }
  ParametaHyoji();
  MarkParaSaved();
}

int OpenParaForDevice() {
  const CommandsOff commands_off;
  const BusyScope busy;
  const auto path = AskOpenPath(kParaDataFile, 686);
  if (!path || path->empty()) return 1;
  if (TryFourTimes([&] { return Read(*path); }) && TakeOverForDevice()) return 0;
  TellFileFault(kMsgOpenFailed);
  return 1;
}

}  // namespace tr7
