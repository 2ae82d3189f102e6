#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

const std::string kPath = "/data/job.qvd";

class SaveTest : public FlowTest {
 protected:
  void SetUp() override { StartOffline(); }
  /// A new table of positions first to last.
  void NewTable(int first, int last) {
    AnswerRange("frmSelectPosiNo3", first, last);
    frmPosi.cmdPosiNew.Press();
    frmPosi.PosiChanged = True;
    forms.on_modal["frmSyogoKekka"] = [](View& view) { view.Visible = false; };
    Forget();
  }
  std::string Saved() const { return virt.files.Content(kPath).value_or("(none)"); }
  /// Position numbers in the saved file.
  std::string Numbers() const {
    PosiFileTrouble trouble;
    if (ReadPosiFile(kPath, trouble) != 0) return trouble.words;
    return std::to_string(AppState.FileFirstNo) + "-" + std::to_string(AppState.FileLastNo);
  }
};

TEST_F(SaveTest, TheFirstSaveAsksForAName) {
  NewTable(1, 3);
  forms.file_answers = {std::nullopt, std::string(kPath)};
  frmPosi.cmdPosiSave.Press();
  EXPECT_TRUE(frmPosi.SaveCancelled && frmPosi.PosiChanged);
  EXPECT_TRUE(forms.file_dialogs[0].Save && forms.file_dialogs[0].OverwritePrompt);
  frmMain.mnuFileSave.Press();
  EXPECT_FALSE(frmPosi.SaveCancelled || frmPosi.PosiChanged);
  EXPECT_EQ(frmPosi.Caption + Numbers(), "Position Data-[job]1-3");
  Put(2, kComment, "x");
  frmMain.mnuViewPara.Press();
  frmMain.tbToolBar.Press("Save");
  EXPECT_EQ(ActiveView(), &frmPosi) << "the user sees what is saved";
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], Text(5972, "1 - 3", kPath));
  EXPECT_EQ(forms.file_dialogs.size(), 2u) << "the table has a file by now";
  EXPECT_NE(Saved().find("\"x\""), std::string::npos);
  EXPECT_TRUE(forms.boxes.empty());
  EXPECT_EQ(forms.focus, &frmPosi.flgdData);
}

TEST_F(SaveTest, ABadTableIsNotSavedNorOneThatIsNotThere) {
  for (CommandButton* command :
       {&frmPosi.cmdPosiSave, &frmPosi.cmdPosiSaveAs, &frmPosi.cmdPosiFileVerify}) {
    command->Press();
    EXPECT_EQ(Boxes(), Texts{Text(433) + "\n" + Text(434)});
  }
  NewTable(1, 3);
  virt.files.Put(kPath, "old");
  SetPosiTableFile(kPath);
  Put(2, kVel, "9999");
  frmPosi.cmdPosiSave.Press();
  frmPosi.cmdPosiSaveAs.Press();
  EXPECT_EQ(forms.modals, (Texts{"frmSyogoKekka", "frmSyogoKekka"}));
  EXPECT_EQ(Saved(), "old");
  EXPECT_TRUE(frmPosi.PosiChanged);
}

TEST_F(SaveTest, SaveAsTakesARange) {
  NewTable(5, 9);
  AnswerRange("frmSelectPosiNo3", 6, 7);
  forms.answers = {MsgAnswer::Ok};
  forms.file_answers = {std::string(kPath)};
  frmPosi.cmdPosiSaveAs.Press();
  EXPECT_EQ(Numbers(), "6-7");
  EXPECT_EQ(frmPosi.Caption, "Position Data-[job]");
  EXPECT_TRUE(frmPosi.PosiChanged) << "positions 5, 8 and 9 are in no file";
  EXPECT_EQ(OperationRange(), (PosiRange{5, 9})) << "the next operation means the whole table";
  // A range outside the table is refused, Cancel ends the flow.
  forms.on_modal["frmSelectPosiNo3"] = [this](View& view) {
    FillRange(static_cast<SelectPosiNoView&>(view), 1, 9);
    EXPECT_EQ(forms.LastBox(), Text(1610));
    static_cast<SelectPosiNoView&>(view).cmdCancel.Press();
  };
  frmPosi.cmdPosiSaveAs.Press();
  frmPosi.cmdPosiSave.Press();
  EXPECT_EQ(Numbers(), "5-9");
  EXPECT_FALSE(frmPosi.PosiChanged);
  // A part does not replace the whole, which would then be in no file.
  AnswerRange("frmSelectPosiNo3", 6, 7);
  forms.answers = {MsgAnswer::Ok};
  forms.file_answers = {std::string("/data/../data/job.qvd")};
  frmPosi.cmdPosiSaveAs.Press();
  EXPECT_EQ(forms.LastBox(), Text(6460));
  EXPECT_EQ(Numbers(), "5-9");
}

TEST_F(SaveTest, FaultsOfTheDeviceAreTriedFourTimes) {
  NewTable(1, 3);
  virt.files.Put(kPath, "old");
  SetPosiTableFile(kPath);
  for (const bool passes : {false, true}) {
    virt.files.read_only = !passes;
    if (passes) virt.files.FailAt(1, FileFault::DiskFull);
    const std::int64_t start_us = pump.NowUs();
    frmPosi.cmdPosiSave.Press();
    EXPECT_EQ((pump.NowUs() - start_us) / 100'000, passes ? 1 : 3);
    EXPECT_EQ(frmPosi.PosiChanged, !passes);
    EXPECT_EQ(Saved() == "old", !passes) << "the old file is whole";
    EXPECT_EQ(Boxes(), passes ? Texts{} : Texts{Text(422) + "\n\n" + Text(5911, "job.qvd")});
  }
}

}  // namespace
}  // namespace tr7
