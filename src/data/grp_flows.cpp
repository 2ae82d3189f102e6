#include "data/grp_flows.h"

#include <optional>
#include <string>

#include "data/grp_commands.h"
#include "data/grp_file.h"
#include "data/grp_show.h"
#include "data/grp_table.h"
#include "session/open_port.h"
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

constexpr DataFile kGrpFileToOpen{828, "grp", 833};
constexpr DataFile kGrpFile{831, "grp", 833};

constexpr int kMsgWritten = 6507;
constexpr int kMsgSaved = 6508;

void CheckAllGroups() {
  StoreShownGroups();
  GrpFlags.GrpCheckFirst = 1;
  GrpFlags.GrpCheckLast = kGroups;
}

/// False after the user has been told.
bool GroupsAreGood() {
  CheckAllGroups();
  if (GrpData_Check() == 0) return true;
  MsgBox(TwoLines(820, 821));
  return false;
}

bool GroupsMayTravel() {
  CheckAllGroups();
  if (GrpData_Check() == 0) return true;
  MsgBox(TwoLines(820, 836) + "\n" + TwoLines(837, 838));
  return false;
}

/// Reads into the stage. A line that failed is not online any more.
Outcome ReadToStage() {
  const WaitCursorScope wait_cursor;
  const Outcome outcome = ReadGrpFromCt();
  if (outcome == Outcome::Stopped) TellDone(425);
  if (outcome == Outcome::Failed) EndSession();
  return outcome;
}

/// Reads into the stage, where groups that the file leaves out keep what was read before. A file of
/// another kind leaves the table in it, so that nothing foreign comes in.
bool ReadFileToStage(const std::string& path) {
  const auto read = [&] { return GrpFileRead(path) == 0 ? Attempt::Good : Attempt::MayPass; };
  if (TryFourTimes(read)) {
    if (GrpFlags.GrpFileRefused) GrpStageFromTable();
    return true;
  }
  MsgBox(WithReason(Text(484), GrpFlags.GrpFileFaultText));
  return false;
}

/// `saved`: what comes in is all there is, and stands in a file or the controller.
void TakeStage(bool saved) {
  GrpStageCommit();
  if (saved) GrpSaved = GrpTable;
  GrpShow();
}

void ReportCompare() {
  GrpStageCompare();
  if (!GrpFlags.GrpSyogoNg) return TellDone(826);
  // Meant so: the list stands ahead of the words that name it.
  MsgBox(TwoLines(823, 824) + "\n" + GrpFlags.GrpSyogoList + Text(825));
}

}  // namespace

void ReadGroups() {
  const TransferScope transfer;
  StoreShownGroups();
  if (!AskOk(835) || !ConnectOrOpenPort()) return;
  if (ReadToStage() == Outcome::Done) TakeStage(true);
}

void WriteGroups() {
  const TransferScope transfer;
  if (!GroupsMayTravel() || !AskYes(839) || !ConnectOrOpenPort()) return;
  if (WriteHeld(WriteGrpToCt) != Outcome::Done) return;
  GrpSaved = GrpTable;
  TellInStatusPanel(Text(kMsgWritten));
}

void VerifyGroupsToCt() {
  const TransferScope transfer;
  if (!GroupsAreGood() || !ConnectOrOpenPort()) return;
  if (ReadToStage() == Outcome::Done) ReportCompare();
}

void VerifyGroupsToFile() {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!GroupsAreGood()) return;
  const auto path = AskOpenPath(kGrpFile, 834);
  if (path && !path->empty() && ReadFileToStage(*path)) ReportCompare();
}

void OpenGroupFile() {
  const CommandsOff commands_off;
  const BusyScope busy;
  StoreShownGroups();
  const auto path = AskOpenPath(kGrpFileToOpen, 827);
  if (path && !path->empty() && ReadFileToStage(*path)) TakeStage(!GrpFlags.GrpFileRefused);
}

void SaveGroupFile() {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!GroupsAreGood()) return;
  const auto path = AskSavePath(kGrpFile, 832);
  if (!path) return;
  const auto save = [&] { return GrpFileSave(*path) == 0 ? Attempt::Good : Attempt::MayPass; };
  if (!TryFourTimes(save)) {
    MsgBox(WithReason(Text(18), GrpFlags.GrpFileFaultText));
    return;
  }
  GrpSaved = GrpTable;
  TellInStatusPanel(Text(kMsgSaved, *path));
}

}  // namespace tr7
