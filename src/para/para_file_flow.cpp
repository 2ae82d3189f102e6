#include "para/para_file_flow.h"

#include <string>

#include "para/para_blocks.h"
#include "para/para_check.h"
#include "para/para_content.h"
#include "para/para_file.h"
#include "para/para_show.h"
#include "para/param_set.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"
#include "steps/file_steps.h"

namespace tr7 {
namespace {

constexpr DataFile kParaDataFile{1827, "pmt", 12};

constexpr int kMsgOpenFailed = 681;
constexpr int kMsgBadValue = 6151;

/// A message, and behind it why the file could not be read or written, where there is more to say.
void TellFileFault(int message_id) {
  MsgBox(WithReason(Text(message_id), ParaFlags.FileFaultText));
}

Attempt Read(const std::string& path) {
  ParaFlags.ParaFileBad = False;
  return ReadParaTable(path) == 0 ? Attempt::Good : Attempt::MayPass;
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

void OpenParaFile() {
  const CommandsOff commands_off;
  const BusyScope busy;
  const auto path = AskOpenPath(kParaDataFile, 686);
  if (!path || path->empty()) return;
  if (Read(*path) != Attempt::Good || TakeOver() != 0) {
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
  if (TryFourTimes([&] { return Read(*path); }) && TakeOver() == 0) return 0;
  TellFileFault(kMsgOpenFailed);
  return 1;
}

}  // namespace tr7
