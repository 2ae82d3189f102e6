#include "device/dev_setting.h"
#include "posi/posi_range.h"
#include "posi/posi_table.h"
#include "posi/posi_wire.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

class ReadTest : public FlowTest {
 protected:
  void SetUp() override {
    StartOnline();
    ReadRange(3, 5);
  }
};

TEST_F(ReadTest, TheRangeArrivesInTheGrid) {
  port.sent.clear();
  ReadRange(3, 5);
  EXPECT_TRUE(port.sent.starts_with("0CM1\r\n0RD0\r\n0RD3\r\n")) << "devices are compared first";
  EXPECT_TRUE(port.sent.ends_with("0RDD\r\n0RP003\r\n0RP004\r\n0RP005\r\n"));
  EXPECT_EQ(frmPosi.flgdData.Rows(), 5);
  EXPECT_EQ(Cell(3, 0), "3");
  qvr7sim::PositionRecord record;
  ASSERT_TRUE(qvr7sim::DecodePosition(port.Ct().CommittedPosition(4), &record));
  EXPECT_EQ(Cell(4, kVel), std::to_string(record.axis[0].vel));
  EXPECT_EQ(Cell(4, kAcc), std::to_string(record.axis[0].acc * 10));
  EXPECT_EQ(PosiTable.PosiPulse[1][4], record.axis[1].pulses);
  EXPECT_EQ(frmPosi.Caption, "Position Data-[Inside of C/T]");
  EXPECT_FALSE(frmPosi.PosiChanged);
}

TEST_F(ReadTest, CancelKeepsTheTable) {
  const std::string before = Cell(3, kVel);
  PosiTable.PosiRec[kVel][2] = std::string("keep");
  for (const bool silent : {false, true}) {
    pump.After(1'400'000, [this, silent] { port.Ct().SetSilent(silent); });
    pump.After(1'500'000, [this] {
      frmMain.cmdComCancel.Press();
      pump.After(200'000, [] { EXPECT_FALSE(AppState.ComBusy); });
    });
    Forget();
    ReadRange(1, 999);
    pump.RunFor(300'000);
    EXPECT_EQ(Boxes(), (Texts{Text(370), Text(425)}));
    ExpectOnline();
  }
  EXPECT_EQ(TextOf(PosiTable.PosiRec[kVel][2]), "keep");
  EXPECT_EQ(Cell(3, kVel), before);
  EXPECT_EQ(LoadedPosiRange(), (PosiRange{3, 5}));
  EXPECT_EQ(OperationRange(), (PosiRange{3, 5})) << "the next one means what is there";
}

TEST_F(ReadTest, AnAxisThatCannotConvertKeepsTheTable) {
  DevSetting[1].Lead = 0;
  Forget();
  Choose({1});
  ReadRange(1, 2);
  EXPECT_EQ(forms.LastBox(), Text(6356, "2"));
  EXPECT_EQ(port.sent.find("0RP"), std::string::npos);
  EXPECT_EQ(AppState.PosiFirstNo, 3);
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

TEST_F(ReadTest, AReplyOfAnotherNumberIsNoPosition) {
  port.Ct().ClearRequests();
  Spoil(FaultKind::kDoubled, "0RP", 3);  // the doubled line is taken for the next reply
  ReadRange(1, 9);
  EXPECT_TRUE(port.sent.ends_with("0RP004\r\n")) << "seen where it happens";
  EXPECT_EQ(AppState.PosiLastNo, 5) << "the old table stays";
  EXPECT_TRUE(BoxShown(Text(385)));
}

TEST_F(ReadTest, TheChosenRangeOutlastsTheDevicesOfTheConnection) {
  GoOffline();
  DevSetting[0].Lead = 7;
  Forget();
  Choose({0});
  ReadRange(8, 9);
  EXPECT_EQ(asked.back(), Text(371));
  EXPECT_EQ(port.sent.find("0RP003"), std::string::npos);
  EXPECT_EQ(LoadedPosiRange(), (PosiRange{8, 9}));
}

TEST_F(ReadTest, PromptsMayStopTheFlow) {
  port.sent.clear();
  CancelRange("frmSelectPosiNo2");
  frmPosi.cmdPosiRead.Press();
  AnswerRange("frmSelectPosiNo2", 1, 3);
  for (const bool changed : {false, true}) {  // the confirmation, and unsaved data
    frmPosi.PosiChanged = changed;
    forms.answers = {MsgAnswer::Cancel};
    frmPosi.cmdPosiRead.Press();
  }
  EXPECT_EQ(port.sent, "");
  EXPECT_EQ(AppState.PosiLastNo, 5);
  EXPECT_TRUE(frmPosi.PosiChanged);
}

TEST(PosiWire, RecordsBothWays) {
  PosiTable = PosiTableRecord{};
  AppState = AppStateRecord{};
  PosiTableInit();
  PosiTable.PosiRec[kWay][5] = 1.0;
  PosiTable.PosiRec[kPosi][5] = 10000.0;
  const std::string line = EncodePosiRecord(5);
  EXPECT_EQ(line.size(), 66u);
  EXPECT_EQ(line.substr(0, 20), "0WP00501E0A427100000");

  std::string reply = line + "\r\n";
  reply.replace(0, 3, "0RP");
  EXPECT_FALSE(DecodePosiRecord(reply, 6));
  ASSERT_TRUE(DecodePosiRecord(reply, 5));
  EXPECT_EQ(ValueOf(PosiTable.PosiStage[kWay][5]), 1);
  EXPECT_EQ(ValueOf(PosiTable.PosiStage[kPosi][5]), 10000);
  reply[20] = 'G';
  EXPECT_FALSE(DecodePosiRecord(reply, 5));

  // 18 bits of position: one more spills into the way.
  PosiTable.PosiRec[kWay][5] = 3.0;
  PosiTable.PosiRec[kPosi][5] = 262143.0;
  EXPECT_EQ(EncodePosiRecord(5).substr(11, 5), "FFFFF");
  PosiTable.PosiRec[kPosi][5] = 262144.0;
  EXPECT_EQ(EncodePosiRecord(5).substr(11, 5), "X0000") << "the controller refuses the line";
}

}  // namespace
}  // namespace tr7
