// The whole desktop, driven as a user drives it, against qv-r7-sim on a real pseudo-terminal.

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <optional>

#include "bench/counting_port.h"
#include "bench/figures.h"
#include "bench/splash_bench.h"
#include "core/install_views.h"
#include "core/main_entry.h"
#include "forms/frm_compare.h"
#include "forms/frm_io_check_fg.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "forms/frm_prog_no.h"
#include "forms/frm_select_posi_no.h"
#include "forms/frm_selection.h"
#include "forms/frm_wire.h"
#include "monitor/io_state.h"
#include "monitor/task_monitor.h"
#include "platform/doors.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/settings.h"
#include "state/views.h"
#include "tests/ui/screen_user.h"
#include "tests/ui/sim_process.h"
#include "ui/desktop.h"
#include "ui/look.h"

namespace tr7bench {
namespace {

using namespace tr7;

constexpr int kIdleMs = 10'000;
constexpr int kHeaderRows = 2;

struct Options {
  QString sim, tool;
};

Options OptionsOf(const QApplication& application) {
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addOptions(
      {{"sim", "The simulated controller.", "program"}, {"tool", "The tool.", "program"}});
  parser.process(application);
  if (!parser.isSet("sim") || !parser.isSet("tool")) parser.showHelp(2);
  return {parser.value("sim"), parser.value("tool")};
}

/// The tool on this screen, and its user.
class Bench {
 public:
  Bench(const Options& options, const QString& settings_file)
      : paced_(options.sim, {"--homed"}),
        sim_(options.sim),
        desktop_({settings_file, false}),
        file_(QFileInfo(settings_file).absolutePath() + "/full.qvd") {
    doors.serial = &port_;
    doors.settings->Set("Settings", "Language", "1");  // its fonts are the larger ones
    doors.settings->Set("Settings", "PortDevice1", paced_.Path());
    user_.on_modal["frmSelection"] = user_.on_modal["frmSelection2"] = [this](View& view) {
      auto& selection = static_cast<SelectionView&>(view);
      if (first_choice_) selection.optChoice2.Press();  // offline
      first_choice_ = false;
      selection.cmdOk.Press();
    };
    user_.on_modal["frmSelectPosiNo2"] = [this](View& view) {
      auto& range = static_cast<SelectPosiNoView&>(view);
      range.optRange.Press();
      range.txtFromNo.Type("1");
      range.txtToNo.Type(std::to_string(last_no_));
      range.cmdOk.Press();
    };
  }

  int Run() {
    InstallViews();
    Main();
    if (!AppState.Offline) return Failed("the start");
    Report("idle_cpu_percent", IdlePercent(), 2);
    if (!Connect(paced_)) return 1;
    Report("idle_online_cpu_percent", IdlePercent(), 2);
    // The memory of a full table ahead of what opens other views.
    const bool full = ReadPaced() == 0 && ReadFull() == 0 && OpenFull() == 0 && PrintFull() == 0 &&
                      CompareFull() == 0;
    if (!full || !Connect(paced_)) return 1;
    other_.reset();
    return WatchIo() || Jog() || ListPrograms() || ReadWatched() || WatchTasks() ? 1 : 0;
  }

 private:
  int Failed(const char* what) const {
    std::fprintf(stderr, "tr7_ui_bench: %s failed; last box: %s\n", what,
                 user_.boxes.empty() ? "none" : user_.boxes.back().c_str());
    return 1;
  }

  /// Goes online at this machine.
  bool Connect(const SimProcess& machine) {
    frmMain.mnuSettingOffline.Press();
    doors.settings->Set("Settings", "PortDevice1", machine.Path());
    frmMain.mnuSettingOnline.Press();
    return !AppState.Offline || Failed("going online") == 0;
  }

  /// Closed windows go as they do in the tool, whose loop returns between two acts of the user.
  void WaitMs(int ms) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    bool over = false;
    QTimer::singleShot(ms, &user_, [&over] { over = true; });
    while (!over) Pump();
  }

  double IdlePercent() {
    WaitMs(500);  // what the last step left to paint is not idling
    const CpuMeter meter;
    WaitMs(kIdleMs);
    return meter.Percent();
  }

  /// The monitor at its own pace with full lists, the plot in front.
  int WatchIo() {
    constexpr int kFirstPollMs = 6000;
    for (int row = 0; row < kMostWatched; ++row) {
      PutSetting("Flag" + std::to_string(row), "0," + std::to_string(row + 1));
      PutSetting("Vari" + std::to_string(row), "0," + std::to_string(row + 1));
      PutSetting("Pvar" + std::to_string(row), "1," + std::to_string(row % 4 + 1));
    }
    frmMain.mnuMonitorIO.Press();
    frmIOCheckFG.tabIo.Selected = 2;
    frmIOCheckFG.tabIo.Click();
    for (const int row : {1, 26, 28, 45, 46, 49, 69}) frmIOCheckFG.Chart.flgdPlot.CellClick(row, 0);
    frmIOCheckFG.cmdIoMonitor.Press();
    WaitMs(kFirstPollMs);
    if (!IoMonitor.Known) return Failed("the monitor");
    Report("io_monitor_cpu_percent", IdlePercent(), 2);
    CloseView(frmIOCheckFG, CloseReason::Code);
    return 0;
  }

  void Mouse(QEvent::Type type, const HoldButton& button) const {
    QWidget& widget = *desktop_.forms.WidgetOf(button);
    const QPointF at = widget.rect().center();
    const bool down = type == QEvent::MouseButtonPress;
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton,
                      down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }

  /// One press and its release, once the axis runs or while the start is in flight: the time from
  /// the release, or from the answer to the start, until the stop is handed to the port. Below 0:
  /// none.
  double StopMs(const HoldButton& button, bool in_flight) {
    std::chrono::steady_clock::time_point since;
    double ms = -1;
    const auto release = [&] {
      since = std::chrono::steady_clock::now();
      Mouse(QEvent::MouseButtonRelease, button);
    };
    port_.on_write = [&](std::string_view line) {
      if (line.starts_with("0SP") && ms < 0) ms = MsSince(since);
      if (line.starts_with("0JR") && in_flight) QTimer::singleShot(1, &user_, release);
    };
    port_.on_read = [&](std::string_view) {
      if (in_flight && ms < 0) since = std::chrono::steady_clock::now();
    };
    Mouse(QEvent::MouseButtonPress, button);
    if (!in_flight) WaitMs(30);
    if (!in_flight) release();
    WaitMs(350);  // a press counts again
    port_.on_write = port_.on_read = nullptr;
    return ms;
  }

  int Jog() {
    constexpr int kPresses = 200, kInFlight = 50;
    AppState.HomeDone = True;
    frmPosi.SSTabCommand().Selected = 2;
    frmPosi.SSTabCommand().Click();
    frmPosi.Teach.cmdJOGST.Press();
    // There may be no window manager that does.
    desktop_.forms.WidgetOf(frmPosi.Teach.cmdJOG[1])->window()->activateWindow();
    WaitMs(400);
    const auto stops = [this](int presses, bool in_flight) {
      std::vector<double> all;
      for (int i = 0; i < presses; ++i) {
        all.push_back(StopMs(frmPosi.Teach.cmdJOG[i % 2 ? 0 : 1], in_flight));
      }
      return all;
    };
    const std::vector<double> free = stops(kPresses, false), behind = stops(kInFlight, true);
    for (const auto* all : {&free, &behind}) {
      if (*std::min_element(all->begin(), all->end()) < 0) return Failed("a jog");
    }
    Report("jog_stop_ms", Median(free), 3);
    Report("jog_stop_worst_ms", *std::max_element(free.begin(), free.end()), 3);
    Report("jog_stop_behind_reply_ms", Median(behind), 3);
    frmPosi.Teach.cmdJOGend.Press();
    frmPosi.SSTabCommand().Selected = 0;
    frmPosi.SSTabCommand().Click();
    return 0;
  }

  /// The list of programs, from the command until it is painted.
  int ListPrograms() {
    constexpr int kLists = 15;
    std::vector<double> times;
    std::chrono::steady_clock::time_point since;
    user_.on_modal["frmProgNo"] = [&](View&) {
      doors.forms->Refresh();
      times.push_back(MsSince(since));
      frmProgNo.cmdCancel.Press();
    };
    for (int i = 0; i < kLists; ++i) {
      since = std::chrono::steady_clock::now();
      frmMain.mnuFileNewProg.Click();
    }
    if (times.size() < kLists) return Failed("the list of programs");
    Report("program_list_ms", Median(times), 2);
    return 0;
  }

  /// 0 when lines 1 to `last` stand in the grid.
  int Read(int last) {
    last_no_ = last;
    frmPosi.cmdPosiRead.Press();
    return frmPosi.flgdData.Rows() == last + kHeaderRows ? 0 : Failed("the read");
  }

  int ReadPaced() {
    constexpr int kLines = 99;
    port_.TakeLineUs();
    const CpuMeter meter;
    if (Read(kLines) != 0) return 1;
    const double seconds = meter.Seconds(), percent = meter.Percent();
    Report("read99_pty_ratio", seconds * 1e6 / static_cast<double>(port_.TakeLineUs()), 4);
    Report("transfer_cpu_percent", percent, 2);
    return 0;
  }

  /// The console of the line open beside a read at the line's own pace, as against shut: processor
  /// time of the process, drawing included, as percent of one core over the read. Both reads take
  /// turns, so that whatever else slows the machine meets both.
  int ReadWatched() {
    constexpr int kLines = 99, kReads = 3;
    double shut = 0, open = 0;
    for (int i = 0; i < 2 * kReads; ++i) {
      const bool watched = i % 2 != 0;
      if (watched) frmMain.mnuViewWire.Press();
      WaitMs(500);
      const CpuMeter meter;
      if (Read(kLines) != 0) return 1;
      (watched ? open : shut) += meter.Percent() / kReads;
      if (watched && frmWire.flgdWire.Rows() < 2 * kLines) return Failed("the console");
      if (watched) CloseView(frmWire, CloseReason::Code);
    }
    Report("console_overhead_percent", open - shut, 2);
    return 0;
  }

  int ReadFull() {
    other_.emplace(sim_, QStringList{"--no-pace"});
    if (!Connect(*other_) || Read(kPosiMaxNo) != 0) return 1;
    doors.forms->Refresh();
    const auto fill = [] {
      FG_ShowTable();
      doors.forms->Refresh();
    };
    constexpr int kFills = 15;
    Report("grid_fill_999_ms", MedianMsOf(kFills, fill), 2);
    WaitMs(500);
    Report("rss_full_table_kb", static_cast<double>(ResidentKb()), 0);
    return 0;
  }

  /// File dialogues are answered with this path from here on.
  void AnswerFiles(const QString& path) {
    user_.on_file = [this, path] {
      answered_ = std::chrono::steady_clock::now();
      return path;
    };
  }

  /// From the answer of the file dialogue until the table is painted.
  int OpenFull() {
    constexpr int kOpens = 9;
    AnswerFiles(file_);
    frmPosi.cmdPosiSaveAs.Press();
    if (!QFileInfo::exists(file_)) return Failed("the save");
    std::vector<double> times;
    for (int i = 0; i < kOpens; ++i) {
      frmPosi.flgdData.SetRows(kHeaderRows);
      frmPosi.cmdPosiOpen.Press();
      doors.forms->Refresh();
      times.push_back(MsSince(answered_));
      if (frmPosi.flgdData.Rows() != kPosiMaxNo + kHeaderRows) return Failed("the opening");
    }
    Report("open_999_ms", Median(times), 2);
    return 0;
  }

  /// From the answer of the preview's file dialogue until the file is there.
  int PrintFull() {
    AnswerFiles(file_ + ".pdf");
    frmPosi.cmdPosiPrint.Press();
    Report("print_999_ms", MsSince(answered_), 1);
    return QFileInfo(file_ + ".pdf").size() > kPosiMaxNo ? 0 : Failed("the print");
  }

  /// A full table against a file that differs in every line, all cells shown: from the answer of
  /// the file dialogue until the rows are painted.
  int CompareFull() {
    constexpr int kCompares = 9;
    for (int row = kHeaderRows; row < frmPosi.flgdData.Rows(); ++row) {
      frmPosi.flgdData.SetText(row, kVel, "47");
    }
    std::vector<double> times;
    AnswerFiles(file_);
    user_.on_modal["frmCompare"] = [&](View&) {
      FrmCompare& f = frmCompare;
      f.comboThere.Pick(2);
      f.chkEqualToo.Value = true;
      for (int i = 0; i < kCompares; ++i) {
        f.cmdCompare.Press();
        doors.forms->Refresh();
        if (f.flgdCompare.Rows() > kPosiMaxNo * kSm) times.push_back(MsSince(answered_));
      }
      f.cmdClose.Press();
    };
    frmPosi.cmdPosiCompare.Press();
    if (times.size() < kCompares) return Failed("the comparison");
    Report("compare_999_ms", Median(times), 2);
    return 0;
  }

  /// Two programs run, and the view that shows them is open.
  int WatchTasks() {
    other_.emplace(sim_, QStringList{"--mode", "prg", "--tasks", "2"});
    if (!Connect(*other_)) return 1;
    frmMain.mnuContProgTask.Press();
    WaitMs(5000);
    if (TaskMonitor.Seen.TaskCount != 2) return Failed("the task monitor");
    Report("task_monitor_cpu_percent", IdlePercent(), 2);
    return 0;
  }

  SimProcess paced_;
  const QString sim_;
  /// No more of them at a time than are in use: the loop looks at three handles of each.
  std::optional<SimProcess> other_;
  Desktop desktop_;
  CountingPort port_{desktop_.serial};
  ScreenUser user_{desktop_.forms};
  const QString file_;
  std::chrono::steady_clock::time_point answered_;  ///< the last file dialogue
  bool first_choice_ = true;
  int last_no_ = kPosiMaxNo;
};

}  // namespace
}  // namespace tr7bench

int main(int argc, char** argv) {
  using namespace tr7bench;
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tr7::look::Apply(application);
  const Options options = OptionsOf(application);
  const QTemporaryDir folder;
  const double splash = SplashMs(options.tool, folder.filePath("splash.ini"));
  if (splash < 0) {
    std::fprintf(stderr, "tr7_ui_bench: no splash to be seen on this screen\n");
  } else {
    Report("splash_ms", splash, 1);
  }
  return Bench(options, folder.filePath("settings.ini")).Run();
}
