#include "monitor/plot_record.h"

#include "monitor/io_names.h"
#include "monitor/io_points.h"
#include "monitor/io_state.h"
#include "monitor/plot_data.h"
#include "monitor/plot_view.h"
#include "monitor/watch_lists.h"
#include "monitor/watch_show.h"
#include "platform/doors.h"
#include "state/axes_in_use.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kInput = 7366, kOutput = 7367, kPosition = 7368, kAxis1 = 220;

template <std::size_t rows>
void TakePoints(PlotKind kind, MsgId title, const std::array<IoPointRow, rows>& points,
                const std::array<std::string, rows>& own) {
  for (std::size_t row = 0; row < rows; ++row) {
    const std::string behind = own[row].empty() ? "" : " " + own[row];
    PlotData.Take({kind, 0, static_cast<int>(row)}, Text(title, PointName(points[row])) + behind,
                  true);
  }
}

PlotKind KindOf(WatchKind kind) {
  return static_cast<PlotKind>(static_cast<int>(PlotKind::Flag) + static_cast<int>(kind));
}

PlotKey KeyOf(WatchKind kind, const WatchItem& item) {
  return {KindOf(kind), item.program, item.number};
}

std::string NameOf(WatchKind kind, const WatchItem& item) {
  const std::string number = WatchNumberText(kind, item);
  return item.program == 0 ? number : std::to_string(item.program) + ":" + number;
}

}  // namespace

void FollowPlotItems() {
  PlotData.Items.clear();
  TakePoints(PlotKind::Input, kInput, InputPoints(), IoNames.In);
  TakePoints(PlotKind::Output, kOutput, OutputPoints(), IoNames.Out);
  for (const int axis : AxesInUse()) {
    PlotData.Take({PlotKind::Position, 0, axis}, Text(kPosition, Text(MsgId::At(kAxis1, axis))),
                  false);
  }
  for (const WatchKind kind : kWatchKinds) {
    for (const WatchItem& item : WatchLists[kind]) {
      PlotData.Take(KeyOf(kind, item), NameOf(kind, item), kind == WatchKind::Flag);
    }
  }
  PlotData.DropOthers();
  ShowPlotItems();
}

void RecordPlot() {
  const std::int64_t now = doors.pump->NowUs() / 1000;
  int row = 0;
  for (const IoPointRow& point : InputPoints()) {
    PlotData.Add({PlotKind::Input, 0, row++}, now, IoMonitor.IoInBit[point.Point()]);
  }
  row = 0;
  for (const IoPointRow& point : OutputPoints()) {
    PlotData.Add({PlotKind::Output, 0, row++}, now, IoMonitor.IoOutBit[point.Point()]);
  }
  for (const int axis : AxesInUse()) {
    PlotData.Add({PlotKind::Position, 0, axis}, now, IoMonitor.PositionMm[axis]);
  }
  for (const WatchKind kind : kWatchKinds) {
    for (const WatchItem& item : WatchLists[kind]) {
      PlotData.Add(KeyOf(kind, item), now,
                   WatchListIsRead(kind) ? WatchValue(kind, item) : std::nullopt);
    }
  }
  ShowPlot();
}

void RecordPlotGap() {
  if (PlotData.LastMs == 0) return;
  const std::int64_t now = doors.pump->NowUs() / 1000;
  for (const PlotKey& key : PlotData.Items) PlotData.Add(key, now, std::nullopt);
  ShowPlot();
}

}  // namespace tr7
