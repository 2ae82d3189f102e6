#include "monitor/io_state.h"

#include "monitor/io_names.h"
#include "monitor/plot_data.h"
#include "monitor/watch_lists.h"

namespace tr7 {

IoMonitorRecord IoMonitor;

void ResetIoMonitor() {
  IoMonitor = IoMonitorRecord{};
  IoNames = IoNamesRecord{};
  WatchLists = WatchListsRecord{};
  frmIOCheckFG.Chart.plotIo.Shown.clear();
  PlotData = PlotDataRecord{};
}

bool IoValuesAreOld() {
  return IoMonitor.Stale || (IoMonitor.Known && (IoMonitor.Aged || FlowHoldsLine()));
}

}  // namespace tr7
