#include "para/para_file_flow.h"

#include <string>

#include "forms/frm_parameta2.h"
#include "para/para_blocks.h"
#include "para/para_content.h"
#include "para/para_file.h"
#include "para/para_show.h"
#include "para/para_take_view.h"
#include "para/param_set.h"
#include "state/busy_scope.h"
#include "state/file_kind.h"
#include "state/files_here.h"
#include "state/message_box.h"
#include "state/text.h"
#include "steps/file_steps.h"

namespace tr7 {
namespace {

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

/// True when what was read fits `ParamSet`; else `ParaFileBad`, and which row does not.
bool TableFits() {
  const int refused = RefusedParaRow();
  if (refused == 0) return true;
  ParaFlags.ParaFileBad = True;
  ParaFlags.FileFaultText = Text(kMsgBadValue, ParaRowName(refused));
  return false;
}

/// What was read into `ParamSet`: all of it, or nothing with `ParaFileBad`.
bool TakeOver() { return TableFits() && TakeParamTable() == 0; }

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

}  // namespace

int SaveParaToFile() {
  FilledCheck filled;
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!filled.Holds() || !TakeParaView(9, 10)) return 1;
  const auto path = AskSavePath(kParaDataFile, 11);
  if (!path) return 1;
  if (WriteParaFile(*path) != 0) {
    TellFileFault(13);
    return 1;
  }
  MarkParaSaved();
  frmParameta2.FilePath = *path;
  FileIsShown(*path);
  TellDone(14);
  return 0;
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
  frmParameta2.FilePath = *path;
  FileIsShown(*path);
}

bool ParaFileIsRead(const std::string& path) {
  if (Read(path) == Attempt::Good && TableFits()) return true;
  TellFileFault(kMsgOpenFailed);
  return false;
}

bool ReadParaFileToVerify() {
  const auto path = AskOpenPath(kParaDataFile, 680);
  return path && !path->empty() && ParaFileIsRead(*path);
}

bool MayDropParaChanges(MsgId question_id) {
  return !frmParameta2.Loaded || !ParaIsChanged() ||
         MayLoseUnsaved(question_id, [] { return SaveParaToFile() == 0; });
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
