#pragma once

namespace tr7 {

// What a flow takes for its length and gives back on every way out.

/// Commands of all views off, then on again: a flow within a flow leaves that to the outer one.
class CommandsOff {
 public:
  CommandsOff();
  ~CommandsOff();
  CommandsOff(const CommandsOff&) = delete;
  CommandsOff& operator=(const CommandsOff&) = delete;
};

/// `ComBusy`: the tool refuses to close from its window's own menu.
class BusyScope {
 public:
  BusyScope();
  ~BusyScope();
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

 private:
  bool was_busy_;
};

/// A flow has the commands, or an act of a teaching session has the axes. A session alone, which
/// holds the commands off from its start to its end, is none: between two acts, and while a jog
/// runs under the hand, it leaves the line alone.
bool FlowRuns();

/// Tells in the status panel, with a beep, that a flow runs and must come to its end first.
void TellFlowRuns();
/// For a view that may not close while a flow runs: true where one does, which is told.
[[nodiscard]] bool FlowKeepsViewsOpen();

class WaitCursorScope {
 public:
  WaitCursorScope();
  ~WaitCursorScope();
  WaitCursorScope(const WaitCursorScope&) = delete;
  WaitCursorScope& operator=(const WaitCursorScope&) = delete;
};

}  // namespace tr7
