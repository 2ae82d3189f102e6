// The tool on the virtual doors: how much time the line is left unused, and how fast the logic is.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>

#include "bench/counting_port.h"
#include "bench/figures.h"
#include "core/install_views.h"
#include "core/keep_work.h"
#include "core/main_entry.h"
#include "core/reset_state.h"
#include "forms/frm_grp.h"
#include "forms/frm_io_check_fg.h"
#include "forms/frm_main.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_posi.h"
#include "forms/frm_select_posi_no.h"
#include "forms/frm_selection.h"
#include "forms/frm_sq_mcr.h"
#include "platform/doors.h"
#include "platform/std_files.h"
#include "posi/posi_check.h"
#include "posi/posi_table.h"
#include "prog/prog_check.h"
#include "prog/prog_listing.h"
#include "sim/program_text.h"
#include "sim/setup.h"
#include "sim/tasks.h"
#include "state/settings.h"
#include "state/views.h"
#include "tests/support/virtual_doors.h"

namespace tr7bench {
namespace {

using namespace tr7;

void PressDefault(View& view) {
  for (Control* control : view.Controls) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button && button->Default) button->Press();
  }
}

void ChooseAll(View& view) {
  auto& range = static_cast<SelectPosiNoView&>(view);
  range.optRange.Press();
  range.txtFromNo.Type("1");
  range.txtToNo.Type(std::to_string(kPosiMaxNo));
  range.cmdOk.Press();
}

/// The tool on virtual doors, online with the simulated controller, and a user who says yes.
struct Desk : VirtualDoors {
  Desk() {
    doors.serial = &counted;
    settings.Set("Settings", "Language", "2");
    forms.on_any_modal = PressDefault;
    forms.on_modal["frmSelectPosiNo2"] = forms.on_modal["frmSelectPosiNo3"] = ChooseAll;
    forms.on_message_box = [](const MessageBoxCall& call) {
      const bool ok = call.Buttons == MsgButtons::OkCancel;
      return ok ? MsgAnswer::Ok : MsgAnswer::Yes;
    };
    ResetState();
    InstallViews();
    Main();
  }

  /// Presses the button; the virtual time that its flow took, us.
  std::int64_t Press(CommandButton& button) {
    const std::int64_t start = pump.NowUs();
    button.Press();
    return pump.NowUs() - start;
  }
  /// The virtual time of the button's flow over the time of its bytes on the line, and what the
  /// controller takes to store beside it.
  double LineRatio(CommandButton& button, std::int64_t storing_us = 0) {
    counted.TakeLineUs();
    const auto took = static_cast<double>(Press(button));
    return took / static_cast<double>(counted.TakeLineUs() + storing_us);
  }

  CountingPort counted{port};
};

void Fail(const char* what, const VirtualFormHost& forms) {
  std::fprintf(stderr, "tr7_bench: %s; last box: %s\n", what, forms.LastBox().c_str());
  std::exit(1);
}

/// The full table, with a failure told instead of a figure that nothing stands behind.
void ExpectWholeRead(const Desk& desk, std::int64_t took_us) {
  constexpr std::int64_t kReplyBytes = 68, kByteUs = 1041;
  const bool whole = frmPosi.flgdData.Rows() == kPosiMaxNo + 2 && !frmPosi.PosiChanged;
  if (!whole || took_us < kPosiMaxNo * kReplyBytes * kByteUs) {
    Fail("the table did not arrive", desk.forms);
  }
}

void Read(Desk& desk) {
  Report("read999_virtual_ratio", desk.LineRatio(frmPosi.cmdPosiRead), 4);
  constexpr int kReads = 40;
  const double ms = MsOf([&desk] {
    for (int i = 0; i < kReads; ++i) ExpectWholeRead(desk, desk.Press(frmPosi.cmdPosiRead));
  });
  Report("virtual_reads_per_s", kReads * 1000.0 / ms, 1);
}

void Check(const Desk& desk) {
  constexpr int kChecks = 21;
  bool good = true;
  Report("posidatacheck3_999_ms", MedianMsOf(kChecks, [&good] { good &= PosiDataCheck3() == 0; }),
         2);
  if (!good) Fail("the check refused the table", desk.forms);
}

void Write(Desk& desk) {
  desk.port.sent.clear();
  Report("write999_virtual_ratio", desk.LineRatio(frmPosi.cmdPosiWrite), 4);
  const std::string commit = "0WA0013E7";  // the controller was told to keep all of them
  if (desk.port.sent.find(commit) == std::string::npos) Fail("nothing was written", desk.forms);
}

/// The whole table after one edit, onto the disk itself.
void Autosave(Desk& desk) {
  StdFiles disk(".");
  doors.files = &disk;
  doors.work = &desk.work;
  desk.work.own = (std::filesystem::temp_directory_path() / "tr7_bench.").string();
  int edits = 0;
  const auto keep = [&] {
    frmPosi.flgdData.TypeInto(500, kComment, std::to_string(++edits));
    if (!KeepNow()) Fail("the table was not kept", desk.forms);
  };
  Report("autosave_ms", MedianMsOf(21, keep), 2);
  disk.Remove(desk.work.Own("posi"));
  doors.files = &desk.files;
  doors.work = nullptr;
  frmPosi.PosiChanged = False;
}

/// Reports the button's line ratio. This frame must have gone out, the last one of its data.
void Transfer(Desk& desk, const char* figure, CommandButton& button, const std::string& last_frame,
              std::int64_t storing_us = 0) {
  desk.port.sent.clear();
  Report(figure, desk.LineRatio(button, storing_us), 4);
  if (desk.port.sent.find(last_frame) == std::string::npos) Fail(figure, desk.forms);
}

void OtherKinds(Desk& desk) {
  frmMain.mnuViewPara.Press();
  Transfer(desk, "para_read_virtual_ratio", frmParameta2.cmdParaRead, "0RDD");
  frmParameta2.txtHomePush[0].Type("77");
  Transfer(desk, "para_write_virtual_ratio", frmParameta2.cmdParaWrite, "0WE2",
           qvr7sim::Setup::Useful().commit_us);
  frmMain.mnuViewGrp.Press();
  Transfer(desk, "grp_read_virtual_ratio", frmGrp.cmdReadGrp, "0RG63");
  frmMain.mnuViewSM.Press();
  Transfer(desk, "sm_read_virtual_ratio", frmSqMcr.cmdReadSMfromCt, "0RS14");
}

/// From the axes at rest to the next command of a continuous move.
void MoveOn(Desk& desk) {
  PosiMoveTest& f = frmPosi.Move;
  frmPosi.SSTabCommand().Selected = 1;
  frmPosi.SSTabCommand().Click();
  f.updownStartPosiNo.Set(1);
  f.updownEndPosiNo.Set(20);
  std::int64_t rest_us = 0;
  std::vector<double> waits_ms;
  desk.counted.on_write = [&](std::string_view line) {
    const std::int64_t now = desk.pump.NowUs();
    if (line.starts_with("0MP")) waits_ms.push_back(static_cast<double>(now - rest_us) / 1000);
    rest_us = desk.port.Ct().NextRestUs().value_or(rest_us);
  };
  f.cmdMove.Press();
  desk.counted.on_write = nullptr;
  if (waits_ms.size() < 20) Fail("the move did not go its way", desk.forms);
  Report("move_step_overhead_ms", Median(waits_ms), 1);
}

/// One poll of the monitor with all lists full.
void Poll(Desk& desk) {
  for (int row = 0; row < kMostWatched; ++row) {
    for (const char* list : {"Flag", "Vari", "Pvar"}) {
      PutSetting(list + std::to_string(row), list[0] == 'P' ? "1,1" : "0,1");
    }
  }
  frmMain.mnuMonitorHensu.Press();
  frmIOCheckFG.cmdIoMonitor.Press();
  frmIOCheckFG.timerInputOutput1.Tick();
  desk.counted.TakeLineUs();
  const std::int64_t start = desk.pump.NowUs();
  frmIOCheckFG.timerInputOutput1.Tick();
  const auto took = static_cast<double>(desk.pump.NowUs() - start);
  Report("io_poll_virtual_ratio", took / static_cast<double>(desk.counted.TakeLineUs()), 4);
  if (frmIOCheckFG.Watched.PosVariables.List.Text(kMostWatched, 2) != "0.000") {
    Fail("the poll did not come to its end", desk.forms);
  }
  frmIOCheckFG.cmdIoWinClose.Press();
}

/// A program of as many steps as any may have: its check, and its write.
void Program(Desk& desk) {
  constexpr int kChecks = 101;
  frmMain.mnuFileNewProg.Click();
  auto* view = dynamic_cast<ProgView*>(ActiveView());
  if (!view) Fail("no program opened", desk.forms);
  ProgCells step;
  const char* const texts[] = {"MVP", "1", "R1", "/I1", "O1", "to the feeder"};
  std::copy(std::begin(texts), std::end(texts), step.Texts.begin());
  PutListing(view->flgdProg, std::vector(kMostProgSteps, step));
  bool good = true;
  Report("program_check_100_ms",
         MedianMsOf(
             kChecks,
             [&] { good &= TorikomiProg2DA(*view) == 0 && programCheckProc(view->Store) == 0; }),
         3);
  if (!good) Fail("the check refused the program", desk.forms);
  view->cmdProgWrite.Press();  // the step counts of all programs are read once
  Transfer(desk, "prog_write100_virtual_ratio", view->cmdProgWrite, "0MW01",
           qvr7sim::Setup::Useful().commit_us);
}

/// Ten programs that calculate and jump, on virtual time.
void ProgramSteps() {
  constexpr std::int64_t kVirtualUs = 100'000'000;
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.mode = qvr7sim::Mode::kProgram;
  setup.running_tasks = qvr7sim::kTasks;
  const qvr7sim::StepCells steps[] = {
      {"LB", "1"}, {"+", "r1", "1"}, {"==", "r1", "R1", "", "f1"}, {"%", "r1", "7"}, {"JUMP", "1"}};
  for (int program = 1; program <= qvr7sim::kTasks; ++program) {
    for (const auto& step : steps) setup.programs[program] += *qvr7sim::AssembleStep(step);
  }
  qvr7sim::Controller controller(setup);
  const double ms = MsOf([&controller] { controller.Values(kVirtualUs); });
  Report("sim_steps_per_s", static_cast<double>(controller.StepsDone()) * 1000 / ms, 0);
}

}  // namespace
}  // namespace tr7bench

int main() {
  tr7bench::Desk desk;
  tr7bench::Read(desk);
  tr7bench::Check(desk);
  tr7bench::Write(desk);
  tr7bench::Autosave(desk);
  tr7bench::MoveOn(desk);
  tr7bench::OtherKinds(desk);
  tr7bench::Poll(desk);
  tr7bench::Program(desk);
  tr7bench::ProgramSteps();
}
