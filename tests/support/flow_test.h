#pragma once

#include "core/main_entry.h"
#include "forms/frm_select_posi_no.h"
#include "forms/frm_selection.h"
#include "forms/frm_syogo_kekka.h"
#include "posi/posi_caption.h"
#include "posi/posi_file.h"
#include "tests/support/state_test.h"

namespace tr7 {

/// A useful controller in program mode.
qvr7sim::Setup InProgramMode();

/// What the PC holds of the machine at the time that this is made.
struct PcState {
  AxisArray<Bool16> muko = AppState.AxisMuko;
  bool mode = AppState.CtMode;
  std::string devices = Of(DevSetting) + Of(DevSettei);

  /// What these devices are, axis by axis.
  static std::string Of(const AxisArray<DevSettingRecord>& devices);
  bool operator==(const PcState&) const = default;
};

/// The user of a flow: starts the tool, chooses, clicks.
class FlowTest : public StateTest {
 protected:
  explicit FlowTest(const qvr7sim::Setup& setup = qvr7sim::Setup::Useful());

  /// At the end of every test: nothing is left switched off, lamps and menus tell the truth.
  void TearDown() override;

  /// Starts the tool in English and chooses online.
  void StartOnline();
  /// Starts the tool offline in the given mode, with the devices that the device dialogue shows.
  void StartOffline(bool program_mode = false);
  /// Goes offline by the menu.
  void GoOffline();
  /// What was sent, shown and asked so far is forgotten.
  void Forget();
  /// The next choice boxes are answered in this order: 0, 1, or -1 for cancel.
  void Choose(std::vector<int> choices);
  /// The next range dialogue `name` is answered with this range.
  void AnswerRange(const std::string& name, int first, int last);
  /// The next range dialogue `name` is cancelled.
  void CancelRange(const std::string& name);
  /// What a cell of the position grid shows; another text for it, past the cell's rule.
  static const std::string& Cell(int number, int col);
  static void Put(int number, int col, const std::string& text);
  /// Clicks Read, gives the range and confirms.
  void ReadRange(int first, int last);

  void ExpectCommandsOn() const;
  void ExpectOffline() const;
  void ExpectOnline() const;
  /// Online, though tabs may be off until the tool has connected anew.
  void ExpectLampOnline() const;

  std::vector<int> choices_;       ///< answers that are left
  std::vector<std::string> asked;  ///< prompts of the choice boxes that came
};

/// The controller holds a program of these steps, as they lie on the line. The port is shut.
void HoldProgram(VirtualDoors& virt, int program, const std::string& steps);
/// The user turns to this tab.
void ClickTab(TabStrip& strip, int tab);
/// Answers a choice box as a user does.
void AnswerSelection(SelectionView& view, int choice);
/// Accepts the devices that a device dialogue shows.
void AcceptDevices(View& view);
/// Fills a range dialogue and presses OK.
void FillRange(SelectPosiNoView& view, int first, int last);

}  // namespace tr7
