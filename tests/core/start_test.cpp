#include "forms/frm_options2.h"
#include "forms/frm_splash.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

class StartTest : public FlowTest {
 protected:
  /// The user does this in the options and accepts them.
  void SetOptions(const std::function<void()>& change) {
    InDialog("frmOptions2", {[&] {
               change();
               frmOptions2.cmdOk.Press();
             }});
    frmMain.mnuSettingOptions.Press();
  }
  std::string Stored(const char* key) { return virt.settings.Get("Settings", key, ""); }
};

TEST_F(StartTest, AFastMachineStillShowsTheSplashForThreeSeconds) {
  const std::int64_t start = pump.NowUs();
  std::int64_t chosen_at = 0;
  forms.on_modal["frmSelection"] = [&](View& view) {
    if (chosen_at == 0) chosen_at = pump.NowUs();
    AnswerSelection(static_cast<SelectionView&>(view), 1);
  };
  Main();
  EXPECT_GE(chosen_at - start, 3'000'000);
  EXPECT_FALSE(frmSplash.Visible);
}

TEST_F(StartTest, OnlineFailedEndsInTheOfflineStart) {
  const auto start = [this](FaultKind kind, const char* line) {
    StartAnew();
    port.Ct().ClearFaults();
    Spoil(kind, line, 0, 8);  // the last character of the model's marker
    Choose({0, 1});
    Main();
    ExpectOffline();
    EXPECT_EQ(asked.back(), Text(74));
    EXPECT_TRUE(AppState.CtMode && frmMain.mnuFileNewProg.Visible && AppState.AxisCount == 4);
  };
  start(FaultKind::kSilence, "0CM0");
  EXPECT_TRUE(BoxShown(Text(100)));
  start(FaultKind::kChangedByte, "0RV");
  EXPECT_TRUE(BoxShown(Text(124) + "\n" + Text(125)));
}

TEST_F(StartTest, WhileItConnectsOnlyCancelIsOn) {
  Choose({0, 0});
  bool seen = false;
  pump.After(3'010'000, [&seen] {
    seen = frmMain.cmdComCancel.Visible;
    for (const Control* control : std::initializer_list<Control*>{
             &frmPosi.cmdPosiRead, &frmPosi.cmdPosiNew, &frmPosi.flgdData, &frmMain.cmdReset,
             &frmMain.mnuFile, &frmMain.mnuSetting}) {
      EXPECT_FALSE(control->Enabled) << control->Name;
    }
    frmMain.cmdComCancel.Press();
  });
  Main();
  EXPECT_TRUE(seen);
  EXPECT_EQ(port.sent, "0CM00000\r\n");
  EXPECT_TRUE(forms.boxes.empty());
  EXPECT_EQ(asked.back(), Text(74)) << "the offline start follows";
  ExpectOffline();
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

TEST_F(StartTest, TheLanguageChangesAtExitOnly) {
  const auto choose = [this](OptionButton& language) {
    SetOptions([&language] {
      ClickTab(frmOptions2.tabOptions, 3);
      language.Press();
    });
  };
  StartOffline();
  choose(frmOptions2.optJapanese);
  EXPECT_TRUE(BoxShown(Text(420)));
  EXPECT_EQ(AppState.LangOffset, 10000);
  choose(frmOptions2.optEnglish);
  EXPECT_FALSE(AppState.LanguageChanged) << "twice back to the start";
  choose(frmOptions2.optJapanese);
  CloseView(frmMain, CloseReason::Code);
  EXPECT_EQ(Stored("Language"), "1");
}

TEST_F(StartTest, AnotherPortEndsTheSessionAndTheNextUseConnects) {
  StartOnline();
  SetOptions([] { frmOptions2.txtPortNo.Type("2"); });
  EXPECT_EQ(forms.LastBox(), Text(5971));
  EXPECT_FALSE(port.IsOpen());
  ExpectOffline();
  ExpectCommandsOn();
  SetOptions([] {
    frmOptions2.comboPortDevice.Pick(0);
    frmOptions2.chkPortOccupy.Set(false);
  });
  EXPECT_EQ(AppState.PortNo, 2);
  SetOptions([] { frmOptions2.txtPortNo.Type("0"); });
  EXPECT_EQ(forms.LastBox(), Text(7194, "2"));
  EXPECT_EQ(Stored("PortDevice2") + Stored("PortOccupy"), "sim0");
  port.sent.clear();
  ReadRange(1, 2);
  EXPECT_TRUE(port.sent.starts_with("0CM1\r\n0CM1\r\n0RV\r\n")) << port.sent;
  ExpectOnline();
}

TEST_F(StartTest, SettingsTravelByTheOptionsOwnWayAndADamagedFileChangesNothing) {
  StartOnline();
  const auto options = [this](CommandButton FrmOptions2::*button) {
    forms.file_answers = {"/a.qvs"};
    InDialog("frmOptions2", {[button] {
               (frmOptions2.*button).Press();
               frmOptions2.cmdCancel.Press();
             }});
    frmMain.mnuSettingOptions.Press();
  };
  options(&FrmOptions2::cmdExport);
  const std::string exported = virt.files.Content("/a.qvs").value();
  const auto before = virt.settings.values;
  virt.files.Put("/a.qvs", exported + "x");
  options(&FrmOptions2::cmdImport);
  EXPECT_TRUE(BoxShown("Nothing has changed"));
  EXPECT_EQ(virt.settings.values, before);
  ExpectOnline();
  virt.settings.Set("Settings", "Vari0", "0,1");
  virt.files.Put("/a.qvs", With(exported, "[end]", "IoNameIn0=door\nMmRoundUp=0\nPortNo=2\n[end]"));
  forms.answers = {MsgAnswer::Ok};
  options(&FrmOptions2::cmdImport);
  EXPECT_TRUE(BoxShown(Text(5971)));
  ExpectOffline();
  EXPECT_TRUE(AppState.PortNo == 2 && !AppState.MmRoundUp);
  EXPECT_EQ(Stored("IoNameIn0") + Stored("Vari0") + Stored("PortNo"), "door2");
}

// The offline start's devices.

class OfflineStartTest : public FlowTest {
 protected:
  /// Starts offline; the user does this in the device dialogue, visit by visit.
  void Start(std::vector<std::function<void()>> visits) {
    const std::size_t wanted = visits.size();
    InDialog("frmDevice3", std::move(visits));
    forms.modals.clear();
    StartOffline();
    EXPECT_EQ(std::count(forms.modals.begin(), forms.modals.end(), "frmDevice3"), wanted);
    EXPECT_EQ(AppState.AxisCount, 4);
    EXPECT_EQ(port.sent, "");
  }
  void Store(const char* key, const char* value) { virt.settings.Set("Settings", key, value); }
  static void Ok() { frmDevice3.cmdDeviceSet.Press(); }
  static void Cancel() { frmDevice3.cmdDeviceCancel.Press(); }
  const std::string again_ = Text(4) + "\n" + Text(5);
};

TEST_F(OfflineStartTest, TheFirstStartOffersTheUsualDevice) {
  Store("WithPG1", "1");
  Start({[] {
    EXPECT_EQ(frmDevice3.comboDeviceSize[0].Text(), " 28");
    EXPECT_TRUE(frmDevice3.chkDevPgUse[0].Value) << "as it was stored";
    frmDevice3.comboAxisSelect.Pick(1);
    frmDevice3.comboDeviceSpeed[1].Pick(1);
    Ok();
  }});
  EXPECT_EQ(Boxes(), Texts{});
  EXPECT_EQ(AppState.AxisMuko, MukoOfMask(3));
  EXPECT_EQ(AppState.MaxPulse[0], 20000);
  EXPECT_EQ(ParamSet.Actuator[0], " 28L100");
  EXPECT_EQ(frmPosi.lblDeviceType[0]->Caption + frmPosi.lblDeviceType[2]->Caption, "QV- 28L-100E");
  EXPECT_EQ(virt.settings.Get("Settings", "DevSize1", ""), " 28");
}

TEST_F(OfflineStartTest, AnInvalidDeviceAsksAgainAndNobodyIsLockedIn) {
  Store("DevStroke3", "5");
  for (const auto& second : {Ok, Cancel}) {
    StartAnew();
    Start({Cancel, second});
    EXPECT_EQ(Boxes(), Texts{again_});
    EXPECT_EQ(DevSetting[2].NotChosen, second == Cancel);
    EXPECT_EQ(DevSetting[2].Size, second == Cancel ? "" : " 20") << "what the dialogue showed";
    EXPECT_TRUE(frmMain.mnuSettingDevice.Enabled);
    virt.settings.Set("Settings", "DevStroke3", "5");
  }
}

TEST_F(OfflineStartTest, WithoutTheCatalogueTheStoredDevicesServe) {
  virt.files.Remove(ProgramFile("nqvdevice.lst"));
  Store("DevLead1", "4");
  for (const auto& leave : {Cancel, Ok}) {
    StartAnew();
    forms.boxes.clear();
    Start({leave});
    EXPECT_TRUE(BoxShown(Text(15) + "\n" + Text(16)));
    EXPECT_FALSE(BoxShown(Text(4)));
    EXPECT_EQ(DevSetting[0].Lead, 4);
    EXPECT_EQ(AppState.MaxPulse[0], 10000);
  }
  EXPECT_TRUE(BoxShown(Text(36))) << "OK on empty lists";
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
  pump.RunFor(3'000'000);
  EXPECT_EQ(shown_at - left_at, 1'000'000);
}

}  // namespace
}  // namespace tr7
