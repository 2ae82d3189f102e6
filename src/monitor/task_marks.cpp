#include "monitor/task_marks.h"

#include "monitor/task_monitor.h"
#include "prog/prog_listing.h"
#include "prog/prog_store.h"

namespace tr7 {
namespace {

/// The step that the controller does in the program of a listing; null where that does not run.
const TaskStep* RunningStepOf(const ProgView& view) {
  const TasksSeen& seen = TaskMonitor.Seen;
  for (int slot = 0; slot < kTaskSlots; ++slot) {
    const int program = seen.TaskProgNo[slot];
    if (program != 0 && program == view.Store.ProgCopyNo) return &seen.TaskStat[slot];
  }
  return nullptr;
}

/// The listing may have been edited, or be another program for the same number.
bool IsListed(const Grid& listing, int row, const ProgStep& running) {
  ProgCells shown = CellsOfStep(listing, row);
  shown[kProgComment].clear();
  return shown == DecodeStep(running) || StepOfListing(listing, row) == running;
}

void MarkIn(ProgView& view) {
  Grid& listing = view.flgdProg;
  const TaskStep* running = RunningStepOf(view);
  if (!running || running->step >= listing.Rows()) return listing.SetAtWork({});
  const int row = running->step, before = listing.AtWork().Row;
  listing.SetAtWork({row, !IsListed(listing, row, StepOf(*running))});
  if (frmProgTask.chkFollow.Value && row != before) listing.BringIntoSight(row);
}

template <typename Act>
void ForListings(const Act& act) {
  for (View* view : AllViews()) {
    if (auto* listing = dynamic_cast<ProgView*>(view); listing && listing->Loaded) act(*listing);
  }
}

}  // namespace

void MarkRunningSteps() {
  ForListings([](ProgView& view) { MarkIn(view); });
}

void FollowRunningSteps() {
  if (!frmProgTask.chkFollow.Value) return;
  ForListings([](ProgView& view) {
    const int row = view.flgdProg.AtWork().Row;
    if (row != 0) view.flgdProg.BringIntoSight(row);
  });
}

void ClearRunningSteps() {
  ForListings([](ProgView& view) { view.flgdProg.SetAtWork({}); });
}

}  // namespace tr7
