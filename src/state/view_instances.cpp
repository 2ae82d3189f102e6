#include "state/view_instances.h"

#include <algorithm>
#include <vector>

#include "forms/timer.h"
#include "platform/doors.h"

namespace tr7 {
namespace {

struct Instances {
  std::vector<std::unique_ptr<View>> open;
  std::vector<std::unique_ptr<View>> closed;
};

Instances& Kept() {
  // Views take themselves out of these tables: they end first.
  static const auto& views = AllViews();
  static const auto& timers = TimerTable();
  static_cast<void>(views), static_cast<void>(timers);
  static Instances instances;
  return instances;
}

bool MayGo(const std::unique_ptr<View>& view) { return !doors.forms->Holds(*view); }

}  // namespace

void KeepView(std::unique_ptr<View> view) { Kept().open.push_back(std::move(view)); }

void LetViewGo(const View& view) {
  auto& [open, closed] = Kept();
  const auto found = std::find_if(open.begin(), open.end(),
                                  [&view](const auto& kept) { return kept.get() == &view; });
  if (found == open.end()) return;
  closed.push_back(std::move(*found));
  open.erase(found);
}

bool ClosedViewsMayGo() {
  const auto& closed = Kept().closed;
  return !HandlerRuns::Any() && std::any_of(closed.begin(), closed.end(), MayGo);
}

void DestroyClosedViews() { std::erase_if(Kept().closed, MayGo); }

void DestroyViewInstances() {
  Kept().open.clear();
  Kept().closed.clear();
}

}  // namespace tr7
