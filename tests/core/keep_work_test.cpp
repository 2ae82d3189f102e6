// Unsaved work outlives the tool: it is kept while it is edited, and the next start offers it.

#include "core/keep_work.h"

#include "core/kept_offer.h"
#include "core/open_file.h"
#include "forms/frm_grp.h"
#include "forms/frm_kept_work.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_sq_mcr.h"
#include "forms/frm_system_para.h"
#include "posi/posi_table.h"
#include "prog/prog_listing.h"
#include "prog/prog_view.h"
#include "state/kept_work.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

class KeepTest : public FlowTest {
 protected:
  KeepTest() { doors.work = &virt.work; }

  Texts Files() const { return virt.work.Paths(); }
  void RunUntilKept() { pump.RunFor(11'000'000); }
  /// The process is gone, and the next one starts; its user answers the offer.
  void DieAndStart(bool program_mode, CommandButton& answer) {
    virt.work.own += "1.";
    StartAnew();
    InDialog("frmKeptWork", {[&] { answer.Press(); }});
    StartOffline(program_mode);
  }
  void EditPositions() {
    AnswerRange("frmSelectPosiNo3", 1, 3);
    frmPosi.cmdPosiNew.Press();
    frmPosi.flgdData.TypeInto(3, kPosi, AppState.CtMode ? "+5.5" : "12.345");
    frmPosi.flgdData.TypeInto(3, kVel, "");  // the check refuses it
    frmPosi.cmdInsertLine.Press();
  }
};

/// All that the view shows of its data.
std::string Shown(const View& view) {
  std::string all = view.Caption;
  for (const Control* control : view.Controls) {
    if (const auto* box = dynamic_cast<const TextBox*>(control)) all += box->Text + "|";
    if (const auto* list = dynamic_cast<const ComboBox*>(control)) all += list->Text() + "|";
    const auto* grid = dynamic_cast<const Grid*>(control);
    for (int at = 0; grid && at < grid->Rows() * grid->Cols(); ++at) {
      all += grid->Text(at / grid->Cols(), at % grid->Cols()) + "|";
    }
  }
  return all;
}

TEST_F(KeepTest, EveryKindComesBackAsItStoodOnTheScreen) {
  const auto positions = [this] { EditPositions(); };
  const auto parameters = [] {
    frmMain.mnuViewPara.Press();
    frmParameta2.txtHomeVel[1].Type("");
    frmParameta2.comboActSize[0].Pick(1);
    frmParameta2.comboAutoHome.Pick(1);
  };
  const auto type = [](Menu* view, TextBox* box) {
    return [view, box] {
      view->Press();
      box->Type("1234");  // in the box, not left yet
    };
  };
  const auto macros = [] {
    frmMain.mnuViewSM.Press();
    frmSqMcr.Rows[0].comboMerei.Pick(5);
    frmSqMcr.Rows[0].txtSmData.Type("4");
  };
  const auto program = [] {
    ProgView& view = NewProgView();
    ShowView(view);
    PutListing(view.flgdProg, {{{"MVP", "1", "", "", "", "to \"A\", 日本"}}, {{"NOP", "?"}}});
    view.Store.ProgChanged = True;
  };
  const std::pair<bool, std::function<void()>> kinds[] = {
      {false, positions},
      {true, positions},
      {false, parameters},
      {false, type(&frmMain.mnuViewSysPara, &frmSystemPara.Fields[71].txtSystemPara)},
      {false, type(&frmMain.mnuViewGrp, &frmGrp.Rows[2].txtGrpEndNo)},
      {false, macros},
      {true, program}};
  for (const auto& [program_mode, edit] : kinds) {
    StartAnew();
    StartOffline(program_mode);
    edit();
    RunUntilKept();
    const std::string before = Shown(*ActiveView());
    DieAndStart(program_mode, frmKeptWork.cmdTakeBackAll);
    EXPECT_EQ(Shown(*ActiveView()), before);
    EXPECT_TRUE(ActiveView()->IsChanged());
    ASSERT_TRUE(Files().size() == 1 && virt.work.TakeLeft().empty()) << "it is this tool's now";
    virt.files.Remove(Files().front());
  }
}

TEST_F(KeepTest, AProgramThatWasOpenComesBackByItsFileAndTogetherWithWhatWasKept) {
  virt.files.Put("/a.prg", "\"QV-R7\",\"Program\"\r\n1\r\n\"NOP\",,,,,\"file\"\r\n");
  StartOffline(true);
  for (int times = 0; times < 2; ++times) OpenFileByPath("/a.prg");
  frmMain.mnuFileExit.Press();
  forms.ended = false;
  StartAnew();
  StartOffline(true);
  ASSERT_TRUE(UnchangedViewOf("/a.prg"));
  UnchangedViewOf("/a.prg")->flgdProg.TypeInto(1, kProgComment, "mine");
  RunUntilKept();
  DieAndStart(true, frmKeptWork.cmdTakeBackAll);
  ASSERT_EQ(OpenViews().size(), 3u) << "the frame, the positions and one program";
  EXPECT_EQ(static_cast<ProgView*>(ActiveView())->flgdProg.Text(1, kProgComment), "mine");
  virt.files.Remove("/a.prg");
  DieAndStart(true, frmKeptWork.cmdLater);
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], Text(7171, "a.prg"));
}

TEST_F(KeepTest, WhatIsSavedOrLeftByTheUsersWishIsKeptNoLonger) {
  StartOffline();
  EditPositions();
  frmPosi.flgdData.TypeInto(4, kVel, "30");
  RunUntilKept();
  ASSERT_EQ(Files().size(), 1u);
  forms.file_answers = {"/a.qvd"};
  frmPosi.cmdPosiSave.Press();
  pump.RunFor(1000);
  EXPECT_EQ(Files(), Texts());
  EXPECT_FALSE(frmMain.TimerKeep.Enabled) << "nothing wakes a tool that has nothing to keep";
  frmPosi.flgdData.TypeInto(2, kComment, "more");
  RunUntilKept();
  forms.answers = {MsgAnswer::No};
  frmMain.mnuFileExit.Press();
  EXPECT_EQ(Files(), Texts());
}

TEST_F(KeepTest, WhatIsNotTakenBackWaits) {
  StartOffline();
  EditPositions();
  RunUntilKept();
  const Texts kept = Files();
  DieAndStart(false, frmKeptWork.cmdLater);
  DieAndStart(true, frmKeptWork.cmdTakeBack);
  EXPECT_TRUE(BoxShown(Text(128)) && !frmPosi.PosiChanged) << "it is the other mode's";
  EXPECT_EQ(Files(), kept);
  for (int call = 9; call < 18; call += 4) {  // behind what reads the lists a save makes five
    virt.work.own += "1.";
    StartAnew();
    InDialog("frmKeptWork", {[&] {
               virt.files.FailAt(call, FileFault::DiskFull);
               frmKeptWork.cmdTakeBackAll.Press();
             }});
    StartOffline();
    ASSERT_NE(Files(), Texts()) << call;
  }
  forms.answers = {MsgAnswer::Ok};
  DieAndStart(false, frmKeptWork.cmdDiscard);
  EXPECT_EQ(Files(), Texts());
}

TEST_F(KeepTest, DamageIsToldAndSetAside) {
  StartOffline();
  EditPositions();
  ASSERT_TRUE(KeepNow());
  const std::string path = Files().front(), whole = virt.files.Content(path).value();
  virt.work.own += "1.";
  for (std::size_t at = whole.find('\n') + 1; at < whole.size(); at += 41) {
    std::string bytes = whole;
    at % 2 != 0 ? bytes.resize(at) : void(bytes[at] ^= 4);
    virt.files.Put(path, bytes);
    OfferKeptWork();
    EXPECT_NE(forms.LastBox().find("damaged"), std::string::npos) << at;
    EXPECT_EQ(virt.files.Content(path + ".damaged"), bytes);
  }
}

TEST_F(KeepTest, AFullDiskIsToldOnceAndAPowerCutLeavesTheFormerOrTheNewWhole) {
  std::string& told = frmMain.sbStatusBar.Panels[kPanelError];
  StartOffline();
  EditPositions();
  virt.files.read_only = true;
  RunUntilKept();
  EXPECT_NE(std::exchange(told, "").find("cannot be kept"), std::string::npos);
  RunUntilKept();
  EXPECT_EQ(told, "");
  virt.files.read_only = false;
  RunUntilKept();
  ASSERT_TRUE(Files().size() == 1 && forms.boxes.empty()) << "it is tried on";
  for (int call = 1; call < 9; ++call) {
    frmPosi.flgdData.TypeInto(4, kComment, std::to_string(call));
    virt.files.PowerCutAt(call);
    EXPECT_TRUE(KeepNow() || call < 7);
    virt.files.PowerOn();
    EXPECT_TRUE(WorkOfBytes(virt.files.Content(virt.work.Own("posi")).value_or(""))) << call;
  }
}

}  // namespace
}  // namespace tr7
