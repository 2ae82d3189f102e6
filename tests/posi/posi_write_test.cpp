#include <algorithm>

#include "device/dev_setting.h"
#include "device/limits.h"
#include "forms/frm_syogo_kekka.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_range.h"
#include "posi/posi_table.h"
#include "posi/posi_transfer.h"
#include "posi/unit_change.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

const std::string kBefore =
    "0RA\r\n0CM01111\r\n0CM1\r\n0RD0\r\n"                        // still, held, state
    "0CM1\r\n0CM1\r\n0RD0\r\n0RD4\r\n0RD7\r\n0RDA\r\n0RDD\r\n";  // the check
const std::string kRelease = "0CM00000\r\n";

class WriteTest : public FlowTest {
 protected:
  using FlowTest::FlowTest;

  void SetUp() override {
    StartOnline();
    ReadAndEdit(5);
  }
  /// Reads positions 1 to `last` and changes the speed of axis 1 in all of them.
  void ReadAndEdit(int last) {
    frmPosi.PosiChanged = False;
    ReadRange(1, last);
    for (int n = 1; n <= last; ++n) Put(n, kVel, "47");
    frmPosi.PosiChanged = True;
    Forget();
    forms.on_modal["frmSyogoKekka"] = [](View& view) { view.Visible = false; };
  }
  void Write(int first, int last) {
    AnswerRange("frmSelectPosiNo3", first, last);
    forms.answers = {MsgAnswer::Ok};
    frmPosi.cmdPosiWrite.Press();
  }
  /// What the record of a position looks like on the line.
  std::string Sent(int number) const {
    return "0WP00" + std::to_string(number) + port.Ct().WrittenPosition(number) + "\r\n";
  }
  /// The speed of axis 1 that the controller would have after a loss of power.
  int StoredVel(int number) const {
    qvr7sim::PositionRecord record;
    EXPECT_TRUE(qvr7sim::DecodePosition(port.Ct().CommittedPosition(number), &record));
    return record.axis[0].vel;
  }
};

TEST_F(WriteTest, TheRangeGoesOutAndIsStored) {
  const int untouched = StoredVel(1);
  Write(2, 4);
  EXPECT_EQ(port.sent, kBefore + Sent(2) + Sent(3) + Sent(4) + "0WA002004\r\n" + kRelease);
  EXPECT_EQ(StoredVel(1), untouched);
  for (int n = 2; n <= 4; ++n) EXPECT_EQ(StoredVel(n), 47);
  EXPECT_EQ(Boxes(), (Texts{Text(375), Text(376)}));
  EXPECT_TRUE(frmPosi.PosiChanged) << "written is not saved";
  EXPECT_EQ(OperationRange(), (PosiRange{1, 5})) << "the next operation means the whole table";
  EXPECT_EQ(forms.focus, &frmPosi.flgdData);
}

TEST_F(WriteTest, NothingIsSentBeforeTheUserHasAgreed) {
  CancelRange("frmSelectPosiNo3");
  frmPosi.cmdPosiWrite.Press();
  AnswerRange("frmSelectPosiNo3", 2, 4);
  forms.answers = {MsgAnswer::Cancel};
  frmPosi.cmdPosiWrite.Press();
  Put(5, kPf, "19");
  frmMain.mnuContPosiWrite.Press();
  EXPECT_EQ(forms.modals.back(), "frmSyogoKekka") << "also what lies outside a range is checked";
  EXPECT_EQ(port.sent, "");
}

TEST_F(WriteTest, AxesThatThePcDoesNotUseAreAskedAbout) {
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
  // Somebody else has sent the machine home.
  port.Ct().PlaceAxis(1, 15000, pump.NowUs());
  port.Ct().Receive("0MP000F\r\n", pump.NowUs());
  pump.RunFor(100'000);
  port.ReadAll();
  Write(2, 4);
  EXPECT_EQ(port.sent, "0RA\r\n");
  EXPECT_EQ(forms.LastBox(), Text(424));
}

TEST_F(WriteTest, ATableThatIsBadOnceOnlineGoesNowhere) {
  AppState.DispMmUnit = False;
  ShowInNewUnit();
  GoOffline();
  DevSetting[0].Stroke = 200;  // the PC allows more than the controller's axis has
  RecalcLimits();
  Put(2, kPosi, "30000");
  Choose({0});
  Write(1, 5);
  EXPECT_EQ(forms.modals.back(), "frmSyogoKekka");
  EXPECT_EQ(port.sent.find("0WP"), std::string::npos);
  ExpectOnline();
}

TEST_F(WriteTest, TheChosenRangeOutlastsTheDevicesOfTheConnection) {
  GoOffline();
  DevSetting[0].Lead = 7;
  Choose({0});
  const int before = StoredVel(1);
  Write(2, 3);
  EXPECT_EQ(asked.back(), Text(371));
  EXPECT_NE(port.sent.find("0WA002003\r\n"), std::string::npos) << port.sent;
  EXPECT_EQ(StoredVel(3), 47);
  EXPECT_EQ(StoredVel(1), before) << "the user did not send it";
}

TEST_F(WriteTest, AFailedStepTellsItsOwnMessage) {
  constexpr int kHeld = 6363;
  const struct {
    const char* what;
    FaultKind kind;
    const char* prefix;
    int at_request, at_byte;
    std::vector<MsgId> boxes;  ///< messages that the boxes begin with, behind the question
  } rows[] = {{"hold refused", FaultKind::kErrorReply, "0CM01111", 1, -1, {104, 377}},
              {"hold unheard", FaultKind::kDeaf, "0CM01111", 0, -1, {100, 377, kHeld}},
              {"line unheard", FaultKind::kDeaf, "0WP003", 0, -1, {100, 384, kHeld}},
              {"echo differs", FaultKind::kChangedByte, "0WP", 2, 5, {384}}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    port.Ct().ClearRequests();
    Spoil(row.kind, row.prefix, row.at_request, row.at_byte);
    Forget();
    Write(2, 4);
    ASSERT_EQ(forms.boxes.size(), row.boxes.size() + 1) << forms.LastBox();
    for (std::size_t i = 0; i < row.boxes.size(); ++i) {
      EXPECT_TRUE(forms.boxes[i + 1].Text.starts_with(Text(row.boxes[i]))) << i;
    }
    EXPECT_NE(StoredVel(3), 47) << "nothing is stored";
    port.Ct().ClearFaults();
    Forget();
    frmMain.cmdReset.Press();
    const bool held = row.boxes.back() == kHeld;
    EXPECT_EQ(port.sent.starts_with("0AR\r\n0CM1\r\n" + kRelease), held) << port.sent;
  }
}

TEST_F(WriteTest, AReleaseThatFailsIsToldBeforeTheEnd) {
  Spoil(FaultKind::kErrorReply, "0CM00");
  Write(2, 4);
  ASSERT_EQ(forms.boxes.size(), 4u);
  EXPECT_EQ(forms.boxes[2].Text, Text(377) + "\n\n" + Text(6363));
  EXPECT_EQ(forms.boxes[3].Text, Text(376));
  EXPECT_EQ(StoredVel(3), 47);
}

TEST_F(WriteTest, ACancelledWriteStoresWhatHasGone) {
  ReadAndEdit(99);
  pump.After(2'500'000, [] { frmMain.cmdComCancel.Press(); });
  Write(10, 99);
  EXPECT_NE(port.sent.find("0WA00A063\r\n" + kRelease), std::string::npos) << "the whole range";
  const auto last = static_cast<int>(std::count(port.sent.begin(), port.sent.end(), 'P')) + 9;
  ASSERT_GT(last, 10);
  ASSERT_LT(last, 99);
  EXPECT_EQ(StoredVel(last), 47);
  EXPECT_NE(StoredVel(last + 1), 47);
  EXPECT_EQ(forms.LastBox(), Text(6456, std::to_string(last + 1)));
  ExpectOnline();
}

TEST_F(WriteTest, BadLinesAreSkipped) {
  PosiTable.PosiLineBad[1] = PosiTable.PosiLineBad[3] = True;
  int next = 0;
  EXPECT_EQ(WritePosidataToCt({1, 4}, next), Outcome::Done);
  EXPECT_EQ(port.sent, Sent(2) + Sent(4) + "0WA001004\r\n");
}

/// The PC's limits are wider than the controller's strokes, as when a device difference was
/// disregarded.
class StrokeTest : public WriteTest {
 protected:
  explicit StrokeTest(const qvr7sim::Setup& setup = qvr7sim::Setup::Useful()) : WriteTest(setup) {}
  /// Writes position 3 with this text in the "Posi" cell of axis 1; true when it went out.
  bool Goes(const std::string& text, bool mm = false) {
    AppState.DispMmUnit = mm;
    ReadAndEdit(5);
    AppState.MaxPulse[0] = 400'000;
    AppState.MaxMm[0] = 2000;
    forms.on_modal["frmSyogoKekka"] = [this](View& view) {
      EXPECT_EQ(frmSyogoKekka.flgdKekka.Rows(), 3);
      EXPECT_EQ(frmSyogoKekka.flgdKekka.Text(2, 0), "3");
      note = frmSyogoKekka.flgdKekka.CellToolTip(2, kPosi);
      view.Visible = false;
    };
    Put(3, kPosi, text);
    Write(2, 4);
    const bool went = port.sent.find("0WP") != std::string::npos;
    EXPECT_EQ(forms.modals.back() == "frmSyogoKekka", !went);
    EXPECT_TRUE(port.sent.ends_with(kRelease)) << "no axis stays held";
    EXPECT_FALSE(PosiTable.SyogoCell[kPosi][3]);
    return went;
  }
  std::string note;
};

TEST_F(StrokeTest, APositionAtTheStrokeGoesAndOnePulseMoreDoesNot) {
  EXPECT_TRUE(Goes("20000"));
  EXPECT_FALSE(Goes("20001"));
  EXPECT_EQ(note, "Stroke of the controller: 20000");
  EXPECT_FALSE(Goes("400000")) << "more than the line can hold";
  EXPECT_TRUE(Goes(" 100.000", true));
  EXPECT_FALSE(Goes(" 100.005", true)) << "20,001 pulses";
  EXPECT_EQ(note, "Stroke of the controller: 100.000");
}

class ProgramStrokeTest : public StrokeTest {
 protected:
  ProgramStrokeTest() : StrokeTest(InProgramMode()) {}
};

TEST_F(ProgramStrokeTest, SignsDoNotHideAPosition) {
  for (const char* good : {"20000", "+20000", "-20000", "N"}) EXPECT_TRUE(Goes(good)) << good;
  for (const char* bad : {"20001", "+20001", "-20001"}) EXPECT_FALSE(Goes(bad)) << bad;
}

}  // namespace
}  // namespace tr7
