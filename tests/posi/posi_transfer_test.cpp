#include "posi/posi_transfer.h"

#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

const std::string kBefore =
    "0RA\r\n0CM01111\r\n0CM1\r\n0RD0\r\n"                        // still, held, state
    "0CM1\r\n0CM1\r\n0RD0\r\n0RD4\r\n0RD7\r\n0RDA\r\n0RDD\r\n";  // the check
const std::string kRelease = "0CM00000\r\n";

class ReadTest : public FlowTest {
 protected:
  void SetUp() override {
    StartOnline();
    ReadRange(3, 5);
  }
};

TEST_F(ReadTest, PositionsAreTakenAsTheControllerHasThem) {
  qvr7sim::PositionRecord record;
  ASSERT_TRUE(qvr7sim::DecodePosition(port.Ct().CommittedPosition(4), &record));
  EXPECT_EQ(Cell(4, kVel), std::to_string(record.axis[0].vel));
  EXPECT_EQ(Cell(4, kAcc), std::to_string(record.axis[0].acc * 10));
  EXPECT_EQ(PosiTable.PosiPulse[1][4], record.axis[1].pulses);
  EXPECT_EQ(frmPosi.Caption, "Position Data-[Inside of C/T]");
}

TEST_F(ReadTest, CommentsOfTheLoadedPositionsStay) {
  auto& comments = PosiTable.PosiRec[kComment];
  comments[4] = std::string("mine");
  comments[5] = std::string("last");
  comments[6] = std::string("of an earlier table");
  PosiTable.PosiStage[kComment][3] = std::string("of a file to compare with");
  ReadRange(2, 9);
  EXPECT_EQ(Cell(3, kComment) + Cell(4, kComment) + Cell(5, kComment), "minelast");
  EXPECT_EQ(Cell(6, kComment), "");
  // Beside another position a comment stays only if the user wants it to.
  for (const bool stays : {true, false}) {
    PosiTable.PosiRec[kPosi][4] = 1.0;
    AnswerRange("frmSelectPosiNo2", 2, 9);
    forms.answers = {MsgAnswer::Ok, stays ? MsgAnswer::Yes : MsgAnswer::No};
    frmPosi.cmdPosiRead.Press();
    EXPECT_EQ(forms.LastBox(), Text(6464, "1"));
    EXPECT_EQ(Cell(4, kComment), stays ? "mine" : "");
  }
}

class WriteTest : public ReadTest {
 protected:
  void SetUp() override {
    ReadTest::SetUp();
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
  /// Writes position 3 with this text in the "Posi" cell of axis 1, the PC's limits wider than the
  /// controller's strokes, as when a device difference was disregarded; true when it went out.
  bool Goes(const std::string& text, bool mm) {
    AppState.DispMmUnit = mm;
    ReadAndEdit(5);
    AppState.MaxPulse[0] = 400'000;
    AppState.MaxMm[0] = 2000;
    forms.on_modal["frmSyogoKekka"] = [this](View& view) {
      note = frmSyogoKekka.flgdKekka.CellToolTip(2, kPosi);
      view.Visible = false;
    };
    Put(3, kPosi, text);
    Write(2, 4);
    EXPECT_TRUE(port.sent.ends_with(kRelease)) << "no axis stays held";
    return port.sent.find("0WP") != std::string::npos;
  }
  /// The speed of axis 1 that the controller would have after a loss of power.
  int StoredVel(int number) const {
    qvr7sim::PositionRecord record;
    EXPECT_TRUE(qvr7sim::DecodePosition(port.Ct().CommittedPosition(number), &record));
    return record.axis[0].vel;
  }
  std::string note;  ///< at the cell that does not go
};

TEST_F(WriteTest, TheRangeGoesOutAndIsStored) {
  const int untouched = StoredVel(1);
  Write(2, 4);
  EXPECT_EQ(port.sent, kBefore + Sent(2) + Sent(3) + Sent(4) + "0WA002004\r\n" + kRelease);
  EXPECT_EQ(StoredVel(1), untouched);
  for (int n = 2; n <= 4; ++n) EXPECT_EQ(StoredVel(n), 47);
  EXPECT_EQ(Boxes(), (Texts{Text(375) + "\n\n" + Text(7192, "2", "4"), Text(376)}));
  EXPECT_TRUE(frmPosi.PosiChanged) << "written is not saved";
  EXPECT_EQ(OperationRange(), (PosiRange{1, 5})) << "the next operation means the whole table";
  EXPECT_EQ(forms.focus, &frmPosi.flgdData);
}

TEST_F(WriteTest, APowerFailureAtTheStoreIsNoSilentLoss) {
  Spoil(qvr7sim::FaultKind::kPowerCycle, "0WA");
  Write(2, 4);
  EXPECT_NE(StoredVel(2), 47);
  EXPECT_EQ(forms.LastBox(), Text(376) + "\n\n" + Text(6524));
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

TEST_F(WriteTest, ACancelWhileTheStoreIsUnansweredDoesNotClaimThatItIsDone) {
  Spoil(qvr7sim::FaultKind::kSilence, "0WA", 0);
  pump.After(2'500'000, [] { frmMain.cmdComCancel.Press(); });
  Write(2, 4);
  EXPECT_TRUE(forms.LastBox().ends_with(Text(6517))) << forms.LastBox();
}

TEST_F(WriteTest, APositionAtTheStrokeGoesAndOnePulseMoreDoesNot) {
  EXPECT_TRUE(Goes("20000", false));
  EXPECT_FALSE(Goes("20001", false));
  EXPECT_EQ(note, "Stroke of the controller: 20000");
  EXPECT_FALSE(Goes("400000", false)) << "more than the line can hold";
  EXPECT_TRUE(Goes(" 100.000", true));
  EXPECT_FALSE(Goes(" 100.005", true)) << "20,001 pulses";
  EXPECT_EQ(note, "Stroke of the controller: 100.000");
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

}  // namespace
}  // namespace tr7
