#include "tests/fleet/jog_runs.h"

#include <cstdio>

#include "link/request_queue.h"
#include "motion/jog.h"
#include "motion/motion_now.h"
#include "motion/motion_view.h"
#include "motion/present_pos.h"
#include "state/online.h"
#include "tests/fleet/jog_watch.h"
#include "tests/fleet/voyage.h"

namespace tr7 {
namespace {

using qvr7sim::Fault;
using qvr7sim::FaultKind;

constexpr int kMsgMayMove = 6540, kMsgAlarm = 5500, kTeachingTab = 2;
/// The longest that the tool tries to stop an axis: its own tries, and those over a new connection.
constexpr std::int64_t kLongestStopUs = 40'000'000;
constexpr std::int64_t kLongestRunUs = std::int64_t{3600} * 1'000'000;

/// A tool that is online, one who jogs, and the one who watches. It serves many runs, since a start
/// takes longer than all presses of a run; each begins with the state of the start.
struct JogRun {
  JogRun();
  ~JogRun() { ResetState(); }
  JogRun(const JogRun&) = delete;
  JogRun& operator=(const JogRun&) = delete;

  Voyage voyage{1};
  AppStateRecord online;
  std::optional<JogWatch> watch;
  Random& random = voyage.random;
  int presses = 0, releases = 0;

  VirtualPump& Pump() { return voyage.virt.pump; }
  qvr7sim::Controller& Ct() { return voyage.virt.port.Ct(); }
  void After(std::int64_t most_us, std::function<void()> what) {
    Pump().After(random.Below(static_cast<int>(most_us)), std::move(what));
  }
};

// What the run begins with.

/// Sees the buttons from where the tool sees them.
void WatchButtons(JogRun& run) {
  for (int i = 0; i < static_cast<int>(frmPosi.Teach.cmdJOG.size()); ++i) {
    HoldButton& button = frmPosi.Teach.cmdJOG[i];
    button.MouseDown = [&run, i, down = button.MouseDown] {
      const PosiTeaching& f = frmPosi.Teach;
      ++run.presses;
      run.watch->Pressed(i / 2, f.optJOG.Value ? 0 : f.optInching1.Value ? 1 : 10);
      down();
    };
    button.MouseUp = [&run, up = button.MouseUp] {
      ++run.releases;
      run.watch->HandGone();
      up();
    };
  }
}

JogRun::JogRun() {
  VirtualDoors& virt = voyage.virt;
  virt.port.Ct() = qvr7sim::Controller(qvr7sim::Setup::Useful());
  virt.forms.on_any_modal = [](View& view) {
    AnswerSelection(static_cast<SelectionView&>(view), 0);
  };
  Main();
  online = AppState;
  virt.forms.while_box = [this] {
    watch->HandGone();
    const std::string told = voyage.virt.forms.LastBox(), alarm = Text(kMsgAlarm);
    if (told == Text(kMsgMayMove) || told.starts_with(alarm.substr(0, alarm.find('%')))) {
      watch->ToldMayMove();
    }
    if (random.Chance(30)) Pump().RunFor(random.Below(300'000));
  };
  WatchButtons(*this);
}

/// As after the start, before a controller of this seed's.
void PutBack(JogRun& run, std::uint64_t seed) {
  static const qvr7sim::Setup useful = qvr7sim::Setup::Useful();
  Voyage& voyage = run.voyage;
  voyage.seed = seed;
  voyage.random = Random(seed);
  voyage.log.clear();
  voyage.virt.pump.SetLimit(voyage.virt.pump.NowUs() + kLongestRunUs);
  voyage.virt.forms.boxes.clear();
  SimPort& port = voyage.virt.port;
  port.open_fault = PortFault::None;
  port.Close();
  port.sent.clear();
  qvr7sim::Setup setup = useful;
  setup.homed = true;
  setup.mask = static_cast<unsigned>(run.random.OneOf({1, 3, 7, 15, 15, 5, 10}));
  setup.rest_as_f = setup.mask > 9 || run.random.Chance(50);  // 10 and more is no decimal digit
  setup.processing_us = run.random.OneOf({0, 500, 5'000, 40'000, 300'000});
  port.Ct() = qvr7sim::Controller(setup, seed);
  doors.serial = &run.watch.emplace(port);
  ResetMotion();
  ClearJog();
  TusinQueue = RequestQueue{};
  AppState = run.online;
  AppState.OpenPortName.clear();  // shut, not lost
  AppState.HomeDone = True;
  AppState.AxisPattern = static_cast<std::int16_t>(setup.mask);
  for (int i = 0; i < kAxes; ++i) AppState.AxisMuko[i] = !((setup.mask >> i) & 1);
  SetOnline();
  run.presses = run.releases = 0;
}

bool StartSession() {
  ClickTab(frmPosi.SSTabCommand(), kTeachingTab);
  frmPosi.MotionTabs();
  frmPosi.Teach.cmdJOGST.Press();
  return AppState.TeachingNow;
}

Fault AnyJogFault(Random& random) {
  Fault fault;
  fault.kind = random.OneOf({FaultKind::kSilence, FaultKind::kDeaf, FaultKind::kDelay,
                             FaultKind::kLostByte, FaultKind::kChangedByte, FaultKind::kExtraByte,
                             FaultKind::kSplit, FaultKind::kDoubled, FaultKind::kWrongPrefix,
                             FaultKind::kWrongLength, FaultKind::kErrorReply, FaultKind::kAlarm});
  fault.prefix = random.OneOf({"0JR", "0JR", "0SP", "0SP", "0RA", "0RC", "0MV", "0CM", ""});
  const int requests = random.Below(3);
  if (requests == 0) fault.probability = random.OneOf({0.3, 1.0});
  fault.at_request = requests;
  fault.time_us = random.OneOf({3'000, 30'000, 200'000, 900'000, 1'500'000, 6'000'000});
  return fault;
}

void PlanJogFaults(JogRun& run) {
  for (int faults = run.random.OneOf({0, 1, 1, 2, 3}); faults > 0; --faults) {
    const Fault fault = AnyJogFault(run.random);
    run.voyage.Note(std::string(qvr7sim::FaultName(fault.kind)) + ":" + fault.prefix);
    run.watch->line_lies |= fault.kind == FaultKind::kChangedByte && fault.prefix != "0JR";
    run.Ct().AddFault(fault);
  }
}

/// An adapter is pulled, and perhaps back before long.
void PullPort(JogRun& run) {
  SimPort& port = run.voyage.virt.port;
  run.voyage.Note("pull");
  port.Vanish();
  run.watch->Vanished();
  port.open_fault = run.random.OneOf({PortFault::None, PortFault::NoSuchPort});
  run.After(1'000'000, [&port] { port.open_fault = PortFault::None; });
}

// What takes the hand away, and what else is pressed.

struct Act {
  const char* name;
  int weight;
  void (*act)(JogRun& run);
  bool of_held = false;     ///< it needs a button that is held
  bool takes_hand = false;  ///< whether the tool sees it or not
};

void StopBy(JogRun& run, const std::function<void()>& stop) {
  run.watch->StopWanted();
  stop();
}

HoldButton& Held() { return *HoldButton::Held(); }

constexpr Act kTakeAway[] = {
    {"release", 12, [](JogRun&) { Held().LetGo(); }, true, true},
    {"twice", 2,
     [](JogRun&) {
       for (HoldButton* held : {&Held(), &Held()}) held->LetGo();
     },
     true, true},
    {"box", 2,
     [](JogRun&) {
       doors.forms->MessageBox({"a box", "", MsgButtons::Ok, MsgIcon::None});
     }},
    {"dialog", 1, [](JogRun&) { doors.forms->FileDialog({}); }, false, true},
    {"hidden", 1, [](JogRun&) { frmPosi.Visible = false; }, false, true},
    {"minimised", 1, [](JogRun&) { frmPosi.Minimised = true; }, false, true},
    {"off", 1, [](JogRun&) { Held().Enabled = false; }, true, true},
    {"tab", 1, [](JogRun&) { Held().Visible = false; }, true, true},
    {"close", 1, [](JogRun&) { CloseView(frmMain, CloseReason::ControlMenu); }},
    {"escape", 2, [](JogRun& run) { StopBy(run, [] { frmMain.Escape(); }); }},
    {"stop", 2,
     [](JogRun& run) {
       if (frmMain.cmdStopNow.Enabled) StopBy(run, [] { frmMain.cmdStopNow.Press(); });
     }},
    {"complete", 2, [](JogRun&) { frmPosi.Teach.cmdJOGend.Press(); }, false, true},
};

constexpr Act kBeside[] = {
    {"poll", 4, [](JogRun&) { static_cast<void>(ReadnDisp_PresentPos()); }},
    {"servo", 2,
     [](JogRun& run) {
       CheckBox& box = frmPosi.Teach.chkSarvoOn[run.random.Below(kAxes)];
       if (box.Enabled) box.Set(!box.Value);
     }},
    {"mode", 2,
     [](JogRun& run) {
       PosiTeaching& f = frmPosi.Teach;
       run.random.OneOf({&f.optJOG, &f.optInching1, &f.optInching10})->Press();
     }},
    {"press", 2, [](JogRun& run) { frmPosi.Teach.cmdJOG[run.random.Below(8)].Hold(); }},
    {"pull", 1, [](JogRun& run) { PullPort(run); }},
    {"alarm", 1,
     [](JogRun& run) {
       run.Ct().RaiseAlarm({'1', '0', '9'}, run.Pump().NowUs(), true);
     }},
};

const Act& AnyAct(Random& random, std::span<const Act> acts) {
  std::vector<const Act*> all;
  for (const Act& act : acts) all.insert(all.end(), static_cast<std::size_t>(act.weight), &act);
  return *all[static_cast<std::size_t>(random.Below(static_cast<int>(all.size())))];
}

void Plan(JogRun& run, const Act& act, std::int64_t within_us) {
  run.After(within_us, [&run, &act] {
    if (run.voyage.virt.forms.box_stands || !run.watch->runaway.empty()) return;
    if (act.of_held && !HoldButton::Held()) return;
    run.voyage.Note(act.name);
    if (act.takes_hand) run.watch->HandGone();
    act.act(run);
  });
}

/// One press, from the hand's down to the axes at rest, or to the word that they may not be.
void PressOnce(JogRun& run) {
  Random& random = run.random;
  PosiTeaching& f = frmPosi.Teach;
  f.sldrJogVEL.Set(10 * random.Between(1, 10));
  (random.Chance(75) ? f.optJOG : random.Chance(50) ? f.optInching1 : f.optInching10).Press();
  HoldButton& button = f.cmdJOG[random.Below(static_cast<int>(f.cmdJOG.size()))];
  // A tap, a touch, a push, and a hand that stays while all tries at the start fail.
  const std::int64_t held_us =
      random.OneOf({30'000, 60'000, 400'000, 400'000, 1'500'000, 7'000'000});
  Plan(run, AnyAct(random, kTakeAway), held_us);
  for (int acts = random.OneOf({0, 0, 1, 2}); acts > 0; --acts) {
    Plan(run, AnyAct(random, kBeside), held_us);
  }
  run.voyage.Note("/");
  button.Hold();
  run.Pump().RunFor(held_us + random.Below(50'000));
  run.watch->HandGone();
  LetGoOfHeldButton();
  frmPosi.Visible = true;
  frmPosi.Minimised = false;
  run.Pump().RunFor(random.Chance(50) ? 400'000 : 20'000);
}

void CheckEnd(JogRun& run) {
  Voyage& voyage = run.voyage;
  run.Pump().RunFor(kLongestStopUs);
  const bool told = run.watch->told();
  voyage.Require(run.watch->runaway.empty(), "runaway: " + run.watch->runaway);
  voyage.Require(told || !run.Ct().AnyMoving(run.Pump().NowUs()), "runaway at the end");
  voyage.Require(run.presses == run.releases, "runaway: " + std::to_string(run.presses) +
                                                  " presses, " + std::to_string(run.releases) +
                                                  " releases");
  const PosiTeaching& f = frmPosi.Teach;
  voyage.Require(!f.JogPending && !f.JogRunning && MotionNow.Kind == Motion::None,
                 "a press is not over");
  voyage.Require(TusinQueue.IsEmpty(), "a request is left");
  run.Ct().ClearFaults();
  frmPosi.Teach.cmdJOGend.Press();
}

}  // namespace

bool NoAxisRunsOn(std::uint64_t seed) {
  static JogRun* run = nullptr;  // at the end of the process there is no state left to put back
  if (!run) run = new JogRun;
  Voyage& voyage = run->voyage;
  try {
    PutBack(*run, seed);
    const bool started = StartSession();
    voyage.Require(started, "no session: " + voyage.virt.forms.LastBox());
    run->Pump().RunFor(400'000);
    PlanJogFaults(*run);
    for (int presses = run->random.Between(1, 3); presses > 0; --presses) {
      if (AppState.TeachingNow && !run->watch->told()) PressOnce(*run);
    }
    CheckEnd(*run);
  } catch (const VirtualTimeExceeded& exceeded) {
    voyage.Fail(std::string("does not end: ") + exceeded.what());
  }
  for (const std::string& failure : voyage.failures) std::printf("%s\n", failure.c_str());
  const bool held = voyage.failures.empty();
  // Neither a tool that was closed nor what a failure leaves behind is anybody's start.
  if (!held || !frmMain.Loaded) delete std::exchange(run, nullptr);
  return held;
}

}  // namespace tr7
