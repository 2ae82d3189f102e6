// The two device dialogues: their lists, and what leaves them.

#include "para/device_dialog.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "device/dev_setting.h"
#include "device/device_list.h"
#include "para/param_set.h"
#include "state/text.h"
#include "state/text_file.h"
#include "state/views.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

constexpr const char* kNewList = "nqvdevice.lst";
constexpr const char* kOldList = "qvdevice.lst";

class DeviceDialogTest : public StateTest {
 protected:
  DeviceDialogTest() {
    for (int axis = 0; axis < kAxes; ++axis) SetDevice(DevSetting[axis], " 28", "L", 100);
    AppState.AxisCount = kAxes;
  }
  void Remove(const char* name) { virt.files.Remove(ProgramFile(name)); }
  /// Opens the dialogue; the user does this and, unless that closes it, cancels.
  DeviceAnswer Ask(DeviceView& view, const std::function<void()>& user) {
    forms.on_modal[view.Name] = [user](View& shown) {
      user();
      auto& dialog = static_cast<DeviceView&>(shown);
      if (dialog.Visible) dialog.cmdDeviceCancel.Press();
    };
    return AskDevices(view);
  }
  static void PickSize(int axis, const char* text) {
    Pick(frmDevice2.comboDeviceSize[axis], text);
  }
  static std::string Shown(const DeviceView& view, int axis) {
    return view.comboDeviceSize[axis].Text() + view.comboDeviceSpeed[axis].Text() + "-" +
           view.comboDeviceStroke[axis].Text();
  }
};

TEST_F(DeviceDialogTest, OpensWithTheDevicesInUse) {
  SetDevice(DevSetting[1], "E35", "L", 150);
  AppState.AxisMuko = {False, False, False, True};
  AppState.AxisCount = 3;
  Ask(frmDevice2, [] {
    EXPECT_EQ(frmDevice2.comboAxisSelect.List, (Texts{"AXIS1", "AXIS2", "AXIS3", "AXIS4"}));
    EXPECT_EQ(frmDevice2.comboAxisSelect.ListIndex, 2);
    EXPECT_EQ(Shown(frmDevice2, 0), " 28L-100");
    EXPECT_EQ(Shown(frmDevice2, 1), "E35L-150");
    EXPECT_EQ(frmDevice2.comboDeviceStroke[1].ItemData, (std::vector<int>{0, 1, 2, 3}));
    for (int axis = 0; axis < kAxes; ++axis) {
      EXPECT_EQ(frmDevice2.chkAxisEnable[axis].Value, axis < 3);
      EXPECT_EQ(frmDevice2.framAxis[axis].Enabled, axis < 3);
      EXPECT_FALSE(frmDevice2.chkNewOrOld[axis].Value);
    }
    EXPECT_EQ(Shown(frmDevice2, 3), "-") << "lists of an absent axis are left alone";
  });
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(DeviceDialogTest, AStrokeThatIsNotListedFallsToTheFirst) {
  const struct {
    const char *size, *speed;
    std::int16_t stroke;
    const char* shown;
  } rows[] = {{" 28", "H", 100, " 28H-100"},
              {" 28", "H", 101, " 28H-50"},
              {" 28", "X", 100, " 28L-100"},  // an unknown speed: the first of the size
              {"28", "H", 150, " 20H-25"},    // a size compares as text
              {"", "", 0, " 20L-10"}};
  for (const auto& row : rows) {
    SetDevice(DevSetting[0], row.size, row.speed, row.stroke);
    Ask(frmDevice2, [&] { EXPECT_EQ(Shown(frmDevice2, 0), row.shown) << row.size << row.stroke; });
  }
}

TEST_F(DeviceDialogTest, ASizeOffersItsSpeedsAndTheseTheirStrokes) {
  Ask(frmDevice2, [] {
    DeviceView& v = frmDevice2;
    PickSize(0, " 42");
    EXPECT_EQ(v.comboDeviceSpeed[0].List, (Texts{"L", "H", "D"}));
    EXPECT_EQ(Shown(v, 0), " 42L-100") << "what is listed again stays";
    Pick(v.comboDeviceSpeed[0], "H");
    EXPECT_EQ(v.comboDeviceStroke[0].List, (Texts{"100", "150", "200", "250", "300", "400"}));
    Pick(v.comboDeviceStroke[0], "400");
    PickSize(0, " 28");
    EXPECT_EQ(Shown(v, 0), " 28H-50") << "the speed stays, the stroke falls to the first";
    Pick(v.comboDeviceStroke[0], "150");
    PickSize(0, "E35");
    EXPECT_EQ(Shown(v, 0), "E35L-150") << "the speed falls to the first, the stroke stays";
    EXPECT_EQ(Shown(v, 1), " 28L-100") << "each axis for itself";
    SetDevice(DevSetting[0], " 28", "L", 100);
    v.comboDeviceSize[0].LostFocus();
    EXPECT_EQ(Shown(v, 0), "E35L-150");
  });
}

TEST_F(DeviceDialogTest, TheDeviceDecidesAboutItsPulseGenerator) {
  const struct {
    const char* size;
    bool pending;  ///< the user's choice so far
    bool offered, value;
  } rows[] = {{" 28", false, true, false},
              {" 28", true, true, true},
              {" 20", true, false, false},
              {"E35", false, false, true},
              {"E35", true, false, true}};
  for (const auto& row : rows) {
    DevSetting[0].WithPG = row.pending;
    DeviceAnswer answer = Ask(frmDevice2, [&] {
      PickSize(0, " 50");  // offered here
      EXPECT_TRUE(frmDevice2.chkDevPgUse[0].Visible);
      PickSize(0, row.size);
      EXPECT_EQ(frmDevice2.chkDevPgUse[0].Visible, row.offered) << row.size;
      frmDevice2.cmdDeviceSet.Press();
    });
    EXPECT_EQ(answer, DeviceAnswer::Taken);
    EXPECT_EQ(DevSettei[0].WithPG, row.value) << row.size << row.pending;
  }
}

TEST_F(DeviceDialogTest, ADeviceWithPgAlwaysHasItFromTheStart) {
  SetDevice(DevSetting[2], "E35", "L", 100);
  Ask(frmDevice2, [] {
    EXPECT_FALSE(frmDevice2.chkDevPgUse[2].Visible);
    frmDevice2.cmdDeviceSet.Press();
  });
  EXPECT_TRUE(DevSettei[2].WithPG);
  EXPECT_FALSE(DevSettei[1].WithPG);
}

TEST_F(DeviceDialogTest, ATickForThePulseGeneratorOutlivesALookAtOtherDevices) {
  Ask(frmDevice2, [] {
    frmDevice2.chkDevPgUse[0].Set(true);
    frmDevice2.comboDeviceSpeed[0].LostFocus();
    EXPECT_TRUE(frmDevice2.chkDevPgUse[0].Value);
    PickSize(0, " 20");
    PickSize(0, " 42");
    EXPECT_TRUE(frmDevice2.chkDevPgUse[0].Value);
  });
  EXPECT_FALSE(DevSettei[0].WithPG) << "and is gone with the dialogue that was cancelled";
}

TEST_F(DeviceDialogTest, WithoutOptionsNoneIsShown) {
  DeviceDialog.ShowDevOptions = False;
  Ask(frmDevice2, [] {
    frmDevice2.chkNewOrOld[0].Set(true);
    PickSize(1, " 50");
    for (int axis = 0; axis < kAxes; ++axis) {
      EXPECT_FALSE(frmDevice2.chkDevPgUse[axis].Visible);
      EXPECT_FALSE(frmDevice2.chkDevPgUse[axis].Enabled);
      EXPECT_FALSE(frmDevice2.chkDevVsiyou[axis].Visible);
    }
  });
}

TEST_F(DeviceDialogTest, TicksAndTheNumberOfAxesKeepStep) {
  const struct {
    const char* what;
    std::function<void(DeviceView&)> click;
    int axes, beeps;
  } rows[] = {
      {"number down", [](DeviceView& v) { v.comboAxisSelect.Pick(0); }, 1, 0},
      {"and up", [](DeviceView& v) { v.comboAxisSelect.Pick(2); }, 3, 0},
      {"tick off", [](DeviceView& v) { v.chkAxisEnable[1].Set(false); }, 1, 0},
      {"tick on", [](DeviceView& v) { v.chkAxisEnable[3].Set(true); }, 4, 0},
      {"the only axis that must be", [](DeviceView& v) { v.chkAxisEnable[0].Set(false); }, 4, 1}};
  Ask(frmDevice2, [&] {
    for (const auto& row : rows) {
      SCOPED_TRACE(row.what);
      row.click(frmDevice2);
      EXPECT_EQ(frmDevice2.comboAxisSelect.ListIndex + 1, row.axes);
      EXPECT_EQ(forms.beeps, row.beeps);
      for (int axis = 0; axis < kAxes; ++axis) {
        const bool live = axis < static_cast<std::size_t>(row.axes);
        EXPECT_EQ(frmDevice2.chkAxisEnable[axis].Value, live);
        EXPECT_EQ(frmDevice2.framAxis[axis].Enabled, live);
        EXPECT_EQ(frmDevice2.chkDevPgUse[axis].Enabled, live);
        EXPECT_EQ(Shown(frmDevice2, axis), " 28L-100") << "lists stay filled";
      }
    }
  });
}

TEST_F(DeviceDialogTest, AnAxisThatComesIntoUseShowsADevice) {
  AppState.AxisMuko = {False, True, True, True};
  Ask(frmDevice2, [] {
    frmDevice2.chkAxisEnable[1].Set(true);
    EXPECT_EQ(Shown(frmDevice2, 1), " 28L-100");
    EXPECT_EQ(Shown(frmDevice2, 2), "-");
  });
}

// The old catalogue.

TEST_F(DeviceDialogTest, AnAxisIsSwitchedToTheOldListAndBack) {
  Ask(frmDevice2, [] {
    DeviceView& v = frmDevice2;
    v.chkNewOrOld[0].Set(true);
    EXPECT_EQ(v.comboDeviceSize[0].List, (Texts{"28", "30", "42", "50"}));
    EXPECT_EQ(Shown(v, 0), "28L-100") << "sizes compare as numbers";
    EXPECT_EQ(v.comboDeviceSpeed[0].List, (Texts{"L", "H"}));
    Pick(v.comboDeviceSize[0], "30");
    EXPECT_EQ(v.comboDeviceSpeed[0].List, (Texts{"L", "H"})) << "the speeds of the whole list";
    Pick(v.comboDeviceSpeed[0], "H");
    EXPECT_EQ(v.comboDeviceStroke[0].List, (Texts{"100", "150", "200"}));
    Pick(v.comboDeviceSize[0], "42");
    v.chkNewOrOld[0].Set(false);
    EXPECT_EQ(Shown(v, 0), " 42H-100");
    EXPECT_EQ(Shown(v, 1), " 28L-100");
  });
}

TEST_F(DeviceDialogTest, WithoutTheOtherListTheBoxGoesBack) {
  Remove(kOldList);
  Ask(frmDevice2, [this] {
    frmDevice2.chkNewOrOld[0].Set(true);
    EXPECT_FALSE(frmDevice2.chkNewOrOld[0].Value);
    EXPECT_EQ(Boxes(), (Texts{Text(15) + "\n" + Text(16)}));
    EXPECT_FALSE(DevListMissing[0]);
    PickSize(0, " 42");
    EXPECT_EQ(Shown(frmDevice2, 0), " 42L-100") << "the list that it had still serves";
  });
}

TEST_F(DeviceDialogTest, OnlyTheWritingDialogueBeginsWithOldDevices) {
  SetDevice(DevSetting[1], " 30", "H", 150);
  DevSetting[1].NewType = False;
  Ask(frmDevice2, [] { EXPECT_FALSE(frmDevice2.chkNewOrOld[1].Value); });
  Ask(frmDevice3, [] {
    EXPECT_TRUE(frmDevice3.chkNewOrOld[1].Value);
    EXPECT_FALSE(frmDevice3.chkNewOrOld[0].Value);
    EXPECT_EQ(Shown(frmDevice3, 1), "30H-150");
    TakeShownDevices(frmDevice3);
  });
  AppState.AxisMuko[0] = True;
  Ask(frmDevice3, [] { frmDevice3.cmdDeviceSet.Press(); });
  TakeShownDevices(frmDevice3);
  EXPECT_EQ(DevSettei[1].Size, " 30") << "a size has three characters, whichever list names it";
  EXPECT_TRUE(DevSettei[1].NewType);
}

TEST_F(DeviceDialogTest, AMissingListIsToldOfOnceAndFailsAtTheParameters) {
  Remove(kNewList);
  forms.on_modal["frmDevice2"] = [this](View&) {
    EXPECT_EQ(Boxes(), (Texts{Text(15) + "\n" + Text(16)}));
    for (int axis = 0; axis < kAxes; ++axis) {
      EXPECT_TRUE(DevListMissing[axis]);
      EXPECT_TRUE(frmDevice2.comboDeviceSize[axis].List.empty());
      EXPECT_TRUE(frmDevice2.comboDeviceStroke[axis].List.empty());
    }
    frmDevice2.comboAxisSelect.Pick(3);
    frmDevice2.cmdDeviceSet.Press();
  };
  EXPECT_EQ(SelectDeviceForPara(), 1);
  EXPECT_TRUE(Boxes().at(0).starts_with(Text(36)));
  EXPECT_EQ(DevSettei[0].Size, " 28") << "the device in use is the one under consideration again";
}

// What leaves the dialogue.

TEST_F(DeviceDialogTest, OkTakesEveryFieldAsNewAndVertical) {
  for (DevSettingRecord& device : DevSettei) device.Series = "??";
  AppState.AxisMuko = {False, False, False, True};
  DevSettei[3].Size = "old";
  Ask(frmDevice2, [] {
    frmDevice2.chkNewOrOld[2].Set(true);
    PickSize(1, " 42");
    frmDevice2.chkDevPgUse[1].Set(true);
    frmDevice2.cmdDeviceSet.Press();
  });
  EXPECT_TRUE(Boxes().empty()) << "the axes are as they were";
  EXPECT_EQ(DevSettei[1].Size + DevSettei[1].Speed, " 42L");
  EXPECT_EQ(DevSettei[1].Stroke, 100);
  EXPECT_EQ(DevSettei[3].Size, "old");
  for (int axis = 0; axis < kAxes; ++axis) {
    EXPECT_EQ(DevSettei[axis].Series, "QV");
    EXPECT_EQ(DevSettei[axis].WithPG, axis == 1);
    if (axis == 3) continue;
    EXPECT_TRUE(DevSettei[axis].NewType);
    EXPECT_TRUE(DevSettei[axis].Vertical);
  }
}

TEST_F(DeviceDialogTest, OtherAxesAreAskedAbout) {
  const struct {
    const char* what;
    AxisArray<Bool16> before;
    int number;  ///< picked; 0: none
    MsgAnswer answer;
    bool asked;
    AxisArray<Bool16> after;
    int count, mask;
  } rows[] = {
      {"same", {}, 4, MsgAnswer::No, false, {}, 4, 15},
      {"fewer, yes", {}, 2, MsgAnswer::Yes, true, {False, False, True, True}, 2, 3},
      {"fewer, no", {}, 2, MsgAnswer::No, true, {}, 4, 3},
      {"more, yes",
       {False, True, True, True},
       3,
       MsgAnswer::Yes,
       true,
       {False, False, False, True},
       3,
       7},
      {"axes with a gap, as they are",
       {False, True, False, True},
       0,
       MsgAnswer::No,
       false,
       {False, True, False, True},
       4,
       5},
      {"axes with a gap, another number",
       {False, True, False, True},
       3,
       MsgAnswer::Yes,
       true,
       {False, False, False, True},
       3,
       7},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    AppState.AxisMuko = row.before;
    AppState.AxisCount = kAxes;
    ParaFlags.AxisMaskFixed = True;
    DevSettei.fill(DevSettingRecord{});
    forms.answers = {row.answer};
    Ask(frmDevice2, [&] {
      EXPECT_FALSE(ParaFlags.AxisMaskFixed);
      const auto in_use = std::count(row.before.begin(), row.before.end(), False);
      EXPECT_EQ(frmDevice2.comboAxisSelect.ListIndex + 1, in_use);
      if (row.number > 0) frmDevice2.comboAxisSelect.Pick(row.number - 1);
      PickSize(0, " 50");
      frmDevice2.cmdDeviceSet.Press();
    });
    EXPECT_EQ(forms.boxes.size(), row.asked ? 1u : 0u);
    if (row.asked) {
      EXPECT_EQ(forms.LastBox(), Text(1151) + "\n" + Text(1152));
      EXPECT_EQ(forms.boxes.back().Title, Text(1150));
      EXPECT_EQ(forms.boxes.back().Buttons, MsgButtons::YesNo);
    }
    EXPECT_EQ(AppState.AxisMuko, row.after);
    EXPECT_EQ(AppState.AxisCount, row.count);
    EXPECT_EQ(ParaFlags.AxisMask, row.mask);
    EXPECT_EQ(DevSettei[0].Size, " 50") << "taken whatever the answer";
    for (int axis = 0; axis < kAxes; ++axis) {
      EXPECT_TRUE(row.after[axis] || !DevSettei[axis].Size.empty()) << axis;
    }
    forms.boxes.clear();
    forms.answers.clear();
  }
}

TEST_F(DeviceDialogTest, TheWritingDialogueAsksNothingAboutAxes) {
  Ask(frmDevice3, [] {
    frmDevice3.comboAxisSelect.Pick(1);
    frmDevice3.cmdDeviceSet.Press();
  });
  TakeChosenAxes(frmDevice3);
  EXPECT_TRUE(Boxes().empty());
  EXPECT_EQ(AppState.AxisMuko, (std::array<Bool16, kAxes>{False, False, True, True}));
  EXPECT_EQ(AppState.AxisCount, 2);
}

TEST_F(DeviceDialogTest, EveryWayOut) {
  DevSettei[0].Size = "E35";
  const struct {
    const char* what;
    std::function<void()> leave;
    int result;
    const char* actuator;  ///< of AXIS1 in the parameters
  } rows[] = {{"cancel", [] { frmDevice2.cmdDeviceCancel.Press(); }, -1, ""},
              {"the window", [] { CloseView(frmDevice2, CloseReason::ControlMenu); }, -1, ""},
              {"back", [] { frmDevice2.cmdDeviceBack.Press(); }, -2, ""},
              {"ok", [] { frmDevice2.cmdDeviceSet.Press(); }, 0, " 42L100"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    DeviceDialog.ShowDevBack = True;
    forms.on_modal["frmDevice2"] = [&](View&) {
      EXPECT_TRUE(DeviceDialog.DevDialogActive);
      PickSize(0, " 42");
      row.leave();
    };
    EXPECT_EQ(SelectDeviceForPara(), row.result);
    EXPECT_FALSE(DeviceDialog.DevDialogActive);
    EXPECT_EQ(ParamSet.Actuator[0], row.actuator);
    EXPECT_EQ(DevSettei[0].Size, row.result == 0 ? " 42" : " 28");
    EXPECT_EQ(AppState.AxisMuko, (std::array<Bool16, kAxes>{}));
  }
}

TEST_F(DeviceDialogTest, ButtonsAreAsTheCallerWants) {
  for (const bool cancel : {true, false}) {
    for (const bool back : {true, false}) {
      DeviceDialog.ShowDevCancel = cancel;
      DeviceDialog.ShowDevBack = back;
      forms.on_modal["frmDevice2"] = [&](View& view) {
        EXPECT_EQ(frmDevice2.cmdDeviceCancel.Visible, cancel);
        EXPECT_EQ(frmDevice2.cmdDeviceBack.Visible, back);
        EXPECT_EQ(frmDevice2.cmdDeviceBack.Caption, "BACK");
        EXPECT_EQ(view.QueryUnload(CloseReason::ControlMenu), !cancel);
        frmDevice2.cmdDeviceSet.Press();
      };
      EXPECT_EQ(AskDevices(frmDevice2), DeviceAnswer::Taken);
    }
  }
  EXPECT_FALSE(frmDevice2.cmdPrmCtWrite.Visible || frmDevice2.cmdSyosai.Visible);
  EXPECT_TRUE(frmDevice3.cmdPrmCtWrite.Visible && frmDevice3.cmdSyosai.Visible);
}

TEST_F(DeviceDialogTest, ADeviceWithoutStandardRowLeavesAxesAndDevices) {
  PutList(kNewList, "1\r\n\" 99L-123\",2,400,0,0\r\n");
  forms.answers = {MsgAnswer::Yes};
  forms.on_modal["frmDevice2"] = [](View&) {
    frmDevice2.comboAxisSelect.Pick(0);
    frmDevice2.cmdDeviceSet.Press();
  };
  EXPECT_EQ(SelectDeviceForPara(), 1);
  EXPECT_TRUE(forms.LastBox().starts_with(Text(36)));
  EXPECT_EQ(AppState.AxisMuko, (std::array<Bool16, kAxes>{}));
  EXPECT_EQ(AppState.AxisCount, 4);
  EXPECT_EQ(DevSettei[0].Size, " 28");
  EXPECT_EQ(ParamSet, ParamSetRecord{}) << "the common values do not stay behind";
}

}  // namespace
}  // namespace tr7
