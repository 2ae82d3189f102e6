#include "posi/posi_verify.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

#include "posi/file_devices.h"
#include "posi/posi_check.h"
#include "posi/posi_commands.h"
#include "posi/posi_file.h"
#include "posi/posi_file_flows.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_range.h"
#include "posi/posi_syogo.h"
#include "posi/posi_table.h"
#include "posi/posi_transfer.h"
#include "posi/range_dialogs.h"
#include "posi/result_view.h"
#include "posi/syogo_flags.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"
#include "steps/transfer_scope.h"

namespace tr7 {
namespace {

constexpr int kMsgResultGood = 826;
constexpr int kMsgNotCompared = 6459;

/// Compares over the operation's range and shows the result. `sides` names the two, `other` the one
/// that is not the table.
void CompareAndShow(const std::string& sides, const std::string& other) {
  if (PosiDataSyogoProc() == 0) {
    MsgBox(sides + "\n\n" + Text(kMsgResultGood), MsgButtons::Ok, MsgIcon::Information);
  } else {
    ShowSyogoKekka(true, {StagedText, other});
  }
  ClearSyogo();
  FG_HighSyoriEnd();
}

using ReadFile = int (*)(const std::string& path, PosiFileTrouble& trouble);

/// True when the stage holds a file of the present mode; otherwise the user knows why not.
bool ReadIntoStage(ReadFile read, const std::string& path) {
  AppState.PosiFileNotOurs = False;
  PosiFileTrouble trouble;
  if (read(path, trouble) != 0) MsgBox(WithReason(Text(484), trouble.words));
  return !AppState.PosiFileNotOurs && FileIsOfThisMode();
}

/// The older range dialogue knows no bounds; beyond them there is nothing to compare.
std::optional<PosiRange> AskOlderVerifyRange(bool overlaps) {
  if (!overlaps) return AskVerifyRange(false);
  const std::optional<PosiRange> asked = AskReadRange();
  if (!asked) return std::nullopt;
  const PosiRange range{std::max<int>(asked->first, AppState.SyogoFromNo),
                        std::min<int>(asked->last, AppState.SyogoToNo)};
  SetOperationRange(range);
  return range.IsEmpty() ? std::nullopt : std::optional(range);
}

/// Says which numbers of the range the file does not hold; false when there is no other.
bool TellNotCompared() {
  const std::string numbers = NumbersLeftOut(AppState.PosiFromNo, AppState.PosiToNo);
  if (!numbers.empty()) MsgBox(Text(kMsgNotCompared, numbers));
  for (int n = AppState.PosiFromNo; n <= AppState.PosiToNo; ++n) {
    if (PosiTable.StageHolds[n]) return true;
  }
  return false;
}

void VerifyWithFile(ReadFile read, std::optional<PosiRange> (*ask_range)(bool overlaps)) {
  EditCMD_Muko();
  const CommandsOff commands_off;
  const PosiGridOff grid_off;
  const WholeRangeAfter whole_range;
  const DevSetteiKept kept;
  if (Check_flgdLineNo() != 0 || !PosiDataCheckAll()) return;
  const auto path = AskOpenPath(kPosiDataFile, 350);
  if (!path || path->empty() || !ReadIntoStage(read, *path)) return;
  if (!ask_range(SyogoOverlap() == 0) || !TellNotCompared()) return;
  const std::string title = FileTitle(*path);
  CompareAndShow(Text(352) + title + Text(353), title);
}

}  // namespace

void PosiDataFileShogo2() { VerifyWithFile(ReadPosiFile, AskVerifyRange); }

void PosiDataFileShogo() { VerifyWithFile(ReadOldPosiFile, AskOlderVerifyRange); }

void PosiDataCtShogo() {
  EditCMD_Muko();
  const TransferScope transfer;
  const PosiGridOff grid_off;
  const WholeRangeAfter whole_range;
  if (Check_flgdLineNo() != 0 || !PosiDataCheckAll()) return;
  const std::optional<PosiRange> range = AskRange();
  if (!range || !GoOnlineAndRecheck()) return;
  AppState.CancelRequested = False;
  const Outcome outcome = ReadPosidataFromCt(*range);
  if (outcome == Outcome::Stopped) TellDone(440);
  if (outcome == Outcome::Done) CompareAndShow(Text(354), Text(374));
}

}  // namespace tr7
