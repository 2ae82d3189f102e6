#include "prog/prog_flows.h"

#include <optional>
#include <string>
#include <utility>

#include "link/port.h"
#include "platform/doors.h"
#include "prog/command_list.h"
#include "prog/prog_check.h"
#include "prog/prog_check_flow.h"
#include "prog/prog_commands.h"
#include "prog/prog_file.h"
#include "prog/prog_listing.h"
#include "prog/prog_no.h"
#include "prog/prog_undo.h"
#include "prog/prog_verify.h"
#include "session/session.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/progress.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/views.h"
#include "state/wait.h"
#include "steps/file_steps.h"
#include "steps/held_axes.h"
#include "steps/transfer_scope.h"
#include "steps/write_taken.h"

namespace tr7 {
namespace {

constexpr int kMsgHalfWritten = 7058, kMsgCaption = 7059, kMsgTooMany = 7057, kMsgSaved = 6508;
constexpr int kMsgNotSaved = 422;
constexpr int kPauseMs = 20;
constexpr DataFile kFileToSave{FileKind::Program, 437, "prg", 438};

bool FitsNumber(const ProgView& view, int program) {
  switch (Check_ProgramStepSu(view.Store, program)) {
    case 0:
      return true;
    case 1:
      MsgBox(Text(453) + std::to_string(program) + Text(454) +
                 std::to_string(GetProgStepMax(program)) + Text(455),
             MsgButtons::Ok, MsgIcon::Error);
      return false;
    default:
      return false;
  }
}

/// A write while the axes stand still and are held.
bool WriteWhileHeld(ProgView& view, int program) {
  const WaitCursorScope wait_cursor;
  if (!AxesStandStill()) return false;
  HeldAxes held;
  if (!held.Hold()) return false;
  const ProgWrite written = WriteProgdataToCt(program, view.Store.ProgDA);
  if (written == ProgWrite::HalfWritten) MsgBox(Text(kMsgHalfWritten, std::to_string(program)));
  if (written != ProgWrite::Done) return false;
  if (view.Store.ProgChanged) view.Store.FilePath.clear();  // the file holds another program
  ProgIsSaved(view);
  return held.Release();
}

/// Renews the number's step count; false where that fails. One that is not the program's own means
/// that the controller has not taken it as it stands: an empty step in the middle ends it there.
bool RenewStepCount(const ProgView& view, int program) {
  int count = -1;
  {
    const ProgressScope progress(Text(368), 100, false);
    count = ReadProgStepCountFromCt(program);
    if (count < 0) return false;
    ProgCt.ProgStepCounts[program] = static_cast<std::int16_t>(count);
    TusinWaitMs(kPauseMs);
  }
  if (count != static_cast<int>(view.Store.ProgDA.size())) {
    MsgBox(Text(kMsgHalfWritten, std::to_string(program)));
  }
  return true;
}

/// How a verification ended for its view.
enum class Verified { Stays, Closes };

Verified Verify(ProgView& view) {
  const TransferScope transfer;
  if (ProgDataCheckOrPane(view, false) != 0) return Verified::Stays;
  const auto program = AskProgNoOfCt();
  if (!program) return Verified::Stays;
  switch (ReadProgDataFromCt(*program, view.Store.ProgCtDA)) {
    case Outcome::Stopped:
      Tell(440);
      return Verified::Stays;
    case Outcome::Failed:
      return Verified::Closes;
    default:
      break;
  }
  TusinPortClose();
  const ProgSyogo found = ProgDataVerifyProc(view.Store.ProgDA, view.Store.ProgCtDA);
  if (found.IsEqual()) {
    MsgBox(Text(354) + "\n\n" + Text(826), MsgButtons::Ok, MsgIcon::Information);
  } else {
    ShowProgSyogo(found);
  }
  return Verified::Stays;
}

void TellTooManySteps(const ProgView& view) {
  const int extra = ListingSteps(view.flgdProg) - ListingLimit(view);
  if (extra <= 0) return;
  const int number = view.Store.ProgCopyNo;
  MsgBox(Text(kMsgTooMany, number == 0 ? "1 - 7" : std::to_string(number), std::to_string(extra)));
}

}  // namespace

bool KnowProgStepCounts() {
  if (AppState.ProgStepsRead) return true;
  if (ReadAllProgStepCountFromCt() != Outcome::Done) return false;
  TusinWaitMs(kPauseMs);
  return true;
}

std::optional<int> AskProgNoOfCt() {
  if (!ConnectOrOpenPort() || !KnowProgStepCounts()) return std::nullopt;
  TusinPortClose();
  return AskProgNo();
}

void ProgDataWrite2Ct(ProgView& view) {
  const TransferScope transfer;
  if (ProgDataCheckOrPane(view, false) != 0) return;
  const auto program = AskProgNoOfCt();
  if (!program || !FitsNumber(view, *program) || !OpenPortOrTell()) return;
  if (!WriteWhileHeld(view, *program)) return;
  TellWriteDone(376);
  view.Store.ProgCopyNo = static_cast<std::int16_t>(*program);
  if (!RenewStepCount(view, *program)) return;
  view.Caption = Text(kMsgCaption, std::to_string(*program));
}

void cmdProgVerifyCt_Click(ProgView& view) {
  if (Verify(view) == Verified::Closes) CloseView(view, CloseReason::Code);
}

namespace {

/// The file holds this view's program now: another view that it held is in no file any more.
void LeaveFileTo(const ProgView& view) {
  for (View* open : OpenViews()) {
    auto* other = dynamic_cast<ProgView*>(open);
    if (!other || other == &view || other->Store.FilePath != view.Store.FilePath) continue;
    ProgLosesItsFile(*other);
  }
}

}  // namespace

void ProgDataSaveAs(ProgView& view) {
  const CommandsOff commands_off;
  const BusyScope busy;
  FGProg_InitPos(view.flgdProg);
  if (PrepareProg(view) != 0) return;
  static_cast<void>(ProgDataCheckOrPane(view, true));  // with errors it may be saved all the same
  if (!(view.Store.ProgSyntaxNg ? AskToLose(Text(441)) : AskOk(405))) return;
  const auto path = AskSavePath(kFileToSave, 436);
  if (!path) return;
  if (SaveFileProgAs2(*path, view) != 0) {
    MsgBox(WithReason(Text(kMsgNotSaved), view.Store.FileFault));
    return;
  }
  ShowProgFileName(*path, view);
  LeaveFileTo(view);
  view.Store.ProgCmdBad = False;
  ProgIsSaved(view);
  TellInStatusPanel(Text(kMsgSaved, *path));
  doors.forms->SetFocus(view.flgdProg);
}

bool ProgDataGetfromCt(int& program, std::vector<ProgStep>& steps) {
  const auto chosen = AskProgNoOfCt();
  if (!chosen) return false;
  program = *chosen;
  const Outcome outcome = ReadProgDataFromCt(program, steps);
  if (outcome != Outcome::Done) TellDone(425);
  return outcome == Outcome::Done;
}

bool ProgFileIsRead(const std::string& path, ProgStore& store) {
  if (OpenProgFile(path, store) == 0) return true;
  MsgBox(WithReason(Text(367), store.FileFault));
  return false;
}

ProgView* ReadProgFile(const std::string& path, ProgView& (*make_view)()) {
  ProgStore incoming;
  if (!ProgFileIsRead(path, incoming)) return nullptr;
  ProgView& view = make_view();
  view.Store = std::move(incoming);
  ShowProgFileName(path, view);
  ProgDataHyoji2(view);
  return &view;
}

ProgView* ProgDataFileOpen(ProgView& (*make_view)()) {
  const CommandsOff commands_off;
  const BusyScope busy;
  const auto path = AskOpenPath(kProgDataFile, 130);
  if (!path || path->empty()) {
    Tell(367);
    return nullptr;
  }
  ProgView* view = ReadProgFile(*path, make_view);
  if (view) TellTooManySteps(*view);
  return view;
}

}  // namespace tr7
