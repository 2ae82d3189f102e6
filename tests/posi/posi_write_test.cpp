#include <algorithm>

#include "core/reset_state.h"
#include "device/dev_setting.h"
#include "device/limits.h"
#include "forms/frm_syogo_kekka.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "posi/posi_transfer.h"
#include "posi/unit_change.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using qvr7sim::Fault;
using qvr7sim::FaultKind;

const std::string kBefore =
    "0RA\r\n0CM01111\r\n0CM1\r\n0RD0\r\n"                        // still, held, state
    "0CM1\r\n0CM1\r\n0RD0\r\n0RD4\r\n0RD7\r\n0RDA\r\n0RDD\r\n";  // the check
const std::string kRelease = "0CM00000\r\n";

class WriteTest : public FlowTest {
 protected:
  WriteTest() = default;
  explicit WriteTest(const qvr7sim::Setup& setup) : FlowTest(setup) {}

  /// Reads positions 1 to 5 and changes the speed of axis 1 in all of them.
  void ReadAndEdit() {
    StartOnline();
    ReadRange(1, 5);
    for (int n = 1; n <= 5; ++n) Cell(n, kVel, "47");
    frmPosi.PosiChanged = True;
    port.sent.clear();
    forms.boxes.clear();
  }
  void Cell(int number, int col, const std::string& text) {
    frmPosi.flgdData.SetText(RowOfPosition(number), col, text);
  }
  void Write(int first, int last) {
    AnswerRange("frmSelectPosiNo3", first, last);
    forms.answers = {MsgAnswer::Ok};
    frmPosi.cmdPosiWrite.Press();
  }
  /// What the record of a position looks like on the line.
  std::string Sent(int number) const {
    const std::string& record = port.Ct().WrittenPosition(number);
    return "0WP00" + std::to_string(number) + record + "\r\n";
  }
  void Spoil(FaultKind kind, const std::string& prefix, int at_request, int at_byte = -1) {
    Fault fault;
    fault.kind = kind;
    fault.prefix = prefix;
    fault.at_request = at_request;
    fault.probability = at_request == 0 ? 1 : 0;
    fault.at_byte = at_byte;
    port.Ct().AddFault(fault);
  }
  /// The speed of axis 1 that the controller would have after a loss of power.
  int StoredVel(int number) const {
    qvr7sim::PositionRecord record;
    EXPECT_TRUE(qvr7sim::DecodePosition(port.Ct().CommittedPosition(number), &record));
    return record.axis[0].vel;
  }
  std::vector<std::string> Boxes() const {
    std::vector<std::string> texts;
    for (const MessageBoxCall& box : forms.boxes) texts.push_back(box.Text);
    return texts;
  }
};

TEST_F(WriteTest, TheRangeGoesOutAndIsStored) {
  ReadAndEdit();
  const int untouched = StoredVel(1);
  Write(2, 4);
  EXPECT_EQ(port.sent, kBefore + Sent(2) + Sent(3) + Sent(4) + "0WA002004\r\n" + kRelease);
  EXPECT_EQ(StoredVel(1), untouched);
  for (int n = 2; n <= 4; ++n) EXPECT_EQ(StoredVel(n), 47);
  EXPECT_EQ(Boxes(), (std::vector<std::string>{Text(375), Text(376)}));
  EXPECT_TRUE(frmPosi.PosiChanged) << "written is not saved";
  EXPECT_EQ(AppState.PosiFromNo, 1) << "the next operation means the whole table";
  EXPECT_EQ(AppState.PosiToNo, 5);
  EXPECT_EQ(forms.focus, &frmPosi.flgdData);
  ExpectCommandsOn();
  ExpectOnline();
  EXPECT_EQ(port.IsOpen(), bool(AppState.PortOccupy));
}

TEST_F(WriteTest, NothingIsSentBeforeTheUserHasAgreed) {
  ReadAndEdit();
  forms.on_modal["frmSelectPosiNo3"] = [](View& view) {
    static_cast<SelectPosiNoView&>(view).cmdCancel.Press();
  };
  frmPosi.cmdPosiWrite.Press();
  AnswerRange("frmSelectPosiNo3", 2, 4);
  forms.answers = {MsgAnswer::Cancel};
  frmPosi.cmdPosiWrite.Press();
  Cell(5, kPf, "19");
  forms.on_modal["frmSyogoKekka"] = [](View& view) { view.Visible = false; };
  frmMain.mnuContPosiWrite.Press();
  EXPECT_EQ(forms.modals.back(), "frmSyogoKekka") << "also what lies outside a range is checked";
  EXPECT_EQ(port.sent, "");
  ExpectCommandsOn();
}

TEST_F(WriteTest, AxesThatThePcDoesNotUseAreAskedAbout) {
  ReadAndEdit();
  AppState.AxisMuko[3] = True;
  AnswerRange("frmSelectPosiNo3", 2, 4);
  for (const MsgAnswer answer : {MsgAnswer::Cancel, MsgAnswer::Ok}) {
    forms.answers = {MsgAnswer::Ok, answer};
    frmPosi.cmdPosiWrite.Press();
    EXPECT_EQ(forms.boxes[1].Text, Text(6364, "AXIS4", "2-4"));
    EXPECT_EQ(port.sent.empty(), answer == MsgAnswer::Cancel);
  }
  EXPECT_EQ(forms.LastBox(), Text(376));
}

TEST_F(WriteTest, AMovingControllerTakesNothing) {
  ReadAndEdit();
  // Somebody else has sent the machine home.
  port.Ct().PlaceAxis(1, 15000, pump.NowUs());
  port.Ct().Receive("0MP000F\r\n", pump.NowUs());
  pump.RunFor(100'000);
  port.ReadAll();
  Write(2, 4);
  EXPECT_EQ(port.sent, "0RA\r\n");
  EXPECT_EQ(forms.LastBox(), Text(424));
  ExpectCommandsOn();
}

TEST_F(WriteTest, OfflineTheToolConnectsFirst) {
  ReadAndEdit();
  forms.answers = {MsgAnswer::Ok};
  frmMain.mnuSettingOffline.Press();
  port.sent.clear();
  Write(2, 2);
  EXPECT_EQ(port.sent.substr(0, 17), "0CM1\r\n0CM1\r\n0RV\r\n");
  EXPECT_EQ(StoredVel(2), 47);
  EXPECT_EQ(forms.LastBox(), Text(376));
  ExpectOnline();
}

TEST_F(WriteTest, ATableThatIsBadOnceOnlineGoesNowhere) {
  virt.settings.Set("Settings", "PortOccupy", "0");
  ReadAndEdit();
  AppState.DispMmUnit = False;
  ShowInNewUnit();
  forms.answers = {MsgAnswer::Ok};
  frmMain.mnuSettingOffline.Press();
  DevSetting[0].Stroke = 200;  // the PC allows more than the controller's axis has
  RecalcLimits();
  Cell(2, kPosi, "30000");
  port.sent.clear();
  Choose({0});
  forms.on_modal["frmSyogoKekka"] = [](View& view) { view.Visible = false; };
  Write(1, 5);
  EXPECT_EQ(forms.modals.back(), "frmSyogoKekka");
  EXPECT_EQ(port.sent.find("0WP"), std::string::npos);
  EXPECT_FALSE(port.IsOpen()) << "the connect before the check has opened it";
  ExpectOnline();
  ExpectCommandsOn();
}

TEST_F(WriteTest, TheChosenRangeOutlastsTheDevicesOfTheConnection) {
  ReadAndEdit();
  forms.answers = {MsgAnswer::Ok};
  frmMain.mnuSettingOffline.Press();
  DevSetting[0].Lead = 7;
  Choose({0});
  const int before = StoredVel(1);
  Write(2, 3);
  EXPECT_EQ(asked.back(), Text(371));
  EXPECT_NE(port.sent.find("0WA002003\r\n"), std::string::npos) << port.sent;
  EXPECT_EQ(port.sent.find("0WP001"), std::string::npos);
  EXPECT_EQ(StoredVel(3), 47);
  EXPECT_EQ(StoredVel(1), before) << "the user did not send it";
}

TEST_F(WriteTest, AFailedStepTellsAndEnds) {
  constexpr int kHeld = 6363;
  const struct {
    const char* what;
    FaultKind kind;
    const char* prefix;
    int at_request, at_byte;
    std::vector<MsgId> boxes;  ///< messages that the boxes begin with, behind the question
    const char* last_sent;
    bool online;
  } rows[] = {
      {"standstill", FaultKind::kErrorReply, "0RA", 1, -1, {104}, "0RA\r\n", false},
      {"hold", FaultKind::kErrorReply, "0CM01111", 1, -1, {104, 377}, "0CM01111\r\n", false},
      {"hold unheard", FaultKind::kDeaf, "0CM01111", 0, -1, {100, 377, kHeld}, "0CM01111", false},
      {"state", FaultKind::kErrorReply, "0RD0", 1, -1, {104, 377, kHeld}, "0RD0\r\n", false},
      {"state again", FaultKind::kErrorReply, "0RD0", 2, -1, {104, kHeld}, "0RD0\r\n", false},
      {"stroke", FaultKind::kErrorReply, "0RD7", 1, -1, {104, kHeld}, "0RD7\r\n", false},
      {"line refused", FaultKind::kErrorReply, "0WP", 2, -1, {104, 384, kHeld}, "0WP003", false},
      {"line unheard", FaultKind::kDeaf, "0WP003", 0, -1, {100, 384, kHeld}, "0WP003", false},
      {"echo differs", FaultKind::kChangedByte, "0WP", 2, 5, {384}, "0CM00000\r\n", true},
      {"commit refused",
       FaultKind::kErrorReply,
       "0WA",
       1,
       -1,
       {104, kHeld},
       "0WA002004\r\n",
       false},
      {"commit unheard", FaultKind::kDeaf, "0WA", 0, -1, {100, kHeld}, "0WA002004\r\n", false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    ResetState();
    AppState.LangOffset = 10000;
    forms.boxes.clear();
    port.Ct().ClearFaults();
    port.Ct().PowerCycle(pump.NowUs());
    ReadAndEdit();
    const int before = StoredVel(3);
    Spoil(row.kind, row.prefix, row.at_request, row.at_byte);
    Write(2, 4);
    ASSERT_EQ(forms.boxes.size(), row.boxes.size() + 1) << forms.LastBox();
    for (std::size_t i = 0; i < row.boxes.size(); ++i) {
      EXPECT_EQ(forms.boxes[i + 1].Text.substr(0, Text(row.boxes[i]).size()), Text(row.boxes[i]));
    }
    const std::size_t last = port.sent.rfind("0", port.sent.rfind("\r\n0") + 2);
    EXPECT_EQ(port.sent.substr(last).substr(0, std::string(row.last_sent).size()), row.last_sent);
    EXPECT_EQ(StoredVel(3), before) << "nothing is stored";
    EXPECT_NE(before, 47);
    EXPECT_EQ(!AppState.Offline, row.online);
    EXPECT_EQ(port.IsOpen(), row.online);
    ExpectCommandsOn();
    port.Ct().ClearFaults();
    port.sent.clear();
    frmMain.cmdReset.Press();
    ExpectOnline();
    const bool held = row.boxes.back() == kHeld;
    EXPECT_EQ(port.sent.starts_with("0AR\r\n0CM1\r\n" + kRelease), held) << port.sent;
    EXPECT_FALSE(AppState.AxesMayBeHeld);
  }
}

TEST_F(WriteTest, AReleaseThatFailsIsToldBeforeTheEnd) {
  ReadAndEdit();
  Spoil(FaultKind::kErrorReply, "0CM00", 1);
  Write(2, 4);
  ASSERT_EQ(forms.boxes.size(), 4u);
  EXPECT_EQ(forms.boxes[2].Text, Text(377) + "\n\n" + Text(6363));
  EXPECT_EQ(forms.boxes[3].Text, Text(376));
  EXPECT_EQ(StoredVel(3), 47);
}

TEST_F(WriteTest, ACancelledWriteStoresWhatHasGone) {
  StartOnline();
  ReadRange(1, 99);
  for (int n = 1; n <= 99; ++n) Cell(n, kVel, "47");
  port.sent.clear();
  pump.After(2'500'000, [] {
    EXPECT_TRUE(frmMain.cmdComCancel.Visible);
    EXPECT_EQ(frmMain.ProgressBar1.Max, 90);
    frmMain.cmdComCancel.Press();
  });
  Write(10, 99);
  EXPECT_NE(port.sent.find("0WA00A063\r\n" + kRelease), std::string::npos) << "the whole range";
  const auto last = static_cast<int>(std::count(port.sent.begin(), port.sent.end(), 'P')) + 9;
  ASSERT_GT(last, 10);
  ASSERT_LT(last, 99);
  EXPECT_EQ(StoredVel(last), 47);
  EXPECT_NE(StoredVel(last + 1), 47);
  EXPECT_EQ(forms.LastBox(), Text(6456, std::to_string(last + 1)));
  ExpectCommandsOn();
  ExpectOnline();
}

TEST_F(WriteTest, BadLinesAreSkippedAndCounted) {
  ReadAndEdit();
  PosiTable.PosiRec[kVel][2] = PosiTable.PosiRec[kVel][4] = 47.0;
  PosiTable.PosiLineBad[1] = PosiTable.PosiLineBad[3] = True;
  const int before = StoredVel(3);
  std::vector<int> bar;
  for (int i = 1; i < 40; ++i) {
    pump.After(i * 5'000, [&bar] {
      EXPECT_TRUE(frmMain.ProgressBar1.Value == 0 || frmMain.ProgressBar1.Max == 4);
      bar.push_back(frmMain.ProgressBar1.Value);
    });
  }
  int next = 0;
  EXPECT_EQ(WritePosidataToCt({1, 4}, next), Outcome::Done);
  EXPECT_EQ(port.sent, Sent(2) + Sent(4) + "0WA001004\r\n");
  EXPECT_EQ(bar.front(), 1) << "line 1 counts though it does not go out";
  EXPECT_EQ(*std::max_element(bar.begin(), bar.end()), 4);
  EXPECT_EQ(StoredVel(2), 47);
  EXPECT_EQ(StoredVel(3), before);
}

/// The PC's limits are wider than the controller's strokes, as when a device difference was
/// disregarded.
class StrokeTest : public WriteTest {
 protected:
  explicit StrokeTest(const qvr7sim::Setup& setup = qvr7sim::Setup::Useful()) : WriteTest(setup) {}
  void Start(bool mm_view = false) {
    StartOnline();
    AppState.DispMmUnit = mm_view;
    ReadRange(1, 5);
    AppState.MaxPulse[0] = 400'000;
    AppState.MaxMm[0] = 2000;
    port.sent.clear();
    forms.boxes.clear();
    forms.on_modal["frmSyogoKekka"] = [this](View& view) {
      shown = frmSyogoKekka.flgdKekka.Rows() - 2;
      EXPECT_FALSE(frmSyogoKekka.SyogoViewIsVerify);
      EXPECT_EQ(frmSyogoKekka.flgdKekka.Text(2, 0), "3");
      EXPECT_TRUE(frmSyogoKekka.flgdKekka.IsMarked(2, kPosi));
      note = frmSyogoKekka.flgdKekka.CellToolTip(2, kPosi);
      view.Visible = false;
    };
  }
  /// Writes position 3 with this text in the "Posi" cell of axis 1; true when it went out.
  bool Goes(const std::string& text) {
    port.sent.clear();
    forms.modals.clear();
    Cell(3, kPosi, text);
    Write(2, 4);
    const bool went = port.sent.find("0WP") != std::string::npos;
    EXPECT_EQ(forms.modals.back() == "frmSyogoKekka", !went);
    EXPECT_TRUE(port.sent.ends_with(kRelease)) << "no axis stays held";
    EXPECT_EQ(PosiTable.SyogoCount, 0);
    EXPECT_FALSE(PosiTable.SyogoCell[kPosi][3]);
    ExpectCommandsOn();
    return went;
  }
  int shown = 0;
  std::string note;
};

TEST_F(StrokeTest, APositionAtTheStrokeGoesAndOnePulseMoreDoesNot) {
  Start();
  EXPECT_TRUE(Goes("20000"));
  EXPECT_FALSE(Goes("20001"));
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(note, "Stroke of the controller: 20000");
  // 400,000 pulses are within the PC's limits and more than the line can hold.
  EXPECT_FALSE(Goes("400000"));
}

TEST_F(StrokeTest, TheMillimetreViewIsHeldToTheSamePulses) {
  Start(true);
  EXPECT_TRUE(Goes(" 100.000"));
  EXPECT_FALSE(Goes(" 100.005")) << "20,001 pulses";
  EXPECT_EQ(note, "Stroke of the controller: 100.000");
}

qvr7sim::Setup ProgramMode() {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.mode = qvr7sim::Mode::kProgram;
  return setup;
}

class ProgramStrokeTest : public StrokeTest {
 protected:
  ProgramStrokeTest() : StrokeTest(ProgramMode()) {}
};

TEST_F(ProgramStrokeTest, SignsDoNotHideAPosition) {
  Start();
  for (const char* good : {"20000", "+20000", "-20000", "N"}) EXPECT_TRUE(Goes(good)) << good;
  for (const char* bad : {"20001", "+20001", "-20001"}) EXPECT_FALSE(Goes(bad)) << bad;
}

}  // namespace
}  // namespace tr7
