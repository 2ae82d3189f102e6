#include "posi/posi_open.h"

#include <functional>
#include <string>
#include <vector>

#include "device/dev_setting.h"
#include "para/para_file.h"
#include "para/param_set.h"
#include "posi/posi_caption.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

const std::string kPath = "/data/job.qvd";
const std::string kParaPath = "/data/axes.pmt";

struct FileText {
  std::string mode = "POS MODE";
  AxisArray<std::string> devices;
  std::string words = "\"NEW\",\"NEW\",\"NEW\",\"NEW\"\r\n";  ///< line 4
  std::vector<int> numbers{1, 2};
  std::string way = "1";
  int pulses = 1000;
};

/// A file as any program would write it: axis 1 moves, the others hold what a new line holds.
std::string Bytes(const FileText& file) {
  std::string text = "\"QV-R7\"\r\n\"" + file.mode + "\"\r\n";
  for (int axis = 0; axis < kAxes; ++axis) {
    text += "\"" + file.devices[static_cast<std::size_t>(axis)] + (axis < 3 ? "\"," : "\"\r\n");
  }
  text += file.words;
  for (const int n : file.numbers) {
    text += std::to_string(n);
    for (int axis = 0; axis < kAxes; ++axis) {
      const std::string way = axis == 0 ? file.way : "0";
      const std::string pulses = axis == 0 ? std::to_string(file.pulses + n) : "0";
      text += ",\" 30\",\" 10\",\" " + way + "\",\" " + pulses + "\"," +
              (axis == 0 ? "0" : "\" 0\"") + ",\" 0\"";
    }
    text += ",\" 0\",\" 0\",\" 0\",\"No " + std::to_string(n) + "\"\r\n";
  }
  return text;
}

/// All that a failed open leaves as it was.
std::string Everything() {
  std::string all =
      PosiTable.Name + "|" + frmPosi.Caption + "|" + std::to_string(bool(frmPosi.PosiChanged)) +
      "|" + std::to_string(AppState.PosiFirstNo) + "-" + std::to_string(AppState.PosiLastNo) + "|" +
      std::to_string(AppState.PosiCount) + "|" + std::to_string(AppState.AxisCount) + "|";
  for (int n = 1; n <= 9; ++n) {
    const auto slot = static_cast<std::size_t>(n);
    for (int col = 1; col < kPosiColumns; ++col) {
      all += TextOf(PosiTable.PosiRec[static_cast<std::size_t>(col)][slot]) + ",";
    }
    all += std::to_string(PosiTable.PosiPulse[0][slot]) + std::to_string(PosiTable.PosiMm[0][slot]);
  }
  for (int row = 0; row < frmPosi.flgdData.Rows(); ++row) {
    for (int col = 0; col < kPosiColumns; ++col) all += frmPosi.flgdData.Text(row, col) + ",";
  }
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    all += std::to_string(bool(AppState.AxisMuko[axis])) +
           std::to_string(AppState.StrokePulse[axis]) + std::to_string(AppState.MaxPulse[axis]) +
           frmPosi.lblDeviceType[axis]->Caption + frmPosi.lblAge[axis]->Caption;
    for (const DevSettingRecord& device : {DevSetting[axis], DevSettei[axis]}) {
      all += device.Size + device.Speed + std::to_string(device.Stroke) + "," +
             std::to_string(device.Lead) + "," + std::to_string(device.Ppr) + device.NewTypeWord +
             std::to_string(bool(device.NewType)) + std::to_string(bool(device.WithPG)) +
             std::to_string(bool(device.Vertical)) + std::to_string(bool(device.NotChosen)) + ";";
    }
  }
  return all;
}

class OpenTest : public FlowTest {
 protected:
  explicit OpenTest(const qvr7sim::Setup& setup = qvr7sim::Setup::Useful()) : FlowTest(setup) {}

  /// Online, with a table of positions 3 to 5 that the user has changed.
  void Start() {
    StartOnline();
    for (std::size_t axis = 0; axis < kAxes; ++axis) {
      own.devices[axis] = frmPosi.lblDeviceType[axis]->Caption;
    }
    own.mode = AppState.CtMode ? "PRG MODE" : "POS MODE";
    ReadRange(3, 5);
    frmPosi.flgdData.TypeInto(RowOfPosition(4), kComment, "mine");
    forms.boxes.clear();
    port.sent.clear();
    asked.clear();
  }
  void Open(const std::string& bytes) {
    virt.files.Put(kPath, bytes);
    forms.file_answers.emplace_front(kPath);
    if (frmPosi.PosiChanged) forms.answers = {MsgAnswer::No};
    frmPosi.cmdPosiOpen.Press();
    ExpectCommandsOn();
    EXPECT_EQ(forms.focus, &frmPosi.flgdData);
    EXPECT_EQ(port.sent, "") << "a file is no matter of the line";
  }
  void Open(const FileText& file) { Open(Bytes(file)); }
  std::string Cell(int number, int col) const {
    return frmPosi.flgdData.Text(RowOfPosition(number), col);
  }
  /// What is on show, saved, opened and saved again.
  void ExpectTheSameBytesAgain() {
    frmPosi.flgdData.TypeInto(RowOfPosition(4), kComment, "受取り, 表示 ﾎｰﾑ");
    SetPosiTableFile(kPath);
    frmPosi.cmdPosiSave.Press();
    const std::string saved = virt.files.Content(kPath).value_or("");
    EXPECT_NE(saved.find("\x8e\xf3\x8e\xe6\x82\xe8, "), std::string::npos) << "code page 932";
    AnswerRange("frmSelectPosiNo3", 1, 2);
    frmPosi.cmdPosiNew.Press();
    Open(saved);
    EXPECT_EQ(Cell(4, kComment), "受取り, 表示 ﾎｰﾑ");
    virt.files.Put(kPath, "");
    frmPosi.cmdPosiSave.Press();
    EXPECT_EQ(virt.files.Content(kPath), saved);
  }
  FileText own;  ///< a file of the devices in use
};

TEST_F(OpenTest, AFileReplacesTheTable) {
  Start();
  for (const bool mm : {false, true}) {
    AppState.DispMmUnit = mm;
    own.numbers = {5, 6, 7};
    own.pulses += 10;
    const std::string bytes = Bytes(own);
    Open(bytes);
    EXPECT_TRUE(asked.empty()) << "the devices are the same";
    EXPECT_EQ(frmPosi.Caption, "Position Data-[job]");
    EXPECT_FALSE(frmPosi.PosiChanged);
    EXPECT_EQ(frmPosi.flgdData.Rows(), 5);
    EXPECT_EQ(AppState.PosiFirstNo, 5);
    EXPECT_EQ(AppState.PosiToNo, 7);
    EXPECT_EQ(AppState.PosiCount, 3);
    EXPECT_EQ(Cell(6, kPosi), mm ? "   5.130" : "1016");
    EXPECT_EQ(Cell(6, kAcc), "100");
    EXPECT_EQ(Cell(6, kComment), "No 6");
    EXPECT_EQ(frmPosi.lblAge1.Caption, Text(126));
    // Saved again it is the same file, without another question for its name.
    frmPosi.cmdPosiSave.Press();
    EXPECT_EQ(virt.files.Content(kPath), bytes);
  }
  EXPECT_TRUE(forms.boxes.size() == 1) << "the question about unsaved data";
}

TEST_F(OpenTest, SavedOpenedAndSavedAgain) {
  Start();
  ExpectTheSameBytesAgain();
}

TEST_F(OpenTest, AnyNumbersGiveTheRangeFromFirstToLast) {
  Start();
  const struct {
    std::vector<int> numbers;
    int first, count, rows;
  } rows[] = {{{7}, 7, 1, 3}, {{2, 5}, 2, 4, 6}, {{9, 5}, 9, -3, 2}, {{999}, 999, 1, 3}};
  for (const auto& row : rows) {
    own.numbers = row.numbers;
    forms.boxes.clear();
    Open(own);
    EXPECT_EQ(BoxShown(Text(6458, "3-4")), row.rows == 6) << "told which lines are not the file's";
    EXPECT_EQ(AppState.PosiFirstNo, row.first);
    EXPECT_EQ(AppState.PosiCount, row.count);
    EXPECT_EQ(frmPosi.flgdData.Rows(), row.rows);
  }
  own.numbers = {9, 5};
  Open(own);
  forms.boxes.clear();
  frmPosi.cmdPosiSave.Press();
  EXPECT_EQ(forms.LastBox(), Text(433) + "\n" + Text(434));
  AnswerRange("frmSelectPosiNo3", 1, 3);
  frmPosi.cmdPosiNew.Press();
  EXPECT_EQ(frmPosi.flgdData.Rows(), 5) << "nothing of it stands in the way of new data";
}

TEST_F(OpenTest, WithoutLineFourEveryAxisIsOld) {
  Start();
  own.words.clear();
  own.numbers = {1, 2, 3};
  Open(own);
  EXPECT_EQ(frmPosi.flgdData.Rows(), 5);
  EXPECT_EQ(Cell(1, kComment), "No 1");
  for (const Label* age : frmPosi.lblAge) EXPECT_EQ(age->Caption, "(Old)");
  // Nothing of the file stands beside data of another kind, nor beside other devices.
  AnswerRange("frmSelectPosiNo3", 1, 2);
  frmPosi.cmdPosiNew.Press();
  EXPECT_EQ(frmPosi.lblAge1.Caption, "(New)");
  Open(own);
  AnswerRange("frmSelectPosiNo2", 8, 9);
  forms.answers = {MsgAnswer::Ok};
  frmPosi.cmdPosiRead.Press();
  EXPECT_EQ(frmPosi.lblAge1.Caption, "(New)");
  port.sent.clear();
  own.devices[0] = "QV- 28H-200E";
  Choose({0});
  Open(own);
  EXPECT_EQ(frmPosi.lblAge1.Caption, "(New)") << "the device in use";
}

TEST_F(OpenTest, UnsavedDataIsAskedAboutFirst) {
  Start();
  const std::string before = Everything();
  virt.files.Put(kPath, Bytes(own));
  forms.answers = {MsgAnswer::Cancel};
  frmMain.mnuFileOpen.Press();
  EXPECT_EQ(forms.LastBox(), Text(6450));
  EXPECT_EQ(Everything(), before);
  EXPECT_TRUE(forms.file_dialogs.empty());
  // Yes, but the save is cancelled; then Yes, saved elsewhere, and opened.
  forms.answers = {MsgAnswer::Yes, MsgAnswer::Yes};
  forms.file_answers = {std::nullopt, std::string("/data/mine.qvd"), std::string(kPath)};
  frmMain.mnuFileOpen.Press();
  EXPECT_EQ(frmPosi.flgdData.Rows(), 5);
  EXPECT_EQ(Cell(4, kComment), "mine");
  frmMain.tbToolBar.Press("Open");
  EXPECT_NE(virt.files.Content("/data/mine.qvd").value_or("").find("mine"), std::string::npos);
  EXPECT_EQ(frmPosi.Caption, "Position Data-[job]");
}

TEST_F(OpenTest, WhateverFailsEverythingIsAsItWas) {
  Start();
  FileText file = own;
  const auto other = [&](const std::string& device) {
    FileText changed = own;
    changed.devices[0] = device;
    return Bytes(changed);
  };
  file.mode = AppState.CtMode ? "POS MODE" : "PRG MODE";
  FileText none = own;
  none.devices.fill("");
  const std::string no_device = Bytes(none);
  const std::string otherwise = other("QV- 28H-200_");
  // The list lacks the device, which shows only after the common values have been taken.
  const auto short_list = [&] {
    virt.files.Put("/program/tr7nqvstpr.lst",
                   "\"QV-R7\",\"QV-STDPRM\"\r\n1,13\r\n"
                   "\" 20L-010\",192,40,10,5,5,1,960,2,192,15,0,\" 20L010\"\r\n");
  };
  const auto no_para = [&] { forms.file_answers = {std::nullopt}; };
  const auto bad_para = [&] {
    virt.files.Put(kParaPath, "\"QV-R7\",\"PRM\"\r\n1\r\n\"ETC\"\r\n");
    forms.file_answers = {std::string(kParaPath)};
  };
  const struct {
    const char* what;
    std::string bytes;
    std::string box;
    int choice = -2;  ///< -2: the devices are not asked about
    std::function<void()> prepare = [] {};
  } rows[] = {
      {"wrong magic", "\"QV-R8\"\r\n", Text(21) + "\n" + Text(20)},
      {"cut short", Bytes(own).substr(0, 300),
       Text(484) + "\n\n" + Text(6321, "6", Text(6452, "2"))},
      {"other mode", Bytes(file), Text(330) + "\n" + Text(331)},
      {"no device name", other("ROBOT"), Text(4) + "\n" + Text(5)},
      {"unknown device", other("QV- 28L-333_"), Text(4) + "\n" + Text(5)},
      {"no device on any axis", no_device, Text(4) + "\n" + Text(5), 1},
      {"choice cancelled", otherwise, Text(367), -1},
      {"no standard parameters", otherwise, Text(36), 1, short_list},
      {"no parameter file chosen", otherwise, Text(367), 2, no_para},
      {"parameter file damaged", otherwise, Text(681), 2, bad_para},
  };
  const ParamSetRecord params = ParamSet;
  const std::string before = Everything();
  for (const auto& row : rows) {
    forms.file_answers.clear();
    row.prepare();
    if (row.choice > -2) Choose({row.choice});
    asked.clear();
    Open(row.bytes);
    EXPECT_EQ(forms.LastBox().substr(0, row.box.size()), row.box) << row.what;
    EXPECT_EQ(asked.size(), row.choice > -2 ? 1u : 0u) << row.what;
    EXPECT_EQ(Everything(), before) << row.what;
    EXPECT_EQ(ParamSet, params) << row.what;
  }
}

TEST_F(OpenTest, CancelAndFaultsOfTheDevice) {
  Start();
  const std::string before = Everything();
  const std::string bytes = Bytes(own);
  virt.files.Put(kPath, bytes);
  forms.answers = {MsgAnswer::No, MsgAnswer::No};
  forms.file_answers = {std::nullopt, std::string()};
  frmPosi.cmdPosiOpen.Press();
  EXPECT_EQ(forms.LastBox(), Text(367));
  forms.boxes.clear();
  frmPosi.cmdPosiOpen.Press();
  EXPECT_EQ(forms.boxes.size(), 1u) << "the question about unsaved data";
  EXPECT_EQ(Everything(), before);

  // A file that is not there may come (a share, a stick): four tries.
  forms.answers = {MsgAnswer::No};
  forms.file_answers = {std::string("/data/gone.qvd")};
  std::int64_t start_us = pump.NowUs();
  frmPosi.cmdPosiOpen.Press();
  EXPECT_EQ((pump.NowUs() - start_us) / 100'000, 3);
  EXPECT_EQ(forms.LastBox().substr(0, Text(484).size()), Text(484));
  EXPECT_EQ(Everything(), before);
  // A fault that passes.
  forms.boxes.clear();
  virt.files.FailAt(1, FileFault::Other);
  start_us = pump.NowUs();
  forms.answers = {MsgAnswer::No};
  forms.file_answers = {std::string(kPath)};
  frmPosi.cmdPosiOpen.Press();
  EXPECT_EQ((pump.NowUs() - start_us) / 100'000, 1);
  EXPECT_EQ(forms.boxes.size(), 1u);
  EXPECT_EQ(frmPosi.Caption, "Position Data-[job]");
}

// Devices that differ.

TEST_F(OpenTest, WithTheDevicesInUse) {
  Start();
  const auto devices = own.devices;
  own.devices[0] = "QV- 28H-200E";
  own.devices[3] = "";
  Choose({0});
  Open(own);
  EXPECT_EQ(asked, std::vector<std::string>{Text(44)});
  EXPECT_EQ(frmPosi.flgdData.Rows(), 4);
  EXPECT_EQ(DevSetting[0].Size + DevSetting[0].Speed, devices[0].substr(3, 4));
  EXPECT_FALSE(AppState.AxisMuko[3]);
  frmPosi.cmdPosiSave.Press();
  own.devices = devices;
  EXPECT_EQ(virt.files.Content(kPath), Bytes(own)) << "saved with the devices in use";
}

TEST_F(OpenTest, WithTheDevicesOfTheFile) {
  Start();
  ParaFlags.AxisMaskFixed = True;
  ParaFlags.AxisMask = 15;
  own.devices = {"QV- 28H-200E", "QV-E35L-100 ", "", ""};
  own.pulses = 12000;
  Choose({1});
  Open(own);
  EXPECT_TRUE(AppState.AxisMuko[2] && AppState.AxisMuko[3]);
  EXPECT_EQ(AppState.AxisCount, 2);
  EXPECT_EQ(DevSetting[0].Stroke, 200);
  EXPECT_EQ(DevSetting[0].Lead, 6);
  EXPECT_TRUE(DevSetting[0].WithPG);
  EXPECT_TRUE(DevSetting[0].NewType);
  EXPECT_EQ(ParamSet.OneAxis, 3);
  EXPECT_EQ(ParamSet.Actuator[0], " 28H200");
  EXPECT_EQ(AppState.MaxPulse[0], 13334);
  EXPECT_EQ(AppState.StrokePulse[0], ParamSet.AxisStroke[0]);
  EXPECT_EQ(frmPosi.lblAge1.Caption, "(New)");
  EXPECT_EQ(frmPosi.lblDeviceType4.Caption + frmPosi.lblAge4.Caption, "");
  EXPECT_EQ(frmPosi.flgdData.ColWidth(AxisBase(2) + kPosi), 0);
  EXPECT_NE(frmMain.sbStatusBar.Panels[kPanelScale1].find("66.667"), std::string::npos);
  EXPECT_EQ(virt.settings.Get("Settings", "DevSpeed1", "-"), "H");
  // The same file is now of the devices in use; an axis that was out of use may come back.
  Open(own);
  EXPECT_EQ(asked.size(), 1u);
  own.devices[2] = "QV- 35H-300_";
  Choose({1});
  Open(own);
  EXPECT_FALSE(AppState.AxisMuko[2]);
  EXPECT_EQ(DevSetting[2].Size + DevSetting[2].Speed, " 35H");
  EXPECT_EQ(DevSetting[2].Stroke, 300);
  EXPECT_NE(frmPosi.flgdData.ColWidth(AxisBase(2) + kPosi), 0);
}

TEST_F(OpenTest, WithTheDevicesOfAParameterFile) {
  Start();
  const AxisArray<std::string> actuators{" 28H200", " 35H300", "", ""};
  const ParamSetRecord before = ParamSet;
  for (std::size_t axis = 0; axis < 2; ++axis) {
    ParamSet.Actuator[axis] = actuators[axis];
    ParamSet.AxisLead[axis] = 6;
    ParamSet.AxisPulse[axis] = 400;
    ParamSet.AxisStroke[axis] = 13333;
    ParamSet.PgFunction[axis] = static_cast<std::int16_t>(axis);
  }
  ParamSet.OneAxis = 3;
  ASSERT_EQ(WriteParaFile(kParaPath), 0);
  ParamSet = before;
  own.devices[0] = "QV- 28L-050_";
  Choose({2});
  forms.file_answers = {std::string(kParaPath)};
  Open(own);
  EXPECT_EQ(forms.file_dialogs.back().Title, Text(686));
  EXPECT_EQ(ParamSet.OneAxis, 3);
  EXPECT_TRUE(AppState.AxisMuko[2]);
  EXPECT_EQ(DevSetting[0].Size + DevSetting[0].Speed, " 28H") << "the parameter file's, not ours";
  EXPECT_EQ(DevSetting[1].Stroke, 300);
  EXPECT_FALSE(DevSetting[0].WithPG);
  EXPECT_TRUE(DevSettei[1].WithPG);
  EXPECT_EQ(AppState.StrokePulse[0], 13333);
  EXPECT_EQ(frmPosi.lblDeviceType1.Caption, "QV- 28H-200_");
  EXPECT_EQ(frmPosi.flgdData.Rows(), 4);
  EXPECT_EQ(frmPosi.Caption, "Position Data-[job]");
}

// Program mode.

qvr7sim::Setup ProgramMode() {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.mode = qvr7sim::Mode::kProgram;
  return setup;
}

class ProgramOpenTest : public OpenTest {
 protected:
  ProgramOpenTest() : OpenTest(ProgramMode()) {}
};

TEST_F(ProgramOpenTest, SavedOpenedAndSavedAgain) {
  Start();
  ExpectTheSameBytesAgain();
}

TEST_F(ProgramOpenTest, TheWayStandsInThePosition) {
  Start();
  AppState.DispMmUnit = False;
  const struct {
    const char *way, *cell;
  } rows[] = {{"0", "       N"}, {"1", "    1001"}, {"2", "   +1001"}, {"3", "   -1001"}};
  for (const auto& row : rows) {
    own.way = row.way;
    Open(own);
    EXPECT_EQ(Cell(1, kPosi), row.cell);
    EXPECT_EQ(Cell(1, kComment), "No 1");
    EXPECT_EQ(frmPosi.flgdData.ColWidth(kVel), 0);
  }
  const std::string before = Everything();
  own.mode = "POS MODE";
  Open(own);
  EXPECT_EQ(forms.LastBox(), Text(330) + "\n" + Text(331));
  own.mode = "something else";
  Open(own);
  EXPECT_EQ(Everything(), before) << "any other word means position mode";
}

}  // namespace
}  // namespace tr7
