#include "data/data_flows.h"

#include "session/open_port.h"
#include "session/session.h"
#include "state/busy_scope.h"
#include "state/files_here.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "steps/held_write.h"
#include "steps/transfer_scope.h"
#include "steps/write_taken.h"

namespace tr7 {
namespace {

constexpr int kMsgStopped = 425;
constexpr int kMsgWritten = 6507;
constexpr int kMsgSaved = 6508;

void ReportDifferences(const DataKind& kind) {
  const std::string numbers = kind.Differing();
  if (numbers.empty()) return TellDone(kind.Equal);
  // Meant so: the list stands ahead of the words that name it.
  MsgBoxWithDetails(
      TwoLines(kind.DifferHead, kind.DifferList) + "\n" + numbers + Text(kind.DifferName),
      kind.Details());
}

}  // namespace

Outcome ReadDataToStage(const DataKind& kind) {
  const WaitCursorScope wait_cursor;
  const Outcome outcome = kind.ReadFromCt();
  if (outcome == Outcome::Stopped) TellDone(kMsgStopped);
  if (outcome == Outcome::Failed && kind.FailureEndsSession) EndSession();
  return outcome;
}

bool ReadDataFileToStage(const DataKind& kind, const std::string& path) {
  const auto read = [&] { return kind.ReadFile(path) == 0 ? Attempt::Good : Attempt::MayPass; };
  if (TryFourTimes(read)) return true;
  MsgBox(WithReason(Text(kind.FileNotRead), *kind.FileFault));
  return false;
}

std::optional<std::string> AskAndReadDataFile(const DataKind& kind, const DataFile& file,
                                              MsgId title_id) {
  const auto path = AskOpenPath(file, title_id);
  if (!path || path->empty() || !ReadDataFileToStage(kind, *path)) return std::nullopt;
  if (kind.FileWasRefused()) kind.StageFromTable();
  return path;
}

void ReadData(const DataKind& kind) {
  const auto may_replace = [&kind] {
    return kind.IsChanged() ? AskToLose(Text(kind.AskRead)) : AskOk(kind.AskRead);
  };
  const TransferScope transfer;
  kind.StoreShown();
  if (!may_replace() || !ConnectOrOpenPort()) return;
  if (ReadDataToStage(kind) != Outcome::Done) return;
  kind.TakeStage();
  kind.MarkSaved();
  kind.Path->clear();
}

void WriteData(const DataKind& kind) {
  const TransferScope transfer;
  if (!kind.MayBeSent() || !AskYesToLose(Text(kind.AskWrite)) || !ConnectOrOpenPort()) return;
  if (WriteHeld(kind.WriteToCt) != Outcome::Done) return;
  if (kind.IsChanged()) kind.Path->clear();  // the file holds other data
  kind.MarkSaved();
  TellInStatusPanel(Text(kMsgWritten));
  WarnOfRepeats();
}

void VerifyDataToCt(const DataKind& kind) {
  const TransferScope transfer;
  if (!kind.MayBeCompared() || !ConnectOrOpenPort()) return;
  if (ReadDataToStage(kind) == Outcome::Done) ReportDifferences(kind);
}

void VerifyDataToFile(const DataKind& kind) {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!kind.MayBeCompared()) return;
  if (AskAndReadDataFile(kind, kind.File, kind.VerifyTitle)) ReportDifferences(kind);
}

namespace {

/// What no file and no controller holds is saved first where the user wants that.
bool MayReplaceData(const DataKind& kind) {
  const auto save = [&kind] {
    SaveDataFile(kind);
    return !kind.IsChanged();
  };
  return !kind.IsChanged() || MayLoseUnsaved(kAskSaveBeforeOpen, save);
}

}  // namespace

void OpenDataFile(const DataKind& kind) {
  const CommandsOff commands_off;
  const BusyScope busy;
  kind.StoreShown();
  if (!MayReplaceData(kind)) return;
  const auto path = AskAndReadDataFile(kind, kind.FileToOpen, kind.OpenTitle);
  if (!path) return;
  kind.TakeStage();
  if (kind.FileWasRefused()) return;
  kind.MarkSaved();
  *kind.Path = *path;
  FileIsShown(*path);
}

void SaveDataFile(const DataKind& kind) {
  const CommandsOff commands_off;
  const BusyScope busy;
  if (!kind.MayBeCompared()) return;
  const auto path = AskSavePath(kind.File, kind.SaveTitle);
  if (!path) return;
  const auto save = [&] { return kind.SaveFile(*path) == 0 ? Attempt::Good : Attempt::MayPass; };
  if (!TryFourTimes(save)) {
    MsgBox(WithReason(Text(kind.FileNotSaved), *kind.FileFault));
    return;
  }
  kind.MarkSaved();
  *kind.Path = *path;
  FileIsShown(*path);
  TellInStatusPanel(Text(kMsgSaved, *path));
}

}  // namespace tr7
