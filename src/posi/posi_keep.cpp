#include "posi/posi_keep.h"

#include <string>
#include <vector>

#include "base/seq_file.h"
#include "forms/frm_posi.h"
#include "posi/posi_caption.h"
#include "posi/posi_commands.h"
#include "posi/posi_file.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_keep.h"
#include "posi/posi_new.h"
#include "posi/posi_open.h"
#include "posi/posi_range.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/settings.h"
#include "state/text.h"
#include "steps/file_steps.h"

namespace tr7 {
namespace {

constexpr int kMsgPositions = 202, kMsgNewData = 213;

/// The texts of the grid, the unit that they are in and the number of the first line.
struct Screen {
  int in_mm = 0;
  int first = 0;
  KeptEdits edits;

  bool Read(const std::string& text) {
    SeqReader items(text);
    return items.ReadInteger(0, 1, in_mm) && items.ReadInteger(1, kPosiMaxNo, first) &&
           edits.Read(items) && first + edits.Lines() - 1 <= kPosiMaxNo;
  }
};

void Keep(KeptWork& work) {
  const KeptEdits edits;
  if (edits.Lines() == 0) return;
  std::vector<int> numbers = edits.Sources();
  if (numbers.empty()) numbers.push_back(AppState.PosiFirstNo);  // a file has one at least
  work.path = work.name = PosiTableHasFile() ? PosiTablePath() : std::string();
  work.mode = edits.InProgramMode() ? ForMode::Program : ForMode::Positioner;
  work.file = PosiFileText(numbers);
  SeqWriter screen;
  screen.Number(AppState.DispMmUnit ? 1 : 0);
  screen.Number(AppState.PosiFirstNo);
  edits.Write(screen);
  work.screen = screen.Result();
}

/// The table that lies under the edits, by the user's choice of devices. False: it is not there.
bool TakeTable(const std::string& file) {
  DevicesOnTrial trial;
  PosiFileTrouble trouble;
  AppState.PosiFileNotOurs = False;
  if (ReadPosiText(file, trouble) != 0 || AppState.PosiFileNotOurs) return false;
  const FileDevices devices = ReconcileFileDevices();
  if (devices == FileDevices::Refused) return false;
  trial.Keep();
  ShowPosiStage(devices);
  return true;
}

bool TakeBack(const KeptWork& work) {
  Screen screen;
  if (!screen.Read(work.screen) || !MayReplaceTable(kAskSaveBeforeOpen)) return false;
  EditCMD_Muko();
  const CommandsOff commands_off;
  const PosiGridOff grid_off;
  // The texts are in the unit that they were typed in.
  const Bool16 unit = AppState.DispMmUnit;
  AppState.DispMmUnit = screen.in_mm == 1;
  if (!TakeTable(work.file)) {
    AppState.DispMmUnit = unit;
    return false;
  }
  PutSetting("DispMmUnit", screen.in_mm);
  SetLoadedPosiRange({screen.first, screen.first + screen.edits.Lines() - 1});
  SetOperationRange(LoadedPosiRange());
  FG_ShowTable();
  screen.edits.PutBack(KeptEdits::Unedited::Pulses);
  work.name.empty() ? SetPosiTableName(Text(kMsgNewData)) : SetPosiTableFile(work.name);
  frmPosi.PosiChanged = True;
  return true;
}

}  // namespace

KeepKind KeptPositions() {
  return {.Word = "posi",
          .NameId = kMsgPositions,
          .Unsaved = [] { return std::vector<std::string>(frmPosi.PosiChanged ? 1 : 0); },
          .Keep = [](const std::string&, KeptWork& work) { Keep(work); },
          .TakeBack = TakeBack};
}

}  // namespace tr7
