#include "para/para_file_flow.h"

#include <optional>
#include <string>

#include "core/busy_scope.h"
#include "core/message_box.h"
#include "core/text.h"
#include "core/wait.h"
#include "para/para_file.h"
#include "para/param_set.h"
#include "platform/doors.h"

namespace tr7 {
namespace {

constexpr int kTries = 4;
constexpr int kPauseMs = 100;

constexpr int kMsgOpenFailed = 681;
constexpr int kMsgBadValue = 6151;
constexpr int kMsgRow1Name = 6011;  ///< then row by row, as in the parameter view

std::optional<std::string> AskOpenPath() {
  FileDialogCall call;
  call.Title = Text(686);
  call.Filter = Text(1827);
  call.DefaultExtension = "pmt";
  const auto path = doors.forms->FileDialog(call);
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
  ParaFlags.FileFaultText = Text(kMsgBadValue, Text(kMsgRow1Name + RefusedParaRow() - 1));
  return 1;
}

}  // namespace

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
