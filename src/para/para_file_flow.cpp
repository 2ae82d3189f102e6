#include "para/para_file_flow.h"

#include <optional>
#include <string>

#include "para/para_blocks.h"
#include "para/para_check.h"
#include "para/para_content.h"
#include "para/para_file.h"
#include "para/para_show.h"
#include "para/param_set.h"
#include "platform/doors.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/wait.h"

namespace tr7 {
namespace {

constexpr int kTries = 4;
constexpr int kPauseMs = 100;

constexpr int kMsgOpenFailed = 681;
constexpr int kMsgBadValue = 6151;

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
void Tell(MsgId message_id) {
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

/// Takes the view into `ParamSet`. False after the user has been told what is missing or wrong.
bool TakeFromView() {
  if (ParametaumuKakunin() != 0) {
    MsgBox(TwoLines(7, 8));
    return false;
  }
  TorikomiParametaValue();
  if (ParametaValueCheck() != 0) {
    MsgBox(TwoLines(9, 10));
    return false;
  }
  return true;
}

}  // namespace

int SaveParaToFile() {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!TakeFromView()) return 1;
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
  if (ReadFourTimes(*path) == 0 && TakeOver() == 0) return 0;
  Tell(kMsgOpenFailed);
  return 1;
}

}  // namespace tr7
