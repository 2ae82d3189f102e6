#include "data/sm_flows.h"

#include <string>

#include "data/sm_commands.h"
#include "data/sm_file.h"
#include "data/sm_show.h"
#include "data/sm_table.h"
#include "session/session.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "steps/file_steps.h"
#include "steps/held_write.h"
#include "steps/transfer_scope.h"

namespace tr7 {
namespace {

constexpr DataFile kSmFile{930, "smd", 934};

constexpr int kMsgWritten = 6507;
constexpr int kMsgSaved = 6508;

/// False after the user has been told which macros are bad. The check may have put steps right.
bool MacrosAreGood() {
  const bool saved = SmTable == SmSaved;
  const int result = SmData_Check();
  if (saved) SmSaved = SmTable;
  SmShow();
  if (result == 0) return true;
  MsgBox(Text(921) + "\n\n" + Text(922) + "\n\n" + Text(938) + "\n\n" + SmFlags.SmBadList);
  return false;
}

Outcome ReadToStage() {
  const WaitCursorScope wait_cursor;
  return ReadSmFromCt();
}

/// Reads into the stage, where macros that the file leaves out keep what was read before.
bool ReadFileToStage(const std::string& path) {
  const auto read = [&] { return OpenSMFile(path) == 0 ? Attempt::Good : Attempt::MayPass; };
  {
    const WaitCursorScope wait_cursor;
    if (TryFourTimes(read)) return true;
  }
  MsgBox(WithReason(Text(931), SmFlags.SmFileFaultText));
  return false;
}

void TakeStage() {
  SmStageCommit();
  SmSaved = SmTable;
  SmShow();
}

void ReportCompare() {
  SmStageCompare();
  if (SmFlags.SmSyogoList.empty()) return TellDone(926);
  // Meant so: the list stands ahead of the words that name it.
  MsgBox(TwoLines(923, 924) + "\n" + SmFlags.SmSyogoList + Text(925));
}

}  // namespace

void ReadMacros() {
  const TransferScope transfer;
  if (!AskOk(920) || !ConnectOrOpenPort()) return;
  if (ReadToStage() == Outcome::Done) TakeStage();
}

void WriteMacros() {
  const TransferScope transfer;
  if (!MacrosAreGood() || !AskYes(937) || !ConnectOrOpenPort()) return;
  if (WriteHeld(WriteSmToCt) != Outcome::Done) return;
  SmSaved = SmTable;
  TellInStatusPanel(Text(kMsgWritten));
}

void VerifyMacrosToCt() {
  const TransferScope transfer;
  if (!MacrosAreGood() || !ConnectOrOpenPort()) return;
  if (ReadToStage() == Outcome::Done) ReportCompare();
}

void VerifyMacrosToFile() {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!MacrosAreGood()) return;
  const auto path = AskOpenPath(kSmFile, 936);
  if (path && !path->empty() && ReadFileToStage(*path)) ReportCompare();
}

void OpenMacroFile() {
  const CommandsOff commands_off;
  const BusyScope busy;
  const auto path = AskOpenPath(kSmFile, 928);
  if (path && !path->empty() && ReadFileToStage(*path)) TakeStage();
}

void SaveMacroFile() {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!MacrosAreGood()) return;
  const auto path = AskSavePath(kSmFile, 933);
  if (!path) return;
  const auto save = [&] { return SmFileSave(*path) == 0 ? Attempt::Good : Attempt::MayPass; };
  if (!TryFourTimes(save)) {
    MsgBox(WithReason(Text(935), SmFlags.SmFileFaultText));
    return;
  }
  SmSaved = SmTable;
  TellInStatusPanel(Text(kMsgSaved, *path));
}

}  // namespace tr7
