// tr7_fleet [--only jog] [--seeds N] [--from S]: seeded runs of a tool, a controller, a user who
// clicks at random, and a line, a disk and a machine that fail at random. Each failing one prints
// its seed, which replays it.

#include <cstdio>
#include <cstdlib>

#include "tests/fleet/jog_runs.h"
#include "tests/fleet/voyage.h"

namespace tr7 {
namespace {

void Run(Voyage& voyage, const Flow& flow) {
  voyage.BeginFlow(flow.name);
  flow.run(voyage);
  if (!voyage.virt.forms.ended) CheckRest(voyage);
}

void RunAnyFlow(Voyage& voyage) {
  Random& random = voyage.random;
  // There is little to do without a table.
  if (AppState.PosiFirstNo < 1 && random.Chance(70)) {
    return Run(voyage, random.Chance(60) ? TransferFlows()[0] : FileFlows()[0]);
  }
  std::vector<const Flow*> all;  // each as often as it weighs
  for (const auto& some : {SessionFlows(), TransferFlows(), FileFlows(), EditFlows(), KindFlows(),
                           MonitorFlows(), ProgramFlows()}) {
    for (const Flow& flow : some)
      all.insert(all.end(), static_cast<std::size_t>(flow.weight), &flow);
  }
  Run(voyage, *all[static_cast<std::size_t>(random.Below(static_cast<int>(all.size())))]);
}

/// In the hands of a user who waits for nothing the tool comes to rest all the same.
void Sail(Voyage& voyage) {
  const bool hasty = voyage.random.Chance(30);
  const int rounds = hasty ? 6 : 8;
  if (hasty) {
    SeatHastyHand(voyage);
    Main();
    voyage.hasty = false;
  } else {
    Run(voyage, {"start", 1, StartTool});
  }
  for (int i = 0; i < rounds && !voyage.virt.forms.ended; ++i) {
    if (hasty) CheckRest(voyage);
    if (voyage.random.Chance(30)) ChangeWeather(voyage);
    hasty ? WorkHastily(voyage) : RunAnyFlow(voyage);
  }
  if (!voyage.virt.forms.ended) CheckRest(voyage);
}

/// True when every invariant held.
bool Holds(std::uint64_t seed) {
  const auto voyage = std::make_unique<Voyage>(seed);
  SeatUser(*voyage);
  PutWorkFiles(*voyage);
  PlanFaults(*voyage);
  try {
    Sail(*voyage);
  } catch (const VirtualTimeExceeded& exceeded) {
    voyage->Fail(std::string("does not end: ") + exceeded.what());
  }
  for (const std::string& failure : voyage->failures) std::printf("%s\n", failure.c_str());
  return voyage->failures.empty();
}

}  // namespace
}  // namespace tr7

int main(int argc, char** argv) {
  std::uint64_t seeds = 2000, from = 1;
  bool jog = false, good = true;
  for (int i = 1; i < argc; i += 2) {
    const std::string option = argv[i], value = i + 1 < argc ? argv[i + 1] : "";
    char* end = nullptr;
    const std::uint64_t number = std::strtoull(value.c_str(), &end, 10);
    jog = jog || (option == "--only" && value == "jog");
    if (option == "--seeds") seeds = number;
    if (option == "--from") from = number;
    const bool counts = option == "--seeds" || option == "--from";
    good = good && (counts ? !value.empty() && *end == '\0' : option == "--only" && value == "jog");
  }
  if (!good) {
    std::fprintf(stderr, "usage: tr7_fleet [--only jog] [--seeds N] [--from S]\n");
    return 2;
  }
  std::uint64_t failed = 0;
  for (std::uint64_t seed = from; seed < from + seeds; ++seed) {
    failed += (jog ? tr7::NoAxisRunsOn(seed) : tr7::Holds(seed)) ? 0 : 1;
  }
  std::printf("%s: %llu seeds from %llu, %llu %s\n", jog ? "jog" : "fleet",
              static_cast<unsigned long long>(seeds), static_cast<unsigned long long>(from),
              static_cast<unsigned long long>(failed), jog ? "runaways" : "failed");
  return failed == 0 ? 0 : 1;
}
