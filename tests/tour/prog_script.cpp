#include "forms/frm_prog_no.h"
#include "forms/frm_prog_syogokekka.h"
#include "monitor/task_monitor.h"
#include "prog/prog_store.h"
#include "tests/tour/scripts.h"
#include "tests/tour/steps.h"

namespace tr7::tour {
namespace {

constexpr int kProgram = 3;

ProgView& ProgramInFront(User& user) {
  const auto front = [] { return dynamic_cast<ProgView*>(ActiveView()); };
  user.See("a program view", [front] { return front() != nullptr; });
  return *InTool(front);
}

void ChooseProgram(User& user, const char* picture = nullptr, int program = kProgram) {
  user.See(
      "the list of programs", [] { return frmProgNo.Visible; }, User::kTransferMs);
  user.ClickCell(frmProgNo.flgdProgNo, program, 1);
  user.SeeText(frmProgNo.lblProgNo, std::to_string(program));
  if (picture) user.Picture(picture);
  user.Click(frmProgNo.cmdOk);
}

void TypeCell(User& user, const char* text) {
  user.Keys(text);
  user.Key(Qt::Key_Return);
}

void ToNextStep(User& user, int columns) {
  while (columns-- > 0) user.Key(Qt::Key_Return);
}

void SeeListed(User& user, const ProgView& view, std::size_t names) {
  user.See(std::to_string(names) + " commands in the list",
           [&view, names] { return view.List1.Visible && view.List1.List.size() == names; });
}

/// "mvq" is no command; the list offers those that begin with "MV".
void TypeSteps(User& user, ProgView& view) {
  constexpr std::size_t kAll = 58, kMoves = 4;
  Grid& listing = view.flgdProg;
  user.ClickCell(listing, 1, kProgCommand);
  TypeCell(user, "mvq");
  user.Picture("command-refused");
  user.Key(Qt::Key_Escape);
  user.SeeCell(listing, 1, kProgCommand, "");
  user.Key(Qt::Key_Space, Qt::ControlModifier);
  SeeListed(user, view, kAll);
  user.Picture("command-list");
  user.Keys("mv");
  SeeListed(user, view, kMoves);
  user.Picture("command-list-filtered");
  user.Key(Qt::Key_Return);
  user.SeeCell(listing, 1, kProgCommand, "MVP");
  user.Key(Qt::Key_Return);
  TypeCell(user, "1000");
  ToNextStep(user, 4);
  TypeCell(user, "JUMP");
  TypeCell(user, "7");
  ToNextStep(user, 4);
  TypeCell(user, "LB");
  TypeCell(user, "8");
  user.SeeCell(listing, 3, kProgOperand1, "8");
}

void CheckAndMend(User& user, ProgView& view) {
  constexpr int kErrors = 134, kGood = 133;
  user.ClickCell(view.flgdProg, 1, kProgOperand1);
  user.Click(view.cmdProgCheck);
  user.AnswerBox(Text(kErrors), MsgAnswer::Ok);
  user.SeeOn(view.cmdCloseSyntaxErr);
  user.Picture("error-pane");
  user.ClickCell(view.flgdPrgErr, 2, 1);
  user.Key(Qt::Key_Return);
  user.See("the jump's step", [&view] { return view.flgdProg.Row == 2; });
  user.Click(view.cmdCloseSyntaxErr);
  user.ClickCell(view.flgdProg, 1, kProgOperand1);
  TypeCell(user, "1");
  user.ClickCell(view.flgdProg, 3, kProgOperand1);
  TypeCell(user, "7");
  user.ClickCell(view.flgdProg, 2, kProgOperand1);
  user.Picture("mended");
  user.Key(Qt::Key_F12);
  user.See("the label's step", [&view] { return view.flgdProg.Row == 3; });
  user.Click(view.cmdProgCheck);
  user.AnswerBox(Text(kGood), MsgAnswer::Ok, "program-good");
  user.SeeReady();
}

void Save(User& user, ProgView& view) {
  constexpr int kWriteToFile = 405;
  const QString path =
      QFileInfo(user.file).path() + "/" + QFileInfo(user.file).completeBaseName() + ".prg";
  user.Choose(frmMain.mnuFile, frmMain.mnuFileSaveAs);
  user.AnswerBox(Text(kWriteToFile), MsgAnswer::Ok);
  user.ChooseFile(path, "save-program");
  user.SeeReady();
  user.See("the saved program",
           [&view, path] { return QFileInfo(path).size() > 0 && !view.Store.ProgChanged; });
}

void WriteAndRead(User& user, ProgView& view) {
  constexpr int kSent = 376;
  user.Click(view.cmdProgWrite);
  ChooseProgram(user, "program-list");
  user.AnswerBox(Text(kSent), MsgAnswer::Ok, "program-written", User::kTransferMs);
  user.SeeReady();
  user.Choose(frmMain.mnuCont, frmMain.mnuContProg, frmMain.mnuContProgRead);
  ChooseProgram(user);
  user.See("another view", [&view] {
    const auto* front = dynamic_cast<ProgView*>(ActiveView());
    return front && front != &view;
  });
  user.SeeReady();
  user.SeeCell(ProgramInFront(user).flgdProg, 2, kProgCommand, "JUMP");
  user.Picture("program-read");
}

void Verify(User& user, ProgView& view) {
  constexpr int kEqual = 826;
  user.Click(view.cmdProgVerifyCt);
  ChooseProgram(user);
  user.AnswerBox(Text(kEqual), MsgAnswer::Ok, "program-equal", User::kTransferMs);
  user.SeeReady();
  user.ClickCell(view.flgdProg, 1, kProgOperand1);
  TypeCell(user, "2");
  user.Click(view.cmdProgVerifyCt);
  ChooseProgram(user);
  user.SeeCell(frmProgSyogokekka.flgdProgSyogoKekka, 1, kProgOperand1, "X");
  user.Picture("program-differs");
  user.Click(frmProgSyogokekka.cmdClose);
  user.SeeReady();
  user.Click(view.cmdProgCompare);
  user.Click(frmCompare.cmdCompare);
  ChooseProgram(user);
  user.SeeCell(frmCompare.flgdCompare, 1, 3, "MVP 1");
  user.Click(frmCompare.chkEqualToo);
  user.Picture("program-compare");
  user.Click(frmCompare.cmdClose);
  user.SeeReady();
  user.Choose(frmMain.mnuEdit, frmMain.mnuEditUndo);
  user.SeeCell(view.flgdProg, 1, kProgOperand1, "1");
}

// Two programs that run at once, watched in the task monitor and in a listing.

constexpr int kPollMs = 20'000;

void SeeRunning(User& user, int tasks) {
  const auto running = [tasks] { return TaskMonitor.Seen.TaskCount == tasks; };
  user.See(std::to_string(tasks) + " tasks", running, kPollMs);
}

void Press(User& user, int program, CommandButton& button) {
  user.ClickCell(frmProgTask.flgdProgTask, program, 1);
  user.SeeOn(button);
  user.Click(button);
}

/// The listing's running step is another one than this.
int SeeAtWork(User& user, const ProgView& view, int before) {
  const auto at = [&view] { return view.flgdProg.AtWork().Row; };
  user.See(
      "the running step", [=] { return at() != before; }, kPollMs);
  return InTool(at);
}

}  // namespace

void EditProgram(User& user) {
  constexpr int kProgramChanged = 1033;
  StartOnline(user, true);
  user.Choose(frmMain.mnuFile, frmMain.mnuFileNewProg);
  ChooseProgram(user);
  ProgView& view = ProgramInFront(user);
  TypeSteps(user, view);
  CheckAndMend(user, view);
  Save(user, view);
  WriteAndRead(user, view);
  Verify(user, ProgramInFront(user));
  user.ClickCell(ProgramInFront(user).flgdProg, 1, kProgOperand1);
  TypeCell(user, "3");
  user.Choose(frmMain.mnuFile, frmMain.mnuFileExit);
  user.AnswerBox(Text(kProgramChanged), MsgAnswer::No);
}

void WatchTasks(User& user) {
  constexpr int kEmpty = 3, kDoesNotRun = 7109;
  FrmProgTask& f = frmProgTask;
  StartOnline(user, true);
  user.Choose(frmMain.mnuCont, frmMain.mnuContProg, frmMain.mnuContProgRead);
  ChooseProgram(user, nullptr, 1);
  user.SeeReady();
  const ProgView& view = ProgramInFront(user);
  user.Choose(frmMain.mnuCont, frmMain.mnuContProg, frmMain.mnuContProgTask);
  Press(user, 1, f.cmdStartTask);
  SeeRunning(user, 1);
  Press(user, 2, f.cmdStartTask);
  SeeRunning(user, 2);
  user.Click(f.chkFollow);
  user.Picture("two-tasks");
  user.Choose(frmMain.mnuWindow, frmMain.mnuWindowTileHorizontal);
  const int row = SeeAtWork(user, view, 0);
  user.Picture("running-step");
  SeeAtWork(user, view, row);
  user.Picture("running-step-followed");
  Press(user, 2, f.cmdStopTask);
  SeeRunning(user, 1);
  user.Picture("one-stopped");
  user.Click(f.cmdStopAllTask);
  SeeRunning(user, 0);
  user.Picture("all-stopped");
  Press(user, kEmpty, f.cmdStartTask);
  user.SeePanel(kPanelError, Text(kDoesNotRun, std::to_string(kEmpty)));
  user.Picture("nothing-to-run");
  user.Leave(f, f.cmdClose);
  LeaveByMenu(user);
}

}  // namespace tr7::tour
