#include "tests/support/flow_test.h"

namespace tr7 {

void HoldProgram(VirtualDoors& virt, int program, const std::string& steps) {
  const std::string frame = "0WM" + HexPad(program, 2) + steps + "\r\n";
  virt.port.Ct().Receive(frame, virt.pump.NowUs());
  virt.pump.RunFor(2000 * static_cast<std::int64_t>(frame.size()));
  static_cast<void>(virt.port.Axes());  // it has come to where it hears of it
  virt.port.Ct().DropLine();
}

void ClickTab(TabStrip& strip, int tab) {
  strip.Selected = tab;
  if (strip.Click) strip.Click();
}

void AnswerSelection(SelectionView& view, int choice) {
  if (choice < 0) {
    view.cmdCancel.Press();
    return;
  }
  view.options[static_cast<std::size_t>(choice)]->Press();
  view.cmdOk.Press();
}

void AcceptDevices(View& view) { static_cast<DeviceView&>(view).cmdDeviceSet.Press(); }

void FillRange(SelectPosiNoView& view, int first, int last) {
  view.optRange.Press();
  view.txtFromNo.Type(std::to_string(first));
  view.txtToNo.Type(std::to_string(last));
  view.cmdOk.Press();
}

qvr7sim::Setup InProgramMode() {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.mode = qvr7sim::Mode::kProgram;
  return setup;
}

std::string PcState::Of(const AxisArray<DevSettingRecord>& devices) {
  std::string all;
  for (const DevSettingRecord& device : devices) {
    all += device.Size + device.Speed + std::to_string(device.Stroke) + " " +
           std::to_string(device.Lead) + " " + std::to_string(device.Ppr) +
           (device.WithPG ? "E " : "_ ");
  }
  return all;
}

FlowTest::FlowTest(const qvr7sim::Setup& setup) : StateTest(setup) {
  virt.settings.Set("Settings", "Language", "2");
  for (const char* name : {"frmSelection", "frmSelection2"}) {
    forms.on_modal[name] = [this](View& view) {
      auto& selection = static_cast<SelectionView&>(view);
      asked.push_back(selection.lblPrompt.Caption);
      if (choices_.empty()) return;  // counts as unanswered
      const int choice = choices_.front();
      choices_.erase(choices_.begin());
      AnswerSelection(selection, choice);
    };
  }
  forms.on_modal["frmDevice3"] = AcceptDevices;
}

void FlowTest::TearDown() {
  if (frmMain.Loaded && !forms.ended) {
    ExpectCommandsOn();
    AppState.Offline ? ExpectOffline() : ExpectLampOnline();
    EXPECT_TRUE(AppState.PortOccupy || !port.IsOpen()) << "the port stays open";
    EXPECT_EQ(frmMain.imgAlarm.Visible, bool(AppState.AlarmOn));
    EXPECT_FALSE(AppState.OfflineTemporarilyLifted);
    EXPECT_FALSE(frmMain.timerTimeout.Enabled);
    EXPECT_EQ(frmMain.lblCtMode.Caption, Text(AppState.CtMode ? MsgId(129) : MsgId(128)));
  }
  StateTest::TearDown();
}

void FlowTest::GoOffline() {
  forms.answers = {MsgAnswer::Ok};
  frmMain.mnuSettingOffline.Press();
  ExpectOffline();
}

void FlowTest::Forget() {
  port.sent.clear();
  forms.boxes.clear();
  forms.modals.clear();
  asked.clear();
}

void FlowTest::Choose(std::vector<int> choices) { choices_ = std::move(choices); }

void FlowTest::StartOnline() {
  Choose({0});
  Main();
}

void FlowTest::StartOffline(bool program_mode) {
  Choose({1, program_mode ? 1 : 0});
  Main();
}

void FlowTest::AnswerRange(const std::string& name, int first, int last) {
  forms.on_modal[name] = [first, last](View& view) {
    FillRange(static_cast<SelectPosiNoView&>(view), first, last);
  };
}

void FlowTest::CancelRange(const std::string& name) {
  forms.on_modal[name] = [](View& view) { static_cast<SelectPosiNoView&>(view).cmdCancel.Press(); };
}

const std::string& FlowTest::Cell(int number, int col) {
  return frmPosi.flgdData.Text(RowOfPosition(number), col);
}

void FlowTest::Put(int number, int col, const std::string& text) {
  frmPosi.flgdData.SetText(RowOfPosition(number), col, text);
}

void FlowTest::ReadRange(int first, int last) {
  AnswerRange("frmSelectPosiNo2", first, last);
  forms.answers.push_back(MsgAnswer::Ok);
  frmPosi.cmdPosiRead.Press();
}

void FlowTest::ExpectCommandsOn() const {
  EXPECT_TRUE(frmMain.cmdReset.Enabled);
  EXPECT_TRUE(frmMain.mnuFile.Enabled);
  EXPECT_TRUE(frmMain.mnuSetting.Enabled);
  EXPECT_TRUE(frmMain.tbToolBar.At(1).Enabled);
  EXPECT_TRUE(frmPosi.cmdPosiRead.Enabled);
  EXPECT_TRUE(frmPosi.flgdData.Enabled);
  EXPECT_TRUE(frmPosi.flgdData.Redraw);
  EXPECT_FALSE(frmMain.ProgressBar1.Visible);
  EXPECT_FALSE(frmMain.cmdComCancel.Visible);
  EXPECT_FALSE(AppState.ComBusy);
  EXPECT_EQ(AppState.CommandsOffDepth, 0);
  EXPECT_EQ(forms.wait_cursors, 0);
}

void FlowTest::ExpectOffline() const {
  EXPECT_TRUE(AppState.Offline);
  EXPECT_FALSE(frmMain.imgOnline.Visible);
  EXPECT_TRUE(frmMain.mnuSettingOnline.Enabled);
  EXPECT_FALSE(frmMain.mnuSettingOffline.Enabled);
  EXPECT_FALSE(frmPosi.tabCmd.Tabs[1].Enabled);
}

void FlowTest::ExpectLampOnline() const {
  EXPECT_FALSE(AppState.Offline);
  EXPECT_TRUE(frmMain.imgOnline.Visible);
  EXPECT_FALSE(frmMain.mnuSettingOnline.Enabled);
  EXPECT_TRUE(frmMain.mnuSettingOffline.Enabled);
}

void FlowTest::ExpectOnline() const {
  ExpectLampOnline();
  EXPECT_TRUE(frmPosi.tabCmd.Tabs[1].Enabled);
}

}  // namespace tr7
