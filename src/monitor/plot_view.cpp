#include "monitor/plot_view.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "forms/frm_io_check_fg.h"
#include "monitor/plot_data.h"
#include "platform/atomic_save.h"
#include "platform/doors.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"
#include "steps/file_steps.h"

namespace tr7 {
namespace {

constexpr std::array<std::int64_t, 6> kSpansMs{600'000, 300'000, 120'000, 60'000, 30'000, 10'000};
constexpr DataFile kCsvFile{FileKind::Unknown, 7354, "csv", 7355};
constexpr DataFile kPictureFile{FileKind::Unknown, 7356, "png", 7355};
constexpr int kSaveCsv = 7358, kSavePicture = 7359, kSaved = 7360, kNotSaved = 7361,
              kNoValues = 7371, kTimeTitle = 7364, kSeconds = 7369, kCursors = 7351,
              kHowToPoint = 7352, kChoose = 7353;
constexpr std::array kTitles{MsgId(7348), MsgId(7347), MsgId(7349), MsgId(7350)};
enum PlotColumn : int { kShown, kName, kAtA, kAtB };

PlotPage& Page() { return frmIOCheckFG.Chart; }
Plot& Chart() { return Page().plotIo; }
std::int64_t SpanMs() { return kSpansMs[Page().Span]; }
bool IsHeld() { return frmIOCheckFG.Chart.chkPlotPause.Value; }

std::string ValueText(const PlotTrace& trace, const std::optional<std::int64_t>& at_ms) {
  const auto value = at_ms ? trace.At(*at_ms) : std::nullopt;
  if (!value) return "";
  return trace.Digital ? (*value != 0 ? "O" : "-") : PlainDecimal(*value);
}

/// Seconds behind the first value that there is.
std::string TimeText(std::int64_t ms) {
  return Text(kSeconds, PlainDecimal(RoundToOneDecimal(static_cast<double>(ms) / 1000.0)));
}

void ShowCursorText() {
  const Plot& plot = Chart();
  std::string& text = frmIOCheckFG.Chart.lblPlotCursor.Caption;
  if (!plot.CursorA && !plot.CursorB) {
    text = Text(kHowToPoint);
    return;
  }
  const auto time = [](const std::optional<std::int64_t>& at) {
    return at ? TimeText(*at - PlotData.BeganMs) : std::string("-");
  };
  const bool both = plot.CursorA && plot.CursorB;
  text = Text(kCursors, time(plot.CursorA), time(plot.CursorB),
              both ? TimeText(*plot.CursorB - *plot.CursorA) : "-");
}

void ShowValues() {
  Grid& grid = frmIOCheckFG.Chart.flgdPlot;
  int row = 0;
  for (const PlotKey& key : PlotData.Items) {
    ++row;
    const PlotTrace& trace = PlotData.Entries.at(key).trace;
    const std::string a = ValueText(trace, Chart().CursorA), b = ValueText(trace, Chart().CursorB);
    if (grid.Text(row, kAtA) != a) grid.SetText(row, kAtA, a);
    if (grid.Text(row, kAtB) != b) grid.SetText(row, kAtB, b);
  }
}

void TakeShown() {
  Plot& plot = Chart();
  plot.Shown.clear();
  for (const PlotKey& key : PlotData.Items) {
    const PlotEntry& entry = PlotData.Entries.at(key);
    if (entry.shown) plot.Shown.push_back(&entry.trace);
  }
  plot.Hint = plot.Shown.empty() ? Text(kChoose) : std::string();
}

void Choose(int row) {
  if (row < 1 || row > static_cast<int>(PlotData.Items.size())) return;
  PlotEntry& entry = PlotData.Entries.at(PlotData.Items[static_cast<std::size_t>(row) - 1]);
  entry.shown = !entry.shown;
  ShowPlotItems();
}

void Hold() {
  if (IsHeld()) Page().HeldToMs = PlotData.LastMs;
  ShowPlot();
}

/// A step of half of what is on show; looking back holds the plot.
void Go(int step) {
  if (!IsHeld()) {
    frmIOCheckFG.Chart.chkPlotPause.Value = true;
    Page().HeldToMs = PlotData.LastMs;
  }
  Page().HeldToMs += step * SpanMs() / 2;
  ShowPlot();
}

void ZoomBy(int steps) {
  const int last = static_cast<int>(kSpansMs.size()) - 1;
  const std::int64_t middle = Page().HeldToMs - SpanMs() / 2;
  Page().Span =
      static_cast<std::size_t>(std::clamp(static_cast<int>(Page().Span) + steps, 0, last));
  if (IsHeld()) Page().HeldToMs = middle + SpanMs() / 2;
  ShowPlot();
}

void PutCursor(std::int64_t at_ms, bool second) {
  (second ? Chart().CursorB : Chart().CursorA) = at_ms;
  ShowPlot();
}

void SaveCsv() {
  if (PlotData.LastMs == 0 || Chart().Shown.empty()) return Tell(kNoValues);
  const auto path = AskSavePath(kCsvFile, kSaveCsv);
  if (!path) return;
  const TextFileResult saved =
      SaveTextFile(*path, PlotAsCsv(Chart().Shown, PlotData.BeganMs, Text(kTimeTitle)));
  if (saved.ok) return TellDone(kSaved);
  MsgBox(WithReason(Text(kNotSaved), saved.words));
}

void SavePicture() {
  const std::string picture = Chart().Picture ? Chart().Picture() : std::string();
  if (picture.empty()) return Tell(kNotSaved);
  const auto path = AskSavePath(kPictureFile, kSavePicture);
  if (!path) return;
  if (SaveAtomically(*doors.files, *path, picture) != FileFault::None) return Tell(kNotSaved);
  TellDone(kSaved);
}

}  // namespace

void ShowPlotItems() {
  Grid& grid = frmIOCheckFG.Chart.flgdPlot;
  grid.Redraw = false;
  grid.SetRows(1 + static_cast<int>(PlotData.Items.size()));
  for (int col = 0; col < static_cast<int>(kTitles.size()); ++col) {
    grid.SetText(0, col, Text(kTitles[static_cast<std::size_t>(col)]));
  }
  int row = 0;
  for (const PlotKey& key : PlotData.Items) {
    const PlotEntry& entry = PlotData.Entries.at(key);
    grid.SetText(++row, kShown, entry.shown ? "O" : "-");
    grid.SetText(row, kName, entry.trace.Name);
  }
  grid.Redraw = true;
  TakeShown();
  ShowPlot();
}

void ShowPlot() {
  Plot& plot = Chart();
  const std::int64_t span = SpanMs();
  if (!IsHeld()) Page().HeldToMs = PlotData.LastMs;
  const std::int64_t earliest = std::min(PlotData.FirstMs + span, PlotData.LastMs);
  Page().HeldToMs = std::clamp(Page().HeldToMs, earliest, PlotData.LastMs);
  plot.ToMs = Page().HeldToMs;
  plot.FromMs = plot.ToMs - span;
  plot.ZeroMs = PlotData.BeganMs;
  for (auto* cursor : {&plot.CursorA, &plot.CursorB}) {
    if (*cursor && **cursor < PlotData.FirstMs) cursor->reset();  // it has run out of what is kept
  }
  ++plot.Revision;
  ShowCursorText();
  ShowValues();
}

void InstallPlotPage() {
  PlotPage& f = frmIOCheckFG.Chart;
  f.flgdPlot.CanEdit = [](int, int) { return false; };
  f.flgdPlot.CellClick = [](int row, int) { Choose(row); };
  f.flgdPlot.LampOf = [](int row, int col) {
    if (row == 0 || col != kShown) return CellLamp::None;
    return frmIOCheckFG.Chart.flgdPlot.Text(row, col) == "O" ? CellLamp::On : CellLamp::Off;
  };
  f.chkPlotPause.Click = Hold;
  f.cmdPlotBack.Click = [] { Go(-1); };
  f.cmdPlotOn.Click = [] { Go(1); };
  f.cmdPlotIn.Click = [] { ZoomBy(1); };
  f.cmdPlotOut.Click = [] { ZoomBy(-1); };
  f.cmdPlotCsv.Click = SaveCsv;
  f.cmdPlotPicture.Click = SavePicture;
  f.plotIo.Pick = PutCursor;
  f.plotIo.Zoom = ZoomBy;
}

void LoadPlotPage() {
  constexpr int kShownWidth = 700, kNameWidth = 2400, kValueWidth = 900;
  PlotPage& f = frmIOCheckFG.Chart;
  f.Span = 2;
  f.HeldToMs = 0;
  f.chkPlotPause.Value = false;
  f.plotIo.CursorA.reset();
  f.plotIo.CursorB.reset();
  f.plotIo.Shown.clear();
  PlotData = PlotDataRecord{};
  f.flgdPlot.SetColWidth(kShown, kShownWidth);
  f.flgdPlot.SetColWidth(kName, kNameWidth);
  f.flgdPlot.SetColWidth(kAtA, kValueWidth);
  f.flgdPlot.SetColWidth(kAtB, kValueWidth);
  f.flgdPlot.SetColAlign(kShown, ColAlign::Left);
  f.flgdPlot.SetColAlign(kName, ColAlign::Left);
  for (const int col : {kAtA, kAtB}) f.flgdPlot.SetColAlign(col, ColAlign::Right);
  f.flgdPlot.FitsView = true;
}

}  // namespace tr7
