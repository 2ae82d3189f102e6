#include "posi/posi_verify.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "device/dev_setting.h"
#include "link/port.h"
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

namespace tr7 {
namespace {

constexpr int kMsgResultGood = 826;
constexpr int kMsgNotCompared = 6459;

/// The devices under consideration are those of no file once the flow ends.
class DevSetteiKept {
 public:
  DevSetteiKept() = default;
  ~DevSetteiKept() { DevSettei = kept_; }
  DevSetteiKept(const DevSetteiKept&) = delete;
  DevSetteiKept& operator=(const DevSetteiKept&) = delete;

 private:
  std::array<DevSettingRecord, kAxes> kept_ = DevSettei;
};

/// Compares and shows the result. `sides` names the two, `other` the one that is not the table.
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

/// Reads the file to compare with; its path, or empty when the flow ends.
std::string ReadFileToVerify(ReadFile read) {
  const auto path = AskOpenPath(350);
  if (!path || path->empty()) return {};
  AppState.PosiFileNotOurs = False;
  PosiFileTrouble trouble;
  if (read(*path, trouble) != 0) MsgBox(WithReason(484, trouble));
  if (AppState.PosiFileNotOurs) return {};
  if (AppState.CtMode == AppState.FileIsPrgMode) return *path;
  MsgBox(TwoLines(330, 331));
  return {};
}

/// The older range dialogue knows no bounds; beyond them there is nothing to compare.
bool AskOlderVerifyRange(bool overlaps) {
  if (!overlaps) return AskVerifyRange(false);
  if (!AskReadRange()) return false;
  AppState.PosiFromNo = std::max(AppState.PosiFromNo, AppState.SyogoFromNo);
  AppState.PosiToNo = std::min(AppState.PosiToNo, AppState.SyogoToNo);
  return AppState.PosiFromNo <= AppState.PosiToNo;
}

/// Says which numbers of the range the file does not hold; false when there is no other.
bool TellNotCompared() {
  const std::string numbers = NumbersLeftOut(AppState.PosiFromNo, AppState.PosiToNo);
  if (!numbers.empty()) MsgBox(Text(kMsgNotCompared, numbers));
  for (int n = AppState.PosiFromNo; n <= AppState.PosiToNo; ++n) {
    if (PosiTable.StageHolds[static_cast<std::size_t>(n)]) return true;
  }
  return false;
}

void VerifyWithFile(ReadFile read, bool (*ask_range)(bool overlaps)) {
  EditCMD_Muko();
  const CommandsOff commands_off;
  const PosiGridOff grid_off;
  const WholeRangeAfter whole_range;
  const DevSetteiKept kept;
  if (Check_flgdLineNo() != 0 || PosiDataCheckAll() != 0) return;
  const std::string path = ReadFileToVerify(read);
  if (path.empty() || !ask_range(SyogoOverlap() == 0) || !TellNotCompared()) return;
  const std::string title = FileTitle(path);
  CompareAndShow(Text(352) + title + Text(353), title);
}

void VerifyWithCt() {
  if (GoOnlineAndRecheck() != 0) return;
  AppState.CancelRequested = False;
  const int result = ReadPosidataFromCt();
  if (result == kTransferStopped) MsgBox(Text(440), MsgButtons::Ok, MsgIcon::Information);
  if (result == kTransferDone) CompareAndShow(Text(354), Text(374));
}

}  // namespace

void PosiDataFileShogo2() { VerifyWithFile(ReadPosiFile, AskVerifyRange); }

void PosiDataFileShogo() { VerifyWithFile(ReadOldPosiFile, AskOlderVerifyRange); }

void PosiDataCtShogo() {
  EditCMD_Muko();
  const CommandsOff commands_off;
  const BusyScope busy;
  const PosiGridOff grid_off;
  const WholeRangeAfter whole_range;
  const PortClosedAfter port_closed;
  AppState.CancelRequested = False;
  if (Check_flgdLineNo() != 0 || PosiDataCheckAll() != 0 || !AskRange()) return;
  VerifyWithCt();
}

}  // namespace tr7
