#pragma once

#include <set>
#include <span>

#include "prog/prog_store.h"
#include "tests/fleet/random.h"
#include "tests/support/flow_test.h"

namespace tr7 {

/// What one seeded run shares: its chances, its doors, what was done and what did not hold.
struct Voyage {
  explicit Voyage(std::uint64_t seed_of_run);

  /// Writes into the report of a failing run what was done.
  void Note(const std::string& what) { log += " " + what; }
  void Fail(const std::string& what);
  void Require(bool holds, const std::string& what) {
    if (!holds) Fail(what);
  }
  /// A flow begins: what is kept of a flow is forgotten.
  void BeginFlow(const std::string& name);
  /// True when a box with this message, up to what is filled in, came up since the flow began.
  bool WasTold(MsgId message_id) const;
  /// True when one of these commands went out since the flow began.
  bool HasSent(std::initializer_list<const char*> commands) const;
  /// The answer to the choice box with this prompt in this flow; nothing: none was given.
  std::optional<int> Chosen(MsgId prompt_id) const;

  std::uint64_t seed;
  Random random;
  VirtualDoors virt;
  std::string log;
  std::vector<std::string> failures;

  bool line_lies = false;              ///< a byte may be another one, and nothing on the line tells
  bool power_fails = false;            ///< between two frames, and nothing on the line tells
  bool hasty = false;                  ///< the user presses while flows run: see hasty_hand
  bool took = false;                   ///< the user took something over from a comparison
  int presses_open = 0;                ///< presses whose flows have not ended
  std::string last_path;               ///< that the user chose in a file dialogue for positions
  std::set<std::string> damaged;       ///< paths of files that this tool did not write so
  std::string flow;                    ///< the one that runs
  std::size_t sent_at_begin = 0;       ///< bytes sent before this flow
  std::size_t boxes_seen = 0;          ///< message boxes before this flow
  std::map<std::string, int> choices;  ///< of this flow: prompt of a choice box and the answer
  std::set<std::size_t> refused_at;  ///< bytes sent whenever the controller refused the last frame
  /// Bytes sent when the user, or the controller, refused something in this flow.
  std::optional<std::size_t> sent_at_refusal;
};

// Who sails.

/// Puts a user before the screen who answers whatever comes up, at random, and in the end closes
/// every dialogue.
void SeatUser(Voyage& voyage);
/// A user who does not wait: while flows run, whatever the screen offers is pressed, at any moment,
/// from now on and as long as `voyage.hasty` is on.
void SeatHastyHand(Voyage& voyage);
/// Some seconds of that. At its end all flows have come to theirs.
void WorkHastily(Voyage& voyage);

inline constexpr const char *kParaPath = "/work/p.pmt", *kProgPath = "/work/p.prg";
/// Presses the cancel button some time later, in a flow of four.
void PerhapsCancel(Voyage& voyage);
/// One of the few position files that the user works with.
std::string AnyPath(Random& random);

// What befalls them.

/// A controller as it may stand at any machine: boards, axes in use, mode, devices.
qvr7sim::Setup AnyController(Random& random);
/// Plans what the line does wrong in this run; a run in four stays undisturbed.
void PlanFaults(Voyage& voyage);
/// Something happens between two flows: to the port, the controller or the disk; or all is well
/// again.
void ChangeWeather(Voyage& voyage);
/// One of the next calls of the file door fails.
void SpoilFiles(Voyage& voyage);
/// Damages one of the user's files, as a bad disk or another program may.
void DamageFile(Voyage& voyage, const std::string& path);
/// Position files of earlier days, made for whatever machines there were: of either mode, with
/// devices that the catalogue knows, or does not.
void PutWorkFiles(Voyage& voyage);

// What they do.

/// One thing that the user does, with its own invariants.
struct Flow {
  const char* name;
  int weight;
  void (*run)(Voyage& voyage);
};

// The flows by subject.
std::span<const Flow> SessionFlows();
std::span<const Flow> TransferFlows();  ///< reading first
std::span<const Flow> FileFlows();      ///< new data first
std::span<const Flow> EditFlows();
std::span<const Flow> MonitorFlows();
std::span<const Flow> KindFlows();  ///< of parameters, groups, macros, tuning values, programs
std::span<const Flow> ProgramFlows();

/// The program views that are open; one of them in front, perhaps a new one, or null in position
/// mode.
std::vector<ProgView*> ProgramViews();
ProgView* AnyProgram(Voyage& voyage);

/// The start of the tool, with its choice between online and offline.
void StartTool(Voyage& voyage);

/// Closes the monitors that are open: nothing is sent any more, and no override is left on.
void CloseMonitors(Voyage& voyage);

/// What holds between any two flows: commands on, the line shut unless kept, lamp, menus and tabs
/// true, nothing sent while idle or after a refusal, no axis in motion.
void CheckRest(Voyage& voyage);

}  // namespace tr7
