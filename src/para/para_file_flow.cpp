#include "para/para_file_flow.h"

#include <optional>
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
#include "state/wait.h"

namespace tr7 {
namespace {

constexpr int kTries = 4;
constexpr int kPauseMs = 100;

constexpr int kMsgOpenFailed = 681;
constexpr int kMsgBadValue = 6151;
constexpr int kMsgNoAxis = 6336;
constexpr int kMsgNoScale = 6337;
constexpr int kMsgAxis1 = 220;  ///< AXIS2 to AXIS4 follow

std::optional<std::string> AskOpenPath() {
  FileDialogCall call;
  call.Title = Text(686);
  call.Filter = Text(1827);
  call.DefaultExtension = "pmt";
  const auto path = doors.forms->FileDialog(call);
  return path && path->empty() ? std::nullopt : path;
}

std::optional<std::string> AskSavePath() {
  const auto path = doors.forms->FileDialog({.Save = true,
                                             .Title = Text(11),
                                             .Filter = Text(1827),
                                             .ProposedName = Text(12),
                                             .DefaultExtension = "pmt",
                                             .OverwritePrompt = true});
  return path && path->empty() ? std::nullopt : path;
}

/// A message, and behind it why the file could not be read or written, where there is more to say.
void Tell(int message_id) {
  const std::string& reason = ParaFlags.FileFaultText;
  MsgBox(reason.empty() ? Text(message_id) : Text(message_id) + "\n\n" + reason);
}

int ReadFourTimes(const std::string& path) {
  for (int tries = 1;; ++tries) {
    ParaFlags.ParaFileBad = False;
    if (ReadParaTable(path) == 0) return 0;
    if (tries == kTries) return 1;
    TusinWaitMs(kPauseMs);
  }
}

/// What was read into `ParamSet`: all of it, or nothing with `ParaFileBad`.
int TakeOver() {
  if (TakeParamTable() == 0) return 0;
  ParaFlags.ParaFileBad = True;
  ParaFlags.FileFaultText = Text(kMsgBadValue, ParaRowName(RefusedParaRow()));
  return 1;
}

/// Why the devices of `ParamSet` cannot serve: no position could be converted. Empty: they can.
std::string DeviceTrouble() {
  bool any = false;
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    if ((ParamSet.OneAxis >> axis & 1) == 0) continue;
    any = true;
    if (ParamSet.AxisLead[axis] > 0 && ParamSet.AxisPulse[axis] > 0) continue;
    return Text(kMsgNoScale, Text(kMsgAxis1 + static_cast<int>(axis)));
  }
  return any ? std::string() : Text(kMsgNoAxis);
}

/// The same for a file whose devices come into use.
int TakeOverForDevice() {
  const ParamSetRecord before = ParamSet;
  if (TakeOver() != 0) return 1;
  ParaFlags.FileFaultText = DeviceTrouble();
  if (ParaFlags.FileFaultText.empty()) return 0;
  ParaFlags.ParaFileBad = True;
  ParamSet = before;
  return 1;
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
  const auto path = AskSavePath();
  if (!path) return 1;
  if (WriteParaFile(*path) != 0) {
    Tell(13);
    return 1;
  }
  MarkParaSaved();
  MsgBox(Text(14), MsgButtons::Ok, MsgIcon::Information);
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
  const auto path = AskOpenPath();
  if (!path) return;
  ParaFlags.ParaFileBad = False;
  if (ReadParaTable(*path) != 0 || TakeOver() != 0) {
    Tell(kMsgOpenFailed);
    return;
  }
  ParametaHyoji();
  MarkParaSaved();
}

int OpenParaForDevice() {
  const CommandsOff commands_off;
  const BusyScope busy;
  const auto path = AskOpenPath();
  if (!path) return 1;
  if (ReadFourTimes(*path) == 0 && TakeOverForDevice() == 0) return 0;
  Tell(kMsgOpenFailed);
  return 1;
}

}  // namespace tr7
