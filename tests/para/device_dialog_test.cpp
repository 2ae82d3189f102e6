// The two device dialogues: their lists, and what leaves them.

#include "para/device_dialog.h"

#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class DeviceDialogTest : public StateTest {
 protected:
  DeviceDialogTest() {
    for (DevSettingRecord& device : DevSetting) SetDevice(device, " 28", "L", 100);
    AppState.AxisCount = kAxes;
  }
  /// Opens the dialogue; the user does this and, unless that closes it, cancels.
  DeviceAnswer Ask(DeviceView& view, const std::function<void()>& user) {
    InDialog(view.Name, {[&] {
               user();
               if (view.Visible) view.cmdDeviceCancel.Press();
             }});
    return AskDevices(view);
  }
  static std::string Shown(const DeviceView& view, int axis) {
    return view.comboDeviceSize[axis].Text() + view.comboDeviceSpeed[axis].Text() + "-" +
           view.comboDeviceStroke[axis].Text();
  }
  DeviceView& v = frmDevice2;
};

TEST_F(DeviceDialogTest, ASizeOffersItsSpeedsAndTheseTheirStrokes) {
  Ask(v, [&] {
    PickDevice(v, 0, " 42");
    EXPECT_EQ(v.comboDeviceSpeed[0].List, (Texts{"L", "H", "D"}));
    EXPECT_EQ(Shown(v, 0), " 42L-100") << "what is listed again stays";
    Pick(v.comboDeviceSpeed[0], "H");
    EXPECT_EQ(v.comboDeviceStroke[0].List, (Texts{"100", "150", "200", "250", "300", "400"}));
    Pick(v.comboDeviceStroke[0], "400");
    PickDevice(v, 0, " 28");
    EXPECT_EQ(Shown(v, 0), " 28H-50") << "the speed stays, the stroke falls to the first";
    Pick(v.comboDeviceStroke[0], "150");
    PickDevice(v, 0, "E35");
    EXPECT_EQ(Shown(v, 0), "E35L-150") << "the speed falls to the first, the stroke stays";
    EXPECT_EQ(Shown(v, 1), " 28L-100") << "each axis for itself";
  });
}

TEST_F(DeviceDialogTest, TheDeviceDecidesAboutItsPulseGenerator) {
  const auto choose = [this](const char* size, bool tick, bool offered) {
    Ask(v, [&] {
      if (tick) v.chkDevPgUse[0].Set(true);
      PickDevice(v, 0, " 20");  // a look at another device
      PickDevice(v, 0, size);
      EXPECT_EQ(v.chkDevPgUse[0].Visible, offered) << size;
      v.cmdDeviceSet.Press();
    });
    return bool(DevSettei[0].WithPG);
  };
  EXPECT_FALSE(choose(" 28", false, true));
  EXPECT_TRUE(choose(" 28", true, true));
  EXPECT_FALSE(choose(" 20", true, false)) << "never";
  EXPECT_TRUE(choose("E35", false, false)) << "always";
  SetDevice(DevSetting[0], "E35", "L", 100);
  Ask(v, [&] { v.cmdDeviceSet.Press(); });
  EXPECT_TRUE(DevSettei[0].WithPG) << "from the start";
}

TEST_F(DeviceDialogTest, TicksAndTheNumberOfAxesKeepStep) {
  Ask(v, [&] {
    const auto expect_axes = [&](int axes) {
      EXPECT_EQ(v.comboAxisSelect.ListIndex + 1, axes);
      for (int axis = 0; axis < kAxes; ++axis) {
        const bool live = axis < axes;
        EXPECT_TRUE(v.chkAxisEnable[axis].Value == live && v.framAxis[axis].Enabled == live &&
                    v.chkDevPgUse[axis].Enabled == live);
        EXPECT_EQ(Shown(v, axis), " 28L-100") << "lists stay filled";
      }
    };
    v.comboAxisSelect.Pick(0);
    expect_axes(1);
    v.comboAxisSelect.Pick(2);
    expect_axes(3);
    v.chkAxisEnable[1].Set(false);
    expect_axes(1);
    v.chkAxisEnable[3].Set(true);
    expect_axes(4);
    EXPECT_EQ(forms.beeps, 0);
    v.chkAxisEnable[0].Set(false);
    expect_axes(4);
    EXPECT_EQ(forms.beeps, 1) << "one axis must be";
  });
}

// The old catalogue.

TEST_F(DeviceDialogTest, AnAxisIsSwitchedToTheOldListAndBack) {
  Ask(v, [&] {
    v.chkNewOrOld[0].Set(true);
    EXPECT_EQ(v.comboDeviceSize[0].List, (Texts{"28", "30", "42", "50"}));
    EXPECT_EQ(Shown(v, 0), "28L-100") << "sizes compare as numbers";
    PickDevice(v, 0, "30", "H");
    EXPECT_EQ(v.comboDeviceSpeed[0].List, (Texts{"L", "H"})) << "the speeds of the whole list";
    EXPECT_EQ(v.comboDeviceStroke[0].List, (Texts{"100", "150", "200"}));
    PickDevice(v, 0, "42");
    v.chkNewOrOld[0].Set(false);
    EXPECT_EQ(Shown(v, 0), " 42H-100");
    EXPECT_EQ(Shown(v, 1), " 28L-100");
    virt.files.Remove(ProgramFile("qvdevice.lst"));
    v.chkNewOrOld[0].Set(true);
    EXPECT_FALSE(v.chkNewOrOld[0].Value) << "without the other list the box goes back";
    EXPECT_EQ(Boxes(), (Texts{Text(15) + "\n" + Text(16)}));
    EXPECT_FALSE(DevListMissing[0]);
    PickDevice(v, 0, " 28");
    EXPECT_EQ(Shown(v, 0), " 28H-100") << "the list that it had still serves";
  });
}

// What leaves the dialogue.

TEST_F(DeviceDialogTest, OtherAxesAreAskedAbout) {
  const struct {
    const char* what;
    int before, shown;  ///< the axes in use as a mask, and how many the box says that is
    int number;         ///< picked; 0: none
    std::optional<MsgAnswer> answer;  ///< none: nothing is asked
    int wanted, after;
  } rows[] = {{"same", 15, 4, 4, {}, 15, 15},
              {"fewer, yes", 15, 4, 2, MsgAnswer::Yes, 3, 3},
              {"fewer, no", 15, 4, 2, MsgAnswer::No, 3, 15},
              {"axes with a gap, as they are", 5, 2, 0, {}, 5, 5},
              {"axes with a gap, another number", 5, 2, 3, MsgAnswer::Yes, 7, 7}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    AppState.AxisMuko = MukoOfMask(row.before);
    ParaFlags.AxisMaskFixed = True;
    DevSettei.fill(DevSettingRecord{});
    if (row.answer) forms.answers = {*row.answer};
    Ask(v, [&] {
      EXPECT_FALSE(ParaFlags.AxisMaskFixed);
      EXPECT_EQ(v.comboAxisSelect.ListIndex + 1, row.shown);
      if (row.number > 0) v.comboAxisSelect.Pick(row.number - 1);
      PickDevice(v, 0, " 50");
      v.cmdDeviceSet.Press();
    });
    EXPECT_EQ(Boxes(), row.answer ? Texts{Text(1151) + "\n" + Text(1152)} : Texts{});
    EXPECT_EQ(AppState.AxisMuko, MukoOfMask(row.after));
    EXPECT_EQ(ParaFlags.AxisMask, row.wanted);
    EXPECT_TRUE(DevSettei[0].NewType && DevSettei[0].Vertical);
    EXPECT_EQ(DevSettei[0].Size, " 50") << "taken whatever the answer";
    for (int axis = 0; axis < kAxes; ++axis) {
      EXPECT_TRUE(AppState.AxisMuko[axis] || !DevSettei[axis].Size.empty()) << axis;
    }
  }
}

}  // namespace
}  // namespace tr7
