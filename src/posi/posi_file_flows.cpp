#include "posi/posi_file_flows.h"

#include <filesystem>
#include <optional>

#include "forms/frm_posi.h"
#include "posi/posi_caption.h"
#include "posi/posi_check.h"
#include "posi/posi_commands.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_range.h"
#include "posi/range_dialogs.h"
#include "state/busy_scope.h"
#include "state/for_mode.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgPartOverWhole = 6460;
constexpr int kMsgSaved = 5972;

std::optional<std::string> AskPath(MsgId title_id) {
  const auto path = AskSavePath(kPosiDataFile, title_id);
  frmPosi.SaveCancelled = !path;
  return path;
}

/// The table's own file, or one that the user names.
std::optional<std::string> PathToSave() {
  if (!PosiTableHasFile()) return AskPath(423);
  const std::string path = PosiTablePath();
  frmPosi.SaveCancelled = !MayReplaceFile(path);
  return frmPosi.SaveCancelled ? std::nullopt : std::optional(path);
}

void TellNotSaved(const PosiFileTrouble& trouble) { MsgBox(WithReason(Text(422), trouble.words)); }

/// The save may have been asked for from another view: the status bar says what went where.
void TellSaved(const std::string& path) {
  const PosiRange range = OperationRange();
  const std::string numbers = std::to_string(range.first) + " - " + std::to_string(range.last);
  TellInStatusPanel(Text(kMsgSaved, numbers, path));
}

/// Checks the table and saves it; the path, or empty when it was not saved.
std::string SaveWhole() {
  const KeepPlace place;  // from which the check goes away
  if (Check_flgdLineNo() != 0 || !PosiDataCheckAll()) return {};
  const auto path = PathToSave();
  if (!path) return {};
  PosiFileTrouble trouble;
  if (TryFourTimes([&] { return AttemptOf(SaveFileAs2(*path, trouble), trouble); })) return *path;
  TellNotSaved(trouble);
  return {};
}

void Save() {
  const std::string path = SaveWhole();
  if (!path.empty()) TellSaved(path);  // behind the cell's hint, which comes back with the place
}

/// The rest of the table would be in no file, and nothing would say so.
bool IsPartOverOwnFile(const std::string& path) {
  const auto plain = [](const std::string& p) {
    return std::filesystem::path(p).lexically_normal();
  };
  return !RangeIsWholeTable() && PosiTableHasFile() && plain(path) == plain(PosiTablePath());
}

void SaveAs() {
  const WholeRangeAfter whole_range;
  if (Check_flgdLineNo() != 0 || !PosiDataCheckAll()) return;
  const std::optional<PosiRange> range = AskRange();
  if (!range || PosiDataCheck3() != 0 || !AskOk(WithRange(405, *range))) return;
  const auto path = AskPath(406);
  if (!path) return;
  if (IsPartOverOwnFile(*path)) return Tell(kMsgPartOverWhole);
  PosiFileTrouble trouble;
  if (SaveFileAs2(*path, trouble) != 0) return TellNotSaved(trouble);
  TellSaved(*path);
}

}  // namespace

Attempt AttemptOf(int result, const PosiFileTrouble& trouble) {
  if (result == 0) return Attempt::Good;
  return trouble.may_pass ? Attempt::MayPass : Attempt::Useless;
}

bool FileIsOfThisMode() {
  constexpr int kMsgMode = 7828;
  if (AppState.CtMode == AppState.FileIsPrgMode) return true;
  const auto name = [](bool program_mode) {
    return Text(ModeNameId(program_mode ? ForMode::Program : ForMode::Positioner));
  };
  MsgBoxWithDetails(TwoLines(330, 331), DifferenceLine(Text(kMsgMode), name(AppState.CtMode),
                                                       name(AppState.FileIsPrgMode)));
  return false;
}

bool ReadPosiFileToStage(const std::string& path) {
  PosiFileTrouble trouble;
  const bool read = TryFourTimes([&] {
    AppState.PosiFileNotOurs = False;
    return AttemptOf(ReadPosiFile(path, trouble), trouble);
  });
  if (!read) {
    MsgBox(WithReason(Text(484), trouble.words));
    return false;
  }
  // A file of another kind has been told. The flow goes on with what was there before, and that
  // is on show as it is, with what the user has typed into it.
  if (AppState.PosiFileNotOurs) return false;
  return FileIsOfThisMode();
}

void PosidataSaveToFile() {
  EditCMD_Muko();
  const CommandsOff commands_off;
  const PosiGridOff grid_off;
  frmPosi.SaveCancelled = False;
  Save();
}

void PosiDataSaveAs() {
  EditCMD_Muko();
  const CommandsOff commands_off;
  const PosiGridOff grid_off;
  frmPosi.SaveCancelled = False;
  SaveAs();
  FG_InitPos();
}

}  // namespace tr7
