#include "tests/fleet/ship.h"

#include "core/main_entry.h"
#include "tests/fleet/flows.h"
#include "tests/fleet/hasty_hand.h"
#include "tests/fleet/invariants.h"
#include "tests/fleet/user.h"
#include "tests/fleet/weather.h"
#include "tests/fleet/work_files.h"

namespace tr7 {
namespace {

constexpr int kFlows = 6;

const std::vector<Flow>& AllFlows() {
  static const std::vector<Flow> flows = [] {
    std::vector<Flow> all;
    for (const auto& some : {SessionFlows(), TransferFlows(), FileFlows(), EditFlows()}) {
      all.insert(all.end(), some.begin(), some.end());
    }
    return all;
  }();
  return flows;
}

}  // namespace

void Ship::Run(const char* name, void (*flow)(Voyage& voyage)) {
  voyage_.BeginFlow(name);
  flow(voyage_);
  if (!voyage_.virt.forms.ended) CheckRest(voyage_);
}

/// There is little to do without a table.
void Ship::GetTable() {
  const Flow& flow = voyage_.random.Chance(60) ? TransferFlows()[0] : FileFlows()[0];
  Run(flow.name, flow.run);
}

void Ship::RunAnyFlow() {
  if (AppState.PosiFirstNo < 1 && voyage_.random.Chance(70)) return GetTable();
  int weights = 0;
  for (const Flow& flow : AllFlows()) weights += flow.weight;
  int chance = voyage_.random.Below(weights);
  for (const Flow& flow : AllFlows()) {
    chance -= flow.weight;
    if (chance < 0) return Run(flow.name, flow.run);
  }
}

/// The tool in the hands of a user who waits for nothing: it comes to rest all the same.
void Ship::SailHastily() {
  SeatHastyHand(voyage_);
  Main();
  voyage_.hasty = false;
  for (int i = 0; i < kFlows && !voyage_.virt.forms.ended; ++i) {
    CheckRest(voyage_);
    if (voyage_.random.Chance(30)) ChangeWeather(voyage_);
    WorkHastily(voyage_);
  }
  if (!voyage_.virt.forms.ended) CheckRest(voyage_);
}

std::vector<std::string> Ship::Sail() {
  SeatUser(voyage_);
  PutWorkFiles(voyage_);
  PlanFaults(voyage_);
  try {
    if (voyage_.random.Chance(30)) {
      SailHastily();
      return voyage_.failures;
    }
    Run("start", StartTool);
    if (!voyage_.virt.forms.ended) Run("sweep", SweepConnect);
    PlanFaults(voyage_);
    for (int i = 0; i < kFlows && !voyage_.virt.forms.ended; ++i) {
      if (voyage_.random.Chance(30)) ChangeWeather(voyage_);
      RunAnyFlow();
    }
  } catch (const VirtualTimeExceeded& exceeded) {
    voyage_.Fail(std::string("does not end: ") + exceeded.what());
  }
  return voyage_.failures;
}

}  // namespace tr7
