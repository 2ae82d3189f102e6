#include "para/para_file_flow.h"

#include "device/dev_setting.h"
#include "device/device_list.h"
#include "forms/frm_parameta2.h"
#include "para/para_actuator.h"
#include "para/para_axis_show.h"
#include "para/para_content.h"
#include "para/para_show.h"
#include "para/param_set.h"
#include "para/std_lists.h"
#include "state/text.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

const std::string kPath = "/data/job.pmt";

/// The parameter view over a set from the standard lists.
class ParaFileFlow : public StateTest {
 protected:
  ParaFileFlow() {
    for (DevSettingRecord& device : DevSettei) SetDevice(device, " 28", "L", 100);
    EXPECT_EQ(ReadDeviceListNew(), 0);
    EXPECT_EQ(IniParaFromStd(), 0);
    FillParaLists();
    InstallActuatorLists();
    ParametaHyoji();
    MarkParaSaved();
  }
  int Save(const std::optional<std::string>& answer = kPath) {
    forms.boxes.clear();
    forms.file_answers = {answer};
    return SaveParaToFile();
  }
  void Open(const std::optional<std::string>& answer = kPath) {
    forms.boxes.clear();
    forms.file_answers = {answer};
    OpenParaFile();
  }
  std::string Saved() const { return virt.files.Content(kPath).value_or("(none)"); }
  FrmParameta2& f = frmParameta2;
};

TEST_F(ParaFileFlow, SavedOpenedAndSavedAgainIsTheSame) {
  f.txtHomeOffset[2].Text = "1234";
  f.txtAxisMmStroke[1].Text = "99.5";
  EXPECT_TRUE(ParaIsChanged());
  ASSERT_EQ(Save(), 0);
  EXPECT_FALSE(ParaIsChanged());
  EXPECT_EQ(Boxes(), Texts{"Completed save parameters into the file."});
  EXPECT_TRUE(forms.file_dialogs.at(0).Save && forms.file_dialogs[0].OverwritePrompt);
  EXPECT_EQ(forms.file_dialogs[0].ProposedName, "qvtr7prm1.pmt");

  const std::string bytes = Saved();
  const ParamSetRecord set = ParamSet;
  ParamSet = ParamSetRecord{};
  ParametaHyoji();
  Open();
  EXPECT_EQ(Boxes(), Texts{});
  EXPECT_EQ(f.txtHomeOffset[2].Text, "1234");
  EXPECT_EQ(f.txtAxisMmStroke[1].Text, " 99.500");
  EXPECT_FALSE(ParaIsChanged());
  EXPECT_FALSE(forms.file_dialogs.back().Save);
  ASSERT_EQ(Save(), 0);
  EXPECT_EQ(Saved(), bytes);
  EXPECT_EQ(ParamSet, set);
}

TEST_F(ParaFileFlow, OnlyAWholeAndGoodViewIsSaved) {
  f.lblAxis[3].Caption = "AXIS4";
  f.lblHomePush.Caption = "PUSH";
  f.txtHomePush[3].Text.clear();
  EXPECT_EQ(Save(), 1);
  EXPECT_EQ(Boxes(), Texts{Text(7) + "\n" + Text(8) + "\n\nAXIS4 PUSH"});
  const struct {
    std::function<void()> change;
    const Control* field;  ///< the first in the order of the Tab key that is empty
  } rows[] = {{[] {}, &f.txtHomePush[3]},
              {[&] { f.comboActSize[0].ListIndex = -1; }, &f.txtHomePush[3]},
              {[&] { f.txtHomeOffset[3].Text.clear(); }, &f.txtHomeOffset[3]},
              {[&] {
                 f.comboActSize[0].ListIndex = 0;
                 f.txtHomeOffset[3].Text = f.txtHomePush[3].Text = "1";
                 f.txtZoneSet1[1].Text.clear();
               },
               &f.txtMmZone1[1]}};  // which the pulses follow
  for (const auto& row : rows) {
    row.change();
    EXPECT_EQ(Save(), 1);
    EXPECT_EQ(forms.focus, row.field);
  }
  f.txtZoneSet1[1].Text = "100";
  f.txtHomePush[3].Text = "256";
  EXPECT_EQ(Save(), 1);
  EXPECT_EQ(Boxes(), Texts{Text(9) + "\n" + Text(10)});
  EXPECT_TRUE(forms.file_dialogs.empty());
  f.txtHomePush[3].Text = "255";
  for (const auto& answer : {std::optional<std::string>(), std::optional<std::string>("")}) {
    EXPECT_EQ(Save(answer), 1);
    EXPECT_EQ(Boxes(), Texts{});
  }
  EXPECT_TRUE(ParaIsChanged());
}

TEST_F(ParaFileFlow, AFailedSaveIsTold) {
  virt.files.Put(kPath, "old");
  f.txtHomePush[3].Text = "255";
  virt.files.FailAt(2, FileFault::DiskFull);
  EXPECT_EQ(Save(), 1);
  EXPECT_EQ(Boxes(), Texts{"Fail to  Save parameters into the file.\n\n" + Text(5912, "job.pmt")});
  EXPECT_TRUE(ParaFlags.ParaFileWriteFailed);
  EXPECT_TRUE(ParaIsChanged());
  EXPECT_EQ(Saved(), "old");
  EXPECT_EQ(Save(), 0);
  EXPECT_FALSE(ParaFlags.ParaFileWriteFailed);
}

TEST_F(ParaFileFlow, AFileThatCannotBeOpenedChangesNothing) {
  ASSERT_EQ(Save(), 0);
  const std::string good = Saved(), failed = "Fail to open parameter file.";
  const struct {
    std::string bytes;
    Texts boxes;
  } rows[] = {{With(good, "PRM", "GRP"),
               {Text(22) + "\n" + Text(20) + "\n\n" + Text(6322, "job.pmt", Text(6326)), failed}},
              {With(good, "\"PG\"", "\"ETC\""),
               {failed + "\n\n" + Text(6321, "18", Text(6334, "ETC", "PG"))}},
              {With(good, "\"HOME\",6,4\r\n400,", "\"HOME\",6,4\r\n1e,"),
               {failed + "\n\n" + Text(6151, "OFFSET")}}};
  f.txtHomeOffset[0].Text = "77";
  const ParamSetRecord before = ParamSet;
  for (const auto& row : rows) {
    virt.files.Put(kPath, row.bytes);
    Open();
    EXPECT_EQ(Boxes(), row.boxes);
    EXPECT_TRUE(ParaFlags.ParaFileBad);
    EXPECT_EQ(ParamSet, before);
    EXPECT_EQ(f.txtHomeOffset[0].Text, "77");
  }
  Open("/data/none.pmt");
  EXPECT_EQ(Boxes(), Texts{failed + "\n\n" + Text(5910, "none.pmt")});
  Open(std::nullopt);
  EXPECT_EQ(Boxes(), Texts{});
  EXPECT_TRUE(ParaIsChanged());
  virt.files.Put(kPath, good);
  Open();
  EXPECT_FALSE(ParaFlags.ParaFileBad);
  EXPECT_NE(f.txtHomeOffset[0].Text, "77");
}

TEST_F(ParaFileFlow, AnAbsentAxisIsSavedAsItIsKept) {
  AppState.AxisMuko[3] = True;
  ParamSet.HomeOffset[3] = 4321;
  ParametaHyoji();
  EXPECT_EQ(f.txtHomeOffset[3].Text, "");
  ASSERT_EQ(Save(), 0) << forms.LastBox();
  EXPECT_NE(Saved().find(",4321\r\n"), std::string::npos);
  ParamSet.HomeOffset[3] = 0;
  Open();
  EXPECT_EQ(ParamSet.HomeOffset[3], 4321);
}

}  // namespace
}  // namespace tr7
