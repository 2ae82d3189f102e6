#include "device/dev_setting.h"
#include "posi/posi_table.h"
#include "posi/posi_wire.h"
#include "session/session.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using qvr7sim::Fault;
using qvr7sim::FaultKind;

class ReadTest : public FlowTest {
 protected:
  std::string Cell(int row, int col) const { return frmPosi.flgdData.Text(row, col); }
  void Spoil(FaultKind kind, int at_request) {
    Fault fault;
    fault.kind = kind;
    fault.at_request = at_request;
    fault.prefix = "0RP";
    port.Ct().AddFault(fault);
  }
};

TEST_F(ReadTest, TheRangeArrivesInTheGrid) {
  StartOnline();
  port.sent.clear();
  ReadRange(3, 5);
  EXPECT_TRUE(port.sent.starts_with("0CM1\r\n0RD0\r\n0RD3\r\n")) << "devices are compared first";
  EXPECT_TRUE(port.sent.ends_with("0RDD\r\n0RP003\r\n0RP004\r\n0RP005\r\n"));
  EXPECT_EQ(frmPosi.flgdData.Rows(), 5);
  EXPECT_EQ(Cell(2, 0), "3");
  qvr7sim::PositionRecord record;
  ASSERT_TRUE(qvr7sim::DecodePosition(port.Ct().CommittedPosition(4), &record));
  EXPECT_EQ(Cell(3, kVel), std::to_string(record.axis[0].vel));
  EXPECT_EQ(Cell(3, kAcc), std::to_string(record.axis[0].acc * 10));
  EXPECT_EQ(PosiTable.PosiPulse[1][4], record.axis[1].pulses);
  EXPECT_EQ(frmPosi.Caption, "Position Data-[Inside of C/T]");
  EXPECT_FALSE(frmPosi.PosiChanged);
  ExpectCommandsOn();
  ExpectOnline();
}

TEST_F(ReadTest, CancelKeepsTheTableWithMessage425) {
  StartOnline();
  ReadRange(1, 5);
  const std::string before = Cell(3, kVel);
  PosiTable.PosiRec[kVel][2] = std::string("keep");
  for (const bool silent : {false, true}) {
    pump.After(1'400'000, [this, silent] { port.Ct().SetSilent(silent); });
    pump.After(1'500'000, [this] {
      EXPECT_TRUE(frmMain.cmdComCancel.Visible);
      frmMain.cmdComCancel.Press();
      pump.After(200'000, [] { EXPECT_FALSE(AppState.ComBusy); });
    });
    forms.boxes.clear();
    ReadRange(1, 999);
    pump.RunFor(300'000);
    ASSERT_EQ(forms.boxes.size(), 2u) << "the confirmation and this";
    EXPECT_EQ(forms.LastBox(), Text(425));
  }
  EXPECT_EQ(TextOf(PosiTable.PosiRec[kVel][2]), "keep");
  EXPECT_EQ(Cell(3, kVel), before);
  EXPECT_EQ(AppState.PosiLastNo, 5);
  EXPECT_EQ(frmPosi.flgdData.Rows(), 7);
  ExpectCommandsOn();
  ExpectOnline();
}

TEST_F(ReadTest, AFailedReadKeepsTheTable) {
  StartOnline();
  ReadRange(1, 5);
  port.Ct().SetSilent(true);
  port.sent.clear();
  forms.boxes.clear();
  ReadRange(1, 10);
  EXPECT_EQ(port.sent, "0CM1\r\n0CM1\r\n0CM1\r\n0CM1\r\n");
  ASSERT_EQ(forms.boxes.size(), 2u) << "one box more than the confirmation";
  EXPECT_TRUE(forms.LastBox().starts_with(Text(100)));
  EXPECT_FALSE(port.IsOpen());
  EXPECT_EQ(AppState.PosiLastNo, 5);
  EXPECT_EQ(AppState.PosiToNo, 5) << "the next operation means the table that is there";
  EXPECT_EQ(frmPosi.flgdData.Rows(), 7);
  EXPECT_EQ(frmPosi.Caption, "Position Data-[Inside of C/T]");
  ExpectCommandsOn();
  ExpectOffline();
}

TEST_F(ReadTest, AnAxisThatCannotConvertKeepsTheTable) {
  StartOnline();
  ReadRange(3, 5);
  DevSetting[1].Lead = 0;
  port.sent.clear();
  Choose({1});
  ReadRange(1, 2);
  EXPECT_EQ(forms.LastBox(), Text(6356, "2"));
  EXPECT_EQ(port.sent.find("0RP"), std::string::npos);
  EXPECT_EQ(AppState.PosiFirstNo, 3);
  ExpectCommandsOn();
}

TEST_F(ReadTest, CommentsOfTheLoadedPositionsStay) {
  StartOnline();
  ReadRange(3, 5);
  const auto comments = static_cast<std::size_t>(kComment);
  PosiTable.PosiRec[comments][4] = std::string("mine");
  PosiTable.PosiRec[comments][6] = std::string("of an earlier table");
  PosiTable.PosiStage[comments][5] = std::string("of a file to compare with");
  ReadRange(2, 9);
  EXPECT_EQ(Cell(4, kComment), "mine");
  EXPECT_EQ(Cell(5, kComment), "");
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
  StartOnline();
  ReadRange(1, 2);
  Spoil(FaultKind::kDoubled, 3);  // the doubled line is taken for the next reply
  ReadRange(1, 9);
  EXPECT_TRUE(port.sent.ends_with("0RP004\r\n")) << "seen where it happens";
  EXPECT_EQ(AppState.PosiLastNo, 2) << "the old table stays";
  EXPECT_TRUE(BoxShown(Text(385)));
  ExpectCommandsOn();
}

TEST_F(ReadTest, TheChosenRangeOutlastsTheDevicesOfTheConnection) {
  StartOnline();
  ReadRange(1, 5);
  forms.answers = {MsgAnswer::Ok};
  frmMain.mnuSettingOffline.Press();
  DevSetting[0].Lead = 7;
  port.sent.clear();
  Choose({0});
  ReadRange(8, 9);
  EXPECT_EQ(asked.back(), Text(371));
  EXPECT_EQ(port.sent.find("0RP001"), std::string::npos);
  EXPECT_EQ(Cell(2, 0) + " to " + Cell(frmPosi.flgdData.Rows() - 1, 0), "8 to 9");
}

TEST_F(ReadTest, PromptsMayStopTheFlow) {
  StartOnline();
  ReadRange(1, 2);
  port.sent.clear();
  // The range dialogue cancelled.
  forms.on_modal["frmSelectPosiNo2"] = [](View& view) {
    static_cast<SelectPosiNoView&>(view).cmdCancel.Press();
  };
  frmPosi.cmdPosiRead.Press();
  // The confirmation refused.
  AnswerRange("frmSelectPosiNo2", 1, 3);
  forms.answers = {MsgAnswer::Cancel};
  frmPosi.cmdPosiRead.Press();
  // Unsaved data kept.
  frmPosi.PosiChanged = True;
  forms.answers = {MsgAnswer::Cancel};
  frmPosi.cmdPosiRead.Press();
  EXPECT_EQ(port.sent, "");
  EXPECT_EQ(AppState.PosiLastNo, 2);
  EXPECT_TRUE(frmPosi.PosiChanged);
  ExpectCommandsOn();
}

TEST(PosiWire, RecordsBothWays) {
  PosiTable = PosiTableRecord{};
  AppState = AppStateRecord{};
  PosiTableInit();
  PosiTable.PosiRec[kVel][5] = 30.0;
  PosiTable.PosiRec[kAcc][5] = 10.0;
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
  EXPECT_EQ(EncodePosiRecord(5).substr(11, 5), std::string("X0000").substr(0, 1) + "0000")
      << "too wide a field is sent as X and the controller refuses the line";
}

}  // namespace
}  // namespace tr7
