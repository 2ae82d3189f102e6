#include <functional>

#include "device/dev_setting.h"
#include "forms/frm_device.h"
#include "forms/frm_options2.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_splash.h"
#include "para/param_set.h"
#include "posi/posi_table.h"
#include "session/session.h"
#include "state/text_file.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

class StartTest : public FlowTest {};

TEST_F(StartTest, AFastMachineStillShowsTheSplashForThreeSeconds) {
  const std::int64_t start = pump.NowUs();
  std::int64_t chosen_at = 0;
  Choose({1, 0});
  forms.on_modal["frmSelection"] = [&](View& view) {
    if (chosen_at == 0) chosen_at = pump.NowUs();
    AnswerSelection(static_cast<SelectionView&>(view), chosen_at == pump.NowUs() ? 1 : 0);
  };
  Main();
  EXPECT_GE(chosen_at - start, 3'000'000);
  EXPECT_FALSE(frmSplash.Visible);
  EXPECT_EQ(frmMain.Caption, "QV-TR7 Ver1.00");
}

TEST_F(StartTest, OnlineTellsTheVersionAndTakesTheControllersState) {
  StartOnline();
  ExpectOnline();
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], "The version of C/T is 140");
  EXPECT_EQ(port.sent.substr(0, 10), "0CM00000\r\n");
  EXPECT_EQ(AppState.AxisCount, 4);
  EXPECT_EQ(AppState.AxisPattern, 15);
  EXPECT_EQ(frmMain.lblCtMode.Caption, "Positioner Mode");
  EXPECT_EQ(AppState.MaxPulse[0], 20000);
  EXPECT_TRUE(frmMain.lblSimulated.Visible);
}

TEST_F(StartTest, OnlineFailedEndsInTheOfflineStart) {
  port.Ct().SetSilent(true);
  Choose({0, 1});
  Main();
  ExpectOffline();
  EXPECT_TRUE(BoxShown(Text(100)));
  EXPECT_EQ(asked.back(), Text(74));
  EXPECT_TRUE(AppState.CtMode);
  EXPECT_TRUE(frmMain.mnuFileNewProg.Visible);
  EXPECT_EQ(AppState.AxisCount, 4);
}

TEST_F(StartTest, WhileItConnectsOnlyCancelIsOn) {
  Choose({0, 0});
  bool seen = false;
  pump.After(3'010'000, [&seen] {
    seen = frmMain.cmdComCancel.Visible;
    for (const bool on :
         {frmPosi.cmdPosiRead.Enabled, frmPosi.cmdPosiNew.Enabled, frmPosi.flgdData.Enabled,
          frmMain.cmdReset.Enabled, frmMain.mnuFile.Enabled, frmMain.mnuSetting.Enabled}) {
      EXPECT_FALSE(on);
    }
    frmMain.cmdComCancel.Press();
  });
  Main();
  EXPECT_TRUE(seen);
  EXPECT_EQ(port.sent, "0CM00000\r\n");
  EXPECT_TRUE(forms.boxes.empty());
  EXPECT_EQ(asked.back(), Text(74)) << "the offline start follows";
  ExpectOffline();
  ExpectCommandsOn();
}

TEST_F(StartTest, TheFilesMenuActsOnTheViewInFront) {
  StartOffline();
  frmMain.mnuViewPara.Press();
  EXPECT_FALSE(frmMain.mnuFileNew.Enabled);
  forms.file_answers = {std::nullopt, std::nullopt};
  frmMain.mnuFileOpen.Press();
  EXPECT_EQ(forms.file_dialogs.back().DefaultExtension, "pmt");
  frmMain.mnuFileClose.Press();
  EXPECT_FALSE(frmParameta2.Visible);
  EXPECT_FALSE(frmMain.mnuFileClose.Enabled);
  frmMain.mnuFileClose.Click();
  EXPECT_TRUE(frmPosi.Visible && !forms.ended) << "the position view stays";
  frmMain.mnuFileOpen.Press();
  EXPECT_EQ(forms.file_dialogs.back().DefaultExtension, "qvd");
}

qvr7sim::Setup ForeignController() {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.marker = "X4M";
  return setup;
}

class ForeignControllerTest : public FlowTest {
 protected:
  ForeignControllerTest() : FlowTest(ForeignController()) {}
};

TEST_F(ForeignControllerTest, IsRefused) {
  Choose({0, 0});
  Main();
  ExpectOffline();
  EXPECT_TRUE(BoxShown(Text(124) + "\n" + Text(125)));
}

TEST_F(StartTest, ClosingWhileTeachingIsRefusedWithWords) {
  StartOffline();
  AppState.TeachingNow = True;
  EXPECT_FALSE(CloseView(frmMain, CloseReason::ControlMenu));
  EXPECT_TRUE(BoxShown(Text(60) + "\n" + Text(61)));
  EXPECT_FALSE(forms.ended);
}

TEST_F(StartTest, ClosingDuringAReadFromTheWindowDoesNothing) {
  StartOnline();
  bool closed = true;
  pump.After(500'000, [&] { closed = CloseView(frmMain, CloseReason::ControlMenu); });
  ReadRange(1, 40);
  EXPECT_FALSE(closed);
  EXPECT_FALSE(forms.ended);
  EXPECT_EQ(AppState.PosiLastNo, 40);
}

TEST_F(StartTest, ExitFromTheMenuDuringAReadEndsTheProcess) {
  StartOnline();
  frmMain.mnuFile.Enabled = true;
  const std::int64_t start = pump.NowUs();
  pump.After(500'000, [&] { frmMain.mnuFileExit.Press(); });
  ReadRange(1, 40);
  EXPECT_TRUE(forms.ended);
  EXPECT_LT(pump.NowUs() - start, 1'000'000) << "what ran beneath ends with it";
  EXPECT_TRUE(forms.LastBox().starts_with(Text(370))) << "and says nothing more";
  EXPECT_EQ(virt.settings.Get("Settings", "PortNo", ""), "1");
}

TEST_F(StartTest, CancellingTheSaveQuestionKeepsEverything) {
  StartOnline();
  ReadRange(1, 3);
  frmPosi.PosiChanged = True;
  forms.answers = {MsgAnswer::Cancel};
  EXPECT_FALSE(CloseView(frmMain, CloseReason::ControlMenu));
  EXPECT_FALSE(forms.ended);
  EXPECT_EQ(forms.boxes.back().Title, Text(390));
  forms.answers = {MsgAnswer::No};
  EXPECT_TRUE(CloseView(frmMain, CloseReason::ControlMenu));
  EXPECT_TRUE(forms.ended);
}

TEST_F(StartTest, TheLanguageChangesAtExitOnly) {
  StartOffline();
  forms.on_modal["frmOptions2"] = [](View&) {
    frmOptions2.tabOptions.Selected = 3;
    frmOptions2.tabOptions.Click();
    frmOptions2.optJapanese.Press();
    frmOptions2.cmdOk.Press();
  };
  frmMain.mnuSettingOptions.Press();
  EXPECT_TRUE(BoxShown(Text(420)));
  EXPECT_EQ(AppState.LangOffset, 10000);
  EXPECT_TRUE(AppState.LanguageChanged);
  forms.on_modal["frmOptions2"] = [](View&) {
    frmOptions2.tabOptions.Selected = 3;
    frmOptions2.tabOptions.Click();
    frmOptions2.optEnglish.Press();
    frmOptions2.cmdOk.Press();
  };
  frmMain.mnuSettingOptions.Press();
  EXPECT_FALSE(AppState.LanguageChanged) << "twice back to the start";
  AppState.LanguageChanged = True;
  CloseView(frmMain, CloseReason::Code);
  EXPECT_EQ(virt.settings.Get("Settings", "Language", ""), "1");
}

TEST_F(StartTest, AMinimisedFrameKeepsTheOldRectangle) {
  virt.settings.Set("Settings", "MainLeft", "1234.5");
  StartOffline();
  EXPECT_EQ(frmMain.Left, 1234.5);
  frmMain.Left = 7;
  frmMain.Minimised = true;
  CloseView(frmMain, CloseReason::Code);
  EXPECT_EQ(virt.settings.Get("Settings", "MainLeft", ""), "1234.5");
}

TEST_F(StartTest, OptionsTakeThePortAndItsDevice) {
  StartOffline();
  forms.on_modal["frmOptions2"] = [](View&) {
    frmOptions2.txtPortNo.Type("7");
    EXPECT_EQ(frmOptions2.txtPortNo.Text, "") << "keys outside 0 to 3 are refused";
    frmOptions2.txtPortNo.Type("2");
    frmOptions2.comboPortDevice.Pick(0);
    EXPECT_EQ(frmOptions2.comboPortDevice.Text(), "Simulated controller");
    frmOptions2.chkPortOccupy.Set(false);
    frmOptions2.cmdOk.Press();
  };
  frmMain.mnuSettingOptions.Press();
  EXPECT_EQ(AppState.PortNo, 2);
  EXPECT_FALSE(AppState.PortOccupy);
  EXPECT_EQ(virt.settings.Get("Settings", "PortDevice2", ""), "sim");
  EXPECT_EQ(virt.settings.Get("Settings", "PortOccupy", ""), "0");
}

TEST_F(StartTest, AnotherPortEndsTheSessionAndTheNextUseConnects) {
  StartOnline();
  forms.on_modal["frmOptions2"] = [](View&) {
    frmOptions2.txtPortNo.Type("2");
    frmOptions2.cmdOk.Press();
  };
  frmMain.mnuSettingOptions.Press();
  EXPECT_EQ(forms.LastBox(), Text(5971));
  EXPECT_FALSE(port.IsOpen());
  ExpectOffline();
  ExpectCommandsOn();
  virt.settings.Set("Settings", "PortDevice2", "sim");
  port.sent.clear();
  ReadRange(1, 2);
  EXPECT_TRUE(port.sent.starts_with("0CM1\r\n0CM1\r\n0RV\r\n")) << port.sent;
  ExpectOnline();
}

TEST_F(StartTest, EveryPortNumberIsReachedAndADevicePathMayBeTyped) {
  StartOffline();
  forms.on_modal["frmOptions2"] = [](View&) {
    ComboBox& devices = frmOptions2.comboPortDevice;
    devices.Pick(static_cast<int>(devices.List.size()) - 1);
    EXPECT_EQ(frmOptions2.txtPortNo.Text, "9");
    EXPECT_EQ(devices.Text(), "");
    devices.Type(" /dev/serial/by-id/adapter");
    frmOptions2.cmdOk.Press();
  };
  frmMain.mnuSettingOptions.Press();
  EXPECT_EQ(AppState.PortNo, 9);
  EXPECT_EQ(virt.settings.Get("Settings", "PortDevice9", ""), "/dev/serial/by-id/adapter");
  forms.on_modal["frmOptions2"] = [](View&) {
    EXPECT_EQ(frmOptions2.comboPortDevice.Text(), "/dev/serial/by-id/adapter");
    frmOptions2.comboPortDevice.Pick(0);
    frmOptions2.cmdOk.Press();
  };
  frmMain.mnuSettingOptions.Press();
  EXPECT_EQ(virt.settings.Get("Settings", "PortDevice9", ""), "sim");
}

// The offline start's devices.

class OfflineStartTest : public FlowTest {
 protected:
  /// Starts offline; the user does this in the device dialogue, visit by visit.
  void Start(std::vector<std::function<void()>> visits) {
    forms.on_modal["frmDevice3"] = [this, &visits](View&) {
      if (visits.empty()) return;  // counts as unanswered
      const auto visit = visits.front();
      visits.erase(visits.begin());
      visit();
    };
    Choose({1, 0});
    Main();
    EXPECT_TRUE(visits.empty());
    ExpectOffline();
    EXPECT_EQ(AppState.AxisCount, 4);
    EXPECT_EQ(port.sent, "");
  }
  void Store(const char* key, const char* value) { virt.settings.Set("Settings", key, value); }
  static void Ok() { frmDevice3.cmdDeviceSet.Press(); }
  static void Cancel() { frmDevice3.cmdDeviceCancel.Press(); }
  const std::string again_ = Text(4) + "\n" + Text(5);
};

TEST_F(OfflineStartTest, TheFirstStartOffersTheUsualDevice) {
  Start({[] {
    EXPECT_EQ(frmDevice3.comboDeviceSize[0].Text(), " 28");
    EXPECT_EQ(frmDevice3.comboDeviceStroke[3].Text(), "100");
    EXPECT_FALSE(frmDevice3.cmdDeviceBack.Visible);
    Ok();
  }});
  EXPECT_EQ(Boxes(), Texts{});
  EXPECT_EQ(AppState.MaxPulse[0], 20000);
  EXPECT_EQ(ParamSet.Actuator[3], " 28L100");
  EXPECT_EQ(frmPosi.lblDeviceType[0]->Caption, "QV- 28L-100_");
  EXPECT_EQ(virt.settings.Get("Settings", "DevSize1", ""), " 28");
}

TEST_F(OfflineStartTest, FewerAxesAndAnotherDevice) {
  Store("WithPG1", "1");
  Start({[] {
    EXPECT_TRUE(frmDevice3.chkDevPgUse[0].Value) << "as it was stored";
    frmDevice3.comboAxisSelect.Pick(1);
    frmDevice3.comboDeviceSpeed[1].Pick(1);
    Ok();
  }});
  EXPECT_EQ(AppState.AxisMuko, (AxisArray<Bool16>{False, False, True, True}));
  EXPECT_EQ(DevSetting[1].Lead, 6);
  EXPECT_EQ(frmPosi.lblDeviceType[0]->Caption, "QV- 28L-100E");
  EXPECT_EQ(frmPosi.lblDeviceType[2]->Caption, "");
}

TEST_F(OfflineStartTest, WhoeverLeavesGoesOnWithTheStoredDevices) {
  Store("DevSize2", " 42");
  Store("DevSpeed2", "H");
  Store("DevStroke2", "300");
  Start({[] {
    frmDevice3.comboDeviceSize[1].Pick(0);
    Cancel();
  }});
  EXPECT_EQ(Boxes(), Texts{});
  EXPECT_EQ(AppState.MaxPulse[1], 15000);
  EXPECT_EQ(ParamSet, ParamSetRecord{});
}

TEST_F(OfflineStartTest, AnInvalidDeviceAsksAgain) {
  Store("DevStroke3", "5");
  Start({Cancel, Ok});
  EXPECT_EQ(Boxes(), Texts{again_});
  EXPECT_EQ(DevSetting[2].Size, " 20") << "what the dialogue showed";
  EXPECT_FALSE(DevSetting[2].NotChosen);
}

TEST_F(OfflineStartTest, NobodyIsLockedIn) {
  Store("DevStroke3", "5");
  Start({Cancel, Cancel});
  EXPECT_EQ(Boxes(), Texts{again_});
  EXPECT_TRUE(DevSetting[2].NotChosen);
  EXPECT_EQ(AppState.MaxPulse[2], 0);
  EXPECT_TRUE(frmMain.mnuSettingDevice.Enabled);
}

TEST_F(OfflineStartTest, WithoutTheCatalogueTheStoredDevicesServe) {
  virt.files.Remove(ProgramFile("nqvdevice.lst"));
  Store("DevLead1", "4");
  for (const auto& leave : {Cancel, Ok}) {
    ResetState();
    forms.boxes.clear();
    Start({leave});
    EXPECT_TRUE(BoxShown(Text(15) + "\n" + Text(16)));
    EXPECT_FALSE(BoxShown(Text(4)));
    EXPECT_EQ(DevSetting[0].Lead, 4);
    EXPECT_EQ(AppState.MaxPulse[0], 10000);
  }
  EXPECT_TRUE(BoxShown(Text(36))) << "OK on empty lists";
}

TEST_F(OfflineStartTest, WithoutStandardListsTheStoredDevicesServe) {
  virt.files.Remove(ProgramFile("tr7nqvstpr.lst"));
  Start({Ok, Cancel});
  EXPECT_EQ(Boxes(), (Texts{Text(28) + "\n" + Text(29), Text(36), again_}));
  EXPECT_EQ(AppState.MaxPulse[0], 20000);
}

TEST_F(OfflineStartTest, DetailsOpenTheParametersOnceTheDialogueHasGone) {
  std::int64_t shown_at = 0, left_at = 0;
  forms.on_modal["frmParameta2"] = [&](View& view) {
    shown_at = pump.NowUs();
    EXPECT_EQ(frmParameta2.txtAxisStroke[0].Text, "20000");
    view.Visible = false;
  };
  Start({[&] {
    left_at = pump.NowUs();
    frmDevice3.cmdSyosai.Press();
  }});
  EXPECT_EQ(ParamSet.Actuator[0], " 28L100");
  pump.RunFor(3'000'000);
  EXPECT_EQ(shown_at - left_at, 1'000'000);
  EXPECT_FALSE(frmMain.Timer2.Enabled);
}

TEST_F(OfflineStartTest, DetailsOfAFailedChoiceDoNotCome) {
  virt.files.Remove(ProgramFile("tr7nqvstpr.lst"));
  Start({[] { frmDevice3.cmdSyosai.Press(); }, Cancel});
  pump.RunFor(3'000'000);
  EXPECT_EQ(forms.modals.back(), "frmDevice3");
}

}  // namespace
}  // namespace tr7
