#include "device/dev_setting.h"
#include "device/limits.h"
#include "posi/posi_caption.h"
#include "posi/posi_file.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

const std::string kPath = "/data/job.qvd";

class SaveTest : public FlowTest {
 protected:
  /// A new table of positions first to last, on four equal devices.
  void NewTable(int first, int last) {
    for (DevSettingRecord& device : DevSetting) {
      device.Size = " 28";
      device.Speed = "L";
      device.Stroke = 100;
      device.Lead = 2;
      device.Ppr = 400;
    }
    RecalcLimits();
    AnswerRange("frmSelectPosiNo3", first, last);
    frmPosi.cmdPosiNew.Press();
    forms.on_modal.erase("frmSelectPosiNo3");
    frmPosi.PosiChanged = True;
  }
  void Type(int number, int col, const std::string& text) {
    frmPosi.flgdData.SetText(RowOfPosition(number), col, text);
    frmPosi.PosiChanged = True;
  }
  std::string Saved(const std::string& path = kPath) const {
    return virt.files.Content(path).value_or("(none)");
  }
  /// Position numbers in the saved file.
  std::string Numbers() const {
    PosiFileTrouble trouble;
    if (ReadPosiFile(kPath, trouble) != 0) return trouble.words;
    return std::to_string(AppState.FileFirstNo) + "-" + std::to_string(AppState.FileLastNo);
  }
};

TEST_F(SaveTest, TheFirstSaveAsksForAName) {
  StartOffline();
  NewTable(1, 3);
  forms.file_answers = {std::nullopt, std::string(kPath)};
  frmPosi.cmdPosiSave.Press();
  EXPECT_TRUE(frmPosi.SaveCancelled);
  EXPECT_TRUE(frmPosi.PosiChanged);
  EXPECT_EQ(Saved(), "(none)");
  const FileDialogCall& call = forms.file_dialogs[0];
  EXPECT_TRUE(call.Save);
  EXPECT_TRUE(call.OverwritePrompt);

  frmMain.mnuFileSave.Press();
  EXPECT_FALSE(frmPosi.SaveCancelled);
  EXPECT_FALSE(frmPosi.PosiChanged);
  EXPECT_EQ(frmPosi.Caption, "Position Data-[job]");
  EXPECT_EQ(Numbers(), "1-3");

  Type(2, kComment, "x");
  frmMain.mnuViewPara.Press();
  frmMain.tbToolBar.Press("Save");
  EXPECT_EQ(ActiveView(), &frmPosi) << "the user sees what is saved";
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], Text(5972, "1 - 3", kPath));
  EXPECT_EQ(forms.file_dialogs.size(), 2u) << "the table has a file by now";
  EXPECT_NE(Saved().find("\"x\""), std::string::npos);
  EXPECT_TRUE(forms.boxes.empty());
  EXPECT_EQ(forms.focus, &frmPosi.flgdData);
  ExpectCommandsOn();
}

TEST_F(SaveTest, ABadTableIsNotSaved) {
  StartOffline();
  NewTable(1, 3);
  virt.files.Put(kPath, "old");
  SetPosiTableFile(kPath);
  Type(2, kVel, "9999");
  forms.on_modal["frmSyogoKekka"] = [](View& view) { view.Visible = false; };
  forms.modals.clear();
  frmPosi.cmdPosiSave.Press();
  frmPosi.cmdPosiSaveAs.Press();
  EXPECT_EQ(forms.modals, (std::vector<std::string>{"frmSyogoKekka", "frmSyogoKekka"}));
  EXPECT_EQ(Saved(), "old");
  EXPECT_TRUE(frmPosi.PosiChanged);
  ExpectCommandsOn();
}

TEST_F(SaveTest, WithoutATableThereIsNothingToSave) {
  StartOffline();
  frmPosi.cmdPosiSave.Press();
  frmPosi.cmdPosiSaveAs.Press();
  frmPosi.cmdPosiFileVerify.Press();
  EXPECT_EQ(forms.boxes.size(), 3u);
  EXPECT_TRUE(BoxShown(Text(433)));
  EXPECT_TRUE(forms.file_dialogs.empty());
  ExpectCommandsOn();
}

TEST_F(SaveTest, FaultsOfTheDeviceAreTriedFourTimes) {
  StartOffline();
  NewTable(1, 3);
  virt.files.Put(kPath, "old");
  SetPosiTableFile(kPath);
  const struct {
    const char* what;
    bool read_only;
    bool bad_character;
    int fail_at;
    const char* words;  ///< behind message 422; empty: the save succeeds
    int pauses;
  } rows[] = {{"one fault", false, false, 1, "", 1},
              {"all tries fail", true, false, 0, "You have no permission", 3},
              {"a character", false, true, 0, "Position No. 2 holds", 0}};
  for (const auto& row : rows) {
    forms.boxes.clear();
    virt.files.read_only = row.read_only;
    if (row.fail_at > 0) virt.files.FailAt(row.fail_at, FileFault::DiskFull);
    Type(2, kComment, row.bad_character ? "é" : "e");
    const std::string before = Saved();
    const std::int64_t start_us = pump.NowUs();
    frmPosi.cmdPosiSave.Press();
    EXPECT_EQ((pump.NowUs() - start_us) / 100'000, row.pauses) << row.what;
    const bool fails = *row.words != '\0';
    EXPECT_EQ(bool(frmPosi.PosiChanged), fails) << row.what;
    EXPECT_EQ(forms.boxes.size(), fails ? 1u : 0u) << row.what;
    if (fails) {
      EXPECT_EQ(forms.LastBox().substr(0, Text(422).size()), Text(422)) << row.what;
      EXPECT_TRUE(BoxShown(row.words)) << forms.LastBox();
      EXPECT_EQ(Saved(), before) << "the old file is whole";
    }
    ExpectCommandsOn();
  }
}

TEST_F(SaveTest, SaveAsTakesARange) {
  StartOffline();
  NewTable(5, 9);
  AnswerRange("frmSelectPosiNo3", 6, 7);
  // The question refused, the dialogue cancelled, a failure, and at last a file.
  forms.answers = {MsgAnswer::Cancel, MsgAnswer::Ok, MsgAnswer::Ok, MsgAnswer::Ok};
  frmPosi.cmdPosiSaveAs.Press();
  EXPECT_EQ(forms.LastBox(), Text(405));
  forms.file_answers = {std::nullopt, std::string(kPath), std::string(kPath)};
  frmPosi.cmdPosiSaveAs.Press();
  EXPECT_TRUE(frmPosi.SaveCancelled);
  EXPECT_EQ(forms.file_dialogs[0].Title, Text(406));
  virt.files.FailAt(1, FileFault::DiskFull);
  frmPosi.cmdPosiSaveAs.Press();
  EXPECT_EQ(forms.LastBox(), Text(422) + "\n\n" + Text(5912, "job.qvd"));
  EXPECT_EQ(Saved(), "(none)");
  EXPECT_EQ(PosiTable.Name, Text(213));
  frmPosi.cmdPosiSaveAs.Press();
  EXPECT_EQ(Numbers(), "6-7");
  EXPECT_EQ(frmPosi.Caption, "Position Data-[job]");
  EXPECT_TRUE(frmPosi.PosiChanged) << "positions 5, 8 and 9 are in no file";
  EXPECT_EQ(frmPosi.flgdData.Row, 0);
  EXPECT_EQ(AppState.PosiFromNo, 5) << "the next operation means the whole table";
  EXPECT_EQ(AppState.PosiToNo, 9);
  // A range outside the table is refused, Cancel ends the flow.
  forms.on_modal["frmSelectPosiNo3"] = [this](View& view) {
    FillRange(static_cast<SelectPosiNoView&>(view), 1, 9);
    EXPECT_EQ(forms.LastBox(), Text(1610));
    static_cast<SelectPosiNoView&>(view).cmdCancel.Press();
  };
  frmPosi.cmdPosiSaveAs.Press();
  ExpectCommandsOn();
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

TEST_F(SaveTest, ASaveWithinAnotherFlowLeavesTheCommandsOff) {
  StartOnline();
  ReadRange(1, 3);
  SetPosiTableFile(kPath);
  frmPosi.PosiChanged = True;
  bool looked = false;
  forms.on_modal["frmSelectPosiNo2"] = [&](View& view) {
    looked = true;
    EXPECT_NE(Saved(), "(none)");
    EXPECT_FALSE(frmPosi.cmdPosiRead.Enabled);
    EXPECT_FALSE(frmMain.mnuFile.Enabled);
    EXPECT_FALSE(frmPosi.flgdData.Enabled);
    static_cast<SelectPosiNoView&>(view).cmdCancel.Press();
  };
  forms.answers = {MsgAnswer::Yes};
  frmPosi.cmdPosiRead.Press();
  EXPECT_TRUE(looked);
  ExpectCommandsOn();
}

TEST_F(SaveTest, LeavingAsksForUnsavedData) {
  StartOffline();
  NewTable(1, 3);
  forms.answers = {MsgAnswer::Cancel, MsgAnswer::Yes, MsgAnswer::Yes};
  EXPECT_FALSE(CloseView(frmMain, CloseReason::Code)) << "Cancel keeps the view";
  forms.file_answers = {std::nullopt, std::string(kPath)};
  EXPECT_FALSE(CloseView(frmMain, CloseReason::Code)) << "not saved, not thrown away";
  EXPECT_TRUE(CloseView(frmMain, CloseReason::Code));
  EXPECT_NE(Saved(), "(none)");
}

}  // namespace
}  // namespace tr7
