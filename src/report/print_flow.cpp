#include "report/print_flow.h"

#include <optional>

#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "report/measuring_page.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/progress.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/text_file.h"
#include "state/wait.h"

namespace tr7 {
namespace {

constexpr int kMsgPrinting = 7623, kMsgStopped = 7624, kMsgFailed = 7625, kMsgPrinted = 7626;
constexpr int kMsgShown = 7611, kMsgFileName = 25, kMsgWhen = 7613, kMsgAxis1 = 220;
constexpr const char* kNoDevice = "--";

/// Draws on another page with the frame's progress bar, and ends at its cancel button.
class WatchedPage : public MeasuringPage {
 public:
  explicit WatchedPage(PrintPage& page) : MeasuringPage(page) {}
  void Begin(int pages) override {
    progress_.emplace(tr7::Text(kMsgPrinting), pages, true);
    page_.Begin(pages);
  }
  void Text(double left, double top, const std::string& text) override {
    page_.Text(left, top, text);
  }
  void TextRight(double right, double top, const std::string& text) override {
    page_.TextRight(right, top, text);
  }
  void Line(double x1, double y1, double x2, double y2, double width) override {
    page_.Line(x1, y1, x2, y2, width);
  }
  bool NewPage() override {
    progress_->Advance();
    TusinWaitMs(1);  // lets the user in
    return !AppState.CancelRequested && page_.NewPage();
  }

 private:
  std::optional<ProgressScope> progress_;
};

bool DrawWatched(const PrintJob& job, PrintOutput& output) {
  WatchedPage page(output);
  return job.Draw(page);
}

Outcome TellFailed(const std::string& reason) {
  MsgBox(WithReason(Text(kMsgFailed), reason));
  return Outcome::Failed;
}

std::string Now() {
  constexpr std::size_t kHoursAndMinutes = 5;
  return doors.pump->Date() + " " + doors.pump->TimeOfDay().substr(0, kHoursAndMinutes);
}

}  // namespace

Outcome PrintReport(const PrintJob& job) {
  if (!doors.printer->Preview(job)) return Outcome::Stopped;
  std::string reason;
  const auto output = doors.printer->Open(job, reason);
  if (!output) return TellFailed(reason);
  AppState.CancelRequested = False;
  const bool drawn = DrawWatched(job, *output);
  if (AppState.CancelRequested) {
    TellDone(kMsgStopped);
    return Outcome::Stopped;
  }
  if (!output->Close(reason) || !drawn) return TellFailed(reason);
  TellInStatusPanel(Text(kMsgPrinted, job.Name));
  return Outcome::Done;
}

std::string MachineLine(const AxisArray<std::string>& devices) {
  std::string line;
  for (int axis = 0; axis < kAxes; ++axis) {
    line += (axis == 0 ? "" : "  /  ") + Text(MsgId::At(kMsgAxis1, axis)) + ":" +
            (devices[axis].empty() ? kNoDevice : devices[axis]);
  }
  return line;
}

AxisArray<std::string> DevicesInUse() {
  AxisArray<std::string> devices;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!AppState.AxisMuko[axis]) devices[axis] = frmPosi.lblDeviceType[axis]->Caption;
  }
  return devices;
}

SheetHead HeadOfFile(const std::string& path) {
  const std::string name = path.empty() ? Text(kMsgShown) : FileTitle(path);
  // A file may be of another machine.
  const std::string machine = path.empty() ? MachineLine(DevicesInUse()) : std::string();
  return {Text(kMsgFileName) + name, machine, Text(kMsgWhen, Now())};
}

SheetHead HeadOfMachine(const AxisArray<std::string>& devices, const std::string& file) {
  return {MachineLine(devices), Text(kMsgFileName) + file, Text(kMsgWhen, Now())};
}

}  // namespace tr7
