// Homing and the moves of the table: their frames, their stops, and what a failing step leaves.

#include "data/grp_table.h"
#include "tests/motion/motion_user.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

class MoveTest : public MotionTest {
 protected:
  void SetUp() override {
    MotionTest::SetUp();
    ShowTab(1);
  }

  static void List(const std::vector<std::string>& numbers) {
    for (int row = 0; row < kSelectRows; ++row) {
      const auto at = static_cast<std::size_t>(row);
      frmPosi.Move.flgdProgram.SetText(1 + row, 1, at < numbers.size() ? numbers[at] : "");
    }
  }
  static const std::string& Reached() { return frmPosi.Readout.lblkanryoNo.Caption; }
  std::string Moved() const {
    std::string moved;
    for (const std::string& line : Lines()) {
      if (line.starts_with("0M")) moved += line + " ";
    }
    return moved;
  }
};

TEST_F(MoveTest, HomingIsDoneOnceAndAskedForAgainAfterAnAlarm) {
  AppState.HomeDone = False;
  List({"1"});
  frmPosi.Move.cmdSelectMove.Press();
  EXPECT_EQ(Moved(), "0MP000F 0MP001F ");
  EXPECT_TRUE(AppState.HomeDone && frmPosi.Readout.imgHomeGreen.Visible);
  port.sent.clear();
  frmPosi.Move.cmdHome.Press();
  EXPECT_EQ(Moved(), "0MP000F ");
  EXPECT_EQ(Reached(), "H0");
  Spoil(FaultKind::kErrorReply, "0RA");
  frmPosi.Move.cmdSelectMove.Press();
  EXPECT_FALSE(AppState.HomeDone);
}

TEST_F(MoveTest, TheListEndsAtAnEmptyRowAndAtARowThatIsNoNumber) {
  frmPosi.Move.chkRepeat.Set(true);
  List(std::vector<std::string>(kSelectRows, "1"));
  frmPosi.Move.cmdSelectMove.Press();
  EXPECT_EQ(Moved().size(), kSelectRows * 8U) << "a full list ends, also one that repeats";
  EXPECT_TRUE(frmPosi.Move.flgdProgram.IsDone(kSelectRows, 1));
  frmPosi.Move.chkRepeat.Set(false);
  const std::tuple<std::vector<std::string>, const char*, const char*> rows[] = {
      {{"1", "2", "", "3"}, "0MP001F 0MP002F ", ""},
      {{"2", "1000"}, "0MP002F ", "Input position No. by decimal(Using 1 to 999)"},
      {{"0"}, "", "Input position No. by decimal(Using 1 to 999)"},
      {{}, "", ""}};
  for (const auto& [list, moved, box] : rows) {
    port.sent.clear();
    List(list);
    frmPosi.Move.cmdSelectMove.Press();
    EXPECT_EQ(Moved(), moved);
    EXPECT_EQ(Boxes(), *box ? Texts{box} : Texts{});
  }
}

TEST_F(MoveTest, APauseKeepsThePlaceAndAStopForgetsIt) {
  const struct {
    CommandButton& end;
    const char* then;
    bool anew = false;
    bool given_up = false;
  } rows[] = {{frmPosi.Move.cmdTmpStop, "0MS001F 0MS002F 0MS003F ", false, true},
              {frmPosi.Move.cmdTmpStop, "0MS002F 0MS003F "},
              {frmPosi.Move.cmdTmpStop, "0MP000F 0MS001F 0MS002F 0MS003F ", true},
              {frmPosi.Move.cmdStop, "0MS001F 0MS002F 0MS003F "},
              {frmMain.cmdStopNow, "0MS001F 0MS002F 0MS003F "}};
  frmPosi.Move.chkNoSqMcr1.Set(true);
  List({"1", "2", "3"});
  for (const auto& row : rows) {
    SCOPED_TRACE(row.end.Name);
    pump.After(120'000, [&row] { row.end.Press(); });
    frmPosi.Move.cmdSelectMove.Press();
    EXPECT_FALSE(Moves()) << Acts() << forms.LastBox();
    EXPECT_EQ(frmPosi.Readout.lblPosi[0].Caption, std::to_string(Pulses(1)));
    const bool paused = &row.end != &frmPosi.Move.cmdStop;
    EXPECT_EQ(frmPosi.Move.lblNextNo.Caption.starts_with("Row "), paused);
    EXPECT_EQ(frmPosi.Move.cmdStop.Enabled, paused);
    if (row.given_up) {
      frmPosi.Move.cmdStop.Press();
      EXPECT_EQ(frmPosi.Move.lblNextNo.Caption, "-");
    }
    if (row.anew) {
      GoOffline();
      frmMain.mnuSettingOnline.Press();
      ShowTab(1);
    }
    port.sent.clear();
    frmPosi.Move.cmdSelectMove.Press();
    EXPECT_EQ(Moved(), row.then);
    EXPECT_EQ(Reached(), "3");
  }
}

TEST_F(MoveTest, NothingMovesAfterASleepUnlessPressedAnew) {
  PosiMoveTest& f = frmPosi.Move;
  f.updownEndPosiNo.Set(3);
  GrpTable.GrpStart[1] = 1;
  GrpTable.GrpEnd[1] = 3;
  List({"1", "2", "3"});
  const std::pair<CommandButton*, const char*> rows[] = {
      {&f.cmdSelectMove, "0MP002F 0MP003F "},
      {&f.cmdMove, "0MP002F 0MP003F "},
      {&f.cmdGrpMove, "0MP001F 0MP002F 0MP003F "}};
  for (const auto& [start, then] : rows) {
    SCOPED_TRACE(start->Name);
    port.sent.clear();
    pump.After(120'000, [this] { pump.Sleep(3'600'000'000); });
    start->Press();
    EXPECT_EQ(Moved(), "0MP001F ");
    EXPECT_EQ(Boxes(), Texts{Text(5508)});
    port.sent.clear();
    start->Press();
    EXPECT_EQ(Moved(), then);
  }
}

TEST_F(MoveTest, EscapeEndsAFlowFromItsClickOn) {
  PosiMoveTest& f = frmPosi.Move;
  CommandButton& teach = frmPosi.Teach.cmdJOGST;
  for (CommandButton* start : {&f.cmdSelectMove, &f.cmdHome, &f.cmdMove, &teach}) {
    for (std::int64_t at_us = 1'000; at_us < 110'000; at_us += 6'000) {
      AppState.HomeDone = False;
      pump.After(at_us, [] { EXPECT_TRUE(frmMain.Escape()); });
      ShowTab(start == &teach ? 2 : 1);
      port.sent.clear();
      start->Press();
      EXPECT_TRUE(Moved().empty() || Acts().find("0SP") != std::string::npos) << Acts();
      EXPECT_FALSE(AppState.TeachingNow || frmMain.cmdStopNow.Enabled);
    }
  }
}

TEST_F(MoveTest, ACloseUnderAMoveStopsItAndEndsTheToolBehindIt) {
  List({"1", "2"});
  pump.After(120'000, [] { EXPECT_FALSE(CloseView(frmMain, CloseReason::ControlMenu)); });
  frmPosi.Move.cmdSelectMove.Press();
  EXPECT_TRUE(forms.ended && !Moves());
}

TEST_F(MoveTest, ARangeRepeatsUntilItIsStoppedAndGoesOnAfterAPause) {
  PosiMoveTest& f = frmPosi.Move;
  f.updownStartPosiNo.Set(2);
  f.updownEndPosiNo.Set(3);
  f.cmdMove.Press();
  EXPECT_EQ(Moved(), "0MP002F 0MP003F ");
  port.sent.clear();
  f.chkRepeat2.Set(true);
  f.chkTimerUse2.Set(true);
  f.txtTimer2.Type("5");
  pump.After(30'000'000, [&f] { f.cmdTempStop2.Press(); });
  f.cmdMove.Press();
  EXPECT_TRUE(Moved().starts_with("0MP002F 0MP003F 0MP002F 0MP003F ")) << Moved();
  const std::string last = Moved().substr(Moved().size() - 8);
  port.sent.clear();
  f.chkRepeat2.Set(false);
  f.cmdMove.Press();
  EXPECT_TRUE(Moved().ends_with("0MP003F "));
  EXPECT_EQ(Moved().starts_with("0MP003F"), last == "0MP002F ");
}

TEST_F(MoveTest, AGroupMovesThroughItsRange) {
  GrpTable.GrpStart[7] = 2;
  GrpTable.GrpEnd[7] = 3;
  GrpTable.GrpStart[8] = 0;
  PosiMoveTest& f = frmPosi.Move;
  f.sldrGrpNo.Set(7);
  f.cmdGrpMove.Press();
  EXPECT_EQ(Moved(), "0MP002F 0MP003F ");
  pump.After(120'000, [&] {
    f.cmdGrpMoveStop.Press();
    Spoil(FaultKind::kWrongPrefix, "0RA", 2);
    frmMain.Escape();
  });
  f.cmdGrpMove.Press();
  EXPECT_EQ(frmPosi.Readout.lblPosi[0].Caption, std::to_string(Pulses(1)));
  f.sldrGrpNo.Set(8);
  f.cmdGrpMove.Press();
  EXPECT_EQ(Boxes(), Texts{"The range of group 8 (No. 0 to 1) is not valid."});
}

}  // namespace
}  // namespace tr7
